// The one shared record of a conversion run: the options of the main window,
// the objects and paths of the run, the selection lists and the per-form
// fields that the hint processor and the code translator hand to the driver.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace morvane {

class Catalog;
class SourceTree;
class SupportDatabase;
class ProjectModel;
class UserInterface;

// A list filled from index 1; index 0 exists and stays empty, so the upper
// bound of the list is its count.
using OneBasedList = std::vector<std::string>;

struct ConversionSession {
  // Options of the main window.
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
  // Reach the walkers only through the option word.
  bool RelativePaths = true;
  bool SsOptionSet = false;
  bool DatePicker = true;
  // Window values that are read directly by the steps that need them.
  bool WantRelativePaths = true;  // chkRelativePaths
  bool WantSsOptionSet = false;   // chkSSOption
  bool WantDatePicker = true;     // chkDTPicker
  std::string WorkgroupFile;      // txtMDW

  std::string OptionWord;
  int OptionWordLength = 0;

  // Objects of the run. The session does not own them.
  Catalog* SourceDb = nullptr;      // DAO view of the working copy
  SourceTree* AccessApp = nullptr;  // stands in for Access: designs and module code
  SupportDatabase* SupportDb = nullptr;
  ProjectModel* ActiveProject = nullptr;
  UserInterface* Ui = nullptr;

  // Paths and names. OutputPath always ends in the path separator.
  std::string OutputPath;
  std::string SourcePath;
  std::string ProjectFile;
  std::string ProjectName;
  std::string UserName = "Admin";
  std::string Password;
  std::string AdoConnect;
  std::string CurrentFile;
  std::filesystem::path DataDir;  // where the companion files stand

  // Selections and catalogs.
  OneBasedList FormList{""};
  OneBasedList ModuleList{""};
  OneBasedList ReportList{""};
  std::vector<std::string> ConvertedNames;
  bool IsAdp = false;

  // Per-run flags.
  bool NeedConversionCode = true;
  bool SettingsDirty = false;
  std::array<bool, 21> ListControlsUsed{};
  std::string StartupFormName;
  // Procedure names the macro converter has given out; grows across macros.
  std::vector<std::string> MacroProcNames;

  // Per-form fields.
  bool FormFailed = false;
  std::string FormLoadCode;
  std::string LabelCaptionCode;
  bool FormPictureTiled = false;
  bool FormPictureStretched = false;
  bool UsesOpenArgs = false;
  bool UsesFilter = false;
  bool UsesFilterOn = false;
  bool UsesOrderBy = false;
  bool UsesOrderByOn = false;
  std::array<bool, 3> InitCalls{};
  std::vector<std::string> DatasheetForms{""};
  std::vector<std::string> OpenedSubforms{""};
  int ControlCount = 0;
  int PartialControlCount = 0;
  std::string CurrentControlName;
  bool PlainListControl = false;
  std::string ReportInitCode;
  std::string HintText;

  // Resets the per-form fields before each form (the driver's step F1).
  void ResetFormFields();
};

// Packs the option fields into the eleven-character option word.
std::string PackOptionWord(const ConversionSession& s);
// Stores OutputPath, unpacks the word into the walkers' fields and sets
// OptionWordLength. Returns true when the working store's tblFields could not
// be opened.
bool UnpackOptionWord(ConversionSession& s, const std::string& outputPath,
                      const std::string& optionWord);

}  // namespace morvane
