// Answers the modal dialogs of the window the way a person would, and keeps
// what each message box showed: its text, icon and buttons.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <functional>

namespace morvane::test {

struct ShownBox {
  QString text;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
};

class DialogAnswerer {
 public:
  DialogAnswerer() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Answer(); });
    timer_.start(20);
  }

  // The buttons to press in the next message boxes, in turn; after them
  // Yes, or OK.
  QList<QMessageBox::StandardButton> answers;
  // Called with any other modal dialog (the analysis dialog, About); it must
  // close it.
  std::function<void(QWidget*)> other = [](QWidget* w) { w->close(); };
  QList<ShownBox> shown;

  // The texts shown, joined, for messages of failed checks.
  QString Texts() const {
    QStringList t;
    for (const auto& b : shown) t << b.text;
    return t.join(" | ");
  }

 private:
  void Answer() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return;
    auto* box = qobject_cast<QMessageBox*>(modal);
    if (!box) {
      other(modal);
      return;
    }
    shown.push_back({box->text(), box->icon(), box->standardButtons()});
    QMessageBox::StandardButton answer =
        box->button(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok;
    if (!answers.isEmpty() && box->button(answers.front())) answer = answers.takeFirst();
    box->button(answer)->click();
  }
  QTimer timer_;
};

}  // namespace morvane::test
