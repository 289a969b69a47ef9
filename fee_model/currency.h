#pragma once

#include <compare>
#include <cstdint>

/// An amount of money as a 64-bit count of ten-thousandths, from about -922337203685477 to +922337203685477.
/// The window sums its fees in this type, so that no cent is lost on the way. It knows no currency sign
/// and no text; see amount_text.h.
class Currency {
 public:
  static constexpr int decimals = 4;

  constexpr Currency() = default;

  static constexpr Currency fromTenThousandths(std::int64_t units) { return Currency(units); }

  /// The amount nearest to `value`, half to even at the fourth decimal. Throws OverflowError out of range.
  static Currency fromNumber(double value);

  [[nodiscard]] constexpr std::int64_t tenThousandths() const { return m_units; }
  [[nodiscard]] double toDouble() const;

  /// Throws OverflowError if the sum is out of range.
  friend Currency operator+(Currency left, Currency right);

  // NOLINTNEXTLINE(modernize-use-nullptr): the check misreads every defaulted comparison
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  explicit constexpr Currency(std::int64_t units) : m_units(units) {}

  std::int64_t m_units = 0;
};
