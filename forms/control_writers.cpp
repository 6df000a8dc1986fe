// The control writers of the plain families: labels, lines, images, command
// buttons, rectangles, bound object frames and custom controls. Each writes
// the lines of its table in order; a property that cannot be read loses its
// own line, and a guard over it counts as met. Text boxes are in
// control_writers_text.cpp, check boxes and option groups and buttons in
// control_writers_options.cpp.
#include "forms/control_writers.h"

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/record_source.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kThreedGuid = "{0BA686C6-F7D3-101A-993E-0000C0EF6F5E}#1.0#0";
constexpr const char* kThreedFile = "THREED32.OCX";

// The reason of an "AddToReport" record for a control that is converted
// only in part.

// The inside of the quoted string expression that gives `caption` in code:
// each line break as it was written (vbCrLf, or vbCr or vbLf alone) and,
// when the statement would be too long for one line of code, continued
// lines of pieces short enough for it.
std::string CaptionCode(const std::string& caption) {
  struct Part {
    std::string text;
    std::string_view lineBreak;
  };
  std::vector<Part> parts(1);
  for (size_t i = 0; i < caption.size(); ++i) {
    const char c = caption[i];
    if (c != '\r' && c != '\n') {
      parts.back().text += c;
      continue;
    }
    const bool crlf = c == '\r' && i + 1 < caption.size() && caption[i + 1] == '\n';
    parts.back().lineBreak = crlf ? "vbCrLf" : c == '\r' ? "vbCr" : "vbLf";
    if (crlf) ++i;
    parts.emplace_back();
  }
  constexpr size_t kLongest = 900;  // room for the statement's head
  constexpr size_t kPiece = 800;
  std::string flat;
  for (const Part& p : parts) {
    flat += EscapeQuotes(p.text);
    if (!p.lineBreak.empty()) flat += "\" & " + std::string(p.lineBreak) + " & \"";
  }
  if (flat.size() <= kLongest) return flat;
  std::string code;
  for (const Part& p : parts) {
    const std::vector<std::string> pieces = QuotedPieces(EscapeQuotes(p.text), kPiece);
    for (size_t k = 0; k < pieces.size(); ++k) code += (k ? "\" & _\r\n\"" : "") + pieces[k];
    if (!p.lineBreak.empty()) code += "\" & " + std::string(p.lineBreak) + " & _\r\n\"";
  }
  return code;
}

// A label's caption holding a line break cannot stand in the form text; the
// form's load code sets it.
void AddLabelCaption(std::string& text, FormWriter& w, const ControlDesign& c) {
  ConversionSession& s = w.Session();
  auto caption = c.Text("Caption");
  if (caption && !HoldsLineBreak(*caption)) {
    AddLine(text, "Caption=\"" + EscapeQuotes(*caption) + "\"");
    return;
  }
  AddLine(text, "Caption=\"Caption set in Form_Load event\"");
  if (caption) AddHint(s, LabelCaptionHint{s.Form().CurrentControlName, CaptionCode(*caption)});
}

// A label whose caption the control it belongs to writes: one in an option
// group, or the label of an option button that stands on the form.
bool LabelBelongsToControl(const FormWriter& w, const ControlDesign& c) {
  if (ParentIsCurrentForm(w, c)) return false;
  const ControlDesign* parent = c.ParentControl();
  if (!parent) return false;
  if (parent->ControlType() == kOptionGroup) return true;
  if (parent->ControlType() != kOptionButton) return false;
  // A button that stands on the form or on a tab page writes its label.
  const ControlDesign* holder = parent->ParentControl();
  return holder == nullptr || holder->ControlType() == kPage;
}

// The picture of a command button is looked up on the top form, or in a
// subform pass on the button's holder.
std::string ButtonPictureHolder(const FormWriter& w, const ControlDesign& c) {
  if (!w.Text().InSubform) return w.Text().OwnerFormName;
  return PictureHolder(c);
}

}  // namespace

void WriteLabel(FormWriter& w) {
  const ControlDesign* current = w.Text().CurrentControl;
  if (!current || LabelBelongsToControl(w, *current)) return;
  const ControlDesign& c = *BeginControl(w);
  std::string text = OpenControlText(w, "Begin VB.Label ");
  AddLine(text, "BackColor= &H", Hex(c, "BackColor"), "&");
  if (IsZeroOrUnread(c.Number("BackStyle"))) AddLine(text, "BackStyle=0");
  AddLine(text, IsZeroOrUnread(c.Number("BorderStyle")) ? "BorderStyle=0" : "BorderStyle=1");
  AddLabelCaption(text, w, c);
  AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
  AddFontLines(text, c);
  AddAlignmentLine(text, w, c);
  AddBoxLines(text, w, c);
  AddVisibleLine(text, c);
  AddTipLine(text, c);
  AddTagLine(text, c);
  CloseControl(w, std::move(text));
  // A label's events are generated as an image's.
  if (ParentIsCurrentForm(w, c)) AddControlHint(w, c, ControlEventKind::Image);
}

void WriteLineControl(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  std::string text = OpenControlText(w, "Begin VB.Line ");
  AddLine(text, "BorderColor =  &H", Hex(c, "BorderColor"), "&");
  if (auto width = c.Number("BorderWidth"); width && *width > 0)
    AddLine(text, "BorderWidth = ", width);
  // A line has only its end points; a slanted line runs from the top right
  // corner of its box, so the two X values change places.
  const bool slant = IsTrueOrUnread(c.Flag("LineSlant"));
  const auto left = w.ControlLeft(c);
  const auto top = w.ControlTop(c);
  AddLine(text, slant ? "X2 =" : "X1 =", left);
  AddLine(text, slant ? "X1 =" : "X2 =", Sum(left, c.Number("Width")));
  AddLine(text, "Y1 =", top);
  AddLine(text, "Y2 =", Sum(top, c.Number("Height")));
  AddVisibleLine(text, c);
  CloseControl(w, std::move(text));
}

void WriteImage(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  std::string text = OpenControlText(w, "Begin VB.PictureBox ");
  AddFontLines(text, c);
  AddLine(text, "Height = ", Sum(c.Number("Height"), w.Text().Place.SectionOffset));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "ScaleHeight = 6180");
  AddLine(text, "ScaleWidth = 7410");
  if (IsZeroOrUnread(c.Number("BorderStyle"))) AddLine(text, "BorderStyle = 0");
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddTabStopLine(text, c);
  AddEnabledLine(text, c);
  AddTipLine(text, c);
  AddTagLine(text, c);
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddVisibleLine(text, c);
  if (HasPicture(c)) AddLine(text, "", PictureLine(w, PictureHolder(c), c));
  FinishControl(w, c, std::move(text), ControlEventKind::Image);
}

void WriteCommandButton(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  ConversionSession& s = w.Session();
  std::string text;
  const bool picture = HasPicture(c);
  auto caption = c.Text("Caption");
  std::optional<std::string> shown;
  if (caption) shown = JoinLines(EscapeQuotes(*caption));
  // A coloured caption needs the Sheridan button; a picture needs Style 1
  // of the plain one.
  auto fore = c.Number("ForeColor");
  if ((!fore || *fore > 0) && !picture) {
    w.AddComponent(kThreedGuid, kThreedFile);
    AddLine(text, "Begin Threed.SSCommand " + s.Form().CurrentControlName);
    AddLine(text, "_Version = 65536");
    AddLine(text, "_StockProps = 78");
    AddLine(text, "ForeColor= &H", Hex(c, "ForeColor"), "&");
    AddLine(text, "Caption = \"", shown, "\"");
    AddExtentLines(text, c);
    AddFontLines(text, c, true);
    AddLine(text, "AutoSize = 0");
  } else {
    AddLine(text, "Begin VB.CommandButton " + s.Form().CurrentControlName);
    AddFontLines(text, c);
    if (picture) {
      if (auto line = PictureLine(w, ButtonPictureHolder(w, c), c)) {
        AddLine(text, *line);
        // The tag keeps the caption that the picture button does not show.
        auto tag = c.Text("Tag");
        if (!tag || tag->empty()) AddLine(text, "Tag =\"", shown, "\"");
      }
      AddLine(text, "Style = 1");
    } else {
      AddTagLine(text, c);
      AddLine(text, "Caption = \"", shown, "\"");
    }
  }
  AddLine(text, "Height = ", ValueText(c, "Height"));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  AddVisibleLine(text, c);
  if (IsTrueOrUnread(c.Flag("Default"))) AddLine(text, "Default = -1");
  if (IsTrueOrUnread(c.Flag("Cancel"))) AddLine(text, "Cancel = -1");
  AddTipLine(text, c);
  AddEnabledLine(text, c);
  AddTabStopLine(text, c);
  FinishControl(w, c, std::move(text), ControlEventKind::Button);
}

void WriteShape(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  std::string text = OpenControlText(w, "Begin VB.Shape ");
  AddVisibleLine(text, c);
  AddBoxLines(text, w, c);
  AddLine(text, "FillColor = &H", Hex(c, "BackColor"), "&");
  AddLine(text, IsZeroOrUnread(c.Number("BackStyle")) ? "FillStyle = 1" : "FillStyle = 0");
  AddLine(text, "BorderStyle = ", ValueText(c, "BorderStyle"));
  AddLine(text, "BorderColor = &H", Hex(c, "BorderColor"), "&");
  CloseControl(w, std::move(text));
}

void WriteBoundObjectFrame(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  std::string text = OpenControlText(w, "Begin  VB.OLE ");
  AddVisibleLine(text, c);
  AddBoxLines(text, w, c);
  AddLine(text, "HelpContextID = ", ValueText(c, "HelpContextID"));
  std::optional<std::string> source;
  if (const FormDesign* form = CurrentFormOf(w)) source = form->Text("RecordSource");
  if (!source || !source->empty()) {
    AddLine(text, "DataSource =\"" + DataControlName(w) + "\"");
    AddLine(text, "DataField =\"", Escaped(c.Text("ControlSource")), "\"");
  }
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddTabStopLine(text, c);
  AddEnabledLine(text, c);
  AddTipLine(text, c);
  AddTagLine(text, c);
  CloseControl(w, std::move(text), 1);
  AddControlHint(w, c, ControlEventKind::BoundObjectFrame);
  AddReportHint(w, kReasonPartlyConverted);
}

void WriteCustomControl(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  ConversionSession& s = w.Session();
  const std::string vbClass = MapCustomControl(s, c.Text("Class").value_or(""), &w);
  AddReportHint(w, kReasonPartlyConverted);
  // An Access class without a Visual Basic counterpart is reported and
  // left out of the form.
  if (vbClass.empty()) return;
  std::string text = OpenControlText(w, "Begin " + vbClass + " ");
  AddTabBoxLines(text, w, c);
  AddLine(text, "Visible = ", ValueText(c, "Visible"));
  AddEnabledLine(text, c);
  AddHelpLines(text, c);
  CloseControl(w, std::move(text), 1);
}

}  // namespace morvane
