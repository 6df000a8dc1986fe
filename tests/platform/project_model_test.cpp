// The project model: components by file content, code-module operations and
// the project file text.
#include "platform/project_model.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace morvane {
namespace {

using test::Crlf;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

TEST(ProjectModel, TellsAClassFromItsTextAndNamesAnyReference) {
  // Modules, forms, designers, the known references and each form's control
  // libraries, named once whether written "Object =" or "Object=", are in the
  // golden project files.
  TempDir dir;
  WriteFile(dir / "clsB.bas", Crlf("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n"
                                   "Attribute VB_Name = \"clsB\"\n"));
  ProjectModel p;
  ASSERT_TRUE(p.AddFile(dir / "clsB.bas"));
  EXPECT_EQ(p.AddFile(dir / "missing.bas"), nullptr);
  p.AddFromGuid("{12345678-0000-0000-0000-000000000000}", 10, 1);
  const std::string vbp = p.VbpText(dir.path());
  EXPECT_NE(vbp.find("\r\nClass=clsB; clsB.bas\r\n"), std::string::npos) << vbp;
  EXPECT_NE(vbp.find("Reference=*\\G{12345678-0000-0000-0000-000000000000}#a.1#0##\r\n"),
            std::string::npos)
      << vbp;
}

TEST(ProjectModel, AddingAComponentAgainReplacesItInPlace) {
  TempDir dir;
  WriteFile(dir / "a.bas", Crlf("Attribute VB_Name = \"A\"\n"));
  WriteFile(dir / "b.bas", Crlf("Attribute VB_Name = \"B\"\n"));
  ProjectModel p;
  p.AddFile(dir / "a.bas");
  p.AddFile(dir / "b.bas");
  p.AddFile(dir / "a.bas");
  ASSERT_EQ(p.Components().size(), 2u);
  EXPECT_EQ(p.Components()[0].Name, "A");
  p.Remove("a");
  ASSERT_EQ(p.Components().size(), 1u);
  EXPECT_EQ(p.Components()[0].Name, "B");
}

TEST(CodeModule, WorksOnTheCodeBehindTheHeader) {
  TextDocument file =
      TextDocument::FromBytes(Crlf("VERSION 5.00\n"
                                   "Begin VB.Form frmC\n"
                                   "   Begin VB.TextBox txt\n"
                                   "   End\n"
                                   "End\n"
                                   "Attribute VB_Name = \"frmC\"\n"
                                   "Attribute VB_Exposed = False\n"
                                   "Option Explicit\n"
                                   "Dim x As Integer\n"
                                   "' Loads the form\n"
                                   "Private Sub Form_Load()\n"
                                   "End Sub\n"));
  CodeModule code(&file);
  EXPECT_EQ(code.CountOfLines(), 5);
  EXPECT_EQ(code.CountOfDeclarationLines(), 2);
  EXPECT_EQ(code.Lines(1, 2), "Option Explicit\r\nDim x As Integer");

  code.AddFromString("Private msFilter as string");
  EXPECT_EQ(code.Lines(3, 1), "Private msFilter as string");
  code.InsertLines(code.CountOfLines() + 1, "\r\nProperty Get Filter() as string\r\nEnd Property");
  EXPECT_EQ(code.CountOfLines(), 9);
  EXPECT_EQ(code.Lines(8, 2), "Property Get Filter() as string\r\nEnd Property");
  code.DeleteLines(1, 1);
  EXPECT_EQ(code.Lines(1, 1), "Dim x As Integer");
  // The designer block and attributes are untouched.
  EXPECT_EQ(file.Bytes().substr(0, 13), "VERSION 5.00\r");
  EXPECT_NE(file.Bytes().find("Attribute VB_Exposed = False\r\nDim x As Integer\r\n"),
            std::string::npos);
}

TEST(ProjectModel, AProjectFileThatCannotBeWrittenIsAFailure) {
  TempDir dir;
  ProjectModel p;
  std::string err;
  EXPECT_FALSE(p.SaveAs(dir / "no" / "such" / "dir.vbp", &err));
  EXPECT_NE(err.find("dir.vbp"), std::string::npos) << err;
}

TEST(ProjectModel, TheProjectNameIsAnIdentifier) {
  TempDir dir;
  for (const auto& [name, written] : std::vector<std::pair<std::string, std::string>>{
           {"Orders", "Orders"},
           {"2024 B\xFCro-Daten", "P2024_B_ro_Daten"},
           {std::string(45, 'x'), std::string(40, 'x')}}) {
    ProjectModel p;
    p.Name = name;
    std::string err;
    ASSERT_TRUE(p.SaveAs(dir / "p.vbp", &err)) << err;
    const std::string text = ReadFile(dir / "p.vbp");
    EXPECT_NE(text.find("\r\nName=\"" + written + "\"\r\n"), std::string::npos) << name;
    // The title keeps the name as it was.
    EXPECT_NE(text.find("\r\nTitle=\"" + name + "\"\r\n"), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace morvane

namespace morvane {
namespace {

TEST(CodeModule, AClassHeaderClosedByEndInEitherCase) {
  for (const char* end : {"END", "End"}) {
    TextDocument text = TextDocument::FromBytes(
        test::Crlf(std::string("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\n") + end +
                   "\nAttribute VB_Name = \"c\"\nOption Explicit\n"));
    CodeModule code(&text);
    EXPECT_EQ(code.CountOfLines(), 1) << end;
    EXPECT_EQ(code.Lines(1, 1), "Option Explicit") << end;
  }
}

}  // namespace
}  // namespace morvane
