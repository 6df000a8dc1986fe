// The string table: every caption and message the system shows, by numeric
// id, so that a translation replaces the table and nothing else. Generated
// code is never translated and does not live here.
#pragma once

#include <initializer_list>
#include <string>

namespace morvane {

enum StringId : int {
  // Start of a run.
  kMsgOutputPathRequired = 101,
  kMsgCreateDirectory = 102,
  kMsgNothingToConvert = 103,
  kMsgReplaceForm = 104,
  kMsgReplaceReport = 105,
  kMsgReplaceModule = 106,
  kMsgReplaceEnding = 107,
  // Choosing and opening the database.
  kMsgInvalidDatabase = 110,
  kMsgNotAccess2000 = 111,
  kMsgNotCompiled = 112,
  kMsgAdpCatalog = 113,
  // Command line and run summary.
  kMsgNoSuchObject = 120,
  kMsgSourceUnreadable = 121,
  kMsgOutputInsideSource = 122,
  kMsgOutputHoldsSource = 123,
  kMsgNoSourceTree = 124,
  kMsgSummaryObjects = 130,
  kMsgSummaryLines = 131,
  kMsgSummaryAnalysis = 132,
  kMsgNotBuiltForms = 140,
  kMsgNotBuiltReports = 141,
  kMsgNotBuiltMacros = 142,
  kMsgNotBuiltStage = 143,
  kMsgObjectNotInSource = 144,
  kMsgConversionCodeMissing = 145,
  kMsgTooManyControls = 146,
  kMsgObjectNotRead = 147,
  kMsgObjectKeptOut = 148,
  kMsgSummaryControls = 149,
  kMsgControlsReduced = 150,
  // Captions of the main window.
  kCapStartTranslation = 201,
  kCapProject = 202,
  kCapListControls = 203,
  kCapSecurity = 204,
};

// The text of an id; an unknown id gives an empty text.
const std::string& Text(StringId id);

}  // namespace morvane

namespace morvane {
// The text of an id with %1, %2, ... replaced by the arguments in order.
std::string FormatText(StringId id, std::initializer_list<std::string> args);
}  // namespace morvane
