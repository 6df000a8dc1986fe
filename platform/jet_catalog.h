// The catalog of a Jet database file (Access 97 to 2003), read with libmdb:
// containers, tables with their fields, saved queries with their type and
// rebuilt SQL, and the database properties. The file is read once when it is
// opened and never written: property writes go to an overlay file beside it.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "platform/catalog.h"
#include "platform/jet_guarded_read.h"

namespace morvane {

// What the user is told when the database cannot be opened at all, and when
// it is no Access 2000 or XP database (an Access 97 file among others).
std::string InvalidDatabaseMessage();
std::string Access97Message();

class JetCatalog : public Catalog {
 public:
  // Reads the file. `overlayFile` (may be empty) keeps property writes; when
  // it exists, its values are read back over the file's own. Null with a
  // one-line reason naming the file when it is missing, no Jet database, or
  // too damaged to read within `timeLimit`.
  static std::unique_ptr<JetCatalog> Open(const std::filesystem::path& file,
                                          const std::filesystem::path& overlayFile,
                                          std::string* err,
                                          std::chrono::milliseconds timeLimit = kJetReadTimeLimit);

  // 3 for a Jet 3 (Access 97) file, 4 for Jet 4 (Access 2000 to 2003), 5 and
  // up for the later ACE formats.
  int JetVersion() const { return version_; }

  std::vector<std::string> ContainerDocuments(const std::string& container) const override;
  std::vector<TableInfo> TableDefs() const override { return contents_.Tables; }
  std::vector<QueryInfo> QueryDefs() const override { return contents_.Queries; }
  std::optional<std::string> Property(const std::string& name) const override;
  void SetProperty(const std::string& name, const std::string& value) override;
  std::vector<std::pair<std::string, std::string>> PropertyList() const override;
  // The VBA project's references live in Access's own storage of the project,
  // which libmdb does not read: the file gives none.
  std::vector<ReferenceInfo> References() const override { return {}; }

 private:
  JetCatalog() = default;
  void LoadOverlay();
  void SaveOverlay() const;

  int version_ = 0;
  JetContents contents_;
  // Properties by lower-case name, each with its name as spelled: the file's
  // own, and the overlay's that stand in front of them.
  std::map<std::string, std::pair<std::string, std::string>> properties_;
  std::map<std::string, std::pair<std::string, std::string>> overlay_;
  std::filesystem::path overlayFile_;
};

}  // namespace morvane
