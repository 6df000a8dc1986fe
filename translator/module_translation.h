// The state of one TranslateCode call that the stages of the pipeline share:
// the line counters of the module's statistics, the current procedure,
// the event procedure turned into a function, the data control suffix, and
// the output lines written so far.
#pragma once

#include <string>
#include <string_view>
#include <utility>
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

  // The statement in hand: a rule commented it out; hits of a rule's text
  // that the rules passed over where the plain text rule would have acted
  // (inside a string literal or comment, or part of a longer name).
  bool StatementMarked = false;
  int PassedHits = 0;
  // Inside a Type ... End Type block of the declarations.
  bool InTypeBlock = false;

  // An #If ... #End If block, as Visual Basic 6 compiles it (VBA7 and Win64
  // are not defined there).
  struct Conditional {
    bool ParentActive = true;  // the code around the block is compiled
    bool BranchActive = false;
    bool Taken = false;  // a branch before this one was compiled
    bool HadElse = false;
    bool VbaSevenOnly = false;    // "#If VBA7 Then"
    bool Unknown = false;         // a condition that cannot be read: all compiled
    size_t FirstBranchBegin = 0;  // output lines of the first branch
    size_t FirstBranchEnd = 0;
  };
  std::vector<Conditional> Conditionals;
  // Constants of #Const lines, by lower-case name.
  std::vector<std::pair<std::string, std::string>> CompilerConstants;
  // The statement in hand is compiled by Visual Basic 6.
  bool Compiled() const {
    return Conditionals.empty() ||
           (Conditionals.back().ParentActive && Conditionals.back().BranchActive);
  }
  // The designer block of a form or report is still being copied.
  bool InDesignerBlock() const;

  std::vector<std::string> Output;
  // Adds a line to the output. Lines a rule writes ahead of the current line
  // go here before the current line is written.
  void Write(std::string line) { Output.push_back(std::move(line)); }
};

}  // namespace morvane
