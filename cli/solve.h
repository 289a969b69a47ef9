#pragma once

#include <optional>

#include "price_function.h"

/// What a sale has to bring: a fixed amount and a share of the price.
struct Target {
  static constexpr std::int64_t wholePrice = 1'000'000;  ///< a margin of 100 %

  Cents fixed = 0;
  std::int64_t margin = 0;  ///< in ten-thousandths of a percent, at most `wholePrice`

  /// Parts of a cent count as a whole one: net has none.
  [[nodiscard]] Cents neededAt(Cents price) const {
    return fixed + (margin * price + wholePrice - 1) / wholePrice;
  }
};

/// The lowest price that reaches a target, and the proof that it is.
struct Solution {
  SaleResult answer;
  std::optional<SaleResult> below;  ///< one cent less; nothing if it cannot sell for less
};

/// The lowest price, to the cent, at which net is what is needed or more; nothing if no price reaches it.
std::optional<Solution> solve(PriceFunction& sale, const Target& target);
