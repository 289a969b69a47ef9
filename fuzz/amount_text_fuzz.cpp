#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "amount_errors.h"
#include "amount_text.h"

/// \file
/// Any text against the readers, and any number against writer and reader. The first byte of the input picks
/// the user's signs. What must hold: nothing crashes; the readers accept exactly the texts that are numeric;
/// and what a writer produces is read as the same value.

namespace {

const std::array<NumberLocale, 4> kLocales{{
    {".", ",", "$"},
    {",", ".", "€"},
    {".", "\u2019", "CHF"},
    {",", "\u202F", "€"},
}};

// Fifteen digits of a number above this round to more than a double can hold.
constexpr double kLargestWrittenDouble = 1.797693134862315e308;

void require(bool holds, const char* rule, std::string_view text) {
  if (holds) return;
  std::cerr << "Broken: " << rule << ", with the text \"" << text << "\"\n";
  std::abort();
}

enum class Outcome { Value, NoNumber, TooLarge };

template <typename Read>
Outcome outcomeOf(Read read, std::string_view text, const NumberLocale& locale) {
  try {
    static_cast<void>(read(text, locale));
    return Outcome::Value;
  } catch (const ConversionError& error) {
    require(error.offendingText() == text, "a conversion error carries the text", text);
    return Outcome::NoNumber;
  } catch (const OverflowError& error) {
    require(error.offendingText() == text, "an overflow error carries the text", text);
    return Outcome::TooLarge;
  }
}

void checkReaders(std::string_view text, const NumberLocale& locale) {
  const bool numeric = isNumeric(text, locale);
  const auto agrees = [&](Outcome outcome) { return numeric == (outcome != Outcome::NoNumber); };
  const Outcome asDouble = outcomeOf(toDouble, text, locale);
  require(agrees(asDouble), "a double is read from what is numeric", text);
  require(agrees(outcomeOf(toSingle, text, locale)), "a single is read from what is numeric", text);
  require(agrees(outcomeOf(toInteger16, text, locale)), "a whole number is read from what is numeric", text);
  require(agrees(outcomeOf(toCurrency, text, locale)), "a currency is read from what is numeric", text);
  if (asDouble == Outcome::TooLarge) return;
  const std::string shown = twoDecimals(text, locale);
  require(numeric ? isNumeric(shown, locale) : shown == text, "the pattern keeps the kind of text", text);
  require(twoDecimals(std::string_view(shown), locale) == shown, "the pattern changes nothing twice", text);
}

/// The single nearest to these two powers of ten has other seven digits: they are read as a little less.
bool isReadAsLess(std::string_view plain, const NumberLocale& locale) {
  const double written = std::abs(toDouble(plain, locale));
  return written == 1e28 || written == 1e-38;
}

void checkRoundTrip(float value, const NumberLocale& locale) {
  if (!std::isfinite(value)) return;
  const std::string plain = plainText(value, locale);
  if (isReadAsLess(plain, locale)) return;
  require(plainText(toSingle(plain, locale), locale) == plain, "a plain single is read again", plain);
  const std::string shown = twoDecimals(value, locale);
  require(twoDecimals(toSingle(shown, locale), locale) == shown, "a shown single is read again", shown);
}

void checkRoundTrip(double value, const NumberLocale& locale) {
  if (!(std::abs(value) <= kLargestWrittenDouble)) return;
  const std::string plain = plainText(value, locale);
  require(plainText(toDouble(plain, locale), locale) == plain, "a plain double is read again", plain);
  const std::string shown = twoDecimals(value, locale);
  require(twoDecimals(toDouble(shown, locale), locale) == shown, "a shown double is read again", shown);
}

void checkRoundTrip(Currency value, const NumberLocale& locale) {
  const std::string plain = plainText(value, locale);
  require(toCurrency(plain, locale) == value, "a plain currency is read exactly", plain);
  const std::string shown = twoDecimals(value, locale);
  require(twoDecimals(toCurrency(shown, locale), locale) == shown, "a shown currency is read again", shown);
}

/// The first bytes of the input as a number of any size; missing bytes are zero.
template <typename Value>
Value numberFrom(std::string_view bytes) {
  Value value{};
  if (!bytes.empty()) std::memcpy(&value, bytes.data(), std::min(bytes.size(), sizeof value));
  return value;
}

/// Numbers that a text means are nearer to what users write than numbers from raw bytes.
void checkNumberOf(std::string_view text, const NumberLocale& locale) {
  try {
    const double value = toDouble(text, locale);
    checkRoundTrip(value, locale);
    checkRoundTrip(toSingle(text, locale), locale);
    checkRoundTrip(toCurrency(text, locale), locale);
  } catch (const AmountError&) {
    // No number, or too large for the next type: checkReaders has judged that.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const NumberLocale& locale = kLocales[data[0] % kLocales.size()];
  std::string text(size - 1, '\0');
  if (!text.empty()) std::memcpy(text.data(), data + 1, text.size());
  checkReaders(text, locale);
  checkNumberOf(text, locale);
  checkRoundTrip(numberFrom<float>(text), locale);
  checkRoundTrip(numberFrom<double>(text), locale);
  checkRoundTrip(Currency::fromTenThousandths(numberFrom<std::int64_t>(text)), locale);
  return 0;
}
