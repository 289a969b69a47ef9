#pragma once

#include <QLocale>
#include <QString>

namespace Localization {

/// How the user writes numbers, as far as the version number of an update needs to know. Amounts do not use
/// it: they are read and written with the locale's own signs.
enum NumberFormat { PointDecimal = 0, CommaDecimal = 1, ApostropheGrouping = 2 };

/// Probed once at start-up.
extern NumberFormat NumberFormatKind;

/// Probes a locale: apostrophe grouping of currency amounts wins over the decimal symbol.
NumberFormat GetNumberFormat(const QLocale& locale);

/// A number written with a decimal point, in the form that `kind` names. With apostrophe grouping only commas
/// are replaced: the point is that form's own decimal symbol.
QString ConvNumFormat(QString text, NumberFormat kind);

}  // namespace Localization
