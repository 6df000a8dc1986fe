// Data controls of forms and lists (VB.Data, MSAdodcLib.Adodc), the tblFields
// rows they leave for the code translator, and the records of a form's .frx
// file (Bindings lists and empty pictures).
#pragma once

#include <optional>
#include <string>

namespace morvane {

class ControlDesign;
class FormWriter;

// Step 10 of WriteForm: the current form's data control, appended to
// BodyText, with the hints that link a subform to its parent.
void WriteFormDataControl(FormWriter& w);

// The hints by which the data control of the form holding `subformControl`
// moves and refreshes the subform's data control `dataControl`, and with
// linked fields restricts its record source `source` to the current row. A
// holder without a record source has no data control to do it.
void AddSubformLinkHints(FormWriter& w, const ControlDesign& subformControl,
                         const std::string& source, const std::string& dataControl);

// The text of a data control "dat{name}". `formName` is given for a form's
// data control and left out for a list's.
std::string WriteDataControl(FormWriter& w, const std::string& name, long left, int type,
                             const std::string& source, long top, bool visible,
                             const std::optional<std::string>& formName = std::nullopt);
std::string WriteAdoDataControl(FormWriter& w, const std::string& name, long left, int type,
                                const std::string& source, long top, bool visible,
                                const std::optional<std::string>& formName = std::nullopt);

// Appends a record to the .frx of the form being converted and returns the
// offset text the form text refers to it by.
std::string WriteBindingsRecord(FormWriter& w, const std::string& text, bool isList,
                                bool emptyPicture = false);

}  // namespace morvane
