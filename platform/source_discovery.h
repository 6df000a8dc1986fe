// Finding the objects of a source tree: what an export file holds (decided by
// its content), the object name its file name gives, and the layouts of
// export trees that discovery knows.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/source_tree.h"

namespace morvane {

enum class ExportKind {
  None,            // no Access export
  Form,            // Begin Form
  Report,          // Begin Report
  Macro,           // Version =, then Begin/Action = records
  StandardModule,  // Attribute VB_Name, Option Compare Database or other code
  ClassModule,     // VERSION 1.0 CLASS, or the class's own Attribute lines
  Query,           // dbMemo "SQL" =, Operation =
  Sql,             // SQL text alone, in a .sql file
};

// The kind of an export by its decoded lines; `extension` (lower case, with
// the dot) only tells SQL text apart from other text.
ExportKind ClassifyExport(std::span<const std::string_view> lines, std::string_view extension);

// The object name a file name gives: known export extensions removed, %xx
// escapes decoded, UTF-8 turned into Windows-1252. Prefixes stay.
std::string NameFromFileName(const std::filesystem::path& file);
// Removes the kind's usual file prefix ("Form_", "Report_", "Macro_",
// "Module_", "Query_"), without regard to case, when a name remains.
std::string StripKindPrefix(const std::string& name, AccessObjectKind kind);

// Whether the extension (lower case, with the dot) is one export tools use.
bool IsExportExtension(std::string_view extension);
// Files beside a tree that are no export and are skipped without a word:
// the database itself, pictures, archives.
bool IsQuietlySkipped(std::string_view extension);

// The kind a folder name stands for ("forms", "Reports", "macros",
// "scripts", "modules", "queries", singular or plural); false for others.
bool KindOfFolder(std::string_view folder, AccessObjectKind* kind);

// Layouts of export trees. "auto" (or "") detects one and reads every file by
// its content; naming a layout restricts discovery to what that layout holds.
struct LayoutRule {
  std::string_view Name;
  bool Recurse;                 // walks sub-folders
  bool KindFolders;             // objects only in folders named for their kind
  std::string_view Extensions;  // "|ext|ext|" accepted, empty for any
};
const LayoutRule* FindLayout(std::string_view name);
std::string LayoutNames();
// The layout whose shape the directory has.
const LayoutRule& DetectLayout(const std::filesystem::path& dir);

}  // namespace morvane
