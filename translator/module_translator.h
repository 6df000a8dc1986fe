// The module translator: one Access Basic text in (a form or report text with
// its designer block, or a standard module), one Visual Basic file out, line
// by line through a fixed sequence of rule stages, with an analysis row for
// each rule that acted and one statistics row for the module.
#pragma once

#include <string>

#include "platform/text_document.h"

namespace morvane {

struct ConversionSession;

// The translated text of `input`: a form's text with its designer block and
// code (mode 1), a standard or class module (2) or a report's designer text
// (3). `moduleName` names the module in the analysis rows and the data
// controls of its forms. Never throws: a step that fails leaves its line as
// it was.
TextDocument TranslateCode(ConversionSession& s, const TextDocument& input,
                           const std::string& moduleName, int mode);

}  // namespace morvane
