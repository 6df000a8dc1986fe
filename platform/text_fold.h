// Small text primitives of the platform layer: ASCII case folding, trimming
// and splitting over Windows-1252 text. (The platform layer sits below the naming
// helpers of the session, so it keeps its own.)
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane::text {

inline char Fold(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }

inline bool IEquals(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (Fold(a[i]) != Fold(b[i])) return false;
  return true;
}

inline bool IStartsWith(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && IEquals(text.substr(0, prefix.size()), prefix);
}

inline bool IEndsWith(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() && IEquals(text.substr(text.size() - suffix.size()), suffix);
}

inline std::string Lower(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = Fold(c);
  return out;
}

// Blanks and tabs off both ends.
inline std::string_view Trim(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// Case-insensitive ordering, ties broken by the bytes so the order is total.
inline bool LessNoCase(std::string_view a, std::string_view b) {
  size_t n = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < n; ++i) {
    unsigned char x = static_cast<unsigned char>(Fold(a[i]));
    unsigned char y = static_cast<unsigned char>(Fold(b[i]));
    if (x != y) return x < y;
  }
  if (a.size() != b.size()) return a.size() < b.size();
  return a < b;
}

// The pieces of `text` between the `separator`s, empty ones included: one
// more than there are separators.
inline std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces(1);
  for (char c : text) {
    if (c == separator)
      pieces.emplace_back();
    else
      pieces.back() += c;
  }
  return pieces;
}

}  // namespace morvane::text
