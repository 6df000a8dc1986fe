// The form writer where golden forms do not reach: header lines of rarer
// properties, names, captions and dialogs, a section's tag, unique control
// names past many collisions, the control limit, designs that cannot be
// opened.
#include "forms/form_writer.h"

#include <gtest/gtest.h>

#include <map>

#include "design/design_store.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/user_interface.h"
#include "support/hint_text.h"
#include "support/temp_dir.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::ReadFile;
using test::TempDir;

std::string Form(const std::string& properties, const std::string& sections) {
  return "Version =20\nVersionRequired =20\nBegin Form\n" + properties + "    Begin\n" + sections +
         "    End\nEnd\n";
}

std::string Detail(const std::string& controls, int height = 2000) {
  return "        Begin Section\n            Height =" + std::to_string(height) +
         "\n            BackColor =16777215\n            Name =\"Detail\"\n            Begin\n" +
         controls + "            End\n        End\n";
}

std::string Label(const std::string& name, int left, int top) {
  return "                Begin Label\n                    Left =" + std::to_string(left) +
         "\n                    Top =" + std::to_string(top) +
         "\n                    Width =1000\n                    Height =240\n"
         "                    Name =\"" +
         name + "\"\n                    Caption =\"" + name + "\"\n                End\n";
}

class FormWriterTest : public ::testing::Test {
 protected:
  FormWriterTest()
      : store_([this](AccessObjectKind, const std::string& name, DesignStore::ExportText* out,
                      bool* missing, std::string*) {
          auto it = texts_.find(name);
          if (it == texts_.end()) {
            *missing = true;
            return false;
          }
          out->Lines = SplitLines(it->second);
          out->File = name + ".txt";
          return true;
        }) {
    s_.OptionWordLength = 11;
    s_.OutputPath = dir_.path().string() + "/";
    s_.Ui = &ui_;
  }

  // Converts the form and returns its .frm text; the hint records as text in
  // hints_.
  std::string Convert(const std::string& name, const std::string& text) {
    texts_[name] = text;
    FormWriter w(s_, store_);
    std::string err;
    EXPECT_TRUE(w.ConvertForm(name, &err)) << err;
    hints_ = test::HintText(s_.Form().Hints);
    return s_.Form().Text.Bytes();
  }

  TempDir dir_;
  std::map<std::string, std::string> texts_;
  DesignStore store_;
  ScriptedUserInterface ui_{true};
  ConversionSession s_;
  std::string hints_;
};

TEST_F(FormWriterTest, HeaderOfAPlainForm) {
  // The header lines golden forms do not show: no caption but the form's
  // name, a minimise button taken away, a help context.
  const std::string frm = Convert(
      "Orders",
      Form("    DefaultView =0\n    Width =6000\n    MinMaxButtons =2\n    HelpContextId =7\n",
           Detail("", 2000)));
  EXPECT_EQ(frm.rfind("VERSION 5.00\r\nBegin VB.Form Orders\r\n", 0), 0u);
  test::ExpectLines(frm, {"Caption =\"Orders\"", "MaxButton = -1", "MinButton = 0", "MDIChild = -1",
                          "HelpContextID=7"});
  EXPECT_TRUE(frm.ends_with("\r\nHelpContextID=7\r\nEnd\r\n"));
  EXPECT_EQ(hints_, test::Crlf("FormCode\nOrders\n\nCtlCounts\n0\n0\n"));
}

TEST_F(FormWriterTest, NamesCaptionsAndDialogs) {
  std::string frm = Convert("1 Order", Form("    Caption =\"\"\n", Detail("")));
  EXPECT_NE(frm.find("\r\nBegin VB.Form a1_Order\r\nBorderStyle"), std::string::npos);
  EXPECT_NE(frm.find("Caption =\"1 Order\""), std::string::npos);

  const std::string longName(60, 'x');
  frm = Convert(longName, Form("", Detail("")));
  EXPECT_NE(frm.find("Begin VB.Form " + std::string(40, 'x') + "\r\n"), std::string::npos);

  // A pop-up modal form is a dialog; one that is only pop-up is a child.
  frm = Convert("Dialog", Form("    PopUp = NotDefault\n    Modal = NotDefault\n", Detail("")));
  EXPECT_EQ(frm.find("MDIChild"), std::string::npos);
  frm = Convert("Popup", Form("    PopUp = NotDefault\n", Detail("")));
  EXPECT_NE(frm.find("MDIChild = -1"), std::string::npos);
  s_.Options.IsMdi = false;
  frm = Convert("NoMdi", Form("", Detail("")));
  EXPECT_EQ(frm.find("MDIChild"), std::string::npos);
}

TEST_F(FormWriterTest, ASectionsTagGoesOnItsFrame) {
  const std::string sections =
      "        Begin FormHeader\n            Height =600\n            Name =\"FormHeader\"\n"
      "            Tag =\"top \"\"one\"\"\"\n            Begin\n" +
      Label("lblHead", 100, 50) + "            End\n        End\n" + Detail("", 1000);
  const std::string frm = Convert("Sections", Form("    Width =5000\n", sections));
  EXPECT_NE(frm.find("\r\nIndex = 1\r\nTag =\"top \"\"one\"\"\"\r\nTop = 0\r\n"), std::string::npos)
      << frm;
}

TEST_F(FormWriterTest, ControlNamesAreUniqueInTheForm) {
  texts_["F"] = Form("", Detail(""));
  FormWriter w(s_, store_);
  ASSERT_TRUE(store_.OpenForm("F", nullptr));
  const std::string texts = Form(
      "", Detail(Label("Text1", 0, 0) + Label("1st", 0, 0) + Label(std::string(40, 'n'), 0, 0)));
  texts_["G"] = texts;
  const FormDesign* g = store_.OpenForm("G", nullptr);
  ASSERT_TRUE(g);
  const ControlDesign& text1 = g->Controls()[0];
  w.MakeControlName(text1);
  EXPECT_EQ(s_.Form().CurrentControlName, "Text1");
  w.MakeControlName(text1);
  EXPECT_EQ(s_.Form().CurrentControlName, "Text1A");
  w.MakeControlName(text1);
  EXPECT_EQ(s_.Form().CurrentControlName, "Text1AB");
  w.MakeControlName(g->Controls()[1]);
  EXPECT_EQ(s_.Form().CurrentControlName, "A1st");
  const ControlDesign& longOne = g->Controls()[2];
  w.MakeControlName(longOne);
  w.MakeControlName(longOne);
  // Visual Basic takes 40 characters: the name is cut to make room.
  EXPECT_EQ(s_.Form().CurrentControlName, std::string(39, 'n') + "2");
  // Past 26 letters a number makes the name unique; names never clash
  // without regard to case, nor outgrow 40 characters.
  for (int i = 0; i < 30; ++i) w.MakeControlName(text1);
  EXPECT_EQ(w.Text().UsedControlNames.size(), 36u);
  for (size_t i = 0; i < w.Text().UsedControlNames.size(); ++i) {
    EXPECT_LE(w.Text().UsedControlNames[i].size(), 40u);
    for (size_t j = i + 1; j < w.Text().UsedControlNames.size(); ++j)
      EXPECT_FALSE(EqualsNoCase(w.Text().UsedControlNames[i], w.Text().UsedControlNames[j]));
  }
}

TEST_F(FormWriterTest, PastTwoHundredAndFiftyFourControlsTheFormIsNamed) {
  std::string labels;
  for (int i = 0; i < 254; ++i) labels += Label("l" + std::to_string(i), 0, i * 10);
  Convert("Full", Form("", Detail(labels, 9000)));
  EXPECT_NE(hints_.find("CtlCounts\r\n254\r\n0\r\n"), std::string::npos);
  EXPECT_EQ(hints_.find("TooManyControls"), std::string::npos);
  labels += Label("l254", 0, 0);
  const std::string frm = Convert("Over", Form("", Detail(labels, 9000)));
  EXPECT_NE(hints_.find("CtlCounts\r\n255\r\n0\r\nTooManyControls\r\nOver\r\n"), std::string::npos);
  // The text is written all the same.
  EXPECT_NE(frm.find("l254"), std::string::npos);
}

TEST_F(FormWriterTest, ADesignThatCannotBeOpenedWritesNothing) {
  FormWriter w(s_, store_);
  std::string err;
  EXPECT_FALSE(w.ConvertForm("Missing", &err));
  EXPECT_FALSE(err.empty());
  EXPECT_TRUE(s_.Form().Text.Empty());
  s_.OptionWordLength = 0;
  texts_["Here"] = Form("", Detail(""));
  EXPECT_FALSE(FormWriter(s_, store_).ConvertForm("Here"));
  EXPECT_TRUE(s_.Form().Text.Empty());
}

// Under DAO a datasheet becomes a DBGrid, whose columns only code can set:
// on the form itself it is placed once the form is complete, inside a tab
// it stands in place; both get their columns when the form loads.
TEST_F(FormWriterTest, ADaoDatasheetIsADbGridWithItsColumnsSetInCode) {
  s_.Options.UseAdo = false;
  texts_["sfrmLines"] = Form("    DefaultView =2\n    RecordSource =\"qryLines\"\n",
                             Detail("                Begin TextBox\n"
                                    "                    Width =900\n"
                                    "                    TabIndex =0\n"
                                    "                    Name =\"Qty\"\n"
                                    "                    ControlSource =\"Qty\"\n"
                                    "                End\n"));
  const std::string subform =
      "                Begin Subform\n"
      "                    Left =100\n                    Top =200\n"
      "                    Width =3000\n                    Height =900\n"
      "                    Name =\"%s\"\n"
      "                    SourceObject =\"Form.sfrmLines\"\n"
      "                End\n";
  auto named = [&](const std::string& name) {
    std::string text = subform;
    return text.replace(text.find("%s"), 2, name);
  };
  const std::string tab =
      "                Begin Tab\n                    Left =0\n"
      "                    Top =1200\n                    Width =5000\n"
      "                    Height =2000\n                    Name =\"tab\"\n"
      "                    Begin\n                        Begin Page\n"
      "                            Name =\"pg\"\n"
      "                            Begin\n" +
      named("sfrmInTab") +
      "                            End\n                        End\n"
      "                    End\n                End\n";
  const std::string frm =
      Convert("Main", Form("    RecordSource =\"qryMain\"\n", Detail(named("sfrmOnForm") + tab)));
  EXPECT_NE(frm.find("Object=\"{00028C01-0000-0000-0000-000000000046}#1.0#0\"; \"DBGRID32.OCX\""),
            std::string::npos);
  EXPECT_EQ(frm.find("Begin MSDBGrid.DBGrid sfrmOnForm"), std::string::npos);
  EXPECT_NE(frm.find("Begin MSDBGrid.DBGrid sfrmInTab"), std::string::npos);
  EXPECT_NE(frm.find("Begin VB.Data datsfrmLines\r\n"), std::string::npos);
  EXPECT_NE(frm.find("Begin VB.Data datsfrmLinesA\r\n"), std::string::npos);
  std::vector<DatasheetGridHint> grids;
  for (const HintRecord& h : s_.Form().Hints)
    if (auto g = std::get_if<DatasheetGridHint>(&h)) grids.push_back(*g);
  ASSERT_EQ(grids.size(), 2u);
  // The tab is walked ahead of the form's other controls.
  EXPECT_TRUE(grids[0].ControlText.empty());
  EXPECT_EQ(grids[1].ControlText.substr(0, 34), "Begin MSDBGrid.DBGrid sfrmOnForm\r\n");
  EXPECT_EQ(
      grids[1].ColumnLines,
      (std::vector<std::string>{"sfrmOnForm.Columns.Remove 1", "sfrmOnForm.Columns(0).Width = 900",
                                "sfrmOnForm.Columns(0).Caption = \"Qty\"",
                                "sfrmOnForm.Columns(0).DataField = \"Qty\"", "sfrmOnForm.ReBind"}));
}

}  // namespace
}  // namespace morvane
