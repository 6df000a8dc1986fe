// The walk's steps for list and combo boxes (which writer, the records for
// the run-time fill and the event code), the blocks the list writers share,
// and the standard Visual Basic list and combo box.
#include "forms/list_writers.h"

#include <algorithm>
#include <span>

#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/control_writers.h"
#include "forms/data_controls.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/record_source.h"
#include "platform/catalog.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

// Visual Basic reads at most this many bytes a line of a form file.
constexpr size_t kMaxFormLine = 1023;
// A value set from Form_Load goes in pieces of about this many bytes.
constexpr size_t kPieceBytes = 900;
// Analysis reasons: a result to review, and a choice made where the plain
// rule would not load.

constexpr std::string_view kTableQuery = "Table/Query";

// The text on one line: every line break a blank.
std::string OneLineText(std::string_view text) {
  std::string out = JoinLines(text);
  std::replace(out.begin(), out.end(), '\r', ' ');
  std::replace(out.begin(), out.end(), '\n', ' ');
  return out;
}

// Letters that set a name apart: A ... Z, then AA, AB, ...
std::string Suffix(int k) {
  std::string out;
  for (++k; k > 0; k = (k - 1) / 26) out.insert(out.begin(), static_cast<char>('A' + (k - 1) % 26));
  return out;
}

// The name of a list's data control: "dat" and the list's name, unique in
// the form without regard to case (the form's own data controls included),
// and an identifier of at most 40 characters.
std::string ClaimDataControlName(FormWriter& w, const std::string& controlName) {
  FormTextSet& t = w.Text();
  ConversionSession& s = w.Session();
  std::vector<std::string> taken = {s.Names.DataControl(t.OwnerFormName)};
  if (t.CurrentForm) taken.push_back(s.Names.DataControl(t.CurrentForm->Name()));
  auto isTaken = [&](const std::string& name) {
    auto same = [&](const std::string& used) { return EqualsNoCase(used, name); };
    return t.UsedControlNames.Contains(name) || std::any_of(taken.begin(), taken.end(), same);
  };
  const std::string base = ("dat" + controlName).substr(0, 40);
  std::string name = base;
  for (int k = 0; isTaken(name); ++k) {
    const std::string suffix = Suffix(k);
    name = base.substr(0, 40 - suffix.size()) + suffix;
  }
  t.UsedControlNames.push_back(name);
  return name;
}

std::string FrxFile(FormWriter& w) {
  return w.Session().Names.Name(ComponentRole::Form, w.Text().OwnerFormName).File + ".frx";
}

// Sets `object` + `member` to `value` (a quoted text's inside, quotes
// doubled) from Form_Load, in pieces that fit a line; a doubled quote is
// never cut apart.
void SetFromFormLoad(FormWriter& w, const std::string& object, std::string_view member,
                     const std::string& value) {
  ConversionSession& s = w.Session();
  const std::string target = object + std::string(member);
  // A later piece's line names the target twice.
  const size_t room = kPieceBytes - std::min(kPieceBytes / 2, 2 * target.size());
  std::vector<std::string> pieces = QuotedPieces(value, room);
  if (pieces.empty()) pieces.emplace_back();
  for (size_t k = 0; k < pieces.size(); ++k)
    AddHint(s, FormLoadLineHint{target + " = " + (k == 0 ? "" : target + " & ") + "\"" + pieces[k] +
                                "\""});
}

bool IsExpression(const std::optional<std::string>& v) {
  return v && !v->empty() && (*v)[0] == '=';
}

}  // namespace

const std::string& ListControl::Field(long index) const {
  static const std::string kNone;
  if (index < 0) return kNone;
  if (fields_.size() <= static_cast<size_t>(index)) fields_.resize(static_cast<size_t>(index) + 1);
  auto& f = fields_[static_cast<size_t>(index)];
  if (!f) f = FieldNameAt(w.Session(), RowSource, static_cast<int>(index));
  return *f;
}

std::string ListControl::WidthField(long i) const {
  size_t start = 0;
  for (long k = 1; k < i; ++k) {
    start = Widths.find(';', start);
    if (start == std::string::npos) return {};
    ++start;
  }
  if (i < 1) return {};
  const size_t end = Widths.find(';', start);
  return Widths.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

std::optional<double> ListControl::ColumnWidth(long i) const {
  if (N() == 1) return c.Real("Width");
  return NumberOfText(WidthField(i));
}

std::optional<ListControl> BeginList(FormWriter& w, bool isList, bool withData) {
  const ControlDesign* c = BeginControl(w);
  if (!c) return std::nullopt;
  ConversionSession& s = w.Session();
  ListControl l(w, *c);
  l.IsList = isList;
  l.Bound = isList ? s.Options.ListboxBound : s.Options.ComboboxBound;
  l.TableQuery = c->Text("RowSourceType").value_or("") == kTableQuery;
  l.RowSource = c->Text("RowSource").value_or("");
  l.Columns = c->Number("ColumnCount");
  l.Widths = c->Text("ColumnWidths").value_or("");
  l.Name = s.Form().CurrentControlName;
  l.HasData = withData;
  if (l.RowData()) {
    l.DataName = ClaimDataControlName(w, l.Name);
    if (l.DataName != "dat" + l.Name)
      ReportListChoice(l, "dat" + l.Name, "data control " + l.DataName);
  }
  return l;
}

void AddBindingsLine(std::string& text, FormWriter& w, const std::string& dataName, bool isList) {
  const std::string offset = WriteBindingsRecord(w, dataName, isList);
  AddLine(text, "Bindings = \"" + FrxFile(w) + "\":" + offset);
}

void AddListTagLine(std::string& text, const ListControl& l) {
  ConversionSession& s = l.w.Session();
  if (!s.SourceDb || l.RowSource.empty()) return;
  auto query = s.SourceDb->QueryDef(l.RowSource);
  if (!query) return;
  const std::string value = query->Type == kDbQSQLPassThrough
                                ? "SQLPassthrough  " + l.RowSource + " ~ " + query->Sql
                                : "Jet  " + l.RowSource;
  // The tag is a quoted text of one line: quotes doubled, line breaks blanks.
  const std::string written = EscapeQuotes(OneLineText(value));
  if (written != value) ReportListChoice(l, "Tag=\"" + value + "\"", "Tag=\"" + written + "\"");
  AddStringProperty(text, l, "Tag=\"", written, ".Tag");
}

void AddRowDataControl(std::string& text, const ListControl& l) {
  if (!l.RowData()) return;
  FormWriter& w = l.w;
  ConversionSession& s = w.Session();
  std::string source = EscapeQuotes(OneLineText(l.RowSource));
  // The ADO control may put brackets around the source.
  const bool late = source.size() + std::string_view("RecordSource = \"[]\"").size() > kMaxFormLine;
  const long left = l.c.Number("Left").value_or(0);
  const long top = l.c.Number("Top").value_or(0) + l.c.Number("Height").value_or(0) +
                   w.Text().Place.SectionOffset;
  const std::string name = l.DataName.substr(3);
  const std::string designSource = late ? std::string() : source;
  text += s.Options.UseAdo ? WriteAdoDataControl(w, name, left, 2, designSource, top, false)
                           : WriteDataControl(w, name, left, 2, designSource, top, false);
  if (!late) return;
  SetFromFormLoad(w, l.DataName, ".RecordSource", source);
  ReportListChoice(l, "RecordSource = \"" + source.substr(0, 200) + "...\"",
                   l.DataName + ".RecordSource set in Form_Load");
}

void AddStringProperty(std::string& text, const ListControl& l, std::string_view head,
                       const std::string& value, std::string_view member) {
  if (head.size() + value.size() + 1 <= kMaxFormLine) {
    AddLine(text, std::string(head) + value + "\"");
    return;
  }
  SetFromFormLoad(l.w, l.Name, member, value);
  ReportListChoice(l, std::string(head) + value.substr(0, 200) + "...\"",
                   l.Name + std::string(member) + " set in Form_Load");
}

void AddComboDefault(std::string& text, const ListControl& l) {
  AddDefaultValueHint(l.w, l.c, ".Text");
  auto value = l.c.Text("DefaultValue");
  if (!value || value->empty() || IsExpression(value)) return;
  AddLine(text, "Text = \"" + OneLineText(ReplaceAllText(*value, "\"", "")) + "\"");
}

void AddFormBinding(std::string& text, const ListControl& l) {
  const FormDesign* form = CurrentFormOf(l.w);
  if (!form || form->Text("RecordSource").value_or("").empty()) return;
  AddLine(text, "DataSource =\"" + DataControlName(l.w) + "\"");
  AddLine(text, "DataField =\"", l.c.Text("ControlSource"), "\"");
}

void ReportListChoice(const ListControl& l, const std::string& codeLine,
                      const std::string& written) {
  AddHint(l.w.Session(), ReportRowHint{l.w.Text().OwnerFormName, kReasonKeptChoice,
                                       l.Name + ": " + OneLineText(codeLine), 0, written, ""});
}

std::optional<long> LeftOf(const ListControl& l) { return l.w.ControlLeft(l.c); }
std::optional<long> TopOf(const ListControl& l) { return l.w.ControlTop(l.c); }

void AddListPlacement(std::string& text, const ListControl& l) {
  const ControlDesign& c = l.c;
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", LeftOf(l));
  AddLine(text, "TabIndex =", ValueText(c, "TabIndex"));
  AddTabStopLine(text, c);
  AddEnabledLine(text, c);
  AddLine(text, "Top = ", TopOf(l));
  AddLine(text, "Width = ", ValueText(c, "Width"));
}

void AddGridListTail(std::string& text, const ListControl& l) {
  const ControlDesign& c = l.c;
  AddLine(text, "TabStop =", ValueText(c, "TabStop"));
  AddColorLines(text, c);
  AddListTagLine(text, l);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
}

void CloseList(std::string text, const ListControl& l) {
  AddLine(text, "End");
  AddRowDataControl(text, l);
  PutText(l.w, std::move(text));
  CountControl(l.w);
}

void WriteStandardList(FormWriter& w, bool isList) {
  auto begun = BeginList(w, isList, false);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  std::string text = OpenControlText(w, isList ? "Begin VB.ListBox " : "Begin VB.ComboBox ");
  if (!isList) {
    AddComboDefault(text, l);
    if (IsTrueOrUnread(c.Flag("Locked"))) AddLine(text, "Locked = -1");
  }
  AddTabBoxLines(text, w, c);
  AddHelpLines(text, c);
  AddEnabledLine(text, c);
  AddVisibleLine(text, c);
  AddLine(text, "BackColor= &H", Hex(c, "BackColor"), "&");
  AddFontLines(text, c);
  AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
  if (IsCalculated(c))
    AddCalculatedBinding(w, c, ".value");
  else
    AddBindingLines(text, w, c);
  if (!isList && IsTrueOrUnread(c.Flag("LimitToList"))) AddLine(text, "Style = 2");
  CloseList(std::move(text), l);
}

namespace {

// The writer of each list type, and the kind of combo box the event code
// is told. A type without a row is written as a standard control.
struct ListWriterRow {
  int type;
  void (*write)(FormWriter&);
  int comboKind;
  bool rowData;  // a bound list gets a data control for its rows
};

constexpr ListWriterRow kListBoxWriters[] = {
    {1, WriteGreenTreeList, 0, true}, {2, WriteSheridanList, 0, true},
    {3, WriteSheridanList, 0, true},  {4, WriteOwnList, 0, true},
    {5, WriteListView, 0, false},
};

constexpr ListWriterRow kComboBoxWriters[] = {
    {1, WriteGreenTreeCombo, 1, true},
    {2, WriteSheridanCombo, 2, true},
    {3, WriteSheridanCombo, 2, true},
    {4, WriteFormsCombo, 5, false},
};

constexpr int kPlainComboKind = 3;

void WriteListOrCombo(FormWriter& w, bool isList) {
  const ControlDesign* current = w.Text().CurrentControl;
  if (!current) return;
  const ControlDesign& c = *current;
  ConversionSession& s = w.Session();
  const bool plain = s.Options.StandardControls && IsPlainListControl(s, c);
  s.Form().PlainListControl = plain;

  int comboKind = kPlainComboKind;
  const ListWriterRow* row = nullptr;
  if (!plain) {
    const int type = isList ? s.Options.ListboxType : s.Options.ComboboxType;
    const std::span<const ListWriterRow> rows =
        isList ? std::span<const ListWriterRow>(kListBoxWriters) : kComboBoxWriters;
    for (const ListWriterRow& r : rows)
      if (r.type == type) row = &r;
  }
  if (row) {
    row->write(w);
    comboKind = row->comboKind;
  } else {
    WriteStandardList(w, isList);
  }

  // The rows of a value list, and of a table or query without a data
  // control, are filled at run time.
  const std::string& name = s.Form().CurrentControlName;
  const std::string rowSource = EscapeQuotes(OneLineText(c.Text("RowSource").value_or("")));
  const bool tableQuery = c.Text("RowSourceType").value_or("") == kTableQuery;
  const bool bound = isList ? s.Options.ListboxBound : s.Options.ComboboxBound;
  if (!tableQuery) {
    AddHint(s, ListEntryHint{!isList, w.Text().OwnerFormName, rowSource, name, true, plain});
  } else if (!bound || (isList && plain)) {
    AddHint(s, ListEntryHint{!isList, w.Text().OwnerFormName, rowSource, name, false, plain});
  } else if (!row || !row->rowData) {
    // In bound mode a control that takes no data control for its rows is
    // filled at run time as in unbound mode, so that its list is not empty;
    // the analysis says so.
    AddHint(s, ListEntryHint{!isList, w.Text().OwnerFormName, rowSource, name, false, plain});
    AddHint(s, ReportRowHint{w.Text().OwnerFormName, kReasonReview, name + " " + rowSource, 0,
                             "rows filled from Form_Load: the control takes no data control", ""});
  }
  if (isList)
    AddControlHint(w, c, ControlEventKind::ListBox);
  else
    AddControlHint(w, c, ControlEventKind::ComboBox, comboKind);
}

}  // namespace

void WriteListBox(FormWriter& w) { WriteListOrCombo(w, true); }
void WriteComboBox(FormWriter& w) { WriteListOrCombo(w, false); }

}  // namespace morvane
