// Timed driver for a whole conversion run: generates a source tree of 200
// standard modules of 1,000 lines each (counts from the first two arguments),
// converts it into a temporary directory through the same driver the command
// line uses, and prints modules and lines per second and the peak memory.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "bench/bench_run.h"
#include "bench/generated_tree.h"

namespace fs = std::filesystem;
using namespace morvane;

int main(int argc, char** argv) {
  const int modules = argc > 1 ? std::atoi(argv[1]) : 200;
  const int linesPerModule = argc > 2 ? std::atoi(argv[2]) : 1000;
  const fs::path root = fs::temp_directory_path() / ("morvane-bench-" + std::to_string(getpid()));
  const long totalLines = bench::WriteModules(root, modules, linesPerModule);

  const std::optional<bench::TimedSummary> run =
      bench::TimedRun(root, bench::Numbered(&Selection::Modules, "basBench", modules));
  if (!run) return 1;
  std::printf(
      "%d modules, %ld lines converted in %.2f s: %.0f modules/s, %.0f lines/s; "
      "peak memory %ld KiB; %d modules in the project\n",
      modules, totalLines, run->Seconds, modules / run->Seconds, totalLines / run->Seconds,
      bench::PeakKiB(), run->Summary.Modules);
  fs::remove_all(root);
  return run->Summary.Modules == modules ? 0 : 1;
}
