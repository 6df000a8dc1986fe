// The add-in shell of the stand-alone host.
#include "shell/connect.h"

#include "shell/main_window.h"
#include "shell/settings_store.h"

namespace morvane {

Connect::~Connect() {
  if (window_) delete window_.data();
}

void Connect::OnConnection(ConnectMode mode) {
  if (mode == kConnectExternal) {
    Show();
    return;
  }
  std::string display;
  SettingsStore().ReadRegistryValue("Settings/DisplayOnConnect", &display);
  if (display == "1") Show();
}

MainWindow* Connect::MainForm() {
  if (!window_) {
    window_ = new MainWindow(this);
    if (!window_->Load()) {
      CloseConnection();
      return nullptr;
    }
  }
  return window_;
}

void Connect::Show() {
  MainWindow* window = MainForm();
  if (!window) return;
  formDisplayed_ = true;
  window->show();
  window->activateWindow();
}

void Connect::HideForm() {
  formDisplayed_ = false;
  if (window_) window_->hide();
}

void Connect::CloseConnection() {
  formDisplayed_ = false;
  if (window_) {
    window_->Unload();
    window_->deleteLater();
    window_.clear();
  }
  emit Closed();
}

}  // namespace morvane
