// The hint file: writing records and processing them against a form text.
#include "session/hint_processor.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::Crlf;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

// Keeps every call, and answers the continuous-form step with a form name.
class Recorder : public HintActions {
 public:
  void ControlEvents(ConversionSession& s, const std::string& kind, const std::string& hintForm,
                     const ControlHint& c) override {
    calls += kind + "(" + c.FormName + "," + c.AccessName + "," + c.VbName + "," +
             std::to_string(c.ComboKind) + "," + c.SubformControl + ";" + hintForm + ";" +
             s.CurrentControlName + ") ";
  }
  void FormEvents(ConversionSession&, const std::string& f, const std::string& h,
                  const std::string& sub) override {
    calls += "Form(" + f + "," + h + "," + sub + ") ";
  }
  void WriteListBoxInit(ConversionSession& s, const std::string& rs, const std::string& c,
                        bool v) override {
    calls += "ListInit(" + rs + "," + c + "," + (v ? "T" : "F") + "," +
             (s.PlainListControl ? "plain" : "-") + ") ";
  }
  void ExportModuleText(ConversionSession&, const std::string& n, int mode) override {
    calls += "Export(" + n + "," + std::to_string(mode) + ") ";
  }
  std::string ConvertContinuousForm(ConversionSession&, const std::string& f,
                                    const std::string& c) override {
    calls += "CForm(" + f + "," + c + ") ";
    return "Lines Sub";
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
    s.OutputPath = dir.path().string() + "/";
    s.CurrentFile = s.OutputPath + "Orders.frm";
    s.ProjectName = "Sales App";
    db = SupportDatabase::Open(dir / "morvane.db", dir.path(), nullptr);
    s.SupportDb = db.get();
    WriteFile(s.CurrentFile, Crlf("VERSION 5.00\nBegin VB.Form Orders\nEnd\n"
                                  "Attribute VB_Name = \"Orders\"\n"));
  }
  void Hints(const std::string& form, const std::string& text) {
    WriteFile(s.OutputPath + form + ".hnt", Crlf(text));
  }
};

TEST(ProcessHints, OnlyCountsStillFinishesTheFormAndDeletesTheHints) {
  Fixture f;
  f.Hints("Orders", "CtlCounts\n12\n3\n\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(f.s.ControlCount, 12);
  EXPECT_EQ(f.s.PartialControlCount, 3);
  EXPECT_FALSE(fs::exists(f.dir / "Orders.hnt"));
  EXPECT_FALSE(fs::exists(f.dir / "Orders.frm1"));
  EXPECT_TRUE(fs::exists(f.dir / "Orders.frm"));
}

TEST(ProcessHints, WithoutAHintFileNothingHappens) {
  Fixture f;
  const std::string before = ReadFile(f.s.CurrentFile);
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(ReadFile(f.s.CurrentFile), before);
  EXPECT_EQ(r.calls, "");
}

TEST(ProcessHints, KeywordsInFieldsAreData) {
  Fixture f;
  // A control named like a keyword is harmless in every field position; the
  // name written ahead of LabelCaptionFromCode is skipped as no record.
  f.Hints("Orders",
          "TextBoxCode\nOrders\nFLS\nFLS\n\nlblNote\nLabelCaptionFromCode\nlblNote\n"
          "Line one\" & vbCrLf & \"line two\nFLS\nCtlCounts\nCtlCounts\n1\n2\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(r.calls, "TextBox(Orders,FLS,FLS,0,;Orders;FLS) ");
  EXPECT_EQ(f.s.LabelCaptionCode, "\r\nMe.lblNote.Caption = \"Line one\" & vbCrLf & \"line two\"");
  EXPECT_EQ(f.s.FormLoadCode, "\r\nCtlCounts");
  EXPECT_EQ(f.s.ControlCount, 1);
}

TEST(ProcessHints, RecordsOfASubformOpenItOnce) {
  Fixture f;
  f.Hints("Orders",
          "ComboBoxCode\nOrder Lines\ncboProduct\ncboProduct\n4\nsfrLines\n"
          "ButtonCode\nOrder Lines\ncmdAdd\ncmdAdd\nsfrLines\n"
          "OutputCode\nOrder Lines\nTrue\nFormCode\nOrders\n\n"
          "AddListboxEntry\nOrders\nSELECT Name FROM Products\nlstProducts\nFalse\nTrue\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(r.calls,
            "Open(Order Lines) "
            "ComboBox(Order Lines,cboProduct,cboProduct,4,sfrLines;Orders;cboProduct) "
            "Button(Order Lines,cmdAdd,cmdAdd,0,sfrLines;Orders;cmdAdd) "
            "Export(Order Lines,1) Form(Orders,Orders,) "
            "ListInit(SELECT Name FROM Products,lstProducts,F,plain) Close(Order Lines) ");
}

TEST(ProcessHints, FormFlagsGridsAndAnalysisRows) {
  Fixture f;
  f.Hints("Orders",
          "DBGrid\nsfrFirst\nDBGrid\nsfrSecond\nFormImage\n1\nTrue\n"
          "AddToReport\nOrders\n4\nctlChart\n0\n\n\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(f.s.DatasheetForms, (std::vector<std::string>{"sfrFirst", "sfrSecond"}));
  EXPECT_TRUE(f.s.FormPictureStretched);
  EXPECT_TRUE(f.s.FormPictureTiled);
  auto rows = f.db->ReportOutput();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].ModuleName, "Orders");
  EXPECT_EQ(rows[0].ReasonID, 4);
  EXPECT_EQ(rows[0].CodeLine, "ctlChart");
}

TEST(ProcessHints, DataControlCodeAndTheFinalRecordsetName) {
  Fixture f;
  f.Hints("Orders",
          "AddDataCtlEntry\ndatOrders\n\nAddDataCtlEntry\ndatOrders\ntxtTotal.value =[a]+[b]\n"
          "AddDataMove\nOrders\ndatOrders\nAddDataMove\nOrders\ndatLines\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  const std::string text = ReadFile(f.s.CurrentFile);
  EXPECT_EQ(text.find("ADODB.Recordset20"), std::string::npos);
  EXPECT_NE(text.find("ByVal pRecordset As ADODB.Recordset)\r\nOn Error Resume Next\r\n"
                      "txtTotal.value =[a]+[b]\r\nEnd Sub\r\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("Private Function InitialDataCtlCaptions()\r\nOn Error Resume Next\r\n"
                      "datOrders.Recordset.movenext\r\ndatOrders.Recordset.moveFirst\r\n"
                      "datLines.Recordset.movenext\r\ndatLines.Recordset.moveFirst\r\n"
                      "End Function"),
            std::string::npos)
      << text;
  EXPECT_TRUE(f.s.InitCalls[2]);
}

TEST(ProcessHints, AContinuousSubformReadsItsOwnHintFile) {
  Fixture f;
  f.Hints("Orders", "CForm\nOrders\nsfrLines\nCtlCounts\n5\n0\n");
  f.Hints("Lines_Sub", "FLS\ndatLines.Refresh\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_EQ(r.calls, "CForm(Orders,sfrLines) ");
  EXPECT_EQ(f.s.FormLoadCode, "\r\ndatLines.Refresh");
  EXPECT_FALSE(fs::exists(f.dir / "Lines_Sub.hnt"));
  EXPECT_EQ(f.s.ControlCount, 5);
}

TEST(ProcessHints, RecordsWithoutTheirConverterAreReportedNotDropped) {
  Fixture f;
  f.Hints("Orders", "ListBoxCode\nOrders\nlstA\nlstA\n\nTooManyControls\nOrders\n");
  HintActions missing;
  ProcessHints(f.s, "Orders", missing);
  auto notes = f.db->RunNotes();
  ASSERT_EQ(notes.size(), 2u);
  EXPECT_EQ(notes[0].first, "Orders.lstA");
  EXPECT_EQ(notes[0].second, "ListBox event code is not available in this version");
  EXPECT_TRUE(f.s.FormFailed);
}

TEST(ProcessHints, RenamesTheContinuousFormsProgramId) {
  Fixture f;
  WriteFile(f.s.CurrentFile, Crlf("Begin VB.Form Orders\n   Begin Sales_App_CF.ctlOld x\n"
                                  "      Name = \"Sales_App_CF.ctlOld\"\n   End\nEnd\n"));
  f.Hints("Orders", "RenameCFormProgID\nctlOld\nctlNew\n");
  Recorder r;
  ProcessHints(f.s, "Orders", r);
  EXPECT_NE(ReadFile(f.s.CurrentFile).find("Name = \"Sales_App_CF.ctlNew\""), std::string::npos);
}

TEST(AddHint, EachFieldOnALineOfItsOwn) {
  ConversionSession s;
  AddHint(s, {"CtlCounts", "3", "0"});
  AddHint(s, {"FLS", ""});
  EXPECT_EQ(s.HintText, "CtlCounts\r\n3\r\n0\r\nFLS\r\n\r\n");
}

}  // namespace
}  // namespace morvane
