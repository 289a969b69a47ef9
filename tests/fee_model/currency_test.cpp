#include "currency.h"

#include <gtest/gtest.h>

#include <limits>

#include "amount_errors.h"

namespace {

constexpr std::int64_t kLargestUnits = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallestUnits = std::numeric_limits<std::int64_t>::min();

constexpr Currency units(std::int64_t count) { return Currency::fromTenThousandths(count); }

struct NumberRow {
  const char* rule;
  double value;
  std::int64_t units;
};

// clang-format off
const NumberRow kNumberRows[] = {
  {"zero",                                                  0.0,                    0},
  {"a whole amount",                                        12.0,                   120000},
  {"a single of thirty-five cents is thirty-five cents",    0.3499999940395355,     3500},
  {"a single of four dollars eighty",                       4.800000190734863,      48000},
  // A binary half at the fifth decimal is a multiple of one thirty-second.
  {"a half goes to the even amount below",                  0.03125,                312},
  {"a half goes to the even amount above",                  0.09375,                938},
  {"another half goes to the even amount below",            0.15625,                1562},
  {"a negative half goes to the even amount",               -0.03125,               -312},
  {"a little less than a half goes down",                   0.09374999999999999,    937},
  {"a little more than a half goes up",                     0.03125000000000001,    313},
  {"a large amount",                                        922337203685477.5,      9223372036854775000},
  {"a large negative amount",                               -922337203685477.5,     -9223372036854775000},
};
// clang-format on

TEST(Currency, TakesANumberHalfToEven) {
  for (const NumberRow& row : kNumberRows) {
    SCOPED_TRACE(row.rule);
    EXPECT_NO_THROW(EXPECT_EQ(Currency::fromNumber(row.value).tenThousandths(), row.units));
  }
}

TEST(Currency, RefusesANumberOutOfRange) {
  for (const double value :
       {922337203685478.0, -922337203685478.0, 1e15, -1e15, 1e300, std::numeric_limits<double>::max()}) {
    EXPECT_THROW(Currency::fromNumber(value), OverflowError) << value;
  }
}

TEST(Currency, RefusesWhatIsNoFiniteNumber) {
  EXPECT_THROW(Currency::fromNumber(std::numeric_limits<double>::infinity()), OverflowError);
  EXPECT_THROW(Currency::fromNumber(-std::numeric_limits<double>::infinity()), OverflowError);
  EXPECT_THROW(Currency::fromNumber(std::numeric_limits<double>::quiet_NaN()), OverflowError);
}

TEST(Currency, AddsExactly) {
  EXPECT_EQ(units(1000) + units(2000), units(3000));
  EXPECT_EQ(units(-5000) + units(2000), units(-3000));
  EXPECT_EQ(units(kLargestUnits) + units(kSmallestUnits), units(-1));
  EXPECT_EQ(units(kLargestUnits) + units(0), units(kLargestUnits));
  EXPECT_EQ(units(kLargestUnits - 1) + units(1), units(kLargestUnits));
  EXPECT_EQ(units(kSmallestUnits + 1) + units(-1), units(kSmallestUnits));
}

TEST(Currency, RefusesASumOutOfRange) {
  EXPECT_THROW(units(kLargestUnits) + units(1), OverflowError);
  EXPECT_THROW(units(1) + units(kLargestUnits), OverflowError);
  EXPECT_THROW(units(kLargestUnits) + units(kLargestUnits), OverflowError);
  EXPECT_THROW(units(kSmallestUnits) + units(-1), OverflowError);
  EXPECT_THROW(units(-1) + units(kSmallestUnits), OverflowError);
  EXPECT_THROW(units(kSmallestUnits) + units(kSmallestUnits), OverflowError);
}

TEST(Currency, ComparesByAmount) {
  EXPECT_LT(units(-1), units(0));
  EXPECT_LT(units(1), units(2));
  EXPECT_GT(units(kLargestUnits), units(kSmallestUnits));
  EXPECT_EQ(Currency{}, units(0));
}

TEST(Currency, GivesTheNearestDouble) {
  EXPECT_EQ(units(1000).toDouble(), 0.1);
  EXPECT_EQ(units(-13125).toDouble(), -1.3125);
  EXPECT_EQ(units(kLargestUnits).toDouble(), 922337203685477.5807);
}

}  // namespace
