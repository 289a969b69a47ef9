#include "price_function_search.h"

#include <algorithm>

namespace {

/// Calls `search` with each piece, as far as it lies in the range, until it answers true.
template <typename Search>
void searchPieces(const PriceFunction& sale, PriceRange range, const Search& search) {
  const std::span<const Cents> pieces = sale.pieces();
  for (std::size_t at = 0; at < pieces.size(); ++at) {
    const Cents last = at + 1 < pieces.size() ? pieces[at + 1] - 1 : sale.range().last;
    const PriceRange piece{.first = std::max(pieces[at], range.first), .last = std::min(last, range.last)};
    if (piece.first <= piece.last && search(piece)) return;
  }
}

Cents middleOf(PriceRange piece) { return piece.first + (piece.last - piece.first) / 2; }

/// The lowest price of a piece for which `mayHold` is true; of a single price it must be exact, of several it
/// must not be false if it is true for one of them.
template <typename MayHold>
std::optional<Cents> firstInPiece(PriceRange piece, const MayHold& mayHold) {
  if (!mayHold(piece)) return std::nullopt;
  if (piece.first == piece.last) return piece.first;
  const Cents middle = middleOf(piece);
  const auto found = firstInPiece({.first = piece.first, .last = middle}, mayHold);
  return found ? found : firstInPiece({.first = middle + 1, .last = piece.last}, mayHold);
}

template <typename MayHold>
std::optional<Cents> firstInRange(const PriceFunction& sale, PriceRange range, const MayHold& mayHold) {
  std::optional<Cents> found;
  searchPieces(sale, range, [&](PriceRange piece) {
    found = firstInPiece(piece, mayHold);
    return found.has_value();
  });
  return found;
}

/// What the seller would be left with if the fees of one price were due on another.
Cents netWithFeesOf(PriceFunction& sale, Cents price, Cents feesOf) {
  return price + sale.sale().shippingCharged - sale.totalFees(feesOf);
}

void raiseToHighest(PriceFunction& sale, PriceRange piece, std::optional<Cents>& best) {
  const Cents atMost = netWithFeesOf(sale, piece.last, piece.first);
  if (best && atMost <= *best) return;
  if (piece.first == piece.last) {
    best = atMost;
    return;
  }
  // The upper half first: it is likely to hold the best, and then the lower one is left out.
  const Cents middle = middleOf(piece);
  raiseToHighest(sale, {.first = middle + 1, .last = piece.last}, best);
  raiseToHighest(sale, {.first = piece.first, .last = middle}, best);
}

}  // namespace

std::optional<Cents> firstReaching(PriceFunction& sale, PriceRange range,
                                   const std::function<Cents(Cents price)>& needed) {
  return firstInRange(sale, range, [&](PriceRange piece) {
    return netWithFeesOf(sale, piece.last, piece.first) >= needed(piece.last);
  });
}

std::optional<Cents> firstNotAbove(PriceFunction& sale, PriceRange range, Cents net) {
  return firstInRange(sale, range,
                      [&](PriceRange piece) { return netWithFeesOf(sale, piece.first, piece.last) <= net; });
}

Cents highestNet(PriceFunction& sale, PriceRange range) {
  std::optional<Cents> best;
  searchPieces(sale, range, [&](PriceRange piece) {
    raiseToHighest(sale, piece, best);
    return false;
  });
  return best.value();
}
