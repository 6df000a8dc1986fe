// The report writer: the design of one Access report becomes the text of a
// Visual Basic DataReport designer (.dsr), its binary companion (.dsx) with
// the binding to the data environment and the pictures, the code its
// DataReport_Initialize runs, and the rows of the analysis. It reads the
// design and the catalog only; writing the files is the caller's.
#pragma once

#include <string>
#include <vector>

#include "platform/support_db.h"

namespace morvane {

class Catalog;
class DataEnvironment;
class FormDesign;

// tblLog error ids of the report writer, every one a control left out.
enum ReportProblem : int {
  kReportUnknownControl = 1,     // a control of a type a DataReport can't hold
  kReportFunctionSection = 2,    // a calculated text box in a section that can't hold a function
  kReportUnknownFunction = 3,    // a calculated text box whose function isn't supported
  kReportSubreport = 4,          // a subreport (the location is its source)
  kReportUnboundCheckFrame = 5,  // a check box or bound object frame with no field
};

struct ConvertedReport {
  std::string Name;                     // the report's Visual Basic name
  std::string File;                     // its file name stem, for the Bindings line
  std::string Dsr;                      // the designer text, each line ended by CR LF
  std::string Dsx;                      // the companion's bytes: the binding, then the pictures
  std::string InitCode;                 // lines of DataReport_Initialize, joined by CR LF
  std::vector<LogRow> Log;              // controls left out (tblLog)
  std::vector<ReportOutputRow> Review;  // items to review (tblReportOutput)
  int Items = 0;                        // controls that became items
  int ItemsToReview = 0;                // of those, items with a review row
};

// The binding record that opens every report's .dsx: the report's data
// source is the data environment rptEnvironment.
std::string ReportBindingsRecord();

// Converts the report. Its command goes into `environment`, which names the
// member the report binds to. The .dsx starts with the binding record; the
// pictures follow it.
// `vbName` and `file` are the names the run gives the report's designer and
// its files.
ConvertedReport ConvertReportDesign(const FormDesign& report, const Catalog* db,
                                    DataEnvironment& environment, const std::string& vbName,
                                    const std::string& file);

}  // namespace morvane
