// The second pass over a translated file: recordset variables found in the
// file itself get "!" for field access, and option group references become
// control array references.
#pragma once

#include <string>

#include "platform/text_document.h"

namespace morvane {

struct ConversionSession;

// Rewrites the text in place. A use the plain rules would have garbled is
// left as it is, with an analysis row under `moduleName`. The lines it is
// given hold no line breaks (a TextDocument's lines once set); a line that
// an edit gives one is split in two.
void RecordsetPass(ConversionSession& s, TextDocument& text, const std::string& moduleName = "");

}  // namespace morvane
