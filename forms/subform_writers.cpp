// Subform writers: the grid, the data repeater and the embedded frame that a
// subform control becomes, each with the link to its parent's record.
#include "forms/subform_writers.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/data_controls.h"
#include "forms/data_format.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/list_writers.h"
#include "forms/query_fields.h"
#include "forms/record_source.h"
#include "platform/catalog.h"
#include "platform/support_db.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr Component kRepeater = {"{5C8CED40-8909-11D0-9483-00A0C91110ED}#1.0#0", "MSDATREP.OCX"};
constexpr Component kDataGrid = {"{CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}#1.0#0", "MSDATGRD.OCX"};
constexpr Component kDbGrid = {"{00028C01-0000-0000-0000-000000000046}#1.0#0", "DBGRID32.OCX"};

constexpr const char* kDataFormatHead =
    "BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}";
constexpr const char* kStreamId = "_StreamID = -1412567295";

// The reason of an analysis row for a control converted only in part.
// The width a column of a table or query shown directly starts with.
constexpr long kDefaultColumnWidth = 1440;

// One column of a grid: the field it shows and how.
struct Column {
  std::string Field;
  std::optional<long> Width;
  std::string Format;
  std::optional<long> TextAlign;
  const ControlDesign* Control = nullptr;
};

// What a grid shows: the subform's form (or a table or query shown
// directly), its record source and its columns.
struct GridSource {
  const FormDesign* Form = nullptr;  // null for a table or query
  std::string Name;                  // the form's name, or the table's or query's
  std::string RecordSource;
  std::vector<Column> Columns;
};

// A control whose value comes from a field of the record source.
bool ShowsField(const ControlDesign& k) {
  switch (k.ControlType()) {
    case kTextBox:
    case kComboBox:
    case kListBox:
    case kCheckBox:
    case kOptionGroup:
    case kBoundObjectFrame:
      break;
    default:
      return false;
  }
  auto source = k.Text("ControlSource");
  return source && !source->empty() && (*source)[0] != '=';
}

// The columns of a form shown as a grid: the detail controls that show a
// field, in tab order, as Access's datasheet shows them.
std::vector<Column> FormColumns(const FormDesign& f) {
  std::vector<std::pair<long, const ControlDesign*>> ordered;
  for (const ControlDesign& k : f.Controls()) {
    if (k.Section() != 0 || !ShowsField(k)) continue;
    if (auto index = k.Number("TabIndex")) ordered.emplace_back(*index, &k);
  }
  std::stable_sort(ordered.begin(), ordered.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<Column> columns;
  for (const auto& [index, k] : ordered)
    columns.push_back({k->Text("ControlSource").value_or(""), k->Number("Width"),
                       k->Text("Format").value_or(""), k->Number("TextAlign"), k});
  return columns;
}

std::vector<Column> SourceColumns(const ConversionSession& s, const std::string& source) {
  std::vector<Column> columns;
  if (!s.SourceDb) return columns;
  auto fields = QueryFields(*s.SourceDb, source);
  if (!fields) fields = TableFields(*s.SourceDb, source);
  if (!fields) return columns;
  for (const FieldInfo& f : *fields)
    columns.push_back({f.Name, kDefaultColumnWidth, "", 0, nullptr});
  return columns;
}

std::string FrxName(FormWriter& w) {
  return w.Session().Names.Name(ComponentRole::Form, w.Text().OwnerFormName).File + ".frx";
}

std::string BindingsLine(FormWriter& w, const std::string& dataControl) {
  return "Bindings = \"" + FrxName(w) + "\":" + WriteBindingsRecord(w, dataControl, false);
}

// A subform control that is not converted: named in the analysis and
// counted.
void NotConverted(FormWriter& w, const ControlDesign& c, const std::string& why) {
  w.Text().Accounted.insert(&c);
  ConversionSession& s = w.Session();
  ++s.Form().ControlsNotConverted;
  if (s.SupportDb)
    s.SupportDb->AddRunNote(w.Text().OwnerFormName,
                            "subform " + c.Name() + " is not converted: " + why);
}

// An analysis row for what a subform became in part.
void PartlyConverted(FormWriter& w, const std::string& name, const std::string& what) {
  AddHint(w.Session(),
          ReportRowHint{w.Text().OwnerFormName, kReasonPartlyConverted, name, 0, what, ""});
}

// The subform's own code stays behind when only its data comes across.
void NoteCodeLeftBehind(FormWriter& w, const std::string& name, const FormDesign* f,
                        const std::string& as) {
  if (!f || !f->HasCode()) return;
  bool code = false;
  for (const std::string& line : f->Code()) {
    const std::string t = TrimBlanks(line);
    if (!t.empty() && t[0] != '\'' && !StartsWithNoCase(t, "Option ") &&
        !StartsWithNoCase(t, "Attribute "))
      code = true;
  }
  if (code) PartlyConverted(w, name, "the module of " + f->Name() + " is not carried into " + as);
}

// "Tag=" naming the grid's stored query, as a list's tag does.
void AddQueryTag(std::string& text, ConversionSession& s, const ControlDesign& c,
                 const std::string& source) {
  if (!s.SourceDb || source.empty()) return;
  auto query = s.SourceDb->QueryDef(source);
  if (!query) return;
  const std::string tip = EscapeQuotes(JoinLines(c.Text("ControlTipText").value_or("")));
  // The SQL stands inside the quoted value: its quotes doubled, its lines
  // joined, so that the line stays one string.
  if (query->Type == kDbQSQLPassThrough)
    AddLine(text, "Tag=\"" + tip + "~SQLPassthrough  " + source + " ~ " +
                      EscapeQuotes(JoinLines(query->Sql)) + "\"");
  else
    AddLine(text, "Tag=\"" + tip + "~Jet  " + source + "\"");
}

bool Allowed(const GridSource& g, const char* property) {
  return !g.Form || g.Form->Flag(property).value_or(true);
}

void AddAllowLines(std::string& text, const GridSource& g) {
  if (!Allowed(g, "AllowEdits")) AddLine(text, "AllowUpdate = 0");
  if (Allowed(g, "AllowAdditions")) AddLine(text, "AllowAddNew = -1");
  if (Allowed(g, "AllowDeletions")) AddLine(text, "AllowDelete = -1");
}

std::string Quoted(const std::string& field) { return "\"" + EscapeQuotes(field) + "\""; }

std::string TwoDigits(size_t i) { return (i < 10 ? "0" : "") + std::to_string(i); }

// Step 1 of each subform writer: the control's unique name and page, and its
// count. Returns the name.
std::string BeginSubformControl(FormWriter& w) {
  BeginControl(w);
  CountControl(w);
  return w.Session().Form().CurrentControlName;
}

// The first lines of a Sheridan grid, a data grid and a DBGrid: the class
// line `begin`, the Bindings line of data control `data`, and the place and
// tab index, whose line the DBGrid writes with a blank after the "=".
void AddGridHead(std::string& text, FormWriter& w, const ControlDesign& c, const std::string& begin,
                 const std::string& data, const char* tabIndex = "TabIndex =") {
  AddLine(text, begin);
  AddLine(text, BindingsLine(w, data));
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, tabIndex, ValueText(c, "TabIndex"));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
}

// _ExtentX and _ExtentY of a grid, from its size in whole twips.
void AddGridExtent(std::string& text, const ControlDesign& c) {
  if (auto width = c.Number("Width")) AddLine(text, "_ExtentX = " + Extent(*width));
  if (auto height = c.Number("Height")) AddLine(text, "_ExtentY = " + Extent(*height));
}

void AddGreenTreeGrid(std::string& text, FormWriter& w, const ControlDesign& c, const GridSource& g,
                      const std::string& name, const std::string& data) {
  w.AddComponent(kGreenTree);
  AddLine(text, "Begin DataList.GTList " + name);
  AddLine(text, BindingsLine(w, data));
  AddGreenTreeFrame(text, w, c);
  AddEnabledLine(text, c);
  AddDataListFonts(text);
  AddLine(text, "CDs.Count = " + std::to_string(g.Columns.size()));
  for (size_t i = 0; i < g.Columns.size(); ++i) {
    const Column& d = g.Columns[i];
    const std::string cd = "CDs.CD(" + std::to_string(i) + ").";
    AddLine(text, cd + "SubItemSource = " + std::to_string(i));
    if (i != 0) AddLine(text, cd + "SubColumn = " + std::to_string(i));
    AddLine(text, cd + "WordWrap = 0");
    AddLine(text, cd + "CaptionWordWrap = 0");
    AddLine(text, cd + "FontDefined = -1");
    AddLine(text, cd + "DataField=" + Quoted(d.Field));
    if (!d.Format.empty()) AddLine(text, cd + "Format=" + Quoted(d.Format));
    AddLine(text, cd + "Caption=" + Quoted(d.Field));
    // A column's fonts are the list's own (MS Sans Serif, 8.25): a property
    // block named by a member path is no name Visual Basic reads.
    AddLine(text, cd + "CaptionFontDefined = -1");
    if (d.Width) AddLine(text, cd + "Width = " + Extent(*d.Width));
    if (d.Width && *d.Width == 0) AddLine(text, cd + "Visible = 0");
    AddLine(text, cd + "KEY = \"\"");
  }
  AddLine(text, "LImgs.Count = 1");
  AddLine(text, "GridLineType = 3");
  AddGridExtent(text, c);
  AddLine(text, "_StockProps = 81");
  AddLine(text, "BackColor = -2147483643");
}

void AddSheridanGrid(std::string& text, FormWriter& w, const ControlDesign& c, const GridSource& g,
                     const std::string& name, const std::string& data) {
  ConversionSession& s = w.Session();
  // The OLE DB grid binds to the ADO data control; the 2.0 library has no
  // such grid, so under ADO the grid comes from the 3.0 OLE DB library.
  const Component& component = s.Options.UseAdo             ? kSheridanOleDb
                               : s.Options.ListboxType == 2 ? kSheridanData
                                                            : kSheridanDao;
  w.AddComponent(component);
  AddGridHead(text, w, c,
              s.Options.UseAdo ? "Begin SSDataWidgets_B_OLEDB.SSOleDBGrid " + name
                               : "Begin SSDataWidgets_B.SSDBGrid " + name,
              data);
  AddLine(text, "_Version = 131072");
  AddAllowLines(text, g);
  AddFixedFontLines(text, std::string("BeginProperty HeadFont ") + kFontGuid, " Arial", "8");
  for (const char* line :
       {"RecordSelectors = 1", "GroupHeaders = 0", "FieldSeparator = \"~\"", "DividerType = 3",
        "RowSelectionStyle = 1", "SelectTypeRow = 1", "AllowUpdate = 1", "SelectByCell = -1",
        "MaxSelectedRows = 1", "ForeColorEven = 0", "BackColorOdd = 16777215", "RowHeight = 450"})
    AddLine(text, line);
  AddLine(text, "Columns.count = " + std::to_string(g.Columns.size()));
  for (size_t i = 0; i < g.Columns.size(); ++i) {
    const Column& d = g.Columns[i];
    const std::string col = "Columns(" + std::to_string(i) + ").";
    if (d.Width && *d.Width == 0) AddLine(text, col + "Visible = 0");
    if (d.Width) AddLine(text, col + "Width = " + Extent(*d.Width));
    AddLine(text, col + "Caption = " + Quoted(d.Field));
    AddLine(text, col + "Name = " + Quoted(d.Field));
    AddLine(text, col + "DataField = " + Quoted(d.Field));
    AddLine(text, col + "DataType = 8");
    AddLine(text, col + "FieldLen = 4096");
    if (d.TextAlign == 2) AddLine(text, col + "Alignment = 2");
    if (d.TextAlign == 3) AddLine(text, col + "Alignment = 1");
    if (!d.Format.empty()) AddLine(text, col + "NumberFormat = " + Quoted(d.Format));
  }
  AddGridExtent(text, c);
  AddLine(text, "_StockProps = 79");
  AddFixedFontLines(text, std::string("BeginProperty Font ") + kFontGuid,
                    w.Text().InTabControl ? "Arial" : " Arial ", "8.25");
}

void AddDataGridFont(std::string& text, const char* head) {
  AddLine(text, std::string("BeginProperty ") + head + " " + kFontGuid);
  for (const char* line : {"Name = \"MS Sans Serif\"", "Size = 8.25", "Charset = 0", "Weight = 400",
                           "Underline = 0", "Italic = 0", "Strikethrough = 0", "EndProperty"})
    AddLine(text, line);
}

void AddDataGrid(std::string& text, FormWriter& w, const ControlDesign& c, const GridSource& g,
                 const std::string& name, const std::string& data) {
  w.AddComponent(kDataGrid);
  AddGridHead(text, w, c, "Begin MSDataGridLib.DataGrid " + name, data);
  AddGridExtent(text, c);
  AddLine(text, "_Version = 393216");
  AddLine(text, "HeadLines = 1");
  AddLine(text, "RowHeight = 15");
  AddLine(text, "FormatLocked = -1");
  AddAllowLines(text, g);
  AddDataGridFont(text, "HeadFont");
  AddDataGridFont(text, "Font");
  AddLine(text, "ColumnCount = " + std::to_string(g.Columns.size()));
  for (size_t i = 0; i < g.Columns.size(); ++i) {
    const Column& d = g.Columns[i];
    AddLine(text, "BeginProperty Column" + TwoDigits(i));
    AddLine(text, "DataField = " + Quoted(d.Field));
    AddLine(text, "Caption = " + Quoted(d.Field));
    AddLine(text, kDataFormatHead);
    const std::optional<std::string> format =
        d.Control ? d.Control->Text("Format") : std::optional<std::string>("");
    const std::optional<long> decimals =
        d.Control ? d.Control->Number("DecimalPlaces") : std::optional<long>(255);
    for (const std::string& line : DataFormatLines(format, decimals)) AddLine(text, line);
    AddLine(text, "EndProperty");
    AddLine(text, "EndProperty");
  }
  AddLine(text, "SplitCount = 1");
  AddLine(text, "BeginProperty Split0");
  const auto& map = w.Text().AlignmentMap;
  for (size_t i = 0; i < g.Columns.size(); ++i) {
    const Column& d = g.Columns[i];
    AddLine(text, "BeginProperty Column" + TwoDigits(i));
    if (d.Width) AddLine(text, "ColumnWidth = " + std::to_string(*d.Width));
    if (d.TextAlign && *d.TextAlign >= 0 && *d.TextAlign < static_cast<long>(map.size()))
      AddLine(text, "Alignment = " + std::to_string(map[static_cast<size_t>(*d.TextAlign)]));
    AddLine(text, "EndProperty");
  }
  AddLine(text, "EndProperty");
}

// The DBGrid keeps its columns in a binary block of its own; they are set
// when the form loads instead, by the lines this gives.
std::vector<std::string> DbGridColumnLines(const std::string& name, const GridSource& g) {
  std::vector<std::string> lines;
  const size_t n = g.Columns.size();
  // A new grid has two columns.
  if (n == 1) lines.push_back(name + ".Columns.Remove 1");
  for (size_t k = 1; k <= n; ++k) {
    const Column& d = g.Columns[k - 1];
    const std::string col = name + ".Columns(" + std::to_string(k - 1) + ")";
    if (k > 2) lines.push_back(name + ".Columns.Add " + std::to_string(k - 1));
    if (d.Width && *d.Width == 0) lines.push_back(col + ".Visible = False");
    if (d.Width) lines.push_back(col + ".Width = " + std::to_string(*d.Width));
    lines.push_back(col + ".Caption = " + Quoted(d.Field));
    lines.push_back(col + ".DataField = " + Quoted(d.Field));
    if (!d.Format.empty()) lines.push_back(col + ".NumberFormat = " + Quoted(d.Format));
  }
  if (n > 0) lines.push_back(name + ".ReBind");
  return lines;
}

// Whether the control's text goes straight into the form (no tab, frame or
// page of a page-broken form holds it).
bool OnFormItself(FormWriter& w) {
  const FormTextSet& t = w.Text();
  return !t.InTabControl && !t.InSubform && t.Place.Bucket < 0 && w.ControlBucket() == 1;
}

// The grid of a datasheet: the grid's text, then its data control, then
// the link to the parent.
void WriteGrid(FormWriter& w, const ControlDesign& c, const GridSource& g, SubformKind kind) {
  ConversionSession& s = w.Session();
  FormTextSet& t = w.Text();
  const std::string name = BeginSubformControl(w);
  // A form's data control has the form's name; a table's or query's its
  // own name as an identifier.
  const std::string dataName = w.UniqueControlName(DataControlName(
      g.Form ? s.Names.Name(ComponentRole::Form, g.Name).VbName : VbIdentifier(g.Name)));

  std::string text;
  bool written = true;
  switch (kind) {
    case SubformKind::GreenTreeGrid:
      AddGreenTreeGrid(text, w, c, g, name, dataName);
      break;
    case SubformKind::SheridanGrid:
      AddSheridanGrid(text, w, c, g, name, dataName);
      break;
    case SubformKind::DataGrid:
      AddDataGrid(text, w, c, g, name, dataName);
      break;
    default: {
      // A DBGrid is placed once the form is complete; inside a tab or a
      // frame it stands where the subform stood.
      w.AddComponent(kDbGrid);
      std::string grid;
      AddGridHead(grid, w, c, "Begin MSDBGrid.DBGrid " + name, dataName, "TabIndex = ");
      AddVisibleLine(grid, c);
      AddLine(grid, "End");
      const bool later = OnFormItself(w);
      DatasheetGridHint hint{g.Name, later ? grid : std::string(), DbGridColumnLines(name, g)};
      AddHint(s, std::move(hint));
      if (!later) PutText(w, grid);
      written = false;
      break;
    }
  }
  if (written) {
    AddLine(text, "TabStop =", ValueText(c, "TabStop"));
    AddColorLines(text, c);
    AddQueryTag(text, s, c, g.RecordSource);
    AddVisibleLine(text, c);
    AddLine(text, "End");
    PutText(w, text);
  }

  if (g.RecordSource.empty()) return;
  const int type = g.Form && g.Form->Number("RecordsetType") == 2 ? 2 : 1;
  const std::string source = EscapeQuotes(JoinLines(g.RecordSource));
  const long left = w.ControlLeft(c).value_or(0) - t.Place.PageLeft;
  const long top = w.ControlTop(c).value_or(0) + c.Number("Height").value_or(0);
  s.Form().CurrentControlName = dataName;
  const std::string bare = dataName.substr(3);
  const std::string data =
      s.Options.UseAdo ? WriteAdoDataControl(w, bare, left, type, source, top, false, g.Name)
                       : WriteDataControl(w, bare, left, type, source, top, false, g.Name);
  CountControl(w);
  PutText(w, data);
  s.Form().CurrentControlName = name;
  AddSubformLinkHints(w, c, g.RecordSource, dataName);
  NoteCodeLeftBehind(w, name, g.Form, "its grid");
}

// The state of the walk that a nested pass over a subform's form changes.
struct WalkState {
  const FormDesign* CurrentForm;
  const ControlDesign* CurrentControl;
  std::string ParentFormName;
  std::string ParentControlName;
  bool InSubform;
  bool HeaderOnly;
  bool HasPageBreaks;
  bool InTabControl;
  bool WithoutCode;
  Placement Place;
};

WalkState Save(const FormTextSet& t) {
  return {t.CurrentForm, t.CurrentControl, t.ParentFormName, t.ParentControlName, t.InSubform,
          t.HeaderOnly,  t.HasPageBreaks,  t.InTabControl,   t.WithoutCode,       t.Place};
}

void Restore(FormTextSet& t, WalkState saved) {
  t.CurrentForm = saved.CurrentForm;
  t.CurrentControl = saved.CurrentControl;
  t.ParentFormName = std::move(saved.ParentFormName);
  t.ParentControlName = std::move(saved.ParentControlName);
  t.InSubform = saved.InSubform;
  t.HeaderOnly = saved.HeaderOnly;
  t.HasPageBreaks = saved.HasPageBreaks;
  t.InTabControl = saved.InTabControl;
  t.WithoutCode = saved.WithoutCode;
  t.Place = std::move(saved.Place);
}

// The frame a subform's controls stand in: where the subform control stood,
// its size, and the subform's detail colour. The controls inside take their
// places from its corner and are clipped by it, as Access clips a subform.
std::string FrameHead(FormWriter& w, const ControlDesign& c, const FormDesign& f,
                      const std::string& name) {
  std::string text;
  AddLine(text, "Begin VB.PictureBox " + name);
  if (const SectionDesign* detail = f.Section(0))
    AddLine(text, "BackColor= &H", Hex(*detail, "BackColor"), "&");
  if (c.Number("BorderStyle") == 0) AddLine(text, "BorderStyle = 0");
  AddLine(text, "ClipControls = -1");
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddLine(text, "TabStop = 0");
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddVisibleLine(text, c);
  AddTagLine(text, c);
  return text;
}

// Whether the form's controls stand on this form already: a second
// showing gets a data control of its own, and its module stays with the
// first.
bool ShownBefore(const FormTextSet& t, const FormDesign& f) {
  return t.WalkedForms.count(ToLower(f.Name())) > 0;
}

// Walks the subform's form inside the frame: every control of it goes into
// the frame's text, placed from the frame's corner. Returns that text, and
// the name of the form's data control in `dataControl`.
std::string WalkInsideFrame(FormWriter& w, const ControlDesign& c, const FormDesign& f,
                            bool headerOnly, std::string* dataControl = nullptr) {
  FormTextSet& t = w.Text();
  ConversionSession& s = w.Session();
  const int bucket = w.ControlBucket();
  const bool again = !t.WalkedForms.insert(ToLower(f.Name())).second;
  std::string data = s.Names.DataControl(f.Name());
  if (again)
    data = w.UniqueControlName(data);
  else
    t.UsedControlNames.push_back(data);
  if (dataControl) *dataControl = data;
  WalkState saved = Save(t);
  t.ParentFormName = t.CurrentForm->Name();
  t.ParentControlName = c.Name();
  t.Place.SubformTop = 0;
  t.Place.SubformLeft = 0;
  t.Place.TabShift = 0;
  t.Place.TabLeft = 0;
  t.Place.PageLeft = 0;
  t.Place.PageIndex = 0;
  t.Place.Bucket = bucket;
  t.Place.TabPage = -1;
  t.HasPageBreaks = false;
  t.InTabControl = false;
  // The header of a repeated form stands here, its code does not.
  t.WithoutCode = t.WithoutCode || headerOnly || again;
  t.FormChain.push_back(f.Name());
  t.DataControls.emplace_back(f.Name(), data);
  std::string& out = w.BucketText(bucket);
  const size_t mark = out.size();
  w.WriteForm(f.Name(), true, 2, headerOnly);
  if (!headerOnly) w.AccountForControls(f);
  std::string inner = w.BucketText(bucket).substr(mark);
  w.BucketText(bucket).resize(mark);
  while (inner.starts_with("\r\n")) inner.erase(0, 2);
  while (inner.ends_with("\r\n")) inner.resize(inner.size() - 2);
  t.FormChain.pop_back();
  t.DataControls.pop_back();
  Restore(t, std::move(saved));
  return inner;
}

void WriteEmbedded(FormWriter& w, const ControlDesign& c, const FormDesign& f) {
  ConversionSession& s = w.Session();
  FormTextSet& t = w.Text();
  const std::string name = BeginSubformControl(w);
  if (f.Number("DefaultView") == 1)
    PartlyConverted(w, name,
                    "the continuous form " + f.Name() +
                        " can be edited, so it is shown one record at a time with its data "
                        "control");
  if (ShownBefore(t, f))
    PartlyConverted(w, name,
                    "the form " + f.Name() +
                        " is shown a second time: its controls stand here again over a data "
                        "control of their own, its module's code serves the first only");
  else if (!t.WithoutCode)
    AddHint(s, OutputCodeHint{f.Name(), true});
  std::string text = FrameHead(w, c, f, name);
  const std::string inner = WalkInsideFrame(w, c, f, false);
  if (!inner.empty()) text += inner + "\r\n";
  text += "End";
  t.CurrentControl = &c;
  s.Form().CurrentControlName = name;
  w.PutControlText(text);
}

// The bindings of a data repeater: each bound text box and check box of the
// subform's detail is a property of the user control, one per field.
std::vector<const ControlDesign*> RepeatedFields(const FormDesign& f) {
  std::vector<const ControlDesign*> fields;
  std::set<std::string> names;
  for (const Column& column : FormColumns(f)) {
    const int type = column.Control->ControlType();
    if (type != kTextBox && type != kCheckBox && type != kComboBox) continue;
    if (names.insert(ToLower(RepeaterPropertyName(column.Field))).second)
      fields.push_back(column.Control);
  }
  return fields;
}

void WriteRepeater(FormWriter& w, const ControlDesign& c, const FormDesign& f) {
  ConversionSession& s = w.Session();
  FormTextSet& t = w.Text();
  const std::string frame = BeginSubformControl(w);
  AddHint(s, ContinuousFormHint{t.CurrentForm->Name(), c.Name()});
  w.AddComponent(kRepeater);

  // The header and footer of the subform and its data control stand in the
  // frame, above and below the repeated rows.
  std::string text = FrameHead(w, c, f, frame);
  std::string data;
  const std::string inner = WalkInsideFrame(w, c, f, true, &data);
  t.CurrentControl = &c;
  const std::string name = w.UniqueControlName(SafeName(f.Name()));
  CountControl(w);
  const long header = f.Section(1) ? f.Section(1)->Number("Height").value_or(0) : 0;
  const long footer = f.Section(2) ? f.Section(2)->Number("Height").value_or(0) : 0;
  const long height = std::max(0L, c.Number("Height").value_or(0) - header - footer);

  std::string repeater;
  AddLine(repeater, "Begin MSDataRepeaterLib.DataRepeater " + name);
  t.InRepeater = true;
  AddLine(repeater, BindingsLine(w, data));
  t.InRepeater = false;
  AddLine(repeater, "Top = " + std::to_string(header));
  AddLine(repeater, "Height = " + std::to_string(height));
  AddLine(repeater, "Left = 0");
  AddLine(repeater, "TabIndex =", ValueText(c, "TabIndex"));
  AddLine(repeater, "Width = ", ValueText(c, "Width"));
  if (auto width = c.Number("Width")) AddLine(repeater, "_ExtentX = " + Extent(*width));
  AddLine(repeater, "_ExtentY = " + Extent(height));
  AddLine(repeater, kStreamId);
  AddLine(repeater, "_Version = 393216");
  AddLine(repeater, "CaptionStyle = 0");
  AddLine(repeater, "Caption = \"\"");
  AddLine(repeater, "IntegralHeight = 0");
  if (c.Number("BorderStyle") == 0) AddLine(repeater, "BorderStyle = 0");
  if (!f.Flag("RecordSelectors").value_or(true)) AddLine(repeater, "RowIndicator = 0");
  AddLine(repeater, "BeginProperty RepeatedControlName {21FC0FC0-1E5C-11D1-A327-00AA00688B10}");
  AddLine(repeater, kStreamId);
  AddLine(repeater, "_Version = 65536");
  AddLine(repeater,
          "Name = \"" + ControlProjectName(s.ProjectName) + ".cf" + SafeName(f.Name()) + "\"");
  AddLine(repeater, "EndProperty");
  const std::vector<const ControlDesign*> fields = RepeatedFields(f);
  AddLine(repeater, "RepeaterBindings = " + std::to_string(fields.size()));
  for (size_t i = 0; i < fields.size(); ++i) {
    const ControlDesign& d = *fields[i];
    const std::string field = d.Text("ControlSource").value_or("");
    AddLine(repeater, "BeginProperty RepeaterBinding(" + std::to_string(i) +
                          ") {7D21A594-FC9B-11D0-A320-00AA00688B10}");
    AddLine(repeater, kStreamId);
    AddLine(repeater, "_Version = 65536");
    // The user control's property has the field's name as an identifier.
    AddLine(repeater, "PropertyName = " + Quoted(RepeaterPropertyName(field)));
    AddLine(repeater, "DataField = " + Quoted(field));
    AddLine(repeater, kDataFormatHead);
    for (const std::string& line : DataFormatLines(d.Text("Format"), d.Number("DecimalPlaces")))
      AddLine(repeater, line);
    AddLine(repeater, "EndProperty");
    AddLine(repeater, "EndProperty");
  }
  AddLine(repeater, "End");
  repeater.resize(repeater.size() - 2);

  if (!inner.empty()) text += inner + "\r\n";
  text += repeater + "\r\nEnd";
  s.Form().CurrentControlName = frame;
  w.PutControlText(text);
  NoteCodeLeftBehind(w, frame, &f, "its user control");
}

// The grid a datasheet becomes: the list options' substitute, else the grid
// of the run's data controls.
SubformKind GridKind(const ConversionSession& s) {
  switch (s.Options.ListboxType) {
    case 1:
      return SubformKind::GreenTreeGrid;
    case 2:
    case 3:
      return SubformKind::SheridanGrid;
    default:
      return s.Options.UseAdo ? SubformKind::DataGrid : SubformKind::DbGrid;
  }
}

bool InChain(const FormTextSet& t, const std::string& name) {
  if (EqualsNoCase(t.OwnerFormName, name)) return true;
  for (const std::string& f : t.FormChain)
    if (EqualsNoCase(f, name)) return true;
  return false;
}

}  // namespace

std::string RepeaterPropertyName(const std::string& field) {
  // Members of a user control and of the extender around it.
  static constexpr std::string_view kMembers[] = {
      "Ambient",   "BackColor", "Cancel",        "Caption",     "Container",  "Controls",
      "Default",   "DragIcon",  "DragMode",      "Enabled",     "Extender",   "Font",
      "ForeColor", "Height",    "HelpContextID", "hWnd",        "Index",      "Left",
      "Name",      "Object",    "Parent",        "ScaleHeight", "ScaleWidth", "TabIndex",
      "TabStop",   "Tag",       "ToolTipText",   "Top",         "Visible",    "WhatsThisHelpID",
      "Width",
  };
  std::string name = VbIdentifier(field, "f", 37);
  bool clash = IsReservedWord(name);
  for (std::string_view member : kMembers)
    if (EqualsNoCase(member, name)) clash = true;
  return clash ? "fld" + name : name;
}

void NoteRecordListView(FormWriter& w, const FormDesign& form) {
  const long view = form.Number("DefaultView").value_or(0);
  if (view != 1 && view != 2) return;
  const std::string what =
      "shown as " + std::string(view == 2 ? "a datasheet" : "a continuous form") +
      " in Access, it shows one record at a time here, moved by its data control; to list its "
      "records, show it in a subform control of another form, where a datasheet or a "
      "continuous form that cannot be edited becomes a grid or a data repeater";
  ConversionSession& s = w.Session();
  AddHint(s, ReportRowHint{form.Name(), kReasonPartlyConverted, form.Name(), 0, what, ""});
  if (s.SupportDb) s.SupportDb->AddRunNote(form.Name(), what);
}

SubformKind ChooseSubformKind(const ConversionSession& s, const FormDesign& f) {
  const long view = f.Number("DefaultView").value_or(0);
  auto allows = [&](const char* property) { return f.Flag(property).value_or(true); };
  const bool editable =
      allows("AllowEdits") || allows("AllowDeletions") || allows("AllowAdditions");
  if (view != 2 && (view != 1 || editable)) return SubformKind::Embedded;
  if (view == 1) return SubformKind::Repeater;
  return GridKind(s);
}

void WriteSubform(FormWriter& w) {
  FormTextSet& t = w.Text();
  const ControlDesign* current = t.CurrentControl;
  if (!current) return;
  const ControlDesign& c = *current;
  ConversionSession& s = w.Session();
  const std::string source = TrimBlanks(c.Text("SourceObject").value_or(""));
  if (source.empty()) {
    NotConverted(w, c, "it shows no form (its SourceObject is empty)");
    return;
  }
  // A table or query shown as a datasheet is a grid of its fields.
  for (const char* prefix : {"Table.", "Query."}) {
    if (!StartsWithNoCase(source, prefix)) continue;
    GridSource g;
    g.Name = source.substr(std::string_view(prefix).size());
    g.RecordSource = g.Name;
    g.Columns = SourceColumns(s, g.Name);
    WriteGrid(w, c, g, GridKind(s));
    return;
  }
  std::string err;
  const FormDesign* f = c.Form(&err);
  if (!f) {
    NotConverted(w, c, err);
    return;
  }
  if (f->IsReport()) {
    NotConverted(w, c, "it shows the report " + f->Name() + ", which a form cannot hold");
    return;
  }
  if (InChain(t, f->Name())) {
    NotConverted(w, c, "its form " + f->Name() + " holds the form that holds it");
    return;
  }
  const SubformKind kind = ChooseSubformKind(s, *f);
  switch (kind) {
    case SubformKind::Embedded:
      WriteEmbedded(w, c, *f);
      return;
    case SubformKind::Repeater:
      WriteRepeater(w, c, *f);
      return;
    default: {
      GridSource g;
      g.Form = f;
      g.Name = f->Name();
      g.RecordSource = f->Text("RecordSource").value_or("");
      g.Columns = FormColumns(*f);
      WriteGrid(w, c, g, kind);
      return;
    }
  }
}

}  // namespace morvane
