#pragma once

#include <cstdint>
#include <vector>

#include "amount_text.h"

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

/// One addition of a total, for whoever has to tell how the total came about.
struct FeeAddition {
  ExtraFeature feature = ExtraFeature::FeaturedPlus;
  float fee = 0.0F;        ///< the schedule's figure
  double addend = 0.0;     ///< what was added: the figure, or twice the figure
  bool isCovered = false;  ///< chosen, but covered by another feature: nothing was added
};
using FeeRecord = std::vector<FeeAddition>;

/// A sum of feature fees, stored in single precision after each addition: the order of the additions shows in
/// the cents. Listing in two categories doubles some fees and leaves others alone. With a record it notes
/// every addition there.
class FeeTotal {
 public:
  explicit FeeTotal(bool isTwoCategories, FeeRecord* record = nullptr)
      : m_multiplier(isTwoCategories ? 2.0 : 1.0), m_record(record) {}

  void addDoubledForTwoCategories(ExtraFeature feature, float fee) {
    store(feature, fee, static_cast<double>(fee) * m_multiplier);
  }
  void add(ExtraFeature feature, float fee) { store(feature, fee, static_cast<double>(fee)); }
  /// Notes a feature that is chosen and not charged, because another one covers it.
  void leaveOut(ExtraFeature feature) {
    if (m_record != nullptr) m_record->push_back({.feature = feature, .isCovered = true});
  }

  [[nodiscard]] float total() const { return m_total; }

 private:
  void store(ExtraFeature feature, float fee, double addend) {
    m_total = storedAsSingle(static_cast<double>(m_total) + addend);
    if (m_record != nullptr) m_record->push_back({.feature = feature, .fee = fee, .addend = addend});
  }

  double m_multiplier;
  FeeRecord* m_record;
  float m_total = 0.0F;
};
