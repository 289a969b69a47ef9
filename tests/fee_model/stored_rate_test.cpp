#include "stored_rate.h"

#include <gtest/gtest.h>

#include "amount_text.h"
#include "test_locales.h"

namespace {

struct RateRow {
  const char* rule;
  NumberLocale signs;
  const char* shown;
  const char* stored;
};

// clang-format off
const RateRow kShownAndStored[] = {
    {"the user's comma becomes a point",              deDE(), "1,317",   "1.317"},
    {"with four decimals",                            deDE(), "0,5305",  "0.5305"},
    {"with one",                                      deDE(), "0,5",     "0.5"},
    {"a whole number stays",                          deDE(), "2",       "2"},
    {"group signs go",                                deDE(), "1.234,5", "1234.5"},
    {"a point of thousands goes: it is read as such", deDE(), "1.317",   "1317"},
    {"a point from the keypad is a decimal one",      deDE(), "1.45",    "1.45"},
    {"zeros behind it stay",                          deDE(), "1,450",   "1.450"},
    {"a French comma",                                frFR(), "0,7854",  "0.7854"},
    {"a French group sign goes",                      frFR(), "1\u202F234,5", "1234.5"},
    {"a Swiss rate has its point",                    deCH(), "1.317",   "1.317"},
    {"a Swiss group sign goes",                       deCH(), "1\u2019" "234.5", "1234.5"},
    {"an American rate is stored as typed",           enUS(), "1.450",   "1.450"},
    {"an American comma is of thousands",             enUS(), "1,317",   "1317"},
    {"a negative rate",                               deDE(), "-1,5",    "-1.5"},
    {"no number is stored as it stands",              deDE(), "a,b",     "a,b"},
    {"nothing is nothing",                            deDE(), "",        ""},
};
// clang-format on

TEST(StoredRate, HasAPointWhoeverStoresIt) {
  for (const RateRow& row : kShownAndStored)
    EXPECT_EQ(rateToStore(row.shown, row.signs), row.stored) << row.rule;
}

TEST(StoredRate, IsTheNumberThatTheUserRead) {
  for (const RateRow& row : kShownAndStored) {
    if (!isNumeric(row.shown, row.signs)) continue;
    EXPECT_EQ(toDouble(row.stored, enUS()), toDouble(row.shown, row.signs)) << row.rule;
    EXPECT_EQ(toDouble(rateFromStore(row.stored, row.signs), row.signs), toDouble(row.shown, row.signs))
        << row.rule;
  }
}

// clang-format off
const RateRow kRestored[] = {
    {"a point becomes the user's comma",              deDE(), "1,317",   "1.317"},
    {"it is never a thousand",                        frFR(), "1,317",   "1.317"},
    {"a point stays where it is the user's",          enUS(), "1.317",   "1.317"},
    {"a Swiss point stays",                           deCH(), "0.5305",  "0.5305"},
    {"an older German store",                         deDE(), "0,78",    "0,78"},
    {"an older German store on an American desktop",  enUS(), "0.78",    "0,78"},
    {"with three decimals as well",                   enUS(), "1.317",   "1,317"},
    {"of both signs the last is the decimal one",     enUS(), "1234.5",  "1.234,5"},
    {"whichever that is",                             deDE(), "1234,5",  "1,234.5"},
    {"a whole number stays",                          deDE(), "2",       "2"},
    {"no number comes back as it stands",             deDE(), "1.2.3",   "1.2.3"},
    {"a currency that is not understood, too",        deDE(), "x 1.5",   "x 1.5"},
    {"nothing is nothing",                            deDE(), "",        ""},
};
// clang-format on

TEST(StoredRate, ComesBackInTheUsersSigns) {
  for (const RateRow& row : kRestored) EXPECT_EQ(rateFromStore(row.stored, row.signs), row.shown) << row.rule;
}

}  // namespace
