// The event writers of controls, one per control family, and the steps they
// share: an Access event into its Visual Basic procedure, renamed headers
// where the control's Visual Basic name differs, and the Access events that
// fold into one Visual Basic event (Enter into GotFocus, Exit into LostFocus,
// DblClick into Click).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "events/event_lines.h"

namespace morvane {

class DesignObject;

// One control's event code: the control's design, its Visual Basic name and
// the name its Access procedures carry.
class ControlEventWriter {
 public:
  ControlEventWriter(const EventCode& code, const DesignObject& control, std::string vbName);

  const EventCode& Code() const { return code_; }
  ConversionSession& Session() const { return code_.Session(); }
  const std::string& VbName() const { return vbName_; }
  bool NamesDiffer() const { return vbName_ != safeAccessName_; }

  // An event property's value; a property the control does not have reads
  // as empty, so it writes nothing.
  std::string Value(std::string_view property) const;
  // "Private Sub " + the Visual Basic name + suffix, and the same with the
  // Access name: the header the form's module has.
  std::string Header(std::string_view suffix) const;
  std::string AccessHeader(std::string_view suffix) const;
  // "Call " + the Visual Basic name + suffix: the own line of an event whose
  // procedure is in the module.
  std::string OwnCall(std::string_view suffix) const;

  // A macro or expression becomes a new procedure; "[Event Procedure]" keeps
  // its procedure, renamed when the names differ (unless `rename` is false).
  void Plain(std::string_view property, std::string_view suffix, bool rename = true) const;
  // The new procedure alone, appended without looking for its header.
  void PlainUnchecked(std::string_view property, std::string_view suffix) const;
  // DblClick as a line of the Click procedure.
  void DblClickIntoClick() const;
  // Enter as the first line of GotFocus.
  void GotFocusWithEnter() const;
  // Exit, and the family's further lines above it, at the top of LostFocus.
  // `existing` are inserted into a procedure the module has, in their final
  // order from the top; `fresh` open a new procedure. `further` tells whether
  // the family's events alone call for a procedure.
  void LostFocusWithExit(const std::vector<std::string>& existing,
                         const std::vector<std::string>& fresh, bool further) const;
  // The four lines that return the focus when the control's Exit procedure
  // answers true, or the line of a macro or expression.
  std::vector<std::string> ExitBlock() const;
  // BeforeUpdate into Validate, when `guard` holds.
  void Validate(bool guard) const;
  // AfterUpdate called at the end of Validate when the value changed and
  // passed; without Validate (Visual Basic 5), from LostFocus.
  void AfterUpdateFromValidate(bool validate) const;

 private:
  const EventCode& code_;
  const DesignObject& control_;
  std::string vbName_;
  std::string safeAccessName_;
  bool mayReadEvents_;  // false when every event of the control reads as empty
};

void ButtonCode(const ControlEventWriter& w);
void CheckBoxCode(const ControlEventWriter& w);
void ImageCode(const ControlEventWriter& w);
void OptionGroupCode(const ControlEventWriter& w);
void TextBoxCode(const ControlEventWriter& w);
void BoundObjectFrameCode(const ControlEventWriter& w);
void ListBoxCode(const ControlEventWriter& w);
void ComboBoxCode(const ControlEventWriter& w, int comboKind);

// Runs the writer of a control family ("Button", "ListBox", ... as the hint
// processor names them). False for a family that has no writer.
bool WriteControlEvents(std::string_view kind, const ControlEventWriter& w, int comboKind);

}  // namespace morvane
