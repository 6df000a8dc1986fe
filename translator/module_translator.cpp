// The module translator's main loop: designer gate, counters, form code
// marks, the rule stages in their order, the end-of-input steps and the
// second pass.
#include "translator/module_translator.h"

#include <string_view>
#include <vector>

#include "session/conversion_session.h"
#include "session/converters.h"
#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/application_rules.h"
#include "translator/docmd_rules.h"
#include "translator/form_injection.h"
#include "translator/global_substitutions.h"
#include "translator/me_rules.h"
#include "translator/module_translation.h"
#include "translator/procedure_rules.h"
#include "translator/recordset_pass.h"
#include "translator/requery_rule.h"
#include "translator/rule_outcomes.h"
#include "translator/statements.h"
#include "translator/unsupported_features.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"
#include "translator/vba64_rules.h"

namespace morvane {

namespace {

// Written into form text by the form writer: the code between them belongs to
// the data control of another form (a subform's code).
constexpr std::string_view kFormCodeMark = "'MORVANE Form Code for ";
constexpr std::string_view kEndFormCodeMark = "'MORVANE End Form Code for ";

// Whether a "Set db =" line sets db to the application's own database, the
// one the generated code's db already is.
bool SetsTheCurrentDatabase(const std::string& line) {
  const std::string code = CodePart(line);
  const std::string value = TrimBlanks(std::string_view(code).substr(code.find('=') + 1));
  for (std::string_view same :
       {"CurrentDb", "CurrentDb()", "DBEngine(0)(0)", "DBEngine(0).Databases(0)",
        "DBEngine.Workspaces(0).Databases(0)", "Workspaces(0).Databases(0)", "db"})
    if (EqualsNoCase(value, same)) return true;
  return false;
}

}  // namespace

std::string TranslateStatement(ModuleTranslation& t, std::string line, bool newLine) {
  // Only blanks go: a leading tab stays.
  const size_t first = line.find_first_not_of(' ');
  if (first == std::string::npos) {
    line.clear();
  } else {
    line.erase(line.find_last_not_of(' ') + 1);
    line.erase(0, first);
  }
  if (newLine) {
    Bump(t.TotalLines);
    if (StartsWithNoCase(line, "Begin ")) Bump(t.BeginCount);
    if (EqualsNoCase(line, "End") && t.EndCount < t.BeginCount) Bump(t.EndCount);
    if (t.InDesignerBlock()) return line;
    if (t.EndCount == t.BeginCount) Bump(t.CodeLines);
  }

  if (StartsWithNoCase(line, kFormCodeMark))
    t.DataControl = t.Session.Names.DataControl(line.substr(kFormCodeMark.size()));
  else if (StartsWithNoCase(line, kEndFormCodeMark))
    t.DataControl = DataControlName(t.ModuleName);
  else if (StartsWithNoCase(line, "Call AddItem"))
    return line;

  if (!line.empty() && line[0] == '\'') {
    Bump(t.CommentLines);
    return line;
  }
  if (line.empty()) {
    Bump(t.BlankLines);
    return line;
  }
  // Conditional compilation is Visual Basic's own; the code of a branch that
  // Visual Basic 6 does not compile (the 64-bit branch of "#If VBA7") stays
  // as it was written.
  if (line[0] == '#' || !t.Compiled()) return line;

  if (ProcedureHeaderRules(t, line)) {
    if (t.Mode == kModeReport) ReportRules(t, line);
    Vba64Rules(t, line);
    return line;
  }
  EventBodyRules(t, line);
  if (Fires(t, line, "Application.")) ApplicationRules(t, line);

  // The statement as it reached the rules below, kept for the one row that
  // shows it beside its result.
  std::string original;
  bool reassigns = false;

  if (StartsWithNoCase(line, "DoCmd.")) {
    DoCmdRules(t, line);
  } else if (StartsWithNoCase(line, "Option Compare Database")) {
    line.clear();
  } else if (StartsWithNoCase(line, "Set db =") && SetsTheCurrentDatabase(line)) {
    // The generated code has one database variable of its own, set to the
    // application's database by Sub Main.
    Bump(t.BlankLines);
    return std::string();
  } else if (StartsWithNoCase(line, "Set db =")) {
    // Another database: its local declaration is gone, so the line now sets
    // the program's one database variable. It stays, for the user to see.
    reassigns = true;
    original = line;
  } else if (Fires(t, line, ".REQUERY", kInCodeExact)) {
    RequeryRule(t, line);
  }

  if (UnsupportedFeatures(t, line)) return line;
  if (t.Mode == kModeForm)
    MeRules(t, line);
  else if (t.Mode == kModeReport)
    ReportRules(t, line);
  Vba64Rules(t, line);
  GlobalSubstitutions(t, line);
  if (reassigns)
    ReportRule(t, kReasonReview, original,
               line + "  (sets the program's one database variable db)");
  return line;
}

TextDocument TranslateCode(ConversionSession& s, const TextDocument& input,
                           const std::string& moduleName, int mode) {
  ModuleTranslation t(s, mode, moduleName);
  t.Output.reserve(input.Lines().size() + 16);
  TranslateLines(t, input.Lines());
  InjectAtEnd(t);

  ModuleStats(
      s, {moduleName, t.TotalLines, t.CommentLines, t.LinesNotTranslated,
          t.LinesPotentiallyConverted, t.BlankLines, t.SubCount, t.ProcCount, 0, 0, t.CodeLines});
  TextDocument output(std::move(t.Output));
  RecordsetPass(s, output, moduleName);
  return output;
}

}  // namespace morvane
