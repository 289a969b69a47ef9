#include "solve.h"

#include "price_function_search.h"

std::optional<Solution> solve(PriceFunction& sale, const Target& target) {
  const auto price = firstReaching(sale, sale.range(), [&target](Cents at) { return target.neededAt(at); });
  if (!price) return std::nullopt;
  Solution solution{.answer = sale.at(*price), .below = {}};
  if (*price > sale.range().first) solution.below = sale.at(*price - 1);
  return solution;
}
