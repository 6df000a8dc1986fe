// Conversions between the system's Windows-1252 text and the UTF-8 of the
// terminal.
#pragma once

#include <string>
#include <string_view>

namespace morvane {

std::string Windows1252ToUtf8(std::string_view text);
// Valid UTF-8 is converted (characters without a Windows-1252 form become
// "?"); anything else is taken to be Windows-1252 already.
std::string Utf8ToWindows1252(std::string_view text);

}  // namespace morvane
