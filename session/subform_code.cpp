// Procedure names of subform sections kept apart from the form's own.
#include "session/subform_code.h"

#include <map>
#include <set>
#include <vector>

#include "platform/support_db.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr std::string_view kSectionMark = "'MORVANE Form Code for ";
constexpr std::string_view kSectionEnd = "'MORVANE End Form Code for ";
static_assert(kSectionMark[0] == '\'' && kSectionEnd[0] == '\'', "the marks are comments");

struct Section {
  std::string Form;
  size_t Begin = 0;  // the mark's line
  size_t End = 0;    // the end mark's line, or the end of the text
};

// The name a line declares as a procedure ("Private Sub X(", "Property Get
// X(", ...), or empty.
std::string ProcedureName(const std::string& line) {
  std::string t = TrimBlanks(line);
  for (bool again = true; again;) {
    again = false;
    for (const char* word : {"Public ", "Private ", "Friend ", "Static "})
      if (StartsWithNoCase(t, word)) {
        t = TrimBlanks(std::string_view(t).substr(std::string_view(word).size()));
        again = true;
      }
  }
  size_t at = 0;
  if (StartsWithNoCase(t, "Sub "))
    at = 4;
  else if (StartsWithNoCase(t, "Function "))
    at = 9;
  else if (StartsWithNoCase(t, "Property Get ") || StartsWithNoCase(t, "Property Let ") ||
           StartsWithNoCase(t, "Property Set "))
    at = 13;
  else
    return {};
  size_t end = at;
  while (end < t.size() && IsNameCharacter(static_cast<unsigned char>(t[end]))) ++end;
  return t.substr(at, end - at);
}

// Replaces the word `from` (without regard to case) by `to` in the code of
// a line, outside string literals and comments.
std::string ReplaceWord(const std::string& line, const std::string& from, const std::string& to) {
  std::string out;
  bool inString = false;
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (inString) {
      out += c;
      if (c == '"') inString = false;
      ++i;
      continue;
    }
    if (c == '"') {
      inString = true;
      out += c;
      ++i;
      continue;
    }
    if (c == '\'') {
      out += line.substr(i);
      break;
    }
    if (IsNameCharacter(static_cast<unsigned char>(c))) {
      size_t end = i;
      while (end < line.size() && IsNameCharacter(static_cast<unsigned char>(line[end]))) ++end;
      const std::string word = line.substr(i, end - i);
      const bool member = i > 0 && line[i - 1] == '.';
      out += !member && EqualsNoCase(word, from) ? to : word;
      i = end;
      continue;
    }
    out += c;
    ++i;
  }
  return out;
}

}  // namespace

void SeparateSubformProcedures(ConversionSession& s, const std::string& formName) {
  std::vector<std::string>& lines = s.Form().Text.Lines();
  std::vector<Section> sections;
  for (size_t i = 0; i < lines.size(); ++i) {
    // Both marks are comments: other lines are passed over without a
    // trimmed copy.
    const size_t first = lines[i].find_first_not_of(' ');
    if (first == std::string::npos || lines[i][first] != '\'') continue;
    const std::string t = TrimBlanks(lines[i]);
    if (t.starts_with(kSectionMark)) {
      sections.push_back({t.substr(kSectionMark.size()), i, lines.size()});
    } else if (t.starts_with(kSectionEnd) && !sections.empty() &&
               sections.back().End == lines.size()) {
      sections.back().End = i;
    }
  }
  if (sections.empty()) return;

  // The names the form's own code declares: everything outside the sections.
  std::set<std::string> taken;
  size_t next = 0;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (next < sections.size() && i == sections[next].Begin) {
      i = sections[next].End;
      ++next;
      continue;
    }
    if (auto name = ProcedureName(lines[i]); !name.empty()) taken.insert(ToLower(name));
  }
  for (const Section& section : sections) {
    std::map<std::string, std::string> renames;  // lower-case name -> new name
    std::vector<std::string> own;
    for (size_t i = section.Begin; i < section.End; ++i) {
      const std::string name = ProcedureName(lines[i]);
      if (name.empty() || renames.count(ToLower(name))) continue;
      if (!taken.count(ToLower(name))) {
        own.push_back(ToLower(name));
        continue;
      }
      std::string renamed = VbIdentifier(section.Form, "a", 40) + "_" + name;
      for (int n = 2; taken.count(ToLower(renamed)); ++n)
        renamed = VbIdentifier(section.Form, "a", 40) + "_" + name + std::to_string(n);
      renames[ToLower(name)] = renamed;
      own.push_back(ToLower(renamed));
      if (s.SupportDb)
        s.SupportDb->AddReportOutput({formName, kReasonReview, name, 0, renamed,
                                      "the module of " + section.Form + " on this form"});
    }
    for (const auto& name : own) taken.insert(name);
    for (const auto& [from, to] : renames)
      for (size_t i = section.Begin; i < section.End; ++i)
        lines[i] = ReplaceWord(lines[i], from, to);
  }
}

}  // namespace morvane
