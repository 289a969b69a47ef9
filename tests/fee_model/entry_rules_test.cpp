#include "entry_rules.h"

#include <gtest/gtest.h>

#include "test_locales.h"

namespace {

constexpr KeyVerdict Pass = KeyVerdict::Pass;
constexpr KeyVerdict Swallow = KeyVerdict::Swallow;
constexpr KeyVerdict AfterPoint = KeyVerdict::PassAfterPoint;

struct KeyRow {
  const char* rule;
  char32_t key;
  const char* text;
  bool isWholeTextSelected;
  KeyVerdict money;
  KeyVerdict count;
};

// clang-format off
const KeyRow kKeys[] = {
  // rule                                                       key     in box    selected  money       count
  {"a digit begins a number",                                   U'1',   "",       true,     Pass,       Pass},
  {"a digit continues a number",                                U'1',   "5",      false,    Pass,       Pass},
  {"a digit replaces a selected number",                        U'1',   "5",      true,     Pass,       Pass},
  {"backspace goes through",                                    8,      "5",      false,    Pass,       Pass},
  {"backspace goes through in an empty box",                    8,      "",       true,     Pass,       Pass},
  {"copy goes through in money boxes only",                     3,      "5",      false,    Pass,       Swallow},
  {"copy of the selected text",                                 3,      "5",      true,     Pass,       Swallow},
  {"paste goes through in money boxes only",                    22,     "5",      false,    Pass,       Swallow},
  {"paste over the selected text",                              22,     "5",      true,     Pass,       Swallow},
  {"minus is swallowed",                                        U'-',   "5",      false,    Swallow,    Swallow},
  {"minus is swallowed in an empty box",                        U'-',   "",       true,     Swallow,    Swallow},
  {"minus is swallowed over the selected text",                 U'-',   "5",      true,     Swallow,    Swallow},
  {"a plus behind a number makes a number",                     U'+',   "5",      false,    Pass,       Pass},
  {"a lone decimal point begins an amount",                     U'.',   "",       false,    Pass,       Swallow},
  {"a lone decimal point, nothing counts as all selected",      U'.',   "",       true,     Pass,       Swallow},
  {"a decimal point behind digits",                             U'.',   "1",      false,    Pass,       Swallow},
  {"a second decimal point is swallowed",                       U'.',   "1.5",    false,    Swallow,    Swallow},
  {"a second decimal point behind a point is swallowed",        U'.',   ".",      false,    Swallow,    Swallow},
  {"a decimal point over the selected text",                    U'.',   "1.5",    true,     Pass,       Swallow},
  {"a group sign is a comma here",                              U',',   "1",      false,    Pass,       Swallow},
  {"a comma behind decimals is swallowed",                      U',',   "1.5",    false,    Swallow,    Swallow},
  {"a comma over the selected text goes through in money boxes", U',',  "1.5",    true,     Pass,       Swallow},
  {"a letter is swallowed",                                     U'a',   "5",      false,    Swallow,    Swallow},
  {"a letter replaces the selected text in money boxes",        U'a',   "5",      true,     Pass,       Swallow},
  {"a letter goes into an empty money box",                     U'a',   "",       true,     Pass,       Swallow},
  {"the letter n is swallowed like any other",                  U'n',   "5",      false,    Swallow,    Swallow},
  {"the letter n over the selected text puts a point first",    U'n',   "5",      true,     AfterPoint, Swallow},
  {"the letter n in an empty box puts a point first",           U'n',   "",       true,     AfterPoint, Swallow},
  {"the capital letter N is like any other",                    U'N',   "5",      true,     Pass,       Swallow},
  {"an exponent has no digit yet",                              U'e',   "5",      false,    Swallow,    Swallow},
  {"a digit behind a lone point",                               U'5',   ".",      false,    Pass,       Pass},
  {"a digit behind text that is no number",                     U'5',   "x",      false,    Swallow,    Swallow},
  {"the key is judged behind the text, wherever the caret is",  U'$',   "5",      false,    Pass,       Pass},
  {"a second currency sign is swallowed",                       U'$',   "$5",     false,    Swallow,    Swallow},
  {"a character of two bytes is swallowed",                     U'£',   "5",      false,    Swallow,    Swallow},
  {"an Arabic-Indic digit is swallowed",                        U'٣',   "5",      false,    Swallow,    Swallow},
  {"a full-width digit is swallowed",                           U'５',  "5",      false,    Swallow,    Swallow},
  {"an emoji is swallowed",                                     U'😀',  "5",      false,    Swallow,    Swallow},
  {"an emoji replaces the selected text in money boxes",        U'😀',  "5",      true,     Pass,       Swallow},
  {"an emoji is swallowed in a box with ten digits",            U'😀',  "1234567890", false, Swallow,   Swallow},
};

struct LocalKeyRow {
  const char* rule;
  char32_t key;
  const char* text;
  std::array<KeyVerdict, 4> money;  ///< en-US, de-DE, de-CH, fr-FR
};

const LocalKeyRow kLocalKeys[] = {
  // rule                                               key        in box     en-US    de-DE    de-CH    fr-FR
  {"a point begins an amount for every user",           U'.',      "",       {Pass,    Pass,    Pass,    Pass}},
  {"a comma begins an amount where it is decimal",      U',',      "",       {Swallow, Pass,    Swallow, Pass}},
  {"a comma behind a digit divides or groups",          U',',      "1",      {Pass,    Pass,    Swallow, Pass}},
  {"a second comma",                                    U',',      "1,5",    {Pass,    Swallow, Swallow, Swallow}},
  {"a point from the keypad divides for every user",    U'.',      "1",      {Pass,    Pass,    Pass,    Pass}},
  {"a digit behind a keypad point",                     U'5',      "1.",     {Pass,    Pass,    Pass,    Pass}},
  {"an apostrophe groups in Switzerland",               U'\'',     "1",      {Swallow, Swallow, Pass,    Swallow}},
  {"a typographic apostrophe groups in Switzerland",    U'\u2019', "1",      {Swallow, Swallow, Pass,    Swallow}},
  {"a euro sign where it is the currency",              U'€',      "5",      {Swallow, Pass,    Swallow, Pass}},
  {"a dollar sign for every user",                      U'$',      "5",      {Pass,    Pass,    Pass,    Pass}},
};

struct StandingRow {
  const char* rule;
  const char* text;
  std::array<bool, 4> mayStand;  ///< en-US, de-DE, de-CH, fr-FR
};

const StandingRow kStanding[] = {
  // rule                                               text           en-US  de-DE  de-CH  fr-FR
  {"a number may stand",                                "12",         {true,  true,  true,  true}},
  {"a negative number is a number",                     "-12",        {true,  true,  true,  true}},
  {"a fixed amount with a dollar sign may stand",       "$0.01",      {true,  true,  true,  true}},
  {"a number too large for its type may stand",         "1e400",      {true,  true,  true,  true}},
  {"a lone point may stand",                            ".",          {true,  true,  true,  true}},
  {"a lone comma may stand where it is decimal",        ",",          {false, true,  false, true}},
  {"an empty text is replaced by itself",               "",           {false, false, false, false}},
  {"a letter may not stand",                            "a",          {false, false, false, false}},
  {"a lone minus may not stand",                        "-",          {false, false, false, false}},
  {"a lone currency sign may not stand",                "$",          {false, false, false, false}},
  {"two signs may not stand",                           "--5",        {false, false, false, false}},
  {"a point behind a blank may not stand",              " .",         {false, false, false, false}},
  {"two points may not stand",                          "..",         {false, false, false, false}},
  {"a tab may not stand",                               "\t",         {false, false, false, false}},
  {"Arabic-Indic digits may not stand",                 "٣٤٥",        {false, false, false, false}},
  {"an emoji may not stand",                            "😀",         {false, false, false, false}},
};

struct JudgedRow {
  const char* rule;
  const char* text;  ///< written with points
  bool expected;
};

const JudgedRow kNegative[] = {
  {"a number below zero",                               "-5",         true},
  {"a trailing minus",                                  "5-",         true},
  {"parentheses",                                       "(5)",        true},
  {"a fraction below zero",                             "-0.01",      true},
  {"a currency amount below zero",                      "-$0.01",     true},
  {"a number too large to hold, below zero",            "-1e400",     true},
  {"zero",                                              "0",          false},
  {"minus zero is not below zero",                      "-0",         false},
  {"a number above zero",                               "5",          false},
  {"an empty text",                                     "",           false},
  {"a lone point",                                      ".",          false},
  {"a text that is no number",                          "-abc",       false},
  {"two signs",                                         "--5",        false},
};

const JudgedRow kBelowGermanMinimum[] = {
  {"zero",                                              "0",          true},
  {"a half",                                            "0.5",        true},
  {"one cent below",                                    "0.99",       true},
  {"a currency amount below",                           "$0.01",      true},
  {"exactly one",                                       "1",          false},
  {"one with decimals",                                 "1.00",       false},
  {"above one",                                         "1.01",       false},
  {"in single precision it is one",                     "0.99999999", false},
  {"in single precision it is still below one",         "0.9999999",  true},
  {"a number too large to hold",                        "1e400",      false},
  {"a negative number is cleared instead",              "-0.5",       false},
  {"an empty text",                                     "",           false},
  {"a lone point",                                      ".",          false},
  {"a text that is no number",                          "abc",        false},
};
// clang-format on

template <std::size_t count, typename Judge>
void expectJudged(const JudgedRow (&rows)[count], Judge judge) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const JudgedRow& row : rows) {
      SCOPED_TRACE(row.rule);
      EXPECT_EQ(judge(asWrittenIn(locale.signs, row.text), locale.signs), row.expected);
    }
  }
}

TEST(KeyFilter, OfMoneyBoxes) {
  for (const KeyRow& row : kKeys) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(judgeKey(EntryKind::Money, row.key, row.text, row.isWholeTextSelected, enUS()), row.money);
  }
}

TEST(KeyFilter, OfCountBoxes) {
  for (const KeyRow& row : kKeys) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(judgeKey(EntryKind::Count, row.key, row.text, row.isWholeTextSelected, enUS()), row.count);
  }
}

TEST(KeyFilter, KnowsTheUsersSigns) {
  for (const LocalKeyRow& row : kLocalKeys) {
    SCOPED_TRACE(row.rule);
    for (std::size_t i = 0; i < kTestLocales.size(); ++i) {
      SCOPED_TRACE(kTestLocales[i].name);
      EXPECT_EQ(judgeKey(EntryKind::Money, row.key, row.text, false, kTestLocales[i].signs), row.money[i]);
    }
  }
}

TEST(KeyFilter, OfCountBoxesBarsMinusPointAndCommaForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const char32_t key : {U'-', U'.', U','}) {
      for (const char* text : {"", "5", "12"}) {
        EXPECT_EQ(judgeKey(EntryKind::Count, key, text, true, locale.signs), Swallow);
        EXPECT_EQ(judgeKey(EntryKind::Count, key, text, false, locale.signs), Swallow);
      }
    }
    EXPECT_EQ(judgeKey(EntryKind::Count, U'7', "12", false, locale.signs), Pass);
  }
}

TEST(ChangedText, MayStandIfItIsANumberOrBeginsOne) {
  for (const StandingRow& row : kStanding) {
    SCOPED_TRACE(row.rule);
    for (std::size_t i = 0; i < kTestLocales.size(); ++i) {
      EXPECT_EQ(mayStand(row.text, kTestLocales[i].signs), row.mayStand[i]) << kTestLocales[i].name;
    }
  }
}

TEST(ChangedText, OfTenThousandDigitsMayStand) {
  EXPECT_TRUE(mayStand(std::string(10000, '9'), enUS()));
  EXPECT_FALSE(mayStand(std::string(10000, '9') + "x", enUS()));
}

TEST(ChangedText, ALoneDecimalSymbolIsThePointOrTheUsersOwn) {
  EXPECT_TRUE(isLoneDecimalSymbol(".", enUS()));
  EXPECT_FALSE(isLoneDecimalSymbol(",", enUS()));
  EXPECT_TRUE(isLoneDecimalSymbol(".", deDE()));
  EXPECT_TRUE(isLoneDecimalSymbol(",", deDE()));
  EXPECT_FALSE(isLoneDecimalSymbol("", deDE()));
  EXPECT_FALSE(isLoneDecimalSymbol("1,", deDE()));
  EXPECT_FALSE(isLoneDecimalSymbol("..", enUS()));
}

TEST(ChangedText, IsNegativeIfItIsANumberBelowZero) { expectJudged(kNegative, isNegative); }

TEST(GermanMinimum, IsAskedInSinglePrecision) { expectJudged(kBelowGermanMinimum, isBelowGermanMinimum); }

TEST(GermanMinimum, CarriesTheUsersDecimalSymbol) {
  EXPECT_EQ(germanMinimum(enUS()), "1.00");
  EXPECT_EQ(germanMinimum(deDE()), "1,00");
  EXPECT_EQ(germanMinimum(deCH()), "1.00");
  EXPECT_EQ(germanMinimum(frFR()), "1,00");
}

TEST(GermanMinimum, IsNotBelowItself) {
  for (const NamedLocale& locale : kTestLocales) {
    EXPECT_FALSE(isBelowGermanMinimum(germanMinimum(locale.signs), locale.signs)) << locale.name;
  }
}

}  // namespace
