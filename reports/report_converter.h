// The report converter the driver calls: the report writer over the designs
// of the source tree, its text and binary records in the report's state, its
// rows put into the analysis, and the data environment made once after the
// last report.
#pragma once

#include <string>

#include "reports/data_environment.h"
#include "session/converters.h"

namespace morvane {

class DesignStore;

class DesignReportConverter : public ReportConverter {
 public:
  explicit DesignReportConverter(DesignStore& store) : store_(store) {}
  // The report's designer text and .dsx records into its state; returns the
  // report's initialisation code.
  std::string ConvertReport(ConversionSession& s, const std::string& name) override;
  // The text of rptEnvironment.dsr (writing rptEnvironment.dsx when a
  // command text needs it); gives the project the libraries of the
  // designers.
  TextDocument WriteDataEnvironment(ConversionSession& s) override;

 private:
  DesignStore& store_;
  DataEnvironment environment_;
};

}  // namespace morvane
