#pragma once

#include <QString>

/// Whether the printer of that name takes print jobs now. Qt hands a job over without looking whether it is
/// taken. Where the desktop's printing system cannot be asked, every printer counts as one that does.
bool acceptsPrintJobs(const QString& printerName);
