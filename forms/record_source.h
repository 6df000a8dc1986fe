// Questions about a record source or row source (a table, a query or a
// SELECT statement) answered from the source database: the field at a
// column, the SQL that ties a subform to its parent's row, whether a plain
// Visual Basic list will do, and the Visual Basic class of a custom control.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;
class ControlDesign;
class FormWriter;

std::string FieldNameAt(ConversionSession& s, const std::string& source, int index);
std::string SubformLinkSql(FormWriter& w, const std::string& source,
                           const ControlDesign& subformControl);
bool IsPlainListControl(ConversionSession& s, const ControlDesign& control);
// The Visual Basic class for an Access custom control's class, or "".
// Registers the control's component with the form writer when given.
std::string MapCustomControl(ConversionSession& s, const std::string& accessClass,
                             FormWriter* w = nullptr);

}  // namespace morvane
