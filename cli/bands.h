#pragma once

#include <optional>
#include <vector>

#include "price_function.h"

/// A dead band: prices that leave the seller with less than a lower price does.
struct DeadBand {
  Cents from = 0;       ///< the cent before it is the best price below
  Cents to = 0;         ///< the next cent is as good again, unless the range ends here
  Cents netBefore = 0;  ///< at the cent before
  Cents worstLoss = 0;  ///< of net, against the cent before
  bool isOpen = false;  ///< the range ends before a price is as good again
};

/// A loss of one cent comes from two fees that are rounded up at the same price and is over with the next
/// cents; dead bands begin with a loss of two.
constexpr Cents kLeastLoss = 2;

/// All dead bands that begin up to a price, rising, each whole even if it ends above it.
std::vector<DeadBand> deadBands(PriceFunction& sale, Cents upTo);
