// Which lines of a module's declarations section repeat an earlier
// declaration, for the clean-up that keeps one copy of a line two code
// generators both put there.
#pragma once

#include <string>
#include <vector>

namespace morvane {

// The line at `index` is a whole one-line statement that an earlier line
// (before `index`) already makes, word for word. A part of a continued
// statement, a member or the end of a Type or Enum block, and a line inside
// an #If block (where each branch needs its own copy) never repeat one: taking
// them out would break the statement or the block. Nor does a comment.
bool RepeatsDeclaration(const std::vector<std::string>& lines, size_t index);

}  // namespace morvane
