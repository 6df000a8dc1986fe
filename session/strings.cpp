// The English string table.
#include "session/strings.h"

#include <map>

namespace morvane {

namespace {

struct Entry {
  StringId id;
  const char* text;
};

constexpr Entry kEnglish[] = {
    {kMsgOutputPathRequired, "The output path must be specified."},
    {kMsgCreateDirectory, "The specified directory does not exist.  Do you want to create it?"},
    {kMsgNothingToConvert, "Nothing to convert!"},
    {kMsgReplaceForm, "The form "},
    {kMsgReplaceReport, "The report "},
    {kMsgReplaceModule, "The module "},
    {kMsgReplaceEnding,
     " already exists in the project. Do you want to replace it with a newly converted version?"},
    {kMsgInvalidDatabase,
     "Invalid database file selected.  If this is a secured database, you must close and restart "
     "Morvane and fill in the Security Information section prior to choosing this database.  The "
     "user name selected must have design time permissions for the objects you wish to convert.  "
     "If this is an Access 2.0, Access 7.0 or an Access 8.0 database, convert it to an Access 2000 "
     "database and then run Morvane."},
    {kMsgNotAccess2000,
     "The database you have chosen to open is opened exclusively by another user, or is not an "
     "Access 2000 or Access XP database. Close all sessions of the database, and rerun Morvane. If "
     "the database is an Access 97 database, it must be converted to the Access 2000 file format "
     "before using Morvane 4.7."},
    {kMsgNotCompiled,
     "The database that you have chosen to convert is not compiled.  The conversion accuracy will "
     "be improved if you compile the database before converting it.  Do you wish to close Morvane "
     "and compile your database?"},
    {kMsgAdpCatalog,
     "Unable to get catalog of Access Data Project. Make sure that the selected file is an Access "
     "data project, and try again."},
    {kMsgNoSuchObject, "The source has no %1 named \"%2\"."},
    {kMsgTooManyControls,
     "The form \"%1\" has %2 controls.  Visual Basic has a limit of 254 controls, and Morvane was "
     "unable to find a way to reduce the control count.  The form will not be converted."},
    {kMsgSourceUnreadable, "The source %1 cannot be read: %2"},
    {kMsgOutputInsideSource,
     "The output directory %1 lies inside the source tree; choose a directory outside it."},
    {kMsgOutputHoldsSource,
     "The working copy would replace the source database %1; choose another output directory."},
    {kMsgNoSourceTree,
     "No source tree found for %1: put the exported objects in %2 or name them with "
     "--source-tree."},
    {kMsgSummaryObjects, "Converted %1 object(s): %2 form(s), %3 report(s), %4 module(s)%5."},
    {kMsgSummaryLines, "Lines: %1 translated, %2 to review, %3 not translated."},
    {kMsgSummaryAnalysis, "Conversion analysis: %1"},
    {kMsgNotBuiltForms,
     "Form conversion is not available in this version; the form was not "
     "converted."},
    {kMsgNotBuiltReports,
     "Report conversion is not available in this version; the report was "
     "not converted."},
    {kMsgNotBuiltMacros,
     "Macro conversion is not available in this version; the macros were "
     "not converted."},
    {kMsgNotBuiltStage, "Translation stage not available in this version: %1"},
    {kMsgObjectNotInSource,
     "The catalog lists %1 \"%2\" but the source tree has no export of it; "
     "it was not converted."},
    {kMsgConversionCodeMissing,
     "The conversion code base text %1 is missing; "
     "MorvaneConversionCode.bas was not written."},
    {kMsgObjectNotRead, "it could not be read; nothing was written for it"},
    {kMsgObjectKeptOut, "it was kept out of the project"},
    {kMsgSummaryControls, "Controls not converted: %1; each is named in the analysis."},
    {kMsgRequiredFile, "Required file %1 not found.  Please reinstall application."},
    {kMsgSecurityWarning,
     "Checking this box will disable the translator's ability to open secured databases, and "
     "should only be done if the translator is having difficulty with unsecured Access "
     "databases."},
    {kMsgNotRegistered,
     "The [%1] controls are not registered on this machine. Any form that has a [%2] containing "
     "three or more columns will not be converted properly. Please select a different option. "
     "This message can be ignored if no form that is to be converted has a [%2] with three or "
     "more columns."},
    {kMsgSaveSettings, "Save session settings?"},
    {kMsgTranslationCredit, "[LANGUAGE] translation performed by [COMPANY]"},
    {kMsgGreenTree, "GreenTree DataList"},
    {kMsgSheridan, "Sheridan Data Widget"},
    {kMsgListbox, "listbox"},
    {kMsgCombobox, "combobox"},
    {kMsgRunFailures, "These objects could not be read or written:"},
    {kMsgAnotherInstance, "Morvane is already running."},
    {kMsgNoSourceTreeWindow,
     "No source tree found for %1: put the exported objects in %2, or name their folder as the "
     "Source Tree of the MDB."},
    {kMsgSourceWarnings,
     "The source tree has these problems; the objects they name may not come across as they "
     "should:"},
    {kMsgControlsReduced,
     "The form \"%1\" had %2 controls, over Visual Basic's limit of 254: %3 control arrays of "
     "labels bring it to %4."},
    {kCapStartTranslation, "Start &Translation"},
    {kCapProject, "&Project"},
    {kCapListControls, "List &Controls"},
    {kCapSecurity, "&Security Information"},
    {kCapMorvane, "Morvane"},
    {kCapMainMenu, "&Main"},
    {kCapSaveSettings, "S&ave Settings"},
    {kCapExit, "E&xit"},
    {kCapNoFiles, "(no files)"},
    {kCapHelpMenu, "&Help"},
    {kCapHelpTopics, "&Help Topics"},
    {kCapWhatsThis, "&What's This"},
    {kCapCheckUpdates, "Check for &Updates"},
    {kCapAbout, "&About"},
    {kCapDatabaseFrame, "Access Database To Convert"},
    {kCapLocationMdb, "&Location of Access MDB:"},
    {kCapOutputPath, "&Output Path:"},
    {kCapForms, "&Forms"},
    {kCapModules, "&Modules"},
    {kCapReports, "&Reports"},
    {kCapSelectAll, "Select All"},
    {kCapListboxType, "&Listbox Type"},
    {kCapComboboxType, "Combobo&x Type"},
    {kCapListboxMode, "Lis&tbox Mode"},
    {kCapComboboxMode, "Combobox M&ode"},
    {kCapBound, "Bound"},
    {kCapUnbound, "Unbound"},
    {kCapDataAccess, "&Data Access"},
    {kCapDao, "DAO"},
    {kCapAdo, "ADO"},
    {kCapAdditionalOptions, "&Additional Options"},
    {kCapStandardVb, "&Use Standard VB Controls"},
    {kCapMdi, "Create MD&I Project"},
    {kCapRelativePaths, "Use &Relative Paths"},
    {kCapSsOption, "Use SS D&B Option Set"},
    {kCapDatePicker, "Use DatePicker Control"},
    {kCapConvertMacros, "Convert &Macros"},
    {kCapCreateProject, "Create &New Project"},
    {kCapAdoConnect, "AD&O Connect String"},
    {kCapDisableSecurity, "&Disable Security Checking"},
    {kCapSecurityFrame, "Security &Information"},
    {kCapLocationMdw, "&Location of Access MD&W:"},
    {kCapUserName, "&User Name:"},
    {kCapPassword, "P&assword:"},
    {kCapLocateDatabase, "Locate Access Database to Convert"},
    {kCapDatabaseFilter, "Access Databases (*.mdb; *.adp)|*.mdb;*.adp"},
    {kCapLocateMdw, "Locate Access Security File"},
    {kCapMdwFilter, "Access Security Files (*.mdw;*.mda)|*.mdw;*.mda"},
    {kCapSourceTree, "Source T&ree of the MDB:"},
    {kCapLocateSourceTree, "Locate Access Source Tree"},
    {kCapVb5, "Write for Visual &Basic 5"},
    {kCapFolder, "F&older..."},
    {kCapBrowse, "..."},
    {kCapOk, "OK"},
    {kCapConversionProgress, "Conversion Progress"},
    {kCapConverting, "Converting..."},
    {kCapTimeElapsed, "Time Elapsed:"},
    {kCapMinute, "minute"},
    {kCapMinutes, "minutes"},
    {kCapSeconds, "seconds"},
    {kCapDownloadProgress, "Download Progress"},
    {kCapDownloading, "Downloading..."},
    {kCapConversionAnalysis, "Conversion Analysis"},
    {kCapReportsExplanation,
     "Select the Access to Visual Basic Conversion Analysis reports that you  want to print out, "
     "and press OK.  Press Cancel to not print any reports.  You may print out the conversion "
     "reports at a later date by opening the morvane.mdb database and viewing the reports tab."},
    {kCapReportsList, "&Reports"},
    {kCapCancel, "Cancel"},
    {kCapPrintPdf, "Print to &PDF files"},
    {kCapAnalysisWhere, "The analysis of this run is kept in %1 and shown in %2."},
    {kMsgNoInternet,
     "Couldn't open internet browser. Check your internet connection settings, and try again."},
    {kMsgNoUpdatePage,
     "Couldn't open update web page. Verify your that you can connect to the Internet."},
    {kMsgSupportContact, " If it still fails, ask the supplier of your copy of Morvane for help."},
    {kMsgLatestInstalled, "The latest version of your product is currently installed."},
    {kMsgNewerVersion,
     "There is a newer version of Morvane 4.7 available. Do you want to download it now?"},
    {kMsgCloseVisualBasic,
     "You should close all sessions of Visual Basic before installing the new version of "
     "Morvane."},
    {kTipSource,
     "The Access database (.mdb or .adp) with its exported source tree beside it as "
     "<name>.src, or the source tree folder itself."},
    {kTipOutput,
     "The folder that receives the Visual Basic project, the working copy of the database and "
     "the conversion analysis."},
    {kTipLists, "The objects to convert. Click an entry to select it or to clear it."},
    {kTipTranslate,
     "Converts the selected objects into a Visual Basic 6 project in the output folder."},
    {kTipListTypes,
     "The control that a list box or combo box of the Access forms becomes when Visual Basic's "
     "own control cannot serve it."},
    {kTipSecurity,
     "When this is not ticked, the database is opened with the workgroup file, user name and "
     "password below."},
    {kTipAdoConnect, "The connection string the generated program uses to open its database."},
};

}  // namespace

const std::string& Text(StringId id) {
  static const std::map<int, std::string> table = [] {
    std::map<int, std::string> m;
    for (const auto& e : kEnglish) m.emplace(e.id, e.text);
    return m;
  }();
  static const std::string empty;
  auto it = table.find(id);
  return it == table.end() ? empty : it->second;
}

}  // namespace morvane

namespace morvane {

std::string FormatText(StringId id, std::initializer_list<std::string> args) {
  const std::string& text = Text(id);
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9') {
      size_t n = static_cast<size_t>(text[i + 1] - '1');
      if (n < args.size()) out += *(args.begin() + n);
      ++i;
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace morvane
