// The update check: reads the description file ProductVersions.ini.htm from
// the update server (the address is the setting UpdateAddress), compares the
// date of the version on offer with the installed one (the setting
// ProductDate, else the date this program was built), and when the user
// wants it downloads the installer with a progress window and opens it.
#pragma once

#include <QString>

class QWidget;

namespace morvane {

class SettingsStore;

// The server's address when the settings name none.
QString DefaultUpdateAddress();

// CheckForUpdates: every failure but an unreachable server ends the check
// without a word, as the description file's reader has nothing to say.
// Returns the path of the downloaded installer, or empty.
QString CheckForUpdates(QWidget* window, const SettingsStore& settings);

}  // namespace morvane
