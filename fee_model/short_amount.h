#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "number_locale.h"

/// An amount of few digits as a whole number of its last decimals: 12.5 is 125 with one decimal. Nearly every
/// amount that a seller meets is one. What is none is left to Decimal, which knows every number and gives the
/// same results: this is a shorter way to them and nothing else.
struct ShortAmount {
  std::int64_t units = 0;
  int decimals = 0;  ///< 0 to 17
};

/// Reads digits with at most one decimal symbol, and one blank and a minus before them; at most 14 digits.
/// Nothing for any other text, which may still be a number.
[[nodiscard]] std::optional<ShortAmount> shortAmountOf(std::string_view text, const NumberLocale& locale);

/// The first `digits` significant digits (7 or 15) of a number, ties away from zero; nothing for what is
/// below one cent or has more digits before the decimal symbol.
[[nodiscard]] std::optional<ShortAmount> shortAmountOf(double value, int digits);

/// Rounded half away from zero, or with zeros behind it.
[[nodiscard]] ShortAmount withTwoDecimals(ShortAmount amount);

[[nodiscard]] ShortAmount withoutTrailingZeros(ShortAmount amount);

/// The nearest double, of an amount that was read.
[[nodiscard]] double toDouble(ShortAmount amount);

/// "-1.50": all its decimals. `lead` stands before what is not negative.
[[nodiscard]] std::string write(ShortAmount amount, std::string_view lead, std::string_view decimalSymbol);
