// The state of one TranslateCode call that the stages of the pipeline share:
// the 16-bit line counters of the module's statistics, the current procedure,
// the event procedure turned into a function, the data control suffix, and
// the output lines written so far.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct ConversionSession;

// The comment mark that this system puts in front of a line it comments out
// and in front of the old text of a translated line.
inline constexpr std::string_view kCommentMark = "'MORVANE ";

// Adds `by` to a 16-bit counter. A sum outside the 16-bit range leaves the
// counter as it was, as a failed step does.
void Bump(int16_t& counter, int by = 1);

struct ModuleTranslation {
  ModuleTranslation(ConversionSession& session, int mode, std::string moduleName);

  ConversionSession& Session;
  int Mode;                // 1 form, 2 standard module, 3 report
  std::string ModuleName;  // the input file name less prefix and extension

  int16_t TotalLines = 0;
  int16_t CodeLines = -2;  // the LineNumber of the analysis rows
  int16_t CommentLines = 0;
  int16_t BlankLines = 0;
  int16_t LinesNotTranslated = 0;
  int16_t LinesPotentiallyConverted = 0;
  int16_t SubCount = 0;
  int16_t ProcCount = 0;
  int16_t BeginCount = 0;
  int16_t EndCount = 0;

  std::string CurrentRoutine;
  std::string EventFunction;
  std::string DataSuffix;  // generated data control names are "dat" + this
  bool FormLoadSeen = false;
  bool FormActivateSeen = false;

  std::vector<std::string> Output;
  // Adds a line to the output. Lines a rule writes ahead of the current line
  // go here before the current line is written.
  void Write(std::string line) { Output.push_back(std::move(line)); }
};

}  // namespace morvane
