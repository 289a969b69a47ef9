#include "decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

/// Keeps `count` digits, one more if `roundUp`; the carry may lengthen the number: 9.99 becomes 10.
void keepDigits(Decimal& number, std::size_t count, bool roundUp) {
  number.digits.erase(count);
  if (roundUp) {
    std::size_t at = count;
    while (at > 0 && number.digits[at - 1] == '9') --at;
    number.digits.erase(at);
    if (at == 0) {
      number.digits = "1";
      ++number.point;
    } else {
      ++number.digits[at - 1];
    }
  }
  dropOuterZeros(number);
}

/// Digits and point of `value` printed with `count` significant digits, ties to even at the last one.
Decimal printedDigits(double value, int count) {
  // Sign, point, exponent and the longest exact expansion of a double, 767 digits.
  std::array<char, 800> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::scientific, count - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t exponentMark = text.find('e');
  Decimal number;
  number.isNegative = text.front() == '-';
  const std::string_view mantissa =
      text.substr(number.isNegative ? 1 : 0, exponentMark - (number.isNegative ? 1 : 0));
  number.digits = mantissa.front();
  if (mantissa.size() > 1) number.digits.append(mantissa.substr(2));  // behind the point
  int exponent = 0;
  const char* exponentText = text.data() + exponentMark + 1;
  if (*exponentText == '+') ++exponentText;
  std::from_chars(exponentText, written.ptr, exponent);
  number.point = exponent + 1;
  return number;
}

/// The common case of `nearestDouble`: up to 15 digits and a power of ten up to 22 are both exact as double,
/// so that one multiplication or division rounds only once.
std::optional<double> exactlyScaled(const Decimal& number, std::int64_t exponent) {
  constexpr std::array<double, 23> powersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr std::size_t exactDigits = 15;
  const auto power = static_cast<std::size_t>(exponent < 0 ? -exponent : exponent);
  if (number.digits.size() > exactDigits || power >= powersOfTen.size()) return std::nullopt;
  std::int64_t digits = 0;
  std::from_chars(number.digits.data(), number.digits.data() + number.digits.size(), digits);
  const auto whole = static_cast<double>(number.isNegative ? -digits : digits);
  return exponent < 0 ? whole / powersOfTen[power] : whole * powersOfTen[power];
}

}  // namespace

void dropOuterZeros(Decimal& number) {
  const std::size_t first = number.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    number = Decimal{};
    return;
  }
  number.digits.erase(number.digits.find_last_not_of('0') + 1);
  number.digits.erase(0, first);
  number.point -= static_cast<std::int64_t>(first);
}

Decimal significantDigits(double value, int count) {
  if (value == 0.0) return {};
  constexpr int guardDigits = 3;
  constexpr int allDigits = 767;
  const auto kept = static_cast<std::size_t>(count);
  Decimal number = printedDigits(value, count + guardDigits);
  // A tail of exactly one half may be a rounded one: only then look at every digit of the number.
  if (number.digits[kept] == '5' && number.digits.find_first_not_of('0', kept + 1) == std::string::npos) {
    number = printedDigits(value, allDigits);
  }
  keepDigits(number, kept, number.digits[kept] >= '5');
  return number;
}

Decimal scaledDecimal(std::int64_t units, int decimals) {
  Decimal number;
  number.isNegative = units < 0;
  const auto magnitude = number.isNegative ? std::uint64_t{0} - static_cast<std::uint64_t>(units)
                                           : static_cast<std::uint64_t>(units);
  std::array<char, 20> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude);
  number.digits.assign(buffer.data(), written.ptr);
  number.point = static_cast<std::int64_t>(number.digits.size()) - decimals;
  dropOuterZeros(number);
  return number;
}

void roundHalfAway(Decimal& number, int decimals) {
  const std::int64_t kept = number.point + decimals;
  if (kept >= static_cast<std::int64_t>(number.digits.size())) return;
  if (kept < 0) {
    number = Decimal{};
    return;
  }
  const auto count = static_cast<std::size_t>(kept);
  keepDigits(number, count, number.digits[count] >= '5');
}

std::optional<std::int64_t> scaledHalfEven(const Decimal& number, int decimals) {
  constexpr std::int64_t mostDigits = std::numeric_limits<std::int64_t>::digits10 + 1;
  const std::int64_t wholeDigits = number.point + decimals;
  if (number.isZero() || wholeDigits < 0) return 0;
  if (wholeDigits > mostDigits) return std::nullopt;
  const auto kept = static_cast<std::size_t>(wholeDigits);
  std::uint64_t units = 0;
  for (std::size_t at = 0; at < kept; ++at) {
    const char digit = at < number.digits.size() ? number.digits[at] : '0';
    units = units * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  if (kept < number.digits.size()) {
    const bool isHalf = number.digits[kept] == '5' && kept + 1 == number.digits.size();
    if (isHalf ? units % 2 == 1 : number.digits[kept] >= '5') ++units;
  }
  const std::uint64_t limit =
      std::uint64_t{std::numeric_limits<std::int64_t>::max()} + (number.isNegative ? 1 : 0);
  if (units > limit) return std::nullopt;
  return static_cast<std::int64_t>(number.isNegative ? std::uint64_t{0} - units : units);
}

std::optional<double> nearestDouble(const Decimal& number) {
  constexpr std::int64_t beyondLargest = std::numeric_limits<double>::max_exponent10 + 2;
  constexpr std::int64_t belowSmallest = -400;
  if (number.isZero() || number.point < belowSmallest) return 0.0;
  if (number.point > beyondLargest) return std::nullopt;
  const std::int64_t exponent = number.point - static_cast<std::int64_t>(number.digits.size());
  if (const auto exact = exactlyScaled(number, exponent)) return exact;
  std::array<char, 24> exponentText;
  const auto written =
      std::to_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  std::string text = (number.isNegative ? "-" : "") + number.digits + "e";
  text.append(exponentText.data(), written.ptr);
  double value = 0.0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    if (number.point > 0) return std::nullopt;
    return 0.0;
  }
  return value;
}

std::string writeFixed(const Decimal& number, std::string_view decimalSymbol) {
  std::string text = number.isNegative ? "-" : "";
  const auto wholeDigits = static_cast<std::size_t>(std::max<std::int64_t>(number.point, 0));
  if (wholeDigits == 0) text.push_back('0');
  text.append(number.digits, 0, wholeDigits);
  if (wholeDigits > number.digits.size()) text.append(wholeDigits - number.digits.size(), '0');
  if (wholeDigits < number.digits.size()) {
    text.append(decimalSymbol);
    if (number.point < 0) text.append(static_cast<std::size_t>(-number.point), '0');
    text.append(number.digits, wholeDigits);
  }
  return text;
}

std::string describe(double value) {
  constexpr int doubleDigits = 15;
  return std::isfinite(value) ? writeFixed(significantDigits(value, doubleDigits), ".") : "infinity";
}
