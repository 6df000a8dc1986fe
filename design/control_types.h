// Access control types by the block names of the SaveAsText text, and the
// section blocks of forms and reports with their section numbers.
#pragma once

#include <string_view>

namespace morvane {

struct ControlTypeRow {
  std::string_view BlockName;
  int Number;      // Access's ControlType
  bool Converted;  // false: a later Access version's type with no counterpart
};

// Ordered by number. The later types are kept so that a file holding them
// reads, and the loader can name them in its notes.
inline constexpr ControlTypeRow kControlTypes[] = {
    {"Label", 100, true},
    {"Rectangle", 101, true},
    {"Line", 102, true},
    {"Image", 103, true},
    {"CommandButton", 104, true},
    {"OptionButton", 105, true},
    {"CheckBox", 106, true},
    {"OptionGroup", 107, true},
    {"BoundObjectFrame", 108, true},
    {"TextBox", 109, true},
    {"ListBox", 110, true},
    {"ComboBox", 111, true},
    {"Subform", 112, true},
    {"UnboundObjectFrame", 114, true},
    {"PageBreak", 118, true},
    {"CustomControl", 119, true},
    {"ToggleButton", 122, true},
    {"Tab", 123, true},
    {"Page", 124, true},
    {"Attachment", 126, false},
    {"EmptyCell", 127, false},
    {"WebBrowser", 128, false},
    {"NavigationControl", 129, false},
    {"NavigationButton", 130, false},
    {"Chart", 133, false},
    {"EdgeBrowser", 134, false},
};

// Access's control types by name, the one place that numbers them.
inline constexpr int kLabel = 100;
inline constexpr int kRectangle = 101;
inline constexpr int kLine = 102;
inline constexpr int kImage = 103;
inline constexpr int kCommandButton = 104;
inline constexpr int kOptionButton = 105;
inline constexpr int kCheckBox = 106;
inline constexpr int kOptionGroup = 107;
inline constexpr int kBoundObjectFrame = 108;
inline constexpr int kTextBox = 109;
inline constexpr int kListBox = 110;
inline constexpr int kComboBox = 111;
inline constexpr int kSubform = 112;
inline constexpr int kUnboundObjectFrame = 114;
inline constexpr int kPageBreak = 118;
inline constexpr int kCustomControl = 119;
inline constexpr int kToggleButton = 122;
inline constexpr int kTabControl = 123;
inline constexpr int kPage = 124;

// Section blocks. Group headers and footers take their number from the
// block's BreakLevel: 5 + 2 * level and 6 + 2 * level.
struct SectionRow {
  std::string_view BlockName;
  int Number;
};

inline constexpr SectionRow kSectionBlocks[] = {
    {"Section", 0},      {"FormHeader", 1},  {"ReportHeader", 1}, {"FormFooter", 2},
    {"ReportFooter", 2}, {"PageHeader", 3},  {"PageFooter", 4},   {"BreakHeader", 5},
    {"BreakFooter", 6},  {"GroupHeader", 5}, {"GroupFooter", 6},
};

// The row of a control block name (without regard to case), or null.
const ControlTypeRow* ControlTypeByName(std::string_view blockName);
const ControlTypeRow* ControlTypeByNumber(int number);
// The section number of a section block name at group level 0, or -1.
int SectionNumberOf(std::string_view blockName);

}  // namespace morvane
