// Record source analysis: field names at a column of tables, saved queries
// and SELECT statements; the SQL that ties a subform to its parent's row and
// the queries it leaves; one-column lists; and the custom control mapping
// with every row of the shipped table.
#include "forms/record_source.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "design/form_design.h"
#include "forms/query_fields.h"
#include "tests/forms/data_fixture.h"

namespace morvane {
namespace {

class RecordSourceTest : public test::DataFixture {
 protected:
  RecordSourceTest() {
    db_.Queries.push_back({"qryWithParameters",
                           "PARAMETERS [Which customer] Text ( 255 );\r\n"
                           "SELECT DISTINCTROW Customers.CompanyName, Orders.OrderDate\r\n"
                           "FROM Customers INNER JOIN Orders ON Customers.CustomerID = "
                           "Orders.CustomerID\r\nWHERE Customers.CustomerID=[Which customer];",
                           kDbQSelect});
    db_.Queries.push_back({"qryUnion",
                           "SELECT CompanyName AS Name, CustomerID FROM Customers\r\n"
                           "UNION SELECT LastName, CustomerID FROM Customers;",
                           128});
    db_.Queries.push_back(
        {"qryDelete", "DELETE Orders.* FROM Orders WHERE Orders.OrderDate < #1/1/1990#;", 32});
    db_.Queries.push_back({"qryLoopA", "SELECT * FROM qryLoopB;", kDbQSelect});
    db_.Queries.push_back({"qryLoopB", "SELECT * FROM qryLoopA;", kDbQSelect});
  }

  std::string LinkSql(const char* control, const std::string& source = "Order Details") {
    const FormDesign* main = store_.OpenForm("Main", nullptr);
    EXPECT_NE(main, nullptr);
    w_.Text().OwnerFormName = "Main";
    return SubformLinkSql(w_, source, *main->Control(control));
  }
};

TEST_F(RecordSourceTest, FieldNameAtTablesQueriesAndStatements) {
  struct Case {
    const char* source;
    int index;
    const char* name;
  };
  const Case cases[] = {
      // Tables, found by the second lookup.
      {"Orders", 0, "OrderID"},
      {"order details", 3, "Quantity"},
      {"Orders", 4, ""},
      {"Orders", -1, ""},
      {"Nowhere", 0, ""},
      // Saved queries: qualified names, an alias, and a star whose OrderID
      // meets the first column's and so is named by its table.
      {"qryOrderLines", 0, "Orders.OrderID"},
      {"qryOrderLines", 1, "Placed"},
      {"qryOrderLines", 2, "Order Details.OrderID"},
      {"qryOrderLines", 5, "Quantity"},
      {"qryOrderLines", 6, ""},
      // A query of a query.
      {"qryRecent", 1, "Placed"},
      {"qryWithParameters", 0, "CompanyName"},
      {"qryWithParameters", 1, "OrderDate"},
      {"qryUnion", 0, "Name"},
      {"qryUnion", 1, "CustomerID"},
      {"qryUnion", 2, ""},
      {"qryDelete", 0, ""},
      {"qryLoopA", 0, ""},
      // Statements.
      {"Select a, b From t", 1, "b"},
      {"SELECT * FROM [Order Details];", 1, "ProductID"},
      {"SELECT O.* FROM Orders AS O", 2, "OrderDate"},
      {"SELECT c.CompanyName, o.OrderID FROM Customers c, Orders o", 1, "OrderID"},
      {"SELECT [Orders].[OrderDate] FROM [Orders]", 0, "OrderDate"},
      {"SELECT Customers!LastName FROM Customers", 0, "LastName"},
      {"SELECT Count(*) FROM Orders", 0, "Expr1000"},
      {"SELECT OrderID, Quantity*2, UnitPrice+1 AS Price, Quantity/3 FROM [Order Details]", 1,
       "Expr1000"},
      {"SELECT OrderID, Quantity*2, UnitPrice+1 AS Price, Quantity/3 FROM [Order Details]", 2,
       "Price"},
      {"SELECT OrderID, Quantity*2, UnitPrice+1 AS Price, Quantity/3 FROM [Order Details]", 3,
       "Expr1001"},
      {"SELECT DISTINCT TOP 10 PERCENT Customers.CompanyName FROM Customers ORDER BY 1", 0,
       "CompanyName"},
      {"SELECT Nz(Freight, 0) AS [Freight Paid], OrderID FROM Orders", 0, "Freight Paid"},
      {"SELECT Nz(Freight, 0) AS [Freight Paid], OrderID FROM Orders", 1, "OrderID"},
      {"SELECT * FROM (Orders INNER JOIN [Order Details] ON Orders.OrderID = [Order "
       "Details].OrderID) INNER JOIN Customers ON (Orders.CustomerID = Customers.CustomerID "
       "AND Customers.CompanyName <> 'x')",
       9, "CompanyName"},
      {"SELECT * FROM (Orders INNER JOIN [Order Details] ON Orders.OrderID = [Order "
       "Details].OrderID) INNER JOIN Customers ON Orders.CustomerID = Customers.CustomerID",
       8, "Customers.CustomerID"},
      {"SELECT X.Total FROM (SELECT OrderID, Sum(Quantity) AS Total FROM [Order Details] "
       "GROUP BY OrderID) AS X",
       0, "Total"},
      {"SELECT * FROM (SELECT OrderID, Sum(Quantity) AS Total FROM [Order Details] "
       "GROUP BY OrderID) AS X",
       1, "Total"},
      {"SELECT * FROM qryOrderLines", 1, "Placed"},
      // Only "select " with its blank starts a statement; this is a name.
      {"SELECT\r\nOrderID FROM Orders", 0, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.source) + " @" + std::to_string(c.index));
    EXPECT_EQ(FieldNameAt(s_, c.source, c.index), c.name);
  }
  // Statements are read without a scratch query: none is left behind.
  EXPECT_FALSE(db_.QueryDef("qqMorvane"));
  EXPECT_TRUE(db_.MadeQueries().empty());
}

TEST_F(RecordSourceTest, SelectFieldTypes) {
  auto fields = SelectFields(
      db_,
      "SELECT Orders.OrderDate, [FirstName] & ' ' & [LastName] AS FullName, "
      "Sum([Order Details].UnitPrice) AS Total, Count(*) AS N, Orders.OrderID > 10 AS Big, "
      "Freight * 1.1 AS Gross, #1/2/2000# AS Since, 'x' AS Letter, 7 AS Seven, Unknown "
      "FROM Orders, [Order Details], Customers");
  ASSERT_TRUE(fields);
  const std::vector<std::pair<std::string, int>> expected = {
      {"OrderDate", kDbDate}, {"FullName", kDbText}, {"Total", kDbCurrency}, {"N", kDbLong},
      {"Big", kDbBoolean},    {"Gross", kDbDouble},  {"Since", kDbDate},     {"Letter", kDbText},
      {"Seven", kDbLong},     {"Unknown", kDbText},
  };
  ASSERT_EQ(fields->size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ((*fields)[i].Name, expected[i].first);
    EXPECT_EQ((*fields)[i].Type, expected[i].second) << expected[i].first;
  }
  EXPECT_FALSE(SelectFields(db_, "UPDATE Orders SET Freight = 0"));
  EXPECT_FALSE(SelectFields(db_, "SELECT FROM Orders"));
}

TEST_F(RecordSourceTest, SelectStatementTest) {
  EXPECT_TRUE(IsSelectStatement("SELECT * FROM Orders"));
  EXPECT_TRUE(IsSelectStatement("select a"));
  EXPECT_FALSE(IsSelectStatement("SELECT\r\n* FROM Orders"));
  EXPECT_FALSE(IsSelectStatement("Selection"));
  EXPECT_FALSE(IsSelectStatement("select"));
  EXPECT_FALSE(IsSelectStatement(" SELECT * FROM Orders"));
}

TEST_F(RecordSourceTest, SubformLinkOnANumericField) {
  const std::string expected =
      "Select * from [Order Details] INNER JOIN [Orders] ON [Order Details].[OrderID] = "
      "[Orders].[OrderID] Where [Orders].[OrderID]=\" & datMain.Recordset.Fields(\"OrderID\")";
  EXPECT_EQ(LinkSql("subLines"), expected);
  // The join is saved under the owner's name and stays.
  auto join = db_.QueryDef("qrydatMain");
  ASSERT_TRUE(join);
  EXPECT_EQ(join->Sql,
            "Select * from [Order Details] INNER JOIN [Orders] ON [Order Details].[OrderID] = "
            "[Orders].[OrderID]");
  EXPECT_EQ(db_.MadeQueries().size(), 1u);
}

TEST_F(RecordSourceTest, SubformLinkOnATextFieldQuotesTheValue) {
  EXPECT_EQ(LinkSql("subByCustomer", "Customers"),
            "Select * from [Customers] INNER JOIN [Orders] ON [Customers].[CustomerID] = "
            "[Orders].[CustomerID] Where [Orders].[CustomerID]=\"\"\" & "
            "datMain.Recordset.Fields(\"CustomerID\") & \"\"\"\"");
}

TEST_F(RecordSourceTest, SubformLinkOverSelectStatementsSavesThemAsQueries) {
  // The parent's source becomes a statement over Orders.
  const std::string parent = "SELECT OrderID, OrderDate FROM Orders WHERE Freight > 0";
  std::string text = test::kMainForm;
  text.replace(text.find("RecordSource =\"Orders\""), 22, "RecordSource =\"" + parent + "\"");
  forms_["Main"] = text;
  const std::string child = "SELECT * FROM [Order Details] WHERE \"a\"=\"a\"";
  EXPECT_EQ(LinkSql("subLines", child),
            "Select * from [qrydatMain1] INNER JOIN [qrydatMain2] ON [qrydatMain1].[OrderID] = "
            "[qrydatMain2].[OrderID] Where [qrydatMain2].[OrderID]=\" & "
            "datMain.Recordset.Fields(\"OrderID\")");
  ASSERT_TRUE(db_.QueryDef("qrydatMain1"));
  EXPECT_EQ(db_.QueryDef("qrydatMain1")->Sql, child);
  ASSERT_TRUE(db_.QueryDef("qrydatMain2"));
  EXPECT_EQ(db_.QueryDef("qrydatMain2")->Sql, parent);
  EXPECT_EQ(FieldNameAt(s_, "qrydatMain2", 1), "OrderDate");

  // A second subform finds the queries made: the stored ones stay in use.
  LinkSql("subLines", "SELECT ProductID FROM [Order Details]");
  EXPECT_EQ(db_.QueryDef("qrydatMain1")->Sql, child);
  EXPECT_EQ(db_.MadeQueries().size(), 3u);
}

TEST_F(RecordSourceTest, SubformLinkQuotesInTheSourceAreDoubled) {
  const std::string sql = LinkSql("subLines", "Order \"Details\"");
  EXPECT_EQ(sql.rfind("Select * from [Order \"\"Details\"\"] INNER JOIN", 0), 0u) << sql;
}

TEST_F(RecordSourceTest, SubformLinkOnSeveralFields) {
  EXPECT_EQ(LinkSql("subTwoFields"),
            "Select * from [Order Details] INNER JOIN [Orders] ON [Order Details].[OrderID] = "
            "[Orders].[OrderID] AND [Order Details].[ProductID] = [Orders].[CustomerID] "
            "Where [Orders].[OrderID]=\" & datMain.Recordset.Fields(\"OrderID\")"
            " & \" AND [Orders].[CustomerID]=\"\"\" & datMain.Recordset.Fields(\"CustomerID\")"
            " & \"\"\"\"");
}

TEST_F(RecordSourceTest, SubformLinkWithoutLinkFieldsKeepsItsLiteralParts) {
  EXPECT_EQ(LinkSql("subUnlinked"),
            "Select * from [Order Details] INNER JOIN [Orders] ON [Order Details].[] = "
            "[Orders].[] Where [Orders].[]=\" & datMain.Recordset.Fields(\"\")");
}

TEST_F(RecordSourceTest, PlainListControlIsOneColumnOrLess) {
  const FormDesign* main = store_.OpenForm("Main", nullptr);
  ASSERT_NE(main, nullptr);
  struct Case {
    const char* control;
    bool plain;
  };
  for (const Case& c : {Case{"lstOne", true}, Case{"lstNone", true}, Case{"lstTwo", false},
                        Case{"cboDefault", true}, Case{"txtPlain", false}}) {
    SCOPED_TRACE(c.control);
    ASSERT_NE(main->Control(c.control), nullptr);
    EXPECT_EQ(IsPlainListControl(s_, *main->Control(c.control)), c.plain);
  }
}

TEST_F(RecordSourceTest, EveryMappingRowMapsToItsClassAndComponent) {
  std::vector<std::string> lines;
  ASSERT_TRUE(
      ReadTextLines(std::string(MORVANE_DATA_DIR) + "/CustomControlMapping.tsv", &lines, nullptr));
  const std::regex classId(
      R"(\{[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\}#[0-9]+\.[0-9]+#0)");
  const std::regex vbType(R"([A-Za-z][A-Za-z0-9]*\.[A-Za-z][A-Za-z0-9]*)");
  const std::regex file(R"([A-Za-z0-9_]+\.(OCX|DLL))");
  std::set<std::string> seen;
  bool header = true;
  int rows = 0;
  for (const std::string& line : lines) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> f(1);
    for (char c : line) {
      if (c == '\t')
        f.emplace_back();
      else
        f.back() += c;
    }
    ASSERT_EQ(f.size(), 4u) << line;
    if (header) {
      EXPECT_EQ(f, (std::vector<std::string>{"AccessClassName", "VBType", "ClassID", "FileName"}));
      header = false;
      continue;
    }
    SCOPED_TRACE(f[0]);
    ++rows;
    EXPECT_TRUE(seen.insert(ToLower(f[0])).second) << "listed twice";
    EXPECT_TRUE(std::regex_match(f[1], vbType));
    EXPECT_TRUE(std::regex_match(f[2], classId));
    EXPECT_TRUE(std::regex_match(f[3], file));

    w_.WriteComponentLines(false);
    EXPECT_EQ(MapCustomControl(s_, f[0], &w_), f[1]);
    ASSERT_EQ(w_.Text().ComponentGuids.size(), 1u);
    EXPECT_EQ(w_.Text().ComponentGuids[0], f[2]);
    EXPECT_EQ(w_.Text().ComponentFiles[0], f[3]);
  }
  EXPECT_GE(rows, 16);
}

TEST_F(RecordSourceTest, ALibraryIsRegisteredOnce) {
  // Two controls of one library register it once, and so does the date
  // picker of a text box after a mapped one.
  w_.WriteComponentLines(false);
  MapCustomControl(s_, "MSComctlLib.TreeCtrl.2", &w_);
  MapCustomControl(s_, "MSComctlLib.Slider.2", &w_);
  MapCustomControl(s_, "MSComCtl2.MonthView.2", &w_);
  w_.AddComponent("{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0", "MSCOMCT2.OCX");
  EXPECT_EQ(w_.Text().ComponentFiles, (std::vector<std::string>{"MSCOMCTL.OCX", "MSCOMCT2.OCX"}));
}

TEST_F(RecordSourceTest, UnknownClassOrNoComponent) {
  w_.WriteComponentLines(false);
  EXPECT_EQ(MapCustomControl(s_, "MSGraph.Chart.8", &w_), "");
  EXPECT_EQ(MapCustomControl(s_, "", &w_), "");
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
  // A class whose Visual Basic counterpart needs no component.
  ASSERT_TRUE(support_->Execute(
      "INSERT INTO CustomControlMapping VALUES ('Forms.Label.1', 'VB.Label', '0', '')"));
  EXPECT_EQ(MapCustomControl(s_, "Forms.Label.1", &w_), "VB.Label");
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
  // Without a writer the class is still found.
  EXPECT_EQ(MapCustomControl(s_, "MSCAL.Calendar.7"), "MSACAL.Calendar");
}

}  // namespace
}  // namespace morvane
