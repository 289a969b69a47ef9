#include "print_queue.h"

#include <cups/cups.h>
#include <QLibrary>

// As it is done on every system that prints through CUPS. Its library is loaded when something is printed: with all
// that it needs it would take a third of the program's start.

namespace {

template <typename Function>
Function* resolved(QLibrary& library, const char* name) {
  // The only way in which a function comes out of a library that was loaded.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
  return reinterpret_cast<Function*>(library.resolve(name));
}

}  // namespace

bool acceptsPrintJobs(const QString& printerName) {
  QLibrary cups(QStringLiteral("cups"), 2);
  const auto namedDest = resolved<decltype(cupsGetNamedDest)>(cups, "cupsGetNamedDest");
  const auto option = resolved<decltype(cupsGetOption)>(cups, "cupsGetOption");
  const auto freeDests = resolved<decltype(cupsFreeDests)>(cups, "cupsFreeDests");
  if (namedDest == nullptr || option == nullptr || freeDests == nullptr) return true;

  // A printer can have several sets of options; "name/instance" is one of them.
  const QByteArray name = printerName.section(u'/', 0, 0).toUtf8();
  const QByteArray instance = printerName.section(u'/', 1).toUtf8();
  cups_dest_t* queue =
      namedDest(CUPS_HTTP_DEFAULT, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
  if (queue == nullptr) return false;
  const char* accepts = option("printer-is-accepting-jobs", queue->num_options, queue->options);
  const bool isRefusing = QLatin1StringView(accepts) == QLatin1StringView("false");
  freeDests(1, queue);
  return !isRefusing;
}
