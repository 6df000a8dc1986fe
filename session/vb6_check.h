// A structural checker for the Visual Basic 6 text the converters write:
// the file header that VB6 expects for the file's kind, and balanced
// procedure and statement blocks in the code.
#pragma once

#include <string>
#include <vector>

namespace morvane::test {

// Checks `text` as the content of a file named `fileName`; the extension
// (.bas, .cls, .frm, .ctl, .dsr) says what header to expect, and a .bas that
// begins like a class is checked as one. Returns one entry per problem,
// "line <n>: <what>", in line order; empty when the text is sound.
//
// Header: a module begins with Attribute VB_Name; a class with VERSION 1.0
// CLASS, a BEGIN ... END block and Attribute VB_Name; a form, user control or
// designer with VERSION 5.00, optional Object = lines, one Begin ... End
// designer block (Begin VB.Form or VB.MDIForm for a form) and Attribute
// VB_Name.
//
// Code: Sub, Function and Property blocks do not nest and are closed by
// their own End; If, For, Do, Select Case, With, While and #If blocks are
// balanced inside a procedure; Type and Enum blocks stand outside one;
// ElseIf, Else and Case need their block, Exit Sub and its kin their
// procedure or loop; outside procedures only declarations stand. Comments
// (among them the lines marked "'MORVANE "), string literals, line
// continuations, labels, several statements on one line and single-line If
// are read as VB6 reads them; "Else If" opens a nested If, as it does in VB6.
std::vector<std::string> CheckVb6Structure(const std::string& fileName, const std::string& text);

}  // namespace morvane::test
