// The GreenTree DataList writers: DataList.GTList for list boxes (whose
// frame and fonts the GreenTree grid of a datasheet subform shares) and
// DataList.GTCombo for combo boxes.
#include <algorithm>

#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/list_writers.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"

namespace morvane {

namespace {

std::string FontHead(const std::string& property) {
  return "BeginProperty " + property + " " + kFontGuid;
}

// A GreenTree control stands on the page where the walk found it only on a
// page-broken form's detail section; elsewhere its page is the first.
void ResetPage(FormWriter& w, const ControlDesign& c) {
  FormTextSet& t = w.Text();
  if (t.HasPageBreaks && c.Section() == 0) return;
  t.Place.PageIndex = 0;
  t.Place.PageLeft = 0;
}

// The component, with the analysis row of the column fonts once a form.
void RegisterGreenTree(FormWriter& w) {
  const auto& files = w.Text().ComponentFiles;
  if (std::find(files.begin(), files.end(), kGreenTree.File) != files.end()) return;
  w.AddComponent(kGreenTree);
  AddHint(w.Session(),
          ReportRowHint{w.Text().OwnerFormName, kReasonKeptChoice, "BeginProperty CDs.CD(0).Font",
                        0, "columns take DefFont and DefColCaptionFont", ""});
}

// The head's lines; `bindingsData` names the data control of the Bindings
// line, none when empty.
std::string HeadLines(FormWriter& w, const ControlDesign& c, const std::string& bindingsData) {
  RegisterGreenTree(w);
  std::string text;
  AddLine(text, "Begin DataList.GTList " + w.Session().Form().CurrentControlName);
  if (!bindingsData.empty()) AddBindingsLine(text, w, bindingsData, false);
  AddGreenTreeFrame(text, w, c);
  AddLine(text, "MultiSelect = ", ValueText(c, "MultiSelect"));
  AddEnabledLine(text, c);
  if (auto heads = c.Flag("ColumnHeads"))
    AddLine(text, *heads ? "ColumnCaptions =-1" : "ColumnCaptions =0");
  AddDataListFonts(text);
  return text;
}

// The width lines of column k. A column's own font would be a property
// block named "CDs.CD(k).Font", a name the form file's property blocks do not
// take; each column shows the list's default fonts instead, which are the
// same (MS Sans Serif, 8.25).
void AddColumnLook(std::string& text, const std::string& cd, const std::optional<double>& width) {
  if (!width) return;
  AddLine(text, cd + ".Width = " + Extent(*width));
  if (*width == 0) AddLine(text, cd + ".Visible = 0");
}

void AddColumnHead(std::string& text, const std::string& cd, long k) {
  AddLine(text, cd + ".SubItemSource = " + std::to_string(k));
  if (k != 0) AddLine(text, cd + ".SubColumn = " + std::to_string(k));
  AddLine(text, cd + ".WordWrap = 0");
  AddLine(text, cd + ".CaptionWordWrap = 0");
}

// The caption of column k: the field's name when the list shows a table or
// query (a bound list always does), else "Col k". `equals` is the list
// box's or the combo box's way of setting a value.
void AddColumnCaption(std::string& text, const ListControl& l, const std::string& cd, long k,
                      const char* equals) {
  if (l.Bound || l.TableQuery)
    AddLine(text, cd + ".Caption" + equals + "\"" + l.Field(k) + "\"");
  else
    AddLine(text, cd + ".Caption = \"Col " + std::to_string(k) + "\"");
}

}  // namespace

void AddGreenTreeFrame(std::string& text, const FormWriter& w, const ControlDesign& c) {
  AddTabBoxLines(text, w, c);
  AddLine(text, "_Version =   65536");
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddLine(text, "AllowColumnDragDrop = 0");
  AddLine(text, "DefColCaptionBorderStyle = 3");
}

void AddDataListFonts(std::string& text) {
  for (const char* font : {"DefColCaptionFont", "DefFont", "ScrollTipFont", "ExtendTipFont"})
    AddFixedFontLines(text, FontHead(font), "MS Sans Serif", "8.25");
}

void WriteGreenTreeList(FormWriter& w) {
  auto begun = BeginList(w, true);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  ResetPage(w, c);
  std::string text = HeadLines(w, c, l.RowData() ? l.DataName : "");
  AddLine(text, "CDs.Count = ", l.Columns);
  // A width that cannot be read is the width of the column before.
  double width = 0;
  for (long k = 0; k < l.N(); ++k) {
    if (auto cw = l.ColumnWidth(k + 1)) width = *cw;
    const std::string cd = "CDs.CD(" + std::to_string(k) + ")";
    AddColumnHead(text, cd, k);
    if (l.Bound) AddLine(text, cd + ".DataField=\"" + l.Field(k) + "\"");
    AddColumnCaption(text, l, cd, k, "=");
    AddColumnLook(text, cd, width);
    AddLine(text, cd + ".KEY = \"\"");
  }
  AddLine(text, "LImgs.Count = 1");
  AddLine(text, "GridLineType = 2");
  AddExtentLines(text, c);
  AddLine(text, "_StockProps = 81");
  AddLine(text, "BackColor = -2147483643");
  AddGridListTail(text, l);
  CloseList(std::move(text), l);
}

void WriteGreenTreeCombo(FormWriter& w) {
  auto begun = BeginList(w, false);
  if (!begun) return;
  const ListControl& l = *begun;
  const ControlDesign& c = l.c;
  RegisterGreenTree(w);
  std::string text = OpenControlText(w, "Begin DataList.GTCombo ");
  if (l.RowData()) AddBindingsLine(text, w, l.DataName, false);
  AddTabBoxLines(text, w, c);
  AddLine(text, "_Version = 65536");
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddLine(text, "AllowColumnDragDrop = 0");
  AddLine(text, "DefColCaptionBorderStyle = 3");
  AddEnabledLine(text, c);
  AddFormBinding(text, l);
  AddDataListFonts(text);
  AddLine(text, "CDs.Count = ", l.Columns);
  if (l.RowData()) {
    const long bound = c.Number("BoundColumn").value_or(0) - 1;
    if (bound >= 0 && bound < l.N()) AddLine(text, "DataFieldList=\"" + l.Field(bound) + "\"");
    // The first column with a width shows the text.
    long shown = 1;
    while (shown <= l.N()) {
      const std::string field = l.WidthField(shown);
      auto v = NumberOfText(field);
      if (!field.empty() && (!v || *v != 0)) break;
      ++shown;
    }
    AddLine(text, "DataFieldDisplay=\"" + l.Field(shown - 1) + "\"");
  }
  for (long k = 0; k < l.N(); ++k) {
    const std::string cd = "CDs.CD(" + std::to_string(k) + ")";
    AddColumnHead(text, cd, k);
    AddColumnLook(text, cd, l.ColumnWidth(k + 1));
    AddColumnCaption(text, l, cd, k, " = ");
    if (l.Bound) AddLine(text, cd + ".DataField = \"" + l.Field(k) + "\"");
    AddLine(text, cd + ".KEY = \"\"");
  }
  AddLine(text, "LImgs.Count = 1");
  if (auto limit = c.Flag("LimitToList"))
    AddLine(text, *limit ? "ComboStyle = 2" : "ComboStyle = 0");
  AddExtentLines(text, c);
  AddLine(text, "_StockProps = 81");
  AddLine(text, "BackColor = -2147483643");
  AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
  AddListTagLine(text, l);
  AddTipLine(text, c);
  AddVisibleLine(text, c);
  AddComboDefault(text, l);
  CloseList(std::move(text), l);
}

}  // namespace morvane
