#include "stored_rate.h"

#include <optional>

#include "decimal.h"

namespace {

const NumberLocale kPoint{".", ",", "$"};
const NumberLocale kComma{",", ".", "$"};

bool isSameNumber(const std::optional<Decimal>& a, const std::optional<Decimal>& b) {
  if (!a || !b) return !a && !b;
  return a->isNegative == b->isNegative && a->digits == b->digits && a->point == b->point;
}

std::string replaced(std::string text, std::string_view sign, std::string_view by) {
  if (sign.empty()) return text;
  for (std::size_t at = text.find(sign); at != std::string::npos; at = text.find(sign, at + by.size()))
    text.replace(at, sign.size(), by);
  return text;
}

/// The same number with other signs: without group signs, and `decimal` for the one that was.
std::string respelt(std::string_view text, const NumberLocale& from, std::string_view decimal) {
  return replaced(replaced(std::string(text), from.group, ""), from.decimal, decimal);
}

}  // namespace

std::string rateToStore(std::string_view shown, const NumberLocale& locale) {
  const bool hasComma = shown.find(',') != std::string_view::npos;
  const std::optional<Decimal> number = parseDecimal(shown, locale);
  // As it was typed, where a point can be read in one way only.
  if (!number || (!hasComma && isSameNumber(number, parseDecimal(shown, kPoint)))) return std::string(shown);
  return respelt(shown, locale, ".");
}

std::string rateFromStore(std::string_view stored, const NumberLocale& locale) {
  const std::size_t point = stored.find_last_of('.');
  const std::size_t comma = stored.find_last_of(',');
  const bool hasComma = comma != std::string_view::npos;
  const bool isCommaLast = hasComma && (point == std::string_view::npos || comma > point);
  const NumberLocale& signs = isCommaLast ? kComma : kPoint;
  if (!parseDecimal(stored, signs)) return std::string(stored);
  return respelt(stored, signs, locale.decimal);
}
