#include <fmt/format.h>

#include <array>

#include "explain_fees.h"

namespace {

constexpr std::array<std::string_view, 13> kNames{
    "Featured Plus",    "Home page",     "Gallery",  "Gallery Featured", "Bold",
    "Highlight",        "Gift services", "Ten days", "Buy it Now",       "Scheduled listing",
    "Listing Designer", "Subtitle",      "Pictures"};

/// As the window names it: on eBay Motors gift services are something else.
std::string_view nameOf(ExtraFeature feature, bool isMotors) {
  if (isMotors && feature == ExtraFeature::GiftIcon) return "Listing icon";
  return kNames.at(static_cast<std::size_t>(feature));
}

/// The words of pictures: each kind with the price that the schedule answers for it alone.
std::string pictureRule(const CAuctionSite& site, const FeatureCircumstances& listing,
                        const ExplainWords& words) {
  constexpr int packChoice = CAuctionSite::picturePackChoice;
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
std::string priceRule(const FeeAddition& addition, const ExplainWords& words) {
  std::string price = addition.fee > 0.0F ? words.money(addition.fee) : "free";
  switch (addition.cause) {
    case FeeCause::None:
      return price;
    case FeeCause::Vehicle:
      return price + " for a vehicle";
    case FeeCause::Motors:
      return price + " on eBay Motors";
    case FeeCause::SeveralItems:
      return price + " for several items";
    case FeeCause::PicturePack:
      return "included in the picture pack";
    case FeeCause::GalleryFeatured:
      break;
  }
  return "included in Gallery Featured";
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
    std::string rule = addition.feature == ExtraFeature::Pictures ? pictureRule(site, circumstances, words)
                                                                  : priceRule(addition, words);
    if (circumstances.isTwoCategories && addition.fee > 0.0F)
      rule += addition.isDoubled ? kDoubled : "; not doubled for two categories";
    const Currency fee = Currency::fromNumber(static_cast<double>(addition.fee));
    steps.push_back({.name = std::string(nameOf(addition.feature, circumstances.isMotors)),
                     .amount = addition.isDoubled ? fee + fee : fee,
                     .rule = std::move(rule)});
  }
  return steps;
}
