// The main window driven by object name under the offscreen platform: a run
// on the bundled sample with options from each page, the settings across a
// restart, a large tree while the window stays responsive and a second run,
// and the checks at load. Screenshots of the pages, the progress window and
// the analysis dialog go to the build directory.
#include "shell/main_window.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <filesystem>
#include <fstream>

#include "dialog_answerer.h"
#include "shell/connect.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

template <typename T>
T* Find(QObject* parent, const char* name) {
  T* child = parent->findChild<T*>(name);
  if (!child) qFatal("no %s", name);
  return child;
}

void Type(QWidget* window, const char* field, const QString& text) {
  auto* edit = Find<QLineEdit>(window, field);
  edit->clear();
  QTest::keyClicks(edit, text);
  QTest::keyClick(edit, Qt::Key_Return);
}

void ClickItem(QWidget* window, const char* list, const QString& text) {
  auto* l = Find<QListWidget>(window, list);
  auto items = l->findItems(text, Qt::MatchExactly);
  QVERIFY2(!items.isEmpty(), qPrintable(text));
  l->scrollToItem(items[0]);
  QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(items[0]).center());
}

// A click on the button's own face: a check box takes clicks on its box
// and caption only.
void Click(QWidget* window, const char* button) {
  auto* b = Find<QAbstractButton>(window, button);
  QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(8, b->height() / 2));
}

void Shot(QWidget* widget, const QString& name) {
  QDir().mkpath(MORVANE_SCREENSHOT_DIR);
  QVERIFY(widget->grab().save(QString(MORVANE_SCREENSHOT_DIR) + "/" + name + ".png"));
}

QString P(const fs::path& p) { return QString::fromStdString(p.string()); }

QByteArray Read(const fs::path& file) {
  QFile f(P(file));
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

class MainWindowTest : public QObject {
  Q_OBJECT
 public slots:
  // The desktop's browser: the pages the window asks to show.
  void Open(const QUrl& url) { opened_ << url; }

 private slots:
  void initTestCase() { QDesktopServices::setUrlHandler("file", this, "Open"); }
  void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }
  void init() {
    settings_ = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_->path());
    opened_.clear();
  }

  void runOnTheSampleWithOptionsOfEachPage();
  void settingsSurviveARestart();
  void largeTreeLeavesTheWindowResponsiveAndASecondRunWorks();
  void loadRefusesWithoutCompanionFilesAndForASecondCopy();

 private:
  fs::path Sample() {
    const fs::path copy = fs::path(dir_.path().toStdString()) / "Orders";
    if (!fs::exists(copy))
      fs::copy(fs::path(MORVANE_SOURCE_DIR) / "examples" / "Orders", copy,
               fs::copy_options::recursive);
    return copy;
  }

  QTemporaryDir dir_;
  std::unique_ptr<QTemporaryDir> settings_;
  QList<QUrl> opened_;
};

void MainWindowTest::runOnTheSampleWithOptionsOfEachPage() {
  test::DialogAnswerer answerer;
  Connect host;
  host.OnConnection(kConnectExternal);
  MainWindow* w = host.MainForm();
  QVERIFY(w && w->isVisible() && w->WindowLoaded());
  QCOMPARE(w->windowTitle(), QString("Morvane"));
  auto* tabs = Find<QTabWidget>(w, "tsMain");
  QCOMPARE(tabs->tabText(0), QString("&Project"));
  QCOMPARE(tabs->tabText(1), QString("List &Controls"));
  QCOMPARE(tabs->tabText(2), QString("&Security Information"));
  QCOMPARE(Find<QAction>(w, "mnuMain_4")->text(), QString("(no files)"));
  QVERIFY(!Find<QAction>(w, "mnuMain_4")->isEnabled());

  // A source typed in does not propose an output path.
  const fs::path out = fs::path(dir_.path().toStdString()) / "out";
  Type(w, "txtMDB", P(Sample()));
  QCOMPARE(Find<QListWidget>(w, "lstForms")->count(), 5);
  QCOMPARE(Find<QListWidget>(w, "lstModules")->count(), 4);
  QCOMPARE(Find<QListWidget>(w, "lstReports")->count(), 2);
  QVERIFY(Find<QLineEdit>(w, "txtPath")->text().isEmpty());
  QVERIFY(Find<QLineEdit>(w, "txtADOConnect")->text().endsWith("Data Source=Orders.mdb"));
  Type(w, "txtPath", P(out));
  ClickItem(w, "lstForms", "frmCustomers");
  Click(w, "cmdSelMods");
  ClickItem(w, "lstReports", "rptOrdersByDate");
  Shot(w, "tab-project");

  // List controls: a Halvex Kestrel list box is unbound, and says so.
  tabs->setCurrentIndex(1);
  ClickItem(w, "lstListboxType", "Halvex Kestrel");
  QVERIFY(Find<QRadioButton>(w, "optListboxMode_2")->isChecked());
  QVERIFY(!Find<QGroupBox>(w, "grpoptListboxMode")->isEnabled());
  ClickItem(w, "lstListboxType", "Microsoft ListView");
  QVERIFY(Find<QGroupBox>(w, "grpoptListboxMode")->isEnabled());
  Click(w, "chkMDI");
  Shot(w, "tab-list-controls");

  // Security: the connection string of the generated code, and the warning
  // of the security box with its Help button.
  tabs->setCurrentIndex(2);
  Type(w, "txtADOConnect", "Provider=Test.Provider;Data Source=Orders.mdb");
  Click(w, "chkSecurity");
  QVERIFY(answerer.shown.isEmpty());
  answerer.answers = {QMessageBox::Help, QMessageBox::Ok};
  Click(w, "chkSecurity");
  QCOMPARE(answerer.shown.size(), 2);  // shown again after the help
  QVERIFY(answerer.shown[0].text.startsWith("Checking this box will disable"));
  QVERIFY(answerer.shown[0].buttons & QMessageBox::Help);
  QVERIFY(!opened_.isEmpty() && opened_.last().toString().endsWith("help/index.html#302"));
  QVERIFY(QFile::exists(opened_.last().toLocalFile()));
  Shot(w, "tab-security");
  tabs->setCurrentIndex(0);
  answerer.shown.clear();

  // The run: the progress as it comes, the analysis dialog at the end.
  QStringList objects;
  int last = 0, maximum = 0;
  bool progressShot = false;
  QStringList reports;
  answerer.other = [&](QWidget* dialog) {
    QCOMPARE(dialog->objectName(), QString("frmReports"));
    auto* list = Find<QListWidget>(dialog, "lstReports");
    for (int i = 0; i < list->count(); ++i) reports << list->item(i)->text();
    ClickItem(dialog, "lstReports", "Conversion Summary");
    Click(dialog, "chkPrintPdf");
    Shot(dialog, "report-chooser");
    Click(dialog, "cmdOK");
  };
  QSignalSpy finished(w, &MainWindow::RunFinished);
  Click(w, "cmdTranslate");
  QVERIFY2(w->Running(), qPrintable(answerer.Texts()));
  QCOMPARE(answerer.Texts(),
           QString("The specified directory does not exist.  Do you want to create it?"));
  auto* progress = Find<QWidget>(w, "Progress");
  QCOMPARE(progress->windowTitle(), QString("Conversion Progress"));
  auto* bar = Find<QProgressBar>(progress, "prog1");
  connect(bar, &QProgressBar::valueChanged, this, [&](int v) {
    if (v <= 0) return;  // the start
    objects << Find<QLabel>(progress, "lblObject")->text();
    last = v;
    maximum = bar->maximum();
    if (!progressShot) Shot(progress, "progress");
    progressShot = true;
  });
  QVERIFY(finished.wait(60000));
  QCOMPARE(finished[0][0].toInt(), 0);
  QCOMPARE(maximum, 3 + 4 + 1);  // three units a form
  QCOMPARE(last, maximum);
  QCOMPARE(objects.first(), QString("frmCustomers"));
  QVERIFY(objects.contains("rptOrdersByDate") && objects.contains("Date Helpers"));
  QVERIFY(w->statusBar()->currentMessage().startsWith("Converted 6 object(s): 1 form(s)"));

  for (const char* f : {"frmCustomers.frm", "rptOrdersByDate.dsr", "basOrders.bas",
                        "Date Helpers.bas", "clsCustomer.bas", "Orders.vbp"})
    QVERIFY2(fs::exists(out / f), f);
  for (const char* f : {"frmOrders.frm", "rptCustomerDirectory.dsr", "MDIParent.frm"})
    QVERIFY2(!fs::exists(out / f), f);
  QVERIFY(Read(out / "frmCustomers.frm").contains("Connect = \"Provider=Test.Provider;"));
  QVERIFY(Read(out / "Orders.vbp").contains("Type=Exe"));

  QCOMPARE(reports, (QStringList{"Conversion Summary", "Lines by Object", "Lines Not Translated",
                                 "Lines to Review", "Report Log"}));
  QCOMPARE(opened_.last(), QUrl::fromLocalFile(P(out / "analysis" / "summary.html")));
  QVERIFY(Read(out / "analysis" / "summary.pdf").startsWith("%PDF"));
  const QByteArray index = Read(out / "analysis" / "index.html");
  QVERIFY(index.contains("<meta charset=\"windows-1252\">"));
  QVERIFY(index.contains("\">frmCustomers</a></td><td class=n>"));
  QVERIFY(
      index.contains("<td class=code>DoCmd.Requery &quot;txtCount&quot;</td>"
                     "<td class=code>txtCount.requery</td>"));

  // The options changed: leaving asks about them.
  QSignalSpy closed(&host, &Connect::Closed);
  answerer.answers = {QMessageBox::No};
  Find<QAction>(w, "mnuMain_2")->trigger();
  QCOMPARE(answerer.shown.last().text, QString("Save session settings?"));
  QCOMPARE(answerer.shown.last().icon, QMessageBox::Question);
  QCOMPARE(closed.size(), 1);
}

void MainWindowTest::settingsSurviveARestart() {
  test::DialogAnswerer answerer;
  Connect host;
  host.OnConnection(kConnectExternal);
  MainWindow* w = host.MainForm();
  QVERIFY(w);
  ClickItem(w, "lstComboBoxType", "GreenTree DataList 1.0");
  QCOMPARE(answerer.Texts(),
           QString("The GreenTree DataList controls are not registered on this machine. Any form "
                   "that has a combobox containing three or more columns will not be converted "
                   "properly. Please select a different option. This message can be ignored if no "
                   "form that is to be converted has a combobox with three or more columns."));
  QVERIFY(Find<QRadioButton>(w, "optDataAccess_0")->isChecked());
  QVERIFY(!Find<QGroupBox>(w, "grpDataAccess")->isEnabled());
  Click(w, "chkDTPicker");
  Click(w, "chkSSOption");
  Click(w, "optCBOMode_2");
  // A workgroup file unticks the security box; a database secured by a
  // workgroup file that is not there is no database.
  Type(w, "txtMDW", P(Sample() / "missing.mdw"));
  QVERIFY(!Find<QCheckBox>(w, "chkSecurity")->isChecked());
  Type(w, "txtMDB", P(Sample()));
  QVERIFY(answerer.shown.last().text.startsWith("Invalid database file selected."));
  QVERIFY(Find<QLineEdit>(w, "txtMDB")->text().isEmpty());
  const fs::path mdw = Sample().parent_path() / "system.mdw";
  std::ofstream(mdw) << "workgroup";
  Type(w, "txtMDW", P(mdw));
  Type(w, "txtMDB", P(Sample()));
  QCOMPARE(Find<QListWidget>(w, "lstForms")->count(), 5);

  answerer.answers = {QMessageBox::Yes};
  Find<QAction>(w, "mnuMain_2")->trigger();
  QCOMPARE(answerer.shown.last().text, QString("Save session settings?"));
  QSettings ini(settings_->path() + "/Halvex Systems/Morvane.ini", QSettings::IniFormat);
  QCOMPARE(ini.value("ControlDefaults").toString(), QString("004000011111100"));
  QCOMPARE(ini.value("LastFile1").toString(), P(Sample()));

  // A new window: the options as they were left, no warning while they are
  // restored, and the database in the recent files.
  ini.setValue("SystemDB", P(mdw));
  ini.sync();
  const int shown = answerer.shown.size();
  host.Show();
  w = host.MainForm();
  QVERIFY(w && w->isVisible());
  QCOMPARE(answerer.shown.size(), shown);
  QCOMPARE(Find<QListWidget>(w, "lstComboBoxType")->currentRow(), 0);
  QCOMPARE(Find<QListWidget>(w, "lstListboxType")->currentRow(), 4);
  QVERIFY(!Find<QCheckBox>(w, "chkDTPicker")->isChecked());
  QVERIFY(Find<QCheckBox>(w, "chkSSOption")->isChecked());
  QVERIFY(Find<QRadioButton>(w, "optCBOMode_2")->isChecked());
  QVERIFY(Find<QRadioButton>(w, "optDataAccess_0")->isChecked());
  QVERIFY(!Find<QCheckBox>(w, "chkSecurity")->isChecked());
  QCOMPARE(Find<QLineEdit>(w, "txtMDW")->text(), P(mdw));
  QVERIFY(!w->SettingsDirty());
  QAction* recent = Find<QAction>(w, "mnuMain_4");
  QCOMPARE(recent->text(), "&1 " + P(Sample()));
  QVERIFY(!Find<QAction>(w, "mnuMain_5")->isVisible());
  recent->trigger();
  QCOMPARE(Find<QLineEdit>(w, "txtMDB")->text(), P(Sample()));
  QCOMPARE(Find<QLineEdit>(w, "txtPath")->text(), P(Sample().parent_path() / "Morvane"));
  QCOMPARE(Find<QListWidget>(w, "lstForms")->count(), 5);
  // Nothing changed since the load: no question at the close.
  Find<QAction>(w, "mnuMain_2")->trigger();
  QCOMPARE(answerer.shown.size(), shown);
}

void MainWindowTest::largeTreeLeavesTheWindowResponsiveAndASecondRunWorks() {
  const fs::path big = fs::path(dir_.path().toStdString()) / "Big";
  fs::create_directories(big / "forms");
  for (int f = 0; f < 300; ++f) {
    std::ofstream form(big / "forms" / ("frmBig" + std::to_string(f) + ".txt"), std::ios::binary);
    form << "Version =20\r\nBegin Form\r\n    RecordSource =\"tblOrders\"\r\n    Begin\r\n"
            "        Begin Section\r\n            Height =3000\r\n            Name =\"Detail\"\r\n"
            "            Begin\r\n";
    for (int c = 0; c < 20; ++c)
      form << "                Begin " << (c % 2 ? "Label" : "TextBox") << "\r\n"
           << "                    Left =" << 100 + c * 50 << "\r\n                    Top =100\r\n"
           << "                    Name =\"ctl" << c << "\"\r\n"
           << "                    OnClick =\"[Event Procedure]\"\r\n                End\r\n";
    form << "            End\r\n        End\r\n    End\r\nEnd\r\nCodeBehindForm\r\n"
            "Option Compare Database\r\nPrivate Sub ctl0_Click()\r\n    DoCmd.Close\r\n"
            "End Sub\r\n";
  }
  std::ofstream(big / "forms" / "frmBroken.txt") << "Version =20\r\nBegin Form\r\n";
  test::DialogAnswerer answerer;
  Connect host;
  host.OnConnection(kConnectExternal);
  MainWindow* w = host.MainForm();
  Type(w, "txtMDB", P(big));
  QCOMPARE(Find<QListWidget>(w, "lstForms")->count(), 301);
  // The design that cannot be read is named when the tree is chosen.
  QCOMPARE(answerer.shown.size(), 1);
  QVERIFY(answerer.shown[0].text.contains("frmBroken.txt"));
  Type(w, "txtPath", P(big.parent_path() / "bigout"));
  Click(w, "cmdSelForms");
  QSignalSpy finished(w, &MainWindow::RunFinished);
  Click(w, "cmdTranslate");
  QVERIFY2(w->Running(), qPrintable(answerer.Texts()));

  // While the run goes on, its progress reaches the window, and the window
  // takes a click on another page.
  auto* bar = Find<QProgressBar>(w, "prog1");
  auto* tabBar = Find<QTabWidget>(w, "tsMain")->tabBar();
  bool switched = false, progressed = false;
  while (w->Running() && !(switched && progressed)) {
    QTest::qWait(10);
    if (!w->Running()) break;
    progressed = progressed || (bar->value() > 0 && bar->value() < bar->maximum());
    if (progressed && !switched) {
      QTest::mouseClick(tabBar, Qt::LeftButton, {}, tabBar->tabRect(1).center());
      switched = Find<QTabWidget>(w, "tsMain")->currentIndex() == 1 && w->Running();
    }
  }
  QVERIFY2(progressed && switched, "the window did not take part while the run went on");
  QVERIFY(finished.wait(120000));
  // frmBroken could not be read, so the run tells that not everything came
  // across.
  QCOMPARE(finished[0][0].toInt(), static_cast<int>(kRunIncomplete));
  int forms = 0;
  for (const auto& e : fs::directory_iterator(big.parent_path() / "bigout"))
    forms += e.path().extension() == ".frm";
  QCOMPARE(forms, 301);  // and the MDI parent

  // Another run from the same window, into another directory.
  Type(w, "txtPath", P(big.parent_path() / "second"));
  Find<QListWidget>(w, "lstForms")->clearSelection();
  ClickItem(w, "lstForms", "frmBig7");
  Click(w, "cmdTranslate");
  QVERIFY(finished.wait(60000));
  QCOMPARE(finished[1][0].toInt(), 0);
  QVERIFY(fs::exists(big.parent_path() / "second" / "frmBig7.frm"));
  QVERIFY(!fs::exists(big.parent_path() / "second" / "frmBig8.frm"));
}

void MainWindowTest::loadRefusesWithoutCompanionFilesAndForASecondCopy() {
  test::DialogAnswerer answerer;
  QTemporaryDir empty;
  const QByteArray data = qgetenv("MORVANE_DATA_DIR");
  qputenv("MORVANE_DATA_DIR", empty.path().toUtf8());
  {
    Connect host;
    QSignalSpy closed(&host, &Connect::Closed);
    host.OnConnection(kConnectExternal);
    QVERIFY(!host.FormDisplayed());
    QCOMPARE(closed.size(), 1);
  }
  qputenv("MORVANE_DATA_DIR", data);
  QCOMPARE(answerer.Texts(), QString("Required file MorvaneConversionCode.bas not found.  "
                                     "Please reinstall application."));
  QCOMPARE(answerer.shown[0].icon, QMessageBox::Critical);

  Connect first, second;
  first.OnConnection(kConnectExternal);
  QVERIFY(first.FormDisplayed());
  second.OnConnection(kConnectExternal);
  QVERIFY(!second.FormDisplayed());
  first.CloseConnection();
  second.OnConnection(kConnectExternal);
  QVERIFY(second.FormDisplayed());
}

}  // namespace morvane

QTEST_MAIN(morvane::MainWindowTest)
#include "main_window_test.moc"
