// The global substitutions: a fixed sequence of replacements that every line
// reaching this stage passes through, each seeing the result of the ones
// before it.
#include "translator/global_substitutions.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "session/conversion_session.h"
#include "session/naming.h"
#include "translator/module_translation.h"
#include "translator/text_helpers.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

char Fold(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }
constexpr char FoldConst(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }

// Pairs of neighbouring characters of lower-case text, hashed.
constexpr size_t PairKey(char a, char b) {
  return (static_cast<unsigned char>(a) * 31u + static_cast<unsigned char>(b)) & 4095u;
}

// A text to look for, with the keys of its first and last pair (in lower
// case) worked out when the program is built.
struct Needle {
  consteval Needle(const char* t) : Needle(std::string_view(t)) {}
  consteval Needle(std::string_view t)
      : text(t),
        first(t.size() >= 2 ? PairKey(FoldConst(t[0]), FoldConst(t[1])) : 0),
        last(t.size() >= 2 ? PairKey(FoldConst(t[t.size() - 2]), FoldConst(t[t.size() - 1])) : 0) {}
  std::string_view text;
  size_t first, last;
};

struct Replacement {
  Needle find;
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
// Not in an Access data project, which has no DAO database. A declaration
// continued with its comma on the next line reads "Database , x" once its
// lines are joined; it loses db and keeps its Dim like the others, since
// taking the bare declaration away would leave the rest with no Dim.
constexpr Replacement kDatabaseVariable[] = {
    {"dim db as database,", "dim "},
    {"dim db as database ,", "dim "},
    {"dim db as database", ""},
    {", db as database", ""},
    {"dim db as dao.database,", "dim "},
    {"dim db as dao.database ,", "dim "},
    {"dim db as dao.database", ""},
    {", db as dao.database", ""},
    {"dbengine(0)(0)", "db"},
    {"DBEngine.Workspaces(0).Databases(0)", "db"},
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
  Needle text;
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

constexpr bool RequestsEndInParenthesis() {
  for (const auto& r : kRequests)
    if (r.text.text.empty() || r.text.text.back() != '(') return false;
  return true;
}
static_assert(RequestsEndInParenthesis(), "every request ends in \"(\"");

template <size_t N>
constexpr bool NoEmptyFind(const Replacement (&table)[N]) {
  for (const auto& r : table)
    if (r.find.text.empty()) return false;
  return true;
}
static_assert(NoEmptyFind(kDatabaseNames) && NoEmptyFind(kDatabaseVariable) &&
                  NoEmptyFind(kProperties) && NoEmptyFind(kSysCmdConstants),
              "every replacement finds something");

// The line with its lower-case copy, so that the many tests of a line that
// no rule changes cost one scan each; the copy is renewed after a change.
// Replacements act on whole words outside string literals; hits passed over
// are counted in `passed`.
class FoldedLine {
 public:
  FoldedLine(std::string& line, int* passed) : line_(line), passed_(passed) { Changed(); }
  bool Contains(const Needle& needle) const {
    const std::string_view find = needle.text;
    char buf[64];
    if (find.size() > sizeof buf) return FindNoCase(line_, find) != std::string::npos;
    // Most needles are ruled out by their first or last pair of characters,
    // which the line does not hold, before any search.
    const size_t n = find.size();
    if (n >= 2 && (!Has(needle.first) || !Has(needle.last))) return false;
    for (size_t i = 0; i < n; ++i) buf[i] = Fold(find[i]);
    return lower_.find(std::string_view(buf, n)) != std::string::npos;
  }
  void Replace(const Needle& find, std::string_view with) {
    if (!Contains(find)) return;
    line_ = ReplaceWords(line_, find.text, with, kInCodeOrComment, passed_);
    Changed();
  }
  // A hit that the rule must leave: counted as passed over.
  void Pass() { ++*passed_; }
  void Changed() {
    lower_.assign(line_);
    for (char& c : lower_) c = Fold(c);
    pairs_.fill(0);
    // Read through a view of its own: a store into pairs_ could otherwise
    // change the copy's length and place, which would be read again each time.
    const std::string_view lower = lower_;
    for (size_t i = 0; i + 1 < lower.size(); ++i) {
      const size_t key = PairKey(lower[i], lower[i + 1]);
      pairs_[key / 64] |= uint64_t{1} << (key % 64);
    }
  }

 private:
  bool Has(size_t key) const { return (pairs_[key / 64] >> (key % 64)) & 1u; }

  std::string& line_;
  // The lower-case copy, in a buffer that each line reuses.
  static thread_local std::string lower_;
  std::array<uint64_t, 4096 / 64> pairs_;  // the pairs of neighbouring characters of lower_, hashed
  int* passed_;
};

thread_local std::string FoldedLine::lower_;

template <size_t N>
void ReplaceAll(FoldedLine& folded, const Replacement (&table)[N]) {
  for (const auto& r : table) folded.Replace(r.find, r.with);
}

constexpr bool HoldsNoCase(std::string_view text, std::string_view part) {
  for (size_t i = 0; i + part.size() <= text.size(); ++i) {
    bool all = true;
    for (size_t j = 0; j < part.size() && all; ++j)
      all = FoldConst(text[i + j]) == FoldConst(part[j]);
    if (all) return true;
  }
  return false;
}

template <size_t N>
constexpr bool AllHold(const Replacement (&table)[N], std::string_view common) {
  for (const auto& r : table)
    if (!HoldsNoCase(r.find.text, common)) return false;
  return true;
}

// The texts of a table that all hold `common`: a line without it is left
// at once, as none of them can change it.
constexpr Needle kDatabaseVariableCommon = "db";
constexpr Needle kSysCmdCommon = "syscmd";
static_assert(AllHold(kDatabaseVariable, kDatabaseVariableCommon.text) &&
                  AllHold(kSysCmdConstants, kSysCmdCommon.text),
              "every text of the table holds the common part");

template <size_t N>
void ReplaceAll(FoldedLine& folded, const Replacement (&table)[N], const Needle& common) {
  if (folded.Contains(common)) ReplaceAll(folded, table);
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

// The position of the ")" that closes the "(" just before `open`, outside
// string literals (in a comment, any); npos when the line ends first.
size_t ClosingParenthesis(const std::string& line, size_t open) {
  const std::string kinds = CharKinds(line);
  const char kind = open > 0 ? kinds[open - 1] : 'c';
  int depth = 1;
  for (size_t i = open; i < line.size(); ++i) {
    if (kinds[i] != kind) continue;
    if (line[i] == '(') ++depth;
    if (line[i] == ')' && --depth == 0) return i;
  }
  return std::string::npos;
}

bool IsQuotedName(std::string_view arg) {
  return arg.size() >= 2 && arg.front() == '"' && arg.back() == '"' &&
         arg.substr(1, arg.size() - 2).find('"') == std::string_view::npos;
}

// "forms(...)" and "forms!..." in the code become the form's Visual Basic
// expression. Returns false when neither is left to act on. `passed` counts
// references the plain rule would have garbled: an argument of Forms() that
// is an expression ("Forms(Me.CallingForm)") is handed to GetFormFromName
// whole, where the plain rule cut it at the first dot.
bool FormReferenceStep(const ConversionSession& s, std::string& line, int* passed) {
  size_t at = FindWord(line, "forms(", 0, kInCodeOrComment);
  if (at != std::string::npos) {
    const size_t open = at + 6;
    const size_t close = ClosingParenthesis(line, open);
    if (close != std::string::npos) {
      const std::string arg = TrimBlanks(std::string_view(line).substr(open, close - open));
      std::string r;
      if (IsQuotedName(arg) || (!arg.empty() && LeadingIdentifier(arg) == arg)) {
        r = FormReference(s, arg);
      } else {
        r = std::string(kLookup) + arg + ")";
        ++*passed;
      }
      line = line.substr(0, at) + r + line.substr(close + 1);
      return true;
    }
  }
  at = FindWord(line, "forms!", 0, kInCodeOrComment);
  if (at == std::string::npos) return false;
  const int p = static_cast<int>(at) + 1;
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

// "Forms." becomes "Forms!", except for the collection's own members, which
// Visual Basic's Forms collection has too.
void FormsDotRule(FoldedLine& folded, std::string& line) {
  if (!folded.Contains("Forms.")) return;
  std::string out;
  size_t copied = 0;
  int passed = 0;
  for (size_t at = FindWord(line, "Forms.", 0, kInCodeOrComment, &passed); at != std::string::npos;
       at = FindWord(line, "Forms.", at + 1, kInCodeOrComment, &passed)) {
    const std::string member = LeadingIdentifier(std::string_view(line).substr(at + 6));
    if (EqualsNoCase(member, "Count") || EqualsNoCase(member, "Item")) {
      ++passed;
      continue;
    }
    out += line.substr(copied, at - copied) + line.substr(at, 5) + "!";
    copied = at + 6;
  }
  for (int i = 0; i < passed; ++i) folded.Pass();
  if (copied == 0) return;
  line = out + line.substr(copied);
  folded.Changed();
}

// " Form," becomes " Me,", the form object Access code passes as "Form";
// not in a declaration, where "As Form," names the type.
void FormArgumentRule(FoldedLine& folded, std::string& line) {
  if (!folded.Contains(" Form,") || StartsWithNoCase(line, "Dim")) return;
  std::string out;
  size_t copied = 0;
  int passed = 0;
  for (size_t at = FindWord(line, " Form,", 0, kInCodeOrComment, &passed); at != std::string::npos;
       at = FindWord(line, " Form,", at + 1, kInCodeOrComment, &passed)) {
    const std::string before = ToLower(TrimBlanks(std::string_view(line).substr(0, at)));
    if (before.size() >= 3 && before.ends_with(" as")) {
      ++passed;
      continue;
    }
    out += line.substr(copied, at - copied) + " Me,";
    copied = at + 6;
  }
  for (int i = 0; i < passed; ++i) folded.Pass();
  if (copied == 0) return;
  line = out + line.substr(copied);
  folded.Changed();
}

// Declarations where "()" marks an array, not an empty argument list: the
// plain rule spares only those that begin with Public, Private or Dim.
constexpr std::string_view kArrayDeclarations[] = {"Static ",  "ReDim ", "Global ", "Friend ",
                                                   "Declare ", "Event ", "Const ",  "Erase "};

bool DeclaresArrays(const ModuleTranslation& t, const std::string& line) {
  if (t.InTypeBlock) return true;
  for (std::string_view start : kArrayDeclarations)
    if (StartsWithNoCase(line, start)) return true;
  return false;
}

}  // namespace

void GlobalSubstitutions(ModuleTranslation& t, std::string& line) {
  ConversionSession& s = t.Session;
  FoldedLine folded(line, &t.PassedHits);
  ReplaceAll(folded, kDatabaseNames);
  if (!s.IsAdp) ReplaceAll(folded, kDatabaseVariable, kDatabaseVariableCommon);
  for (const auto& r : kProperties) {
    if (r.find.text == " Form,") {
      FormArgumentRule(folded, line);
    } else if (r.find.text == "Forms.") {
      FormsDotRule(folded, line);
    } else {
      folded.Replace(r.find, r.with);
    }
  }

  // Every request ends in "(".
  if (folded.Contains("(")) {
    for (const auto& request : kRequests)
      if (folded.Contains(request.text))
        s.ListControlsUsed[static_cast<size_t>(request.template_index)] = true;
  }

  // Each step removes one reference; the bound only guards against a text
  // that would not shrink.
  if (folded.Contains("forms(") || folded.Contains("forms!")) {
    for (int guard = 0; guard < 1000 && FormReferenceStep(s, line, &t.PassedHits); ++guard) {
    }
    folded.Changed();
  }

  folded.Replace(".Object", "");
  if (!StartsWithNoCase(line, "Public ") && !StartsWithNoCase(line, "Private ") &&
      !StartsWithNoCase(line, "Dim ") && folded.Contains("()")) {
    if (DeclaresArrays(t, line))
      folded.Pass();
    else
      folded.Replace("()", "");
  }
  folded.Replace(".Attributes", "!Attributes");
  folded.Replace(".SourceTableName", "!SourceTableName");
  if (EqualsNoCase(line, "Quit")) {
    line = "End";
    folded.Changed();
  }

  if (folded.Contains("SysCmd(") && ContainsWord(line, "SysCmd(", kInCodeOrComment)) {
    folded.Replace("SysCmd(", "SysCmdVB(");
    s.ListControlsUsed[s.Options.IsMdi ? 6 : 7] = true;
  }
  ReplaceAll(folded, kSysCmdConstants, kSysCmdCommon);
  folded.Replace(".TimerInterval", ".Timer1.Interval");
}

}  // namespace morvane
