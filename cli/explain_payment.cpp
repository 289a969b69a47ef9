#include <fmt/format.h>

#include "amount_text.h"
#include "explain_fees.h"

namespace {

/// One payment under explanation.
class PaymentExplanation {
 public:
  PaymentExplanation(const Listing& listing, const ExplainWords& words, const Fees& fees)
      : m_listing(listing),
        m_words(words),
        m_fees(fees),
        m_isPayPal(listing.kind == ListingKind::Payment),
        m_isCreditCard(m_isPayPal ? listing.payment.optPayPalCreditCard : listing.billpoint.IsCreditCard) {
    m_site.Site(listing.site);
    CPaymentService service(words.locale());
    service.Site(m_site);
    const PaymentChoices& payment = listing.payment;
    const BillpointChoices& billpoint = listing.billpoint;
    m_fee = m_isPayPal
                ? service.PayPal(listing.amount, payment.optPayPalMerchant, payment.optPayPalCreditCard,
                                 payment.txtConversion, payment.chkInternationalPayPal)
                : service.Billpoint(listing.amount, billpoint.IsDiscounted, billpoint.IsCreditCard,
                                    billpoint.IsInternational, payment.txtConversion);
    m_amount = words.money(toDouble(listing.amount, words.locale()));
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    ExplainedFee fee{.name = "Payment fee", .steps = {share(), flat()}, .figure = m_fees.payment, .rule = {}};
    if (m_isPayPal && !m_isCreditCard) fee.steps.push_back(cap());
    if (m_fee.surcharge) fee.steps.push_back(surcharge());
    return {std::move(fee),
            {.name = "Net", .steps = {}, .figure = m_fees.net, .rule = m_amount + " less the payment fee"}};
  }

 private:
  [[nodiscard]] ExplainedStep share() const {
    std::string rule;
    if (m_fee.share <= 0.0) {
      rule = "none: not above " + convertedRule(Figure::BillpointThreshold);
    } else {
      const bool isReduced =
          m_isPayPal ? m_listing.payment.optPayPalMerchant : m_listing.billpoint.IsDiscounted;
      const char* reduced = m_isPayPal ? "merchant" : "discounted";
      rule = fmt::format("{} of {}, the {} rate", m_words.percent(m_fee.share), m_amount,
                         isReduced ? reduced : "standard");
      if (!m_isPayPal) rule += m_isCreditCard ? " of credit cards" : " of eChecks";
    }
    return {.step = "Share of the amount",
            .amount = m_fee.shareOfAmount,
            .shown = m_isPayPal ? m_words.money(m_fee.shareOfAmount)
                                : m_words.money(static_cast<float>(m_fee.shareOfAmount)),
            .rule = std::move(rule)};
  }

  [[nodiscard]] ExplainedStep flat() const {
    return {.step = "Flat fee",
            .amount = static_cast<double>(m_fee.flatFee),
            .shown = m_words.money(m_fee.flatFee),
            .rule = convertedRule(m_isPayPal ? Figure::PayPalFlatFee : Figure::BillpointFlatFee),
            .kept = m_isPayPal ? KeptAs::DoubleText : KeptAs::SingleText};
  }

  [[nodiscard]] ExplainedStep cap() const {
    const std::string limit = convertedRule(Figure::PayPalMaxFeeNonCC);
    ExplainedStep step{.step = "Cap",
                       .amount = 0.0,
                       .shown = m_words.money(0.0F),
                       .rule = "an eCheck, not above the cap of " + limit};
    if (!m_fee.cap) return step;
    const double before = m_fee.shareOfAmount + static_cast<double>(m_fee.flatFee);
    step.amount = static_cast<double>(*m_fee.cap) - before;
    step.shown = m_words.money(static_cast<float>(step.amount));
    step.rule = "an eCheck, capped at " + limit;
    step.kept = KeptAs::SingleText;
    return step;
  }

  [[nodiscard]] ExplainedStep surcharge() const {
    return {.step = "International",
            .amount = *m_fee.surcharge,
            .shown = m_words.money(*m_fee.surcharge),
            .rule = m_words.percent(CPaymentService::kInternationalShare) + " of " + m_amount +
                    (m_fee.cap ? ", added after the cap" : "")};
  }

  /// An amount of the schedule, and where it follows the rate what it was converted from.
  [[nodiscard]] std::string convertedRule(Figure figure) const {
    std::string amount = m_words.money(m_site.amount(figure));
    const FeeCell& cell =
        kFeeSchedule[static_cast<std::size_t>(figure)].sites[static_cast<std::size_t>(m_listing.site - 1)];
    if (!cell.followsTheRate) return amount;
    return fmt::format("{}, {} US dollars at {}", amount, m_words.money(static_cast<float>(cell.value)),
                       m_words.number(m_fee.rate));
  }

  const Listing& m_listing;
  const ExplainWords& m_words;
  const Fees& m_fees;
  bool m_isPayPal;
  bool m_isCreditCard;
  CAuctionSite m_site;
  PaymentFee m_fee;
  std::string m_amount;
};

}  // namespace

std::vector<ExplainedFee> explainPayment(const Listing& listing, const ExplainWords& words,
                                         const Fees& fees) {
  return PaymentExplanation(listing, words, fees).run();
}
