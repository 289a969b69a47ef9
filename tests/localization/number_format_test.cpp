#include "number_format.h"

#include <gtest/gtest.h>

namespace {

using namespace Localization;

struct Probe {
  const char* rule;
  const char* locale;
  NumberFormat format;
};

// clang-format off
constexpr Probe kProbes[] = {
    {"point decimal, comma grouping",                      "en_US", PointDecimal},
    {"point decimal in the UK",                            "en_GB", PointDecimal},
    {"no locale at all",                                   "C",     PointDecimal},
    {"comma decimal, point grouping",                      "de_DE", CommaDecimal},
    {"comma decimal, blank grouping",                      "fr_FR", CommaDecimal},
    {"apostrophe grouping wins over the decimal symbol",   "de_CH", ApostropheGrouping},
    {"the typographic apostrophe counts",                  "de_LI", ApostropheGrouping},
};
// clang-format on

TEST(NumberFormat, IsProbedFromTheLocale) {
  for (const Probe& probe : kProbes) {
    EXPECT_EQ(GetNumberFormat(QLocale(QString::fromLatin1(probe.locale))), probe.format) << probe.rule;
  }
}

struct Conversion {
  const char* rule;
  const char* text;
  NumberFormat format;
  const char* converted;
};

// clang-format off
constexpr Conversion kConversions[] = {
    {"a comma locale gets commas",                          "2.1",     CommaDecimal,       "2,1"},
    {"every point is replaced",                             "2.1.7",   CommaDecimal,       "2,1,7"},
    {"a point locale is left alone",                        "2.1",     PointDecimal,       "2.1"},
    {"a point locale keeps commas",                         "1,000",   PointDecimal,       "1,000"},
    {"apostrophe grouping keeps the point",                 "2.1",     ApostropheGrouping, "2.1"},
    {"apostrophe grouping replaces commas",                 "1,000",   ApostropheGrouping, "1'000"},
    {"no commas are made and replaced again",               "1.000",   ApostropheGrouping, "1.000"},
    {"nothing to convert",                                  "",        CommaDecimal,       ""},
};
// clang-format on

TEST(NumberFormat, ConvertsAVersionNumber) {
  for (const Conversion& row : kConversions) {
    EXPECT_EQ(ConvNumFormat(QString::fromLatin1(row.text), row.format).toStdString(), row.converted)
        << row.rule;
  }
}

}  // namespace
