// The list writers of the remaining substitutes: the own list box
// (Kestrel.KRListBox), the Microsoft Forms combo box and the Windows common
// controls' list view.
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/list_writers.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr Component kOwnList = {"{6D1E6C53-2F4B-4A8E-9C1D-7B35E0A4F812}#2.0#0", "Kestrel.ocx"};
constexpr Component kForms = {"{0D452EE1-E08F-101A-852E-02608C4D0BB4}#2.0#0", "FM20.DLL"};
constexpr Component kCommonControls = {"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0",
                                       "MSCOMCTL.OCX"};
constexpr const char* kColumnHeaderGuid = "{BDD1F052-858B-11D1-B16A-00C0F0283628}";

void AddBorderLines(std::string& text, const ControlDesign& c) {
  AddLine(text, "BorderColor = ", ValueText(c, "BorderColor"));
  if (auto border = c.Number("BorderStyle"))
    AddLine(text, *border == 0 ? "BorderStyle = 0" : "BorderStyle = 1");
}

// "Tag="{tag}"", without the blank of the other controls' tag line.
void AddOwnTag(std::string& text, const ControlDesign& c) {
  auto tag = c.Text("Tag");
  if (tag && !tag->empty()) AddLine(text, "Tag=\"" + EscapeQuotes(*tag) + "\"");
}

// A quoted property value that must hold the text as it is: quotes doubled
// and line breaks blanks, or it would end the line's text early.
std::string QuotedValue(const ListControl& l, const std::string& head, const std::string& value) {
  const std::string written = EscapeQuotes(JoinLines(value));
  if (written != value) ReportListChoice(l, head + value + "\"", head + written + "\"");
  return written;
}

}  // namespace

void WriteOwnList(FormWriter& w) {
  auto begun = BeginList(w, true);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  w.AddComponent(kOwnList);
  std::string text = OpenControlText(w, "Begin Kestrel.KRListBox ");
  AddListPlacement(text, l);
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddLine(text, "Cols = ", l.Columns);
  AddLine(text, "ColumnWidths = \"", c.Text("ColumnWidths"), "\"");
  if (IsTrueOrUnread(c.Flag("ColumnHeads"))) AddLine(text, "FixedCols = 1");
  AddExtentLines(text, c);
  AddFontLines(text, c, true);
  AddLine(text, "TabStop =", ValueText(c, "TabStop"));
  AddColorLines(text, c);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
  AddLine(text, "RowSourceType = \"", c.Text("RowSourceType"), "\"");
  AddStringProperty(text, l, "RowSource = \"", QuotedValue(l, "RowSource = \"", l.RowSource),
                    ".RowSource");
  AddLine(text, "MultiSelect = \"", ValueText(c, "MultiSelect"), "\"");
  AddLine(text, "BoundColumn = \"", ValueText(c, "BoundColumn"), "\"");
  CloseList(std::move(text), l);
}

void WriteFormsCombo(FormWriter& w) {
  auto begun = BeginList(w, false, false);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  w.AddComponent(kForms);
  // The width list: a column's width in the unit of the control, less the
  // room of its divider; a missing last width takes the control's width,
  // a missing earlier one adds nothing.
  std::string widths;
  const auto width = c.Real("Width");
  for (long i = 1; i <= l.N(); ++i) {
    const std::string field = l.WidthField(i);
    std::optional<double> v =
        l.N() == 1 || (field.empty() && i == l.N()) ? width : NumberOfText(field);
    if (!v) continue;
    widths += *v == 0 ? std::string("0;") : DecimalText(*v * 1.7635 - 150) + ";";
  }
  if (!widths.empty() && widths.back() == ';') widths.pop_back();

  std::string text = OpenControlText(w, "Begin MSForms.ComboBox ");
  if (auto source = c.Text("ControlSource"); source && !source->empty()) {
    AddLine(text, "DataField =\"" + *source + "\"");
    AddLine(text, "DataSource =\"" + DataControlName(w) + "\"");
  }
  AddListPlacement(text, l);
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddComboDefault(text, l);
  if (auto cx = ExtentOf(c, "Width"), cy = ExtentOf(c, "Height"); cx && cy)
    AddLine(text, "Size = \"" + *cx + ";" + *cy + "\"");
  AddLine(text, "BoundColumn = ", ValueText(c, "BoundColumn"));
  if (l.N() == 1) {
    AddLine(text, "TextColumn = 1");
  } else {
    for (long i = 1; i <= l.N(); ++i)
      if (auto v = NumberOfText(l.WidthField(i)); v && *v > 0) {
        AddLine(text, "TextColumn = " + std::to_string(i));
        break;
      }
  }
  AddLine(text, "ColumnCount = ", l.Columns);
  if (auto limit = c.Flag("LimitToList"))
    AddLine(text, *limit ? "DisplayStyle = 7" : "DisplayStyle = 3");
  if (auto expand = c.Flag("AutoExpand"))
    AddLine(text, *expand ? "MatchEntry = 1" : "MatchEntry = 2");
  AddLine(text, "ShowDropButtonWhen = 2");
  AddBorderLines(text, c);
  if (auto effect = c.Number("SpecialEffect"))
    AddLine(text, "SpecialEffect = " + std::to_string(*effect > 3 ? 2 : *effect));
  AddColorLines(text, c);
  AddOwnTag(text, c);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
  AddLine(text, "cColumnInfo = 2");
  AddLine(text, "Object.Width = \"" + widths + "\"");
  CloseList(std::move(text), l);
}

void WriteListView(FormWriter& w) {
  auto begun = BeginList(w, true, false);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  w.AddComponent(kCommonControls);
  std::string text = OpenControlText(w, "Begin MSComctlLib.ListView ");
  AddListPlacement(text, l);
  AddLine(text, "_ExtentX = ", ExtentOf(c, "Width"));
  AddLine(text, "_ExtentY=", ExtentOf(c, "Height"));
  AddLine(text, "View = 3");
  AddFontLines(text, c, true);
  AddLine(text, "LabelEdit = 1");
  AddLine(text, "LabelWrap = -1");
  AddLine(text, "HideSelection = 0");
  AddLine(text, "FullRowSelect = -1");
  AddLine(text, "_Version = 393217");
  AddLine(text, "Appearance = 1");
  if (auto multi = c.Number("MultiSelect"))
    AddLine(text, *multi != 0 ? "MultiSelect = -1" : "MultiSelect = 0");
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddBorderLines(text, c);
  AddColorLines(text, c);
  AddOwnTag(text, c);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
  AddLine(text, "NumItems = ", l.Columns);
  for (long i = 1; i <= l.N(); ++i) {
    const auto width = l.ColumnWidth(i);
    AddLine(text, "BeginProperty ColumnHeader(" + std::to_string(i) + ") " + kColumnHeaderGuid);
    if (i > 1) AddLine(text, "SubItemIndex = " + std::to_string(i - 1));
    const std::string key = l.TableQuery ? l.Field(i - 1) : "Column " + std::to_string(i);
    AddLine(text, "Key = \"" + key + "\"");
    AddLine(text, "Text = \"" + key + "\"");
    if (width) AddLine(text, "Object.Width = " + Extent(*width));
    AddLine(text, "EndProperty");
  }
  CloseList(std::move(text), l);
}

}  // namespace morvane
