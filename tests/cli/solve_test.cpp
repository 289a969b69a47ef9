#include "solve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "price_function_sales.h"

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

constexpr std::int64_t kPercent = 10'000;

struct SolveRow {
  const char* rule;
  std::int32_t site;
  Target target;
  Cents price;
};

// Worked out from the fee tables; a net just above the one before a jump is reached behind the dead band
// alone.
// clang-format off
const SolveRow kRows[] = {
  {"0.35 to list, 5.25 % of 9.99 (0.52): 9.12 left",     US,      {.fixed = 912},                           999},
  {"9.13 asks for 0.60: 10.27 - 0.60 - 0.54",            US,      {.fixed = 913},                          1027},
  {"24.99 - 0.60 - 1.31 is 23.08",                       US,      {.fixed = 2308},                         2499},
  {"one cent more: 25.62 - 1.20 - 1.33",                 US,      {.fixed = 2309},                         2562},
  {"nothing is left of 0.32 - 0.30 - 0.02",              US,      {},                                        32},
  {"half the price: 0.65 leaves 0.32 of 0.33, 0.66 leaves 0.33", US, {.margin = 50 * kPercent}, 66},
  {"UK: 0.15 to list, 5.25 % of 0.99 (0.05)",            UK,      {.fixed = 79},                             99},
  {"Canada: 14.99 - 0.45 - 0.79",                        Canada,  {.fixed = 1375},                         1499},
  {"Germany: 1.00 is the lowest price, 0.70 left",       Germany, {.fixed = 1},                             100},
};
// clang-format on

TEST(Solve, TheLowestPriceThatReachesATarget) {
  for (const SolveRow& row : kRows) {
    PriceFunction sale(plainSale(row.site), pointLocale());
    const auto solution = solve(sale, row.target);
    ASSERT_TRUE(solution) << row.rule;
    EXPECT_EQ(solution->answer.price, row.price) << row.rule;
  }
}

TEST(Solve, PartsOfACentAreNeededAsAWholeOne) {
  const Target fifth{.fixed = 100, .margin = 20 * kPercent};
  EXPECT_EQ(fifth.neededAt(500), 200);
  EXPECT_EQ(fifth.neededAt(501), 201);
  EXPECT_EQ(fifth.neededAt(505), 201);
  EXPECT_EQ(fifth.neededAt(506), 202);
}

TEST(Solve, TheLowestPossiblePriceHasNoneBelow) {
  PriceFunction sale(openingAt(plainSale(US), "30"), pointLocale());
  const auto solution = solve(sale, {.fixed = 1000});
  ASSERT_TRUE(solution);
  EXPECT_EQ(solution->answer.price, 3000);
  EXPECT_FALSE(solution->below);
}

TEST(Solve, SomeTargetsNoPriceReaches) {
  PriceFunction plain(plainSale(US), pointLocale());
  EXPECT_FALSE(solve(plain, {.fixed = PriceFunction::largestPrice}));
  EXPECT_FALSE(solve(plain, {.margin = Target::wholePrice}));
  Sale sale = plainSale(US);
  sale.payment = PaymentService::Billpoint;
  PriceFunction limited(sale, pointLocale());
  EXPECT_TRUE(limited.isLimitedByPayment());
  const Cents most = limited.at(50'000).net;
  EXPECT_FALSE(solve(limited, {.fixed = most + 1000}));
}

Target randomTarget(std::mt19937& random, Cents most) {
  std::uniform_int_distribution<Cents> amount(0, most);
  std::uniform_int_distribution<std::int64_t> margin(1, 95 * kPercent);
  if (random() % 2 == 0) return {.fixed = amount(random)};
  return {.fixed = amount(random) / 10, .margin = margin(random)};
}

/// The first price that a scan of every cent finds; 0 if there is none.
Cents scanFor(const std::vector<Cents>& nets, Cents first, const Target& target) {
  for (std::size_t at = 0; at < nets.size(); ++at) {
    const Cents price = first + static_cast<Cents>(at);
    if (nets[at] >= target.neededAt(price)) return price;
  }
  return 0;
}

TEST(Solve, FindsWhatAScanOfEveryCentFinds) {
  constexpr int targets = 60;
  // A failure must be the same in the next run.
  // NOLINTNEXTLINE(cert-msc51-cpp,cert-msc32-c)
  std::mt19937 random(20040119);
  std::size_t found = 0;
  for (const NamedSale& row : allSales()) {
    PriceFunction sale(row.sale, pointLocale());
    const PriceRange range{.first = sale.range().first, .last = std::min<Cents>(30'000, sale.range().last)};
    std::vector<Cents> nets;
    for (Cents price = range.first; price <= range.last; ++price) nets.push_back(sale.at(price).net);
    for (int round = 0; round < targets; ++round) {
      const Target target = randomTarget(random, range.last);
      const Cents expected = scanFor(nets, range.first, target);
      const auto solution = solve(sale, target);
      if (expected != 0) {
        ++found;
        ASSERT_TRUE(solution) << row.name;
        ASSERT_EQ(solution->answer.price, expected)
            << row.name << ", needed " << target.fixed << " and " << target.margin;
      } else if (solution) {
        ASSERT_GT(solution->answer.price, range.last) << row.name;
      }
    }
  }
  EXPECT_GT(found, 2000U);
}

/// Prices at random in a range, none if it is empty.
std::vector<Cents> probes(std::mt19937& random, PriceRange range) {
  constexpr int enough = 8;
  std::vector<Cents> prices;
  for (int at = 0; at < enough && range.first <= range.last; ++at)
    prices.push_back(randomCents(random, range.first, range.last));
  return prices;
}

TEST(Solve, TheAnswerPricedAgainReachesTheTargetAndNoPriceBelowDoes) {
  constexpr int rounds = 5000;
  // A failure must be the same in the next run.
  // NOLINTNEXTLINE(cert-msc51-cpp,cert-msc32-c)
  std::mt19937 random(7);
  int found = 0;
  for (int round = 0; round < rounds; ++round) {
    const Sale sale = randomSale(random);
    PriceFunction function(sale, pointLocale());
    const PriceRange range = function.range();
    const Target target =
        randomTarget(random, std::min<Cents>(range.last, oneIn(random, 2) ? 8'000 : 2'000'000));
    const auto solution = solve(function, target);
    PriceRange below{.first = range.first, .last = range.last};
    if (solution) {
      ++found;
      below.last = solution->answer.price - 1;
      ASSERT_EQ(netAsPriced(sale, solution->answer.price), solution->answer.net) << round;
      ASSERT_GE(solution->answer.net, target.neededAt(solution->answer.price)) << round;
      ASSERT_EQ(solution->below.has_value(), below.first <= below.last) << round;
    }
    if (solution && solution->below) {
      ASSERT_EQ(solution->below->price, below.last) << round;
      ASSERT_EQ(netAsPriced(sale, below.last), solution->below->net) << round;
      ASSERT_LT(solution->below->net, target.neededAt(below.last)) << round;
    }
    for (const Cents price : probes(random, below))
      ASSERT_LT(netAsPriced(sale, price), target.neededAt(price)) << round << " at " << price;
  }
  EXPECT_GT(found, rounds / 2);
}

}  // namespace
