// The writers of the option family on small designs: check boxes with
// their values and bindings, option groups as frames of indexed buttons or
// Sheridan option sets, their members and labels, and option buttons and
// toggles that stand on the form.
#include <gtest/gtest.h>

#include "forms/control_writers.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::FormText;
using test::HexProperty;
using test::Hints;
using test::kNoFontBlock;
using test::Lines;

class OptionWriters : public test::ControlWriters {};

// --- Check boxes -------------------------------------------------------------

TEST_F(OptionWriters, CheckBoxIsBoundAndTakesItsDefault) {
  AddForm("frmTest", FormText(R"(
Begin CheckBox
    Left =100
    Top =200
    TabIndex =3
    Name ="chkActive"
    ControlSource ="Active"
    DefaultValue ="True"
    Tag ="x"
End
)",
                              "    RecordSource =\"Customers\"\n"));
  Stand("chkActive");
  WriteCheckBox(w_);
  // A check box has no caption and no font in Access: those lines go.
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.CheckBox chkActive
Value = 1
)") + kNoFontBlock + R"(Height = 240
Left = 100
TabIndex = 3
Top = 800
Width = 260
HelpContextID = 0
Tag ="x"
DataSource ="datfrmTest"
DataField ="Active"
End
)"));
  EXPECT_EQ(HintText(), Hint("CheckBoxCode", "chkActive", "chkActive"));
}

TEST_F(OptionWriters, CheckBoxValueLines) {
  struct Row {
    const char* name;
    const char* properties;
    const char* value;  // the Value line, "" for none
    const char* hint;   // the FLS field, "" for none
  };
  const Row rows[] = {
      {"chkEmpty", "", "Value = 0", ""},
      {"chkTriple", "TripleState = NotDefault\n", "Value = 2", ""},
      {"chkMinus", "DefaultValue =\"-1\"\n", "Value = 1", ""},
      {"chkZero", "DefaultValue =\"0\"\n", "Value = 0", ""},
      {"chkNo", "DefaultValue =\"No\"\n", "Value = 0", ""},
      {"chkExpr", "DefaultValue =\"=Date()>#1/1/2000#\"\n", "", "chkExpr.Value = Date>#1/1/2000#"},
      {"chkWord", "DefaultValue =\"Maybe\"\n", "", ""},
  };
  std::string controls;
  for (const Row& r : rows)
    controls += std::string("Begin CheckBox\nName =\"") + r.name + "\"\n" + r.properties + "End\n";
  AddForm("frmTest", FormText(controls));
  for (const Row& r : rows) {
    Stand(r.name);
    WriteCheckBox(w_);
    const std::string text = Written();
    const size_t at = text.find("\r\nValue = ");
    if (*r.value) {
      EXPECT_NE(text.find(std::string("\r\n") + r.value + "\r\n"), std::string::npos) << r.name;
      EXPECT_EQ(text.find("\r\nValue = ", at + 1), std::string::npos) << r.name;
    } else {
      EXPECT_EQ(at, std::string::npos) << r.name;
    }
    std::string hints = *r.hint ? Hints({{"FLS", r.hint}}) : "";
    hints += Hint("CheckBoxCode", r.name, r.name);
    EXPECT_EQ(HintText(), hints) << r.name;
  }
}

TEST_F(OptionWriters, CalculatedCheckBoxGoesThroughTheDataControl) {
  AddForm("frmTest", FormText("Begin CheckBox\nName =\"chkCalc\"\nControlSource =\"=[A] Or [B]\"\n"
                              "End\n"));
  Stand("chkCalc");
  WriteCheckBox(w_);
  EXPECT_EQ(Written().find("DataField"), std::string::npos);
  // Fields of a form without records have no reading: the expression is
  // kept as a comment, with a row asking for review.
  EXPECT_EQ(
      HintText(),
      Hints({{"AddToReport", "frmTest", "7", "chkCalc.value =[A] Or [B]", "0",
              "the Access expression has no Visual Basic reading here; kept as a comment", ""},
             {"AddDataCtlEntry", "datfrmTest", "'MORVANE chkCalc.value =[A] Or [B]"},
             {"CheckBoxCode", "frmTest", "chkCalc", "chkCalc", ""}}));
}

// --- Option groups -----------------------------------------------------------

constexpr const char* kShipGroup = R"(
Begin OptionGroup
    Left =1000
    Top =500
    Width =2000
    Height =1500
    TabIndex =4
    Name ="fraShip"
    ControlSource ="ShipVia"
    DefaultValue ="2"
    Begin
        Begin Label
            Left =1100
            Top =400
            Width =800
            BackColor =16777215
            ForeColor =128
            Name ="lblShip"
            Caption ="Ship\015\012via"
        End
        Begin OptionButton
            Left =1100
            Top =700
            OptionValue =1
            Name ="optAir"
            Begin
                Begin Label
                    Left =1400
                    Top =680
                    Width =600
                    BackColor =16777215
                    ForeColor =0
                    Name ="lblAir"
                    Caption ="Air"
                End
            End
        End
        Begin OptionButton
            Left =1100
            Top =1000
            OptionValue =3
            Name ="optSea"
            ControlTipText ="By \"sea\""
            Tag ="s"
            Begin
                Begin Label
                    Width =500
                    BackColor =16777215
                    ForeColor =0
                    Name ="lblSea"
                    Caption ="Sea"
                End
            End
        End
        Begin CheckBox
            Left =1600
            Top =700
            OptionValue =-2
            Visible = NotDefault
            Name ="chkRoad"
            Begin
                Begin Label
                    Width =400
                    BackColor =16777215
                    ForeColor =0
                    Name ="lblRoad"
                    Caption ="Road"
                End
            End
        End
        Begin ToggleButton
            Left =1500
            Top =1200
            Width =500
            Height =300
            ForeColor =255
            OptionValue =4
            Name ="tglRail"
            Caption ="Rail"
        End
    End
End
)";

constexpr const char* kShipFrame = R"(Begin VB.Frame grpfraShip
Caption =  "Ship via"
BackColor= &HFFFFFF&
ForeColor= &H80&
Height = 1650
Left = 1000
TabIndex = 4
HelpContextID = 0
Top = 950
Width = 2000
)";

TEST_F(OptionWriters, OptionGroupIsAFrameOfButtonsIndexedByOptionValue) {
  AddForm("frmTest", FormText(kShipGroup, "    RecordSource =\"Orders\"\n"));
  Stand("fraShip");
  WriteOptionGroup(w_);
  EXPECT_EQ(Written(), Lines(std::string(kShipFrame) + R"(Begin VB.OptionButton fraShip
Height = 210
Left = 150
Index = 1
TabIndex = 94
Top = 350
Caption =  "Air"
Width = 870
BackColor= &HFFFFFF&
ForeColor= &H0&
End
Begin VB.OptionButton fraShip
Height = 210
Left = 150
Index = 3
TabIndex = 94
Top = 650
ToolTipText ="By ""sea"""
Tag ="s"
Caption =  "Sea"
Width = 770
BackColor= &HFFFFFF&
ForeColor= &H0&
End
Begin VB.OptionButton fraShip
Height = 210
Left = 650
Index = 2
TabIndex = 94
Top = 350
Visible = 0
Caption =  "Road"
Width = 670
BackColor= &HFFFFFF&
ForeColor= &H0&
End
Begin VB.OptionButton fraShip
Caption =  "Rail"
ForeColor= &HFF&
Width = 500
Height = 300
Style = 1
Left = 550
Index = 4
TabIndex = 94
Top = 850
End
End
)"));
  EXPECT_EQ(HintText(), Hints({{"AddDataCtlEntry", "datfrmTest",
                                "fraShip(datfrmTest.recordset.Fields(\"ShipVia\")-1).value = true"},
                               {"FLS", "fraShip(2).Value = True"},
                               {"OptionGroupCode", "frmTest", "fraShip", "fraShip", ""}}));
  // The frame and the group count; the members share one name.
  EXPECT_EQ(w_.Text().FormControlCount, 2);
  EXPECT_EQ(w_.Text().UsedControlNames, std::vector<std::string>{"fraShip"});
  EXPECT_EQ(w_.Text().OptionGroupNames, std::vector<std::string>{"fraShip"});
}

TEST_F(OptionWriters, MembersOfAGroupAreLeftToTheGroup) {
  AddForm("frmTest", FormText(kShipGroup));
  Stand("chkRoad");
  WriteCheckBox(w_);
  Stand("lblShip");
  WriteLabel(w_);
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(HintText(), "");
  EXPECT_EQ(w_.Text().FormControlCount, 0);
}

TEST_F(OptionWriters, GroupBindingAndDefaultFromExpressions) {
  AddForm("frmTest", FormText(R"(
Begin OptionGroup
    Name ="grpCalc"
    ControlSource ="=[Kind]+1"
    DefaultValue ="=-3"
End
Begin OptionGroup
    Name ="grpWord"
    DefaultValue ="two"
End
)"));
  Stand("grpCalc");
  WriteOptionGroup(w_);
  // A group without a label has no caption and no colours.
  EXPECT_EQ(Written(), Lines(R"(Begin VB.Frame grpgrpCalc
Height = 1590
Left = 0
TabIndex = 0
HelpContextID = 0
Top = 450
Width = 1440
End
)"));
  EXPECT_EQ(HintText(), Hints({{"AddDataCtlEntry", "datfrmTest", "grpCalc([Kind]+1).value = true"},
                               {"FLS", "grpCalc(3).Value = True"},
                               {"OptionGroupCode", "frmTest", "grpCalc", "grpCalc", ""}}));
  // A default that is no number loses its record.
  Stand("grpWord");
  WriteOptionGroup(w_);
  EXPECT_EQ(HintText(), Hint("OptionGroupCode", "grpWord", "grpWord"));
}

TEST_F(OptionWriters, SheridanOptionSetOnABoundForm) {
  s_.Options.SsOptionSet = true;
  s_.Options.ListboxType = 3;
  AddForm("frmTest", FormText(kShipGroup, "    RecordSource =\"Orders\"\n"));
  Stand("fraShip");
  WriteOptionGroup(w_);
  EXPECT_EQ(Written(), Lines(std::string(kShipFrame) + R"(Begin SSDataWidgets_A.SSDBOptSet fraShip
DataSource ="datfrmTest"
DataField ="ShipVia"
_ExtentX =3228
_ExtentY =2461
_Version =131072
Left = 150
Index = 0
TabIndex = 94
Top = 950
Buttons.Button(1).Caption =  "Air"
BackColor= &HFFFFFF&
ForeColor= &H0&
Buttons.Button(1).OptionValue="1"
Buttons.Button(2).Caption =  "Sea"
BackColor= &HFFFFFF&
ForeColor= &H0&
Buttons.Button(2).OptionValue="3"
Buttons.Button(3).Caption =  "Road"
BackColor= &HFFFFFF&
ForeColor= &H0&
Buttons.Button(3).OptionValue="-2"
Begin VB.OptionButton fraShip
Caption =  "Rail"
ForeColor= &HFF&
Width = 500
Height = 300
Style = 1
Left = 550
Index = 4
TabIndex = 94
Top = 850
End
NumberOfButtons =3
Cols =2
End
End
)"));
  // The set binds itself: no data control hints, no default.
  EXPECT_EQ(HintText(), Hint("OptionGroupCode", "fraShip", "fraShip"));
  EXPECT_EQ(w_.Text().ComponentFiles, std::vector<std::string>{"ssdw3a32.ocx"});
}

TEST_F(OptionWriters, SheridanOptionSetNeedsABoundForm) {
  s_.Options.SsOptionSet = true;
  AddForm("frmTest", FormText(kShipGroup));
  Stand("fraShip");
  WriteOptionGroup(w_);
  const std::string text = Written();
  EXPECT_EQ(text.find("SSDBOptSet"), std::string::npos);
  EXPECT_NE(text.find("Begin VB.OptionButton fraShip\r\nHeight = 210"), std::string::npos);
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
}

// --- Stand-alone option buttons and toggles ----------------------------------

TEST_F(OptionWriters, OptionButtonTakesItsLabel) {
  AddForm("frmTest", FormText(R"(
Begin OptionButton
    Left =100
    Top =200
    TabIndex =7
    DefaultValue ="-1"
    Name ="optAlone"
    Begin
        Begin Label
            Width =900
            BackColor =16777215
            ForeColor =0
            Name ="lblAlone"
            Caption ="Al\015\012one"
        End
    End
End
)"));
  Stand("optAlone");
  WriteOptionButton(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.OptionButton optAlone
Left = 100
TabIndex = 7
Top = 800
Height = 210
Caption =  "Al one"
Width = 1170
BackColor= &HFFFFFF&
ForeColor= &H0&
Value = -1
End
)"));
  EXPECT_EQ(HintText(), Hint("OptionGroupCode", "optAlone", "optAlone"));
  EXPECT_EQ(w_.Text().FormControlCount, 2);
}

TEST_F(OptionWriters, ToggleIsAnOptionButtonOfStyleOne) {
  AddForm("frmTest",
          FormText("Begin ToggleButton\nLeft =100\nTop =200\nName =\"tglBold\"\n"
                   "Caption =\"B\"\nDefaultValue =\"=[Bold]\"\n" +
                   HexProperty("PictureData", test::PictureBytes(40, 100, 60)) + "End\n"));
  Stand("tglBold");
  WriteOptionButton(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.OptionButton tglBold
Left = 100
TabIndex = 0
Top = 800
Caption =  "B"
ForeColor= &H0&
Width = 1440
Height = 360
Style = 1
Picture = "frmTest.frx":0000
End
)"));
  EXPECT_EQ(
      HintText(),
      Hints({{"AddToReport", "frmTest", "7", "tglBold.Value =[Bold]", "0",
              "the Access expression has no Visual Basic reading here; kept as a comment", ""},
             {"FLS", "'MORVANE tglBold.Value =[Bold]"},
             {"OptionGroupCode", "frmTest", "tglBold", "tglBold", ""}}));
}

}  // namespace
}  // namespace morvane
