#pragma once

#include <vector>

#include "bands.h"

/// A stretch of a sale as a function of its price, to be shown.
struct Curve {
  PriceRange range;
  Cents step = 1;
  std::vector<SaleResult> points;  ///< rising by price, from the first of the range
  std::vector<DeadBand> bands;     ///< those that reach into the range
};

/// Whether a price lies in a dead band of the curve.
[[nodiscard]] bool isDead(const Curve& curve, Cents price);

/// The points at every step; the last may lie below the end of the range.
Curve curveAtSteps(PriceFunction& sale, PriceRange range, Cents step);

/// Besides, the end of the range, and the prices on both sides of every bound and of every band's ends, so
/// that a jump is as steep as it is.
Curve curveForPicture(PriceFunction& sale, PriceRange range, Cents step);
