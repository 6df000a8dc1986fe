// Messages, questions and progress on a terminal.
#include "app/command_line_ui.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace morvane {

void CommandLineUi::ClearProgress() {
  if (progressShown_) {
    std::fputs("\r\033[K", stderr);
    progressShown_ = false;
  }
}

void CommandLineUi::ShowMessage(const std::string& text, MessageIcon icon) {
  ClearProgress();
  const char* kind = icon == MessageIcon::Stop ? "error: " : "";
  std::fprintf(stderr, "morvane: %s%s\n", kind, text.c_str());
}

bool CommandLineUi::AskYesNo(const std::string& text, bool defaultYes) {
  ClearProgress();
  if (answer_) {
    std::fprintf(stderr, "morvane: %s %s\n", text.c_str(), *answer_ ? "Yes" : "No");
    return *answer_;
  }
  if (!isatty(STDIN_FILENO)) {
    std::fprintf(stderr, "morvane: %s %s (use --yes or --no to answer)\n", text.c_str(),
                 defaultYes ? "Yes" : "No");
    return defaultYes;
  }
  for (;;) {
    std::fprintf(stderr, "%s [%s] ", text.c_str(), defaultYes ? "Y/n" : "y/N");
    std::string reply;
    if (!std::getline(std::cin, reply)) return defaultYes;
    if (reply.empty()) return defaultYes;
    if (reply[0] == 'y' || reply[0] == 'Y') return true;
    if (reply[0] == 'n' || reply[0] == 'N') return false;
  }
}

void CommandLineUi::ProgressStart(int maximum) {
  maximum_ = maximum;
  done_ = 0;
}

void CommandLineUi::ProgressStep(int units, const std::string& what) {
  done_ += units;
  if (!isatty(STDERR_FILENO) || maximum_ <= 0) return;
  std::fprintf(stderr, "\r\033[K[%3d%%] %s", 100 * std::min(done_, maximum_) / maximum_,
               what.c_str());
  std::fflush(stderr);
  progressShown_ = true;
}

void CommandLineUi::ProgressEnd() { ClearProgress(); }

}  // namespace morvane
