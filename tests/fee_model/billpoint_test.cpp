#include <gtest/gtest.h>

#include "amount_errors.h"
#include "payment_service.h"
#include "test_locales.h"

/// \file
/// What Billpoint takes, worked out by hand from the schedule.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

std::string billpointFee(const NumberLocale& locale, std::int32_t siteNumber, std::string_view amount,
                         bool isDiscounted, bool isCard, bool isInternational, std::string_view rate) {
  CAuctionSite site;
  site.Site(siteNumber);
  CPaymentService calculator(locale);
  calculator.Site(site);
  return calculator.BillpointFee(amount, isDiscounted, isCard, isInternational, rate);
}

struct BillpointRow {
  const char* rule;
  std::int32_t site;
  const char* amount;
  const char* rate;
  bool isDiscounted;
  bool isCard;
  const char* fee;
  const char* feeAbroad;
};

// clang-format off
// US: 0.35 up to 15; above it 0.35 and by card 3 % up to 500 (discounted 2.25 % up to 2000), by eCheck 2 %
// (discounted 1.25 %) up to 200. Canada: the same amounts times the rate. UK: 0.25 up to 10; above it 0.25
// and by card 3.8 % (discounted 2.8 %), by eCheck 25 %, up to 350 (discounted 1350). The fee is stored in
// single precision and shows seven digits; abroad 1 % of the amount is added to what it shows.
const BillpointRow kFees[] = {
  //                                                                    amount     rate    discount  card  domestic      abroad
  {"US: card, one cent below the threshold",                 US,      "14.99",   "",     false, true,  " 0.35",     " 0.4999"},
  {"US: card, at the threshold",                             US,      "15",      "",     false, true,  " 0.35",     " 0.5"},
  {"US: card, one cent above the threshold",                 US,      "15.01",   "",     false, true,  " 0.8003",   " 0.9504"},
  {"US: card, one cent below the limit",                     US,      "499.99",  "",     false, true,  " 15.3497",  " 20.3496"},
  {"US: card, at the limit",                                 US,      "500",     "",     false, true,  " 15.35",    " 20.35"},
  {"US: card, one cent above the limit",                     US,      "500.01",  "",     false, true,  "N/A",       "N/A"},
  {"US: card, discounted, one cent below the threshold",     US,      "14.99",   "",     true,  true,  " 0.35",     " 0.4999"},
  {"US: card, discounted, at the threshold",                 US,      "15",      "",     true,  true,  " 0.35",     " 0.5"},
  {"US: card, discounted, one cent above the threshold",     US,      "15.01",   "",     true,  true,  " 0.687725", " 0.837825"},
  {"US: card, discounted, one cent below the limit",         US,      "1999.99", "",     true,  true,  " 45.34978", " 65.34968"},
  {"US: card, discounted, at the limit",                     US,      "2000",    "",     true,  true,  " 45.35",    " 65.35"},
  {"US: card, discounted, one cent above the limit",         US,      "2000.01", "",     true,  true,  "N/A",       "N/A"},
  {"US: eCheck, one cent below the threshold",               US,      "14.99",   "",     false, false, " 0.35",     " 0.4999"},
  {"US: eCheck, at the threshold",                           US,      "15",      "",     false, false, " 0.35",     " 0.5"},
  {"US: eCheck, one cent above the threshold",               US,      "15.01",   "",     false, false, " 0.6502",   " 0.8003"},
  {"US: eCheck, one cent below the limit",                   US,      "199.99",  "",     false, false, " 4.3498",   " 6.3497"},
  {"US: eCheck, at the limit",                               US,      "200",     "",     false, false, " 4.35",     " 6.35"},
  {"US: eCheck, one cent above the limit",                   US,      "200.01",  "",     false, false, "N/A",       "N/A"},
  {"US: eCheck, discounted, one cent below the threshold",   US,      "14.99",   "",     true,  false, " 0.35",     " 0.4999"},
  {"US: eCheck, discounted, at the threshold",               US,      "15",      "",     true,  false, " 0.35",     " 0.5"},
  {"US: eCheck, discounted, one cent above the threshold",   US,      "15.01",   "",     true,  false, " 0.537625", " 0.687725"},
  {"US: eCheck, discounted, one cent below the limit",       US,      "199.99",  "",     true,  false, " 2.849875", " 4.849775"},
  {"US: eCheck, discounted, at the limit",                   US,      "200",     "",     true,  false, " 2.85",     " 4.85"},
  {"US: eCheck, discounted, one cent above the limit",       US,      "200.01",  "",     true,  false, "N/A",       "N/A"},

  {"UK: card, one penny below the threshold",                UK,      "9.99",    "",     false, true,  " 0.25",     " 0.3499"},
  {"UK: card, at the threshold",                             UK,      "10",      "",     false, true,  " 0.25",     " 0.35"},
  {"UK: card, one penny above the threshold",                UK,      "10.01",   "",     false, true,  " 0.63038",  " 0.73048"},
  {"UK: card, one penny below the limit",                    UK,      "349.99",  "",     false, true,  " 13.54962", " 17.04952"},
  {"UK: card, at the limit",                                 UK,      "350",     "",     false, true,  " 13.55",    " 17.05"},
  {"UK: card, one penny above the limit",                    UK,      "350.01",  "",     false, true,  "N/A",       "N/A"},
  {"UK: card, discounted, one penny below the threshold",    UK,      "9.99",    "",     true,  true,  " 0.25",     " 0.3499"},
  {"UK: card, discounted, at the threshold",                 UK,      "10",      "",     true,  true,  " 0.25",     " 0.35"},
  {"UK: card, discounted, one penny above the threshold",    UK,      "10.01",   "",     true,  true,  " 0.53028",  " 0.63038"},
  {"UK: card, discounted, one penny below the limit",        UK,      "1349.99", "",     true,  true,  " 38.04972", " 51.54962"},
  {"UK: card, discounted, at the limit",                     UK,      "1350",    "",     true,  true,  " 38.05",    " 51.55"},
  {"UK: card, discounted, one penny above the limit",        UK,      "1350.01", "",     true,  true,  "N/A",       "N/A"},
  {"UK: eCheck, one penny below the threshold",              UK,      "9.99",    "",     false, false, " 0.25",     " 0.3499"},
  {"UK: eCheck, at the threshold",                           UK,      "10",      "",     false, false, " 0.25",     " 0.35"},
  {"UK: eCheck, one penny above the threshold",              UK,      "10.01",   "",     false, false, " 2.7525",   " 2.8526"},
  {"UK: eCheck, one penny below the limit",                  UK,      "349.99",  "",     false, false, " 87.7475",  " 91.2474"},
  {"UK: eCheck, at the limit",                               UK,      "350",     "",     false, false, " 87.75",    " 91.25"},
  {"UK: eCheck, one penny above the limit",                  UK,      "350.01",  "",     false, false, "N/A",       "N/A"},
  {"UK: eCheck, discounted, one penny below the threshold",  UK,      "9.99",    "",     true,  false, " 0.25",     " 0.3499"},
  {"UK: eCheck, discounted, at the threshold",               UK,      "10",      "",     true,  false, " 0.25",     " 0.35"},
  {"UK: eCheck, discounted, one penny above the threshold",  UK,      "10.01",   "",     true,  false, " 2.7525",   " 2.8526"},
  {"UK: eCheck, discounted, one penny below the limit",      UK,      "1349.99", "",     true,  false, " 337.7475", " 351.2474"},
  {"UK: eCheck, discounted, at the limit",                   UK,      "1350",    "",     true,  false, " 337.75",   " 351.25"},
  {"UK: eCheck, discounted, one penny above the limit",      UK,      "1350.01", "",     true,  false, "N/A",       "N/A"},

  {"Canada: card, one cent below the threshold",             Canada,  "18.74",   "1.25", false, true,  " 0.4375",   " 0.6249"},
  {"Canada: card, at the threshold",                         Canada,  "18.75",   "1.25", false, true,  " 0.4375",   " 0.625"},
  {"Canada: card, one cent above the threshold",             Canada,  "18.76",   "1.25", false, true,  " 1.0003",   " 1.1879"},
  {"Canada: card, one cent below the limit",                 Canada,  "624.99",  "1.25", false, true,  " 19.1872",  " 25.4371"},
  {"Canada: card, at the limit",                             Canada,  "625",     "1.25", false, true,  " 19.1875",  " 25.4375"},
  {"Canada: card, one cent above the limit",                 Canada,  "625.01",  "1.25", false, true,  "N/A",       "N/A"},
  {"Canada: card, discounted, one cent below the threshold", Canada,  "18.74",   "1.25", true,  true,  " 0.4375",   " 0.6249"},
  {"Canada: card, discounted, at the threshold",             Canada,  "18.75",   "1.25", true,  true,  " 0.4375",   " 0.625"},
  {"Canada: card, discounted, one cent above the threshold", Canada,  "18.76",   "1.25", true,  true,  " 0.8596",   " 1.0472"},
  {"Canada: card, discounted, one cent below the limit",     Canada,  "2499.99", "1.25", true,  true,  " 56.68728", " 81.68718"},
  {"Canada: card, discounted, at the limit",                 Canada,  "2500",    "1.25", true,  true,  " 56.6875",  " 81.6875"},
  {"Canada: card, discounted, one cent above the limit",     Canada,  "2500.01", "1.25", true,  true,  "N/A",       "N/A"},
  {"Canada: eCheck, one cent below the threshold",           Canada,  "18.74",   "1.25", false, false, " 0.4375",   " 0.6249"},
  {"Canada: eCheck, at the threshold",                       Canada,  "18.75",   "1.25", false, false, " 0.4375",   " 0.625"},
  {"Canada: eCheck, one cent above the threshold",           Canada,  "18.76",   "1.25", false, false, " 0.8127",   " 1.0003"},
  {"Canada: eCheck, one cent below the limit",               Canada,  "249.99",  "1.25", false, false, " 5.4373",   " 7.9372"},
  {"Canada: eCheck, at the limit",                           Canada,  "250",     "1.25", false, false, " 5.4375",   " 7.9375"},
  {"Canada: eCheck, one cent above the limit",               Canada,  "250.01",  "1.25", false, false, "N/A",       "N/A"},
  {"Canada: eCheck, discounted, one cent below the threshold",Canada,  "18.74",   "1.25", true,  false, " 0.4375",   " 0.6249"},
  {"Canada: eCheck, discounted, at the threshold",           Canada,  "18.75",   "1.25", true,  false, " 0.4375",   " 0.625"},
  {"Canada: eCheck, discounted, one cent above the threshold",Canada,  "18.76",   "1.25", true,  false, " 0.672",    " 0.8596"},
  {"Canada: eCheck, discounted, one cent below the limit",   Canada,  "249.99",  "1.25", true,  false, " 3.562375", " 6.062275"},
  {"Canada: eCheck, discounted, at the limit",               Canada,  "250",     "1.25", true,  false, " 3.5625",   " 6.0625"},
  {"Canada: eCheck, discounted, one cent above the limit",   Canada,  "250.01",  "1.25", true,  false, "N/A",       "N/A"},

  {"US: below the threshold only the flat fee",                US,      "10.00",   "",     false, true,  " 0.35",     " 0.45"},
  {"US: an eCheck above the limit",                            US,      "300.00",  "",     false, false, "N/A",       "N/A"},
  {"US: nothing paid is below the threshold",                  US,      "0",       "",     false, true,  " 0.35",     " 0.35"},
  {"US: a very large amount",                                  US,      "1e300",   "",     true,  true,  "N/A",       "N/A"},
  {"US: the rate does not count",                              US,      "100",     "1.45", false, true,  " 3.35",     " 4.35"},
  {"UK: a quarter of an eCheck",                               UK,      "100",     "",     false, false, " 25.25",    " 26.25"},
  {"UK: a quarter of an eCheck, discounted",                   UK,      "100",     "",     true,  false, " 25.25",    " 26.25"},
  {"UK: the rate does not count",                              UK,      "100",     "1.45", false, true,  " 4.05",     " 5.05"},
  {"UK: a rate of nothing does not count",                     UK,      "10",      "0",    false, true,  " 0.25",     " 0.35"},
  {"Canada: no rate text is 1.317, below the threshold",       Canada,  "19.75",   "",     false, true,  " 0.46095",  " 0.65845"},
  {"Canada: no rate text is 1.317, above the threshold",       Canada,  "19.76",   "",     false, true,  " 1.05375",  " 1.25135"},
  {"Canada: no number as rate is 1.317",                       Canada,  "19.75",   "abc",  false, true,  " 0.46095",  " 0.65845"},
  {"Canada: at the limit of a card at the default rate",       Canada,  "658.5",   "",     false, true,  " 20.21595", " 26.80095"},
  {"Canada: above the limit of a card at the default rate",    Canada,  "658.51",  "",     false, true,  "N/A",       "N/A"},
  {"Canada: at the limit of a discount at the default rate",   Canada,  "2634",    "",     true,  true,  " 59.72595", " 86.06595"},
  {"Canada: above the limit of a discount at the default rate", Canada, "2634.01", "",     true,  true,  "N/A",       "N/A"},
  {"Canada: below the limit of an eCheck at the default rate", Canada,  "263.39",  "",     false, false, " 5.72875",  " 8.36265"},
  {"Canada: above the limit of an eCheck at the default rate", Canada,  "263.41",  "",     false, false, "N/A",       "N/A"},
  {"Canada: nothing paid at a rate of nothing",                Canada,  "0",       "0",    false, true,  " 0",        " 0"},
  {"Canada: a rate of nothing allows nothing",                 Canada,  "0.01",    "0",    false, true,  "N/A",       "N/A"},
  {"Canada: a rate below nothing allows nothing",              Canada,  "0",       "-1",   true,  true,  "N/A",       "N/A"},

  {"Germany: nothing paid costs nothing",                      Germany, "0",       "",     false, true,  " 0",        " 0"},
  {"Germany: card, every positive amount",                     Germany, "0.01",    "",     false, true,  "N/A",       "N/A"},
  {"Germany: card, discounted, every positive amount",         Germany, "0.01",    "",     true,  true,  "N/A",       "N/A"},
  {"Germany: eCheck, every positive amount",                   Germany, "0.01",    "",     false, false, "N/A",       "N/A"},
  {"Germany: eCheck, discounted, every positive amount",       Germany, "0.01",    "",     true,  false, "N/A",       "N/A"},
  {"Germany: a large amount at a rate of one's own",           Germany, "100",     "1.45", true,  true,  "N/A",       "N/A"},

  {"an unknown site allows nothing",                           5,       "10",      "",     true,  true,  "N/A",       "N/A"},
  {"Canada: eCheck, at the limit at the default rate",       Canada,  "263.4",   "",     false, false, " 5.72895",  " 8.36295"},
  {"Canada: card, at the threshold at an own rate",          Canada,  "15.15",   "1.01", false, true,  " 0.3535",   " 0.505"},
};
// clang-format on

TEST(Billpoint, ThresholdsAndLimitsForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const BillpointRow& row : kFees) {
      SCOPED_TRACE(row.rule);
      const std::string amount = asWrittenIn(locale.signs, row.amount);
      const std::string rate = asWrittenIn(locale.signs, row.rate);
      EXPECT_EQ(billpointFee(locale.signs, row.site, amount, row.isDiscounted, row.isCard, false, rate),
                asWrittenIn(locale.signs, row.fee));
      EXPECT_EQ(billpointFee(locale.signs, row.site, amount, row.isDiscounted, row.isCard, true, rate),
                asWrittenIn(locale.signs, row.feeAbroad));
    }
  }
}

TEST(Billpoint, EveryCalculationTellsTheScheduleTheRate) {
  CAuctionSite site;
  site.Site(UK);
  CPaymentService calculator(enUS());
  calculator.Site(site);
  static_cast<void>(calculator.BillpointFee("5", false, true, false, "1.45"));
  EXPECT_EQ(site.ConversionRate(), 1.45F);
  static_cast<void>(calculator.BillpointFee("5000", false, true, false, ""));
  EXPECT_EQ(site.ConversionRate(), 0.5305F);
  site.Site(Canada);
  EXPECT_EQ(site.ConversionRate(), 0.0F);
  static_cast<void>(calculator.BillpointFee("100", false, true, true, "abc"));
  EXPECT_EQ(site.ConversionRate(), 1.317F);
}

TEST(Billpoint, ATextThatIsNoNumberIsAnError) {
  for (const char* amount : {"", "abc", ".", " ", "--5", "N/A"}) {
    EXPECT_THROW(billpointFee(enUS(), UK, amount, false, true, false, "1.45"), ConversionError) << amount;
  }
}

TEST(Billpoint, ANumberThatIsTooLargeIsAnError) {
  EXPECT_THROW(billpointFee(enUS(), UK, "1e400", false, true, false, ""), OverflowError);
  EXPECT_THROW(billpointFee(enUS(), UK, "100", false, true, false, "1e400"), OverflowError);
  EXPECT_THROW(billpointFee(enUS(), Canada, "100", false, true, false, "1e38"), OverflowError);
}

TEST(Billpoint, TheLimitIsNotAskedForBelowTheThreshold) {
  // The largest payment, 2,000.00 dollars, would be too large a number at this rate.
  EXPECT_EQ(billpointFee(enUS(), Canada, "1", true, true, false, "1.8e35"), " 6.3E+34");
  EXPECT_THROW(billpointFee(enUS(), Canada, "1e37", true, true, false, "1.8e35"), OverflowError);
}

TEST(Billpoint, WithoutAScheduleAllowsNothing) {
  CPaymentService calculator(enUS());
  EXPECT_EQ(calculator.BillpointFee("0", false, true, false, "1.45"), " 0");
  EXPECT_EQ(calculator.BillpointFee("0.01", true, true, true, "1.45"), "N/A");
}

}  // namespace
