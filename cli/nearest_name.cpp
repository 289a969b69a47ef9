#include "nearest_name.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

/// How many letters were typed wrongly, left out, added or swapped with their neighbour.
std::size_t mistakes(std::string_view typed, std::string_view meant) {
  // A row for each beginning of what was typed: how far it is from each beginning of what was meant.
  std::vector<std::size_t> beforeLast;
  std::vector<std::size_t> last(meant.size() + 1);
  std::iota(last.begin(), last.end(), 0U);
  for (std::size_t i = 1; i <= typed.size(); ++i) {
    std::vector<std::size_t> row{i};
    for (std::size_t j = 1; j <= meant.size(); ++j) {
      const std::size_t wrong = typed[i - 1] == meant[j - 1] ? 0 : 1;
      row.push_back(std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + wrong}));
      if (i > 1 && j > 1 && typed[i - 1] == meant[j - 2] && typed[i - 2] == meant[j - 1])
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    beforeLast = std::exchange(last, std::move(row));
  }
  return last.back();
}

}  // namespace

std::string nearestName(std::string_view name, const std::vector<std::string>& names) {
  constexpr std::size_t lettersPerMistake = 3;
  constexpr std::size_t mostMistakes = 2;
  std::string nearest;
  std::size_t tooMany = std::min(name.size() / lettersPerMistake, mostMistakes) + 1;
  for (const std::string& candidate : names) {
    const std::size_t count = mistakes(name, candidate);
    if (count >= tooMany) continue;
    tooMany = count;
    nearest = candidate;
  }
  return nearest;
}
