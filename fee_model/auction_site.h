#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "fee_schedule.h"

/// The selected auction site and its fee schedule: the one place that knows a fee number. It answers single
/// figures; it does no totalling, rounding or formatting. Amounts are in the site's own currency and in
/// single precision, rates are fractions (0.0525 is 5.25 %). An unknown site answers 0 or "" throughout.
/// Members that multiply throw OverflowError if the product does not fit single precision.
///
/// The numbers stand in fee_schedule.cpp; here stands which of them a choice of the listing takes.
class CAuctionSite {
 public:
  static constexpr int picturePackChoice = 5;  ///< of `PhotoChoice`
  enum KnownSite : std::int32_t { eBayUS = 1, eBayUK = 2, eBayCanada = 3, eBayGermany = 4 };

  void Site(std::int32_t site) { m_site = site; }
  [[nodiscard]] std::int32_t Site() const { return m_site; }

  /// "$", "GBP", "C$" or "EUR", as shown beside the amounts.
  [[nodiscard]] std::string_view CurrencyString() const;

  /// `RealEstateFormat`: 0 3-10 day auction, 1 30-day auction, 2 30-day ad, 3 90-day ad.
  [[nodiscard]] float RealEstateInsertionFee(bool IsTimeshareLand, int RealEstateFormat) const;
  [[nodiscard]] float VehicleInsertionFee(bool IsMotorcycle) const;
  /// How the fee on a sold vehicle is made: a flat figure, the share of its price, or the two together.
  struct VehicleSaleRule {
    std::optional<Figure> flat;
    bool takesShare = false;
  };
  [[nodiscard]] VehicleSaleRule VehicleSale(bool IsMotorcycle, float SalePrice) const;
  /// The fee on a sold vehicle.
  [[nodiscard]] float VehicleFVF(bool IsMotorcycle, float SalePrice) const;

  [[nodiscard]] float ListingFeeFirstTierUpper() const { return amount(Figure::ListingFeeFirstTierUpper); }
  [[nodiscard]] float ListingFeeSecondTierUpper() const { return amount(Figure::ListingFeeSecondTierUpper); }
  [[nodiscard]] float ListingFeeThirdTierUpper() const { return amount(Figure::ListingFeeThirdTierUpper); }
  [[nodiscard]] float ListingFeeFourthTierUpper() const { return amount(Figure::ListingFeeFourthTierUpper); }
  [[nodiscard]] float ListingFeeFifthTierUpper() const { return amount(Figure::ListingFeeFifthTierUpper); }
  [[nodiscard]] float ListingFeeSixthTierUpper() const { return amount(Figure::ListingFeeSixthTierUpper); }
  [[nodiscard]] float ListingFeeFirstTier() const { return amount(Figure::ListingFeeFirstTier); }
  [[nodiscard]] float ListingFeeSecondTier() const { return amount(Figure::ListingFeeSecondTier); }
  [[nodiscard]] float ListingFeeThirdTier() const { return amount(Figure::ListingFeeThirdTier); }
  [[nodiscard]] float ListingFeeFourthTier() const { return amount(Figure::ListingFeeFourthTier); }
  [[nodiscard]] float ListingFeeFifthTier() const { return amount(Figure::ListingFeeFifthTier); }
  [[nodiscard]] float ListingFeeSixthTier() const { return amount(Figure::ListingFeeSixthTier); }
  [[nodiscard]] float ListingFeeSeventhTier() const { return amount(Figure::ListingFeeSeventhTier); }

  [[nodiscard]] float ReserveSecondTierLower() const { return amount(Figure::ReserveSecondTierLower); }
  /// Neither choice moves the bound on any site.
  [[nodiscard]] float ReserveThirdTierLower(bool IsVehicle, bool IsRealEstateAd) const;
  /// `ReservePrice` does not matter in the first tier.
  [[nodiscard]] float ReserveFirstTier(float ReservePrice, bool IsVehicle, bool IsReducedReserve) const;
  [[nodiscard]] float ReserveSecondTier(float ReservePrice, bool IsVehicle, bool IsReducedReserve) const;
  /// A capped share of the price, and nothing where no share is taken: UK, and vehicles in the US.
  [[nodiscard]] float ReserveThirdTier(float ReservePrice, bool IsVehicle, bool IsReducedReserve) const;

  /// `IsMotors` does not matter on any site.
  [[nodiscard]] float FeaturedPlusFee(bool IsMotors, bool IsMultipleItem) const;
  [[nodiscard]] float HomePageFeaturedFee(int Quantity) const;
  /// The cap as the schedule prints it; the calculation uses the ones of ReserveThirdTier.
  [[nodiscard]] float ReserveFeeCap() const { return amount(Figure::ReserveFeeCap); }
  [[nodiscard]] float HighlightFee() const { return amount(Figure::Highlight); }
  /// The second choice does not matter on any site.
  [[nodiscard]] float BoldFee(bool IsVehicle, bool IsRealEstate) const;
  [[nodiscard]] float TenDayAuctionFee(bool IsVehicle) const;
  /// The second choice does not matter on any site.
  [[nodiscard]] float BINFee(bool IsVehicle, bool IsMotorcycle) const;
  /// `PhotoChoice`: 0 to 4 are one to five extra photos, 5 is the picture pack, anything else no photo.
  /// Supersizing and the slide show are charged without extra photos too. `IsVehicle` does not matter.
  [[nodiscard]] float PhotosFee(bool HasExtraPhotos, int PhotoChoice, bool IsSupersize, bool IsSlideshow,
                                bool IsVehicle) const;
  [[nodiscard]] float GiftIconFee(bool IsVehicle) const;
  [[nodiscard]] float ScheduledListingFee(bool IsVehicle) const;
  [[nodiscard]] float SubtitleFee() const { return amount(Figure::Subtitle); }
  /// Nothing with the picture pack, which includes the gallery picture.
  [[nodiscard]] float GalleryFee(bool IsVehicle, bool HasExtraPhotos, int PhotoChoice) const;
  [[nodiscard]] float GalleryFeaturedFee(bool IsMotors, bool IsVehicle) const;

  [[nodiscard]] float FVFSecondTierLower() const { return amount(Figure::FVFSecondTierLower); }
  [[nodiscard]] float FVFThirdTierLower() const { return amount(Figure::FVFThirdTierLower); }
  [[nodiscard]] float FVFFirstTier() const { return amount(Figure::FVFFirstTier); }
  [[nodiscard]] float FVFSecondTier() const { return amount(Figure::FVFSecondTier); }
  [[nodiscard]] float FVFThirdTier() const { return amount(Figure::FVFThirdTier); }
  /// As the schedule prints it; a sold vehicle is charged VehicleFVF.
  [[nodiscard]] float FVFVehicle(bool IsMotorcycle) const;

  [[nodiscard]] float BillpointFlatFee() const { return amount(Figure::BillpointFlatFee); }
  [[nodiscard]] float BillpointEcheckRate(bool IsDiscounted) const;
  [[nodiscard]] float BillpointCCRate(bool IsDiscounted) const;
  /// The largest amount that can be paid so.
  [[nodiscard]] float BillpointMax(bool IsDiscounted, bool IsCreditCard) const;
  [[nodiscard]] float BillpointThreshold() const { return amount(Figure::BillpointThreshold); }

  /// For the caller to use where the user gave no rate; the schedule itself never does.
  [[nodiscard]] float DefaultConversionRate() const { return amount(Figure::DefaultConversionRate); }
  /// Local currency units per US dollar, kept per site; lost on eBay.com, which has nothing to convert.
  void ConversionRate(float rate);
  /// 0 on Germany, although its rate is kept and used by the two PayPal amounts.
  [[nodiscard]] float ConversionRate() const;
  [[nodiscard]] float PayPalFlatFee() const { return amount(Figure::PayPalFlatFee); }
  [[nodiscard]] float PayPalMaxFeeNonCC() const { return amount(Figure::PayPalMaxFeeNonCC); }

  [[nodiscard]] float ListingDesignerFee() const { return amount(Figure::ListingDesigner); }

  /// The figure of the current site in single precision, converted where it is kept in dollars.
  [[nodiscard]] float amount(Figure figure) const;
  /// A fraction as the formulas multiply by it, in double precision.
  [[nodiscard]] double share(Figure figure) const;

 private:
  [[nodiscard]] bool isKnown() const { return m_site >= eBayUS && m_site <= eBayGermany; }

  std::int32_t m_site = 0;
  std::array<float, kSiteCount> m_rates{};  ///< the first, eBay.com's, is never written
};
