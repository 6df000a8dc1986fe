// The global substitutions. Not built yet: every line passes unchanged, and
// kPipelineStages says so.
#include "translator/global_substitutions.h"

namespace morvane {

void GlobalSubstitutions(ModuleTranslation&, std::string&) {}

}  // namespace morvane
