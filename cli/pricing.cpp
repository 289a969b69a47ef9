#include "pricing.h"

#include <utility>

#include "amount_errors.h"
#include "amount_text.h"

namespace {

/// Whether the text is one that the user wrote, and not one that was calculated from these.
bool isEntered(const std::string& text, const Listing& listing) {
  return text == listing.opening || text == listing.closing || text == listing.offered ||
         text == listing.sold || text == listing.amount || text == listing.payment.txtConversion;
}

}  // namespace

Currency operator-(Currency left, Currency right) {
  return left + Currency::fromTenThousandths(-right.tenThousandths());
}

Pricer::Pricer(NumberLocale locale)
    : m_locale(std::move(locale)),
      m_regularAuction(m_locale),
      m_dutchAuction(m_locale),
      m_paymentService(m_locale) {
  m_regularAuction.Site(m_site);
  m_dutchAuction.Site(m_site);
  m_paymentService.Site(m_site);
}

std::string Pricer::currencyOf(const Listing& listing) {
  CAuctionSite site;
  site.Site(listing.site);
  return std::string(site.CurrencyString());
}

void Pricer::recalculate(const Listing& listing, ShownBoxes& boxes) {
  m_site.Site(listing.site);
  switch (listing.kind) {
    case ListingKind::Single:
      recalculateSingle(listing, boxes.single);
      return;
    case ListingKind::Multiple:
      recalculateMultiple(listing, boxes.multiple);
      return;
    case ListingKind::Payment:
      return recalculatePayPal(listing, boxes.payment);
    case ListingKind::Billpoint:
      boxes.billpoint.clear();
      boxes.billpoint = billpoint(listing).text;
  }
}

SingleItemFigures Pricer::recalculateSingle(const Listing& listing, SingleItemBoxes& boxes) {
  boxes.txtStartingPrice = listing.opening;
  boxes.txtPrice = listing.closing;
  return recalculateSingleItem(listing.single, &m_regularAuction, m_locale, boxes);
}

MultipleItemsFigures Pricer::recalculateMultiple(const Listing& listing, MultipleItemsBoxes& boxes) {
  boxes = {};
  boxes.txtDutchItemsOffered = listing.offered;
  boxes.txtDutchOpeningPrice = listing.opening;
  boxes.txtDutchItemsSold = listing.sold;
  boxes.txtDutchFinalPrice = listing.closing;
  return recalculateMultipleItems(listing.multiple, {.site = &m_site, .auction = &m_dutchAuction}, m_locale,
                                  kNotAvailable, boxes);
}

void Pricer::recalculatePayPal(const Listing& listing, PaymentBoxes& boxes) {
  boxes.txtPayPalFee.clear();
  boxes.txtPaymentAmount = listing.amount;
  recalculatePayment(listing.payment, &m_paymentService, m_locale, boxes);
}

PaymentFee Pricer::billpoint(const Listing& listing) {
  const BillpointChoices& choices = listing.billpoint;
  return m_paymentService.Billpoint(listing.amount, choices.IsDiscounted, choices.IsCreditCard,
                                    choices.IsInternational, listing.payment.txtConversion);
}

Fees Pricer::price(const Listing& listing) {
  m_site.Site(listing.site);
  try {
    return feesOf(listing);
  } catch (const OverflowError& error) {
    if (isEntered(error.offendingText(), listing)) throw;
    throw PricingError("the amounts given are too large to be calculated with");
  }
}

Fees Pricer::feesOf(const Listing& listing) {
  switch (listing.kind) {
    case ListingKind::Single:
      return singleFees(listing);
    case ListingKind::Multiple:
      return multipleFees(listing);
    case ListingKind::Payment:
    case ListingKind::Billpoint:
      break;
  }
  return paymentFees(listing);
}

Fees Pricer::singleFees(const Listing& listing) {
  const SingleItemBoxes& boxes = m_boxes.single;
  SingleItemFigures figures = recalculateSingle(listing, m_boxes.single);
  Fees fees;
  fees.insertion = twoDecimals(figures.insertion, m_locale);
  if (figures.reserve) fees.reserve = twoDecimals(*figures.reserve, m_locale);
  fees.extras = boxes.txtExtras;
  fees.finalValue = boxes.txtFVF;
  fees.total = boxes.txtFees;
  // The sale brings whole cents, as the box shows them.
  const Currency revenue = figures.isSold ? number(boxes.txtPrice) : Currency{};
  fees.net = twoDecimals(revenue - figures.total, m_locale);
  fees.sold = {.offered = 1,
               .count = figures.isSold ? 1 : 0,
               .price = std::move(figures.bid),
               .isAtOpening = figures.isRaised};
  return fees;
}

Fees Pricer::multipleFees(const Listing& listing) {
  const MultipleItemsBoxes& boxes = m_boxes.multiple;
  MultipleItemsFigures figures = recalculateMultiple(listing, m_boxes.multiple);
  if (boxes.txtDutchFees.empty())
    throw PricingError("items offered, opening price, items sold and lowest bid are needed");
  Fees fees;
  fees.insertion = twoDecimals(figures.insertion, m_locale);
  fees.extras = boxes.txtExtraFeaturesDutch;
  fees.finalValue = twoDecimals(figures.finalValue, m_locale);
  fees.total = boxes.txtDutchFees;
  fees.net = twoDecimals(number(boxes.txtTotalDutchAuctionSales) - figures.total, m_locale);
  fees.sales = boxes.txtTotalDutchAuctionSales;
  fees.perItem = boxes.txtDutchCostPerItem;
  fees.sold = {.offered = figures.offered,
               .count = figures.sold,
               .price = std::move(figures.price),
               .isAtOpening = figures.isAtOpening};
  return fees;
}

Fees Pricer::paymentFees(const Listing& listing) {
  if (listing.amount.empty()) throw PricingError("an amount is needed");
  const Currency amount = number(listing.amount);
  Fees fees;
  fees.payment = listing.kind == ListingKind::Billpoint ? billpointFee(listing) : payPalFee(listing);
  fees.net = twoDecimals(amount - number(fees.payment), m_locale);
  return fees;
}

std::string Pricer::payPalFee(const Listing& listing) {
  recalculatePayPal(listing, m_boxes.payment);
  return m_boxes.payment.txtPayPalFee;
}

std::string Pricer::billpointFee(const Listing& listing) {
  const PaymentFee fee = billpoint(listing);
  if (fee.limit && listing.site == CAuctionSite::eBayGermany)
    throw PricingError("eBay Germany does not have eBay Payments");
  if (fee.limit) {
    throw PricingError("the amount is above " + twoDecimals(*fee.limit, m_locale) +
                       ", the largest that eBay Payments takes");
  }
  return twoDecimals(std::string_view(fee.text), m_locale);
}

Currency Pricer::number(const std::string& text) const { return toCurrency(text, m_locale); }
