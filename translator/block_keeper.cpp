// Stand-ins for block lines and declarations that a rule commented out.
#include "translator/block_keeper.h"

#include <span>
#include <tuple>
#include <utility>

#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/text_helpers.h"
#include "translator/unsupported_features.h"
#include "translator/vb_code.h"

namespace morvane {

namespace {

// The first word of `text` and the text behind it, blanks trimmed.
std::pair<std::string, std::string> SplitWord(std::string_view text) {
  const std::string trimmed = TrimBlanks(text);
  size_t end = 0;
  while (end < trimmed.size() && IsIdentifierChar(static_cast<unsigned char>(trimmed[end]))) ++end;
  return {trimmed.substr(0, end), TrimBlanks(std::string_view(trimmed).substr(end))};
}

bool IsWord(const std::string& word, std::string_view lower) { return EqualsNoCase(word, lower); }

constexpr std::string_view kModifiers[] = {"Public", "Private", "Friend", "Static", "Global"};
constexpr std::string_view kDeclarationWords[] = {"Dim",    "Public", "Private", "Friend",
                                                  "Static", "Global", "Const",   "ReDim"};

bool IsOneOf(const std::string& word, std::span<const std::string_view> words) {
  for (std::string_view w : words)
    if (EqualsNoCase(word, w)) return true;
  return false;
}

// Types that name something of Access ("As Access.Form") become Object: the
// variable or parameter stays declared and its members are reached late.
std::string GenericTypes(const std::string& code) {
  std::string out = code;
  for (size_t at = FindWord(out, " As ", 0, kInCode); at != std::string::npos;
       at = FindWord(out, " As ", at + 4, kInCode)) {
    size_t begin = at + 4;
    if (StartsWithNoCase(std::string_view(out).substr(begin), "New ")) begin += 4;
    size_t end = begin;
    while (end < out.size() &&
           (IsIdentifierChar(static_cast<unsigned char>(out[end])) || out[end] == '.'))
      ++end;
    const std::string type = out.substr(begin, end - begin);
    if (type.empty() || !UsesUnsupportedFeature(" " + type)) continue;
    out = out.substr(0, at + 4) + "Object" + out.substr(end);
  }
  return out;
}

bool IsSingleLineIf(const std::string& code) {
  const size_t then = FindWord(code, "Then", 0, kInCode);
  return then != std::string::npos && !TrimBlanks(std::string_view(code).substr(then + 4)).empty();
}

// The stand-in of a block line, with `s` for the expression that cannot be
// translated; nothing when the statement is no block line.
std::optional<std::string> BlockStandIn(const std::string& code, const std::string& s) {
  const auto [w1, rest1] = SplitWord(code);
  const auto [w2, rest2] = SplitWord(rest1);
  if (IsWord(w1, "if")) {
    if (IsSingleLineIf(code)) return std::nullopt;
    return "If " + s + " Then";
  }
  if (IsWord(w1, "elseif")) return "ElseIf " + s + " Then";
  if (IsWord(w1, "else")) return "Else";
  if (IsWord(w1, "select")) return "Select Case " + s;
  if (IsWord(w1, "case")) return IsWord(w2, "else") ? "Case Else" : "Case " + s;
  if (IsWord(w1, "with")) return "With " + s;
  if (IsWord(w1, "for")) {
    if (IsWord(w2, "each")) {
      const size_t in = FindWord(rest2, " In ", 0, kInCode);
      if (in == std::string::npos) return std::nullopt;
      return "For Each " + TrimBlanks(rest2.substr(0, in)) + " In " + s;
    }
    const size_t equals = rest1.find('=');
    if (equals == std::string::npos) return std::nullopt;
    return "For " + TrimBlanks(rest1.substr(0, equals)) + " = " + s + " To 0";
  }
  if (IsWord(w1, "do") || IsWord(w1, "loop")) {
    const std::string keyword = IsWord(w1, "do") ? "Do" : "Loop";
    if (IsWord(w2, "while")) return keyword + " While " + s;
    if (IsWord(w2, "until")) return keyword + " Until " + s;
    return keyword;
  }
  if (IsWord(w1, "while")) return "While " + s;
  if (IsWord(w1, "wend")) return "Wend";
  if (IsWord(w1, "next")) return "Next";
  if (IsWord(w1, "end")) {
    for (std::string_view block :
         {"If", "Select", "With", "Sub", "Function", "Property", "Type", "Enum"})
      if (EqualsNoCase(w2, block)) return "End " + std::string(block);
  }
  return std::nullopt;
}

// The line number in front of a statement ("70" of "70  End If"), or nothing.
std::string LineNumberOf(const std::string& code) {
  size_t end = 0;
  while (end < code.size() && code[end] >= '0' && code[end] <= '9') ++end;
  if (end == 0 || end == code.size() || (code[end] != ' ' && code[end] != '\t')) return {};
  return code.substr(0, end);
}

// A procedure header or a declaration.
bool Declares(const ModuleTranslation& t, const std::string& code) {
  if (t.InTypeBlock) return true;
  auto [word, rest] = SplitWord(code);
  if (IsOneOf(word, kDeclarationWords)) return true;
  while (IsOneOf(word, kModifiers)) std::tie(word, rest) = SplitWord(rest);
  return IsWord(word, "sub") || IsWord(word, "function") || IsWord(word, "property");
}

}  // namespace

std::optional<std::string> KeepBlock(ModuleTranslation& t, const std::string& original,
                                     const std::string& marked) {
  std::string code = CodePart(original);
  if (code.empty()) return std::nullopt;
  const std::string s = std::string(kNotTranslatedCall) + "(\"" + t.ModuleName + "\", " +
                        std::to_string(t.CodeLines) + ")";
  // A numbered line ("50  If ... Then") keeps its number before the stand-in,
  // so that a Resume or GoTo to it still finds it.
  const std::string number = LineNumberOf(code);
  if (!number.empty()) code = TrimBlanks(std::string_view(code).substr(number.size()));
  if (auto standIn = BlockStandIn(code, s)) {
    if (!number.empty()) *standIn = number + " " + *standIn;
    ReportRule(t, kReasonBlockKept, original, *standIn);
    return *standIn + "\t" + marked;
  }
  // A WithEvents variable needs its class; Object will not do.
  if (!Declares(t, code) || ContainsWord(code, "WithEvents", kInCode)) return std::nullopt;
  const std::string declaration = GenericTypes(code);
  if (declaration == code || UsesUnsupportedFeature(declaration)) return std::nullopt;
  // The declaration is translated after all, for the user to review.
  ReportRule(t, kReasonReview, original, declaration);
  Bump(t.LinesNotTranslated, -1);
  Bump(t.LinesPotentiallyConverted);
  return declaration + "\t" + marked;
}

}  // namespace morvane
