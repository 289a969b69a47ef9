#pragma once

#include <QLocale>

#include "number_locale.h"

/// The signs with which `locale` writes numbers, for the fee model, which knows no Qt.
NumberLocale numberLocaleOf(const QLocale& locale);

/// The locale in which the desktop shows its texts; its numbers may follow another one.
QLocale interfaceLocale();
