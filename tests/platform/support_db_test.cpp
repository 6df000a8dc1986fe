// The support database: schema, statistics merging, seeding.
#include "platform/support_db.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace morvane {
namespace {

TEST(SupportDatabase, StatsRowKeepsEarlierNonZeroCounts) {
  test::TempDir dir;
  std::string err;
  auto db = SupportDatabase::Open(dir / "morvane.db", dir.path(), &err);
  ASSERT_TRUE(db) << err;
  StatsRow lines{"frmOrders", 40, 3, 2, 5, 4, 3, 1, 0, 0, 38};
  ASSERT_TRUE(db->MergeStats(lines));
  StatsRow controls{"frmOrders"};
  controls.CtlCount = 12;
  controls.CtlsPartiallyConverted = 2;
  ASSERT_TRUE(db->MergeStats(controls));
  StatsRow again{"frmOrders"};
  again.TotalLines = 41;
  ASSERT_TRUE(db->MergeStats(again));

  auto rows = db->Stats();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].TotalLines, 41);
  EXPECT_EQ(rows[0].CommentLines, 3);
  EXPECT_EQ(rows[0].CtlCount, 12);
  EXPECT_EQ(rows[0].CtlsPartiallyConverted, 2);
  EXPECT_EQ(rows[0].CodeLines, 38);
}

TEST(SupportDatabase, ClearingTheAnalysisKeepsTheLog) {
  test::TempDir dir;
  auto db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
  ASSERT_TRUE(db);
  db->AddReportOutput({"basOrders", 7, "DoCmd.Beep 'x'", 3, "", "Sub x("});
  db->MergeStats({"basOrders", 1});
  db->AddLog({6, "rptOrders", "Report_Open("});
  db->ClearAnalysis();
  EXPECT_TRUE(db->ReportOutput().empty());
  EXPECT_TRUE(db->Stats().empty());
  ASSERT_EQ(db->Log().size(), 1u);
  EXPECT_EQ(db->Log()[0].Location, "Report_Open(");
}

TEST(SupportDatabase, RowsAddedTogetherKeepTheirOrderAmongSingleRows) {
  test::TempDir dir;
  auto db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
  ASSERT_TRUE(db);
  std::vector<ReportOutputRow> rows;
  for (int i = 0; i < 70; ++i)  // two whole batches and a few more
    rows.push_back({"bas" + std::to_string(i % 3), i, "line " + std::to_string(i), i + 1,
                    i % 2 ? "" : "done", "Sub P" + std::to_string(i) + "("});
  std::vector<const ReportOutputRow*> together;
  for (size_t i = 1; i + 1 < rows.size(); ++i) together.push_back(&rows[i]);
  ASSERT_TRUE(db->AddReportOutput(rows.front()));
  ASSERT_TRUE(db->AddReportOutputs(together.data(), together.size()));
  ASSERT_TRUE(db->AddReportOutput(rows.back()));

  const std::vector<ReportOutputRow> read = db->ReportOutput();
  ASSERT_EQ(read.size(), rows.size());
  for (size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(read[i].ModuleName, rows[i].ModuleName);
    EXPECT_EQ(read[i].ReasonID, rows[i].ReasonID);
    EXPECT_EQ(read[i].CodeLine, rows[i].CodeLine);
    EXPECT_EQ(read[i].LineNumber, rows[i].LineNumber);
    EXPECT_EQ(read[i].TranslatedLine, rows[i].TranslatedLine);
    EXPECT_EQ(read[i].Routine, rows[i].Routine);
  }
}

TEST(SupportDatabase, KeepsWindows1252BytesAsTheyAre) {
  test::TempDir dir;
  auto db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
  ASSERT_TRUE(db);
  const std::string line =
      "MsgBox \"Gr\xfc\xdf"
      "e \x80\"";
  db->AddReportOutput({"m", 2, line, 1, "", ""});
  EXPECT_EQ(db->ReportOutput().at(0).CodeLine, line);
}

TEST(SupportDatabase, SeedsMappingTablesFromTheDataDirectoryOnce) {
  test::TempDir dir;
  test::WriteFile(dir / "data" / "mtm_tblLookups.tsv",
                  "# lookups\nLookupNumber\tValue\n1\tacForm\n2\tacReport\n");
  {
    auto db = SupportDatabase::Open(dir / "morvane.db", dir / "data", nullptr);
    ASSERT_TRUE(db);
    EXPECT_EQ(db->CountRows("mtm_tblLookups"), 2);
  }
  auto db = SupportDatabase::Open(dir / "morvane.db", dir / "data", nullptr);
  ASSERT_TRUE(db);
  EXPECT_EQ(db->CountRows("mtm_tblLookups"), 2);
  EXPECT_EQ(db->CountRows("mtm_tblActions"), 0);
}

TEST(SupportDatabase, AnUnwritablePathIsAClearError) {
  std::string err;
  auto db = SupportDatabase::Open("/nonexistent-dir/sub/morvane.db", ".", &err);
  EXPECT_FALSE(db);
  EXPECT_NE(err.find("/nonexistent-dir/sub/morvane.db"), std::string::npos);
}

}  // namespace
}  // namespace morvane
