#pragma once

#include <string_view>
#include <type_traits>

#include "listing.h"

/// \file
/// Members of a listing as the places where the rows of a table put their values.

/// The choices of a listing that a member belongs to.
template <typename Choices, typename Value>
Choices& choicesOf(Listing& listing, Value Choices::* /*member*/) {
  if constexpr (std::is_same_v<Choices, SingleItemChoices>) {
    return listing.single;
  } else if constexpr (std::is_same_v<Choices, MultipleItemsChoices>) {
    return listing.multiple;
  } else if constexpr (std::is_same_v<Choices, PaymentChoices>) {
    return listing.payment;
  } else if constexpr (std::is_same_v<Choices, BillpointChoices>) {
    return listing.billpoint;
  } else {
    return listing;
  }
}

/// Takes a text as it is.
template <auto member>
void setText(Listing& listing, std::string_view value) {
  choicesOf(listing, member).*member = value;
}
