// The check of one generated file, which the end of every run and the other
// tests use: each case is a small file and the exact findings expected of it.
#include "session/vb6_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace morvane {
namespace {

struct Case {
  const char* name;
  const char* fileName;
  std::string text;  // "\n" line ends; checked with CR LF
  std::vector<std::string> problems;
};

void RunCases(const std::vector<Case>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(CheckVb6Structure(c.fileName, test::Crlf(c.text)), c.problems);
  }
}

TEST(Vb6Checker, BlocksInsideProcedures) {
  RunCases({
      {"every block kind, balanced",
       "m.bas",
       "Attribute VB_Name = \"m\"\nOption Explicit\nPrivate x As Integer\n\n"
       "Public Function F(a As Integer) As Integer\n"
       "    Dim i As Integer\n"
       "    If a > 1 Then\n        a = 1\n    ElseIf a < 0 Then\n        a = 0\n    Else\n"
       "        a = 2\n    End If\n"
       "    For i = 1 To 3\n        Do While i < 2\n            Exit Do\n        Loop\n"
       "    Next i\n"
       "    Select Case a\n        Case 1\n            With Me\n            End With\n"
       "        Case Else\n    End Select\n"
       "    While a > 0\n        a = a - 1\n    Wend\n"
       "    Do\n    Loop Until a = 0\n"
       "    For Each x In y\n    Next\n"
       "End Function\n",
       {}},
      {"an If without End If",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    If x Then\n        y = 1\nEnd Sub\n",
       {"line 3: If without End If"}},
      {"a stray End Sub",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\nEnd Sub\nEnd Sub\n",
       {"line 4: End Sub without Sub"}},
      {"a Sub inside a Sub",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    x = 1\nSub B()\nEnd Sub\n",
       {"line 4: Sub inside the Sub opened on line 2"}},
      {"a Sub that never ends",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    For i = 1 To 2\n",
       {"line 2: Sub without End Sub", "line 3: For without Next"}},
      {"End Function closing a Sub",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\nEnd Function\n",
       {"line 3: End Function closes the Sub opened on line 2"}},
      {"closers without openers",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    Loop\n    Next\n    Wend\n    End Select\n"
       "    Case 1\n    Else\nEnd Sub\n",
       {"line 3: Loop without Do", "line 4: Next without For", "line 5: Wend without While",
        "line 6: End Select without Select", "line 7: Case without Select Case",
        "line 8: Else without a block If"}},
      {"crossed blocks",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    If a Then\n        For i = 1 To 2\n    End If\n"
       "        Next\nEnd Sub\n",
       {"line 4: For without Next", "line 6: Next without For"}},
      {"Next with two counters closes two loops",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    For i = 1 To 2\n        For j = 1 To 2\n"
       "    Next j, i\nEnd Sub\n",
       {}},
      {"Exit statements must fit",
       "m.bas",
       "Attribute VB_Name = \"m\"\nFunction A()\n    Exit Sub\n    Exit For\n    Exit Function\n"
       "End Function\n",
       {"line 3: Exit Sub inside a Function", "line 4: Exit For outside a For loop"}},
      {"two procedures of one name",
       "m.bas",
       "Attribute VB_Name = \"m\"\nFunction DSum()\nEnd Function\n\nPublic Function DSum()\n"
       "End Function\nProperty Get P()\nEnd Property\nProperty Let P(v)\nEnd Property\n",
       {"line 5: second procedure named dsum (the first is on line 2)"}},
  });
}

TEST(Vb6Checker, ReadsLinesAsVb6Does) {
  RunCases({
      {"single-line If forms",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    If x Then y = 1\n    If x Then y = 1 Else y = 2\n"
       "    If x Then Exit Sub\n    If x Then a = 1: b = 2\n    If x Then: b = 2\n"
       "    If x Then ' a comment keeps the block form\n    End If\nEnd Sub\n",
       {}},
      {"Else If opens a nested If, ElseIf does not",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    If a Then\n        x = 1\n    Else If b Then\n"
       "        x = 2\n    End If\n    If a Then\n    ElseIf b Then\n    End If\nEnd Sub\n",
       {"line 3: If without End If"}},
      {"keywords in strings and comments do not count",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    s = \"End Sub\"\n    t = \"If a Then \"\" : "
       "Loop\"\n"
       "    ' End Sub\n'MORVANE If x Then\n    Rem For i = 1 To 2\nEnd Sub\n",
       {}},
      {"continuation lines make one line",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    If a And _\n        b Then\n    End If\n"
       "    x = F(1, _\n        2)\nEnd Sub\n",
       {}},
      {"a comment ending in a continuation swallows the next line",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    ' note _\nEnd Sub\n",
       {"line 2: Sub without End Sub"}},
      {"labels, line numbers, named arguments and date literals",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    On Error GoTo Fail\n10  x = 1\n"
       "    MsgBox Prompt:=\"a\", Title:=\"b\"\n    d = #1/2/2001 10:30:00 PM#\n"
       "    Print #1, d\n    Exit Sub\nFail: If x Then\n    End If\nEnd Sub\n",
       {}},
      {"conditional compilation",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n#If Win16 Then\n    x = 1\n#Else\n    x = 2\n#End If\n"
       "#If A Then\nEnd Sub\n",
       // A is not defined: the End Sub stands in a branch that is not read.
       {"line 2: Sub without End Sub", "line 8: #If without #End If"}},
      {"an unterminated string",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    s = \"abc\nEnd Sub\n",
       {"line 3: string literal without its closing quote"}},
      {"module level holds declarations only",
       "m.bas",
       "Attribute VB_Name = \"m\"\nOption Explicit\nPrivate Declare Function T Lib \"k\" () As "
       "Long\n"
       "Public Type R\n    A As Integer\nEnd Type\nPrivate Enum E\n    One = 1\nEnd Enum\n"
       "Const C = 1\nx = 1\nIf a Then\n",
       {"line 11: statement outside a procedure: x = 1",
        "line 12: statement outside a procedure: If a Then"}},
      {"Type inside a procedure, Type without End Type",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    Type T\nEnd Sub\nType U\n    A As Long\n",
       {"line 3: Type inside a procedure", "line 5: Type without End Type"}},
  });
}

TEST(Vb6Checker, FileHeaders) {
  RunCases({
      {"a module must name itself",
       "m.bas",
       "Option Explicit\n",
       {"line 1: expected Attribute VB_Name = \"<name>\""}},
      {"a class module in a .cls",
       "c.cls",
       "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"c\"\n"
       "Attribute VB_Exposed = False\nOption Explicit\n",
       {}},
      {"a class kept in a .bas, its header closed by End",
       "c.bas",
       "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEnd\nAttribute VB_Name = \"c\"\n",
       {}},
      {"a class header without END",
       "c.cls",
       "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\n",
       {"line 2: BEGIN without END"}},
      {"a form with Object lines and nested controls",
       "f.frm",
       "VERSION 5.00\nObject = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"\n"
       "Begin VB.Form frmA\n   Caption = \"A\"\n   BeginProperty Font \n      Name = \"Arial\"\n"
       "   EndProperty\n   Begin VB.Frame fra\n      Begin VB.Label lbl\n         Index = 0\n"
       "      End\n   End\nEnd\nAttribute VB_Name = \"frmA\"\nAttribute VB_PredeclaredId = True\n"
       "Private Sub Form_Load()\nEnd Sub\n",
       {}},
      {"a form without VERSION",
       "f.frm",
       "Begin VB.Form frmA\nEnd\nAttribute VB_Name = \"frmA\"\n",
       {"line 1: expected VERSION 5.00"}},
      {"a form whose designer is not a form",
       "f.frm",
       "VERSION 5.00\nBegin VB.Label frmA\nEnd\nAttribute VB_Name = \"frmA\"\n",
       {"line 2: expected Begin VB.Form or Begin VB.MDIForm <name>"}},
      {"a designer block that never ends",
       "f.frm",
       "VERSION 5.00\nBegin VB.Form frmA\n   Begin VB.Label l\n   End\n",
       {"line 2: designer block without its End"}},
      {"a form without its name attribute",
       "f.frm",
       "VERSION 5.00\nBegin VB.MDIForm frmA\nEnd\nOption Explicit\n",
       {"line 4: expected Attribute VB_Name = \"<name>\""}},
      {"stray text in a designer block",
       "r.dsr",
       "VERSION 5.00\nBegin {78E93846-85FD-11D0-8487-00A0C90DC8A9} rptA\n   Caption = \"x\"\n"
       "   Sub A()\nEnd\nAttribute VB_Name = \"rptA\"\n",
       {"line 4: unexpected line in the designer block"}},
  });
}

TEST(Vb6Checker, ControlsOfADesignerBlock) {
  RunCases({
      {"each library's control needs the Object line of its file; an empty line is read past",
       "f.frm",
       "VERSION 5.00\nObject=\"{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0\"; \"msadodc.ocx\"\n"
       "Begin VB.Form frmA\n   Begin MSAdodcLib.Adodc datA\n   End\n\n"
       "   Begin Threed.SSCommand cmdA\n   End\n   Begin MSComCtl2.DTPicker dtp\n   End\n"
       "End\nAttribute VB_Name = \"frmA\"\n",
       {"line 7: Threed.SSCommand without the Object line of THREED32.OCX",
        "line 9: MSComCtl2.DTPicker without the Object line of MSCOMCT2.OCX"}},
      {"classes unknown to Visual Basic, and an Object line of another shape",
       "f.frm",
       "VERSION 5.00\nObject=MSCOMCTL.OCX\nBegin VB.Form frmA\n   Begin VB.ListView lv\n   End\n"
       "   Begin Foo.Bar fb\n   End\n   Begin Label lbl\n   End\nEnd\nAttribute VB_Name = "
       "\"frmA\"\n",
       {"line 2: expected Object = \"{guid}#version#0\"; \"file\"",
        "line 4: unknown control class VB.ListView", "line 6: unknown control class Foo.Bar",
        "line 8: control class without its library: Label"}},
      {"two controls of one name stand only in a control array",
       "f.frm",
       "VERSION 5.00\nBegin VB.Form frmA\n   Begin VB.Frame grpA\n"
       "      Begin VB.OptionButton optA\n         Index = 1\n      End\n"
       "      Begin VB.OptionButton optA\n         Index = 2\n      End\n   End\n"
       "   Begin VB.Label lbl\n   End\n   Begin VB.Frame fra\n      Begin VB.TextBox LBL\n"
       "      End\n      Index = 3\n   End\nEnd\nAttribute VB_Name = \"frmA\"\n",
       {"line 14: second control named LBL (the first is on line 11) outside a control array"}},
  });
}

TEST(Vb6Checker, LoadRules) {
  const std::string longLine = "    s = \"" + std::string(1020, 'x') + "\"\n";
  std::string manyContinuations = "Attribute VB_Name = \"m\"\nSub A()\n    s = 1 _\n";
  for (int i = 0; i < 24; ++i) manyContinuations += "        + 1 _\n";
  manyContinuations += "        + 1\nEnd Sub\n";
  RunCases({
      {"names: a digit first, a character that is no letter; a letter of Windows-1252 is one",
       "f.frm",
       "VERSION 5.00\nBegin VB.Form a00_Home\n   Begin VB.Label lbl\xB0x\n   End\n"
       "   Begin VB.Label l\xE9gende\n   End\nEnd\nAttribute VB_Name = \"00_Home\"\n",
       {"line 3: control \"lbl\xB0x\" is no Visual Basic name",
        "line 8: VB_Name \"00_Home\" is no Visual Basic name"}},
      {"a name of 41 characters",
       "m.bas",
       "Attribute VB_Name = \"" + std::string(41, 'a') + "\"\n",
       {"line 1: VB_Name \"" + std::string(41, 'a') +
        "\" is no Visual Basic name (longer than 40 characters)"}},
      {"a control array with an Index twice",
       "f.frm",
       "VERSION 5.00\nBegin VB.Form frmA\n   Begin VB.OptionButton opt\n      Index = 1\n   End\n"
       "   Begin VB.OptionButton opt\n      Index = 1\n   End\nEnd\nAttribute VB_Name = \"frmA\"\n",
       {"line 6: control opt has the Index 1 of the member on line 3"}},
      {"a property value whose string is left open",
       "f.frm",
       "VERSION 5.00\nBegin VB.Form frmA\n   Caption = \"1/8\"\"\nEnd\nAttribute VB_Name = "
       "\"frmA\"\n",
       {"line 3: property value with a string left open"}},
      {"a line over 1,023 bytes",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n" + longLine + "End Sub\n",
       {"line 3: line of 1030 bytes; Visual Basic reads 1023 at most"}},
      {"25 continuations",
       "m.bas",
       manyContinuations,
       {"line 3: statement of 25 continuations; Visual Basic takes 24 at most"}},
      {"a continued statement into a comment, a marked line that swallows code",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    x = f(1, _\n'MORVANE     Me.Form)\n"
       "'MORVANE y = g(1, _\n        2)\nEnd Sub\n",
       {"line 3: a \"(\" without its \")\"",
        "line 4: a continued statement runs into a comment line",
        "line 6: the commented-out line above takes this line into its comment"}},
      {"64-bit words where Visual Basic 6 compiles them, not in the VBA7 branch",
       "m.bas",
       "Attribute VB_Name = \"m\"\n#If VBA7 Then\nPrivate Declare PtrSafe Sub S Lib \"k\" (ByVal "
       "h As LongPtr)\n#Else\nPrivate Declare Sub S Lib \"k\" (ByVal h As Long)\n#End If\n"
       "#If Mac Or (VBA7 = 0) Then\nPrivate h As LongPtr\n#End If\nPrivate c As LongLong\n",
       {"line 8: LongPtr is VBA7's; Visual Basic 6 does not know it",
        "line 10: LongLong is VBA7's; Visual Basic 6 does not know it"}},
      {"expressions a rewrite cut, and Access expression syntax",
       "m.bas",
       "Attribute VB_Name = \"m\"\nSub A()\n    MellingForm).Requery\n    x = Item(Me)Date\n"
       "    x = Count(*)\n    lbl.Caption ='Server:'\n    Call 002_Import\n"
       "    Dim l As MSForms!Label\n    If (a = 1) Or (b)Then y = 1& + 1.5E+3\n"
       "    z = [3 months] + Len(s)\nEnd Sub\n",
       {"line 3: a \")\" that closes no \"(\"", "line 4: text glued to \")\": )Date",
        "line 5: an operator without its operand after \"(\"",
        "line 6: an expression that ends in the operator \"=\"",
        "line 7: a name that begins with a digit: 002_Import",
        "line 8: a type named with \"!\": MSForms!Label"}},
      {"Rem comments, also Rem//",
       "m.bas",
       "Attribute VB_Name = \"m\"\nRem// Name: (x\nSub A()\n    x = 1: Rem y = (\nEnd Sub\n",
       {}},
  });
}

}  // namespace
}  // namespace morvane
