// The Jet catalog on real databases (copied first: the fixtures are never
// touched) and the SQL rebuilt from query design rows.
#include "platform/jet_catalog.h"

#include <gtest/gtest.h>

#include "platform/jet_query_sql.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

struct Copied {
  TempDir dir;
  fs::path file;
  explicit Copied(const char* name) : file(dir / name) {
    fs::copy_file(fs::path(MORVANE_FIXTURES_DIR) / name, file);
  }
};

std::unique_ptr<JetCatalog> OpenCopy(const Copied& c, const fs::path& overlay = {}) {
  std::string err;
  auto cat = JetCatalog::Open(c.file, overlay, &err);
  EXPECT_TRUE(cat) << err;
  return cat;
}

TEST(JetCatalog, TablesAndFieldsWithDaoTypes) {
  Copied db("jet4-datetest.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->JetVersion(), 4);
  auto table = cat->TableDef("datetest");
  ASSERT_TRUE(table);
  std::vector<std::pair<std::string, int>> fields;
  for (const auto& f : table->Fields) fields.emplace_back(f.Name, f.Type);
  EXPECT_EQ(fields, (std::vector<std::pair<std::string, int>>{{"IDCol", kDbLong},
                                                              {"DateTimeCol", kDbDate},
                                                              {"DateCol", kDbDate},
                                                              {"TimeCol", kDbDate},
                                                              {"LongTextCol", kDbMemo},
                                                              {"ShortTextCol", kDbText}}));
  for (const auto& t : cat->TableDefs()) EXPECT_NE(t.Name.rfind("MSys", 0), 0u) << t.Name;
}

TEST(JetCatalog, SavedQueryWithTypeAndSql) {
  Copied db("jet4-banco-horas.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  auto q = cat->QueryDef("qryCalculosHoras");
  ASSERT_TRUE(q);
  EXPECT_EQ(q->Type, kDbQSelect);
  EXPECT_EQ(q->Sql.substr(0, 23), "SELECT BANCO_HORAS.ID, ");
  EXPECT_NE(q->Sql.find("\r\nFROM BANCO_HORAS;"), std::string::npos) << q->Sql;
}

TEST(JetCatalog, ContainersInNameOrder) {
  Copied events("jet4-subform-events.mdb");
  auto cat = OpenCopy(events);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->ContainerDocuments("Forms"), (std::vector<std::string>{"Main", "SubForm"}));
  EXPECT_TRUE(cat->ContainerDocuments("Scripts").empty());

  Copied cadastros("jet4-cadastros.mdb");
  auto other = OpenCopy(cadastros);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->ContainerDocuments("forms"), (std::vector<std::string>{"CadastroClientes"}));
  // The form's temporary record-source query is not a saved query.
  for (const auto& q : other->QueryDefs()) EXPECT_NE(q.Name[0], '~');
}

TEST(JetCatalog, AnAccess97FileOpensAndSaysItsVersion) {
  Copied db("jet3-northwind-de.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->JetVersion(), 3);
  auto modules = cat->ContainerDocuments("Modules");
  EXPECT_EQ(modules,
            (std::vector<std::string>{"Northwind Help Function", "Startup", "Utility Functions"}));
  EXPECT_EQ(cat->ContainerDocuments("Reports").size(), 13u);
  auto crosstab = cat->QueryDef("Quarterly Orders by Product");
  ASSERT_TRUE(crosstab);
  EXPECT_EQ(crosstab->Type, kDbQCrosstab);
  EXPECT_EQ(crosstab->Sql.substr(0, 10), "TRANSFORM ");
  auto unionQuery = cat->QueryDef("Customers and Suppliers by City");
  ASSERT_TRUE(unionQuery);
  EXPECT_EQ(unionQuery->Type, kDbQSetOperation);
  EXPECT_NE(unionQuery->Sql.find("FROM Customers\r\nUNION SELECT"), std::string::npos);
}

TEST(JetCatalog, PropertyWritesGoToTheOverlayAndNeverToTheFile) {
  Copied db("jet4-subform-events.mdb");
  const std::string before = ReadFile(db.file);
  const fs::path overlay = db.dir / "copy.properties";
  {
    auto cat = OpenCopy(db, overlay);
    ASSERT_TRUE(cat);
    cat->SetProperty("StartupForm", "(none)");
    EXPECT_EQ(cat->Property("startupform").value_or(""), "(none)");
  }
  auto again = OpenCopy(db, overlay);
  ASSERT_TRUE(again);
  EXPECT_EQ(again->Property("StartupForm").value_or(""), "(none)");
  EXPECT_EQ(ReadFile(db.file), before);
}

TEST(JetCatalog, MissingOrDamagedFilesGiveAClearError) {
  TempDir dir;
  const fs::path fixture = fs::path(MORVANE_FIXTURES_DIR) / "jet4-datetest.mdb";
  const std::string bytes = ReadFile(fixture);
  WriteFile(dir / "text.mdb", "This is not a database at all.\n");
  WriteFile(dir / "truncated.mdb", bytes.substr(0, 5000));
  WriteFile(dir / "empty.mdb", "");
  struct Case {
    const char* file;
    const char* message;
  };
  const Case cases[] = {
      {"missing.mdb", "no such file"},
      {"text.mdb", "not an Access database file"},
      {"truncated.mdb", "truncated or damaged"},
      {"empty.mdb", "not an Access database file"},
  };
  for (const auto& c : cases) {
    std::string err;
    EXPECT_FALSE(JetCatalog::Open(dir / c.file, {}, &err)) << c.file;
    EXPECT_NE(err.find(c.file), std::string::npos) << err;
    EXPECT_NE(err.find(c.message), std::string::npos) << err;
  }
}

struct SqlCase {
  const char* name;
  std::vector<QueryPart> parts;
  const char* sql;
  int type;
};

TEST(RebuildQuerySql, ActionQueries) {
  const SqlCase cases[] = {
      {"append",
       {{1, "", 3, "tblArchive", ""},
        {5, "", 0, "tblOrders", ""},
        {6, "tblOrders.OrderID", 0, "OrderID", ""},
        {6, "tblOrders.OrderDate", 0, "OrderDate", ""},
        {8, "(((tblOrders.OrderDate)<#1/1/1999#))", 0, "", ""}},
       "INSERT INTO tblArchive ( OrderID, OrderDate )\r\nSELECT tblOrders.OrderID, "
       "tblOrders.OrderDate\r\nFROM tblOrders\r\nWHERE (((tblOrders.OrderDate)<#1/1/1999#));",
       kDbQAppend},
      {"update",
       {{1, "", 4, "", ""},
        {5, "", 0, "Order Details", ""},
        {6, "[Discount]*2", 0, "[Order Details].Discount", ""}},
       "UPDATE [Order Details]\r\nSET [Order Details].Discount = [Discount]*2;",
       kDbQUpdate},
      {"delete",
       {{1, "", 5, "", ""}, {5, "", 0, "tblOrders", ""}, {6, "tblOrders.*", 0, "", ""}},
       "DELETE tblOrders.*\r\nFROM tblOrders;",
       kDbQDelete},
      {"make table",
       {{1, "", 2, "tblCopy", ""}, {5, "", 0, "tblOrders", ""}, {3, "", 1, "", ""}},
       "SELECT * INTO tblCopy\r\nFROM tblOrders;",
       kDbQMakeTable},
      {"left join, alias, order",
       {{1, "", 1, "", ""},
        {5, "", 0, "Customers", "c"},
        {5, "", 0, "Orders", ""},
        {6, "c.Name", 0, "", ""},
        {7, "c.ID = Orders.CustomerID", 2, "c", "Orders"},
        {11, "c.Name", 0, "D", ""}},
       "SELECT c.Name\r\nFROM Customers AS c LEFT JOIN Orders ON c.ID = Orders.CustomerID\r\n"
       "ORDER BY c.Name DESC;",
       kDbQSelect},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RebuildQuerySql(c.parts), c.sql) << c.name;
    EXPECT_EQ(QueryTypeOf(c.parts), c.type) << c.name;
  }
}

}  // namespace
}  // namespace morvane
