// The list writers' rules that the golden runs cannot reach or that are easy
// to get wrong: the DAO classes and records of the Sheridan writers, the
// names of the row sources' data controls, and values too long for a line
// of the form text, which go into Form_Load in pieces.
#include "forms/list_writers.h"

#include <gtest/gtest.h>

#include "forms/control_writers.h"
#include "platform/catalog.h"
#include "session/vb6_check.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::FormText;

class ListWriters : public test::WriterHarness {
 protected:
  // Walks control `name` of frmTest as the walk does, and returns its text.
  std::string Walk(const std::string& name, bool list) {
    Stand(name, 0);
    if (list)
      WriteListBox(w_);
    else
      WriteComboBox(w_);
    return Written();
  }
  std::string FormLoadLines() {
    std::string out;
    for (const HintRecord& h : s_.Form().Hints)
      if (auto* line = std::get_if<FormLoadLineHint>(&h)) out += line->Line + "\n";
    return out;
  }
};

TEST_F(ListWriters, SheridanUnderDaoTakesTheDaoClassesAndADataControl) {
  AddForm("frmTest", FormText(R"(
Begin ComboBox
    Name ="cboPick"
    RowSourceType ="Table/Query"
    RowSource ="qryPick"
    ColumnCount =2
    ColumnWidths ="0;1440"
End
Begin ListBox
    Name ="lstPick"
    RowSourceType ="Table/Query"
    RowSource ="qryPick"
    ColumnCount =2
End
)"));
  s_.Options.UseAdo = false;
  s_.Options.ComboboxBound = true;
  s_.Options.ListboxBound = true;
  s_.Options.ComboboxType = 3;
  s_.Options.ListboxType = 2;
  const std::string combo = Walk("cboPick", false);
  EXPECT_EQ(combo.rfind("Begin SSDataWidgets_B.SSDBCombo cboPick\r\n", 0), 0u) << combo;
  EXPECT_NE(combo.find("_Version = 131078\r\n"), std::string::npos);
  EXPECT_NE(combo.find("DataSourceList =\"datcboPick\"\r\n"), std::string::npos);
  EXPECT_NE(combo.find("End\r\nBegin VB.Data datcboPick\r\n"), std::string::npos);
  EXPECT_NE(combo.find("RecordSource = \"qryPick\"\r\n"), std::string::npos);
  // A DAO binding of a list: tag CE FA 01 00, kind 2B, the data control.
  EXPECT_EQ(s_.Form().Binary,
            std::string("\xCE\xFA\x01\x00\x2B\x00\x00\x00\x0A", 9) + "datcboPick");

  const std::string list = Walk("lstPick", true);
  EXPECT_EQ(list.rfind("Begin SSDataWidgets_B.SSDBGrid lstPick\r\n", 0), 0u) << list;
  EXPECT_EQ(w_.Text().ComponentFiles, (std::vector<std::string>{"SSDW3B32.OCX", "SSDATB32.OCX"}));
}

TEST_F(ListWriters, DataControlsOfListsHaveNamesOfTheirOwn) {
  const std::string name40 = "cboAVeryLongComboBoxNameOfFortyLettersXY";
  ASSERT_EQ(name40.size(), 40u);
  std::string controls;
  for (const std::string& name : {std::string("frmTest"), std::string("datcboTwin"), name40,
                                  name40.substr(0, 37) + "XYZ", std::string("cboTwin")})
    controls += "Begin ComboBox\nName =\"" + name +
                "\"\nRowSourceType =\"Table/Query\"\nRowSource =\"tblA\"\nColumnCount =2\nEnd\n";
  AddForm("frmTest", FormText(controls));
  s_.Options.ComboboxType = 1;
  s_.Options.ComboboxBound = true;
  std::set<std::string> names;
  for (const std::string& name : {std::string("frmTest"), std::string("datcboTwin"), name40,
                                  name40.substr(0, 37) + "XYZ", std::string("cboTwin")}) {
    const std::string text = Walk(name, false);
    const size_t at = text.find("Begin MSAdodcLib.Adodc ");
    ASSERT_NE(at, std::string::npos) << text;
    const std::string data = text.substr(at + 23, text.find('\r', at) - at - 23);
    EXPECT_TRUE(IsVb6Identifier(data)) << data;
    EXPECT_TRUE(names.insert(ToLower(data)).second) << data;
    // The data control carries its name as its caption.
    EXPECT_NE(text.find("Caption = \"" + data + "\""), std::string::npos);
  }
  // The form's own data control and a control of that name keep theirs.
  EXPECT_EQ(names.count("datfrmtest"), 0u);
  EXPECT_EQ(names.count("datcbotwin"), 0u);
}

TEST_F(ListWriters, ValuesLongerThanALineAreSetFromFormLoad) {
  std::string sql = "SELECT \"a\" AS x";
  while (sql.size() < 2500)
    sql += ", \"" + std::string(30, 'q') + "\" AS f" + std::to_string(sql.size());
  MemoryCatalog db;
  db.Queries.push_back({"qryRemote", sql, kDbQSQLPassThrough});
  s_.SourceDb = &db;
  AddForm("frmTest", FormText(R"(
Begin ComboBox
    Name ="cboRemote"
    RowSourceType ="Table/Query"
    RowSource ="qryRemote"
    ColumnCount =2
End
)"));
  s_.Options.ComboboxType = 2;
  s_.Options.ComboboxBound = false;
  const std::string text = Walk("cboRemote", false);
  EXPECT_EQ(text.find("Tag="), std::string::npos);
  // The pieces, each a line that fits, give the tag's whole text back.
  std::string joined;
  const std::string lines = FormLoadLines();
  size_t start = 0;
  for (size_t end; (end = lines.find('\n', start)) != std::string::npos; start = end + 1) {
    const std::string line = lines.substr(start, end - start);
    EXPECT_LE(line.size() + 8, 1023u) << line;
    const size_t open =
        line.find(" & \"") != std::string::npos ? line.find(" & \"") + 4 : line.find(" = \"") + 4;
    ASSERT_EQ(line.back(), '"') << line;
    joined += line.substr(open, line.size() - open - 1);
  }
  EXPECT_EQ(lines.rfind("cboRemote.Tag = \"SQLPassthrough  qryRemote ~ SELECT \"\"a\"\"", 0), 0u);
  EXPECT_EQ(joined, "SQLPassthrough  qryRemote ~ " + ReplaceAllText(sql, "\"", "\"\""));
}

}  // namespace
}  // namespace morvane
