#include "payment_service.h"

#include <gtest/gtest.h>

#include <array>

#include "amount_errors.h"
#include "amount_text.h"
#include "test_locales.h"

/// \file
/// What PayPal takes, worked out by hand: 2.9 % (merchants 2.2 %) and 0.30 dollars; without a credit card 5
/// dollars at most; abroad 1 % on top. The dollars are converted with the rate.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

constexpr bool kStandard = false;
constexpr bool kMerchant = true;
constexpr bool kCard = true;
constexpr bool kECheck = false;
constexpr bool kDomestic = false;
constexpr bool kAbroad = true;

/// A calculator on a schedule of its own.
class Payment {
 public:
  explicit Payment(std::int32_t siteNumber, const NumberLocale& locale = enUS()) : calculator(locale) {
    site.Site(siteNumber);
    calculator.Site(site);
  }
  Payment(const Payment&) = delete;
  Payment& operator=(const Payment&) = delete;

  CAuctionSite site;
  CPaymentService calculator;
};

struct Fees {
  const char* card;
  const char* cardAbroad;
  const char* eCheck;
  const char* eCheckAbroad;
};

struct MatrixRow {
  const char* rule;
  std::int32_t site;
  const char* rate;
  const char* amount;
  Fees standard;
  Fees merchant;
};

// clang-format off
// Shown with two decimals. A rate of nothing makes flat fee and cap nothing, and a rate below nothing makes
// the cap -5.00, which every fee exceeds.
const MatrixRow kMatrix[] = {
  //                                               rate      amount   standard: card, abroad; eCheck, abroad    merchant: card, abroad; eCheck, abroad
  {"US: no rate text",                    US,      "",       "51",   {"1.78", "2.29", "1.78", "2.29"},         {"1.42", "1.93", "1.42", "1.93"}},
  {"US: no rate text",                    US,      "",       "1000", {"29.30", "39.30", "5.00", "15.00"},      {"22.30", "32.30", "5.00", "15.00"}},
  {"US: a rate of one's own",             US,      "1.45",   "51",   {"1.78", "2.29", "1.78", "2.29"},         {"1.42", "1.93", "1.42", "1.93"}},
  {"US: a rate of one's own",             US,      "1.45",   "1000", {"29.30", "39.30", "5.00", "15.00"},      {"22.30", "32.30", "5.00", "15.00"}},
  {"US: a rate of nothing",               US,      "0",      "51",   {"1.78", "2.29", "1.78", "2.29"},         {"1.42", "1.93", "1.42", "1.93"}},
  {"US: a rate of nothing",               US,      "0",      "1000", {"29.30", "39.30", "5.00", "15.00"},      {"22.30", "32.30", "5.00", "15.00"}},
  {"US: a rate that is no number",        US,      "abc",    "51",   {"1.78", "2.29", "1.78", "2.29"},         {"1.42", "1.93", "1.42", "1.93"}},
  {"US: a rate that is no number",        US,      "abc",    "1000", {"29.30", "39.30", "5.00", "15.00"},      {"22.30", "32.30", "5.00", "15.00"}},
  {"US: a rate below nothing",            US,      "-1",     "51",   {"1.78", "2.29", "1.78", "2.29"},         {"1.42", "1.93", "1.42", "1.93"}},
  {"US: a rate below nothing",            US,      "-1",     "1000", {"29.30", "39.30", "5.00", "15.00"},      {"22.30", "32.30", "5.00", "15.00"}},

  {"UK: no rate text",                    UK,      "",       "51",   {"1.64", "2.15", "1.64", "2.15"},         {"1.28", "1.79", "1.28", "1.79"}},
  {"UK: no rate text",                    UK,      "",       "1000", {"29.16", "39.16", "2.65", "12.65"},      {"22.16", "32.16", "2.65", "12.65"}},
  {"UK: the default rate typed in",       UK,      "0.5305", "51",   {"1.64", "2.15", "1.64", "2.15"},         {"1.28", "1.79", "1.28", "1.79"}},
  {"UK: the default rate typed in",       UK,      "0.5305", "1000", {"29.16", "39.16", "2.65", "12.65"},      {"22.16", "32.16", "2.65", "12.65"}},
  {"UK: a rate of one's own",             UK,      "1.45",   "51",   {"1.91", "2.42", "1.91", "2.42"},         {"1.56", "2.07", "1.56", "2.07"}},
  {"UK: a rate of one's own",             UK,      "1.45",   "1000", {"29.44", "39.44", "7.25", "17.25"},      {"22.44", "32.44", "7.25", "17.25"}},
  {"UK: a rate of nothing",               UK,      "0",      "51",   {"1.48", "1.99", "0.00", "0.51"},         {"1.12", "1.63", "0.00", "0.51"}},
  {"UK: a rate of nothing",               UK,      "0",      "1000", {"29.00", "39.00", "0.00", "10.00"},      {"22.00", "32.00", "0.00", "10.00"}},
  {"UK: a rate that is no number",        UK,      "abc",    "51",   {"1.64", "2.15", "1.64", "2.15"},         {"1.28", "1.79", "1.28", "1.79"}},
  {"UK: a rate that is no number",        UK,      "abc",    "1000", {"29.16", "39.16", "2.65", "12.65"},      {"22.16", "32.16", "2.65", "12.65"}},
  {"UK: a rate below nothing",            UK,      "-1",     "51",   {"1.18", "1.69", "-5.00", "-4.49"},       {"0.82", "1.33", "-5.00", "-4.49"}},
  {"UK: a rate below nothing",            UK,      "-1",     "1000", {"28.70", "38.70", "-5.00", "5.00"},      {"21.70", "31.70", "-5.00", "5.00"}},

  {"Canada: no rate text",                Canada,  "",       "51",   {"1.87", "2.38", "1.87", "2.38"},         {"1.52", "2.03", "1.52", "2.03"}},
  {"Canada: no rate text",                Canada,  "",       "1000", {"29.40", "39.40", "6.59", "16.59"},      {"22.40", "32.40", "6.59", "16.59"}},
  {"Canada: the default rate typed in",   Canada,  "1.317",  "51",   {"1.87", "2.38", "1.87", "2.38"},         {"1.52", "2.03", "1.52", "2.03"}},
  {"Canada: the default rate typed in",   Canada,  "1.317",  "1000", {"29.40", "39.40", "6.59", "16.59"},      {"22.40", "32.40", "6.59", "16.59"}},
  {"Canada: a rate of one's own",         Canada,  "1.45",   "51",   {"1.91", "2.42", "1.91", "2.42"},         {"1.56", "2.07", "1.56", "2.07"}},
  {"Canada: a rate of one's own",         Canada,  "1.45",   "1000", {"29.44", "39.44", "7.25", "17.25"},      {"22.44", "32.44", "7.25", "17.25"}},
  {"Canada: a rate of nothing",           Canada,  "0",      "51",   {"1.48", "1.99", "0.00", "0.51"},         {"1.12", "1.63", "0.00", "0.51"}},
  {"Canada: a rate of nothing",           Canada,  "0",      "1000", {"29.00", "39.00", "0.00", "10.00"},      {"22.00", "32.00", "0.00", "10.00"}},
  {"Canada: a rate that is no number",    Canada,  "abc",    "51",   {"1.87", "2.38", "1.87", "2.38"},         {"1.52", "2.03", "1.52", "2.03"}},
  {"Canada: a rate that is no number",    Canada,  "abc",    "1000", {"29.40", "39.40", "6.59", "16.59"},      {"22.40", "32.40", "6.59", "16.59"}},
  {"Canada: a rate below nothing",        Canada,  "-1",     "51",   {"1.18", "1.69", "-5.00", "-4.49"},       {"0.82", "1.33", "-5.00", "-4.49"}},
  {"Canada: a rate below nothing",        Canada,  "-1",     "1000", {"28.70", "38.70", "-5.00", "5.00"},      {"21.70", "31.70", "-5.00", "5.00"}},

  {"Germany: no rate text",               Germany, "",       "51",   {"1.71", "2.22", "1.71", "2.22"},         {"1.36", "1.87", "1.36", "1.87"}},
  {"Germany: no rate text",               Germany, "",       "1000", {"29.24", "39.24", "3.93", "13.93"},      {"22.24", "32.24", "3.93", "13.93"}},
  {"Germany: the default rate typed in",  Germany, "0.7854", "51",   {"1.71", "2.22", "1.71", "2.22"},         {"1.36", "1.87", "1.36", "1.87"}},
  {"Germany: the default rate typed in",  Germany, "0.7854", "1000", {"29.24", "39.24", "3.93", "13.93"},      {"22.24", "32.24", "3.93", "13.93"}},
  {"Germany: a rate of one's own",        Germany, "1.45",   "51",   {"1.91", "2.42", "1.91", "2.42"},         {"1.56", "2.07", "1.56", "2.07"}},
  {"Germany: a rate of one's own",        Germany, "1.45",   "1000", {"29.44", "39.44", "7.25", "17.25"},      {"22.44", "32.44", "7.25", "17.25"}},
  {"Germany: a rate of nothing",          Germany, "0",      "51",   {"1.48", "1.99", "0.00", "0.51"},         {"1.12", "1.63", "0.00", "0.51"}},
  {"Germany: a rate of nothing",          Germany, "0",      "1000", {"29.00", "39.00", "0.00", "10.00"},      {"22.00", "32.00", "0.00", "10.00"}},
  {"Germany: a rate that is no number",   Germany, "abc",    "51",   {"1.71", "2.22", "1.71", "2.22"},         {"1.36", "1.87", "1.36", "1.87"}},
  {"Germany: a rate that is no number",   Germany, "abc",    "1000", {"29.24", "39.24", "3.93", "13.93"},      {"22.24", "32.24", "3.93", "13.93"}},
  {"Germany: a rate below nothing",       Germany, "-1",     "51",   {"1.18", "1.69", "-5.00", "-4.49"},       {"0.82", "1.33", "-5.00", "-4.49"}},
  {"Germany: a rate below nothing",       Germany, "-1",     "1000", {"28.70", "38.70", "-5.00", "5.00"},      {"21.70", "31.70", "-5.00", "5.00"}},
};

struct TextRow {
  const char* rule;
  std::int32_t site;
  const char* amount;
  bool isMerchant;
  bool isCard;
  const char* rate;
  bool isAbroad;
  const char* fee;
};

// The text itself. The flat fee is stored in single precision: 0.30 as 0.300000011920929, 0.15915 as
// 0.159150004386902, 0.3951 as 0.395100027322769 and 0.23562 as 0.235620006918907; the sum is not. A cap
// shows the seven digits of a single.
const TextRow kTexts[] = {
  {"standard rate, credit card",                   US,      "100",    kStandard, kCard,   "",       kDomestic, " 3.20000001192093"},
  {"merchant rate, credit card",                   US,      "100",    kMerchant, kCard,   "",       kDomestic, " 2.50000001192093"},
  {"nothing paid",                                 US,      "0",      kStandard, kCard,   "",       kDomestic, " 0.300000011920929"},
  {"an amount of one cent",                        US,      "0.01",   kStandard, kCard,   "",       kDomestic, " 0.300290011920929"},
  {"the cap of an eCheck",                         US,      "1000",   kStandard, kECheck, "",       kDomestic, " 5"},
  {"the surcharge comes after the cap",            US,      "1000",   kStandard, kECheck, "",       kAbroad,   " 15"},
  {"the cap is no card's",                         US,      "1000",   kStandard, kCard,   "",       kDomestic, " 29.3000000119209"},
  {"one cent below the capped amount, standard",   US,      "162.06", kStandard, kECheck, "",       kDomestic, " 4.99974001192093"},
  {"one cent above, standard",                     US,      "162.07", kStandard, kECheck, "",       kDomestic, " 5"},
  {"one cent below the capped amount, merchant",   US,      "213.63", kMerchant, kECheck, "",       kDomestic, " 4.99986001192093"},
  {"one cent above, merchant",                     US,      "213.64", kMerchant, kECheck, "",       kDomestic, " 5"},
  // 4.70 of 2.9 % is 162.0689655...; the sum is 5.00000001192092, in single precision 5.
  {"a fee equal to the cap stays",                 US,      "162.068965517241", kStandard, kECheck, "", kDomestic, " 5.00000001192092"},
  {"UK: no rate text is 0.5305",                   UK,      "0",      kStandard, kCard,   "",       kDomestic, " 0.159150004386902"},
  {"UK: the cap with no rate text",                UK,      "1000",   kStandard, kECheck, "",       kDomestic, " 2.6525"},
  {"UK: a rate that is no number is 0.5305",       UK,      "0",      kStandard, kCard,   "abc",    kDomestic, " 0.159150004386902"},
  {"UK: the cap with a rate that is no number",    UK,      "1000",   kStandard, kECheck, "abc",    kDomestic, " 2.6525"},
  {"UK: the surcharge comes after the cap",        UK,      "1000",   kStandard, kECheck, "",       kAbroad,   " 12.6525"},
  {"Canada: no rate text is 1.317",                Canada,  "0",      kMerchant, kCard,   "",       kDomestic, " 0.395100027322769"},
  {"Canada: the cap with no rate text",            Canada,  "1000",   kMerchant, kECheck, "",       kDomestic, " 6.585"},
  {"Germany: no rate text is 0.7854",              Germany, "0",      kStandard, kCard,   "",       kDomestic, " 0.235620006918907"},
  {"Germany: the cap with no rate text",           Germany, "1000",   kStandard, kECheck, "",       kDomestic, " 3.927"},
  {"Germany: the surcharge comes after the cap",   Germany, "1000",   kStandard, kECheck, "",       kAbroad,   " 13.927"},
  {"a lone decimal symbol is no rate",             UK,      "1000",   kStandard, kECheck, ".",      kDomestic, " 2.6525"},
  {"a blank is no rate",                           UK,      "1000",   kStandard, kECheck, " ",      kDomestic, " 2.6525"},
  {"a rate of nothing leaves the share of a card", UK,      "1000",   kStandard, kCard,   "0",      kDomestic, " 29"},
  {"a rate of nothing caps an eCheck at nothing",  UK,      "1000",   kStandard, kECheck, "0",      kDomestic, " 0"},
  {"a rate below nothing is taken as it is",       UK,      "1000",   kStandard, kECheck, "-1",     kDomestic, "-5"},
  {"a large amount by card",                       US,      "1e30",   kStandard, kCard,   "",       kDomestic, " 2.9E+28"},
  {"a large amount by eCheck",                     US,      "1e30",   kStandard, kECheck, "",       kDomestic, " 5"},
  {"an unknown site takes its share and caps at nothing", 5, "100",   kStandard, kECheck, "1.45",   kDomestic, " 0"},
};

struct RateRow {
  const char* rule;
  std::int32_t site;
  const char* rate;
  float told;   ///< what the schedule answers to the question for the rate
  float cap;    ///< five dollars at that rate: the only way to see Germany's
};

const RateRow kRates[] = {
  {"US: nothing to convert",              US,      "1.45",   0.0F,    5.0F},
  {"UK: no rate text is the default",     UK,      "",       0.5305F, 2.6525F},
  {"UK: no number is the default",        UK,      "abc",    0.5305F, 2.6525F},
  {"UK: a rate of one's own",             UK,      "1.45",   1.45F,   7.25F},
  {"UK: a rate of nothing",               UK,      "0",      0.0F,    0.0F},
  {"UK: a rate below nothing",            UK,      "-1",     -1.0F,   -5.0F},
  {"Canada: no rate text is the default", Canada,  "",       1.317F,  6.585F},
  {"Canada: a rate of one's own",         Canada,  "1.45",   1.45F,   7.25F},
  {"Canada: a rate of nothing",           Canada,  "0",      0.0F,    0.0F},
  {"Germany: no rate text is the default", Germany, "",      0.0F,    3.927F},
  {"Germany: a rate of one's own",        Germany, "1.45",   0.0F,    7.25F},
  {"Germany: a rate of nothing",          Germany, "0",      0.0F,    0.0F},
};
// clang-format on

std::string shownFee(const MatrixRow& row, const NumberLocale& locale, bool isMerchant, bool isCard,
                     bool isAbroad) {
  Payment payment(row.site, locale);
  const std::string fee =
      payment.calculator.PayPalFee(row.amount, isMerchant, isCard, asWrittenIn(locale, row.rate), isAbroad);
  return twoDecimals(std::string_view(fee), locale);
}

TEST(PayPal, AllOptionsAtEveryKindOfRateForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const MatrixRow& row : kMatrix) {
      SCOPED_TRACE(std::string(row.rule) + ", " + row.amount);
      for (const bool isMerchant : {kStandard, kMerchant}) {
        SCOPED_TRACE(isMerchant ? "merchant" : "standard");
        const Fees& fees = isMerchant ? row.merchant : row.standard;
        const auto shown = [&](bool isCard, bool isAbroad) {
          return shownFee(row, locale.signs, isMerchant, isCard, isAbroad);
        };
        EXPECT_EQ(shown(kCard, kDomestic), asWrittenIn(locale.signs, fees.card));
        EXPECT_EQ(shown(kCard, kAbroad), asWrittenIn(locale.signs, fees.cardAbroad));
        EXPECT_EQ(shown(kECheck, kDomestic), asWrittenIn(locale.signs, fees.eCheck));
        EXPECT_EQ(shown(kECheck, kAbroad), asWrittenIn(locale.signs, fees.eCheckAbroad));
      }
    }
  }
}

TEST(PayPal, TheTextOfTheFeeForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const TextRow& row : kTexts) {
      SCOPED_TRACE(row.rule);
      Payment payment(row.site, locale.signs);
      EXPECT_EQ(payment.calculator.PayPalFee(asWrittenIn(locale.signs, row.amount), row.isMerchant,
                                             row.isCard, asWrittenIn(locale.signs, row.rate), row.isAbroad),
                asWrittenIn(locale.signs, row.fee));
    }
  }
}

TEST(PayPal, EveryCalculationTellsTheScheduleTheRate) {
  for (const RateRow& row : kRates) {
    SCOPED_TRACE(row.rule);
    Payment payment(row.site);
    payment.site.ConversionRate(9.0F);
    static_cast<void>(payment.calculator.PayPalFee("10", kStandard, kCard, row.rate, kDomestic));
    EXPECT_EQ(payment.site.ConversionRate(), row.told);
    EXPECT_FLOAT_EQ(payment.site.PayPalMaxFeeNonCC(), row.cap);
  }
}

TEST(PayPal, TellsTheRateOfTheSelectedSiteOnly) {
  Payment payment(UK);
  static_cast<void>(payment.calculator.PayPalFee("10", kStandard, kCard, "1.45", kDomestic));
  payment.site.Site(Canada);
  EXPECT_EQ(payment.site.ConversionRate(), 0.0F);
  static_cast<void>(payment.calculator.PayPalFee("10", kStandard, kCard, "", kDomestic));
  EXPECT_EQ(payment.site.ConversionRate(), 1.317F);
  payment.site.Site(UK);
  EXPECT_EQ(payment.site.ConversionRate(), 1.45F);
}

TEST(PayPal, AnAmountThatIsNoNumberIsAnErrorAfterTheRateWasTold) {
  for (const char* amount : {"", "abc", ".", " ", "--5", "1d3"}) {
    SCOPED_TRACE(amount);
    Payment payment(UK);
    try {
      static_cast<void>(payment.calculator.PayPalFee(amount, kStandard, kCard, "1.45", kDomestic));
      ADD_FAILURE() << "no error";
    } catch (const ConversionError& error) {
      EXPECT_EQ(error.offendingText(), amount);
    }
    EXPECT_EQ(payment.site.ConversionRate(), 1.45F);
  }
}

TEST(PayPal, ARateTooLargeIsAnErrorAndIsNotTold) {
  for (const std::int32_t site : {UK, Canada}) {
    for (const char* rate : {"1e400", "1e39"}) {
      SCOPED_TRACE(rate);
      Payment payment(site);
      payment.site.ConversionRate(1.45F);
      EXPECT_THROW(static_cast<void>(payment.calculator.PayPalFee("10", kStandard, kCard, rate, kDomestic)),
                   OverflowError);
      EXPECT_EQ(payment.site.ConversionRate(), 1.45F);
    }
  }
  Payment german(Germany);
  EXPECT_THROW(static_cast<void>(german.calculator.PayPalFee("10", kStandard, kCard, "1e400", kDomestic)),
               OverflowError);
}

TEST(PayPal, ACapThatDoesNotFitIsAnErrorForAnECheckAlone) {
  Payment payment(UK);
  EXPECT_EQ(payment.calculator.PayPalFee("0", kStandard, kCard, "1e38", kDomestic).substr(0, 6), " 3.000");
  EXPECT_THROW(static_cast<void>(payment.calculator.PayPalFee("0", kStandard, kECheck, "1e38", kDomestic)),
               OverflowError);
}

TEST(PayPal, AFeeThatFitsNoSingleIsAnErrorForAnECheckAlone) {
  Payment payment(US);
  EXPECT_EQ(payment.calculator.PayPalFee("1e41", kStandard, kCard, "", kDomestic), " 2.9E+39");
  EXPECT_THROW(static_cast<void>(payment.calculator.PayPalFee("1e41", kStandard, kECheck, "", kDomestic)),
               OverflowError);
  EXPECT_THROW(static_cast<void>(payment.calculator.PayPalFee("1e400", kStandard, kCard, "", kDomestic)),
               OverflowError);
}

TEST(PayPal, WithoutAScheduleTakesItsShareAlone) {
  CPaymentService calculator(enUS());
  EXPECT_EQ(calculator.PayPalFee("100", kStandard, kCard, "1.45", kDomestic), " 2.9");
}

}  // namespace
