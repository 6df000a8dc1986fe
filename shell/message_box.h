// Message boxes as the system shows them: the title "Morvane", the icon of
// the message (information, stop, question), OK or Yes/No, and a Help
// button that opens the help page of the message's context.
#pragma once

#include <QString>

#include "session/user_interface.h"

class QWidget;

namespace morvane {

struct MessageBoxOptions {
  bool YesNo = false;
  bool DefaultYes = true;
  int HelpContext = 0;  // 0: no Help button
  bool Plain = false;   // no icon at all
};

// Shows the box and waits for the answer: true for Yes (or OK).
bool ShowMessageBox(QWidget* parent, const QString& text, MessageIcon icon,
                    MessageBoxOptions options = {});

// Opens the help pages in the desktop's browser, at the anchor of a help
// context (0: the top of the first page).
void ShowHelp(int context);

}  // namespace morvane
