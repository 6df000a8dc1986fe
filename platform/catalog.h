// The database catalog as the converters see it: the DAO view of a source
// database (containers, tables, queries, database properties, references).
// Two implementations stand behind it: the Jet file reader over libmdb and the
// catalog built from a source tree's exports when no database file is given.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace morvane {

// DAO field types (dbBoolean = 1 ... dbMemo = 12, dbGUID = 15 ...).
enum DaoFieldType : int {
  kDbBoolean = 1,
  kDbByte = 2,
  kDbInteger = 3,
  kDbLong = 4,
  kDbCurrency = 5,
  kDbSingle = 6,
  kDbDouble = 7,
  kDbDate = 8,
  kDbBinary = 9,
  kDbText = 10,
  kDbLongBinary = 11,
  kDbMemo = 12,
  kDbGuid = 15,
  kDbBigInt = 16,
  kDbDecimal = 20,
};

// DAO QueryDef.Type values.
enum DaoQueryType : int {
  kDbQSelect = 0,
  kDbQProcedure = 224,
  kDbQAction = 240,
  kDbQCrosstab = 16,
  kDbQDelete = 32,
  kDbQUpdate = 48,
  kDbQAppend = 64,
  kDbQMakeTable = 80,
  kDbQDDL = 96,
  kDbQSQLPassThrough = 112,
  kDbQSetOperation = 128,
  kDbQSPTBulk = 144,
  kDbQCompound = 160,
};

struct FieldInfo {
  std::string Name;
  int Type = 0;  // DaoFieldType
  int Size = 0;
};

struct TableInfo {
  std::string Name;
  bool Linked = false;
  std::string Connect;      // connection text of a linked table
  std::string SourceTable;  // the linked table's name in its own database
  std::vector<FieldInfo> Fields;
};

struct QueryInfo {
  std::string Name;
  std::string Sql;
  int Type = kDbQSelect;  // DaoQueryType
};

struct ReferenceInfo {
  std::string Name;
  std::string Guid;  // with braces, e.g. "{00025E01-0000-0000-C000-000000000046}"
  int Major = 0;
  int Minor = 0;
};

class Catalog {
 public:
  virtual ~Catalog() = default;

  // Document names of a container: "Forms", "Modules", "Reports" or
  // "Scripts" (macros), in the order in which the container gives them.
  virtual std::vector<std::string> ContainerDocuments(const std::string& container) const = 0;

  // User tables (system tables left out) and saved queries (temporary "~sq_"
  // queries left out).
  virtual std::vector<TableInfo> TableDefs() const = 0;
  virtual std::vector<QueryInfo> QueryDefs() const = 0;
  // Looked up by name without regard to case.
  virtual std::optional<QueryInfo> QueryDef(const std::string& name) const;
  virtual std::optional<TableInfo> TableDef(const std::string& name) const;
  // A query of the database itself, not one made during the run; the
  // database's own queries never change, so this may be asked from any
  // thread.
  std::optional<QueryInfo> SavedQueryDef(const std::string& name) const;

  // A database property such as "StartupForm"; empty when the database has
  // no such property.
  virtual std::optional<std::string> Property(const std::string& name) const = 0;
  // Writes go to an overlay beside the working copy: later reads see them,
  // the file itself is never changed.
  virtual void SetProperty(const std::string& name, const std::string& value) = 0;
  // Every database property with its value, in name order.
  virtual std::vector<std::pair<std::string, std::string>> PropertyList() const = 0;

  // The references of the Access project (VBA, Access, DAO, ...), when known.
  virtual std::vector<ReferenceInfo> References() const = 0;

  // Queries that the converters make during a run (DAO's CreateQueryDef and
  // QueryDefs.Delete). They are kept in memory beside the database's own,
  // which is never written, and QueryDef finds them. Making a query fails
  // when a query or table of that name exists; deleting one fails when no
  // such query was made.
  bool CreateQueryDef(const std::string& name, const std::string& sql);
  bool DeleteQueryDef(const std::string& name);
  const std::vector<QueryInfo>& MadeQueries() const { return made_; }

 private:
  std::vector<QueryInfo> made_;
};

// An in-memory catalog, filled by whoever builds it (the source tree reader,
// tests).
class MemoryCatalog : public Catalog {
 public:
  std::map<std::string, std::vector<std::string>> Containers;
  std::vector<TableInfo> Tables;
  std::vector<QueryInfo> Queries;
  std::map<std::string, std::string> Properties;
  std::vector<ReferenceInfo> Refs;

  std::vector<std::string> ContainerDocuments(const std::string& container) const override;
  std::vector<TableInfo> TableDefs() const override { return Tables; }
  std::vector<QueryInfo> QueryDefs() const override { return Queries; }
  std::optional<std::string> Property(const std::string& name) const override;
  void SetProperty(const std::string& name, const std::string& value) override;
  std::vector<std::pair<std::string, std::string>> PropertyList() const override {
    return {Properties.begin(), Properties.end()};
  }
  std::vector<ReferenceInfo> References() const override { return Refs; }
};

}  // namespace morvane
