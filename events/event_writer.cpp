// The event writers as hint actions: each record's control or form is looked
// up among the designs, and its event code written into the form text.
#include "events/event_writer.h"

#include "design/design_store.h"
#include "events/control_events.h"
#include "events/form_events.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "translator/conversion_code.h"

namespace morvane {

namespace {

// The design a subform control on `parent` shows, or null.
const FormDesign* SubformOf(const FormDesign* parent, const std::string& subformControl) {
  if (!parent) return nullptr;
  const ControlDesign* control = parent->Control(subformControl);
  return control ? control->Form() : nullptr;
}

void NotWritten(ConversionSession& s, const std::string& object, const std::string& why) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, why + "; its event code is not written");
}

}  // namespace

void EventHintActions::ControlEvents(ConversionSession& s, const std::string& hintForm,
                                     const ControlCodeHint& control) {
  // The writer hands over the control's design. Without it, a control of a
  // subform is reached through the subform control; the record names the
  // form that holds that control, which is the form whose hints are read
  // unless subforms nest.
  const ControlDesign* design = control.Design;
  const FormDesign* holder = design ? &design->Owner() : nullptr;
  if (!design) {
    holder = store_.OpenForm(control.FormName, nullptr);
    if (!control.SubformControl.empty()) {
      const FormDesign* shown = SubformOf(holder, control.SubformControl);
      if (!shown) shown = SubformOf(store_.OpenForm(hintForm, nullptr), control.SubformControl);
      holder = shown;
    }
    design = holder ? holder->Control(control.AccessName) : nullptr;
  }
  if (!design) {
    NotWritten(s, control.FormName + "." + control.AccessName, "the control was not found");
    return;
  }
  // Renames work in the code of the form that holds the control.
  const EventCode code(s, control.FormName, holder->Name(), hintForm);
  const ControlEventWriter writer(code, *design, control.VbName);
  if (!WriteControlEvents(ControlEventKindName(control.Kind), writer, control.ComboKind))
    HintActions::ControlEvents(s, hintForm, control);
}

void EventHintActions::FormEvents(ConversionSession& s, const std::string& formName,
                                  const std::string& hintForm, const std::string& subformControl) {
  const FormDesign* hint = store_.OpenForm(hintForm, nullptr);
  const FormDesign* form =
      subformControl.empty() ? store_.OpenForm(formName, nullptr) : SubformOf(hint, subformControl);
  if (!form) form = store_.OpenForm(formName, nullptr);
  if (!form) {
    NotWritten(s, formName, "the form's design could not be read");
    return;
  }
  const EventCode code(s, formName, formName, hintForm);
  FormCode(code, *form, hint, formName != hintForm);
}

void EventHintActions::WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                                        const std::string& controlName, bool isValueList) {
  morvane::WriteListBoxInit(s, rowSource, controlName, isValueList);
}

void EventHintActions::WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                                         const std::string& controlName, bool isValueList) {
  morvane::WriteComboBoxInit(s, rowSource, controlName, isValueList);
}

}  // namespace morvane
