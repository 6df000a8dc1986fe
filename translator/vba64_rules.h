// 64-bit VBA code in code that Visual Basic 6 compiles: "Declare PtrSafe",
// LongPtr and LongLong are VBA7's and unknown to the 32-bit Visual Basic 6.
// A pointer-sized LongPtr is a Long there; a LongLong, eight bytes, becomes
// Currency, the eight-byte type of Visual Basic 6 (which scales by 10000, so
// the user reviews each such line).
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// The line with the 64-bit words replaced.
std::string Vba64Rewrite(const std::string& line);

// Rewrites a statement that Visual Basic 6 compiles, with an analysis row.
void Vba64Rules(ModuleTranslation& t, std::string& line);

}  // namespace morvane
