#pragma once

#include <cstdint>
#include <vector>

#include "amount_text.h"
#include "auction_site.h"

/// What is charged extra, in the order in which a single item's features are added.
enum class ExtraFeature : std::uint8_t {
  FeaturedPlus,
  HomePageFeatured,
  Gallery,
  GalleryFeatured,
  Bold,
  Highlight,
  GiftIcon,
  TenDayAuction,
  BuyItNow,
  Scheduled,
  ListingDesigner,
  Subtitle,
  Pictures  ///< extra pictures, supersizing and the slide show together
};

/// What of the listing decided which of a feature's fees is charged.
enum class FeeCause : std::uint8_t {
  None,  ///< there is one fee, or the listing has nothing special
  Vehicle,
  Motors,
  SeveralItems,
  PicturePack,     ///< which includes it
  GalleryFeatured  ///< likewise
};

/// One addition of a total, for whoever has to tell how the total came about.
struct FeeAddition {
  ExtraFeature feature = ExtraFeature::FeaturedPlus;
  float fee = 0.0F;        ///< the schedule's figure
  bool isDoubled = false;  ///< for two categories: added twice
  FeeCause cause = FeeCause::None;
};
using FeeRecord = std::vector<FeeAddition>;

/// A sum of feature fees, stored in single precision after each addition: the order of the additions shows in
/// the cents. Listing in two categories doubles some fees and leaves others alone. With a record it notes
/// every addition there.
class FeeTotal {
 public:
  explicit FeeTotal(bool isTwoCategories, FeeRecord* record = nullptr)
      : m_isTwoCategories(isTwoCategories), m_record(record) {}

  void addDoubledForTwoCategories(ExtraFeature feature, float fee, FeeCause cause = FeeCause::None) {
    store({.feature = feature, .fee = fee, .isDoubled = m_isTwoCategories, .cause = cause});
  }
  void add(ExtraFeature feature, float fee, FeeCause cause = FeeCause::None) {
    store({.feature = feature, .fee = fee, .isDoubled = false, .cause = cause});
  }

  [[nodiscard]] float total() const { return m_total; }

 private:
  void store(const FeeAddition& addition) {
    const auto fee = static_cast<double>(addition.fee);
    m_total = storedAsSingle(static_cast<double>(m_total) + (addition.isDoubled ? fee + fee : fee));
    if (m_record != nullptr) m_record->push_back(addition);
  }

  bool m_isTwoCategories;
  FeeRecord* m_record;
  float m_total = 0.0F;
};

/// The gallery comes with the picture pack, where it is free, and costs vehicles its own fee.
inline FeeCause galleryCause(bool IsVehicle, bool HasExtraPhotos, int PhotoChoice) {
  if (HasExtraPhotos && PhotoChoice == CAuctionSite::picturePackChoice) return FeeCause::PicturePack;
  return IsVehicle ? FeeCause::Vehicle : FeeCause::None;
}

/// Being featured there costs more on eBay Motors, and vehicles yet another fee.
inline FeeCause galleryFeaturedCause(bool IsMotors, bool IsVehicle) {
  if (!IsMotors) return FeeCause::None;
  return IsVehicle ? FeeCause::Vehicle : FeeCause::Motors;
}
