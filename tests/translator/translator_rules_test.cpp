// The rule families of the module translator, one table per family: each case
// runs TranslateCode on a small module and checks the lines written, the
// tblReportOutput row and the counts of tblStats.
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
  LineCase(std::string in, std::vector<std::string> out, int why = 0, std::string newText = "",
           int marked = 0, int kept = 0)
      : input(std::move(in)),
        output(std::move(out)),
        reason(why),
        translated(std::move(newText)),
        notTranslated(marked),
        potentiallyConverted(kept) {}
  std::string input;
  std::vector<std::string> output;
  int reason;  // 0: no analysis row
  std::string translated;
  int notTranslated;
  int potentiallyConverted;
};

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
      {"DoCmd.Hourglass True", {"Screen.MousePointer = vbHourglass"}},
      {"docmd.hourglass FALSE", {"Screen.MousePointer = vbDefault"}},
      {"DoCmd.CancelEvent", {K("Cancel = True", "DoCmd.CancelEvent")}, 5, "Cancel = True", 0, 1},
      {"DoCmd.Beep", {"Beep"}},
      {"DoCmd.Beep ' again", {M("DoCmd.Beep ' again")}, 2, "", 1, 0},
      {"DoCmd.Maximize", {"Screen.ActiveForm.Windowstate = 2"}},
      {"DoCmd.Minimize", {"Screen.ActiveForm.Windowstate = 1"}},
      {"DoCmd.Quit", {"End"}},
      {"DoCmd.Restore",
       {K("Screen.ActiveForm.Windowstate = 0", "DoCmd.Restore")},
       7,
       "Me.Windowstate = 0",
       0,
       1},
      {"DoCmd.RunSQL \"DELETE * FROM tmp\"",
       {K("DB.Execute \"DELETE * FROM tmp\"", "DoCmd.RunSQL \"DELETE * FROM tmp\"")},
       7,
       "DB.Execute \"DELETE * FROM tmp\"",
       0,
       1},
      {"DoCmd.GoToControl \"txtName\"",
       {K("Screen.ActiveForm.Controls( \"txtName\").SetFocus", "DoCmd.GoToControl \"txtName\"")},
       7,
       "Controls( \"txtName\").SetFocus",
       0,
       1},
      {"DoCmd.PrintOut acPages, 1, 2",
       {K("Screen.ActiveForm.PrintForm", "DoCmd.PrintOut acPages, 1, 2")},
       7,
       "Screen.ActiveForm.PrintForm",
       0,
       1},
      {"DoCmd.RepaintObject",
       {K("Screen.ActiveForm.Refresh", "DoCmd.RepaintObject")},
       7,
       "Screen.ActiveForm.Refresh",
       0,
       1},
      {"DoCmd.MoveSize 100, 200",
       {"'me.move new left,new top,width,height 'MORVANE 'MORVANE DoCmd.MoveSize 100, 200"},
       6,
       "",
       1,
       0},
      {"DoCmd.OpenReport \"rptSales\"", {M("DoCmd.OpenReport \"rptSales\"")}, 2, "", 1, 0},
      {"DoCmd.SetWarnings False", {M("DoCmd.SetWarnings False")}, 2, "", 1, 0},
      // Not a DoCmd line: it does not begin with "DoCmd.".
      {"x = \"DoCmd.Beep\"", {"x = \"DoCmd.Beep\""}},
      {"    DoCmd.Beep", {"Beep"}},        // leading blanks go before any rule
      {"\tDoCmd.Beep", {"\tDoCmd.Beep"}},  // a leading tab stays, and hides the method
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, RequeryTakesTheControlName) {
  const LineCase cases[] = {
      {"DoCmd.Requery \"lstCustomers\"",
       {K("lstCustomers.requery", "DoCmd.Requery \"lstCustomers\"")},
       7,
       "lstCustomers.requery",
       0,
       1},
      // Without quotes the name is taken from position 14, with its blank.
      {"DoCmd.Requery lstCustomers",
       {K(" lstCustomers.requery", "DoCmd.Requery lstCustomers")},
       7,
       " lstCustomers.requery",
       0,
       1},
      {"DoCmd.Requery", {K(".requery", "DoCmd.Requery")}, 7, ".requery", 0, 1},
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, CloseUnloadsFormsOnly) {
  const LineCase cases[] = {
      {"DoCmd.Close acForm, \"Orders\"",
       {K("Unload Orders", "DoCmd.Close acForm, \"Orders\"")},
       7,
       "Unload Orders",
       0,
       1},
      {"DoCmd.Close acForm, \"Customers\", acSaveNo",
       {K("Unload GetFormFromName(\"Customers\")", "DoCmd.Close acForm, \"Customers\", acSaveNo")},
       7,
       "Unload GetFormFromName(\"Customers\")",
       0,
       1},
      {"DoCmd.Close 2, strForm",
       {K("Unload GetFormFromName(strForm)", "DoCmd.Close 2, strForm")},
       7,
       "Unload GetFormFromName(strForm)",
       0,
       1},
      {"DoCmd.Close A_FORM, [Order Details]",
       {K("Unload Order_Details", "DoCmd.Close A_FORM, [Order Details]")},
       7,
       "Unload Order_Details",
       0,
       1},
      {"DoCmd.Close", {"Unload Screen.ActiveForm"}},
      {"DoCmd.Close , , acSaveNo", {"Unload Screen.ActiveForm"}},
      {"DoCmd.Close acReport, \"rptSales\"", {M("DoCmd.Close acReport, \"rptSales\"")}, 6, "", 1},
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, OpenFormShowsTheFormAndPassesItsArguments) {
  const LineCase cases[] = {
      {"DoCmd.OpenForm \"Orders\"",
       {K("Orders.Show", "DoCmd.OpenForm \"Orders\"")},
       7,
       "Orders.Show",
       0,
       1},
      {"DoCmd.OpenForm \"Orders\", , , , , acDialog, \"x\"",
       {"Load Orders", "Orders.Openargs = \"x\"",
        K("Orders.Show vbModal ", "DoCmd.OpenForm \"Orders\", , , , , acDialog, \"x\"")},
       7,
       "Orders.Show vbModal ",
       0,
       1},
      {"DoCmd.OpenForm \"Orders\", acNormal, , , , A_DIALOG",
       {K("Orders.Show vbModal ", "DoCmd.OpenForm \"Orders\", acNormal, , , , A_DIALOG")},
       7,
       "Orders.Show vbModal ",
       0,
       1},
      {"DoCmd.OpenForm FormName:=\"Customers\", WindowMode:=3, OpenArgs:=\"42\"",
       {"Load GetFormFromName(\"Customers\")", "GetFormFromName(\"Customers\").Openargs = \"42\"",
        K("GetFormFromName(\"Customers\").Show vbModal ",
          "DoCmd.OpenForm FormName:=\"Customers\", WindowMode:=3, OpenArgs:=\"42\"")},
       7,
       "Customers.Show vbModal ",
       0,
       1},
      {"DoCmd.OpenForm \"Order Details\", acNormal",
       {K("Order_Details.Show", "DoCmd.OpenForm \"Order Details\", acNormal")},
       7,
       "Order Details.Show",
       0,
       1},
  };
  for (const auto& c : cases) Check(c);
}

TEST(DoCmdRules, OpenFormArgumentLinesCountAsCodeLines) {
  Translation t;
  t.Run({"DoCmd.OpenForm \"Orders\", , , , , , \"x\"", "DoCmd.Beep 1"});
  auto rows = t.Rows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].LineNumber, -1) << "the row is written before the lines ahead";
  EXPECT_EQ(rows[1].LineNumber, 2);
  EXPECT_EQ(t.Stats().TotalLines, 4);
}

TEST(DoCmdRules, OpenQueryRunsActionQueriesOnly) {
  MemoryCatalog catalog;
  catalog.Queries = {{"qrySelect", "SELECT * FROM t", kDbQSelect},
                     {"qryAppend", "INSERT INTO t SELECT * FROM u", kDbQAppend},
                     {"qryPass", "exec p", kDbQSQLPassThrough},
                     {"qryCross", "TRANSFORM ...", kDbQCrosstab}};
  const SessionSetup withCatalog = [&](ConversionSession& s) { s.SourceDb = &catalog; };
  const LineCase cases[] = {
      {"DoCmd.OpenQuery \"qrySelect\"", {M("DoCmd.OpenQuery \"qrySelect\"")}, 6, "", 1},
      {"DoCmd.OpenQuery \"qryAppend\"",
       {K("db.Execute \"qryAppend\"", "DoCmd.OpenQuery \"qryAppend\"")},
       7,
       "db.Execute \"qryAppend\"",
       0,
       1},
      {"DoCmd.OpenQuery \"QRYAPPEND\", acViewNormal, acEdit",
       {K("db.Execute \"QRYAPPEND\"", "DoCmd.OpenQuery \"QRYAPPEND\", acViewNormal, acEdit")},
       7,
       "db.Execute \"QRYAPPEND\"",
       0,
       1},
      {"DoCmd.OpenQuery QueryName:=\"qryPass\"",
       {K("db.Execute \"qryPass\"", "DoCmd.OpenQuery QueryName:=\"qryPass\"")},
       7,
       "db.Execute \"qryPass\"",
       0,
       1},
      {"DoCmd.OpenQuery \"qryCross\"", {M("DoCmd.OpenQuery \"qryCross\"")}, 6, "", 1},
      {"DoCmd.OpenQuery \"qryMissing\"", {M("DoCmd.OpenQuery \"qryMissing\"")}, 6, "", 1},
  };
  for (const auto& c : cases) Check(c, withCatalog);

  // Without a catalog, and in an Access data project, nothing is known.
  const LineCase unknown = {
      "DoCmd.OpenQuery \"qryAppend\"", {M("DoCmd.OpenQuery \"qryAppend\"")}, 6, "", 1};
  Check(unknown);
  Check(unknown, [&](ConversionSession& s) {
    s.SourceDb = &catalog;
    s.IsAdp = true;
  });
}

TEST(DoCmdRules, RunMacroBecomesACallInALoopForItsRepeatArguments) {
  const LineCase cases[] = {
      {"DoCmd.RunMacro \"M1\"", {"Call M1"}},
      {"DoCmd.RunMacro \"Macro 1\", , \"\"", {"Call Macro_1"}},
      {"DoCmd.RunMacro \"M1\", 3",
       {"Dim iRunMacroCount as Integer", "For iRunMacroCount = 1 to  3", "Call M1",
        K("Next", "DoCmd.RunMacro \"M1\", 3")},
       7,
       "For..Next Loop"},
      {"DoCmd.RunMacro \"M1\", , \"x > 1\"",
       {"Do Until x > 1", "Call M1", K("Loop", "DoCmd.RunMacro \"M1\", , \"x > 1\"")},
       7,
       "Do..Loop"},
      {"DoCmd.RunMacro \"M1\", \"\", \"Done\"",
       {"Do Until Done", "Call M1", K("Loop", "DoCmd.RunMacro \"M1\", \"\", \"Done\"")},
       7,
       "Do..Loop"},
      {"DoCmd.RunMacro \"M1\", 5, \"Done\"",
       {"Dim iRunMacroCount as Integer", "For iRunMacroCount = 1 to  5",
        "If Not Done Then Exit For", "Call M1", K("Next", "DoCmd.RunMacro \"M1\", 5, \"Done\"")},
       7,
       "For..Next Loop"},
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
      {"DoCmd.GoToPage 2", {"Screen.ActiveForm.SSTab1.Tab =  2 - 1"}},
      {"DoCmd.GoToPage 2, 100, 200",
       {K("Screen.ActiveForm.SSTab1.Tab =  2 - 1", "DoCmd.GoToPage 2, 100, 200")},
       7,
       "Screen.ActiveForm.SSTab1.Tab =  2 - 1"},
      {"DoCmd.GoToPage, 100", {M("DoCmd.GoToPage, 100")}, 2, "", 1},
  };
  for (const auto& c : cases) Check(c);
}

TEST(ApplicationRules, WindowHandleQuitAndTheRest) {
  const LineCase cases[] = {
      {"Application.Quit", {"End"}},
      {"application.quit", {"End"}},
      {"Application.Quit acQuitSaveAll", {M("Application.Quit acQuitSaveAll")}, 2, "", 1},
      {"Application.Quit ' bye", {M("Application.Quit ' bye")}, 2, "", 1},
      {"h = Application.hWndAccessApp", {"h = App.hInstance"}},
      {"x = Application.hWndAccessApp + Application.hWndAccessApp",
       {"x = App.hInstance + App.hInstance"}},
      {"Application.Echo False", {M("Application.Echo False")}, 2, "", 1},
      {"p = Application.CurrentProject.Path", {M("p = Application.CurrentProject.Path")}, 2, "", 1},
  };
  for (const auto& c : cases) Check(c);
}

TEST(ApplicationRules, AMarkedLineGoesOnToTheDoCmdStep) {
  // The marked line no longer begins with "DoCmd.", so only one row is written.
  Translation t;
  EXPECT_EQ(t.Run({"DoCmd.Beep Application.Name"}),
            (std::vector<std::string>{M("DoCmd.Beep Application.Name")}));
  ASSERT_EQ(t.Rows().size(), 1u);
  EXPECT_EQ(t.Rows()[0].ReasonID, 2);
  EXPECT_EQ(t.Stats().LinesNotTranslated, 1);
}

TEST(RequeryRule, UnboundListsAreFilledAnew) {
  const std::string refill = "Call InitializeComboBoxes()";
  const LineCase cases[] = {
      {"Me!lstX.REQUERY", {K(refill, "Me!lstX.REQUERY")}, 7, refill, 0, 1},
      {"Me![lst X].REQUERY", {K(refill, "Me![lst X].REQUERY")}, 7, refill, 0, 1},
      {"lstX.REQUERY", {M("lstX.REQUERY")}, 6, "", 1},
      {"Me!lstX.Requery", {"Me!lstX.Requery"}},  // the rule is exact about case
  };
  for (const auto& c : cases) Check(c);
}

TEST(RequeryRule, BoundListsRefreshTheirDataControl) {
  const SessionSetup bound = [](ConversionSession& s) { s.ListboxBound = true; };
  const LineCase cases[] = {
      {"Me!lstX.REQUERY",
       {K("Me!datlstX.Refresh", "Me!lstX.REQUERY")},
       7,
       "Me!datlstX.Refresh",
       0,
       1},
      {"Me.lstX.REQUERY",
       {K("Me.datlstX.Refresh", "Me.lstX.REQUERY")},
       7,
       "Me.datlstX.Refresh",
       0,
       1},
      {"Me![lst X].REQUERY",
       {K("Me!datlst_X.Refresh", "Me![lst X].REQUERY")},
       7,
       "Me![lst X]dat.Refresh",
       0,
       1},
      {"Forms![frm A]!lstX.REQUERY",
       {K("Forms!frm A!datlstX.Refresh", "Forms![frm A]!lstX.REQUERY")},
       7,
       "Forms![frm A]!datlstX.Refresh",
       0,
       1},
      {"lstX.REQUERY", {K("datlstX.Refresh", "lstX.REQUERY")}, 7, "datlstX.Refresh", 0, 1},
  };
  for (const auto& c : cases) Check(c, bound);
}

TEST(RequeryRule, TheFormItselfRefreshesItsDataControl) {
  Translation t;
  auto input = test::FormDesigner("Orders");
  input.push_back("Me.REQUERY");
  auto out = t.Run(input, kModeForm, "form_Orders.frm");
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
                           [](ConversionSession& s) { s.UseAdo = false; });
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
  auto out = t.Run(input, kModeReport, "REPT_rptSales.txt");
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
  auto out = t.Run(input, kModeForm, "form_Orders.frm");
  EXPECT_EQ(out.back(), "Private Function Report_Open() as Integer");
  EXPECT_TRUE(t.Log().empty());
}

}  // namespace
}  // namespace morvane
