// The rule families of the module translator, one table per family: each case
// runs TranslateCode on a small module and checks the lines written, the
// tblReportOutput row and the counts of tblStats. The golden docmd_rules run
// shows the common form of each DoCmd and Application rule, with its row,
// line numbers and counts; these are the variants it does not.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/catalog.h"
#include "translator/translator_harness.h"

namespace morvane {
namespace {

using test::Translation;

// A translated line with the old text kept as a comment.
std::string K(const std::string& newText, const std::string& old) {
  return newText + "\t'MORVANE " + old;
}
std::string M(const std::string& old) { return "'MORVANE " + old; }

struct LineCase {
  std::string input;
  std::vector<std::string> output;
  int reason;  // 0: no analysis row
  std::string translated;
  int notTranslated;
  int potentiallyConverted;
};

// Replaced outright: no row, no count.
LineCase Plain(const std::string& in, const std::string& out) { return {in, {out}, 0, "", 0, 0}; }
// Replaced with the old text kept; the row's text is the new text unless
// given; `counted` adds to LinesPotentiallyConverted.
LineCase Kept(const std::string& in, const std::string& newText, int reason,
              const std::string& translated = "", bool counted = true) {
  return {in, {K(newText, in)}, reason, translated.empty() ? newText : translated, 0, counted};
}
// Kept, with lines written ahead of the current one and no count.
LineCase Loop(const std::string& in, std::vector<std::string> ahead, const std::string& newText,
              const std::string& translated) {
  ahead.push_back(K(newText, in));
  return {in, ahead, 7, translated, 0, 0};
}
LineCase Marked(const std::string& in, int reason) { return {in, {M(in)}, reason, "", 1, 0}; }

using SessionSetup = std::function<void(ConversionSession&)>;

// Runs one line as a standard module and checks output, row and counts.
void Check(const LineCase& c, const SessionSetup& setup = {}) {
  SCOPED_TRACE(c.input);
  Translation t;
  if (setup) setup(t.s);
  EXPECT_EQ(t.Run({c.input}), c.output);
  auto rows = t.Rows();
  if (c.reason == 0) {
    EXPECT_TRUE(rows.empty());
  } else {
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].ModuleName, "basTest");
    EXPECT_EQ(rows[0].ReasonID, c.reason);
    EXPECT_EQ(rows[0].CodeLine, c.input);
    EXPECT_EQ(rows[0].LineNumber, -1);  // the first line of a module
    EXPECT_EQ(rows[0].TranslatedLine, c.translated);
  }
  StatsRow stats = t.Stats();
  EXPECT_EQ(stats.LinesNotTranslated, c.notTranslated);
  EXPECT_EQ(stats.LinesPotentiallyConverted, c.potentiallyConverted);
}

TEST(DoCmdRules, MethodsWithAFixedTranslation) {
  const LineCase cases[] = {
      Plain("docmd.hourglass FALSE", "Screen.MousePointer = vbDefault"),
      Plain("DoCmd.Maximize", "Screen.ActiveForm.Windowstate = 2"),
      Plain("DoCmd.Minimize", "Screen.ActiveForm.Windowstate = 1"),
      Plain("DoCmd.Quit", "End"),
      Kept("DoCmd.PrintOut acPages, 1, 2", "Screen.ActiveForm.PrintForm", 7),
      // ".Repaint" becomes ".Refresh" in the kept old text too: the global
      // substitutions run over the whole line.
      {"DoCmd.RepaintObject",
       {K("Screen.ActiveForm.Refresh", "DoCmd.RefreshObject")},
       7,
       "Screen.ActiveForm.Refresh",
       0,
       1},
      Marked("DoCmd.OpenReport \"rptSales\"", 2),
      Plain("    DoCmd.Beep", "Beep"),        // leading blanks go before any rule
      Plain("\tDoCmd.Beep", "\tDoCmd.Beep"),  // a leading tab stays, and hides the method
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, RequeryTakesTheControlName) {
  const LineCase cases[] = {
      // Without quotes the name is taken from position 14, with its blank.
      Kept("DoCmd.Requery lstCustomers", " lstCustomers.requery", 7),
      // Without a name the requery has no counterpart: ".requery" alone
      // would not compile.
      Marked("DoCmd.Requery", 6),
      Marked("DoCmd.Requery \"\"", 6),
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, CloseUnloadsFormsOnly) {
  const LineCase cases[] = {
      Kept("DoCmd.Close acForm, \"Customers\", acSaveNo", "Unload GetFormFromName(\"Customers\")",
           7),
      Kept("DoCmd.Close 2, strForm", "Unload GetFormFromName(strForm)", 7),
      Kept("DoCmd.Close A_FORM, [Order Details]", "Unload Order_Details", 7),
      Plain("DoCmd.Close , , acSaveNo", "Unload Screen.ActiveForm"),
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, OpenFormShowsTheFormAndPassesItsArguments) {
  const std::string named =
      "DoCmd.OpenForm FormName:=\"Customers\", WindowMode:=3, OpenArgs:=\"42\"";
  const std::string customers = "GetFormFromName(\"Customers\")";
  const LineCase cases[] = {
      Kept("DoCmd.OpenForm \"Orders\", acNormal, , , , A_DIALOG", "Orders.Show vbModal ", 7),
      {named,
       {"Load " + customers, customers + ".Openargs = \"42\"",
        K(customers + ".Show vbModal ", named)},
       7,
       "Customers.Show vbModal ",
       0,
       1},
      Kept("DoCmd.OpenForm \"Order Details\", acNormal", "Order_Details.Show", 7,
           "Order Details.Show"),
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, OpenQueryRunsActionQueriesOnly) {
  MemoryCatalog catalog;
  catalog.Queries = {{"qrySelect", "SELECT * FROM t", kDbQSelect},
                     {"qryAppend", "INSERT INTO t SELECT * FROM u", kDbQAppend},
                     {"qryPass", "exec p", kDbQSQLPassThrough},
                     {"qryCross", "TRANSFORM ...", kDbQCrosstab}};
  const SessionSetup withCatalog = [&](ConversionSession& s) { s.SourceDb = &catalog; };
  const LineCase cases[] = {
      Kept("DoCmd.OpenQuery \"QRYAPPEND\", acViewNormal, acEdit", "db.Execute \"QRYAPPEND\"", 7),
      Kept("DoCmd.OpenQuery QueryName:=\"qryPass\"", "db.Execute \"qryPass\"", 7),
      Marked("DoCmd.OpenQuery \"qryCross\"", 6),
      Marked("DoCmd.OpenQuery \"qryMissing\"", 6),
  };
  for (const auto& c : cases) Check(c, withCatalog);

  // Without a catalog, and in an Access data project, nothing is known.
  const LineCase unknown = Marked("DoCmd.OpenQuery \"qryAppend\"", 6);
  Check(unknown);
  Check(unknown, [&](ConversionSession& s) {
    s.SourceDb = &catalog;
    s.IsAdp = true;
  });
}

TEST(DoCmdRules, RunMacroBecomesACallInALoopForItsRepeatArguments) {
  const std::string dim = "Dim iRunMacroCount as Integer";
  const LineCase cases[] = {
      Plain("DoCmd.RunMacro \"Macro 1\", , \"\"", "Call Macro_1"),
      // The macro's procedure begins with a letter, as the macro converter
      // names it; the row says the plain rule was left.
      {"DoCmd.RunMacro \"002_Import\"", {"Call Proc002_Import"}, 16, "Call Proc002_Import", 0, 0},
      Loop("DoCmd.RunMacro \"M1\", , \"x > 1\"", {"Do Until x > 1", "Call M1"}, "Loop", "Do..Loop"),
      Loop("DoCmd.RunMacro \"M1\", \"\", \"Done\"", {"Do Until Done", "Call M1"}, "Loop",
           "Do..Loop"),
      Loop("DoCmd.RunMacro \"M1\", 5, \"Done\"",
           {dim, "For iRunMacroCount = 1 to  5", "If Not Done Then Exit For", "Call M1"}, "Next",
           "For..Next Loop"),
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, RunMacroLoopLinesAreNotCounted) {
  Translation t;
  t.Run({"DoCmd.RunMacro \"M1\", 5, \"Done\"", "DoCmd.Beep 1"});
  auto rows = t.Rows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].LineNumber, 0);
  EXPECT_EQ(t.Stats().TotalLines, 2);
}

TEST(DoCmdRules, GoToPageSelectsATabOfTheFormsTabControl) {
  const LineCase cases[] = {
      Kept("DoCmd.GoToPage 2, 100, 200", "Screen.ActiveForm.SSTab1.Tab =  2 - 1", 7, "", false),
      Marked("DoCmd.GoToPage, 100", 2),
  };
  for (const auto& c : cases) Check(c);
}

TEST(ApplicationRules, WindowHandleQuitAndTheRest) {
  const LineCase cases[] = {
      Plain("application.quit", "End"),
      Marked("Application.Quit acQuitSaveAll", 2),
      Plain("x = Application.hWndAccessApp + Application.hWndAccessApp",
            "x = App.hInstance + App.hInstance"),
      Marked("Application.Echo False", 2),
      Marked("p = Application.CurrentProject.Path", 2),
  };
  for (const auto& c : cases) Check(c);
}

TEST(ApplicationRules, AMarkedLineGoesOnToTheDoCmdStep) {
  // The marked line no longer begins with "DoCmd.", so only one row is written.
  Check(Marked("DoCmd.Beep Application.Name", 2));
}

TEST(RequeryRule, UnboundListsAreFilledAnew) {
  // The row keeps the rule's text; the written line has lost its "()" to the
  // global substitutions.
  const std::string refill = "Call InitializeComboBoxes()";
  auto kept = [&](const std::string& in) {
    return LineCase{in, {K("Call InitializeComboBoxes", in)}, 7, refill, 0, 1};
  };
  const LineCase cases[] = {
      kept("Me!lstX.REQUERY"), kept("Me![lst X].REQUERY"), Marked("lstX.REQUERY", 6),
      Plain("Me!lstX.Requery", "Me!lstX.Requery"),  // the rule is exact about case
  };
  for (const auto& c : cases) Check(c);
}

TEST(RequeryRule, BoundListsRefreshTheirDataControl) {
  const SessionSetup bound = [](ConversionSession& s) { s.Options.ListboxBound = true; };
  const LineCase cases[] = {
      Kept("Me!lstX.REQUERY", "Me!datlstX.Refresh", 7),
      Kept("Me.lstX.REQUERY", "Me.datlstX.Refresh", 7),
      Kept("Me![lst X].REQUERY", "Me!datlst_X.Refresh", 7, "Me![lst X]dat.Refresh"),
      // The form reference rules then read "frm" as a variable in the new text
      // (its brackets are gone) and "[frm A]" as a form name in the old one.
      {"Forms![frm A]!lstX.REQUERY",
       {K("GetFormFromName(frm) A!datlstX.Refresh", "GetFormFromName(\"frm A\")!lstX.REQUERY")},
       7,
       "Forms![frm A]!datlstX.Refresh",
       0,
       1},
      Kept("lstX.REQUERY", "datlstX.Refresh", 7),
  };
  for (const auto& c : cases) Check(c, bound);
}

TEST(RequeryRule, TheFormItselfRefreshesItsDataControl) {
  Translation t;
  auto input = test::FormDesigner("Orders");
  input.push_back("Me.REQUERY");
  auto out = t.Run(input, kModeForm, "Orders");
  ASSERT_GE(out.size(), 2u);
  EXPECT_EQ(out[out.size() - 2], "Me.datOrders.Recordset.Requery");
  EXPECT_EQ(out.back(), "Me.datOrders.Refresh");
  EXPECT_TRUE(t.Rows().empty());
}

TEST(StepElevenLines, OptionCompareAndTheDatabaseVariable) {
  Translation t;
  EXPECT_EQ(t.Run({"Option Compare Database", "Set db = CurrentDb()", "Set DB = DBEngine(0)(0)"}),
            (std::vector<std::string>{"", "", ""}));
  // Only the deleted Set db lines count as blank.
  EXPECT_EQ(t.Stats().BlankLines, 2);
}

// Runs a standard module and returns its lines.
std::vector<std::string> RunModule(const std::vector<std::string>& input,
                                   const SessionSetup& setup = {}) {
  Translation t;
  if (setup) setup(t.s);
  return t.Run(input);
}

TEST(ProcedureRules, EventHeadersWithCancelBecomeFunctions) {
  struct HeaderCase {
    std::string header;
    std::string expected;
  };
  const HeaderCase cases[] = {
      {"Private Sub Form_Open(Cancel As Integer)", "Private Function Form_Open() as Integer"},
      {"Private Sub cmdOK_Exit(Cancel As Integer)", "Private Function cmdOK_Exit() as Integer"},
      {"Public Sub Form_BeforeInsert(Cancel As Integer)",
       "Private Function Form_BeforeInsert() as Integer"},
      {"Sub Form_Delete(Cancel As Integer)", "Private Function Form_Delete() as Integer"},
      {"Private Sub Form_BeforeUpdate(Cancel As Integer)",
       "Private Function Form_BeforeUpdate() as Integer"},
      {"Private Sub sub_Form_BeforeUpdate(Cancel As Integer)",
       "Private Function sub_Form_BeforeUpdate() as Integer"},
      {"Private Sub Form_BeforeDelConfirm(Cancel As Integer, Response As Integer)",
       "Private Function Form_BeforeDelConfirm(Response As Integer) as Integer"},
      {"Private Sub Form_Error(DataErr As Integer, Response As Integer)",
       "Private Function Form_Error(DataErr As Long) as Integer"},
      // Headers of other events keep their parameters.
      {"Private Sub txtA_BeforeUpdate(Cancel As Integer)",
       "Private Sub txtA_BeforeUpdate(Cancel As Integer)"},
      {"Private Sub datOrders_Form_Error(DataErr As Integer, Response As Integer)",
       "Private Sub datOrders_Form_Error(DataErr As Integer, Response As Integer)"},
      {"Sub Form_Load()", "Sub Form_Load()"},
      {"Private Sub DoIt()", "Private Sub DoIt()"},
      {"Private Sub lstA_DblClick(Cancel As Integer)", "Private Sub lstA_DblClick()"},
      {"Private Sub lstA_AfterUpdate()", "Private Sub lstA_AfterUpdate(RtnDispErrMsg As Integer)"},
      {"Private Sub cboA_AfterUpdate()", "Private Sub cboA_AfterUpdate()"},
      // A header is finished at its own step: nothing later touches it.
      {"Private Sub cmd_Click() ' DoCmd.Beep Application.Name",
       "Private Sub cmd_Click() ' DoCmd.Beep Application.Name"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(RunModule({c.header}), std::vector<std::string>{c.expected}) << c.header;

  auto withDao = RunModule({"Private Sub Form_Error(DataErr As Integer, Response As Integer)"},
                           [](ConversionSession& s) { s.Options.UseAdo = false; });
  EXPECT_EQ(withDao,
            std::vector<std::string>{"Private Function Form_Error(DataErr As Integer) as Integer"});
}

TEST(ProcedureRules, EventBodiesFollowTheFunction) {
  EXPECT_EQ(RunModule({
                "Private Sub Form_Open(Cancel As Integer)",
                "If x Then Exit Sub ' Exit Sub",
                "' Exit Sub",
                "Cancel = True",
                "End Sub ' done",
                "Function Helper()",
                "cancel = true",
                "End Function",
                "Sub Form_Load()",
                "Cancel = True",
                "Exit Sub",
                "End Sub",
            }),
            (std::vector<std::string>{
                "Private Function Form_Open() as Integer",
                "If x Then Exit Function ' Exit Function",
                "' Exit Sub",  // a whole-line comment is left alone
                "Form_Open = True",
                "End Function ' done",
                "Function Helper()",
                "Form_Open = True",  // EventFunction outlives End Function
                "End Function",
                "Sub Form_Load()",
                "Cancel = True",
                "Exit Sub",
                "End Sub",
            }));
  EXPECT_EQ(RunModule({"Private Sub Form_Error(DataErr As Integer, Response As Integer)",
                       "Response = acDataErrContinue", "End Sub"}),
            (std::vector<std::string>{"Private Function Form_Error(DataErr As Long) as Integer",
                                      "Form_Error = acDataErrContinue", "End Function"}));
}

TEST(ProcedureRules, HeadersNameTheRoutineOfTheRows) {
  Translation t;
  t.Run({
      "Private Sub cmdGo_Click()",
      "DoCmd.Beep 1",
      "Public Function GetTotal(x As Long) As Long",
      "DoCmd.Beep 2",
      "Sub Do_Work",
      "DoCmd.Beep 3",
      "Function NoParens",  // no "(": the routine keeps its name
      "DoCmd.Beep 4",
  });
  auto rows = t.Rows();
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[0].Routine, "Private Sub cmdGo_Click(");
  EXPECT_EQ(rows[1].Routine, "Public Function GetTotal");
  EXPECT_EQ(rows[2].Routine, "Sub Do");
  EXPECT_EQ(rows[3].Routine, "Sub Do");
  StatsRow stats = t.Stats();
  EXPECT_EQ(stats.SubCount, 2);
  EXPECT_EQ(stats.ProcCount, 2);
}

TEST(ReportRules, ReportEventsBecomeDataReportEvents) {
  Translation t;
  std::vector<std::string> input = {
      "VERSION 5.00",
      "Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} rptSales",
      "   Caption = \"Sales\"",
      "End",
      "Attribute VB_Name = \"rptSales\"",
      "Private Sub Report_Open(Cancel As Integer)",
      "If IsNull(x) Then Cancel = True",
      "Call Report_Helper",
      "End Sub",
      "Private Sub Report_Close()",
      "End Sub",
      "Private Sub Detail_Format(Cancel As Integer, FormatCount As Integer)",
      "Exit Sub ' Sub (early)",
      "End Sub",
  };
  auto out = t.Run(input, kModeReport, "rptSales");
  EXPECT_EQ(t.name, "rptSales");
  EXPECT_EQ(out, (std::vector<std::string>{
                     "VERSION 5.00",
                     "Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} rptSales",
                     "Caption = \"Sales\"",
                     "End",
                     "Attribute VB_Name = \"rptSales\"",
                     "Private Function DataReport_Open() as Integer",
                     "If IsNull(x) Then DataReport_Open = True",
                     "Call DataReport_Helper",
                     "End Function",
                     "Private Sub DataReport_QueryClose(Cancel As Integer, CloseMode As Integer)",
                     "End Sub",
                     "Private Sub Detail_Format(Cancel As Integer, FormatCount As Integer)",
                     "Exit Sub ' Sub (early)",
                     "End Sub",
                     // The open procedure asks for DataReport_Initialize,
                     // even with no initialisation code.
                     "Private Sub DataReport_Initialize()",
                     "",
                     "If DataReport_Open() Then Unload Me",
                     "End Sub",
                 }));
  auto log = t.Log();
  ASSERT_EQ(log.size(), 2u);
  EXPECT_EQ(log[0].ErrorID, 6);
  EXPECT_EQ(log[0].Report, "rptSales");
  EXPECT_EQ(log[0].Location, "Detail_Format(");
  // Any line with "Sub " in it names a procedure: here from behind the first
  // "Sub " through the first "(".
  EXPECT_EQ(log[1].Location, "' Sub (");
  EXPECT_EQ(log[0].ControlDeleted, 0);
}

TEST(ReportRules, OnlyReportsGetThem) {
  Translation t;
  auto input = test::FormDesigner("Orders");
  input.push_back("Private Sub Report_Open(Cancel As Integer)");
  auto out = t.Run(input, kModeForm, "Orders");
  EXPECT_EQ(out.back(), "Private Function Report_Open() as Integer");
  EXPECT_TRUE(t.Log().empty());
}

}  // namespace
}  // namespace morvane
