// The shared conventions of the form text: formats and line blocks.
#include "forms/frm_text.h"

#include <algorithm>
#include <charconv>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/access_expression.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

std::string DecimalText(double x) {
  if (x == std::floor(x) && std::fabs(x) < 1e15) {
    // A whole number this small is exact as an integer; its digits are
    // those "%.0f" writes, and minus zero is 0.
    char buf[32];
    const auto end = std::to_chars(buf, buf + sizeof buf, static_cast<long long>(x)).ptr;
    return std::string(buf, end);
  }
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15g", x);
  return buf;
}

std::string ColorHex(long x) {
  // Upper-case hexadecimal digits of the low 32 bits, as "%X" writes them.
  char buf[8];
  auto u = static_cast<uint32_t>(x);
  size_t i = sizeof buf;
  do {
    buf[--i] = "0123456789ABCDEF"[u & 0xF];
    u >>= 4;
  } while (u != 0);
  return std::string(buf + i, sizeof buf - i);
}

std::string Extent(double x) { return DecimalText(x * 1.7635); }

std::string EscapeQuotes(std::string_view text) { return ReplaceAllText(text, "\"", "\"\""); }

std::string JoinLines(std::string_view text) {
  std::string out = ReplaceAllText(text, "\r\n", " ");
  std::replace(out.begin(), out.end(), '\r', ' ');
  std::replace(out.begin(), out.end(), '\n', ' ');
  return out;
}

bool HoldsLineBreak(std::string_view text) { return text.find_first_of("\r\n") != text.npos; }

std::optional<std::string> Escaped(const std::optional<std::string>& value) {
  if (!value) return value;
  return EscapeQuotes(*value);
}

void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += "\r\n";
}

void AddLine(std::string& text, std::string_view head, const std::optional<std::string>& value,
             std::string_view tail) {
  if (!value) return;
  text += head;
  // A property line of the form text is one line, whatever its value holds.
  text += HoldsLineBreak(*value) ? JoinLines(*value) : *value;
  text += tail;
  text += "\r\n";
}

void AddLine(std::string& text, std::string_view head, const std::optional<long>& value,
             std::string_view tail) {
  if (!value) return;
  AddLine(text, head, std::optional<std::string>(std::to_string(*value)), tail);
}

namespace {

// The default decimal form of a whole number written as digits alone, with
// a minus sign or not; nullopt for any other text, and for one too long to
// be sure of.
std::optional<std::string> PlainWholeNumber(std::string_view text) {
  std::string_view digits = text;
  const bool negative = !digits.empty() && digits[0] == '-';
  if (negative) digits.remove_prefix(1);
  if (digits.empty() || digits.size() > 15) return std::nullopt;
  long long n = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') return std::nullopt;
    n = n * 10 + (c - '0');
  }
  return DecimalText(static_cast<double>(negative ? -n : n));
}

}  // namespace

std::optional<std::string> ValueText(const DesignObject& o, std::string_view property) {
  auto text = o.Text(property);
  if (!text || text->empty()) return text;
  // Numbers in default decimal form whatever the export wrote ("8.0"). The
  // number read is that of the text just read (a flag reads -1 or 0).
  const unsigned char first = static_cast<unsigned char>((*text)[0]);
  if (std::isdigit(first) || first == '-') {
    if (auto whole = PlainWholeNumber(*text)) return whole;
    if (auto r = DesignNumber(*text)) return DecimalText(*r);
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
  AddLine(text, "DataField =\"" + EscapeQuotes(*source) + "\"");
}

namespace {

// The reason of an analysis row asking for review.

// The Visual Basic statement that gives `target` the value of an Access
// expression (its leading "=" left out), or the expression kept as a
// comment when Visual Basic cannot compute it here; either gets a row when
// the user should look at it.
std::string ExpressionStatement(FormWriter& w, const std::string& target,
                                const std::string& expression) {
  ConversionSession& s = w.Session();
  ExpressionScope scope;
  scope.Session = &s;
  scope.Form = w.Text().CurrentForm;
  auto dataControlOf = [&w](const FormDesign& form) {
    auto source = form.Text("RecordSource");
    return source && !source->empty() ? w.DataControlOf(form.Name()) : std::string();
  };
  if (const FormDesign* form = w.Text().CurrentForm) {
    scope.DataControl = dataControlOf(*form);
    const std::string& parent = w.Text().ParentFormName;
    if (!parent.empty() && !EqualsNoCase(form->Name(), w.Text().OwnerFormName))
      scope.Parent = w.Store().OpenForm(parent, nullptr);
    if (scope.Parent) scope.ParentDataControl = dataControlOf(*scope.Parent);
  }
  scope.UseAdo = s.Options.UseAdo;
  bool approximate = false;
  const auto vb = VbExpression(expression, scope, &approximate);
  const std::string access = target + " =" + expression;
  if (!vb) {
    const std::string kept = "'MORVANE " + access;
    AddHint(s, ReportRowHint{w.Text().OwnerFormName, kReasonReview, access, 0,
                             "the Access expression has no Visual Basic reading here; kept as a "
                             "comment",
                             ""});
    return kept;
  }
  const std::string statement = target + " = " + *vb;
  if (approximate)
    AddHint(s, ReportRowHint{w.Text().OwnerFormName, kReasonReview, access, 0, statement, ""});
  return statement;
}

}  // namespace

void AddCalculatedBinding(FormWriter& w, const ControlDesign& c, std::string_view member) {
  ConversionSession& s = w.Session();
  std::string source = c.Text("ControlSource").value_or("");
  if (!source.empty() && source[0] == '=') source.erase(0, 1);
  AddHint(s,
          DataControlEntryHint{
              DataControlName(w),
              ExpressionStatement(w, s.Form().CurrentControlName + std::string(member), source)});
}

void AddDefaultValueHint(FormWriter& w, const ControlDesign& c, std::string_view member) {
  auto value = c.Text("DefaultValue");
  if (!value || value->empty() || (*value)[0] != '=') return;
  ConversionSession& s = w.Session();
  AddHint(s, FormLoadLineHint{ExpressionStatement(
                 w, s.Form().CurrentControlName + std::string(member), value->substr(1))});
}

}  // namespace morvane
