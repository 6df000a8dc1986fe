// Timed driver for forms: generates a source tree of 300 forms (first
// argument) of 100 controls (second argument) with 20 event procedures each,
// converts it through the driver the command line uses (form writer, hint
// records, event code, translation of the form modules), and prints forms per
// second, controls per second and the peak memory. Run it with 50, 100 and
// 200 controls to see that the time grows with the controls linearly. With a
// third argument "combos", every third control is a combo box, its rows from
// a SELECT statement, a table or a value list in turn.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "bench/bench_run.h"
#include "platform/text_file.h"

namespace fs = std::filesystem;
using namespace morvane;

namespace {

std::string N(int i) { return std::to_string(i); }

// The row sources of the combo boxes, in turn.
const char* const kRowSources[][2] = {
    {"Table/Query", "SELECT CustomerID, CompanyName FROM tblCustomers ORDER BY CompanyName;"},
    {"Table/Query", "tblCustomers"},
    {"Value List", "1;North;2;South;3;East;4;West"},
};

// One control of the generated form; a quarter are text boxes with an
// attached label, the rest labels, buttons and check boxes in turn. With
// `combos`, every third control is a combo box instead.
void AddControl(std::vector<std::string>& t, int i, bool withEvent, bool combos) {
  const std::string top = N(200 + (i % 40) * 300), left = N(100 + (i / 40) * 2000);
  const char* kinds[] = {"TextBox", "Label", "CommandButton", "CheckBox"};
  const std::string kind = combos && i % 3 == 2 ? "ComboBox" : kinds[i % 4];
  t.push_back("                Begin " + kind);
  t.push_back("                    Left =" + left);
  t.push_back("                    Top =" + top);
  t.push_back("                    Width =1500");
  t.push_back("                    Height =255");
  t.push_back("                    Name =\"ctl" + N(i) + "\"");
  if (kind == "TextBox" || kind == "ComboBox")
    t.push_back("                    ControlSource =\"Field" + N(i % 10) + "\"");
  if (kind == "ComboBox") {
    const auto& source = kRowSources[(i / 3) % std::size(kRowSources)];
    t.push_back("                    RowSourceType =\"" + std::string(source[0]) + "\"");
    t.push_back("                    RowSource =\"" + std::string(source[1]) + "\"");
    t.push_back("                    ColumnCount =2");
    t.push_back("                    ColumnWidths =\"0;1440\"");
    t.push_back("                    LimitToList = NotDefault");
  }
  if (kind == "Label" || kind == "CommandButton")
    t.push_back("                    Caption =\"Control " + N(i) + "\"");
  if (withEvent) t.push_back("                    OnClick =\"[Event Procedure]\"");
  t.push_back("                End");
}

}  // namespace

int main(int argc, char** argv) {
  const int forms = argc > 1 ? std::atoi(argv[1]) : 300;
  const int controls = argc > 2 ? std::atoi(argv[2]) : 100;
  const bool combos = argc > 3 && std::string(argv[3]) == "combos";
  constexpr int kEvents = 20;
  const fs::path root = fs::temp_directory_path() / ("morvane-fbench-" + std::to_string(getpid()));
  fs::create_directories(root / "src" / "forms");
  for (int f = 0; f < forms; ++f) {
    std::vector<std::string> t = {"Version =20",
                                  "VersionRequired =20",
                                  "Begin Form",
                                  "    Width =9000",
                                  "    RecordSource =\"tblOrders\"",
                                  "    Caption =\"Form " + N(f) + "\"",
                                  "    Begin",
                                  "        Begin Section",
                                  "            Height =12000",
                                  "            Name =\"Detail\"",
                                  "            Begin"};
    for (int c = 0; c < controls; ++c) AddControl(t, c, c % (controls / kEvents) == 0, combos);
    for (const char* l : {"            End", "        End", "    End", "End", "CodeBehindForm",
                          "Attribute VB_GlobalNameSpace = False", "Attribute VB_Creatable = True",
                          "Attribute VB_PredeclaredId = True", "Attribute VB_Exposed = False",
                          "Option Compare Database", "Option Explicit", ""})
      t.emplace_back(l);
    for (int c = 0; c < controls; c += controls / kEvents) {
      t.push_back("Private Sub ctl" + N(c) + "_Click()");
      t.push_back("    Me.Caption = \"clicked " + N(c) + "\"");
      t.push_back("End Sub");
      t.push_back("");
    }
    WriteTextLines(root / "src" / "forms" / ("frmBench" + N(f) + ".txt"), t, nullptr);
  }

  bench::BenchRun run;
  Selection formsOnly;
  for (int f = 0; f < forms; ++f) formsOnly.Forms.push_back("frmBench" + N(f));
  if (!run.Open(root, formsOnly)) return 1;
  double seconds = 0;
  const RunSummary summary = run.Run(&seconds);
  std::printf(
      "%d forms of %d controls%s converted in %.2f s: %.1f forms/s, %.0f controls/s; "
      "peak memory %ld KiB; %d forms in the project\n",
      forms, controls, combos ? " (a third combo boxes)" : "", seconds, forms / seconds, forms * controls / seconds, bench::PeakKiB(),
      summary.Forms);
  fs::remove_all(root);
  return summary.Forms == forms ? 0 : 1;
}
