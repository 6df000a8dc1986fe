// Module export from an in-memory source tree, and the move of declaration
// blocks in a finished form.
#include "translator/module_export.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "platform/project_model.h"
#include "platform/source_tree.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/converters.h"
#include "support/temp_dir.h"
#include "translator/module_translator.h"

namespace morvane {
namespace {

using Lines = std::vector<std::string>;

class FakeSourceTree : public SourceTree {
 public:
  void Add(AccessObjectKind kind, const std::string& name, int type, Lines code, int declarations) {
    ModuleCode m;
    m.Type = type;
    m.Code = std::move(code);
    m.CountOfDeclarationLines = declarations;
    modules_[{kind, name}] = m;
  }
  const std::filesystem::path& Root() const override { return root_; }
  const std::vector<SourceObject>& Objects() const override { return objects_; }
  bool LoadModule(AccessObjectKind kind, const std::string& name, ModuleCode* out,
                  std::string* err) const override {
    auto it = modules_.find({kind, name});
    if (it == modules_.end()) {
      if (err) *err = "no module " + name;
      return false;
    }
    *out = it->second;
    return true;
  }
  bool LoadMacroText(const std::string&, std::vector<std::string>*, std::string*) const override {
    return false;
  }
  std::unique_ptr<MemoryCatalog> BuildCatalog() const override {
    return std::make_unique<MemoryCatalog>();
  }
  const std::vector<std::string>& Warnings() const override { return warnings_; }

 private:
  std::map<std::pair<AccessObjectKind, std::string>, ModuleCode> modules_;
  std::filesystem::path root_;
  std::vector<SourceObject> objects_;
  std::vector<std::string> warnings_;
};

class ModuleExport : public ::testing::Test {
 protected:
  ModuleExport() {
    s.OutputPath = dir.path().string() + "/";
    s.AccessApp = &tree;
  }
  // The text module export gives for `name`, appended to `into`.
  std::string Export(const std::string& name, int mode, const std::string& into = "") {
    TextDocument text = TextDocument::FromBytes(into);
    ExportModuleText(s, name, mode, text);
    return text.Bytes();
  }

  test::TempDir dir;
  FakeSourceTree tree;
  ConversionSession s;
};

TEST_F(ModuleExport, AStandardModuleGetsItsOwnFileUnderItsSafeName) {
  tree.Add(AccessObjectKind::Module, "Order Details", 0,
           {"Option Compare Database", "Option Explicit", "Public Sub A()", "End Sub"}, 2);
  EXPECT_EQ(Export("Order Details", kModeModule),
            test::Crlf("Attribute VB_Name = \"Order_Details\"\n"
                       "Option Compare Database\n"
                       "Option Explicit\n"
                       "Public Sub A()\n"
                       "End Sub\n"));
}

TEST_F(ModuleExport, AClassModuleGetsTheClassHeader) {
  tree.Add(AccessObjectKind::Module, "clsA", 1, {"Option Explicit"}, 1);
  for (bool vb5 : {false, true}) {
    s.Options.IsVb5 = vb5;
    const std::string text = Export("clsA", kModeModule);
    std::string expected = "VERSION 1.0 CLASS\nBEGIN\nMultiUse = -1  'True\n";
    if (!vb5)
      expected +=
          "Persistable = 0\nDataBindingBehavior = 0\nDataSourceBehavior = 0\n"
          "MTSTransactionMode = 0\n";
    expected +=
        "End\n"
        "Attribute VB_Name = \"clsA\"\n"
        "Attribute VB_GlobalNameSpace = False\n"
        "Attribute VB_Creatable = True\n"
        "Attribute VB_PredeclaredId = False\n"
        "Attribute VB_Exposed = False\n"
        "Option Explicit\n";
    EXPECT_EQ(text, test::Crlf(expected)) << "IsVb5 " << vb5;
  }
}

TEST_F(ModuleExport, TheClassHeaderPassesTheTranslatorAsCode) {
  tree.Add(AccessObjectKind::Module, "clsA", 1, {"Option Explicit", "DoCmd.Beep"}, 1);
  TextDocument text;
  ExportModuleText(s, "clsA", kModeModule, text);
  const Lines out = TranslateCode(s, text, "clsA", kModeModule).Lines();
  ASSERT_EQ(out.size(), 15u);
  EXPECT_EQ(out[0], "VERSION 1.0 CLASS");
  EXPECT_EQ(out[7], "End");
  EXPECT_EQ(out.back(), "Beep");
}

TEST_F(ModuleExport, TheNameAttributeIsTheNameTheRunGaveTheObject) {
  s.Names.Name(ComponentRole::Form, "x");
  tree.Add(AccessObjectKind::Module, "x", 0, {"Option Explicit"}, 1);
  EXPECT_EQ(SplitLines(Export("x", kModeModule))[0], "Attribute VB_Name = \"xA\"");
}

TEST_F(ModuleExport, AFormsCodeIsAppendedBehindAnEmptyLine) {
  struct FormCase {
    Lines code;
    int declarations;
    const char* appended;
  };
  const FormCase cases[] = {
      {{"Option Explicit", "Private Sub Form_Load()", "End Sub"},
       1,
       "Attribute VB_Name = \"Order_Details\"\nOption Explicit\n\nPrivate Sub Form_Load()\n"
       "End Sub\n"},
      // An empty declarations section still gets the empty line.
      {{"Private Sub Form_Load()", "End Sub"},
       0,
       "Attribute VB_Name = \"Order_Details\"\n\nPrivate Sub Form_Load()\nEnd Sub\n"},
  };
  for (const auto& c : cases) {
    tree.Add(AccessObjectKind::Form, "Order Details", 1, c.code, c.declarations);
    EXPECT_EQ(
        Export("Order Details", kModeForm,
               "VERSION 5.00\r\nBegin VB.Form Order_Details\r\nEnd\r\n"),
        test::Crlf(std::string("VERSION 5.00\nBegin VB.Form Order_Details\nEnd\n") + c.appended));
  }
}

TEST_F(ModuleExport, AReportsCodeIsAppendedUnderItsSafeName) {
  tree.Add(AccessObjectKind::Report, "Sales Report", 1,
           {"Option Explicit", "Private Sub Report_Open(Cancel As Integer)", "End Sub"}, 1);
  EXPECT_EQ(Export("Sales Report", kModeReport, "VERSION 5.00\r\n"),
            test::Crlf("VERSION 5.00\nAttribute VB_Name = \"Sales_Report\"\nOption Explicit\n"
                       "Private Sub Report_Open(Cancel As Integer)\nEnd Sub\n"));
}

TEST_F(ModuleExport, AMissingModuleGivesNothing) {
  TextDocument text;
  EXPECT_FALSE(ExportModuleText(s, "basNone", kModeModule, text));
  EXPECT_TRUE(text.Empty());
  s.AccessApp = nullptr;
  EXPECT_FALSE(ExportModuleText(s, "basNone", kModeModule, text));
}

// The code part of a component file, after the designer block and the
// Attribute lines.
Lines CodeOf(const ProjectComponent& component) {
  CodeModule code = component.Code();
  Lines lines = SplitLines(code.Lines(1, code.CountOfLines()));
  lines.resize(static_cast<size_t>(code.CountOfLines()));
  return lines;
}

TEST_F(ModuleExport, DeclarationBlocksMoveIntoTheDeclarationsSection) {
  ProjectModel project;
  const ProjectComponent* main =
      project.Add(dir / "Main.frm",
                  TextDocument::FromBytes(test::Crlf("VERSION 5.00\n"
                                                     "Begin VB.Form Main\n"
                                                     "End\n"
                                                     "Attribute VB_Name = \"Main\"\n"
                                                     "Option Explicit\n"
                                                     "Dim a As Integer\n"
                                                     "Private Sub Form_Load()\n"
                                                     "End Sub\n"
                                                     "'MORVANE Declarations Code for lstA\n"
                                                     "Dim a As Integer\n"
                                                     "Dim b As Integer\n"
                                                     "'MORVANE End Declarations Code for lstA\n"
                                                     "Dim c As Integer\n"
                                                     "Private Sub cmdGo_Click()\n"
                                                     "End Sub\n")));
  s.ActiveProject = &project;
  MoveDeclarationBlocks(s, "Main");
  EXPECT_EQ(CodeOf(*main), (Lines{
                               "Option Explicit",
                               "Dim a As Integer",
                               "'MORVANE Declarations Code for lstA",
                               "Dim b As Integer",
                               "'MORVANE End Declarations Code for lstA",
                               "Dim c As Integer",  // the line behind the end mark goes too
                               "Private Sub Form_Load()",
                               "End Sub",
                               "Private Sub cmdGo_Click()",
                               "End Sub",
                           }));
  EXPECT_TRUE(main->Text->Bytes().starts_with("VERSION 5.00\r\nBegin VB.Form Main\r\n"));
}

TEST_F(ModuleExport, DuplicateDeclarationsGoButEmptyLinesStay) {
  ProjectModel project;
  const ProjectComponent* main =
      project.Add(dir / "Main.frm",
                  TextDocument::FromBytes(test::Crlf("VERSION 5.00\n"
                                                     "Begin VB.Form Main\n"
                                                     "End\n"
                                                     "Attribute VB_Name = \"Main\"\n"
                                                     "Option Explicit\n"
                                                     "\n"
                                                     "Dim a As Integer\n"
                                                     "\n"
                                                     "Dim a As Integer\n"
                                                     "dim a as integer\n"  // compared exactly
                                                     "Dim a As Integer\n"
                                                     // Parts of continued statements
                                                     // and ends of blocks repeat no
                                                     // declaration.
                                                     "Private Declare Function F Lib \"k\" _\n"
                                                     "    (ByVal h As Long) As Long\n"
                                                     "Private Declare Function G Lib \"k\" _\n"
                                                     "    (ByVal h As Long) As Long\n"
                                                     "Private Type T1\n    h As Long\nEnd Type\n"
                                                     "Private Type T2\n    h As Long\nEnd Type\n"
                                                     "#If VBA7 Then\nPrivate Const K = 1\n#Else\n"
                                                     "Private Const K = 1\n#End If\n"
                                                     "Private Sub Form_Load()\n"
                                                     "Dim a As Integer\n"
                                                     "End Sub\n")));
  s.ActiveProject = &project;
  MoveDeclarationBlocks(s, "Main");
  EXPECT_EQ(CodeOf(*main), (Lines{
                               "Option Explicit",
                               "",
                               "Dim a As Integer",
                               "",
                               "dim a as integer",
                               "Private Declare Function F Lib \"k\" _",
                               "    (ByVal h As Long) As Long",
                               "Private Declare Function G Lib \"k\" _",
                               "    (ByVal h As Long) As Long",
                               "Private Type T1",
                               "    h As Long",
                               "End Type",
                               "Private Type T2",
                               "    h As Long",
                               "End Type",
                               "#If VBA7 Then",
                               "Private Const K = 1",
                               "#Else",
                               "Private Const K = 1",
                               "#End If",
                               "Private Sub Form_Load()",
                               // A procedure's own declaration is none of the section's.
                               "Dim a As Integer",
                               "End Sub",
                           }));
}

}  // namespace
}  // namespace morvane
