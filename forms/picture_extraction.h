// Pictures of forms, images and buttons: the bytes of PictureData written as
// a picture record into the form's .frx file.
#pragma once

#include <string>

namespace morvane {

class FormWriter;

// Writes the picture of `controlName` on `holder` (the form itself when
// `controlName` is empty) to the .frx and returns the offset text of the
// Picture line, or "" when the picture cannot be carried over.
std::string ExtractPicture(FormWriter& w, const std::string& holder,
                           const std::string& controlName, bool isReport);

}  // namespace morvane
