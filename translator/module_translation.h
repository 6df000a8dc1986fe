// The state of one TranslateCode call that the stages of the pipeline share:
// the line counters of the module's statistics, the current procedure,
// the event procedure turned into a function, the data control suffix, and
// the output lines written so far.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct ConversionSession;

// The comment mark that this system puts in front of a line it comments out
// and in front of the old text of a translated line.
inline constexpr std::string_view kCommentMark = "'MORVANE ";

// Adds `by` to a counter. The counters are as wide as the analysis rows, so
// that the largest module is counted right; a sum beyond that range leaves the
// counter as it was.
void Bump(int& counter, int by = 1);

struct ModuleTranslation {
  ModuleTranslation(ConversionSession& session, int mode, std::string moduleName);

  ConversionSession& Session;
  int Mode;                // 1 form, 2 standard module, 3 report
  std::string ModuleName;  // the input file name less prefix and extension

  int TotalLines = 0;
  int CodeLines = -2;  // the LineNumber of the analysis rows
  int CommentLines = 0;
  int BlankLines = 0;
  int LinesNotTranslated = 0;
  int LinesPotentiallyConverted = 0;
  int SubCount = 0;
  int ProcCount = 0;
  int BeginCount = 0;
  int EndCount = 0;

  std::string CurrentRoutine;
  std::string EventFunction;
  std::string DataControl;  // the data control of the form whose code this is
  bool FormLoadSeen = false;
  bool FormActivateSeen = false;

  std::vector<std::string> Output;
  // Adds a line to the output. Lines a rule writes ahead of the current line
  // go here before the current line is written.
  void Write(std::string line) { Output.push_back(std::move(line)); }
};

}  // namespace morvane
