// A requery of a list or combo box outside DoCmd (".REQUERY" in upper case):
// bound lists refresh their data control, unbound ones are filled anew, and a
// requery of the form itself refreshes the form's data control.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// For a line that contains, exact, ".REQUERY" and does not begin with "DoCmd.".
void RequeryRule(ModuleTranslation& t, std::string& line);

}  // namespace morvane
