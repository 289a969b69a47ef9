#include "note_printer.h"

#include <algorithm>
#include <array>
#include <QDir>
#include <QFileDialog>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "paged_surface.h"
#include "print_queue.h"

namespace {

// Everybody else has A4.
constexpr std::array kWithLetterPaper{
    QLocale::Belize,      QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
    QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,       QLocale::Nicaragua, QLocale::Panama,
    QLocale::Philippines, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela};

/// A PDF of which something is made once it stands complete at `path`.
std::unique_ptr<PageSurface> openPdfFor(const QString& path, const QString& title, const QPageSize& paper,
                                        const PagedSurface::HandOver& handOver) {
  const auto file = std::make_shared<QSaveFile>(path);
  const std::string problem = "The notepad could not be saved as " + path.toStdString() + ".";
  if (!file->open(QIODevice::WriteOnly)) throw PrintError(problem);
  auto pdf = std::make_unique<QPdfWriter>(file.get());
  pdf->setTitle(title);
  pdf->setPageSize(paper);
  return std::make_unique<PagedSurface>(std::move(pdf), [file, problem, handOver] {
    if (!file->commit()) throw PrintError(problem);
    handOver();
  });
}

/// Through a file of our own: what prints by itself takes half a document for a whole one when the disk is
/// full, prints what was given up, and says nothing when the printer refuses.
std::unique_ptr<PageSurface> openQueue(const QPrinterInfo& printer, const QString& title) {
  const auto folder = std::make_shared<QTemporaryDir>();
  const QString path = folder->filePath(QStringLiteral("notepad.pdf"));
  return openPdfFor(
      path, title, printer.defaultPageSize(),
      [folder, path, title, name = printer.printerName()] { PrintQueue::print(name, path, title); });
}

std::unique_ptr<PageSurface> openPrinter(const QPrinterInfo& info, const QString& title) {
  auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  printer->setDocName(title);
  printer->setPageSize(info.defaultPageSize());
  printer->setFullPage(true);
  return std::make_unique<PagedSurface>(std::move(printer), [] {});
}

QString askForPdf(QWidget* parent, const QString& title) {
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  QFileDialog dialog(parent, title, (documents.exists() ? documents : QDir::home()).path(),
                     QStringLiteral("PDF (*.pdf)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(title + QStringLiteral(".pdf"));
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

QPageSize paperOf(const QLocale& locale) {
  const bool isLetter = std::find(kWithLetterPaper.begin(), kWithLetterPaper.end(), locale.territory()) !=
                        kWithLetterPaper.end();
  return {isLetter ? QPageSize::Letter : QPageSize::A4};
}

std::unique_ptr<PageSurface> openPdf(const QString& path, const QString& title, const QPageSize& paper) {
  return openPdfFor(path, title, paper, [] {});
}

bool SystemPrinter::hasPrinter() { return !QPrinterInfo::defaultPrinter().isNull(); }

std::unique_ptr<PageSurface> SystemPrinter::open(QWidget* parent, const QString& title) {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (!printer.isNull())
    return PrintQueue::takesPdf() ? openQueue(printer, title) : openPrinter(printer, title);
  const QString path = askForPdf(parent, title);
  return path.isEmpty() ? nullptr : openPdf(path, title, paperOf(QLocale()));
}
