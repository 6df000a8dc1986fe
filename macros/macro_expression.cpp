// The macro expression rewriter: a small tokenizer over Access expression
// text and the rules that turn each token into Visual Basic.
#include "macros/macro_expression.h"

#include <cctype>

namespace morvane {

namespace {

constexpr std::string_view kDelimiters = "=+-<>/*%^(), ";
// A working text of this size holds a token while its brackets go.
constexpr size_t kStripLimit = 2048;

bool IsDelimiter(char c) { return kDelimiters.find(c) != std::string_view::npos; }
bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// Letters, digits and "_", beginning with no digit.
bool IsPlainName(std::string_view name) {
  if (name.empty() || (name[0] >= '0' && name[0] <= '9')) return false;
  for (char c : name) {
    const auto u = static_cast<unsigned char>(c);
    if (!(std::isalnum(u) || c == '_' || u > 128)) return false;
  }
  return true;
}

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
  const std::string_view text = token.substr(0, kStripLimit);
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\0') break;
    if (c == '"' || c == '\'') quoted = !quoted;
    if (!quoted && c == '[') {
      // A name that is no Visual Basic name ("[Order ID]") keeps its
      // brackets, which Visual Basic reads too; the others lose them.
      const size_t close = text.find(']', i + 1);
      if (close != std::string_view::npos && !IsPlainName(text.substr(i + 1, close - i - 1)) &&
          text.substr(i + 1, close - i - 1).find_first_of("\"'[\0") == std::string_view::npos) {
        out.append(text.substr(i, close - i + 1));
        i = close;
        continue;
      }
    }
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

std::string ConvertMacroExpression(std::string& text, bool* needsContext, bool* joined) {
  // `joined`: the text differs from the plain rules' where those would not
  // compile.
  for (char& c : text)
    if (c == '\t' || c == '\n' || c == '\r') c = ' ';
  const size_t last = text.find_last_not_of(' ');
  if (last == std::string::npos) return {};
  for (std::string_view global :
       {"[Forms].", "[Reports].", " In ", " Between ", " Is ", " Not Like "})
    if (text.find(global) != std::string::npos) return "Eval(\"" + DoubleQuotes(text) + "\")";

  std::string result;
  std::string previous;
  long position = 0;
  for (std::string token = NextExprToken(text, position); !token.empty();
       previous = token, token = NextExprToken(text, position)) {
    // "<" and ">" of "<>" are two tokens; a blank between them reads as two
    // operators.
    if (((previous == "<" && (token == ">" || token == "=")) ||
         (previous == ">" && token == "=")) &&
        !result.empty() && result.back() == ' ') {
      result.pop_back();
      if (joined) *joined = true;
    }
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
        token.find(']') != std::string::npos) {
      token = StripBrackets(token);
      if (joined && token.find('[') != std::string::npos) *joined = true;
    }
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
