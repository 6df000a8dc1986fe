// The conversion code: the standard module MorvaneConversionCode.bas that
// every converted project carries. Its base text comes from the data
// directory; the run adds GetFormFromName for the converted forms and those of
// the 21 helper templates (ids 700 to 720) that the converted code calls. The
// per-form list initialisers InitializeListBoxes and InitializeComboBoxes are
// written here too, into the form text.
#pragma once

#include <filesystem>
#include <string>

#include "platform/text_document.h"

namespace morvane {

struct ConversionSession;

inline constexpr int kFirstConversionTemplate = 700;
inline constexpr int kConversionTemplateCount = 21;

// The text of template `id` (700 to 720) as it goes into the conversion code,
// with CR LF line ends; empty when the id is unknown or its file in
// `dataDir`/conversion_templates cannot be read.
std::string ConversionCodeTemplate(const std::filesystem::path& dataDir, int id);

// Appends GetFormFromName, which maps each form of s.FormList to its form
// object, to the conversion code.
void WriteFormLookup(ConversionSession& s, TextDocument& conversionCode);

// Adds to the conversion code each template that s.ListControlsUsed asks for
// and that the text does not hold yet, in id order.
void WriteConversionCode(ConversionSession& s, TextDocument& conversionCode);

// Add the call that fills one list box / combo box to the form's
// InitializeListBoxes / InitializeComboBoxes in s.CurrentFile, creating the
// function when the form has none yet, and ask for the helper the call needs.
void WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                      const std::string& controlName, bool isValueList);
void WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                       const std::string& controlName, bool isValueList);

}  // namespace morvane
