// Conditions of Visual Basic's conditional compilation (#If x Then) as
// Visual Basic 6 reads them: Win32 is defined there, VBA7, Win64 and Mac are
// not, so the "#Else" part of an "#If VBA7" block is what it compiles.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace morvane {

// The truth of `expression` for Visual Basic 6, with the constants of
// earlier #Const lines (lower-case name, literal text); nothing when the
// expression cannot be read.
std::optional<bool> CompilerCondition(
    std::string_view expression, const std::vector<std::pair<std::string, std::string>>& constants);

}  // namespace morvane
