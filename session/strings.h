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
  // Messages of the main window.
  kMsgRequiredFile = 150,
  kMsgSecurityWarning = 151,
  kMsgNotRegistered = 152,
  kMsgSaveSettings = 153,
  kMsgTranslationCredit = 154,
  kMsgGreenTree = 155,
  kMsgSheridan = 156,
  kMsgListbox = 157,
  kMsgCombobox = 158,
  kMsgRunFailures = 159,
  kMsgAnotherInstance = 160,
  kMsgSourceWarnings = 161,
  kMsgNoSourceTreeWindow = 162,
  kMsgControlsReduced = 163,
  // Captions of the main window.
  kCapStartTranslation = 201,
  kCapProject = 202,
  kCapListControls = 203,
  kCapSecurity = 204,
  kCapMorvane = 205,
  kCapMainMenu = 206,
  kCapSaveSettings = 207,
  kCapExit = 208,
  kCapNoFiles = 209,
  kCapHelpMenu = 210,
  kCapHelpTopics = 211,
  kCapWhatsThis = 212,
  kCapCheckUpdates = 213,
  kCapAbout = 214,
  kCapDatabaseFrame = 215,
  kCapLocationMdb = 216,
  kCapOutputPath = 217,
  kCapForms = 218,
  kCapModules = 219,
  kCapReports = 220,
  kCapSelectAll = 221,
  kCapListboxType = 222,
  kCapComboboxType = 223,
  kCapListboxMode = 224,
  kCapComboboxMode = 225,
  kCapBound = 226,
  kCapUnbound = 227,
  kCapDataAccess = 228,
  kCapDao = 229,
  kCapAdo = 230,
  kCapAdditionalOptions = 231,
  kCapStandardVb = 232,
  kCapMdi = 233,
  kCapRelativePaths = 234,
  kCapSsOption = 235,
  kCapDatePicker = 236,
  kCapConvertMacros = 237,
  kCapCreateProject = 238,
  kCapAdoConnect = 239,
  kCapDisableSecurity = 240,
  kCapSecurityFrame = 241,
  kCapLocationMdw = 242,
  kCapUserName = 243,
  kCapPassword = 244,
  kCapLocateDatabase = 245,
  kCapDatabaseFilter = 246,
  kCapLocateMdw = 247,
  kCapMdwFilter = 248,
  kCapSourceTree = 249,
  kCapLocateSourceTree = 250,
  kCapVb5 = 251,
  kCapFolder = 252,
  kCapBrowse = 253,
  kCapOk = 254,
  // The progress window and the analysis dialog.
  kCapConversionProgress = 260,
  kCapConverting = 261,
  kCapTimeElapsed = 262,
  kCapMinute = 263,
  kCapMinutes = 264,
  kCapSeconds = 265,
  kCapDownloadProgress = 266,
  kCapDownloading = 267,
  kCapConversionAnalysis = 270,
  kCapReportsExplanation = 271,
  kCapReportsList = 272,
  kCapCancel = 273,
  kCapPrintPdf = 274,
  kCapAnalysisWhere = 275,
  // The update check.
  kMsgNoInternet = 280,
  kMsgNoUpdatePage = 281,
  kMsgSupportContact = 282,
  kMsgLatestInstalled = 283,
  kMsgNewerVersion = 284,
  kMsgCloseVisualBasic = 285,
  // What's This texts of the main window.
  kTipSource = 290,
  kTipOutput = 291,
  kTipLists = 292,
  kTipTranslate = 293,
  kTipListTypes = 294,
  kTipSecurity = 295,
  kTipAdoConnect = 296,
};

// The text of an id; an unknown id gives an empty text.
const std::string& Text(StringId id);

}  // namespace morvane

namespace morvane {
// The text of an id with %1, %2, ... replaced by the arguments in order.
std::string FormatText(StringId id, std::initializer_list<std::string> args);
}  // namespace morvane
