// The later stages of the translator's pipeline, each through TranslateCode:
// unsupported features, Me rules, global substitutions, form procedure
// injection, and the recordset and option group pass. The golden global_rules
// run shows the common case of each unsupported feature and substitution (the
// database variable, Forms(...), Val(x.Text()), TimerInterval, marked
// AllowEdits, OnClick, Me.Form and Reports! lines); these are the variants.
#include <gtest/gtest.h>

#include "session/vb6_check.h"
#include "translator/translator_harness.h"

namespace morvane {
namespace {

using test::FormDesigner;
using test::Translation;

struct Case {
  const char* input;
  const char* output;
  int reason;  // the analysis row's reason; 0 for no row
};

void CheckModule(const Case& c, Translation& t) {
  SCOPED_TRACE(c.input);
  auto out = t.Run({c.input});
  ASSERT_EQ(out.size(), 1u);
  EXPECT_EQ(out[0], c.output);
  auto rows = t.Rows();
  if (c.reason == 0) {
    EXPECT_TRUE(rows.empty());
  } else {
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].ReasonID, c.reason);
  }
}

// The code lines of a form "Orders" after the designer block.
std::vector<std::string> RunForm(Translation& t, const std::vector<std::string>& code,
                                 std::vector<std::string> designer = FormDesigner("Orders")) {
  designer.insert(designer.end(), code.begin(), code.end());
  auto out = t.Run(designer, kModeForm, "Orders");
  size_t skip = 0;
  while (skip < out.size() && out[skip].rfind("Attribute VB_Name", 0) != 0) ++skip;
  return std::vector<std::string>(out.begin() + static_cast<long>(std::min(out.size(), skip + 1)),
                                  out.end());
}

TEST(UnsupportedFeatures, FirstEntryThatFitsMarksTheLine) {
  const Case cases[] = {
      {"Me.allowedits = False", "Me.allowedits = False", 0},  // exact entries count case
      {"DoIt.runcommand 5", "'MORVANE DoIt.runcommand 5", 1},
      {"n = acLBGetRowCount", "'MORVANE n = acLBGetRowCount", 8},
      {"Dim f As vb.Form", "Dim f As vb.Form", 0},
      {"Attribute VB_Name = \"basTest\"", "Attribute VB_Name = \"basTest\"", 0},
      // A feature's text in a string literal is no use of it: the line stays,
      // with a row saying the rule was not applied.
      {"Attribute VB_Description = \"CurrentUser()\"",
       "Attribute VB_Description = \"CurrentUser()\"", 16},
      {"x = Me.txtDate.Format", "x = Me.txtDate.Format", 16},
  };
  for (const auto& c : cases) {
    Translation t;
    CheckModule(c, t);
  }
}

TEST(MeRules, FormReferencesReachTheDataControl) {
  struct FormCase {
    const char* input;
    const char* output;
  };
  const FormCase cases[] = {
      {"Me.Bookmark = x", "Me.datOrders.recordset.Bookmark = x"},
      {"x = Me.CurrentRecord", "x = Me.datOrders.recordset.AbsolutePosition"},
      {"Me.RecordSource = s", "Me.datOrders.RecordSource = s"},
      {"Me!Total = 1", "Me.datOrders.recordset.Fields(\"Total\") = 1"},
      {"x = Me!Total + Me!txtName", "x = Me.datOrders.recordset.Fields(\"Total\") + Me.txtName"},
      {"Me.GoToPage 2", "Me.SSTab1.Tab =  2 - 1"},
      {"orders.Caption = \"x\"", "orders.Caption = \"x\""},
      {"Orders.RecordSource = s", "Orders.datOrders.RecordSource = s"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.input);
    Translation t;
    t.Db().AddField({"Total", 5, "Orders"});
    auto code = RunForm(t, {c.input});
    ASSERT_EQ(code.size(), 1u);
    EXPECT_EQ(code[0], c.output);
  }
}

TEST(MeRules, FormPropertiesAskForTheirPropertyCode) {
  Translation t;
  RunForm(t, {"Me.Filter = \"x > 1\"", "Orders.OrderBy = \"x\"", "y = Me.OpenArgs"});
  EXPECT_TRUE(t.s.Form().UsesFilter);
  EXPECT_TRUE(t.s.Form().UsesOrderBy);
  EXPECT_TRUE(t.s.Form().UsesOpenArgs);
  EXPECT_FALSE(t.s.Form().UsesFilterOn);
}

TEST(GlobalSubstitutions, DatabaseNamesFormsAndRuntimeRequests) {
  const Case cases[] = {
      {"Dim db As Database", "", 0},
      {"x = Forms(strName)!Total", "x = GetFormFromName(strName)!Total", 0},
      {"x = Forms![Order Details]!Total", "x = [Order Details]!Total", 0},
      {"Forms![Customers]!Total = 1", "GetFormFromName(\"Customers\")!Total = 1", 0},
      {"Dim a() As Integer", "Dim a() As Integer", 0},
      {"Quit", "End", 0},
      {"x = Me.ctlCal.Object.Value", "x = Me.ctlCal.Value", 0},
      {"Me.Repaint", "Me.Refresh", 0},
  };
  for (const auto& c : cases) {
    Translation t;
    CheckModule(c, t);
  }
}

TEST(GlobalSubstitutions, RequestsSetTheirTemplateFlags) {
  Translation t;
  t.s.Options.IsMdi = false;
  auto out = t.Run({"x = MyDCount(1) + DLookup(\"a\", \"b\")",
                    "x = SysCmd(acSysCmdInitMeter, \"Working\", 10)"});
  EXPECT_EQ(out[1], "x = SysCmdVB(1, \"Working\", 10)");
  std::vector<int> set;
  for (int i = 0; i < 21; ++i)
    if (t.s.ListControlsUsed[static_cast<size_t>(i)]) set.push_back(i);
  EXPECT_EQ(set, (std::vector<int>{7, 10, 20}));

  Translation mdi;
  mdi.s.Options.IsMdi = true;
  mdi.Run({"SysCmd acSysCmdSetStatus, \"x\""});
  EXPECT_FALSE(mdi.s.ListControlsUsed[6]);  // a statement call has no "SysCmd("
  mdi.Run({"v = SysCmd(SYSCMD_SETSTATUS, \"x\")"});
  EXPECT_TRUE(mdi.s.ListControlsUsed[6]);
}

TEST(FormInjection, NewProceduresOnlyForWhatTheHintsAskFor) {
  {
    Translation t;
    EXPECT_TRUE(RunForm(t, {}).empty());
  }
  {
    Translation t;
    t.s.Form().InitCalls[2] = true;
    EXPECT_EQ(RunForm(t, {}), (std::vector<std::string>{
                                  "Private Sub Form_Activate()", "Dim vReturnValue as variant",
                                  "vReturnValue=InitialDataCtlCaptions()", "End Sub"}));
  }
  {
    Translation t;
    t.s.Form().InitCalls[1] = true;
    t.s.Form().InitCalls[2] = true;
    EXPECT_EQ(RunForm(t, {}), (std::vector<std::string>{
                                  "Private Sub Form_Load()", "Call InitializeComboBoxes()",
                                  "Call InitialDataCtlCaptions()", "End Sub",
                                  "Private Sub Form_Activate()", "Dim vReturnValue as variant",
                                  "vReturnValue=InitialDataCtlCaptions()", "End Sub"}));
    EXPECT_EQ(t.Stats().SubCount, 2);
  }
}

TEST(FormInjection, BehindTheHeaderOnly) {
  // A comment naming Form_Load, or a longer name, takes no injected code:
  // it would stand outside any procedure or in another one.
  Translation t;
  t.s.Form().InitCalls[0] = true;
  t.s.Form().FormPictureStretched = true;
  t.s.Form().FormLoadCode = "\r\ndatOrders.Refresh";
  auto code = RunForm(t, {"' Sub Form_Load is below", "Private Sub Form_LoadData()", "End Sub",
                          "Private Sub Form_Load()", "End Sub"});
  EXPECT_EQ(code, (std::vector<std::string>{
                      "' Sub Form_Load is below", "Private Sub Form_LoadData()", "End Sub",
                      "Private Sub Form_Load()", "Dim vReturnValue as variant",
                      "vReturnValue=InitializeListBoxes()",
                      "Me.PaintPicture Me.Picture, 0, 0, Me.Width, Me.Height", "",
                      "datOrders.Refresh", "End Sub"}));
  auto rows = t.Rows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].ReasonID, 16);
  EXPECT_EQ(rows[0].CodeLine, "' Sub Form_Load is below");
  EXPECT_EQ(rows[1].CodeLine, "Private Sub Form_LoadData()");
}

TEST(RecordsetPass, FieldsOfRecordsetVariablesTakeTheBang) {
  Translation t;
  auto out =
      t.Run({"Dim a As Recordset, b As Recordset", "Public Sub P()", "Dim rs As Recordset",
             "rs.OrderID = a.Total", "rs.MoveFirst", "x = rs.Fields(\"x\")", "y = rs.orderid.Value",
             "b.Edit", "End Sub", "Public Sub Q()", "rs.Total = 1", "End Sub"});
  EXPECT_EQ(out[3], "rs!OrderID = a!Total");
  EXPECT_EQ(out[4], "rs.MoveFirst");
  EXPECT_EQ(out[5], "x = rs.Fields(\"x\")");
  EXPECT_EQ(out[6], "y = rs!orderid.Value");
  EXPECT_EQ(out[7], "b.Edit");
  EXPECT_EQ(out[10], "rs.Total = 1");  // the local variable ended with its procedure
}

TEST(RecordsetPass, OptionGroupsBecomeButtonArrays) {
  struct GroupCase {
    const char* input;
    const char* output;
  };
  const GroupCase cases[] = {
      {"grpX = 2", "grpX(2).Value = True"},
      {"grpX = 2 ' two", "grpX(2 ).Value = True' two"},
      {"Me.grpX = 2", "Me.grpX(2).Value = True"},
      {"Me.grpX = Not Me.chkNew", "Me.grpX(Not Me.chkNew).Value = True"},
      {"If grpX = 2 Then", "If grpX(2) Then"},
      {"x = grpX", "x = grpX(OptionGroupValue(grpX)).Index"},
      {"x = Me.grpX", "x = Me.grpX(OptionGroupValue(Me.grpX)).Index"},
      {"grpX.Visible = False", "grpgrpX.Visible = False"},
      {"x = grpXY", "x = grpXY"},
  };
  std::vector<std::string> designer = {"VERSION 5.00",
                                       "Begin VB.Form Orders",
                                       "Begin VB.OptionButton grpX",
                                       "Index = 1",
                                       "End",
                                       "Begin VB.OptionButton grpX",
                                       "Index = 2",
                                       "End",
                                       "End",
                                       "Attribute VB_Name = \"Orders\""};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.input);
    Translation t;
    auto code = RunForm(t, {"Private Sub grpX_AfterUpdate()", c.input, "End Sub"}, designer);
    ASSERT_EQ(code.size(), 3u);
    EXPECT_EQ(code[0], "Private Sub grpX_AfterUpdate(Index as Integer)");
    EXPECT_EQ(code[1], c.output);
  }
}

TEST(RecordsetPass, AStandAloneOptionButtonIsNoGroup) {
  // A toggle of its own is an option button without Index: its name and
  // events stay as they are, the group beside it is rewritten.
  const std::vector<std::string> designer = {"VERSION 5.00",
                                             "Begin VB.Form Orders",
                                             "   Begin VB.OptionButton tglAlone",
                                             "      Style = 1",
                                             "   End",
                                             "   Begin VB.Frame grpgrpX",
                                             "      Begin VB.OptionButton grpX",
                                             "         Height = 210",
                                             "         Index = 1",
                                             "      End",
                                             "   End",
                                             "End",
                                             "Attribute VB_Name = \"Orders\""};
  Translation t;
  auto code = RunForm(
      t,
      {"Private Sub tglAlone_Click()", "If Me.grpX = 2 Then Me.tglAlone.Value = True", "End Sub"},
      designer);
  ASSERT_EQ(code.size(), 3u);
  EXPECT_EQ(code[0], "Private Sub tglAlone_Click()");
  EXPECT_EQ(code[1], "If Me.grpX(2) Then Me.tglAlone.Value = True");
}

TEST(PipelineStages, AModuleUsingEveryFamilyKeepsVb6Structure) {
  Translation t;
  std::vector<std::string> input = {
      "Attribute VB_Name = \"basAll\"",
      "Option Compare Database",
      "Dim mrs As DAO.Recordset",
      "Public Function Totals(ByVal lngID As Long) As Currency",
      "    Dim db As Database, rs As Recordset",
      "    Set db = CurrentDb()",
      "    Set rs = db.OpenRecordset(\"SELECT * FROM tblOrders\", DB_OPEN_DYNASET)",
      "    Do While Not rs.EOF",
      "        Totals = Totals + rs.Amount",
      "        rs.MoveNext",
      "    Loop",
      "    If DCount(\"*\", \"tblOrders\") > 0 Then x = SysCmd(acSysCmdSetStatus, \"x\")",
      "    Forms!frmOrders!txtTotal = Totals",
      "    DoCmd.OpenForm \"frmOrders\"",
      "End Function",
  };
  auto out = t.Run(input, kModeModule, "basAll");
  auto problems = CheckVb6Structure("basAll.bas", t.output_bytes);
  EXPECT_TRUE(problems.empty()) << problems.front();
  EXPECT_EQ(out[4], "dim  rs As Recordset");
  EXPECT_EQ(out[8], "Totals = Totals + rs!Amount");
  EXPECT_EQ(out[12], "frmOrders!txtTotal = Totals");
  EXPECT_TRUE(t.s.ListControlsUsed[10]);
  EXPECT_TRUE(t.s.ListControlsUsed[6]);
}

}  // namespace
}  // namespace morvane
