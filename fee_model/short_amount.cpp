#include "short_amount.h"

#include <array>
#include <cmath>

namespace {

/// As double each of them is exact.
constexpr std::array<std::int64_t, 18> kPowersOfTen{1,
                                                    10,
                                                    100,
                                                    1'000,
                                                    10'000,
                                                    100'000,
                                                    1'000'000,
                                                    10'000'000,
                                                    100'000'000,
                                                    1'000'000'000,
                                                    10'000'000'000,
                                                    100'000'000'000,
                                                    1'000'000'000'000,
                                                    10'000'000'000'000,
                                                    100'000'000'000'000,
                                                    1'000'000'000'000'000,
                                                    10'000'000'000'000'000,
                                                    100'000'000'000'000'000};

std::int64_t powerOfTen(int exponent) { return kPowersOfTen[static_cast<std::size_t>(exponent)]; }

/// Whether a number has more digits than that.
bool isBeyond(std::uint64_t number, int digits) {
  return static_cast<std::size_t>(digits) < kPowersOfTen.size() &&
         number >= static_cast<std::uint64_t>(powerOfTen(digits));
}

/// How many decimals the significant digits of a magnitude reach to; -1 if it is out of the range.
int decimalsFor(double magnitude, int digits) {
  // These two are the smallest doubles that are not below a tenth and a hundredth.
  constexpr double tenth = 0.1;
  constexpr double hundredth = 0.01;
  if (magnitude < 1.0) return magnitude >= tenth ? digits : magnitude >= hundredth ? digits + 1 : -1;
  int wholeDigits = 1;
  while (wholeDigits <= digits && magnitude >= static_cast<double>(powerOfTen(wholeDigits))) ++wholeDigits;
  return digits - wholeDigits;
}

}  // namespace

std::optional<ShortAmount> shortAmountOf(std::string_view text, const NumberLocale& locale) {
  const char decimal = locale.decimal.size() == 1 ? locale.decimal.front() : '\0';
  if (decimal != '.' && decimal != ',') return std::nullopt;
  constexpr int mostDigits = 14;  // so that ten-thousandths of it fit into 64 bits
  if (text.starts_with(' ')) text.remove_prefix(1);
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  if (text.empty() || text.size() > mostDigits + 1) return std::nullopt;
  const char* at = text.data();
  const char* const end = at + text.size();
  ShortAmount amount;
  const auto readDigits = [&] {
    const char* const first = at;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) amount.units = amount.units * 10 + (*at - '0');
    return static_cast<int>(at - first);
  };
  const int whole = readDigits();
  if (at != end && *at == decimal) {
    ++at;
    amount.decimals = readDigits();
  }
  const int digits = whole + amount.decimals;
  if (at != end || digits == 0 || digits > mostDigits) return std::nullopt;
  if (isNegative) amount.units = -amount.units;
  return amount;
}

std::optional<ShortAmount> shortAmountOf(double value, int digits) {
  if (value == 0.0) return ShortAmount{};
  const double magnitude = std::abs(value);
  const int decimals = decimalsFor(magnitude, digits);
  if (decimals < 0) return std::nullopt;
  // What the product lost when it was rounded decides with its fraction whether to round up.
  const auto power = static_cast<double>(powerOfTen(decimals));
  const double product = magnitude * power;
  const double lost = std::fma(magnitude, power, -product);
  const double whole = std::floor(product);
  constexpr double half = 0.5;
  auto units = static_cast<std::int64_t>(whole);
  if (product - whole - half >= -lost) ++units;
  if (units >= powerOfTen(digits)) return std::nullopt;
  return ShortAmount{std::signbit(value) ? -units : units, decimals};
}

ShortAmount withTwoDecimals(ShortAmount amount) {
  constexpr int shown = 2;
  if (amount.decimals <= shown) return {amount.units * powerOfTen(shown - amount.decimals), shown};
  const std::int64_t cent = powerOfTen(amount.decimals - shown);
  const std::int64_t half = amount.units < 0 ? -cent / 2 : cent / 2;
  return {(amount.units + half) / cent, shown};
}

ShortAmount withoutTrailingZeros(ShortAmount amount) {
  while (amount.decimals > 0 && amount.units % 10 == 0) {
    amount.units /= 10;
    --amount.decimals;
  }
  return amount;
}

double toDouble(ShortAmount amount) {
  // Both are exact, so that the division rounds once.
  return static_cast<double>(amount.units) / static_cast<double>(powerOfTen(amount.decimals));
}

std::string write(ShortAmount amount, std::string_view lead, std::string_view decimalSymbol) {
  constexpr std::uint64_t ten = 10;
  auto rest = static_cast<std::uint64_t>(amount.units < 0 ? -amount.units : amount.units);
  int wholeDigits = 1;
  while (isBeyond(rest, amount.decimals + wholeDigits)) ++wholeDigits;
  const std::string_view sign = amount.units < 0 ? "-" : lead;
  const std::string_view symbol = amount.decimals > 0 ? decimalSymbol : "";
  // Its length is known: it is filled from its last digit on instead of growing.
  std::string text(sign.size() + symbol.size() + static_cast<std::size_t>(wholeDigits + amount.decimals),
                   '0');
  auto at = text.end();
  const auto writeSigns = [&](std::string_view signs) {
    for (std::size_t left = signs.size(); left > 0; --left) *--at = signs[left - 1];
  };
  const auto writeDigits = [&](int count) {
    for (; count > 0; --count, rest /= ten) *--at = static_cast<char>('0' + rest % ten);
  };
  writeDigits(amount.decimals);
  writeSigns(symbol);
  writeDigits(wholeDigits);
  writeSigns(sign);
  return text;
}
