// The unsupported-feature list. Not built yet: every line passes unchanged,
// and kPipelineStages says so.
#include "translator/unsupported_features.h"

namespace morvane {

bool UnsupportedFeatures(ModuleTranslation&, std::string&) { return false; }

}  // namespace morvane
