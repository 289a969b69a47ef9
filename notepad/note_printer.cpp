#include "note_printer.h"

#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "paged_surface.h"
#include "print_queue.h"

namespace {

QPrinterInfo chosenPrinter() {
  const QPrinterInfo byDefault = QPrinterInfo::defaultPrinter();
  if (!byDefault.isNull()) return byDefault;
  const QList<QPrinterInfo> printers = QPrinterInfo::availablePrinters();
  return printers.isEmpty() ? QPrinterInfo() : printers.first();
}

void requireAcceptance(const QString& printerName) {
  if (acceptsPrintJobs(printerName)) return;
  throw PrintError("The printer " + printerName.toStdString() + " takes no print jobs at present.");
}

std::unique_ptr<PageSurface> openPrinter(const QPrinterInfo& info, const QString& title) {
  const QString name = info.printerName();
  requireAcceptance(name);
  auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  printer->setDocName(title);
  printer->setPageSize(info.defaultPageSize());
  printer->setFullPage(true);
  // A printer that has gone or was closed meanwhile has taken nothing, and nobody else says so.
  return std::make_unique<PagedSurface>(std::move(printer), [name] { requireAcceptance(name); });
}

QString askForPdf(QWidget* parent, const QString& title) {
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QDir folder = documents.exists() ? documents : QDir::home();
  const QString proposed = folder.filePath(title + QStringLiteral(".pdf"));
  return QFileDialog::getSaveFileName(parent, title, proposed, QStringLiteral("PDF (*.pdf)"));
}

}  // namespace

std::unique_ptr<PageSurface> openPdf(const QString& path, const QString& title) {
  const auto file = std::make_shared<QSaveFile>(path);
  const std::string problem = "The notepad could not be saved as " + path.toStdString() + ".";
  if (!file->open(QIODevice::WriteOnly)) throw PrintError(problem);
  auto pdf = std::make_unique<QPdfWriter>(file.get());
  pdf->setTitle(title);
  const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
  pdf->setPageSize(QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4));
  return std::make_unique<PagedSurface>(std::move(pdf), [file, problem] {
    if (!file->commit()) throw PrintError(problem);
  });
}

std::unique_ptr<PageSurface> SystemPrinter::open(QWidget* parent, const QString& title) {
  const QPrinterInfo printer = chosenPrinter();
  if (!printer.isNull()) return openPrinter(printer, title);
  const QString path = askForPdf(parent, title);
  return path.isEmpty() ? nullptr : openPdf(path, title);
}
