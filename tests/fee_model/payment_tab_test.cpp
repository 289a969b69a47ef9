#include "payment_tab.h"

#include <gtest/gtest.h>

#include "amount_errors.h"
#include "test_locales.h"

/// \file
/// The Payment Services tab, worked out by hand. What the service takes is payment_service_test.cpp's.

namespace {

using C = PaymentChoices&;

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

struct ExampleRow {
  const char* rule;
  std::int32_t site;
  void (*choose)(C);
  const char* rate;
  PaymentBoxes entered;
  PaymentBoxes shown;
};

void eCheck(C) {}
void card(C c) { c.optPayPalCreditCard = true; }
void merchantCard(C c) { c.optPayPalCreditCard = c.optPayPalMerchant = true; }
void eCheckAbroad(C c) { c.chkInternationalPayPal = true; }

// clang-format off
const ExampleRow kExamples[] = {
  //                                                                                             rate      amount    old fee     amount      fee
  {"amount and fee are shown with two decimals",         US,      card,                          "",       {"25",     "99"},    {"25.00",   "1.03"}},
  {"an empty fee box is filled",                         US,      card,                          "",       {"25",     ""},      {"25.00",   "1.03"}},
  {"the fee is of the amount as typed",                  US,      card,                          "",       {"24.995", "99"},    {"25.00",   "1.02"}},
  {"an amount of one cent",                              US,      card,                          "",       {"0.01",   "99"},    {"0.01",    "0.30"}},
  {"an amount of nothing",                               US,      card,                          "",       {"0",      "99"},    {"0.00",    "0.30"}},
  {"group signs are not kept",                           US,      card,                          "",       {"1000.00", "99"},   {"1000.00", "29.30"}},
  {"a very large amount",                                US,      card,                          "",       {"1e20",   "99"},    {"100000000000000000000.00", "2900000000000000000.00"}},

  {"standard rate, credit card",                         US,      card,                          "",       {"100.00", "99"},    {"100.00",  "3.20"}},
  {"merchant rate, credit card",                         US,      merchantCard,                  "",       {"100.00", "99"},    {"100.00",  "2.50"}},
  {"standard rate, no credit card: capped",              US,      eCheck,                        "",       {"1000.00", "99"},   {"1000.00", "5.00"}},
  {"merchant rate, no credit card: not capped",          US,      [](C c) { c.optPayPalMerchant = true; },
                                                                                                 "",       {"200",    "99"},    {"200.00",  "4.70"}},
  {"standard rate, credit card, international",          US,      [](C c) { c.optPayPalCreditCard = c.chkInternationalPayPal = true; },
                                                                                                 "",       {"1000",   "99"},    {"1000.00", "39.30"}},
  {"merchant rate, credit card, international",          US,      [](C c) { c.optPayPalCreditCard = c.optPayPalMerchant = c.chkInternationalPayPal = true; },
                                                                                                 "",       {"1000",   "99"},    {"1000.00", "32.30"}},
  {"no credit card, international: above the cap",       US,      eCheckAbroad,                  "",       {"1000",   "99"},    {"1000.00", "15.00"}},
  {"merchant rate, no credit card, international",       US,      [](C c) { c.optPayPalMerchant = c.chkInternationalPayPal = true; },
                                                                                                 "",       {"200",    "99"},    {"200.00",  "6.70"}},

  {"US: the hidden rate does not count",                 US,      card,                          "1.45",   {"100",    "99"},    {"100.00",  "3.20"}},
  {"UK: no rate",                                        UK,      card,                          "",       {"100",    "99"},    {"100.00",  "3.06"}},
  {"UK: a rate that is no number",                       UK,      card,                          "abc",    {"100",    "99"},    {"100.00",  "3.06"}},
  {"UK: a lone decimal symbol as rate",                  UK,      card,                          ".",      {"100",    "99"},    {"100.00",  "3.06"}},
  {"UK: a rate of one's own",                            UK,      card,                          "1.25",   {"100",    "99"},    {"100.00",  "3.28"}},
  {"UK: a rate of nothing",                              UK,      eCheck,                        "0",      {"100",    "99"},    {"100.00",  "0.00"}},
  {"UK: a rate below nothing",                           UK,      eCheck,                        "-1",     {"100",    "99"},    {"100.00",  "-5.00"}},
  {"UK: capped at the default rate",                     UK,      eCheck,                        "0.5305", {"1000",   "99"},    {"1000.00", "2.65"}},
  {"Canada: no rate",                                    Canada,  card,                          "",       {"100",    "99"},    {"100.00",  "3.30"}},
  {"Canada: half a cent of the cap goes up",             Canada,  eCheck,                        "1.317",  {"1000",   "99"},    {"1000.00", "6.59"}},
  {"Germany: no rate",                                   Germany, card,                          "",       {"100",    "99"},    {"100.00",  "3.14"}},
  {"Germany: capped, international",                     Germany, eCheckAbroad,                  "0.7854", {"1000",   "99"},    {"1000.00", "13.93"}},

  {"an empty amount changes nothing",                    US,      card,                          "",       {"",       "1.5"},   {"",        "1.5"}},
  {"an empty amount changes no empty fee",               US,      card,                          "",       {"",       ""},      {"",        ""}},
  {"an empty amount asks for no rate",                   UK,      card,                          "1e400",  {"",       "1.5"},   {"",        "1.5"}},
  {"a lone decimal symbol changes nothing",              US,      card,                          "",       {".",      "1.5"},   {".",       "1.5"}},
};
// clang-format on

/// The tab of one seller: boxes and choices that live through several recalculations.
class PaymentTab {
 public:
  explicit PaymentTab(std::int32_t siteNumber, const NumberLocale& locale = enUS())
      : m_locale(locale), m_calculator(locale) {
    site.Site(siteNumber);
    m_calculator.Site(site);
  }
  PaymentTab(const PaymentTab&) = delete;
  PaymentTab& operator=(const PaymentTab&) = delete;

  void recalculate() { recalculatePayment(choices, &m_calculator, m_locale, boxes); }
  void recalculateWithoutCalculator() { recalculatePayment(choices, nullptr, m_locale, boxes); }
  void askForTheFee() { calculatePayPalFee(choices, m_calculator, boxes); }

  CAuctionSite site;
  PaymentChoices choices;
  PaymentBoxes boxes;

 private:
  NumberLocale m_locale;
  CPaymentService m_calculator;
};

TEST(Payment, WorkedExamplesForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    const auto text = [&](std::string_view pointText) { return asWrittenIn(locale.signs, pointText); };
    for (const ExampleRow& row : kExamples) {
      SCOPED_TRACE(row.rule);
      PaymentTab tab(row.site, locale.signs);
      row.choose(tab.choices);
      tab.choices.txtConversion = text(row.rate);
      tab.boxes = {text(row.entered.txtPaymentAmount), text(row.entered.txtPayPalFee)};
      tab.recalculate();
      EXPECT_EQ(tab.boxes.txtPaymentAmount, text(row.shown.txtPaymentAmount));
      EXPECT_EQ(tab.boxes.txtPayPalFee, text(row.shown.txtPayPalFee));
    }
  }
}

TEST(Payment, APointOrCommaAloneIsEmptyWhereItIsADecimalSymbol) {
  for (const char* amount : {".", ","}) {
    SCOPED_TRACE(amount);
    PaymentTab tab(UK, deDE());
    tab.boxes = {amount, "1.5"};
    tab.choices.txtConversion = "1,45";
    tab.recalculate();
    EXPECT_EQ(tab.boxes.txtPaymentAmount, amount);
    EXPECT_EQ(tab.boxes.txtPayPalFee, "1.5");
    EXPECT_EQ(tab.site.ConversionRate(), 0.0F);
  }
}

TEST(Payment, GroupSignsAreRead) {
  PaymentTab tab(US, deDE());
  tab.choices.optPayPalCreditCard = true;
  tab.boxes = {"1.234,50", ""};
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPaymentAmount, "1234,50");
  EXPECT_EQ(tab.boxes.txtPayPalFee, "36,10");  // 35.8005 + 0.30
}

TEST(Payment, TheFeeAskedForIsNotFormatted) {
  PaymentTab tab(US);
  tab.choices.optPayPalCreditCard = true;
  tab.boxes = {"100", "99"};
  tab.askForTheFee();
  EXPECT_EQ(tab.boxes.txtPaymentAmount, "100");
  EXPECT_EQ(tab.boxes.txtPayPalFee, " 3.20000001192093");  // with 0.30 in single precision
}

TEST(Payment, TheSecondCalculationIsOfTheAmountAsShown) {
  PaymentTab tab(US);
  tab.choices.optPayPalCreditCard = true;
  tab.boxes = {"24.995", ""};
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPayPalFee, "1.02");
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPaymentAmount, "25.00");
  EXPECT_EQ(tab.boxes.txtPayPalFee, "1.03");
}

TEST(Payment, ASwitchOfTheSiteCountsAtTheNextCalculation) {
  PaymentTab tab(US);
  tab.boxes = {"1000", ""};
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPayPalFee, "5.00");
  tab.site.Site(Germany);
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPayPalFee, "3.93");
  tab.boxes.txtPaymentAmount = "";
  tab.site.Site(US);
  tab.recalculate();
  EXPECT_EQ(tab.boxes.txtPayPalFee, "3.93");
}

TEST(Payment, WithoutACalculatorTheBoxesAreFormattedOnly) {
  PaymentTab tab(US);
  tab.boxes = {"25", "1.5"};
  tab.recalculateWithoutCalculator();
  EXPECT_EQ(tab.boxes.txtPaymentAmount, "25.00");
  EXPECT_EQ(tab.boxes.txtPayPalFee, "1.50");
  tab.boxes = {"", "1.5"};
  tab.recalculateWithoutCalculator();
  EXPECT_EQ(tab.boxes.txtPayPalFee, "1.5");
}

struct FaultyRow {
  const char* rule;
  const char* amount;
  const char* rate;
  const char* offending;
};

// clang-format off
const FaultyRow kNoNumbers[] = {
  {"letters as amount",              "abc",   "",      "abc"},
  {"a blank is not an empty box",    " ",     "",      " "},
  {"two signs",                      "--5",   "",      "--5"},
  {"another user's decimal symbol",  ",",     "",      ","},
};

const FaultyRow kTooLarge[] = {
  {"an amount beyond a double",      "1e400", "",      "1e400"},
  {"a rate beyond a double",         "100",   "1e400", "1e400"},
  {"a rate beyond a single",         "100",   "1e39",  "1e39"},
};
// clang-format on

template <typename Error, std::size_t count>
void expectFault(const FaultyRow (&rows)[count]) {
  for (const FaultyRow& row : rows) {
    SCOPED_TRACE(row.rule);
    PaymentTab tab(UK);
    tab.boxes = {row.amount, "1.5"};
    tab.choices.txtConversion = row.rate;
    try {
      tab.recalculate();
      ADD_FAILURE() << "no error";
    } catch (const Error& error) {
      EXPECT_EQ(error.offendingText(), row.offending);
    }
    EXPECT_EQ(tab.boxes.txtPaymentAmount, row.amount);
    EXPECT_EQ(tab.boxes.txtPayPalFee, "1.5");
  }
}

TEST(PaymentFault, OfATextThatIsNoNumberLeavesTheBoxes) { expectFault<ConversionError>(kNoNumbers); }

TEST(PaymentFault, OfANumberThatIsTooLargeLeavesTheBoxes) { expectFault<OverflowError>(kTooLarge); }

}  // namespace
