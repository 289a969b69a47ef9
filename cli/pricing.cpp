#include "pricing.h"

#include <utility>

#include "amount_text.h"

namespace {

const std::string kNotAvailable = "N/A";

Currency operator-(Currency left, Currency right) {
  return left + Currency::fromTenThousandths(-right.tenThousandths());
}

}  // namespace

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
      boxes.single.txtStartingPrice = listing.opening;
      boxes.single.txtPrice = listing.closing;
      return recalculateSingleItem(listing.single, &m_regularAuction, m_locale, boxes.single);
    case ListingKind::Multiple:
      boxes.multiple = {};
      boxes.multiple.txtDutchItemsOffered = listing.offered;
      boxes.multiple.txtDutchOpeningPrice = listing.opening;
      boxes.multiple.txtDutchItemsSold = listing.sold;
      boxes.multiple.txtDutchFinalPrice = listing.closing;
      return recalculateMultipleItems(listing.multiple, {.site = &m_site, .auction = &m_dutchAuction},
                                      m_locale, kNotAvailable, boxes.multiple);
    case ListingKind::Payment:
      boxes.payment.txtPayPalFee.clear();
      boxes.payment.txtPaymentAmount = listing.amount;
      return recalculatePayment(listing.payment, &m_paymentService, m_locale, boxes.payment);
    case ListingKind::Billpoint:
      boxes.billpoint.clear();
      return recalculateBillpoint(listing, boxes.billpoint);
  }
}

void Pricer::recalculateBillpoint(const Listing& listing, std::string& fee) {
  const BillpointChoices& choices = listing.billpoint;
  fee = m_paymentService.BillpointFee(listing.amount, choices.IsDiscounted, choices.IsCreditCard,
                                      choices.IsInternational, listing.payment.txtConversion);
}

Fees Pricer::price(const Listing& listing) {
  recalculate(listing, m_boxes);
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
  Fees fees{.insertion = boxes.txtInsertionFee,
            .reserve = {},
            .extras = boxes.txtExtras,
            .finalValue = boxes.txtFVF,
            .total = boxes.txtFees,
            .payment = {},
            .net = {}};
  // The tab adds the reserve fee into the box of the insertion fee.
  if (listing.single.cboIsReserve == 1 && boxes.txtFVF.empty()) {
    fees.insertion = m_regularAuction.InsertionFee(listing.opening, listing.single.chkTwoCategories,
                                                   listing.single.chkRealEstate, listing.single.chkVehicle,
                                                   listing.single.optMotorcycle, listing.single.optTimeshare,
                                                   listing.single.cboRealEstateType);
    fees.reserve = twoDecimals(number(boxes.txtInsertionFee) - number(fees.insertion), m_locale);
  }
  const Currency revenue = boxes.txtFVF.empty() ? Currency{} : number(boxes.txtPrice);
  fees.net = twoDecimals(revenue - number(boxes.txtFees), m_locale);
  return fees;
}

Fees Pricer::multipleFees(const Listing& listing) {
  const MultipleItemsBoxes& boxes = m_boxes.multiple;
  if (boxes.txtDutchFees.empty())
    throw PricingError("items offered, opening price, items sold and lowest bid are needed");
  // The box of the lowest bid shows two decimals; the fee was taken from the bid as it was entered.
  const bool isAtOpening =
      toInteger16(boxes.txtDutchItemsSold, m_locale) < toInteger16(listing.offered, m_locale) ||
      number(listing.closing) < number(listing.opening);
  const std::string& lowestBid = isAtOpening ? listing.opening : listing.closing;
  Fees fees{.insertion = {},
            .reserve = {},
            .extras = boxes.txtExtraFeaturesDutch,
            .finalValue = m_dutchAuction.FVF(lowestBid, boxes.txtDutchItemsSold),
            .total = boxes.txtDutchFees,
            .payment = {},
            .net = {}};
  // The tab shows the sum alone.
  fees.insertion = twoDecimals(number(fees.total) - number(fees.extras) - number(fees.finalValue), m_locale);
  fees.net = twoDecimals(number(boxes.txtTotalDutchAuctionSales) - number(fees.total), m_locale);
  return fees;
}

Fees Pricer::paymentFees(const Listing& listing) {
  Fees fees;
  const bool isBillpoint = listing.kind == ListingKind::Billpoint;
  if (isBillpoint && m_boxes.billpoint == kNotAvailable)
    throw PricingError("the amount is above the largest that can be paid so");
  fees.payment =
      isBillpoint ? twoDecimals(std::string_view(m_boxes.billpoint), m_locale) : m_boxes.payment.txtPayPalFee;
  if (fees.payment.empty()) throw PricingError("an amount is needed");
  fees.net = twoDecimals(number(listing.amount) - number(fees.payment), m_locale);
  return fees;
}

Currency Pricer::number(const std::string& text) const { return toCurrency(text, m_locale); }
