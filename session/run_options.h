// The options of a run, as the main window or the command line set them.
// One set, filled before the run starts and only read while it runs.
#pragma once

#include <filesystem>
#include <string>

namespace morvane {

struct RunOptions {
  bool StandardControls = true;
  bool IsMdi = true;
  bool MacrosWanted = true;
  bool CreateProject = true;
  bool SecurityDisabled = true;  // chkSecurity ticked
  int ListboxType = 5;           // lstListboxType ListIndex 4 + 1
  int ComboboxType = 4;          // lstComboBoxType ListIndex 3 + 1
  bool ListboxBound = false;
  bool ComboboxBound = true;
  bool UseAdo = true;
  bool IsVb5 = false;
  bool RelativePaths = true;  // chkRelativePaths
  bool SsOptionSet = false;   // chkSSOption
  bool DatePicker = true;     // chkDTPicker
  std::string UserName = "Admin";
  std::string Password;
  std::string WorkgroupFile;  // txtMDW
  // The connection string of the generated code; empty takes the source's.
  std::string AdoConnect;
  std::filesystem::path DataDir;  // where the companion files stand
  // Standard modules are translated on a second thread while the forms are
  // converted; the output is the same either way.
  bool TranslateModulesAside = true;
};

}  // namespace morvane
