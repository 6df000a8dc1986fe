// The conventions of Visual Basic form text shared by every form writer:
// number and colour formats, the extent unit, quote escaping, and the
// recurring line blocks (font, tool tip, tag, visible/enabled/tab stop,
// data binding, default values). A block whose property cannot be read is
// left out line by line, never the whole control.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morvane {

class DesignObject;
class ControlDesign;
class FormWriter;

// Default decimal form: "." as decimal point, at most 15 significant digits,
// no trailing zeros, no fraction on a whole number.
std::string DecimalText(double x);
// Upper-case hexadecimal of a 32-bit value without leading zeros
// (-2147483643 gives "80000005").
std::string ColorHex(long x);
// Twips to the unit of _ExtentX/_ExtentY: x * 1.7635 in default decimal form.
std::string Extent(double x);
// Every double quote doubled.
std::string EscapeQuotes(std::string_view text);
// Every line break (CR LF, or CR or LF alone) replaced by one blank.
std::string JoinLines(std::string_view text);
// Whether `text` holds a line break of any kind (CR LF, or CR or LF alone).
bool HoldsLineBreak(std::string_view text);

// Appends `line` and CR LF to `text`: the line tables of the writers are
// built one row at a time.
void AddLine(std::string& text, std::string_view line);
// A text read from the design, quotes doubled for a quoted property value;
// nullopt stays nullopt (the line is then left out).
std::optional<std::string> Escaped(const std::optional<std::string>& value);
// Appends head + value when the value could be read; a failed read leaves
// the line out.
void AddLine(std::string& text, std::string_view head, const std::optional<std::string>& value,
             std::string_view tail = "");
void AddLine(std::string& text, std::string_view head, const std::optional<long>& value,
             std::string_view tail = "");

// A property as the line tables write it: numbers in default decimal form,
// booleans -1 or 0, texts as they are.
std::optional<std::string> ValueText(const DesignObject& o, std::string_view property);

// The font block; with `guid` the first line names the StdFont class.
void AddFontLines(std::string& text, const DesignObject& o, bool guid = false);
void AddFixedFontLines(std::string& text, std::string_view head, std::string_view name,
                       std::string_view size);
void AddTipLine(std::string& text, const DesignObject& o);
void AddTagLine(std::string& text, const DesignObject& o);
void AddVisibleLine(std::string& text, const DesignObject& o);
void AddEnabledLine(std::string& text, const DesignObject& o);
void AddTabStopLine(std::string& text, const DesignObject& o);

// A calculated control is filled from the data control's code: the
// statement "<control><member> <expression>" as a hint, and an analysis row
// asking for review when the expression names fields or aggregates.
void AddCalculatedBinding(FormWriter& w, const ControlDesign& c, std::string_view member);

// DataSource and DataField lines of a bound control, or, for a calculated
// control ("=..."), the hint record `calculatedHint` with its fields built
// by the caller. Returns true when the control source is an expression.
bool IsCalculated(const ControlDesign& c);
void AddBindingLines(std::string& text, FormWriter& w, const ControlDesign& c);
// The "FLS" hint of a default value that is an expression:
// "{CurrentControlName}{member} {DefaultValue}".
void AddDefaultValueHint(FormWriter& w, const ControlDesign& c, std::string_view member);

}  // namespace morvane
