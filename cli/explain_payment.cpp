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
    m_amount = words.price(listing.amount);
  }

  [[nodiscard]] std::vector<ExplainedFee> run() const {
    ExplainedFee fee{.name = "Payment fee",
                     .steps = {share(), flat()},
                     .figure = m_fees.payment,
                     .rule = {},
                     .partOf = {}};
    if (m_isPayPal && !m_isCreditCard) fee.steps.push_back(cap(fee.steps[0].amount + fee.steps[1].amount));
    if (m_fee.surcharge) fee.steps.push_back(surcharge());
    return {std::move(fee),
            {.name = "Net",
             .steps = {},
             .figure = m_fees.net,
             .rule = m_amount + " less the payment fee",
             .partOf = {}}};
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
    return {.name = "Share of the amount",
            .amount = Currency::fromNumber(m_fee.shareOfAmount),
            .rule = std::move(rule)};
  }

  [[nodiscard]] ExplainedStep flat() const {
    return {.name = "Flat fee",
            .amount = Currency::fromNumber(static_cast<double>(m_fee.flatFee)),
            .rule = convertedRule(m_isPayPal ? Figure::PayPalFlatFee : Figure::BillpointFlatFee)};
  }

  [[nodiscard]] ExplainedStep cap(Currency before) const {
    const std::string limit = convertedRule(Figure::PayPalMaxFeeNonCC);
    if (!m_fee.cap) return {.name = "Cap", .amount = {}, .rule = "an eCheck, not above the cap of " + limit};
    return {.name = "Cap",
            .amount = Currency::fromNumber(static_cast<double>(*m_fee.cap)) - before,
            .rule = "an eCheck, capped at " + limit};
  }

  [[nodiscard]] ExplainedStep surcharge() const {
    return {.name = "International",
            .amount = Currency::fromNumber(*m_fee.surcharge),
            .rule = m_words.percent(CPaymentService::kInternationalShare) + " of " + m_amount +
                    (m_fee.cap ? ", added after the cap" : "")};
  }

  /// An amount of the schedule, and where it follows the rate what it was converted from.
  [[nodiscard]] std::string convertedRule(Figure figure) const {
    std::string amount = m_words.money(m_site.amount(figure));
    const FeeCell& cell = cellOf(figure, m_listing.site);
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
