// The state of one form (or report) while it is converted: its file under
// construction, its binary records, the hint records the writers leave for
// the code side, and the facts the code side hands back to the driver. A
// nested object (a subform, a continuous form, a tab page) pushes a state of
// its own and pops it when it ends, so nothing is reset by hand.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "platform/text_document.h"
#include "session/hint_records.h"

namespace morvane {

struct FormState {
  std::string Name;    // the Access name of the form or report
  TextDocument Text;   // the .frm (or .dsr) under construction
  std::string Binary;  // the records of its .frx (or .dsx)
  std::vector<HintRecord> Hints;

  bool FormFailed = false;
  std::string FormLoadCode;
  std::string LabelCaptionCode;
  std::string ReportInitCode;
  bool FormPictureTiled = false;
  bool FormPictureStretched = false;
  bool UsesOpenArgs = false;
  bool UsesFilter = false;
  bool UsesFilterOn = false;
  bool UsesOrderBy = false;
  bool UsesOrderByOn = false;
  std::array<bool, 3> InitCalls{};
  std::vector<std::string> DatasheetForms{""};
  // The grids of DatasheetForms, in the same order.
  std::vector<DatasheetGridHint> DatasheetGrids;
  std::vector<std::string> OpenedSubforms{""};
  int ControlCount = 0;
  int PartialControlCount = 0;
  int ControlsNotConverted = 0;
  std::string CurrentControlName;
  bool PlainListControl = false;
  // The pages of the form's tab controls, by their Access name in lower
  // case: the SSTab that shows a page and the page's tab there, for the code
  // that names a page, which no control of the form stands for.
  struct TabPage {
    std::string Tab;
    int Index = 0;
  };
  std::map<std::string, TabPage> TabPages;
};

}  // namespace morvane
