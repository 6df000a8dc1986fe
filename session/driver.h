// The conversion driver: validates a request, fills the session, and calls
// every converter in its fixed order, from the working copy of the database
// to the finished project and its analysis.
#pragma once

#include <string>
#include <vector>

#include "session/converters.h"

namespace morvane {

struct ConversionSession;
class AccessLink;

// What the window (or the command line) hands to the start of a run: the
// output directory as typed and the selected entries of each list, in list
// order.
struct RunRequest {
  std::string OutputDir;
  std::vector<std::string> Forms;
  std::vector<std::string> Modules;
  std::vector<std::string> Reports;
};

// What a finished run counts, for the closing summary.
struct RunSummary {
  bool Started = false;
  int Forms = 0, Reports = 0, Modules = 0, Macros = 0;
  int LinesTranslated = 0, LinesToReview = 0, LinesNotTranslated = 0;
  std::vector<std::string> Notes;  // what the run could not do, one line each
  // Objects that could not be read or written, each with its message.
  std::vector<std::string> Failures;
  std::string AnalysisPath;
};

// The checks at the start of a run, with its one question (whether to create
// the output directory): false, with the message shown, when the run cannot
// start. Nothing is changed but the directory the user agreed to.
bool CheckRequest(ConversionSession& s, AccessLink& link, const RunRequest& request);

// The run of a checked request; it asks nothing. Started is false when the
// run could not start after all (the support database or the working copy).
RunSummary RunTranslation(ConversionSession& s, AccessLink& link, Converters& c,
                          const RunRequest& request);

// Both, in order.
RunSummary StartTranslation(ConversionSession& s, AccessLink& link, Converters& c,
                            const RunRequest& request);

// The driver proper, on a filled session.
void RunConversion(ConversionSession& s, AccessLink& link, Converters& c, RunSummary& summary);

// The project-wide steps after the modules: the conversion code, Sub Main,
// the MDI parent and the references.
void AssembleProject(ConversionSession& s, Converters& c, RunSummary& summary);

}  // namespace morvane
