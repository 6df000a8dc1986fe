// The report converter the driver calls today: the report writer over the
// designs of the source tree, its files written where the driver looks for
// them, its rows put into the analysis, and the data environment written
// once after the last report.
#pragma once

#include <string>

#include "reports/data_environment.h"
#include "session/converters.h"

namespace morvane {

class DesignStore;

class DesignReportConverter : public ReportConverter {
 public:
  explicit DesignReportConverter(DesignStore& store) : store_(store) {}
  // Writes <Report>.dsr and <Report>.dsx and returns the report's
  // initialisation code.
  std::string ConvertReport(ConversionSession& s, const std::string& name) override;
  // Writes rptEnvironment.dsr (and rptEnvironment.dsx when a command text
  // needs it) and gives the project the libraries of the designers.
  void WriteDataEnvironment(ConversionSession& s) override;

 private:
  DesignStore& store_;
  DataEnvironment environment_;
};

}  // namespace morvane
