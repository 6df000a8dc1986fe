// The hint processor: acts on the records the form writer left in the form's
// state, in order, on the finished form text (event code, data control
// calls, list filling, subforms, counts and analysis rows).
#pragma once

#include <string>
#include <vector>

#include "session/hint_records.h"

namespace morvane {

struct ConversionSession;

// Appends a record to the current form's state.
void AddHint(ConversionSession& s, HintRecord record);

// The name of an event writer family ("ListBox", "Button", ...).
const char* ControlEventKindName(ControlEventKind kind);

// What the records ask of the converters. The base implementation of each
// step records in the analysis that the step is not available, so a record
// whose converter is missing is reported rather than dropped.
class HintActions {
 public:
  virtual ~HintActions() = default;
  // The control's event writer. `hintForm` is the form whose records are
  // processed.
  virtual void ControlEvents(ConversionSession& s, const std::string& hintForm,
                             const ControlCodeHint& control);
  virtual void FormEvents(ConversionSession& s, const std::string& formName,
                          const std::string& hintForm, const std::string& subformControl);
  virtual void WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                                const std::string& controlName, bool isValueList);
  virtual void WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                                 const std::string& controlName, bool isValueList);
  virtual void ExportModuleText(ConversionSession& s, const std::string& name, int mode);
  // Converts the continuous subform shown by `controlName` on `formName`
  // and returns its records, which are processed next.
  virtual std::vector<HintRecord> ConvertContinuousForm(ConversionSession& s,
                                                        const std::string& formName,
                                                        const std::string& controlName);
  // True when the form stays unconverted.
  virtual bool ReduceControlCount(ConversionSession& s, const std::string& formName);
  virtual void OpenSubform(ConversionSession& s, const std::string& name);
  virtual void CloseSubform(ConversionSession& s, const std::string& name);

 protected:
  void NotAvailable(ConversionSession& s, const std::string& object, const std::string& what);
};

// Acts on each record of the current form state in order, on its text, and
// finishes the text. `formName` is the form whose records they are.
void ProcessHints(ConversionSession& s, const std::string& formName, HintActions& actions);

}  // namespace morvane
