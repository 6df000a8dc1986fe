// Message boxes and the help pages.
#include "shell/message_box.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "app/conversion_run.h"
#include "shell/shell_text.h"

namespace morvane {

bool ShowMessageBox(QWidget* parent, const QString& text, MessageIcon icon,
                    MessageBoxOptions options) {
  QMessageBox box(parent);
  box.setObjectName("msgBox");
  box.setWindowTitle(Caption(kCapMorvane));
  box.setText(text);
  box.setIcon(icon == MessageIcon::Stop       ? QMessageBox::Critical
              : icon == MessageIcon::Question ? QMessageBox::Question
                                              : QMessageBox::Information);
  if (options.Plain) box.setIcon(QMessageBox::NoIcon);
  if (options.YesNo) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(options.DefaultYes ? QMessageBox::Yes : QMessageBox::No);
  } else {
    box.setStandardButtons(QMessageBox::Ok);
  }
  if (options.HelpContext) box.addButton(QMessageBox::Help);
  // The Help button shows the help and leaves the question open.
  for (;;) {
    box.exec();
    if (box.clickedButton() != box.button(QMessageBox::Help)) break;
    ShowHelp(options.HelpContext);
  }
  return box.clickedButton() == box.button(QMessageBox::Yes) ||
         box.clickedButton() == box.button(QMessageBox::Ok);
}

void ShowHelp(int context) {
  QUrl page = QUrl::fromLocalFile(QString::fromStdString((DataDirectory() / "help").string()) +
                                  "/index.html");
  if (context) page.setFragment(QString::number(context));
  QDesktopServices::openUrl(page);
}

}  // namespace morvane
