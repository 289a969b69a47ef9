#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "number_locale.h"

/// A decimal number as its digits, for rounding and writing what a seller would round and write on paper.
/// Its value is 0.d1d2d3... times ten to the power of `point`. It does no arithmetic: sums and products are
/// made in the binary types, or in `Currency`.
struct Decimal {
  bool isNegative = false;
  std::string digits;      ///< '0' to '9', neither first nor last is '0'; empty for zero
  std::int64_t point = 0;  ///< how many digits stand before the decimal symbol; may be negative

  [[nodiscard]] bool isZero() const { return digits.empty(); }
};

/// Drops the zeros at both ends of the digits, as a Decimal has none there.
void dropOuterZeros(Decimal& number);

/// Reads a number as a user writes it, or nothing if the whole text is not one. Accepted are: blanks at both
/// ends; one leading or trailing sign, or one pair of parentheses for minus; one currency sign in front or
/// behind, with blanks between it and the digits; digits with at most one decimal symbol; group signs
/// after the first digit of the whole part; an exponent. In a comma locale, a single point without a
/// comma is a decimal point (a stored "0.7854", a keypad), except in texts like "1.234".
std::optional<Decimal> parseDecimal(std::string_view text, const NumberLocale& locale);

/// The first `count` significant digits of a binary number (1 to 17), from its exact value, ties away
/// from zero. `value` must be finite.
Decimal significantDigits(double value, int count);

/// `units` divided by ten to the power of `decimals`, exactly.
Decimal scaledDecimal(std::int64_t units, int decimals);

/// Rounds to `decimals` places behind the decimal symbol, half away from zero.
void roundHalfAway(Decimal& number, int decimals);

/// The number times ten to the power of `decimals`, rounded half to even; nothing if it exceeds 64 bits.
std::optional<std::int64_t> scaledHalfEven(const Decimal& number, int decimals);

/// The nearest double, ties to even; nothing if it exceeds the range. Too small a number is 0.
std::optional<double> nearestDouble(const Decimal& number);

/// "-1.5", "0.35", all digits, without exponent.
std::string writeFixed(const Decimal& number, std::string_view decimalSymbol);

/// A number for the text of an error: with a point, "infinity" for what is not finite.
std::string describe(double value);
