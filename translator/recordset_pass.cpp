// The second pass over a translated file: uses of recordset variables reach
// their fields with "!", and the option groups that became option button
// arrays are read through OptionGroupValue and set through their buttons.
#include "translator/recordset_pass.h"

#include <array>
#include <string_view>
#include <vector>

#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/text_helpers.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

// The members of a DAO recordset: "rs.MoveNext" stays, "rs.Total" is a field.
constexpr std::string_view kRecordsetMembers[] = {
    "BOF",
    "AddNew",
    "Bookmark",
    "Close",
    "Delete",
    "Edit",
    "EOF",
    "NoMatch",
    "OpenRecordset",
    "Requery",
    "Update",
    "FindLast",
    "FindFirst",
    "FindNext",
    "FindPrevious",
    "MoveFirst",
    "MoveLast",
    "MoveNext",
    "MovePrevious",
    "BatchCollisionCount",
    "AbsolutePosition",
    "BatchCollisions",
    "BatchSize",
    "Bookmarkable",
    "CacheSize",
    "CacheStart",
    "Cancel",
    "CancelUpdate",
    "Clone",
    "Connection",
    "CopyQueryDef",
    "DateCreated",
    "EditMode",
    "Fields",
    "FillCache",
    "Filter",
    "GetRows",
    "Index",
    "LastModified",
    "LastUpdated",
    "LockEdits",
    "Move",
    "Name",
    "NextRecordset",
    "PercentPosition",
    "Properties",
    "RecordCount",
    "RecordStatus",
    "Restartable",
    "Seek",
    "Sort",
    "StillExecuting",
    "Transactions",
    "Type",
    "Updatable",
    "UpdateOptions",
    "ValidationRule",
    "ValidationText",
};
static_assert(std::size(kRecordsetMembers) == 58);

// Members of an ADO recordset that a DAO one lacks: code that opens an
// ADODB.Recordset into a variable declared "As Recordset" calls them, and
// "rst!Open" would not compile.
constexpr std::string_view kAdoRecordsetMembers[] = {
    "Open",
    "Save",
    "Supports",
    "Find",
    "Resync",
    "Source",
    "State",
    "Status",
    "ActiveConnection",
    "CursorType",
    "LockType",
    "CursorLocation",
    "MaxRecords",
    "PageSize",
    "PageCount",
    "AbsolutePage",
    "CancelBatch",
    "UpdateBatch",
    "MarshalOptions",
    "ActiveCommand",
    "DataMember",
    "DataSource",
    "StayInSync",
    "Collect",
    "CompareBookmarks",
};

bool IsRecordsetMember(const std::string& name) {
  for (auto m : kRecordsetMembers)
    if (EqualsNoCase(m, name)) return true;
  return false;
}

bool IsAdoRecordsetMember(const std::string& name) {
  for (auto m : kAdoRecordsetMembers)
    if (EqualsNoCase(m, name)) return true;
  return false;
}

// A list whose element 0 exists from the start and is filled first.
void AddName(std::vector<std::string>& list, const std::string& name) {
  if (list[0].empty())
    list[0] = name;
  else
    list.push_back(name);
}

// `kept` counts the uses the plain rule would have turned into field access
// where this one does not: the variable's name ending a longer name
// ("Orders.Caption" for "rs"), a string literal, an ADO member.
void RecordsetRule(std::string& line, const std::vector<std::string>& variables, int* kept) {
  for (const auto& v : variables) {
    if (v.empty()) break;
    const std::string key = v + ".";
    for (size_t p = FindNoCase(line, key); p != std::string::npos;
         p = FindNoCase(line, key, p + 1)) {
      const size_t dot = p + v.size();
      const std::string member = LeadingIdentifier(std::string_view(line).substr(dot + 1));
      if (IsRecordsetMember(member)) continue;
      if (FindWord(line, key, p, kInCodeOrComment) != p || IsAdoRecordsetMember(member)) {
        ++*kept;
        continue;
      }
      line[dot] = '!';
    }
  }
}

bool IsBoundary(const std::string& line, int pos) {
  if (pos < 1 || pos > Len(line)) return true;
  const char c = line[static_cast<size_t>(pos - 1)];
  return c == ' ' || c == '!' || c == '.';
}

// "grp = x" and "grp.Value = x": the value runs to a comment or a ":".
std::string Assignment(const std::string& line, int p, const std::string& value,
                       const std::string& prefix, const std::string& n) {
  int end = InStr(line, "'", p);
  if (end == 0) end = InStr(line, ":", p);
  const int valueStart = Len(line) - Len(value) + 1;
  std::string x = end == 0 ? value : Mid(line, valueStart, end - valueStart).value_or(value);
  std::string rest = end == 0 ? std::string() : Mid(line, end);
  return prefix + n + "(" + x + ").Value = True" + rest;
}

// Whether `text` is nothing but the qualifier of a name ("Me.", "Me!",
// "frm."): what stands before a group that a statement assigns to.
bool IsQualifier(std::string_view text) {
  for (char c : text)
    if (!IsNameCharacter(static_cast<unsigned char>(c)) && c != '.' && c != '!') return false;
  return true;
}

void OptionGroupRule(ConversionSession& s, std::string& line,
                     const std::vector<std::string>& groups, int* kept) {
  for (size_t gi = 1; gi < groups.size(); ++gi) {
    const std::string& g = groups[gi];
    const std::string n = SafeName(g);
    for (int p = InStr(line, g); p != 0; p = InStr(line, g, p + 1)) {
      // A group's name inside a string literal is text.
      if (CharKinds(line)[static_cast<size_t>(p - 1)] == 's') {
        ++*kept;
        continue;
      }
      const std::string after = Mid(line, p + Len(g));
      const std::string before = Mid(line, 1, p - 1).value_or("");
      auto starts = [&](std::string_view prefix) { return StartsWithNoCase(after, prefix); };
      if (p == 1) {
        if (starts(".Value = ")) {
          line = Assignment(line, p, after.substr(9), "", n);
        } else if (starts(" = ")) {
          line = Assignment(line, p, after.substr(3), "", n);
        } else if (after.empty() || after[0] == ' ') {
          line = n + "(OptionGroupValue(" + n + ")).Index" + after;
          s.ListControlsUsed[8] = true;
        } else if (starts(".Value")) {
          line = n + "(OptionGroupValue(" + n + "))" + after;
          s.ListControlsUsed[8] = true;
        } else if (starts("!") || starts(".")) {
          line = "grp" + n + after;
        }
        continue;
      }
      if (!IsBoundary(line, p + Len(g)) || !IsBoundary(line, p - 1)) continue;
      std::string q = TrailingIdentifier(before);
      if (!q.empty()) q += ".";
      const bool valueForm = starts(".Value = ");
      if (valueForm || starts(" = ")) {
        const std::string value = after.substr(valueForm ? 9 : 3);
        // A blank behind the value's first character: the statement goes on,
        // so this is a test, not an assignment, unless the group is the
        // statement's target ("Me!grp = Not x").
        if (value.find(' ', 1) != std::string::npos && !IsQualifier(before)) {
          const std::string token = ExpressionToken(value);
          // A value that is no plain expression ("" Or ...) is left alone:
          // "grp()" would not compile.
          if (token.empty()) {
            ++*kept;
            continue;
          }
          line = before + n + "(" + token + ")" + value.substr(token.size());
        } else {
          line = Assignment(line, p, value, before, n);
        }
      } else if (after.empty() || after[0] == ' ') {
        line = before + n + "(OptionGroupValue(" + q + n + ")).Index" + after;
        s.ListControlsUsed[8] = true;
      } else if (starts(".Value")) {
        line = before + n + "(OptionGroupValue(" + q + n + ")).Index" + after.substr(6);
        s.ListControlsUsed[8] = true;
      } else {
        line = before + "grp" + n + after;
      }
    }
  }
}

// "Index = 2" of a designer block.
bool IsIndexLine(std::string_view trimmed) {
  if (!StartsWithNoCase(trimmed, "Index")) return false;
  std::string_view rest = trimmed.substr(5);
  while (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
  return !rest.empty() && rest.front() == '=';
}

}  // namespace

void RecordsetPass(ConversionSession& s, TextDocument& text, const std::string& moduleName) {
  std::vector<std::string>& lines = text.Lines();
  size_t number = 0;
  std::vector<std::string> members{""}, locals{""}, groups{""};
  bool inDeclarations = true;
  std::string pendingOption;  // the option button whose block is open
  bool edited = false;        // a line was changed, and may now hold a break
  for (auto& line : lines) {
    ++number;
    if (line.empty() || line[0] == '\'') continue;
    std::string_view trimmed = line;
    while (!trimmed.empty() && trimmed.front() == ' ') trimmed.remove_prefix(1);
    while (!trimmed.empty() && trimmed.back() == ' ') trimmed.remove_suffix(1);
    if (StartsWithNoCase(line, "Dim")) {
      for (size_t at = FindNoCase(line, " As Recordset"); at != std::string::npos;
           at = FindNoCase(line, " As Recordset", at + 1)) {
        const size_t blank = line.rfind(' ', at == 0 ? 0 : at - 1);
        const size_t from = blank == std::string::npos ? 0 : blank + 1;
        std::string name = TrimBlanks(line.substr(from, at - from));
        if (!name.empty() && name.back() == ',') name.pop_back();
        AddName(inDeclarations ? members : locals, name);
      }
      continue;
    }
    if (StartsWithNoCase(line, "Public ") || StartsWithNoCase(line, "Private ") ||
        StartsWithNoCase(line, "Sub ") || StartsWithNoCase(line, "Function ") ||
        StartsWithNoCase(line, "Property ")) {
      inDeclarations = false;
      for (size_t gi = 1; gi < groups.size(); ++gi) {
        const std::string event = SafeName(groups[gi]) + "_";
        if (EndsWithNoCase(line, "()") && (StartsWithNoCase(line, "Public Sub " + event) ||
                                           StartsWithNoCase(line, "Private Sub " + event) ||
                                           StartsWithNoCase(line, "Sub " + event))) {
          line = line.substr(0, line.size() - 1) + "Index as Integer)";
          edited = true;
        }
      }
      continue;
    }
    if (EqualsNoCase(line, "End Sub") || EqualsNoCase(line, "End Function") ||
        EqualsNoCase(line, "End Property")) {
      locals.assign(1, "");
      continue;
    }
    // An option button stands for a group only as a member of a control
    // array, which its Index line shows; a stand-alone option button or
    // toggle keeps its plain name and events.
    if (StartsWithNoCase(trimmed, "Begin VB.OptionButton")) {
      pendingOption = TrimBlanks(trimmed.substr(21));
      continue;
    }
    if (!pendingOption.empty()) {
      if (IsIndexLine(trimmed)) {
        bool known = false;
        for (const auto& g : groups) known = known || g == pendingOption;
        if (!known) groups.push_back(pendingOption);
        pendingOption.clear();
      } else if (StartsWithNoCase(trimmed, "Begin ") || EqualsNoCase(trimmed, "End")) {
        pendingOption.clear();
      }
    }
    // Without a recordset variable in scope or an option group, no rule can
    // change the line.
    if (members[0].empty() && locals[0].empty() && !(groups.size() > 1 && !inDeclarations))
      continue;
    const std::string before = line;
    int kept = 0;
    RecordsetRule(line, members, &kept);
    RecordsetRule(line, locals, &kept);
    if (groups.size() > 1 && !inDeclarations) OptionGroupRule(s, line, groups, &kept);
    if (line != before) edited = true;
    // The row's line number is the line's place in the written file.
    if (kept > 0)
      ReportLine(s, moduleName, kReasonKeptChoice, TrimBlanks(before), static_cast<int>(number),
                 TrimBlanks(line), "");
  }
  if (edited) text.SplitBreaks(0, lines.size());
}

}  // namespace morvane
