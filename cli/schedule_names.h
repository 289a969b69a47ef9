#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "fee_schedule.h"

/// \file
/// The figures of the schedule in words. The figures themselves are the schedule's.

enum class FigureUnit : std::uint8_t { Amount, Bound, Rate, ExchangeRate };

/// What a nought in the schedule means, and so whether a site's answer has a row for it.
enum class FigureZero : std::uint8_t {
  Free,               ///< offered, and costs nothing
  NoRule,             ///< the site has no such rule
  FreeBesideReserve,  ///< free on a site that has reserves
  OnlyOnEBayCom,      ///< whatever the figure, it is offered on eBay.com alone
  NeverAsked          ///< no listing leads to it, on any site
};

struct FigureName {
  Figure figure;
  std::string_view name;
  FigureUnit unit;
  FigureZero zero;
};

/// One name for each figure, in the order of `Figure`.
[[nodiscard]] std::span<const FigureName, kFigureCount> figureNames();
