// The main window frmMorvane1: three tab pages (the project with the source,
// the output and the objects to convert; the list controls and the other
// options; the security information), the menu, and the start of a run. The
// run goes through the same composition root as the command line, on a
// worker thread, while the progress window shows how far it got; after it
// the analysis dialog prints the chosen reports.
#pragma once

#include <QLockFile>
#include <QMainWindow>
#include <memory>

#include "app/conversion_run.h"
#include "session/strings.h"
#include "shell/settings_store.h"

class QAction;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace morvane {

class Connect;
class ProgressWindow;
class WindowUi;

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(Connect* host);
  ~MainWindow() override;

  // The load of the window: false, after its message, when the window must
  // not be shown (another instance runs, a companion file is missing).
  bool Load();
  // Closes the window without its close routine (an unload from code).
  void Unload();

  bool WindowLoaded() const { return windowLoaded_; }
  bool SettingsDirty() const { return settingsDirty_; }
  bool Running() const { return worker_ != nullptr; }

  // Choosing the database named in txtMDB (its LostFocus): fills the
  // object lists, or clears the window with the reason.
  void ChooseDatabase();
  // cmdTranslate: the checks, then the run on a worker thread.
  void StartTranslation();
  void SaveSettings();
  // The close routine: asks about unsaved settings and closes the window.
  void CloseMainWindow();

 signals:
  // A run ended, its analysis dialog closed; the status of the command
  // line (RunStatus).
  void RunFinished(int status);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* BuildProjectPage();
  QWidget* BuildListControlsPage();
  QWidget* BuildSecurityPage();
  void BuildMenu();
  void ConnectEvents();
  void RestoreSettings();
  WindowOptions OptionsOfControls() const;
  RunOptions RunOptionsOfControls() const;
  void ClearLists();
  void ProposeOutputPath();
  void ListboxTypeClicked(int n);
  void ComboboxTypeClicked(int n);
  void NotRegisteredWarning(StringId control, StringId kind);
  void OpenRecentFile(const QString& path);
  void RunEnded();
  void PrintReports();
  void ShowAbout();
  void SetRunning(bool running);

  Connect* host_;
  SettingsStore settings_;
  std::unique_ptr<QLockFile> instance_;
  bool windowLoaded_ = false;
  bool settingsDirty_ = false;
  bool unloading_ = false;

  // The run in progress, and what the progress window and the analysis
  // dialog need of it.
  std::unique_ptr<ConversionRun> run_;
  RunRequest request_;
  RunSummary summary_;
  QThread* worker_ = nullptr;
  WindowUi* ui_ = nullptr;
  ProgressWindow* progress_ = nullptr;

  QTabWidget* tsMain_;
  QLineEdit *txtMDB_, *txtSourceTree_, *txtPath_;
  QPushButton *cmdOpen_, *cmdOpenTree_, *cmdSourceTree_, *cmdOpenPath_, *cmdTranslate_;
  QListWidget *lstForms_, *lstModules_, *lstReports_;
  QListWidget *lstListboxType_, *lstComboBoxType_;
  QGroupBox *grpoptListboxMode_, *grpDataAccess_;
  QRadioButton *optListboxMode1_, *optListboxMode2_, *optCBOMode1_, *optCBOMode2_;
  QRadioButton *optDataAccess0_, *optDataAccess1_;
  QCheckBox *chkStandardVB_, *chkMDI_, *chkRelativePaths_, *chkSSOption_, *chkDTPicker_;
  QCheckBox *chkConvertMacros_, *chkCreateProject_, *chkVB5_, *chkSecurity_;
  QLineEdit *txtADOConnect_, *txtMDW_, *txtUser_, *txtPassword_;
  QPushButton* cmdOpenMDW_;
  QAction* mnuTranslate_;
  QList<QAction*> recent_;
};

}  // namespace morvane
