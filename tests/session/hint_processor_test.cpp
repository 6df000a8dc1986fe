// The hint processor: records acted on in order against the form's text.
#include "session/hint_processor.h"

#include <gtest/gtest.h>

#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

using test::Crlf;
using test::TempDir;

// Keeps every call, and answers the continuous-form step with records of its
// own.
class Recorder : public HintActions {
 public:
  void ControlEvents(ConversionSession& s, const std::string& hintForm,
                     const ControlCodeHint& c) override {
    calls += std::string(ControlEventKindName(c.Kind)) + "(" + c.FormName + "," + c.AccessName +
             "," + c.VbName + "," + std::to_string(c.ComboKind) + "," + c.SubformControl + ";" +
             hintForm + ";" + s.Form().CurrentControlName + ") ";
  }
  void FormEvents(ConversionSession&, const std::string& f, const std::string& h,
                  const std::string& sub) override {
    calls += "Form(" + f + "," + h + "," + sub + ") ";
  }
  void WriteListBoxInit(ConversionSession& s, const std::string& rs, const std::string& c,
                        bool v) override {
    calls += "ListInit(" + rs + "," + c + "," + (v ? "T" : "F") + "," +
             (s.Form().PlainListControl ? "plain" : "-") + ") ";
  }
  void ExportModuleText(ConversionSession&, const std::string& n, int mode) override {
    calls += "Export(" + n + "," + std::to_string(mode) + ") ";
  }
  std::vector<HintRecord> ConvertContinuousForm(ConversionSession&, const std::string& f,
                                                const std::string& c) override {
    calls += "CForm(" + f + "," + c + ") ";
    return {FormLoadLineHint{"datLines.Refresh"}};
  }
  void OpenSubform(ConversionSession&, const std::string& n) override {
    calls += "Open(" + n + ") ";
  }
  void CloseSubform(ConversionSession&, const std::string& n) override {
    calls += "Close(" + n + ") ";
  }
  std::string calls;
};

struct Fixture {
  TempDir dir;
  ConversionSession s;
  std::unique_ptr<SupportDatabase> db;
  Fixture() {
    s.ProjectName = "Sales App";
    db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
    s.SupportDb = db.get();
    s.PushForm("Orders").Text = TextDocument::FromBytes(
        Crlf("VERSION 5.00\nBegin VB.Form Orders\nEnd\nAttribute VB_Name = \"Orders\"\n"));
  }
  void Process(std::vector<HintRecord> records, HintActions& actions) {
    s.Form().Hints = std::move(records);
    ProcessHints(s, "Orders", actions);
  }
  std::string Text() const { return s.Form().Text.Bytes(); }
};

ControlCodeHint Control(ControlEventKind kind, const std::string& form, const std::string& name,
                        int comboKind = 0, const std::string& subform = "") {
  ControlCodeHint h;
  h.Kind = kind;
  h.FormName = form;
  h.AccessName = name;
  h.VbName = name;
  h.ComboKind = comboKind;
  h.SubformControl = subform;
  return h;
}

TEST(ProcessHints, RecordsOfASubformOpenItOnce) {
  Fixture f;
  Recorder r;
  f.Process(
      {Control(ControlEventKind::ComboBox, "Order Lines", "cboProduct", 4, "sfrLines"),
       Control(ControlEventKind::Button, "Order Lines", "cmdAdd", 0, "sfrLines"),
       OutputCodeHint{"Order Lines", true}, FormCodeHint{"Orders", ""},
       ListEntryHint{false, "Orders", "SELECT Name FROM Products", "lstProducts", false, true}},
      r);
  EXPECT_EQ(r.calls,
            "Open(Order Lines) "
            "ComboBox(Order Lines,cboProduct,cboProduct,4,sfrLines;Orders;cboProduct) "
            "Button(Order Lines,cmdAdd,cmdAdd,0,sfrLines;Orders;cmdAdd) "
            "Export(Order Lines,1) Form(Orders,Orders,) "
            "ListInit(SELECT Name FROM Products,lstProducts,F,plain) Close(Order Lines) ");
  EXPECT_TRUE(f.s.Form().Hints.empty());
}

TEST(ProcessHints, FormFlagsCountsGridsAndAnalysisRows) {
  Fixture f;
  Recorder r;
  f.Process({DatasheetGridHint{"sfrFirst", "", {}}, DatasheetGridHint{"sfrSecond", "", {}},
             FormImageHint{"1", "True"}, ControlCountsHint{12, 3},
             ReportRowHint{"Orders", 4, "ctlChart", 0, "", ""},
             LabelCaptionHint{"lblNote", "Line one\" & vbCrLf & \"line two"}},
            r);
  EXPECT_EQ(f.s.Form().DatasheetForms, (std::vector<std::string>{"sfrFirst", "sfrSecond"}));
  EXPECT_TRUE(f.s.Form().FormPictureStretched);
  EXPECT_TRUE(f.s.Form().FormPictureTiled);
  EXPECT_EQ(f.s.Form().ControlCount, 12);
  EXPECT_EQ(f.s.Form().PartialControlCount, 3);
  EXPECT_EQ(f.s.Form().LabelCaptionCode,
            "\r\nMe.lblNote.Caption = \"Line one\" & vbCrLf & \"line two\"");
  auto rows = f.db->ReportOutput();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].ModuleName, "Orders");
  EXPECT_EQ(rows[0].ReasonID, 4);
  EXPECT_EQ(rows[0].CodeLine, "ctlChart");
}

TEST(ProcessHints, AContinuousSubformsRecordsAreProcessedInTurn) {
  Fixture f;
  Recorder r;
  f.Process({ContinuousFormHint{"Orders", "sfrLines"}, ControlCountsHint{5, 0}}, r);
  EXPECT_EQ(r.calls, "CForm(Orders,sfrLines) ");
  EXPECT_EQ(f.s.Form().FormLoadCode, "\r\ndatLines.Refresh");
  EXPECT_EQ(f.s.Form().ControlCount, 5);
}

TEST(ProcessHints, RecordsWithoutTheirConverterAreReportedNotDropped) {
  Fixture f;
  HintActions missing;
  f.Process({Control(ControlEventKind::ListBox, "Orders", "lstA"), TooManyControlsHint{"Orders"}},
            missing);
  auto notes = f.db->RunNotes();
  ASSERT_EQ(notes.size(), 2u);
  EXPECT_EQ(notes[0].first, "Orders.lstA");
  EXPECT_EQ(notes[0].second, "ListBox event code is not available in this version");
  EXPECT_TRUE(f.s.Form().FormFailed);
}

TEST(ProcessHints, RenamesTheContinuousFormsProgramId) {
  Fixture f;
  f.s.Form().Text =
      TextDocument::FromBytes(Crlf("Begin VB.Form Orders\n   Begin Sales_App_CF.ctlOld x\n"
                                   "      Name = \"Sales_App_CF.ctlOld\"\n   End\nEnd\n"));
  Recorder r;
  f.Process({RenameControlClassHint{"ctlOld", "ctlNew"}}, r);
  EXPECT_NE(f.Text().find("Name = \"Sales_App_CF.ctlNew\""), std::string::npos);
}

}  // namespace
}  // namespace morvane
