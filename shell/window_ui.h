// The window's side of a run: messages and questions as message boxes on
// the thread of the window, whichever thread asks, and progress passed on
// as queued signals, so a run on a worker thread never touches a widget.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "session/user_interface.h"

namespace morvane {

class WindowUi : public QObject, public UserInterface {
  Q_OBJECT
 public:
  explicit WindowUi(QWidget* window);

  void ShowMessage(const std::string& text, MessageIcon icon) override;
  bool AskYesNo(const std::string& text, bool defaultYes) override;
  void ProgressStart(int maximum) override { emit Started(maximum); }
  void ProgressStep(int units, const std::string& what) override;
  void ProgressEnd() override { emit Ended(); }

 signals:
  void Started(int maximum);
  void Stepped(int units, const QString& what);
  void Ended();

 private:
  // Runs `show` on the window's thread and waits for it.
  template <typename F>
  auto OnWindowThread(F show) -> decltype(show());
  QPointer<QWidget> window_;
};

}  // namespace morvane
