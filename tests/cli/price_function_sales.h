#pragma once

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "amount_text.h"
#include "option_values.h"
#include "price_function.h"

/// \file
/// Sales of every kind that the searches over prices are held against.

struct NamedSale {
  std::string name;
  Sale sale;
};

inline const NumberLocale& pointLocale() {
  static const NumberLocale locale;
  return locale;
}

inline Sale plainSale(std::int32_t site) {
  Sale sale;
  sale.listing = plainListing(ListingKind::Single);
  sale.listing.site = site;
  return sale;
}

inline Sale openingAt(Sale sale, const char* opening) {
  sale.opensAtPrice = false;
  sale.listing.opening = opening;
  return sale;
}

struct PaymentRow {
  const char* name;
  void (*choose)(Sale& sale);
};

inline void byEcheck(Sale& sale) {
  sale.listing.payment.optPayPalCreditCard = sale.listing.billpoint.IsCreditCard = false;
}

inline void abroad(Sale& sale) {
  sale.listing.payment.chkInternationalPayPal = sale.listing.billpoint.IsInternational = true;
}

// clang-format off
inline constexpr auto kPaymentRows = std::to_array<PaymentRow>({
    {"unpaid",                  [](Sale&) {}},
    {"PayPal",                  [](Sale& s) { s.payment = PaymentService::PayPal; }},
    {"PayPal, merchant",        [](Sale& s) { s.payment = PaymentService::PayPal; s.listing.payment.optPayPalMerchant = true; }},
    {"PayPal, eCheck abroad",   [](Sale& s) { s.payment = PaymentService::PayPal; byEcheck(s); abroad(s); }},
    {"PayPal, rate, shipping",  [](Sale& s) { s.payment = PaymentService::PayPal; byEcheck(s); s.listing.payment.txtConversion = "1.2345"; s.shippingCharged = 499; }},
    {"Billpoint",               [](Sale& s) { s.payment = PaymentService::Billpoint; }},
    {"Billpoint, eCheck",       [](Sale& s) { s.payment = PaymentService::Billpoint; byEcheck(s); abroad(s); }},
    {"Billpoint, discounted",   [](Sale& s) { s.payment = PaymentService::Billpoint; s.listing.billpoint.IsDiscounted = true; s.shippingCharged = 350; }},
});

inline constexpr auto kListingRows = std::to_array<PaymentRow>({
    {"plain",                   [](Sale&) {}},
    {"two categories",          [](Sale& s) { s.listing.single.chkTwoCategories = true; s.listing.single.chkBold = true; }},
    {"opened at 0.99",          [](Sale& s) { s = openingAt(s, "0.99"); }},
    {"opened at 9.995",         [](Sale& s) { s = openingAt(s, "9.995"); }},
    {"reserve of 50",           [](Sale& s) { s = openingAt(s, "50"); s.listing.single.cboIsReserve = 1; }},
    {"vehicle",                 [](Sale& s) { s.listing.single.chkMotors = s.listing.single.chkVehicle = true; }},
    {"real estate",             [](Sale& s) { s.listing.single.chkRealEstate = true; }},
});
// clang-format on

/// Every listing unpaid and in one way paid, and a plain one paid in every way, on every site that has it.
inline bool isOfInterest(const Sale& sale, std::size_t listing, std::size_t payment) {
  constexpr std::size_t ofEveryListing = 4;
  const bool isGermany = sale.listing.site == CAuctionSite::eBayGermany;
  const bool isOffered =
      !isGermany || (sale.payment != PaymentService::Billpoint && !sale.listing.single.chkRealEstate);
  return isOffered && (listing == 0 || payment == 0 || payment == ofEveryListing);
}

inline std::vector<NamedSale> allSales() {
  std::vector<NamedSale> sales;
  for (std::int32_t site = CAuctionSite::eBayUS; site <= CAuctionSite::eBayGermany; ++site) {
    for (std::size_t listing = 0; listing < kListingRows.size(); ++listing) {
      for (std::size_t payment = 0; payment < kPaymentRows.size(); ++payment) {
        Sale sale = plainSale(site);
        kListingRows[listing].choose(sale);
        kPaymentRows[payment].choose(sale);
        if (!isOfInterest(sale, listing, payment)) continue;
        std::string name(nameOfSite(site));
        name.append(", ").append(kListingRows[listing].name).append(", ").append(kPaymentRows[payment].name);
        sales.push_back({.name = std::move(name), .sale = std::move(sale)});
      }
    }
  }
  return sales;
}

/// How far every cent is looked at: to the end of all ladders where only the ladder and the sale count,
/// elsewhere as far as the thresholds of payments and most of the steps go.
inline Cents scannedTo(const NamedSale& row) {
  const bool isPlain = row.name.ends_with("plain, unpaid") || row.name.ends_with("plain, PayPal");
  return isPlain ? 150'000 : 12'000;
}

inline Cents randomCents(std::mt19937& random, Cents first, Cents last) {
  return std::uniform_int_distribution<Cents>(first, last)(random);
}

inline bool oneIn(std::mt19937& random, unsigned chances) { return random() % chances == 0; }

inline void chooseListing(Sale& sale, std::mt19937& random) {
  SingleItemChoices& single = sale.listing.single;
  const bool isUS = sale.listing.site == CAuctionSite::eBayUS;
  switch (random() % 6) {
    case 0:
      single.chkMotors = single.chkVehicle = true;
      single.optMotorcycle = oneIn(random, 2);
      break;
    case 1:
      single.chkRealEstate = sale.listing.site != CAuctionSite::eBayGermany;
      single.optTimeshare = oneIn(random, 2);
      single.cboRealEstateType = static_cast<int>(random() % 4);
      break;
    default:
      break;
  }
  for (bool SingleItemChoices::*feature :
       {&SingleItemChoices::chkTwoCategories, &SingleItemChoices::chkBold, &SingleItemChoices::chkBIN,
        &SingleItemChoices::chkSubTitleSingleItem, &SingleItemChoices::chkGallery,
        &SingleItemChoices::chkTenDayAuction})
    single.*feature = oneIn(random, 4);
  single.chkListingDesigner = isUS && oneIn(random, 4);
  if (oneIn(random, 3)) {
    sale = openingAt(std::move(sale), textOf(randomCents(random, 1, 20'000), pointLocale()).c_str());
    single.cboIsReserve = sale.listing.site != CAuctionSite::eBayGermany && oneIn(random, 2) ? 1 : 0;
  }
}

inline void choosePayment(Sale& sale, std::mt19937& random) {
  const bool isGermany = sale.listing.site == CAuctionSite::eBayGermany;
  sale.payment = static_cast<PaymentService>(random() % (isGermany ? 2 : 3));
  if (sale.payment == PaymentService::None) return;
  if (oneIn(random, 3)) byEcheck(sale);
  if (oneIn(random, 3)) abroad(sale);
  sale.listing.payment.optPayPalMerchant = oneIn(random, 3);
  sale.listing.billpoint.IsDiscounted = oneIn(random, 3);
  if (oneIn(random, 3))
    sale.listing.payment.txtConversion = textOf(randomCents(random, 20, 300), pointLocale());
  if (oneIn(random, 3)) sale.shippingCharged = randomCents(random, 1, 3'000);
}

/// A sale of any kind that its site offers, with a price at which it can sell.
inline Sale randomSale(std::mt19937& random) {
  for (;;) {
    Sale sale = plainSale(static_cast<std::int32_t>(1 + random() % kSiteCount));
    chooseListing(sale, random);
    choosePayment(sale, random);
    const PriceRange range = PriceFunction(sale, pointLocale()).range();
    if (range.first <= range.last) return sale;
  }
}

/// The net of a sale as listing and payment are priced for themselves, without a price function.
inline Cents netAsPriced(const Sale& sale, Cents price) {
  Pricer pricer(pointLocale());
  const auto text = [](Cents cents) {
    const std::string rest = std::to_string(cents % 100);
    return std::to_string(cents / 100) + (rest.size() < 2 ? ".0" : ".") + rest;
  };
  const auto cents = [](const std::string& amount) {
    return toCurrency(amount, pointLocale()).tenThousandths() / 100;
  };
  Listing listing = sale.listing;
  listing.closing = text(price);
  if (sale.opensAtPrice) listing.opening = listing.closing;
  Cents net = cents(pricer.price(listing).net) + sale.shippingCharged;
  if (sale.payment == PaymentService::None) return net;
  listing.kind = sale.payment == PaymentService::PayPal ? ListingKind::Payment : ListingKind::Billpoint;
  listing.amount = text(price + sale.shippingCharged);
  return net - cents(pricer.price(listing).payment);
}
