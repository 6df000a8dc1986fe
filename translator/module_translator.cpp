// The module translator's main loop: designer gate, counters, form code
// marks, the rule stages in their order, the end-of-input steps and the
// second pass.
#include "translator/module_translator.h"

#include <exception>
#include <string_view>
#include <vector>

#include "session/conversion_session.h"
#include "session/converters.h"
#include "session/naming.h"
#include "translator/analysis_writers.h"
#include "translator/application_rules.h"
#include "translator/docmd_rules.h"
#include "translator/form_injection.h"
#include "translator/global_substitutions.h"
#include "translator/me_rules.h"
#include "translator/module_translation.h"
#include "translator/procedure_rules.h"
#include "translator/recordset_pass.h"
#include "translator/requery_rule.h"
#include "translator/unsupported_features.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

// Written into form text by the form writer: the code between them belongs to
// the data control of another form (a subform's code).
constexpr std::string_view kFormCodeMark = "'MORVANE Form Code for ";
constexpr std::string_view kEndFormCodeMark = "'MORVANE End Form Code for ";

// Step 15: the line goes out, and the injection sees every line written.
void Emit(ModuleTranslation& t, const std::string& line) {
  t.Write(line);
  InjectAfterLine(t, line);
}

bool InDesignerBlock(const ModuleTranslation& t) {
  if (t.Mode != kModeModule && (t.EndCount == 0 || t.BeginCount == 0)) return true;
  return t.EndCount < t.BeginCount;
}

void TranslateLine(ModuleTranslation& t, std::string line) {
  // Only blanks go: a leading tab stays.
  line = TrimBlanks(line);
  Bump(t.TotalLines);

  if (StartsWithNoCase(line, "Begin ")) Bump(t.BeginCount);
  if (EqualsNoCase(line, "End") && t.EndCount < t.BeginCount) Bump(t.EndCount);
  if (InDesignerBlock(t)) return Emit(t, line);
  if (t.EndCount == t.BeginCount) Bump(t.CodeLines);

  if (StartsWithNoCase(line, kFormCodeMark))
    t.DataControl = t.Session.Names.DataControl(line.substr(kFormCodeMark.size()));
  else if (StartsWithNoCase(line, kEndFormCodeMark))
    t.DataControl = DataControlName(t.ModuleName);
  else if (StartsWithNoCase(line, "Call AddItem"))
    return Emit(t, line);

  if (!line.empty() && line[0] == '\'') {
    Bump(t.CommentLines);
    return Emit(t, line);
  }
  if (line.empty()) {
    Bump(t.BlankLines);
    return Emit(t, line);
  }

  if (ProcedureHeaderRules(t, line)) {
    if (t.Mode == kModeReport) ReportRules(t, line);
    return Emit(t, line);
  }
  EventBodyRules(t, line);
  if (Contains(line, "Application.")) ApplicationRules(t, line);

  if (StartsWithNoCase(line, "DoCmd.")) {
    DoCmdRules(t, line);
  } else if (StartsWithNoCase(line, "Option Compare Database")) {
    line.clear();
  } else if (StartsWithNoCase(line, "Set db =")) {
    // The generated code has one database variable of its own.
    Bump(t.BlankLines);
    return Emit(t, std::string());
  } else if (line.find(".REQUERY") != std::string::npos) {
    RequeryRule(t, line);
  }

  if (UnsupportedFeatures(t, line)) return Emit(t, line);
  if (t.Mode == kModeForm)
    MeRules(t, line);
  else if (t.Mode == kModeReport)
    ReportRules(t, line);
  GlobalSubstitutions(t, line);
  Emit(t, line);
}

// The rules build their text before they change a line, so a rule that
// cannot build it leaves the line alone. Should anything still fail, the line
// goes out as it was read and the run goes on.
void TranslateLineSafely(ModuleTranslation& t, const std::string& line) {
  const size_t written = t.Output.size();
  try {
    TranslateLine(t, line);
  } catch (const std::exception&) {
    t.Output.resize(written);
    t.Output.push_back(TrimBlanks(line));
  }
}

}  // namespace

TextDocument TranslateCode(ConversionSession& s, const TextDocument& input,
                           const std::string& moduleName, int mode) {
  ModuleTranslation t(s, mode, moduleName);
  t.Output.reserve(input.Lines().size() + 16);
  for (const auto& line : input.Lines()) TranslateLineSafely(t, line);
  InjectAtEnd(t);

  ModuleStats(
      s, {moduleName, t.TotalLines, t.CommentLines, t.LinesNotTranslated,
          t.LinesPotentiallyConverted, t.BlankLines, t.SubCount, t.ProcCount, 0, 0, t.CodeLines});
  TextDocument output(std::move(t.Output));
  RecordsetPass(s, output);
  return output;
}

}  // namespace morvane
