#include "currency.h"

#include <cmath>
#include <limits>

#include "amount_errors.h"
#include "decimal.h"

namespace {

constexpr long double kUnitsPerOne = 10000.0L;

}  // namespace

Currency Currency::fromNumber(double value) {
  // Extended precision keeps the product exact enough to see a half; the default rounding is half to even.
  const long double units = std::rint(static_cast<long double>(value) * kUnitsPerOne);
  constexpr long double limit = 9223372036854775808.0L;  // two to the power of 63
  if (!(units >= -limit && units < limit)) throw OverflowError(describe(value));
  return Currency(static_cast<std::int64_t>(units));
}

double Currency::toDouble() const {
  return static_cast<double>(static_cast<long double>(m_units) / kUnitsPerOne);
}

Currency operator+(Currency left, Currency right) {
  using Limits = std::numeric_limits<std::int64_t>;
  const bool isTooLarge = right.m_units > 0 && left.m_units > Limits::max() - right.m_units;
  const bool isTooSmall = right.m_units < 0 && left.m_units < Limits::min() - right.m_units;
  if (isTooLarge || isTooSmall) {
    throw OverflowError(describe(left.toDouble()) + " + " + describe(right.toDouble()));
  }
  return Currency(left.m_units + right.m_units);
}
