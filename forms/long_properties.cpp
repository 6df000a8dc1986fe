// Long designer properties set from Form_Load.
#include "forms/long_properties.h"

#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

// Lines longer than this are moved; a line of Visual Basic may hold 1,023
// bytes, the rest is room for indentation.
constexpr size_t kLongest = 1000;

// Reason of an analysis row for a value that is set in code rather than in
// the form file.

struct Block {
  std::string name;                                        // the control's name; empty for the form
  std::string index;                                       // its Index in a control array
  std::vector<std::pair<std::string, std::string>> moved;  // key, quoted value
};

// The line from its first character that is no blank or tab.
std::string_view Trimmed(std::string_view line) {
  size_t b = 0;
  while (b < line.size() && (line[b] == ' ' || line[b] == '\t')) ++b;
  return line.substr(b);
}

// Blanks off both ends, as TrimBlanks does, without a copy.
std::string_view TrimmedBlanks(std::string_view text) {
  const size_t b = text.find_first_not_of(' ');
  if (b == std::string_view::npos) return {};
  return text.substr(b, text.find_last_not_of(' ') - b + 1);
}

// "Key = "value"" split; false for a line of another shape.
bool SplitProperty(std::string_view t, std::string* key, std::string* value) {
  const size_t eq = t.find('=');
  if (eq == std::string_view::npos || eq == 0) return false;
  *key = TrimBlanks(t.substr(0, eq));
  for (char c : *key)
    if (!IsNameCharacter(static_cast<unsigned char>(c))) return false;
  std::string v = TrimBlanks(t.substr(eq + 1));
  if (v.size() < 2 || v.front() != '"' || v.back() != '"') return false;
  // The value as the text it stands for: doubled quotes made single.
  std::string text;
  for (size_t i = 1; i + 1 < v.size(); ++i) {
    text += v[i];
    if (v[i] == '"' && i + 2 < v.size() && v[i + 1] == '"') ++i;
  }
  *value = std::move(text);
  return true;
}

}  // namespace

void MoveLongProperties(ConversionSession& s, const std::string& formName,
                        std::vector<std::string>& lines) {
  std::vector<Block> blocks;
  size_t kept = 0;        // lines [0, kept) stay, in their order
  int propertyDepth = 0;  // inside BeginProperty ... EndProperty
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string_view t = Trimmed(lines[i]);
    if (StartsWithNoCase(t, "BeginProperty")) ++propertyDepth;
    if (StartsWithNoCase(t, "EndProperty") && propertyDepth > 0) --propertyDepth;
    if (propertyDepth == 0 && StartsWithNoCase(t, "Begin ")) {
      const size_t blank = t.find(' ', 6);
      blocks.push_back({blocks.empty() || blank == std::string_view::npos
                            ? std::string()
                            : TrimBlanks(t.substr(blank + 1)),
                        "",
                        {}});
    } else if (propertyDepth == 0 && EqualsNoCase(t, "End") && !blocks.empty()) {
      const Block& b = blocks.back();
      if (!b.moved.empty()) {
        const std::string target =
            b.name.empty() ? "Me" : "Me." + b.name + (b.index.empty() ? "" : "(" + b.index + ")");
        for (const auto& [key, value] : b.moved) {
          std::vector<std::string> expr = VbStringLines(value);
          expr.front() = target + "." + key + " = " + expr.front();
          std::string statement;
          for (const auto& piece : expr) statement += (statement.empty() ? "" : "\r\n") + piece;
          AddHint(s, FormLoadLineHint{statement});
          AddHint(s, ReportRowHint{formName, kReasonReview, target + "." + key, 0,
                                   "too long for the form file; set in Form_Load", ""});
        }
      }
      blocks.pop_back();
    } else if (propertyDepth == 0 && !blocks.empty()) {
      std::string key, value;
      const size_t eq = t.find('=');
      if (eq != std::string_view::npos && EqualsNoCase(TrimmedBlanks(t.substr(0, eq)), "Index"))
        blocks.back().index = TrimBlanks(t.substr(eq + 1));
      if (lines[i].size() > kLongest && SplitProperty(t, &key, &value)) {
        blocks.back().moved.emplace_back(key, value);
        continue;
      }
    }
    if (kept != i) lines[kept] = std::move(lines[i]);
    ++kept;
  }
  lines.resize(kept);
}

}  // namespace morvane
