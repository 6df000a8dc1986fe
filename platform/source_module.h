// Module text out of an export: the code lines as the VBA editor shows them
// (no class header, no Attribute lines), the module type, and the count of
// declaration lines.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/source_tree.h"

namespace morvane {

// True for a line that opens a procedure: Sub, Function or Property
// Get/Let/Set, optionally after Public/Private/Friend and Static.
bool IsProcedureHeader(std::string_view line);

// The number of lines before the first procedure, as the VBA editor counts
// them: a procedure begins with the comments and compilation constants that
// immediately precede its header, and the editor draws the separator right
// under the last declaration, so blank lines directly above go with the
// procedure too. A module without procedures is all declarations.
int CountDeclarationLines(const std::vector<std::string>& code);

// A standard or class module's export. `vbName` receives the value of
// `Attribute VB_Name` (empty when the file has none).
ModuleCode ModuleFromExport(const std::vector<std::string>& lines, std::string* vbName);
// The same, taking the lines over rather than copying them.
ModuleCode ModuleFromExport(std::vector<std::string>&& lines, std::string* vbName);

// The name ModuleFromExport gives a module export, without copying its code.
std::string ModuleNameOfExport(std::span<const std::string_view> lines);

// Whether the line is one of the Attribute lines that only a class module
// carries (VB_GlobalNameSpace, VB_Creatable, VB_PredeclaredId, VB_Exposed).
bool IsClassAttributeLine(std::string_view line);

// The number of lines of the VBA editor's class header (VERSION 1.0 CLASS
// and its BEGIN ... END block) at the start of a module text; 0 without one.
size_t ClassHeaderLength(const std::vector<std::string>& lines);
size_t ClassHeaderLength(std::span<const std::string_view> lines);

// The code behind of a form or report from the lines that follow its
// CodeBehindForm line, without their Attribute lines.
ModuleCode CodeBehindFromCode(std::vector<std::string>&& lines);
// Whether the lines after a CodeBehindForm line hold any code behind.
bool HasCodeLines(std::span<const std::string_view> code);
// Where in a design's text the lines after its CodeBehindForm line start (the
// text's size when that line is the last); npos when no line reads so.
size_t CodeBehindOffset(std::string_view text);

// Where a design's code lies in a file of its own, the design keeps after
// CodeBehindForm only a comment naming that file (' See "Name.cls"). The
// file name when the code behind is such a stub and nothing else; empty
// otherwise.
std::string CodeFileOfStub(const std::vector<std::string>& lines);
// The same from the lines after the CodeBehindForm line.
std::string CodeFileOfStubCode(std::span<const std::string_view> code);

// The value of an `Attribute VB_Name = "..."` line, or empty.
std::string VbNameOf(std::string_view line);

}  // namespace morvane
