// The global substitutions: a fixed sequence of replacements that every line
// reaching this stage passes through, each seeing the result of the ones
// before it.
#include "translator/global_substitutions.h"

#include <algorithm>
#include <string_view>

#include "session/conversion_session.h"
#include "session/naming.h"
#include "translator/text_helpers.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

struct Replacement {
  std::string_view find;
  std::string_view with;
};

// Database names and constants.
constexpr Replacement kDatabaseNames[] = {
    {"CurrentDb()", "db"},
    {"me.helpfile", "App.HelpFile"},
    {"CurrentDb", "db"},
    {"DB_OPEN_DYNASET", "DBOPENDYNASET"},
    {"DB_OPEN_snapshot", "dbOpenSnapshot"},
    {"DB_OPEN_table", "dbOpenTable"},
    {"DB_forwardonly", "dbForwardOnly"},
    {"db_sqlpassthrough", "dbsqlpassthrough"},
    {"db_appendonly", "dbappendonly"},
    {"db_readonly", "dbreadonly"},
    {"DB_LANG_GENERAL", "dbLangGeneral"},
    {"DATA_ERRCONTINUE", "vbDataErrContinue"},
    {"DATA_ERRDISPLAY", "vbDataErrDisplay"},
    {"OpenQueryDef", "QueryDefs"},
    {"CreateSnapshot", "OpenRecordset"},
    {"CreateDynaset", "OpenRecordset"},
    {"As Dynaset", "As Recordset"},
    {"As Snapshot", "As Recordset"},
    {"As TableDef", "As Recordset"},
};

// Local declarations of db go: the generated code has one database variable.
// Not in an Access data project, which has no DAO database.
constexpr Replacement kDatabaseVariable[] = {
    {"dim db as database,", "dim "}, {"dim db as database", ""},
    {", db as database", ""},        {"dim db as dao.database,", "dim "},
    {"dim db as dao.database", ""},  {", db as dao.database", ""},
    {"dbengine(0)(0)", "db"},        {"DBEngine.Workspaces(0).Databases(0)", "db"},
};

// Properties and references; " Form," only where the line is no
// declaration.
constexpr Replacement kProperties[] = {
    {".Repaint", ".Refresh"}, {".ControlTipText", ".ToolTipText"},
    {" Form,", " Me,"},       {"[Forms]", "Forms"},
    {"Forms.", "Forms!"},     {"ADODB.Recordset20)", "ADODB.Recordset)"},
};

// Functions of the conversion code that a line calls: the text stays, the
// template is asked for.
struct Request {
  std::string_view text;
  int template_index;
};
constexpr Request kRequests[] = {
    {"DSum(", 9},     {"DCount(", 10}, {"DAvg(", 11},  {"DFirst(", 12},
    {"DLast(", 13},   {"DMin(", 14},   {"DMax(", 15},  {"DStDev(", 16},
    {"DStDevP(", 17}, {"DVar(", 18},   {"DVarP(", 19}, {"DLookup(", 20},
};

constexpr Replacement kSysCmdConstants[] = {
    {"acSysCmdInitMeter", "1"},         {"SYSCMD_INITMETER", "1"},
    {"acSysCmdUpdateMeter", "2"},       {"SYSCMD_UPDATEMETER", "2"},
    {"acSysCmdRemoveMeter", "3"},       {"SYSCMD_REMOVEMETER", "3"},
    {"acSysCmdSetStatus", "4"},         {"SYSCMD_SETSTATUS", "4"},
    {"acSysCmdClearStatus", "5"},       {"SYSCMD_CLEARSTATUS", "5"},
    {"acSysCmdGetWorkgroupFile", "13"}, {"acSysCmdGetObjectState", "10"},
    {"SYSCMD_GETOBJECTSTATE", "10"},
};

template <size_t N>
constexpr bool NoEmptyFind(const Replacement (&table)[N]) {
  for (const auto& r : table)
    if (r.find.empty()) return false;
  return true;
}
static_assert(NoEmptyFind(kDatabaseNames) && NoEmptyFind(kDatabaseVariable) &&
                  NoEmptyFind(kProperties) && NoEmptyFind(kSysCmdConstants),
              "every replacement finds something");

// The line with its lower-case copy, so that the many tests of a line that
// no rule changes cost one scan each; the copy is renewed after a change.
class FoldedLine {
 public:
  explicit FoldedLine(std::string& line) : line_(line), lower_(ToLower(line)) {}
  bool Contains(std::string_view find) const {
    char buf[64];
    if (find.size() > sizeof buf) return FindNoCase(line_, find) != std::string::npos;
    for (size_t i = 0; i < find.size(); ++i)
      buf[i] = (find[i] >= 'A' && find[i] <= 'Z') ? static_cast<char>(find[i] + 32) : find[i];
    return lower_.find(std::string_view(buf, find.size())) != std::string::npos;
  }
  void Replace(std::string_view find, std::string_view with) {
    if (!Contains(find)) return;
    line_ = ReplaceAllText(line_, find, with);
    Changed();
  }
  void Changed() { lower_ = ToLower(line_); }

 private:
  std::string& line_;
  std::string lower_;
};

template <size_t N>
void ReplaceAll(FoldedLine& folded, const Replacement (&table)[N]) {
  for (const auto& r : table) folded.Replace(r.find, r.with);
}

bool IsNameCharacter(char c) {
  unsigned char u = static_cast<unsigned char>(c);
  return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u > 128;
}

constexpr std::string_view kLookup = "GetFormFromName(";

// The length of the name behind "forms!", with the brackets or quotes around
// it.
int ReferenceLength(const std::string& behind, int* nameEnd) {
  if (!behind.empty() && (behind[0] == '[' || behind[0] == '"')) {
    const char close = behind[0] == '[' ? ']' : '"';
    size_t end = behind.find(close, 1);
    if (end == std::string::npos) {
      *nameEnd = static_cast<int>(behind.size());
      return *nameEnd;
    }
    *nameEnd = static_cast<int>(end);  // the closing character
    return static_cast<int>(end) + 1;
  }
  *nameEnd = Len(LeadingIdentifier(behind));
  return *nameEnd;
}

// "forms(...)" and "forms!..." become the form's Visual Basic expression.
// Returns false when neither form is left to act on.
bool FormReferenceStep(const ConversionSession& s, std::string& line) {
  int p = InStr(line, "forms(");
  if (p > 0 && !(p > 1 && IsNameCharacter(line[static_cast<size_t>(p - 2)]))) {
    const std::string r = FormReference(s, Mid(line, p + 6));
    const int length = Len(r) - (r.find(kLookup) != std::string::npos ? 19 : 0);
    line = Mid(line, 1, p - 1).value_or("") + r + Mid(line, p + 9 + length);
    return true;
  }
  p = InStr(line, "forms!");
  if (p == 0 || (p > 1 && IsNameCharacter(line[static_cast<size_t>(p - 2)]))) return false;
  const std::string behind = Mid(line, p + 6);
  const std::string r = FormReference(s, behind);
  int nameEnd = 0;
  const int whole = ReferenceLength(behind, &nameEnd);
  if (r.rfind(kLookup, 0) != 0) {
    if (p == 1) {
      // The text behind the name, a "]" that closes it dropped.
      std::string tail = behind.substr(static_cast<size_t>(std::min(nameEnd, Len(behind))));
      if (!tail.empty() && tail[0] == ']') tail.erase(0, 1);
      line = r + tail;
    } else {
      line = Mid(line, 1, p - 1).value_or("") + behind;
    }
  } else {
    line = Mid(line, 1, p - 1).value_or("") + r + behind.substr(static_cast<size_t>(whole));
  }
  return true;
}

}  // namespace

void GlobalSubstitutions(ModuleTranslation& t, std::string& line) {
  ConversionSession& s = t.Session;
  FoldedLine folded(line);
  ReplaceAll(folded, kDatabaseNames);
  if (!s.IsAdp) ReplaceAll(folded, kDatabaseVariable);
  for (const auto& r : kProperties) {
    if (r.find == " Form," && StartsWithNoCase(line, "Dim")) continue;
    folded.Replace(r.find, r.with);
  }

  for (const auto& request : kRequests)
    if (folded.Contains(request.text))
      s.ListControlsUsed[static_cast<size_t>(request.template_index)] = true;

  // Each step removes one reference; the bound only guards against a text
  // that would not shrink.
  if (folded.Contains("forms(") || folded.Contains("forms!")) {
    for (int guard = 0; guard < 1000 && FormReferenceStep(s, line); ++guard) {
    }
    folded.Changed();
  }

  folded.Replace(".Object", "");
  if (!StartsWithNoCase(line, "Public ") && !StartsWithNoCase(line, "Private ") &&
      !StartsWithNoCase(line, "Dim "))
    folded.Replace("()", "");
  folded.Replace(".Attributes", "!Attributes");
  folded.Replace(".SourceTableName", "!SourceTableName");
  if (EqualsNoCase(line, "Quit")) {
    line = "End";
    folded.Changed();
  }

  if (folded.Contains("SysCmd(")) {
    folded.Replace("SysCmd(", "SysCmdVB(");
    s.ListControlsUsed[s.Options.IsMdi ? 6 : 7] = true;
  }
  ReplaceAll(folded, kSysCmdConstants);
  folded.Replace(".TimerInterval", ".Timer1.Interval");
}

}  // namespace morvane
