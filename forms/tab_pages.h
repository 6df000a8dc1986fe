// Tab pages: an Access tab control becomes a TabDlg.SSTab with one tab per
// page and the page's controls on its tab, and a form whose detail holds
// page breaks is shown page by page on an SSTab of its own.
#pragma once

namespace morvane {

class FormWriter;

// Opens the tab control of a page-broken form (its head in PageTabHead);
// the walk then places each detail control on its page.
void OpenPageBreakTab(FormWriter& w);
// Appends the count of controls on each page to the head.
void ClosePageBreakTab(FormWriter& w);
// Writes each tab control of the form being walked with the controls of
// all its pages.
void WalkTabControls(FormWriter& w);

class ControlDesign;
// Whether the control stands on a page of a tab control (or is the tab
// control's page): the tab walk writes it.
bool OnTabPage(const ControlDesign& c);

}  // namespace morvane
