#include "price_function_options.h"

#include <algorithm>
#include <CLI/CLI.hpp>

#include "amount_text.h"
#include "option_values.h"
#include "quoted_text.h"

namespace {

constexpr std::int64_t kTenThousandthsPerCent = 100;

const std::string kClosing = "closing";
const std::string kOpeningAndClosing = "opening-and-closing";
const std::string kPayPal = "paypal";
const std::string kBillpoint = "billpoint";

PaymentService serviceOf(const std::string& name) {
  if (name.empty()) return PaymentService::None;
  return name == kPayPal ? PaymentService::PayPal : PaymentService::Billpoint;
}

std::string largestPrice(const NumberLocale& locale) { return textOf(PriceFunction::largestPrice, locale); }

std::string withLimit(const std::string& help) { return help + "; at most " + largestPrice({}); }

void checkLargest(const std::string& option, const std::string& text, const NumberLocale& locale) {
  const Currency largest = Currency::fromTenThousandths(PriceFunction::largestPrice * kTenThousandthsPerCent);
  if (toCurrency(text, locale) > largest) {
    throw OptionError(option + ": " + quotedText(text) + " is above " + largestPrice(locale) +
                      ", the largest price that is calculated");
  }
}

/// "the largest that eBay Payments takes": why no price is above the range.
std::string reasonOfLargest(const PriceFunction& sale) {
  if (!sale.isLimitedByPayment()) return "the largest that is calculated";
  const bool hasShipping = sale.sale().shippingCharged > 0;
  return std::string("the largest that eBay Payments takes") + (hasShipping ? " beside the shipping" : "");
}

void checkPayment(PaymentService service, const Listing& listing) {
  const PaymentChoices& choices = listing.payment;
  const bool isCreditCard = choices.optPayPalCreditCard;
  if (service != PaymentService::PayPal && choices.optPayPalMerchant)
    throw OptionError("--merchant counts with --payment paypal only");
  if (service != PaymentService::Billpoint && listing.billpoint.IsDiscounted)
    throw OptionError("--discounted counts with --payment billpoint only");
  const bool hasChoice = !isCreditCard || choices.chkInternationalPayPal || !choices.txtConversion.empty();
  if (service == PaymentService::None && hasChoice)
    throw OptionError("--echeck, --international and --rate count with --payment only");
  if (service == PaymentService::Billpoint && listing.site == CAuctionSite::eBayGermany)
    throw OptionError("eBay Payments takes no amount on eBay Germany");
}

}  // namespace

void SaleOptions::addTo(CLI::App& command) {
  m_listing.addTo(command, static_cast<OptionScope>(ForSingle | ForPayments),
                  {"closing", "did-not-sell", "amount"});
  CLI::Option* opening = command.get_option("--opening");
  opening->description(withLimit(
      "the opening bid, with --reserve the reserve price, if it is not to move; not with --fixed-price"));
  takesOneOf(command.add_option(
                 "--vary", m_vary,
                 "the price that moves: closing, from a given --opening on, or opening-and-closing, both the "
                 "same as of a fixed price (closing if there is an --opening)"),
             kClosing + "|" + kOpeningAndClosing);
  takesOneOf(command.add_option(
                 "--payment", m_payment,
                 "paypal or billpoint: count the fee of that service too, on price and shipping charged"),
             kPayPal + "|" + kBillpoint);
  addAmountOption(command, "--shipping-charged", m_shippingCharged,
                  "what the buyer pays for shipping on top of the price; counts as income");
}

bool SaleOptions::opensAtPrice(const Listing& listing) const {
  const bool hasOpening = !listing.opening.empty();
  const bool varies = m_vary.empty() ? !hasOpening : m_vary == kOpeningAndClosing;
  if (listing.isFixedPrice && !varies)
    throw OptionError("a fixed price opens and closes alike: leave out --opening and --vary closing");
  if (varies && hasOpening) throw OptionError("--opening does not go with --vary opening-and-closing");
  if (!varies && !hasOpening) throw OptionError("--vary closing needs an --opening price");
  return varies;
}

Sale SaleOptions::sale(const Session& session) const {
  Sale sale;
  sale.listing = m_listing.listing(ListingKind::Single, session.locale(), !session.decimal.empty());
  sale.opensAtPrice = opensAtPrice(sale.listing);
  if (!sale.opensAtPrice) checkLargest("--opening", sale.listing.opening, session.locale());
  sale.payment = serviceOf(m_payment);
  checkPayment(sale.payment, sale.listing);
  sale.shippingCharged = amountOf("--shipping-charged", m_shippingCharged, session);
  return sale;
}

void addAmountOption(CLI::App& command, const std::string& name, std::string& value,
                     const std::string& help) {
  command.add_option(name, value, withLimit(help))->type_name(std::string(valueName(OptionKind::Amount)));
}

Cents amountOf(const std::string& option, const std::string& text, const Session& session) {
  if (text.empty()) return 0;
  const Option amount{.name = option,
                      .kind = OptionKind::Amount,
                      .scope = ForSingle,
                      .values = {},
                      .help = {},
                      .set = nullptr};
  const std::string number = readValue(amount, text, session.locale(), !session.decimal.empty());
  checkLargest(option, number, session.locale());
  const std::int64_t units = toCurrency(number, session.locale()).tenThousandths();
  if (units % kTenThousandthsPerCent != 0)
    throw OptionError(option + ": " + quotedText(text) + " has parts of a cent");
  return units / kTenThousandthsPerCent;
}

Cents priceOf(const std::string& option, const std::string& text, const PriceFunction& sale,
              const Session& session) {
  const Cents price = amountOf(option, text, session);
  if (price > sale.range().last) throw OptionError(option + ": must not be above " + largestOf(sale));
  return price;
}

void checkSells(const PriceFunction& sale) {
  const PriceRange range = sale.range();
  if (range.first <= range.last) return;
  throw OptionError("it cannot sell: " + priced(sale, range.first) + " is its lowest price, " +
                    priced(sale, std::max<Cents>(range.last, 0)) + " " + reasonOfLargest(sale));
}

std::string priced(const PriceFunction& sale, Cents amount) {
  return Pricer::currencyOf(sale.sale().listing) + " " + textOf(amount, sale.locale());
}

std::string largestOf(const PriceFunction& sale) {
  return priced(sale, sale.range().last) + ", " + reasonOfLargest(sale);
}
