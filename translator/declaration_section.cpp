// Repeated declarations of a declarations section.
#include "translator/declaration_section.h"

#include "session/naming.h"
#include "translator/vb_code.h"

namespace morvane {

namespace {

// Lines that stand as statements of their own, outside blocks.
std::vector<bool> StandAlone(const std::vector<std::string>& lines, size_t count) {
  std::vector<bool> alone(count, false);
  bool continued = false;
  int blocks = 0;  // Type, Enum and #If blocks open
  for (size_t i = 0; i < count; ++i) {
    const std::string code = CodePart(lines[i]);
    std::string_view rest = code;
    for (std::string_view scope : {"Public ", "Private "})
      if (StartsWithNoCase(rest, scope)) rest = rest.substr(scope.size());
    const bool opens = StartsWithNoCase(rest, "Type ") || StartsWithNoCase(rest, "Enum ") ||
                       StartsWithNoCase(code, "#If ");
    const bool closes = StartsWithNoCase(code, "End Type") || StartsWithNoCase(code, "End Enum") ||
                        StartsWithNoCase(code, "#End If");
    alone[i] = !continued && blocks == 0 && !opens && !ContinuesOnNextLine(lines[i]);
    if (opens) ++blocks;
    if (closes && blocks > 0) --blocks;
    continued = ContinuesOnNextLine(lines[i]);
  }
  return alone;
}

}  // namespace

bool RepeatsDeclaration(const std::vector<std::string>& lines, size_t index) {
  // A comment makes no statement: the user's repeated comment lines (a rule
  // of dashes between declarations) all stay.
  if (index >= lines.size() || TrimBlanks(CodePart(lines[index])).empty()) return false;
  const std::vector<bool> alone = StandAlone(lines, index + 1);
  if (!alone[index]) return false;
  for (size_t i = 0; i < index; ++i)
    if (alone[i] && lines[i] == lines[index]) return true;
  return false;
}

}  // namespace morvane
