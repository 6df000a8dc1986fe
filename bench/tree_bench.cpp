// Timed driver for a whole application: a generated tree of 300 forms of 40
// controls and 200 modules of 1,000 lines (counts from the arguments),
// converted through the composition root the command line uses, against a
// copy of the same tree (cp -r) made in the same run; each is followed by a
// sync, so that both count the writes the disk must take. Prints both times
// and their ratio.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/bench_run.h"
#include "bench/generated_tree.h"

namespace fs = std::filesystem;
using namespace morvane;

namespace {

double SecondsOf(const std::string& command) {
  const auto start = std::chrono::steady_clock::now();
  if (std::system(command.c_str()) != 0) std::fprintf(stderr, "failed: %s\n", command.c_str());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv) {
  const int forms = argc > 1 ? std::atoi(argv[1]) : 300;
  const int controls = argc > 2 ? std::atoi(argv[2]) : 40;
  const int modules = argc > 3 ? std::atoi(argv[3]) : 200;
  const fs::path root = fs::temp_directory_path() / ("morvane-tbench-" + std::to_string(getpid()));
  bench::WriteForms(root, forms, controls);
  const long lines = bench::WriteModules(root, modules, 1000);
  SecondsOf("sync");

  const double copy =
      SecondsOf("cp -r '" + (root / "src").string() + "' '" + (root / "copy").string() + "' && sync");

  bench::BenchRun run;
  Selection all;
  all.All = true;
  if (!run.Open(root, all)) return 1;
  double seconds = 0;
  const RunSummary summary = run.Run(&seconds);
  seconds += SecondsOf("sync");
  std::printf(
      "%d forms of %d controls and %d modules (%ld lines): converted in %.2f s, copied in "
      "%.2f s; the conversion takes %.1f times the copy; peak memory %ld KiB\n",
      forms, controls, modules, lines, seconds, copy, seconds / copy, bench::PeakKiB());
  fs::remove_all(root);
  return summary.Forms == forms && summary.Modules == modules ? 0 : 1;
}
