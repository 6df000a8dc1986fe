// The update check over Qt Network.
#include "shell/update_check.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryDir>
#include <QUrl>
#include <functional>

#include "shell/message_box.h"
#include "shell/progress_window.h"
#include "shell/settings_store.h"
#include "shell/settings_values.h"
#include "shell/shell_text.h"

namespace morvane {

namespace {

// Reads `url` into `file` block by block; `progress` hears the bytes so far.
// False when the server cannot be reached or does not answer with the file.
bool Download(QNetworkAccessManager& net, const QUrl& url, const QString& file,
              const std::function<void(qint64)>& progress) {
  QFile out(file);
  if (!out.open(QIODevice::WriteOnly)) return false;
  QNetworkRequest request(url);
  // Always the server's copy, never a cached one.
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setHeader(QNetworkRequest::UserAgentHeader, "Morvane");
  request.setTransferTimeout(30000);
  QNetworkReply* reply = net.get(request);
  qint64 bytes = 0;
  QEventLoop loop;
  QObject::connect(reply, &QNetworkReply::readyRead, &loop, [&] {
    const QByteArray block = reply->readAll();
    out.write(block);
    bytes += block.size();
    if (progress) progress(bytes);
  });
  QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  loop.exec();
  const QByteArray rest = reply->readAll();
  out.write(rest);
  out.close();
  const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const bool ok = reply->error() == QNetworkReply::NoError && (status == 0 || status == 200);
  reply->deleteLater();
  return ok;
}

void Tell(QWidget* window, StringId id) {
  ShowMessageBox(window, Caption(id), MessageIcon::Information);
}

// The hourglass for as long as the check lasts.
struct WaitCursor {
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

}  // namespace

QString DefaultUpdateAddress() { return MORVANE_UPDATE_ADDRESS; }

QString CheckForUpdates(QWidget* window, const SettingsStore& settings) {
  WaitCursor wait;
  std::string address;
  settings.ReadRegistryValue("UpdateAddress", &address);
  QString base = QString::fromStdString(address).trimmed();
  if (base.isEmpty()) base = DefaultUpdateAddress();
  if (!base.endsWith('/')) base += '/';

  // The description file lives in a directory of its own for the time of
  // the check, and goes with it.
  QNetworkAccessManager net;
  QTemporaryDir scratch;
  const QString ini = scratch.path() + "/productupdates.ini";
  if (!scratch.isValid()) return {};
  if (!Download(net, QUrl(base + "ProductVersions.ini.htm"), ini, nullptr)) {
    ShowMessageBox(window, Caption(kMsgNoUpdatePage) + Caption(kMsgSupportContact),
                   MessageIcon::Information, {.Plain = true});
    return {};
  }
  const std::string iniPath = ini.toStdString();
  const auto offered = DayNumber(ReadIniValue(iniPath, "Morvane45", "ProductDate"));
  std::string installedText;
  settings.ReadRegistryValue("ProductDate", &installedText);
  auto installed = DayNumber(installedText);
  if (!installed) installed = DayNumber(MORVANE_PRODUCT_DATE);
  if (!offered || !installed) return {};
  if (*installed >= *offered) {
    Tell(window, kMsgLatestInstalled);
    return {};
  }
  if (!ShowMessageBox(window, Caption(kMsgNewerVersion), MessageIcon::Question, {.YesNo = true}))
    return {};

  bool sized = false;
  const qint64 size = QString::fromStdString(ReadIniValue(iniPath, "Morvane45", "FileSize"))
                          .trimmed()
                          .toLongLong(&sized);
  const QString source = QString::fromStdString(ReadIniValue(iniPath, "Morvane45", "URLName"));
  const QString name = source.mid(source.lastIndexOf('/') + 1);
  if (!sized || size <= 0 || name.isEmpty()) return {};

  ProgressWindow progress(window);
  progress.SetCaptions(Caption(kCapDownloadProgress), Caption(kCapDownloading));
  progress.SetMaximum(100);
  progress.show();
  QDir downloads(QDir::temp().filePath("morvane-update"));
  downloads.mkpath(".");
  const QString installer = downloads.filePath(name);
  QFile::remove(installer);
  const bool downloaded = Download(net, QUrl(source), installer, [&](qint64 bytes) {
    progress.SetValue(static_cast<int>(bytes * 100 / size));
  });
  progress.hide();
  if (!downloaded) {
    QFile::remove(installer);
    ShowMessageBox(window, Caption(kMsgNoUpdatePage) + Caption(kMsgSupportContact),
                   MessageIcon::Information, {.Plain = true});
    return {};
  }
  Tell(window, kMsgCloseVisualBasic);
  QDesktopServices::openUrl(QUrl::fromLocalFile(installer));
  return installer;
}

}  // namespace morvane
