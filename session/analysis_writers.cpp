// Analysis writers over the support database.
#include "session/analysis_writers.h"

#include "session/conversion_session.h"
#include "session/user_interface.h"

namespace morvane {

void ReportLine(ConversionSession& s, const std::string& moduleName, int reasonId,
                const std::string& codeLine, int lineNumber, const std::string& translatedLine,
                const std::string& routine) {
  ReportOutputRow row{moduleName, reasonId, codeLine, lineNumber, translatedLine, routine};
  if (s.Deferred)
    s.Deferred->push_back(std::move(row));
  else if (s.SupportDb)
    s.SupportDb->AddReportOutput(row);
}

void ModuleStats(ConversionSession& s, const StatsRow& counts) {
  if (s.Deferred) {
    s.Deferred->push_back(counts);
    return;
  }
  if (!s.SupportDb) return;
  if (s.SupportDb->MergeStats(counts)) return;
  s.SupportDb->AddRunNote(s.SupportDb->File().filename().string(),
                          "the statistics of " + counts.ModuleName + " could not be written (" +
                              std::to_string(s.SupportDb->LastErrorCode()) + ")");
}

void LogEntry(ConversionSession& s, int errorId, const std::string& report,
              const std::string& location) {
  LogRow row{errorId, report, location, 0};
  if (s.Deferred)
    s.Deferred->push_back(std::move(row));
  else if (s.SupportDb)
    s.SupportDb->AddLog(row);
}

void AddDeferredRows(ConversionSession& s, const std::vector<DeferredRow>& rows) {
  std::vector<const ReportOutputRow*> lines;
  const auto addLines = [&] {
    if (s.SupportDb && !lines.empty()) s.SupportDb->AddReportOutputs(lines.data(), lines.size());
    lines.clear();
  };
  for (const DeferredRow& row : rows) {
    if (const auto* line = std::get_if<ReportOutputRow>(&row)) {
      lines.push_back(line);
      continue;
    }
    addLines();
    if (const auto* stats = std::get_if<StatsRow>(&row)) {
      ModuleStats(s, *stats);
    } else if (s.SupportDb) {
      s.SupportDb->AddLog(std::get<LogRow>(row));
    }
  }
  addLines();
}

}  // namespace morvane
