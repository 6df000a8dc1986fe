// The Me rules of form code. Not built yet: every line passes unchanged, and
// kPipelineStages says so.
#include "translator/me_rules.h"

namespace morvane {

void MeRules(ModuleTranslation&, std::string&) {}

}  // namespace morvane
