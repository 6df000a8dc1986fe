// What the driver benchmarks share: the peak memory of the process, and a
// timed run of the driver over a generated source tree.
#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "session/access_link.h"
#include "session/conversion_session.h"
#include "session/driver.h"
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

// A run of the driver over `root`/src into `root`/out, as the command line
// makes one, with every question answered Yes.
class BenchRun {
 public:
  // False, with the reason on stderr, when the source cannot be opened.
  bool Open(const std::filesystem::path& root) {
    s_.Ui = &ui_;
    s_.DataDir = MORVANE_BENCH_DATA_DIR;
    request_.OutputDir = (root / "out").string();
    std::string err;
    if (link_.ChooseDatabase(s_, {root / "src", {}, {}}, &err)) return true;
    std::fprintf(stderr, "%s\n", err.c_str());
    return false;
  }
  AccessLink& Link() { return link_; }
  RunRequest& Request() { return request_; }

  // Runs the driver; `seconds` receives the time it took.
  RunSummary Run(Converters& converters, double* seconds) {
    const auto start = std::chrono::steady_clock::now();
    RunSummary summary = StartTranslation(s_, link_, converters, request_);
    *seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return summary;
  }

 private:
  ConversionSession s_;
  ScriptedUserInterface ui_{true};
  AccessLink link_;
  RunRequest request_;
};

}  // namespace morvane::bench
