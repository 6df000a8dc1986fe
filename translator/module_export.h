// Module export: an Access object's code written as text with the header that
// the translator and the development environment expect (appended to a form's
// or report's text, or a text of its own for a standard or class module); and
// the move of generated declaration blocks into a finished module's
// declarations section.
#pragma once

#include <string>

#include "platform/text_document.h"

namespace morvane {

struct ConversionSession;

// `mode` 1 form, 2 module, 3 report. The code is appended to `into`: a
// form's or report's text, or a new text for a standard or class module,
// whose name is made unique against s.ConvertedNames (and added to it).
// False, with nothing appended, when the source does not have the module.
bool ExportModuleText(ConversionSession& s, const std::string& name, int mode, TextDocument& into);

// On the project component `component`: moves each block between
// "'MORVANE Declarations Code for " and "'MORVANE End Declarations Code for "
// (with the line behind the end mark) from among the procedures into the
// declarations section, then removes repeated non-empty lines from that
// section.
void MoveDeclarationBlocks(ConversionSession& s, const std::string& component);

}  // namespace morvane
