// Statements on the Access application object: its window handle becomes the
// program's instance handle, Application.Quit ends the program, anything else
// on it has no counterpart and is commented out.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// For a line that contains "Application.".
void ApplicationRules(ModuleTranslation& t, std::string& line);

}  // namespace morvane
