// The self-test of the window.
#include "shell/self_test.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <cstdio>

#include "app/conversion_run.h"
#include "shell/connect.h"
#include "shell/main_window.h"

namespace morvane {

namespace {

// Stands in for the desktop's browser: names each page it is asked to show.
class PageReporter : public QObject {
  Q_OBJECT
 public:
  int pages = 0;
 public slots:
  void Open(const QUrl& url) {
    ++pages;
    std::printf("page: %s\n", qUtf8Printable(url.toLocalFile()));
  }
};

// Answers the modal window in front: a message box with Yes or OK, the
// analysis dialog with all its reports.
void AnswerModal() {
  QWidget* modal = QApplication::activeModalWidget();
  if (!modal) return;
  if (auto* box = qobject_cast<QMessageBox*>(modal)) {
    std::fprintf(stderr, "morvane-gui: %s\n", qUtf8Printable(box->text()));
    QAbstractButton* yes = box->button(QMessageBox::Yes);
    box->button(QMessageBox::Ok) ? box->button(QMessageBox::Ok)->click() : yes->click();
  } else if (modal->objectName() == "frmReports") {
    modal->findChild<QPushButton*>("cmdSelForms")->click();
    modal->findChild<QPushButton*>("cmdOK")->click();
  }
}

}  // namespace

int RunSelfTest(const QString& source, const QString& output) {
  // The user's settings stay as they are.
  QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  PageReporter reporter;
  QDesktopServices::setUrlHandler("file", &reporter, "Open");
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, &AnswerModal);
  answer.start(50);

  Connect host;
  host.OnConnection(kConnectExternal);
  MainWindow* window = host.MainForm();
  if (!window) return kRunNotStarted;
  window->findChild<QLineEdit*>("txtMDB")->setText(source);
  window->ChooseDatabase();
  window->findChild<QLineEdit*>("txtPath")->setText(output);
  for (const char* select : {"cmdSelForms", "cmdSelMods", "cmdSelRpts"})
    window->findChild<QPushButton*>(select)->click();
  int status = kRunNotStarted;
  QObject::connect(window, &MainWindow::RunFinished, [&](int s) {
    status = s;
    QApplication::exit();
  });
  window->StartTranslation();
  if (window->Running()) QApplication::exec();
  QDesktopServices::unsetUrlHandler("file");

  const QString index = output + "/analysis/index.html";
  if (!QFileInfo::exists(index)) {
    std::fprintf(stderr, "morvane-gui: self-test: no analysis at %s\n", qUtf8Printable(index));
    return kRunNotStarted;
  }
  if (reporter.pages == 0) {
    std::fprintf(stderr, "morvane-gui: self-test: no report was printed\n");
    return kRunNotStarted;
  }
  std::printf("morvane-gui: self-test: status %d, analysis %s\n", status, qUtf8Printable(index));
  return status;
}

}  // namespace morvane

#include "self_test.moc"
