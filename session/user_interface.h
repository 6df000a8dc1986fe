// What a run asks of the person in front of it: messages, Yes/No questions and
// progress. The command line answers from options or a terminal prompt; the
// desktop window answers with dialogs; tests answer from a script.
#pragma once

#include <string>

namespace morvane {

enum class MessageIcon { Information = 64, Stop = 16, Question = 32 };

class UserInterface {
 public:
  virtual ~UserInterface() = default;
  virtual void ShowMessage(const std::string& text, MessageIcon icon) = 0;
  // True for Yes. `defaultYes` is the answer a bare Enter gives.
  virtual bool AskYesNo(const std::string& text, bool defaultYes) = 0;
  virtual void ProgressStart(int maximum) = 0;
  virtual void ProgressStep(int units, const std::string& what) = 0;
  virtual void ProgressEnd() = 0;
};

// Answers every question the same way and keeps what was shown; used where no
// person is asked (tests, batch runs).
class ScriptedUserInterface : public UserInterface {
 public:
  explicit ScriptedUserInterface(bool answer = true) : answer_(answer) {}
  void ShowMessage(const std::string& text, MessageIcon) override { shown += text + "\n"; }
  bool AskYesNo(const std::string& text, bool) override {
    asked += text + "\n";
    return answer_;
  }
  void ProgressStart(int) override {}
  void ProgressStep(int, const std::string&) override {}
  void ProgressEnd() override {}
  std::string shown;
  std::string asked;

 private:
  bool answer_;
};

}  // namespace morvane
