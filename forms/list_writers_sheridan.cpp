// The Sheridan Data Widgets writers: the data grid as a list box and the
// data combo as a combo box, in the DAO classes or, when the data controls
// are ADO's, the OLE DB classes.
#include <algorithm>

#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/list_writers.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"

namespace morvane {

namespace {

std::string FontHead(const char* property) {
  return std::string("BeginProperty ") + property + " " + kFontGuid;
}

// The lines of column c (from 0) up to its data type: visibility, width and
// the caption, name and data field, which name the row source's field when
// the list shows a table or query.
void AddColumn(std::string& text, const ListControl& l, long c, const std::optional<double>& w) {
  const std::string col = "Columns(" + std::to_string(c) + ")";
  if (w && *w == 0) AddLine(text, col + ".Visible = 0");
  if (w) AddLine(text, col + ".Width = " + Extent(*w));
  std::string name = "col" + std::to_string(c + 1);
  std::string field = "Column " + std::to_string(c);
  if (l.TableQuery) {
    name = l.Field(c);
    if (l.Bound) field = name;
  }
  AddLine(text, col + ".Caption = \"" + name + "\"");
  AddLine(text, col + ".Name = \"" + name + "\"");
  AddLine(text, col + ".DataField = \"" + field + "\"");
  AddLine(text, col + ".DataType = 8");
  AddLine(text, col + ".FieldLen = 4096");
}

// The lines every Sheridan list has after its class: position, tab order
// and help.
void AddFrameLines(std::string& text, const ListControl& l) {
  AddListPlacement(text, l);
  AddLine(text, "HelpContextID = ", ValueText(l.c, "HelpContextID"));
}

std::string VersionLine(const ConversionSession& s) {
  return s.Options.UseAdo ? "_Version = 196616" : "_Version = 131078";
}

}  // namespace

void AddSheridanComponent(FormWriter& w, int type) {
  const ConversionSession& s = w.Session();
  if (type == 3) {
    w.AddComponent(s.Options.UseAdo ? kSheridanOleDb : kSheridanDao);
  } else if (type == 2) {
    // The OLE DB classes that ADO data controls bind to came with the
    // widgets' version 3; version 2 has the DAO classes only.
    w.AddComponent(s.Options.UseAdo ? kSheridanOleDb : kSheridanData);
  }
}

namespace {

// Data Widgets 2.0 under ADO: the OLE DB classes need version 3's library.
// Said once per form.
void RegisterWidgets(const ListControl& l, int type) {
  FormWriter& w = l.w;
  const auto& files = w.Text().ComponentFiles;
  const bool first = std::find(files.begin(), files.end(), kSheridanOleDb.File) == files.end();
  AddSheridanComponent(w, type);
  if (type == 2 && w.Session().Options.UseAdo && first)
    ReportListChoice(
        l, std::string("Object=\"") + kSheridanData.Guid + "\"; \"" + kSheridanData.File + "\"",
        std::string("Object=\"") + kSheridanOleDb.Guid + "\"; \"" + kSheridanOleDb.File + "\"");
}

// Registers the widgets of the list's type and opens its text: the grid for
// a list box, the combo for a combo box, in the OLE DB classes under ADO.
std::string OpenSheridanText(const ListControl& l) {
  const ConversionSession& s = l.w.Session();
  RegisterWidgets(l, l.IsList ? s.Options.ListboxType : s.Options.ComboboxType);
  const std::string library =
      s.Options.UseAdo ? "SSDataWidgets_B_OLEDB.SSOleDB" : "SSDataWidgets_B.SSDB";
  return OpenControlText(l.w, "Begin " + library + (l.IsList ? "Grid " : "Combo "));
}

}  // namespace

void WriteSheridanList(FormWriter& w) {
  auto begun = BeginList(w, true);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  ConversionSession& s = w.Session();
  std::string text = OpenSheridanText(l);
  if (l.RowData()) AddBindingsLine(text, w, l.DataName, false);
  AddFrameLines(text, l);
  AddLine(text, VersionLine(s));
  AddLine(text, l.RowData() ? "DataMode=0" : "DataMode=2");
  AddFixedFontLines(text, FontHead("HeadFont"), " Arial", "8");
  AddLine(text, "RecordSelectors = 0");
  AddLine(text, "GroupHeaders = 0");
  if (auto heads = c.Flag("ColumnHeads"); !heads || !*heads) AddLine(text, "ColumnHeaders = 0");
  AddLine(text, "FieldSeparator = \"~\"");
  AddLine(text, "DividerType = 1");
  AddLine(text, "RowSelectionStyle = 1");
  AddLine(text, "SelectTypeRow = ", Sum(c.Number("MultiSelect"), 1));
  AddLine(text, "AllowUpdate = 0");
  AddLine(text, "SelectByCell = -1");
  AddLine(text, "MaxSelectedRows = 1");
  AddLine(text, "ForeColorEven = 0");
  AddLine(text, "BackColorOdd = 16777215");
  AddLine(text, "RowHeight = 450");
  AddLine(text, "Columns.count = ", l.Columns);
  for (long i = 1; i <= l.N(); ++i) AddColumn(text, l, i - 1, l.ColumnWidth(i));
  AddExtentLines(text, c);
  AddLine(text, "_StockProps = 79");
  AddFontLines(text, c, true);
  AddGridListTail(text, l);
  CloseList(std::move(text), l);
}

void WriteSheridanCombo(FormWriter& w) {
  auto begun = BeginList(w, false);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  ConversionSession& s = w.Session();
  std::string text = OpenSheridanText(l);
  if (l.RowData()) {
    AddBindingsLine(text, w, l.DataName, true);
    const std::string source = c.Text("ControlSource").value_or("");
    if (source.empty())
      AddLine(text, "DataFieldList =\"" + l.Field(c.Number("BoundColumn").value_or(0) - 1) + "\"");
    else
      AddLine(text, "DataFieldList =\"" + source + "\"");
    AddLine(text, "DataSourceList =\"" + l.DataName + "\"");
  } else {
    AddLine(text, "DataFieldList=\"Column 0\"");
  }
  AddFrameLines(text, l);
  AddComboDefault(text, l);
  AddLine(text, VersionLine(s));
  AddLine(text, l.RowData() ? "DataMode=0" : "DataMode=2");
  AddLine(text, "Cols=", l.Columns);
  AddLine(text, "Rows=8");
  if (auto limit = c.Flag("LimitToList")) AddLine(text, *limit ? "AllowInput=0" : "AllowInput=1");
  AddFormBinding(text, l);
  AddFixedFontLines(text, FontHead("HeadFont"), "Arial", "8");
  AddLine(text, "GroupHeaders = 0");
  AddLine(text, "ColumnHeaders = 0");
  AddLine(text, "FieldSeparator = \"~\"");
  AddLine(text, "DividerType = 1");
  AddLine(text, "RowHeight= 400");
  AddLine(text, "ForeColorEven = 0");
  AddLine(text, "BackColorOdd = 16777215");
  AddLine(text, "Columns.count = ", l.Columns);
  // The first column with a width is the one the closed combo shows.
  std::string displayField;
  for (long i = 1; i <= l.N(); ++i) {
    const auto width = l.ColumnWidth(i);
    if (width && *width != 0 && displayField.empty())
      displayField = l.RowData() ? l.Field(i - 1) : "Column " + std::to_string(i - 1);
    AddColumn(text, l, i - 1, width);
  }
  AddLine(text, "_ExtentX = ", ExtentOf(c, "Width"));
  AddLine(text, "_ExtentY=", ExtentOf(c, "Height"));
  AddLine(text, "_StockProps = 93");
  AddLine(text, "BackColor= &H", Hex(c, "BackColor"), "&");
  AddFontLines(text, c, true);
  AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
  AddListTagLine(text, l);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
  AddLine(text, "DataFieldToDisplay=\"" + displayField + "\"");
  CloseList(std::move(text), l);
}

}  // namespace morvane
