// Hint records as text, a keyword line and one line per field, so that tests
// can state the records a writer left in one readable string.
#pragma once

#include <string>
#include <vector>

#include "session/hint_records.h"

namespace morvane::test {

std::string HintText(const std::vector<HintRecord>& records);

}  // namespace morvane::test
