// Conditional compilation as Visual Basic 6 reads it. VBA7 and Win64 are
// not defined there, Win32 is, so the "#Else" part of an "#If VBA7" block is
// what Visual Basic 6 compiles. The translator keeps the stack of #If blocks
// so that its rules act only on compiled code, and leaves the other branches
// as they were written.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "translator/module_translation.h"

namespace morvane {

// Called for each statement before it is translated and written, and after.
// A directive (#If, #ElseIf, #Else, #End If, #Const) updates the stack of
// blocks; before an "#End If" that closes an "#If VBA7" block with no branch
// for Visual Basic 6, that branch is written from the 64-bit one.
void BeforeDirective(ModuleTranslation& t, const std::string& statement);
void AfterDirective(ModuleTranslation& t, const std::string& statement);

}  // namespace morvane
