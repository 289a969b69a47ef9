#include "print_queue.h"

#include <cups/cups.h>

// As it is done on every system that prints through CUPS.

bool acceptsPrintJobs(const QString& printerName) {
  // A printer can have several sets of options; "name/instance" is one of them.
  const QByteArray name = printerName.section(u'/', 0, 0).toUtf8();
  const QByteArray instance = printerName.section(u'/', 1).toUtf8();
  cups_dest_t* queue = cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.constData(),
                                        instance.isEmpty() ? nullptr : instance.constData());
  if (queue == nullptr) return false;
  const char* accepts = cupsGetOption("printer-is-accepting-jobs", queue->num_options, queue->options);
  const bool isRefusing = QLatin1StringView(accepts) == QLatin1StringView("false");
  cupsFreeDests(1, queue);
  return !isRefusing;
}
