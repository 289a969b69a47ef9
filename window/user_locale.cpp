#include "user_locale.h"

NumberLocale numberLocaleOf(const QLocale& locale) {
  return {.decimal = locale.decimalPoint().toStdString(),
          .group = locale.groupSeparator().toStdString(),
          .currency = locale.currencySymbol().toStdString()};
}

QLocale interfaceLocale() {
  const QStringList languages = QLocale::system().uiLanguages();
  return languages.isEmpty() ? QLocale() : QLocale(languages.first());
}
