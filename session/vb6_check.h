// The check of one Visual Basic 6 file as the development environment loads
// and compiles it: the header its kind needs, the designer block, the names,
// the length of lines, and balanced procedure and statement blocks in the
// code. Text is Windows-1252 bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

// One thing that would keep the file from loading or compiling; `Loads` is
// set for what loads and compiles but loses code (a commented-out line that
// takes the rest of a continued statement with it).
struct Vb6Finding {
  size_t Line = 0;  // 1-based
  std::string Problem;
  bool Loads = false;
};

// Checks `text` as the content of a file named `fileName`; the extension
// (.bas, .cls, .frm, .ctl, .dsr) says what header to expect, and a .bas that
// begins like a class is checked as one. Findings in line order.
//
// Header: a module begins with Attribute VB_Name; a class with VERSION 1.0
// CLASS, a BEGIN ... END block and Attribute VB_Name; a form, user control or
// designer with VERSION 5.00, Object = lines, one Begin ... End designer
// block (Begin VB.Form or VB.MDIForm for a form) and Attribute VB_Name. Names
// (VB_Name, controls) are identifiers of at most 40 characters; a control of
// a library needs its Object line; two controls of one name are members of
// a control array with distinct Index values.
//
// Lines: at most 1,023 bytes, at most 24 continuations a statement; no
// string literal left open; no continued statement running into a comment.
//
// Code: Sub, Function and Property blocks do not nest and are closed by
// their own End; If, For, Do, Select Case, With, While and #If blocks are
// balanced inside a procedure; Type and Enum blocks stand outside one;
// ElseIf, Else and Case need their block, Exit Sub and its kin their
// procedure or loop; outside procedures only declarations stand; PtrSafe,
// LongPtr and LongLong (VBA7's) appear only in branches Visual Basic 6 does
// not compile. Comments (among them the lines marked "'MORVANE "), string
// literals, line continuations, labels, several statements on one line and
// single-line If are read as VB6 reads them; "Else If" opens a nested If, as
// it does in VB6.
std::vector<Vb6Finding> CheckVb6File(const std::string& fileName, const std::string& text);
// The same over the file's lines.
std::vector<Vb6Finding> CheckVb6Lines(const std::string& fileName,
                                      const std::vector<std::string>& lines);

// The findings as "line <n>: <what>".
std::vector<std::string> CheckVb6Structure(const std::string& fileName, const std::string& text);

// A name Visual Basic 6 takes for a module, form, control or project: a
// letter, then letters, digits and "_", at most 40 characters (letters of
// Windows-1252 count as letters).
bool IsVb6Identifier(std::string_view name);

}  // namespace morvane
