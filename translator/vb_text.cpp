// Position-based text primitives of the rule code.
#include "translator/vb_text.h"

#include <algorithm>

#include "session/naming.h"

namespace morvane {

int Len(std::string_view text) { return static_cast<int>(text.size()); }

int InStr(std::string_view text, std::string_view find, int start) {
  if (start < 1 || start > Len(text) + 1) return 0;
  size_t hit = FindNoCase(text, find, static_cast<size_t>(start - 1));
  return hit == std::string_view::npos ? 0 : static_cast<int>(hit) + 1;
}

int InStrExact(std::string_view text, std::string_view find, int start) {
  if (start < 1 || start > Len(text) + 1) return 0;
  size_t hit = text.find(find, static_cast<size_t>(start - 1));
  return hit == std::string_view::npos ? 0 : static_cast<int>(hit) + 1;
}

int InStrRev(std::string_view text, std::string_view find) {
  if (find.size() > text.size()) return 0;
  for (size_t i = text.size() - find.size() + 1; i-- > 0;)
    if (EqualsNoCase(text.substr(i, find.size()), find)) return static_cast<int>(i) + 1;
  return 0;
}

bool Contains(std::string_view text, std::string_view find) {
  return FindNoCase(text, find) != std::string_view::npos;
}

std::string Mid(std::string_view text, int start) {
  if (start < 1) start = 1;
  if (start > Len(text)) return std::string();
  return std::string(text.substr(static_cast<size_t>(start - 1)));
}

std::optional<std::string> Mid(std::string_view text, int start, int length) {
  if (start < 1 || length < 0) return std::nullopt;
  if (start > Len(text)) return std::string();
  return std::string(text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(length)));
}

std::optional<std::string> Left(std::string_view text, int length) {
  if (length < 0) return std::nullopt;
  return std::string(text.substr(0, std::min(text.size(), static_cast<size_t>(length))));
}

}  // namespace morvane
