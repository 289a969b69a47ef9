#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pricing.h"

/// A price at which a feature has paid for itself, with its proof.
struct PayingPrice {
  Currency rise;         ///< how much more each sold item brings
  Currency price;        ///< what it then brings
  Currency net;          ///< what the seller keeps at that price
  Currency netOneBelow;  ///< and one cent below it; of no meaning without a rise
};

/// The price that must rise for a sale to bring more.
enum class RaisedPrice : std::uint8_t { Closing, Opening };

/// What one extra feature changes about a listing.
struct AddedFeature {
  std::string_view feature;  ///< as the option is named
  std::string_view value;    ///< of a choice
  Currency added;            ///< to the fees, at the prices as they are; below zero if it saves
  std::optional<PayingPrice> paying;
};

/// All features that are not chosen yet and that the site offers, one by one.
struct WhatIf {
  bool isSold = false;
  RaisedPrice raised = RaisedPrice::Closing;  ///< the opening price where items were left over
  std::vector<AddedFeature> features;
};

/// `paying` is the smallest whole cent more that leaves the seller with what he had before, found by pricing;
/// nothing where nothing was sold, or where no price up to `highestRise` more does it. Throws what
/// Pricer::price throws.
WhatIf whatIf(Pricer& pricer, const Listing& listing);

/// Far above what any feature can cost in fees and what these take of the rise itself.
inline constexpr Currency highestRise = Currency::fromTenThousandths(10'000'000);
