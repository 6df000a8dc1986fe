// The code of subforms in a form's text: each embedded subform's module
// stands in a marked section of the form's code, and Visual Basic takes
// each procedure name once in a module. A procedure of a section whose name
// the form's own code or an earlier section already declares is renamed,
// with every use of the name inside its section.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;

// Renames the procedures of the current form text's subform sections that
// another part of the text declares already; each renaming is a row of the
// analysis under `formName`.
void SeparateSubformProcedures(ConversionSession& s, const std::string& formName);

}  // namespace morvane
