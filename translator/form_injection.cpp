// Form procedure injection. Not built yet: nothing is added, and
// kPipelineStages says so.
#include "translator/form_injection.h"

namespace morvane {

void InjectAfterLine(ModuleTranslation&, const std::string&) {}

void InjectAtEnd(ModuleTranslation&) {}

}  // namespace morvane
