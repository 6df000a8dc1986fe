// Messages, questions and progress of a run, for the window.
#include "shell/window_ui.h"

#include <QThread>

#include "shell/message_box.h"
#include "shell/shell_text.h"

namespace morvane {

WindowUi::WindowUi(QWidget* window) : window_(window) {}

template <typename F>
auto WindowUi::OnWindowThread(F show) -> decltype(show()) {
  if (QThread::currentThread() == thread()) return show();
  decltype(show()) result{};
  QMetaObject::invokeMethod(
      this, [&] { result = show(); }, Qt::BlockingQueuedConnection);
  return result;
}

void WindowUi::ShowMessage(const std::string& text, MessageIcon icon) {
  OnWindowThread([&] { return ShowMessageBox(window_, FromSystem(text), icon); });
}

bool WindowUi::AskYesNo(const std::string& text, bool defaultYes) {
  return OnWindowThread([&] {
    return ShowMessageBox(window_, FromSystem(text), MessageIcon::Question,
                          {.YesNo = true, .DefaultYes = defaultYes});
  });
}

void WindowUi::ProgressStep(int units, const std::string& what) {
  emit Stepped(units, FromSystem(what));
}

}  // namespace morvane
