#include "curve.h"

#include <algorithm>

namespace {

Curve curveAt(PriceFunction& sale, PriceRange range, Cents step, const std::vector<Cents>& prices) {
  Curve curve{.range = range, .step = step, .points = {}, .bands = deadBands(sale, range.last)};
  std::erase_if(curve.bands, [range](const DeadBand& band) { return band.to < range.first; });
  for (const Cents price : prices) curve.points.push_back(sale.at(price));
  return curve;
}

std::vector<Cents> steps(PriceRange range, Cents step) {
  std::vector<Cents> prices;
  for (Cents price = range.first; price <= range.last; price += step) prices.push_back(price);
  return prices;
}

}  // namespace

bool isDead(const Curve& curve, Cents price) {
  return std::any_of(curve.bands.begin(), curve.bands.end(),
                     [price](const DeadBand& band) { return band.from <= price && price <= band.to; });
}

Curve curveAtSteps(PriceFunction& sale, PriceRange range, Cents step) {
  return curveAt(sale, range, step, steps(range, step));
}

Curve curveForPicture(PriceFunction& sale, PriceRange range, Cents step) {
  std::vector<Cents> prices = steps(range, step);
  prices.push_back(range.last);
  const auto addBoth = [&](Cents begin) {
    for (const Cents price : {begin - 1, begin}) {
      if (range.first <= price && price <= range.last) prices.push_back(price);
    }
  };
  for (const Cents begin : sale.pieces()) addBoth(begin);
  for (const DeadBand& band : deadBands(sale, range.last)) addBoth(band.to + 1);
  std::sort(prices.begin(), prices.end());
  prices.erase(std::unique(prices.begin(), prices.end()), prices.end());
  return curveAt(sale, range, step, prices);
}
