// Renders the analysis tables (tblStats, tblReportOutput, tblLog and the
// run's notes) as HTML pages: the whole analysis in index.html, and each
// report of the analysis dialog on a page of its own.
#include "session/analysis_report.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/encoding.h"
#include "platform/output_directory.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "session/naming.h"

namespace morvane {

namespace {

struct Reason {
  long id;
  const char* text;
  bool review;  // the line was translated and wants a look; otherwise it was not translated
};

constexpr Reason kReasons[] = {
    {1, "No Visual Basic counterpart; line commented out", false},
    {2, "Application member or DoCmd method not handled; line commented out", false},
    {4, "Control type that cannot be converted", false},
    {5, "DoCmd.CancelEvent translated; review", true},
    {6, "DoCmd statement with no equivalent here; line commented out", false},
    {7, "Translated; review the result", true},
    {8, "List callback constant; line commented out", false},
    {9, "Reference to a report; line commented out", false},
    {10, "Control type that cannot be converted", false},
    {11, "Generated event code; review", true},
    {12, "Event property assignment; line commented out", false},
    {13, "Control type that cannot be converted", false},
    {14,
     "Block line not translated: a stand-in keeps the block and raises an error when it runs; "
     "the old line is kept as a comment",
     false},
    {15, "64-bit VBA declaration written for 32-bit Visual Basic 6; review", true},
    {16,
     "Rule not applied where it would corrupt the code (text in a string literal or comment, "
     "or part of a longer name); kept as written",
     true},
    {17, "Generated file would not load or compile in Visual Basic 6", false},
};

// What each tblLog error of a report says.
constexpr Reason kLogErrors[] = {
    {1, "Control of a type a DataReport cannot hold; left out", false},
    {2, "Calculated text box in a section that cannot hold a function; left out", false},
    {3, "Calculated text box whose function a DataReport lacks; left out", false},
    {4, "Subreport; not converted (the location is its source object)", false},
    {5, "Check box or bound object frame without a field; left out", false},
    {6, "Report procedure; review", true},
};

const Reason* Find(const Reason* begin, const Reason* end, long id) {
  for (const Reason* r = begin; r != end; ++r)
    if (r->id == id) return r;
  return nullptr;
}

const char* LogText(long errorId) {
  const Reason* r = Find(std::begin(kLogErrors), std::end(kLogErrors), errorId);
  return r ? r->text : "";
}

bool IsReview(long reasonId) {
  const Reason* r = Find(std::begin(kReasons), std::end(kReasons), reasonId);
  return r && r->review;
}

// HTML text from Windows-1252 bytes, added to `out`: markup characters
// escaped; the page declares its encoding.
void AppendHtml(std::string& out, std::string_view text) {
  // Runs without markup characters, most of any line, go in whole.
  static constexpr auto kMarkup = [] {
    std::array<bool, 256> markup{};
    for (unsigned char c : std::string_view("&<>\"\t")) markup[c] = true;
    return markup;
  }();
  size_t from = 0;
  for (size_t at = 0; at < text.size(); ++at) {
    if (!kMarkup[static_cast<unsigned char>(text[at])]) continue;
    out.append(text, from, at - from);
    switch (text[at]) {
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
      default:
        out += "&#9;";
    }
    from = at + 1;
  }
  out.append(text, from);
}

std::string Html(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  AppendHtml(out, text);
  return out;
}

// A cell of `s`, of the class `cls` when there is one, added to `out`.
void AppendCell(std::string& out, std::string_view s, const char* cls = nullptr) {
  if (cls) {
    out += "<td class=";
    out += cls;
    out += '>';
  } else {
    out += "<td>";
  }
  AppendHtml(out, s);
  out += "</td>";
}

std::string Cell(const std::string& s, const char* cls = nullptr) {
  std::string out;
  AppendCell(out, s, cls);
  return out;
}
std::string Cell(long v) { return "<td class=n>" + std::to_string(v) + "</td>"; }
// A line number; 0 is a row of no particular line (a control, a macro
// action).
std::string LineCell(int line) { return line ? Cell(line) : "<td></td>"; }

// The counts of one object, as the run summary counts them.
struct Counts {
  long Code = 0, Translated = 0, Review = 0, NotTranslated = 0, Controls = 0, Partly = 0;
  Counts& operator+=(const Counts& o) {
    Code += o.Code, Translated += o.Translated, Review += o.Review;
    NotTranslated += o.NotTranslated, Controls += o.Controls, Partly += o.Partly;
    return *this;
  }
};

Counts CountsOf(const StatsRow& r) {
  Counts c;
  c.Code = std::max(0, r.CodeLines - r.CommentLines - r.BlankLines);
  c.Review = r.LinesPotentiallyConverted;
  c.NotTranslated = r.LinesNotTranslated;
  c.Translated = std::max(0L, c.Code - c.Review - c.NotTranslated);
  c.Controls = r.CtlCount;
  c.Partly = r.CtlsPartiallyConverted;
  return c;
}

// One object of the analysis with everything the tables say of it.
struct Object {
  std::string Name;
  Counts Count;
  std::vector<ReportOutputRow> Lines;
  std::vector<LogRow> Log;
};

// The objects in the order of tblStats, then any that only the line rows
// or the report log name.
std::vector<Object> Objects(const SupportDatabase& db) {
  std::vector<Object> objects;
  // The object each name spelling came to, so that the rows of one object
  // do not search the list again: an object added later never comes before
  // the one a name first found.
  std::unordered_map<std::string, size_t> found;
  // Rows come grouped by object: the last name found is asked for first.
  const std::string* lastName = nullptr;
  size_t last = 0;
  auto find = [&](const std::string& name) -> Object& {
    if (lastName && *lastName == name) return objects[last];
    if (const auto it = found.find(name); it != found.end()) {
      lastName = &it->first;
      last = it->second;
      return objects[last];
    }
    const std::string safe = SafeName(name);
    size_t at = 0;
    while (at < objects.size() && !EqualsNoCase(objects[at].Name, name) &&
           !EqualsNoCase(objects[at].Name, safe))
      ++at;
    if (at == objects.size()) objects.push_back({name, {}, {}, {}});
    lastName = &found.emplace(name, at).first->first;
    last = at;
    return objects[at];
  };
  for (const auto& r : db.Stats()) find(r.ModuleName).Count = CountsOf(r);
  for (auto& r : db.ReportOutput()) find(r.ModuleName).Lines.push_back(std::move(r));
  for (auto& r : db.Log()) find(r.Report).Log.push_back(std::move(r));
  return objects;
}

class Page {
 public:
  explicit Page(const std::string& title) {
    Add("<!DOCTYPE html>");
    Add("<html><head><meta charset=\"windows-1252\"><title>" + Html(title) + "</title>");
    Add("<style>");
    Add("body{font-family:'Segoe UI','DejaVu Sans',sans-serif;margin:1.5em 2em;color:#222}");
    Add("h1{font-size:1.5em}h2{font-size:1.2em;margin-top:1.8em;border-bottom:2px solid #ccd}");
    Add("table{border-collapse:collapse;margin:.4em 0 1em}");
    Add("th{background:#e8ebf4;text-align:left}");
    Add("td,th{border:1px solid #bbc;padding:3px 8px;vertical-align:top}");
    Add("td.n{text-align:right}td.code{font-family:monospace;white-space:pre-wrap}");
    Add("tr.review td.why{background:#fff3c4}tr.lost td.why{background:#fbd5d5}");
    Add("tr.total td{font-weight:bold}p.meta{color:#555}p.none{color:#2a6a2a}");
    Add("</style></head><body>");
  }
  // The page is made in one string: a large analysis has a line per row.
  void Add(std::string_view line) {
    text_ += line;
    text_ += "\r\n";
  }
  std::string Text() {
    Add("</body></html>");
    return std::move(text_);
  }

 private:
  std::string text_;
};

// The table of counts, one row per object, each linking to its section
// when the page has one.
void SummarySection(Page& page, const std::vector<Object>& objects, bool linked) {
  Counts total;
  for (const auto& o : objects) total += o.Count;
  page.Add("<h2 id=summary>Summary</h2>");
  page.Add("<p>" + std::to_string(objects.size()) + " object(s); lines of code: " +
           std::to_string(total.Code) + ", translated: " + std::to_string(total.Translated) +
           ", to review: " + std::to_string(total.Review) +
           ", not translated: " + std::to_string(total.NotTranslated) + "</p>");
  page.Add(
      "<table><tr><th>Object</th><th>Lines of code</th><th>Translated</th><th>To review</th>"
      "<th>Not translated</th><th>Controls</th><th>Controls partly converted</th>"
      "<th>Remarks</th></tr>");
  for (size_t i = 0; i < objects.size(); ++i) {
    const Object& o = objects[i];
    const std::string name =
        linked ? "<a href=\"#o" + std::to_string(i + 1) + "\">" + Html(o.Name) + "</a>"
               : Html(o.Name);
    page.Add("<tr><td>" + name + "</td>" + Cell(o.Count.Code) + Cell(o.Count.Translated) +
             Cell(o.Count.Review) + Cell(o.Count.NotTranslated) + Cell(o.Count.Controls) +
             Cell(o.Count.Partly) + Cell(static_cast<long>(o.Lines.size() + o.Log.size())) +
             "</tr>");
  }
  page.Add("<tr class=total><td>Total</td>" + Cell(total.Code) + Cell(total.Translated) +
           Cell(total.Review) + Cell(total.NotTranslated) + Cell(total.Controls) +
           Cell(total.Partly) + "<td></td></tr>");
  page.Add("</table>");
}

void NotesSection(Page& page, const SupportDatabase& db) {
  auto notes = db.RunNotes();
  if (notes.empty()) return;
  page.Add("<h2>Not done in this run</h2><ul>");
  for (const auto& [object, note] : notes)
    page.Add("<li>" + (object.empty() ? "" : "<b>" + Html(object) + "</b>: ") + Html(note) +
             "</li>");
  page.Add("</ul>");
}

// The objects whose Visual Basic name or file name differs from their Access
// name beyond the usual mapping.
void NamesSection(Page& page, const SupportDatabase& db) {
  auto names = db.Renamings();
  if (names.empty()) return;
  page.Add(
      "<h2>Names</h2><table><tr><th>Access name</th><th>Visual Basic name</th><th>File</th>"
      "<th>Why</th></tr>");
  for (const auto& r : names)
    page.Add("<tr><td>" + Html(r.Object) + "</td><td>" + Html(r.VbName) + "</td><td>" +
             Html(r.File) + "</td><td>" + Html(r.Why) + "</td></tr>");
  page.Add("</table>");
}

using LineFilter = std::function<bool(const ReportOutputRow&)>;

// A section per object: its counts, its line rows that pass `keep` with the
// Access line beside the Visual Basic line, and its report log rows. An
// object with nothing to show is left out unless `everyObject`.
void ObjectSections(Page& page, const std::vector<Object>& objects, const LineFilter& keep,
                    bool withLog, bool everyObject) {
  std::string row;
  for (size_t i = 0; i < objects.size(); ++i) {
    const Object& o = objects[i];
    std::vector<const ReportOutputRow*> lines;
    for (const auto& r : o.Lines)
      if (keep(r)) lines.push_back(&r);
    const bool log = withLog && !o.Log.empty();
    if (lines.empty() && !log && !everyObject) continue;
    page.Add("<h2 id=o" + std::to_string(i + 1) + ">" + Html(o.Name) + "</h2>");
    page.Add("<p class=meta>Lines of code: " + std::to_string(o.Count.Code) + "; translated: " +
             std::to_string(o.Count.Translated) + "; to review: " + std::to_string(o.Count.Review) +
             "; not translated: " + std::to_string(o.Count.NotTranslated) +
             (o.Count.Controls ? "; controls: " + std::to_string(o.Count.Controls) +
                                     ", partly converted: " + std::to_string(o.Count.Partly)
                               : std::string()) +
             "</p>");
    if (!lines.empty()) {
      page.Add(
          "<table><tr><th>Line</th><th>Routine</th><th>What happened</th><th>Access</th>"
          "<th>Visual Basic</th></tr>");
      for (const ReportOutputRow* r : lines) {
        // The page holds a row for every line of the analysis: each is made
        // in one string, kept from row to row.
        row = IsReview(r->ReasonID) ? "<tr class=review>" : "<tr class=lost>";
        row += LineCell(r->LineNumber);
        AppendCell(row, r->Routine);
        AppendCell(row, ReasonText(r->ReasonID), "why");
        AppendCell(row, r->CodeLine, "code");
        AppendCell(row, r->TranslatedLine, "code");
        row += "</tr>";
        page.Add(row);
      }
      page.Add("</table>");
    }
    if (log) {
      page.Add("<table><tr><th>Report item</th><th>What happened</th></tr>");
      for (const auto& r : o.Log)
        page.Add(std::string("<tr class=") + (r.ErrorID == 6 ? "review" : "lost") + ">" +
                 Cell(r.Location, "code") + Cell(LogText(r.ErrorID), "why") + "</tr>");
      page.Add("</table>");
    }
    if (lines.empty() && !log)
      page.Add(o.Count.Code ? "<p class=none>Every line came across as it was.</p>"
                            : "<p class=none>No code, nothing to remark.</p>");
  }
}

bool AllLines(const ReportOutputRow&) { return true; }
bool ReviewLines(const ReportOutputRow& r) { return IsReview(r.ReasonID); }
bool LostLines(const ReportOutputRow& r) { return !IsReview(r.ReasonID); }

// The reports of the analysis dialog: name, page, and what each shows.
struct ReportPage {
  const char* name;
  const char* file;
  void (*render)(Page&, const SupportDatabase&, const std::vector<Object>&);
};

constexpr ReportPage kReportPages[] = {
    {"Conversion Summary", "summary.html",
     [](Page& p, const SupportDatabase& db, const std::vector<Object>& o) {
       SummarySection(p, o, false);
       NotesSection(p, db);
     }},
    {"Lines by Object", "lines.html",
     [](Page& p, const SupportDatabase&, const std::vector<Object>& o) {
       ObjectSections(p, o, AllLines, false, false);
     }},
    {"Lines Not Translated", "not-translated.html",
     [](Page& p, const SupportDatabase&, const std::vector<Object>& o) {
       ObjectSections(p, o, LostLines, false, false);
     }},
    {"Lines to Review", "review.html",
     [](Page& p, const SupportDatabase&, const std::vector<Object>& o) {
       ObjectSections(p, o, ReviewLines, false, false);
     }},
    {"Report Log", "report-log.html",
     [](Page& p, const SupportDatabase&, const std::vector<Object>& o) {
       ObjectSections(
           p, o, [](const ReportOutputRow&) { return false; }, true, false);
     }},
};

std::string WritePage(OutputDirectory* output, const std::filesystem::path& dir,
                      const std::string& name, const std::string& text, std::string* err) {
  std::error_code ec;
  std::filesystem::create_directories(dir / "analysis", ec);
  const std::filesystem::path file = dir / "analysis" / name;
  if (output ? !output->Write(file, text, err) : !WriteFileWhole(file, text, err)) return "";
  return file.string();
}

}  // namespace

const char* ReasonText(long reasonId) {
  const Reason* r = Find(std::begin(kReasons), std::end(kReasons), reasonId);
  return r ? r->text : "";
}

std::string WriteAnalysisReport(ConversionSession& s, const RunSummary& summary) {
  if (!s.SupportDb) return "";
  const std::vector<Object> objects = Objects(*s.SupportDb);
  Page page("Conversion analysis: " + s.ProjectName);
  page.Add("<h1>Conversion analysis: " + Html(s.ProjectName) + "</h1>");
  page.Add("<p class=meta>Source: " + Html(s.SourcePath) + "<br>Output: " + Html(s.OutputPath) +
           "</p>");
  SummarySection(page, objects, true);
  if (!summary.Failures.empty()) {
    page.Add("<h2>Not written</h2><ul>");
    for (const auto& failure : summary.Failures)
      page.Add("<li>" + Html(Utf8ToWindows1252(failure)) + "</li>");
    page.Add("</ul>");
  }
  NotesSection(page, *s.SupportDb);
  NamesSection(page, *s.SupportDb);
  ObjectSections(page, objects, AllLines, true, true);
  return WritePage(s.Output, s.OutputPath, "index.html", page.Text(), nullptr);
}

const std::vector<std::string>& AnalysisReportNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> n;
    for (const auto& r : kReportPages) n.emplace_back(r.name);
    return n;
  }();
  return names;
}

std::string PrintAnalysisReport(const SupportDatabase& db, const std::string& projectName,
                                const std::filesystem::path& outputDir,
                                const std::string& reportName, std::string* err) {
  for (const auto& r : kReportPages) {
    if (reportName != r.name) continue;
    Page page(std::string(r.name) + ": " + projectName);
    page.Add("<h1>" + Html(r.name) + ": " + Html(projectName) + "</h1>");
    r.render(page, db, Objects(db));
    return WritePage(nullptr, outputDir, r.file, page.Text(), err);
  }
  *err = "no such report: " + reportName;
  return "";
}

}  // namespace morvane
