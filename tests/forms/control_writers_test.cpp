// The control writers on small designs, for what the golden forms do not
// show: the lines a property gives or takes away, the hint records and the
// counts of each family's odd cases (captions with line breaks, slanted
// lines, pictures refused or on buttons, calculated and multi-line text
// boxes, check box values, mixed option groups, unmapped custom controls),
// the date picker's formats and options, the Sheridan option set, and the
// names and placement the writers share.
#include "forms/control_writers.h"

#include <gtest/gtest.h>

#include "platform/support_db.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::Ctl;
using test::ExpectLines;
using test::Fields;
using test::FormText;
using test::HexProperty;
using test::PictureBytes;

// An option group of mixed members: buttons with labels (one with a tip, a
// tag and an option value of its own), a hidden check box with a negative
// value, and a toggle.
const std::string kShipGroup =
    Ctl("OptionGroup",
        "Left =1000|Top =500|Width =2000|Height =1500|Name =\"fraShip\"|ControlSource =\"ShipVia\"|"
        "DefaultValue =\"2\"",
        Ctl("Label", R"(Name ="lblShip"|Caption ="Ship\015\012via")") +
            Ctl("OptionButton", "Left =1100|Top =700|OptionValue =1|Name =\"optAir\"",
                Ctl("Label", "Width =600|Name =\"lblAir\"|Caption =\"Air\"")) +
            Ctl("OptionButton", R"(Left =1100|Top =1000|OptionValue =3|Name ="optSea"|)"
                                R"(ControlTipText ="By \"sea\""|Tag ="s")") +
            Ctl("CheckBox",
                "Left =1600|Top =700|OptionValue =-2|Visible = NotDefault|Name =\"chkRoad\"") +
            Ctl("ToggleButton",
                "Left =1500|Top =1200|OptionValue =4|Name =\"tglRail\"|Caption =\"Rail\""));

std::string Controls() {
  const std::string bitmap = "|" + HexProperty("PictureData", PictureBytes(40, 100, 60));
  std::string aligned;
  for (const char* kind : {"Label", "TextBox"})
    for (int align : {0, 1, 3, 4})
      aligned += Ctl(kind, std::string("Name =\"") + kind[0] + std::to_string(align) +
                               "\"|TextAlign =" + std::to_string(align));
  return aligned + kShipGroup +
         Ctl("Label", "BackColor =16777215|TextAlign =3|Name =\"lblName\"|Tag =\"t\"") +
         Ctl("Label", R"(BackStyle =0|OldBorderStyle =1|Visible = NotDefault|Name ="lblTwo"|)"
                      R"(Caption ="a\015\012\"b\"")") +
         Ctl("TextBox", "Name =\"txtOwner\"", Ctl("Label", "Name =\"lblOwner\"")) +
         Ctl("OptionButton", "DefaultValue =\"-1\"|Name =\"optAlone\"",
             Ctl("Label", R"(Width =900|Name ="lblAlone"|Caption ="Al\015\012one")")) +
         Ctl("Line",
             "Left =100|Top =200|Width =1000|Height =500|BorderColor =255|BorderWidth =2|"
             "LineSlant = NotDefault|Name =\"linSlant\"") +
         Ctl("Rectangle",
             "BackStyle =0|BackColor =255|BorderColor =65280|OldBorderStyle =1|"
             "BorderLineStyle =2|Name =\"boxFrame\"") +
         Ctl("Image", "Top =200|Height =800|Name =\"imgLogo\"|ControlTipText =\"Logo\"" + bitmap) +
         Ctl("Image", "Name =\"imgEmpty\"|OldBorderStyle =0") +
         Ctl("Image", "Name =\"imgOdd\"|" + HexProperty("PictureData", PictureBytes(0x42, 100))) +
         Ctl("CommandButton", R"(Name ="cmdOK"|ControlTipText ="Press\015\012here")") +
         Ctl("CommandButton",
             R"(ForeColor =255|FontItalic = NotDefault|Cancel = NotDefault|Enabled = NotDefault|)"
             R"(Name ="cmdGo"|Caption ="Say \"go\"\015\012now")") +
         Ctl("CommandButton", "ForeColor =255|Name =\"cmdPrint\"|Caption =\"Print\"" + bitmap) +
         Ctl("CommandButton", "Name =\"cmdTagged\"|Tag =\"mine\"" + bitmap) +
         Ctl("CommandButton",
             "Name =\"cmdRefused\"|" + HexProperty("PictureData", PictureBytes(1, 100))) +
         Ctl("TextBox", R"(SpecialEffect =2|Name ="txtName"|DefaultValue ="\"Smith\"")") +
         Ctl("TextBox",
             R"x(BackStyle =0|OldBorderStyle =0|TextAlign =1|Locked = NotDefault|ScrollBars =2|)x"
             R"x(Enabled = NotDefault|TabStop = NotDefault|Visible = NotDefault|Name ="txtToday"|)x"
             R"x(ControlSource ="=Date()"|DefaultValue ="=Now()")x") +
         Ctl("TextBox", "Height =600|FontSize =10|Name =\"txtExact\"") +
         Ctl("TextBox", "Height =601|FontSize =10|Name =\"txtTall\"") +
         Ctl("TextBox", "Height =500|FontSize =8|Name =\"txtSmallFont\"") +
         Ctl("TextBox", "Name =\"txtDate\"|Format =\"Short Date\"|DefaultValue =\"#1/2/2003#\"") +
         Ctl("CheckBox", "Name =\"chkActive\"|DefaultValue =\"True\"") +
         Ctl("CheckBox", "Name =\"chkTriple\"|TripleState = NotDefault") +
         Ctl("CheckBox", "Name =\"chkMinus\"|DefaultValue =\"-1\"") +
         Ctl("CheckBox", "Name =\"chkNo\"|DefaultValue =\"No\"") +
         Ctl("CheckBox", "Name =\"chkExpr\"|DefaultValue =\"=Date()>#1/1/2000#\"") +
         Ctl("CheckBox", "Name =\"chkWord\"|DefaultValue =\"Maybe\"") +
         Ctl("CheckBox", "Name =\"chkCalc\"|ControlSource =\"=[A] Or [B]\"") +
         Ctl("OptionGroup",
             "Name =\"grpCalc\"|ControlSource =\"=[Kind]+1\"|DefaultValue =\"=-3\"") +
         Ctl("OptionGroup", "Name =\"grpWord\"|DefaultValue =\"two\"") +
         Ctl("ToggleButton", "Name =\"tglBold\"|DefaultValue =\"=[Bold] Is Null\"" + bitmap) +
         Ctl("CustomControl", "Name =\"axCal\"|Class =\"MSCAL.Calendar.7\"|TabStop = NotDefault") +
         Ctl("CustomControl", "Name =\"axOdd\"|Class =\"Odd.Thing.1\"");
}

class ControlWriters : public test::WriterHarness {
 protected:
  void SetUp() override {
    std::string err;
    db_ = SupportDatabase::Open(dir_ / "morvane.db", MORVANE_DATA_DIR, &err);
    ASSERT_NE(db_, nullptr) << err;
    s_.SupportDb = db_.get();
    AddForm("frmTest", FormText(Controls(), "    RecordSource =\"Orders\"\n"));
  }
  std::unique_ptr<SupportDatabase> db_;
};

struct WriterCase {
  void (*write)(FormWriter&);
  const char* control;
  std::vector<std::string> lines;  // as ExpectLines reads them; none: nothing is written
  const char* hints;               // the records' fields joined by "|"; nullptr: not looked at
  int counted;                     // the controls the writer counts (a group or option
                                   // button counts twice)
};

const WriterCase kCases[] = {
    {WriteLabel, "L0", {"!Alignment"}, nullptr, 1},
    {WriteLabel, "L1", {"Alignment =0"}, nullptr, 1},
    {WriteLabel, "L3", {"Alignment =1"}, nullptr, 1},
    {WriteLabel, "L4", {"!Alignment"}, nullptr, 1},
    {WriteTextBox, "T1", {"Alignment =0"}, nullptr, 1},
    {WriteTextBox, "T3", {"Alignment =1"}, nullptr, 1},
    {WriteLabel,
     "lblName",
     {"BackColor= &HFFFFFF&", "Tag =\"t\""},
     "ImageCode|frmTest|lblName|lblName|",
     1},
    // A caption of several lines is set in code.
    {WriteLabel,
     "lblTwo",
     {"BackStyle=0", "BorderStyle=1", "Caption=\"Caption set in Form_Load event\"", "Visible = 0"},
     "LabelCaptionFromCode|lblTwo|a\" & vbCrLf & \"\"\"b\"\"|ImageCode|frmTest|lblTwo|lblTwo|",
     1},
    // The label of another control has no event code of its own; that of an
    // option button or group is written by its control.
    {WriteLabel, "lblOwner", {"Begin VB.Label lblOwner"}, "", 1},
    {WriteLabel, "lblAlone", {}, "", 0},
    {WriteLabel, "lblShip", {}, "", 0},
    {WriteLineControl,
     "linSlant",
     {"BorderColor =  &HFF&", "BorderWidth = 2", "X2 =100", "X1 =1100", "Y1 =800", "Y2 =1300"},
     "",
     1},
    {WriteShape,
     "boxFrame",
     {"FillColor = &HFF&", "FillStyle = 1", "BorderStyle = 3", "BorderColor = &HFF00&"},
     "",
     1},
    {WriteImage,
     "imgLogo",
     {"Height = 1400", "ToolTipText =\"Logo\"", "Top = 800", "Picture = \"frmTest.frx\":0000"},
     "ImageCode|frmTest|imgLogo|imgLogo|",
     1},
    {WriteImage, "imgEmpty", {"BorderStyle = 0", "!Picture"}, nullptr, 1},
    // A picture of no kind a picture box takes loses its line, and its border.
    {WriteImage, "imgOdd", {"!Picture", "!BorderStyle"}, nullptr, 1},
    {WriteCommandButton,
     "cmdOK",
     {"Begin VB.CommandButton cmdOK", "ToolTipText =\"Press here\""},
     "ButtonCode|frmTest|cmdOK|cmdOK|",
     1},
    {WriteCommandButton,
     "cmdGo",
     {"Begin Threed.SSCommand cmdGo", "Caption = \"Say \"\"go\"\" now\"", "italic = -1",
      "Cancel = -1", "Enabled = 0"},
     nullptr,
     1},
    // A picture makes a standard picture button whatever the colour; the
    // caption goes into the tag unless the tag is taken.
    {WriteCommandButton,
     "cmdPrint",
     {"Begin VB.CommandButton cmdPrint", "Picture = \"frmTest.frx\":0000", "Tag =\"Print\"",
      "Style = 1"},
     nullptr,
     1},
    {WriteCommandButton,
     "cmdTagged",
     {"Picture = \"frmTest.frx\":0000", "!Tag", "Style = 1"},
     nullptr,
     1},
    {WriteCommandButton, "cmdRefused", {"!Picture", "Style = 1"}, nullptr, 1},
    {WriteTextBox,
     "txtName",
     {"Text = \"Smith\"", "!Appearance"},
     "TextBoxCode|frmTest|txtName|txtName|",
     1},
    // Transparent, flat, locked, calculated: the section's colour, and the
    // value comes from the data control.
    {WriteTextBox,
     "txtToday",
     {"BorderStyle=0", "Appearance=0", "Alignment =0", "Locked =1", "ScrollBars = 2", "Enabled = 0",
      "TabStop = 0", "BackColor= &HC0C0C0&", "Visible = 0", "!DataField"},
     "AddDataCtlEntry|datfrmTest|txtToday.text = Date|FLS|txtToday.Text = Now|"
     "TextBoxCode|frmTest|txtToday|txtToday|",
     1},
    // Multi-line when taller than sixty times the font size.
    {WriteTextBox, "txtExact", {"!MultiLine"}, nullptr, 1},
    {WriteTextBox, "txtTall", {"MultiLine = -1"}, nullptr, 1},
    {WriteTextBox, "txtSmallFont", {"MultiLine = -1"}, nullptr, 1},
    {WriteTextBox,
     "txtDate",
     {"Begin MSComCtl2.DTPicker txtDate", "Value = #1/2/2003#"},
     "TextBoxCode|frmTest|txtDate|txtDate|",
     1},
    {WriteCheckBox, "chkActive", {"Value = 1", "!Caption"}, nullptr, 1},
    {WriteCheckBox, "chkTriple", {"Value = 2"}, nullptr, 1},
    {WriteCheckBox, "chkMinus", {"Value = 1"}, nullptr, 1},
    {WriteCheckBox, "chkNo", {"Value = 0"}, nullptr, 1},
    {WriteCheckBox,
     "chkExpr",
     {"!Value"},
     "FLS|chkExpr.Value = Date>#1/1/2000#|CheckBoxCode|frmTest|chkExpr|chkExpr|",
     1},
    {WriteCheckBox, "chkWord", {"!Value"}, "CheckBoxCode|frmTest|chkWord|chkWord|", 1},
    // Fields are read through the data control; the reading is marked for
    // review.
    {WriteCheckBox,
     "chkCalc",
     {"!DataField"},
     "AddToReport|frmTest|7|chkCalc.value =[A] Or [B]|0|chkCalc.value = "
     "datfrmTest.Recordset.Fields(\"A\").Value Or datfrmTest.Recordset.Fields(\"B\").Value||"
     "AddDataCtlEntry|datfrmTest|chkCalc.value = datfrmTest.Recordset.Fields(\"A\").Value Or "
     "datfrmTest.Recordset.Fields(\"B\").Value|CheckBoxCode|frmTest|chkCalc|chkCalc|",
     1},
    {WriteCheckBox, "chkRoad", {}, "", 0},
    // Members are indexed by the size of their option value; a member
    // without a label has no caption.
    {WriteOptionGroup,
     "fraShip",
     {"Begin VB.Frame grpfraShip", "Caption =  \"Ship via\"", "Index = 1", "Width = 870",
      "ToolTipText =\"By \"\"sea\"\"\"", "Tag =\"s\"", "Index = 3", "Index = 2", "Visible = 0",
      "Index = 4", "Caption =  \"Rail\""},
     "AddDataCtlEntry|datfrmTest|fraShip(datfrmTest.recordset.Fields(\"ShipVia\")-1).value = "
     "true|FLS|fraShip(2).Value = True|OptionGroupCode|frmTest|fraShip|fraShip|",
     2},
    {WriteOptionGroup,
     "grpCalc",
     {"Begin VB.Frame grpgrpCalc", "!Caption"},
     "AddDataCtlEntry|datfrmTest|grpCalc([Kind]+1).value = true|FLS|grpCalc(3).Value = True|"
     "OptionGroupCode|frmTest|grpCalc|grpCalc|",
     2},
    {WriteOptionGroup, "grpWord", {"!Caption"}, "OptionGroupCode|frmTest|grpWord|grpWord|", 2},
    {WriteOptionButton,
     "optAlone",
     {"Height = 210", "Caption =  \"Al one\"", "Width = 1170", "Value = -1"},
     "OptionGroupCode|frmTest|optAlone|optAlone|",
     2},
    {WriteOptionButton,
     "tglBold",
     {"Style = 1", "Picture = \"frmTest.frx\":0000"},
     // A default of Access's own syntax is kept as a comment, with a row.
     "AddToReport|frmTest|7|tglBold.Value =[Bold] Is Null|0|the Access expression has no "
     "Visual Basic reading here; kept as a comment||FLS|'MORVANE tglBold.Value =[Bold] Is Null|"
     "OptionGroupCode|frmTest|tglBold|tglBold|",
     2},
    {WriteCustomControl,
     "axCal",
     {"Begin MSACAL.Calendar axCal", "TabStop = 0"},
     "AddToReport|frmTest|4|axCal|0||",
     1},
    // A class without a counterpart is reported, not written.
    {WriteCustomControl, "axOdd", {}, "AddToReport|frmTest|4|axOdd|0||", 0},
};

TEST_F(ControlWriters, LinesHintsAndCountsOfEachCase) {
  for (const WriterCase& c : kCases) {
    SCOPED_TRACE(c.control);
    s_.Form().Binary.clear();
    const int before = w_.Text().FormControlCount;
    Stand(c.control);
    c.write(w_);
    const std::string text = Written();
    if (c.lines.empty())
      EXPECT_EQ(text, "");
    else
      ExpectLines(text, c.lines);
    const std::string hints = HintText();
    if (c.hints) {
      EXPECT_EQ(hints, Fields(c.hints));
    }
    EXPECT_EQ(w_.Text().FormControlCount - before, c.counted);
  }
}

TEST_F(ControlWriters, DatePickerFormatsAndOptions) {
  struct Row {
    const char* format;
    bool vb5, datePicker;
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
  AddForm("frmDates", FormText(controls));
  for (size_t i = 0; i < std::size(rows); ++i) {
    const Row& r = rows[i];
    SCOPED_TRACE(r.format);
    s_.Options.IsVb5 = r.vb5;
    s_.Options.DatePicker = r.datePicker;
    const std::string name = "txt" + std::to_string(i);
    Stand(name, 600, "frmDates");
    WriteTextBox(w_);
    const bool picker = *r.formatLine != '\0';
    ExpectLines(Written(), {(picker ? "Begin MSComCtl2.DTPicker " : "Begin VB.TextBox ") + name,
                            picker ? r.formatLine : "!Format"});
    // Both write a calculated value through the data control as text.
    EXPECT_EQ(HintText(), Fields("AddDataCtlEntry|datfrmDates|" + name + ".text = Now|" +
                                 "TextBoxCode|frmDates|" + name + "|" + name + "|"));
  }
}

TEST_F(ControlWriters, SheridanOptionSetOnlyOnABoundForm) {
  s_.Options.SsOptionSet = true;
  s_.Options.ListboxType = 3;
  Stand("fraShip");
  WriteOptionGroup(w_);
  // The buttons of the first row make the columns; the toggle stays a
  // button of its own.
  ExpectLines(Written(), {"Begin SSDataWidgets_A.SSDBOptSet fraShip", "DataField =\"ShipVia\"",
                          "Buttons.Button(3).OptionValue=\"-2\"", "Begin VB.OptionButton fraShip",
                          "NumberOfButtons =3", "Cols =2"});
  // The set binds itself: no data control records, no default.
  EXPECT_EQ(HintText(), Fields("OptionGroupCode|frmTest|fraShip|fraShip|"));
  EXPECT_EQ(w_.Text().ComponentFiles, std::vector<std::string>{"ssdw3a32.ocx"});

  AddForm("frmUnbound", FormText(kShipGroup + Ctl("BoundObjectFrame",
                                                  "Name =\"olePhoto\"|ControlSource =\"Photo\"")));
  w_.WriteComponentLines(false);
  Stand("fraShip", 600, "frmUnbound");
  WriteOptionGroup(w_);
  ExpectLines(Written(), {"!Begin SSDataWidgets", "Begin VB.OptionButton fraShip"});
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
  // Nor does an object frame bind on an unbound form.
  Stand("olePhoto", 600, "frmUnbound");
  WriteBoundObjectFrame(w_);
  ExpectLines(Written(), {"Begin  VB.OLE olePhoto", "!Data"});
}

TEST_F(ControlWriters, WritersShareOneNameSpaceAndTheWalkPlacement) {
  AddForm("frmNames", FormText(Ctl("Label", "Name =\"1 st\"|Left =100|Top =50") +
                               Ctl("TextBox", "Name =\"1_st\"")));
  FormTextSet& t = w_.Text();
  Stand("1 st", 600, "frmNames");
  t.Place.SubformLeft = 1000;
  t.Place.SubformTop = 2000;
  t.InSubform = true;
  WriteLabel(w_);
  const std::string label = Written();
  EXPECT_EQ(label.rfind("Begin VB.Label A1_st\r\n", 0), 0u) << label;
  ExpectLines(label, {"Left = 1100", "Top = 2650"});
  Stand("1_st", 600, "frmNames");
  WriteTextBox(w_);
  EXPECT_EQ(Written().rfind("Begin VB.TextBox A1_stA\r\n", 0), 0u);
}

}  // namespace
}  // namespace morvane
