// The hint file: the records the form writer leaves for what can only be done
// on the finished form text (event code, data control calls, list filling,
// subforms, counts and analysis rows), and the processor that reads them and
// edits the form's file.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace morvane {

struct ConversionSession;

// Appends a record, a keyword and its fields, one line each, to HintText.
void AddHint(ConversionSession& s, std::initializer_list<std::string> keywordAndFields);

// The fields of a "...Code" record.
struct ControlHint {
  std::string FormName;
  std::string AccessName;
  std::string VbName;
  int ComboKind = 0;  // "ComboBoxCode" only
  std::string SubformControl;
};

// What the records ask of the converters. The base implementation of each
// step records in the analysis that the step is not available, so a record
// whose converter is missing is reported rather than dropped.
class HintActions {
 public:
  virtual ~HintActions() = default;
  // The control's event writer for `kind`: "ListBox", "ComboBox", "Image",
  // "Button", "CheckBox", "OptionGroup", "TextBox" or "BoundObjectFrame".
  // `hintForm` is the form whose hint file is read.
  virtual void ControlEvents(ConversionSession& s, const std::string& kind,
                             const std::string& hintForm, const ControlHint& control);
  virtual void FormEvents(ConversionSession& s, const std::string& formName,
                          const std::string& hintForm, const std::string& subformControl);
  virtual void WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                                const std::string& controlName, bool isValueList);
  virtual void WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                                 const std::string& controlName, bool isValueList);
  virtual void ExportModuleText(ConversionSession& s, const std::string& name, int mode);
  // Converts the continuous subform shown by `controlName` on `formName` and
  // returns the name of the form it shows, whose hint file is read next.
  virtual std::string ConvertContinuousForm(ConversionSession& s, const std::string& formName,
                                            const std::string& controlName);
  // True when the form stays unconverted.
  virtual bool ReduceControlCount(ConversionSession& s, const std::string& formName);
  virtual void OpenSubform(ConversionSession& s, const std::string& name);
  virtual void CloseSubform(ConversionSession& s, const std::string& name);

 protected:
  void NotAvailable(ConversionSession& s, const std::string& object, const std::string& what);
};

// Reads the hint file of `formName` (OutputPath + SafeName(form) + ".hnt"),
// acts on each record in order, deletes the file and finishes CurrentFile.
// A form without a hint file is left as it is.
void ProcessHints(ConversionSession& s, const std::string& formName, HintActions& actions);

}  // namespace morvane
