#include <fmt/format.h>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

/// For which part of a price a tier stands: "above 25.00 up to 1000.00".
std::string boundsOf(const FinalValueParts::Part& part, const ExplainWords& words) {
  const auto money = [&words](double bound) { return words.money(Currency::fromNumber(bound)); };
  std::string bounds;
  if (part.above > 0.0) bounds = "above " + money(part.above);
  if (part.upTo > 0.0) bounds += (bounds.empty() ? "up to " : " up to ") + money(part.upTo);
  return bounds;
}

}  // namespace

std::vector<ExplainedStep> explainSale(const CAuctionSite& site, const std::string& price, int count,
                                       const ExplainWords& words) {
  const NumberLocale& locale = words.locale();
  const FinalValueParts tiers(site, price.empty() ? 0.0F : toSingle(price, locale));
  // What the tiers leave of the price as it was entered: in single precision it can have other digits.
  Currency left = amountOf(price, locale);
  std::vector<ExplainedStep> steps;
  for (const FinalValueParts::Part& part : tiers.parts()) {
    const bool isLast = steps.size() + 1 == tiers.parts().size();
    const Currency base = isLast ? left : Currency::fromNumber(part.base);
    left = left - base;
    const std::string each = words.percent(part.share) + " of " + words.money(base);
    steps.push_back({.name = fmt::format("Final value, tier {}", steps.size() + 1),
                     .amount = shareOf(part.share, base.toDouble() * static_cast<double>(count)),
                     .rule = fmt::format("{}{} ({})", count > 1 ? fmt::format("{} x ", count) : "", each,
                                         boundsOf(part, words))});
  }
  return steps;
}
