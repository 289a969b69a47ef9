#include "locale_table.h"

#include <algorithm>
#include <array>

namespace Localization {

namespace {

struct Row {
  QLatin1StringView code;
  QLatin1StringView name;
  QLatin1StringView region;
  QLocale::Language language;
  QLocale::Territory territory;
};

constexpr QLatin1StringView kEnglish("English");
constexpr QLatin1StringView kFrench("French");
constexpr QLatin1StringView kGerman("German");

// clang-format off
constexpr auto kLocales = std::to_array<Row>({
    {QLatin1StringView("C09"),  kEnglish, QLatin1StringView(" (Australia)"),      QLocale::English, QLocale::Australia},
    {QLatin1StringView("2809"), kEnglish, QLatin1StringView(" (Belize)"),         QLocale::English, QLocale::Belize},
    {QLatin1StringView("1009"), kEnglish, QLatin1StringView(" (Canada)"),         QLocale::English, QLocale::Canada},
    // No desktop but one knows a locale of the whole region.
    {QLatin1StringView("2409"), kEnglish, QLatin1StringView(" (Caribbean)"),      QLocale::English, QLocale::AnyTerritory},
    {QLatin1StringView("1809"), kEnglish, QLatin1StringView(" (Ireland)"),        QLocale::English, QLocale::Ireland},
    {QLatin1StringView("2009"), kEnglish, QLatin1StringView(" (Jamaica)"),        QLocale::English, QLocale::Jamaica},
    {QLatin1StringView("1409"), kEnglish, QLatin1StringView(" (New Zealand)"),    QLocale::English, QLocale::NewZealand},
    {QLatin1StringView("3409"), kEnglish, QLatin1StringView(" (Philippines)"),    QLocale::English, QLocale::Philippines},
    {QLatin1StringView("1C09"), kEnglish, QLatin1StringView(" (South Africa)"),   QLocale::English, QLocale::SouthAfrica},
    {QLatin1StringView("2C09"), kEnglish, QLatin1StringView(" (Trinidad)"),       QLocale::English, QLocale::TrinidadAndTobago},
    {QLatin1StringView("809"),  kEnglish, QLatin1StringView(" (United Kingdom)"), QLocale::English, QLocale::UnitedKingdom},
    {QLatin1StringView("409"),  kEnglish, QLatin1StringView(" (United States)"),  QLocale::English, QLocale::UnitedStates},
    {QLatin1StringView("3009"), kEnglish, QLatin1StringView(" (Zimbabwe)"),       QLocale::English, QLocale::Zimbabwe},
    {QLatin1StringView("80C"),  kFrench,  QLatin1StringView(" (Belgium)"),        QLocale::French,  QLocale::Belgium},
    {QLatin1StringView("C0C"),  kFrench,  QLatin1StringView(" (Canada)"),         QLocale::French,  QLocale::Canada},
    {QLatin1StringView("40C"),  kFrench,  QLatin1StringView(" (France)"),         QLocale::French,  QLocale::France},
    {QLatin1StringView("140C"), kFrench,  QLatin1StringView(" (Luxembourg)"),     QLocale::French,  QLocale::Luxembourg},
    {QLatin1StringView("180C"), kFrench,  QLatin1StringView(" (Monaco)"),         QLocale::French,  QLocale::Monaco},
    {QLatin1StringView("100C"), kFrench,  QLatin1StringView(" (Switzerland)"),    QLocale::French,  QLocale::Switzerland},
    {QLatin1StringView("C07"),  kGerman,  QLatin1StringView(" (Austria)"),        QLocale::German,  QLocale::Austria},
    {QLatin1StringView("1407"), kGerman,  QLatin1StringView(" (Liechtenstein)"),  QLocale::German,  QLocale::Liechtenstein},
    {QLatin1StringView("1007"), kGerman,  QLatin1StringView(" (Luxembourg)"),     QLocale::German,  QLocale::Luxembourg},
    {QLatin1StringView("407"),  kGerman,  QLatin1StringView(" (Germany)"),        QLocale::German,  QLocale::Germany},
    {QLatin1StringView("807"),  kGerman,  QLatin1StringView(" (Switzerland)"),    QLocale::German,  QLocale::Switzerland},
});
// clang-format on

}  // namespace

bool GetLanguageInfo(const QString& code, LanguageInfo& info) {
  const auto row =
      std::find_if(kLocales.begin(), kLocales.end(), [&](const Row& each) { return each.code == code; });
  if (row == kLocales.end()) return false;
  info = {.Name = row->name, .Region = row->region, .Code = row->code, .LibraryPath = {}};
  return true;
}

QString LanguageCode(const QString& name) {
  if (name.contains(kEnglish, Qt::CaseInsensitive)) return QStringLiteral("409");
  if (name.contains(kGerman, Qt::CaseInsensitive)) return QStringLiteral("407");
  if (name.contains(kFrench, Qt::CaseInsensitive)) return QStringLiteral("40C");
  return {};
}

QString userCode(const QLocale& locale) {
  const auto row = std::find_if(kLocales.begin(), kLocales.end(), [&](const Row& each) {
    return each.language == locale.language() && each.territory == locale.territory();
  });
  return row != kLocales.end() ? QString(row->code) : QString();
}

QString CLanguageName::ownName(const QString& name, const QString& code) {
  return name == kGerman ? germanName(code) : QString();
}

QString CLanguageName::germanName(const QString& code) {
  return code == QStringLiteral("407") ? QStringLiteral("Deutsch") : QString(kGerman);
}

}  // namespace Localization
