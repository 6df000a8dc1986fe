// The source tree reader on small hand-written export trees.
#include "platform/source_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "platform/source_module.h"
#include "platform/source_query.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::Crlf;
using test::TempDir;
using test::WriteFile;

std::string Utf16Le(const std::u16string& text) {
  std::string out = "\xFF\xFE";
  for (char16_t c : text) {
    out += static_cast<char>(c & 0xFF);
    out += static_cast<char>(c >> 8);
  }
  return out;
}

const char16_t kFormText[] =
    u"Version =20\r\nVersionRequired =20\r\nBegin Form\r\n    Caption =\"Kunden \u20AC\"\r\n"
    u"    Begin\r\n        Begin Section\r\n        End\r\n    End\r\nEnd\r\n"
    u"CodeBehindForm\r\nAttribute VB_GlobalNameSpace = False\r\n"
    u"Attribute VB_Creatable = True\r\nAttribute VB_PredeclaredId = True\r\n"
    u"Attribute VB_Exposed = False\r\nOption Compare Database\r\n\r\n"
    u"Private Sub Form_Load()\r\n    Me.Caption = \"x\"\r\nEnd Sub\r\n";

const char kReportText[] =
    "\xEF\xBB\xBFVersion =20\nVersionRequired =20\nBegin Report\n    Caption =\"Ums\xC3\xA4tze\"\n"
    "End\n";

const char kMacroText[] =
    "Version =196611\nColumnsShown =0\nBegin\n    Action =\"OpenForm\"\n"
    "    Argument =\"Customers\"\nEnd\n";

const char kStandardModule[] =
    "Attribute VB_Name = \"basUtils\"\n"
    "Option Compare Database\n"
    "Option Explicit\n"
    "Public gCount As Long\n"
    "\n"
    "' Adds one.\n"
    "Public Function AddOne(x As Long) As Long\n"
    "    AddOne = x + 1\n"
    "End Function\n";

const char kClassModule[] =
    "VERSION 1.0 CLASS\n"
    "BEGIN\n"
    "  MultiUse = -1  'True\n"
    "END\n"
    "Attribute VB_Name = \"clsCounter\"\n"
    "Attribute VB_GlobalNameSpace = False\n"
    "Attribute VB_Creatable = False\n"
    "Attribute VB_PredeclaredId = False\n"
    "Attribute VB_Exposed = False\n"
    "Option Compare Database\n"
    "Private mValue As Long\n"
    "Public Property Get Value() As Long\n"
    "Attribute Value.VB_UserMemId = 0\n"
    "    Value = mValue\n"
    "End Property\n";

const char kQueryMemo[] =
    "dbMemo \"SQL\" =\"SELECT Customers.Name, \"\"A\"\" AS Tag\\015\\012FROM Customers\"\n"
    "    \" WHERE Customers.Active;\\015\\012\"\n"
    "dbMemo \"Connect\" =\"\"\n"
    "dbBoolean \"ReturnsRecords\" =\"-1\"\n";

const char kQueryGrid[] =
    "Operation =1\n"
    "Option =0\n"
    "Where =\"(((o.Total)>100))\"\n"
    "Begin InputTables\n"
    "    Name =\"Orders\"\n"
    "    Alias =\"o\"\n"
    "    Name =\"Order Details\"\n"
    "    Name =\"Shippers\"\n"
    "End\n"
    "Begin OutputColumns\n"
    "    Expression =\"o.OrderID\"\n"
    "    Alias =\"Amount\"\n"
    "    Expression =\"[Order Details].Price\"\n"
    "End\n"
    "Begin Joins\n"
    "    LeftTable =\"o\"\n"
    "    RightTable =\"Order Details\"\n"
    "    Expression =\"o.OrderID = [Order Details].OrderID\"\n"
    "    Flag =2\n"
    "End\n"
    "Begin OrderBy\n"
    "    Expression =\"o.OrderID\"\n"
    "    Flag =1\n"
    "End\n"
    "dbBoolean \"ReturnsRecords\" =\"-1\"\n";

std::unique_ptr<SourceTree> OpenOk(const fs::path& dir, const std::string& layout = "") {
  std::string err;
  auto tree = SourceTree::Open(dir, layout, &err);
  EXPECT_TRUE(tree) << err;
  return tree;
}

bool AnyWarningHas(const SourceTree& tree, const std::string& a, const std::string& b = "") {
  for (const auto& w : tree.Warnings())
    if (w.find(a) != std::string::npos && w.find(b) != std::string::npos) return true;
  return false;
}

// A flat tree as an export script writes it, with prefixes and mixed encodings.
void WriteFlatTree(const TempDir& dir) {
  WriteFile(dir / "Form_Customers.txt", Utf16Le(kFormText));
  WriteFile(dir / "Report_Sales.txt", kReportText);
  WriteFile(dir / "Macro_AutoExec.txt", Crlf(kMacroText));
  WriteFile(dir / "Module_Utilities.bas", kStandardModule);
  WriteFile(dir / "counter.cls", Crlf(kClassModule));
  WriteFile(dir / "Query_Active%20Customers.txt", kQueryMemo);
  WriteFile(dir / "README.md", "# exports\n");
  WriteFile(dir / "notes.txt", "Remember to export again.\n");
  WriteFile(dir / ".git" / "config", "[core]\n");
}

TEST(SourceTreeTest, FlatTreeIsFoundByContentAndNamed) {
  TempDir dir;
  WriteFlatTree(dir);
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Layout(), "flat");
  EXPECT_EQ(tree->Names(AccessObjectKind::Form), std::vector<std::string>{"Customers"});
  EXPECT_EQ(tree->Names(AccessObjectKind::Report), std::vector<std::string>{"Sales"});
  EXPECT_EQ(tree->Names(AccessObjectKind::Macro), std::vector<std::string>{"AutoExec"});
  // Modules take their Attribute VB_Name over the file name.
  EXPECT_EQ(tree->Names(AccessObjectKind::Module),
            (std::vector<std::string>{"basUtils", "clsCounter"}));
  EXPECT_EQ(tree->Names(AccessObjectKind::Query), std::vector<std::string>{"Active Customers"});
  EXPECT_EQ(tree->Objects().size(), 6u);
  // Only the unrecognised .txt is worth a word; README and .git are not exports.
  ASSERT_EQ(tree->Warnings().size(), 1u) << tree->Warnings()[0];
  EXPECT_NE(tree->Warnings()[0].find("notes.txt"), std::string::npos);
  ASSERT_TRUE(tree->Find(AccessObjectKind::Form, "CUSTOMERS"));
  EXPECT_EQ(tree->Find(AccessObjectKind::Form, "customers")->File, dir / "Form_Customers.txt");
  EXPECT_FALSE(tree->Find(AccessObjectKind::Report, "Customers"));

  std::vector<std::string> macro;
  std::string err;
  ASSERT_TRUE(tree->LoadMacroText("autoexec", &macro, &err)) << err;
  EXPECT_EQ(macro.size(), 6u);
  EXPECT_EQ(macro[3], "    Action =\"OpenForm\"");
  EXPECT_FALSE(tree->LoadMacroText("Missing", &macro, &err));
}

TEST(SourceTreeTest, FolderTreeWithCodeFilesSqlAndMetadata) {
  TempDir dir;
  WriteFile(dir / "forms" / "frmMain.bas",
            "Version =21\nVersionRequired =20\nBegin Form\n    Caption =\"Main\"\nEnd\n");
  WriteFile(dir / "forms" / "frmMain.cls",
            "Attribute VB_Name = \"Form_frmMain\"\nOption Explicit\nPrivate Sub Form_Open(Cancel "
            "As Integer)\nEnd Sub\n");
  WriteFile(dir / "forms" / "frmMain.json", "{\"Info\": {}}");
  WriteFile(dir / "Reports" / "rptList.bas", "Version =20\nBegin Report\nEnd\n");
  WriteFile(dir / "macros" / "mcrStart.bas", kMacroText);
  WriteFile(dir / "modules" / "basA.bas", kStandardModule);
  WriteFile(dir / "modules" / "Counter.cls", kClassModule);
  WriteFile(dir / "queries" / "qryBig.bas", kQueryGrid);
  WriteFile(dir / "queries" / "qryBig.sql", "SELECT * FROM Orders\r\nWHERE Total > 100;\r\n");
  WriteFile(dir / "queries" / "qryAppend.sql", "INSERT INTO Archive SELECT * FROM Orders;\n");
  // Table definitions, twice (a nested copy of the export): no queries.
  const std::string table =
      "\xEF\xBB\xBF"
      "CREATE TABLE [Orders] (\r\n  [ID] AUTOINCREMENT\r\n)\r\n";
  WriteFile(dir / "tbldefs" / "Orders.sql", table);
  WriteFile(dir / "app.accdb.src" / "tbldefs" / "Orders.sql", table);
  WriteFile(dir / "dbs-properties.json",
            "{\"Info\": {\"Class\": \"clsDbProperty\"}, \"Items\": {\"AppTitle\": {\"Value\": "
            "\"Orders \\u00c4\", \"Type\": 10}, \"StartupForm\": {\"Value\": \"frmMain\", "
            "\"Type\": 10}, \"Version\": 4}}");
  WriteFile(dir / "vbe-references.json",
            "{\"Items\": {\"VBA\": {\"GUID\": \"{000204EF-0000-0000-C000-000000000046}\", "
            "\"Version\": \"4.2\"}, \"DAO\": {\"GUID\": \"{00025E01-0000-0000-C000-000000000046}\","
            " \"Version\": \"5.0\"}}}");

  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Layout(), "msaccess-vcs");
  ASSERT_EQ(tree->Warnings().size(), 2u);
  EXPECT_NE(tree->Warnings()[0].find("1 table definition(s) (CREATE TABLE), not queries"),
            std::string::npos);
  EXPECT_FALSE(tree->Find(AccessObjectKind::Query, "Orders"));
  const SourceObject* form = tree->Find(AccessObjectKind::Form, "frmMain");
  ASSERT_TRUE(form);
  EXPECT_EQ(form->CodeFile, dir / "forms" / "frmMain.cls");
  // The code file is no module of its own.
  EXPECT_EQ(tree->Names(AccessObjectKind::Module),
            (std::vector<std::string>{"basUtils", "clsCounter"}));

  auto catalog = tree->BuildCatalog();
  EXPECT_EQ(catalog->ContainerDocuments("Forms"), std::vector<std::string>{"frmMain"});
  EXPECT_EQ(catalog->ContainerDocuments("Reports"), std::vector<std::string>{"rptList"});
  EXPECT_EQ(catalog->ContainerDocuments("Scripts"), std::vector<std::string>{"mcrStart"});
  EXPECT_EQ(catalog->ContainerDocuments("Modules"),
            (std::vector<std::string>{"basUtils", "clsCounter"}));
  EXPECT_EQ(catalog->Property("StartupForm").value_or(""), "frmMain");
  EXPECT_EQ(catalog->Property("AppTitle").value_or(""), "Orders \xC4");
  ASSERT_EQ(catalog->References().size(), 2u);
  EXPECT_EQ(catalog->References()[0].Name, "VBA");
  EXPECT_EQ(catalog->References()[0].Guid, "{000204EF-0000-0000-C000-000000000046}");
  EXPECT_EQ(catalog->References()[0].Major, 4);
  EXPECT_EQ(catalog->References()[0].Minor, 2);

  auto big = catalog->QueryDef("QRYBIG");
  ASSERT_TRUE(big);
  EXPECT_EQ(big->Sql, "SELECT * FROM Orders\r\nWHERE Total > 100;");  // the .sql wins over the grid
  EXPECT_EQ(big->Type, kDbQSelect);
  auto append = catalog->QueryDef("qryAppend");
  ASSERT_TRUE(append);
  EXPECT_EQ(append->Type, kDbQAppend);

  ModuleCode code;
  std::string err;
  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Form, "frmMain", &code, &err)) << err;
  EXPECT_EQ(code.Type, 1);
  EXPECT_EQ(code.Code,
            (std::vector<std::string>{"Option Explicit", "Private Sub Form_Open(Cancel As Integer)",
                                      "End Sub"}));
  EXPECT_EQ(code.CountOfDeclarationLines, 1);
}

TEST(SourceTreeTest, CodeFilesBesideDesignsLoseTheirHeaders) {
  TempDir dir;
  WriteFlatTree(dir);
  WriteFile(dir / "Report_Sales.cls",
            "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n"
            "Attribute VB_Name = \"Report_Sales\"\nAttribute VB_Exposed = False\n"
            "Option Explicit\nPrivate Sub Report_Open(Cancel As Integer)\nEnd Sub\n");
  // A form that has code after CodeBehindForm and a code file as well.
  WriteFile(dir / "Form_Customers.cls", "Option Explicit\n");
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Names(AccessObjectKind::Module),
            (std::vector<std::string>{"basUtils", "clsCounter"}));
  ModuleCode code;
  std::string err;
  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Report, "Sales", &code, &err)) << err;
  EXPECT_EQ(code.Type, 1);
  EXPECT_EQ(code.Lines(1, code.CountOfLines()),
            "Option Explicit\r\nPrivate Sub Report_Open(Cancel As Integer)\r\nEnd Sub");
  EXPECT_EQ(code.CountOfDeclarationLines, 1);
  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Form, "Customers", &code, &err)) << err;
  EXPECT_EQ(code.Code, std::vector<std::string>{"Option Explicit"});
  EXPECT_TRUE(AnyWarningHas(*tree, "Form_Customers.txt", "CodeBehindForm"));

  // Code behind of a form the tree does not hold is no module.
  WriteFile(dir / "Form_Gone.cls", "Attribute VB_Name = \"Form_Gone\"\nOption Explicit\n");
  tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_FALSE(tree->Find(AccessObjectKind::Module, "Form_Gone"));
  EXPECT_TRUE(AnyWarningHas(*tree, "Form_Gone.cls", "Gone"));
}

TEST(SourceTreeTest, PropertiesAndReferencesFromTextFiles) {
  TempDir dir;
  WriteFile(dir / "Form_Main.txt", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "properties.txt",
            "# database properties\nStartupForm = \"Main\"\nAppTitle: Orders: 2003\n");
  WriteFile(dir / "references.txt",
            "VBA {000204EF-0000-0000-C000-000000000046} 4 0\n"
            "Access;{4AFFC9A0-5F99-101B-AF4E-00AA003F0F07};9.0\n"
            "no reference on this line\n");
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_TRUE(tree->Warnings().empty()) << tree->Warnings()[0];
  auto catalog = tree->BuildCatalog();
  EXPECT_EQ(catalog->Property("startupform").value_or(""), "Main");
  EXPECT_EQ(catalog->Property("AppTitle").value_or(""), "Orders: 2003");
  EXPECT_FALSE(catalog->Property("Missing"));
  ASSERT_EQ(catalog->References().size(), 2u);
  EXPECT_EQ(catalog->References()[0].Name, "VBA");
  EXPECT_EQ(catalog->References()[0].Major, 4);
  EXPECT_EQ(catalog->References()[1].Name, "Access");
  EXPECT_EQ(catalog->References()[1].Guid, "{4AFFC9A0-5F99-101B-AF4E-00AA003F0F07}");
  EXPECT_EQ(catalog->References()[1].Major, 9);
  EXPECT_EQ(catalog->References()[1].Minor, 0);

  WriteFile(dir / "dbs-properties.json", "{\"Items\": {\"StartupForm\": ");
  tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_TRUE(AnyWarningHas(*tree, "dbs-properties.json", "invalid JSON"));
}

TEST(SourceTreeTest, ForcedLayoutRestrictsDiscovery) {
  TempDir dir;
  WriteFile(dir / "Form_Top.txt", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "forms" / "Inner.txt", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "forms" / "Wrong.txt", kMacroText);
  WriteFile(dir / "old" / "Legacy.acf", "Version =19\nBegin Form\nEnd\n");

  auto flat = OpenOk(dir.path(), "flat");
  ASSERT_TRUE(flat);
  EXPECT_EQ(flat->Names(AccessObjectKind::Form), std::vector<std::string>{"Top"});

  auto folders = OpenOk(dir.path(), "folders");
  ASSERT_TRUE(folders);
  EXPECT_EQ(folders->Names(AccessObjectKind::Form), std::vector<std::string>{"Inner"});
  EXPECT_TRUE(folders->Names(AccessObjectKind::Macro).empty());
  EXPECT_TRUE(AnyWarningHas(*folders, "Wrong.txt", "macro"));

  auto oasis = OpenOk(dir.path(), "OASIS");
  ASSERT_TRUE(oasis);
  EXPECT_EQ(oasis->Names(AccessObjectKind::Form), std::vector<std::string>{"Legacy"});

  auto all = OpenOk(dir.path(), "auto");
  ASSERT_TRUE(all);
  EXPECT_EQ(all->Layout(), "folders");
  EXPECT_EQ(all->Names(AccessObjectKind::Form),
            (std::vector<std::string>{"Inner", "Legacy", "Top"}));

  std::string err;
  EXPECT_FALSE(SourceTree::Open(dir.path(), "sideways", &err));
  EXPECT_NE(err.find("sideways"), std::string::npos) << err;
}

TEST(SourceTreeTest, OpenFailsWithAReason) {
  TempDir dir;
  std::string err;
  EXPECT_FALSE(SourceTree::Open(dir / "missing", "", &err));
  EXPECT_NE(err.find("missing"), std::string::npos) << err;

  WriteFile(dir / "README.md", "nothing here\n");
  err.clear();
  EXPECT_FALSE(SourceTree::Open(dir.path(), "", &err));
  EXPECT_NE(err.find("no Access exports"), std::string::npos) << err;

  // Two files giving the same module: the message names both.
  WriteFile(dir / "a" / "Utils.bas", "Attribute VB_Name = \"basUtils\"\nOption Explicit\n");
  WriteFile(dir / "b" / "Utils2.bas", "Attribute VB_Name = \"BASUTILS\"\nOption Explicit\n");
  err.clear();
  EXPECT_FALSE(SourceTree::Open(dir.path(), "", &err));
  EXPECT_NE(err.find((dir / "a" / "Utils.bas").string()), std::string::npos) << err;
  EXPECT_NE(err.find((dir / "b" / "Utils2.bas").string()), std::string::npos) << err;

  // And two files for one form's code.
  TempDir two;
  WriteFile(two / "Orders.form", "Version =20\nBegin Form\nEnd\n");
  WriteFile(two / "Orders.cls", "Option Explicit\n");
  WriteFile(two / "Form_Orders.cls", "Option Explicit\n");
  err.clear();
  EXPECT_FALSE(SourceTree::Open(two.path(), "", &err));
  EXPECT_NE(err.find("Form_Orders.cls"), std::string::npos) << err;
  EXPECT_NE(err.find("Orders.cls and"), std::string::npos) << err;
}

TEST(SourceTreeTest, BadFilesAreReportedByNameAndSkipped) {
  TempDir dir;
  WriteFile(dir / "Form_Good.txt", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "Form_Broken.txt", Utf16Le(u"Version =20\r\nBegin Form\r\n") + "x");
  WriteFile(dir / "Form_Surrogate.txt",
            Utf16Le(u"Version =20\r\nBegin Form\r\nCaption =\"") + std::string("\x00\xDC", 2));
  WriteFile(dir / "image.bin", std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16));
  WriteFile(dir / "Front.mdb", std::string("\0\x01\0\0Standard Jet DB", 19));
  WriteFile(dir / "Form_Odd.txt",
            Utf16Le(u"Version =20\r\nBegin Form\r\n    Caption =\"\u4E2D \u0391\"\r\nEnd\r\n"));

  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Names(AccessObjectKind::Form), (std::vector<std::string>{"Good", "Odd"}));
  EXPECT_TRUE(AnyWarningHas(*tree, "Form_Broken.txt", "UTF-16"));
  EXPECT_TRUE(AnyWarningHas(*tree, "Form_Surrogate.txt", "UTF-16"));
  EXPECT_TRUE(AnyWarningHas(*tree, "image.bin", "binary"));
  EXPECT_FALSE(AnyWarningHas(*tree, "Front.mdb"));
  // Two unmappable characters in one file: one warning, naming file and line.
  int odd = 0;
  for (const auto& w : tree->Warnings())
    if (w.find("Form_Odd.txt") != std::string::npos) {
      ++odd;
      EXPECT_NE(w.find("line 3"), std::string::npos) << w;
      EXPECT_NE(w.find("\"?\""), std::string::npos) << w;
    }
  EXPECT_EQ(odd, 1);
  EXPECT_EQ(tree->Warnings().size(), 4u);
}

TEST(SourceTreeTest, ModulesAsTheVbaEditorShowsThem) {
  TempDir dir;
  WriteFlatTree(dir);
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  ModuleCode code;
  std::string err;

  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Module, "basutils", &code, &err)) << err;
  EXPECT_EQ(code.Type, 0);
  EXPECT_EQ(code.CountOfLines(), 8);
  EXPECT_EQ(code.Code[0], "Option Compare Database");
  EXPECT_EQ(code.CountOfDeclarationLines, 3);  // blank and comment go with AddOne
  EXPECT_EQ(code.Lines(3, 2), "Public gCount As Long\r\n");
  EXPECT_EQ(code.Lines(8, 5), "End Function");
  EXPECT_EQ(code.Lines(1, 0), "");

  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Module, "clsCounter", &code, &err)) << err;
  EXPECT_EQ(code.Type, 1);
  EXPECT_EQ(code.Code,
            (std::vector<std::string>{"Option Compare Database", "Private mValue As Long",
                                      "Public Property Get Value() As Long", "    Value = mValue",
                                      "End Property"}));
  EXPECT_EQ(code.CountOfDeclarationLines, 2);

  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Form, "Customers", &code, &err)) << err;
  EXPECT_EQ(code.Type, 1);
  EXPECT_EQ(code.Code,
            (std::vector<std::string>{"Option Compare Database", "", "Private Sub Form_Load()",
                                      "    Me.Caption = \"x\"", "End Sub"}));
  EXPECT_EQ(code.CountOfDeclarationLines, 1);

  // A report without code behind has an empty module.
  ASSERT_TRUE(tree->LoadModule(AccessObjectKind::Report, "Sales", &code, &err)) << err;
  EXPECT_EQ(code.CountOfLines(), 0);
  EXPECT_EQ(code.Type, 1);
  EXPECT_FALSE(tree->LoadModule(AccessObjectKind::Module, "Nope", &code, &err));
  EXPECT_NE(err.find("Nope"), std::string::npos);
}

// The code behind is split off the design's text alone: the lines found
// there are those that follow the CodeBehindForm line of the whole text.
TEST(SourceTreeTest, CodeBehindStartsAfterTheFirstCodeBehindFormLine) {
  const std::pair<const char*, std::string> cases[] = {
      {"CR LF", "Begin Form\r\nEnd\r\nCodeBehindForm\r\nOption Explicit\r\n"},
      {"lone CR and LF", "End\rCodeBehindForm\nA\rB\n\nC"},
      {"blanks around", "End\r\n \tCodeBehindForm \r\n\r\nSub X()\r\n"},
      {"named in a caption first", "Caption =\"CodeBehindForm\"\r\nCodeBehindForm\r\nDim a"},
      {"last line", "End\r\nCodeBehindForm"},
      {"last line with its end", "End\r\nCodeBehindForm\r\n"},
      {"at the very start", "CodeBehindForm\nDim a\n"},
      {"twice", "CodeBehindForm\r\nDim a\r\nCodeBehindForm\r\nDim b\r\n"},
      {"none", "Begin Form\r\nCaption =\"CodeBehindForms\"\r\nEnd\r\n"},
  };
  for (const auto& [label, text] : cases) {
    const std::vector<std::string> lines = SplitLines(text);
    const size_t marker = static_cast<size_t>(
        std::find_if(lines.begin(), lines.end(),
                     [](const std::string& l) { return text::Trim(l) == "CodeBehindForm"; }) -
        lines.begin());
    const size_t at = CodeBehindOffset(text);
    if (marker == lines.size()) {
      EXPECT_EQ(at, std::string_view::npos) << label;
      continue;
    }
    ASSERT_NE(at, std::string_view::npos) << label;
    EXPECT_EQ(SplitLines(std::string_view(text).substr(at)),
              std::vector<std::string>(lines.begin() + static_cast<std::ptrdiff_t>(marker) + 1,
                                       lines.end()))
        << label;
  }
}

TEST(SourceTreeTest, DeclarationLinesEndWhereTheFirstProcedureStarts) {
  struct Case {
    const char* Label;
    std::vector<std::string> Code;
    int Expected;
  };
  const Case cases[] = {
      {"no procedures", {"Option Explicit", "Dim a", ""}, 3},
      {"empty", {}, 0},
      {"procedure first", {"Sub Main()", "End Sub"}, 0},
      {"comments and blanks above", {"Dim a", "", "' one", "Rem two", "", "Sub X()"}, 1},
      {"compilation constant above", {"Dim a", "#Const Debugging = 1", "Sub X()"}, 1},
      {"scope and static", {"Dim a", "Private Static Function F()"}, 1},
      {"friend property", {"Dim a", "Friend Property Let P(v)"}, 1},
      {"declare is a declaration",
       {"Private Declare Function GetTickCount Lib \"kernel32\" () As Long", "Sub X()"},
       1},
      {"names starting like keywords",
       {"Dim Subtotal", "Public Function_Count As Long", "Sub X()"},
       2},
      {"continued declaration", {"Const A = 1 + _", "' not a comment line", "Function F()"}, 2},
      {"comment inside declarations", {"' header", "Dim a", "' about F", "Function F()"}, 2},
  };
  for (const auto& c : cases) EXPECT_EQ(CountDeclarationLines(c.Code), c.Expected) << c.Label;
}

TEST(SourceTreeTest, QueriesFromSqlTextAndFromTheGrid) {
  TempDir dir;
  WriteFile(dir / "Query_Active%20Customers.txt", kQueryMemo);
  WriteFile(dir / "queries" / "qryBig.acq", kQueryGrid);
  WriteFile(dir / "queries" / "~sq_fHidden.acq", kQueryMemo);
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  auto catalog = tree->BuildCatalog();
  ASSERT_EQ(catalog->QueryDefs().size(), 2u);  // the temporary query is left out
  auto memo = catalog->QueryDef("Active Customers");
  ASSERT_TRUE(memo);
  EXPECT_EQ(memo->Sql,
            "SELECT Customers.Name, \"A\" AS Tag\r\nFROM Customers WHERE Customers.Active;");
  EXPECT_EQ(memo->Type, kDbQSelect);
  auto grid = catalog->QueryDef("qryBig");
  ASSERT_TRUE(grid);
  EXPECT_EQ(grid->Sql,
            "SELECT o.OrderID, [Order Details].Price AS Amount\r\n"
            "FROM Orders AS o LEFT JOIN [Order Details] ON o.OrderID = [Order Details].OrderID, "
            "Shippers\r\n"
            "WHERE (((o.Total)>100))\r\n"
            "ORDER BY o.OrderID DESC;");
}

TEST(SourceTreeTest, GridsOfOtherShapes) {
  struct Case {
    const char* Label;
    const char* Text;
    const char* Sql;
    bool Note;
  };
  const Case cases[] = {
      {"distinct, grouped, no columns",
       "Operation =1\nOption =2\nBegin InputTables\n Name =\"T\"\nEnd\n"
       "Begin Groups\n Expression =\"T.a\"\n GroupLevel =0\nEnd\nHaving =\"Count(*)>1\"\n",
       "SELECT DISTINCT *\r\nFROM T\r\nGROUP BY T.a\r\nHAVING Count(*)>1;", false},
      {"union flag is no distinct",
       "Operation =1\nOption =3\nBegin InputTables\n Name =\"T\"\nEnd\n", "SELECT *\r\nFROM T;",
       false},
      {"two joins nest",
       "Operation =1\nBegin InputTables\n Name =\"A\"\n Name =\"B\"\n Name =\"C\"\nEnd\n"
       "Begin Joins\n LeftTable =\"A\"\n RightTable =\"B\"\n Expression =\"A.x = B.x\"\n"
       " Flag =1\n LeftTable =\"B\"\n RightTable =\"C\"\n Expression =\"B.y = C.y\"\n"
       " Flag =3\nEnd\n",
       "SELECT *\r\nFROM (A INNER JOIN B ON A.x = B.x) RIGHT JOIN C ON B.y = C.y;", false},
      {"delete",
       "Operation =5\nOption =8\nBegin InputTables\n Name =\"T\"\nEnd\nWhere =\"T.x=1\"\n",
       "DELETE DISTINCTROW *\r\nFROM T\r\nWHERE T.x=1;", false},
      {"update",
       "Operation =4\nOption =0\nBegin InputTables\n Name =\"T\"\nEnd\nBegin OutputColumns\n"
       " Name =\"T.a\"\n Expression =\"[b] & \\\"x\\\"\"\nEnd\nWhere =\"T.c=1\"\n",
       "UPDATE T SET T.a = [b] & \"x\"\r\nWHERE T.c=1;", false},
      {"append: only the columns with a field",
       "Operation =3\nName =\"Archive Rows\"\nBegin InputTables\n Name =\"T\"\nEnd\n"
       "Begin OutputColumns\n Name =\"a\"\n Expression =\"T.a\"\n Alias =\"x\"\n Name =\"b\"\n"
       " Expression =\"T.b+1\"\n Expression =\"T.c\"\nEnd\nBegin OrderBy\n Expression =\"T.a\"\n"
       " Flag =0\nEnd\nBegin\n Begin\n  Name =\"T\"\n  Name =\"\"\n End\nEnd\n",
       "INSERT INTO [Archive Rows] ( a, b )\r\nSELECT T.a, T.b+1 AS x\r\nFROM T\r\nORDER BY T.a;",
       false},
      {"make-table",
       "Operation =2\nName =\"NewT\"\nOption =2\nBegin InputTables\n Name =\"T\"\nEnd\n"
       "Begin OutputColumns\n Expression =\"T.a\"\nEnd\n",
       "SELECT DISTINCT T.a INTO NewT\r\nFROM T;", false},
      {"crosstab",
       "Operation =6\nBegin InputTables\n Name =\"Q\"\nEnd\nBegin OutputColumns\n"
       " Expression =\"Q.team\"\n GroupLevel =2\n Expression =\"Q.round\"\n GroupLevel =1\n"
       " Alias =\"Points\"\n Expression =\"Sum(Q.p)\"\n Alias =\"Total\"\n"
       " Expression =\"Sum(Q.p)\"\n GroupLevel =2\nEnd\nBegin Groups\n Expression =\"Q.team\"\n"
       " GroupLevel =2\n Expression =\"Q.round\"\n GroupLevel =1\nEnd\n",
       "TRANSFORM Sum(Q.p) AS Points\r\nSELECT Q.team, Sum(Q.p) AS Total\r\nFROM Q\r\n"
       "GROUP BY Q.team\r\nPIVOT Q.round;",
       false},
      {"crosstab without its column heading is not rebuilt",
       "Operation =6\nBegin InputTables\n Name =\"Q\"\nEnd\nBegin OutputColumns\n"
       " Expression =\"Sum(Q.p)\"\nEnd\n",
       "", true},
  };
  for (const auto& c : cases) {
    std::string note;
    std::vector<std::string> lines;
    std::string text = c.Text;
    size_t start = 0;
    for (size_t nl; (nl = text.find('\n', start)) != std::string::npos; start = nl + 1)
      lines.push_back(text.substr(start, nl - start));
    QueryExport q = QueryFromExport(lines, &note);
    EXPECT_EQ(q.Sql, c.Sql) << c.Label;
    EXPECT_EQ(!note.empty(), c.Note) << c.Label << note;
  }
}

TEST(SourceTreeTest, QueryTypeFromOperationOrVerb) {
  struct Case {
    int Operation;
    const char* Sql;
    int Type;
  };
  const Case cases[] = {
      {0, "SELECT * FROM T", kDbQSelect},
      {0, "SELECT a INTO NewT FROM T", kDbQMakeTable},
      {0, "SELECT [into] FROM T", kDbQSelect},
      {0, "SELECT a FROM T WHERE b = 'INTO'", kDbQSelect},
      {0, "INSERT INTO T SELECT * FROM U", kDbQAppend},
      {0, "update T set a = 1", kDbQUpdate},
      {0, "DELETE * FROM T", kDbQDelete},
      {0, "TRANSFORM Sum(x) SELECT a FROM T GROUP BY a PIVOT b", kDbQCrosstab},
      {0, "SELECT a FROM T UNION SELECT a FROM U", kDbQSetOperation},
      {0, "PARAMETERS [p] Long;\r\nDELETE FROM T WHERE id = [p]", kDbQDelete},
      {0, "CREATE TABLE X (a INT)", kDbQDDL},
      {0, "", kDbQSelect},
      {2, "", kDbQMakeTable},
      {3, "", kDbQAppend},
      {4, "", kDbQUpdate},
      {6, "", kDbQCrosstab},
      {9, "SELECT 1", kDbQSetOperation},
  };
  for (const auto& c : cases) EXPECT_EQ(QueryTypeOf(c.Operation, c.Sql), c.Type) << c.Sql;
}

TEST(SourceTreeTest, FileNamesBecomeObjectNames) {
  TempDir dir;
  WriteFile(dir / "Form_Order%20Entry%2FEdit.form", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "K\xC3\xBCndigung.report.txt", "Version =20\nBegin Report\nEnd\n");
  WriteFile(dir / "Module_Helpers.bas", "Option Compare Database\nSub A()\nEnd Sub\n");
  WriteFile(dir / "Form_.txt", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "beta.form", "Version =20\nBegin Form\nEnd\n");
  WriteFile(dir / "Alpha.form", "Version =20\nBegin Form\nEnd\n");
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Names(AccessObjectKind::Form),
            (std::vector<std::string>{"Alpha", "beta", "Form_", "Order Entry/Edit"}));
  EXPECT_EQ(tree->Names(AccessObjectKind::Report), std::vector<std::string>{"K\xFCndigung"});
  EXPECT_EQ(tree->Names(AccessObjectKind::Module), std::vector<std::string>{"Helpers"});
}

// Every file's bytes and time, to see that reading changed nothing.
std::map<std::string, std::pair<std::string, fs::file_time_type>> Snapshot(const fs::path& dir) {
  std::map<std::string, std::pair<std::string, fs::file_time_type>> out;
  for (const auto& e : fs::recursive_directory_iterator(dir))
    out[e.path().string()] = {e.is_regular_file() ? test::ReadFile(e.path()) : "",
                              fs::last_write_time(e.path())};
  return out;
}

TEST(SourceTreeTest, ReadingLeavesTheSourceUntouched) {
  TempDir dir;
  WriteFlatTree(dir);
  WriteFile(dir / "Form_Odd.txt", Utf16Le(u"Version =20\r\nBegin Form\r\nCaption=\"\u4E2D\"\r\n"));
  auto before = Snapshot(dir.path());
  auto tree = OpenOk(dir.path());
  ASSERT_TRUE(tree);
  ModuleCode code;
  std::vector<std::string> lines;
  std::string err;
  for (const auto& o : tree->Objects()) {
    if (o.Kind == AccessObjectKind::Macro) tree->LoadMacroText(o.Name, &lines, &err);
    if (o.Kind != AccessObjectKind::Macro && o.Kind != AccessObjectKind::Query) {
      EXPECT_TRUE(tree->LoadModule(o.Kind, o.Name, &code, &err)) << err;
    }
  }
  tree->BuildCatalog();
  EXPECT_EQ(Snapshot(dir.path()), before);
}

}  // namespace
}  // namespace morvane
