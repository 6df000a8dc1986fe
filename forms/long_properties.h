// Properties too long for a form file: Visual Basic reads a line of 1,023
// bytes at most, so a longer property line (a record source of many joins,
// say) would keep the form from loading. Such a property is set from
// Form_Load instead, with an analysis row.
#pragma once

#include <string>
#include <vector>

namespace morvane {

struct ConversionSession;

// Takes the designer lines over the limit out of `lines` (the form text) and
// gives the form's Form_Load the statements that set them; `formName` names
// the form in the analysis.
void MoveLongProperties(ConversionSession& s, const std::string& formName,
                        std::vector<std::string>& lines);

}  // namespace morvane
