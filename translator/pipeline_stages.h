// The stages of the module translator in pipeline order, and which of them
// this build carries out. A stage that is not built passes every line through
// unchanged; the driver names those stages in the analysis of the run.
#pragma once

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct PipelineStage {
  std::string_view name;
  bool built;
};

inline constexpr PipelineStage kPipelineStages[] = {
    {"procedure header and event body rules", true},
    {"Application rules", true},
    {"DoCmd rules", true},
    {"unsupported features", true},
    {"Me rules", true},
    {"report rules", true},
    {"global substitutions", true},
    {"form procedure injection", true},
    {"recordset and option group pass", true},
};

constexpr bool StageNamesAreDistinct() {
  for (size_t i = 0; i < std::size(kPipelineStages); ++i) {
    if (kPipelineStages[i].name.empty()) return false;
    for (size_t j = 0; j < i; ++j)
      if (kPipelineStages[i].name == kPipelineStages[j].name) return false;
  }
  return true;
}
static_assert(StageNamesAreDistinct(), "each stage has a name of its own");

// Names of the stages that are not built yet, in pipeline order.
std::vector<std::string> UnbuiltStages();

}  // namespace morvane
