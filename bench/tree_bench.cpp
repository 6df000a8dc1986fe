// Timed driver for a whole application: a generated tree of 300 forms of 40
// controls and 200 modules of 1,000 lines (counts from the arguments),
// converted through the composition root the command line uses, against a
// copy of the same tree (cp -r) made in the same run; each is followed by a
// sync, so that both count the writes the disk must take. Both are done a
// few times (the fourth argument, 3 by default), each round into folders of
// its own that nothing was removed from (a file system hands out the places
// of files removed a moment ago slowly), and the medians are compared: a copy of this size takes a few hundredths of a
// second, so one slow copy or conversion would swing a single ratio widely.
// Prints the medians, their ratio and the range of each.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

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

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const size_t n = values.size();
  return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
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

  const int rounds = std::max(1, argc > 4 ? std::atoi(argv[4]) : 3);
  std::vector<double> copies, conversions;
  RunSummary summary;
  for (int r = 0; r < rounds; ++r) {
    const std::string round = std::to_string(r);
    copies.push_back(SecondsOf("cp -r '" + (root / "src").string() + "' '" +
                               (root / ("copy" + round)).string() + "' && sync"));
    Selection all;
    all.All = true;
    const std::optional<bench::TimedSummary> run = bench::TimedRun(root, all, "out" + round);
    if (!run) return 1;
    summary = run->Summary;
    conversions.push_back(run->Seconds + SecondsOf("sync"));
  }
  const double copy = Median(copies);
  const double seconds = Median(conversions);
  std::printf(
      "%d forms of %d controls and %d modules (%ld lines), median of %d rounds: converted in "
      "%.2f s (%.2f to %.2f), copied in %.3f s (%.3f to %.3f); the conversion takes %.1f times "
      "the copy; peak memory %ld KiB\n",
      forms, controls, modules, lines, rounds, seconds,
      *std::min_element(conversions.begin(), conversions.end()),
      *std::max_element(conversions.begin(), conversions.end()), copy,
      *std::min_element(copies.begin(), copies.end()),
      *std::max_element(copies.begin(), copies.end()), seconds / copy, bench::PeakKiB());
  fs::remove_all(root);
  return summary.Forms == forms && summary.Modules == modules ? 0 : 1;
}
