// Tests of the conversion code: the base text and the MDI parent shipped in
// data/, the 21 helper templates, and the writers that assemble the module
// and the list initialisers of a form.
#include "translator/conversion_code.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "platform/line_editor.h"
#include "platform/project_model.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/vb6_check.h"
#include "support/temp_dir.h"

namespace morvane::test {
namespace {

namespace fs = std::filesystem;

const fs::path kDataDir = MORVANE_DATA_DIR;
constexpr const char* kMdiObjectLine =
    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"";

bool AllCrLf(const std::string& text) {
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) return false;
    if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')) return false;
  }
  return !text.empty() && text.back() == '\n';
}

bool HasLine(const std::string& text, const std::string& line) {
  for (const auto& l : SplitLines(text))
    if (l == line) return true;
  return false;
}

std::string Template(int id) { return ConversionCodeTemplate(kDataDir, id); }

std::string TrimIndent(const std::string& line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// An output directory holding the base text as the driver copies it, and a
// session and project that point at it.
struct ConversionCodeRun {
  ConversionSession s;
  TextDocument file;
  std::string base;

  ConversionCodeRun() {
    s.Options.DataDir = kDataDir;
    base = ReadFile(kDataDir / "MorvaneConversionCode.bas");
    file = TextDocument::FromBytes(base);
  }
  std::string Text() const { return file.Bytes(); }
  void SetText(const std::string& text) { file = TextDocument::FromBytes(text); }
  void Ask(std::initializer_list<int> flags) {
    for (int n : flags) s.ListControlsUsed[n] = true;
  }
};

TEST(ConversionCodeBaseText, IsAModuleDeclaringWhatTheGeneratedCodeUses) {
  const std::string text = ReadFile(kDataDir / "MorvaneConversionCode.bas");
  EXPECT_TRUE(AllCrLf(text));
  EXPECT_EQ(CheckVb6Structure("MorvaneConversionCode.bas", text), std::vector<std::string>{});
  EXPECT_EQ(SplitLines(text).front(), "Attribute VB_Name = \"MorvaneConversionCode\"");
  for (const char* line :
       {"Option Explicit", "Public db As DAO.Database", "Public wks As DAO.Workspace",
        "Public pConn As ADODB.Connection", "End Function"})
    EXPECT_TRUE(HasLine(text, line)) << line;
  EXPECT_NE(text.find("\r\nPublic Function GetToken("), std::string::npos);
  EXPECT_NE(text.find("\r\nPublic Function Eval(ByVal strExpr As String) As Variant\r\n"),
            std::string::npos);
  // GetFormFromName is appended to it, so it must end with a complete line.
  EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
}

TEST(ConversionCodeBaseText, StaysValidWithLookupSubMainAndTemplates) {
  // Both SysCmdVB variants in turn: they define the same procedure.
  for (int sysCmd : {6, 7}) {
    SCOPED_TRACE(sysCmd);
    ConversionCodeRun run;
    run.s.FormList = {"", "Orders", "1st"};
    WriteFormLookup(run.s, run.file);
    run.file.Append(
        Crlf("\nPublic Sub Main()\n\n    Set db = DBEngine(0).OpenDatabase(\"C:\\o\\p.mdb\")\n"
             "    Set pconn = new ADODB.Connection\n    pconn.open \"x\"\n\n"
             "    MDIParent.Show\nEnd Sub\n"));
    for (int n = 0; n < kConversionTemplateCount; ++n) run.s.ListControlsUsed[n] = n != 13 - sysCmd;
    WriteConversionCode(run.s, run.file);
    const std::string text = run.Text();
    EXPECT_TRUE(AllCrLf(text));
    EXPECT_EQ(CheckVb6Structure("MorvaneConversionCode.bas", text), std::vector<std::string>{});
  }
}

TEST(MdiParentTemplate, IsAnMdiFormOnceTheDriverAddsItsHeader) {
  const std::string text = ReadFile(kDataDir / "MDIParent.frm");
  EXPECT_TRUE(AllCrLf(text));
  const std::vector<std::string> lines = SplitLines(text);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.front(), "Begin VB.MDIForm MDIParent");
  EXPECT_TRUE(HasLine(text, "Attribute VB_Name = \"MDIParent\""));

  const std::string full = "VERSION 5.00\r\n" + std::string(kMdiObjectLine) + "\r\n" + text;
  EXPECT_EQ(CheckVb6Structure("MDIParent.frm", full), std::vector<std::string>{});

  // The status area: a picture box aligned to the bottom holding the meter
  // and the caption, as an MDI form can hold only aligned controls itself.
  auto indexOf = [&lines](const std::string& start) {
    for (size_t i = 0; i < lines.size(); ++i)
      if (lines[i].find(start) != std::string::npos) return i;
    return lines.size();
  };
  const size_t picture = indexOf("Begin VB.PictureBox ");
  const size_t meter = indexOf("Begin MSComctlLib.ProgressBar progStatus");
  const size_t caption = indexOf("Begin VB.Label lblStatusBarCaption");
  ASSERT_LT(picture, lines.size());
  ASSERT_LT(meter, lines.size());
  ASSERT_LT(caption, lines.size());
  EXPECT_LT(picture, meter);
  EXPECT_LT(picture, caption);
  EXPECT_NE(lines[picture + 1].find("Align           =   2"), std::string::npos);
  const size_t pictureIndent = lines[picture].find_first_not_of(' ');
  EXPECT_GT(lines[meter].find_first_not_of(' '), pictureIndent);
  EXPECT_GT(lines[caption].find_first_not_of(' '), pictureIndent);
}

TEST(MdiParentTemplate, TakesItsHeaderFromTheLineEditorAsTheDriverCallsIt) {
  TextDocument copy = TextDocument::FromBytes(ReadFile(kDataDir / "MDIParent.frm"));
  InsertLine(copy, " ", "VERSION 5.00", 1);
  InsertLine(copy, "VERSION 5.00", kMdiObjectLine, 1);
  const std::string text = copy.Bytes();
  const std::vector<std::string> lines = SplitLines(text);
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(lines[0], "VERSION 5.00");
  EXPECT_EQ(lines[1], kMdiObjectLine);
  EXPECT_EQ(CheckVb6Structure("MDIParent.frm", text), std::vector<std::string>{});
}

constexpr const char* kListArgs =
    "(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, "
    "Optional varParam2 As Variant)";
constexpr const char* kSysCmdHeader =
    "Public Function SysCmdVB(iAction As Integer, Optional vTextOrObjectType As Variant, Optional "
    "vValueOrObjectName As Variant) As Variant";
constexpr const char* kDomainArgs =
    "(Expr As String, Domain As String, Optional Criteria As String) As Variant";

// The header each template must carry, by id.
const std::vector<std::pair<int, std::string>>& TemplateHeaders() {
  static const std::vector<std::pair<int, std::string>> headers = {
      {700, std::string("Function AddItemsSS") + kListArgs},
      {701, std::string("Function AddItems") + kListArgs},
      {702, std::string("Function AddItemsGT") + kListArgs},
      {703, std::string("Function AddItemsLV") + kListArgs},
      {704, std::string("Function AddItemsMS") + kListArgs},
      {705, std::string("Function AddItemsMSF") + kListArgs},
      {706, kSysCmdHeader},
      {707, kSysCmdHeader},
      {708, "Public Function OptionGroupValue(ctlOptionGroup As Object) As Integer"},
      {709, std::string("Public Function DSum") + kDomainArgs},
      {710, std::string("Public Function DCount") + kDomainArgs},
      {711, std::string("Public Function DAvg") + kDomainArgs},
      {712, std::string("Public Function DFirst") + kDomainArgs},
      {713, std::string("Public Function DLast") + kDomainArgs},
      {714, std::string("Public Function DMin") + kDomainArgs},
      {715, std::string("Public Function DMax") + kDomainArgs},
      {716, std::string("Public Function DStDev") + kDomainArgs},
      {717, std::string("Public Function DStDevP") + kDomainArgs},
      {718, std::string("Public Function DVar") + kDomainArgs},
      {719, std::string("Public Function DVarP") + kDomainArgs},
      {720, std::string("Public Function DLookup") + kDomainArgs},
  };
  return headers;
}

TEST(ConversionCodeTemplates, EachIsOneProcedureWithItsHeader) {
  const std::string base = ReadFile(kDataDir / "MorvaneConversionCode.bas");
  ASSERT_EQ(TemplateHeaders().size(), static_cast<size_t>(kConversionTemplateCount));
  for (const auto& [id, header] : TemplateHeaders()) {
    SCOPED_TRACE(id);
    const std::string text = Template(id);
    ASSERT_FALSE(text.empty());
    EXPECT_TRUE(AllCrLf(text));
    const std::vector<std::string> lines = SplitLines(text);
    EXPECT_EQ(lines.front(), header);
    EXPECT_EQ(lines.back(), "End Function");
    EXPECT_EQ(CheckVb6Structure("m.bas", base + "\r\n" + text), std::vector<std::string>{});
  }
  EXPECT_EQ(Template(699), "");
  EXPECT_EQ(Template(721), "");
  EXPECT_EQ(ConversionCodeTemplate(kDataDir / "missing", 700), "");
}

TEST(ConversionCodeTemplates, CallHelpersThatTheBaseTextDefinesOnce) {
  // What the templates have in common is written once, as private
  // procedures of the base text; a helper renamed or dropped on one side
  // would leave the generated project uncompilable, one that no template
  // calls would be dead code in every project.
  const std::string base = ReadFile(kDataDir / "MorvaneConversionCode.bas");
  std::string templates;
  for (int id = kFirstConversionTemplate; id < kFirstConversionTemplate + kConversionTemplateCount;
       ++id)
    templates += Template(id);
  for (const std::string name :
       {"OpenListSource", "NextListRow", "NextValueListPair", "ValueListEntries", "ListRowText",
        "SetListSubItems", "DomainLookup", "SysCmdQuery"}) {
    SCOPED_TRACE(name);
    int defined = 0;
    for (const auto& line : SplitLines(base))
      defined += line.starts_with("Private Function " + name + "(") ||
                 line.starts_with("Private Sub " + name + "(");
    EXPECT_EQ(defined, 1);
    EXPECT_TRUE(templates.find(name + "(") != std::string::npos ||
                templates.find(name + " ") != std::string::npos);
  }
}

TEST(ConversionCodeTemplates, ListFillersTakeTheirSourceBeforeClearingAndIgnoreErrorsAfter) {
  struct Member {
    int id;
    const char* name;
    const char* clear;
    const char* limit;
  };
  const Member members[] = {
      {700, "AddItemsSS", "ctl.RemoveAll", "' If intCount > 100 Then Exit Do"},
      {701, "AddItems", "ctl.Rows = ctl.FixedRows", "' If intCount > 100 Then Exit Do"},
      {702, "AddItemsGT", "ctl.Clear", "' If intCount > 100 Then Exit Do"},
      {703, "AddItemsLV", "ctl.ListItems.Clear", "' If intCount > 500 Then Exit Do"},
      {704, "AddItemsMS", "ctl.Clear", "' If intCount > 100 Then Exit Do"},
      {705, "AddItemsMSF", "intFields = ctl.ColumnCount", "' If intCount > 100 Then Exit Do"},
  };
  for (const auto& m : members) {
    SCOPED_TRACE(m.name);
    const std::string text = Template(m.id);
    const size_t source = text.find(
        "    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, "
        "varParam2)\r\n");
    const size_t clear = text.find(m.clear);
    // A control that cannot be cleared is the caller's error; filling must
    // not stop the form from loading.
    const size_t ignore = text.find("    On Error Resume Next\r\n");
    ASSERT_NE(ignore, std::string::npos);
    EXPECT_LT(source, clear);
    EXPECT_LT(clear, ignore);
    // The commented-out limit stands in each walk, where uncommenting it
    // compiles.
    size_t walks = 0;
    for (size_t at = text.find("Do While "); at != std::string::npos;
         at = text.find("Do While ", at + 1), ++walks) {
      const size_t next = text.find("\r\n", at) + 2;
      EXPECT_EQ(TrimIndent(text.substr(next, text.find("\r\n", next) - next))
                    .substr(0, std::strlen(m.limit)),
                m.limit);
    }
    EXPECT_EQ(walks, 2u);
    EXPECT_NE(text.find(std::string(m.name) + " = intcount"), std::string::npos);
    // A value list is read only through the helpers that drop its quotes.
    EXPECT_EQ(text.find("GetToken("), std::string::npos);
    EXPECT_EQ(text.find("Split("), std::string::npos);
  }
  // The prefixes a control's tag sets, and the two ways a query is opened.
  const std::string base = ReadFile(kDataDir / "MorvaneConversionCode.bas");
  for (const char* line :
       {"    If Left$(qryName, 5) = \"Jet  \" Then", "        qryName = Mid$(qryName, 6)",
        "    ElseIf Left$(qryName, 16) = \"SQLPassthrough  \" Then",
        "        qryName = Mid$(qryName, 17)", "        rec.Open qryName, pConn, adOpenForwardOnly",
        "        qry.CommandText = qryName", "        Set rec = qry.Execute"})
    EXPECT_TRUE(HasLine(base, line)) << line;
}

TEST(ConversionCodeTemplates, DomainFunctionsSelectTheirAggregate) {
  struct Aggregate {
    int id;
    const char* name;
    const char* select;
  };
  const Aggregate aggregates[] = {
      {709, "DSum", "\"Sum(\" & Expr & \")\""},       {710, "DCount", "\"Count(\" & Expr & \")\""},
      {711, "DAvg", "\"Avg(\" & Expr & \")\""},       {712, "DFirst", "\"First(\" & Expr & \")\""},
      {713, "DLast", "\"Last(\" & Expr & \")\""},     {714, "DMin", "\"Min(\" & Expr & \")\""},
      {715, "DMax", "\"Max(\" & Expr & \")\""},       {716, "DStDev", "\"StDev(\" & Expr & \")\""},
      {717, "DStDevP", "\"StDevP(\" & Expr & \")\""}, {718, "DVar", "\"Var(\" & Expr & \")\""},
      {719, "DVarP", "\"VarP(\" & Expr & \")\""},     {720, "DLookup", "Expr"},
  };
  for (const auto& a : aggregates) {
    SCOPED_TRACE(a.name);
    EXPECT_TRUE(HasLine(Template(a.id), "    " + std::string(a.name) + " = DomainLookup(" +
                                            a.select + ", Domain, Criteria)"));
  }
  const std::string base = ReadFile(kDataDir / "MorvaneConversionCode.bas");
  for (const char* line :
       {"    strSql = \"Select \" & strSelect & \" From \" & strDomain",
        "    If strCriteria <> vbNullString Then strSql = strSql & \" Where \" & strCriteria",
        "        Set rec = db.OpenRecordset(strSql, dbOpenForwardOnly)",
        "        rec.Open strSql, pConn, adOpenForwardOnly, adLockReadOnly"})
    EXPECT_TRUE(HasLine(base, line)) << line;
}

TEST(ConversionCodeTemplates, OnlyTheStatusBarSysCmdNeedsTheMdiParent) {
  const std::string withBar = Template(706);
  const std::string without = Template(707);
  for (const char* line :
       {"            MDIParent.progStatus.Max = CInt(vValueOrObjectName)",
        "            MDIParent.lblStatusBarCaption.Caption = CStr(vTextOrObjectType)",
        "            MDIParent.progStatus.Left = MDIParent.lblStatusBarCaption.Left + "
        "MDIParent.lblStatusBarCaption.Width + 75",
        "            MDIParent.progStatus.Value = CInt(vTextOrObjectType)"})
    EXPECT_TRUE(HasLine(withBar, line)) << line;
  EXPECT_EQ(without.find("MDIParent"), std::string::npos);
  // Both answer the queries that need no status bar the same way.
  for (const std::string& text : {withBar, without})
    EXPECT_NE(text.find("SysCmdVB = SysCmdQuery(iAction, vTextOrObjectType, vValueOrObjectName)"),
              std::string::npos);
  EXPECT_TRUE(HasLine(ReadFile(kDataDir / "MorvaneConversionCode.bas"),
                      "            SysCmdQuery = DBEngine.SystemDB"));
  // Every member the status bar code addresses is a control of MDIParent.
  const std::string form = ReadFile(kDataDir / "MDIParent.frm");
  for (size_t p = withBar.find("MDIParent."); p != std::string::npos;
       p = withBar.find("MDIParent.", p + 1)) {
    const size_t start = p + 10;
    const size_t end = withBar.find('.', start);
    const std::string member = withBar.substr(start, end - start);
    EXPECT_NE(form.find(" " + member + "\r\n"), std::string::npos) << member;
  }
}

TEST(WriteConversionCode, AddsExactlyTheRequestedTemplatesInIdOrder) {
  ConversionCodeRun run;
  run.Ask({20, 9, 0});
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(),
            run.base + "\r\n" + Template(700) + "\r\n" + Template(709) + "\r\n" + Template(720));
  EXPECT_EQ(CheckVb6Structure("MorvaneConversionCode.bas", run.Text()), std::vector<std::string>{});
}

TEST(WriteConversionCode, ASecondRunIntoTheSameDirectoryAddsNoTemplateTwice) {
  ConversionCodeRun run;
  run.Ask({9});
  WriteConversionCode(run.s, run.file);
  const std::string once = run.Text();
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(), once);

  run.Ask({10});
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(), once + "\r\n" + Template(710));
}

TEST(WriteConversionCode, KeepsAProcedureTheFileAlreadyDefines) {
  // A copy that the re-indenter or the user touched still defines SysCmdVB;
  // a second SysCmdVB, with or without the status bar, would not compile.
  ConversionCodeRun run;
  std::string touched;
  for (const auto& line : SplitLines(Template(706))) touched += "\t" + line + "\r\n";
  run.SetText(run.base + touched);
  run.Ask({6, 7});
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(), run.base + touched);
}

TEST(WriteConversionCode, WithNoFlagNothingIsAdded) {
  ConversionCodeRun run;
  run.s.FormList = {"", "Orders"};
  WriteFormLookup(run.s, run.file);
  const std::string before = run.Text();
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(), before);
}

TEST(WriteConversionCode, StartsOnANewLineBehindAnUnfinishedLastLine) {
  ConversionCodeRun run;
  run.SetText(run.base + "End Sub");
  run.Ask({8});
  WriteConversionCode(run.s, run.file);
  EXPECT_EQ(run.Text(), run.base + "End Sub\r\n\r\n" + Template(708));
}

TEST(WriteFormLookup, ListsTheSelectedForms) {
  ConversionCodeRun run;
  run.SetText("Attribute VB_Name = \"MorvaneConversionCode\"\r\n");
  run.s.FormList = {"", "Orders", "1st", "Order Details", ""};
  WriteFormLookup(run.s, run.file);
  EXPECT_EQ(
      run.Text(),
      Crlf("Attribute VB_Name = \"MorvaneConversionCode\"\n"
           "Public Function GetFormFromName(FormName As String) As Form\n"
           "    Select Case FormName\n"
           "        Case \"Orders\": Set GetFormFromName = Orders\n"
           "        Case \"1st\": Set GetFormFromName = a1st\n"
           "        Case \"Order Details\": Set GetFormFromName = Order_Details\n"
           "        Case Else\n"
           "            Err.Raise Number:=vbObjectError + 31004, Description:=\"Form name not "
           "in global list\"\n"
           "    End Select\n"
           "End Function\n"));
  EXPECT_EQ(CheckVb6Structure("MorvaneConversionCode.bas", run.Text()), std::vector<std::string>{});
}

TEST(WriteFormLookup, CutsLongNamesAsTheFormFilesAreCut) {
  ConversionCodeRun run;
  run.SetText("");
  const std::string letters = "Abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrs";  // 45
  run.s.FormList = {"", letters, "9" + letters};
  WriteFormLookup(run.s, run.file);
  const std::string text = run.Text();
  EXPECT_TRUE(HasLine(
      text, "        Case \"" + letters + "\": Set GetFormFromName = " + letters.substr(0, 40)));
  EXPECT_TRUE(HasLine(
      text, "        Case \"9" + letters + "\": Set GetFormFromName = a9" + letters.substr(0, 38)));
}

// A small form text with code, as the list initialisers find it.
const char* kFormText =
    "VERSION 5.00\n"
    "Begin VB.Form frmA\n"
    "   Caption = \"A\"\n"
    "End\n"
    "Attribute VB_Name = \"frmA\"\n"
    "Private Sub Form_Unload(Cancel As Integer)\n"
    "End Sub\n";

struct ListCase {
  const char* name;
  bool isList;
  int type;
  bool plain;
  bool isValueList;  // the call passes "String" for a value list, "Jet" for a query
  const char* helper;
  std::set<int> flags;
};

// The golden list runs show the calls of each known type; this table adds the
// templates each call asks for, which only the generated module shows, and the
// unknown types.
TEST(ListInitialisers, CallTheHelperOfTheChosenType) {
  const ListCase cases[] = {
      {"list GreenTree", true, 1, false, false, "AddItemsGT", {2}},
      {"list Sheridan 2", true, 2, false, false, "AddItemsSS", {0}},
      {"list Sheridan 3", true, 3, false, true, "AddItemsSS", {0}},
      {"list own list box", true, 4, false, false, "AddItems", {1}},
      {"list view", true, 5, false, false, "AddItemsLV", {3}},
      {"list of unknown type", true, 9, false, false, "AddItems", {}},
      {"plain list", true, 5, true, true, "AddItemsMS", {3, 4}},
      {"combo GreenTree", false, 1, false, false, "AddItemsGT", {2}},
      {"combo Sheridan 2", false, 2, false, false, "AddItemsSS", {0}},
      {"combo Sheridan 3", false, 3, false, false, "AddItemsSS", {0}},
      {"combo forms", false, 4, false, true, "AddItemsMSF", {5}},
      {"combo of unknown type", false, 5, false, false, "AddItems", {}},
      {"plain combo", false, 4, true, false, "AddItemsMS", {4, 5}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ConversionSession s;
    s.Form().Text = TextDocument::FromBytes(Crlf(kFormText));
    s.Options.ListboxType = c.type;
    s.Options.ComboboxType = c.type;
    s.Form().PlainListControl = c.plain;
    if (c.isList)
      WriteListBoxInit(s, "qryA", "lstA", c.isValueList);
    else
      WriteComboBoxInit(s, "qryA", "lstA", c.isValueList);

    const std::string header = c.isList ? "Private Function InitializeListBoxes()"
                                        : "Private Function InitializeComboBoxes()";
    const std::string call = std::string("Call ") + c.helper + "(\"qryA\", me!lstA, \"" +
                             (c.isValueList ? "String" : "Jet") + "\")";
    EXPECT_EQ(s.Form().Text.Bytes(),
              Crlf(kFormText) + header + "\r\n" + call + "\r\nEnd Function\r\n");
    std::set<int> flags;
    for (int n = 0; n < kConversionTemplateCount; ++n)
      if (s.ListControlsUsed[n]) flags.insert(n);
    EXPECT_EQ(flags, c.flags);
    EXPECT_EQ(s.Form().InitCalls[0], c.isList);
    EXPECT_EQ(s.Form().InitCalls[1], !c.isList);
    EXPECT_FALSE(s.Form().InitCalls[2]);
  }
}

TEST(ListInitialisers, LaterControlsJoinTheFunctionInTheOrderOfTheirCalls) {
  ConversionSession s;
  s.Form().Text = TextDocument::FromBytes(Crlf(kFormText));
  s.Options.ListboxType = 5;
  s.Options.ComboboxType = 4;
  WriteListBoxInit(s, "qryA", "lstA", false);
  WriteComboBoxInit(s, "Red;Green", "cboA", true);
  WriteListBoxInit(s, "SELECT a FROM t WHERE b = \"\"x\"\"", "lstB", false);
  WriteComboBoxInit(s, "qryC", "cboC", false);

  const std::string text = s.Form().Text.Bytes();
  EXPECT_EQ(CheckVb6Structure("frmA.frm", text), std::vector<std::string>{});
  const std::vector<std::string> lines = SplitLines(text);
  const std::vector<std::string> code(lines.begin() + 7, lines.end());
  EXPECT_EQ(code, (std::vector<std::string>{
                      "Private Function InitializeListBoxes()",
                      "Call AddItemsLV(\"qryA\", me!lstA, \"Jet\")",
                      "Call AddItemsLV(\"SELECT a FROM t WHERE b = \"\"x\"\"\", me!lstB, \"Jet\")",
                      "End Function",
                      "Private Function InitializeComboBoxes()",
                      "Call AddItemsMSF(\"Red;Green\", me!cboA, \"String\")",
                      "Call AddItemsMSF(\"qryC\", me!cboC, \"Jet\")",
                      "End Function",
                  }));
}

}  // namespace
}  // namespace morvane::test
