// The user control of a continuous subform: its detail controls, written as
// the form writer writes them, in the control's own space, and a property
// for each bound text box and check box.
#include "cforms/user_control_writer.h"

#include <set>

#include "design/control_types.h"
#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/picture_extraction.h"
#include "forms/subform_writers.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kDatePickerObject =
    "Object=\"{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCT2.OCX\"";
// A property whose name differs from its field.
constexpr int kAlignmentMap[] = {3, 0, 2, 1};

// The date formats a date picker shows, and its Format value for each.
struct DateFormat {
  const char* Access;
  const char* Picker;
};
constexpr DateFormat kDateFormats[] = {
    {"Short Date", "22937601"},  {"m/d/yy", "22937601"},    {"mm/dd/yy", "22937601"},
    {"Medium Time", "22872066"}, {"Long Time", "22872066"}, {"Long Date", "22937600"},
};

std::string Quoted(const std::optional<std::string>& text) {
  return "\"" + EscapeQuotes(JoinLines(text.value_or(""))) + "\"";
}

class UserControlWriter {
 public:
  UserControlWriter(ConversionSession& s, DesignStore& store, const FormDesign& f,
                    const std::string& className, const std::string& ctxFile)
      : s_(s), f_(f), className_(className), ctxFile_(ctxFile), pictures_(s, store) {
    // The properties have their fields' names; no control takes one.
    for (const ControlDesign& k : f.Controls())
      if (k.Section() == 0 && (k.ControlType() == kTextBox || k.ControlType() == kCheckBox ||
                               k.ControlType() == kComboBox))
        if (auto source = k.Text("ControlSource");
            source && !source->empty() && (*source)[0] != '=')
          used_.push_back(RepeaterPropertyName(*source));
  }

  UserControlText Write() {
    UserControlText out;
    const SectionDesign* detail = f_.Section(0);
    const std::optional<std::string> height =
        detail ? ValueText(*detail, "Height") : std::optional<std::string>();
    const std::optional<std::string> width = ValueText(f_, "Width");
    std::string text;
    AddLine(text, "VERSION 5.00");
    const size_t objects = text.size();
    AddLine(text, "Begin VB.UserControl " + className_);
    AddLine(text, "ClientHeight = ", height);
    AddLine(text, "ClientLeft = 0");
    AddLine(text, "ClientTop = 0");
    AddLine(text, "ClientWidth = ", width);
    AddLine(text, "ScaleHeight = ", height);
    AddLine(text, "ScaleWidth = ", width);
    if (detail) AddLine(text, "BackColor = &H", Hex(*detail, "BackColor"), "&");
    code_ = "Option Explicit\r\n";
    for (const ControlDesign& k : f_.Controls()) {
      if (k.Section() != 0) continue;
      bound_ = false;
      std::string control;
      if (!WriteControl(k, control)) {
        if (!WrittenByHolder(k)) out.LeftOut.push_back(k.TypeName() + " " + k.Name());
        continue;
      }
      text += control;
      if (bound_) AddProperty(k, &out.Records);
    }
    AddLine(text, "End");
    out.Records.insert(out.Records.end(), rows_.begin(), rows_.end());
    AddLine(text, "Attribute VB_Name = \"" + className_ + "\"");
    AddLine(text, "Attribute VB_GlobalNameSpace = False");
    AddLine(text, "Attribute VB_Creatable = True");
    AddLine(text, "Attribute VB_PredeclaredId = False");
    AddLine(text, "Attribute VB_Exposed = True");
    if (usesDatePicker_) text.insert(objects, std::string(kDatePickerObject) + "\r\n");
    out.Text = text + code_;
    return out;
  }

 private:
  // Controls the user control holds, by type; false for a type it leaves
  // out or a control its holder writes.
  bool WriteControl(const ControlDesign& k, std::string& text) {
    switch (k.ControlType()) {
      case kLabel:
        return WriteLabel(k, text);
      case kLine:
        return WriteLine(k, text);
      case kCommandButton:
        return WriteButton(k, text);
      case kOptionButton:
        return IsStandAlone(k) && WriteOption(k, text);
      case kToggleButton:
        return IsStandAlone(k) && WriteOption(k, text);
      case kCheckBox:
        return ParentType(k) != kOptionGroup && WriteCheckBox(k, text);
      case kOptionGroup:
        return WriteGroup(k, text);
      case kTextBox:
        return WriteTextBox(k, text);
      case kComboBox:
        return WriteComboBox(k, text);
      default:
        return false;
    }
  }

  // A label of an option group or of an option button, a member of a group:
  // written with its holder.
  static bool WrittenByHolder(const ControlDesign& k) {
    const ControlDesign* holder = k.ParentControl();
    if (!holder) return false;
    const int type = holder->ControlType();
    if (type == kOptionGroup) return true;
    return k.ControlType() == kLabel && (type == kOptionButton || type == kToggleButton);
  }

  bool IsStandAlone(const ControlDesign& k) const { return k.ParentControl() == nullptr; }

  // UniqueControlName: the control's name made unique among the names of
  // this user control; a text box or check box named like its field gives
  // the field's name to the property.
  std::string UniqueName(const ControlDesign& k) {
    std::string name = SafeName(k.Name()).substr(0, 40);
    const auto source = k.Text("ControlSource");
    if (source && EqualsNoCase(k.Name(), *source)) {
      if (k.ControlType() == kTextBox) name = ("txt" + name).substr(0, 40);
      if (k.ControlType() == kCheckBox) name = ("chk" + name).substr(0, 40);
    }
    if (!name.empty() && (name[0] == '_' || (name[0] >= '0' && name[0] <= '9'))) name = "A" + name;
    if (name.empty()) name = "A";
    int counter = 0;
    for (size_t i = 0; i < used_.size(); ++i) {
      if (counter > 26) {
        name = name.substr(0, 38) + "A";
        counter = 0;
      }
      if (EqualsNoCase(used_[i], name)) {
        name += static_cast<char>(65 + counter);
        ++counter;
        i = static_cast<size_t>(-1);
      }
    }
    used_.push_back(name);
    name_ = name;
    return name;
  }

  void AddAlignment(std::string& text, const ControlDesign& k) {
    auto align = k.Number("TextAlign");
    if (align && *align > 0 && *align < 4)
      AddLine(text, "Alignment =" + std::to_string(kAlignmentMap[*align]));
  }

  void AddBox(std::string& text, const ControlDesign& k) {
    AddLine(text, "Height = ", ValueText(k, "Height"));
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddLine(text, "Width = ", ValueText(k, "Width"));
  }

  void AddTipTag(std::string& text, const ControlDesign& k) {
    if (auto tip = k.Text("ControlTipText"); tip && !tip->empty())
      AddLine(text, "ToolTipText =" + Quoted(tip));
    if (auto tag = k.Text("Tag"); tag && !tag->empty()) AddLine(text, "Tag =" + Quoted(tag));
  }

  // The caption, width and colours an option button takes from its label.
  void AddLabelOf(std::string& text, const ControlDesign& k) {
    for (const ControlDesign& l : f_.Controls()) {
      if (l.ControlType() != kLabel || l.ParentControl() != &k) continue;
      AddLine(text, "Caption =  " + Quoted(l.Text("Caption")));
      AddLine(text, "Width = ", Sum(l.Number("Width"), 270));
      AddLine(text, "BackColor= &H", Hex(l, "BackColor"), "&");
      AddLine(text, "ForeColor= &H", Hex(l, "ForeColor"), "&");
      return;
    }
  }

  std::optional<std::string> Picture(const ControlDesign& k) {
    if (!HasPicture(k)) return std::nullopt;
    const std::string offset = ExtractPicture(pictures_, f_.Name(), k.Name(), false);
    if (offset.empty()) return std::nullopt;
    return "Picture = \"" + ctxFile_ + "\":" + offset;
  }

  bool WriteLabel(const ControlDesign& k, std::string& text) {
    if (WrittenByHolder(k) || ParentType(k) == kPage) return false;
    AddLine(text, "Begin VB.Label " + UniqueName(k));
    AddLine(text, "BackColor= &H", Hex(k, "BackColor"), "&");
    if (k.Number("BackStyle") == 0) AddLine(text, "BackStyle=0");
    AddLine(text, k.Number("BorderStyle").value_or(0) == 0 ? "BorderStyle=0" : "BorderStyle=1");
    AddLine(text, "Caption=" + Quoted(k.Text("Caption")));
    AddLine(text, "ForeColor= &H", Hex(k, "ForeColor"), "&");
    AddFontLines(text, k);
    AddAlignment(text, k);
    AddBox(text, k);
    AddVisibleLine(text, k);
    AddTipTag(text, k);
    AddLine(text, "End");
    return true;
  }

  bool WriteLine(const ControlDesign& k, std::string& text) {
    AddLine(text, "Begin VB.Line " + UniqueName(k));
    AddLine(text, "BorderColor =  &H", Hex(k, "BorderColor"), "&");
    if (auto width = k.Number("BorderWidth"); width && *width > 0)
      AddLine(text, "BorderWidth = ", width);
    AddLine(text, "X1 =", ValueText(k, "Left"));
    AddLine(text, "X2 =", Sum(k.Number("Left"), k.Number("Width")));
    AddLine(text, "Y1 =", ValueText(k, "Top"));
    AddLine(text, "Y2 =", Sum(k.Number("Top"), k.Number("Height")));
    AddVisibleLine(text, k);
    AddLine(text, "End");
    return true;
  }

  bool WriteButton(const ControlDesign& k, std::string& text) {
    AddLine(text, "Begin VB.CommandButton " + UniqueName(k));
    AddFontLines(text, k);
    const std::optional<std::string> picture = Picture(k);
    if (picture) {
      AddLine(text, *picture);
      if (k.Text("Tag").value_or("").empty())
        AddLine(text, "Tag =" + Quoted(k.Text("Caption")));
      else
        AddLine(text, "Tag =" + Quoted(k.Text("Tag")));
      AddLine(text, "Style = 1");
    } else {
      if (auto tag = k.Text("Tag"); tag && !tag->empty()) AddLine(text, "Tag =" + Quoted(tag));
      AddLine(text, "Caption = " + Quoted(k.Text("Caption")));
    }
    AddLine(text, "Height = ", ValueText(k, "Height"));
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "TabIndex = ", ValueText(k, "TabIndex"));
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddLine(text, "Width = ", ValueText(k, "Width"));
    AddLine(text, "HelpContextID = ", ValueText(k, "HelpContextID"));
    AddVisibleLine(text, k);
    if (k.Flag("Default").value_or(false)) AddLine(text, "Default = -1");
    if (k.Flag("Cancel").value_or(false)) AddLine(text, "Cancel = -1");
    if (auto tip = k.Text("ControlTipText"); tip && !tip->empty())
      AddLine(text, "ToolTipText =" + Quoted(tip));
    AddEnabledLine(text, k);
    AddTabStopLine(text, k);
    AddLine(text, "End");
    return true;
  }

  void AddOptionValue(std::string& text, const ControlDesign& k) {
    auto value = k.Text("DefaultValue");
    if (!value || value->empty() || (*value)[0] == '=') return;
    if (auto b = BoolOfText(*value)) AddLine(text, *b ? "Value = -1" : "Value = 0");
  }

  bool WriteOption(const ControlDesign& k, std::string& text) {
    AddLine(text, "Begin VB.OptionButton " + UniqueName(k));
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "TabIndex = ", ValueText(k, "TabIndex"));
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddTipTag(text, k);
    AddVisibleLine(text, k);
    if (k.ControlType() == kToggleButton) {
      AddLine(text, "Caption =  " + Quoted(k.Text("Caption")));
      AddLine(text, "ForeColor= &H", Hex(k, "ForeColor"), "&");
      AddLine(text, "Width = ", ValueText(k, "Width"));
      AddLine(text, "Height = ", ValueText(k, "Height"));
      AddLine(text, "Style = 1");
      if (auto picture = Picture(k)) AddLine(text, *picture);
    } else {
      AddLine(text, "Height = 210");
      AddLabelOf(text, k);
    }
    AddOptionValue(text, k);
    AddLine(text, "End");
    return true;
  }

  bool WriteCheckBox(const ControlDesign& k, std::string& text) {
    AddLine(text, "Begin VB.CheckBox " + UniqueName(k));
    if (auto caption = k.Text("Caption")) AddLine(text, "Caption =  " + Quoted(caption));
    auto value = k.Text("DefaultValue");
    if (value && !value->empty() && (*value)[0] != '=') {
      if (auto b = BoolOfText(*value)) AddLine(text, *b ? "Value = 1" : "Value = 0");
    } else if (value && value->empty()) {
      AddLine(text, k.Flag("TripleState").value_or(false) ? "Value = 2" : "Value = 0");
    }
    AddFontLines(text, k);
    AddLine(text, "Height = ", ValueText(k, "Height"));
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "TabIndex = ", ValueText(k, "TabIndex"));
    AddTabStopLine(text, k);
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddLine(text, "Width = ", ValueText(k, "Width"));
    AddLine(text, "HelpContextID = ", ValueText(k, "HelpContextID"));
    AddTipTag(text, k);
    AddEnabledLine(text, k);
    AddVisibleLine(text, k);
    AddDataField(text, k);
    AddLine(text, "End");
    return true;
  }

  bool WriteGroup(const ControlDesign& k, std::string& text) {
    const std::string name = UniqueName(k);
    AddLine(text, "Begin VB.Frame grp" + name);
    for (const ControlDesign& l : f_.Controls()) {
      if (l.ControlType() != kLabel || l.ParentControl() != &k) continue;
      AddLine(text, "Caption =  " + Quoted(l.Text("Caption")));
      AddLine(text, "BackColor= &H", Hex(l, "BackColor"), "&");
      AddLine(text, "ForeColor= &H", Hex(l, "ForeColor"), "&");
      break;
    }
    AddLine(text, "Height = ", Sum(k.Number("Height"), 150));
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "TabIndex = ", ValueText(k, "TabIndex"));
    AddEnabledLine(text, k);
    AddLine(text, "HelpContextID = ", ValueText(k, "HelpContextID"));
    AddTipTag(text, k);
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddLine(text, "Width = ", ValueText(k, "Width"));
    AddVisibleLine(text, k);
    const auto left = k.Number("Left"), top = k.Number("Top");
    for (const ControlDesign& m : f_.Controls()) {
      if (m.ParentControl() != &k) continue;
      const int type = m.ControlType();
      if (type != kOptionButton && type != kCheckBox && type != kToggleButton) continue;
      AddLine(text, "Begin VB.OptionButton " + name);
      if (type == kToggleButton) {
        AddLine(text, "Caption =  " + Quoted(m.Text("Caption")));
        AddLine(text, "ForeColor= &H", Hex(m, "ForeColor"), "&");
        AddLine(text, "Width = ", ValueText(m, "Width"));
        AddLine(text, "Height = ", ValueText(m, "Height"));
        AddLine(text, "Style = 1");
      } else {
        AddLine(text, "Height = 210");
      }
      if (auto l = m.Number("Left"); l && left)
        AddLine(text, "Left = " + std::to_string(50 + *l - *left));
      if (type == kToggleButton)
        if (auto picture = Picture(m)) AddLine(text, *picture);
      if (auto value = m.Text("OptionValue"))
        if (auto index = AbsText(*value)) AddLine(text, "Index = " + *index);
      AddLine(text, "TabIndex = 94");
      if (auto t = m.Number("Top"); t && top)
        AddLine(text, "Top = " + std::to_string(150 + *t - *top));
      AddTipTag(text, m);
      AddVisibleLine(text, m);
      if (type != kToggleButton) AddLabelOf(text, m);
      AddLine(text, "End");
    }
    AddLine(text, "End");
    return true;
  }

  bool DatePicker(const ControlDesign& k, std::string* format) const {
    if (s_.Options.IsVb5 || !s_.Options.DatePicker) return false;
    const std::string f = k.Text("Format").value_or("");
    for (const DateFormat& d : kDateFormats)
      if (f == d.Access) {
        *format = d.Picker;
        return true;
      }
    return false;
  }

  void AddDataField(std::string& text, const ControlDesign& k) {
    auto source = k.Text("ControlSource");
    if (!source || source->empty() || (*source)[0] == '=') return;
    AddLine(text, "DataField =\"" + RepeaterPropertyName(*source) + "\"");
    bound_ = true;
  }

  bool WriteTextBox(const ControlDesign& k, std::string& text) {
    std::string format;
    picker_ = DatePicker(k, &format);
    const std::string name = UniqueName(k);
    if (picker_) {
      usesDatePicker_ = true;
      AddLine(text, "Begin MSComCtl2.DTPicker " + name);
      AddLine(text, "Left = ", ValueText(k, "Left"));
      AddLine(text, "Top = ", ValueText(k, "Top"));
      AddLine(text, "_Version = 393216");
      AddLine(text, "Width = ", ValueText(k, "Width"));
      AddLine(text, "_ExtentX = ", ValueText(k, "Width"));
      AddLine(text, "Height = ", ValueText(k, "Height"));
      AddLine(text, "_ExtentY = ", ValueText(k, "Height"));
      AddDataField(text, k);
      AddLine(text, "Format = " + format);
    } else {
      AddLine(text, "Begin VB.TextBox " + name);
      AddDataField(text, k);
      const bool flat = k.Number("SpecialEffect") == 0;
      AddLine(text, flat && k.Number("BorderStyle") == 0 ? "BorderStyle=0" : "BorderStyle=1");
      if (flat) AddLine(text, "Appearance=0");
      AddAlignment(text, k);
      AddBox(text, k);
      if (auto value = k.Text("DefaultValue"); value && !value->empty() && (*value)[0] != '=')
        AddLine(text, "Text = " + Quoted(value));
      if (k.Flag("EnterKeyBehavior").value_or(false)) AddLine(text, "MultiLine = -1");
      AddLine(text, std::string("Locked =") + (k.Flag("Locked").value_or(false) ? "-1" : "0"));
      AddLine(text, "ScrollBars = ", ValueText(k, "ScrollBars"));
    }
    // A transparent text box shows the detail's colour.
    const SectionDesign* detail = f_.Section(0);
    AddFieldControlTail(
        text, k,
        k.Number("BackStyle") == 0 && detail ? *detail : static_cast<const DesignObject&>(k));
    return true;
  }

  // The lines a text box and a combo box end with: state, tab order, colours
  // (the back colour `back`'s), font, tip and tag, visibility.
  void AddFieldControlTail(std::string& text, const ControlDesign& k, const DesignObject& back) {
    AddEnabledLine(text, k);
    AddLine(text, "HelpContextID = ", ValueText(k, "HelpContextID"));
    AddTabStopLine(text, k);
    AddLine(text, "TabIndex =", ValueText(k, "TabIndex"));
    AddLine(text, "BackColor= &H", Hex(back, "BackColor"), "&");
    AddLine(text, "ForeColor= &H", Hex(k, "ForeColor"), "&");
    AddFontLines(text, k);
    AddTipTag(text, k);
    AddVisibleLine(text, k);
    AddLine(text, "End");
  }

  // A combo box of the repeated row shows and edits its field's value as
  // the text of a drop-down combo; its list, which each row would fill
  // again, is not filled, and a row says so.
  bool WriteComboBox(const ControlDesign& k, std::string& text) {
    picker_ = false;
    const std::string name = UniqueName(k);
    AddLine(text, "Begin VB.ComboBox " + name);
    AddDataField(text, k);
    AddLine(text, "Left = ", ValueText(k, "Left"));
    AddLine(text, "Top = ", ValueText(k, "Top"));
    AddLine(text, "Width = ", ValueText(k, "Width"));
    AddFieldControlTail(text, k, k);
    rows_.push_back(ReportRowHint{className_, kReasonReview, name, 0,
                                  "shows its field's value as text; its list is not filled in "
                                  "the repeated row",
                                  ""});
    return true;
  }

  // The change handler and the property of a bound control. The property
  // has the field's name; where that is no identifier, the analysis says so.
  void AddProperty(const ControlDesign& k, std::vector<HintRecord>* records) {
    const std::string field = k.Text("ControlSource").value_or("");
    const std::string prop = RepeaterPropertyName(field);
    if (!properties_.insert(ToLower(prop)).second) return;  // a second control of the field
    if (prop != field)
      records->push_back(ReportRowHint{className_, kReasonPropertyRenamed, name_, 0, "", ""});
    const std::string comment = "    'PropertyChanged \"" + prop + "\"";
    const bool check = k.ControlType() == kCheckBox;
    std::vector<std::string> lines = {"Private Sub " + name_ + (check ? "_Click()" : "_Change()"),
                                      comment, "End Sub", ""};
    if (check) {
      lines.insert(lines.end(),
                   {"Public Property Get " + prop + "() As Boolean",
                    "Attribute " + prop + ".VB_MemberFlags = \"14\"",
                    "    " + prop + " = " + name_ + ".Value = vbChecked", "End Property", "",
                    "Public Property Let " + prop + "(ByVal bNewValue As Boolean)",
                    "    " + name_ + ".Value = IIf(bNewValue, vbChecked, vbUnchecked)", comment,
                    "End Property", ""});
    } else {
      const std::string member = picker_ ? ".Value" : ".Text";
      lines.insert(
          lines.end(),
          {"Public Property Get " + prop + "() As Variant",
           "Attribute " + prop + ".VB_MemberFlags = \"14\"", "    " + prop + " = " + name_ + member,
           "End Property", "", "Public Property Let " + prop + "(ByVal vNewValue As Variant)",
           "    " + name_ + member + " = vNewValue", comment, "End Property", ""});
    }
    for (const std::string& line : lines) code_ += line + "\r\n";
  }

  std::vector<HintRecord> rows_;  // analysis rows of the controls written
  ConversionSession& s_;
  const FormDesign& f_;
  std::string className_;
  std::string ctxFile_;
  FormWriter pictures_;  // extracts pictures into the current state's records
  std::vector<std::string> used_;
  std::set<std::string> properties_;
  std::string name_;  // the name of the control written last
  std::string code_;
  bool bound_ = false;
  bool picker_ = false;
  bool usesDatePicker_ = false;
};

}  // namespace

UserControlText WriteUserControl(ConversionSession& s, DesignStore& store, const FormDesign& f,
                                 const std::string& className, const std::string& ctxFile) {
  return UserControlWriter(s, store, f, className, ctxFile).Write();
}

}  // namespace morvane
