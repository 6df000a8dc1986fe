// The settings store: the values that the registry keeps on Windows
// (ControlDefaults, LastFile1..LastFile4, ProductDate, the workgroup file
// SystemDB, and DisplayOnConnect in the section Settings) in the user's
// settings file, an INI file under the same names.
#pragma once

#include <QString>
#include <string>

#include "shell/settings_values.h"

namespace morvane {

class SettingsStore {
 public:
  // The user's settings file (QSettings' INI file of "Halvex Systems",
  // "Morvane").
  SettingsStore();

  QString FileName() const;

  // ReadRegistryValue: false, with `text` empty, when nothing is stored.
  bool ReadRegistryValue(const QString& valueName, std::string* text) const;
  // WriteRegistryValue: an empty text is stored as one blank. False when
  // the file cannot be written.
  bool WriteRegistryValue(const QString& valueName, const std::string& text);
  // DeleteRegistryKey: removes a section with all its values.
  bool DeleteRegistryKey(const QString& section);

  RecentFiles ReadRecentFiles() const;
  // Rotates the recent files for a chosen database and stores them.
  void AddRecentFile(const std::string& path);

 private:
  QString file_;
};

}  // namespace morvane
