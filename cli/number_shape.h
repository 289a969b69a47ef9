#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "number_locale.h"
#include "option_table.h"

/// \file
/// How the signs of a number may be placed. What else stands in it, and its value, are the amounts' own.

/// So many digits stand behind every sign that groups.
inline constexpr std::size_t kGroupDigits = 3;

/// Whether an amount or a rate can be one with that decimal sign, '.' or ','. It has at most one such sign,
/// and before that the other only where it groups: "1,234,567.5" in threes, with one to three digits and no
/// nought in front. A rate is near one: nothing is grouped in it. True for a text without such signs.
[[nodiscard]] bool isShapedWith(char decimal, std::string_view text, OptionKind kind);

/// Whether the signs of an amount or a rate say what it means: with the decimal sign of a user who has said
/// which he writes, or by themselves, because it can be a number with a point only.
[[nodiscard]] bool hasClearSigns(std::string_view text, OptionKind kind, const NumberLocale& locale,
                                 bool hasDecimal);

/// An amount without the blanks that group it in threes: "1 234,56" is "1234,56". They are those of the
/// keyboard and the no-break spaces. Any other text stays as it is, and so does a rate.
[[nodiscard]] std::string withoutGroupBlanks(std::string_view text, OptionKind kind);
