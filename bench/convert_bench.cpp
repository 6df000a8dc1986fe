// Timed driver for a whole conversion run: generates a source tree of 200
// standard modules of 1,000 lines each (counts from the first two arguments),
// converts it into a temporary directory through the same driver the command
// line uses, and prints modules and lines per second and the peak memory.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/bench_run.h"
#include "platform/text_file.h"

namespace fs = std::filesystem;
using namespace morvane;

namespace {

constexpr const char* kBody[] = {
    "Public Sub Proc%d(ByVal n As Long)",
    "    ' keep the order list current",
    "    Dim rs As DAO.Recordset",
    "    Set rs = CurrentDb().OpenRecordset(\"tblOrders\")",
    "    Do While Not rs.EOF",
    "        If rs!Total > n Then DoCmd.OpenForm \"frmOrders\"",
    "        rs.MoveNext",
    "    Loop",
    "    DoCmd.Hourglass False",
    "    x = Application.hWndAccessApp",
    "    DoCmd.RunSQL \"DELETE * FROM tblTemp\"",
    "",
    "End Sub",
};

}  // namespace

int main(int argc, char** argv) {
  const int modules = argc > 1 ? std::atoi(argv[1]) : 200;
  const int linesPerModule = argc > 2 ? std::atoi(argv[2]) : 1000;
  const fs::path root = fs::temp_directory_path() / ("morvane-bench-" + std::to_string(getpid()));
  fs::create_directories(root / "src" / "modules");
  long totalLines = 0;
  for (int m = 0; m < modules; ++m) {
    std::vector<std::string> lines = {"Attribute VB_Name = \"basBench" + std::to_string(m) + "\"",
                                      "Option Compare Database", "Option Explicit", ""};
    for (int p = 0; static_cast<int>(lines.size()) < linesPerModule; ++p)
      for (const char* l : kBody) {
        char buf[200];
        std::snprintf(buf, sizeof buf, l, p);
        lines.emplace_back(buf);
      }
    totalLines += static_cast<long>(lines.size());
    WriteTextLines(root / "src" / "modules" / ("basBench" + std::to_string(m) + ".bas"), lines,
                   nullptr);
  }

  bench::BenchRun run;
  Selection modulesOnly;
  modulesOnly.Modules = {"basBench0"};
  for (int m = 1; m < modules; ++m) modulesOnly.Modules.push_back("basBench" + std::to_string(m));
  if (!run.Open(root, modulesOnly)) return 1;
  double seconds = 0;
  const RunSummary summary = run.Run(&seconds);
  std::printf(
      "%d modules, %ld lines converted in %.2f s: %.0f modules/s, %.0f lines/s; "
      "peak memory %ld KiB; %d modules in the project\n",
      modules, totalLines, seconds, modules / seconds, totalLines / seconds, bench::PeakKiB(),
      summary.Modules);
  fs::remove_all(root);
  return summary.Modules == modules ? 0 : 1;
}
