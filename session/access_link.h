// How the run reaches the source: the source tree that stands in for Access,
// the Jet file (when one is given) that stands in for DAO, the working copy
// in the output directory, and the objects of the run that the session
// points at. The user's files are only ever read.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/catalog.h"
#include "platform/project_model.h"
#include "platform/source_tree.h"
#include "platform/support_db.h"

namespace morvane {

struct ConversionSession;

struct SourceChoice {
  std::filesystem::path Source;      // an .mdb/.adp file or a source tree directory
  std::filesystem::path SourceTree;  // explicit source tree, or empty
  std::string Layout;                // layout override of the tree, or empty
};

class AccessLink {
 public:
  // Opens the source for listing and conversion: the tree, and the Jet file
  // read-only when one is given. Fills SourcePath, IsAdp, AdoConnect and the
  // session's pointers. False with a one-line reason when the source cannot
  // be used (missing, unreadable, an Access 97 file).
  bool ChooseDatabase(ConversionSession& s, const SourceChoice& choice, std::string* err);

  // The database file given, or empty when the source is a tree alone.
  const std::filesystem::path& DatabaseFile() const { return database_; }
  const std::filesystem::path& TreeRoot() const { return treeRoot_; }

  // Copies the database into the output directory as <ProjectName>.mdb/.adp
  // and reopens the catalog on the copy. Without a database file the tree's
  // catalog stays. False when the copy cannot be made.
  bool CopySourceDatabase(ConversionSession& s, std::string* err);

  // Opens (creating) the support database in the output directory.
  bool OpenSupportDatabase(ConversionSession& s, std::string* err);
  ProjectModel& NewProject(ConversionSession& s);

  // The objects the source offers: the catalog's, in its order, then those
  // that only the source tree has (an export made from a newer state of the
  // database, say).
  struct CatalogListing Listing() const;

  SourceTree* Tree() { return tree_.get(); }
  Catalog* Db() { return catalog_.get(); }

 private:
  std::filesystem::path database_;
  std::filesystem::path treeRoot_;
  std::unique_ptr<SourceTree> tree_;
  std::unique_ptr<Catalog> catalog_;
  std::unique_ptr<SupportDatabase> support_;
  std::unique_ptr<ProjectModel> project_;
};

// Names of the forms, modules, reports and macros the catalog offers, in the
// containers' order.
struct CatalogListing {
  std::vector<std::string> Forms, Modules, Reports, Macros;
};
CatalogListing ListCatalog(const Catalog& db);

}  // namespace morvane
