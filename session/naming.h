// The naming helpers every converter uses to turn Access names into Visual
// Basic identifiers and file names. Text is Windows-1252 bytes.
#pragma once

#include <string>
#include <string_view>

namespace morvane {

// Each character below code 129 that is no ASCII letter or digit becomes "_";
// characters from 129 up stay. Leading "_" characters are then removed.
std::string SafeName(std::string_view name);
// Characters that a file name cannot hold become "_".
std::string SafeFileName(std::string_view name);
// The part after the last path separator ("\" or "/"), or the whole text.
std::string FileNameOf(std::string_view path);
// Replaces every occurrence of `find`, matched without regard to case, left to
// right; the search resumes behind the inserted text.
std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with);
bool StartsWithLetter(std::string_view text);

// Case-insensitive comparisons over Windows-1252 text (ASCII letters fold).
bool EqualsNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);
bool EndsWithNoCase(std::string_view text, std::string_view suffix);
// 0-based position of `find` in `text` from `from`, ignoring case; npos if none.
size_t FindNoCase(std::string_view text, std::string_view find, size_t from = 0);
std::string ToLower(std::string_view text);
std::string ToUpper(std::string_view text);
// Removes leading and trailing blanks (only " ").
std::string TrimBlanks(std::string_view text);

}  // namespace morvane
