#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "fee_schedule.h"

/// \file
/// The figures of the schedule in words. The figures themselves are the schedule's.

enum class FigureUnit : std::uint8_t { Amount, Bound, Rate, ExchangeRate };

/// What a nought in the schedule means.
enum class FigureZero : std::uint8_t {
  Free,               ///< offered, and costs nothing
  Absent,             ///< the site has nothing of the kind
  FreeBesideReserve,  ///< free on a site that has reserves, absent on others
  NeverAsked          ///< no listing leads to the figure, on any site, whatever it is
};

struct FigureName {
  Figure figure;
  std::string_view name;
  FigureUnit unit;
  FigureZero zero;
};

/// One name for each figure, in the order of `Figure`.
[[nodiscard]] std::span<const FigureName, kFigureCount> figureNames();
