// Form finishing: the rules of label arrays that golden forms do not show
// (two arrays of eleven, labels the code names, tab lists), and the DBGrid
// of a datasheet placed on the finished form.
#include "session/form_finishing.h"

#include <gtest/gtest.h>

#include "platform/project_model.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

using test::Crlf;
using test::TempDir;

struct Fixture {
  TempDir dir;
  ConversionSession s;
  std::unique_ptr<SupportDatabase> db;
  Fixture() {
    db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
    s.SupportDb = db.get();
    s.PushForm("Big");
  }
};

// A form text of `labels` labels "Label1".., a tab list naming Label3, and
// `code` behind the designer block.
std::string FormText(int labels, const std::string& code) {
  std::string text = "VERSION 5.00\nBegin VB.Form Big\n   Begin TabDlg.SSTab tab\n";
  text += "      Tab(0).Control(0)=\"Label3\"\n";
  for (int i = 1; i <= labels; ++i)
    text += "      Begin VB.Label Label" + std::to_string(i) + "\n      End\n";
  text += "   End\nEnd\nAttribute VB_Name = \"Big\"\n" + code;
  return Crlf(text);
}

TEST(ReduceControlCount, LabelsBecomeArraysOfElevenUntilTheFormIsUnderTheLimit) {
  Fixture f;
  FormState& form = f.s.Form();
  // 22 labels and 250 other controls: two arrays of eleven bring 272 to 252.
  form.Text = TextDocument::FromBytes(FormText(22, ""));
  form.ControlCount = 272;
  EXPECT_FALSE(ReduceControlCount(f.s, "Big"));
  EXPECT_EQ(form.ControlCount, 252);
  const std::string text = form.Text.Bytes();
  // Label1 heads the first array, Label12 the second; each member is named
  // by its head and an index, also in the tab's list.
  EXPECT_NE(text.find("Begin VB.Label Label1\r\n         Index = 0\r\n"), std::string::npos);
  EXPECT_NE(text.find("Begin VB.Label Label1\r\n         Index = 10\r\n"), std::string::npos);
  EXPECT_NE(text.find("Begin VB.Label Label12\r\n         Index = 0\r\n"), std::string::npos);
  EXPECT_NE(text.find("Begin VB.Label Label12\r\n         Index = 10\r\n"), std::string::npos);
  EXPECT_EQ(text.find("Begin VB.Label Label22"), std::string::npos);
  EXPECT_NE(text.find("Tab(0).Control(0)=\"Label1(2)\""), std::string::npos);
}

TEST(ReduceControlCount, LabelsTheCodeNamesKeepTheirNamesAndAFormThatStaysOverIsKeptOut) {
  Fixture f;
  FormState& form = f.s.Form();
  // Each label named in code keeps its name: the estimate counts only the
  // others, and two labels cannot bring 270 controls under the limit.
  std::string code = "Private Sub Form_Load()\n";
  for (int i = 3; i <= 22; ++i) code += "    Me.Label" + std::to_string(i) + ".Caption = \"\"\n";
  form.Text = TextDocument::FromBytes(FormText(22, code + "End Sub\n"));
  form.ControlCount = 270;
  const std::string before = form.Text.Bytes();
  EXPECT_TRUE(ReduceControlCount(f.s, "Big"));
  EXPECT_EQ(form.Text.Bytes(), before);
  ASSERT_EQ(f.db->RunNotes().size(), 1u);
  EXPECT_NE(f.db->RunNotes()[0].second.find("has 270 controls"), std::string::npos);
}

TEST(AddDatasheetGrids, TheGridStandsOnTheFormAndItsColumnsAreSetWhenTheFormLoads) {
  Fixture f;
  ProjectModel project;
  const ProjectComponent* component = project.Add(
      f.dir / "Orders.frm", TextDocument::FromBytes(Crlf(
                                "VERSION 5.00\nBegin VB.Form Orders\n   Begin VB.Data datOrders\n"
                                "   End\nEnd\nAttribute VB_Name = \"Orders\"\n"
                                "Private Sub Form_Load()\n    Caption = \"x\"\nEnd Sub\n")));
  f.s.Form().DatasheetGrids.push_back(
      {"sfrmLines",
       Crlf("Begin MSDBGrid.DBGrid sfrmLines\nEnd\n"),
       {"sfrmLines.Columns(0).DataField = \"Qty\"", "sfrmLines.ReBind"}});
  // A grid inside a container was written in place: only its columns remain.
  f.s.Form().DatasheetGrids.push_back({"sfrmMore", "", {"sfrmMore.ReBind"}});
  AddDatasheetGrids(f.s, *component);
  EXPECT_EQ(component->Text->Bytes(),
            Crlf("VERSION 5.00\nBegin VB.Form Orders\n   Begin VB.Data datOrders\n   End\n"
                 "Begin MSDBGrid.DBGrid sfrmLines\nEnd\nEnd\nAttribute VB_Name = \"Orders\"\n"
                 "Private Sub Form_Load()\nsfrmLines.Columns(0).DataField = \"Qty\"\n"
                 "sfrmLines.ReBind\nsfrmMore.ReBind\n"
                 "    Caption = \"x\"\nEnd Sub\n"));
}

}  // namespace
}  // namespace morvane
