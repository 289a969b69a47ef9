#include "price_function.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "amount_text.h"
#include "entry_rules.h"
#include "fee_schedule.h"

namespace {

constexpr std::int64_t kTenThousandthsPerCent = 100;
constexpr double kCentsPerOne = 100.0;

/// The bounds of fees that a sold item can meet. Reserve fees are not among them: sold means no reserve fee.
constexpr auto kPriceBounds = std::to_array<Figure>({
    Figure::ListingFeeFirstTierUpper,
    Figure::ListingFeeSecondTierUpper,
    Figure::ListingFeeThirdTierUpper,
    Figure::ListingFeeFourthTierUpper,
    Figure::ListingFeeFifthTierUpper,
    Figure::ListingFeeSixthTierUpper,
    Figure::FVFSecondTierLower,
    Figure::FVFThirdTierLower,
    Figure::VehicleSaleShareFrom,
    Figure::VehicleSaleHighestFrom,
});

/// Rounded down. Where a rate makes a bound larger than any price with its shipping, how much does not
/// matter.
Cents wholeCents(double amount) {
  constexpr auto most = static_cast<double>(4 * PriceFunction::largestPrice);
  return static_cast<Cents>(std::floor(std::min(amount * kCentsPerOne, most)));
}

Cents centsOf(const std::string& text, const NumberLocale& locale) {
  return toCurrency(text, locale).tenThousandths() / kTenThousandthsPerCent;
}

/// The lowest whole cent that is not below the amount.
Cents centsNotBelow(Currency amount) {
  const std::int64_t units = amount.tenThousandths();
  return units / kTenThousandthsPerCent + (units % kTenThousandthsPerCent > 0 ? 1 : 0);
}

Listing paymentOf(const Sale& sale) {
  Listing payment = sale.listing;
  payment.kind = sale.payment == PaymentService::Billpoint ? ListingKind::Billpoint : ListingKind::Payment;
  return payment;
}

/// The schedule with the exchange rate of the payment, which only a calculation sets.
CAuctionSite scheduleOf(const Listing& payment, const NumberLocale& locale) {
  CAuctionSite schedule;
  schedule.Site(payment.site);
  CPaymentService service(locale);
  service.Site(schedule);
  PaymentBoxes boxes;
  boxes.txtPaymentAmount = "0";
  calculatePayPalFee(payment.payment, service, boxes);
  return schedule;
}

/// The largest amount that is not above the bound, compared in single precision as the service does.
Cents largestAmountWithin(float bound) {
  constexpr float upwards = std::numeric_limits<float>::infinity();
  Cents amount = wholeCents(static_cast<double>(std::nextafter(bound, upwards)));
  while (static_cast<float>(static_cast<double>(amount) / kCentsPerOne) > bound) --amount;
  return amount;
}

}  // namespace

PriceFunction::PriceFunction(Sale sale, const NumberLocale& locale)
    : m_sale(std::move(sale)), m_pricer(locale), m_payment(paymentOf(m_sale)) {
  const CAuctionSite schedule = scheduleOf(m_payment, locale);
  setRange(schedule);
  setPieces(schedule);
}

void PriceFunction::setRange(const CAuctionSite& schedule) {
  m_range = {.first = 1, .last = largestPrice};
  if (!m_sale.opensAtPrice && !m_sale.listing.opening.empty()) {
    m_range.first = std::max(m_range.first, centsNotBelow(toCurrency(m_sale.listing.opening, locale())));
  } else if (m_sale.opensAtPrice && schedule.Site() == CAuctionSite::eBayGermany) {
    m_range.first = centsOf(germanMinimum(locale()), locale());
  }
  if (m_sale.payment != PaymentService::Billpoint) return;
  const BillpointChoices& choices = m_sale.listing.billpoint;
  const Cents largest =
      largestAmountWithin(schedule.BillpointMax(choices.IsDiscounted, choices.IsCreditCard)) -
      m_sale.shippingCharged;
  m_isLimitedByPayment = largest < m_range.last;
  m_range.last = std::min(largest, m_range.last);
}

void PriceFunction::setPieces(const CAuctionSite& schedule) {
  if (m_range.first > m_range.last) return;
  m_pieces = {m_range.first};
  const auto cutAround = [this](Cents bound) {
    // Whether a price at its bound belongs below or above it is the fee's affair: each cent there is a piece.
    for (Cents cut = bound - 1; cut <= bound + 2; ++cut) {
      if (cut > m_range.first && cut <= m_range.last) m_pieces.push_back(cut);
    }
  };
  for (const Figure figure : kPriceBounds) cutAround(wholeCents(cellOf(figure, schedule.Site()).value));
  // The cap of a fee bends it and is no jump; the threshold is one.
  if (m_sale.payment == PaymentService::Billpoint)
    cutAround(wholeCents(static_cast<double>(schedule.BillpointThreshold())) - m_sale.shippingCharged);
  std::sort(m_pieces.begin(), m_pieces.end());
  m_pieces.erase(std::unique(m_pieces.begin(), m_pieces.end()), m_pieces.end());
}

SaleResult PriceFunction::at(Cents price) {
  SaleResult result{.price = price};
  m_sale.listing.closing = textOf(price, locale());
  if (m_sale.opensAtPrice) m_sale.listing.opening = m_sale.listing.closing;
  result.listingFees = centsOf(m_pricer.price(m_sale.listing).total, locale());
  if (m_sale.payment != PaymentService::None) {
    m_payment.amount = textOf(price + m_sale.shippingCharged, locale());
    result.paymentFee = centsOf(m_pricer.price(m_payment).payment, locale());
  }
  result.net = price + m_sale.shippingCharged - result.totalFees();
  return result;
}

std::string textOf(Cents amount, const NumberLocale& locale) {
  return twoDecimals(Currency::fromTenThousandths(amount * kTenThousandthsPerCent), locale);
}
