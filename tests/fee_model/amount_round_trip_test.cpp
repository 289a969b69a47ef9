#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "amount_text.h"
#include "test_locales.h"

/// \file
/// What the writers produce, the readers read as the same value: for a user of any way of writing numbers,
/// and for numbers of any size. A single is known by its seven digits and a double by its fifteen; two powers
/// of ten are the exception.

namespace {

// Each locale gets its own: 20,000 random numbers of each type in all.
constexpr std::size_t kRandomCount = 5000;

// Fifteen digits of a number above this round to more than a double can hold.
constexpr double kLargestWrittenDouble = 1.797693134862315e308;

/// A number from raw bits: all sizes, signs and remainders occur.
template <typename Value, typename Bits>
Value fromBits(Bits bits) {
  static_assert(sizeof(Value) == sizeof(Bits));
  Value value{};
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

std::vector<float> someSingles(std::uint64_t seed) {
  std::vector<float> values{
      0.0F,        0.01F,       0.99F,         1.005F,          0.524999976F,
      8.43499947F, 1234566.5F,  9999999.0F,    10000000.0F,     123456789.0F,
      -0.35F,      -1234564.5F, 3.4028235e38F, 1.17549435e-38F, std::numeric_limits<float>::denorm_min()};
  std::mt19937_64 random(seed);
  const std::size_t wanted = values.size() + kRandomCount;
  while (values.size() < wanted) {
    const auto value = fromBits<float>(static_cast<std::uint32_t>(random()));
    if (std::isfinite(value)) values.push_back(value);
    values.push_back(static_cast<float>(random() % 100'000'000) / 1000.0F);  // a price, rarely of whole cents
  }
  return values;
}

std::vector<double> someDoubles(std::uint64_t seed) {
  std::vector<double> values{0.0,
                             0.01,
                             2.675,
                             1.57499992847443,
                             100000000000000.5,
                             999999999999999.5,
                             1e15,
                             1e300,
                             -0.7854,
                             kLargestWrittenDouble,
                             std::numeric_limits<double>::denorm_min()};
  std::mt19937_64 random(seed);
  const std::size_t wanted = values.size() + kRandomCount;
  while (values.size() < wanted) {
    const auto value = fromBits<double>(random());
    if (std::abs(value) <= kLargestWrittenDouble) values.push_back(value);
    values.push_back(static_cast<double>(random() % 1'000'000'000'000) / 1000.0);
  }
  return values;
}

std::vector<Currency> someCurrencies(std::uint64_t seed) {
  std::vector<Currency> values;
  for (const std::int64_t units :
       {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{50}, std::int64_t{9950},
        std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
    values.push_back(Currency::fromTenThousandths(units));
  }
  std::mt19937_64 random(seed);
  const std::size_t wanted = values.size() + kRandomCount;
  while (values.size() < wanted) {
    const auto units = fromBits<std::int64_t>(random());
    values.push_back(Currency::fromTenThousandths(units));
    values.push_back(Currency::fromTenThousandths(units % 100'000'000));
  }
  return values;
}

/// Runs `check` for every locale, each with a seed of its own.
template <typename Check>
void inEveryLocale(Check check) {
  std::uint64_t seed = 20040131;
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    check(seed++, locale.signs);
  }
}

TEST(RoundTrip, APlainSingleIsReadWithTheSameSevenDigits) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const float value : someSingles(seed)) {
      const std::string text = plainText(value, locale);
      ASSERT_TRUE(isNumeric(text, locale)) << text;
      const float read = toSingle(text, locale);
      ASSERT_EQ(plainText(read, locale), text);
      // Half a unit of the seventh digit; the smallest singles have fewer digits than that.
      const double exact = static_cast<double>(value);
      ASSERT_NEAR(static_cast<double>(read), exact, 6e-7 * std::abs(exact));
    }
  });
}

TEST(RoundTrip, OfThePowersOfTenTwoAreReadAsALittleLess) {
  const NumberLocale& locale = kTestLocales.front().signs;
  std::vector<int> changed;
  for (int power = -45; power <= 38; ++power) {
    // The next single above shows the same digits, where singles are that close.
    const float nearest = toSingle("1E" + std::to_string(power), locale);
    const std::string text = plainText(std::nextafter(nearest, 1e38F), locale);
    if (plainText(toSingle(text, locale), locale) != text) changed.push_back(power);
  }
  EXPECT_EQ(changed, (std::vector<int>{-38, 28}));
  EXPECT_EQ(plainText(toSingle("1E28", locale), locale), " 9.999999E+27");
}

TEST(RoundTrip, APlainDoubleIsReadWithTheSameFifteenDigits) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const double value : someDoubles(seed)) {
      const std::string text = plainText(value, locale);
      ASSERT_TRUE(isNumeric(text, locale)) << text;
      const double read = toDouble(text, locale);
      ASSERT_EQ(plainText(read, locale), text);
      ASSERT_NEAR(read, value, 6e-15 * std::abs(value));
    }
  });
}

TEST(RoundTrip, APlainCurrencyIsReadExactly) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const Currency value : someCurrencies(seed)) {
      ASSERT_EQ(toCurrency(plainText(value, locale), locale), value) << value.tenThousandths();
    }
  });
}

TEST(RoundTrip, TwoDecimalsOfASingleAreReadAsWritten) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const float value : someSingles(seed)) {
      const std::string text = twoDecimals(value, locale);
      ASSERT_EQ(twoDecimals(toSingle(text, locale), locale), text);
      ASSERT_EQ(twoDecimals(std::string_view(text), locale), text);
    }
  });
}

TEST(RoundTrip, TwoDecimalsOfADoubleAreReadAsWritten) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const double value : someDoubles(seed)) {
      const std::string text = twoDecimals(value, locale);
      ASSERT_EQ(twoDecimals(toDouble(text, locale), locale), text);
      ASSERT_EQ(twoDecimals(std::string_view(text), locale), text);
    }
  });
}

TEST(RoundTrip, TwoDecimalsOfACurrencyAreReadAsWritten) {
  inEveryLocale([](std::uint64_t seed, const NumberLocale& locale) {
    for (const Currency value : someCurrencies(seed)) {
      const std::string text = twoDecimals(value, locale);
      ASSERT_EQ(twoDecimals(toCurrency(text, locale), locale), text);
    }
  });
}

}  // namespace
