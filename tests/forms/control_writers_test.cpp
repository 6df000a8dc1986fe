// The control writers on small designs: the whole text of each control, the
// hint records it leaves and the counts, for labels, lines, rectangles,
// images, buttons, text boxes and date pickers, bound object frames and
// custom controls; a property the control type does not have losing only
// its own line.
#include "forms/control_writers.h"

#include <gtest/gtest.h>

#include "platform/support_db.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::ControlWriters;
using test::FormText;
using test::HexProperty;
using test::Hints;
using test::kFontBlock;
using test::kNoFontBlock;
using test::Lines;

// --- Labels ------------------------------------------------------------------

constexpr const char* kLabels = R"(
Begin Label
    Left =100
    Top =200
    Width =1500
    Height =300
    BackColor =16777215
    ForeColor =255
    FontName ="Arial"
    FontSize =10
    TextAlign =3
    Name ="lblName"
    Caption ="Say \"hi\""
    ControlTipText ="tip"
    Tag ="t"
End
Begin Label
    BackStyle =0
    OldBorderStyle =1
    BackColor =0
    ForeColor =0
    FontName ="Arial"
    FontSize =10
    Visible = NotDefault
    Name ="lblTwo"
    Caption ="a\015\012\"b\""
End
Begin TextBox
    Name ="txtOwner"
    Begin
        Begin Label
            Name ="lblOwner"
            Caption ="Owner"
        End
    End
End
Begin OptionButton
    Name ="optAlone"
    Begin
        Begin Label
            Name ="lblAlone"
        End
    End
End
Begin OptionGroup
    Name ="grpKind"
    Begin
        Begin Label
            Name ="lblKind"
        End
    End
End
)";

TEST_F(ControlWriters, LabelWritesItsWholeTable) {
  AddForm("frmTest", FormText(kLabels));
  Stand("lblName");
  WriteLabel(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.Label lblName
BackColor= &HFFFFFF&
BorderStyle=0
Caption="Say ""hi"""
ForeColor= &HFF&
)") + kFontBlock + R"(Alignment =1
Height = 300
Left = 100
Top = 800
Width = 1500
ToolTipText ="tip"
Tag ="t"
End
)"));
  EXPECT_EQ(HintText(), Hint("ImageCode", "lblName", "lblName"));
  EXPECT_EQ(w_.Text().FormControlCount, 1);
}

TEST_F(ControlWriters, LabelWithLineBreakTakesItsCaptionFromCode) {
  AddForm("frmTest", FormText(kLabels));
  Stand("lblTwo");
  WriteLabel(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.Label lblTwo
BackColor= &H0&
BackStyle=0
BorderStyle=1
Caption="Caption set in Form_Load event"
ForeColor= &H0&
)") + kFontBlock + R"(Height = 240
Left = 0
Top = 600
Width = 1440
Visible = 0
End
)"));
  EXPECT_EQ(HintText(), Hints({{"LabelCaptionFromCode", "lblTwo", "a\" & vbCrLf & \"\"\"b\"\""},
                               {"ImageCode", "frmTest", "lblTwo", "lblTwo", ""}}));
}

TEST_F(ControlWriters, LabelOfAnotherControlHasNoImageCode) {
  AddForm("frmTest", FormText(kLabels));
  Stand("lblOwner");
  WriteLabel(w_);
  EXPECT_NE(Written(), "");
  EXPECT_EQ(HintText(), "");
  EXPECT_EQ(w_.Text().FormControlCount, 1);
}

TEST_F(ControlWriters, LabelsThatTheirControlsWriteAreSkipped) {
  AddForm("frmTest", FormText(kLabels));
  for (const char* name : {"lblAlone", "lblKind"}) {
    Stand(name);
    WriteLabel(w_);
    EXPECT_EQ(Written(), "") << name;
  }
  EXPECT_EQ(HintText(), "");
  EXPECT_EQ(w_.Text().FormControlCount, 0);
  EXPECT_TRUE(w_.Text().UsedControlNames.empty());
}

TEST_F(ControlWriters, AlignmentFollowsTheMapAndDistributeHasNone) {
  struct Row {
    int textAlign;
    const char* line;  // "" for none
  };
  const Row rows[] = {
      {0, ""}, {1, "Alignment =0"}, {2, "Alignment =2"}, {3, "Alignment =1"}, {4, ""}};
  std::string controls;
  for (const Row& r : rows)
    controls += "Begin Label\nName =\"lbl" + std::to_string(r.textAlign) +
                "\"\nTextAlign =" + std::to_string(r.textAlign) +
                "\nEnd\nBegin TextBox\nName =\"txt" + std::to_string(r.textAlign) +
                "\"\nTextAlign =" + std::to_string(r.textAlign) + "\nEnd\n";
  AddForm("frmTest", FormText(controls));
  for (const Row& r : rows) {
    for (const char* kind : {"lbl", "txt"}) {
      Stand(kind + std::to_string(r.textAlign));
      if (kind[0] == 'l')
        WriteLabel(w_);
      else
        WriteTextBox(w_);
      const std::string text = Written();
      EXPECT_EQ(text.find("Alignment") == std::string::npos, *r.line == '\0')
          << kind << " TextAlign " << r.textAlign << "\n"
          << text;
      if (*r.line) {
        EXPECT_NE(text.find(std::string("\r\n") + r.line + "\r\n"), std::string::npos);
      }
    }
  }
}

// --- Lines, rectangles -------------------------------------------------------

TEST_F(ControlWriters, LineRunsBetweenItsCornersAndSlantExchangesX) {
  AddForm("frmTest", FormText(R"(
Begin Line
    Left =100
    Top =200
    Width =1000
    Height =500
    BorderColor =255
    BorderWidth =2
    LineSlant = NotDefault
    Name ="linSlant"
End
Begin Line
    Left =100
    Top =200
    Width =1000
    Visible = NotDefault
    Name ="linFlat"
End
)"));
  Stand("linSlant");
  w_.Text().Place.SubformLeft = 10;
  WriteLineControl(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.Line linSlant
BorderColor =  &HFF&
BorderWidth = 2
X2 =110
X1 =1110
Y1 =800
Y2 =1300
End
)"));
  Stand("linFlat");
  WriteLineControl(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.Line linFlat
BorderColor =  &H0&
X1 =110
X2 =1110
Y1 =800
Y2 =800
Visible = 0
End
)"));
  EXPECT_EQ(HintText(), "");
  EXPECT_EQ(w_.Text().FormControlCount, 2);
}

TEST_F(ControlWriters, RectangleIsAShape) {
  AddForm("frmTest", FormText(R"(
Begin Rectangle
    Left =50
    Top =60
    Width =500
    Height =400
    BackStyle =0
    BackColor =255
    BorderColor =65280
    OldBorderStyle =1
    BorderLineStyle =2
    Name ="boxFrame"
End
Begin Rectangle
    Name ="boxFilled"
    Visible = NotDefault
End
)"));
  Stand("boxFrame");
  WriteShape(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.Shape boxFrame
Height = 400
Left = 50
Top = 660
Width = 500
FillColor = &HFF&
FillStyle = 1
BorderStyle = 3
BorderColor = &HFF00&
End
)"));
  Stand("boxFilled", 0);
  WriteShape(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin VB.Shape boxFilled
Visible = 0
Height = 1440
Left = 0
Top = 0
Width = 1440
FillColor = &HFFFFFF&
FillStyle = 0
BorderStyle = 1
BorderColor = &H0&
End
)"));
  EXPECT_EQ(HintText(), "");
  EXPECT_EQ(w_.Text().FormControlCount, 2);
}

// --- Images and buttons ----------------------------------------------------

TEST_F(ControlWriters, ImageLosesTheLinesOfPropertiesItDoesNotHave) {
  // An image has no TabIndex, TabStop, Enabled or font: TabIndex and the font
  // values are left out, and the guards of TabStop and Enabled count as met.
  AddForm("frmTest", FormText(R"(
Begin Image
    Left =100
    Top =200
    Width =1000
    Height =800
    Name ="imgLogo"
    ControlTipText ="Logo"
)" + HexProperty("PictureData", test::PictureBytes(40, 100, 60)) +
                              "End\n"));
  Stand("imgLogo");
  WriteImage(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.PictureBox imgLogo
)") + kNoFontBlock + R"(Height = 1400
Left = 100
ScaleHeight = 6180
ScaleWidth = 7410
TabStop = 0
Enabled = 0
ToolTipText ="Logo"
Top = 800
Width = 1000
Picture = "frmTest.frx":0000
End
)"));
  EXPECT_EQ(HintText(), Hint("ImageCode", "imgLogo", "imgLogo"));
  EXPECT_EQ(s_.Form().Binary.size(), 126u);
}

TEST_F(ControlWriters, ImageWithoutPictureOrWithARefusedOneHasNoPictureLine) {
  AddForm("frmTest", FormText(R"(
Begin Image
    Name ="imgEmpty"
    OldBorderStyle =0
End
Begin Image
    Name ="imgOdd"
)" + HexProperty("PictureData", test::PictureBytes(0x42, 100)) +
                              "End\n"));
  Stand("imgEmpty");
  WriteImage(w_);
  const std::string empty = Written();
  EXPECT_EQ(empty.find("Picture ="), std::string::npos);
  EXPECT_NE(empty.find("\r\nBorderStyle = 0\r\n"), std::string::npos);
  Stand("imgOdd");
  WriteImage(w_);
  const std::string odd = Written();
  EXPECT_EQ(odd.find("Picture ="), std::string::npos);
  EXPECT_EQ(odd.find("BorderStyle"), std::string::npos);
  EXPECT_TRUE(s_.Form().Binary.empty());
}

constexpr const char* kButtons = R"(
Begin CommandButton
    Left =100
    Top =200
    Width =1200
    Height =400
    TabIndex =5
    FontName ="Arial"
    FontSize =10
    FontWeight =400
    Default = NotDefault
    Name ="cmdOK"
    Caption ="&OK"
    ControlTipText ="Press\015\012here"
End
Begin CommandButton
    Width =1440
    Height =400
    ForeColor =255
    FontName ="Arial"
    FontSize =10
    FontWeight =400
    FontItalic = NotDefault
    Cancel = NotDefault
    Enabled = NotDefault
    Name ="cmdGo"
    Caption ="Say \"go\"\015\012now"
    Tag ="keep"
End
)";

TEST_F(ControlWriters, PlainButtonIsACommandButton) {
  AddForm("frmTest", FormText(kButtons));
  Stand("cmdOK");
  WriteCommandButton(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.CommandButton cmdOK
)") + kFontBlock + R"(Caption = "&OK"
Height = 400
Left = 100
TabIndex = 5
Top = 800
Width = 1200
HelpContextID = 0
Default = -1
ToolTipText ="Press here"
End
)"));
  EXPECT_EQ(HintText(), Hint("ButtonCode", "cmdOK", "cmdOK"));
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
}

TEST_F(ControlWriters, ColouredButtonIsASheridanButton) {
  AddForm("frmTest", FormText(kButtons));
  Stand("cmdGo");
  WriteCommandButton(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin Threed.SSCommand cmdGo
_Version = 65536
_StockProps = 78
ForeColor= &HFF&
Caption = "Say ""go"" now"
_ExtentX = 2539.44
_ExtentY = 705.4
BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
Name = "Arial"
charset = 0
weight = 400
Size = 10
underline = 0
italic = -1
strikethrough = 0
EndProperty
AutoSize = 0
Height = 400
Left = 0
TabIndex = 0
Top = 600
Width = 1440
HelpContextID = 0
Cancel = -1
Enabled = 0
End
)"));
  ASSERT_EQ(w_.Text().ComponentFiles.size(), 1u);
  EXPECT_EQ(w_.Text().ComponentFiles[0], "THREED32.OCX");
  EXPECT_EQ(w_.Text().ComponentGuids[0], "{0BA686C6-F7D3-101A-993E-0000C0EF6F5E}#1.0#0");
}

TEST_F(ControlWriters, ButtonWithPictureKeepsItsCaptionInTheTag) {
  const std::string bitmap = HexProperty("PictureData", test::PictureBytes(40, 100, 60));
  const std::string refused = HexProperty("PictureData", test::PictureBytes(1, 100));
  AddForm("frmTest", FormText("Begin CommandButton\nForeColor =255\nName =\"cmdPrint\"\n"
                              "Caption =\"Print\"\n" +
                              bitmap +
                              "End\n"
                              "Begin CommandButton\nName =\"cmdTagged\"\nCaption =\"x\"\n"
                              "Tag =\"mine\"\n" +
                              bitmap +
                              "End\n"
                              "Begin CommandButton\nName =\"cmdRefused\"\nCaption =\"y\"\n" +
                              refused + "End\n"));
  const std::string font = R"(BeginProperty Font 
Name = "MS Sans Serif"
charset = 0
weight = 700
Size = 10
underline = 0
italic = 0
strikethrough = 0
EndProperty
)";
  const std::string tail = R"(Height = 360
Left = 0
TabIndex = 0
Top = 600
Width = 1440
HelpContextID = 0
End
)";
  Stand("cmdPrint");
  WriteCommandButton(w_);
  EXPECT_EQ(Written(), Lines("Begin VB.CommandButton cmdPrint\n" + font +
                             "Picture = \"frmTest.frx\":0000\nTag =\"Print\"\nStyle = 1\n" + tail));
  Stand("cmdTagged");
  WriteCommandButton(w_);
  EXPECT_EQ(Written(), Lines("Begin VB.CommandButton cmdTagged\n" + font +
                             "Picture = \"frmTest.frx\":007E\nStyle = 1\n" + tail));
  // A picture that cannot be carried over still makes a picture button.
  Stand("cmdRefused");
  WriteCommandButton(w_);
  EXPECT_EQ(Written(), Lines("Begin VB.CommandButton cmdRefused\n" + font + "Style = 1\n" + tail));
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
}

// --- Text boxes and date pickers -------------------------------------------

TEST_F(ControlWriters, TextBoxWritesItsWholeTable) {
  AddForm("frmTest", FormText(R"(
Begin TextBox
    Left =1500
    Top =100
    Width =2000
    Height =300
    TabIndex =2
    BackColor =16777215
    ForeColor =0
    FontName ="Arial"
    FontSize =10
    SpecialEffect =2
    TextAlign =4
    Name ="txtName"
    ControlSource ="CustName"
    DefaultValue ="\"Smith\""
    ControlTipText ="Name"
End
)"));
  Stand("txtName");
  WriteTextBox(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.TextBox txtName
DataSource ="datfrmTest"
DataField ="CustName"
BorderStyle=1
Height = 300
Left = 1500
Top = 700
Width = 2000
Text = "Smith"
Locked =0
ScrollBars = 0
HelpContextID = 0
TabIndex =2
BackColor= &HFFFFFF&
ForeColor= &H0&
)") + kFontBlock + R"(ToolTipText ="Name"
End
)"));
  EXPECT_EQ(HintText(), Hint("TextBoxCode", "txtName", "txtName"));
  EXPECT_EQ(w_.Text().FormControlCount, 1);
}

TEST_F(ControlWriters, CalculatedTransparentFlatTextBox) {
  AddForm("frmTest", FormText(R"txt(
Begin TextBox
    Height =600
    FontName ="Arial"
    FontSize =10
    BackStyle =0
    OldBorderStyle =0
    TextAlign =1
    Locked = NotDefault
    ScrollBars =2
    Enabled = NotDefault
    TabStop = NotDefault
    Visible = NotDefault
    Name ="txtToday"
    ControlSource ="=Date()"
    DefaultValue ="=Now()"
    Tag ="d"
End
)txt"));
  Stand("txtToday");
  WriteTextBox(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin VB.TextBox txtToday
BorderStyle=0
Appearance=0
Alignment =0
Height = 600
Left = 0
Top = 600
Width = 1440
Locked =1
ScrollBars = 2
Enabled = 0
HelpContextID = 0
TabStop = 0
TabIndex =0
BackColor= &HC0C0C0&
ForeColor= &H80000008&
)") + kFontBlock + R"(Tag ="d"
Visible = 0
End
)"));
  EXPECT_EQ(HintText(), Hints({{"AddDataCtlEntry", "datfrmTest", "txtToday.text = Date"},
                               {"FLS", "txtToday.Text = Now"},
                               {"TextBoxCode", "frmTest", "txtToday", "txtToday", ""}}));
}

TEST_F(ControlWriters, MultiLineWhenTallerThanSixtyTimesTheFontSize) {
  AddForm("frmTest", FormText(R"(
Begin TextBox
    Height =600
    FontSize =10
    Name ="txtExact"
End
Begin TextBox
    Height =601
    FontSize =10
    Name ="txtTall"
End
Begin TextBox
    Height =500
    FontSize =8
    Name ="txtSmallFont"
End
)"));
  const std::pair<const char*, bool> rows[] = {
      {"txtExact", false}, {"txtTall", true}, {"txtSmallFont", true}};
  for (const auto& [name, multi] : rows) {
    Stand(name);
    WriteTextBox(w_);
    EXPECT_EQ(Written().find("\r\nMultiLine = -1\r\n") != std::string::npos, multi) << name;
  }
}

TEST_F(ControlWriters, DatePickerForDateFormats) {
  AddForm("frmTest", FormText(R"(
Begin TextBox
    Left =1500
    Top =100
    Width =1200
    Height =300
    BackColor =16777215
    ForeColor =0
    FontName ="Arial"
    FontSize =10
    Name ="txtDate"
    ControlSource ="OrderDate"
    Format ="Short Date"
    DefaultValue ="#1/2/2003#"
End
)"));
  Stand("txtDate");
  WriteTextBox(w_);
  EXPECT_EQ(Written(), Lines(std::string(R"(Begin MSComCtl2.DTPicker txtDate
Left = 1500
Top = 700
_Version = 393216
Width = 1200
_ExtentX = 1200
Height = 300
_ExtentY = 300
DataSource ="datfrmTest"
DataField ="OrderDate"
Format = 22937601
Value = #1/2/2003#
HelpContextID = 0
TabIndex =0
BackColor= &HFFFFFF&
ForeColor= &H0&
)") + kFontBlock + R"(End
)"));
  EXPECT_EQ(HintText(), Hint("TextBoxCode", "txtDate", "txtDate"));
  EXPECT_EQ(w_.Text().ComponentFiles, std::vector<std::string>{"MSCOMCT2.OCX"});
  EXPECT_EQ(w_.Text().ComponentGuids,
            std::vector<std::string>{"{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"});
}

TEST_F(ControlWriters, DatePickerFormatsAndOptions) {
  struct Row {
    const char* format;
    bool vb5;
    bool datePicker;
    const char* formatLine;  // "" for a text box
  };
  const Row rows[] = {
      {"Short Date", false, true, "Format = 22937601"},
      {"m/d/yy", false, true, "Format = 22937601"},
      {"mm/dd/yy", false, true, "Format = 22937601"},
      {"Medium Time", false, true, "Format = 22872066"},
      {"Long Time", false, true, "Format = 22872066"},
      {"Long Date", false, true, "Format = 22937600"},
      {"General Date", false, true, ""},
      {"Medium Date", false, true, ""},
      {"", false, true, ""},
      {"Short Date", true, true, ""},
      {"Short Date", false, false, ""},
  };
  std::string controls;
  for (size_t i = 0; i < std::size(rows); ++i)
    controls += "Begin TextBox\nName =\"txt" + std::to_string(i) + "\"\nFormat =\"" +
                rows[i].format + "\"\nControlSource =\"=Now()\"\nEnd\n";
  AddForm("frmTest", FormText(controls));
  for (size_t i = 0; i < std::size(rows); ++i) {
    const Row& r = rows[i];
    s_.Options.IsVb5 = r.vb5;
    s_.Options.DatePicker = r.datePicker;
    const std::string name = "txt" + std::to_string(i);
    Stand(name);
    WriteTextBox(w_);
    const std::string text = Written();
    const bool picker = *r.formatLine != '\0';
    EXPECT_EQ(text.rfind(picker ? "Begin MSComCtl2.DTPicker " : "Begin VB.TextBox ", 0), 0u)
        << r.format;
    if (picker) {
      EXPECT_NE(text.find(std::string("\r\n") + r.formatLine + "\r\n"), std::string::npos);
    }
    // Both write a calculated value through the data control as text.
    EXPECT_EQ(HintText(), Hints({{"AddDataCtlEntry", "datfrmTest", name + ".text = Now"},
                                 {"TextBoxCode", "frmTest", name, name, ""}}))
        << r.format;
  }
}

// --- Bound object frames and custom controls --------------------------------

TEST_F(ControlWriters, BoundObjectFrameIsAnOleControlPartlyConverted) {
  AddForm("frmTest", FormText("Begin BoundObjectFrame\nLeft =10\nTop =20\nName =\"olePhoto\"\n"
                              "ControlSource =\"Photo\"\nTabIndex =1\nEnd\n",
                              "    RecordSource =\"Employees\"\n"));
  Stand("olePhoto");
  WriteBoundObjectFrame(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin  VB.OLE olePhoto
Height = 1440
Left = 10
Top = 620
Width = 1440
HelpContextID = 0
DataSource ="datfrmTest"
DataField ="Photo"
TabIndex = 1
End
)"));
  EXPECT_EQ(HintText(), Hints({{"BoundObjectFrameCode", "frmTest", "olePhoto", "olePhoto", ""},
                               {"AddToReport", "frmTest", "4", "olePhoto", "0", "", ""}}));
  EXPECT_EQ(w_.Text().FormControlCount, 1);
  EXPECT_EQ(w_.Text().FormPartialCount, 1);
}

TEST_F(ControlWriters, BoundObjectFrameOnAnUnboundFormHasNoBinding) {
  AddForm("frmTest", FormText("Begin BoundObjectFrame\nName =\"olePhoto\"\n"
                              "ControlSource =\"Photo\"\nEnd\n"));
  Stand("olePhoto");
  WriteBoundObjectFrame(w_);
  EXPECT_EQ(Written().find("Data"), std::string::npos);
}

class CustomControls : public ControlWriters {
 protected:
  void SetUp() override {
    std::string err;
    db_ = SupportDatabase::Open(dir_ / "morvane.db", MORVANE_DATA_DIR, &err);
    ASSERT_NE(db_, nullptr) << err;
    ASSERT_TRUE(db_->Execute(
        "INSERT OR REPLACE INTO CustomControlMapping VALUES "
        "('MSCAL.Calendar.7', 'MSACAL.Calendar', '{8E27C92E-1264-101C-8A2F-040224009C02}#7.0#0', "
        "'MSCAL.OCX')",
        &err))
        << err;
    s_.SupportDb = db_.get();
  }
  std::unique_ptr<SupportDatabase> db_;
};

TEST_F(CustomControls, MappedClassIsWrittenWithItsComponent) {
  AddForm("frmTest", FormText(R"(
Begin CustomControl
    Left =100
    Top =200
    Width =3000
    Height =2000
    TabIndex =6
    Name ="axCal"
    Class ="MSCAL.Calendar.7"
    TabStop = NotDefault
    ControlTipText ="Pick"
End
)"));
  Stand("axCal");
  WriteCustomControl(w_);
  EXPECT_EQ(Written(), Lines(R"(Begin MSACAL.Calendar axCal
Height = 2000
Left = 100
TabIndex = 6
TabStop = 0
Top = 800
Width = 3000
Visible = -1
HelpContextID = 0
ToolTipText ="Pick"
End
)"));
  EXPECT_EQ(HintText(), Hints({{"AddToReport", "frmTest", "4", "axCal", "0", "", ""}}));
  EXPECT_EQ(w_.Text().ComponentFiles, std::vector<std::string>{"MSCAL.OCX"});
  EXPECT_EQ(w_.Text().FormControlCount, 1);
  EXPECT_EQ(w_.Text().FormPartialCount, 1);
}

TEST_F(CustomControls, UnmappedClassIsReportedButNotWritten) {
  AddForm("frmTest", FormText("Begin CustomControl\nName =\"axOdd\"\nClass =\"Odd.Thing.1\"\n"
                              "End\n"));
  Stand("axOdd");
  WriteCustomControl(w_);
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(HintText(), Hints({{"AddToReport", "frmTest", "4", "axOdd", "0", "", ""}}));
  EXPECT_EQ(w_.Text().FormControlCount, 0);
  EXPECT_EQ(w_.Text().FormPartialCount, 0);
}

// --- Names and placement shared by all writers ------------------------------

TEST_F(ControlWriters, WritersShareOneNameSpaceAndTheWalkPlacement) {
  AddForm("frmTest", FormText(R"(
Begin Label
    Name ="1 st"
    Left =100
    Top =50
End
Begin TextBox
    Name ="1_st"
    Left =100
    Top =50
End
)"));
  FormTextSet& t = w_.Text();
  Stand("1 st");
  t.Place.SubformLeft = 1000;
  t.Place.SubformTop = 2000;
  t.InSubform = true;
  WriteLabel(w_);
  const std::string label = Written();
  EXPECT_EQ(label.rfind("Begin VB.Label A1_st\r\n", 0), 0u) << label;
  EXPECT_NE(label.find("\r\nLeft = 1100\r\nTop = 2650\r\n"), std::string::npos) << label;
  Stand("1_st");
  WriteTextBox(w_);
  EXPECT_EQ(Written().rfind("Begin VB.TextBox A1_stA\r\n", 0), 0u);
}

}  // namespace
}  // namespace morvane
