// The writers of the option family: check boxes, option groups with their
// members, and option buttons and toggles that stand on the form. A group
// becomes a frame "grp<name>" holding its buttons as one control array
// indexed by their option values, or a Sheridan option set when the options
// ask for one on a bound form.
#include <set>
#include <string_view>

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/control_writers.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

// The Sheridan option set comes with the Sheridan controls the list options
// chose: the OLE DB edition with ListboxType 3, else the data edition.
constexpr Component kOptionSetOleDb = {"{8D650146-6025-11D1-BC40-0000C042AEC0}#3.0#0",
                                       "ssdw3a32.ocx"};
constexpr Component kOptionSetData = {"{D981334D-B212-11CE-AE8C-0000C0B99395}#2.0#0",
                                      "SSDATA32.OCX"};

// The value of a check box or option button whose default value is plain:
// true and false as the control writes them.
struct CheckValues {
  const char* True;
  const char* False;
};
constexpr CheckValues kCheckBoxValues = {"Value = 1", "Value = 0"};
constexpr CheckValues kOptionButtonValues = {"Value = -1", "Value = 0"};

// The default value: an expression goes to the form's load code, a plain
// value becomes a Value line. Returns whether the value was empty (and so
// left to the caller), an unreadable value counting as an expression.
bool AddPlainValue(std::string& text, FormWriter& w, const ControlDesign& c,
                   const CheckValues& values) {
  auto value = c.Text("DefaultValue");
  if (!value || (!value->empty() && (*value)[0] == '=')) {
    AddDefaultValueHint(w, c, ".Value");
    return false;
  }
  if (value->empty()) return true;
  if (auto b = BoolOfText(*value)) AddLine(text, *b ? values.True : values.False);
  return false;
}

// "ToolTipText" and "Tag" of a group member, escaped but kept as they are.
void AddMemberTipAndTag(std::string& text, const ControlDesign& k) {
  if (auto tip = k.Text("ControlTipText"); tip && !tip->empty())
    AddLine(text, "ToolTipText =\"" + EscapeQuotes(*tip) + "\"");
  if (auto tag = k.Text("Tag"); tag && !tag->empty())
    AddLine(text, "Tag =\"" + EscapeQuotes(*tag) + "\"");
}

// Caption, width and colours that an option button takes from its attached
// label; `prefix` addresses a button of a Sheridan option set, which has no
// width of its own.
void AddLabelLines(std::string& text, const ControlDesign* label, const std::string& prefix) {
  if (!label) return;
  AddLine(text, prefix + "Caption =  \"", Escaped(OneLine(*label, "Caption")), "\"");
  if (prefix.empty()) AddLine(text, "Width = ", Sum(label->Number("Width"), 270));
  AddColorLines(text, *label);
}

long BreakTop(const FormTextSet& t) {
  if (t.Place.PageIndex < 0 ||
      static_cast<size_t>(t.Place.PageIndex) >= t.Place.PageBreakTops.size())
    return 0;
  return t.Place.PageBreakTops[static_cast<size_t>(t.Place.PageIndex)];
}

// The position of a member inside its group's frame.
struct MemberPlace {
  std::optional<long> Left;  // k.Left - Left + SubformLeft + 50
  std::optional<long> Top;   // k.Top - Top + 150 + SubformTop - PageBreakTops(PageIndex)
};

MemberPlace PlaceInGroup(const FormTextSet& t, const ControlDesign& group, const ControlDesign& k) {
  MemberPlace place;
  auto left = k.Number("Left"), groupLeft = group.Number("Left");
  auto top = k.Number("Top"), groupTop = group.Number("Top");
  if (left && groupLeft) place.Left = *left - *groupLeft + t.Place.SubformLeft + 50;
  if (top && groupTop) place.Top = *top - *groupTop + 150 + t.Place.SubformTop - BreakTop(t);
  return place;
}

// The toggle button's own caption, colour, size and style.
void AddToggleLines(std::string& text, const ControlDesign& k) {
  AddLine(text, "Caption =  \"", Escaped(OneLine(k, "Caption")), "\"");
  AddLine(text, "ForeColor= &H", Hex(k, "ForeColor"), "&");
  AddLine(text, "Width = ", ValueText(k, "Width"));
  AddLine(text, "Height = ", ValueText(k, "Height"));
  AddLine(text, "Style = 1");
}

void AddTogglePicture(std::string& text, FormWriter& w, const ControlDesign& k) {
  if (HasPicture(k)) AddLine(text, "", PictureLine(w, w.Text().OwnerFormName, k));
}

// The members of an option group, in the form's order.
class GroupMembers {
 public:
  GroupMembers(FormWriter& w, const ControlDesign& group, std::string& text)
      : w_(w), s_(w.Session()), t_(w.Text()), group_(group), text_(text) {
    auto source = CurrentFormOf(w) ? CurrentFormOf(w)->Text("RecordSource") : std::nullopt;
    sheridan_ = s_.Options.SsOptionSet && (!source || !source->empty());
  }

  void Write() {
    const FormDesign* form = CurrentFormOf(w_);
    if (!form) return;
    const std::string groupName = group_.Name();
    for (const ControlDesign& k : form->Controls()) {
      if (k.Parent().Name() != groupName) continue;
      const int type = k.ControlType();
      if (type == kOptionButton || type == kCheckBox)
        WriteButton(k);
      else if (type == kToggleButton)
        WriteToggle(k);
    }
    if (!optionSet_.empty()) {
      AddLine(text_, "NumberOfButtons =" + std::to_string(n_));
      AddLine(text_, "Cols =" + std::to_string(cols_));
      AddLine(text_, "End");
    }
  }

 private:
  void WriteButton(const ControlDesign& k) {
    const std::string& name = s_.Form().CurrentControlName;
    if (sheridan_) {
      const Component& set = s_.Options.ListboxType == 3 ? kOptionSetOleDb : kOptionSetData;
      w_.AddComponent(set);
      if (optionSet_.empty()) {
        WriteSetHead(k);
        optionSet_ = "a";
      }
    } else {
      optionSet_.clear();
      const MemberPlace place = PlaceInGroup(t_, group_, k);
      AddLine(text_, "Begin VB.OptionButton " + name);
      AddLine(text_, "Height = 210");
      AddLine(text_, "Left = ", place.Left);
      AddLine(text_, "Index = ", IndexOf(k));
      AddLine(text_, "TabIndex = 94");
      AddLine(text_, "Top = ", place.Top);
      AddMemberTipAndTag(text_, k);
      AddVisibleLine(text_, k);
    }
    ++n_;
    const std::string prefix =
        optionSet_.empty() ? std::string() : "Buttons.Button(" + std::to_string(n_) + ").";
    AddLabelLines(text_, AttachedLabel(w_, k.Name()), prefix);
    if (prefix.empty()) {
      AddLine(text_, "End");
      return;
    }
    AddLine(text_, prefix + "OptionValue=\"", ValueText(k, "OptionValue"), "\"");
    // Buttons on the first button's row make the set's columns.
    const long top = k.Number("Top").value_or(0);
    if (firstTop_ == 0) {
      firstTop_ = top;
      cols_ = 1;
    } else if (top == firstTop_) {
      ++cols_;
    }
  }

  // The head of a Sheridan option set, bound to the group's field.
  void WriteSetHead(const ControlDesign& k) {
    AddLine(text_, "Begin SSDataWidgets_A.SSDBOptSet " + s_.Form().CurrentControlName);
    AddLine(text_, "DataSource =\"" + DataControlName(w_) + "\"");
    AddLine(text_, "DataField =\"", Escaped(group_.Text("ControlSource")), "\"");
    AddLine(text_, "_ExtentX =3228");
    AddLine(text_, "_ExtentY =2461");
    AddLine(text_, "_Version =131072");
    auto left = k.Number("Left"), groupLeft = group_.Number("Left");
    if (left && groupLeft)
      AddLine(text_, "Left = " + std::to_string(*left - *groupLeft + t_.Place.SubformLeft +
                                                t_.Place.PageLeft + 50));
    AddLine(text_, "Index = " + std::to_string(n_));
    AddLine(text_, "TabIndex = 94");
    const long o =
        (group_.Section() == 0 || t_.InSubform || t_.InTabControl) ? t_.Place.SectionOffset : 0;
    auto top = k.Number("Top"), groupTop = group_.Number("Top");
    if (top && groupTop)
      AddLine(text_, "Top = " + std::to_string(*top - *groupTop + o + 150 + t_.Place.SubformTop -
                                               t_.Place.TabShift));
    AddVisibleLine(text_, k);
  }

  void WriteToggle(const ControlDesign& k) {
    const MemberPlace place = PlaceInGroup(t_, group_, k);
    AddLine(text_, "Begin VB.OptionButton " + s_.Form().CurrentControlName);
    AddToggleLines(text_, k);
    AddLine(text_, "Left = ", place.Left);
    AddTogglePicture(text_, w_, k);
    AddLine(text_, "Index = ", IndexOf(k));
    AddLine(text_, "TabIndex = 94");
    AddMemberTipAndTag(text_, k);
    AddLine(text_, "Top = ", place.Top);
    AddVisibleLine(text_, k);
    AddLine(text_, "End");
  }

  // Members share the group's control name and differ by Index, which is
  // their option value. Buttons that share a value (a group whose values
  // its code sets at run time) would share an Index, which Visual Basic does
  // not load: the later ones take the next free number, with a row.
  std::optional<std::string> IndexOf(const ControlDesign& k) {
    auto value = k.Text("OptionValue");
    if (!value) return std::nullopt;
    const std::optional<std::string> index = AbsText(*value);
    if (!index || usedIndexes_.insert(*index).second) return index;
    long next = 0;
    while (usedIndexes_.count(std::to_string(next))) ++next;
    const std::string given = std::to_string(next);
    usedIndexes_.insert(given);
    AddHint(s_,
            ReportRowHint{t_.OwnerFormName, kReasonReview, k.Name() + " OptionValue=" + *value, 0,
                          "its option value is another button's: it is button " + given + " of " +
                              s_.Form().CurrentControlName,
                          ""});
    return given;
  }

  FormWriter& w_;
  ConversionSession& s_;
  FormTextSet& t_;
  const ControlDesign& group_;
  std::string& text_;
  bool sheridan_ = false;
  std::string optionSet_;
  int n_ = 0;
  std::set<std::string> usedIndexes_;
  long firstTop_ = 0;
  int cols_ = 0;
};

// The group's field binds the member whose value it holds; the data control
// does that in code.
void AddGroupBindingHint(FormWriter& w, const ControlDesign& group) {
  ConversionSession& s = w.Session();
  auto source = group.Text("ControlSource");
  if (!source) return;
  if (!source->empty() && (*source)[0] == '=') {
    AddHint(s, DataControlEntryHint{DataControlName(w), s.Form().CurrentControlName + "(" +
                                                            source->substr(1) + ").value = true"});
  } else if (!source->empty()) {
    AddHint(s, DataControlEntryHint{DataControlName(w),
                                    s.Form().CurrentControlName + "(" + DataControlName(w) +
                                        ".recordset.Fields(\"" + *source + "\")-1).value = true"});
  }
}

// The group's default value selects a member in the form's load code.
void AddGroupDefaultHint(FormWriter& w, const ControlDesign& group) {
  ConversionSession& s = w.Session();
  auto value = group.Text("DefaultValue");
  if (!value || value->empty()) return;
  const bool expression = (*value)[0] == '=';
  auto index = AbsText(expression ? std::string_view(*value).substr(1) : std::string_view(*value));
  if (!index) return;
  AddHint(s, FormLoadLineHint{s.Form().CurrentControlName + "(" + *index + ").Value = True"});
}

}  // namespace

void WriteCheckBox(FormWriter& w) {
  const ControlDesign* current = w.Text().CurrentControl;
  if (!current) return;
  // The option group writes its own members.
  if (!ParentIsCurrentForm(w, *current) && ParentType(*current) == kOptionGroup) return;
  const ControlDesign& c = *BeginControl(w);
  std::string text = OpenControlText(w, "Begin VB.CheckBox ");
  AddLine(text, "Caption =  \"", Escaped(c.Text("Caption")), "\"");
  if (AddPlainValue(text, w, c, kCheckBoxValues))
    AddLine(text, IsTrueOrUnread(c.Flag("TripleState")) ? "Value = 2" : "Value = 0");
  AddFontLines(text, c);
  AddTabBoxLines(text, w, c);
  AddHelpLines(text, c);
  AddEnabledLine(text, c);
  AddVisibleLine(text, c);
  if (IsCalculated(c))
    AddCalculatedBinding(w, c, ".value");
  else
    AddBindingLines(text, w, c);
  FinishControl(w, c, std::move(text), ControlEventKind::CheckBox);
}

void WriteOptionGroup(FormWriter& w) {
  const ControlDesign* current = w.Text().CurrentControl;
  if (!current) return;
  w.Text().OptionGroupNames.push_back(current->Name());
  const ControlDesign& c = *BeginControl(w);
  ConversionSession& s = w.Session();
  std::string text = OpenControlText(w, "Begin VB.Frame grp");
  // The group's own label gives the frame its caption and colours.
  if (const ControlDesign* label = AttachedLabel(w, c.Name())) {
    AddLine(text, "Caption =  \"", Escaped(OneLine(*label, "Caption")), "\"");
    AddColorLines(text, *label);
  }
  AddLine(text, "Height = ", Sum(c.Number("Height"), 150));
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddEnabledLine(text, c);
  AddHelpLines(text, c);
  AddLine(text, "Top = ", Sum(w.ControlTop(c), -150));
  AddLine(text, "Width = ", ValueText(c, "Width"));
  AddVisibleLine(text, c);
  // A Sheridan option set binds itself.
  if (!s.Options.SsOptionSet) {
    AddGroupBindingHint(w, c);
    AddGroupDefaultHint(w, c);
  }
  CountControl(w);  // the frame
  GroupMembers(w, c, text).Write();
  FinishControl(w, c, std::move(text), ControlEventKind::OptionGroup);
}

void WriteOptionButton(FormWriter& w) {
  const ControlDesign* current = BeginControl(w);
  if (!current) return;
  const ControlDesign& c = *current;
  std::string text = OpenControlText(w, "Begin VB.OptionButton ");
  AddLine(text, "Left = ", w.ControlLeft(c));
  AddLine(text, "TabIndex = ", ValueText(c, "TabIndex"));
  AddLine(text, "Top = ", w.ControlTop(c));
  AddTipLine(text, c);
  AddTagLine(text, c);
  AddVisibleLine(text, c);
  CountControl(w);
  const int type = c.ControlType();
  if (type == kOptionButton || type == kCheckBox) {
    AddLine(text, "Height = 210");
    AddLabelLines(text, AttachedLabel(w, c.Name()), "");
  }
  if (type == kToggleButton) {
    AddToggleLines(text, c);
    AddTogglePicture(text, w, c);
  }
  AddPlainValue(text, w, c, kOptionButtonValues);
  FinishControl(w, c, std::move(text), ControlEventKind::OptionGroup);
}

}  // namespace morvane
