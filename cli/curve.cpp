#include "curve.h"

#include <algorithm>

namespace {

Curve curveAt(PriceFunction& sale, PriceRange range, const std::vector<Cents>& prices) {
  Curve curve{.range = range, .points = {}, .bands = deadBands(sale, range.last)};
  std::erase_if(curve.bands, [range](const DeadBand& band) { return band.to < range.first; });
  for (const Cents price : prices) curve.points.push_back(sale.at(price));
  return curve;
}

std::vector<Cents> pricesAt(const CurveSteps& steps) {
  const PriceRange range = steps.range;
  std::vector<Cents> prices{range.first};
  const Cents passed = roundedDown(range.first - steps.origin, steps.step);
  for (Cents price = steps.origin + passed + steps.step; price < range.last; price += steps.step)
    prices.push_back(price);
  if (range.first < range.last) prices.push_back(range.last);
  return prices;
}

}  // namespace

Cents roundStep(Cents span, Cents most) {
  for (Cents power = 1;; power *= 10) {
    for (const Cents factor : {1, 2, 5}) {
      if (span <= factor * power * most) return factor * power;
    }
  }
}

Cents roundedUp(Cents amount, Cents step) { return -roundedDown(-amount, step); }

Cents roundedDown(Cents amount, Cents step) {
  const Cents rest = amount % step;
  return amount - (rest < 0 ? rest + step : rest);
}

bool isDead(const Curve& curve, Cents price) {
  return std::any_of(curve.bands.begin(), curve.bands.end(),
                     [price](const DeadBand& band) { return band.from <= price && price <= band.to; });
}

Curve curveAtSteps(PriceFunction& sale, const CurveSteps& steps) {
  return curveAt(sale, steps.range, pricesAt(steps));
}

Curve curveForPicture(PriceFunction& sale, const CurveSteps& steps) {
  const PriceRange range = steps.range;
  std::vector<Cents> prices = pricesAt(steps);
  const auto addBoth = [&](Cents begin) {
    for (const Cents price : {begin - 1, begin}) {
      if (range.first <= price && price <= range.last) prices.push_back(price);
    }
  };
  for (const Cents begin : sale.pieces()) addBoth(begin);
  for (const DeadBand& band : deadBands(sale, range.last)) addBoth(band.to + 1);
  std::sort(prices.begin(), prices.end());
  prices.erase(std::unique(prices.begin(), prices.end()), prices.end());
  return curveAt(sale, range, prices);
}
