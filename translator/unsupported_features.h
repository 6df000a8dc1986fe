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

// The text uses a feature of the list, or a member of the Access
// application: a statement holding it would be commented out.
bool UsesUnsupportedFeature(const std::string& text);

}  // namespace morvane
