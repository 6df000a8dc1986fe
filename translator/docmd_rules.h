// DoCmd statements: the methods that have a Visual Basic counterpart become
// it (some with the old text kept and a row for the user to review), the rest
// are commented out.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// For a line that begins with "DoCmd.".
void DoCmdRules(ModuleTranslation& t, std::string& line);

}  // namespace morvane
