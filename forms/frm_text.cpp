// The shared conventions of the form text: formats and line blocks.
#include "forms/frm_text.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

std::string DecimalText(double x) {
  if (x == std::floor(x) && std::fabs(x) < 1e15) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.0f", x);
    return std::string(buf) == "-0" ? "0" : buf;
  }
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15g", x);
  return buf;
}

std::string ColorHex(long x) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%X", static_cast<unsigned>(static_cast<uint32_t>(x)));
  return buf;
}

std::string Extent(double x) { return DecimalText(x * 1.7635); }

std::string EscapeQuotes(std::string_view text) { return ReplaceAllText(text, "\"", "\"\""); }

std::string JoinLines(std::string_view text) { return ReplaceAllText(text, "\r\n", " "); }

void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += "\r\n";
}

void AddLine(std::string& text, std::string_view head, const std::optional<std::string>& value,
             std::string_view tail) {
  if (!value) return;
  text += head;
  text += *value;
  text += tail;
  text += "\r\n";
}

void AddLine(std::string& text, std::string_view head, const std::optional<long>& value,
             std::string_view tail) {
  if (!value) return;
  AddLine(text, head, std::optional<std::string>(std::to_string(*value)), tail);
}

std::optional<std::string> ValueText(const DesignObject& o, std::string_view property) {
  auto text = o.Text(property);
  if (!text || text->empty()) return text;
  // Numbers in default decimal form whatever the export wrote ("8.0").
  const unsigned char first = static_cast<unsigned char>((*text)[0]);
  if (std::isdigit(first) || first == '-') {
    if (auto r = o.Real(property)) return DecimalText(*r);
  }
  return text;
}

void AddFontLines(std::string& text, const DesignObject& o, bool guid) {
  AddLine(text, guid ? "BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}"
                     : "BeginProperty Font ");
  AddLine(text, "Name = \"", o.Text("FontName"), "\"");
  AddLine(text, "charset = 0");
  AddLine(text, "weight = ", ValueText(o, "FontWeight"));
  AddLine(text, "Size = ", ValueText(o, "FontSize"));
  if (auto u = o.Flag("FontUnderline")) AddLine(text, *u ? "underline = -1" : "underline = 0");
  if (auto i = o.Flag("FontItalic")) AddLine(text, *i ? "italic = -1" : "italic = 0");
  AddLine(text, "strikethrough = 0");
  AddLine(text, "EndProperty");
}

void AddFixedFontLines(std::string& text, std::string_view head, std::string_view name,
                       std::string_view size) {
  AddLine(text, head);
  AddLine(text, "Name = \"" + std::string(name) + "\"");
  AddLine(text, "charset = 0");
  AddLine(text, "weight = 400");
  AddLine(text, "Size = " + std::string(size));
  AddLine(text, "underline = 0");
  AddLine(text, "italic = 0");
  AddLine(text, "strikethrough = 0");
  AddLine(text, "EndProperty");
}

void AddTipLine(std::string& text, const DesignObject& o) {
  auto tip = o.Text("ControlTipText");
  if (!tip || tip->empty()) return;
  AddLine(text, "ToolTipText =\"" + JoinLines(EscapeQuotes(*tip)) + "\"");
}

void AddTagLine(std::string& text, const DesignObject& o) {
  auto tag = o.Text("Tag");
  if (!tag || tag->empty()) return;
  AddLine(text, "Tag =\"" + EscapeQuotes(*tag) + "\"");
}

namespace {

// "Only if <flag> is False": a flag that cannot be read counts as met.
void AddFalseLine(std::string& text, const DesignObject& o, std::string_view flag,
                  std::string_view line) {
  auto v = o.Flag(flag);
  if (!v || !*v) AddLine(text, line);
}

}  // namespace

void AddVisibleLine(std::string& text, const DesignObject& o) {
  AddFalseLine(text, o, "Visible", "Visible = 0");
}
void AddEnabledLine(std::string& text, const DesignObject& o) {
  AddFalseLine(text, o, "Enabled", "Enabled = 0");
}
void AddTabStopLine(std::string& text, const DesignObject& o) {
  AddFalseLine(text, o, "TabStop", "TabStop = 0");
}

bool IsCalculated(const ControlDesign& c) {
  auto source = c.Text("ControlSource");
  return source && !source->empty() && (*source)[0] == '=';
}

void AddBindingLines(std::string& text, FormWriter& w, const ControlDesign& c) {
  auto source = c.Text("ControlSource");
  if (!source || source->empty() || (*source)[0] == '=') return;
  const FormDesign* form = w.Text().CurrentForm;
  const std::string formName = form ? form->Name() : w.Text().OwnerFormName;
  AddLine(text, "DataSource =\"" + w.DataControlOf(formName) + "\"");
  AddLine(text, "DataField =\"" + *source + "\"");
}

namespace {

// Whether an Access expression names what Visual Basic cannot read as it
// stands: fields in brackets or behind "!", and the aggregates of a form's
// records.
bool NeedsReview(std::string_view expression) {
  if (expression.find_first_of("[!") != std::string_view::npos) return true;
  const std::string lower = ToLower(expression);
  for (std::string_view f :
       {"count", "sum", "avg", "min", "max", "first", "last", "stdev", "var"}) {
    for (size_t p = lower.find(f); p != std::string::npos; p = lower.find(f, p + 1)) {
      const bool start = p == 0 || !(std::isalnum(static_cast<unsigned char>(lower[p - 1])) ||
                                     lower[p - 1] == '_');
      size_t q = p + f.size();
      while (q < lower.size() && lower[q] == ' ') ++q;
      if (start && q < lower.size() && lower[q] == '(') return true;
    }
  }
  return false;
}

}  // namespace

void AddCalculatedBinding(FormWriter& w, const ControlDesign& c, std::string_view member) {
  ConversionSession& s = w.Session();
  const std::string source = c.Text("ControlSource").value_or("");
  const std::string line = s.Form().CurrentControlName + std::string(member) + " " + source;
  AddHint(s, DataControlEntryHint{DataControlName(w), line});
  // The expression is Access's, copied as it stands; one that names fields
  // or aggregates of the records gets a row asking for review.
  if (NeedsReview(source))
    AddHint(s, ReportRowHint{w.Text().OwnerFormName, 7, s.Form().CurrentControlName + " " + source,
                             0, line, ""});
}

void AddDefaultValueHint(FormWriter& w, const ControlDesign& c, std::string_view member) {
  auto value = c.Text("DefaultValue");
  if (!value || value->empty() || (*value)[0] != '=') return;
  ConversionSession& s = w.Session();
  AddHint(s, FormLoadLineHint{s.Form().CurrentControlName + std::string(member) + " " + *value});
}

}  // namespace morvane
