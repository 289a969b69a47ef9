#include "price_function_options.h"

#include "amount_text.h"
#include "option_values.h"

namespace {

const std::string kClosing = "closing";
const std::string kOpeningAndClosing = "opening-and-closing";
const std::string kPayPal = "paypal";
const std::string kBillpoint = "billpoint";

PaymentService serviceOf(const std::string& name) {
  if (name.empty()) return PaymentService::None;
  return name == kPayPal ? PaymentService::PayPal : PaymentService::Billpoint;
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
  command
      .add_option(
          "--vary", m_vary,
          "the price that moves: closing, from a given --opening on, or opening-and-closing, both the "
          "same as of a fixed price (closing if there is an --opening)")
      ->check(CLI::IsMember({kClosing, kOpeningAndClosing}).description(""))
      ->type_name("PRICE");
  command
      .add_option("--payment", m_payment,
                  "paypal or billpoint: count the fee of that service too, on price and shipping charged")
      ->check(CLI::IsMember({kPayPal, kBillpoint}).description(""))
      ->type_name("SERVICE");
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
  sale.payment = serviceOf(m_payment);
  checkPayment(sale.payment, sale.listing);
  sale.shippingCharged = amountOf("shipping-charged", m_shippingCharged, session);
  if (sale.shippingCharged > PriceFunction::largestPrice)
    throw OptionError("shipping-charged: above " + textOf(PriceFunction::largestPrice, session.locale()));
  return sale;
}

void addAmountOption(CLI::App& command, const std::string& name, std::string& value,
                     const std::string& help) {
  command.add_option(name, value, help)->type_name(std::string(valueName(OptionKind::Amount)));
}

Cents amountOf(const std::string& option, const std::string& text, const Session& session) {
  if (text.empty()) return 0;
  constexpr std::int64_t perCent = 100;
  const Option amount{.name = option,
                      .kind = OptionKind::Amount,
                      .scope = ForSingle,
                      .values = {},
                      .help = {},
                      .set = nullptr};
  checkValue(amount, text, session.locale(), !session.decimal.empty());
  const std::int64_t units = toCurrency(text, session.locale()).tenThousandths();
  if (units % perCent != 0) throw OptionError(option + ": \"" + text + "\" has parts of a cent");
  return units / perCent;
}

std::string priced(const PriceFunction& sale, Cents amount) {
  return Pricer::currencyOf(sale.sale().listing) + " " + textOf(amount, sale.locale());
}
