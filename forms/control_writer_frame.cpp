// The frame shared by the control writers: naming, routing, hints, counts,
// and the reads and guards their line tables compute with.
#include "forms/control_writer_frame.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/picture_extraction.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

const ControlDesign* BeginControl(FormWriter& w) {
  const ControlDesign* c = w.Text().CurrentControl;
  if (!c) return nullptr;
  w.Text().Accounted.insert(c);
  w.MakeControlName(*c);
  w.LocatePage();
  return c;
}

std::string OpenControlText(const FormWriter& w, std::string_view begin) {
  std::string text;
  AddLine(text, std::string(begin) + w.Session().Form().CurrentControlName);
  return text;
}

void PutText(FormWriter& w, std::string text) {
  if (text.size() >= 2 && text.compare(text.size() - 2, 2, "\r\n") == 0)
    text.resize(text.size() - 2);
  w.PutControlText(text);
}

void AddControlHint(FormWriter& w, const ControlDesign& c, ControlEventKind kind, int comboKind) {
  ConversionSession& s = w.Session();
  const FormTextSet& t = w.Text();
  if (t.WithoutCode) return;
  ControlCodeHint hint;
  hint.Kind = kind;
  hint.FormName = t.OwnerFormName;
  hint.AccessName = c.Name();
  hint.VbName = s.Form().CurrentControlName;
  hint.ComboKind = comboKind;
  hint.SubformControl = t.ParentControlName;
  hint.Design = &c;
  AddHint(s, std::move(hint));
}

void AddReportHint(FormWriter& w, long reason) {
  ConversionSession& s = w.Session();
  AddHint(s, ReportRowHint{w.Text().OwnerFormName, reason, s.Form().CurrentControlName, 0, "", ""});
}

void CountControl(FormWriter& w, int partial) {
  ++w.Text().FormControlCount;
  w.Text().FormPartialCount += partial;
}

void CloseControl(FormWriter& w, std::string text, int partial) {
  AddLine(text, "End");
  PutText(w, std::move(text));
  CountControl(w, partial);
}

void FinishControl(FormWriter& w, const ControlDesign& c, std::string text,
                   ControlEventKind eventRecord) {
  CloseControl(w, std::move(text));
  AddControlHint(w, c, eventRecord);
}

const FormDesign* CurrentFormOf(const FormWriter& w) { return w.Text().CurrentForm; }

std::string DataControlName(const FormWriter& w) {
  const FormDesign* form = CurrentFormOf(w);
  return w.DataControlOf(form ? form->Name() : w.Text().OwnerFormName);
}

bool ParentIsCurrentForm(const FormWriter& w, const ControlDesign& c) {
  const FormDesign* form = CurrentFormOf(w);
  return form && c.Parent().Name() == form->Name();
}

int ParentType(const ControlDesign& c) {
  const ControlDesign* parent = c.ParentControl();
  return parent ? parent->ControlType() : 0;
}

const ControlDesign* AttachedLabel(const FormWriter& w, const std::string& holder) {
  const FormDesign* form = CurrentFormOf(w);
  if (!form) return nullptr;
  for (const ControlDesign& k : form->Controls())
    if (k.ControlType() == kLabel && k.Parent().Name() == holder) return &k;
  return nullptr;
}

std::optional<std::string> Hex(const DesignObject& o, std::string_view property) {
  auto v = o.Number(property);
  if (!v) return std::nullopt;
  return ColorHex(*v);
}

std::optional<std::string> OneLine(const DesignObject& o, std::string_view property) {
  auto v = o.Text(property);
  if (!v) return std::nullopt;
  return JoinLines(*v);
}

std::optional<long> Sum(const std::optional<long>& a, long b) {
  if (!a) return std::nullopt;
  return *a + b;
}

std::optional<long> Sum(const std::optional<long>& a, const std::optional<long>& b) {
  if (!a || !b) return std::nullopt;
  return *a + *b;
}

std::optional<double> NumberOfText(std::string_view text) {
  const std::string t = TrimBlanks(text);
  if (t.empty()) return std::nullopt;
  errno = 0;
  char* end = nullptr;
  const double v = std::strtod(t.c_str(), &end);
  if (errno != 0 || end != t.c_str() + t.size() || !std::isfinite(v)) return std::nullopt;
  return v;
}

std::optional<bool> BoolOfText(std::string_view text) {
  const std::string t = TrimBlanks(text);
  // Besides True and False, Access writes its own boolean constants into a
  // default value; they mean what they say.
  if (EqualsNoCase(t, "True") || EqualsNoCase(t, "Yes") || EqualsNoCase(t, "On")) return true;
  if (EqualsNoCase(t, "False") || EqualsNoCase(t, "No") || EqualsNoCase(t, "Off")) return false;
  if (auto n = NumberOfText(t)) return *n != 0;
  return std::nullopt;
}

std::optional<std::string> AbsText(std::string_view text) {
  auto n = NumberOfText(text);
  if (!n) return std::nullopt;
  return DecimalText(std::fabs(*n));
}

std::optional<std::string> ExtentOf(const DesignObject& o, std::string_view property) {
  auto v = o.Real(property);
  if (!v) return std::nullopt;
  return Extent(*v);
}

void AddExtentLines(std::string& text, const DesignObject& o) {
  AddLine(text, "_ExtentX = ", ExtentOf(o, "Width"));
  AddLine(text, "_ExtentY = ", ExtentOf(o, "Height"));
}

void AddBoxLines(std::string& text, const FormWriter& w, const ControlDesign& c) {
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
}

void AddTabBoxLines(std::string& text, const FormWriter& w, const ControlDesign& c) {
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddTabStopLine(text, c);
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
}

void AddHelpLines(std::string& text, const DesignObject& o) {
  AddLine(text, "HelpContextID = ", ValueText(o, "HelpContextID"));
  AddTipLine(text, o);
  AddTagLine(text, o);
}

void AddColorLines(std::string& text, const DesignObject& o) {
  AddLine(text, "BackColor= &H", Hex(o, "BackColor"), "&");
  AddLine(text, "ForeColor= &H", Hex(o, "ForeColor"), "&");
}

void AddAlignmentLine(std::string& text, const FormWriter& w, const ControlDesign& c) {
  auto align = c.Number("TextAlign");
  const auto& map = w.Text().AlignmentMap;
  if (!align || *align <= 0 || *align >= static_cast<long>(map.size())) return;
  AddLine(text, "Alignment =" + std::to_string(map[static_cast<size_t>(*align)]));
}

bool IsTrueOrUnread(const std::optional<bool>& v) { return !v || *v; }
bool IsZeroOrUnread(const std::optional<long>& v) { return !v || *v == 0; }

bool HasPicture(const ControlDesign& c) {
  auto bytes = c.Bytes("PictureData");
  return !bytes || !bytes->empty();
}

std::optional<std::string> PictureLine(FormWriter& w, const std::string& holder,
                                       const ControlDesign& c) {
  const std::string offset = ExtractPicture(w, holder, c.Name(), false);
  if (offset.empty()) return std::nullopt;
  return "Picture = \"" + w.Session().Names.Name(ComponentRole::Form, w.Text().OwnerFormName).File +
         ".frx\":" + offset;
}

std::string PictureHolder(const ControlDesign& c) {
  const ControlDesign* parent = c.ParentControl();
  if (!parent) return c.Parent().Name();
  return parent->Parent().Name();
}

}  // namespace morvane
