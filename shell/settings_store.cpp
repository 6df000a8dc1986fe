// The settings store over QSettings.
#include "shell/settings_store.h"

#include <QSettings>

namespace morvane {

SettingsStore::SettingsStore()
    : file_(QSettings(QSettings::IniFormat, QSettings::UserScope, "Halvex Systems", "Morvane")
                .fileName()) {}

QString SettingsStore::FileName() const { return file_; }

bool SettingsStore::ReadRegistryValue(const QString& valueName, std::string* text) const {
  QSettings s(file_, QSettings::IniFormat);
  const QVariant v = s.value(valueName);
  *text = v.isValid() ? v.toString().toStdString() : std::string();
  return v.isValid();
}

bool SettingsStore::WriteRegistryValue(const QString& valueName, const std::string& text) {
  QSettings s(file_, QSettings::IniFormat);
  s.setValue(valueName, QString::fromStdString(StoredText(text)));
  s.sync();
  return s.status() == QSettings::NoError;
}

bool SettingsStore::DeleteRegistryKey(const QString& section) {
  QSettings s(file_, QSettings::IniFormat);
  s.remove(section);
  s.sync();
  return s.status() == QSettings::NoError;
}

RecentFiles SettingsStore::ReadRecentFiles() const {
  RecentFiles files;
  for (size_t i = 0; i < files.size(); ++i)
    ReadRegistryValue(QString("LastFile%1").arg(i + 1), &files[i]);
  return files;
}

void SettingsStore::AddRecentFile(const std::string& path) {
  RecentFiles files = ReadRecentFiles();
  const RecentFiles before = files;
  RotateRecentFiles(&files, path);
  for (size_t i = 0; i < files.size(); ++i)
    if (files[i] != before[i]) WriteRegistryValue(QString("LastFile%1").arg(i + 1), files[i]);
}

}  // namespace morvane
