// Pictures of forms, images and buttons: the bytes of PictureData written as
// a picture record into the form's .frx file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace morvane {

class FormWriter;

// The picture record of PictureData bytes (a bitmap, a metafile or an
// enhanced metafile) as a .frx holds it, or with `dsx` as a .dsx holds it;
// nullopt for bytes of another kind or over the size limit.
std::optional<std::string> PictureRecord(const std::string& data, bool dsx);
// The offset of a record as a Picture line names it: upper-case
// hexadecimal, at least four digits.
std::string PictureOffsetText(std::uintmax_t offset);

// Writes the picture of `controlName` on `holder` (the form itself when
// `controlName` is empty) to the .frx and returns the offset text of the
// Picture line, or "" when the picture cannot be carried over.
std::string ExtractPicture(FormWriter& w, const std::string& holder, const std::string& controlName,
                           bool isReport);

}  // namespace morvane
