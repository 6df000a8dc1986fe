// The conversion analysis as the user reads it: an HTML page rendered from the
// analysis tables of the support database into <output>/analysis/.
#pragma once

#include <string>

namespace morvane {

struct ConversionSession;
struct RunSummary;

// Writes the analysis and returns its path (empty when it could not be
// written).
std::string WriteAnalysisReport(ConversionSession& s, const RunSummary& summary);

// What a reason code of tblReportOutput means, in words.
const char* ReasonText(long reasonId);

}  // namespace morvane
