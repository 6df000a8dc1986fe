// Access expressions of a form's controls (a calculated control's source, a
// default value) as Visual Basic expressions: what the form's data control
// and controls can compute at run time. An expression that holds what they
// cannot (an aggregate over the records, a property of a report, a syntax of
// Access's own) gives nothing, and the caller keeps it as a comment with a
// row for the user instead of writing code Visual Basic would reject.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morvane {

class FormDesign;
struct ConversionSession;

struct ExpressionScope {
  const ConversionSession* Session = nullptr;
  const FormDesign* Form = nullptr;  // whose controls a bare name may mean
  std::string DataControl;           // the form's data control; empty when it has none
  // A subform standing on its parent's form: the parent (what "Parent!x"
  // means) and its data control.
  const FormDesign* Parent = nullptr;
  std::string ParentDataControl;
  bool UseAdo = true;
};

// The Visual Basic for `expression` (an Access expression, its leading "="
// left out); `approximate` is set when the result differs from Access in a
// corner the user should look at (Null handling, say).
std::optional<std::string> VbExpression(std::string_view expression, const ExpressionScope& scope,
                                        bool* approximate);

}  // namespace morvane
