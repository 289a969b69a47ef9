#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "currency.h"
#include "number_locale.h"

/// \file
/// Amounts travel through the program as texts; here are all conversions between them and numbers. Every
/// text is UTF-8 and every function takes the user's signs as a parameter. The readers accept exactly what
/// `isNumeric` accepts, and whatever the writers produce (but for the last few doubles below the largest,
/// whose 15 digits are rounded beyond it).
///
/// The readers throw ConversionError for what is not a number, OverflowError for what is too large.

/// True if the whole text is a number as `parseDecimal` (decimal.h) reads it, however large.
bool isNumeric(std::string_view text, const NumberLocale& locale);

/// The nearest binary64.
double toDouble(std::string_view text, const NumberLocale& locale);

/// The nearest binary64, rounded once more to binary32.
float toSingle(std::string_view text, const NumberLocale& locale);

/// The nearest 16-bit whole number, half to even.
std::int16_t toInteger16(std::string_view text, const NumberLocale& locale);

/// The nearest ten-thousandth, half to even, from the exact decimal digits.
Currency toCurrency(std::string_view text, const NumberLocale& locale);

/// A product or sum, made in double, as it is stored: in binary32. Throws OverflowError if it does not fit.
float storedAsSingle(double value);

/// Plain form: at most 7 (float) or 15 (double) significant digits, no fixed decimals, a leading blank for
/// what is not negative, an exponent from 1E7 (float) or 1E15 (double) on: " 0.35", "-1.5", " 1.234568E+08".
/// `value` must be finite, here and in twoDecimals.
std::string plainText(float value, const NumberLocale& locale);
std::string plainText(double value, const NumberLocale& locale);
std::string plainText(Currency value, const NumberLocale& locale);

/// The pattern "0.00": two decimals, no grouping. What is rounded, half away from zero, is the decimal that
/// `plainText` would show and not the binary value: 0.525 as float is 0.53 although its binary value is
/// less than that.
std::string twoDecimals(float value, const NumberLocale& locale);
std::string twoDecimals(double value, const NumberLocale& locale);
std::string twoDecimals(Currency value, const NumberLocale& locale);

/// The pattern "0.00" of a text: all its digits count. A text that is no number stays as it is, so "" stays
/// "". Throws OverflowError beyond the range of a double.
std::string twoDecimals(std::string_view text, const NumberLocale& locale);

/// A fixed amount such as "$0.01", written with a point in the source, with the user's decimal symbol.
std::string withDecimalSymbol(std::string_view pointDecimal, const NumberLocale& locale);
