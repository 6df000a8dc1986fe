// Lookups over the control type and section tables.
#include "design/control_types.h"

#include "session/naming.h"

namespace morvane {

static_assert(
    [] {
      for (size_t i = 1; i < std::size(kControlTypes); ++i)
        if (kControlTypes[i - 1].Number >= kControlTypes[i].Number) return false;
      return true;
    }(),
    "control types must be ordered by number without repeats");

const ControlTypeRow* ControlTypeByName(std::string_view blockName) {
  for (const auto& row : kControlTypes)
    if (EqualsNoCase(row.BlockName, blockName)) return &row;
  return nullptr;
}

const ControlTypeRow* ControlTypeByNumber(int number) {
  for (const auto& row : kControlTypes)
    if (row.Number == number) return &row;
  return nullptr;
}

int SectionNumberOf(std::string_view blockName) {
  for (const auto& row : kSectionBlocks)
    if (EqualsNoCase(row.BlockName, blockName)) return row.Number;
  return -1;
}

}  // namespace morvane
