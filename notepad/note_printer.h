#pragma once

#include <memory>
#include <QLocale>
#include <QPageSize>
#include <QString>

#include "page_surface.h"

class QWidget;

/// Where the notepad is printed.
class NotePrinter {
 public:
  virtual ~NotePrinter() = default;

  /// Whether there is a printer. Where there is none, `open` asks for a file to print into.
  [[nodiscard]] virtual bool hasPrinter() = 0;

  /// Opens a print job of that name. Nothing if the user decides against it. Throws PrintError.
  virtual std::unique_ptr<PageSurface> open(QWidget* parent, const QString& title) = 0;
};

/// Prints on the desktop's default printer at once. On a machine that has none it asks where to save a PDF
/// instead, with the given title as its proposed name.
class SystemPrinter : public NotePrinter {
 public:
  [[nodiscard]] bool hasPrinter() override;
  std::unique_ptr<PageSurface> open(QWidget* parent, const QString& title) override;
};

/// A print job that ends in the PDF file `path`, which stays as it was until the job has ended well.
std::unique_ptr<PageSurface> openPdf(const QString& path, const QString& title, const QPageSize& paper);

/// The paper that people print on where a locale is at home.
QPageSize paperOf(const QLocale& locale);
