#include <fmt/format.h>

#include <array>

#include "explain_fees.h"

namespace {

constexpr std::array<std::string_view, 13> kNames{
    "Featured Plus",    "Home page",     "Gallery",  "Gallery Featured", "Bold",
    "Highlight",        "Gift services", "Ten days", "Buy it Now",       "Scheduled listing",
    "Listing Designer", "Subtitle",      "Pictures"};

bool dependsOnVehicle(ExtraFeature feature) {
  using enum ExtraFeature;
  return feature == Gallery || feature == GalleryFeatured || feature == Bold || feature == GiftIcon ||
         feature == TenDayAuction || feature == BuyItNow || feature == Scheduled;
}

/// The words of pictures: each kind with the price that the schedule answers for it alone.
std::string pictureRule(const CAuctionSite& site, const FeatureCircumstances& listing,
                        const ExplainWords& words) {
  constexpr int packChoice = 5;
  const auto alone = [&](bool hasPictures, int choice, bool isSupersize, bool isSlideshow) {
    return words.money(site.PhotosFee(hasPictures, choice, isSupersize, isSlideshow, listing.isVehicle));
  };
  const bool isPack = listing.pictures == packChoice;
  std::string rule;
  const auto add = [&rule](const std::string& part) { rule += (rule.empty() ? "" : ", ") + part; };
  if (listing.hasPictures && isPack) add("the picture pack " + alone(true, packChoice, false, false));
  if (listing.hasPictures && !isPack)
    add(fmt::format("{} extra at {} each", listing.pictures + 1, alone(true, 0, false, false)));
  if (listing.isSupersize)
    add(isPack ? "supersizing included in the picture pack" : "supersizing " + alone(false, 0, true, false));
  if (listing.isSlideshow) add("a slide show " + alone(false, 0, false, true));
  return rule;
}

/// Why a feature costs what it costs, before it is doubled.
std::string priceRule(const CAuctionSite& site, const FeeAddition& addition,
                      const FeatureCircumstances& listing, const ExplainWords& words) {
  if (addition.isCovered) return "included in Gallery Featured";
  if (addition.feature == ExtraFeature::Pictures) return pictureRule(site, listing, words);
  // The pack takes the price away that the gallery has without it.
  const bool isInPack = addition.feature == ExtraFeature::Gallery &&
                        addition.fee < site.GalleryFee(listing.isVehicle, false, 0);
  if (isInPack) return "included in the picture pack";
  std::string rule = addition.fee > 0.0F ? words.money(addition.fee) : "free";
  if (listing.isVehicle && dependsOnVehicle(addition.feature)) {
    rule += " for a vehicle";
  } else if (listing.isMotors && addition.feature == ExtraFeature::GalleryFeatured) {
    rule += " on eBay Motors";
  }
  if (listing.items > 1 && addition.feature == ExtraFeature::HomePageFeatured) rule += " for several items";
  return rule;
}

bool hasAnyPictures(const FeatureCircumstances& listing) {
  return listing.hasPictures || listing.isSupersize || listing.isSlideshow;
}

}  // namespace

std::vector<ExplainedStep> explainFeatures(const CAuctionSite& site, const FeeRecord& record,
                                           const FeatureCircumstances& circumstances,
                                           const ExplainWords& words) {
  std::vector<ExplainedStep> steps;
  for (const FeeAddition& addition : record) {
    // Pictures are asked for even where none are chosen.
    if (addition.feature == ExtraFeature::Pictures && !hasAnyPictures(circumstances)) continue;
    std::string rule = priceRule(site, addition, circumstances, words);
    if (circumstances.isTwoCategories && addition.fee > 0.0F) {
      const bool isDoubled = addition.addend > static_cast<double>(addition.fee);
      rule += isDoubled ? kDoubled : "; not doubled for two categories";
    }
    steps.push_back({.step = std::string(kNames[static_cast<std::size_t>(addition.feature)]),
                     .amount = addition.addend,
                     .shown = words.money(static_cast<float>(addition.addend)),
                     .rule = std::move(rule),
                     .kept = KeptAs::Single});
  }
  return steps;
}
