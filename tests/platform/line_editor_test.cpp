// The line-editing operations and the re-indenter, on text documents.
#include "platform/line_editor.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace morvane {
namespace {

using test::Crlf;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

struct FileFixture {
  TextDocument file;
  explicit FileFixture(const std::string& text) : file(TextDocument::FromBytes(Crlf(text))) {}
  std::string Text() const { return file.Bytes(); }
};

TEST(IsDuplicateLine, CountsWholeLinesWhateverTheirIndentAndCase) {
  FileFixture f("Private Sub Form_Load()\n    x = 1\nEnd Sub\n  private sub form_load()\n");
  EXPECT_EQ(IsDuplicateLine(f.file, "Private Sub Form_Load()"), 2);
  EXPECT_EQ(IsDuplicateLine(f.file, "x = 1"), 1);
  EXPECT_EQ(IsDuplicateLine(f.file, "x = 1 ' note"), 0);
  EXPECT_EQ(IsDuplicateLine(f.file, "Private Sub Form"), 0);
}

TEST(InsertLine, PlacementZeroReadsInReverseOrderOfTheCalls) {
  FileFixture f("Private Sub cmdOK_Click()\nEnd Sub\n");
  InsertLine(f.file, "Private Sub cmdOK_Click()", "End If", 0);
  InsertLine(f.file, "Private Sub cmdOK_Click()", "    Unload Me", 0);
  InsertLine(f.file, "Private Sub cmdOK_Click()", "If x Then", 0);
  EXPECT_EQ(f.Text(),
            Crlf("Private Sub cmdOK_Click()\nIf x Then\n    Unload Me\nEnd If\nEnd Sub\n"));
}

TEST(InsertLine, PlacementOneKeepsTheOrderAtTheEndOfTheBody) {
  FileFixture f("Private Sub Form_Load()\n    a\nEnd Sub\nPrivate Sub Other()\nEnd Sub\n");
  InsertLine(f.file, "Private Sub Form_Load()", "b", 1);
  InsertLine(f.file, "Private Sub Form_Load()", "c\r\nd", 1);
  EXPECT_EQ(f.Text(), Crlf("Private Sub Form_Load()\n    a\nb\nc\nd\nEnd Sub\n"
                           "Private Sub Other()\nEnd Sub\n"));
}

TEST(InsertLine, AMissingAnchorLeavesTheFileAsItWas) {
  FileFixture f("Private Sub A()\nEnd Sub\n");
  const std::string before = f.Text();
  InsertLine(f.file, "Private Sub B()", "x", 0);
  InsertLine(f.file, "Private Sub B()", "x", 1);
  EXPECT_EQ(f.Text(), before);
}

TEST(ChangeLine, ReplacesTheFirstMatchingLine) {
  FileFixture f("Private Sub lstA_AfterUpdate()\nEnd Sub\nTab(1)\n");
  ChangeLine2(f.file, "Tab(1)", "Tab(2)");
  ChangeLine(f.file, "Private Sub lstA_AfterUpdate()", 0);
  EXPECT_EQ(f.Text(), Crlf("Private Sub lstA_AfterUpdate(RtnDispErrMsg As Integer)\nEnd Sub\n"
                           "Tab(2)\n"));
}

TEST(AddToCtlArray, FoldsALabelIntoTheArray) {
  FileFixture f(
      "Begin VB.Form F\n   Begin VB.Label lblA\n      Caption = \"A\"\n   End\n"
      "   Begin VB.Label lblB\n      Caption = \"B\"\n   End\nEnd\n");
  EXPECT_EQ(AddToCtlArray(f.file, "lblA", "Begin VB.Label lblA", "0"), 1);
  EXPECT_EQ(AddToCtlArray(f.file, "lblA", "Begin VB.Label lblB", "1"), 1);
  EXPECT_EQ(AddToCtlArray(f.file, "lblA", "Begin VB.Label lblC", "2"), 0);
  EXPECT_EQ(f.Text(), Crlf("Begin VB.Form F\n   Begin VB.Label lblA\n      Index = 0\n"
                           "      Caption = \"A\"\n   End\n   Begin VB.Label lblA\n"
                           "      Index = 1\n      Caption = \"B\"\n   End\nEnd\n"));
}

TEST(AddDataCtlEntry, TheDaoDataControlCollectsInReposition) {
  // The ADO data control's MoveComplete is in the golden forms.
  FileFixture f("Private Sub Form_Load()\nEnd Sub\n");
  AddDataCtlEntry(f.file, "datOld", "");
  AddDataCtlEntry(f.file, "datOld", "x");
  EXPECT_EQ(f.Text(), Crlf("Private Sub Form_Load()\nEnd Sub\nPrivate Sub datOld_Reposition()\n"
                           "On Error Resume Next\nx\nEnd Sub\n"));
}

struct IndentCase {
  const char* name;
  const char* input;
  const char* expected;
};

// The golden basBlocks shows the common blocks (If, ElseIf, Else, For, Do,
// While, With, Select Case) laid out; these are the harder cases.
TEST(SilentIndent, LaysOutCodeAsTheEditorDoes) {
  const IndentCase cases[] = {
      {"single-line if, labels, continuation, comments",
       "Sub B()\nOn Error GoTo B_Err\nIf x Then y = 1 Else y = 2\nIf a And _\nb Then ' both\n"
       "s = \"If x Then\"\nEnd If\n' done\nB_Err:\n10 Beep\nEnd Sub\n",
       "Sub B()\n    On Error GoTo B_Err\n    If x Then y = 1 Else y = 2\n    If a And _\n"
       "        b Then ' both\n        s = \"If x Then\"\n    End If\n    ' done\nB_Err:\n"
       "10 Beep\nEnd Sub\n"},
      {"types, nested next, while",
       "Private Type T\nA As Integer\nEnd Type\nSub C()\nFor i = 1 To 2\nFor j = 1 To 2\n"
       "Next j, i\nWhile x\nWend\nEnd Sub\n",
       "Private Type T\n    A As Integer\nEnd Type\nSub C()\n    For i = 1 To 2\n"
       "        For j = 1 To 2\n    Next j, i\n    While x\n    Wend\nEnd Sub\n"},
      {"unbalanced input stays at column 0 or above",
       "End If\nNext\nLoop\nSub D()\nEnd If\nEnd Sub\nEnd Sub\nx = 1\n",
       "End If\nNext\nLoop\nSub D()\n    End If\nEnd Sub\nEnd Sub\nx = 1\n"},
      {"class header",
       "VERSION 1.0 CLASS\nBEGIN\nMultiUse = -1  'True\nEND\nAttribute VB_Name = \"c\"\n"
       "Property Get N() As String\nN = \"x\"\nEnd Property\n",
       "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"c\"\n"
       "Property Get N() As String\n    N = \"x\"\nEnd Property\n"},
  };
  for (const auto& c : cases) {
    FileFixture f(c.input);
    SilentIndent(f.file);
    EXPECT_EQ(f.Text(), Crlf(c.expected)) << c.name;
    SilentIndent(f.file);
    EXPECT_EQ(f.Text(), Crlf(c.expected)) << c.name << " (second pass)";
  }
}

}  // namespace
}  // namespace morvane
