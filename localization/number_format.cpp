#include "number_format.h"

namespace Localization {

NumberFormat NumberFormatKind = PointDecimal;

NumberFormat GetNumberFormat(const QLocale& locale) {
  const QString currency = locale.toCurrencyString(9999.0);
  // Today's locale data group Swiss amounts with the typographic apostrophe.
  if (currency.contains(u'\'') || currency.contains(u'\u2019')) return ApostropheGrouping;
  // A locale that groups with commas may refuse "9,9" or read it as 99: neither is a decimal comma.
  return locale.toFloat(QStringLiteral("9,9")) == 9.9F ? CommaDecimal : PointDecimal;
}

QString ConvNumFormat(QString text, NumberFormat kind) {
  if (kind == CommaDecimal) text.replace(u'.', u',');
  if (kind == ApostropheGrouping) text.replace(u',', u'\'');
  return text;
}

}  // namespace Localization
