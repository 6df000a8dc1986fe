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
    {kMsgControlsReduced,
     "The form \"%1\" had %2 controls, over Visual Basic's limit of 254: %3 control arrays of "
     "labels bring it to %4."},
    {kCapStartTranslation, "Start &Translation"},
    {kCapProject, "&Project"},
    {kCapListControls, "List &Controls"},
    {kCapSecurity, "&Security Information"},
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
