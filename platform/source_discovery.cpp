// What an export file holds, the name it gives, and the known tree layouts.
//
// Layouts:
//   flat          all exports in one folder; kind from the content, file
//                 prefixes Form_/Report_/Macro_/Module_/Query_ optional.
//   folders       a folder per kind (forms/, reports/, macros/ or scripts/,
//                 modules/, queries/, any capitalisation), any extension.
//   msaccess-vcs  folders per kind as version-control add-ins write them:
//                 .bas for form, report, macro, query and module text, .cls
//                 for class modules and code behind, .sql beside a query,
//                 JSON files at the top for database properties and references.
//   oasis         source-control exports with .acf (form), .acr (report),
//                 .acs (macro), .acm (module), .acq (query), in any folder.
// Detection looks at the top of the directory; whatever layout it finds, an
// undirected ("auto") read still takes every file by its content.
#include "platform/source_discovery.h"

#include <cctype>

#include "platform/encoding.h"
#include "platform/source_module.h"
#include "platform/text_fold.h"

namespace morvane {

using text::IEquals;
using text::IStartsWith;
using text::Lower;
using text::Trim;

namespace {

constexpr std::string_view kExportExtensions =
    "|.txt|.bas|.cls|.form|.report|.mac|.macro|.frm|.rpt|.acf|.acr|.acm|.acs|.acq|.qry|.query|"
    ".sql|.def|.mod|.module|.vba|";

constexpr std::string_view kQuietExtensions =
    "|.mdb|.accdb|.adp|.mde|.accde|.ade|.ldb|.laccdb|.mdw|.png|.jpg|.jpeg|.gif|.bmp|.ico|.emf|"
    ".wmf|.zip|.7z|.gz|.pdf|.frx|.dsx|.ocx|.dll|.exe|.md|.json|.xml|.yml|.yaml|.ini|.csv|.html|"
    ".htm|.css|.js|.log|.sh|.ps1|.bat|.cmd|.vbs|.py|.gitignore|.gitattributes|.editorconfig|";

struct KindPrefix {
  AccessObjectKind Kind;
  std::string_view Prefix;
};

constexpr KindPrefix kPrefixes[] = {
    {AccessObjectKind::Form, "Form_"},   {AccessObjectKind::Report, "Report_"},
    {AccessObjectKind::Macro, "Macro_"}, {AccessObjectKind::Module, "Module_"},
    {AccessObjectKind::Query, "Query_"},
};

struct KindFolder {
  std::string_view Folder;
  AccessObjectKind Kind;
};

constexpr KindFolder kFolders[] = {
    {"forms", AccessObjectKind::Form},     {"form", AccessObjectKind::Form},
    {"reports", AccessObjectKind::Report}, {"report", AccessObjectKind::Report},
    {"macros", AccessObjectKind::Macro},   {"macro", AccessObjectKind::Macro},
    {"scripts", AccessObjectKind::Macro},  {"modules", AccessObjectKind::Module},
    {"module", AccessObjectKind::Module},  {"queries", AccessObjectKind::Query},
    {"query", AccessObjectKind::Query},
};

constexpr LayoutRule kLayouts[] = {
    {"flat", false, false, ""},
    {"folders", true, true, ""},
    {"msaccess-vcs", true, true, "|.bas|.cls|.sql|.txt|"},
    {"oasis", true, false, "|.acf|.acr|.acs|.acm|.acq|.sql|"},
};

// Files at the top of a tree written by version-control add-ins.
constexpr std::string_view kVcsMarkers[] = {"vbe-project.json", "vbe-references.json",
                                            "dbs-properties.json", "project.json"};

// First words of a line of module code.
constexpr std::string_view kCodeStarts[] = {
    "Option ",  "'",       "Rem ",    "#If ",     "#Const ", "Dim ",    "Public ",
    "Private ", "Global ", "Const ",  "Declare ", "Type ",   "Enum ",   "Implements ",
    "DefInt ",  "DefLng ", "DefStr ", "DefBool ", "DefVar ", "Friend ", "Static ",
};

bool InList(std::string_view list, std::string_view ext) {
  if (ext.empty()) return false;
  std::string key = "|" + Lower(ext) + "|";
  return list.find(key) != std::string_view::npos;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool HasKeyLine(std::span<const std::string_view> lines, std::string_view key) {
  for (const auto& l : lines) {
    std::string_view t = Trim(l);
    if (IStartsWith(t, key) && Trim(t.substr(key.size())).substr(0, 1) == "=") return true;
  }
  return false;
}

// A macro saved with no actions: its "Version =" line and at most its
// column settings.
bool IsEmptyMacro(std::span<const std::string_view> lines, size_t first) {
  if (!IStartsWith(Trim(lines[first]), "Version =")) return false;
  for (size_t k = first + 1; k < lines.size(); ++k) {
    std::string_view t = Trim(lines[k]);
    if (!t.empty() && !IStartsWith(t, "ColumnsShown =")) return false;
  }
  return true;
}

bool HasSqlMemo(std::span<const std::string_view> lines) {
  for (const auto& l : lines)
    if (IStartsWith(Trim(l), "dbMemo \"SQL\"")) return true;
  return false;
}

}  // namespace

ExportKind ClassifyExport(std::span<const std::string_view> lines, std::string_view extension) {
  size_t i = 0;
  while (i < lines.size() && Trim(lines[i]).empty()) ++i;
  if (i == lines.size()) return ExportKind::None;
  if (InList("|.sql|", extension)) return ExportKind::Sql;
  std::string_view first = Trim(lines[i]);
  if (IStartsWith(first, "VERSION 1.0 CLASS")) return ExportKind::ClassModule;
  if (IStartsWith(first, "Attribute ")) {
    // The module's Attribute lines: a class carries its own (Access writes
    // them without a VB_Name), a standard module only VB_Name.
    bool named = false;
    for (size_t k = i; k < lines.size() && IStartsWith(Trim(lines[k]), "Attribute "); ++k) {
      if (IsClassAttributeLine(lines[k])) return ExportKind::ClassModule;
      if (IStartsWith(Trim(lines[k]), "Attribute VB_Name")) named = true;
    }
    if (named) return ExportKind::StandardModule;
  }

  // The lines before the first block say what the design text is.
  for (size_t k = i; k < lines.size(); ++k) {
    std::string_view t = Trim(lines[k]);
    if (IStartsWith(t, "Operation =") || IStartsWith(t, "dbMemo \"SQL\"")) return ExportKind::Query;
    if (!IStartsWith(t, "Begin")) continue;
    if (t == "Begin Form") return ExportKind::Form;
    if (t == "Begin Report") return ExportKind::Report;
    if (t == "Begin InputTables" || t == "Begin OutputColumns") return ExportKind::Query;
    if (t == "Begin" && IStartsWith(first, "Version =") &&
        (HasKeyLine(lines, "Action") || HasKeyLine(lines, "MacroName") ||
         HasKeyLine(lines, "Comment")))
      return ExportKind::Macro;
    break;
  }
  if (HasSqlMemo(lines)) return ExportKind::Query;
  if (IsEmptyMacro(lines, i)) return ExportKind::Macro;
  if (IsProcedureHeader(first)) return ExportKind::StandardModule;
  for (auto start : kCodeStarts)
    if (IStartsWith(first, start)) return ExportKind::StandardModule;
  return ExportKind::None;
}

std::string NameFromFileName(const std::filesystem::path& file) {
  std::string name = file.filename().string();
  for (int round = 0; round < 2; ++round) {
    size_t dot = name.rfind('.');
    if (dot == std::string::npos || dot == 0 || !IsExportExtension(name.substr(dot))) break;
    name.erase(dot);
  }
  std::string decoded;
  for (size_t i = 0; i < name.size(); ++i) {
    if (name[i] == '%' && i + 2 < name.size() && HexValue(name[i + 1]) >= 0 &&
        HexValue(name[i + 2]) >= 0) {
      decoded += static_cast<char>(HexValue(name[i + 1]) * 16 + HexValue(name[i + 2]));
      i += 2;
    } else {
      decoded += name[i];
    }
  }
  return Utf8NameToWindows1252(decoded);
}

std::string StripKindPrefix(const std::string& name, AccessObjectKind kind) {
  for (const auto& p : kPrefixes)
    if (p.Kind == kind && name.size() > p.Prefix.size() && IStartsWith(name, p.Prefix))
      return name.substr(p.Prefix.size());
  return name;
}

bool IsExportExtension(std::string_view extension) { return InList(kExportExtensions, extension); }

bool IsQuietlySkipped(std::string_view extension) { return InList(kQuietExtensions, extension); }

bool KindOfFolder(std::string_view folder, AccessObjectKind* kind) {
  for (const auto& f : kFolders)
    if (IEquals(folder, f.Folder)) {
      *kind = f.Kind;
      return true;
    }
  return false;
}

const LayoutRule* FindLayout(std::string_view name) {
  for (const auto& l : kLayouts)
    if (IEquals(l.Name, name)) return &l;
  return nullptr;
}

std::string LayoutNames() {
  std::string out = "auto";
  for (const auto& l : kLayouts) out += ", " + std::string(l.Name);
  return out;
}

const LayoutRule& DetectLayout(const std::filesystem::path& dir) {
  namespace fs = std::filesystem;
  bool kindFolders = false, vcsMarker = false, oasisFiles = false;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(dir, ec)) {
    std::string name = entry.path().filename().string();
    AccessObjectKind kind;
    if (entry.is_directory(ec) && KindOfFolder(name, &kind)) kindFolders = true;
    for (auto marker : kVcsMarkers)
      if (IEquals(name, marker)) vcsMarker = true;
  }
  if (!kindFolders) {
    int seen = 0;
    for (auto it = fs::recursive_directory_iterator(dir, ec);
         !ec && it != fs::recursive_directory_iterator() && seen < 2000; it.increment(ec), ++seen)
      if (InList("|.acf|.acr|.acs|.acm|.acq|", it->path().extension().string())) oasisFiles = true;
  }
  if (kindFolders) return *FindLayout(vcsMarker ? "msaccess-vcs" : "folders");
  return *FindLayout(oasisFiles ? "oasis" : "flat");
}

}  // namespace morvane
