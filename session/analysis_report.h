// The conversion analysis as the user reads it: HTML pages rendered from the
// analysis tables of the support database into <output>/analysis/. The
// page index.html holds all of it: a summary with the counts of each object,
// then a table for each object with its rows, the Access line beside the
// Visual Basic line. The reports the analysis dialog offers are parts of it,
// each on a page of its own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace morvane {

struct ConversionSession;
struct RunSummary;
class SupportDatabase;

// Writes analysis/index.html and returns its path (empty when it could not
// be written).
std::string WriteAnalysisReport(ConversionSession& s, const RunSummary& summary);

// The Conversion Analysis reports of the support database, in the order the
// analysis dialog lists them.
const std::vector<std::string>& AnalysisReportNames();

// Prints one of those reports: writes it from the tables of `db` into
// `outputDir`/analysis/ and returns the page's path; empty, with the reason
// in `err`, for an unknown report or a failed write.
std::string PrintAnalysisReport(const SupportDatabase& db, const std::string& projectName,
                                const std::filesystem::path& outputDir,
                                const std::string& reportName, std::string* err);

// What a reason code of tblReportOutput means, in words.
const char* ReasonText(long reasonId);

}  // namespace morvane
