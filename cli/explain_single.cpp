#include <fmt/format.h>

#include <array>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

/// One single item under explanation: its site, its prices, and how it ended.
class SingleExplanation {
 public:
  SingleExplanation(const Listing& listing, const ExplainWords& words, const Fees& fees)
      : m_choices(listing.single),
        m_words(words),
        m_fees(fees),
        m_openingText(listing.opening),
        m_opening(single(listing.opening)),
        m_isSold(fees.sold.count > 0) {
    m_site.Site(listing.site);
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    std::vector<ExplainedFee> explained{{.name = "Listing fee",
                                         .steps = {insertion()},
                                         .figure = m_fees.insertion,
                                         .rule = {},
                                         .partOf = kTotalFees}};
    if (m_choices.hasReserve()) explained.push_back(reserve());
    explained.push_back(finalValue());
    explained.push_back(features());
    explained.push_back(
        {.name = kTotalFees, .steps = {}, .figure = m_fees.total, .rule = totalRule(), .partOf = {}});
    explained.push_back({.name = "Net", .steps = {}, .figure = m_fees.net, .rule = netRule(), .partOf = {}});
    return explained;
  }

 private:
  /// A fee that two categories double.
  [[nodiscard]] ExplainedStep step(std::string name, Currency fee, std::string rule) const {
    if (m_choices.chkTwoCategories && fee > Currency{}) rule += kDoubled;
    return {.name = std::move(name),
            .amount = m_choices.chkTwoCategories ? fee + fee : fee,
            .rule = std::move(rule)};
  }
  [[nodiscard]] ExplainedStep step(std::string name, float fee, std::string rule) const {
    return step(std::move(name), Currency::fromNumber(static_cast<double>(fee)), std::move(rule));
  }

  [[nodiscard]] ExplainedStep insertion() const {
    constexpr std::array<std::string_view, 4> formats{"3-10 day auction", "30-day auction", "30-day ad",
                                                      "90-day ad"};
    if (m_choices.chkRealEstate) {
      const float fee = m_site.RealEstateInsertionFee(m_choices.optTimeshare, m_choices.cboRealEstateType);
      return step(
          "Listing real estate", fee,
          fmt::format("{} of {}: {}", formats.at(static_cast<std::size_t>(m_choices.cboRealEstateType)),
                      m_choices.optTimeshare ? "a timeshare or land" : "other real estate",
                      m_words.money(fee)));
    }
    if (m_choices.chkVehicle) {
      const float fee = m_site.VehicleInsertionFee(m_choices.optMotorcycle);
      return step("Listing a vehicle", fee, vehicleName() + ": " + m_words.money(fee));
    }
    const LadderStep ladder = listingFeeStep(m_site, m_opening);
    return step("Opening price " + m_words.price(m_openingText), ladder.fee,
                ladderRule(ladder, m_opening, m_words));
  }

  [[nodiscard]] ExplainedFee reserve() const {
    ExplainedFee fee{
        .name = "Reserve fee", .steps = {}, .figure = m_fees.reserve, .rule = {}, .partOf = kTotalFees};
    if (m_isSold) {
      fee.rule = "none: the reserve was met";
      return fee;
    }
    const ReserveStep tier = reserveStep(m_site, m_opening, m_choices.chkVehicle, m_choices.isThirtyDayAd());
    const Currency charged = tier.rule == ReserveRule::Share
                                 ? shareOf(tier.share, amountOf(m_openingText, m_words.locale()).toDouble())
                                 : Currency::fromNumber(static_cast<double>(tier.fee));
    fee.steps = {step("Reserve of " + m_words.price(m_openingText), charged,
                      reserveBounds(tier.tier) + reservePrice(tier))};
    return fee;
  }

  [[nodiscard]] std::string reserveBounds(int tier) const {
    const std::string second = m_words.money(m_site.ReserveSecondTierLower());
    const std::string third = m_words.money(m_site.ReserveThirdTierLower(m_choices.chkVehicle, false));
    const std::string whose = m_choices.chkVehicle ? " for a vehicle: " : ": ";
    if (tier == 1) return "tier 1, below " + second + whose;
    if (tier == 2) return "tier 2, from " + second + " to below " + third + whose;
    return "tier 3, from " + third + whose;
  }

  [[nodiscard]] std::string reservePrice(const ReserveStep& tier) const {
    std::string fee = tier.fee > 0.0F ? m_words.money(tier.fee) : "free";
    std::string share = m_words.percent(tier.share) + " of " + m_words.price(m_openingText);
    switch (tier.rule) {
      case ReserveRule::Flat:
        return fee;
      case ReserveRule::Share:
        return share;
      case ReserveRule::Capped:
        break;
    }
    return share + ", capped at " + fee;
  }

  [[nodiscard]] ExplainedFee finalValue() const {
    ExplainedFee fee{.name = "Final value fee",
                     .steps = {},
                     .figure = m_fees.finalValue,
                     .rule = {},
                     .partOf = kTotalFees};
    if (!m_isSold) {
      fee.rule = m_choices.chkDidNotSell ? "none: it did not sell" : "none: the reserve was not met";
    } else if (m_choices.chkRealEstate) {
      fee.rule = "none: real estate carries no final value fee";
    } else if (m_choices.chkVehicle) {
      fee.steps = vehicleSale();
    } else {
      fee.steps = explainSale(m_site, m_fees.sold.price, m_fees.sold.count, m_words);
    }
    return fee;
  }

  [[nodiscard]] std::vector<ExplainedStep> vehicleSale() const {
    const std::string& bid = m_fees.sold.price;
    const CAuctionSite::VehicleSaleRule rule = m_site.VehicleSale(m_choices.optMotorcycle, single(bid));
    std::vector<ExplainedStep> steps;
    if (rule.flat) {
      const float flat = m_site.amount(*rule.flat);
      steps.push_back({.name = "Sale of a vehicle",
                       .amount = Currency::fromNumber(static_cast<double>(flat)),
                       .rule = vehicleName() + saleBound(*rule.flat) + ": " + m_words.money(flat)});
    }
    if (rule.takesShare) {
      const double share = m_site.share(Figure::VehicleSaleShare);
      steps.push_back({.name = "Share of its price",
                       .amount = shareOf(share, amountOf(bid, m_words.locale()).toDouble()),
                       .rule = m_words.percent(share) + " of " + m_words.price(bid)});
    }
    return steps;
  }

  /// For which prices a flat figure stands, where the price matters.
  [[nodiscard]] std::string saleBound(Figure flat) const {
    const float shareFrom = m_site.amount(Figure::VehicleSaleShareFrom);
    if (flat == Figure::VehicleSaleHighest)
      return " sold for " + m_words.money(m_site.amount(Figure::VehicleSaleHighestFrom)) + " or more";
    const bool endsThere = flat == Figure::VehicleSaleLowest && shareFrom > 0.0F;
    return endsThere ? " sold for less than " + m_words.money(shareFrom) : "";
  }

  [[nodiscard]] ExplainedFee features() const {
    const ListingFeatures chosen = chosenFeatures(m_choices);
    FeeRecord record;
    extraFeatures(chosen, m_site, &record);
    ExplainedFee fee{.name = "Extra features",
                     .steps = explainFeatures(m_site, record,
                                              {.isTwoCategories = chosen.IsTwoCategories,
                                               .isVehicle = chosen.IsVehicle,
                                               .isMotors = chosen.IsMotors,
                                               .hasPictures = chosen.HasExtraPhotos,
                                               .pictures = chosen.PhotoChoice,
                                               .isSupersize = chosen.IsSupersize,
                                               .isSlideshow = chosen.IsSlideshow},
                                              m_words),
                     .figure = m_fees.extras,
                     .rule = {},
                     .partOf = kTotalFees};
    if (fee.steps.empty()) fee.rule = "none chosen";
    return fee;
  }

  [[nodiscard]] std::string totalRule() const {
    return std::string("listing fee") + (m_fees.reserve.empty() ? "" : " + reserve fee") +
           (m_isSold ? " + final value fee" : "") + " + extra features";
  }

  [[nodiscard]] std::string netRule() const {
    if (!m_isSold) return "nothing was sold, less the total fees";
    const SoldItems& sold = m_fees.sold;
    return fmt::format("sold for {}{}, less the total fees",
                       twoDecimals(amountOf(sold.price, m_words.locale()), m_words.locale()),
                       sold.isAtOpening ? ", the opening price" : "");
  }

  [[nodiscard]] std::string vehicleName() const {
    return m_choices.optMotorcycle ? "a motorcycle" : "a vehicle other than a motorcycle";
  }

  [[nodiscard]] float single(const std::string& text) const {
    return text.empty() ? 0.0F : toSingle(text, m_words.locale());
  }

  const SingleItemChoices& m_choices;
  const ExplainWords& m_words;
  const Fees& m_fees;
  CAuctionSite m_site;
  const std::string& m_openingText;
  float m_opening;
  bool m_isSold;
};

}  // namespace

std::string ladderRule(const LadderStep& step, float price, const ExplainWords& words) {
  if (!step.isOnLadder) return price > 0.0F ? "in no tier, so free" : "free: there is no price";
  const std::string fee = words.money(step.fee);
  if (step.upper <= step.lower)
    return fmt::format("tier {}, above {}: {}", step.tier, words.money(step.lower), fee);
  return fmt::format("tier {}, {} to {}: {}", step.tier, words.money(step.lower), words.money(step.upper),
                     fee);
}

std::vector<ExplainedFee> explainSingle(const Listing& listing, const ExplainWords& words, const Fees& fees) {
  return SingleExplanation(listing, words, fees).run();
}
