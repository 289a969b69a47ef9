#pragma once

#include <QLocale>

#include "number_locale.h"

/// The signs with which `locale` writes numbers, for the fee model, which knows no Qt.
NumberLocale numberLocaleOf(const QLocale& locale);
