// The one shared record of a conversion run: the run's options, the objects
// and paths of the run, the selection lists, what the run collects across
// objects, and the state of the form or report being converted.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/support_db.h"
#include "session/form_state.h"
#include "session/name_registry.h"
#include "session/run_options.h"

namespace morvane {

class Catalog;
class SourceTree;
class SupportDatabase;
class ProjectModel;
class UserInterface;
class OutputDirectory;

// Rows of the analysis that a translation running beside the run's own
// thread keeps, in the order it made them, until the run adds them where the
// translation would have added them itself.
using DeferredRow = std::variant<ReportOutputRow, StatsRow, LogRow>;

// A list filled from index 1; index 0 exists and stays empty, so the upper
// bound of the list is its count.
using OneBasedList = std::vector<std::string>;

struct ConversionSession {
  RunOptions Options;
  // The options packed for the walkers; a walker whose session has not
  // unpacked it does nothing.
  std::string OptionWord;
  int OptionWordLength = 0;

  // Objects of the run. The session does not own them.
  Catalog* SourceDb = nullptr;      // DAO view of the working copy
  SourceTree* AccessApp = nullptr;  // stands in for Access: designs and module code
  SupportDatabase* SupportDb = nullptr;
  ProjectModel* ActiveProject = nullptr;
  UserInterface* Ui = nullptr;
  OutputDirectory* Output = nullptr;  // every file of the run is written through it
  // The ActiveX control project of the run's continuous forms, once the
  // first one is converted; written with the main project at the end.
  ProjectModel* ControlProject = nullptr;

  // Paths and names. OutputPath always ends in the path separator.
  std::string OutputPath;
  std::string SourcePath;
  std::string ProjectFile;
  std::string ProjectName;

  // Selections and catalogs.
  OneBasedList FormList{""};
  OneBasedList ModuleList{""};
  OneBasedList ReportList{""};
  // The Visual Basic and file names of everything the run writes.
  NameRegistry Names;
  bool IsAdp = false;

  // Per-run state.
  bool NeedConversionCode = true;
  bool SettingsDirty = false;
  std::array<bool, 21> ListControlsUsed{};
  std::string StartupFormName;
  // What the check of the generated files found so far: all findings, and
  // those that keep the project from loading or compiling.
  int CheckFindings = 0;
  int BlockingFindings = 0;
  // A copy of the session that translates modules beside the run's own
  // thread: the analysis rows go to `Deferred`, never to the support
  // database, and whatever the copy cannot know for sure (a query that the
  // forms may still make) sets `SpeculationFailed`, so that the run
  // translates the module again itself; the run does the same when the
  // copy's name registry grew (a form named for the first time).
  bool Speculative = false;
  bool SpeculationFailed = false;
  std::vector<DeferredRow>* Deferred = nullptr;

  // Procedure names the macro converter has given out; grows across macros.
  std::vector<std::string> MacroProcNames;
  // The identifiers those names became, which must differ without regard to
  // case: two names can become one identifier.
  std::vector<std::string> MacroProcIdentifiers;

  // The state of the form or report being converted; a session always has
  // one, so code that runs outside a conversion still finds a state.
  FormState& Form() { return *forms_.states.back(); }
  const FormState& Form() const { return *forms_.states.back(); }
  // A new state for a form (or a nested form) until the matching PopForm.
  FormState& PushForm(const std::string& name);
  // Ends the innermost state; the outermost one stays.
  std::unique_ptr<FormState> PopForm();

 private:
  // The states of the forms being converted, innermost last. A copy of a
  // session starts with one empty state of its own: the forms in hand stay
  // with the session that converts them.
  struct FormStack {
    FormStack() { states.push_back(std::make_unique<FormState>()); }
    FormStack(const FormStack&) : FormStack() {}
    FormStack& operator=(const FormStack&) { return *this; }
    FormStack(FormStack&&) = default;
    FormStack& operator=(FormStack&&) = default;
    std::vector<std::unique_ptr<FormState>> states;
  };
  FormStack forms_;
};

// The state of one form for as long as the scope lasts.
class FormScope {
 public:
  FormScope(ConversionSession& s, const std::string& name) : s_(s), state_(s.PushForm(name)) {}
  ~FormScope() { s_.PopForm(); }
  FormScope(const FormScope&) = delete;
  FormScope& operator=(const FormScope&) = delete;
  FormState& State() { return state_; }

 private:
  ConversionSession& s_;
  FormState& state_;
};

// Packs the options into the eleven-character option word.
std::string PackOptionWord(const RunOptions& o);
// Stores OutputPath and the word, and sets OptionWordLength. Returns true
// when the working store's tblFields could not be opened.
bool UnpackOptionWord(ConversionSession& s, const std::string& outputPath,
                      const std::string& optionWord);

}  // namespace morvane
