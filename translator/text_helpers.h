// Small pure functions over Windows-1252 text that the translator and the
// other converters share: identifiers at either end of a text, delimited
// fields, a backward search, the value expression at the start of a text, the
// Visual Basic expression for a form reference, and an in-place sort.
// Positions are 1-based; none of these reports an error.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace morvane {

struct ConversionSession;

// An ASCII letter or digit, "_", or any character with a code above 128.
bool IsIdentifierChar(unsigned char c);

// The longest run of identifier characters at the start of `text`.
std::string LeadingIdentifier(std::string_view text);

// The identifier that ends one character before the end: the last character
// (a separator such as "(" or ".") is skipped unseen; a blank there gives "".
std::string TrailingIdentifier(std::string_view text);

// The n-th field (from 1) of `text` cut at `delimiter` (exact); fields beyond
// the end are empty.
std::string NthField(std::string_view text, int n, std::string_view delimiter);

// Searches backward from position `start` (the length of `text` when 0, and
// then written back) for a place where the rest of `text` begins with `find`,
// ignoring case. Returns how many steps back the hit lies, or 0 when there is
// none: a hit at `start` itself and no hit give the same result.
int LastIndexOfText(std::string_view text, std::string_view find, int& start);
int LastIndexOfText(std::string_view text, std::string_view find);

// The value expression at the start of `text`, as in `x = <expression> Then`.
std::string ExpressionToken(std::string_view text);

// The Visual Basic expression for the form named at the start of `text` (the
// text behind `Forms!`, `Forms(` or a form-opening statement): the form's own
// name when it is one of the session's selected forms, `GetFormFromName(...)`
// otherwise.
std::string FormReference(const ConversionSession& s, std::string_view text);

// Sorts values[first..last] in place, ascending (random pivot, smaller part
// first). Indices outside the array are clamped.
void QuickSortInts(std::span<int16_t> values, int first, int last);

}  // namespace morvane
