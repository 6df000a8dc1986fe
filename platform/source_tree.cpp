// The source tree over a directory of exports: discovery at Open (every file
// read once, its kind taken from its content), then module code, macro text
// and the catalog served from the files on demand.
#include "platform/source_tree.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <span>

#include "platform/encoding.h"
#include "platform/source_discovery.h"
#include "platform/source_metadata.h"
#include "platform/source_module.h"
#include "platform/source_query.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace fs = std::filesystem;
using text::IEquals;
using text::IStartsWith;
using text::LessNoCase;
using text::Lower;

std::vector<std::string> SourceTree::Names(AccessObjectKind kind) const {
  std::vector<std::string> names;
  for (const auto& o : Objects())
    if (o.Kind == kind) names.push_back(o.Name);
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return LessNoCase(a, b); });
  return names;
}

const SourceObject* SourceTree::Find(AccessObjectKind kind, const std::string& name) const {
  for (const auto& o : Objects())
    if (o.Kind == kind && IEquals(o.Name, name)) return &o;
  return nullptr;
}

bool SourceTree::LoadDesignText(AccessObjectKind kind, const std::string& name,
                                std::vector<std::string>* lines, std::string* err) const {
  const SourceObject* o = Find(kind, name);
  if (!o) {
    if (err) *err = "no object \"" + Windows1252ToUtf8(name) + "\" in the tree";
    return false;
  }
  return ReadExportLines(o->File, lines, err);
}

bool SourceTree::LoadDesignBytes(AccessObjectKind kind, const std::string& name, std::string* text,
                                 std::string* err) const {
  std::vector<std::string> lines;
  if (!LoadDesignText(kind, name, &lines, err)) return false;
  *text = JoinCrLf(lines);
  return true;
}

namespace {

// A user form of the Visual Basic editor: "VERSION 5.00", then the designer
// block of Microsoft Forms 2.0.
bool IsUserForm(std::span<const std::string_view> lines) {
  size_t i = 0;
  while (i < lines.size() && text::Trim(lines[i]).empty()) ++i;
  return i + 1 < lines.size() && IStartsWith(text::Trim(lines[i]), "VERSION 5.00") &&
         IStartsWith(text::Trim(lines[i + 1]), "Begin {C62A69F0-16DC-11CE-9E98-00AA00574A4F}");
}

constexpr size_t kBinaryProbeBytes = 4096;

const char* KindWord(AccessObjectKind kind) {
  switch (kind) {
    case AccessObjectKind::Form:
      return "form";
    case AccessObjectKind::Report:
      return "report";
    case AccessObjectKind::Macro:
      return "macro";
    case AccessObjectKind::Module:
      return "module";
    case AccessObjectKind::Query:
      return "query";
  }
  return "object";
}

bool ObjectKindOf(ExportKind e, AccessObjectKind* kind) {
  switch (e) {
    case ExportKind::Form:
      *kind = AccessObjectKind::Form;
      return true;
    case ExportKind::Report:
      *kind = AccessObjectKind::Report;
      return true;
    case ExportKind::Macro:
      *kind = AccessObjectKind::Macro;
      return true;
    case ExportKind::StandardModule:
    case ExportKind::ClassModule:
      *kind = AccessObjectKind::Module;
      return true;
    case ExportKind::Query:
    case ExportKind::Sql:
      *kind = AccessObjectKind::Query;
      return true;
    case ExportKind::None:
      break;
  }
  return false;
}

// One export file as discovery read it.
struct FoundFile {
  fs::path File;
  ExportKind Kind = ExportKind::None;
  std::string Stem;         // object name from the file name, prefix kept
  std::string VbName;       // modules: Attribute VB_Name
  QueryExport Query;        // queries
  std::string SqlText;      // .sql files
  bool CodeBehind = false;  // forms and reports: code after CodeBehindForm
  std::string StubFile;     // forms and reports: the code file a stub names
};

struct TreeQuery {
  QueryInfo Info;
  bool FromGrid = false;
  int Operation = 0;
};

class DirectorySourceTree : public SourceTree {
 public:
  bool Read(const fs::path& dir, const std::string& layout, std::string* err);

  const fs::path& Root() const override { return root_; }
  const std::vector<SourceObject>& Objects() const override { return objects_; }
  bool LoadModule(AccessObjectKind kind, const std::string& name, ModuleCode* out,
                  std::string* err) const override;
  bool LoadDesignText(AccessObjectKind kind, const std::string& name,
                      std::vector<std::string>* lines, std::string* err) const override;
  bool LoadDesignBytes(AccessObjectKind kind, const std::string& name, std::string* text,
                       std::string* err) const override;
  bool LoadMacroText(const std::string& name, std::vector<std::string>* lines,
                     std::string* err) const override;
  std::unique_ptr<MemoryCatalog> BuildCatalog() const override;
  const std::vector<std::string>& Warnings() const override { return warnings_; }
  std::string Layout() const override { return layout_; }

 private:
  bool Admit(const fs::path& file, const LayoutRule* forced);
  void ReadFile(const fs::path& file, const LayoutRule* forced);
  void ReadMetadata(const fs::path& file, MetadataKind kind);
  bool AddObject(AccessObjectKind kind, const std::string& name, const fs::path& file,
                 std::string* err);
  SourceObject* Indexed(AccessObjectKind kind, const std::string& name);
  bool AttachCode(const FoundFile& f, std::string* err);
  bool Resolve(std::string* err);
  void Warn(const fs::path& file, const std::string& message) {
    warnings_.push_back(file.string() + ": " + message);
  }

  fs::path root_;
  std::string layout_;
  std::vector<FoundFile> found_;
  std::vector<SourceObject> objects_;
  std::map<std::string, size_t> index_;       // "kind:lower-case name" -> objects_
  std::map<std::string, TreeQuery> queries_;  // by lower-case name
  // While resolving: designs by "folder/lower-case stem", and the designs
  // that carry their own code.
  std::map<std::string, size_t> besideDesign_;
  std::set<std::string> withCodeBehind_;
  std::map<size_t, std::string> stubs_;  // objects_ index -> the code file its stub names
  std::map<std::string, std::string> properties_;
  std::vector<ReferenceInfo> references_;
  std::vector<std::string> warnings_;
  // The decoded text of every export, read once while the tree is read; the
  // loaders split it again instead of reading the file a second time.
  struct DecodedExport {
    std::string Text;
    bool Stub = false;  // a design whose code behind only names its code file
  };
  std::map<std::string, DecodedExport> decoded_;
  bool ReadLines(const fs::path& file, std::vector<std::string>* lines, std::string* err) const;
  bool IsStub(const fs::path& design, const std::vector<std::string>& lines) const;
  bool CodeBehindLines(const SourceObject& o, std::vector<std::string>* code,
                       std::string* err) const;
};

// Forced layouts admit only the files their shape holds.
bool DirectorySourceTree::Admit(const fs::path& file, const LayoutRule* forced) {
  if (!forced) return true;
  std::string ext = "|" + Lower(file.extension().string()) + "|";
  if (!forced->Extensions.empty() && forced->Extensions.find(ext) == std::string_view::npos)
    return false;
  if (forced->KindFolders) {
    fs::path rel = file.lexically_relative(root_);
    AccessObjectKind kind;
    if (std::distance(rel.begin(), rel.end()) < 2 || !KindOfFolder(rel.begin()->string(), &kind))
      return false;
  }
  return true;
}

void DirectorySourceTree::ReadMetadata(const fs::path& file, MetadataKind kind) {
  std::vector<std::string> lines;
  std::string err;
  if (!ReadExportLines(file, &lines, &err)) {
    warnings_.push_back(err);
    return;
  }
  std::string text = JoinCrLf(lines);
  bool json = IEquals(file.extension().string(), ".json");
  bool ok = kind == MetadataKind::Properties ? ParseProperties(text, json, &properties_, &err)
                                             : ParseReferences(text, json, &references_, &err);
  if (!ok) Warn(file, err + "; not used");
}

void DirectorySourceTree::ReadFile(const fs::path& file, const LayoutRule* forced) {
  std::string ext = Lower(file.extension().string());
  if (MetadataKind meta = MetadataKindOf(file); meta != MetadataKind::None) {
    ReadMetadata(file, meta);
    return;
  }
  if (!Admit(file, forced) || IsQuietlySkipped(ext)) return;

  std::string bytes;
  std::string err;
  if (!ReadFileBytes(file, &bytes, &err)) {
    Warn(file, "cannot be read; skipped");
    return;
  }
  if (LooksBinary(std::string_view(bytes).substr(0, kBinaryProbeBytes))) {
    Warn(file, "binary file, not an Access export; skipped");
    return;
  }
  DecodedText text;
  switch (DecodeToWindows1252(bytes, &text, &err)) {
    case DecodeStatus::Binary:
      Warn(file, "binary file, not an Access export; skipped");
      return;
    case DecodeStatus::Invalid:
      Warn(file, err + "; skipped");
      return;
    case DecodeStatus::Ok:
      break;
  }
  // Views of the text, which goes into decoded_ once they are done with.
  const std::vector<std::string_view> lines = SplitLineViews(text.Text);
  FoundFile f;
  f.File = file;
  f.Kind = ClassifyExport(lines, ext);
  if (f.Kind == ExportKind::None) {
    if (IsUserForm(lines))
      Warn(file,
           "a VBA user form (Microsoft Forms 2.0), which Visual Basic 6 cannot load; "
           "neither it nor its code is converted");
    else if (IsExportExtension(ext))
      Warn(file, "not an Access export; skipped");
    return;
  }
  if (text.Unmappable > 0)
    warnings_.push_back(
        file.string() + ", line " + std::to_string(text.FirstUnmappableLine) + ": " +
        std::to_string(text.Unmappable) +
        " character(s) with no Windows-1252 form became their plain letter or \"?\"");
  if (forced && forced->KindFolders) {
    AccessObjectKind folderKind, contentKind;
    KindOfFolder(file.lexically_relative(root_).begin()->string(), &folderKind);
    ObjectKindOf(f.Kind, &contentKind);
    bool codeBehind =
        contentKind == AccessObjectKind::Module &&
        (folderKind == AccessObjectKind::Form || folderKind == AccessObjectKind::Report);
    if (folderKind != contentKind && !codeBehind) {
      Warn(file, std::string("holds a ") + KindWord(contentKind) + " but lies in a folder of " +
                     KindWord(folderKind) + "s; skipped");
      return;
    }
  }
  f.Stem = NameFromFileName(file);
  if (f.Kind == ExportKind::StandardModule || f.Kind == ExportKind::ClassModule)
    f.VbName = ModuleNameOfExport(lines);
  if (f.Kind == ExportKind::Query) {
    std::string note;
    f.Query = QueryFromExport(std::vector<std::string>(lines.begin(), lines.end()), &note);
    if (!note.empty()) Warn(file, note);
  }
  if (f.Kind == ExportKind::Sql) f.SqlText = text.Text;
  if (f.Kind == ExportKind::Form || f.Kind == ExportKind::Report) {
    // Only the lines after CodeBehindForm are looked at again.
    const std::string_view all = text.Text;
    if (const size_t at = CodeBehindOffset(all); at != std::string_view::npos) {
      const std::vector<std::string_view> code = SplitLineViews(all.substr(at));
      f.StubFile = CodeFileOfStubCode(code);
      f.CodeBehind = f.StubFile.empty() && HasCodeLines(code);
    }
  }
  decoded_[file.string()] = {std::move(text.Text), !f.StubFile.empty()};
  found_.push_back(std::move(f));
}

namespace {

// Whether a .sql file's text creates or changes a table or an index rather
// than being the SQL of a saved query.
bool IsTableDefinition(std::string_view sql) {
  std::string_view t = text::Trim(sql);
  for (std::string_view head :
       {"CREATE TABLE", "CREATE INDEX", "CREATE UNIQUE INDEX", "ALTER TABLE"})
    if (IStartsWith(t, head)) return true;
  return false;
}

}  // namespace

bool DirectorySourceTree::AddObject(AccessObjectKind kind, const std::string& name,
                                    const fs::path& file, std::string* err) {
  std::string key = std::to_string(static_cast<int>(kind)) + ":" + Lower(name);
  auto [it, added] = index_.emplace(key, objects_.size());
  if (!added) {
    if (err)
      *err = std::string("two files give the ") + KindWord(kind) + " \"" + Windows1252ToUtf8(name) +
             "\": " + objects_[it->second].File.string() + " and " + file.string();
    return false;
  }
  SourceObject o;
  o.Kind = kind;
  o.Name = name;
  o.File = file;
  objects_.push_back(std::move(o));
  return true;
}

SourceObject* DirectorySourceTree::Indexed(AccessObjectKind kind, const std::string& name) {
  auto it = index_.find(std::to_string(static_cast<int>(kind)) + ":" + Lower(name));
  return it == index_.end() ? nullptr : &objects_[it->second];
}

// A module file that is the code behind of a form or report: the same name
// beside the design text (X.cls next to X.form), or Form_X / Report_X. False
// when the file belongs to no form or report.
bool DirectorySourceTree::AttachCode(const FoundFile& f, std::string* err) {
  SourceObject* owner = nullptr;
  auto beside = besideDesign_.find(f.File.parent_path().string() + "/" + Lower(f.Stem));
  if (beside != besideDesign_.end()) owner = &objects_[beside->second];
  for (const std::string& n : {f.VbName, f.Stem}) {
    if (owner) break;
    if (IStartsWith(n, "Form_")) owner = Indexed(AccessObjectKind::Form, n.substr(5));
    if (!owner && IStartsWith(n, "Report_")) owner = Indexed(AccessObjectKind::Report, n.substr(7));
  }
  if (!owner) return false;
  if (!owner->CodeFile.empty()) {
    if (err)
      *err = std::string("two files give the code of the ") + KindWord(owner->Kind) + " \"" +
             Windows1252ToUtf8(owner->Name) + "\": " + owner->CodeFile.string() + " and " +
             f.File.string();
    return true;
  }
  owner->CodeFile = f.File;
  if (withCodeBehind_.count(owner->File.string()))
    Warn(owner->File, "has code after CodeBehindForm and a code file beside it; the code of " +
                          f.File.string() + " is used");
  return true;
}

bool DirectorySourceTree::Resolve(std::string* err) {
  std::sort(found_.begin(), found_.end(),
            [](const FoundFile& a, const FoundFile& b) { return a.File < b.File; });
  // Design texts and queries first, so that code files and .sql files find
  // the object they belong to.
  for (const auto& f : found_) {
    AccessObjectKind kind;
    if (f.Kind == ExportKind::StandardModule || f.Kind == ExportKind::ClassModule ||
        f.Kind == ExportKind::Sql || !ObjectKindOf(f.Kind, &kind))
      continue;
    std::string name = StripKindPrefix(f.Stem, kind);
    if (!AddObject(kind, name, f.File, err)) return false;
    if (kind == AccessObjectKind::Form || kind == AccessObjectKind::Report) {
      besideDesign_.emplace(f.File.parent_path().string() + "/" + Lower(f.Stem),
                            objects_.size() - 1);
      if (f.CodeBehind) withCodeBehind_.insert(f.File.string());
      if (!f.StubFile.empty()) {
        // The file the stub names is the code, whatever its name.
        stubs_[objects_.size() - 1] = f.StubFile;
        besideDesign_.emplace(f.File.parent_path().string() + "/" +
                                  Lower(NameFromFileName(fs::path(f.StubFile).filename())),
                              objects_.size() - 1);
      }
    }
    if (kind == AccessObjectKind::Query)
      queries_[Lower(name)] = {
          QueryInfo{name, f.Query.Sql, QueryTypeOf(f.Query.Operation, f.Query.Sql)},
          f.Query.FromGrid, f.Query.Operation};
  }
  for (const auto& f : found_) {
    if (f.Kind != ExportKind::StandardModule && f.Kind != ExportKind::ClassModule) continue;
    std::string dupErr;
    if (AttachCode(f, &dupErr)) {
      if (!dupErr.empty()) {
        if (err) *err = dupErr;
        return false;
      }
      continue;
    }
    std::string name =
        !f.VbName.empty() ? f.VbName : StripKindPrefix(f.Stem, AccessObjectKind::Module);
    if (IStartsWith(name, "Form_") || IStartsWith(name, "Report_")) {
      Warn(f.File, "code behind of \"" + Windows1252ToUtf8(name.substr(name.find('_') + 1)) +
                       "\", which the tree does not hold; skipped");
      continue;
    }
    if (!AddObject(AccessObjectKind::Module, name, f.File, err)) return false;
  }
  for (const auto& [index, stub] : stubs_)
    if (objects_[index].CodeFile.empty())
      Warn(objects_[index].File, "its code is kept in \"" + Windows1252ToUtf8(stub) +
                                     "\", which the tree does not hold; the " +
                                     KindWord(objects_[index].Kind) + " is read without code");
  std::map<fs::path, int> tableDefinitions;
  for (const auto& f : found_) {
    if (f.Kind != ExportKind::Sql) continue;
    std::string name = StripKindPrefix(f.Stem, AccessObjectKind::Query);
    std::string sql = f.SqlText;
    while (!sql.empty() && (sql.back() == '\n' || sql.back() == '\r')) sql.pop_back();
    SourceObject* owner = Indexed(AccessObjectKind::Query, name);
    if (owner && owner->CodeFile.empty() && owner->File.parent_path() == f.File.parent_path()) {
      // The SQL beside the design is the query's text unless the export
      // carried its own.
      owner->CodeFile = f.File;
      TreeQuery& q = queries_[Lower(name)];
      if (q.Info.Sql.empty() || q.FromGrid) {
        q.Info.Sql = sql;
        q.Info.Type = QueryTypeOf(q.Operation, sql);
      }
      continue;
    }
    // Export tools write each table's definition as a .sql file of its own
    // (CREATE TABLE ...): a table, which the database holds, not a query.
    // One line a folder says so.
    if (IsTableDefinition(sql)) {
      ++tableDefinitions[f.File.parent_path()];
      continue;
    }
    if (!AddObject(AccessObjectKind::Query, name, f.File, err)) return false;
    queries_[Lower(name)] = {QueryInfo{name, sql, QueryTypeOfSql(sql)}, false, 0};
  }
  for (const auto& [folder, count] : tableDefinitions)
    Warn(folder, std::to_string(count) +
                     " table definition(s) (CREATE TABLE), not queries; tables are read from "
                     "the database");
  found_.clear();
  besideDesign_.clear();
  withCodeBehind_.clear();
  stubs_.clear();
  return true;
}

bool DirectorySourceTree::Read(const fs::path& dir, const std::string& layout, std::string* err) {
  std::error_code ec;
  if (!fs::is_directory(dir, ec)) {
    if (err) *err = dir.string() + ": no such directory";
    return false;
  }
  root_ = dir;
  const LayoutRule* forced = nullptr;
  if (layout.empty() || IEquals(layout, "auto")) {
    layout_ = std::string(DetectLayout(dir).Name);
  } else {
    forced = FindLayout(layout);
    if (!forced) {
      if (err) *err = "unknown layout \"" + layout + "\" (known: " + LayoutNames() + ")";
      return false;
    }
    layout_ = std::string(forced->Name);
  }

  bool recurse = !forced || forced->Recurse;
  auto visit = [&](const fs::directory_entry& entry) {
    if (entry.is_regular_file(ec)) ReadFile(entry.path(), forced);
  };
  if (recurse) {
    fs::recursive_directory_iterator it(dir, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
      if (it->path().filename().string().starts_with(".")) {
        if (it->is_directory(ec)) it.disable_recursion_pending();
        continue;
      }
      visit(*it);
    }
  } else {
    for (const auto& entry : fs::directory_iterator(dir, ec))
      if (!entry.path().filename().string().starts_with(".")) visit(entry);
  }
  if (ec) Warn(dir, "not fully read: " + ec.message());
  if (!Resolve(err)) return false;
  if (objects_.empty()) {
    if (err) *err = dir.string() + ": no Access exports found (layout " + layout_ + ")";
    return false;
  }
  return true;
}

bool DirectorySourceTree::ReadLines(const fs::path& file, std::vector<std::string>* lines,
                                    std::string* err) const {
  auto it = decoded_.find(file.string());
  if (it == decoded_.end()) return ReadExportLines(file, lines, err);
  *lines = SplitLines(it->second.Text);
  return true;
}

// Whether the design's code behind is a stub naming its code file, as read
// when the tree was read.
bool DirectorySourceTree::IsStub(const fs::path& design,
                                 const std::vector<std::string>& lines) const {
  auto it = decoded_.find(design.string());
  return it != decoded_.end() ? it->second.Stub : !CodeFileOfStub(lines).empty();
}

// The lines a form's or report's code behind is read from: the code file's
// module text (class header left out), none for a stub that only names the
// file, else the lines after the design's CodeBehindForm line, which are
// split off the design's text alone.
bool DirectorySourceTree::CodeBehindLines(const SourceObject& o, std::vector<std::string>* code,
                                          std::string* err) const {
  code->clear();
  if (!o.CodeFile.empty()) {
    if (!ReadLines(o.CodeFile, code, err)) return false;
    code->erase(code->begin(),
                code->begin() + static_cast<std::ptrdiff_t>(ClassHeaderLength(*code)));
    return true;
  }
  auto it = decoded_.find(o.File.string());
  if (it != decoded_.end()) {
    const std::string_view text = it->second.Text;
    const size_t at = CodeBehindOffset(text);
    if (!it->second.Stub && at != std::string_view::npos) *code = SplitLines(text.substr(at));
    return true;
  }
  std::vector<std::string> lines;
  if (!ReadExportLines(o.File, &lines, err)) return false;
  if (!CodeFileOfStub(lines).empty()) return true;
  auto marker = std::find_if(lines.begin(), lines.end(), [](const std::string& l) {
    return text::Trim(l) == "CodeBehindForm";
  });
  if (marker != lines.end())
    code->assign(std::make_move_iterator(marker + 1), std::make_move_iterator(lines.end()));
  return true;
}

bool DirectorySourceTree::LoadModule(AccessObjectKind kind, const std::string& name,
                                     ModuleCode* out, std::string* err) const {
  const SourceObject* o = Find(kind, name);
  if (!o || kind == AccessObjectKind::Macro || kind == AccessObjectKind::Query) {
    if (err)
      *err = std::string("no ") + KindWord(kind) + " module \"" + Windows1252ToUtf8(name) +
             "\" in the tree";
    return false;
  }
  std::vector<std::string> lines;
  if (kind == AccessObjectKind::Module) {
    if (!ReadLines(o->File, &lines, err)) return false;
    *out = ModuleFromExport(std::move(lines), nullptr);
    return true;
  }
  if (!CodeBehindLines(*o, &lines, err)) return false;
  *out = CodeBehindFromCode(std::move(lines));
  return true;
}

bool DirectorySourceTree::LoadDesignText(AccessObjectKind kind, const std::string& name,
                                         std::vector<std::string>* lines, std::string* err) const {
  const SourceObject* o = Find(kind, name);
  if (!o || (kind != AccessObjectKind::Form && kind != AccessObjectKind::Report)) {
    if (err)
      *err =
          std::string("no ") + KindWord(kind) + " \"" + Windows1252ToUtf8(name) + "\" in the tree";
    return false;
  }
  if (!ReadLines(o->File, lines, err)) return false;
  const bool stub = IsStub(o->File, *lines);
  if (o->CodeFile.empty() && !stub) return true;
  // The code behind is the code file's module text (class header left out);
  // a stub that only names the file is never taken as code.
  auto at = std::find_if(lines->begin(), lines->end(),
                         [](const std::string& l) { return text::Trim(l) == "CodeBehindForm"; });
  lines->erase(at, lines->end());
  lines->push_back("CodeBehindForm");
  if (o->CodeFile.empty()) return true;
  std::vector<std::string> code;
  if (!ReadLines(o->CodeFile, &code, err)) return false;
  lines->insert(lines->end(), code.begin() + static_cast<std::ptrdiff_t>(ClassHeaderLength(code)),
                code.end());
  return true;
}

// A design whose text holds its own code is given as it was read; the others
// are put together from their lines.
bool DirectorySourceTree::LoadDesignBytes(AccessObjectKind kind, const std::string& name,
                                          std::string* text, std::string* err) const {
  const SourceObject* o = Find(kind, name);
  if (o && o->CodeFile.empty()) {
    auto it = decoded_.find(o->File.string());
    if (it != decoded_.end() && !it->second.Stub &&
        (kind == AccessObjectKind::Form || kind == AccessObjectKind::Report)) {
      *text = it->second.Text;
      return true;
    }
  }
  return SourceTree::LoadDesignBytes(kind, name, text, err);
}

bool DirectorySourceTree::LoadMacroText(const std::string& name, std::vector<std::string>* lines,
                                        std::string* err) const {
  const SourceObject* o = Find(AccessObjectKind::Macro, name);
  if (!o) {
    if (err) *err = "no macro \"" + Windows1252ToUtf8(name) + "\" in the tree";
    return false;
  }
  return ReadLines(o->File, lines, err);
}

std::unique_ptr<MemoryCatalog> DirectorySourceTree::BuildCatalog() const {
  auto catalog = std::make_unique<MemoryCatalog>();
  catalog->Containers["Forms"] = Names(AccessObjectKind::Form);
  catalog->Containers["Reports"] = Names(AccessObjectKind::Report);
  catalog->Containers["Scripts"] = Names(AccessObjectKind::Macro);
  catalog->Containers["Modules"] = Names(AccessObjectKind::Module);
  for (const auto& name : Names(AccessObjectKind::Query)) {
    if (IStartsWith(name, "~sq_")) continue;
    auto it = queries_.find(Lower(name));
    if (it != queries_.end()) catalog->Queries.push_back(it->second.Info);
  }
  catalog->Properties = properties_;
  catalog->Refs = references_;
  return catalog;
}

}  // namespace

std::unique_ptr<SourceTree> SourceTree::Open(const fs::path& dir, const std::string& layout,
                                             std::string* err) {
  auto tree = std::make_unique<DirectorySourceTree>();
  if (!tree->Read(dir, layout, err)) return nullptr;
  return tree;
}

}  // namespace morvane
