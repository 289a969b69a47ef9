#include <gtest/gtest.h>

#include <limits>

#include "amount_errors.h"
#include "amount_text.h"
#include "test_locales.h"

/// \file
/// From a number to its text: the plain form, the pattern "0.00", and the user's decimal symbol.

namespace {

template <typename Value>
struct WritingRow {
  const char* rule;
  Value value;
  const char* text;  ///< written with points
};

template <typename Value, std::size_t count, typename Write>
void expectTexts(const WritingRow<Value> (&rows)[count], Write write) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const WritingRow<Value>& row : rows) {
      SCOPED_TRACE(row.rule);
      EXPECT_EQ(write(row.value, locale.signs), asWrittenIn(locale.signs, row.text));
    }
  }
}

constexpr std::int64_t kLargestUnits = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallestUnits = std::numeric_limits<std::int64_t>::min();

// clang-format off
const WritingRow<float> kPlainSingles[] = {
  {"a leading blank before zero",                        0.0F,            " 0"},
  {"a negative zero is zero",                            -0.0F,           " 0"},
  {"a leading blank before a positive number",           1.0F,            " 1"},
  {"no blank before a negative number",                  -1.0F,           "-1"},
  {"a zero stands before the decimal symbol",            0.35F,           " 0.35"},
  {"a negative fraction",                                -0.25F,          "-0.25"},
  {"no zeros behind the last digit",                     2.50F,           " 2.5"},
  {"whole numbers keep their zeros",                     100.0F,          " 100"},
  {"seven digits of a binary fraction",                  0.1F,            " 0.1"},
  {"seven digits hide a binary remainder",               0.524999976F,    " 0.525"},
  {"seven digits show a remainder that is large enough", 8.43499947F,     " 8.434999"},
  {"seven digits of a third",                            0.333333343F,    " 0.3333333"},
  {"seven digits of two thirds",                         0.666666687F,    " 0.6666667"},
  {"leading zeros do not count as digits",               0.00012345678F,  " 0.0001234568"},
  {"a small number has no exponent",                     0.0000001F,      " 0.0000001"},
  {"seven whole digits",                                 1234567.0F,      " 1234567"},
  {"the largest number without exponent",                9999999.0F,      " 9999999"},
  {"the exponent starts at ten millions exactly",        10000000.0F,     " 1E+07"},
  {"minus ten millions",                                 -10000000.0F,    "-1E+07"},
  {"eight whole digits are rounded to seven",            12345678.0F,     " 1.234568E+07"},
  {"nine whole digits are rounded to seven",             123456789.0F,    " 1.234568E+08"},
  {"an exponent of two digits",                          1e10F,           " 1E+10"},
  {"the largest single",                                 3.4028235e38F,   " 3.402823E+38"},
  // Each of these lies exactly between two texts of seven digits.
  {"a tie goes away from zero where even would go down", 1234564.5F,      " 1234565"},
  {"a tie goes away from zero where even would go up",   1234565.5F,      " 1234566"},
  {"another tie where even would go down",               1234566.5F,      " 1234567"},
  {"a tie of a negative number goes away from zero",     -1234564.5F,     "-1234565"},
  {"a tie behind the decimal symbol",                    262144.25F,      " 262144.3"},
  {"a tie in the exponent form",                         10000005.0F,     " 1.000001E+07"},
  {"a value above a tie by its last bit",                262144.28125F,   " 262144.3"},
  {"a value below a tie by its last bit",                262144.21875F,   " 262144.2"},
};

const WritingRow<double> kPlainDoubles[] = {
  {"a leading blank before zero",                        0.0,             " 0"},
  {"a negative zero is zero",                            -0.0,            " 0"},
  {"a zero stands before the decimal symbol",            0.35,            " 0.35"},
  {"no blank before a negative number",                  -2.675,          "-2.675"},
  {"fifteen digits hide a binary remainder",             0.30000000000000004, " 0.3"},
  {"fifteen digits of a third",                          1.0 / 3.0,       " 0.333333333333333"},
  {"fifteen digits of two thirds",                       2.0 / 3.0,       " 0.666666666666667"},
  {"a single is not shortened to seven digits",          1.57499992847443, " 1.57499992847443"},
  {"a large amount keeps its decimals",                  123456789.125,   " 123456789.125"},
  {"rounding may carry into a new digit",                0.9999999999999999, " 1"},
  {"a small number has no exponent",                     1e-10,           " 0.0000000001"},
  {"the largest whole number without exponent",          999999999999999.0, " 999999999999999"},
  {"a hundred thousand thousand millions",               100000000000000.0, " 100000000000000"},
  {"the exponent starts at 1E15 exactly",                1e15,            " 1E+15"},
  {"an exponent of three digits",                        -1.5e300,        "-1.5E+300"},
  {"a tie goes away from zero where even would go down", 100000000000000.5, " 100000000000001"},
  {"a tie goes away from zero where even would go up",   100000000000001.5, " 100000000000002"},
  {"a tie of a negative number goes away from zero",     -100000000000000.5, "-100000000000001"},
  {"a tie that carries starts the exponent",             999999999999999.5, " 1E+15"},
  // 1.00883825711476 4999999999999826E-07 and 5.67893566953827 4999999999999445E-08
  {"a value below a tie by its 28th digit goes down",    1.008838257114765e-07, " 0.000000100883825711476"},
  {"another value below a tie by its 28th digit",        5.678935669538275e-08, " 0.0000000567893566953827"},
};

const WritingRow<std::int64_t> kPlainCurrencies[] = {
  {"a leading blank before zero",                        0,               " 0"},
  {"thirty-five cents",                                  3500,            " 0.35"},
  {"a ten-thousandth",                                   1,               " 0.0001"},
  {"minus a ten-thousandth",                             -1,              "-0.0001"},
  {"no zeros behind the last digit",                     15000,           " 1.5"},
  {"a whole amount",                                     100000,          " 10"},
  {"no exponent at ten millions",                        100000000000,    " 10000000"},
  {"the largest amount",                                 kLargestUnits,   " 922337203685477.5807"},
  {"the smallest amount",                                kSmallestUnits,  "-922337203685477.5808"},
};

const WritingRow<float> kPatternSingles[] = {
  {"zero",                                               0.0F,            "0.00"},
  {"a whole number gets two decimals",                   1.0F,            "1.00"},
  {"one decimal gets a second",                          1234.5F,         "1234.50"},
  {"the seven digits are rounded, not the binary value", 0.525F,          "0.53"},
  {"the same value written with all its digits",         0.524999976F,    "0.53"},
  {"a remainder that seven digits show rounds down",     8.43499947F,     "8.43"},
  {"one and half a cent",                                1.005F,          "1.01"},
  {"two sixty-seven and a half",                         2.675F,          "2.68"},
  {"a half of a negative number goes away from zero",    -0.525F,         "-0.53"},
  {"a carry into the whole part",                        0.995F,          "1.00"},
  {"a carry into a new digit",                           9.995F,          "10.00"},
  {"a carry through two digits",                         99.995F,         "100.00"},
  {"a carry through three digits",                       999.995F,        "1000.00"},
  {"half a cent",                                        0.005F,          "0.01"},
  {"less than half a cent",                              0.0049F,         "0.00"},
  {"far less than a cent",                               1e-10F,          "0.00"},
  {"only seven digits of a large number are known",      123456789.125F,  "123456800.00"},
  {"no exponent at ten millions",                        10000000.0F,     "10000000.00"},
};

const WritingRow<double> kPatternDoubles[] = {
  {"zero",                                               0.0,             "0.00"},
  {"two sixty-seven and a half",                         2.675,           "2.68"},
  {"one and half a cent",                                1.005,           "1.01"},
  {"three times a single made in double",                1.57499992847443, "1.57"},
  {"a single widened to double loses its half cent",     0.5249999761581421, "0.52"},
  {"a carry into the whole part",                        0.995,           "1.00"},
  {"a carry into a new digit",                           9.995,           "10.00"},
  {"a half of a negative number goes away from zero",    -9.995,          "-10.00"},
  {"fifteen digits keep the cents of a large number",    123456789.125,   "123456789.13"},
  {"no grouping",                                        1234567.5,       "1234567.50"},
  {"no exponent at 1E15",                                1e15,            "1000000000000000.00"},
  {"no exponent beyond the digits of a double",          1.5e20,          "150000000000000000000.00"},
};

const WritingRow<std::int64_t> kPatternCurrencies[] = {
  {"zero",                                               0,               "0.00"},
  {"half a cent",                                        50,              "0.01"},
  {"less than half a cent",                              49,              "0.00"},
  {"a half goes up where even would go down",            10050,           "1.01"},
  {"a half of a negative amount goes away from zero",    -10050,          "-1.01"},
  {"a carry into the whole part",                        9950,            "1.00"},
  {"less than a half does not carry",                    9949,            "0.99"},
  {"a carry into a new digit",                           99950,           "10.00"},
  {"the largest amount",                                 kLargestUnits,   "922337203685477.58"},
  {"the smallest amount",                                kSmallestUnits,  "-922337203685477.58"},
};

const WritingRow<const char*> kPatternTexts[] = {
  {"an empty text stays empty",                          "",              ""},
  {"a lone decimal symbol stays",                        ".",             "."},
  {"a missing result stays",                             "N/A",           "N/A"},
  {"letters stay",                                       "abc",           "abc"},
  {"blanks stay",                                        "  ",            "  "},
  {"a plain text loses its blank",                       " 0.35",         "0.35"},
  {"a plain text in exponent form",                      " 1.234568E+08", "123456800.00"},
  {"a currency sign is dropped",                         "$0.01",         "0.01"},
  {"decimals without whole digits get a zero",           ".5",            "0.50"},
  {"a trailing decimal symbol gets two zeros",           "1.",            "1.00"},
  {"leading zeros are dropped",                          "007",           "7.00"},
  {"parentheses become a minus",                         "(5)",           "-5.00"},
  {"half a cent goes up",                                "0.005",         "0.01"},
  {"a half of a negative number goes away from zero",    "-1.005",        "-1.01"},
  {"all digits count: a little less than a half",        "1.00499999999999999999999999999", "1.00"},
  {"all digits count: beyond fifteen",                   "123456789012345678901234.565",
                                                         "123456789012345678901234.57"},
  {"a carry into a new digit",                           "9.995",         "10.00"},
  {"a carry through three digits",                       "999.995",       "1000.00"},
  {"far less than a cent",                               "1e-400",        "0.00"},
};
// clang-format on

TEST(PlainText, OfASingleHasSevenDigits) {
  expectTexts(kPlainSingles,
              [](float value, const NumberLocale& locale) { return plainText(value, locale); });
}

TEST(PlainText, OfADoubleHasFifteenDigits) {
  expectTexts(kPlainDoubles,
              [](double value, const NumberLocale& locale) { return plainText(value, locale); });
}

TEST(PlainText, OfACurrencyIsExact) {
  expectTexts(kPlainCurrencies, [](std::int64_t units, const NumberLocale& locale) {
    return plainText(Currency::fromTenThousandths(units), locale);
  });
}

TEST(TwoDecimals, OfASingleRoundTheSevenDigits) {
  expectTexts(kPatternSingles,
              [](float value, const NumberLocale& locale) { return twoDecimals(value, locale); });
}

TEST(TwoDecimals, OfADoubleRoundTheFifteenDigits) {
  expectTexts(kPatternDoubles,
              [](double value, const NumberLocale& locale) { return twoDecimals(value, locale); });
}

TEST(TwoDecimals, OfACurrencyRoundTheExactAmount) {
  expectTexts(kPatternCurrencies, [](std::int64_t units, const NumberLocale& locale) {
    return twoDecimals(Currency::fromTenThousandths(units), locale);
  });
}

TEST(TwoDecimals, OfATextRoundAllItsDigits) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const WritingRow<const char*>& row : kPatternTexts) {
      SCOPED_TRACE(row.rule);
      const std::string text = asWrittenIn(locale.signs, row.value);
      EXPECT_EQ(twoDecimals(std::string_view(text), locale.signs), asWrittenIn(locale.signs, row.text));
    }
  }
}

TEST(TwoDecimals, OfATextDropTheGroupSigns) {
  EXPECT_EQ(twoDecimals(std::string_view("1,234.5"), enUS()), "1234.50");
  EXPECT_EQ(twoDecimals(std::string_view("1.234,5"), deDE()), "1234,50");
  EXPECT_EQ(twoDecimals(std::string_view("1\u2019234.5"), deCH()), "1234.50");
  EXPECT_EQ(twoDecimals(std::string_view("1\u202F234,5"), frFR()), "1234,50");
}

TEST(TwoDecimals, OfAStoredPointGetTheUsersDecimalSymbol) {
  EXPECT_EQ(twoDecimals(std::string_view("0.7854"), deDE()), "0,79");
  EXPECT_EQ(twoDecimals(std::string_view("0.7854"), frFR()), "0,79");
}

TEST(TwoDecimals, OfATextBeyondADoubleAreRefused) {
  EXPECT_THROW(static_cast<void>(twoDecimals(std::string_view("1e400"), enUS())), OverflowError);
  EXPECT_THROW(static_cast<void>(twoDecimals(std::string_view("-1e999999999999"), enUS())), OverflowError);
}

TEST(StoredAsSingle, IsTheNearestSingle) {
  EXPECT_EQ(storedAsSingle(0.1), 0.1F);
  EXPECT_EQ(storedAsSingle(16777217.0), 16777216.0F);
  EXPECT_EQ(storedAsSingle(3.4028235e38), 3.4028235e38F);
}

TEST(StoredAsSingle, RefusesWhatASingleCannotHold) {
  EXPECT_THROW(storedAsSingle(3.5e38), OverflowError);
  EXPECT_THROW(storedAsSingle(-3.5e38), OverflowError);
  EXPECT_THROW(storedAsSingle(std::numeric_limits<double>::infinity()), OverflowError);
}

struct SymbolRow {
  const char* rule;
  const char* pointText;
  std::array<const char*, 4> texts;  ///< en-US, de-DE, de-CH, fr-FR
};

// clang-format off
const SymbolRow kSymbolRows[] = {
  // rule                                     in the source  en-US     de-DE     de-CH     fr-FR
  {"an amount of one cent",                   "$0.01",      {"$0.01",  "$0,01",  "$0.01",  "$0,01"}},
  {"an amount of nothing",                    "$0.00",      {"$0.00",  "$0,00",  "$0.00",  "$0,00"}},
  {"the lowest opening bid in Germany",       "1.00",       {"1.00",   "1,00",   "1.00",   "1,00"}},
  {"a default rate",                          "0.7854",     {"0.7854", "0,7854", "0.7854", "0,7854"}},
  {"a text without a point stays",            "5",          {"5",      "5",      "5",      "5"}},
};
// clang-format on

TEST(FixedAmounts, CarryTheUsersDecimalSymbol) {
  for (const SymbolRow& row : kSymbolRows) {
    SCOPED_TRACE(row.rule);
    for (std::size_t i = 0; i < kTestLocales.size(); ++i) {
      SCOPED_TRACE(kTestLocales[i].name);
      EXPECT_EQ(withDecimalSymbol(row.pointText, kTestLocales[i].signs), row.texts[i]);
    }
  }
}

TEST(FixedAmounts, MeanTheSameNumberForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    EXPECT_EQ(toDouble(withDecimalSymbol("$0.01", locale.signs), locale.signs), 0.01);
    EXPECT_EQ(toDouble(withDecimalSymbol("1.317", locale.signs), locale.signs), 1.317);
  }
}

}  // namespace
