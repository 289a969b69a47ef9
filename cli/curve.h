#pragma once

#include <vector>

#include "bands.h"

/// A stretch of a sale as a function of its price, to be shown.
struct Curve {
  PriceRange range;
  std::vector<SaleResult> points;  ///< rising by price, from the first of the range to its last
  std::vector<DeadBand> bands;     ///< those that reach into the range
};

/// The prices origin, origin + step and so on as far as they lie in the range, and both its ends.
struct CurveSteps {
  PriceRange range;
  Cents origin = 0;  ///< not above the first of the range
  Cents step = 1;    ///< above zero
};

/// The lowest step of 1, 2 or 5 times a power of ten cents that goes at most `most` times into the span.
[[nodiscard]] Cents roundStep(Cents span, Cents most);

/// The lowest multiple of a step that is not below the amount, and the highest that is not above it.
[[nodiscard]] Cents roundedUp(Cents amount, Cents step);
[[nodiscard]] Cents roundedDown(Cents amount, Cents step);

/// Whether a price lies in a dead band of the curve.
[[nodiscard]] bool isDead(const Curve& curve, Cents price);

/// The points at the steps.
Curve curveAtSteps(PriceFunction& sale, const CurveSteps& steps);

/// Besides, the prices on both sides of every bound and of every band's ends, so that a jump is as steep as
/// it is.
Curve curveForPicture(PriceFunction& sale, const CurveSteps& steps);
