#include "user_locale.h"

NumberLocale numberLocaleOf(const QLocale& locale) {
  return {.decimal = locale.decimalPoint().toStdString(),
          .group = locale.groupSeparator().toStdString(),
          .currency = locale.currencySymbol().toStdString()};
}
