// Macro conditions and expression arguments into Visual Basic: bracketed
// names of the calling form become members of CodeContextObject, and what
// cannot be rewritten is left to Eval at run time.
#pragma once

#include <string>
#include <string_view>

namespace morvane {

// `text` is changed in place (tabs and line ends become blanks), as the
// caller's copy is. `needsContext` is set when a form reference was written.
// Tokens are joined by blanks, except the two halves of "<>", "<=" and ">=",
// which stay one operator; a bracketed name that is no Visual Basic name
// ("[Order ID]") keeps its brackets. `joined` (when given) is set when either
// happened.
std::string ConvertMacroExpression(std::string& text, bool* needsContext, bool* joined = nullptr);
// The next token from `position` (0-based; moved past the token), or "".
std::string NextExprToken(std::string_view text, long& position);
bool IsQuotedToken(std::string_view token);
std::string StripBrackets(std::string_view token);
std::string DoubleQuotes(std::string_view text);

}  // namespace morvane
