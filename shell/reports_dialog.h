// The analysis dialog: after a run, the user chooses which Conversion
// Analysis reports to print. Printing writes each report as an HTML page into
// the output directory's analysis/ and shows it in the desktop's browser; it
// can also print it to a PDF file beside the page.
#pragma once

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QListWidget;

namespace morvane {

class ReportsDialog : public QDialog {
  Q_OBJECT
 public:
  // `reports`: the reports of the support database, in its order;
  // `where`: where the analysis of the run is kept.
  ReportsDialog(QWidget* parent, const QStringList& reports, const QString& where);

  // Set by Cancel: nothing is printed, whatever was selected.
  bool Cancelled() const { return cancelled_; }
  // The selected reports, in list order.
  QStringList Selected() const;
  bool ToPdf() const;

 private:
  QListWidget* list_;
  QCheckBox* pdf_;
  bool cancelled_ = false;
};

// Prints a page of HTML (Windows-1252 bytes) to a PDF file; false with the
// reason in `err`.
bool PrintHtmlToPdf(const QString& htmlFile, const QString& pdfFile, QString* err);

}  // namespace morvane
