// The item writers of a DataReport section. Each writes the lines of its
// table in order; a property that cannot be read loses its own line. A
// control that a DataReport cannot hold is left out with a tblLog row, and
// the numbers of the following items stay gapless.
#include "reports/report_items.h"

#include <algorithm>

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/data_format.h"
#include "forms/frm_text.h"
#include "forms/picture_extraction.h"
#include "reports/report_expressions.h"
#include "session/analysis_reasons.h"
#include "session/naming.h"

namespace morvane {

namespace {

// DataReport item types.
enum ItemType : int {
  kItemLabel = 3,
  kItemTextBox = 4,
  kItemLine = 5,
  kItemShape = 6,
  kItemImage = 7,
  kItemFunction = 13,
};

// The class of each item type's object: the designer creates the item from
// it when it reads the text.
struct ItemClass {
  int type;
  const char* guid;
};

constexpr ItemClass kItemClasses[] = {
    {kItemLabel, "{1C13A8E1-A0B6-11D0-848E-00A0C90DC8A9}"},
    {kItemTextBox, "{1C13A8E2-A0B6-11D0-848E-00A0C90DC8A9}"},
    {kItemLine, "{1C13A8E3-A0B6-11D0-848E-00A0C90DC8A9}"},
    {kItemShape, "{1C13A8E4-A0B6-11D0-848E-00A0C90DC8A9}"},
    {kItemImage, "{1C13A8E5-A0B6-11D0-848E-00A0C90DC8A9}"},
    {kItemFunction, "{49FF6930-2B8C-11D1-8DA9-00A0C90FFFC2}"},
};

constexpr const char* kDataFormatHead =
    "BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}";

// Access's BorderStyle (a line style, 0 transparent) as the report's: solid
// and dashes as they are, dots 3, dash dot 4, dash dot dot 5; the short
// dashes and sparse dots have none.
struct BorderRow {
  long access;
  long report;
};

constexpr BorderRow kBorders[] = {{1, 1}, {2, 2}, {4, 3}, {6, 4}, {7, 5}};

// Access's TextAlign as the report's Alignment: right is 1 here, centre 2.
constexpr BorderRow kAlignments[] = {{0, 0}, {1, 0}, {2, 2}, {3, 1}};

// Access's SizeMode (clip 0, stretch 1, zoom 3) as the report's (zoom 2).
constexpr BorderRow kSizeModes[] = {{0, 0}, {1, 1}, {3, 2}};

std::optional<long> Mapped(const std::optional<long>& v, const BorderRow* rows, size_t n) {
  if (!v) return std::nullopt;
  for (size_t i = 0; i < n; ++i)
    if (rows[i].access == *v) return rows[i].report;
  return std::nullopt;
}

std::string Quoted(std::string_view text) { return "\"" + EscapeQuotes(text) + "\""; }

bool IsGroupHeader(int section) { return section >= 5 && section % 2 == 1; }

// The opening lines of an item: its type and class, numbered by the
// section's item count.
void OpenItem(std::string& t, const ReportState& st, int type) {
  const char* guid = "";
  for (const ItemClass& c : kItemClasses)
    if (c.type == type) guid = c.guid;
  const std::string n = std::to_string(st.ItemCount);
  AddLine(t, "ItemType" + n + " = " + std::to_string(type));
  AddLine(t, "BeginProperty Item" + n + " " + guid);
}

void AddName(std::string& t, const std::string& name) {
  AddLine(t, "_Version = 393216");
  AddLine(t, "Name = " + Quoted(name));
}

// An item's text opened and named.
std::string OpenNamedItem(const ReportState& st, int type, const std::string& name) {
  std::string t;
  OpenItem(t, st, type);
  AddName(t, name);
  return t;
}

// Closes the item's property block and adds it to the section's items.
bool CloseItem(ReportState& st, std::string& t) {
  AddLine(t, "EndProperty");
  st.ItemText += t;
  return true;
}

void AddBorder(std::string& t, const ControlDesign& c) {
  AddLine(t,
          "Object.BorderStyle = ", Mapped(c.Number("BorderStyle"), kBorders, std::size(kBorders)));
}

void AddAlignment(std::string& t, const ControlDesign& c) {
  AddLine(t, "Alignment =", Mapped(c.Number("TextAlign"), kAlignments, std::size(kAlignments)));
}

void AddGeometry(std::string& t, const ControlDesign& c) {
  AddLine(t, "Object.Height = ", ValueText(c, "Height"));
  AddLine(t, "Object.Left = ", ValueText(c, "Left"));
  AddLine(t, "Object.Top = ", ValueText(c, "Top"));
  AddLine(t, "Object.Width = ", ValueText(c, "Width"));
}

void AddVisible(std::string& t, const ControlDesign& c) {
  if (!IsTrueOrUnread(c.Flag("Visible"))) AddLine(t, "Object.Visible = 0");
}

void AddColours(std::string& t, const ControlDesign& c) {
  AddLine(t, "BackColor= &H", Hex(c, "BackColor"), "&");
  AddLine(t, "ForeColor= &H", Hex(c, "ForeColor"), "&");
}

void AddDataFormat(std::string& t, const ControlDesign& c) {
  AddLine(t, kDataFormatHead);
  t += DataFormatText(c) + "\r\n";
  AddLine(t, "EndProperty");
}

std::string ControlSourceOf(const ControlDesign& c) { return c.Text("ControlSource").value_or(""); }

// A label's caption on one line, its double quotes doubled.
std::string CaptionText(std::string_view caption) { return EscapeQuotes(JoinLines(caption)); }

// The lines of a label item with the caption `caption` (already on one
// line, quotes doubled).
void LabelLines(std::string& t, ReportState& st, const ControlDesign& c, const std::string& name,
                const std::optional<std::string>& caption) {
  t += OpenNamedItem(st, kItemLabel, name);
  AddBorder(t, c);
  AddAlignment(t, c);
  AddGeometry(t, c);
  // A designer line holds no line break: one in a caption built from the
  // source (Chr(13) & Chr(10)) shows as a blank, with a row to say so.
  if (caption && HoldsLineBreak(*caption))
    st.Review(c.Name() + ": the caption's line break is a blank in the report",
              "Object.Caption = \"" + JoinLines(*caption) + "\"");
  if (caption) AddLine(t, "Object.Caption = \"" + JoinLines(*caption) + "\"");
  AddColours(t, c);
  AddFontLines(t, c, true);
  AddVisible(t, c);
  AddLine(t, "EndProperty");
}

bool LabelItem(ReportState& st, const ControlDesign& c) {
  const std::string name = st.UniqueName(c.Name(), "lbl");
  std::string t;
  auto caption = c.Text("Caption");
  LabelLines(t, st, c, name,
             caption ? std::optional<std::string>(CaptionText(*caption)) : std::nullopt);
  st.ItemText += t;
  return true;
}

// The tail every text box and function item shares.
void TextBoxTail(std::string& t, const ControlDesign& c, const std::string& name) {
  AddName(t, name);
  AddBorder(t, c);
  AddAlignment(t, c);
  AddGeometry(t, c);
  if (c.Flag("CanGrow").value_or(false)) AddLine(t, "CanGrow = -1");
  AddColours(t, c);
  AddFontLines(t, c, true);
  AddVisible(t, c);
  AddDataFormat(t, c);
  AddLine(t, "EndProperty");
}

// A calculated text box of the report header: the report cannot compute
// it, so its value is set when the report starts, into a label. An
// expression that Visual Basic cannot run as it stands is left for review
// in a comment.
void HeaderCaptionItem(ReportState& st, const ControlDesign& c, const std::string& name,
                       const std::string& source) {
  std::string t;
  LabelLines(t, st, c, name, std::string());
  st.ItemText += t;
  const std::string expression = source.substr(1);
  std::string line =
      "Me.Sections(\"" + st.SectionName + "\").Controls(\"" + name + "\").Caption = " + expression;
  if (!IsPlainVbExpression(expression)) line = "'MORVANE " + line;
  st.InitLines.push_back(line);
  st.Review(c.Name() + " " + source, line);
}

bool TextBoxItem(ReportState& st, const ControlDesign& c) {
  const std::string src = ControlSourceOf(c);
  const int section = c.Section();
  std::string t;
  if (!src.empty() && src.front() == '=') {
    if (HasPageOrDateField(src)) {
      bool resolved = true;
      const std::string caption = PageDateCaption(src, c.Text("Format").value_or(""), &resolved);
      const std::string name = st.UniqueName(c.Name(), "txt");
      LabelLines(t, st, c, name, caption);
      st.ItemText += t;
      if (!resolved) st.Review(c.Name() + " " + src, "Object.Caption = \"" + caption + "\"");
      return true;
    }
    // A text that never changes needs no field: a label shows it.
    if (auto constant = ConstantText(src)) {
      LabelLines(t, st, c, st.UniqueName(c.Name(), "txt"), CaptionText(*constant));
      st.ItemText += t;
      return true;
    }
    // A calculated field of the detail is a column of the command.
    if (auto column = st.Calculated.find(&c); column != st.Calculated.end()) {
      OpenItem(t, st, kItemTextBox);
      AddLine(t, "DataMember =" + Quoted(st.Command->Name));
      AddLine(t, "DataField =" + Quoted(column->second));
      TextBoxTail(t, c, st.UniqueName(c.Name(), "txt"));
      st.ItemText += t;
      st.Review(c.Name() + " " + src, "DataField =" + Quoted(column->second));
      return true;
    }
    // Functions stand in the report header, report footer and group footers.
    if (section == 0 || section == 4 || (section % 2 == 1 && section != 1)) {
      st.Log(kReportFunctionSection, c.Name());
      return false;
    }
    if (section == 1) {
      HeaderCaptionItem(st, c, st.UniqueName(c.Name(), "txt"), src);
      return true;
    }
    auto aggregate = Aggregate(src);
    if (!aggregate) {
      st.Log(kReportUnknownFunction, c.Name());
      return false;
    }
    std::string field = aggregate->Field;
    // Count(*) counts the rows: any field of the command serves.
    if (field.empty() && st.Command && st.Command->Fields && !st.Command->Fields->empty())
      field = st.Command->Fields->front().Name;
    const std::string name = st.UniqueName(c.Name(), "txt");
    OpenItem(t, st, kItemFunction);
    AddLine(t, "FunctionType = " + std::to_string(aggregate->FunctionType));
    AddLine(t, "DataField =" + Quoted(field));
    if (st.Command) AddLine(t, "DataMember =" + Quoted(st.Command->Name));
    TextBoxTail(t, c, name);
    st.ItemText += t;
    if (!aggregate->SingleField)
      st.Review(c.Name() + " " + src, "FunctionType = " + std::to_string(aggregate->FunctionType) +
                                          ", DataField =" + Quoted(field));
    return true;
  }
  OpenItem(t, st, kItemTextBox);
  if (!src.empty()) {
    if (st.Command) AddLine(t, "DataMember =" + Quoted(st.Command->Member(IsGroupHeader(section))));
    AddLine(t, "DataField =" + Quoted(src));
  }
  TextBoxTail(t, c, st.UniqueName(c.Name(), "txt"));
  st.ItemText += t;
  return true;
}

bool ShapeItem(ReportState& st, const ControlDesign& c) {
  std::string t = OpenNamedItem(st, kItemShape, st.UniqueName(c.Name(), "shp"));
  AddVisible(t, c);
  AddGeometry(t, c);
  AddLine(t, "BackColor = &H", Hex(c, "BackColor"), "&");
  AddLine(t, "BackStyle = ", ValueText(c, "BackStyle"));
  AddBorder(t, c);
  AddLine(t, "BorderColor = &H", Hex(c, "BorderColor"), "&");
  return CloseItem(st, t);
}

bool LineItem(ReportState& st, const ControlDesign& c) {
  std::string t = OpenNamedItem(st, kItemLine, st.UniqueName(c.Name(), "lin"));
  AddVisible(t, c);
  AddGeometry(t, c);
  AddBorder(t, c);
  AddLine(t, "BorderColor = &H", Hex(c, "BorderColor"), "&");
  if (c.Flag("LineSlant").value_or(false)) AddLine(t, "Slant = 1");
  return CloseItem(st, t);
}

bool ImageItem(ReportState& st, const ControlDesign& c) {
  const std::string name = st.UniqueName(c.Name(), "img");
  std::string t = OpenNamedItem(st, kItemImage, name);
  AddGeometry(t, c);
  AddLine(t, "SizeMode = ", Mapped(c.Number("SizeMode"), kSizeModes, std::size(kSizeModes)));
  const std::string bytes = c.Bytes("PictureData").value_or("");
  std::optional<std::string> record;
  if (!bytes.empty()) record = PictureRecord(bytes, true);
  if (record) {
    AddLine(t, "Picture = \"" + st.Out->Name + ".dsx\":" + PictureOffsetText(st.Out->Dsx.size()));
    st.Out->Dsx += *record;
  } else {
    // A linked picture, or one too large or of a kind without a record,
    // leaves the image empty.
    const std::string path = c.Text("Picture").value_or("");
    if (!bytes.empty() || (!path.empty() && path != "(none)"))
      st.Review(c.Name() + " Picture " + (path.empty() ? "(embedded)" : path),
                "Name = " + Quoted(name));
  }
  return CloseItem(st, t);
}

// A check box or bound object frame shows its field through a text box
// item with a data format of its kind.
bool BoundFieldItem(ReportState& st, const ControlDesign& c, bool checkBox) {
  const std::string src = ControlSourceOf(c);
  if (src.empty() || src.front() == '=') {
    st.Log(kReportUnboundCheckFrame, c.Name());
    return false;
  }
  std::string t;
  OpenItem(t, st, kItemTextBox);
  AddLine(t, "DataField =" + Quoted(src));
  AddName(t, st.UniqueName(c.Name(), checkBox ? "chk" : "obj"));
  AddBorder(t, c);
  AddGeometry(t, c);
  AddVisible(t, c);
  AddLine(t, kDataFormatHead);
  AddLine(t, checkBox ? "Type = 4" : "Type = 2");
  AddLine(t, "Format = \"\"");
  AddLine(t, "HaveTrueFalseNull = 0");
  AddLine(t, "FirstDayOfWeek = 0");
  AddLine(t, "FirstWeekOfYear = 0");
  AddLine(t, "LCID = 1033");
  AddLine(t, checkBox ? "SubFormatType = 8" : "SubFormatType = 9");
  AddLine(t, "EndProperty");
  return CloseItem(st, t);
}

}  // namespace

void AddCalculatedColumns(ReportState& st, const FormDesign& report, ReportCommand& command) {
  const SectionDesign* detail = report.Section(0);
  if (!detail || !command.Fields || !CanAddColumns(command)) return;
  std::vector<std::string> names;
  for (const FieldInfo& f : *command.Fields) names.push_back(f.Name);
  const size_t fieldCount = names.size();
  for (const ControlDesign& c : detail->Controls()) {
    if (c.ControlType() != kTextBox) continue;
    const std::string src = ControlSourceOf(c);
    if (src.empty() || src.front() != '=' || HasPageOrDateField(src) || ConstantText(src)) continue;
    // Only the table's own fields count, not the columns added before.
    auto expression = JetColumnExpression(
        src, std::vector<std::string>(names.begin(), names.begin() + fieldCount));
    if (!expression) continue;
    std::string name = "Calc_" + SafeName(c.Name());
    for (int n = 2;
         std::find_if(names.begin(), names.end(),
                      [&](const std::string& x) { return EqualsNoCase(x, name); }) != names.end();
         ++n)
      name = "Calc_" + SafeName(c.Name()) + std::to_string(n);
    names.push_back(name);
    command.Columns.push_back({name, *expression});
    command.Fields->push_back({name, kDbText, 255});
    st.Calculated[&c] = name;
  }
  if (!command.Columns.empty()) SetCommandText(command);
}

std::string ReportState::UniqueName(const std::string& name, const std::string& prefix) {
  std::string base = SafeName(name);
  if (base.empty() || !(StartsWithLetter(base) || static_cast<unsigned char>(base[0]) >= 0xC0))
    base = prefix + base;
  std::string unique = base;
  for (int n = 2; std::find(UsedNames.begin(), UsedNames.end(), ToLower(unique)) != UsedNames.end();
       ++n)
    unique = base + std::to_string(n);
  UsedNames.push_back(ToLower(unique));
  return unique;
}

void ReportState::Log(int errorId, const std::string& location) {
  Out->Log.push_back({errorId, Report->Name(), location, -1});
}

void ReportState::Review(const std::string& codeLine, const std::string& translated) {
  Out->Review.push_back({Out->Name, kReasonReview, codeLine, 0, translated, SectionName});
  ++Out->ItemsToReview;
}

void WriteItem(ReportState& st, const ControlDesign& c) {
  bool written = false;
  switch (c.ControlType()) {
    case kTextBox:
      written = TextBoxItem(st, c);
      break;
    case kLabel:
      written = LabelItem(st, c);
      break;
    case kImage:
      written = ImageItem(st, c);
      break;
    case kRectangle:
      written = ShapeItem(st, c);
      break;
    case kLine:
      written = LineItem(st, c);
      break;
    case kBoundObjectFrame:
      written = BoundFieldItem(st, c, false);
      break;
    case kCheckBox:
      written = BoundFieldItem(st, c, true);
      break;
    case kSubform:
      st.Log(kReportSubreport, c.Text("SourceObject").value_or(c.Name()));
      break;
    default:
      st.Log(kReportUnknownControl, c.Name());
      break;
  }
  if (!written) return;
  ++st.ItemCount;
  ++st.Out->Items;
}

}  // namespace morvane
