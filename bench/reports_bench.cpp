// Timed driver for reports: generates a source tree of 300 reports (first
// argument) with 40 controls each (second argument) over a few saved
// queries, every report with a group level, totals, page numbers and a
// small module, and converts it through the driver the command line uses
// (report writer, data environment, translation of the report modules). It
// prints reports per second, controls per second and the peak memory.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "bench/bench_run.h"
#include "platform/text_file.h"

namespace fs = std::filesystem;
using namespace morvane;

namespace {

std::string N(int i) { return std::to_string(i); }

// The lines every control starts with: control i of `kind`, in the
// (i % 6)'th of six columns at `top`, named `prefix` and i.
void BeginControl(std::vector<std::string>& t, const char* kind, const char* prefix, int i,
                  int top) {
  t.push_back("                Begin " + std::string(kind));
  t.push_back("                    Left =" + N(100 + (i % 6) * 1500));
  t.push_back("                    Top =" + N(top));
  t.push_back("                    Width =1400");
  t.push_back("                    Height =255");
  t.push_back("                    Name =\"" + std::string(prefix) + N(i) + "\"");
}

void AddTextBox(std::vector<std::string>& t, int i, const std::string& source, int top) {
  BeginControl(t, "TextBox", "txt", i, top);
  t.push_back("                    ControlSource =\"" + source + "\"");
  t.push_back("                    Format =\"" + std::string(i % 3 ? "Standard" : "Short Date") +
              "\"");
  t.push_back("                End");
}

void AddLabel(std::vector<std::string>& t, int i, int top) {
  BeginControl(t, "Label", "lbl", i, top);
  t.push_back("                    Caption =\"Column " + N(i) + "\"");
  t.push_back("                End");
}

void Section(std::vector<std::string>& t, const char* block, const std::string& name) {
  t.push_back("        Begin " + std::string(block));
  t.push_back("            Height =1200");
  t.push_back("            Name =\"" + name + "\"");
  t.push_back("            Begin");
}

void EndSection(std::vector<std::string>& t) {
  t.push_back("            End");
  t.push_back("        End");
}

std::vector<std::string> Report(int r, int controls) {
  std::vector<std::string> t = {"Version =20",
                                "VersionRequired =20",
                                "Begin Report",
                                "    Width =9360",
                                "    RecordSource =\"qryBench" + N(r % 10) + "\"",
                                "    Caption =\"Report " + N(r) + "\"",
                                "    OnOpen =\"[Event Procedure]\"",
                                "    Begin",
                                "        Begin BreakLevel",
                                "            GroupHeader = NotDefault",
                                "            GroupFooter = NotDefault",
                                "            ControlSource =\"Field0\"",
                                "        End"};
  // A tenth of the controls in the page header, a tenth in the group
  // header, the rest in the detail, and totals in the group footer.
  const int labels = controls / 10, heads = controls / 10, totals = controls / 10;
  const int details = controls - labels - heads - totals - 1;
  Section(t, "PageHeader", "PageHeaderSection");
  for (int i = 0; i < labels; ++i) AddLabel(t, i, 60);
  EndSection(t);
  Section(t, "BreakHeader", "GroupHeader0");
  for (int i = 0; i < heads; ++i) AddTextBox(t, 100 + i, "Field0", 60);
  EndSection(t);
  Section(t, "Section", "Detail");
  for (int i = 0; i < details; ++i) AddTextBox(t, 200 + i, "Field" + N(i % 10), 60 + (i / 6) * 300);
  EndSection(t);
  Section(t, "BreakFooter", "GroupFooter1");
  for (int i = 0; i < totals; ++i) AddTextBox(t, 300 + i, "=Sum([Field" + N(i % 10) + "])", 60);
  EndSection(t);
  Section(t, "PageFooter", "PageFooterSection");
  AddTextBox(t, 400, "=\\\"Page \\\" & [Page] & \\\" of \\\" & [Pages]", 60);
  EndSection(t);
  for (const char* l :
       {"    End", "End", "CodeBehindForm", "Attribute VB_GlobalNameSpace = False",
        "Attribute VB_Creatable = True", "Attribute VB_PredeclaredId = True",
        "Attribute VB_Exposed = False", "Option Compare Database", "Option Explicit", "",
        "Private Sub Report_Open(Cancel As Integer)", "    If Date < #1/1/2000# Then Cancel = True",
        "End Sub", "", "Private Sub Report_Close()", "    Debug.Print \"closed\"", "End Sub"})
    t.emplace_back(l);
  return t;
}

std::vector<std::string> Query(int q) {
  std::string columns;
  for (int f = 0; f < 10; ++f) columns += (f ? ", " : "") + std::string("Field") + N(f);
  return {"Operation =1", "Option =0",
          "dbMemo \"SQL\" =\"SELECT " + columns + " FROM tblBench" + N(q) + ";\\015\\012\"",
          "dbBoolean \"ReturnsRecords\" =\"-1\""};
}

}  // namespace

int main(int argc, char** argv) {
  const int reports = argc > 1 ? std::atoi(argv[1]) : 300;
  const int controls = argc > 2 ? std::atoi(argv[2]) : 40;
  const fs::path root = fs::temp_directory_path() / ("morvane-rbench-" + std::to_string(getpid()));
  fs::create_directories(root / "src" / "reports");
  fs::create_directories(root / "src" / "queries");
  for (int q = 0; q < 10; ++q)
    WriteTextLines(root / "src" / "queries" / ("qryBench" + N(q) + ".txt"), Query(q), nullptr);
  for (int r = 0; r < reports; ++r)
    WriteTextLines(root / "src" / "reports" / ("rptBench" + N(r) + ".txt"), Report(r, controls),
                   nullptr);

  const std::optional<bench::TimedSummary> run =
      bench::TimedRun(root, bench::Numbered(&Selection::Reports, "rptBench", reports));
  if (!run) return 1;
  std::printf(
      "%d reports of %d controls converted in %.2f s: %.1f reports/s, %.0f controls/s; "
      "peak memory %ld KiB; %d reports in the project\n",
      reports, controls, run->Seconds, reports / run->Seconds, reports * controls / run->Seconds,
      bench::PeakKiB(), run->Summary.Reports);
  fs::remove_all(root);
  return run->Summary.Reports == reports ? 0 : 1;
}
