// The progress window.
#include "shell/progress_window.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "shell/shell_text.h"

namespace morvane {

ProgressWindow::ProgressWindow(QWidget* parent) : QDialog(parent) {
  setObjectName("Progress");
  setWindowTitle(Caption(kCapConversionProgress));
  // The run cannot be cancelled, so the window offers no button to close it.
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  auto* layout = new QVBoxLayout(this);
  doing_ = new QLabel(Caption(kCapConverting), this);
  doing_->setObjectName("lblConvert");
  bar_ = new QProgressBar(this);
  bar_->setObjectName("prog1");
  bar_->setMinimumWidth(360);
  object_ = new QLabel(this);
  object_->setObjectName("lblObject");
  time_ = new QLabel(ElapsedText(0), this);
  time_->setObjectName("lblTime");
  layout->addWidget(doing_);
  layout->addWidget(bar_);
  layout->addWidget(object_);
  layout->addWidget(time_);
  started_.start();
  connect(&tick_, &QTimer::timeout, this, &ProgressWindow::UpdateTime);
  tick_.start(1000);
}

QString ProgressWindow::ElapsedText(qint64 seconds) {
  const qint64 minutes = seconds / 60;
  return Caption(kCapTimeElapsed) + " " + QString::number(minutes) + " " +
         Caption(minutes == 1 ? kCapMinute : kCapMinutes) + " " + QString::number(seconds % 60) +
         " " + Caption(kCapSeconds);
}

void ProgressWindow::SetCaptions(const QString& title, const QString& doing) {
  setWindowTitle(title);
  doing_->setText(doing);
}

void ProgressWindow::SetMaximum(int maximum) {
  bar_->setMaximum(maximum);
  bar_->setValue(0);
}

void ProgressWindow::SetValue(int value) {
  bar_->setValue(std::min(value, bar_->maximum()));
  UpdateTime();
}

void ProgressWindow::Step(int units, const QString& object) {
  object_->setText(object);
  SetValue(bar_->value() + units);
}

void ProgressWindow::UpdateTime() {
  // A monotonic clock: a run across midnight goes on counting.
  time_->setText(ElapsedText(started_.elapsed() / 1000));
}

}  // namespace morvane
