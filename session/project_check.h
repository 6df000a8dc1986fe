// The check of a generated project before it goes to Visual Basic 6: every
// generated file of the output directory (.bas, .cls, .frm, .ctl, .dsr) as
// the development environment loads and compiles it (vb6_check.h), and each
// project file (.vbp): its name, the files it lists, one name per component;
// and what a designer block names elsewhere: the binary records its
// properties point to (.frx, .ctx, .dsx) and the user control a data
// repeater repeats, which a control project of the directory must hold.
// Run as `morvane check OUTDIR` and at the end of every conversion, where
// each finding becomes a row of the analysis.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "session/analysis_reasons.h"

namespace morvane {

struct ConversionSession;

struct ProjectFinding {
  std::string File;  // the file's name in the directory
  size_t Line = 0;   // 1-based; 0 for the file as a whole
  std::string Problem;
  std::string Text;    // the line, as the file holds it
  bool Loads = false;  // the project loads and compiles, but code is lost
};

// Checks the generated files of `dir` in name order. False, with `err`, when
// the directory cannot be read.
bool CheckProject(const std::filesystem::path& dir, std::vector<ProjectFinding>* findings,
                  std::string* err);

// "<file>:<line>: <problem>" (UTF-8 file name, Windows-1252 problem text).
std::string FormatFinding(const ProjectFinding& f);

// What the check finds in the text of a component that goes to `file`.
std::vector<ProjectFinding> CheckComponentText(const std::filesystem::path& file,
                                               const std::vector<std::string>& lines);

// Each finding of a component's check becomes a row of the analysis under
// the component's name and counts for the run.
void RecordCheckFindings(ConversionSession& s, const std::vector<ProjectFinding>& findings);

// The check of a component of the run as its text stands, its findings
// recorded.
void CheckComponent(ConversionSession& s, const std::string& component);

// A component of the run, checked as it is written: its findings are
// recorded, then the file is written. False with the message of a failed
// write.
bool WriteCheckedComponent(ConversionSession& s, const std::string& component, std::string* err);

// The check of the project itself at the end of a conversion (its name, one
// component of each name), and the run's note on what the checks found.
// Returns the number of findings of the run.
int CheckConversionOutput(ConversionSession& s);

}  // namespace morvane
