// The one place where a conversion run is put together: the source, the one
// design store every converter reads through, the converters and the
// driver. The command line, the desktop window and the benchmarks all build
// their runs here, the same way. Questions are asked by Check, before the
// run; Run asks nothing and only notes what it could not do, so it may run
// away from the thread that shows the window.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "session/access_link.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "session/run_options.h"

namespace morvane {

class DesignStore;
class UserInterface;
class TranslatorCodeConverter;
class MacroConverterImpl;
class FormHintActions;
class ContinuousForms;
class DesignFormConverter;
class DesignReportConverter;

// What the user selects: the objects of each kind; all of every kind when
// none is named.
struct Selection {
  std::vector<std::string> Forms, Modules, Reports;
  bool All = false;
};

// The exit status of a command: every object converted (notes allowed),
// a run that finished with objects it could not read or write, and a run
// that could not start.
enum RunStatus : int { kRunConverted = 0, kRunIncomplete = 3, kRunNotStarted = 2 };

class ConversionRun {
 public:
  explicit ConversionRun(RunOptions options);
  ~ConversionRun();
  ConversionRun(const ConversionRun&) = delete;
  ConversionRun& operator=(const ConversionRun&) = delete;

  // Opens the source; false with a one-line reason.
  bool Open(const SourceChoice& source, std::string* err);
  CatalogListing Listing() const { return link_.Listing(); }
  // The tree's warnings, then every design that cannot be read (its file
  // and line), as UTF-8 text. The designs are read into the run's store, so the run itself
  // reads none of them again.
  std::vector<std::string> Warnings();
  // The request for a selection: false with a message naming an object the
  // source does not offer. Names compare without regard to case and take
  // the catalog's spelling.
  bool MakeRequest(const std::string& outputDir, const Selection& selection, RunRequest* request,
                   std::string* err) const;

  // The checks of the start of a run, with their question; false when the
  // run cannot start (the message has been shown).
  bool Check(const RunRequest& request, UserInterface& ui);
  // Runs a checked request. `ui` gets progress and nothing else.
  RunSummary Run(const RunRequest& request, UserInterface& ui);

  ConversionSession& Session() { return s_; }
  AccessLink& Link() { return link_; }

 private:
  RunOptions options_;
  ConversionSession s_;
  AccessLink link_;
  std::unique_ptr<DesignStore> store_;
  std::unique_ptr<TranslatorCodeConverter> code_;
  std::unique_ptr<MacroConverterImpl> macros_;
  std::unique_ptr<ContinuousForms> continuous_;
  std::unique_ptr<FormHintActions> hints_;
  std::unique_ptr<DesignFormConverter> forms_;
  std::unique_ptr<DesignReportConverter> reports_;
  Converters converters_;
};

// The status of a finished (or refused) run.
RunStatus StatusOf(const RunSummary& summary);

// Where the companion files stand: the directory the environment variable
// MORVANE_DATA_DIR names, else share/morvane beside the directory of the
// running program (the installed layout, which the build tree mirrors).
std::filesystem::path DataDirectory();

// The first companion file a run needs that `dir` lacks, or empty when all
// are there.
std::string MissingDataFile(const std::filesystem::path& dir);

}  // namespace morvane
