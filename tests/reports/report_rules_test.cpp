// The rules of report text boxes whose source is an expression, the
// parameters of a record source, the sharing of commands in the data
// environment, and the designer checker on a broken designer. Whole reports
// are in the golden case "reports", which shows page numbers, a long date, a
// short time, a date inside a text, Sum and Count over a field and over *, a
// constant text and an IIf the database computes; these are the rest.
#include <gtest/gtest.h>

#include "reports/data_environment.h"
#include "reports/report_expressions.h"
#include "support/designer_checker.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

struct CaptionRow {
  const char* source;
  const char* format;
  const char* caption;
  bool resolved;
};

TEST(ReportExpressions, PageAndDateFieldsBecomeTheReportsCodes) {
  const CaptionRow rows[] = {
      {"=[Page]", "", "%p", true},
      {"=Date()", "Short Date", "%d", true},
      {"=Date()", "", "%D", true},
      {"=Time()", "", "%T", true},
      {"=Now()", "Short Date", "%d %T", true},
      {"=Format(Date(),\"Long Date\")", "", "%D", true},
      {"=Format(Time(),\"Short Time\")", "", "%t", true},
      // Inside a text a date shows in its short form, a time in its long.
      {"=[Page] & \"/\" & [Pages]", "", "%p/%P", true},
      // What no code stands for stays as text, and is said so.
      {"=\"By \" & CurrentUser() & \" on \" & Now()", "", "By CurrentUser() on %d %T", false},
      {"=Format(Now(),\"dd.mm.yyyy\")", "", "Format(%d %T,dd.mm.yyyy)", false},
  };
  for (const CaptionRow& r : rows) {
    SCOPED_TRACE(r.source);
    EXPECT_TRUE(HasPageOrDateField(r.source));
    bool resolved = !r.resolved;
    EXPECT_EQ(PageDateCaption(r.source, r.format, &resolved), r.caption);
    EXPECT_EQ(resolved, r.resolved);
  }
  // The search is exact: a field named "page" is no page number.
  EXPECT_FALSE(HasPageOrDateField("=[page] & [DateField]"));
}

struct AggregateRow {
  const char* source;
  int functionType;  // -1: no aggregate
  const char* field;
  bool single;
};

TEST(ReportExpressions, AggregatesBecomeFunctionItemsOverOneField) {
  const AggregateRow rows[] = {
      {"=Avg([Order Total])", 1, "Order Total", true},
      {"=Min( [Price] )", 2, "Price", true},
      {"=Max(Price)", 3, "Price", true},
      {"=StDev([Amount])", 6, "Amount", true},
      {"=Sum([Qty]*[Price])", 0, "Qty", false},
      {"=Sum([Amount])/Count([OrderID])", 0, "Amount", false},
      {"=Left([Name],1)", -1, "", false},
      {"=sum([Amount])", -1, "", false},  // the name is compared exactly
      {"=Summe([Betrag])", -1, "", false},
  };
  for (const AggregateRow& r : rows) {
    SCOPED_TRACE(r.source);
    auto a = Aggregate(r.source);
    if (r.functionType < 0) {
      EXPECT_FALSE(a.has_value());
      continue;
    }
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->FunctionType, r.functionType);
    EXPECT_EQ(a->Field, r.field);
    EXPECT_EQ(a->SingleField, r.single);
  }
}

TEST(ReportExpressions, ConstantsAndPlainVisualBasic) {
  EXPECT_EQ(ConstantText("=\"Say \"\"hi\"\"\" & \" now\""), "Say \"hi\" now");
  EXPECT_EQ(ConstantText("=1"), "1");
  EXPECT_FALSE(ConstantText("=\"a\" & [b]"));
  EXPECT_FALSE(ConstantText("=\"a\" &"));
  EXPECT_FALSE(ConstantText("=UCase(\"a\")"));

  EXPECT_TRUE(IsPlainVbExpression("UCase(\"total\") & Format(Now, \"yyyy\")"));
  EXPECT_TRUE(IsPlainVbExpression("\"Sum(x)\" & 1"));
  EXPECT_FALSE(IsPlainVbExpression("Count([OrderID])"));
  EXPECT_FALSE(IsPlainVbExpression("Nz(x, 0)"));
  EXPECT_FALSE(IsPlainVbExpression("DLookup (\"a\", \"b\")"));
  EXPECT_FALSE(IsPlainVbExpression("Forms!frmMain!txtName"));

  // The database computes an expression over the source's own fields.
  const std::vector<std::string> fields = {"Qty", "Unit Price", "Name"};
  EXPECT_EQ(JetColumnExpression("=[Qty]*[Unit Price]", fields), "[Qty]*[Unit Price]");
  EXPECT_FALSE(JetColumnExpression("=[txtTotal]*1.2", fields));        // a control
  EXPECT_FALSE(JetColumnExpression("=[Forms]![frmA]![Qty]", fields));  // a form
  EXPECT_FALSE(JetColumnExpression("=Nz([Qty],0)", fields));           // Access's own
  EXPECT_FALSE(JetColumnExpression("=fTaxOf([Qty])", fields));         // the user's
  EXPECT_FALSE(JetColumnExpression("=[Name].[Column](1)", fields));
}

TEST(DataEnvironment, ParametersAreDeclaredOrReadFromForms) {
  auto p = StatementParameters(
      "PARAMETERS [Start Date] DateTime, Region Text ( 255 ), [Max] Long;\r\n"
      "SELECT * FROM t WHERE d >= [Start Date] AND r = [Forms]![frmMain]![cboRegion] "
      "AND x = [Forms]![frmMain]![cboRegion]");
  ASSERT_EQ(p.size(), 4u);
  EXPECT_EQ(p[0].Name, "Start Date");
  EXPECT_EQ(p[0].DaoType, kDbDate);
  EXPECT_EQ(p[1].Name, "Region");
  EXPECT_EQ(p[1].DaoType, kDbText);
  EXPECT_EQ(p[2].DaoType, kDbLong);
  EXPECT_EQ(p[3].Name, "Forms!frmMain!cboRegion");
  EXPECT_TRUE(StatementParameters("SELECT * FROM [Forms]").empty());
}

TEST(DataEnvironment, EqualCommandsAreSharedAndOthersNumbered) {
  DataEnvironment env;
  ReportCommand plain;
  plain.Name = plain.Text = "tblOrders";
  ReportCommand sorted = plain;
  sorted.Text = "Select * From [tblOrders] Order By OrderDate ASC";
  sorted.Type = 1;
  EXPECT_EQ(env.Add(plain).Name, "tblOrders");
  EXPECT_EQ(env.Add(sorted).Name, "tblOrders2");
  EXPECT_EQ(env.Add(plain).Name, "tblOrders");
  EXPECT_EQ(env.Add(sorted).Name, "tblOrders2");
  EXPECT_EQ(env.Commands().size(), 2u);
  // A command is a method of the environment: its name begins with a letter.
  EXPECT_EQ(CommandBaseName("rpt", "2008 Sales"), "cmd2008_Sales");
  EXPECT_EQ(CommandBaseName("rpt 1", "SELECT\r\n* FROM t"), "rpt_1");
  EXPECT_EQ(CommandBaseName("rpt 1", "Selected Orders"), "Selected_Orders");
}

TEST(DesignerChecker, NamesWhatVb6WouldRefuse) {
  test::TempDir dir;
  test::WriteFile(dir / "rptEnvironment.dsr",
                  "VERSION 5.00\r\nBegin {C0E45035-5775-11D0-B388-00A0C9055D8E} rptEnvironment\r\n"
                  "NumRecordsets = 1\r\nBeginProperty Recordset1\r\nCommandName = \"tblA\"\r\n"
                  "EndProperty\r\nEnd\r\nAttribute VB_Name = \"rptEnvironment\"\r\n");
  test::WriteFile(dir / "rptA.dsr",
                  "VERSION 5.00\r\nBegin {78E93846-85FD-11D0-8487-00A0C90DC8A9} rptA\r\n"
                  "DataMember = \"tblB\"\r\nNumSections = 2\r\nSectionCode0 = 4\r\n"
                  "BeginProperty Section0 {1C13A8E0-A0B6-11D0-848E-00A0C90DC8A9}\r\n"
                  "NumControls = 2\r\nItemType0 = 3\r\n"
                  "BeginProperty Item0 {1C13A8E0-A0B6-11D0-848E-00A0C90DC8A9}\r\n"
                  "EndProperty\r\nEndProperty\r\nEnd\r\nAttribute VB_Name = \"rptA\"\r\n");
  const auto problems = test::CheckReportDesigners(dir.path());
  ASSERT_EQ(problems.size(), 4u);
  EXPECT_EQ(problems[0], "rptA.dsr:3: DataMember \"tblB\" is not in the data environment");
  EXPECT_EQ(problems[1],
            "rptA.dsr:9: item of type 3 with class {1C13A8E0-A0B6-11D0-848E-00A0C90DC8A9}");
  EXPECT_EQ(problems[2], "rptA.dsr:7: NumControls = 2 but 1 items");
  EXPECT_EQ(problems[3], "rptA.dsr:4: NumSections = 2 but 1 sections");
}

}  // namespace
}  // namespace morvane
