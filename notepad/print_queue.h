#pragma once

#include <QString>

/// The desktop's print queues, where they take PDF files.
namespace PrintQueue {

/// Whether there is a printing system here that takes PDF files.
bool takesPdf();

/// Hands a PDF over to the printer of that name. Throws PrintError with the reason if it is not taken.
void print(const QString& printerName, const QString& pdfPath, const QString& title);

}  // namespace PrintQueue
