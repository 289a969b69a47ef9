#include "bands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "price_function_sales.h"

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

struct BandRow {
  const char* rule;
  std::int32_t site;
  std::size_t index;  ///< among the bands of the site
  Cents from;
  Cents to;
  Cents netBefore;
  Cents worstLoss;
};

// clang-format off
const BandRow kRows[] = {
  {"US: 24.99 - 0.60 - 1.31, then 1.20 to list; 25.61 - 1.20 - 1.33",  US,      2,  2500,  2560,  2308,  59},
  {"US: 0.99 - 0.30 - 0.05, then 0.35; 1.04 - 0.35 - 0.05",            US,      0,   100,   103,    64,   4},
  {"UK: 99.99 - 1.50 - 3.86, then 2.00; 100.52 - 2.00 - 3.87",         UK,      4, 10000, 10050,  9464,  49},
  {"Germany: 1.99 - 0.25 - 0.10, then 0.45; 2.20 - 0.45 - 0.11",       Germany, 0,   200,   219,   164,  19},
};
// clang-format on

TEST(Bands, WorkedOutByHand) {
  for (const BandRow& row : kRows) {
    PriceFunction sale(plainSale(row.site), pointLocale());
    const auto bands = deadBands(sale, sale.range().last);
    ASSERT_LT(row.index, bands.size()) << row.rule;
    const DeadBand& band = bands[row.index];
    EXPECT_EQ(band.from, row.from) << row.rule;
    EXPECT_EQ(band.to, row.to) << row.rule;
    EXPECT_EQ(band.netBefore, row.netBefore) << row.rule;
    EXPECT_EQ(band.worstLoss, row.worstLoss) << row.rule;
  }
}

TEST(Bands, EachLadderHasAsManyAsItHasDearerSteps) {
  // The UK and Germany repeat a bound; Germany's lowest opening bid leaves its first step in.
  const std::size_t expected[] = {6, 5, 6, 5};
  for (std::int32_t site = US; site <= Germany; ++site) {
    PriceFunction sale(plainSale(site), pointLocale());
    EXPECT_EQ(deadBands(sale, sale.range().last).size(), expected[site - 1]) << nameOfSite(site);
  }
}

TEST(Bands, AGivenOpeningPriceLeavesNoSteps) {
  PriceFunction sale(openingAt(plainSale(US), "0.99"), pointLocale());
  EXPECT_TRUE(deadBands(sale, sale.range().last).empty());
}

/// Bands by their definition: every cent that brings less than one below it.
std::vector<DeadBand> scanned(PriceFunction& sale, Cents last) {
  std::vector<DeadBand> bands;
  Cents best = sale.at(sale.range().first).net;
  bool isInside = false;
  for (Cents price = sale.range().first + 1; price <= last; ++price) {
    const Cents net = sale.at(price).net;
    if (net < best && !isInside)
      bands.push_back({.from = price, .to = price, .netBefore = sale.at(price - 1).net});
    isInside = net < best;
    if (isInside) {
      bands.back().to = price;
      bands.back().worstLoss = std::max(bands.back().worstLoss, best - net);
      bands.back().isOpen = price == sale.range().last;
    }
    best = std::max(best, net);
  }
  std::erase_if(bands, [](const DeadBand& band) { return band.worstLoss < kLeastLoss; });
  return bands;
}

void expectSame(const std::vector<DeadBand>& bands, const std::vector<DeadBand>& expected,
                const std::string& name) {
  ASSERT_EQ(bands.size(), expected.size()) << name;
  for (std::size_t at = 0; at < bands.size(); ++at) {
    EXPECT_EQ(bands[at].from, expected[at].from) << name;
    EXPECT_EQ(bands[at].to, expected[at].to) << name;
    EXPECT_EQ(bands[at].netBefore, expected[at].netBefore) << name;
    EXPECT_EQ(bands[at].worstLoss, expected[at].worstLoss) << name;
    EXPECT_EQ(bands[at].isOpen, expected[at].isOpen) << name;
  }
}

TEST(Bands, AreThoseOfAScanOfEveryCent) {
  constexpr Cents beyond = 2'000;  // a band that begins below may end here
  std::size_t found = 0;
  for (const NamedSale& row : allSales()) {
    PriceFunction sale(row.sale, pointLocale());
    const Cents asked = scannedTo(row);
    auto expected = scanned(sale, std::min(asked + beyond, sale.range().last));
    std::erase_if(expected, [asked](const DeadBand& band) { return band.from > asked; });
    expectSame(deadBands(sale, asked), expected, row.name);
    found += expected.size();
  }
  EXPECT_GT(found, 150U);
}

TEST(Bands, VehiclesAreScannedBeyondTheirSteps) {
  // The steps of the UK end at 6000, those of Germany at 10000; the others have none.
  const Cents asked[] = {20'000, 610'000, 20'000, 1'010'000};
  for (std::int32_t site = US; site <= Germany; ++site) {
    Sale vehicle = plainSale(site);
    vehicle.listing.single.chkVehicle = true;
    vehicle.payment = PaymentService::PayPal;
    PriceFunction sale(vehicle, pointLocale());
    const Cents last = asked[site - 1];
    expectSame(deadBands(sale, last), scanned(sale, last), std::string(nameOfSite(site)));
  }
}

TEST(Bands, ABandThatBeginsUpToTheGivenPriceIsWhole) {
  PriceFunction sale(plainSale(US), pointLocale());
  EXPECT_EQ(deadBands(sale, 2499).size(), 2U);
  const auto bands = deadBands(sale, 2500);
  ASSERT_EQ(bands.size(), 3U);
  EXPECT_EQ(bands.back().to, 2560);
}

TEST(Bands, TheLastCentIsWorseThanTheBestBelowAndTheNextIsNot) {
  for (const NamedSale& row : allSales()) {
    PriceFunction sale(row.sale, pointLocale());
    for (const DeadBand& band : deadBands(sale, sale.range().last)) {
      EXPECT_EQ(sale.at(band.from - 1).net, band.netBefore) << row.name;
      EXPECT_LT(sale.at(band.from).net, band.netBefore) << row.name;
      EXPECT_LT(sale.at(band.to).net, band.netBefore) << row.name;
      EXPECT_TRUE(band.isOpen || sale.at(band.to + 1).net >= band.netBefore) << row.name;
    }
  }
}

void expectBand(const DeadBand& band, const Sale& sale, std::mt19937& random) {
  ASSERT_EQ(netAsPriced(sale, band.from - 1), band.netBefore) << band.from;
  for (const Cents price : {band.from, randomCents(random, band.from, band.to), band.to})
    ASSERT_LT(netAsPriced(sale, price), band.netBefore) << price;
  ASSERT_TRUE(band.isOpen || netAsPriced(sale, band.to + 1) >= band.netBefore) << band.to;
}

/// From one band to the next no price brings less than a lower one, but for a cent of rounding.
void expectNoneBetween(PriceRange between, const Sale& sale, std::mt19937& random) {
  constexpr int pairs = 3;
  for (int at = 0; at < pairs && between.first < between.last; ++at) {
    const Cents higher = randomCents(random, between.first + 1, between.last);
    const Cents lower = randomCents(random, between.first, higher - 1);
    ASSERT_GT(netAsPriced(sale, higher), netAsPriced(sale, lower) - kLeastLoss) << lower << ", " << higher;
  }
}

TEST(Bands, OfSalesAtRandomAreAsTheirListingsArePriced) {
  constexpr int rounds = 1000;
  // A failure must be the same in the next run.
  // NOLINTNEXTLINE(cert-msc51-cpp,cert-msc32-c)
  std::mt19937 random(20040120);
  std::size_t found = 0;
  for (int round = 0; round < rounds; ++round) {
    const Sale sale = randomSale(random);
    PriceFunction function(sale, pointLocale());
    Cents behind = function.range().first;
    for (const DeadBand& band : deadBands(function, function.range().last)) {
      ++found;
      ASSERT_NO_FATAL_FAILURE(expectNoneBetween({.first = behind, .last = band.from - 1}, sale, random))
          << round;
      ASSERT_NO_FATAL_FAILURE(expectBand(band, sale, random)) << round;
      behind = band.to + 1;
    }
    ASSERT_NO_FATAL_FAILURE(expectNoneBetween({.first = behind, .last = function.range().last}, sale, random))
        << round;
  }
  EXPECT_GT(found, 1500U);
}

TEST(Bands, AreOpenWhereTheRangeEndsFirst) {
  // eChecks end at 263.40; shipping leaves 15.20 of it for the price, just behind a step of the ladder.
  Sale sale = plainSale(Canada);
  sale.payment = PaymentService::Billpoint;
  sale.listing.payment.txtConversion = "1.317";
  byEcheck(sale);
  sale.shippingCharged = 26'340 - 1'520;
  PriceFunction limited(sale, pointLocale());
  const auto bands = deadBands(limited, limited.range().last);
  ASSERT_FALSE(bands.empty());
  EXPECT_TRUE(bands.back().isOpen);
  EXPECT_EQ(bands.back().to, limited.range().last);
}

}  // namespace
