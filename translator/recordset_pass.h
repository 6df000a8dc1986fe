// The second pass over a translated file: recordset variables found in the
// file itself get "!" for field access, and option group references become
// control array references.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;

// Rewrites `file` in place.
void RecordsetPass(ConversionSession& s, const std::string& file);

}  // namespace morvane
