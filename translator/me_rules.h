// The rules of a form's code that go through the form object itself (Me! and
// Me. references, the form's own name, bound field names through tblFields).
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// Called for forms only.
void MeRules(ModuleTranslation& t, std::string& line);

}  // namespace morvane
