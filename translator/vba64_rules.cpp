// The 64-bit rules.
#include "translator/vba64_rules.h"

#include <string_view>

#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/vb_code.h"

namespace morvane {

namespace {

struct Replacement {
  std::string_view find;
  std::string_view with;
};

constexpr Replacement kVba64Words[] = {
    {"Declare PtrSafe ", "Declare "}, {"LongPtr", "Long"},   {"CLngPtr(", "CLng("},
    {"LongLong", "Currency"},         {"CLngLng(", "CCur("},
};

// Folds a letter to lower case and leaves every other character different
// from the lower-case letters.
char LowerLetter(char c) { return static_cast<char>(c | 0x20); }

// Whether the line holds "ptr", "longlong" or "lnglng" in any case, found
// in one pass over it. Each holds "ptr" or "ngl", which are looked for first,
// by their middle letter.
bool HoldsMarker(std::string_view line) {
  bool may = false;
  for (size_t i = 1; i + 1 < line.size() && !may; ++i) {
    const char c = LowerLetter(line[i]);
    may = (c == 't' && LowerLetter(line[i - 1]) == 'p' && LowerLetter(line[i + 1]) == 'r') ||
          (c == 'g' && LowerLetter(line[i - 1]) == 'n' && LowerLetter(line[i + 1]) == 'l');
  }
  if (!may) return false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == 'p' || c == 'P') {
      if (StartsWithNoCase(line.substr(i), "ptr")) return true;
    } else if (c == 'l' || c == 'L') {
      const std::string_view rest = line.substr(i);
      if (StartsWithNoCase(rest, "longlong") || StartsWithNoCase(rest, "lnglng")) return true;
    }
  }
  return false;
}

}  // namespace

std::string Vba64Rewrite(const std::string& line) {
  // Every word of the list holds one of these; a line without them is left
  // at once.
  if (!HoldsMarker(line)) return line;
  // A module that declares LongPtr itself for older hosts ("Enum LongPtr")
  // keeps that name.
  if (ContainsWord(line, "Enum LongPtr", kInCode) || ContainsWord(line, "Type LongPtr", kInCode))
    return line;
  std::string out = line;
  for (const auto& r : kVba64Words) out = ReplaceWords(out, r.find, r.with, kInCode);
  return out;
}

void Vba64Rules(ModuleTranslation& t, std::string& line) {
  if (!HoldsMarker(line)) return;
  std::string rewritten = Vba64Rewrite(line);
  if (rewritten == line) return;
  ReportRule(t, kReason64Bit, line, rewritten);
  Bump(t.LinesPotentiallyConverted);
  line = std::move(rewritten);
}

}  // namespace morvane
