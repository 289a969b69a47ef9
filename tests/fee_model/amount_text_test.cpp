#include "amount_text.h"

#include <gtest/gtest.h>

#include <optional>

#include "amount_errors.h"
#include "test_locales.h"

/// \file
/// Which texts are numbers, and which number each is, for users of four ways of writing numbers.

namespace {

using namespace std::string_view_literals;

constexpr std::nullopt_t no = std::nullopt;

struct ReadingRow {
  const char* rule;
  std::string_view text;
  std::array<std::optional<double>, 4> value;  ///< en-US, de-DE, de-CH, fr-FR; `no` is no number
};

void expectReadings(const ReadingRow& row) {
  SCOPED_TRACE(row.rule);
  for (std::size_t i = 0; i < kTestLocales.size(); ++i) {
    SCOPED_TRACE(kTestLocales[i].name);
    const NumberLocale& locale = kTestLocales[i].signs;
    EXPECT_EQ(isNumeric(row.text, locale), row.value[i].has_value());
    if (!row.value[i]) {
      EXPECT_THROW(toDouble(row.text, locale), ConversionError);
    } else {
      EXPECT_NO_THROW(EXPECT_EQ(toDouble(row.text, locale), *row.value[i]));
    }
  }
}

constexpr std::array<std::optional<double>, 4> everywhere(double value) {
  return {value, value, value, value};
}
constexpr std::array<std::optional<double>, 4> nowhere() { return {no, no, no, no}; }

// clang-format off
const ReadingRow kPlainRows[] = {
  {"digits alone are a number",                       "123",            everywhere(123)},
  {"one zero is a number",                            "0",              everywhere(0)},
  {"leading zeros do not count",                      "007",            everywhere(7)},
  {"zeros alone are zero",                            "000",            everywhere(0)},
  {"a blank may stand in front",                      " 5",             everywhere(5)},
  {"a blank may stand behind",                        "5 ",             everywhere(5)},
  {"several blanks may stand at both ends",           "   5   ",        everywhere(5)},
  {"a tab is a blank",                                "\t5\t",          everywhere(5)},
  {"a blank between digits is no number",             "1 2",            nowhere()},
  {"nothing is no number",                            "",               nowhere()},
  {"a blank alone is no number",                      " ",              nowhere()},
  {"a tab alone is no number",                        "\t",             nowhere()},
  {"a leading minus",                                 "-5",             everywhere(-5)},
  {"a leading plus",                                  "+5",             everywhere(5)},
  {"a trailing minus",                                "5-",             everywhere(-5)},
  {"a trailing plus",                                 "5+",             everywhere(5)},
  {"a sign behind blanks",                            "  -5  ",         everywhere(-5)},
  {"two leading signs are no number",                 "--5",            nowhere()},
  {"plus and minus in front are no number",           "+-5",            nowhere()},
  {"two trailing signs are no number",                "5--",            nowhere()},
  {"a sign at both ends is no number",                "-5-",            nowhere()},
  {"different signs at both ends are no number",      "-5+",            nowhere()},
  {"a minus alone is no number",                      "-",              nowhere()},
  {"a plus alone is no number",                       "+",              nowhere()},
  {"a minus of zero is zero",                         "-0",             everywhere(0)},
};

const ReadingRow kDecimalRows[] = {
  // rule                                             text              en-US    de-DE    de-CH    fr-FR
  {"a point and digits behind it",                    "1.5",            everywhere(1.5)},
  {"a comma groups, divides, or is nothing",          "1,5",            {15.0,    1.5,     no,      1.5}},
  {"a point needs no digit behind it",                "1.",             everywhere(1)},
  {"a comma needs no digit behind it",                "1,",             {1.0,     1.0,     no,      1.0}},
  {"a point needs no digit in front",                 ".5",             everywhere(0.5)},
  {"a comma needs no digit in front",                 ",5",             {no,      0.5,     no,      0.5}},
  {"a point alone is no number",                      ".",              nowhere()},
  {"a comma alone is no number",                      ",",              nowhere()},
  {"a signed point alone is no number",               "-.",             nowhere()},
  {"a signed point and digits",                       "-.5",            everywhere(-0.5)},
  {"two points divide nothing",                       "1.5.2",          {no,      152.0,   no,      no}},
  {"two commas divide nothing",                       "1,5,2",          {152.0,   no,      no,      no}},
  {"two points in a row",                             "..5",            nowhere()},
  {"a second point at the end",                       "1.5.",           {no,      15.0,    no,      no}},
  {"a point and three digits may group",              "1.234",          {1.234,   1234.0,  1.234,   no}},
  {"two digits, a point, three digits may group",     "12.345",         {12.345,  12345.0, 12.345,  no}},
  {"three digits, a point, three digits may group",   "123.456",        {123.456, 123456.0, 123.456, no}},
  {"a grouping point behind a minus",                 "-1.234",         {-1.234,  -1234.0, -1.234,  no}},
  {"a grouping point behind a currency sign",         "$1.234",         {1.234,   1234.0,  1.234,   no}},
  {"four digits before the point: it divides",        "1234.567",       everywhere(1234.567)},
  {"two digits behind the point: it divides",         "1.23",           everywhere(1.23)},
  {"four digits behind the point: it divides",        "1.2345",         everywhere(1.2345)},
  {"no digit before the point: it divides",           ".234",           everywhere(0.234)},
  {"a stored rate keeps its value",                   "0.7854",         everywhere(0.7854)},
  {"a stored rate behind blanks keeps its value",     " 0.5305 ",       everywhere(0.5305)},
  {"a point and a comma: the comma divides",          "1.234,5",        {no,      1234.5,  no,      no}},
  {"a comma and a point: the point divides",          "1,234.5",        {1234.5,  no,      no,      no}},
  {"decimals of many digits",                         "0.1000000000000000055511151231257827",
                                                                        everywhere(0.1)},
};

const ReadingRow kGroupRows[] = {
  // rule                                             text              en-US    de-DE    de-CH    fr-FR
  {"two points group twice",                          "1.234.567",      {no,      1234567.0, no,    no}},
  {"two commas group twice",                          "1,234,567",      {1234567.0, no,    no,      no}},
  {"a typographic apostrophe groups",                 "1\u2019234.50",  {no,      no,      1234.5,  no}},
  {"a typewriter apostrophe groups as well",          "1'234.50",       {no,      no,      1234.5,  no}},
  {"two apostrophes group twice",                     "1\u2019234'567", {no,      no,      1234567.0, no}},
  {"a narrow no-break space groups",                  "1\u202F234,50",  {no,      no,      no,      1234.5}},
  {"a no-break space groups as well",                 "1\u00A0234,50",  {no,      no,      no,      1234.5}},
  {"groups need no three digits",                     "1,2,34",         {1234.0,  no,      no,      no}},
  {"two group signs in a row",                        "1,,2",           {12.0,    no,      no,      no}},
  {"a group sign before the first digit",             ",123",           {no,      0.123,   no,      0.123}},
  {"an apostrophe before the first digit",            "\u2019123",      nowhere()},
  {"a group sign behind the last whole digit",        "12,.5",          {12.5,    no,      no,      no}},
  {"a group sign behind the decimal symbol",          "1.5,2",          {no,      15.2,    no,      no}},
  {"an apostrophe behind the decimal symbol",         "1.5\u20192",     nowhere()},
  {"a group sign behind a currency sign",             "$1,234.50",      {1234.5,  no,      no,      no}},
  {"an underscore groups nothing",                    "1_000",          nowhere()},
};

const ReadingRow kCurrencyRows[] = {
  // rule                                             text              en-US    de-DE    de-CH    fr-FR
  {"a dollar sign in front is always understood",     "$5",             everywhere(5)},
  {"a dollar sign behind is always understood",       "5$",             everywhere(5)},
  {"a blank may stand behind the currency sign",      "$ 5",            everywhere(5)},
  {"a blank may stand before the currency sign",      "5 $",            everywhere(5)},
  {"blanks at both ends of a currency amount",        " $ 5 ",          everywhere(5)},
  {"an euro sign is understood where it is used",     "€5",             {no,      5.0,     no,      5.0}},
  {"an euro sign behind",                             "5€",             {no,      5.0,     no,      5.0}},
  {"an euro sign and a blank behind",                 "5 €",            {no,      5.0,     no,      5.0}},
  {"a currency of three letters in front",            "CHF 5",          {no,      no,      5.0,     no}},
  {"a currency of three letters without a blank",     "CHF5",           {no,      no,      5.0,     no}},
  {"a currency of three letters behind",              "5 CHF",          {no,      no,      5.0,     no}},
  {"half a currency sign is no number",               "CH 5",           nowhere()},
  {"another country's sign is no number",             "£5",             nowhere()},
  {"a currency sign alone is no number",              "$",              nowhere()},
  {"a currency sign and a blank are no number",       "$ ",             nowhere()},
  {"an euro sign alone is no number",                 "€",              nowhere()},
  {"a currency sign and a point are no number",       "$.",             nowhere()},
  {"two currency signs are no number",                "$$5",            nowhere()},
  {"a currency sign at both ends is no number",       "$5$",            nowhere()},
  {"two different currency signs are no number",      "$5 €",           nowhere()},
  {"a minus before the currency sign",                "-$5",            everywhere(-5)},
  {"a minus behind the currency sign",                "$-5",            everywhere(-5)},
  {"a minus behind a currency amount",                "$5-",            everywhere(-5)},
  {"a currency sign between digits is no number",     "1$5",            nowhere()},
  {"a fixed amount with a dollar sign",               "$0.01",          everywhere(0.01)},
};

const ReadingRow kExponentRows[] = {
  {"an exponent",                                     "1e3",            everywhere(1000)},
  {"an exponent with a capital letter",               "1E3",            everywhere(1000)},
  {"an exponent with a plus",                         "1e+3",           everywhere(1000)},
  {"an exponent with a minus",                        "1e-3",           everywhere(0.001)},
  {"an exponent with a leading zero",                 "1E+08",          everywhere(100000000)},
  {"decimals and an exponent",                        "1.5E2",          everywhere(150)},
  {"a plain text in exponent form",                   " 1.2345E+08",    everywhere(123450000)},
  {"minus twice: of the number and of the exponent",  "-1.5e-2",        everywhere(-0.015)},
  {"a zero may have any exponent",                    "0e999999",       everywhere(0)},
  {"a number too small to hold is zero",              "1e-400",         everywhere(0)},
  {"an exponent without digits is no number",         "1e",             nowhere()},
  {"a signed exponent without digits is no number",   "1e+",            nowhere()},
  {"an exponent without a number is no number",       "e5",             nowhere()},
  {"two exponents are no number",                     "1e5e5",          nowhere()},
  {"a broken exponent is no number",                  "1e1.5",          nowhere()},
  {"a blank in an exponent is no number",             "1e 3",           nowhere()},
  {"the letter d starts no exponent",                 "1d3",            nowhere()},
};

const ReadingRow kParenthesisRows[] = {
  {"parentheses mean minus",                          "(5)",            everywhere(-5)},
  {"parentheses around a currency amount",            "($5)",           everywhere(-5)},
  {"a currency sign before parentheses",              "$(5)",           everywhere(-5)},
  {"parentheses around decimals",                     "(0.5)",          everywhere(-0.5)},
  {"blanks around parentheses",                       " (5) ",          everywhere(-5)},
  {"an unclosed parenthesis is no number",            "(5",             nowhere()},
  {"an unopened parenthesis is no number",            "5)",             nowhere()},
  {"parentheses around nothing are no number",        "()",             nowhere()},
  {"two pairs of parentheses are no number",          "((5))",          nowhere()},
  {"a minus before parentheses is no number",         "-(5)",           nowhere()},
  {"a minus in parentheses is no number",             "(-5)",           nowhere()},
  {"a minus behind parentheses is no number",         "(5)-",           nowhere()},
};

const ReadingRow kOtherTextRows[] = {
  {"infinity is no number",                           "inf",            nowhere()},
  {"written-out infinity is no number",               "infinity",       nowhere()},
  {"a signed infinity is no number",                  "-inf",           nowhere()},
  {"not-a-number is no number",                       "nan",            nowhere()},
  {"capital not-a-number is no number",               "NAN",            nowhere()},
  {"hexadecimal digits are no number",                "0x10",           nowhere()},
  {"another notation of hexadecimal digits",          "&H1F",           nowhere()},
  {"letters behind digits are no number",             "12abc",          nowhere()},
  {"letters before digits are no number",             "abc12",          nowhere()},
  {"letters are no number",                           "abc",            nowhere()},
  {"a result that is not available is no number",     "N/A",            nowhere()},
  {"a per cent sign is no number",                    "5%",             nowhere()},
  {"a fraction is no number",                         "½",              nowhere()},
  {"Arabic-Indic digits are no number",               "٣٤٥",            nowhere()},
  {"full-width digits are no number",                 "１２",           nowhere()},
  {"an emoji is no number",                           "😀",             nowhere()},
  {"an emoji behind a digit is no number",            "5😀",            nowhere()},
  {"a zero byte behind a digit is no number",         "5\0"sv,          nowhere()},
  {"a broken character is no number",                 "5\xE2\x80",      nowhere()},
};
// clang-format on

TEST(NumericText, DigitsBlanksAndSigns) {
  for (const ReadingRow& row : kPlainRows) expectReadings(row);
}

TEST(NumericText, DecimalSymbolAndTheStoredPoint) {
  for (const ReadingRow& row : kDecimalRows) expectReadings(row);
}

TEST(NumericText, GroupSigns) {
  for (const ReadingRow& row : kGroupRows) expectReadings(row);
}

TEST(NumericText, CurrencySigns) {
  for (const ReadingRow& row : kCurrencyRows) expectReadings(row);
}

TEST(NumericText, Exponents) {
  for (const ReadingRow& row : kExponentRows) expectReadings(row);
}

TEST(NumericText, Parentheses) {
  for (const ReadingRow& row : kParenthesisRows) expectReadings(row);
}

TEST(NumericText, OtherTexts) {
  for (const ReadingRow& row : kOtherTextRows) expectReadings(row);
}

TEST(NumericText, NoGroupSignMeansNoGrouping) {
  const NumberLocale ungrouped{".", "", "$"};
  EXPECT_TRUE(isNumeric("1234.5", ungrouped));
  EXPECT_FALSE(isNumeric("1,234.5", ungrouped));
}

TEST(NumericText, LongTextsAreReadWhole) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    const std::string tenThousandZeros(10000, '0');
    EXPECT_EQ(toDouble(tenThousandZeros + "5", locale.signs), 5.0);
    EXPECT_EQ(toDouble("1" + locale.signs.decimal + tenThousandZeros + "1", locale.signs), 1.0);
    EXPECT_EQ(toDouble("0" + locale.signs.decimal + tenThousandZeros + "1", locale.signs), 0.0);
    EXPECT_EQ(toDouble("1" + tenThousandZeros + "e-10000", locale.signs), 1.0);
    EXPECT_FALSE(isNumeric(tenThousandZeros + "x", locale.signs));
    EXPECT_FALSE(isNumeric(std::string(10000, '('), locale.signs));
  }
}

}  // namespace
