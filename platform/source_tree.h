// The Access source tree: the directory of SaveAsText exports that stands in
// for Access itself. It finds every form, report, macro, module and query in
// the tree, names it, and hands out module code, macro text and (for the form
// and report walkers) designs.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/catalog.h"

namespace morvane {

enum class AccessObjectKind { Form, Report, Macro, Module, Query };

struct SourceObject {
  AccessObjectKind Kind = AccessObjectKind::Module;
  std::string Name;                // Windows-1252
  std::filesystem::path File;      // the export that holds the object
  std::filesystem::path CodeFile;  // separate code-behind file, when the layout has one
};

// The code of one module object as the VBA editor shows it: header and
// Attribute lines are not part of it.
struct ModuleCode {
  int Type = 0;  // 0 standard module, 1 class module (forms and reports: 1)
  std::vector<std::string> Code;
  int CountOfDeclarationLines = 0;

  int CountOfLines() const { return static_cast<int>(Code.size()); }
  // Lines start .. start+count-1 (1-based) joined by CR LF, without a CR LF
  // after the last one; empty when count < 1.
  std::string Lines(int start, int count) const;
};

class SourceTree {
 public:
  // Reads the directory. `layout` is "" or "auto" to detect the layout from
  // what the directory holds, or the name of one layout to force it. Returns
  // null with a one-line reason when the directory cannot serve as a source.
  static std::unique_ptr<SourceTree> Open(const std::filesystem::path& dir,
                                          const std::string& layout, std::string* err);
  virtual ~SourceTree() = default;

  virtual const std::filesystem::path& Root() const = 0;
  // The layout the tree was read as ("flat", "folders", ...), empty when the
  // implementation has none.
  virtual std::string Layout() const { return {}; }
  virtual const std::vector<SourceObject>& Objects() const = 0;
  // Names of one kind, in catalog order (by name, without regard to case).
  std::vector<std::string> Names(AccessObjectKind kind) const;
  const SourceObject* Find(AccessObjectKind kind, const std::string& name) const;

  // The module of a standard/class module, or the code behind a form or
  // report. A form or report without code gives an empty module and true.
  virtual bool LoadModule(AccessObjectKind kind, const std::string& name, ModuleCode* out,
                          std::string* err) const = 0;
  // The export text of a form or report as Windows-1252 lines, with its
  // code: where the layout keeps the code in a file of its own, the lines
  // after CodeBehindForm are that file's module text, so that the design and
  // its module read as one export. This implementation reads the object's
  // file as it is.
  virtual bool LoadDesignText(AccessObjectKind kind, const std::string& name,
                              std::vector<std::string>* lines, std::string* err) const;
  // The same text in one piece, each line ended by CR LF where a line end
  // was added; splitting it gives the lines above. This implementation
  // joins them.
  virtual bool LoadDesignBytes(AccessObjectKind kind, const std::string& name, std::string* text,
                               std::string* err) const;
  // A macro's saved text, converted to Windows-1252 lines.
  virtual bool LoadMacroText(const std::string& name, std::vector<std::string>* lines,
                             std::string* err) const = 0;

  // The catalog the tree offers when no database file is given: containers
  // Forms/Modules/Reports/Scripts, queries with SQL and type, and the
  // database properties and references that the export carries.
  virtual std::unique_ptr<MemoryCatalog> BuildCatalog() const = 0;

  // Problems met while reading (a file that is no Access export, a character
  // with no Windows-1252 form, two files for one object), each naming the
  // file and, where it applies, the line. These messages, like the errors
  // of the tree, are UTF-8: file names stand in them as they are on disk.
  virtual const std::vector<std::string>& Warnings() const = 0;
};

}  // namespace morvane
