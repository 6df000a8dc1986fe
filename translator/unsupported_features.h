// Marks lines that use something Visual Basic has no counterpart for (form
// properties, report references, list callbacks, DDE, event property
// assignments). Runs on every line that reaches it, in every mode.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// Returns true when the line is to be written at once, unchanged by the
// later stages ("Attribute " lines).
bool UnsupportedFeatures(ModuleTranslation& t, std::string& line);

}  // namespace morvane
