// The event code of a form: its events into Visual Basic form procedures,
// Open and Close folded into Form_Load and Form_Unload, the record events
// moved to the form's data control, and a subform's events forwarded from
// the procedures of the form it is merged into.
#pragma once

#include <string>

#include "events/event_lines.h"

namespace morvane {

class DesignObject;

// The events of the form that `code` names. `form` is its design; `hintForm`
// is the design of the form whose output file is written (null when it cannot
// be read), and `isSubform` tells that the two differ.
void FormCode(const EventCode& code, const DesignObject& form, const DesignObject* hintForm,
              bool isSubform);

// A call that hands a procedure's parameters on by their names:
// "X_SubForm_KeyPress(KeyAscii As Integer)" gives
// "Call X_SubForm_KeyPress(KeyAscii)".
std::string ForwardCall(const std::string& procedure);

}  // namespace morvane
