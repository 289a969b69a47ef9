#include "dutch_auction.h"

#include <gtest/gtest.h>

#include "amount_errors.h"
#include "test_locales.h"

/// \file
/// Insertion fee of several items, worked out by hand from the schedule, and what the calculator asks.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

constexpr const char* kNoFeeToDouble = "(conversion error)";

std::string listingFee(const NumberLocale& locale, std::int32_t siteNumber, std::string_view price,
                       std::int16_t itemsOffered, bool isTwoCategories) {
  CAuctionSite site;
  site.Site(siteNumber);
  CDutchAuction calculator(locale);
  calculator.Site(site);
  try {
    return calculator.InsertionFee(price, itemsOffered, isTwoCategories);
  } catch (const ConversionError&) {
    return kNoFeeToDouble;
  }
}

struct ListingRow {
  const char* rule;
  std::int32_t site;
  const char* price;
  std::int16_t itemsOffered;
  const char* fee;
  const char* feeInTwoCategories;
};

// clang-format off
const ListingRow kListings[] = {
  //                                                            price  x count        one        two categories
  {"several items are one value on the ladder",        US,      "0.50",    10,    " 0.35",   " 0.7"},
  {"two items on the first step",                      US,      "0.40",    2,     " 0.3",    " 0.6"},
  {"doubling is done on the fee read back",            US,      "4.00",    1,     " 0.35",   " 0.7"},
  {"a price of nothing has no fee",                    US,      "0",       10,    "",        kNoFeeToDouble},
  {"no items have no fee",                             US,      "5.00",    0,     "",        kNoFeeToDouble},
  {"a negative price has no fee",                      US,      "-5.00",   2,     "",        kNoFeeToDouble},
  {"a negative count has no fee",                      US,      "5.00",    -1,    "",        kNoFeeToDouble},
  {"a negative count at a negative price is a value",  US,      "-5.00",   -2,    " 0.6",    " 1.2"},
  {"below one cent in all has no fee",                 US,      "0.003",   3,     "",        kNoFeeToDouble},
  {"one cent in all is on the first step",             US,      "0.005",   2,     " 0.3",    " 0.6"},
  {"the largest count",                                US,      "0.01",    32767, " 3.6",    " 7.2"},
  {"the largest count at a small price",               US,      "0.0001",  32767, " 0.35",   " 0.7"},
  {"the dearest price",                                US,      "1e30",    1,     " 4.8",    " 9.6"},
  {"the dearest price, the largest count",             US,      "1e30",    32767, " 4.8",    " 9.6"},

  {"US: 0.27 x 37 is 9.99, no gap",                    US,      "0.27",    37,    " 0.35",   " 0.7"},
  {"US: 0.09 x 111 is 9.99, no gap",                   US,      "0.09",    111,   " 0.35",   " 0.7"},
  {"US: 1.19 x 21 is 24.99, no gap",                   US,      "1.19",    21,    " 0.6",    " 1.2"},
  {"US: 33.33 x 3 is 99.99",                           US,      "33.33",   3,     " 2.4",    " 4.8"},
  {"UK: 33.33 x 3 is 99.99, the fifth step",           UK,      "33.33",   3,     " 1.5",    " 3"},
  {"Germany: 0.27 x 37 is 9.99, no gap",               Germany, "0.27",    37,    " 0.45",   " 0.9"},
  {"Germany: 0.09 x 111 is 9.99, no gap",              Germany, "0.09",    111,   " 0.45",   " 0.9"},
  {"Germany: 1.19 x 21 is 24.99, no gap",              Germany, "1.19",    21,    " 0.8",    " 1.6"},
  {"Germany: 33.33 x 3 is 99.99, no gap",              Germany, "33.33",   3,     " 1.6",    " 3.2"},

  {"US: in the gap above the first bound",             US,      "0.3333",  3,     "",        kNoFeeToDouble},
  {"US: in the gap above the second bound",            US,      "1.999",   5,     "",        kNoFeeToDouble},
  {"US: in the gap above the third bound",             US,      "12.4975", 2,     "",        kNoFeeToDouble},
  {"US: in the gap above the fourth bound",            US,      "24.9975", 2,     "",        kNoFeeToDouble},
  {"US: in the gap above the fifth bound",             US,      "99.9975", 2,     "",        kNoFeeToDouble},
  {"US: the sixth bound has no gap above it",          US,      "249.9975", 2,    " 4.8",    " 9.6"},
  {"US: at the first bound",                           US,      "0.33",    3,     " 0.3",    " 0.6"},
  {"US: one cent above the first bound",               US,      "0.50",    2,     " 0.35",   " 0.7"},
  {"US: at the second bound",                          US,      "3.33",    3,     " 0.35",   " 0.7"},
  {"US: one cent above the second bound",              US,      "5.00",    2,     " 0.6",    " 1.2"},
  {"US: at the third bound",                           US,      "8.33",    3,     " 0.6",    " 1.2"},
  {"US: one cent above the third bound",               US,      "5.00",    5,     " 1.2",    " 2.4"},
  {"US: at the fourth bound",                          US,      "49.99",   1,     " 1.2",    " 2.4"},
  {"US: one cent above the fourth bound",              US,      "5.00",    10,    " 2.4",    " 4.8"},
  {"US: at the fifth bound",                           US,      "28.57",   7,     " 2.4",    " 4.8"},
  {"US: one cent above the fifth bound",               US,      "20.00",   10,    " 3.6",    " 7.2"},
  {"US: at the sixth bound",                           US,      "499.99",  1,     " 3.6",    " 7.2"},
  {"US: one cent above the sixth bound",               US,      "50.00",   10,    " 4.8",    " 9.6"},

  {"UK: in the gap above the first bound",             UK,      "0.3333",  3,     "",        kNoFeeToDouble},
  {"UK: at the first bound",                           UK,      "0.33",    3,     " 0.15",   " 0.3"},
  {"UK: one penny above the first bound",              UK,      "0.50",    2,     " 0.2",    " 0.4"},
  {"UK: at the second bound",                          UK,      "4.99",    1,     " 0.2",    " 0.4"},
  {"UK: one penny above the second bound",             UK,      "2.50",    2,     " 0.35",   " 0.7"},
  {"UK: at the third bound",                           UK,      "14.99",   1,     " 0.35",   " 0.7"},
  {"UK: one penny above the third bound",              UK,      "5.00",    3,     " 0.75",   " 1.5"},
  {"UK: at the fourth bound",                          UK,      "29.99",   1,     " 0.75",   " 1.5"},
  {"UK: one penny above the fourth bound",             UK,      "10.00",   3,     " 1.5",    " 3"},
  {"UK: the repeated bound has no gap above it",       UK,      "49.9975", 2,     " 2",      " 4"},
  {"UK: one penny above the repeated bound",           UK,      "10.00",   10,    " 2",      " 4"},

  {"Canada: in the gap above the first bound",         Canada,  "0.3333",  3,     "",        kNoFeeToDouble},
  {"Canada: at the first bound",                       Canada,  "0.33",    3,     " 0.35",   " 0.7"},
  {"Canada: one cent above the first bound",           Canada,  "0.50",    2,     " 0.45",   " 0.9"},
  {"Canada: at the second bound",                      Canada,  "14.99",   1,     " 0.45",   " 0.9"},
  {"Canada: one cent above the second bound",          Canada,  "5.00",    3,     " 0.85",   " 1.7"},
  {"Canada: at the third bound",                       Canada,  "34.99",   1,     " 0.85",   " 1.7"},
  {"Canada: one cent above the third bound",           Canada,  "7.00",    5,     " 1.65",   " 3.3"},
  {"Canada: at the fourth bound",                      Canada,  "23.33",   3,     " 1.65",   " 3.3"},
  {"Canada: one cent above the fourth bound",          Canada,  "7.00",    10,    " 3.3",    " 6.6"},
  {"Canada: at the fifth bound",                       Canada,  "299.99",  1,     " 3.3",    " 6.6"},
  {"Canada: one cent above the fifth bound",           Canada,  "30.00",   10,    " 5.15",   " 10.3"},
  {"Canada: at the sixth bound",                       Canada,  "233.33",  3,     " 5.15",   " 10.3"},
  {"Canada: one cent above the sixth bound",           Canada,  "70.00",   10,    " 6.75",   " 13.5"},

  {"Germany: no bound at 0.99",                        Germany, "0.3333",  3,     " 0.25",   " 0.5"},
  {"Germany: in the gap above the first bound",        Germany, "0.399",   5,     "",        kNoFeeToDouble},
  {"Germany: at the first bound",                      Germany, "1.99",    1,     " 0.25",   " 0.5"},
  {"Germany: one cent above the first bound",          Germany, "1.00",    2,     " 0.45",   " 0.9"},
  {"Germany: one cent above the second bound",         Germany, "5.00",    2,     " 0.8",    " 1.6"},
  {"Germany: one cent above the third bound",          Germany, "5.00",    5,     " 1.6",    " 3.2"},
  {"Germany: one cent above the fourth bound",         Germany, "10.00",   10,    " 3.2",    " 6.4"},
  {"Germany: at the repeated bound",                   Germany, "83.33",   3,     " 3.2",    " 6.4"},
  {"Germany: one cent above the repeated bound",       Germany, "25.00",   10,    " 4.8",    " 9.6"},

  {"an unknown site has a top step that is free",      5,       "10.00",   3,     " 0",      " 0"},
};

// clang-format on

TEST(DutchInsertionFee, FollowsThePriceLadderForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const ListingRow& row : kListings) {
      SCOPED_TRACE(row.rule);
      const std::string price = asWrittenIn(locale.signs, row.price);
      EXPECT_EQ(listingFee(locale.signs, row.site, price, row.itemsOffered, false),
                asWrittenIn(locale.signs, row.fee));
      EXPECT_EQ(listingFee(locale.signs, row.site, price, row.itemsOffered, true),
                asWrittenIn(locale.signs, row.feeInTwoCategories));
    }
  }
}

TEST(DutchInsertionFee, OfATextThatIsNoNumberIsAnError) {
  CAuctionSite site;
  site.Site(US);
  CDutchAuction calculator(enUS());
  calculator.Site(site);
  for (const bool isTwoCategories : {false, true}) {
    for (const char* text : {"", "abc", ".", " ", "--5", "1d3"}) {
      SCOPED_TRACE(text);
      try {
        static_cast<void>(calculator.InsertionFee(text, 1, isTwoCategories));
        ADD_FAILURE() << "no error";
      } catch (const ConversionError& error) {
        EXPECT_EQ(error.offendingText(), text);
      }
    }
  }
}

TEST(DutchInsertionFee, OfAValueBeyondASingleIsAnError) {
  EXPECT_THROW(listingFee(enUS(), US, "1e400", 1, false), OverflowError);
  EXPECT_THROW(listingFee(enUS(), US, "1e39", 1, false), OverflowError);
  EXPECT_EQ(listingFee(enUS(), US, "1e38", 1, false), " 4.8");
  EXPECT_THROW(listingFee(enUS(), US, "1e38", 10, false), OverflowError);
}

TEST(DutchAuction, FollowsTheSiteOfItsSchedule) {
  CAuctionSite site;
  CDutchAuction calculator(enUS());
  calculator.Site(site);
  site.Site(US);
  EXPECT_EQ(calculator.InsertionFee("1.00", 5, false), " 0.35");
  EXPECT_EQ(calculator.FVF("100.00", "2"), "6.75");
  site.Site(Germany);
  EXPECT_EQ(calculator.InsertionFee("1.00", 5, false), " 0.45");
  EXPECT_EQ(calculator.FVF("100.00", "2"), "9.00");
}

TEST(DutchAuction, WithoutAScheduleChargesNothing) {
  const CDutchAuction calculator(enUS());
  EXPECT_EQ(calculator.InsertionFee("10", 3, true), " 0");
  EXPECT_EQ(calculator.FVF("10", "3"), "0.00");
}

}  // namespace
