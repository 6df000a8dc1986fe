// The Jet catalog on real databases (each copied first, and both the fixture
// and the copy checked unchanged afterwards), on damaged copies of them, and
// the SQL rebuilt from query design rows.
#include "platform/jet_catalog.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>

#include "platform/jet_guarded_read.h"
#include "platform/jet_query_sql.h"
#include "session/strings.h"
#include "support/fixtures.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

fs::path Fixture(const char* name) { return test::JetFixtures() / name; }

// A working copy of a fixture; reading a database must change neither file.
struct Copied {
  TempDir dir;
  fs::path fixture;
  fs::path file;
  std::string bytes;
  explicit Copied(const char* name) : fixture(Fixture(name)), file(dir / name) {
    fs::copy_file(fixture, file);
    bytes = ReadFile(fixture);
  }
  ~Copied() {
    EXPECT_EQ(ReadFile(fixture), bytes) << fixture;
    EXPECT_EQ(ReadFile(file), bytes) << file;
  }
};

std::unique_ptr<JetCatalog> OpenCopy(const Copied& c, const fs::path& overlay = {}) {
  std::string err;
  auto cat = JetCatalog::Open(c.file, overlay, &err);
  EXPECT_TRUE(cat) << err;
  return cat;
}

std::vector<std::string> Names(const std::vector<TableInfo>& tables) {
  std::vector<std::string> names;
  for (const auto& t : tables) names.push_back(t.Name);
  return names;
}

TEST(JetCatalog, TablesAndFieldsWithDaoTypesAndSizes) {
  MORVANE_NEED_JET_FIXTURES();
  Copied db("jet4-datetest.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->JetVersion(), 4);
  // The hidden table of a multi-valued field and the MSys tables are Jet's own.
  EXPECT_EQ(Names(cat->TableDefs()), std::vector<std::string>{"DateTest"});
  auto table = cat->TableDef("datetest");
  ASSERT_TRUE(table);
  EXPECT_FALSE(table->Linked);
  struct Field {
    std::string name;
    int type, size;
    bool operator==(const Field&) const = default;
  };
  std::vector<Field> fields;
  for (const auto& f : table->Fields) fields.push_back({f.Name, f.Type, f.Size});
  const std::vector<Field> expected = {
      {"IDCol", kDbLong, 4},   {"DateTimeCol", kDbDate, 8}, {"DateCol", kDbDate, 8},
      {"TimeCol", kDbDate, 8}, {"LongTextCol", kDbMemo, 0}, {"ShortTextCol", kDbText, 255},
  };
  EXPECT_TRUE(fields == expected);
  EXPECT_EQ(cat->ContainerDocuments("Tables").front(), "DateTest");
}

TEST(JetCatalog, SavedQueryWithTypeAndSql) {
  MORVANE_NEED_JET_FIXTURES();
  Copied db("jet4-banco-horas.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  ASSERT_EQ(cat->QueryDefs().size(), 1u);
  auto q = cat->QueryDef("qrycalculoshoras");
  ASSERT_TRUE(q);
  EXPECT_EQ(q->Name, "qryCalculosHoras");
  EXPECT_EQ(q->Type, kDbQSelect);
  EXPECT_EQ(q->Sql.substr(0, 23), "SELECT BANCO_HORAS.ID, ");
  EXPECT_EQ(q->Sql.substr(q->Sql.size() - 19), "\r\nFROM BANCO_HORAS;");
  auto table = cat->TableDef("BANCO_HORAS");
  ASSERT_TRUE(table);
  ASSERT_EQ(table->Fields.size(), 7u);
  EXPECT_EQ(table->Fields[1].Type, kDbCurrency);
}

TEST(JetCatalog, ContainersInNameOrderWithoutTemporaryObjects) {
  MORVANE_NEED_JET_FIXTURES();
  Copied events("jet4-subform-events.mdb");
  auto cat = OpenCopy(events);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->ContainerDocuments("Forms"), (std::vector<std::string>{"Main", "SubForm"}));
  EXPECT_TRUE(cat->ContainerDocuments("Scripts").empty());
  EXPECT_TRUE(cat->ContainerDocuments("NoSuchContainer").empty());

  Copied cadastros("jet4-cadastros.mdb");
  auto other = OpenCopy(cadastros);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->ContainerDocuments("forms"), (std::vector<std::string>{"CadastroClientes"}));
  // The form's record-source query "~sq_fCadastroClientes" is no saved query.
  EXPECT_TRUE(other->QueryDefs().empty());
  // Tables that are only hidden are still the user's.
  EXPECT_EQ(Names(other->TableDefs()),
            (std::vector<std::string>{"Cadastros", "Formularios", "Formularios_Campos",
                                      "Formularios_TabelaRelacionada"}));
}

TEST(JetCatalog, AnAccess97FileOpensAndSaysItsVersion) {
  MORVANE_NEED_JET_FIXTURES();
  Copied db("jet3-northwind-de.mdb");
  auto cat = OpenCopy(db);
  ASSERT_TRUE(cat);
  EXPECT_EQ(cat->JetVersion(), 3);
  EXPECT_EQ(cat->ContainerDocuments("Modules"),
            (std::vector<std::string>{"Northwind Help Function", "Startup", "Utility Functions"}));
  // Tables that share their name with a form keep their own columns, and a
  // name outside ASCII arrives as Windows-1252.
  EXPECT_EQ(
      Names(cat->TableDefs()),
      (std::vector<std::string>{"Order Details", "Orders", "Products", "Shippers", "Categories",
                                "Customers", "Employees", "Suppliers", "Ums\xE4tze"}));
  for (const auto& t : cat->TableDefs()) EXPECT_FALSE(t.Fields.empty()) << t.Name;
  auto orders = cat->TableDef("Orders");
  ASSERT_TRUE(orders);
  EXPECT_EQ(orders->Fields[1].Name, "CustomerID");
  EXPECT_EQ(orders->Fields[1].Type, kDbText);
  EXPECT_EQ(orders->Fields[1].Size, 5);

  EXPECT_EQ(cat->QueryDefs().size(), 22u);
  auto crosstab = cat->QueryDef("Quarterly Orders by Product");
  ASSERT_TRUE(crosstab);
  EXPECT_EQ(crosstab->Type, kDbQCrosstab);
  EXPECT_EQ(crosstab->Sql.substr(0, 10), "TRANSFORM ");
  EXPECT_NE(crosstab->Sql.find("\r\nPIVOT \"Qtr \" & DatePart("), std::string::npos);
  auto unionQuery = cat->QueryDef("Customers and Suppliers by City");
  ASSERT_TRUE(unionQuery);
  EXPECT_EQ(unionQuery->Type, kDbQSetOperation);
  EXPECT_NE(unionQuery->Sql.find("FROM Customers\r\nUNION SELECT"), std::string::npos);
  // Two joined pairs meet in one join.
  auto sales = cat->QueryDef("Product Sales for 1995");
  ASSERT_TRUE(sales);
  EXPECT_NE(sales->Sql.find("\r\nFROM (Categories INNER JOIN Products ON Categories.CategoryID = "
                            "Products.CategoryID) INNER JOIN (Orders INNER JOIN [Order Details] "
                            "ON Orders.OrderID = [Order Details].OrderID) ON Products.ProductID "
                            "= [Order Details].ProductID\r\nWHERE "),
            std::string::npos)
      << sales->Sql;
}

TEST(JetCatalog, DatabasePropertiesAsDaoReadsThem) {
  MORVANE_NEED_JET_FIXTURES();
  struct Case {
    const char* file;
    const char* name;
    const char* value;
  };
  const Case cases[] = {
      {"jet4-datetest.mdb", "AccessVersion", "09.50"},
      {"jet3-northwind-de.mdb", "accessversion", "07.53"},
      {"jet3-northwind-de.mdb", "StartupMenuBar", "NorthwindCustomMenuBar"},
      {"jet4-subform-events.mdb", "AllowSpecialKeys", "True"},
      {"jet4-subform-events.mdb", "UseAppIconForFrmRpt", "False"},
  };
  for (const auto& c : cases) {
    Copied db(c.file);
    auto cat = OpenCopy(db);
    ASSERT_TRUE(cat);
    EXPECT_EQ(cat->Property(c.name).value_or("<none>"), c.value) << c.file << " " << c.name;
    EXPECT_FALSE(cat->Property("NoSuchProperty")) << c.file;
  }
}

TEST(JetCatalog, PropertyWritesGoToTheOverlayAndNeverToTheFile) {
  MORVANE_NEED_JET_FIXTURES();
  Copied db("jet3-northwind-de.mdb");
  const fs::path overlay = db.dir / "copy.properties";
  {
    auto cat = OpenCopy(db, overlay);
    ASSERT_TRUE(cat);
    const auto before = cat->Property("StartupForm");
    cat->SetProperty("StartupForm", "(none)");
    EXPECT_EQ(cat->Property("startupform").value_or(""), "(none)");
    cat->SetProperty("StartupForm", "Main Switchboard");
    cat->SetProperty("AppTitle", "Nordwind");
    EXPECT_EQ(cat->Property("StartupForm").value_or(""), "Main Switchboard");
  }
  // The file's spelling of a name it has is kept; lines end in CR LF.
  EXPECT_EQ(ReadFile(overlay), "AppTitle=Nordwind\r\nStartUpForm=Main Switchboard\r\n");
  auto again = OpenCopy(db, overlay);
  ASSERT_TRUE(again);
  EXPECT_EQ(again->Property("StartupForm").value_or(""), "Main Switchboard");
  EXPECT_EQ(again->Property("AccessVersion").value_or(""), "07.53");
  const auto list = again->PropertyList();
  auto has = [&](const std::string& name, const std::string& value) {
    return std::find(list.begin(), list.end(), std::make_pair(name, value)) != list.end();
  };
  EXPECT_TRUE(has("StartUpForm", "Main Switchboard"));
  EXPECT_TRUE(has("AppTitle", "Nordwind"));
  EXPECT_TRUE(has("AccessVersion", "07.53"));
  // Without an overlay, writes are seen by this catalog only.
  auto plain = OpenCopy(db);
  ASSERT_TRUE(plain);
  plain->SetProperty("StartupForm", "(none)");
  EXPECT_EQ(plain->Property("StartupForm").value_or(""), "(none)");
}

TEST(JetCatalog, MissingOrDamagedFilesGiveAClearError) {
  MORVANE_NEED_JET_FIXTURES();
  TempDir dir;
  const std::string bytes = ReadFile(Fixture("jet4-datetest.mdb"));
  std::string foreign = bytes;
  foreign.replace(4, 15, "Standard XYZ DB");
  WriteFile(dir / "text.mdb", "This is not a database at all.\n");
  WriteFile(dir / "truncated.mdb", bytes.substr(0, 5000));
  WriteFile(dir / "cut.mdb", bytes.substr(0, 4096 * 2));
  WriteFile(dir / "empty.mdb", "");
  WriteFile(dir / "foreign.mdb", foreign);
  fs::create_directory(dir / "folder.mdb");
  struct Case {
    const char* file;
    const char* message;
  };
  const Case cases[] = {
      {"missing.mdb", "no such file"},
      {"folder.mdb", "no such file"},
      {"text.mdb", "not an Access database file"},
      {"empty.mdb", "not an Access database file"},
      {"foreign.mdb", "not an Access database file"},
      {"truncated.mdb", "truncated or damaged"},
      {"cut.mdb", "truncated or damaged"},
  };
  for (const auto& c : cases) {
    std::string err;
    EXPECT_FALSE(JetCatalog::Open(dir / c.file, {}, &err)) << c.file;
    EXPECT_NE(err.find((dir / c.file).string()), std::string::npos) << err;
    EXPECT_NE(err.find(c.message), std::string::npos) << err;
    EXPECT_EQ(err.find('\n'), std::string::npos) << err;
  }
}

// A property block whose first chunk claims a length of zero sends libmdb
// round the same bytes for ever; the reading is stopped and the file named.
TEST(JetCatalog, AFileThatKeepsTheReaderLoopingIsRefused) {
  MORVANE_NEED_JET_FIXTURES();
  TempDir dir;
  std::string bytes = ReadFile(Fixture("jet4-banco-horas.mdb"));
  const size_t block = bytes.find(std::string("MR2\0", 4));
  ASSERT_NE(block, std::string::npos);
  bytes.replace(block + 4, 4, std::string(4, '\0'));
  WriteFile(dir / "looping.mdb", bytes);
  std::string err;
  EXPECT_FALSE(JetCatalog::Open(dir / "looping.mdb", {}, &err, std::chrono::milliseconds(1500)));
  EXPECT_NE(err.find((dir / "looping.mdb").string() + ": the database is damaged"),
            std::string::npos)
      << err;
}

// Random damage anywhere after the first page: every copy either opens or is
// refused with a message naming it; none takes the process down.
TEST(JetCatalog, RandomDamageNeverCrashesTheCaller) {
  MORVANE_NEED_JET_FIXTURES();
  TempDir dir;
  const std::string bytes = ReadFile(Fixture("jet4-cadastros.mdb"));
  std::mt19937 rng(20240601);
  for (int round = 0; round < 24; ++round) {
    std::string damaged = bytes;
    const int hits = round % 2 ? 200 : 8;
    for (int i = 0; i < hits; ++i)
      damaged[4096 + rng() % (damaged.size() - 4096)] = static_cast<char>(rng());
    const fs::path file = dir / ("damaged" + std::to_string(round) + ".mdb");
    WriteFile(file, damaged);
    std::string err;
    auto cat = JetCatalog::Open(file, {}, &err, std::chrono::milliseconds(1500));
    if (!cat) {
      EXPECT_EQ(err.rfind(file.string() + ": ", 0), 0u) << err;
    }
  }
}

// Stands in for libmdb over a file that makes it allocate without end: it
// takes memory (and uses it) until an allocation fails, or gives up after
// far more than the guard allows and reports an empty database.
bool AllocateWithoutEnd(const fs::path&, JetContents*, std::string*) {
  constexpr size_t kBlock = size_t{32} << 20;
  std::vector<std::unique_ptr<char[]>> held;
  for (size_t total = 0; total < (size_t{768} << 20); total += kBlock) {
    held.emplace_back(new char[kBlock]);
    std::memset(held.back().get(), 1, kBlock);
  }
  return true;
}

TEST(JetCatalog, AReaderThatTakesMemoryWithoutEndIsStoppedAsADamagedFile) {
  JetContents out;
  std::string err;
  EXPECT_FALSE(ReadJetContentsGuarded("/data/grows.mdb", std::chrono::seconds(60),
                                      size_t{128} << 20, AllocateWithoutEnd, &out, &err));
  EXPECT_EQ(err, "/data/grows.mdb: the database is damaged (reading its catalog failed)");
}

TEST(JetCatalog, TheUsersMessagesAreTheSessionsOwn) {
  EXPECT_EQ(InvalidDatabaseMessage(), Text(kMsgInvalidDatabase));
  EXPECT_EQ(Access97Message(), Text(kMsgNotAccess2000));
  EXPECT_NE(InvalidDatabaseMessage().find("selected.  If this"), std::string::npos);
}

TEST(JetContents, EncodedContentsComeBackWholeAndCutOnesAreRefused) {
  JetContents c;
  c.Containers["Forms"] = {"Main", "Sub\xE4"};
  c.Containers["Scripts"] = {};
  c.Tables.push_back({"Orders", false, "", "", {{"ID", kDbLong, 4}, {"Name", kDbText, 50}}});
  c.Tables.push_back({"Linked", true, ";DATABASE=C:\\data\\b.mdb", "Remote", {}});
  c.Queries.push_back({"q", "SELECT *\r\nFROM Orders;", kDbQSPTBulk});
  c.Properties = {{"StartUpForm", "Main"}, {"AccessVersion", "09.50"}};
  const std::string bytes = EncodeJetContents(c);
  JetContents back;
  ASSERT_TRUE(DecodeJetContents(bytes, &back));
  EXPECT_EQ(back.Containers, c.Containers);
  ASSERT_EQ(back.Tables.size(), 2u);
  EXPECT_EQ(back.Tables[1].Connect, c.Tables[1].Connect);
  EXPECT_TRUE(back.Tables[1].Linked);
  EXPECT_EQ(back.Tables[0].Fields[1].Size, 50);
  EXPECT_EQ(back.Queries[0].Sql, c.Queries[0].Sql);
  EXPECT_EQ(back.Queries[0].Type, kDbQSPTBulk);
  EXPECT_EQ(back.Properties, c.Properties);
  for (size_t n = 0; n < bytes.size(); ++n) {
    JetContents cut;
    EXPECT_FALSE(DecodeJetContents(std::string_view(bytes).substr(0, n), &cut)) << n;
  }
  EXPECT_FALSE(DecodeJetContents(bytes + "x", &back));
}

TEST(JetQueryType, TheDesignDecidesAndTheFlagsFillIn) {
  struct Case {
    long flags;
    int design;
    int type;
  };
  const Case cases[] = {
      {0, kDbQSelect, kDbQSelect},
      {8, kDbQSelect, kDbQSelect},  // hidden in the database window
      {16 | 8, kDbQCrosstab, kDbQCrosstab},
      {kDbQSQLPassThrough, kDbQSQLPassThrough, kDbQSQLPassThrough},
      {kDbQSPTBulk, kDbQSQLPassThrough, kDbQSPTBulk},
      {kDbQDelete, -1, kDbQDelete},
      {kDbQAppend | 8, -1, kDbQAppend},
      {0, kDbQUpdate, kDbQUpdate},
  };
  for (const auto& c : cases)
    EXPECT_EQ(JetQueryType(c.flags, c.design), c.type) << c.flags << " " << c.design;
}

struct SqlCase {
  const char* name;
  std::vector<QueryPart> parts;
  const char* sql;
  int type;
};

TEST(RebuildQuerySql, ActionAndJoinedQueries) {
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
      {"a chain of joins and a table outside them",
       {{1, "", 1, "", ""},
        {5, "", 0, "A", ""},
        {5, "", 0, "B", ""},
        {5, "", 0, "C", ""},
        {5, "", 0, "D", ""},
        {3, "", 1, "", ""},
        {7, "A.x = B.x", 1, "A", "B"},
        {7, "C.y = B.y", 3, "C", "B"}},
       "SELECT *\r\nFROM C RIGHT JOIN (A INNER JOIN B ON A.x = B.x) ON C.y = B.y, D;",
       kDbQSelect},
      {"two joins of the same pair",
       {{1, "", 1, "", ""},
        {5, "", 0, "A", ""},
        {5, "", 0, "B", ""},
        {6, "A.x", 0, "", ""},
        {7, "A.x = B.x", 1, "A", "B"},
        {7, "A.z = B.z", 1, "A", "B"}},
       "SELECT A.x\r\nFROM A INNER JOIN B ON A.x = B.x AND A.z = B.z;",
       kDbQSelect},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RebuildQuerySql(c.parts), c.sql) << c.name;
    EXPECT_EQ(QueryTypeOf(c.parts), c.type) << c.name;
  }
}

}  // namespace
}  // namespace morvane
