#include "short_amount.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "amount_text.h"
#include "decimal.h"
#include "test_locales.h"

/// \file
/// The short way of reading and writing amounts against the general one, on many inputs: wherever the short
/// way answers, it says the same.

namespace {

constexpr int kInputs = 200'000;
constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

std::string generalTwoDecimals(Decimal number, const NumberLocale& locale) {
  roundHalfAway(number, 2);
  std::string text = writeFixed(number, locale.decimal);
  const auto behind = static_cast<std::int64_t>(number.digits.size()) - number.point;
  const std::int64_t shown = number.isZero() || behind < 0 ? 0 : behind;
  if (shown == 0) text += locale.decimal;
  return text.append(static_cast<std::size_t>(2 - shown), '0');
}

std::string generalPlain(const Decimal& number, const NumberLocale& locale) {
  return (number.isNegative ? "" : " ") + writeFixed(number, locale.decimal);
}

std::string shortTwoDecimals(ShortAmount amount, const NumberLocale& locale) {
  return write(withTwoDecimals(amount), "", locale.decimal);
}

std::string shortPlain(ShortAmount amount, const NumberLocale& locale) {
  return write(withoutTrailingZeros(amount), " ", locale.decimal);
}

std::string randomText(std::mt19937_64& random) {
  constexpr std::string_view signs = "0123456789012345678900..,,- +$e(";
  std::string text;
  const std::size_t length = random() % 17;
  if (random() % 2 == 0) {
    while (text.size() < length) text += signs[random() % signs.size()];
    return text;
  }
  while (text.size() < length) text += static_cast<char>('0' + random() % 10);
  if (!text.empty() && random() % 4 != 0)
    text.insert(random() % (text.size() + 1), random() % 2 == 0 ? "." : ",");
  if (random() % 8 == 0) text.insert(0, "-");
  if (random() % 4 == 0) text.insert(0, " ");
  return text;
}

TEST(ShortAmount, IsReadLikeAnyAmount) {
  for (const NamedLocale& locale : kTestLocales) {
    // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
    std::mt19937_64 random(20040131);
    int answered = 0;
    for (int at = 0; at < kInputs; ++at) {
      const std::string text = randomText(random);
      const auto amount = shortAmountOf(text, locale.signs);
      if (!amount) continue;
      ++answered;
      const auto number = parseDecimal(text, locale.signs);
      ASSERT_TRUE(number) << locale.name << ' ' << text;
      const double value = toDouble(*amount);
      ASSERT_EQ(value, *nearestDouble(*number)) << locale.name << ' ' << text;
      ASSERT_FALSE(value == 0.0 && std::signbit(value)) << text;
      ASSERT_EQ(toCurrency(text, locale.signs).tenThousandths(), *scaledHalfEven(*number, Currency::decimals))
          << locale.name << ' ' << text;
      ASSERT_EQ(shortTwoDecimals(*amount, locale.signs), generalTwoDecimals(*number, locale.signs))
          << locale.name << ' ' << text;
      ASSERT_EQ(shortPlain(*amount, locale.signs), generalPlain(*number, locale.signs))
          << locale.name << ' ' << text;
    }
    EXPECT_GT(answered, kInputs / 4) << locale.name;
  }
}

void expectSameDigits(double value, int digits) {
  const auto amount = shortAmountOf(value, digits);
  if (!amount) return;
  const Decimal number = significantDigits(value, digits);
  ASSERT_EQ(shortPlain(*amount, enUS()), generalPlain(number, enUS())) << value << ' ' << digits;
  ASSERT_EQ(shortTwoDecimals(*amount, deDE()), generalTwoDecimals(number, deDE())) << value << ' ' << digits;
}

template <typename Value, typename Bits>
Value fromBits(Bits bits) {
  Value value{};
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

TEST(ShortAmount, OfANumberHasItsDigits) {
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 random(20040131);
  int answered = 0;
  for (int at = 0; at < kInputs; ++at) {
    // Numbers of the size of amounts: the exponent is drawn, the rest is any bits.
    const double any = std::ldexp(fromBits<double>((random() >> 12U) | 0x3FF0000000000000U),
                                  static_cast<int>(random() % 60) - 8) *
                       (at % 2 == 0 ? 1.0 : -1.0);
    const double price = static_cast<double>(random() % 100'000'000) / 1000.0;
    // Halves of the last digit, and their neighbours.
    const double half = (static_cast<double>(random() % 10'000'000) + 0.5) / 1024.0;
    for (const double value : {any, price, half, price * 0.0525, std::nextafter(half, 1e9)}) {
      expectSameDigits(value, kDoubleDigits);
      const auto single = static_cast<double>(static_cast<float>(value));
      expectSameDigits(single, kSingleDigits);
      if (HasFatalFailure()) return;
      if (shortAmountOf(value, kDoubleDigits)) ++answered;
    }
  }
  EXPECT_GT(answered, 4 * kInputs);
}

TEST(ShortAmount, OfANumberEndsWhereTheGeneralWayBegins) {
  struct Row {
    const char* rule;
    double value;
    int digits;
    bool isShort;
  };
  const Row rows[] = {
      {"nothing", 0.0, kSingleDigits, true},
      {"one cent", 0.01, kDoubleDigits, true},
      {"less than a cent", std::nextafter(0.01, 0.0), kDoubleDigits, false},
      {"the largest of seven digits", 9'999'999.0, kSingleDigits, true},
      {"eight digits", 10'000'000.0, kSingleDigits, false},
      {"seven digits that round to eight", 9'999'999.5, kSingleDigits, false},
      {"the largest of fifteen digits", 999'999'999'999'999.0, kDoubleDigits, true},
      {"sixteen digits", 1e15, kDoubleDigits, false},
      {"infinity", std::numeric_limits<double>::infinity(), kDoubleDigits, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(shortAmountOf(row.value, row.digits).has_value(), row.isShort) << row.rule;
    if (std::isfinite(row.value)) expectSameDigits(row.value, row.digits);
  }
}

}  // namespace
