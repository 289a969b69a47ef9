#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "explain.h"
#include "explain_words.h"

/// \file
/// The fees of listings and payments, each explained for itself. The figures of the fees are left to the
/// caller, who has priced the listing, and so is their rounding to cents.

/// What the words of a feature depend on besides its fee.
struct FeatureCircumstances {
  bool isTwoCategories = false;
  bool isVehicle = false;
  bool isMotors = false;
  bool hasPictures = false;
  int pictures = 0;  ///< as in CAuctionSite::PhotosFee
  bool isSupersize = false;
  bool isSlideshow = false;
};

std::vector<ExplainedStep> explainFeatures(const CAuctionSite& site, const FeeRecord& record,
                                           const FeatureCircumstances& circumstances,
                                           const ExplainWords& words);

/// "tier 3, 10.00 to 24.99", or why a price is in none.
std::string ladderRule(const LadderStep& step, float price, const ExplainWords& words);

/// The final value fee of so many items, each sold for that price, tier by tier.
std::vector<ExplainedStep> explainSale(const CAuctionSite& site, const std::string& price, int count,
                                       const ExplainWords& words);

std::vector<ExplainedFee> explainSingle(const Listing& listing, const ExplainWords& words, const Fees& fees);
std::vector<ExplainedFee> explainMultiple(const Listing& listing, const ExplainWords& words,
                                          const Fees& fees);
std::vector<ExplainedFee> explainPayment(const Listing& listing, const ExplainWords& words, const Fees& fees);

/// What most fees of a listing are added to.
inline constexpr const char* kTotalFees = "Total fees";

/// What ends the words of a fee that is doubled, or would be but for its nature.
inline constexpr std::string_view kDoubled = "; doubled for two categories";
