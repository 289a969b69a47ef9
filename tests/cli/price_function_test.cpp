#include "price_function.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "price_function_sales.h"
#include "price_function_search.h"

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

Sale with(Sale sale, void (*choose)(Sale& sale)) {
  choose(sale);
  return sale;
}

/// In Canada, paid through eBay Payments at a rate, which the bounds of that follow.
Sale atRate(const char* rate, Cents shippingCharged = 0) {
  Sale sale = plainSale(Canada);
  sale.payment = PaymentService::Billpoint;
  sale.listing.payment.txtConversion = rate;
  sale.shippingCharged = shippingCharged;
  return sale;
}

struct ResultRow {
  const char* rule;
  Sale sale;
  Cents price;
  Cents listingFees;
  Cents paymentFee;
  Cents net;
};

// clang-format off
const ResultRow kResults[] = {
  //                                                                                                          price   eBay  payment   net
  {"0.60 to list, 5.25 % of 24.99",              plainSale(US),                                                2499,   191,      0,  2308},
  {"1.20 to list, 5.25 % of 25.00",              plainSale(US),                                                2500,   251,      0,  2249},
  {"the opening price alone counts for listing", openingAt(plainSale(US), "9.99"),                             2500,   166,      0,  2334},
  {"PayPal keeps 2.9 % and 0.30",                with(plainSale(US), [](Sale& s) { s.payment = PaymentService::PayPal; }), 2500, 251, 103, 2146},
  {"shipping is paid and charged on, not sold",  with(plainSale(US), [](Sale& s) { s.payment = PaymentService::PayPal; s.shippingCharged = 500; }), 2500, 251, 117, 2632},
  {"eBay Payments keeps 3 % and 0.35",           with(plainSale(US), [](Sale& s) { s.payment = PaymentService::Billpoint; }), 2500, 251, 110, 2139},
  {"up to the threshold 0.35 alone",             with(plainSale(US), [](Sale& s) { s.payment = PaymentService::Billpoint; }), 1500, 139,  35, 1326},
  {"a vehicle sold in the UK: 6 and 0.5 %",      with(plainSale(UK), kListingRows[5].choose),                400000,  2600,      0, 397400},
  {"real estate pays for listing alone",         with(plainSale(Canada), kListingRows[6].choose),             10000,  7000,      0,  3000},
  {"Germany: 1.60 to list, 5 % of 50",           plainSale(Germany),                                           5000,   410,      0,  4590},
};
// clang-format on

TEST(PriceFunction, PricesASale) {
  for (const ResultRow& row : kResults) {
    PriceFunction sale(row.sale, pointLocale());
    const SaleResult result = sale.at(row.price);
    EXPECT_EQ(result.listingFees, row.listingFees) << row.rule;
    EXPECT_EQ(result.paymentFee, row.paymentFee) << row.rule;
    EXPECT_EQ(result.net, row.net) << row.rule;
  }
}

struct RangeRow {
  const char* rule;
  Sale sale;
  Cents first;
  Cents last;
};

// clang-format off
const RangeRow kRanges[] = {
  {"any price from a cent on",                    plainSale(US),                       1, 100'000'000},
  {"Germany opens at one euro at least",          plainSale(Germany),                100, 100'000'000},
  {"no bid below the opening price",              openingAt(plainSale(US), "9.99"),  999, 100'000'000},
  {"the next whole cent of an odd opening price", openingAt(plainSale(US), "9.995"), 1000, 100'000'000},
  {"credit cards up to 500",                      with(plainSale(US), kPaymentRows[5].choose),     1,  50'000},
  {"eChecks up to 200",                           with(plainSale(US), kPaymentRows[6].choose),     1,  20'000},
  {"discounted up to 2000, less 3.50 shipping",   with(plainSale(US), kPaymentRows[7].choose),     1, 199'650},
  {"the UK takes 350",                            with(plainSale(UK), kPaymentRows[5].choose),     1,  35'000},
  {"Canada 500 dollars at 1.317",                 with(plainSale(Canada), kPaymentRows[5].choose), 1,  65'850},
  {"a rate near nothing leaves nothing",          atRate("1e-30"),                     1,           0},
  {"a rate of nothing likewise",                  atRate("0"),                         1,           0},
  {"a large rate leaves the largest price",       atRate("1e15"),                      1, 100'000'000},
  {"larger than a whole number can count",        atRate("1e20", 100'000'000),         1, 100'000'000},
  {"the largest single but one",                  atRate("6e35"),                      1, 100'000'000},
  {"opened at the largest amount that is one",    openingAt(plainSale(US), "922337203685477.58"), 92'233'720'368'547'758, 100'000'000},
  {"Germany nothing",                             with(plainSale(Germany), kPaymentRows[5].choose), 100, 0},
};
// clang-format on

TEST(PriceFunction, KnowsAtWhichPricesItCanSell) {
  for (const RangeRow& row : kRanges) {
    const PriceFunction sale(row.sale, pointLocale());
    EXPECT_EQ(sale.range().first, row.first) << row.rule;
    EXPECT_EQ(sale.range().last, row.last) << row.rule;
  }
}

TEST(PriceFunction, TheLargestAmountOfAServiceIsPricedAndTheNextCentIsNot) {
  for (const NamedSale& row : allSales()) {
    if (row.sale.payment != PaymentService::Billpoint) continue;
    PriceFunction sale(row.sale, pointLocale());
    EXPECT_NO_THROW(sale.at(sale.range().last)) << row.name;
    EXPECT_THROW(sale.at(sale.range().last + 1), PricingError) << row.name;
  }
}

TEST(PriceFunction, TheLargestAmountFollowsTheRateToTheCent) {
  // From 524288 on singles lie further apart than cents: more of them are as good as the bound.
  for (const char* rate : {"0.0002", "0.01", "0.7777", "1.2345", "524.288", "1100.01", "1999.99"}) {
    PriceFunction sale(atRate(rate), pointLocale());
    ASSERT_TRUE(sale.isLimitedByPayment()) << rate;
    EXPECT_NO_THROW(sale.at(sale.range().last)) << rate;
    EXPECT_THROW(sale.at(sale.range().last + 1), PricingError) << rate;
  }
}

/// A jump is more than the rounding of two fees.
TEST(PriceFunction, InsideAPieceNoFeeFallsOrJumps) {
  constexpr Cents rounding = 2;
  std::size_t jumps = 0;
  for (const NamedSale& row : allSales()) {
    PriceFunction sale(row.sale, pointLocale());
    Cents before = sale.totalFees(sale.range().first);
    const Cents last = std::min(scannedTo(row), sale.range().last);
    for (Cents price = sale.range().first + 1; price <= last; ++price) {
      const Cents fees = sale.totalFees(price);
      const bool begins = std::binary_search(sale.pieces().begin(), sale.pieces().end(), price);
      ASSERT_TRUE(begins || (fees >= before && fees - before <= rounding)) << row.name << " at " << price;
      if (fees - before > rounding) ++jumps;
      before = fees;
    }
  }
  EXPECT_GT(jumps, 150U) << "too few jumps to tell anything";
}

TEST(PriceFunctionSearch, TheHighestNetIsThatOfAScan) {
  constexpr PriceRange scanned{.first = 480, .last = 3700};
  for (const NamedSale& row : allSales()) {
    PriceFunction sale(row.sale, pointLocale());
    if (sale.range().first > scanned.first) continue;
    Cents best = sale.at(scanned.first).net;
    for (Cents last = scanned.first; last <= scanned.last; ++last) {
      const Cents net = sale.at(last).net;
      best = std::max(best, net);
      // The best is not the last where rounding has just cost a cent, nor in a dead band.
      if (net == best && last % 37 != 0) continue;
      ASSERT_EQ(highestNet(sale, {.first = scanned.first, .last = last}), best)
          << row.name << " up to " << last;
    }
  }
}

}  // namespace
