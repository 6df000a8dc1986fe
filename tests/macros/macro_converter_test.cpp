// Macros through the converter: saved macro texts in a source tree, the
// mapping tables seeded from data/, and the text of MacroCode.
#include "macros/macro_converter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "macros/macro_tables.h"
#include "platform/catalog.h"
#include "platform/output_directory.h"
#include "platform/source_tree.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

// One action row of a macro text. Arguments are written as the export
// writes them (backslash escapes included).
std::string Row(const std::string& action, const std::vector<std::string>& args = {},
                const std::string& condition = "") {
  std::string t = "Begin\n";
  if (!condition.empty()) t += "    Condition =\"" + condition + "\"\n";
  t += "    Action =\"" + action + "\"\n";
  for (const auto& a : args) t += "    Argument =\"" + a + "\"\n";
  return t + "End\n";
}
std::string Comment(const std::string& text) {
  return "Begin\n    Comment =\"" + text + "\"\nEnd\n";
}
std::string Name(const std::string& name) {
  return "Begin\n    MacroName =\"" + name + "\"\nEnd\n";
}
const std::string kSeparator = "Begin\nEnd\n";

class MacroConversion : public ::testing::Test {
 protected:
  // Each call starts a fresh source tree and output directory.
  // `forms` are whole form texts by name.
  void Open(const std::map<std::string, std::string>& macros,
            const std::map<std::string, std::string>& forms = {}) {
    root_ = dir_ / ("run" + std::to_string(runs_++));
    fs::create_directories(root_ / "src" / "macros");
    fs::create_directories(root_ / "src" / "forms");
    for (const auto& [name, body] : macros)
      WriteFile(root_ / "src" / "macros" / (name + ".txt"),
                test::Crlf("Version =196611\nColumnsShown =0\n" + body));
    for (const auto& [name, text] : forms)
      WriteFile(root_ / "src" / "forms" / (name + ".txt"), test::Crlf(text));
    std::string err;
    tree_ = SourceTree::Open(root_ / "src", "", &err);
    ASSERT_TRUE(tree_) << err;
    catalog_ = tree_->BuildCatalog();
    fs::create_directories(root_ / "out");
    db_ = SupportDatabase::Open(root_ / "out" / "morvane.db", MORVANE_DATA_DIR, &err);
    ASSERT_TRUE(db_) << err;
    s_.OptionWordLength = 11;
    s_.SourceDb = catalog_.get();
    s_.AccessApp = tree_.get();
    s_.SupportDb = db_.get();
    s_.OutputPath = (root_ / "out").string() + "/";
    output_ = std::make_unique<OutputDirectory>(root_ / "out");
    s_.Output = output_.get();
  }
  std::string Convert() { return MacroConverterImpl().ConvertMacros(s_).Bytes(); }
  // The statements of a one-action macro "M": the body between the error
  // frame's head and its exit label.
  std::string Statement(const std::string& row) {
    Open({{"M", row}});
    const std::string text = Convert();
    const std::string head = "On Error GoTo M_Err\r\n";
    size_t b = text.find(head);
    if (b == std::string::npos) return "<no procedure>";
    b += head.size();
    if (text.compare(b, 24, "With CodeContextObject\r\n") == 0) b += 24;
    b += 2;  // the line break between head and body
    size_t e = text.find("\r\n\r\nM_Exit:", b);
    std::string body = text.substr(b, e - b);
    if (body.ends_with("End With")) body.resize(body.size() - 8);
    while (body.ends_with("\r\n")) body.resize(body.size() - 2);
    return body;
  }
  std::vector<ReportOutputRow> Rows() { return db_->ReportOutput(); }

  TempDir dir_;
  fs::path root_;
  int runs_ = 0;
  std::unique_ptr<SourceTree> tree_;
  std::unique_ptr<MemoryCatalog> catalog_;
  std::unique_ptr<SupportDatabase> db_;
  std::unique_ptr<OutputDirectory> output_;
  ConversionSession s_;
};

// Enumerated arguments are looked up by Val of the stored text.
TEST(MacroVal, ReadsTheLeadingNumberAsVisualBasicDoes) {
  const std::pair<const char*, double> cases[] = {
      {"2", 2},
      {" 1615 198th Street", 1615198},
      {"\t-3.5e2x", -350},
      {"- 4", -4},
      {"1d2", 100},
      {"2e", 2},
      {".5", 0.5},
      {"12345678901234567890", 12345678901234567890.0},
      {"99999999999999999999999", 1e23},
      {"&HFFFF", -1},
      {"&H10000", 65536},
      {"&HFFFFFFFF", -1},
      {"&o17", 15},
      {"&H1FFFFFFFF", 0},
      {"abc", 0},
      {"", 0},
      {"-", 0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
  EXPECT_TRUE(std::isinf(Val("1" + std::string(400, '0'))));
  EXPECT_EQ(Val("1e-999"), 0);
}

// The error frame of a macro's function, its header comment and a
// condition's With block are in the golden MacroCode.bas.
TEST_F(MacroConversion, CommentRowsStayAndGroupsGiveAFunctionPerName) {
  EXPECT_EQ(Statement(Comment("Close the forms") + Row("Close", {"2", "frmOrders", "0"})),
            "'Close the forms\r\nDoCmd.Close acForm, \"frmOrders\"");
  Open({{"Nav", Name("Go.Back") + Row("Beep") + kSeparator + Name("Go") +
                    Comment("only a comment") + kSeparator + Name("Go") + Row("Beep")}});
  const std::string text = Convert();
  for (const char* head : {"Function Nav_Go_Back ()\r\n",
                           "Function Nav_Go ()\r\nOn Error GoTo Nav_Go_Err\r\n\r\n"
                           "'only a comment\r\n\r\n\r\nNav_Go_Exit:",
                           "Function Nav_Go1 ()\r\n"})
    EXPECT_NE(text.find(head), std::string::npos) << head << text;
}

TEST_F(MacroConversion, ContinuedConditionSharesTheBlockBefore) {
  EXPECT_EQ(Statement(Row("Beep", {}, "[Total]>5") + Comment("then") +
                      Row("MsgBox", {"Big", "0", "3", ""}, "...") + Row("Beep")),
            "If (.Total > 5) Then\r\nBeep\r\n'then\r\nMsgBox \"Big\", vbExclamation, \"\"\r\n"
            "End If\r\nBeep");
  // Without a conditional action before, "..." runs the action as it is.
  EXPECT_EQ(Statement(Row("Beep", {}, "...")), "Beep");
}

TEST_F(MacroConversion, UnknownActionsAndEmptyTemplatesWriteNoCodeButARow) {
  EXPECT_EQ(
      Statement(Row("Beep") + Row("PlaySound", {"ding.wav"}, "[x]") + Row("SetWarnings", {"0"})),
      "Beep");
  auto rows = Rows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].ModuleName, "MacroCode");
  EXPECT_EQ(rows[0].CodeLine, "If .x : PlaySound ding.wav");
  EXPECT_EQ(rows[1].CodeLine, "SetWarnings 0");
  EXPECT_EQ(rows[1].Routine, "M");
}

TEST_F(MacroConversion, MissingArgumentRowKeepsTheValueAndTheRestConverts) {
  Open({{"M", Row("OpenForm", {"frmOrders", "0", "", "", "-1", "3"}) + Row("Beep")}});
  ASSERT_TRUE(
      db_->Execute("DELETE FROM mtm_tblActionArgs WHERE ActionID = "
                   "(SELECT ActionID FROM mtm_tblActions WHERE Action = 'OpenForm') "
                   "AND ArgNumber = 1"));
  const std::string text = Convert();
  EXPECT_NE(text.find("DoCmd.OpenForm \"frmOrders\", 0, \"\", \"\", acFormPropertySettings, "
                      "acDialog\r\nBeep\r\n"),
            std::string::npos)
      << text;
}

TEST_F(MacroConversion, RunMacroSetValueAndExpressionArguments) {
  EXPECT_EQ(Statement(Row("RunMacro", {"Nav.Go", "3", "[Count]<10"})),
            "DoCmd.RunMacro \"Nav.Go\", 3, \".Count < 10 \"");
  EXPECT_EQ(Statement(Row("RunMacro", {"Nav.Go", "", ""})), "DoCmd.RunMacro \"Nav.Go\", , \"\"");
  EXPECT_EQ(Statement(Row("SetValue", {"[Total]", "[Qty]*[Price]"})), ".Total  = .Qty * .Price");
  EXPECT_EQ(Statement(Row("MsgBox", {"=\\\"Total: \\\" & [Total]", "0", "0", "Orders"})),
            "MsgBox \"Total: \" & .Total , vbOKOnly, \"Orders\"");
  EXPECT_EQ(
      Statement(Row("OpenForm", {"frmOrders", "0", "", "[ID]=[Forms]![frmList]![ID]", "-1", "3"})),
      "DoCmd.OpenForm \"frmOrders\", acNormal, \"\", \"[ID]=[Forms]![frmList]![ID]\", "
      "acFormPropertySettings, acDialog");
  EXPECT_EQ(Statement(Row("RunCode", {"Recalc(1)"})), "Call Recalc(1)");
  // An enumeration value without a row gives an empty argument.
  EXPECT_EQ(Statement(Row("Quit", {"7"})), "DoCmd.Quit");
  EXPECT_EQ(Statement(Row("Close", {"-1", "", "0"})), "DoCmd.Close , \"\"");
  EXPECT_EQ(Statement(Row("Close", {"98765432109876543210", "frmOrders", "0"})),
            "DoCmd.Close , \"frmOrders\"");
}

TEST_F(MacroConversion, StartupFormIsNotedAndNothingElseIsLeftBehind) {
  Open({{"AutoExec", Row("Beep")}});
  catalog_->SetProperty("StartupForm", "frmMain");
  Convert();
  EXPECT_EQ(ReadFile(root_ / "out" / "_Startup.txt"), "frmMain\r\n");
  size_t files = 0;
  for (const auto& e : fs::directory_iterator(root_ / "out")) {
    (void)e;
    ++files;
  }
  EXPECT_EQ(files, 2u);  // _Startup.txt, morvane.db
}

TEST_F(MacroConversion, NeedsContextLooksAtEveryFinishedProcedureOfTheGroup) {
  Open(
      {{"Nav", Name("A") + Row("SetValue", {"[x]", "1"}) + kSeparator + Name("B") + Row("Beep") +
                   kSeparator},
       {"Tail", Name("A") + Row("Beep") + kSeparator + Name("B") + Row("SetValue", {"[x]", "1"})}});
  std::string name = "Nav.B";
  EXPECT_TRUE(MacroNeedsContext(s_, name));
  EXPECT_EQ(name, "Nav_B");
  // The last procedure of a text is not finished, so it does not count.
  name = "Tail.B";
  EXPECT_FALSE(MacroNeedsContext(s_, name));
  for (const auto& e : fs::directory_iterator(root_ / "out"))
    EXPECT_EQ(e.path().filename(), "morvane.db");
}

// A form with a macro in its Load event and one in its button's Click.
constexpr const char* kEmbeddingForm = R"(Version =20
VersionRequired =20
Begin Form
    OnLoadEmMacro = Begin
        Version =196611
        ColumnsShown =0
        Begin
            Action ="Beep"
        End
    End
    Begin
        Begin Section
            Height =1000
            Name ="Detail"
            Begin
                Begin CommandButton
                    Name ="cmdGo"
                    OnClickEmMacro = Begin
                        Version =196611
                        ColumnsShown =0
                        Begin
                            Action ="SetValue"
                            Argument ="[txtA]"
                            Argument ="1"
                        End
                    End
                End
            End
        End
    End
End
)";

TEST_F(MacroConversion, MacrosEmbeddedInFormEventsBecomeProceduresOfTheirOwn) {
  Open({{"M", Row("Beep")}}, {{"frmGo", kEmbeddingForm}});
  const std::string text = Convert();
  EXPECT_NE(text.find("Function frmGo_cmdGo_OnClick ()\r\nOn Error GoTo frmGo_cmdGo_OnClick_Err\r\n"
                      "With CodeContextObject\r\n\r\n.txtA  = 1\r\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("Function frmGo_OnLoad ()\r\nOn Error GoTo frmGo_OnLoad_Err\r\n\r\nBeep\r\n"),
            std::string::npos)
      << text;
  // The event writers learn the procedure's name, and that the button's
  // macro works on the form it is called from.
  std::string name = "frmGo.cmdGo.OnClick";
  EXPECT_TRUE(MacroNeedsContext(s_, name));
  EXPECT_EQ(name, "frmGo_cmdGo_OnClick");
  name = "frmGo.OnLoad";
  EXPECT_FALSE(MacroNeedsContext(s_, name));
  EXPECT_EQ(name, "frmGo_OnLoad");
}

TEST_F(MacroConversion, EmbeddedMacrosAloneStillGiveTheModuleAndNoMacrosGiveNone) {
  const std::string plainForm =
      "Version =20\nBegin Form\nBegin\nBegin Section\nHeight =300\nName =\"Detail\"\n"
      "End\nEnd\nEnd\n";
  Open({}, {{"frmPlain", plainForm}});
  Convert();
  EXPECT_FALSE(fs::exists(root_ / "out" / "macro.txt"));

  Open({}, {{"frmGo", kEmbeddingForm}});
  EXPECT_NE(Convert().find("Function frmGo_cmdGo_OnClick ()"), std::string::npos);
}

// One action per row of the mapping data, with the statement each gives.
struct ActionCase {
  const char* action;
  std::vector<std::string> args;
  const char* statement;
};

const ActionCase kActionCases[] = {
    {"AddMenu", {"Orders", "mcrMenu", "tip"}, ""},
    {"ApplyFilter", {"", "[Country]='UK'"}, "DoCmd.ApplyFilter \"\", \"[Country]='UK'\""},
    {"Beep", {}, "Beep"},
    {"CancelEvent", {}, ""},
    {"Close", {"2", "frmOrders", "0"}, "DoCmd.Close acForm, \"frmOrders\""},
    {"CopyObject",
     {"", "Copy of T", "0", "tblOrders"},
     "DoCmd.CopyObject \"\", \"Copy of T\", acTable, \"tblOrders\""},
    {"DeleteObject", {"1", "qryOld"}, "DoCmd.DeleteObject acQuery, \"qryOld\""},
    {"Echo", {"0", "Working"}, ""},
    {"FindNext", {}, "DoCmd.FindNext"},
    {"FindRecord",
     {"Smith", "1", "0", "2", "0", "-1", "-1"},
     "DoCmd.FindRecord \"Smith\", acEntire, 0, acSearchAll, 0, -1, -1"},
    {"GoToControl", {"txtName"}, "DoCmd.GoToControl \"txtName\""},
    {"GoToPage", {"2", "", ""}, "DoCmd.GoToPage 2"},
    {"GoToRecord",
     {"2", "frmOrders", "5", ""},
     "DoCmd.GoToRecord acForm, \"frmOrders\", acNewRec,"},
    {"Hourglass", {"-1"}, "Screen.MousePointer = IIf(-1, vbHourglass, vbDefault)"},
    {"Maximize", {}, "DoCmd.Maximize"},
    {"Minimize", {}, "DoCmd.Minimize"},
    {"MoveSize", {"0", "4320", "", ""}, "DoCmd.MoveSize 0, 4320, ,"},
    {"MsgBox",
     {"Saved", "-1", "4", "Orders"},
     "Beep\r\nMsgBox \"Saved\", vbInformation, \"Orders\""},
    {"OpenDataAccessPage",
     {"pgeOrders", "0"},
     "DoCmd.OpenDataAccessPage \"pgeOrders\", acDataAccessPageBrowse"},
    {"OpenDiagram", {"Diagram1"}, "DoCmd.OpenDiagram \"Diagram1\""},
    {"OpenForm",
     {"frmOrders", "2", "flt", "", "2", "1"},
     "DoCmd.OpenForm \"frmOrders\", acPreview, \"flt\", \"\", acFormReadOnly, acHidden"},
    {"OpenFunction",
     {"fnTotals", "0", "2"},
     "DoCmd.OpenFunction \"fnTotals\", acViewNormal, acReadOnly"},
    {"OpenModule", {"basOrders", "Main"}, "DoCmd.OpenModule \"basOrders\", \"Main\""},
    {"OpenQuery", {"qryList", "2", "2"}, "DoCmd.OpenQuery \"qryList\", acViewPreview, acReadOnly"},
    {"OpenReport",
     {"rptOrders", "2", "", "[ID]=3"},
     "DoCmd.OpenReport \"rptOrders\", acViewPreview, \"\", \"[ID]=3\""},
    {"OpenStoredProcedure",
     {"spOrders", "0", "1"},
     "DoCmd.OpenStoredProcedure \"spOrders\", acViewNormal, acEdit"},
    {"OpenTable", {"tblOrders", "0", "0"}, "DoCmd.OpenTable \"tblOrders\", acViewNormal, acAdd"},
    {"OpenView", {"vwOrders", "1", "1"}, "DoCmd.OpenView \"vwOrders\", acViewDesign, acEdit"},
    {"OutputTo",
     {"3", "rptOrders", "Rich Text Format (*.rtf)", "C:\\\\out.rtf", "0", ""},
     "DoCmd.OutputTo acReport, \"rptOrders\", \"Rich Text Format (*.rtf)\", \"C:\\out.rtf\", 0, "
     "\"\""},
    {"PrintOut", {"0", "", "", "0", "1", "-1"}, "DoCmd.PrintOut acPrintAll, , , acHigh, 1, -1"},
    {"Quit", {"1"}, "DoCmd.Quit"},
    {"Rename", {"tblNew", "0", "tblOld"}, "DoCmd.Rename \"tblNew\", acTable, \"tblOld\""},
    {"RepaintObject", {"-1", ""}, "DoCmd.RepaintObject"},
    {"Requery", {"lstOrders"}, "DoCmd.Requery \"lstOrders\""},
    {"Restore", {}, "DoCmd.Restore"},
    {"RunApp", {"notepad.exe"}, "Shell \"notepad.exe\", vbNormalFocus"},
    {"RunCode", {"RecalcTotals()"}, "RecalcTotals"},
    {"RunCommand", {"97"}, "DoCmd.RunCommand acCmdSaveRecord"},
    {"RunMacro", {"Nav.Next", "3", ""}, "DoCmd.RunMacro \"Nav.Next\", 3, \"\""},
    {"RunSQL",
     {"DELETE FROM tblTemp WHERE Name=\\\"x\\\"", "-1"},
     "DoCmd.RunSQL \"DELETE FROM tblTemp WHERE Name=\"\"x\"\"\""},
    {"Save", {"2", "frmOrders"}, ""},
    {"SelectObject", {"2", "frmOrders", "0"}, "DoCmd.SelectObject acForm, \"frmOrders\", 0"},
    {"SendKeys", {"{TAB}", "0"}, "SendKeys \"{TAB}\", 0"},
    {"SendObject",
     {"3", "rptOrders", "Snapshot Format", "a@b.c", "", "", "Orders", "See attached", "-1", ""},
     "DoCmd.SendObject acReport, \"rptOrders\", \"Snapshot Format\", \"a@b.c\", \"\", \"\", "
     "\"Orders\", \"See attached\", -1"},
    {"SetMenuItem", {"0", "1", "", "2"}, ""},
    {"SetValue", {"[Total]", "0"}, ".Total  = 0"},
    {"SetWarnings", {"0"}, ""},
    {"ShowAllRecords", {}, "DoCmd.ShowAllRecords"},
    {"ShowToolbar", {"Form View", "2"}, ""},
    {"StopAllMacros", {}, "Exit Function"},
    {"StopMacro", {}, "Exit Function"},
    {"TransferDatabase",
     {"0", "Microsoft Access", "C:\\\\db.mdb", "0", "tblA", "tblB", "0", "0"},
     "DoCmd.TransferDatabase acImport, \"Microsoft Access\", \"C:\\db.mdb\", acTable, \"tblA\", "
     "\"tblB\", 0, 0"},
    {"TransferSpreadsheet",
     {"1", "8", "tblOrders", "C:\\\\o.xls", "-1", ""},
     "DoCmd.TransferSpreadsheet acExport, acSpreadsheetTypeExcel9, \"tblOrders\", \"C:\\o.xls\", "
     "-1, \"\""},
    {"TransferText",
     {"2", "", "tblOrders", "C:\\\\o.csv", "-1", "", "1252"},
     "DoCmd.TransferText acExportDelim, \"\", \"tblOrders\", \"C:\\o.csv\", -1, \"\", 1252"},
};

TEST_F(MacroConversion, EveryActionOfTheMappingDataGivesItsStatement) {
  Open({{"Z", Row("Beep")}});
  MacroTables tables(db_.get());
  ASSERT_EQ(tables.Actions().size(), std::size(kActionCases));
  for (const auto& action : tables.Actions()) {
    const ActionCase* c = nullptr;
    for (const auto& k : kActionCases)
      if (action.Action == k.action) c = &k;
    ASSERT_NE(c, nullptr) << action.Action << " has no case";
    ASSERT_EQ(c->args.size(), static_cast<size_t>(action.NumArgs)) << action.Action;
    EXPECT_EQ(Statement(Row(c->action, c->args)), c->statement) << action.Action;
  }
}

TEST_F(MacroConversion, MappingDataIsComplete) {
  Open({{"Z", Row("Beep")}});
  MacroTables tables(db_.get());
  std::set<long> ids;
  for (const auto& a : tables.Actions()) {
    EXPECT_TRUE(ids.insert(a.ActionID).second) << a.Action;
    EXPECT_LE(a.NumArgs, 10) << a.Action;
    for (int i = 0; i < a.NumArgs; ++i) {
      const MacroActionArg* arg = tables.FindArg(a.ActionID, i);
      ASSERT_NE(arg, nullptr) << a.Action << " argument " << i;
      if (arg->LookupBase > 0) {
        // Every enumeration has the text of its first value (0, or 1 for commands).
        EXPECT_TRUE(tables.FindLookup(arg->LookupBase) || tables.FindLookup(arg->LookupBase + 1))
            << a.Action << " " << i;
      }
    }
    EXPECT_EQ(tables.FindArg(a.ActionID, a.NumArgs), nullptr) << a.Action;
    // A template names no argument beyond the action's count.
    if (a.MapsTo) {
      for (int i = a.NumArgs + 1; i <= 10; ++i)
        EXPECT_EQ(a.MapsTo->find("|" + std::to_string(i)), std::string::npos) << a.Action;
    }
  }
  EXPECT_EQ(tables.FindAction("MsgBox")->ActionID, 22);
  EXPECT_EQ(tables.FindAction("RunCode")->ActionID, 33);
  EXPECT_EQ(tables.FindAction("StopMacro")->ActionID, 45);
}

}  // namespace
}  // namespace morvane
