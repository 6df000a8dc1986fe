// Tab pages: the SSTab of an Access tab control and the SSTab of a
// page-broken form. An SSTab keeps the controls of its hidden tabs 75000
// twips to the left and names the controls of each tab in its own lines;
// the controls stand in the tab's client area.
#include "forms/tab_pages.h"

#include <string>
#include <vector>

#include "design/control_types.h"
#include "design/form_design.h"
#include "forms/control_writer_frame.h"
#include "forms/control_writers.h"
#include "forms/data_controls.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kTabGuidVb5 = "{BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.0#0";
constexpr const char* kTabGuid = "{BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0";
constexpr const char* kTabFile = "TABCTL32.OCX";
// The controls of every tab but the current one stand this far to the left.
constexpr long kHiddenTabShift = -75000;

std::string FrxName(FormWriter& w) {
  return w.Session().Names.Name(ComponentRole::Form, w.Text().OwnerFormName).File + ".frx";
}

// "TabPicture(i)  = ..." with an empty picture record of its own.
void AddTabPicture(std::string& text, FormWriter& w, size_t i) {
  AddLine(text, "TabPicture(" + std::to_string(i) + ")  = \"" + FrxName(w) +
                    "\":" + WriteBindingsRecord(w, "", false, true));
}

std::string PageCaption(const ControlDesign& page) {
  auto caption = page.Text("Caption");
  return EscapeQuotes(caption && !caption->empty() ? *caption : page.Name());
}

// A control of a page, sent to its writer: an option button or toggle
// that stands on the page is written by itself.
void WritePageControl(FormWriter& w, const ControlDesign& c) {
  const int type = c.ControlType();
  if (type == kRectangle) return;  // after the page's other controls
  if ((type == kOptionButton || type == kToggleButton) && ParentType(c) == kPage) {
    WriteOptionButton(w);
    return;
  }
  if (type == kOptionButton || type == kToggleButton) return;  // the group's
  w.WriteControl(c);
}

// The text written into `bucket` since `mark`, taken out of it, without
// the line ends around it.
std::string TakeFrom(std::string& bucket, size_t mark) {
  std::string text = bucket.substr(mark);
  bucket.resize(mark);
  while (text.starts_with("\r\n")) text.erase(0, 2);
  while (text.ends_with("\r\n")) text.resize(text.size() - 2);
  return text;
}

void WriteTabControl(FormWriter& w, const ControlDesign& tab) {
  FormTextSet& t = w.Text();
  ConversionSession& s = w.Session();
  t.CurrentControl = &tab;
  t.CurrentTabControl = &tab;
  w.SetSectionOffset(tab);
  const Placement outer = t.Place;
  const bool hadBreaks = t.HasPageBreaks;
  const int bucket = w.ControlBucket();
  BeginControl(w);
  const std::string name = s.Form().CurrentControlName;
  w.AddComponent(s.Options.IsVb5 ? kTabGuidVb5 : kTabGuid, kTabFile);

  t.InTabControl = true;
  const std::optional<long> left = w.ControlLeft(tab);
  const std::optional<long> top = w.ControlTop(tab);
  const std::vector<const ControlDesign*> pages = tab.Pages();
  const std::string count = std::to_string(pages.size());

  std::string head;
  AddLine(head, "Begin TabDlg.SSTab " + name);
  AddVisibleLine(head, tab);
  AddLine(head, "Height = ", ValueText(tab, "Height"));
  AddLine(head, "Left = ", left);
  AddLine(head, "Top = ", top);
  AddLine(head, "Width = ", ValueText(tab, "Width"));
  // The extent is the tab's own: the form's width would make the control
  // wider than its Width says.
  if (auto width = tab.Number("Width")) AddLine(head, "_ExtentX =" + Extent(*width));
  if (auto height = tab.Number("Height")) AddLine(head, "_ExtentY = " + Extent(*height));
  AddLine(head, " _Version = 262144");
  AddLine(head, "Style = 1");
  AddLine(head, "Tabs = " + count);
  AddLine(head, "TabsPerRow  = " + count);
  AddLine(head, "TabHeight = 520");
  AddLine(head, "HelpContextID = ", ValueText(tab, "HelpContextID"));
  AddLine(head, "TabIndex = ", ValueText(tab, "TabIndex"));
  AddTabStopLine(head, tab);
  AddEnabledLine(head, tab);
  AddTipLine(head, tab);
  AddTagLine(head, tab);
  for (size_t i = 0; i < pages.size(); ++i) {
    s.Form().TabPages[ToLower(pages[i]->Name())] = {name, static_cast<int>(i)};
    AddLine(head, "TabCaption(" + std::to_string(i) + ") = \"" + PageCaption(*pages[i]) + "\"");
    AddTabPicture(head, w, i);
    // A page Access hides is a tab the control hides.
    if (!pages[i]->Flag("Visible").value_or(true))
      AddLine(head, "TabVisible(" + std::to_string(i) + ") = 0");
  }

  // The pages' controls, each page's names listed as they are written. The
  // controls of a page-broken form's tab are located by that tab alone.
  t.Place.TabShift += top.value_or(0);
  t.Place.TabLeft = t.Place.SubformLeft + tab.Number("Left").value_or(0);
  t.Place.Bucket = bucket;
  t.HasPageBreaks = false;
  std::vector<std::vector<std::string>> outerNames;
  outerNames.swap(t.TabPageNames);
  t.TabPageNames.assign(pages.size(), {});
  std::string& out = w.BucketText(bucket);
  const size_t mark = out.size();
  for (size_t i = 0; i < pages.size(); ++i) {
    t.Place.TabPage = static_cast<int>(i);
    t.Place.PageLeft = i == 0 ? 0 : kHiddenTabShift;
    for (const ControlDesign& c : pages[i]->Controls()) {
      t.CurrentControl = &c;
      WritePageControl(w, c);
      t.Place.PageLeft = i == 0 ? 0 : kHiddenTabShift;
    }
    for (const ControlDesign& c : pages[i]->Controls()) {
      if (c.ControlType() != kRectangle) continue;
      t.CurrentControl = &c;
      WriteShape(w);
      t.Place.PageLeft = i == 0 ? 0 : kHiddenTabShift;
    }
  }
  std::string children = TakeFrom(w.BucketText(bucket), mark);
  std::vector<std::vector<std::string>> names;
  names.swap(t.TabPageNames);
  t.TabPageNames.swap(outerNames);

  // The current tab is the first: its controls stand where they are.
  for (size_t i = 0; i < pages.size(); ++i) {
    const std::string tabKey = "Tab(" + std::to_string(i) + ")";
    AddLine(head, tabKey + ".ControlEnabled =" + (i == 0 ? "-1" : "0"));
    for (size_t n = 0; n < names[i].size(); ++n)
      AddLine(head, tabKey + ".Control(" + std::to_string(n) + ")=\"" + names[i][n] + "\"");
  }
  for (size_t i = 0; i < pages.size(); ++i)
    AddLine(head,
            "Tab(" + std::to_string(i) + ").ControlCount= " + std::to_string(names[i].size()));
  if (!children.empty()) head += children + "\r\n";
  head += "End";

  t.InTabControl = false;
  t.HasPageBreaks = hadBreaks;
  t.Place = outer;
  t.CurrentControl = &tab;
  t.CurrentTabControl = nullptr;
  CountControl(w);
  w.PutControlText(head);
}

}  // namespace

void OpenPageBreakTab(FormWriter& w) {
  FormTextSet& t = w.Text();
  ConversionSession& s = w.Session();
  const FormDesign* form = t.CurrentForm;
  const std::vector<long>& tops = t.Place.PageBreakTops;
  if (!form || tops.size() < 2) return;
  w.AddComponent(kTabGuid, kTabFile);
  const long height = tops[1] + 520;
  const std::string pages = std::to_string(tops.size());
  std::string head;
  AddLine(head, "Begin TabDlg.SSTab " + w.UniqueControlName("SSTab1"));
  AddLine(head, "Height = " + std::to_string(height));
  AddLine(head, "Left = 0");
  AddLine(head, "TabIndex = 0");
  AddLine(head, "Top = " + std::to_string(t.Place.DetailTop));
  AddLine(head, "Width = ", ValueText(*form, "Width"));
  if (auto width = form->Number("Width")) AddLine(head, "_ExtentX =" + Extent(*width));
  AddLine(head, "_ExtentY = " + Extent(height));
  AddLine(head, "Style = 1");
  AddLine(head, s.Options.IsVb5 ? " _Version = 327681" : " _Version = 393216");
  AddLine(head, "Tabs = " + pages);
  AddLine(head, "TabHeight = 1");
  for (size_t i = 0; i < tops.size(); ++i) {
    AddLine(head, "TabCaption(" + std::to_string(i) + ") = \"i\"");
    AddTabPicture(head, w, i);
    AddLine(head, i == 0 ? "Tab(0).ControlEnabled =-1"
                         : "Tab(" + std::to_string(i) + ").ControlEnabled =0");
  }
  t.PageTabHead = head;
  t.PageControlCounts.assign(tops.size(), 0);
  t.HasPageBreaks = true;
  t.PageTabBody.clear();
  CountControl(w);
}

void ClosePageBreakTab(FormWriter& w) {
  FormTextSet& t = w.Text();
  for (size_t i = 0; i < t.PageControlCounts.size(); ++i)
    AddLine(t.PageTabHead, "Tab(" + std::to_string(i) +
                               ").ControlCount= " + std::to_string(t.PageControlCounts[i]));
  if (t.PageTabHead.ends_with("\r\n")) t.PageTabHead.resize(t.PageTabHead.size() - 2);
}

bool OnTabPage(const ControlDesign& c) {
  for (const ControlDesign* p = c.ParentControl(); p; p = p->ParentControl())
    if (p->ControlType() == kPage || p->ControlType() == kTabControl) return true;
  return false;
}

void WalkTabControls(FormWriter& w) {
  FormTextSet& t = w.Text();
  const FormDesign* form = t.CurrentForm;
  if (!form) return;
  for (const ControlDesign& c : form->Controls()) {
    if (c.ControlType() != kTabControl) continue;
    // A repeated subform's detail is its user control's; only its header
    // stands on the form.
    if (t.HeaderOnly && c.Section() != 1) continue;
    WriteTabControl(w, c);
  }
}

}  // namespace morvane
