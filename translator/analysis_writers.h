// The writers of the conversion analysis: one tblReportOutput row per line
// that needed attention, one tblStats row per module, one tblLog row per event
// of a report. Without a support database in the session they do nothing.
#pragma once

#include <string>

#include "platform/support_db.h"

namespace morvane {

struct ConversionSession;

// Reason codes of tblReportOutput.
enum ReasonId : int {
  kReasonNoCounterpart = 1,    // property or statement with no Visual Basic counterpart
  kReasonNotHandled = 2,       // Application member, DoCmd method not handled
  kReasonCancelEvent = 5,      // DoCmd.CancelEvent
  kReasonNoEquivalent = 6,     // DoCmd statement with no equivalent in this form
  kReasonReview = 7,           // translated; the user should review the result
  kReasonListCallback = 8,     // list callback constants
  kReasonReportReference = 9,  // references to reports
  kReasonEventProperty = 12,   // event property assignment
  kReasonBlockKept = 14,       // block line not translated; a stand-in keeps the block
  kReason64Bit = 15,           // 64-bit declaration written for Visual Basic 6
  kReasonKeptChoice = 16,      // a rule left code alone that its plain text would corrupt
};

void ReportLine(ConversionSession& s, const std::string& moduleName, int reasonId,
                const std::string& codeLine, int lineNumber, const std::string& translatedLine,
                const std::string& routine);

// Keeps one row per module: found by ModuleName or added; each count is
// written only when it is not 0, so a later call with other counts keeps the
// earlier ones. A failed write shows the database's name and the error number.
void ModuleStats(ConversionSession& s, const StatsRow& counts);

void LogEntry(ConversionSession& s, int errorId, const std::string& report,
              const std::string& location);

}  // namespace morvane
