// Module export: an Access object's code written as text with the header that
// the translator and the development environment expect (appended to a form's
// or report's text, or a file of its own for a standard or class module); and
// the move of generated declaration blocks into a finished module's
// declarations section.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;

// `mode` 1 form, 2 module, 3 report. A form's and a report's code go to the
// end of s.CurrentFile; a module's to OutputPath + "MODU_" +
// SafeFileName(name) + ".txt", under a name made unique against
// s.ConvertedNames (and added to it). A module the source does not have
// writes nothing.
void ExportModuleText(ConversionSession& s, const std::string& name, int mode);

// On the project component being produced (the one whose file is
// s.CurrentFile, else the last one added): moves each block between
// "'MORVANE Declarations Code for " and "'MORVANE End Declarations Code for "
// (with the line behind the end mark) from among the procedures into the
// declarations section, then removes repeated non-empty lines from that
// section.
void MoveDeclarationBlocks(ConversionSession& s);

}  // namespace morvane
