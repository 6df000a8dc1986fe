// The writers of the conversion analysis: one tblReportOutput row per line
// that needed attention, one tblStats row per module, one tblLog row per event
// of a report. Without a support database in the session they do nothing; a
// session that defers its rows keeps them instead.
#pragma once

#include <string>
#include <vector>

#include "platform/support_db.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"

namespace morvane {

void ReportLine(ConversionSession& s, const std::string& moduleName, int reasonId,
                const std::string& codeLine, int lineNumber, const std::string& translatedLine,
                const std::string& routine);

// Keeps one row per module: found by ModuleName or added; each count is
// written only when it is not 0, so a later call with other counts keeps the
// earlier ones. A failed write shows the database's name and the error number.
void ModuleStats(ConversionSession& s, const StatsRow& counts);

void LogEntry(ConversionSession& s, int errorId, const std::string& report,
              const std::string& location);

// Adds the rows a deferring session kept, in their order, as the writers
// above would have added them.
void AddDeferredRows(ConversionSession& s, const std::vector<DeferredRow>& rows);

}  // namespace morvane
