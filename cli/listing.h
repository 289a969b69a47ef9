#pragma once

#include <cstdint>
#include <string>

#include "multiple_items_tab.h"
#include "payment_tab.h"
#include "single_item_tab.h"

/// What is to be priced: one listing with how it ended, or one payment.
enum class ListingKind : std::uint8_t { Single, Multiple, Payment, Billpoint };

/// The choices of a payment by the older service, which no tab offers.
struct BillpointChoices {
  bool IsDiscounted = false;
  bool IsCreditCard = false;
  bool IsInternational = false;
};

/// Choices and entries in the terms of the tabs, so that the tabs' functions can price them as they are. Of
/// the members those of its kind count; `payment.txtConversion` is the exchange rate of both services. Texts
/// are amounts and counts as they were written, in the locale of whoever wrote them.
struct Listing {
  ListingKind kind = ListingKind::Single;
  std::int32_t site = CAuctionSite::eBayUS;
  bool isFixedPrice = false;  ///< changes no fee, but there is no reserve then
  SingleItemChoices single;
  std::string opening;  ///< single: opening bid, reserve or fixed price; multiple: opening price of an item
  std::string closing;  ///< single: closing bid; multiple: lowest successful bid
  MultipleItemsChoices multiple;
  std::string offered;
  std::string sold;
  PaymentChoices payment;
  BillpointChoices billpoint;
  std::string amount;  ///< of a payment
};
