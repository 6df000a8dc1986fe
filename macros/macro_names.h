// Procedure names of macros: Access object names cleaned into Visual Basic
// identifiers and kept unique across the macros of a run.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct ConversionSession;

// The rule for Access object names.
bool IsValidObjectName(std::string_view name);
// Each character that cannot stand in an object name becomes "_"; a result
// that begins with "_" gets `prefix`; `limit` above 0 cuts the result.
std::string CleanMacroName(std::string_view text, std::string_view prefix, int limit);
// Adds `name` to `used`, numbered when it is already there.
std::string UniqueMacroName(std::vector<std::string>& used, const std::string& name);
// A macro's name as a procedure name: a Visual Basic identifier, "Proc" ahead
// of one that would not start with a letter.
std::string MacroIdentifier(std::string_view name);
// The procedure name of macro `macro`, or of macro `sub` of group `macro`.
std::string MacroProcName(ConversionSession& s, const std::string& macro, const std::string& sub);

}  // namespace morvane
