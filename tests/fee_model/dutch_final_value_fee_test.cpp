#include <gtest/gtest.h>

#include <array>

#include "amount_errors.h"
#include "amount_text.h"
#include "dutch_auction.h"
#include "test_locales.h"

/// \file
/// Final value fee of several items, worked out by hand from the schedule.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

std::string saleFee(const NumberLocale& locale, std::int32_t siteNumber, std::string_view lowestBid,
                    std::string_view itemsSold) {
  CAuctionSite site;
  site.Site(siteNumber);
  CDutchAuction calculator(locale);
  calculator.Site(site);
  return calculator.FVF(lowestBid, itemsSold);
}

// clang-format off
struct SaleRow {
  const char* rule;
  std::int32_t site;
  const char* lowestBid;
  double exact;  ///< for one item, worked out on paper, before any rounding
  std::array<const char*, 4> shown;  ///< for 1, 2, 3 and 10 items sold
};

constexpr std::array<const char*, 4> kItemsSold{"1", "2", "3", "10"};

// The fee of one item is stored in single precision before it is multiplied; the product is not. Where the
// single lies below a half cent on paper, few items show one cent less than on paper, and many may not.
const SaleRow kSales[] = {
  // US: 5.25 % up to 25, 2.75 % up to 1000, 1.5 % above.
  {"US: no bid",                                      US,      "",         0.0,         {"0.00", "0.00", "0.00", "0.00"}},
  {"US: a bid of nothing",                            US,      "0",        0.0,         {"0.00", "0.00", "0.00", "0.00"}},
  {"US: the single of 0.105 is 0.10499999672",        US,      "2.00",     0.105,       {"0.10", "0.21", "0.31", "1.05"}},
  {"US: the single of 0.315 is 0.31499999762",        US,      "6.00",     0.315,       {"0.31", "0.63", "0.94", "3.15"}},
  {"US: the single of 0.525 is 0.52499997616",        US,      "10.00",    0.525,       {"0.52", "1.05", "1.57", "5.25"}},
  {"US: the single of 8.435 is 8.43499946594",        US,      "284.00",   8.435,       {"8.43", "16.87", "25.30", "84.35"}},
  {"US: one cent below the end of the first tier",    US,      "24.99",    1.311975,    {"1.31", "2.62", "3.94", "13.12"}},
  {"US: the end of the first tier",                   US,      "25.00",    1.3125,      {"1.31", "2.63", "3.94", "13.13"}},
  {"US: the second tier begins",                      US,      "25.01",    1.312775,    {"1.31", "2.63", "3.94", "13.13"}},
  {"US: one cent inside the second tier",             US,      "25.02",    1.31305,     {"1.31", "2.63", "3.94", "13.13"}},
  {"US: one cent below the third tier",               US,      "999.99",   28.124725,   {"28.12", "56.25", "84.37", "281.25"}},
  {"US: the end of the second tier",                  US,      "1000.00",  28.125,      {"28.13", "56.25", "84.38", "281.25"}},
  {"US: one cent inside the third tier",              US,      "1000.01",  28.12515,    {"28.13", "56.25", "84.38", "281.25"}},
  {"US: far inside the third tier",                   US,      "100000",   1513.125,    {"1513.13", "3026.25", "4539.38", "15131.25"}},

  // UK: 5.25 % up to 30, 3.25 % up to 600, 1.75 % above; the single of 1.575 is 1.57499992847.
  {"UK: one penny below the end of the first tier",   UK,      "29.99",    1.574475,    {"1.57", "3.15", "4.72", "15.74"}},
  {"UK: the end of the first tier",                   UK,      "30.00",    1.575,       {"1.57", "3.15", "4.72", "15.75"}},
  {"UK: the second tier begins",                      UK,      "30.01",    1.575325,    {"1.58", "3.15", "4.73", "15.75"}},
  {"UK: one penny inside the second tier",            UK,      "30.02",    1.57565,     {"1.58", "3.15", "4.73", "15.76"}},
  {"UK: one penny below the third tier",              UK,      "599.99",   20.099675,   {"20.10", "40.20", "60.30", "201.00"}},
  {"UK: the end of the second tier",                  UK,      "600.00",   20.1,        {"20.10", "40.20", "60.30", "201.00"}},
  {"UK: one penny inside the third tier",             UK,      "600.01",   20.100175,   {"20.10", "40.20", "60.30", "201.00"}},
  {"UK: far inside the third tier",                   UK,      "100000",   1759.6,      {"1759.60", "3519.20", "5278.80", "17596.00"}},

  // Canada: 5.25 % up to 35, 2.75 % up to 1450, 1.5 % above; the single of 1.8375 is 1.83749997616.
  {"Canada: one cent below the end of the first tier",Canada,  "34.99",    1.836975,    {"1.84", "3.67", "5.51", "18.37"}},
  {"Canada: the end of the first tier",               Canada,  "35.00",    1.8375,      {"1.84", "3.67", "5.51", "18.37"}},
  {"Canada: the second tier begins",                  Canada,  "35.01",    1.837775,    {"1.84", "3.68", "5.51", "18.38"}},
  {"Canada: one cent inside the second tier",         Canada,  "35.02",    1.83805,     {"1.84", "3.68", "5.51", "18.38"}},
  {"Canada: one cent below the third tier",           Canada,  "1449.99",  40.749725,   {"40.75", "81.50", "122.25", "407.50"}},
  {"Canada: the end of the second tier",              Canada,  "1450.00",  40.75,       {"40.75", "81.50", "122.25", "407.50"}},
  {"Canada: one cent inside the third tier",          Canada,  "1450.01",  40.75015,    {"40.75", "81.50", "122.25", "407.50"}},
  {"Canada: far inside the third tier",               Canada,  "100000",   1519,        {"1519.00", "3038.00", "4557.00", "15190.00"}},

  // Germany: 5 % up to 50, 4 % up to 500, 2 % above.
  {"Germany: the single of 0.865 is 0.86499994993",   Germany, "17.30",    0.865,       {"0.86", "1.73", "2.59", "8.65"}},
  {"Germany: one cent below the end of the first tier",Germany, "49.99",    2.4995,      {"2.50", "5.00", "7.50", "25.00"}},
  {"Germany: the end of the first tier",              Germany, "50.00",    2.5,         {"2.50", "5.00", "7.50", "25.00"}},
  {"Germany: the second tier begins",                 Germany, "50.01",    2.5004,      {"2.50", "5.00", "7.50", "25.00"}},
  {"Germany: one cent inside the second tier",        Germany, "50.02",    2.5008,      {"2.50", "5.00", "7.50", "25.01"}},
  {"Germany: one cent below the third tier",          Germany, "499.99",   20.4996,     {"20.50", "41.00", "61.50", "205.00"}},
  {"Germany: the end of the second tier",             Germany, "500.00",   20.5,        {"20.50", "41.00", "61.50", "205.00"}},
  {"Germany: one cent inside the third tier",         Germany, "500.01",   20.5002,     {"20.50", "41.00", "61.50", "205.00"}},
  {"Germany: far inside the third tier",              Germany, "100000",   2010.5,      {"2010.50", "4021.00", "6031.50", "20105.00"}},

  {"an unknown site charges nothing",                 0,       "1000",     0.0,         {"0.00", "0.00", "0.00", "0.00"}},
};
// clang-format on

TEST(DutchFinalValueFee, FollowsTheThreeTiersForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const SaleRow& row : kSales) {
      SCOPED_TRACE(row.rule);
      for (std::size_t i = 0; i < kItemsSold.size(); ++i) {
        EXPECT_EQ(saleFee(locale.signs, row.site, asWrittenIn(locale.signs, row.lowestBid), kItemsSold[i]),
                  asWrittenIn(locale.signs, row.shown[i]))
            << kItemsSold[i] << " sold";
      }
    }
  }
}

TEST(DutchFinalValueFee, OfTenThousandItemsIsTenThousandTimesTheFeeOnPaper) {
  for (const SaleRow& row : kSales) {
    SCOPED_TRACE(row.rule);
    const double fee = toDouble(saleFee(enUS(), row.site, row.lowestBid, "10000"), enUS());
    EXPECT_NEAR(fee, 10000 * row.exact, 0.006 + 2e-3 * row.exact);
  }
}

TEST(DutchFinalValueFee, MultipliesTheSingleByTheCount) {
  EXPECT_EQ(saleFee(enUS(), US, "2.00", "5"), "0.52");
  EXPECT_EQ(saleFee(enUS(), US, "5.00", "4"), "1.05");
  // 0.000525 x 32767 is 17.202675 on paper.
  EXPECT_EQ(saleFee(enUS(), US, "0.01", "32767"), "17.20");
}

TEST(DutchFinalValueFee, OfNoItemsIsNothing) {
  EXPECT_EQ(saleFee(enUS(), US, "10.00", ""), "0.00");
  EXPECT_EQ(saleFee(enUS(), US, "10.00", "0"), "0.00");
  EXPECT_EQ(saleFee(enUS(), US, "", ""), "0.00");
}

TEST(DutchFinalValueFee, ReadsTheCountAsAWholeNumber) {
  EXPECT_EQ(saleFee(enUS(), US, "100.00", "05"), "16.88");  // 3.375 x 5
  EXPECT_EQ(saleFee(enUS(), US, "100.00", "2.4"), "6.75");
  EXPECT_EQ(saleFee(enUS(), US, "100.00", "2.6"), "10.13");
}

TEST(DutchFinalValueFee, OfATextThatIsNoNumberIsAnError) {
  for (const char* text : {"abc", ".", " ", "--5", "1d3"}) {
    EXPECT_THROW(saleFee(enUS(), US, text, "3"), ConversionError) << text;
    EXPECT_THROW(saleFee(enUS(), US, "10.00", text), ConversionError) << text;
  }
}

TEST(DutchFinalValueFee, OfTooMuchIsAnError) {
  EXPECT_THROW(saleFee(enUS(), US, "1e39", "3"), OverflowError);
  EXPECT_THROW(saleFee(enUS(), US, "1e400", "3"), OverflowError);
  EXPECT_THROW(saleFee(enUS(), US, "10.00", "32768"), OverflowError);
  EXPECT_THROW(saleFee(enUS(), US, "10.00", "65537"), OverflowError);
  EXPECT_THROW(saleFee(enUS(), US, "10.00", "1e400"), OverflowError);
}

}  // namespace
