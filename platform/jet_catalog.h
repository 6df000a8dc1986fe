// The catalog of a Jet database file (Access 97 to 2003), read with libmdb:
// containers, tables with their fields, saved queries with their type and
// rebuilt SQL, and the database properties. The file is read once when it is
// opened and never written: property writes go to an overlay file beside it.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "platform/catalog.h"

namespace morvane {

class JetCatalog : public Catalog {
 public:
  // Reads the file. `overlayFile` (may be empty) keeps property writes; when
  // it exists, its values are read back over the file's own. Null with a
  // one-line reason naming the file when it is missing or no Jet database.
  static std::unique_ptr<JetCatalog> Open(const std::filesystem::path& file,
                                          const std::filesystem::path& overlayFile,
                                          std::string* err);

  // 3 for a Jet 3 (Access 97) file, 4 for Jet 4 (Access 2000 to 2003), 5 and
  // up for the later ACE formats.
  int JetVersion() const { return version_; }

  std::vector<std::string> ContainerDocuments(const std::string& container) const override;
  std::vector<TableInfo> TableDefs() const override { return tables_; }
  std::vector<QueryInfo> QueryDefs() const override { return queries_; }
  std::optional<std::string> Property(const std::string& name) const override;
  void SetProperty(const std::string& name, const std::string& value) override;
  std::vector<std::pair<std::string, std::string>> PropertyList() const override;
  // The VBA project's references are kept in Access's own storage, which
  // libmdb does not read; the file gives none.
  std::vector<ReferenceInfo> References() const override { return {}; }

 private:
  JetCatalog() = default;
  void SaveOverlay() const;

  int version_ = 0;
  std::map<std::string, std::vector<std::string>> containers_;
  std::vector<TableInfo> tables_;
  std::vector<QueryInfo> queries_;
  std::map<std::string, std::string> properties_;  // by lower-case name
  std::map<std::string, std::string> propertyNames_;
  std::map<std::string, std::string> overlay_;  // by lower-case name
  std::map<std::string, std::string> overlayNames_;
  std::filesystem::path overlayFile_;
};

}  // namespace morvane
