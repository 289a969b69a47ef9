#include "print_queue.h"

#include <cups/cups.h>
#include <QFile>
#include <QLibrary>

#include "page_surface.h"

// As it is done on every system that prints through CUPS. Its library is loaded when something is printed:
// with all that it needs it would take a third of the program's start.

namespace {

template <typename Function>
Function* resolved(const char* name) {
  // The only way in which a function comes out of a library that was loaded.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
  return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), 2, name));
}

}  // namespace

bool PrintQueue::takesPdf() { return resolved<decltype(cupsPrintFile)>("cupsPrintFile") != nullptr; }

void PrintQueue::print(const QString& printerName, const QString& pdfPath, const QString& title) {
  auto* const printFile = resolved<decltype(cupsPrintFile)>("cupsPrintFile");
  auto* const lastError = resolved<decltype(cupsLastErrorString)>("cupsLastErrorString");
  const int job = printFile(printerName.toUtf8().constData(), QFile::encodeName(pdfPath).constData(),
                            title.toUtf8().constData(), 0, nullptr);
  if (job != 0) return;
  const std::string reason = lastError != nullptr ? lastError() : "";
  throw PrintError("The printer " + printerName.toStdString() + " did not take the notepad. " + reason);
}
