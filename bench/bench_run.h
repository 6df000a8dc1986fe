// What the driver benchmarks share: the peak memory of the process, and a
// timed run of the driver over a generated source tree.
#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "app/conversion_run.h"
#include "session/user_interface.h"

namespace morvane::bench {

// The peak resident memory of this process, in KiB.
inline long PeakKiB() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("VmHWM:", 0) == 0) return std::atol(line.c_str() + 6);
  return 0;
}

// A run over `root`/src into `root`/out (or another folder of `root`), put
// together as the command line puts one together, with every question
// answered Yes.
class BenchRun {
 public:
  BenchRun() : run_(Options()) {}

  // False, with the reason on stderr, when the source cannot be opened or
  // the selection does not fit it.
  bool Open(const std::filesystem::path& root, const Selection& selection,
            const std::string& output = "out") {
    std::string err;
    if (run_.Open({root / "src", {}, {}}, &err) &&
        run_.MakeRequest((root / output).string(), selection, &request_, &err))
      return true;
    std::fprintf(stderr, "%s\n", err.c_str());
    return false;
  }

  // Runs the conversion; `seconds` receives the time it took.
  RunSummary Run(double* seconds) {
    const auto start = std::chrono::steady_clock::now();
    RunSummary summary;
    if (run_.Check(request_, ui_)) summary = run_.Run(request_, ui_);
    *seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return summary;
  }

 private:
  static RunOptions Options() {
    RunOptions o;
    o.DataDir = MORVANE_BENCH_DATA_DIR;
    return o;
  }
  ScriptedUserInterface ui_{true};
  ConversionRun run_;
  RunRequest request_;
};

// The selection of the objects of one kind (`&Selection::Forms`, ...) named
// `prefix`0 to `prefix`<count - 1>, as the generated trees name them.
inline Selection Numbered(std::vector<std::string> Selection::*kind, const std::string& prefix,
                          int count) {
  Selection selection;
  for (int i = 0; i < count; ++i) (selection.*kind).push_back(prefix + std::to_string(i));
  return selection;
}

// What a timed run converted, and the seconds the conversion took.
struct TimedSummary {
  RunSummary Summary;
  double Seconds = 0;
};

// One timed run of `selection` over `root` into its folder `output`;
// nothing when it cannot be opened.
inline std::optional<TimedSummary> TimedRun(const std::filesystem::path& root,
                                            const Selection& selection,
                                            const std::string& output = "out") {
  BenchRun run;
  if (!run.Open(root, selection, output)) return std::nullopt;
  TimedSummary timed;
  timed.Summary = run.Run(&timed.Seconds);
  return timed;
}

}  // namespace morvane::bench
