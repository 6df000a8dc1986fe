// Procedure header, event body and report rules.
#include "translator/procedure_rules.h"

#include <string_view>

#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/text_helpers.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

constexpr std::string_view kSubStarts[] = {"Sub ", "Private Sub ", "Public Sub "};
constexpr std::string_view kFunctionStarts[] = {"Function ", "Private Function ",
                                                "Public Function "};
// Events whose Cancel parameter turns the procedure into a function without
// parameters.
constexpr std::string_view kCancelEvents[] = {"Open", "Exit", "BeforeInsert", "Delete"};

// tblLog's error number for a procedure of a report.
constexpr int kReportProcedureLogId = 6;

template <size_t N>
bool StartsWithAny(std::string_view line, const std::string_view (&starts)[N]) {
  for (std::string_view start : starts)
    if (StartsWithNoCase(line, start)) return true;
  return false;
}

void SubHeader(ModuleTranslation& t, std::string& line) {
  Bump(t.SubCount);
  if (int paren = InStr(line, "("); paren > 0) {
    t.CurrentRoutine = line.substr(0, static_cast<size_t>(paren));
  } else if (auto head = Left(line, InStrRev(line, "_") - 1)) {
    t.CurrentRoutine = *head;  // without "(" or "_" the routine keeps its name
  }
  if (Contains(line, "_DblClick(Cancel As Integer)"))
    line = ReplaceAllText(line, "_DblClick(Cancel As Integer)", "_DblClick()");
  // List controls that replace list boxes named "lst..." raise AfterUpdate
  // with an error-message flag.
  if (Contains(line, "Sub lst") && Contains(line, "_AfterUpdate("))
    line = ReplaceAllText(line, "_AfterUpdate()", "_AfterUpdate(RtnDispErrMsg As Integer)");

  t.EventFunction = TrailingIdentifier(t.CurrentRoutine);
  const std::string& e = t.EventFunction;
  int underscore = InStrRev(e, "_");
  if (underscore == 0) {
    t.EventFunction.clear();
    return;
  }
  const std::string tail = e.substr(static_cast<size_t>(underscore));
  bool cancels = EndsWithNoCase(e, "Form_BeforeUpdate");
  for (std::string_view event : kCancelEvents) cancels = cancels || EqualsNoCase(tail, event);
  if (cancels) {
    line = "Private Function " + e + "() as Integer";
  } else if (EqualsNoCase(tail, "BeforeDelConfirm")) {
    line = "Private Function " + e + "(Response As Integer) as Integer";
  } else if (EndsWithNoCase(e, "Form_Error") && !StartsWithNoCase(e, "dat")) {
    line = "Private Function " + e + "(DataErr As " +
           (t.Session.Options.UseAdo ? "Long" : "Integer") + ") as Integer";
  } else {
    t.EventFunction.clear();
  }
}

void FunctionHeader(ModuleTranslation& t, const std::string& line) {
  Bump(t.ProcCount);
  if (auto head = Left(line, InStr(line, "(") - 1)) t.CurrentRoutine = *head;
}

}  // namespace

bool ProcedureHeaderRules(ModuleTranslation& t, std::string& line) {
  if (StartsWithAny(line, kSubStarts)) {
    SubHeader(t, line);
    return true;
  }
  if (StartsWithAny(line, kFunctionStarts)) {
    FunctionHeader(t, line);
    return true;
  }
  return false;
}

void EventBodyRules(ModuleTranslation& t, std::string& line) {
  const std::string& e = t.EventFunction;
  if (e.empty()) return;
  Replace(t, line, "Exit Sub", "Exit Function");
  Replace(t, line, "Cancel = True", e + " = True");
  if (EndsWithNoCase(e, "Form_Error")) Replace(t, line, "Response = ", "Form_Error = ");
  // EventFunction stays set: only the next Sub header changes it.
  if (StartsWithNoCase(line, "End Sub ") || EqualsNoCase(line, "End Sub"))
    line = "End Function" + Mid(line, 8);
}

void ReportRules(ModuleTranslation& t, std::string& line) {
  if (Contains(line, "Function Report_Open(")) {
    t.FormLoadSeen = true;
  } else if (Contains(line, "Sub Report_Close()")) {
    line = "Private Sub DataReport_QueryClose(Cancel As Integer, CloseMode As Integer)";
  } else if (int sub = InStr(line, "Sub "); sub > 0) {
    // The procedure's name from behind "Sub " through its "(".
    if (auto location = Mid(line, sub + 4, InStr(line, "(") - sub - 3))
      LogEntry(t.Session, kReportProcedureLogId, t.ModuleName, *location);
  }
  if (StartsWithNoCase(line, "Report_"))
    Replace(t, line, "Report_", "DataReport_");
  else if (Contains(line, " Report_"))
    Replace(t, line, " Report_", " DataReport_");
}

}  // namespace morvane
