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
#include <optional>
#include <string>

#include "bench/bench_run.h"
#include "bench/generated_tree.h"

namespace fs = std::filesystem;
using namespace morvane;

int main(int argc, char** argv) {
  const int forms = argc > 1 ? std::atoi(argv[1]) : 300;
  const int controls = argc > 2 ? std::atoi(argv[2]) : 100;
  const bool combos = argc > 3 && std::string(argv[3]) == "combos";
  const fs::path root = fs::temp_directory_path() / ("morvane-fbench-" + std::to_string(getpid()));
  bench::WriteForms(root, forms, controls, combos);

  const std::optional<bench::TimedSummary> run =
      bench::TimedRun(root, bench::Numbered(&Selection::Forms, "frmBench", forms));
  if (!run) return 1;
  std::printf(
      "%d forms of %d controls%s converted in %.2f s: %.1f forms/s, %.0f controls/s; "
      "peak memory %ld KiB; %d forms in the project\n",
      forms, controls, combos ? " (a third combo boxes)" : "", run->Seconds, forms / run->Seconds,
      forms * controls / run->Seconds, bench::PeakKiB(), run->Summary.Forms);
  fs::remove_all(root);
  return run->Summary.Forms == forms ? 0 : 1;
}
