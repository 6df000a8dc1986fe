// Naming helpers and the case-insensitive text primitives they rest on.
#include "session/naming.h"

#include <algorithm>
#include <cstring>
#include <utility>

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

bool IsNameLetter(unsigned char c) {
  if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) return true;
  // Š Œ Ž š œ ž Ÿ ª µ º and the Latin-1 letters but × and ÷.
  switch (c) {
    case 0x8A:
    case 0x8C:
    case 0x8E:
    case 0x9A:
    case 0x9C:
    case 0x9E:
    case 0x9F:
    case 0xAA:
    case 0xB5:
    case 0xBA:
      return true;
    default:
      return c >= 0xC0 && c != 0xD7 && c != 0xF7;
  }
}

bool IsNameCharacter(unsigned char c) {
  return IsNameLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

std::string VbIdentifier(std::string_view name, std::string_view prefix, size_t maxLength) {
  std::string out;
  out.reserve(name.size());
  for (unsigned char c : name) out += IsNameCharacter(c) ? static_cast<char>(c) : '_';
  out.erase(0, std::min(out.find_first_not_of('_'), out.size()));
  if (out.empty() || !IsNameLetter(static_cast<unsigned char>(out[0])))
    out.insert(0, prefix.empty() ? std::string_view("a") : prefix);
  if (out.size() > maxLength) out.resize(maxLength);
  return out;
}

std::vector<std::string> VbStringLines(std::string_view text) {
  std::string flat;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      flat += ' ';
    } else {
      flat += c;
      if (c == '"') flat += '"';
    }
  }
  return QuotedStringLines(flat);
}

std::vector<std::string> QuotedStringLines(std::string_view escaped) {
  constexpr size_t kPiece = 900;
  std::vector<std::string> lines;
  for (const std::string& piece : QuotedPieces(escaped, kPiece))
    lines.push_back("\"" + piece + "\"");
  if (lines.empty()) lines.emplace_back("\"\"");
  for (size_t k = 0; k + 1 < lines.size(); ++k) lines[k] += " & _";
  return lines;
}

std::vector<std::string> QuotedPieces(std::string_view escaped, size_t most) {
  std::vector<std::string> out;
  std::string piece;
  for (size_t i = 0; i < escaped.size(); ++i) {
    piece += escaped[i];
    if (escaped[i] == '"' && i + 1 < escaped.size() && escaped[i + 1] == '"') piece += escaped[++i];
    if (piece.size() >= most) out.push_back(std::exchange(piece, {}));
  }
  if (!piece.empty()) out.push_back(piece);
  return out;
}

std::string DataControlName(std::string_view formVbName) {
  std::string name = "dat" + std::string(formVbName);
  if (name.size() > 40) name.resize(40);
  return name;
}

std::string ControlProjectName(std::string_view projectName) {
  // A class name is at most 39 characters with its project's name and the
  // point between them: a short project name leaves room for the class.
  return VbIdentifier(projectName, "a", 17) + "_CF";
}

bool IsReservedWord(std::string_view name) {
  static constexpr std::string_view kWords[] = {
      "And",        "As",       "Boolean",  "ByRef",    "Byte",    "ByVal",      "Call",
      "Case",       "Const",    "Currency", "Date",     "Declare", "Dim",        "Do",
      "Double",     "Each",     "Else",     "ElseIf",   "Empty",   "End",        "Enum",
      "Eqv",        "Erase",    "Event",    "Exit",     "False",   "For",        "Friend",
      "Function",   "Get",      "Global",   "GoSub",    "GoTo",    "If",         "Imp",
      "Implements", "In",       "Integer",  "Is",       "Let",     "Like",       "Long",
      "Loop",       "LSet",     "Me",       "Mod",      "New",     "Next",       "Not",
      "Nothing",    "Null",     "Object",   "On",       "Option",  "Optional",   "Or",
      "ParamArray", "Preserve", "Private",  "Property", "Public",  "RaiseEvent", "ReDim",
      "Resume",     "Return",   "RSet",     "Select",   "Set",     "Single",     "Static",
      "Step",       "Stop",     "String",   "Sub",      "Then",    "To",         "True",
      "Type",       "TypeOf",   "Until",    "Variant",  "Wend",    "While",      "With",
      "WithEvents", "Xor",      "Form",     "Forms",    "App",     "Screen",     "Printer",
      "Clipboard",  "Debug",    "Err",      "VB",       "VBA",
  };
  for (std::string_view w : kWords)
    if (text::IEquals(w, name)) return true;
  return false;
}

bool IsDeviceName(std::string_view stem) {
  static constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
  for (std::string_view d : kDevices)
    if (text::IEquals(d, stem)) return true;
  if (stem.size() == 4 && (text::IStartsWith(stem, "COM") || text::IStartsWith(stem, "LPT")))
    return stem[3] >= '0' && stem[3] <= '9';
  return false;
}

size_t FindNoCase(std::string_view text, std::string_view find, size_t from) {
  if (find.empty()) return from <= text.size() ? from : std::string_view::npos;
  if (text.size() < find.size()) return std::string_view::npos;
  const size_t last = text.size() - find.size();
  if (from > last) return std::string_view::npos;
  // A needle that ends in a character that is neither a letter nor a blank
  // ("Application.", "DSum(") is looked for by that character, which stands
  // in the text in one spelling and seldom: memchr finds its places, and the
  // text is compared around each.
  size_t anchor = find.size() - 1;
  const unsigned char end = static_cast<unsigned char>(find[anchor]);
  if ((Fold(end) >= 'a' && Fold(end) <= 'z') || end == ' ' || end == '\t') anchor = 0;
  if (anchor > 0 && anchor < find.size()) {
    const char a = find[anchor];
    const char* data = text.data();
    for (size_t at = from + anchor; at <= last + anchor;) {
      const void* hit = std::memchr(data + at, a, last + anchor - at + 1);
      if (!hit) return std::string_view::npos;
      const size_t h = static_cast<size_t>(static_cast<const char*>(hit) - data);
      if (EqualsNoCase(text.substr(h - anchor, find.size()), find)) return h - anchor;
      at = h + 1;
    }
    return std::string_view::npos;
  }
  // The first character is looked for in both its cases with memchr, which
  // passes over the text far faster than a loop that folds each character.
  const char lower = static_cast<char>(Fold(find[0]));
  const char upper = (lower >= 'a' && lower <= 'z') ? static_cast<char>(lower - 32) : lower;
  const std::string_view rest = find.substr(1);
  auto next = [&](char c, size_t at) -> size_t {
    if (at > last) return std::string_view::npos;
    const void* hit = std::memchr(text.data() + at, c, last - at + 1);
    return hit ? static_cast<size_t>(static_cast<const char*>(hit) - text.data())
               : std::string_view::npos;
  };
  size_t a = next(lower, from);
  size_t b = upper == lower ? std::string_view::npos : next(upper, from);
  while (a != std::string_view::npos || b != std::string_view::npos) {
    const size_t i = std::min(a, b);
    if (EqualsNoCase(text.substr(i + 1, rest.size()), rest)) return i;
    if (i == a) a = next(lower, i + 1);
    if (i == b) b = next(upper, i + 1);
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
