// The list and combo box writers: each Access list box and combo box becomes
// the substitute the run's options choose (GreenTree, Sheridan, the standard
// Visual Basic controls, the own list box, the Microsoft Forms combo box or
// the list view). This header holds what the writers share: the control in
// hand with its columns, widths and row source, and the recurring blocks
// (bindings, the tag naming the row source, the row source's data control).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form_writer.h"

namespace morvane {

class ControlDesign;
class FormWriter;

// The lines of a DataList.GTList that the list box and the GreenTree grid
// of a datasheet subform share: after the Bindings line, the place, tab
// order, version, help and caption border; then, after the lines of their
// own, the caption, default, scroll tip and extended tip fonts.
void AddGreenTreeFrame(std::string& text, const FormWriter& w, const ControlDesign& c);
void AddDataListFonts(std::string& text);

// Registers the Sheridan Data Widgets of list type `type` (2 or 3).
void AddSheridanComponent(FormWriter& w, int type);

// A list or combo box in hand, read once for its writer.
struct ListControl {
  ListControl(FormWriter& writer, const ControlDesign& control) : w(writer), c(control) {}

  FormWriter& w;
  const ControlDesign& c;
  bool IsList = true;
  bool Bound = false;       // ListboxBound or ComboboxBound
  bool TableQuery = false;  // RowSourceType is "Table/Query"
  std::string RowSource;
  std::optional<long> Columns;  // ColumnCount, n
  std::string Widths;           // ColumnWidths, twips between ";"
  std::string Name;             // CurrentControlName
  std::string DataName;         // the row source's data control, when bound
  bool HasData = true;          // the writer gives a bound list a data control

  // A bound list of a table or query has a data control of its own.
  bool RowData() const { return HasData && Bound && TableQuery; }
  long N() const { return Columns.value_or(0); }
  // The name of the row source's field at `index` from 0; empty when the
  // row source cannot be read or has no such field.
  const std::string& Field(long index) const;
  // Field i (from 1) of ColumnWidths; empty past the last.
  std::string WidthField(long i) const;
  // The width of column i (from 1): the control's Width for one column,
  // else the field of ColumnWidths; nullopt when that is no number.
  std::optional<double> ColumnWidth(long i) const;

  mutable std::vector<std::optional<std::string>> fields_;
};

// Step 1 of each list writer: the control's unique name and page, and its
// list properties. Null when the walk has no control in hand. `withData`:
// the writer gives a bound list a data control for its rows.
std::optional<ListControl> BeginList(FormWriter& w, bool isList, bool withData = true);

// "Bindings = "{form}.frx":{offset}" with a bindings record for `dataName`.
void AddBindingsLine(std::string& text, FormWriter& w, const std::string& dataName, bool isList);
// The tag that names a saved query as the row source for the run-time fill.
void AddListTagLine(std::string& text, const ListControl& l);
// The data control of a bound list's table or query, behind its text.
void AddRowDataControl(std::string& text, const ListControl& l);
// `head` + value + a closing quote; a line longer than the form text holds
// is left out, and the value is set from Form_Load to `member` instead.
void AddStringProperty(std::string& text, const ListControl& l, std::string_view head,
                       const std::string& value, std::string_view member);
// "Text = "{d}"" of a combo's default value, or the Form_Load line of one
// that is an expression.
void AddComboDefault(std::string& text, const ListControl& l);
// "DataSource ="dat{form}"" and "DataField ="{ControlSource}"" when the
// form has a record source.
void AddFormBinding(std::string& text, const ListControl& l);
// An analysis row for a choice made where the plain rule would not load.
void ReportListChoice(const ListControl& l, const std::string& codeLine,
                      const std::string& written);
// "Left = {Left}" and "Top = {Top}".
std::optional<long> LeftOf(const ListControl& l);
std::optional<long> TopOf(const ListControl& l);
// Height, Left, TabIndex, TabStop, Enabled, Top and Width: the place and tab
// order of the substitutes that write "TabIndex =" without a blank.
void AddListPlacement(std::string& text, const ListControl& l);
// The last lines of a GreenTree or Sheridan list box: tab stop, colours,
// the tag naming its row source, tool tip and visibility.
void AddGridListTail(std::string& text, const ListControl& l);
// Closes the list's lines with "End", adds its row source's data control,
// puts both into the form and counts the list.
void CloseList(std::string text, const ListControl& l);

// The writers, each on the control the walk stands on.
void WriteGreenTreeList(FormWriter& w);
void WriteGreenTreeCombo(FormWriter& w);
void WriteSheridanList(FormWriter& w);
void WriteSheridanCombo(FormWriter& w);
void WriteStandardList(FormWriter& w, bool isList);
void WriteOwnList(FormWriter& w);
void WriteFormsCombo(FormWriter& w);
void WriteListView(FormWriter& w);

inline constexpr const char* kFontGuid = "{0BE35203-8F91-11CE-9DE3-00AA004BB851}";

// The components the list writers share with the datasheet grids: the
// GreenTree DataList, and the Sheridan Data Widgets 2.0 (DAO classes), 3.0
// in the OLE DB classes and 3.0 in the DAO classes.
inline constexpr Component kGreenTree = {"{98460712-9149-11CF-BADB-00201802BB87}#1.1#0",
                                         "GTLIST32.OCX"};
inline constexpr Component kSheridanData = {"{BC496AED-9B4E-11CE-A6D5-0000C0BE9395}#2.0#0",
                                            "SSDATB32.OCX"};
inline constexpr Component kSheridanOleDb = {"{4A4AA691-3E6F-11D2-822F-00104B9E07A1}#3.0#0",
                                             "ssdw3bo.ocx"};
inline constexpr Component kSheridanDao = {"{8D650141-6025-11D1-BC40-0000C042AEC0}#3.0#0",
                                           "SSDW3B32.OCX"};

}  // namespace morvane
