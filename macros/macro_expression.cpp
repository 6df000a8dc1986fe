// The macro expression rewriter: a small tokenizer over Access expression
// text and the rules that turn each token into Visual Basic.
#include "macros/macro_expression.h"

namespace morvane {

namespace {

constexpr std::string_view kDelimiters = "=+-<>/*%^(), ";
// A working text of this size holds a token while its brackets go.
constexpr size_t kStripLimit = 2048;

bool IsDelimiter(char c) { return kDelimiters.find(c) != std::string_view::npos; }
bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

}  // namespace

std::string DoubleQuotes(std::string_view text) {
  std::string out;
  for (char c : text) {
    out += c;
    if (c == '"') out += '"';
  }
  return out;
}

bool IsQuotedToken(std::string_view token) {
  if (token.empty()) return false;
  const char first = token.front();
  return (first == '"' || first == '\'') && token.back() == first;
}

std::string StripBrackets(std::string_view token) {
  std::string out;
  bool quoted = false;
  for (char c : token.substr(0, kStripLimit)) {
    if (c == '\0') break;
    if (c == '"' || c == '\'') quoted = !quoted;
    if (!quoted && (c == '[' || c == ']')) continue;
    out += c;
  }
  return out;
}

std::string NextExprToken(std::string_view text, long& position) {
  const long size = static_cast<long>(text.size());
  if (position < 0 || position >= size) return {};
  while (position < size && IsSpace(text[position])) ++position;
  if (position >= size) return {};
  char c = text[position];
  if (IsDelimiter(c)) {
    ++position;
    return std::string(1, c);
  }
  std::string token;
  bool inString = c == '"';
  bool inBracket = c == '[';
  while (true) {
    token += c;
    ++position;
    if (position >= size) break;
    c = text[position];
    if (c == '"' && !(position + 1 < size && text[position + 1] == '"')) {
      // A quote ends the token whether it closes a string or opens one.
      inString = !inString;
      token += c;
      ++position;
      break;
    }
    if (c == '[') inBracket = true;
    if (c == ']' && inBracket) inBracket = false;
    if (!(inString || inBracket || !IsDelimiter(c))) break;
  }
  return token;
}

std::string ConvertMacroExpression(std::string& text, bool* needsContext) {
  for (char& c : text)
    if (c == '\t' || c == '\n' || c == '\r') c = ' ';
  const size_t last = text.find_last_not_of(' ');
  if (last == std::string::npos) return {};
  for (std::string_view global :
       {"[Forms].", "[Reports].", " In ", " Between ", " Is ", " Not Like "})
    if (text.find(global) != std::string::npos) return "Eval(\"" + DoubleQuotes(text) + "\")";

  std::string result;
  long position = 0;
  for (std::string token = NextExprToken(text, position); !token.empty();
       token = NextExprToken(text, position)) {
    bool dot = false;
    if (token[0] == '[') {
      const size_t close = token.find(']');
      const std::string head =
          token.substr(0, close == std::string::npos ? token.size() : close + 1);
      if (std::string_view("[Forms][Reports][Screen][Application]").find(head) ==
          std::string_view::npos) {
        // A bracketed name of its own is a control of the calling form.
        dot = true;
        if (needsContext) *needsContext = true;
      }
    }
    if (!IsQuotedToken(token) && token.find('[') != std::string::npos &&
        token.find(']') != std::string::npos)
      token = StripBrackets(token);
    if (token == "No")
      token = "False";
    else if (token == "Yes")
      token = "True";
    if (dot) result += '.';
    result += token;
    result += ' ';
  }
  return result;
}

}  // namespace morvane
