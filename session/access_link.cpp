// Choosing the source, making the working copy, and opening the support
// database of a run.
#include "session/access_link.h"

#include "platform/jet_catalog.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/strings.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

bool IsDatabaseFile(const fs::path& p) {
  std::string ext = ToLower(p.extension().string());
  return ext == ".mdb" || ext == ".adp" || ext == ".mde" || ext == ".accdb";
}

// The tree of a database file: `<name>.src/` beside it.
fs::path TreeBeside(const fs::path& db) {
  fs::path candidate = db;
  candidate.replace_extension(".src");
  return candidate;
}

}  // namespace

bool AccessLink::ChooseDatabase(ConversionSession& s, const SourceChoice& choice,
                                std::string* err) {
  std::error_code ec;
  if (!fs::exists(choice.Source, ec)) {
    *err = FormatText(kMsgSourceUnreadable, {choice.Source.string(), "no such file or directory"});
    return false;
  }
  database_.clear();
  if (fs::is_directory(choice.Source, ec)) {
    treeRoot_ = choice.Source;
  } else if (IsDatabaseFile(choice.Source)) {
    database_ = choice.Source;
    treeRoot_ = choice.SourceTree.empty() ? TreeBeside(choice.Source) : choice.SourceTree;
  } else {
    *err = FormatText(
        kMsgSourceUnreadable,
        {choice.Source.string(), "it is neither a source tree directory nor an .mdb or .adp file"});
    return false;
  }
  if (!choice.SourceTree.empty()) treeRoot_ = choice.SourceTree;

  s.IsAdp = EndsWithNoCase(choice.Source.string(), "adp") && !database_.empty();
  if (!database_.empty() && !s.IsAdp) {
    std::string why;
    auto jet = JetCatalog::Open(database_, fs::path(), &why);
    if (!jet) {
      *err = Text(kMsgInvalidDatabase) + " (" + why + ")";
      return false;
    }
    if (jet->JetVersion() < 4) {
      *err = Text(kMsgNotAccess2000);
      return false;
    }
    catalog_ = std::move(jet);
  }

  // A database file may come without its tree: its catalog can still be
  // listed, and the run says which objects had no export to convert.
  tree_.reset();
  if (fs::is_directory(treeRoot_, ec)) {
    std::string why;
    tree_ = SourceTree::Open(treeRoot_, choice.Layout, &why);
    if (!tree_) {
      *err = FormatText(kMsgSourceUnreadable, {treeRoot_.string(), why});
      return false;
    }
  } else if (database_.empty() || s.IsAdp || !choice.SourceTree.empty()) {
    *err = FormatText(kMsgNoSourceTree, {choice.Source.string(), treeRoot_.string()});
    return false;
  } else {
    treeRoot_.clear();
  }
  if (!catalog_) catalog_ = tree_->BuildCatalog();

  s.SourcePath = database_.empty() ? treeRoot_.string() : database_.string();
  s.AccessApp = tree_.get();
  s.SourceDb = catalog_.get();
  s.Options.AdoConnect =
      "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" +
      FileNameOf(database_.empty() ? treeRoot_.filename().string() + ".mdb" : database_.string());
  return true;
}

bool AccessLink::CopySourceDatabase(ConversionSession& s, std::string* err) {
  if (database_.empty()) return true;
  fs::path copy = fs::path(s.OutputPath) / (s.ProjectName + (s.IsAdp ? ".adp" : ".mdb"));
  std::error_code ec;
  if (fs::exists(copy, ec) && fs::equivalent(copy, database_, ec)) {
    *err = FormatText(kMsgOutputHoldsSource, {database_.string()});
    return false;
  }
  if (!fs::copy_file(database_, copy, fs::copy_options::overwrite_existing, ec)) {
    *err = "cannot copy " + database_.string() + " to " + copy.string() + ": " + ec.message();
    return false;
  }
  if (s.IsAdp) return true;
  std::string why;
  fs::path overlay = copy;
  overlay += ".properties";
  fs::remove(overlay, ec);
  auto jet = JetCatalog::Open(copy, overlay, &why);
  if (!jet) {
    *err = Text(kMsgInvalidDatabase) + " (" + why + ")";
    return false;
  }
  catalog_ = std::move(jet);
  s.SourceDb = catalog_.get();
  return true;
}

bool AccessLink::OpenSupportDatabase(ConversionSession& s, std::string* err) {
  support_.reset();
  s.SupportDb = nullptr;
  support_ = SupportDatabase::Open(fs::path(s.OutputPath) / "morvane.db", s.Options.DataDir, err);
  if (!support_) return false;
  s.SupportDb = support_.get();
  return true;
}

ProjectModel& AccessLink::NewProject(ConversionSession& s) {
  project_ = std::make_unique<ProjectModel>(0);
  // The project's name is a Visual Basic name; its files keep the source's.
  project_->Name = VbIdentifier(s.ProjectName);
  s.ActiveProject = project_.get();
  return *project_;
}

CatalogListing AccessLink::Listing() const {
  CatalogListing l = ListCatalog(*catalog_);
  if (!tree_) return l;
  auto add = [&](std::vector<std::string>& names, AccessObjectKind kind) {
    for (const auto& name : tree_->Names(kind)) {
      bool known = false;
      for (const auto& n : names) known = known || EqualsNoCase(n, name);
      if (!known) names.push_back(name);
    }
  };
  add(l.Forms, AccessObjectKind::Form);
  add(l.Modules, AccessObjectKind::Module);
  add(l.Reports, AccessObjectKind::Report);
  add(l.Macros, AccessObjectKind::Macro);
  return l;
}

CatalogListing ListCatalog(const Catalog& db) {
  return {db.ContainerDocuments("Forms"), db.ContainerDocuments("Modules"),
          db.ContainerDocuments("Reports"), db.ContainerDocuments("Scripts")};
}

}  // namespace morvane
