// The user control of a continuous subform: the controls of its detail
// section, each as the form writer writes it but placed in the control's
// own space, and a public property for each bound text box and check box,
// through which the data repeater reaches the field.
#pragma once

#include <string>
#include <vector>

#include "session/hint_records.h"

namespace morvane {

struct ConversionSession;
class DesignStore;
class FormDesign;

struct UserControlText {
  std::string Text;  // the .ctl: designer block, attributes and code
  std::vector<HintRecord> Records;
  // Controls of the detail that the user control does not hold.
  std::vector<std::string> LeftOut;
};

// The .ctl text of user control `className` for the subform form `f`. The
// pictures of its controls are appended to the current form state's binary
// records, which become the control's .ctx named `ctxFile`.
UserControlText WriteUserControl(ConversionSession& s, DesignStore& store, const FormDesign& f,
                                 const std::string& className, const std::string& ctxFile);

}  // namespace morvane
