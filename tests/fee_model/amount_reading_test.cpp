#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "amount_errors.h"
#include "amount_text.h"
#include "test_locales.h"

/// \file
/// From a text that is a number to the number types: rounding, range, and what the errors tell.

namespace {

constexpr std::int64_t kLargestUnits = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallestUnits = std::numeric_limits<std::int64_t>::min();

template <typename Value>
struct ReadingRow {
  const char* rule;
  const char* text;  ///< written with points
  Value value;
};

struct RefusedRow {
  const char* rule;
  std::string text;
};

template <typename Value, typename Read, std::size_t count>
void expectValues(const ReadingRow<Value> (&rows)[count], Read read) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const ReadingRow<Value>& row : rows) {
      SCOPED_TRACE(row.rule);
      EXPECT_NO_THROW(EXPECT_EQ(read(asWrittenIn(locale.signs, row.text), locale.signs), row.value));
    }
  }
}

template <typename Read, std::size_t count>
void expectTooLarge(const RefusedRow (&rows)[count], Read read) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const RefusedRow& row : rows) {
      SCOPED_TRACE(row.rule);
      const std::string text = asWrittenIn(locale.signs, row.text);
      EXPECT_TRUE(isNumeric(text, locale.signs));
      EXPECT_THROW(read(text, locale.signs), OverflowError);
    }
  }
}

// clang-format off
const ReadingRow<double> kDoubleRows[] = {
  {"the nearest binary64 of one tenth",                           "0.1",                     0.1},
  {"a half between two binary64 goes to the even one",            "9007199254740993",        9007199254740992.0},
  {"the next half goes up to the even one",                       "9007199254740995",        9007199254740996.0},
  {"a digit far behind decides a half",                           "9007199254740993.0000000000000000001",
                                                                                             9007199254740994.0},
  {"the largest binary64",                                        "1.7976931348623157e308",  1.7976931348623157e308},
  {"the smallest binary64",                                       "4.9406564584124654e-324", 4.9406564584124654e-324},
  {"less than half of the smallest is zero",                      "2e-324",                  0.0},
};

const RefusedRow kTooLargeForDouble[] = {
  {"an exponent beyond the largest binary64",                     "1e309"},
  {"an exponent far beyond",                                      "1e400"},
  {"an exponent that is itself too large to count",               "1e99999999999999999999"},
  {"a negative number beyond the range",                          "-1e400"},
  {"ten thousand digits",                                         std::string(10000, '9')},
};

const ReadingRow<float> kSingleRows[] = {
  {"the nearest binary32 of one tenth",                           "0.1",                     0.1F},
  {"a half between two binary32 goes to the even one below",      "16777217",                16777216.0F},
  {"a half between two binary32 goes to the even one above",      "16777219",                16777220.0F},
  // 1 + 2^-24 lies halfway between 1 and the next binary32; the digit behind is lost in binary64.
  {"a text is rounded to binary64 first, then to binary32",
   "1.00000005960464477539062500000001",                                                     1.0F},
  {"the largest binary32",                                        "3.4028235e38",            3.4028235e38F},
  {"less than half of the smallest is zero",                      "1e-50",                   0.0F},
};

const RefusedRow kTooLargeForSingle[] = {
  {"a little above the largest binary32",                         "3.5e38"},
  {"a negative number a little beyond",                           "-3.5e38"},
  {"a number that only binary64 holds",                           "1e39"},
  {"an exponent beyond the largest binary64",                     "1e400"},
  {"ten thousand digits",                                         std::string(10000, '9')},
};

const ReadingRow<std::int16_t> kWholeRows[] = {
  {"a whole number",                                              "42",                      42},
  {"one half goes to the even zero",                              "0.5",                     0},
  {"one and a half goes to the even two",                         "1.5",                     2},
  {"two and a half goes to the even two",                         "2.5",                     2},
  {"a negative half goes to zero",                                "-0.5",                    0},
  {"minus one and a half goes to the even minus two",             "-1.5",                    -2},
  {"minus two and a half goes to the even minus two",             "-2.5",                    -2},
  {"a digit far behind decides a half",                           "2.5000000000000000000001", 3},
  {"a digit far behind keeps below a half",                       "3.4999999999999999999999", 3},
  {"a small fraction is zero",                                    "0.0001",                  0},
  {"an exponent",                                                 "1e3",                     1000},
  {"the largest whole number",                                    "32767",                   32767},
  {"less than a half above the largest",                          "32767.49",                32767},
  {"the smallest whole number",                                   "-32768",                  -32768},
  {"a half below the smallest goes to it, as it is even",         "-32768.5",                -32768},
};

const RefusedRow kTooLargeForWhole[] = {
  {"one above the largest whole number",                          "32768"},
  {"a half above the largest goes to the even one above",         "32767.5"},
  {"more than a half below the smallest",                         "-32768.51"},
  {"a number of sixty-four bits",                                 "9223372036854775807"},
  {"a number beyond sixty-four bits",                             "18446744073709551616"},
  {"an exponent beyond the largest binary64",                     "1e400"},
  {"ten thousand digits",                                         std::string(10000, '9')},
};

const ReadingRow<std::int64_t> kCurrencyRows[] = {
  {"one tenth is exact",                                          "0.1",                     1000},
  {"the smallest amount",                                         "0.0001",                  1},
  {"half of the smallest amount goes to the even zero",           "0.00005",                 0},
  {"one and a half of it goes to the even two",                   "0.00015",                 2},
  {"two and a half of it goes to the even two",                   "0.00025",                 2},
  {"minus one and a half of it goes to the even minus two",       "-0.00015",                -2},
  {"a digit far behind decides a half",                           "0.0000500000000000000000001", 1},
  {"a half at the fourth decimal, even below",                    "12.34565",                123456},
  {"a half at the fourth decimal, even above",                    "12.34575",                123458},
  {"far less than the smallest amount",                           "1e-400",                  0},
  {"an exponent",                                                 "1e14",                    1000000000000000000},
  {"the largest amount",                                          "922337203685477.5807",    kLargestUnits},
  {"less than a half above the largest amount",                   "922337203685477.58074",   kLargestUnits},
  {"the smallest negative amount",                                "-922337203685477.5808",   kSmallestUnits},
  {"a half below the smallest goes to it, as it is even",         "-922337203685477.58085",  kSmallestUnits},
};

const RefusedRow kTooLargeForCurrency[] = {
  {"a ten-thousandth above the largest amount",                   "922337203685477.5808"},
  {"a half above the largest goes to the even one above",         "922337203685477.58075"},
  {"a ten-thousandth below the smallest amount",                  "-922337203685477.5809"},
  {"sixteen digits",                                              "1000000000000000"},
  {"a number beyond sixty-four bits",                             "1844674407370955.1616"},
  {"an exponent beyond the largest binary64",                     "1e400"},
  {"ten thousand digits",                                         std::string(10000, '9')},
};
// clang-format on

std::int64_t unitsOf(std::string_view text, const NumberLocale& locale) {
  return toCurrency(text, locale).tenThousandths();
}

TEST(TextToDouble, IsTheNearestBinary64) { expectValues(kDoubleRows, toDouble); }
TEST(TextToDouble, RefusesWhatIsTooLarge) { expectTooLarge(kTooLargeForDouble, toDouble); }
TEST(TextToSingle, IsRoundedOnceMore) { expectValues(kSingleRows, toSingle); }
TEST(TextToSingle, RefusesWhatIsTooLarge) { expectTooLarge(kTooLargeForSingle, toSingle); }
TEST(TextToWholeNumber, RoundsHalfToEven) { expectValues(kWholeRows, toInteger16); }
TEST(TextToWholeNumber, RefusesWhatIsTooLarge) { expectTooLarge(kTooLargeForWhole, toInteger16); }
TEST(TextToCurrency, RoundsHalfToEvenAtTheFourthDecimal) { expectValues(kCurrencyRows, unitsOf); }
TEST(TextToCurrency, RefusesWhatIsTooLarge) { expectTooLarge(kTooLargeForCurrency, unitsOf); }

struct Reader {
  const char* name;
  std::function<void(std::string_view, const NumberLocale&)> read;
};

const Reader kReaders[] = {
    {"to double", [](std::string_view text, const NumberLocale& locale) { toDouble(text, locale); }},
    {"to single", [](std::string_view text, const NumberLocale& locale) { toSingle(text, locale); }},
    {"to whole number", [](std::string_view text, const NumberLocale& locale) { toInteger16(text, locale); }},
    {"to currency", [](std::string_view text, const NumberLocale& locale) { toCurrency(text, locale); }},
};

TEST(AmountErrors, AConversionErrorCarriesTheOffendingText) {
  for (const Reader& reader : kReaders) {
    for (const std::string& text : {std::string("12abc"), std::string(), std::string("."), std::string("--5"),
                                    std::string("😀"), std::string(10000, 'x')}) {
      SCOPED_TRACE(std::string(reader.name) + " of \"" + text.substr(0, 20) + "\"");
      try {
        reader.read(text, enUS());
        ADD_FAILURE() << "no error";
      } catch (const ConversionError& error) {
        EXPECT_EQ(error.offendingText(), text);
      }
    }
  }
}

TEST(AmountErrors, AnOverflowErrorCarriesTheOffendingText) {
  for (const Reader& reader : kReaders) {
    for (const std::string& text :
         {std::string("1e400"), std::string(" -$1e400 "), std::string(10000, '9')}) {
      SCOPED_TRACE(std::string(reader.name) + " of \"" + text.substr(0, 20) + "\"");
      try {
        reader.read(text, enUS());
        ADD_FAILURE() << "no error";
      } catch (const OverflowError& error) {
        EXPECT_EQ(error.offendingText(), text);
      }
    }
  }
}

TEST(AmountErrors, TheMessageShowsAShortTextWholeAndALongOneCut) {
  EXPECT_NE(std::string(ConversionError("12abc").what()).find("12abc"), std::string::npos);
  EXPECT_NE(std::string(OverflowError("1e400").what()).find("1e400"), std::string::npos);
  const std::string message = ConversionError(std::string(10000, 'x')).what();
  EXPECT_LT(message.size(), 200U);
  EXPECT_NE(message.find("xxxxxxxxxx"), std::string::npos);
}

TEST(AmountErrors, ACutTextEndsWithAWholeCharacter) {
  std::string euros;
  for (int i = 0; i < 100; ++i) euros += "€";
  for (const std::size_t shift : {0U, 1U, 2U}) {
    const std::string message = ConversionError(std::string(shift, 'x') + euros).what();
    const std::size_t end = message.find("...");
    ASSERT_NE(end, std::string::npos);
    ASSERT_GE(end, 3U);
    EXPECT_EQ(message.substr(end - 3, 3), "€");
  }
}

}  // namespace
