// The command line's side of a run: messages on stderr, Yes/No questions
// answered by --yes/--no or at a terminal prompt, and a progress line while
// stderr is a terminal.
#pragma once

#include <optional>
#include <string>

#include "session/user_interface.h"

namespace morvane {

class CommandLineUi : public UserInterface {
 public:
  explicit CommandLineUi(std::optional<bool> answer) : answer_(answer) {}
  void ShowMessage(const std::string& text, MessageIcon icon) override;
  bool AskYesNo(const std::string& text, bool defaultYes) override;
  void ProgressStart(int maximum) override;
  void ProgressStep(int units, const std::string& what) override;
  void ProgressEnd() override;

 private:
  void ClearProgress();
  std::optional<bool> answer_;
  int maximum_ = 0;
  int done_ = 0;
  bool progressShown_ = false;
};

}  // namespace morvane
