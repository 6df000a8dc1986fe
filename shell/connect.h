// The add-in shell, here with a stand-alone host: the program itself starts
// it as an external start (connect mode 2), which shows the main window
// straight away. There is no development environment whose menu it could
// join, so the menu entry of the other connect modes is not made.
#pragma once

#include <QObject>
#include <QPointer>

namespace morvane {

class MainWindow;

enum ConnectMode { kConnectAfterStartup = 0, kConnectExternal = 2 };

class Connect : public QObject {
  Q_OBJECT
 public:
  Connect() = default;
  ~Connect() override;

  // OnConnection: an external start shows the window; after startup it
  // shows only when the setting DisplayOnConnect of the section Settings
  // is "1".
  void OnConnection(ConnectMode mode);
  void OnDisconnection() { CloseConnection(); }

  // Show: the main window, created (and loaded) when there is none.
  void Show();
  void HideForm();
  // CloseConnection: the window goes, and the host hears Closed.
  void CloseConnection();
  // MainForm: the window, created when there is none; null when its load
  // refused to show it.
  MainWindow* MainForm();

  bool FormDisplayed() const { return formDisplayed_; }

 signals:
  void Closed();

 private:
  QPointer<MainWindow> window_;
  bool formDisplayed_ = false;
};

}  // namespace morvane
