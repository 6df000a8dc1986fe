// The hint records: what the form writer leaves for what can only be done on
// the finished form text (event code, data control calls, list filling,
// subforms, counts and analysis rows). One struct per kind of record, held in
// a variant, so that a record is built and read by its fields' names.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/support_db.h"

namespace morvane {

class ControlDesign;

// A line for the code a data control runs when its record changes.
struct DataControlEntryHint {
  std::string DataControl;
  std::string Line;
};

// A list or combo box filled at run time from its row source.
struct ListEntryHint {
  bool Combo = false;  // the combo boxes' initialiser, else the list boxes'
  std::string FormName;
  std::string RowSource;
  std::string ControlName;
  bool IsValueList = false;
  bool PlainControl = false;  // a standard Visual Basic list or combo box
};

// The event writers a control needs.
enum class ControlEventKind {
  ListBox,
  ComboBox,
  Image,
  Button,
  CheckBox,
  OptionGroup,
  TextBox,
  BoundObjectFrame,
};

// The event code of one control: the form that holds it, its Access and
// Visual Basic names, and the subform control that shows its form (empty on
// the top form).
struct ControlCodeHint {
  ControlEventKind Kind = ControlEventKind::TextBox;
  std::string FormName;
  std::string AccessName;
  std::string VbName;
  int ComboKind = 0;  // combo boxes only
  std::string SubformControl;
  // The control's design, when the writer had it in hand.
  const ControlDesign* Design = nullptr;
};

// The module of a subform, exported into the form's text.
struct OutputCodeHint {
  std::string FormName;
  bool AsForm = false;
};

// A row of the analysis (tblReportOutput), added when the hints are processed.
using ReportRowHint = ReportOutputRow;

// The event code of a form, or of a subform shown by `SubformControl`.
struct FormCodeHint {
  std::string FormName;
  std::string SubformControl;
};

// The function that moves a data control once so that captions show the
// first record.
struct DataMoveHint {
  std::string FormName;
  std::string DataControl;
};

// A continuous subform shown by a control of the form.
struct ContinuousFormHint {
  std::string FormName;
  std::string ControlName;
};

// A datasheet subform that becomes a grid once the form is complete: the
// grid's control text (empty when the walk wrote it in place, inside a
// container), and the lines that give it its columns when the form loads.
struct DatasheetGridHint {
  std::string FormName;
  std::string ControlText;
  std::vector<std::string> ColumnLines;
};

// A line for the form's Form_Load.
struct FormLoadLineHint {
  std::string Line;
};

struct ControlCountsHint {
  int Controls = 0;
  int PartiallyConverted = 0;
};

// The form holds more controls than Visual Basic allows.
struct TooManyControlsHint {
  std::string FormName;
};

// The form's picture: its size mode and tiling as Access writes them.
struct FormImageHint {
  std::string SizeMode;
  std::string Tiling;
};

// A label caption too long for the form text, set from code instead.
struct LabelCaptionHint {
  std::string ControlName;
  std::string Caption;
};

// A continuous form's control class renamed in the form text.
struct RenameControlClassHint {
  std::string OldName;
  std::string NewName;
};

using HintRecord =
    std::variant<DataControlEntryHint, ListEntryHint, ControlCodeHint, OutputCodeHint,
                 ReportRowHint, FormCodeHint, DataMoveHint, ContinuousFormHint, DatasheetGridHint,
                 FormLoadLineHint, ControlCountsHint, TooManyControlsHint, FormImageHint,
                 LabelCaptionHint, RenameControlClassHint>;

}  // namespace morvane
