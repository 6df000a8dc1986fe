// The progress window: a bar, the elapsed time, and the object the run has
// just finished. It shows the progress of a conversion, and of a download
// with other captions.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

class QLabel;
class QProgressBar;

namespace morvane {

class ProgressWindow : public QDialog {
  Q_OBJECT
 public:
  explicit ProgressWindow(QWidget* parent);

  // "Time Elapsed: 2 minutes 5 seconds" after 125 seconds.
  static QString ElapsedText(qint64 seconds);

  // The title and the line above the bar ("Download Progress",
  // "Downloading..." for a download).
  void SetCaptions(const QString& title, const QString& doing);
  void SetMaximum(int maximum);
  // Adds to the bar's value, names the object, and refreshes the time.
  void Step(int units, const QString& object);
  void SetValue(int value);
  // Refreshes the elapsed time.
  void UpdateTime();

 private:
  QLabel* doing_;
  QProgressBar* bar_;
  QLabel* object_;
  QLabel* time_;
  QElapsedTimer started_;
  QTimer tick_;
};

}  // namespace morvane
