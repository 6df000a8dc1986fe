// The module translator: one Access Basic text in (a form or report text with
// its designer block, or a standard module), one Visual Basic file out, line
// by line through a fixed sequence of rule stages, with an analysis row for
// each rule that acted and one statistics row for the module.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;

// `path` in: the full path of the input file, whose name carries a prefix of
// five characters and an extension of four ("form_X.frm", "REPT_X.txt",
// "MODU_X.txt"); out: the module's name, the file name without them.
// `mode`: 1 form (writes name + ".frm"), 2 standard module (".bas"), 3 report
// (".dsr"), in the session's OutputPath. Never throws: a step that fails
// leaves its line as it was.
void TranslateCode(ConversionSession& s, std::string& path, int mode);

}  // namespace morvane
