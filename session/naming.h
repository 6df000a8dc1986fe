// The naming helpers every converter uses to turn Access names into Visual
// Basic identifiers and file names. Text is Windows-1252 bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/text_fold.h"

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

// Whether a Windows-1252 character may stand in a Visual Basic name: ASCII
// letters, digits and "_", and the accented letters of the code page.
bool IsNameCharacter(unsigned char c);
bool IsNameLetter(unsigned char c);
// A Visual Basic name for `name`: each character that cannot stand in a name
// becomes "_", leading "_" go, a name that does not start with a letter gets
// `prefix` ahead of it, and the whole is cut to `maxLength` characters.
// Never empty.
std::string VbIdentifier(std::string_view name, std::string_view prefix = "a",
                         size_t maxLength = 40);
// The data control of a form: "dat" and the form's Visual Basic name, cut
// to 40 characters.
std::string DataControlName(std::string_view formVbName);
// A Visual Basic string expression of `text`: quotes doubled, each line
// break a blank, and a text too long for one line of code (Visual Basic
// reads 1,023 bytes) cut into pieces joined by "& _" on lines of their own.
std::vector<std::string> VbStringLines(std::string_view text);
// The same for a text whose quotes are doubled already and that holds no
// line break.
std::vector<std::string> QuotedStringLines(std::string_view escaped);
// `escaped` (the inside of a quoted text, its quotes doubled) in pieces of
// about `most` bytes; a doubled quote is never parted.
std::vector<std::string> QuotedPieces(std::string_view escaped, size_t most);
// The name of the project of a run's user controls: the project's name as
// an identifier of at most 17 characters and "_CF".
std::string ControlProjectName(std::string_view projectName);
// Whether Visual Basic keeps the word for itself (a component cannot take
// it as its name).
bool IsReservedWord(std::string_view name);
// Whether Windows keeps the file name stem for a device (CON, NUL, COM1 ...).
bool IsDeviceName(std::string_view stem);

// Case-insensitive comparisons over Windows-1252 text (ASCII letters fold).
// Inline, so that a test against a fixed word costs no call.
inline bool EqualsNoCase(std::string_view a, std::string_view b) { return text::IEquals(a, b); }
inline bool StartsWithNoCase(std::string_view s, std::string_view prefix) {
  return text::IStartsWith(s, prefix);
}
inline bool EndsWithNoCase(std::string_view s, std::string_view suffix) {
  return text::IEndsWith(s, suffix);
}
// 0-based position of `find` in `text` from `from`, ignoring case; npos if none.
size_t FindNoCase(std::string_view text, std::string_view find, size_t from = 0);
std::string ToLower(std::string_view text);
std::string ToUpper(std::string_view text);
// Removes leading and trailing blanks (only " ").
std::string TrimBlanks(std::string_view text);

}  // namespace morvane
