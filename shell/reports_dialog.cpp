// The analysis dialog and the printing of a report to PDF.
#include "shell/reports_dialog.h"

#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPageLayout>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "shell/shell_text.h"

namespace morvane {

ReportsDialog::ReportsDialog(QWidget* parent, const QStringList& reports, const QString& where)
    : QDialog(parent) {
  setObjectName("frmReports");
  setWindowTitle(Caption(kCapConversionAnalysis));
  auto* layout = new QVBoxLayout(this);
  auto* explanation = new QLabel(Caption(kCapReportsExplanation), this);
  explanation->setObjectName("label1_0");
  explanation->setWordWrap(true);
  auto* whereLabel = new QLabel(where, this);
  whereLabel->setObjectName("lblWhere");
  whereLabel->setWordWrap(true);
  whereLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* listLabel = new QLabel(Caption(kCapReportsList), this);
  listLabel->setObjectName("label1_1");
  list_ = new QListWidget(this);
  list_->setObjectName("lstReports");
  list_->setSelectionMode(QAbstractItemView::MultiSelection);
  list_->addItems(reports);
  listLabel->setBuddy(list_);
  pdf_ = new QCheckBox(Caption(kCapPrintPdf), this);
  pdf_->setObjectName("chkPrintPdf");

  auto* selectAll = new QPushButton(Caption(kCapSelectAll), this);
  selectAll->setObjectName("cmdSelForms");
  auto* ok = new QPushButton(Caption(kCapOk), this);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton(Caption(kCapCancel), this);
  cancel->setObjectName("cmdCancel");
  connect(selectAll, &QPushButton::clicked, list_, &QListWidget::selectAll);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, [this] {
    cancelled_ = true;
    reject();
  });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(selectAll);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  layout->addWidget(explanation);
  layout->addWidget(whereLabel);
  layout->addWidget(listLabel);
  layout->addWidget(list_);
  layout->addWidget(pdf_);
  layout->addLayout(buttons);
  resize(480, 380);
}

QStringList ReportsDialog::Selected() const {
  QStringList names;
  for (int i = 0; i < list_->count(); ++i)
    if (list_->item(i)->isSelected()) names << list_->item(i)->text();
  return names;
}

bool ReportsDialog::ToPdf() const { return pdf_->isChecked(); }

bool PrintHtmlToPdf(const QString& htmlFile, const QString& pdfFile, QString* err) {
  QFile in(htmlFile);
  if (!in.open(QIODevice::ReadOnly)) {
    *err = in.errorString() + ": " + htmlFile;
    return false;
  }
  const QByteArray bytes = in.readAll();
  QTextDocument document;
  document.setHtml(FromSystem(bytes.toStdString()));
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(pdfFile);
  printer.setPageOrientation(QPageLayout::Landscape);
  document.print(&printer);
  if (!QFile::exists(pdfFile)) {
    *err = pdfFile;
    return false;
  }
  return true;
}

}  // namespace morvane
