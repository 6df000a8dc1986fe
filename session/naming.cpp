// Naming helpers and the case-insensitive text primitives they rest on.
#include "session/naming.h"

#include "platform/text_fold.h"

namespace morvane {

static inline unsigned char Fold(unsigned char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c + 32) : c;
}

static inline bool IsAsciiAlnum(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

std::string SafeName(std::string_view name) {
  std::string out;
  out.reserve(name.size());
  for (unsigned char c : name) out += (c < 129 && !IsAsciiAlnum(c)) ? '_' : static_cast<char>(c);
  size_t first = out.find_first_not_of('_');
  return first == std::string::npos ? std::string() : out.substr(first);
}

std::string SafeFileName(std::string_view name) {
  static constexpr std::string_view kForbidden = "\\/:*?\"<>|";
  std::string out(name);
  for (char bad : kForbidden)
    for (char& c : out)
      if (c == bad) c = '_';
  return out;
}

std::string FileNameOf(std::string_view path) {
  size_t pos = path.find_last_of("\\/");
  return std::string(pos == std::string_view::npos ? path : path.substr(pos + 1));
}

std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with) {
  if (text.empty()) return std::string();
  if (find.empty()) return std::string(text);
  std::string out;
  size_t pos = 0;
  for (;;) {
    size_t hit = FindNoCase(text, find, pos);
    if (hit == std::string_view::npos) break;
    out.append(text.substr(pos, hit - pos));
    out.append(with);
    pos = hit + find.size();
  }
  out.append(text.substr(pos));
  return out;
}

bool StartsWithLetter(std::string_view text) {
  if (text.empty()) return false;
  unsigned char c = text[0];
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EqualsNoCase(std::string_view a, std::string_view b) { return text::IEquals(a, b); }

bool StartsWithNoCase(std::string_view s, std::string_view prefix) {
  return text::IStartsWith(s, prefix);
}

bool EndsWithNoCase(std::string_view s, std::string_view suffix) {
  return text::IEndsWith(s, suffix);
}

size_t FindNoCase(std::string_view text, std::string_view find, size_t from) {
  if (find.empty()) return from <= text.size() ? from : std::string_view::npos;
  if (text.size() < find.size()) return std::string_view::npos;
  unsigned char first = Fold(find[0]);
  for (size_t i = from; i + find.size() <= text.size(); ++i) {
    if (Fold(text[i]) != first) continue;
    if (EqualsNoCase(text.substr(i, find.size()), find)) return i;
  }
  return std::string_view::npos;
}

std::string ToLower(std::string_view s) { return text::Lower(s); }

std::string ToUpper(std::string_view text) {
  std::string out(text);
  for (char& c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  return out;
}

std::string TrimBlanks(std::string_view text) {
  size_t b = text.find_first_not_of(' ');
  if (b == std::string_view::npos) return std::string();
  size_t e = text.find_last_not_of(' ');
  return std::string(text.substr(b, e - b + 1));
}

}  // namespace morvane
