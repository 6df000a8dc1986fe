// Position-based text primitives of the rule code: 1-based positions as the
// rules count them, searches that ignore case unless named exact, and
// substrings that refuse a negative length instead of guessing, so a rule can
// leave its line alone when its text cannot be built.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morvane {

// 1-based position of `find` in `text`, searching from `start`; 0 when absent.
int InStr(std::string_view text, std::string_view find, int start = 1);
int InStrExact(std::string_view text, std::string_view find, int start = 1);
// 1-based position of the last `find` in `text`, ignoring case; 0 when absent.
int InStrRev(std::string_view text, std::string_view find);
bool Contains(std::string_view text, std::string_view find);

// The text from position `start` on; empty when `start` lies behind the end.
std::string Mid(std::string_view text, int start);
// `length` characters from position `start`; nothing for a negative length or
// a start before 1.
std::optional<std::string> Mid(std::string_view text, int start, int length);
// The first `length` characters; nothing for a negative length.
std::optional<std::string> Left(std::string_view text, int length);

int Len(std::string_view text);

}  // namespace morvane
