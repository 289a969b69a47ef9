#include <fmt/format.h>

#include <algorithm>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

/// Several items under explanation, with the counts and the price that the tab settles on.
class MultipleExplanation {
 public:
  MultipleExplanation(const Listing& listing, const ExplainWords& words, const Fees& fees)
      : m_listing(listing), m_choices(listing.multiple), m_words(words), m_fees(fees) {
    const NumberLocale& locale = words.locale();
    m_site.Site(listing.site);
    m_offered = toInteger16(listing.offered, locale);
    m_sold = std::min(toInteger16(listing.sold, locale), m_offered);
    // With items left over, or no bid that reaches it, every winner pays the opening price.
    m_isAtOpening =
        m_sold < m_offered || toCurrency(listing.closing, locale) < toCurrency(listing.opening, locale);
    m_bid = toSingle(m_isAtOpening ? listing.opening : listing.closing, locale);
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    return {{.name = "Listing fee", .steps = {insertion()}, .figure = m_fees.insertion, .rule = {}},
            features(),
            {.name = "Final value fee", .steps = {finalValue()}, .figure = m_fees.finalValue, .rule = {}},
            {.name = "Total fees",
             .steps = {},
             .figure = m_fees.total,
             .rule = "listing fee + extra features + final value fee"},
            {.name = "Net", .steps = {}, .figure = m_fees.net, .rule = netRule()}};
  }

 private:
  [[nodiscard]] ExplainedStep insertion() const {
    CDutchAuction auction(m_words.locale());
    auction.Site(m_site);
    const std::string opening = plainText(toCurrency(m_listing.opening, m_words.locale()), m_words.locale());
    const float value = auction.ListingValue(opening, m_offered);
    const LadderStep ladder = listingFeeStep(m_site, value);
    std::string rule = ladderRule(ladder, value, m_words);
    if (m_choices.chkDutchTwoCategories && ladder.isOnLadder) rule += kDoubled;
    const float fee = m_choices.chkDutchTwoCategories ? ladder.fee + ladder.fee : ladder.fee;
    return {.step = fmt::format("{} at {} = {}", m_offered,
                                m_words.money(toSingle(opening, m_words.locale())), m_words.money(value)),
            .amount = static_cast<double>(fee),
            .shown = m_words.money(fee),
            .rule = std::move(rule),
            .kept = KeptAs::Single};
  }

  [[nodiscard]] ExplainedFee features() const {
    FeeRecord record;
    dutchExtraFeatures(m_choices, m_site, m_offered, &record);
    ExplainedFee fee{.name = "Extra features",
                     .steps = explainFeatures(m_site, record,
                                              {.isTwoCategories = m_choices.chkDutchTwoCategories,
                                               .isMotors = m_choices.chkEBayMotorsDutch,
                                               .items = m_offered,
                                               .hasPictures = m_choices.chkExtraPicturesDutch,
                                               .pictures = m_choices.cboExtraPicturesDutch,
                                               .isSupersize = m_choices.chkSupersizeDutch,
                                               .isSlideshow = m_choices.chkSlideshowDutch},
                                              m_words),
                     .figure = m_fees.extras,
                     .rule = {}};
    if (fee.steps.empty()) fee.rule = "none chosen";
    return fee;
  }

  /// The fee of one item is rounded before it is multiplied, so its tiers are no amounts of their own.
  [[nodiscard]] ExplainedStep finalValue() const {
    const FinalValueParts parts(m_site, m_bid);
    const float each = parts.fee();
    const double amount = static_cast<double>(each) * static_cast<double>(m_sold);
    std::string rule;
    for (const FinalValueParts::Part& part : parts.parts())
      rule += (rule.empty() ? "" : " + ") + partRule(part, m_words);
    return {.step = fmt::format("{} sold, {} each", m_sold, m_words.money(each)),
            .amount = amount,
            .shown = m_words.money(amount),
            .rule = "each: " + rule,
            .kept = KeptAs::Double};
  }

  [[nodiscard]] std::string netRule() const {
    if (m_sold == 0) return "nothing was sold, less the total fees";
    return fmt::format("{} sold for {} each{}, less the total fees", m_sold, m_words.money(m_bid),
                       m_isAtOpening ? ", the opening price" : "");
  }

  const Listing& m_listing;
  const MultipleItemsChoices& m_choices;
  const ExplainWords& m_words;
  const Fees& m_fees;
  CAuctionSite m_site;
  std::int16_t m_offered = 0;
  std::int16_t m_sold = 0;
  bool m_isAtOpening = false;
  float m_bid = 0.0F;
};

}  // namespace

std::vector<ExplainedFee> explainMultiple(const Listing& listing, const ExplainWords& words,
                                          const Fees& fees) {
  return MultipleExplanation(listing, words, fees).run();
}
