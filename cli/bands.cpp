#include "bands.h"

#include <algorithm>

#include "price_function_search.h"

namespace {

/// Whether a lower price brings more.
bool isDead(PriceFunction& sale, Cents price) {
  const Cents first = sale.range().first;
  return price > first && sale.at(price).net < highestNet(sale, {.first = first, .last = price - 1});
}

/// The whole band around a price that brings less than `best`, which a lower price brings.
DeadBand bandAround(PriceFunction& sale, Cents price, Cents best) {
  DeadBand band{.from = price, .to = sale.range().last, .netBefore = best};
  // Rounding can begin to cost a cent just before the jump; then the band begins there.
  while (isDead(sale, band.from - 1)) --band.from;
  const auto asGood = firstReaching(sale, {.first = price, .last = band.to}, [best](Cents) { return best; });
  band.isOpen = !asGood;
  if (asGood) band.to = *asGood - 1;
  for (Cents at = band.from; at <= band.to; ++at)
    band.worstLoss = std::max(band.worstLoss, best - sale.at(at).net);
  return band;
}

}  // namespace

std::vector<DeadBand> deadBands(PriceFunction& sale, Cents upTo) {
  std::vector<DeadBand> bands;
  const std::span<const Cents> pieces = sale.pieces();
  Cents from = sale.range().first;
  for (std::size_t at = 0; at < pieces.size() && pieces[at] <= upTo; ++at) {
    const Cents last = at + 1 < pieces.size() ? pieces[at + 1] - 1 : sale.range().last;
    // Inside a piece rounding alone makes net fall; what falls further has begun below.
    while (from > sale.range().first && from <= last) {
      const Cents best = highestNet(sale, {.first = sale.range().first, .last = from - 1});
      const auto fallen = firstNotAbove(sale, {.first = from, .last = last}, best - kLeastLoss);
      if (!fallen) break;
      bands.push_back(bandAround(sale, *fallen, best));
      from = bands.back().to + 1;
    }
    from = std::max(from, last + 1);
  }
  std::erase_if(bands, [upTo](const DeadBand& band) { return band.from > upTo; });
  return bands;
}
