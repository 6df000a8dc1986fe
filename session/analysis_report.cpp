// Renders the analysis tables (tblStats, tblReportOutput, tblLog and the
// run's notes) as one HTML page.
#include "session/analysis_report.h"

#include <filesystem>

#include "platform/encoding.h"
#include "platform/output_directory.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/driver.h"

namespace morvane {

namespace {

struct Reason {
  long id;
  const char* text;
};

constexpr Reason kReasons[] = {
    {1, "No Visual Basic counterpart; line commented out"},
    {2, "Application member or DoCmd method not handled; line commented out"},
    {4, "Control type that cannot be converted"},
    {5, "DoCmd.CancelEvent translated; review"},
    {6, "DoCmd statement with no equivalent here; line commented out"},
    {7, "Translated; review the result"},
    {8, "List callback constant; line commented out"},
    {9, "Reference to a report; line commented out"},
    {10, "Control type that cannot be converted"},
    {11, "Generated event code; review"},
    {12, "Event property assignment; line commented out"},
    {13, "Control type that cannot be converted"},
    {14,
     "Block line not translated: a stand-in keeps the block and raises an error when it runs; "
     "the old line is kept as a comment"},
    {15, "64-bit VBA declaration written for 32-bit Visual Basic 6; review"},
    {16,
     "Rule not applied where it would corrupt the code (text in a string literal or comment, "
     "or part of a longer name); kept as written"},
    {17, "Generated file would not load or compile in Visual Basic 6"},
};

// What each tblLog error of a report says.
constexpr Reason kLogErrors[] = {
    {1, "Control of a type a DataReport cannot hold; left out"},
    {2, "Calculated text box in a section that cannot hold a function; left out"},
    {3, "Calculated text box whose function a DataReport lacks; left out"},
    {4, "Subreport; not converted (the location is its source object)"},
    {5, "Check box or bound object frame without a field; left out"},
    {6, "Report procedure; review"},
};

const char* LogText(long errorId) {
  for (const auto& r : kLogErrors)
    if (r.id == errorId) return r.text;
  return "";
}

// HTML text from Windows-1252 bytes: markup characters escaped, the page
// declares its encoding.
std::string Html(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\t':
        out += "&#9;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string Cell(const std::string& s) { return "<td>" + Html(s) + "</td>"; }
std::string Cell(long v) { return "<td class=n>" + std::to_string(v) + "</td>"; }

}  // namespace

const char* ReasonText(long reasonId) {
  for (const auto& r : kReasons)
    if (r.id == reasonId) return r.text;
  return "";
}

std::string WriteAnalysisReport(ConversionSession& s, const RunSummary& summary) {
  if (!s.SupportDb) return "";
  std::vector<std::string> out;
  out.push_back("<!DOCTYPE html>");
  out.push_back("<html><head><meta charset=\"windows-1252\"><title>Conversion analysis: " +
                Html(s.ProjectName) + "</title>");
  out.push_back(
      "<style>body{font-family:sans-serif}table{border-collapse:collapse}"
      "td,th{border:1px solid #999;padding:2px 6px;vertical-align:top}"
      "td.n{text-align:right}code,td{white-space:pre-wrap}</style></head><body>");
  out.push_back("<h1>Conversion analysis: " + Html(s.ProjectName) + "</h1>");
  out.push_back("<p>Source: " + Html(s.SourcePath) + "<br>Output: " + Html(s.OutputPath) + "</p>");
  out.push_back("<p>Lines translated: " + std::to_string(summary.LinesTranslated) +
                "; to review: " + std::to_string(summary.LinesToReview) +
                "; not translated: " + std::to_string(summary.LinesNotTranslated) + "</p>");

  if (!summary.Failures.empty()) {
    out.push_back("<h2>Not written</h2><ul>");
    for (const auto& failure : summary.Failures)
      out.push_back("<li>" + Html(Utf8ToWindows1252(failure)) + "</li>");
    out.push_back("</ul>");
  }

  auto names = s.SupportDb->Renamings();
  if (!names.empty()) {
    out.push_back(
        "<h2>Names</h2><table><tr><th>Access name</th><th>Visual Basic name</th><th>File</th>"
        "<th>Why</th></tr>");
    for (const auto& r : names)
      out.push_back("<tr>" + Cell(r.Object) + Cell(r.VbName) + Cell(r.File) + Cell(r.Why) +
                    "</tr>");
    out.push_back("</table>");
  }

  auto notes = s.SupportDb->RunNotes();
  if (!notes.empty()) {
    out.push_back("<h2>Not done in this run</h2><ul>");
    for (const auto& [object, note] : notes)
      out.push_back("<li>" + (object.empty() ? "" : "<b>" + Html(object) + "</b>: ") + Html(note) +
                    "</li>");
    out.push_back("</ul>");
  }

  out.push_back(
      "<h2>Modules</h2><table><tr><th>Module</th><th>Total lines</th><th>Code lines</th>"
      "<th>Comment lines</th><th>Blank lines</th><th>Not translated</th>"
      "<th>To review</th><th>Subs</th><th>Functions</th><th>Controls</th>"
      "<th>Controls partly converted</th></tr>");
  for (const auto& r : s.SupportDb->Stats())
    out.push_back("<tr>" + Cell(r.ModuleName) + Cell(r.TotalLines) + Cell(r.CodeLines) +
                  Cell(r.CommentLines) + Cell(r.BlankLines) + Cell(r.LinesNotTranslated) +
                  Cell(r.LinesPotentiallyConverted) + Cell(r.SubCount) + Cell(r.ProcCount) +
                  Cell(r.CtlCount) + Cell(r.CtlsPartiallyConverted) + "</tr>");
  out.push_back("</table>");

  out.push_back(
      "<h2>Lines</h2><table><tr><th>Module</th><th>Line</th><th>Routine</th>"
      "<th>Reason</th><th>Access code</th><th>Translated</th></tr>");
  for (const auto& r : s.SupportDb->ReportOutput())
    out.push_back("<tr>" + Cell(r.ModuleName) + Cell(r.LineNumber) + Cell(r.Routine) + "<td>" +
                  std::to_string(r.ReasonID) + " " + Html(ReasonText(r.ReasonID)) + "</td>" +
                  Cell(r.CodeLine) + Cell(r.TranslatedLine) + "</tr>");
  out.push_back("</table>");

  auto log = s.SupportDb->Log();
  if (!log.empty()) {
    out.push_back("<h2>Log</h2><table><tr><th>Error</th><th>Report</th><th>Location</th></tr>");
    for (const auto& r : log)
      out.push_back("<tr><td>" + std::to_string(r.ErrorID) + " " + Html(LogText(r.ErrorID)) +
                    "</td>" + Cell(r.Report) + Cell(r.Location) + "</tr>");
    out.push_back("</table>");
  }
  out.push_back("</body></html>");

  std::filesystem::path dir = std::filesystem::path(s.OutputPath) / "analysis";
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  std::filesystem::path file = dir / "index.html";
  const std::string text = JoinCrLf(out);
  if (s.Output ? !s.Output->Write(file, text, nullptr) : !WriteFileWhole(file, text, nullptr))
    return "";
  return file.string();
}

}  // namespace morvane
