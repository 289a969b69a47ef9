#pragma once

#include <functional>
#include <optional>

#include "price_function.h"

/// \file
/// Exact searches over the prices of a sale. Net is not monotone, neither where fees jump nor, by a cent,
/// where two fees round up at once. But inside a piece no fee falls as the price rises; so the best that
/// prices from a to b could bring is b with the fees of a, and the worst is a with the fees of b. Ranges that
/// cannot hold what is looked for are left out, and halves of the others are searched: no cent is passed
/// over.

/// The lowest price of the range whose net is at least what is needed at it. Of one price to the next, what
/// is needed must not rise by more than a cent, nor fall.
std::optional<Cents> firstReaching(PriceFunction& sale, PriceRange range,
                                   const std::function<Cents(Cents price)>& needed);

/// The lowest price of the range whose net is at most this.
std::optional<Cents> firstNotAbove(PriceFunction& sale, PriceRange range, Cents net);

/// The highest net of a range that is not empty.
Cents highestNet(PriceFunction& sale, PriceRange range);
