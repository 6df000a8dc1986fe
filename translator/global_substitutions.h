// The fixed sequence of text replacements that every line reaching it passes
// through, in forms, reports and modules alike: database names and constants,
// the database variable, properties, form references, requests for run-time
// support, SysCmd.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

void GlobalSubstitutions(ModuleTranslation& t, std::string& line);

}  // namespace morvane
