// The update check from the window's Help menu against a server on
// 127.0.0.1 that the test runs: a newer version downloaded and opened, the
// installed version already the latest, a download declined, an unreachable
// server, a missing page and a description file that is no INI text.
#include <QDesktopServices>
#include <QProgressBar>
#include <QSettings>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include "dialog_answerer.h"
#include "shell/connect.h"
#include "shell/main_window.h"

namespace morvane {

namespace {

// A web server of two pages: the description file and the installer.
class UpdateServer : public QObject {
 public:
  QByteArray description;
  QByteArray installer;
  bool missing = false;  // answers 404 for the description

  UpdateServer() {
    server_.listen(QHostAddress::LocalHost);
    connect(&server_, &QTcpServer::newConnection, this, [this] {
      QTcpSocket* socket = server_.nextPendingConnection();
      connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        request_ += socket->readAll();
        if (!request_.contains("\r\n\r\n")) return;
        const QByteArray path = request_.split(' ').value(1);
        request_.clear();
        const bool found =
            path == "/dl/morvane-setup.deb" || (path == "/ProductVersions.ini.htm" && !missing);
        const QByteArray body = path.startsWith("/dl/") ? installer : description;
        socket->write((found
                           ? "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size())
                           : QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 0")) +
                      "\r\nConnection: close\r\n\r\n" + (found ? body : QByteArray()));
        socket->disconnectFromHost();
      });
      connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
  }
  QString Address() const { return QString("http://127.0.0.1:%1/").arg(server_.serverPort()); }
  void Close() { server_.close(); }

 private:
  QTcpServer server_;
  QByteArray request_;
};

}  // namespace

class UpdateCheckTest : public QObject {
  Q_OBJECT
 public slots:
  void Open(const QUrl& url) { opened_ << url; }

 private slots:
  void initTestCase() { QDesktopServices::setUrlHandler("file", this, "Open"); }
  void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }
  void check_data();
  void check();

 private:
  QList<QUrl> opened_;
};

void UpdateCheckTest::check_data() {
  QTest::addColumn<QByteArray>("offered");
  QTest::addColumn<QString>("server");  // "up", "down", "missing"
  QTest::addColumn<bool>("yes");
  QTest::addColumn<QStringList>("shown");
  const QByteArray newer =
      "[Morvane45]\r\nProductDate=2031-03-15\r\nFileSize=300000\r\nURLName=%1dl/morvane-setup.deb"
      "\r\n";
  const QString question =
      "There is a newer version of Morvane 4.7 available. Do you want to download it now?";
  const QString noPage =
      "Couldn't open update web page. Verify your that you can connect to the Internet. If it "
      "still fails, ask the supplier of your copy of Morvane for help.";
  QTest::newRow("newer") << newer << "up" << true
                         << QStringList{question,
                                        "You should close all sessions of Visual Basic before "
                                        "installing the new version of Morvane."};
  QTest::newRow("declined") << newer << "up" << false << QStringList{question};
  QTest::newRow("installed is the latest")
      << QByteArray("[Morvane45]\r\nProductDate=3/1/2020\r\n") << "up" << true
      << QStringList{"The latest version of your product is currently installed."};
  QTest::newRow("unreachable") << newer << "down" << true << QStringList{noPage};
  QTest::newRow("missing page") << newer << "missing" << true << QStringList{noPage};
  QTest::newRow("malformed") << QByteArray("<html><body>Not here</body></html>") << "up" << true
                             << QStringList{};
}

void UpdateCheckTest::check() {
  QFETCH(QByteArray, offered);
  QFETCH(QString, server);
  QFETCH(bool, yes);
  QFETCH(QStringList, shown);
  QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  UpdateServer web;
  web.description = offered.replace("%1", web.Address().toLatin1());
  for (int i = 0; i < 300000; ++i) web.installer += char('A' + i % 26);
  web.missing = server == "missing";
  const QString address = web.Address();
  if (server == "down") web.Close();
  {
    QSettings ini(QSettings::IniFormat, QSettings::UserScope, "Halvex Systems", "Morvane");
    ini.setValue("UpdateAddress", address);
    ini.setValue("ProductDate", "43891");  // 1 March 2020
  }
  opened_.clear();

  test::DialogAnswerer answerer;
  if (!yes) answerer.answers = {QMessageBox::No};
  Connect host;
  host.OnConnection(kConnectExternal);
  MainWindow* w = host.MainForm();
  QVERIFY(w);
  // The download's progress window, seen when it closes.
  int downloadValue = -1;
  QString downloadTitle;
  struct Watch : QObject {
    std::function<void(QObject*)> hidden;
    bool eventFilter(QObject* o, QEvent* e) override {
      if (e->type() == QEvent::Hide && o->objectName() == "Progress") hidden(o);
      return false;
    }
  } watch;
  watch.hidden = [&](QObject* progress) {
    downloadTitle = static_cast<QWidget*>(progress)->windowTitle();
    downloadValue = progress->findChild<QProgressBar*>("prog1")->value();
  };
  qApp->installEventFilter(&watch);
  w->findChild<QAction*>("mnuHelp_2")->trigger();
  qApp->removeEventFilter(&watch);

  QStringList texts;
  for (const auto& b : answerer.shown) texts << b.text;
  QCOMPARE(texts, shown);
  if (!shown.isEmpty() && shown[0].startsWith("There is"))
    QCOMPARE(answerer.shown[0].icon, QMessageBox::Question);
  const bool downloaded = QTest::currentDataTag() == QByteArray("newer");
  QCOMPARE(opened_.size(), downloaded ? 1 : 0);
  if (downloaded) {
    QFile installer(opened_[0].toLocalFile());
    QVERIFY(installer.fileName().endsWith("/morvane-setup.deb"));
    QVERIFY(installer.open(QIODevice::ReadOnly));
    QCOMPARE(installer.readAll(), web.installer);
    QCOMPARE(downloadTitle, QString("Download Progress"));
    QCOMPARE(downloadValue, 100);
    installer.remove();
  } else {
    QCOMPARE(downloadValue, -1);
  }
  QVERIFY(w->findChild<QAction*>("mnuHelp_2")->isEnabled());
}

}  // namespace morvane

QTEST_MAIN(morvane::UpdateCheckTest)
#include "update_check_test.moc"
