#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a name that does not exist was probably meant to be: the first of those from which it differs by the
/// fewest letters typed wrongly, left out, too many or swapped with their neighbour. Empty if that is more
/// than one letter in three, or more than two.
[[nodiscard]] std::string nearestName(std::string_view name, const std::vector<std::string>& names);
