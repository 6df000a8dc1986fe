// Analysis writers over the support database.
#include "translator/analysis_writers.h"

#include "session/conversion_session.h"
#include "session/user_interface.h"

namespace morvane {

void ReportLine(ConversionSession& s, const std::string& moduleName, int reasonId,
                const std::string& codeLine, int lineNumber, const std::string& translatedLine,
                const std::string& routine) {
  if (!s.SupportDb) return;
  s.SupportDb->AddReportOutput(
      {moduleName, reasonId, codeLine, lineNumber, translatedLine, routine});
}

void ModuleStats(ConversionSession& s, const StatsRow& counts) {
  if (!s.SupportDb) return;
  if (s.SupportDb->MergeStats(counts)) return;
  s.SupportDb->AddRunNote(s.SupportDb->File().filename().string(),
                          "the statistics of " + counts.ModuleName + " could not be written (" +
                              std::to_string(s.SupportDb->LastErrorCode()) + ")");
}

void LogEntry(ConversionSession& s, int errorId, const std::string& report,
              const std::string& location) {
  if (!s.SupportDb) return;
  s.SupportDb->AddLog({errorId, report, location, 0});
}

}  // namespace morvane
