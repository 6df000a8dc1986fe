// morvane-gui --self-test SOURCE OUTPUT: opens the window with settings of
// its own, chooses SOURCE, selects every object, converts into OUTPUT,
// answers every message box with its first answer (Yes, OK) and prints every
// report of the analysis dialog; then checks the analysis pages and exits
// with the run's status. It proves an installed copy works without a person
// at the screen (the offscreen platform serves when there is no display).
#pragma once

#include <QString>

namespace morvane {

int RunSelfTest(const QString& source, const QString& output);

}  // namespace morvane
