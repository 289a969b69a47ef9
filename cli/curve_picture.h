#pragma once

#include <string>

#include "curve.h"

/// The curve as a picture: net above, fees below, over the same prices, dead bands shaded. A whole SVG
/// document that stands by itself, follows the reader's light or dark scheme, and says in words what it
/// shows. Numbers are written in the locale of the sale.
[[nodiscard]] std::string pictureOf(const Curve& curve, const PriceFunction& sale);
