// The body of a DataFormat property (the StdDataFormat object of Visual
// Basic's data binding) for a control's Format and DecimalPlaces. Form
// writers and report writers share it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace morvane {

class DesignObject;

// The lines of the body for a format name and a number of decimal places:
// the Type line, the Format line, the flag lines and the SubFormatType line.
// A format that cannot be read counts as empty; decimals that cannot be read
// as Access's automatic setting.
std::vector<std::string> DataFormatLines(const std::optional<std::string>& format,
                                         const std::optional<long>& decimalPlaces);

// The body for the control's Format and DecimalPlaces, each line behind a
// CR LF: the text starts with a line break, so a blank line stands ahead of
// the body inside the property.
std::string DataFormatText(const DesignObject& control);

}  // namespace morvane
