#include <fmt/format.h>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

/// Several items under explanation.
class MultipleExplanation {
 public:
  MultipleExplanation(const Listing& listing, const ExplainWords& words, const Fees& fees)
      : m_listing(listing), m_choices(listing.multiple), m_words(words), m_fees(fees), m_sold(fees.sold) {
    m_site.Site(listing.site);
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    return {{.name = "Listing fee",
             .steps = {insertion()},
             .figure = m_fees.insertion,
             .rule = {},
             .partOf = kTotalFees},
            features(),
            finalValue(),
            total(kTotalFees, m_fees.total, "listing fee + extra features + final value fee"),
            total("Total sales", m_fees.sales, salesRule()),
            total("Net", m_fees.net, "total sales less the total fees"),
            perItem()};
  }

 private:
  [[nodiscard]] static ExplainedFee total(std::string name, std::string figure, std::string rule) {
    return {.name = std::move(name),
            .steps = {},
            .figure = std::move(figure),
            .rule = std::move(rule),
            .partOf = {}};
  }

  [[nodiscard]] ExplainedStep insertion() const {
    CDutchAuction auction(m_words.locale());
    auction.Site(m_site);
    const NumberLocale& locale = m_words.locale();
    const Currency opening = toCurrency(m_listing.opening, locale);
    const float value =
        auction.ListingValue(plainText(opening, locale), static_cast<std::int16_t>(m_sold.offered));
    const LadderStep ladder = listingFeeStep(m_site, value);
    std::string rule = ladderRule(ladder, value, m_words);
    if (m_choices.chkDutchTwoCategories && ladder.isOnLadder) rule += kDoubled;
    const Currency fee = Currency::fromNumber(static_cast<double>(ladder.fee));
    return {.name = fmt::format("{} at {} = {}", m_sold.offered, m_words.money(opening),
                                m_words.money(opening.toDouble() * static_cast<double>(m_sold.offered))),
            .amount = m_choices.chkDutchTwoCategories ? fee + fee : fee,
            .rule = std::move(rule)};
  }

  [[nodiscard]] ExplainedFee features() const {
    FeeRecord record;
    dutchExtraFeatures(m_choices, m_site, m_sold.offered, &record);
    ExplainedFee fee{.name = "Extra features",
                     .steps = explainFeatures(m_site, record,
                                              {.isTwoCategories = m_choices.chkDutchTwoCategories,
                                               .isMotors = m_choices.chkEBayMotorsDutch,
                                               .hasPictures = m_choices.chkExtraPicturesDutch,
                                               .pictures = m_choices.cboExtraPicturesDutch,
                                               .isSupersize = m_choices.chkSupersizeDutch,
                                               .isSlideshow = m_choices.chkSlideshowDutch},
                                              m_words),
                     .figure = m_fees.extras,
                     .rule = {},
                     .partOf = kTotalFees};
    if (fee.steps.empty()) fee.rule = "none chosen";
    return fee;
  }

  [[nodiscard]] ExplainedFee finalValue() const {
    ExplainedFee fee{.name = "Final value fee",
                     .steps = {},
                     .figure = m_fees.finalValue,
                     .rule = {},
                     .partOf = kTotalFees};
    if (m_sold.count == 0) {
      fee.rule = "none: nothing was sold";
    } else {
      fee.steps = explainSale(m_site, m_sold.price, m_sold.count, m_words);
    }
    return fee;
  }

  [[nodiscard]] std::string salesRule() const {
    if (m_sold.count == 0) return "nothing was sold";
    return fmt::format("{} sold for {} each{}", m_sold.count, m_words.price(m_sold.price),
                       m_sold.isAtOpening ? ", the opening price" : "");
  }

  [[nodiscard]] ExplainedFee perItem() const {
    if (m_sold.count == 0) return total("Fees per item sold", {}, "none: nothing was sold");
    return total("Fees per item sold", m_fees.perItem,
                 fmt::format("total fees / {} sold, rounded to the cent", m_sold.count));
  }

  const Listing& m_listing;
  const MultipleItemsChoices& m_choices;
  const ExplainWords& m_words;
  const Fees& m_fees;
  const SoldItems& m_sold;
  CAuctionSite m_site;
};

}  // namespace

std::vector<ExplainedFee> explainMultiple(const Listing& listing, const ExplainWords& words,
                                          const Fees& fees) {
  return MultipleExplanation(listing, words, fees).run();
}
