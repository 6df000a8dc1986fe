// The text box writer: a VB.TextBox, or a date picker (MSComCtl2.DTPicker)
// for a box that shows a date or time format when the options ask for one.
#include <string_view>

#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/control_writers.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kDatePickerGuid = "{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0";
constexpr const char* kDatePickerFile = "MSCOMCT2.OCX";

// The Access formats a date picker can show, and its Format line for each.
struct DateFormatRow {
  std::string_view AccessFormat;
  std::string_view Line;
};

constexpr DateFormatRow kDateFormats[] = {
    {"Short Date", "Format = 22937601"}, {"m/d/yy", "Format = 22937601"},
    {"mm/dd/yy", "Format = 22937601"},   {"Medium Time", "Format = 22872066"},
    {"Long Time", "Format = 22872066"},  {"Long Date", "Format = 22937600"},
};

// The row of the box's format; a format that cannot be read takes the first
// row, as a guard that cannot be evaluated counts as met.
const DateFormatRow* DateFormatOf(const ControlDesign& c) {
  auto format = c.Text("Format");
  if (!format) return &kDateFormats[0];
  for (const DateFormatRow& row : kDateFormats)
    if (EqualsNoCase(*format, row.AccessFormat)) return &row;
  return nullptr;
}

// DataSource and DataField of a bound box; a calculated box is filled from
// code, through a hint to the data control.
void AddTextBinding(std::string& text, FormWriter& w, const ControlDesign& c) {
  if (!IsCalculated(c)) {
    AddBindingLines(text, w, c);
    return;
  }
  AddCalculatedBinding(w, c, ".text");
}

// A default value that is not an expression, or nullopt.
std::optional<std::string> PlainDefault(const ControlDesign& c) {
  auto value = c.Text("DefaultValue");
  if (!value || value->empty() || (*value)[0] == '=') return std::nullopt;
  return value;
}

void AddDatePickerLines(std::string& text, FormWriter& w, const ControlDesign& c,
                        const DateFormatRow& format) {
  ConversionSession& s = w.Session();
  w.AddComponent(kDatePickerGuid, kDatePickerFile);
  AddLine(text, "Begin MSComCtl2.DTPicker " + s.Form().CurrentControlName);
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "_Version = 393216");
  // The extents of a date picker are written in twips, unconverted.
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddLine(text, "_ExtentX = ", ValueText(c, "Width"));
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "_ExtentY = ", ValueText(c, "Height"));
  AddTextBinding(text, w, c);
  AddLine(text, format.Line);
  AddDefaultValueHint(w, c, ".Value");
  AddLine(text, "Value = ", PlainDefault(c));
}

void AddTextBoxLines(std::string& text, FormWriter& w, const ControlDesign& c) {
  ConversionSession& s = w.Session();
  AddLine(text, "Begin VB.TextBox " + s.Form().CurrentControlName);
  AddTextBinding(text, w, c);
  const bool flat = IsZeroOrUnread(c.Number("SpecialEffect"));
  AddLine(text,
          flat && IsZeroOrUnread(c.Number("BorderStyle")) ? "BorderStyle=0" : "BorderStyle=1");
  if (flat) AddLine(text, "Appearance=0");
  AddAlignmentLine(text, w, c);
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddDefaultValueHint(w, c, ".Text");
  if (auto value = PlainDefault(c))
    AddLine(text, "Text = \"" + ReplaceAllText(*value, "\"", "") + "\"");
  // A box taller than one line of its font shows several lines.
  auto height = c.Real("Height");
  auto size = c.Real("FontSize");
  if (!height || !size || *height > *size * 60) AddLine(text, "MultiLine = -1");
  if (auto locked = c.Flag("Locked")) AddLine(text, *locked ? "Locked =1" : "Locked =0");
  AddLine(text, "ScrollBars = ", ValueText(c, "ScrollBars"));
}

}  // namespace

void WriteTextBox(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  ConversionSession& s = w.Session();
  std::string text;
  const DateFormatRow* format = DateFormatOf(c);
  if (!s.Options.IsVb5 && s.Options.DatePicker && format)
    AddDatePickerLines(text, w, c, *format);
  else
    AddTextBoxLines(text, w, c);

  AddEnabledLine(text, c);
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddTabStopLine(text, c);
  AddLine(text, "TabIndex =", ValueText(c, "TabIndex"));
  // A transparent box takes the colour of the detail section behind it.
  if (IsZeroOrUnread(c.Number("BackStyle"))) {
    const FormDesign* form = CurrentFormOf(w);
    const SectionDesign* detail = form ? form->Section(0) : nullptr;
    if (detail) AddLine(text, "BackColor= &H", Hex(*detail, "BackColor"), "&");
  } else {
    AddLine(text, "BackColor= &H", Hex(c, "BackColor"), "&");
  }
  AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
  AddFontLines(text, c);
  AddTipLine(text, c);
  AddTagLine(text, c);
  AddVisibleLine(text, c);
  FinishControl(w, c, std::move(text), ControlEventKind::TextBox);
}

}  // namespace morvane
