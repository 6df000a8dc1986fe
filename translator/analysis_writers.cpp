// Analysis writers over the support database.
#include "translator/analysis_writers.h"

#include <sqlite3.h>

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
  if (!s.Ui) return;
  int number = s.SupportDb->Handle() ? sqlite3_extended_errcode(s.SupportDb->Handle()) : -1;
  s.Ui->ShowMessage(s.SupportDb->File().filename().string() + "\n" + std::to_string(number),
                    MessageIcon::Stop);
}

void LogEntry(ConversionSession& s, int errorId, const std::string& report,
              const std::string& location) {
  if (!s.SupportDb) return;
  s.SupportDb->AddLog({errorId, report, location, 0});
}

}  // namespace morvane
