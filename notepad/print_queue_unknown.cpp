#include "print_queue.h"

#include "page_surface.h"

// Where no printing system is known that takes files.

bool PrintQueue::takesPdf() { return false; }

void PrintQueue::print(const QString& printerName, const QString& /*pdfPath*/, const QString& /*title*/) {
  throw PrintError("The printer " + printerName.toStdString() + " takes no files.");
}
