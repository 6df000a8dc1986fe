// End-to-end runs of the morvane binary over source trees in temporary
// directories.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "platform/support_db.h"
#include "session/naming.h"
#include "session/vb6_check.h"
#include "support/designer_checker.h"
#include "support/fixtures.h"
#include "support/run_command.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::Crlf;
using test::ReadFile;
using test::RunMorvane;
using test::Snapshot;
using test::TempDir;
using test::WriteFile;

const fs::path kSample = fs::path(MORVANE_SOURCE_DIR) / "examples" / "Orders";

std::vector<std::string> Lines(const fs::path& file) {
  std::vector<std::string> lines;
  std::string text = ReadFile(file);
  size_t start = 0;
  for (size_t pos; (pos = text.find("\r\n", start)) != std::string::npos; start = pos + 2)
    lines.push_back(text.substr(start, pos - start));
  if (start < text.size()) lines.push_back(text.substr(start));
  return lines;
}

TEST(Convert, TheSampleBecomesAProjectAndItsSourceStaysAsItWas) {
  TempDir dir;
  fs::copy(kSample, dir / "Orders", fs::copy_options::recursive);
  const auto before = Snapshot((dir / "Orders").string());

  auto r =
      RunMorvane({"convert", (dir / "Orders").string(), "-o", (dir / "out").string(), "--yes"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(Snapshot((dir / "Orders").string()), before);

  for (auto f : {"Orders.vbp", "basOrders.bas", "basStatistics.bas", "clsCustomer.bas",
                 "Date Helpers.bas", "MorvaneConversionCode.bas", "MacroCode.bas", "MDIParent.frm",
                 "frmOrders.frm", "frmCustomers.frm", "morvane.db", "analysis/index.html"})
    EXPECT_TRUE(fs::exists(dir / "out" / f)) << f;
  // Extraction files of the translator do not stay.
  for (const auto& e : fs::directory_iterator(dir / "out"))
    EXPECT_NE(e.path().extension(), ".txt") << e.path();

  const std::string vbp = ReadFile(dir / "out" / "Orders.vbp");
  const auto order = {"Object={67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0; MSADODC.OCX",
                      "Object={0BA686C6-F7D3-101A-993E-0000C0EF6F5E}#1.0#0; THREED32.OCX",
                      "Object={8E27C92E-1264-101C-8A2F-040224009C02}#7.0#0; MSCAL.OCX",
                      "Module=MacroCode; MacroCode.bas",
                      "Form=frmCustomers.frm",
                      "Form=frmOrders.frm",
                      "Designer=rptCustomerDirectory.dsr",
                      "Designer=rptOrdersByDate.dsr",
                      "Designer=rptEnvironment.dsr",
                      "Module=basOrders; basOrders.bas",
                      "Module=basStatistics; basStatistics.bas",
                      "Class=clsCustomer; clsCustomer.bas",
                      "Module=Date_Helpers; Date Helpers.bas",
                      "Module=MorvaneConversionCode; MorvaneConversionCode.bas",
                      "Form=MDIParent.frm"};
  size_t last = 0;
  for (const char* line : order) {
    size_t at = vbp.find(std::string(line) + "\r\n");
    ASSERT_NE(at, std::string::npos) << line << "\n" << vbp;
    EXPECT_GT(at, last) << line;
    last = at;
  }
  EXPECT_NE(vbp.find("Reference=*\\G{00000205-0000-0010-8000-00AA006D2EA4}#2.5#0#"),
            std::string::npos);

  // The project's check finds nothing Visual Basic 6 would not load.
  auto check = RunMorvane({"check", (dir / "out").string()});
  EXPECT_EQ(check.status, 0);
  EXPECT_EQ(check.out, "0 problem(s), 0 warning(s)\n");
  // The reports bind to commands of the data environment.
  const auto designers = test::CheckReportDesigners(dir / "out");
  EXPECT_TRUE(designers.empty()) << designers.front();

  // Forms: the data control, the controls of every section and the event
  // code, with the macro of a button called in the form's context.
  const std::string customers = ReadFile(dir / "out" / "frmCustomers.frm");
  for (const char* wanted :
       {"   Begin MSAdodcLib.Adodc datfrmCustomers\r\n",
        "      RecordSource = \"tblCustomers\"\r\n", "   Begin VB.Frame grpgrpTerms\r\n",
        "      Begin VB.OptionButton grpTerms\r\n", "         Index = 2\r\n",
        "   Begin Threed.SSCommand cmdOrders\r\n",
        "   Begin VB.Timer Timer1\r\n      Left = 0\r\n      Top = 0\r\n      Interval = 60000\r\n",
        "   Begin VB.Frame Section\r\n", "      Begin VB.Line linUnderTitle\r\n",
        "      Begin VB.Label lblPrinted\r\n", "   Begin MSACAL.Calendar calNextVisit\r\n",
        "Private Sub Timer1_Timer()\r\n    Call Form_Timer\r\nEnd Sub",
        "Private Sub imgLogo_Click()\r\n    Call ShowOverview\r\nEnd Sub",
        "    FirstOrder.Value = Date\r\n",
        "    txtCustomers.text = datfrmCustomers.Recordset.RecordCount\r\n",
        "    grpTerms(1).Value = True\r\n",
        "            If Form_BeforeUpdate Then\r\n                adStatus = adStatusCancel\r\n"})
    EXPECT_NE(customers.find(wanted), std::string::npos) << wanted;
  const std::string orders = ReadFile(dir / "out" / "frmOrders.frm");
  EXPECT_NE(orders.find("Private Sub cmdArchive_Click()\r\n    Set CodeContextObject = Me\r\n"
                        "    Call mcrOrders_Archive\r\n    Set CodeContextObject = Nothing\r\n"),
            std::string::npos);
  EXPECT_NE(orders.find("Unload frmOrders\t'MORVANE DoCmd.Close acForm, Me.Name"),
            std::string::npos);
  // Its lists and the Form_Load call that fills them.
  for (const char* wanted :
       {"   Begin MSForms.ComboBox cboStatus\r\n", "   Begin MSComctlLib.ListView lstRecent\r\n",
        "    Call AddItemsLV(\"tblCustomers\", me!lstCustomers, \"Jet\")\r\n",
        "    vReturnValue=InitializeComboBoxes()\r\n"})
    EXPECT_NE(orders.find(wanted), std::string::npos) << wanted;

  // Macros: one function per macro of the group, AutoExec called at start.
  const std::string macros = ReadFile(dir / "out" / "MacroCode.bas");
  for (const char* wanted :
       {"Function AutoExec ()", "Function mcrOrders_Refresh ()", "        If (.txtCount > 0) Then",
        "    For iRunMacroCount = 1 to  2\r\n        Call mcrOrders_Refresh\r\n",
        "    db.Execute \"qryAppendArchive\""})
    EXPECT_NE(macros.find(wanted), std::string::npos) << wanted;

  // The conversion code holds the run-time support the modules call, and
  // nothing else.
  const std::string code = ReadFile(dir / "out" / "MorvaneConversionCode.bas");
  for (const char* wanted :
       {"Public Function SysCmdVB(", "Public Function DSum(", "Public Function DCount(",
        "Public Function DLookup(", "Function AddItemsLV(", "Function AddItemsMSF("})
    EXPECT_NE(code.find(wanted), std::string::npos) << wanted;
  EXPECT_NE(code.find("    Call Autoexec\r\nEnd Sub"), std::string::npos);
  for (const char* unwanted : {"Function AddItemsSS(", "Public Function DAvg(",
                               "Public Function OptionGroupValue(", "Public Function DMax("})
    EXPECT_EQ(code.find(unwanted), std::string::npos) << unwanted;
  const std::string statistics = ReadFile(dir / "out" / "basStatistics.bas");
  EXPECT_NE(statistics.find("curTotal = curTotal + rs!Amount"), std::string::npos);
  EXPECT_NE(statistics.find("frmOrders!txtCount = DCount("), std::string::npos);
  EXPECT_NE(statistics.find("varResult = SysCmdVB(4, "), std::string::npos);

  EXPECT_NE(r.out.find("Converted 11 object(s): 5 form(s), 2 report(s)"), std::string::npos)
      << r.out;
  // The order book's tab holds a datasheet and a repeated continuous form,
  // whose user control is the control project's.
  const std::string book = ReadFile(dir / "out" / "frmOrderBook.frm");
  for (const char* wanted :
       {"Begin TabDlg.SSTab tabBook", "Begin MSDataGridLib.DataGrid sfrmOrderList",
        "Name = \"Orders_CF.cfsfrmOrderHistory\""})
    EXPECT_NE(book.find(wanted), std::string::npos) << wanted;
  EXPECT_NE(ReadFile(dir / "out" / "Orders_CF.vbp").find("UserControl=cfsfrmOrderHistory.ctl"),
            std::string::npos);
  EXPECT_NE(r.out.find("analysis/index.html"), std::string::npos) << r.out;
  EXPECT_EQ(r.out.find("Form conversion is not available"), std::string::npos) << r.out;

  std::string err;
  auto db = SupportDatabase::Open(dir / "out" / "morvane.db", MORVANE_DATA_DIR, &err);
  ASSERT_TRUE(db) << err;
  auto stats = db->Stats();
  ASSERT_EQ(stats.size(), 12u);
  EXPECT_EQ(stats[0].ModuleName, "MacroCode");
  // The form rows count their controls, the section frames as one; the
  // calendar is converted in part.
  EXPECT_EQ(stats[1].ModuleName, "frmCustomers");
  EXPECT_EQ(stats[1].CtlCount, 20);
  EXPECT_EQ(stats[1].CtlsPartiallyConverted, 1);
  EXPECT_EQ(stats[3].ModuleName, "frmOrders");
  EXPECT_EQ(stats[3].CtlCount, 12);
  // The report rows count the controls that became items.
  EXPECT_EQ(stats[6].ModuleName, "rptCustomerDirectory");
  EXPECT_EQ(stats[6].CtlCount, 10);
  EXPECT_EQ(stats[8].ModuleName, "basOrders");
  EXPECT_GT(stats[8].TotalLines, 50);
  EXPECT_FALSE(db->ReportOutput().empty());
}

TEST(Check, FindingsByFileAndLineAndAStatus) {
  TempDir dir;
  WriteFile(dir / "p" / "P.vbp", Crlf("Type=Exe\nModule=basA; basA.bas\nName=\"P\"\n"));
  WriteFile(dir / "p" / "basA.bas", Crlf("Attribute VB_Name = \"basA\"\nSub A()\nEnd Sub\n"));
  auto clean = RunMorvane({"check", (dir / "p").string()});
  EXPECT_EQ(clean.status, 0) << clean.err;
  EXPECT_EQ(clean.out, "0 problem(s), 0 warning(s)\n");

  WriteFile(dir / "p" / "basA.bas",
            Crlf("Attribute VB_Name = \"basA\"\nSub A()\n    With x\nEnd Sub\n"));
  auto broken = RunMorvane({"check", (dir / "p").string()});
  EXPECT_EQ(broken.status, 1);
  EXPECT_EQ(broken.out, "basA.bas:3: With without End With\n1 problem(s), 0 warning(s)\n");

  auto missing = RunMorvane({"check", (dir / "none").string()});
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.err.find("no such directory"), std::string::npos);
}

// Real trees keep class modules as Access itself writes them (the class's
// Attribute lines, no VB_Name) and sometimes with a doubled byte order mark;
// version-control tools keep a form's code in a .cls beside its design and
// leave only a stub after CodeBehindForm.
TEST(Convert, ClassModulesOfBothShapesAndCodeBesideItsFormComeAcross) {
  TempDir dir;
  const std::string bom = "\xEF\xBB\xBF";
  const std::string classAttributes =
      "Attribute VB_GlobalNameSpace = False\nAttribute VB_Creatable = True\n"
      "Attribute VB_PredeclaredId = %\nAttribute VB_Exposed = False\n";
  auto attributes = [&](const char* predeclared) {
    std::string a = classAttributes;
    return a.replace(a.find('%'), 1, predeclared);
  };
  auto utf16 = [](const std::string& text) {
    std::string out = "\xFF\xFE";
    for (char c : text) out += {c, '\0'};
    return out;
  };
  const fs::path src = dir / "src";
  WriteFile(src / "modules" / "basMain.bas",
            bom +
                "Attribute VB_Name = \"basMain\"\nOption Compare Database\n\n"
                "Public Sub Go()\n    Dim c As New clsCounter\n    c.Add 1\nEnd Sub\n");
  WriteFile(src / "modules" / "clsCounter.cls",
            bom + attributes("False") +
                "Option Compare Database\nOption Explicit\n\nPrivate mTotal As Long\n\n"
                "Public Sub Add(ByVal n As Long)\n    mTotal = mTotal + n\nEnd Sub\n");
  WriteFile(src / "modules" / "clsLog.cls",
            bom + bom +
                Crlf("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n"
                     "Attribute VB_Name = \"clsLog\"\n" +
                     attributes("False") +
                     "Option Explicit\n\nPublic Sub Note(ByVal text As String)\n"
                     "    Debug.Print text\nEnd Sub\n"));
  const std::string form =
      "Version =20\nVersionRequired =20\nBegin Form\n    Width =4000\n    Caption =\"%\"\n"
      "    OnCurrent =\"[Event Procedure]\"\n    Begin\n        Begin Section\n"
      "            Height =1000\n            Name =\"Detail\"\n            Begin\n"
      "                Begin CommandButton\n                    Left =100\n"
      "                    Top =100\n                    Width =1500\n"
      "                    Height =400\n                    Name =\"cmdGo\"\n"
      "                    OnClick =\"[Event Procedure]\"\n                End\n"
      "            End\n        End\n    End\nEnd\nCodeBehindForm\n' See \"%.cls\"\n";
  auto design = [&](std::string name) {
    std::string text = form;
    for (size_t at; (at = text.find('%')) != std::string::npos;) text.replace(at, 1, name);
    return text;
  };
  WriteFile(src / "forms" / "frmMain.form", utf16(Crlf(design("frmMain"))));
  WriteFile(src / "forms" / "frmMain.cls",
            bom + attributes("True") +
                "Option Compare Database\nOption Explicit\n\nPrivate Sub cmdGo_Click()\n"
                "    Go\nEnd Sub\n\nPrivate Sub Form_Current()\n    Me.Caption = \"Main\"\n"
                "End Sub\n");
  // Its code file is missing: the stub must not become the form's code.
  WriteFile(src / "forms" / "frmLost.form", bom + design("frmLost"));

  auto r = RunMorvane({"convert", src.string(), "-o", (dir / "out").string(), "--yes"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err.find("not an Access export"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("frmLost.form: its code is kept in \"frmLost.cls\", which the tree does "
                       "not hold"),
            std::string::npos)
      << r.err;
  EXPECT_NE(r.out.find("Converted 5 object(s): 2 form(s), 0 report(s), 3 module(s)."),
            std::string::npos)
      << r.out;
  const std::string vbp = ReadFile(dir / "out" / "src.vbp");
  for (const char* line : {"Form=frmMain.frm\r\n", "Module=basMain; basMain.bas\r\n",
                           "Class=clsCounter; clsCounter.bas\r\n", "Class=clsLog; clsLog.bas\r\n"})
    EXPECT_NE(vbp.find(line), std::string::npos) << line << vbp;
  EXPECT_EQ(vbp.find("frmMain.cls"), std::string::npos) << vbp;
  const std::string counter = ReadFile(dir / "out" / "clsCounter.bas");
  EXPECT_EQ(counter.rfind("VERSION 1.0 CLASS\r\n", 0), 0u) << counter;
  EXPECT_NE(counter.find("\r\nPublic Sub Add(ByVal n As Long)\r\n    mTotal = mTotal + n\r\n"),
            std::string::npos)
      << counter;
  EXPECT_NE(ReadFile(dir / "out" / "clsLog.bas").find("\r\nPublic Sub Note("), std::string::npos);

  // The form's code is the .cls, and the glue calls procedures it holds.
  const std::string main = ReadFile(dir / "out" / "frmMain.frm");
  for (const char* wanted : {"\r\nPrivate Sub cmdGo_Click()\r\n    Go\r\nEnd Sub\r\n",
                             "\r\nPrivate Sub Form_Current()\r\n", "    Call Form_Current\r\n"})
    EXPECT_NE(main.find(wanted), std::string::npos) << wanted << main;
  for (const char* unwanted : {"See \"", "Attribute VB_PredeclaredId", "Option Compare Database"})
    EXPECT_EQ(main.find(unwanted), std::string::npos) << unwanted;
  EXPECT_EQ(ReadFile(dir / "out" / "frmLost.frm").find("See \""), std::string::npos);
  for (const char* file : {"frmMain.frm", "frmLost.frm", "clsCounter.bas", "clsLog.bas"}) {
    auto problems = CheckVb6Structure(file, ReadFile(dir / "out" / file));
    EXPECT_TRUE(problems.empty()) << file << ": " << problems.front();
  }
}

TEST(Convert, FilesThatAreNoObjectAreNamedInTheAnalysisAndAnEmptyMacroIsOne) {
  TempDir dir;
  const fs::path src = dir / "src";
  WriteFile(src / "modules" / "basA.bas", "Attribute VB_Name = \"basA\"\nSub A()\nEnd Sub\n");
  WriteFile(src / "macros" / "mcrEmpty.bas", "\xEF\xBB\xBFVersion =196611\r\nColumnsShown =0\r\n");
  WriteFile(src / "vbeforms" / "frmUser.frm",
            "VERSION 5.00\r\nBegin {C62A69F0-16DC-11CE-9E98-00AA00574A4F} frmUser\r\n"
            "   Caption = \"User form\"\r\nEnd\r\nAttribute VB_Name = \"frmUser\"\r\n");
  // A table's definition, in the tree and again in a nested copy of it.
  const std::string table = "CREATE TABLE [Orders] (\r\n  [ID] AUTOINCREMENT\r\n)\r\n";
  WriteFile(src / "tbldefs" / "Orders.sql", table);
  WriteFile(src / "copy.accdb.src" / "tbldefs" / "Orders.sql", table);

  auto r = RunMorvane({"convert", src.string(), "-o", (dir / "out").string(), "--yes"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("1 module(s), 1 macro(s)."), std::string::npos) << r.out;
  EXPECT_NE(ReadFile(dir / "out" / "MacroCode.bas").find("\r\nFunction mcrEmpty ()\r\n"),
            std::string::npos);
  std::string err;
  auto db = SupportDatabase::Open(dir / "out" / "morvane.db", MORVANE_DATA_DIR, &err);
  ASSERT_TRUE(db) << err;
  std::string notes;
  for (const auto& [object, note] : db->RunNotes())
    if (object == "(source tree)") notes += note + "\n";
  for (const char* said :
       {"frmUser.frm: a VBA user form (Microsoft Forms 2.0), which Visual Basic 6 cannot load",
        "tbldefs: 1 table definition(s) (CREATE TABLE), not queries"})
    EXPECT_NE(notes.find(said), std::string::npos) << said << "\n" << notes;
  // Said as warnings before the run, not again among what it could not do.
  EXPECT_EQ(r.out.find("Not done"), std::string::npos) << r.out;
}

TEST(Convert, RunningTwiceIntoOneDirectoryGivesTheSameFiles) {
  TempDir dir;
  auto first = RunMorvane({"convert", kSample.string(), "-o", (dir / "out").string(), "--yes"});
  ASSERT_EQ(first.status, 0) << first.err;
  const auto once = Snapshot((dir / "out").string());
  auto second = RunMorvane({"convert", kSample.string(), "-o", (dir / "out").string(), "--yes"});
  ASSERT_EQ(second.status, 0) << second.err;
  auto twice = Snapshot((dir / "out").string());
  ASSERT_EQ(once.size(), twice.size());
  for (size_t i = 0; i < once.size(); ++i) {
    if (once[i].first == "morvane.db") continue;  // SQLite pages may differ
    EXPECT_EQ(once[i], twice[i]) << once[i].first;
  }
}

TEST(Convert, ModulesSelectedByName) {
  TempDir dir;
  auto r = RunMorvane({"convert", kSample.string(), "-o", (dir / "out").string(), "--modules",
                       "clsCustomer", "--no-mdi"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(fs::exists(dir / "out" / "clsCustomer.bas"));
  EXPECT_FALSE(fs::exists(dir / "out" / "basOrders.bas"));
  EXPECT_FALSE(fs::exists(dir / "out" / "MDIParent.frm"));
  auto lines = Lines(dir / "out" / "clsCustomer.bas");
  ASSERT_GE(lines.size(), 10u);
  EXPECT_EQ(lines[0], "VERSION 1.0 CLASS");
  EXPECT_EQ(lines[2], "  MultiUse = -1  'True");
}

TEST(Convert, FormsTheRunCannotConvertAreSaidSo) {
  TempDir dir;
  // Text boxes, which no control array gathers.
  std::string boxes;
  for (int i = 0; i < 255; ++i)
    boxes += "Begin TextBox\nLeft =0\nTop =" + std::to_string(i * 10) +
             "\nWidth =100\nHeight =100\nName =\"t" + std::to_string(i) + "\"\nEnd\n";
  fs::create_directories(dir / "src" / "forms");
  WriteFile(dir / "src" / "forms" / "frmBig.txt",
            "Version =20\nBegin Form\nBegin\nBegin Section\nHeight =3000\nName =\"Detail\"\n"
            "Begin\n" +
                boxes + "End\nEnd\nEnd\nEnd\n");
  WriteFile(dir / "src" / "forms" / "frmSmall.txt",
            "Version =20\nBegin Form\nBegin\nBegin Section\nHeight =300\nName =\"Detail\"\n"
            "Begin\nBegin Attachment\nName =\"attPhoto\"\nEnd\nEnd\nEnd\nEnd\nEnd\n");
  auto r = RunMorvane(
      {"convert", (dir / "src").string(), "-o", (dir / "out").string(), "--no-mdi", "--yes"});
  // The run finished, but a form stayed out of the project.
  ASSERT_EQ(r.status, 3) << r.err;
  EXPECT_NE(r.err.find("morvane: error: frmBig: it was kept out of the project"),
            std::string::npos);
  EXPECT_NE(r.out.find("The form \"frmBig\" has 255 controls.  Visual Basic has a limit of 254 "
                       "controls, and Morvane was unable to find a way to reduce the control "
                       "count.  The form will not be converted."),
            std::string::npos)
      << r.out;
  const std::string vbp = ReadFile(dir / "out" / "src.vbp");
  EXPECT_EQ(vbp.find("frmBig"), std::string::npos) << vbp;
  EXPECT_NE(vbp.find("Form=frmSmall.frm"), std::string::npos) << vbp;
  // What a converter could not do closes the run's summary.
  EXPECT_NE(r.out.find("Not done: frmSmall: Attachment attPhoto is not converted\n"),
            std::string::npos)
      << r.out;
}

TEST(Convert, BadRequestsStopWithOneLineAndAStatus) {
  TempDir dir;
  struct Case {
    std::vector<std::string> args;
    const char* message;
  };
  WriteFile(dir / "garbage.mdb", std::string(5000, 'x'));
  fs::create_directories(dir / "garbage.src");
  const Case cases[] = {
      {{"convert", (dir / "none").string(), "-o", (dir / "o1").string()}, "cannot be read"},
      {{"convert", kSample.string(), "-o", (dir / "o2").string(), "--modules", "basNope"},
       "The source has no module named \"basNope\"."},
      {{"convert", (dir / "garbage.mdb").string(), "-o", (dir / "o4").string()},
       "Invalid database file selected."},
      {{"list", (dir / "none.mdb").string()}, "cannot be read"},
  };
  for (const auto& c : cases) {
    auto r = RunMorvane(c.args);
    EXPECT_NE(r.status, 0) << c.args[1];
    EXPECT_NE(r.err.find(c.message), std::string::npos) << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
  }
  for (auto o : {"o1", "o2", "o4"}) EXPECT_FALSE(fs::exists(dir / o)) << o;
}

TEST(Convert, AnAccess97DatabaseIsRefused) {
  MORVANE_NEED_JET_FIXTURES();
  TempDir dir;
  fs::copy_file(test::JetFixtures() / "jet3-northwind-de.mdb", dir / "nw.mdb");
  fs::create_directories(dir / "nw.src");
  auto r = RunMorvane({"convert", (dir / "nw.mdb").string(), "-o", (dir / "o3").string()});
  EXPECT_NE(r.status, 0);
  EXPECT_NE(r.err.find("If the database is an Access 97 database, it must be converted"),
            std::string::npos)
      << r.err;
  EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
  EXPECT_FALSE(fs::exists(dir / "o3"));
}

TEST(Convert, AnOutputDirectoryInsideTheSourceIsRefused) {
  TempDir dir;
  fs::copy(kSample, dir / "Orders", fs::copy_options::recursive);
  const auto before = Snapshot((dir / "Orders").string());
  auto r = RunMorvane(
      {"convert", (dir / "Orders").string(), "-o", (dir / "Orders" / "out").string(), "--yes"});
  EXPECT_NE(r.status, 0);
  EXPECT_NE(r.err.find("inside the source tree"), std::string::npos) << r.err;
  EXPECT_EQ(Snapshot((dir / "Orders").string()), before);
}

TEST(Convert, AFileThatCannotBeWrittenLeavesTheGoodOneAndIsNamed) {
  TempDir dir;
  const fs::path sample = dir / "Orders";
  fs::copy(kSample, sample, fs::copy_options::recursive);
  // A module and a form larger than the limit below, each written on a
  // thread beside the run's own.
  const std::string comments = [] {
    std::string lines;
    while (lines.size() < 30000) lines += "' a long comment, line after line\r\n";
    return lines;
  }();
  WriteFile(sample / "modules" / "basBig.bas",
            "Attribute VB_Name = \"basBig\"\r\nOption Explicit\r\n" + comments);
  WriteFile(sample / "forms" / "frmBig.txt",
            "Version =20\r\nVersionRequired =20\r\nBegin Form\r\n    Width =7200\r\n"
            "    Caption =\"Big\"\r\n    Begin\r\n        Begin Section\r\n"
            "            Height =1000\r\n            Name =\"Detail\"\r\n        End\r\n"
            "    End\r\nEnd\r\nCodeBehindForm\r\nAttribute VB_GlobalNameSpace = False\r\n"
            "Attribute VB_Creatable = True\r\nAttribute VB_PredeclaredId = True\r\n"
            "Attribute VB_Exposed = False\r\nOption Compare Database\r\n" +
                comments);
  const std::string out = (dir / "out").string();
  ASSERT_EQ(RunMorvane({"convert", sample.string(), "-o", out, "--yes"}).status, 0);
  // Every one of the form's repeated comment lines stays.
  EXPECT_GT(ReadFile(fs::path(out) / "frmBig.frm").size(), comments.size());
  const auto before = test::Snapshot(out);
  // A file size limit of 20 KiB: the conversion code and the big module and
  // form cannot be written again, the other files can.
  auto r = RunMorvane({"convert", sample.string(), "-o", out, "--yes"}, "ulimit -f 20");
  EXPECT_EQ(r.status, 3) << r.err;
  for (const std::string file : {"MorvaneConversionCode.bas", "basBig.bas", "frmBig.frm"}) {
    const std::string object = file.substr(0, file.find('.'));
    EXPECT_NE(r.err.find("error: " + object + ": cannot write " + out + "/" + file),
              std::string::npos)
        << r.err;
  }
  // Every file is as the first run left it, none cut short, and no part of
  // a file is left behind.
  const auto after = test::Snapshot(out);
  for (const auto& [file, bytes] : after) {
    EXPECT_EQ(file.find("morvane-part"), std::string::npos) << file;
    for (const auto& [oldFile, oldBytes] : before)
      if (oldFile == file && file.find("morvane.db") == std::string::npos &&
          file.find("analysis") == std::string::npos) {
        EXPECT_EQ(bytes, oldBytes) << file;
      }
  }
}

TEST(Convert, NamesThatClashOrCannotStandAreMadeUniqueAndValid) {
  TempDir dir;
  const fs::path forms = dir / "src" / "forms";
  auto form = [&](const std::string& file, const std::string& caption) {
    WriteFile(forms / file, "Version =20\nBegin Form\n    Caption =\"" + caption +
                                "\"\n    Begin\n        Begin Section\n            Height =300\n"
                                "            Name =\"Detail\"\n        End\n    End\nEnd\n");
  };
  const std::string longName(246, 'x');
  const std::vector<std::string> files = {
      "frm A.txt",       "frm-A.txt",        "frm_A.txt",        "a%3Ab.txt",     "a%2Ab.txt",
      "a\\b.txt",        "\xE4\xB8\xAD.txt", "\xE6\x96\x87.txt", "MDIParent.txt", "CON.txt",
      "Caf\xC3\xA9.txt", "00_Home.txt",      longName + ".txt"};
  for (const auto& f : files) form(f, f);
  WriteFile(forms / "frmCut.txt", "Version =20\nBegin Form\n");  // a truncated export
  WriteFile(dir / "src" / "modules" / "MacroCode.bas",
            "Attribute VB_Name = \"MacroCode\"\nPublic Sub Go()\nEnd Sub\n");
  const fs::path out = dir / "out";
  auto r = RunMorvane({"convert", (dir / "src").string(), "-o", out.string(), "--yes"});
  // frmCut could not be read: the run says so, leaves no stub, and tells by
  // its status that not everything came across.
  EXPECT_EQ(r.status, 3) << r.err;
  EXPECT_NE(r.err.find("error: frmCut:"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(out / "frmCut.frm"));

  // One file per form and a Begin name that is its VB_Name, an identifier
  // of at most 40 characters; the project lists each once.
  std::set<std::string> vbNames, frmFiles;
  for (const auto& e : fs::directory_iterator(out)) {
    if (e.path().extension() != ".frm") continue;
    frmFiles.insert(e.path().filename().string());
    std::string begin, attribute;
    for (const auto& line : Lines(e.path())) {
      if (line.rfind("Begin VB.", 0) == 0 && begin.empty())
        begin = line.substr(line.find(' ', 6) + 1);
      if (line.rfind("Attribute VB_Name = \"", 0) == 0)
        attribute = line.substr(21, line.size() - 22);
    }
    EXPECT_EQ(begin, attribute) << e.path();
    EXPECT_TRUE(IsVb6Identifier(begin)) << begin;
    EXPECT_TRUE(vbNames.insert(ToLower(begin)).second) << begin;
  }
  EXPECT_EQ(frmFiles.size(), files.size() + 1);  // and the MDI parent
  for (const char* f : {"MDIParent.frm", "MDIParentA.frm", "frm_A.frm", "frm_AA.frm", "CON_.frm",
                        "a00_Home.frm", "u4E2D.frm", "u6587.frm", "Caf\xC3\xA9.frm"})
    EXPECT_TRUE(frmFiles.count(f)) << f;
  EXPECT_TRUE(fs::exists(out / "MacroCode_.bas"));
  const std::string vbp = ReadFile(out / "src.vbp");
  EXPECT_NE(vbp.find("Module=MacroCodeA; MacroCode_.bas"), std::string::npos) << vbp;
  EXPECT_NE(vbp.find("Form=Caf\xE9.frm"), std::string::npos);  // Windows-1252 inside
  auto check = RunMorvane({"check", out.string()});
  EXPECT_EQ(check.status, 0) << check.out;

  // Each name that had to change is said in the analysis.
  std::string err;
  auto db = SupportDatabase::Open(out / "morvane.db", MORVANE_DATA_DIR, &err);
  ASSERT_TRUE(db) << err;
  std::set<std::string> renamed;
  for (const auto& row : db->Renamings()) renamed.insert(row.Object);
  for (const char* n : {"frm-A", "frm_A", "MDIParent", "MacroCode", "00_Home"})
    EXPECT_TRUE(renamed.count(n)) << n;
}

TEST(List, PrintsTheCatalogInItsOrder) {
  auto r = RunMorvane({"list", kSample.string()});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(
      r.out,
      "Forms:\n  frmCustomers\n  frmOrderBook\n  frmOrders\n  sfrmOrderHistory\n  sfrmOrderList\n"
      "Modules:\n  basOrders\n  basStatistics\n  clsCustomer\n"
      "  Date Helpers\n"
      "Reports:\n  rptCustomerDirectory\n  rptOrdersByDate\n"
      "Macros:\n  AutoExec\n  mcrOrders\n");
}

}  // namespace
}  // namespace morvane

namespace morvane {
namespace {

TEST(Convert, ADatabaseWithItsTreeBesideItGetsAWorkingCopy) {
  MORVANE_NEED_JET_FIXTURES();
  test::TempDir dir;
  const fs::path fixture = test::JetFixtures() / "jet4-subform-events.mdb";
  fs::copy_file(fixture, dir / "Events.mdb");
  test::WriteFile(dir / "Events.src" / "modules" / "basEvents.bas",
                  test::Crlf("Attribute VB_Name = \"basEvents\"\nPublic Sub Go()\n"
                             "    DoCmd.OpenForm \"Main\"\nEnd Sub\n"));
  const auto before = test::Snapshot(dir.path().string());

  auto r = test::RunMorvane(
      {"convert", (dir / "Events.mdb").string(), "-o",
       (dir.path().parent_path() / (dir.path().filename().string() + "-out")).string(), "--modules",
       "basEvents", "--forms", "Main"});
  const fs::path out = dir.path().parent_path() / (dir.path().filename().string() + "-out");
  // The catalog's form "Main" has no export in the tree: the run says so
  // and its status tells that not everything was converted.
  ASSERT_EQ(r.status, 3) << r.err;
  EXPECT_NE(r.err.find("Main: The catalog lists form \"Main\" but the source tree has no export"),
            std::string::npos)
      << r.err;
  EXPECT_EQ(test::Snapshot(dir.path().string()), before);
  EXPECT_EQ(test::ReadFile(out / "Events.mdb"), test::ReadFile(fixture));
  EXPECT_TRUE(fs::exists(out / "Events.vbp"));
  // "Main" is a selected form, so the module's OpenForm names it directly.
  EXPECT_NE(test::ReadFile(out / "basEvents.bas").find("Main.Show\t'MORVANE DoCmd.OpenForm"),
            std::string::npos);
  fs::remove_all(out);
}

TEST(List, DetailsOfARealJet4Database) {
  MORVANE_NEED_JET_FIXTURES();
  test::TempDir dir;
  fs::copy_file(test::JetFixtures() / "jet4-banco-horas.mdb", dir / "Horas.mdb");
  auto r = test::RunMorvane({"list", "--details", (dir / "Horas.mdb").string()});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("Tables:\n  BANCO_HORAS (7 fields)\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("Queries:\n  qryCalculosHoras (select, type 0)\n"), std::string::npos);
  EXPECT_NE(r.out.find("Properties:\n  AccessVersion = 09.50\n"), std::string::npos);
}

}  // namespace
}  // namespace morvane

namespace morvane {
namespace {

TEST(List, AFormThatCannotBeReadIsNamedWithItsLine) {
  test::TempDir dir;
  fs::copy(kSample, dir / "Orders", fs::copy_options::recursive);
  test::WriteFile(dir / "Orders" / "forms" / "frmBroken.txt",
                  test::Crlf("Version =20\nBegin Form\n    Caption =\"x\"\n    Begin\n"));
  auto r = test::RunMorvane({"list", (dir / "Orders").string()});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("  frmBroken\n"), std::string::npos) << r.out;
  EXPECT_NE(r.err.find("frmBroken.txt:4: "), std::string::npos) << r.err;
  EXPECT_EQ(r.err.find("frmOrders"), std::string::npos) << r.err;
}

}  // namespace
}  // namespace morvane
