#include "amount_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "amount_errors.h"
#include "decimal.h"
#include "short_amount.h"

namespace {

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;
constexpr int kShownDecimals = 2;
constexpr std::string_view kNoLead;
constexpr std::string_view kLeadingBlank = " ";

Decimal decimalOf(std::string_view text, const NumberLocale& locale) {
  auto number = parseDecimal(text, locale);
  if (!number) throw ConversionError(text);
  return *std::move(number);
}

double doubleOf(const Decimal& number, std::string_view text) {
  const auto value = nearestDouble(number);
  if (!value) throw OverflowError(text);
  return *value;
}

Decimal digitsOf(float value) { return significantDigits(static_cast<double>(value), kSingleDigits); }
Decimal digitsOf(double value) { return significantDigits(value, kDoubleDigits); }
Decimal digitsOf(Currency value) { return scaledDecimal(value.tenThousandths(), Currency::decimals); }

std::string withLeadingBlank(const Decimal& number, std::string text) {
  if (!number.isNegative) text.insert(text.begin(), ' ');
  return text;
}

/// "1.234568E+08": one digit before the decimal symbol, at least two digits in the exponent.
std::string writeScientific(Decimal number, const NumberLocale& locale) {
  const std::int64_t exponent = number.point - 1;
  number.point = 1;
  std::array<char, 24> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), exponent);
  std::string text = writeFixed(number, locale.decimal) + "E+";
  if (exponent < 10) text.push_back('0');
  return text.append(digits.data(), written.ptr);
}

std::string plainDigits(const Decimal& number, int mostDigits, const NumberLocale& locale) {
  const bool isScientific = number.point > mostDigits;
  return withLeadingBlank(
      number, isScientific ? writeScientific(number, locale) : writeFixed(number, locale.decimal));
}

std::string twoDecimalDigits(Decimal number, const NumberLocale& locale) {
  roundHalfAway(number, kShownDecimals);
  std::string text = writeFixed(number, locale.decimal);
  const std::int64_t behind = static_cast<std::int64_t>(number.digits.size()) - number.point;
  const std::int64_t shown = number.isZero() || behind < 0 ? 0 : behind;
  if (shown == 0) text.append(locale.decimal);
  return text.append(static_cast<std::size_t>(kShownDecimals - shown), '0');
}

std::string shortPlain(ShortAmount amount, const NumberLocale& locale) {
  return write(withoutTrailingZeros(amount), kLeadingBlank, locale.decimal);
}

std::string shortTwoDecimals(ShortAmount amount, const NumberLocale& locale) {
  return write(withTwoDecimals(amount), kNoLead, locale.decimal);
}

/// Ten-thousandths that leave room for rounding.
std::optional<ShortAmount> shortAmountOf(Currency value) {
  constexpr std::int64_t most = 100'000'000'000'000'000;
  const std::int64_t units = value.tenThousandths();
  if (units > most || units < -most) return std::nullopt;
  return ShortAmount{units, Currency::decimals};
}

}  // namespace

bool isNumeric(std::string_view text, const NumberLocale& locale) {
  return shortAmountOf(text, locale).has_value() || parseDecimal(text, locale).has_value();
}

double toDouble(std::string_view text, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(text, locale)) return toDouble(*amount);
  return doubleOf(decimalOf(text, locale), text);
}

float toSingle(std::string_view text, const NumberLocale& locale) {
  const auto value = static_cast<float>(toDouble(text, locale));
  if (!std::isfinite(value)) throw OverflowError(text);
  return value;
}

std::int16_t toInteger16(std::string_view text, const NumberLocale& locale) {
  using Limits = std::numeric_limits<std::int16_t>;
  const auto amount = shortAmountOf(text, locale);
  if (amount && amount->decimals == 0 && amount->units >= Limits::min() && amount->units <= Limits::max())
    return static_cast<std::int16_t>(amount->units);
  const auto value = scaledHalfEven(decimalOf(text, locale), 0);
  if (!value || *value < Limits::min() || *value > Limits::max()) throw OverflowError(text);
  return static_cast<std::int16_t>(*value);
}

Currency toCurrency(std::string_view text, const NumberLocale& locale) {
  const auto amount = shortAmountOf(text, locale);
  if (amount && amount->decimals <= kShownDecimals) {
    constexpr std::int64_t unitsPerCent = 100;
    return Currency::fromTenThousandths(withTwoDecimals(*amount).units * unitsPerCent);
  }
  const auto units = scaledHalfEven(decimalOf(text, locale), Currency::decimals);
  if (!units) throw OverflowError(text);
  return Currency::fromTenThousandths(*units);
}

float storedAsSingle(double value) {
  const auto stored = static_cast<float>(value);
  if (!std::isfinite(stored)) throw OverflowError(describe(value));
  return stored;
}

std::string plainText(float value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(static_cast<double>(value), kSingleDigits))
    return shortPlain(*amount, locale);
  return plainDigits(digitsOf(value), kSingleDigits, locale);
}

std::string plainText(double value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(value, kDoubleDigits)) return shortPlain(*amount, locale);
  return plainDigits(digitsOf(value), kDoubleDigits, locale);
}

std::string plainText(Currency value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(value)) return shortPlain(*amount, locale);
  const Decimal number = digitsOf(value);
  return withLeadingBlank(number, writeFixed(number, locale.decimal));
}

std::string twoDecimals(float value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(static_cast<double>(value), kSingleDigits))
    return shortTwoDecimals(*amount, locale);
  return twoDecimalDigits(digitsOf(value), locale);
}

std::string twoDecimals(double value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(value, kDoubleDigits)) return shortTwoDecimals(*amount, locale);
  return twoDecimalDigits(digitsOf(value), locale);
}

std::string twoDecimals(Currency value, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(value)) return shortTwoDecimals(*amount, locale);
  return twoDecimalDigits(digitsOf(value), locale);
}

std::string twoDecimals(std::string_view text, const NumberLocale& locale) {
  if (const auto amount = shortAmountOf(text, locale)) return shortTwoDecimals(*amount, locale);
  auto number = parseDecimal(text, locale);
  if (!number) return std::string(text);
  doubleOf(*number, text);  // a number that no box can use must not grow into a text of a billion digits
  return twoDecimalDigits(*std::move(number), locale);
}

std::string withDecimalSymbol(std::string_view pointDecimal, const NumberLocale& locale) {
  std::string text(pointDecimal);
  if (const std::size_t point = text.find('.'); point != std::string::npos)
    text.replace(point, 1, locale.decimal);
  return text;
}
