#include <fmt/format.h>

#include <array>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

constexpr int kReserve = 1;
constexpr int kThirtyDayAd = 2;

/// One single item under explanation: its site, its prices, and how it ended.
class SingleExplanation {
 public:
  SingleExplanation(const Listing& listing, const ExplainWords& words, const Fees& fees)
      : m_choices(listing.single),
        m_words(words),
        m_fees(fees),
        m_opening(single(listing.opening)),
        m_isRaised(m_choices.cboIsReserve == 0 && currency(listing.closing) < currency(listing.opening)),
        m_isSold(!fees.finalValue.empty()) {
    m_site.Site(listing.site);
    m_bid =
        m_isRaised ? single(plainText(currency(listing.opening), words.locale())) : single(listing.closing);
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    std::vector<ExplainedFee> explained{
        {.name = "Listing fee", .steps = {insertion()}, .figure = m_fees.insertion, .rule = {}}};
    if (m_choices.cboIsReserve == kReserve) explained.push_back(reserve());
    explained.push_back(finalValue());
    explained.push_back(features());
    explained.push_back({.name = "Total fees", .steps = {}, .figure = m_fees.total, .rule = totalRule()});
    explained.push_back({.name = "Net", .steps = {}, .figure = m_fees.net, .rule = netRule()});
    return explained;
  }

 private:
  [[nodiscard]] ExplainedStep step(std::string name, float fee, std::string rule) const {
    if (m_choices.chkTwoCategories && fee > 0.0F) rule += kDoubled;
    const float charged = m_choices.chkTwoCategories ? fee + fee : fee;
    return {.step = std::move(name),
            .amount = static_cast<double>(charged),
            .shown = m_words.money(charged),
            .rule = std::move(rule),
            .kept = KeptAs::Single};
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
    return step("Opening price " + m_words.money(m_opening), ladder.fee,
                ladderRule(ladder, m_opening, m_words));
  }

  [[nodiscard]] ExplainedFee reserve() const {
    if (m_isSold)
      return {.name = "Reserve fee", .steps = {}, .figure = {}, .rule = "none: the reserve was met"};
    const ReserveStep tier =
        reserveStep(m_site, m_opening, m_choices.chkVehicle, m_choices.cboRealEstateType == kThirtyDayAd);
    return {.name = "Reserve fee",
            .steps = {step("Reserve of " + m_words.money(m_opening), tier.fee, reserveRule(tier))},
            .figure = m_fees.reserve,
            .rule = {}};
  }

  [[nodiscard]] std::string reserveRule(const ReserveStep& tier) const {
    const float second = m_site.ReserveSecondTierLower();
    const float third = m_site.ReserveThirdTierLower(m_choices.chkVehicle, false);
    const std::string whose = m_choices.chkVehicle ? " for a vehicle" : "";
    if (tier.tier == 1)
      return fmt::format("tier 1, below {}{}: {}", m_words.money(second), whose, m_words.money(tier.fee));
    const std::string bounds = tier.tier == 2
                                   ? fmt::format("tier 2, from {} to below {}{}: ", m_words.money(second),
                                                 m_words.money(third), whose)
                                   : fmt::format("tier 3, from {}{}: ", m_words.money(third), whose);
    if (tier.fee <= 0.0F) return bounds + "free";
    const double share =
        m_site.share(tier.tier == 2 ? Figure::ReserveSecondTierShare : Figure::ReserveThirdTierShare);
    const bool isFlat = share <= 0.0 || (tier.tier == 2 && m_choices.chkVehicle);
    if (isFlat) return bounds + m_words.money(tier.fee);
    const auto cap = static_cast<double>(m_site.amount(Figure::ReserveThirdTierCap));
    const bool isCapped = tier.tier == 3 && cap < share * static_cast<double>(m_opening);
    return fmt::format("{}{} of {}{}", bounds, m_words.percent(share), m_words.money(m_opening),
                       isCapped ? ", capped at " + m_words.money(tier.fee) : "");
  }

  [[nodiscard]] ExplainedFee finalValue() const {
    ExplainedFee fee{.name = "Final value fee", .steps = {}, .figure = m_fees.finalValue, .rule = {}};
    if (!m_isSold) {
      fee.rule = m_choices.chkDidNotSell ? "none: it did not sell" : "none: the reserve was not met";
    } else if (m_choices.chkRealEstate) {
      fee.rule = "none: real estate carries no final value fee";
    } else if (m_choices.chkVehicle) {
      fee.steps = vehicleSale();
    } else {
      const FinalValueParts parts(m_site, m_bid);
      int tier = 1;
      for (const FinalValueParts::Part& part : parts.parts())
        fee.steps.push_back(
            saleStep(fmt::format("Final value, tier {}", tier++), part.amount(), partRule(part, m_words)));
    }
    // The parts are added in double precision, and their sum alone is rounded.
    if (!fee.steps.empty()) fee.steps.back().kept = KeptAs::Single;
    return fee;
  }

  [[nodiscard]] ExplainedStep saleStep(std::string name, double amount, std::string rule) const {
    return {.step = std::move(name),
            .amount = amount,
            .shown = m_words.money(static_cast<float>(amount)),
            .rule = std::move(rule)};
  }

  [[nodiscard]] std::vector<ExplainedStep> vehicleSale() const {
    const CAuctionSite::VehicleSaleRule rule = m_site.VehicleSale(m_choices.optMotorcycle, m_bid);
    std::vector<ExplainedStep> steps;
    if (rule.flat) {
      const float flat = m_site.amount(*rule.flat);
      steps.push_back(saleStep("Sale of a vehicle", static_cast<double>(flat),
                               vehicleName() + saleBound(*rule.flat) + ": " + m_words.money(flat)));
    }
    if (rule.takesShare) {
      const double share = m_site.share(Figure::VehicleSaleShare);
      steps.push_back(saleStep("Share of its price", share * static_cast<double>(m_bid),
                               m_words.percent(share) + " of " + m_words.money(m_bid)));
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
                     .rule = {}};
    if (fee.steps.empty()) fee.rule = "none chosen";
    return fee;
  }

  [[nodiscard]] std::string totalRule() const {
    return std::string("listing fee") + (m_fees.reserve.empty() ? "" : " + reserve fee") +
           (m_isSold ? " + final value fee" : "") + " + extra features";
  }

  [[nodiscard]] std::string netRule() const {
    if (!m_isSold) return "nothing was sold, less the total fees";
    return fmt::format("sold for {}{}, less the total fees", m_words.money(m_bid),
                       m_isRaised ? ", the opening price" : "");
  }

  [[nodiscard]] std::string vehicleName() const {
    return m_choices.optMotorcycle ? "a motorcycle" : "a vehicle other than a motorcycle";
  }

  [[nodiscard]] Currency currency(const std::string& text) const {
    return text.empty() ? Currency{} : toCurrency(text, m_words.locale());
  }
  [[nodiscard]] float single(const std::string& text) const {
    return text.empty() ? 0.0F : toSingle(text, m_words.locale());
  }

  const SingleItemChoices& m_choices;
  const ExplainWords& m_words;
  const Fees& m_fees;
  CAuctionSite m_site;
  float m_opening;
  bool m_isRaised;
  bool m_isSold;
  float m_bid = 0.0F;
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

std::string partRule(const FinalValueParts::Part& part, const ExplainWords& words) {
  const auto money = [&words](double amount) { return words.money(static_cast<float>(amount)); };
  std::string tier;
  if (part.above > 0.0) tier = "above " + money(part.above);
  if (part.upTo > 0.0) tier += (tier.empty() ? "up to " : " up to ") + money(part.upTo);
  return fmt::format("{} of {} ({})", words.percent(part.share), money(part.base), tier);
}

std::vector<ExplainedFee> explainSingle(const Listing& listing, const ExplainWords& words, const Fees& fees) {
  return SingleExplanation(listing, words, fees).run();
}
