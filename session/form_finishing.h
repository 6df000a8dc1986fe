// Form finishing steps: what is done to a form once its text is complete.
// A form over Visual Basic's limit of controls has its labels gathered into
// control arrays, which count as one control each; and the DBGrids of
// datasheet subforms are placed on the finished form, with the lines that
// give them their columns when the form loads.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;
class TextDocument;
struct ProjectComponent;

// Visual Basic holds at most this many controls (names) on a form.
inline constexpr int kControlLimit = 254;

// Gathers labels of the current form text into control arrays until the
// form is under the limit. True when the form stays over it (it is then
// kept out of the project); the analysis says what was done or why not.
bool ReduceControlCount(ConversionSession& s, const std::string& formName);

// A label on a tab control is also named in the tab's list of controls: the
// first such line naming `oldName` names `newName` instead.
void RetargetTabLine(TextDocument& text, const std::string& oldName, const std::string& newName);

// Places the DBGrids the form's records asked for on the finished form,
// and their columns into the form's load code.
void AddDatasheetGrids(ConversionSession& s, const ProjectComponent& component);

}  // namespace morvane
