// The values the window keeps between sessions, without any window: the
// options packed into the one text ControlDefaults, the rotation of the four
// most recent databases, and the reading of a description file of the update
// check. Plain code, so it is tested without Qt.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace morvane {

// The options of the main window as ControlDefaults keeps them. A list index
// of -1 is no selection.
struct WindowOptions {
  bool SecurityDisabled = true;  // chkSecurity
  int ListboxIndex = -1;         // lstListboxType ListIndex
  bool ListboxBound = false;     // optListboxMode element 1
  int ComboboxIndex = -1;        // lstComboBoxType ListIndex
  bool ComboboxBound = true;     // optCBOMode element 1
  bool SsOptionSet = false;      // chkSSOption
  bool Mdi = true;               // chkMDI
  bool StandardControls = true;  // chkStandardVB
  bool RelativePaths = true;     // chkRelativePaths
  bool CreateProject = true;     // chkCreateProject
  bool ConvertMacros = true;     // chkConvertMacros
  bool Ado = true;               // optDataAccess element 1
  bool DatePicker = true;        // chkDTPicker
};

// The fifteen characters of ControlDefaults.
std::string PackControlDefaults(const WindowOptions& o);

// Restores the options from a stored text over `o`. A position the text
// lacks reads as empty: the date picker is ticked, every other flag takes
// the branch of any other text, and a list keeps no selection. A list index
// that is no digit, or lies outside the list (`listboxCount`,
// `comboboxCount` entries), leaves the list without a selection.
void UnpackControlDefaults(const std::string& text, int listboxCount, int comboboxCount,
                           WindowOptions* o);

// LastFile1..LastFile4, newest first.
using RecentFiles = std::array<std::string, 4>;

// The rotation when `path` is chosen: a path already among the first three
// moves to the front, any other pushes the oldest out. No path occurs twice
// unless it did before.
void RotateRecentFiles(RecentFiles* files, const std::string& path);

// A value as the store keeps it: never empty, so an empty text is one blank.
std::string StoredText(const std::string& text);

// ReadIniValue: the value of `key` in `[section]` of an INI file; empty when
// the file, section or key is missing. At most 1024 characters, cut at the
// first zero character.
std::string ReadIniValue(const std::filesystem::path& file, const std::string& section,
                         const std::string& key);

// A date as a day number, from a date text (YYYY-MM-DD, or M/D/YYYY as
// Visual Basic writes a date) or from the number of days since 30 December
// 1899 that a stored date holds. Nothing for any other text.
std::optional<long> DayNumber(const std::string& text);

}  // namespace morvane
