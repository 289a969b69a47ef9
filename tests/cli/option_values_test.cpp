#include "option_values.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const NumberLocale kPoint{".", ",", "$"};
const NumberLocale kComma{",", ".", "€"};

const Option& optionOf(std::string_view name) {
  return *std::find_if(options().begin(), options().end(),
                       [name](const Option& option) { return option.name == name; });
}

/// What is wrong with a value, without the option and the value; "" if nothing is.
std::string reasonFor(const char* option, std::string_view text, const NumberLocale& locale,
                      bool hasDecimal) {
  try {
    static_cast<void>(readValue(optionOf(option), text, locale, hasDecimal));
  } catch (const OptionError& error) {
    const std::string reason = error.what();
    return reason.substr(reason.rfind('"') + 2);
  }
  return "";
}

struct ValueRow {
  const char* rule;
  const char* option;
  const char* text;
  const char* reason;
};

constexpr const char* kTwo = "could mean two numbers: say --decimal . or --decimal ,";
constexpr const char* kNone = "is no number";
constexpr const char* kNotPoint = "is no number with the decimal sign .";
constexpr const char* kNotComma = "is no number with the decimal sign ,";
constexpr const char* kCommaOnly = "is a number with a decimal comma only: say --decimal ,";

// clang-format off
constexpr ValueRow kUnsaid[] = {
    {"three digits behind a point",              "opening", "1.234",        kTwo},
    {"three digits behind a comma",              "opening", "12,345",       kTwo},
    {"three digits before the point at most",    "opening", "1234.567",     ""},
    {"two digits behind a point are decimals",   "opening", "1.23",         ""},
    {"four digits behind a point are decimals",  "opening", "1.2345",       ""},
    {"nothing is grouped behind a nought",       "opening", "0.785",        ""},
    {"no sign at all",                           "opening", "1234",         ""},
    {"no digit before the point",                "opening", ".234",         ""},
    {"a minus hides nothing",                    "opening", "-1.234",       kTwo},
    {"a currency sign hides nothing",            "opening", "$1.234",       kTwo},
    {"two decimals behind a comma",              "opening", "9,99",         kCommaOnly},
    {"too many digits before a comma",           "opening", "1234,567",     kCommaOnly},
    {"a nought before a comma",                  "opening", "0,999",        kCommaOnly},
    {"nothing before a comma",                   "opening", ",5",           kCommaOnly},
    {"two commas that group",                    "opening", "1,234,567",    ""},
    {"many commas that group",                   "opening", "12,345,678,901", ""},
    {"a comma that groups before a point",       "opening", "1,234.56",     ""},
    {"three digits behind that point",           "opening", "1,234.567",    ""},
    {"a currency sign before it",                "opening", "$ 1,234.56",   ""},
    {"two commas side by side",                  "opening", "1,,5",         kNone},
    {"two commas that do not group",             "opening", "1,23,456",     kNone},
    {"a last group of two digits",               "opening", "1,234,56",     kNone},
    {"a comma at the end",                       "opening", "1,234,",       kNone},
    {"commas behind a nought",                   "opening", "0,234,567",    kNone},
    {"a comma behind the point",                 "opening", "1,234.567,8",  kNone},
    {"points that group, decimals behind a comma", "opening", "1.234,56",   kCommaOnly},
    {"two points that group",                    "opening", "1.234.567",    kCommaOnly},
    {"a rate has three decimals",                "rate",    "1.234",        ""},
    {"a rate with a comma",                      "rate",    "0,5305",       kCommaOnly},
    {"an exponent hides nothing",                "opening", "1.234e2",      kTwo},
    {"a rate of that size is not grouped",       "rate",    "1,234,567",    kNone},
    {"blanks that group",                        "opening", "1 234",        ""},
    {"before a point",                           "opening", "1 234.56",     ""},
    {"whatever number of decimals",              "opening", "1 234.567",    ""},
    {"before a comma, which does not group then", "opening", "1 234,56",    kCommaOnly},
    {"nor before three digits",                  "opening", "1 234,567",    kCommaOnly},
    {"below zero",                               "opening", "-1",           "is below zero"},
    {"no number",                                "opening", "much",         kNone},
};

constexpr ValueRow kPointSaid[] = {
    {"one sign splits",                          "opening", "1.234",        ""},
    {"the other groups",                         "opening", "1,234",        ""},
    {"it groups before the one that splits",     "opening", "12,345,678.9", ""},
    {"no digit behind the point",                "opening", "1,234.",       ""},
    {"no digit before it",                       "opening", ".5",           ""},
    {"no group needs no sign",                   "opening", "1234567.891",  ""},
    {"a currency sign, blanks and a plus",       "opening", " +$ 1,234.50 ", ""},
    {"an exponent",                              "opening", "1,234.5e2",    ""},
    {"a group of two digits",                    "opening", "9,99",         kNotPoint},
    {"of one",                                   "opening", "0,5",          kNotPoint},
    {"of four",                                  "opening", "1,2345",       kNotPoint},
    {"of none",                                  "opening", "1234,",        kNotPoint},
    {"before an exponent too",                   "opening", "1,5e3",        kNotPoint},
    {"one group of several is short",            "opening", "1,234,56",     kNone},
    {"groups of one",                            "opening", "1,2,3",        kNone},
    {"four digits before the first group sign",  "opening", "1234,567",     kNotPoint},
    {"nothing before it",                        "opening", ",567",         kNotPoint},
    {"a nought before it",                       "opening", "0,567",        kNotPoint},
    {"a group sign behind the point",            "opening", "1.234,567",    kNotPoint},
    {"two signs that split",                     "opening", "1.234.567",    kNotPoint},
    {"nor any digits between them",              "opening", "1.2.3",        kNotPoint},
    {"a rate has no groups",                     "rate",    "1,234",        kNotPoint},
    {"nor decimals of another sign",             "rate",    "0,5",          kNotPoint},
    {"a rate splits as amounts do",              "rate",    "1.2345",       ""},
    {"blanks group as commas do",                "opening", "$ 12 345.6",   ""},
    {"but not with them",                        "opening", "1 234,567.8",  kNone},
    {"nor behind them",                          "opening", "1,234 567",    kNone},
    {"nor with a decimal comma",                 "opening", "1 234,56",     kNotPoint},
    {"a blank before two digits",                "opening", "1 23",         kNone},
    {"before four",                              "opening", "1 2345",       kNone},
    {"behind a nought",                          "opening", "0 234",        kNone},
    {"behind four digits",                       "opening", "1234 567",     kNone},
    {"two blanks",                               "opening", "1  234",       kNone},
    {"a blank behind the point",                 "opening", "1.234 567",    kNone},
    {"behind a point alone",                     "opening", ".5 000",       kNone},
    {"a rate with a blank",                      "rate",    "1 234",        kNone},
    {"below zero",                               "opening", "-1.5",         "is below zero"},
    {"no number at all",                         "opening", "much",         kNone},
};

constexpr ValueRow kCommaSaid[] = {
    {"decimals",                                 "opening", "9,99",         ""},
    {"three of them",                            "opening", "9,999",        ""},
    {"groups",                                   "opening", "1.234,56",     ""},
    {"groups alone",                             "opening", "1.234.567",    ""},
    {"a currency sign",                          "opening", "€ 1.234,56",   ""},
    {"blanks that group",                        "opening", "1 234 567,8",  ""},
    {"no-break spaces that do",                  "opening", "1\u00A0234,56\u00A0€", ""},
    {"narrow ones too",                          "opening", "1\u202F234,56", ""},
    {"with a point behind them",                 "opening", "1 234.56",     kNotComma},
    {"two decimals behind a point",              "opening", "0.99",         kNotComma},
    {"three, but behind a nought",               "opening", "0.990",        kNotComma},
    {"whatever they are",                        "opening", "0.123",        kNotComma},
    {"one, like a point of the keypad",          "opening", "1.5",          kNotComma},
    {"too many digits before the point",         "opening", "1234.567",     kNotComma},
    {"groups of one",                            "opening", "1.2.3",        kNone},
    {"a group sign behind the comma",            "opening", "1,234.56",     kNotComma},
    {"a rate with a point",                      "rate",    "0.7854",       kNotComma},
    {"a rate has no groups",                     "rate",    "1.234",        kNotComma},
};

constexpr ValueRow kCounts[] = {
    {"digits",                                   "offered", "10",           ""},
    {"none is sold",                             "sold",    "0",            ""},
    {"the largest",                              "offered", "32767",        ""},
    {"noughts in front",                         "offered", "000012",       ""},
    {"one more",                                 "offered", "32768",        "is too large: at most 32767"},
    {"more than any number holds",               "sold",    "99999999999999999999", "is too large: at most 32767"},
    {"decimals",                                 "offered", "10.5",         "is no whole number"},
    {"decimals behind a comma",                  "offered", "2,5",          "is no whole number"},
    {"no decimals behind a point",               "offered", "10.",          "is no whole number"},
    {"an exponent",                              "offered", "1e1",          "is no whole number"},
    {"group signs",                              "sold",    "1,000",        "is no whole number"},
    {"a blank",                                  "sold",    "1 ",           "is no whole number"},
    {"below zero",                               "sold",    "-1",           "is below zero"},
    {"words",                                    "sold",    "all",          "is no whole number"},
};
// clang-format on

void expectReasons(std::span<const ValueRow> rows, const NumberLocale& locale, bool hasDecimal) {
  for (const ValueRow& row : rows)
    EXPECT_EQ(reasonFor(row.option, row.text, locale, hasDecimal), row.reason) << row.rule;
}

TEST(OptionValues, WithoutADecimalSignNothingIsGuessed) { expectReasons(kUnsaid, kPoint, false); }
TEST(OptionValues, WithADecimalPointCommasGroup) { expectReasons(kPointSaid, kPoint, true); }
TEST(OptionValues, WithADecimalCommaPointsGroup) { expectReasons(kCommaSaid, kComma, true); }
struct ReadRow {
  const char* rule;
  const char* option;
  const char* text;
  const char* read;
};

// clang-format off
constexpr ReadRow kRead[] = {
    {"blanks that group are left out",   "opening", "1 234 567.8",               "1234567.8"},
    {"no-break spaces too",              "opening", "1\u00A0234\u202F567",       "1234567"},
    {"what stands around it stays",      "opening", " $ 1 234 ",                 " $ 1234 "},
    {"other group signs stay",           "opening", "1,234.50",                  "1,234.50"},
    {"nothing is left out of a choice",  "real-estate", "1 234",                 "1 234"},
    {"nor of a count",                   "offered", "0012",                      "0012"},
};
// clang-format on

TEST(OptionValues, AnAmountIsReadWithoutTheBlanksThatGroupIt) {
  for (const ReadRow& row : kRead)
    EXPECT_EQ(readValue(optionOf(row.option), row.text, kPoint, true), row.read) << row.rule;
}

TEST(OptionValues, ACountIsDigitsAndFitsItsBox) {
  expectReasons(kCounts, kPoint, false);
  expectReasons(kCounts, kComma, true);
}

struct QuotedRow {
  const char* rule;
  std::string_view text;
  const char* error;
};

using namespace std::string_view_literals;

// clang-format off
constexpr QuotedRow kQuoted[] = {
    {"a NUL byte does not end it",        "1\0x"sv,    "opening: \"1 x\" is no number"},
    {"nor do other signs of control",     "1\n\x1B\x7F"sv, "opening: \"1   \" is no number"},
    {"nor those beyond ASCII",            "1\xC2\x9Bx"sv, "opening: \"1 x\" is no number"},
    {"what is no UTF-8 is marked",        "1\xFFx"sv,  "opening: \"1\uFFFDx\" is no number"},
    {"characters stay whole",             "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxéxx"sv,
     "opening: \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxé...\" is no number"},
};
// clang-format on

TEST(OptionValues, AReasonIsOnePrintableLine) {
  for (const QuotedRow& row : kQuoted) {
    try {
      static_cast<void>(readValue(optionOf("opening"), row.text, kPoint, false));
      ADD_FAILURE() << row.rule;
    } catch (const OptionError& error) {
      EXPECT_STREQ(error.what(), row.error) << row.rule;
    }
  }
  try {
    static_cast<void>(siteOf("u\0s"sv));
    ADD_FAILURE() << "no site";
  } catch (const OptionError& error) {
    EXPECT_STREQ(error.what(), "\"u s\" is none of us, uk, ca, de");
  }
}

}  // namespace
