// The main window: its pages, menu and events, and a run started from it.
#include "shell/main_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>
#include <QWhatsThis>

#include "session/analysis_report.h"
#include "session/conversion_session.h"
#include "shell/connect.h"
#include "shell/message_box.h"
#include "shell/progress_window.h"
#include "shell/reports_dialog.h"
#include "shell/shell_text.h"
#include "shell/update_check.h"
#include "shell/window_ui.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kListboxTypes[] = {
    "GreenTree DataList 1.0", "Sheridan Data Widgets 2.0", "Sheridan Data Widgets 3.0",
    "Halvex Kestrel",         "Microsoft ListView",
};
constexpr const char* kComboboxTypes[] = {
    "GreenTree DataList 1.0",
    "Sheridan Data Widgets 2.0",
    "Sheridan Data Widgets 3.0",
    "Microsoft Forms 2.0",
};
constexpr int kListboxCount = std::size(kListboxTypes);
constexpr int kComboboxCount = std::size(kComboboxTypes);

// The optional list controls are ActiveX controls of Windows; no such
// control is ever registered here.
constexpr bool kGreenTreeRegistered = false;
constexpr bool kSheridanRegistered = false;

template <typename W>
W* Named(W* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

QLabel* Label(StringId caption, const char* name, QWidget* buddy) {
  auto* label = Named(new QLabel(Caption(caption)), name);
  label->setBuddy(buddy);
  return label;
}

// A filter of the common dialog ("Text|*.a;*.b") as Qt writes one.
QString DialogFilter(StringId id) {
  const QStringList parts = Caption(id).split('|');
  QString description = parts.value(0);
  const int paren = description.indexOf('(');
  if (paren > 0) description = description.left(paren).trimmed();
  return description + " (" + parts.value(1).split(';').join(' ') + ")";
}

// The names selected in a list, as the catalog spells them.
std::vector<std::string> SelectedNames(const QListWidget* list) {
  std::vector<std::string> names;
  for (int i = 0; i < list->count(); ++i)
    if (list->item(i)->isSelected())
      names.push_back(list->item(i)->data(Qt::UserRole).toByteArray().toStdString());
  return names;
}

void Fill(QListWidget* list, const std::vector<std::string>& names) {
  for (const auto& name : names) {
    auto* item = new QListWidgetItem(FromSystem(name), list);
    item->setData(Qt::UserRole, QByteArray::fromStdString(name));
  }
}

}  // namespace

MainWindow::MainWindow(Connect* host) : host_(host) {
  setObjectName("frmMorvane1");
  setAttribute(Qt::WA_DeleteOnClose, false);
  tsMain_ = Named(new QTabWidget(this), "tsMain");
  tsMain_->addTab(BuildProjectPage(), Caption(kCapProject));
  tsMain_->addTab(BuildListControlsPage(), Caption(kCapListControls));
  tsMain_->addTab(BuildSecurityPage(), Caption(kCapSecurity));
  setCentralWidget(tsMain_);
  BuildMenu();
  statusBar()->setObjectName("sbStatus");
  ConnectEvents();
}

MainWindow::~MainWindow() {
  // A window that goes away during a run waits for the run: the worker
  // writes into this window's run.
  if (worker_) {
    worker_->wait();
    delete worker_;
  }
  delete ui_;
}

QWidget* MainWindow::BuildProjectPage() {
  auto* page = Named(new QWidget, "grpPage_1");
  auto* frame = Named(new QGroupBox(Caption(kCapDatabaseFrame)), "Frame3");
  txtMDB_ = Named(new QLineEdit, "txtMDB");
  txtMDB_->setWhatsThis(Caption(kTipSource));
  cmdOpen_ = Named(new QPushButton(Caption(kCapBrowse)), "cmdOpen");
  cmdOpenTree_ = Named(new QPushButton(Caption(kCapFolder)), "cmdOpenTree");
  txtSourceTree_ = Named(new QLineEdit, "txtSourceTree");
  cmdSourceTree_ = Named(new QPushButton(Caption(kCapBrowse)), "cmdSourceTree");
  txtPath_ = Named(new QLineEdit, "txtPath");
  txtPath_->setWhatsThis(Caption(kTipOutput));
  cmdOpenPath_ = Named(new QPushButton(Caption(kCapBrowse)), "cmdOpenPath");
  auto* grid = new QGridLayout(frame);
  grid->addWidget(Label(kCapLocationMdb, "Label2_0", txtMDB_), 0, 0);
  grid->addWidget(txtMDB_, 0, 1);
  grid->addWidget(cmdOpen_, 0, 2);
  grid->addWidget(cmdOpenTree_, 0, 3);
  grid->addWidget(Label(kCapSourceTree, "lblSourceTree", txtSourceTree_), 1, 0);
  grid->addWidget(txtSourceTree_, 1, 1);
  grid->addWidget(cmdSourceTree_, 1, 2);
  grid->addWidget(Label(kCapOutputPath, "Label2_1", txtPath_), 2, 0);
  grid->addWidget(txtPath_, 2, 1);
  grid->addWidget(cmdOpenPath_, 2, 2);

  auto* lists = new QHBoxLayout;
  auto addList = [&](QListWidget*& list, const char* name, StringId caption, const char* label,
                     const char* button) {
    list = Named(new QListWidget, name);
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setWhatsThis(Caption(kTipLists));
    auto* select = Named(new QPushButton(Caption(kCapSelectAll)), button);
    connect(select, &QPushButton::clicked, list, &QListWidget::selectAll);
    auto* column = new QVBoxLayout;
    column->addWidget(Label(caption, label, list));
    column->addWidget(list);
    column->addWidget(select);
    lists->addLayout(column);
  };
  addList(lstForms_, "lstForms", kCapForms, "Label2_2", "cmdSelForms");
  addList(lstModules_, "lstModules", kCapModules, "Label2_3", "cmdSelMods");
  addList(lstReports_, "lstReports", kCapReports, "Label2_4", "cmdSelRpts");

  cmdTranslate_ = Named(new QPushButton(Caption(kCapStartTranslation)), "cmdTranslate");
  cmdTranslate_->setWhatsThis(Caption(kTipTranslate));
  auto* bottom = new QHBoxLayout;
  bottom->addStretch();
  bottom->addWidget(cmdTranslate_);

  auto* layout = new QVBoxLayout(page);
  layout->addWidget(frame);
  layout->addLayout(lists, 1);
  layout->addLayout(bottom);
  return page;
}

QWidget* MainWindow::BuildListControlsPage() {
  auto* page = Named(new QWidget, "grpPage_2");
  lstListboxType_ = Named(new QListWidget, "lstListboxType");
  lstComboBoxType_ = Named(new QListWidget, "lstComboBoxType");
  for (const char* t : kListboxTypes) lstListboxType_->addItem(t);
  for (const char* t : kComboboxTypes) lstComboBoxType_->addItem(t);
  lstListboxType_->setWhatsThis(Caption(kTipListTypes));
  lstComboBoxType_->setWhatsThis(Caption(kTipListTypes));
  auto* types = new QVBoxLayout;
  types->addWidget(Label(kCapListboxType, "lblListBoxType", lstListboxType_));
  types->addWidget(lstListboxType_);
  types->addWidget(Label(kCapComboboxType, "lblComboBoxType", lstComboBoxType_));
  types->addWidget(lstComboBoxType_);

  auto pair = [](QGroupBox* box, QRadioButton*& a, const char* aName, StringId aCaption,
                 QRadioButton*& b, const char* bName, StringId bCaption) {
    a = Named(new QRadioButton(Caption(aCaption)), aName);
    b = Named(new QRadioButton(Caption(bCaption)), bName);
    auto* l = new QHBoxLayout(box);
    l->addWidget(a);
    l->addWidget(b);
    l->addStretch();
    return box;
  };
  grpoptListboxMode_ = Named(new QGroupBox(Caption(kCapListboxMode)), "grpoptListboxMode");
  auto* frame5 = Named(new QGroupBox(Caption(kCapComboboxMode)), "Frame5");
  grpDataAccess_ = Named(new QGroupBox(Caption(kCapDataAccess)), "grpDataAccess");
  auto* modes = new QVBoxLayout;
  modes->addWidget(pair(grpoptListboxMode_, optListboxMode1_, "optListboxMode_1", kCapBound,
                        optListboxMode2_, "optListboxMode_2", kCapUnbound));
  modes->addWidget(pair(frame5, optCBOMode1_, "optCBOMode_1", kCapBound, optCBOMode2_,
                        "optCBOMode_2", kCapUnbound));
  modes->addWidget(pair(grpDataAccess_, optDataAccess0_, "optDataAccess_0", kCapDao,
                        optDataAccess1_, "optDataAccess_1", kCapAdo));
  modes->addStretch();

  auto* optional = Named(new QGroupBox(Caption(kCapAdditionalOptions)), "grpOptionalCtls");
  auto* checks = new QVBoxLayout(optional);
  auto check = [&](QCheckBox*& box, const char* name, StringId caption, bool on) {
    box = Named(new QCheckBox(Caption(caption)), name);
    box->setChecked(on);
    checks->addWidget(box);
  };
  check(chkStandardVB_, "chkStandardVB", kCapStandardVb, true);
  check(chkMDI_, "chkMDI", kCapMdi, true);
  check(chkRelativePaths_, "chkRelativePaths", kCapRelativePaths, true);
  check(chkSSOption_, "chkSSOption", kCapSsOption, false);
  check(chkDTPicker_, "chkDTPicker", kCapDatePicker, true);
  check(chkConvertMacros_, "chkConvertMacros", kCapConvertMacros, true);
  check(chkCreateProject_, "chkCreateProject", kCapCreateProject, true);
  check(chkVB5_, "chkVB5", kCapVb5, false);
  checks->addStretch();
  optListboxMode2_->setChecked(true);
  optCBOMode1_->setChecked(true);
  optDataAccess1_->setChecked(true);

  auto* layout = new QHBoxLayout(page);
  layout->addLayout(types, 1);
  layout->addLayout(modes, 1);
  layout->addWidget(optional, 1);
  return page;
}

QWidget* MainWindow::BuildSecurityPage() {
  auto* page = Named(new QWidget, "grpPage_3");
  txtADOConnect_ = Named(new QLineEdit, "txtADOConnect");
  txtADOConnect_->setWhatsThis(Caption(kTipAdoConnect));
  chkSecurity_ = Named(new QCheckBox(Caption(kCapDisableSecurity)), "chkSecurity");
  chkSecurity_->setChecked(true);
  chkSecurity_->setWhatsThis(Caption(kTipSecurity));
  auto* frame = Named(new QGroupBox(Caption(kCapSecurityFrame)), "frmSecurity");
  txtMDW_ = Named(new QLineEdit, "txtMDW");
  cmdOpenMDW_ = Named(new QPushButton(Caption(kCapBrowse)), "cmdOpenMDW");
  txtUser_ = Named(new QLineEdit("Admin"), "txtUser");
  txtPassword_ = Named(new QLineEdit, "txtPassword");
  txtPassword_->setEchoMode(QLineEdit::Password);
  auto* grid = new QGridLayout(frame);
  grid->addWidget(Label(kCapLocationMdw, "lblAcccessMDW", txtMDW_), 0, 0);
  grid->addWidget(txtMDW_, 0, 1);
  grid->addWidget(cmdOpenMDW_, 0, 2);
  grid->addWidget(Label(kCapUserName, "lblUserName", txtUser_), 1, 0);
  grid->addWidget(txtUser_, 1, 1);
  grid->addWidget(Label(kCapPassword, "lblPassword", txtPassword_), 2, 0);
  grid->addWidget(txtPassword_, 2, 1);

  auto* layout = new QVBoxLayout(page);
  layout->addWidget(Label(kCapAdoConnect, "lblADOConnect", txtADOConnect_));
  layout->addWidget(txtADOConnect_);
  layout->addWidget(chkSecurity_);
  layout->addWidget(frame);
  layout->addStretch();
  return page;
}

void MainWindow::BuildMenu() {
  QMenu* main = menuBar()->addMenu(Caption(kCapMainMenu));
  main->setObjectName("mnu1");
  auto item = [this](QMenu* menu, StringId caption, const char* name, auto slot) {
    QAction* a = menu->addAction(Caption(caption));
    a->setObjectName(name);
    connect(a, &QAction::triggered, this, slot);
    return a;
  };
  mnuTranslate_ = item(main, kCapStartTranslation, "mnuMain_0", [this] { StartTranslation(); });
  item(main, kCapSaveSettings, "mnuMain_1", [this] { SaveSettings(); });
  item(main, kCapExit, "mnuMain_2", [this] { CloseMainWindow(); });
  main->addSeparator()->setObjectName("mnuMain_3");
  for (int i = 0; i < 4; ++i) {
    QAction* a = main->addAction(QString());
    a->setObjectName(QString("mnuMain_%1").arg(4 + i));
    connect(a, &QAction::triggered, this, [this, a] { OpenRecentFile(a->data().toString()); });
    recent_ << a;
  }
  QMenu* help = menuBar()->addMenu(Caption(kCapHelpMenu));
  help->setObjectName("mnu2");
  item(help, kCapHelpTopics, "mnuHelp_0", [] { ShowHelp(0); });
  item(help, kCapWhatsThis, "mnuHelp_1", [] { QWhatsThis::enterWhatsThisMode(); });
  QAction* updates = help->addAction(Caption(kCapCheckUpdates));
  updates->setObjectName("mnuHelp_2");
  connect(updates, &QAction::triggered, this, [this, updates] {
    // One check at a time: the check waits for the server in a loop of its
    // own, in which the menu stays live.
    updates->setEnabled(false);
    CheckForUpdates(this, settings_);
    updates->setEnabled(true);
  });
  item(help, kCapAbout, "mnuHelp_3", [this] { ShowAbout(); });
}

void MainWindow::ConnectEvents() {
  // The LostFocus of txtMDB chooses the database.
  connect(txtMDB_, &QLineEdit::editingFinished, this, [this] {
    if (!Running()) ChooseDatabase();
  });
  connect(txtSourceTree_, &QLineEdit::editingFinished, this, [this] {
    if (!Running() && !txtMDB_->text().trimmed().isEmpty()) ChooseDatabase();
  });
  connect(cmdOpen_, &QPushButton::clicked, this, [this] {
    const QString file = QFileDialog::getOpenFileName(
        this, Caption(kCapLocateDatabase), txtMDB_->text(), DialogFilter(kCapDatabaseFilter));
    if (file.isEmpty()) return;
    txtMDB_->setText(QDir::toNativeSeparators(file));
    ProposeOutputPath();
    ChooseDatabase();
  });
  connect(cmdOpenTree_, &QPushButton::clicked, this, [this] {
    const QString dir =
        QFileDialog::getExistingDirectory(this, Caption(kCapLocateSourceTree), txtMDB_->text());
    if (dir.isEmpty()) return;
    txtMDB_->setText(QDir::toNativeSeparators(dir));
    ProposeOutputPath();
    ChooseDatabase();
  });
  connect(cmdSourceTree_, &QPushButton::clicked, this, [this] {
    const QString dir = QFileDialog::getExistingDirectory(this, Caption(kCapLocateSourceTree),
                                                          txtSourceTree_->text());
    if (dir.isEmpty()) return;
    txtSourceTree_->setText(QDir::toNativeSeparators(dir));
    if (!txtMDB_->text().trimmed().isEmpty()) ChooseDatabase();
  });
  connect(cmdOpenPath_, &QPushButton::clicked, this, [this] {
    const QString dir = QFileDialog::getExistingDirectory(this, Caption(kCapOutputPath).remove('&'),
                                                          txtPath_->text());
    if (!dir.isEmpty()) txtPath_->setText(QDir::toNativeSeparators(dir));
  });
  connect(cmdOpenMDW_, &QPushButton::clicked, this, [this] {
    const QString file = QFileDialog::getOpenFileName(this, Caption(kCapLocateMdw), txtMDW_->text(),
                                                      DialogFilter(kCapMdwFilter));
    if (file.isEmpty()) return;
    txtMDW_->setText(QDir::toNativeSeparators(file));
    txtUser_->setFocus();
    txtUser_->selectAll();
  });
  connect(cmdTranslate_, &QPushButton::clicked, this, [this] { StartTranslation(); });

  // A workgroup file means a secured database: the named workspace is used.
  connect(txtMDW_, &QLineEdit::textChanged, this, [this] { chkSecurity_->setChecked(false); });
  connect(chkSecurity_, &QCheckBox::clicked, this, [this](bool on) {
    if (on && windowLoaded_)
      ShowMessageBox(this, Caption(kMsgSecurityWarning), MessageIcon::Information,
                     {.HelpContext = 302, .Plain = true});
    settingsDirty_ = true;
  });
  for (QAbstractButton* b : std::initializer_list<QAbstractButton*>{
           chkConvertMacros_, chkCreateProject_, chkDTPicker_, chkMDI_, chkRelativePaths_,
           chkSSOption_, chkStandardVB_, optCBOMode1_, optCBOMode2_, optListboxMode1_,
           optListboxMode2_})
    connect(b, &QAbstractButton::clicked, this, [this] { settingsDirty_ = true; });
  connect(lstListboxType_, &QListWidget::currentRowChanged, this, &MainWindow::ListboxTypeClicked);
  connect(lstComboBoxType_, &QListWidget::currentRowChanged, this,
          &MainWindow::ComboboxTypeClicked);
}

bool MainWindow::Load() {
  // One window at a time: a second copy of the program leaves at once.
  const QString dir = QFileInfo(settings_.FileName()).absolutePath();
  QDir().mkpath(dir);
  instance_ = std::make_unique<QLockFile>(dir + "/morvane-gui.lock");
  if (!instance_->tryLock(0)) {
    instance_.reset();
    qWarning("%s", qUtf8Printable(Caption(kMsgAnotherInstance)));
    return false;
  }
  // The required-file check: the companion files stand in the data
  // directory.
  const std::string missing = MissingDataFile(DataDirectory());
  if (!missing.empty()) {
    ShowMessageBox(this, FromSystem(FormatText(kMsgRequiredFile, {missing})), MessageIcon::Stop);
    return false;
  }
  setWindowTitle(Caption(kCapMorvane));
  resize(760, 520);
  if (QScreen* screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
  // The default workgroup file, as the Jet engine's SystemDB names it; the
  // load itself leaves the security box as the settings say.
  std::string systemDb;
  settings_.ReadRegistryValue("SystemDB", &systemDb);
  {
    const QSignalBlocker quiet(txtMDW_);
    txtMDW_->setText(QString::fromStdString(systemDb).trimmed());
  }
  RestoreSettings();

  // The recent files of earlier sessions; a choice made now shows in the
  // menu of the next one.
  const RecentFiles files = settings_.ReadRecentFiles();
  for (int i = 0; i < 4; ++i) {
    const QString path = QString::fromStdString(files[i]).trimmed();
    recent_[i]->setData(path);
    recent_[i]->setText(QString("&%1 ").arg(i + 1) + path);
    recent_[i]->setVisible(!path.isEmpty());
  }
  if (recent_[0]->data().toString().isEmpty()) {
    recent_[0]->setText(Caption(kCapNoFiles));
    recent_[0]->setEnabled(false);
    recent_[0]->setVisible(true);
    for (int i = 1; i < 4; ++i) recent_[i]->setVisible(false);
  }
  settingsDirty_ = false;
  cmdOpen_->setFocus();
  windowLoaded_ = true;
  return true;
}

void MainWindow::RestoreSettings() {
  std::string stored;
  settings_.ReadRegistryValue("ControlDefaults", &stored);
  WindowOptions o = OptionsOfControls();
  if (QString::fromStdString(stored).trimmed().isEmpty()) {
    o.ListboxIndex = 4;
    o.ComboboxIndex = 3;
  } else {
    UnpackControlDefaults(stored, kListboxCount, kComboboxCount, &o);
  }
  chkSecurity_->setChecked(o.SecurityDisabled);
  (o.ListboxBound ? optListboxMode1_ : optListboxMode2_)->setChecked(true);
  (o.ComboboxBound ? optCBOMode1_ : optCBOMode2_)->setChecked(true);
  chkSSOption_->setChecked(o.SsOptionSet);
  chkMDI_->setChecked(o.Mdi);
  chkStandardVB_->setChecked(o.StandardControls);
  chkRelativePaths_->setChecked(o.RelativePaths);
  chkCreateProject_->setChecked(o.CreateProject);
  chkConvertMacros_->setChecked(o.ConvertMacros);
  (o.Ado ? optDataAccess1_ : optDataAccess0_)->setChecked(true);
  chkDTPicker_->setChecked(o.DatePicker);
  // A list without a selection takes the fourth entry.
  lstListboxType_->setCurrentRow(o.ListboxIndex < 0 ? 3 : o.ListboxIndex);
  lstComboBoxType_->setCurrentRow(o.ComboboxIndex < 0 ? 3 : o.ComboboxIndex);
}

WindowOptions MainWindow::OptionsOfControls() const {
  WindowOptions o;
  o.SecurityDisabled = chkSecurity_->isChecked();
  o.ListboxIndex = lstListboxType_->currentRow();
  o.ListboxBound = optListboxMode1_->isChecked();
  o.ComboboxIndex = lstComboBoxType_->currentRow();
  o.ComboboxBound = optCBOMode1_->isChecked();
  o.SsOptionSet = chkSSOption_->isChecked();
  o.Mdi = chkMDI_->isChecked();
  o.StandardControls = chkStandardVB_->isChecked();
  o.RelativePaths = chkRelativePaths_->isChecked();
  o.CreateProject = chkCreateProject_->isChecked();
  o.ConvertMacros = chkConvertMacros_->isChecked();
  o.Ado = optDataAccess1_->isChecked();
  o.DatePicker = chkDTPicker_->isChecked();
  return o;
}

RunOptions MainWindow::RunOptionsOfControls() const {
  RunOptions r;
  r.DataDir = DataDirectory();
  r.StandardControls = chkStandardVB_->isChecked();
  r.IsMdi = chkMDI_->isChecked();
  r.MacrosWanted = chkConvertMacros_->isChecked();
  r.CreateProject = chkCreateProject_->isChecked();
  r.SecurityDisabled = chkSecurity_->isChecked();
  r.ListboxType = lstListboxType_->currentRow() + 1;
  r.ComboboxType = lstComboBoxType_->currentRow() + 1;
  r.ListboxBound = optListboxMode1_->isChecked();
  r.ComboboxBound = optCBOMode1_->isChecked();
  r.UseAdo = true;  // every run writes ADO, whatever optDataAccess shows
  r.IsVb5 = chkVB5_->isChecked();
  r.RelativePaths = chkRelativePaths_->isChecked();
  r.SsOptionSet = chkSSOption_->isChecked();
  r.DatePicker = chkDTPicker_->isChecked();
  r.UserName = ToSystem(txtUser_->text());
  r.Password = ToSystem(txtPassword_->text());
  r.WorkgroupFile = txtMDW_->text().toStdString();
  r.AdoConnect = ToSystem(txtADOConnect_->text());
  return r;
}

void MainWindow::SaveSettings() {
  settings_.WriteRegistryValue("ControlDefaults", PackControlDefaults(OptionsOfControls()));
  settingsDirty_ = false;
}

void MainWindow::ListboxTypeClicked(int n) {
  if (n == 1 || n == 2) {
    if (optListboxMode1_->isChecked()) chkSSOption_->setChecked(true);
  } else if (n == 3) {
    // Halvex Kestrel lists are unbound.
    optListboxMode2_->setChecked(true);
  }
  grpoptListboxMode_->setEnabled(n != 3);
  if (n == 0 || n == 1) optDataAccess0_->setChecked(true);
  grpDataAccess_->setEnabled(n != 0 && n != 1);
  if ((n == 0 && !kGreenTreeRegistered)) NotRegisteredWarning(kMsgGreenTree, kMsgListbox);
  if ((n == 1 || n == 2) && !kSheridanRegistered) NotRegisteredWarning(kMsgSheridan, kMsgListbox);
  settingsDirty_ = true;
}

void MainWindow::ComboboxTypeClicked(int n) {
  if (n == 0 || n == 1) optDataAccess0_->setChecked(true);
  grpDataAccess_->setEnabled(n != 0 && n != 1);
  if ((n == 0 && !kGreenTreeRegistered)) NotRegisteredWarning(kMsgGreenTree, kMsgCombobox);
  if ((n == 1 || n == 2) && !kSheridanRegistered) NotRegisteredWarning(kMsgSheridan, kMsgCombobox);
  settingsDirty_ = true;
}

void MainWindow::NotRegisteredWarning(StringId control, StringId kind) {
  // Restoring the settings at load warns of nothing; the user's choice does.
  if (!windowLoaded_) return;
  QString text = Caption(kMsgNotRegistered);
  text.replace("[%1]", Caption(control)).replace("[%2]", Caption(kind));
  ShowMessageBox(this, text, MessageIcon::Information);
}

void MainWindow::ClearLists() {
  lstForms_->clear();
  lstModules_->clear();
  lstReports_->clear();
}

void MainWindow::ProposeOutputPath() {
  // The directory of the database (or of the tree), and Morvane in it.
  QString source = QDir::fromNativeSeparators(txtMDB_->text().trimmed());
  while (source.size() > 1 && source.endsWith('/')) source.chop(1);
  txtPath_->setText(QDir::toNativeSeparators(source.left(source.lastIndexOf('/') + 1) + "Morvane"));
}

void MainWindow::ChooseDatabase() {
  const QString source = txtMDB_->text().trimmed();
  if (source.isEmpty()) return;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  // The listing comes from a run of its own; the run proper opens the
  // source again, as it stands when the translation starts.
  RunOptions options = RunOptionsOfControls();
  options.AdoConnect.clear();
  ConversionRun chooser(options);
  std::string err;
  // A secured database is opened through its workgroup file, which must be
  // there to be read.
  const QString workgroup = txtMDW_->text().trimmed();
  const bool secured = !chkSecurity_->isChecked() && !source.endsWith("adp", Qt::CaseInsensitive);
  if (secured && !QFileInfo(workgroup).isFile())
    err = Text(kMsgInvalidDatabase) + " (" +
          FormatText(kMsgSourceUnreadable, {workgroup.toStdString(), "no such file"}) + ")";
  const bool opened =
      err.empty() &&
      chooser.Open({source.toStdString(), txtSourceTree_->text().trimmed().toStdString(), {}},
                   &err);
  ClearLists();
  if (!opened) {
    QApplication::restoreOverrideCursor();
    ShowMessageBox(this, FromSystem(err), MessageIcon::Information);
    txtMDB_->clear();
    txtPath_->clear();
    return;
  }
  const CatalogListing listing = chooser.Listing();
  Fill(lstForms_, listing.Forms);
  Fill(lstModules_, listing.Modules);
  Fill(lstReports_, listing.Reports);
  txtADOConnect_->setText(FromSystem(chooser.Session().Options.AdoConnect));
  settings_.AddRecentFile(source.toStdString());
  const std::vector<std::string> warnings = chooser.Warnings();
  QApplication::restoreOverrideCursor();
  if (!warnings.empty()) {
    QString text = Caption(kMsgSourceWarnings);
    for (const auto& w : warnings) text += "\n" + FromSystem(w);
    ShowMessageBox(this, text, MessageIcon::Information);
  }
}

void MainWindow::OpenRecentFile(const QString& path) {
  if (Running() || path.isEmpty()) return;
  txtMDB_->setText(path);
  ProposeOutputPath();
  ChooseDatabase();
}

void MainWindow::SetRunning(bool running) {
  for (QWidget* w : std::initializer_list<QWidget*>{cmdTranslate_, cmdOpen_, cmdOpenTree_,
                                                    cmdSourceTree_, txtMDB_, txtSourceTree_})
    w->setEnabled(!running);
  mnuTranslate_->setEnabled(!running);
  for (QAction* a : recent_) a->setEnabled(!running && !a->data().toString().isEmpty());
}

void MainWindow::StartTranslation() {
  if (Running()) return;
  auto run = std::make_unique<ConversionRun>(RunOptionsOfControls());
  auto ui = new WindowUi(this);
  RunRequest request;
  request.OutputDir = QDir::fromNativeSeparators(txtPath_->text().trimmed()).toStdString();
  Selection selection{SelectedNames(lstForms_), SelectedNames(lstModules_),
                      SelectedNames(lstReports_), false};
  const bool any =
      !selection.Forms.empty() || !selection.Modules.empty() || !selection.Reports.empty();
  const QString source = txtMDB_->text().trimmed();
  std::string err;
  if (any && !source.isEmpty()) {
    if (!run->Open({source.toStdString(), txtSourceTree_->text().trimmed().toStdString(), {}},
                   &err) ||
        !run->MakeRequest(request.OutputDir, selection, &request, &err)) {
      ShowMessageBox(this, FromSystem(err), MessageIcon::Information);
      delete ui;
      return;
    }
    // A database listed from its catalog alone has nothing to convert from.
    if (!run->Link().Tree()) {
      fs::path tree = source.toStdString();
      ShowMessageBox(
          this,
          FromSystem(FormatText(kMsgNoSourceTreeWindow,
                                {tree.string(), tree.replace_extension(".src").string()})),
          MessageIcon::Information);
      delete ui;
      return;
    }
  }
  if (!run->Check(request, *ui)) {
    delete ui;
    return;
  }

  run_ = std::move(run);
  request_ = request;
  summary_ = RunSummary();
  ui_ = ui;
  progress_ = new ProgressWindow(this);
  connect(ui_, &WindowUi::Started, progress_, &ProgressWindow::SetMaximum);
  connect(ui_, &WindowUi::Stepped, progress_, &ProgressWindow::Step);
  progress_->show();
  statusBar()->clearMessage();
  worker_ = QThread::create([this] { summary_ = run_->Run(request_, *ui_); });
  worker_->setObjectName("morvane-run");
  connect(worker_, &QThread::finished, this, &MainWindow::RunEnded);
  SetRunning(true);
  worker_->start();
}

void MainWindow::RunEnded() {
  worker_->wait();
  delete worker_;
  worker_ = nullptr;
  progress_->hide();
  progress_->deleteLater();
  progress_ = nullptr;

  const RunSummary& s = summary_;
  if (s.Started) {
    const int total = s.Forms + s.Reports + s.Modules;
    statusBar()->showMessage(FromSystem(
        FormatText(kMsgSummaryObjects,
                   {std::to_string(total), std::to_string(s.Forms), std::to_string(s.Reports),
                    std::to_string(s.Modules),
                    s.Macros ? ", " + std::to_string(s.Macros) + " macro(s)" : std::string()})));
  }
  if (!s.Failures.empty()) {
    QString text = Caption(kMsgRunFailures);
    for (const auto& failure : s.Failures) text += "\n" + FromSystem(failure);
    ShowMessageBox(this, text, MessageIcon::Stop);
  }
  if (s.Started && run_->Session().SupportDb) PrintReports();
  const int status = StatusOf(s);
  run_.reset();
  delete ui_;
  ui_ = nullptr;
  SetRunning(false);
  emit RunFinished(status);
}

void MainWindow::PrintReports() {
  QStringList names;
  for (const auto& name : AnalysisReportNames()) names << FromSystem(name);
  const ConversionSession& s = run_->Session();
  const QString output = QString::fromStdString(s.OutputPath);
  const QString where = FromSystem(
      FormatText(kCapAnalysisWhere, {QDir::toNativeSeparators(output + "morvane.db").toStdString(),
                                     QDir::toNativeSeparators(output + "analysis").toStdString()}));
  ReportsDialog dialog(this, names, where);
  dialog.exec();
  if (dialog.Cancelled()) return;
  for (const QString& name : dialog.Selected()) {
    std::string err;
    const std::string page =
        PrintAnalysisReport(*s.SupportDb, s.ProjectName, s.OutputPath, ToSystem(name), &err);
    if (page.empty()) {
      ShowMessageBox(this, FromSystem(err), MessageIcon::Stop);
      continue;
    }
    const QString html = QString::fromStdString(page);
    if (dialog.ToPdf()) {
      QString pdfErr;
      QString pdf = html;
      pdf.replace(pdf.size() - 5, 5, ".pdf");
      if (!PrintHtmlToPdf(html, pdf, &pdfErr)) ShowMessageBox(this, pdfErr, MessageIcon::Stop);
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(html));
  }
}

void MainWindow::ShowAbout() {
  QDialog about(this);
  about.setObjectName("frmAbout");
  about.setWindowTitle(Caption(kCapAbout));
  auto* layout = new QVBoxLayout(&about);
  auto* name = Named(new QLabel("Morvane " MORVANE_VERSION), "lblVersion");
  QString credit = Caption(kMsgTranslationCredit);
  // An untranslated program has no translator to name.
  if (credit.startsWith('[')) credit.clear();
  auto* translation = Named(new QLabel(credit), "lblTranslation");
  auto* ok = Named(new QPushButton(Caption(kCapOk)), "cmdOK");
  connect(ok, &QPushButton::clicked, &about, &QDialog::accept);
  layout->addWidget(name);
  layout->addWidget(translation);
  layout->addWidget(ok, 0, Qt::AlignRight);
  about.exec();
}

void MainWindow::CloseMainWindow() {
  if (Running()) return;
  if (settingsDirty_ &&
      ShowMessageBox(this, Caption(kMsgSaveSettings), MessageIcon::Question, {.YesNo = true}))
    SaveSettings();
  host_->CloseConnection();
}

void MainWindow::Unload() {
  unloading_ = true;
  close();
  instance_.reset();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // A run cannot be stopped; the window stays until it ends.
  if (Running()) {
    event->ignore();
    return;
  }
  event->accept();
  if (!unloading_) CloseMainWindow();
}

}  // namespace morvane
