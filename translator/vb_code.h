// Visual Basic code read as Visual Basic reads it, for the rules that must not
// act inside a string literal or on a part of a longer name: which characters
// of a line are code, string or comment; searches and replacements of whole
// words in code; the statements of a line; continued lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

// One character per character of the line: 'c' code, 's' a string or date
// literal (its delimiters included), 'm' the comment (from its apostrophe or
// Rem on). A string without its closing quote runs to the end of the line.
std::string CharKinds(std::string_view line);

// 0-based position where the comment begins (its apostrophe or Rem); npos
// when the line has none.
size_t CommentStart(std::string_view line);

// The line without its comment, trailing blanks removed.
std::string CodePart(std::string_view line);

// How a rule's text is matched. A hit must stand in code, or in a comment
// when `inComments`; in code, an end of the text that is a letter or digit
// must not touch another identifier character, so ".Object" does not hit
// ".ObjectDate" nor "Forms." "MSForms.". In a comment, where nothing is
// compiled, every plain hit counts.
struct WordMatch {
  bool ignoreCase = true;
  bool inComments = true;
};
inline constexpr WordMatch kInCode{true, false};
inline constexpr WordMatch kInCodeExact{false, false};
inline constexpr WordMatch kInCodeOrComment{true, true};

// 0-based position of the first hit at or after `from`; npos when none.
// `passed` (when given) is increased by each plain hit that the match passed
// over (in a string, or inside a longer name).
size_t FindWord(std::string_view line, std::string_view find, size_t from = 0,
                const WordMatch& m = kInCodeOrComment, int* passed = nullptr);
bool ContainsWord(std::string_view line, std::string_view find,
                  const WordMatch& m = kInCodeOrComment, int* passed = nullptr);
// Replaces every hit, left to right; the search resumes behind the inserted
// text.
std::string ReplaceWords(std::string_view line, std::string_view find, std::string_view with,
                         const WordMatch& m = kInCodeOrComment, int* passed = nullptr);

// The statements of one logical line: split at each ":" of the code (not
// ":="); a single-line If keeps everything behind it, a label keeps its
// colon, "Else <statement>" gives "Else" and the statement, and the comment
// stays with the last statement. A line of one statement comes back whole.
std::vector<std::string> SplitStatements(std::string_view line);

// The line ends in " _": the statement goes on in the next line.
bool ContinuesOnNextLine(std::string_view line);
// The physical line without its continuation mark and the blanks before it.
std::string WithoutContinuation(std::string_view line);

// Visual Basic 6 reads at most this many bytes per physical line, and at
// most this many continuations per statement.
inline constexpr size_t kMaxLineLength = 1023;
inline constexpr size_t kMaxContinuations = 24;

// The longest line FitLineLength leaves whole: the re-indenter puts blanks
// ahead of every code line after it, so a line leaves room for them.
inline constexpr size_t kFittedLineLength = kMaxLineLength - 64;

// A logical line cut into physical lines at blanks of the code, joined by
// " _", each short enough to stay within kMaxLineLength bytes once indented.
// A line that fits, or that has no place to cut, comes back as it is.
std::vector<std::string> FitLineLength(const std::string& line);

}  // namespace morvane
