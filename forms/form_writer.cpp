// The form writer: state reset, the walk of one form, placement, unique
// names, routing of control text, section frames and the final assembly.
#include "forms/form_writer.h"

#include <algorithm>

#include "design/control_types.h"
#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/control_writers.h"
#include "forms/data_controls.h"
#include "forms/frm_text.h"
#include "forms/long_properties.h"
#include "forms/picture_extraction.h"
#include "forms/subform_writers.h"
#include "forms/tab_pages.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"
#include "session/user_interface.h"

namespace morvane {

namespace {

// Where a control stands, when that is what keeps it from being converted.
std::string LocationOf(const ControlDesign& c) {
  for (const ControlDesign* p = c.ParentControl(); p; p = p->ParentControl())
    if (p->ControlType() == kPage) return " (on the page " + p->Name() + ")";
  return "";
}

std::optional<long> SectionHeight(const FormDesign& f, int n) {
  const SectionDesign* section = f.Section(n);
  if (!section) return std::nullopt;
  return section->Number("Height");
}

// Sums over section heights are 16-bit: a total above 32767 fails.
bool AddHeight(long& y, long h) {
  if (y + h > 32767 || y + h < -32768) return false;
  y += h;
  return true;
}

// Whether the writer of a control's holder writes the control with it: the
// members of an option group and their labels, the label of an option
// button, the pages of a tab control (named with it).
bool WrittenWithHolder(const std::set<const ControlDesign*>& accounted, const ControlDesign& c) {
  const ControlDesign* holder = c.ParentControl();
  if (!holder || !accounted.count(holder)) return false;
  switch (holder->ControlType()) {
    case kOptionGroup:
    case kOptionButton:
    case kTabControl:
      return true;
    default:
      return WrittenWithHolder(accounted, *holder) && c.ControlType() == kLabel;
  }
}

// Controls that only need their holder to be the form being walked: an
// option button or toggle inside an option group is written with its group.
void WriteStandAloneOption(FormWriter& w) {
  const ControlDesign* c = w.Text().CurrentControl;
  if (c && c->Parent().Name() == w.Text().CurrentForm->Name()) WriteOptionButton(w);
}

// An unbound object frame has no Visual Basic counterpart; the analysis
// names it.
void ReportUnboundObject(FormWriter& w) {
  const ControlDesign& c = *w.Text().CurrentControl;
  w.Text().Accounted.insert(&c);
  AddHint(w.Session(), ReportRowHint{w.Text().OwnerFormName, kReasonControlNotConverted,
                                     SafeName(c.Name()), 0, "", ""});
}

// The writer of each control type the walk meets; a type without a row is
// passed over here (tab controls, pages and page breaks have walks of their
// own, later control types are named by the design loader).
struct ControlWriterRow {
  int type;
  void (*write)(FormWriter&);
};

constexpr ControlWriterRow kControlWriters[] = {
    {kLabel, WriteLabel},
    {kLine, WriteLineControl},
    {kImage, WriteImage},
    {kCommandButton, WriteCommandButton},
    {kCheckBox, WriteCheckBox},
    {kOptionGroup, WriteOptionGroup},
    {kBoundObjectFrame, WriteBoundObjectFrame},
    {kTextBox, WriteTextBox},
    {kCustomControl, WriteCustomControl},
    {kOptionButton, WriteStandAloneOption},
    {kToggleButton, WriteStandAloneOption},
    {kListBox, WriteListBox},
    {kComboBox, WriteComboBox},
    {kSubform, WriteSubform},
    {kUnboundObjectFrame, ReportUnboundObject},
};

constexpr bool EachTypeHasOneWriter() {
  for (size_t i = 0; i < std::size(kControlWriters); ++i)
    for (size_t j = i + 1; j < std::size(kControlWriters); ++j)
      if (kControlWriters[i].type == kControlWriters[j].type) return false;
  return true;
}
static_assert(EachTypeHasOneWriter(), "one writer per control type");

}  // namespace

FormWriter::FormWriter(ConversionSession& s, DesignStore& store) : s_(s), store_(store) {}

bool FormWriter::ConvertForm(const std::string& formName, std::string* err) {
  if (s_.OptionWordLength != 11) return false;
  t_ = FormTextSet{};
  FormState& state = s_.Form();
  state.Text = TextDocument();
  state.Binary.clear();
  state.Hints.clear();
  if (s_.SupportDb) s_.SupportDb->ClearFields();
  std::string why;
  if (!store_.OpenForm(formName, &why)) {
    if (err) *err = why;
    return false;
  }
  t_.OwnerFormName = formName;
  WriteForm(formName, false, 1, false);

  // The parts go into the text one after the other, as one file of them
  // would read, without joining them first.
  TextDocument& text = state.Text;
  auto add = [&text](std::initializer_list<std::string_view> pieces) {
    for (std::string_view piece : pieces) text.Append(piece);
  };
  add({t_.HeaderText, "\r\n", t_.BodyText});
  for (int n = 1; n <= 4; ++n)
    if (!t_.SectionText[n].empty()) add({"\r\n", t_.SectionText[n], "\r\nEnd"});
  if (!t_.PageTabHead.empty()) add({"\r\n", t_.PageTabHead});
  if (!t_.PageTabBody.empty()) add({"\r\n", t_.PageTabBody});
  if (!t_.PageTabHead.empty()) add({"\r\nEnd"});
  add({"\r\nEnd\r\n"});
  MoveLongProperties(s_, formName, state.Text.Lines());
  return true;
}

void FormWriter::WriteForm(const std::string& formName, bool isSubform, int pass, bool headerOnly) {
  if (!isSubform) {
    t_.Place.SubformTop = 0;
    t_.Place.SubformLeft = 0;
    t_.OwnerFormName = formName;
    t_.HasPageBreaks = false;
    t_.OptionGroupNames.assign(1, std::string());
    t_.ParentControlName.clear();
  }
  t_.InSubform = isSubform;
  t_.HeaderOnly = headerOnly;
  const FormDesign* form = nullptr;
  if (isSubform) {
    if (const FormDesign* parent = store_.OpenForm(t_.ParentFormName, nullptr))
      if (const ControlDesign* c = parent->Control(t_.ParentControlName)) form = c->Form();
  } else {
    form = store_.OpenForm(formName, nullptr);
  }
  if (!form) return;
  t_.CurrentForm = form;

  // Sections stacked: form header, page header, detail, page footer, form
  // footer. A section the form does not have counts 0.
  // A read that fails leaves the sum as it is; the top taken after it is
  // still set. A sum above 16 bits fails, and the height lines are left out.
  long y = 0;
  bool overflow = false;
  auto add = [&](int n) {
    if (auto h = SectionHeight(*form, n)) {
      if (AddHeight(y, *h)) return *h;
      overflow = true;
    }
    return 0L;
  };
  t_.Place.HeaderHeight = add(1);
  add(3);
  t_.Place.DetailTop = y;
  add(0);
  t_.Place.PageFooterTop = y;
  add(4);
  t_.Place.FormFooterTop = y;
  add(2);
  t_.Place.Total = y;
  totalValid_ = !overflow;

  t_.Place.PageBreakTops.assign(1, 0);
  bool formHasBreaks = false;
  if (pass == 1) {
    for (const ControlDesign& c : form->Controls())
      if (c.ControlType() == kPageBreak && c.Section() == 0) {
        formHasBreaks = true;
        t_.Accounted.insert(&c);
        t_.Place.PageBreakTops.push_back(c.Number("Top").value_or(0));
      }
    std::sort(t_.Place.PageBreakTops.begin() + 1, t_.Place.PageBreakTops.end());
  }
  if (!isSubform) {
    WriteFormHeader(*form);
    NoteRecordListView(*this, *form);
  }
  if (!t_.WithoutCode) AddHint(s_, FormCodeHint{formName, t_.ParentControlName});
  if (auto source = form->Text("RecordSource"); source && !source->empty())
    WriteFormDataControl(*this);
  if (formHasBreaks) OpenPageBreakTab(*this);
  WalkTabControls(*this);
  WalkControls();
  if (formHasBreaks) ClosePageBreakTab(*this);
  for (const ControlDesign& c : form->Controls()) {
    if (c.ControlType() != kRectangle || OnTabPage(c)) continue;
    if (headerOnly && c.Section() != 1 && c.Section() != 2) continue;
    t_.CurrentControl = &c;
    SetSectionOffset(c, false);
    WriteShape(*this);
  }
  if (isSubform) return;
  AccountForControls(*form);

  for (int n = 1; n <= 4; ++n)
    if (!t_.SectionText[n].empty()) {
      ++t_.FormControlCount;
      break;
    }
  if (auto interval = form->Number("TimerInterval"); interval && *interval > 0) {
    t_.BodyText += "\r\nBegin VB.Timer Timer1\r\nLeft = 0\r\nTop = 0\r\nInterval = " +
                   std::to_string(*interval) + "\r\nEnd";
  }
  AddHint(s_, ControlCountsHint{t_.FormControlCount, t_.FormPartialCount});
  if (t_.FormControlCount > 254) AddHint(s_, TooManyControlsHint{formName});
  WriteComponentLines(true);
}

void FormWriter::AccountForControls(const FormDesign& form) {
  const std::string where =
      form.Name() == t_.OwnerFormName ? "" : " (in the subform " + form.Name() + ")";
  for (const ControlDesign& c : form.Controls()) {
    if (t_.Accounted.count(&c) || WrittenWithHolder(t_.Accounted, c)) continue;
    ++s_.Form().ControlsNotConverted;
    if (s_.SupportDb)
      s_.SupportDb->AddRunNote(t_.OwnerFormName, c.TypeName() + " " + c.Name() + LocationOf(c) +
                                                     where + " is not converted");
  }
}

void FormWriter::WriteFormHeader(const FormDesign& form) {
  WriteComponentLines(false);
  std::string& b = t_.BodyText;
  const std::string name = form.Name();
  const ComponentName& names = s_.Names.Name(ComponentRole::Form, name);
  b += "Begin VB.Form " + names.VbName;
  auto line = [&b](std::string_view head, const std::optional<std::string>& v,
                   std::string_view tail = "") {
    if (v) b += "\r\n" + std::string(head) + *v + std::string(tail);
  };
  line("BorderStyle = ", ValueText(form, "BorderStyle"));
  {
    auto caption = form.Text("Caption");
    line("Caption =\"", Escaped(caption && !caption->empty() ? caption : std::optional(name)),
         "\"");
  }
  // A page-broken form shows its first page: the detail is a tab control
  // of that page's height.
  std::optional<std::string> height;
  long client = t_.Place.Total;
  if (t_.Place.PageBreakTops.size() > 1) {
    const long detail = SectionHeight(form, 0).value_or(0);
    client = t_.Place.Total - detail + t_.Place.PageBreakTops[1] + 520;
  }
  if (totalValid_) height = std::to_string(client);
  line("ClientHeight = ", height);
  b += "\r\nClientLeft = 250 \r\nClientTop = 500 ";
  line("ClientWidth = ", ValueText(form, "Width"));
  line("Height = ", height);
  b += "\r\nLeft = 250\r\nLinkTopic = \"\"";
  line("MaxButton = ", ValueText(form, "MaxButton"));
  line("MinButton = ", ValueText(form, "MinButton"));
  b += "\r\nShowInTaskbar = 0\r\nTop = 500";
  line("Width = ", ValueText(form, "Width"));
  if (const SectionDesign* detail = form.Section(0))
    if (auto color = detail->Number("BackColor")) line("BackColor= &H", ColorHex(*color), "&");
  line("ControlBox=", ValueText(form, "ControlBox"));
  std::string font;
  AddFixedFontLines(font, "BeginProperty Font ", "Arial", "8");
  font.resize(font.size() - 2);
  b += "\r\n" + font;
  b += "\r\nForeColor=&H00000000&";
  {
    auto popup = form.Flag("PopUp");
    auto modal = form.Flag("Modal");
    // A guard that cannot be read counts as met.
    bool dialog = popup.value_or(true) && modal.value_or(true);
    if (!popup || !modal) dialog = false;
    if (s_.Options.IsMdi && !dialog) b += "\r\nMDIChild = -1";
  }
  line("HelpContextID=", ValueText(form, "HelpContextId"));
  if (auto picture = form.Bytes("PictureData"); picture && !picture->empty()) {
    std::string offset = ExtractPicture(*this, name, "", false);
    if (!offset.empty()) {
      b += "\r\nPicture = \"" + names.File + ".frx\":" + offset + "\r\nAutoRedraw = -1";
      AddHint(s_, FormImageHint{ValueText(form, "PictureSizeMode").value_or(""),
                                ValueText(form, "PictureTiling").value_or("")});
    }
  }
}

void FormWriter::AddComponent(const std::string& guid, const std::string& file) {
  for (const auto& f : t_.ComponentFiles)
    if (f == file) return;
  t_.ComponentFiles.push_back(file);
  t_.ComponentGuids.push_back(guid);
}

void FormWriter::WriteComponentLines(bool finish) {
  if (!finish) {
    t_.ComponentFiles.clear();
    t_.ComponentGuids.clear();
    t_.UsedControlNames.clear();
    t_.HeaderText = "VERSION 5.00";
    return;
  }
  for (size_t i = 0; i < t_.ComponentFiles.size(); ++i)
    t_.HeaderText +=
        "\r\nObject=\"" + t_.ComponentGuids[i] + "\"; \"" + t_.ComponentFiles[i] + "\"";
}

void FormWriter::MakeControlName(const ControlDesign& c) {
  s_.Form().CurrentControlName = UniqueControlName(c.Name());
}

std::string FormWriter::DataControlOf(const std::string& formName) const {
  for (auto it = t_.DataControls.rbegin(); it != t_.DataControls.rend(); ++it)
    if (EqualsNoCase(it->first, formName)) return it->second;
  return s_.Names.DataControl(formName);
}

void UsedNames::push_back(std::string name) {
  folded_.insert(ToLower(name));
  names_.push_back(std::move(name));
}

bool UsedNames::Contains(std::string_view name) const {
  return folded_.count(ToLower(name)) != 0;
}

std::string FormWriter::UniqueControlName(const std::string& wanted) {
  // A Visual Basic name: a character that cannot stand in one becomes "_",
  // and a name that does not start with a letter gets an "A".
  const std::string base = VbIdentifier(wanted, "A", 40);
  // Visual Basic tells names apart without regard to case.
  auto taken = [this](const std::string& candidate) {
    return t_.UsedControlNames.Contains(candidate);
  };
  // Each clash adds the next letter; a name that would outgrow 40
  // characters is cut to make room for a number instead.
  std::string name = base;
  for (int counter = 0; taken(name) && counter < 26; ++counter)
    name += static_cast<char>('A' + counter);
  for (int n = 2; taken(name) || name.size() > 40; ++n) {
    const std::string suffix = std::to_string(n);
    name = base.substr(0, std::min(base.size(), 40 - suffix.size())) + suffix;
  }
  t_.UsedControlNames.push_back(name);
  return name;
}

void FormWriter::PutControlText(const std::string& text) {
  const int bucket = ControlBucket();
  if (bucket > 4 + 20) {
    if (s_.Ui) s_.Ui->ShowMessage("unhandled select file!", MessageIcon::Stop);
    return;
  }
  if (t_.Place.TabPage >= 0) ListOnTabPage(text);
  PutInBucket(bucket, text);
  if (bucket != 0 && !t_.InTabControl) {
    t_.Place.PageIndex = 0;
    t_.Place.PageLeft = 0;
  }
}

int FormWriter::ControlBucket() const {
  const ControlDesign* c = t_.CurrentControl;
  const int section = c ? c->Section() : 0;
  if (t_.Place.Bucket >= 0) return t_.Place.Bucket;
  if (t_.InTabControl) return 1;
  if (t_.HasPageBreaks && section == 0) return 0;
  if (!t_.InSubform && section > 0) return 20 + section;
  return 1;
}

std::string& FormWriter::BucketText(int bucket) {
  if (bucket == 0) return t_.PageTabBody;
  if (bucket >= 21 && bucket <= 24) return t_.SectionText[bucket - 20];
  return t_.BodyText;
}

void FormWriter::PutInBucket(int bucket, const std::string& text) {
  if (bucket == 1)
    t_.BodyText += "\r\n" + text;
  else
    BucketText(bucket) += text + "\r\n";
}

void FormWriter::ListOnTabPage(const std::string& text) {
  // Each control that stands directly on the page: the Begin lines at the
  // outer level of the text.
  const size_t page = static_cast<size_t>(t_.Place.TabPage);
  if (t_.TabPageNames.size() <= page) t_.TabPageNames.resize(page + 1);
  int depth = 0;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find("\r\n", start);
    if (end == std::string::npos) end = text.size();
    std::string_view line(text.data() + start, end - start);
    while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
    if (line.starts_with("Begin ")) {
      if (depth == 0) {
        const size_t blank = line.find(' ', 6);
        if (blank != std::string_view::npos)
          t_.TabPageNames[page].emplace_back(line.substr(blank + 1));
      }
      ++depth;
    } else if (line == "End") {
      --depth;
    }
    start = end + 2;
  }
}

void FormWriter::CreateSection(const FormDesign& form, int n) {
  if (t_.InSubform) return;
  if (n < 1 || n > 4) {
    if (s_.Ui) s_.Ui->ShowMessage("Bad parameter: CreateSection", MessageIcon::Stop);
    return;
  }
  const SectionDesign* section = form.Section(n);
  std::string text = "Begin VB.Frame Section\r\nCaption =  \"\"\r\n";
  if (section) {
    if (auto color = section->Number("BackColor"))
      AddLine(text, "BackColor= &H" + ColorHex(*color) + "&");
    AddLine(text, "Height = ", ValueText(*section, "Height"));
  }
  AddLine(text, "Left = 0");
  AddLine(text, "Index = " + std::to_string(n));
  if (section) AddTagLine(text, *section);
  AddLine(text, "Top = " + std::to_string(t_.Place.SectionOffset));
  AddLine(text, "Width = ", ValueText(form, "Width"));
  AddLine(text, "BorderStyle = 0");
  if (n >= 3) {
    AddLine(text, "Visible = 0");
  } else if (section) {
    auto visible = section->Flag("Visible");
    if (!visible || !*visible) AddLine(text, "Visible = 0");
  }
  if (t_.SectionText[n].empty()) t_.SectionText[n] = text;
}

void FormWriter::LocatePage() {
  const ControlDesign* c = t_.CurrentControl;
  if (t_.HasPageBreaks && c && c->Section() == 0) {
    const long top = c->Number("Top").value_or(0);
    int page = 0;
    for (int i = static_cast<int>(t_.Place.PageBreakTops.size()) - 1; i >= 0; --i)
      if (t_.Place.PageBreakTops[i] < top) {
        page = i;
        break;
      }
    if (t_.PageControlCounts.size() <= static_cast<size_t>(page))
      t_.PageControlCounts.resize(page + 1);
    const int count = ++t_.PageControlCounts[page];
    const std::string shown = c->ControlType() == kOptionGroup
                                  ? "grp" + s_.Form().CurrentControlName
                                  : s_.Form().CurrentControlName;
    t_.PageTabHead += "Tab(" + std::to_string(page) + ").Control(" + std::to_string(count - 1) +
                      ")=\"" + shown + "\"\r\n";
    t_.Place.PageIndex = page;
    t_.Place.PageLeft = page == 0 ? 0 : -75000;
    return;
  }
  // A control off the page-broken detail stands on no page; inside a tab
  // control the tab's page stays.
  if (!t_.InTabControl) {
    t_.Place.PageLeft = 0;
    t_.Place.PageIndex = 0;
  }
}

std::optional<long> FormWriter::ControlLeft(const ControlDesign& c) const {
  auto left = c.Number("Left");
  if (!left) return std::nullopt;
  return *left + t_.Place.PageLeft + t_.Place.SubformLeft - t_.Place.TabLeft;
}

std::optional<long> FormWriter::ControlTop(const ControlDesign& c) const {
  auto top = c.Number("Top");
  if (!top) return std::nullopt;
  const long o = (c.Section() == 0 || t_.InSubform || t_.InTabControl) ? t_.Place.SectionOffset : 0;
  const long breakTop = t_.Place.PageIndex >= 0 && static_cast<size_t>(t_.Place.PageIndex) <
                                                       t_.Place.PageBreakTops.size()
                            ? t_.Place.PageBreakTops[t_.Place.PageIndex]
                            : 0;
  return *top + o + t_.Place.SubformTop - breakTop - t_.Place.TabShift;
}

void FormWriter::SetSectionOffset(const ControlDesign& c, bool adjust) {
  const FormDesign* form = t_.CurrentForm;
  // The footers move up when the detail section becomes a tab control of the
  // first page's height.
  auto adjusted = [&](long top) {
    if (!adjust || t_.Place.PageBreakTops.size() < 2 || !form) return top;
    long detail = SectionHeight(*form, 0).value_or(0);
    return top - (detail - t_.Place.PageBreakTops[1]) + 520;
  };
  if (adjust && t_.HasPageBreaks && c.Section() == 0) {
    t_.Place.SectionOffset = 520;
    return;
  }
  switch (c.Section()) {
    case 1:
      t_.Place.SectionOffset = 0;
      break;
    case 3:
      t_.Place.SectionOffset = t_.Place.HeaderHeight;
      break;
    case 0:
      t_.Place.SectionOffset = t_.Place.DetailTop;
      break;
    case 4:
      t_.Place.SectionOffset = adjusted(t_.Place.PageFooterTop);
      break;
    case 2:
      t_.Place.SectionOffset = adjusted(t_.Place.FormFooterTop);
      break;
    default:
      break;
  }
}

void FormWriter::WalkControls() {
  const FormDesign& form = *t_.CurrentForm;
  const std::string formName = form.Name();
  for (const ControlDesign& c : form.Controls()) {
    t_.CurrentControl = &c;
    // Controls on tab pages belong to the tab walk.
    if (OnTabPage(c)) continue;
    // A pass over the header of a form shown in a subform keeps its header
    // and places its footer at the foot of the subform control.
    const int section = c.Section();
    if (t_.HeaderOnly && (section == 0 || section == 3 || section == 4)) continue;
    if (t_.HeaderOnly && section == 2) {
      long footer = SectionHeight(form, 2).value_or(0);
      long controlHeight = 0;
      if (const FormDesign* p = store_.OpenForm(t_.ParentFormName, nullptr))
        if (const ControlDesign* sc = p->Control(t_.ParentControlName))
          controlHeight = sc->Number("Height").value_or(0);
      t_.Place.SectionOffset = controlHeight - footer;
    } else {
      SetSectionOffset(c);
      const bool broken = t_.HasPageBreaks && section == 0;
      if (!broken && section >= 1 && section <= 4 && t_.SectionText[section].empty())
        CreateSection(form, section);
    }
    WriteControl(c);
  }
}

void FormWriter::WriteControl(const ControlDesign& c) {
  for (const ControlWriterRow& row : kControlWriters)
    if (row.type == c.ControlType()) return row.write(*this);
}

}  // namespace morvane
