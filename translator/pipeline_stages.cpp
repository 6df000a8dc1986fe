// The list of translator stages that this build does not carry out yet.
#include "translator/pipeline_stages.h"

namespace morvane {

std::vector<std::string> UnbuiltStages() {
  std::vector<std::string> names;
  for (const auto& stage : kPipelineStages)
    if (!stage.built) names.emplace_back(stage.name);
  return names;
}

}  // namespace morvane
