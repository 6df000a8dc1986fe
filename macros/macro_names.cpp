// Cleaning and numbering of macro procedure names.
#include "macros/macro_names.h"

#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

bool IsValidObjectName(std::string_view name) {
  if (name.empty() || name.size() > 64) return false;
  if (name[0] == '=' || name[0] == ' ') return false;
  for (char c : name) {
    if (static_cast<unsigned char>(c) < 32) return false;
    if (std::string_view("!.[]`").find(c) != std::string_view::npos) return false;
  }
  return true;
}

std::string CleanMacroName(std::string_view text, std::string_view prefix, int limit) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool keep =
        i == 0 ? IsValidObjectName(std::string(1, c)) : IsValidObjectName(std::string("ZZ") + c);
    out += keep ? c : '_';
  }
  if (!out.empty() && out[0] == '_') out = std::string(prefix) + out;
  if (limit > 0 && out.size() > static_cast<size_t>(limit)) out.resize(limit);
  return out;
}

std::string UniqueMacroName(std::vector<std::string>& used, const std::string& name) {
  if (used.empty()) {
    used.push_back(name);
    return name;
  }
  // One pass only: a later element may equal the numbered name and nothing
  // checks again.
  std::string c = name;
  int k = 0;
  for (const auto& element : used) {
    if (element == c) {
      ++k;
      c = name.substr(0, 28) + std::to_string(k);
    }
  }
  used.push_back(c);
  return c;
}

std::string MacroIdentifier(std::string_view name) { return VbIdentifier(name, "Proc", 255); }

std::string MacroProcName(ConversionSession& s, const std::string& macro, const std::string& sub) {
  std::string n;
  if (!sub.empty()) {
    n = CleanMacroName(macro + "_" + sub, "Proc", 0);
    if (n.size() > 30) n = CleanMacroName(macro, "Proc", 14) + "_" + CleanMacroName(sub, "", 14);
  } else {
    n = CleanMacroName(macro, "Proc", 29);
  }
  const std::string identifier = MacroIdentifier(UniqueMacroName(s.MacroProcNames, n));
  // Names that differ only in case or in characters an identifier cannot
  // hold ("+{F1}", "^{F1}") would define one procedure twice: the later one
  // is numbered.
  auto taken = [&](const std::string& name) {
    for (const auto& used : s.MacroProcIdentifiers)
      if (EqualsNoCase(used, name)) return true;
    return false;
  };
  std::string unique = identifier;
  for (int k = 1; taken(unique); ++k) unique = identifier.substr(0, 28) + std::to_string(k);
  s.MacroProcIdentifiers.push_back(unique);
  return unique;
}

}  // namespace morvane
