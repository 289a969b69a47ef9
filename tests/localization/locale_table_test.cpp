#include "locale_table.h"

#include <gtest/gtest.h>

namespace {

using namespace Localization;

struct LocaleRow {
  const char* code;
  const char* name;
  const char* region;
};

// clang-format off
constexpr LocaleRow kLocaleRows[] = {
    {"C09",  "English", " (Australia)"},
    {"2809", "English", " (Belize)"},
    {"1009", "English", " (Canada)"},
    {"2409", "English", " (Caribbean)"},
    {"1809", "English", " (Ireland)"},
    {"2009", "English", " (Jamaica)"},
    {"1409", "English", " (New Zealand)"},
    {"3409", "English", " (Philippines)"},
    {"1C09", "English", " (South Africa)"},
    {"2C09", "English", " (Trinidad)"},
    {"809",  "English", " (United Kingdom)"},
    {"409",  "English", " (United States)"},
    {"3009", "English", " (Zimbabwe)"},
    {"80C",  "French",  " (Belgium)"},
    {"C0C",  "French",  " (Canada)"},
    {"40C",  "French",  " (France)"},
    {"140C", "French",  " (Luxembourg)"},
    {"180C", "French",  " (Monaco)"},
    {"100C", "French",  " (Switzerland)"},
    {"C07",  "German",  " (Austria)"},
    {"1407", "German",  " (Liechtenstein)"},
    {"1007", "German",  " (Luxembourg)"},
    {"407",  "German",  " (Germany)"},
    {"807",  "German",  " (Switzerland)"},
};
// clang-format on

TEST(LocaleTable, KnowsTheLanguageAndRegionOfEachCode) {
  for (const LocaleRow& row : kLocaleRows) {
    LanguageInfo info{.Name = {}, .Region = {}, .Code = {}, .LibraryPath = QStringLiteral("/old")};
    EXPECT_TRUE(GetLanguageInfo(QString::fromLatin1(row.code), info)) << row.code;
    EXPECT_EQ(info.Name.toStdString(), row.name) << row.code;
    EXPECT_EQ(info.Region.toStdString(), row.region) << row.code;
    EXPECT_EQ(info.Code.toStdString(), row.code);
    EXPECT_EQ(info.LibraryPath, QString()) << row.code;
  }
}

TEST(LocaleTable, AnUnknownCodeLeavesTheRecordAlone) {
  for (const char* code : {"416", "40c", "0407", "407 ", " 407", "", "C7", "7", "07", "German", "40CC"}) {
    LanguageInfo info{.Name = QStringLiteral("name"),
                      .Region = QStringLiteral("region"),
                      .Code = QStringLiteral("code"),
                      .LibraryPath = QStringLiteral("path")};
    EXPECT_FALSE(GetLanguageInfo(QString::fromLatin1(code), info)) << code;
    EXPECT_EQ(info.Name + info.Region + info.Code + info.LibraryPath, QStringLiteral("nameregioncodepath"))
        << code;
  }
}

struct CodeRow {
  const char* rule;
  const char* from;
  const char* code;
};

// clang-format off
constexpr CodeRow kNameRows[] = {
    {"the name of English",            "English",                "409"},
    {"the name of German",             "German",                 "407"},
    {"the name of French",             "French",                 "40C"},
    {"lower case",                     "german",                 "407"},
    {"upper case",                     "FRENCH",                 "40C"},
    {"mixed case",                     "eNGLISH",                "409"},
    {"a display name",                 "French (Canada)",        "40C"},
    {"in the middle of a word",        "pseudogermanic",         "407"},
    {"English goes before German",     "German or English",      "409"},
    {"English goes before French",     "French or English",      "409"},
    {"German goes before French",      "French or German",       "407"},
    {"the language's own name",        "Deutsch",                ""},
    {"no language",                    "Default",                ""},
    {"a language that is not spoken",  "Klingon",                ""},
    {"half a name",                    "Germ",                   ""},
    {"nothing",                        "",                       ""},
};

constexpr CodeRow kUserRows[] = {
    {"German in Germany",              "de_DE",                  "407"},
    {"German in Austria",              "de_AT",                  "C07"},
    {"German in Switzerland",          "de_CH",                  "807"},
    {"French in France",               "fr_FR",                  "40C"},
    {"French in Canada",               "fr_CA",                  "C0C"},
    {"French in Switzerland",          "fr_CH",                  "100C"},
    {"English in the United States",   "en_US",                  "409"},
    {"English in the United Kingdom",  "en_GB",                  "809"},
    {"English in Canada",              "en_CA",                  "1009"},
    {"with an encoding",               "de_AT.UTF-8",            "C07"},
    {"no locale",                      "C",                      ""},
    {"another language",               "es_ES",                  ""},
    {"a region that is not known",     "fr_SN",                  ""},
    {"a language in another's region", "en_DE",                  ""},
};
// clang-format on

TEST(LocaleTable, FindsTheCodeThatServesALanguage) {
  for (const CodeRow& row : kNameRows) {
    EXPECT_EQ(LanguageCode(QString::fromLatin1(row.from)).toStdString(), row.code) << row.rule;
  }
}

TEST(LocaleTable, FindsTheCodeOfAUsersLocale) {
  for (const CodeRow& row : kUserRows) {
    EXPECT_EQ(userCode(QLocale(QString::fromLatin1(row.from))).toStdString(), row.code) << row.rule;
  }
}

struct OwnNameRow {
  const char* name;
  const char* code;
  const char* ownName;
};

constexpr OwnNameRow kOwnNameRows[] = {
    {"German", "407", "Deutsch"}, {"German", "C07", "German"},
    {"German", "", "German"},     {"French", "40C", ""},
    {"French", "407", ""},        {"English", "409", ""},
    {"English", "407", ""},       {"", "407", ""},
};

TEST(LocaleTable, OnlyGermanHasAnOwnName) {
  for (const OwnNameRow& row : kOwnNameRows) {
    const QString ownName =
        CLanguageName::ownName(QString::fromLatin1(row.name), QString::fromLatin1(row.code));
    EXPECT_EQ(ownName.toStdString(), row.ownName) << row.name << ' ' << row.code;
  }
}

TEST(LocaleTable, GermanIsNamedInGermanForGermanyAlone) {
  EXPECT_EQ(CLanguageName::germanName(QStringLiteral("407")), QStringLiteral("Deutsch"));
  for (const char* code : {"C07", "807", "1407", "0407", "409", ""}) {
    EXPECT_EQ(CLanguageName::germanName(QString::fromLatin1(code)), QStringLiteral("German")) << code;
  }
}

}  // namespace
