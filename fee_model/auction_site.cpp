#include "auction_site.h"

#include <algorithm>

#include "amount_text.h"

std::string_view CAuctionSite::CurrencyString() const {
  constexpr std::array<std::string_view, kSiteCount> currencies{"$", "GBP", "C$", "EUR"};
  return isKnown() ? currencies[static_cast<std::size_t>(m_site - 1)] : std::string_view{};
}

float CAuctionSite::RealEstateInsertionFee(bool IsTimeshareLand, int RealEstateFormat) const {
  switch (RealEstateFormat) {
    case 0:
      return amount(IsTimeshareLand ? Figure::RealEstateTimeshareThreeToTenDayAuction
                                    : Figure::RealEstateOtherThreeToTenDayAuction);
    case 1:
      return amount(IsTimeshareLand ? Figure::RealEstateTimeshareThirtyDayAuction
                                    : Figure::RealEstateOtherThirtyDayAuction);
    case 2:
      return amount(IsTimeshareLand ? Figure::RealEstateTimeshareThirtyDayAd
                                    : Figure::RealEstateOtherThirtyDayAd);
    case 3:
      return amount(IsTimeshareLand ? Figure::RealEstateTimeshareNinetyDayAd
                                    : Figure::RealEstateOtherNinetyDayAd);
    default:
      return amount(Figure::RealEstateUnknownFormat);
  }
}

float CAuctionSite::VehicleInsertionFee(bool IsMotorcycle) const {
  return amount(IsMotorcycle ? Figure::VehicleInsertionMotorcycle : Figure::VehicleInsertionOther);
}

CAuctionSite::VehicleSaleRule CAuctionSite::VehicleSale(bool IsMotorcycle, float SalePrice) const {
  switch (m_site) {
    case eBayUK:
      if (SalePrice < amount(Figure::VehicleSaleShareFrom)) return {.flat = Figure::VehicleSaleLowest};
      if (SalePrice < amount(Figure::VehicleSaleHighestFrom)) return {.flat = {}, .takesShare = true};
      return {.flat = Figure::VehicleSaleHighest};
    case eBayGermany:
      if (IsMotorcycle) return {.flat = Figure::VehicleSaleMotorcycle};
      if (SalePrice >= amount(Figure::VehicleSaleHighestFrom)) return {.flat = Figure::VehicleSaleHighest};
      return {.flat = Figure::VehicleSaleLowest, .takesShare = true};
    default:
      return {.flat = IsMotorcycle ? Figure::VehicleSaleMotorcycle : Figure::VehicleSaleLowest};
  }
}

float CAuctionSite::VehicleFVF(bool IsMotorcycle, float SalePrice) const {
  const VehicleSaleRule rule = VehicleSale(IsMotorcycle, SalePrice);
  const float flat = rule.flat ? amount(*rule.flat) : 0.0F;
  if (!rule.takesShare) return flat;
  const double shareOfPrice = static_cast<double>(SalePrice) * share(Figure::VehicleSaleShare);
  return storedAsSingle(static_cast<double>(flat) + shareOfPrice);
}

float CAuctionSite::ReserveThirdTierLower(bool /*IsVehicle*/, bool /*IsRealEstateAd*/) const {
  return amount(Figure::ReserveThirdTierLower);
}

float CAuctionSite::ReserveFirstTier(float /*ReservePrice*/, bool IsVehicle, bool IsReducedReserve) const {
  if (IsVehicle) return amount(Figure::ReserveFirstTierVehicle);
  return amount(IsReducedReserve ? Figure::ReserveFirstTierReduced : Figure::ReserveFirstTierOther);
}

float CAuctionSite::ReserveSecondTier(float ReservePrice, bool IsVehicle, bool IsReducedReserve) const {
  if (IsVehicle) return amount(Figure::ReserveSecondTierVehicle);
  if (IsReducedReserve) return amount(Figure::ReserveSecondTierReduced);
  const double shareOfPrice = static_cast<double>(ReservePrice) * share(Figure::ReserveSecondTierShare);
  return storedAsSingle(static_cast<double>(amount(Figure::ReserveSecondTierOther)) + shareOfPrice);
}

float CAuctionSite::ReserveThirdTier(float ReservePrice, bool IsVehicle, bool /*IsReducedReserve*/) const {
  // Only a share is charged here, no flat amount: US vehicles and the whole UK, whose share is 0, pay
  // nothing.
  if (IsVehicle && m_site == eBayUS) return 0.0F;
  const float fee = storedAsSingle(static_cast<double>(ReservePrice) * share(Figure::ReserveThirdTierShare));
  return std::min(fee, amount(Figure::ReserveThirdTierCap));
}

float CAuctionSite::FeaturedPlusFee(bool /*IsMotors*/, bool IsMultipleItem) const {
  return amount(IsMultipleItem ? Figure::FeaturedPlusMultiple : Figure::FeaturedPlusSingle);
}

float CAuctionSite::HomePageFeaturedFee(int Quantity) const {
  return amount(Quantity < 2 ? Figure::HomePageFeaturedOne : Figure::HomePageFeaturedSeveral);
}

float CAuctionSite::BoldFee(bool IsVehicle, bool /*IsRealEstate*/) const {
  return amount(IsVehicle ? Figure::BoldVehicle : Figure::BoldOther);
}

float CAuctionSite::TenDayAuctionFee(bool IsVehicle) const {
  return amount(IsVehicle ? Figure::TenDayAuctionVehicle : Figure::TenDayAuctionOther);
}

float CAuctionSite::BINFee(bool IsVehicle, bool /*IsMotorcycle*/) const {
  return amount(IsVehicle ? Figure::BuyItNowVehicle : Figure::BuyItNowOther);
}

float CAuctionSite::PhotosFee(bool HasExtraPhotos, int PhotoChoice, bool IsSupersize, bool IsSlideshow,
                              bool /*IsVehicle*/) const {
  const bool isPack = PhotoChoice == picturePackChoice;
  const int photos = PhotoChoice >= 0 && PhotoChoice < picturePackChoice ? PhotoChoice + 1 : 0;
  float total = 0.0F;
  if (HasExtraPhotos) {
    total =
        isPack
            ? amount(Figure::PicturePack)
            : storedAsSingle(static_cast<double>(photos) * static_cast<double>(amount(Figure::ExtraPhoto)));
  }
  // The pack includes supersizing, even where the pack itself is not taken.
  if (IsSupersize && !isPack) {
    total = storedAsSingle(static_cast<double>(total) + static_cast<double>(amount(Figure::Supersize)));
  }
  if (IsSlideshow) {
    total = storedAsSingle(static_cast<double>(total) + static_cast<double>(amount(Figure::Slideshow)));
  }
  return total;
}

float CAuctionSite::GiftIconFee(bool IsVehicle) const {
  return amount(IsVehicle ? Figure::GiftIconVehicle : Figure::GiftIconOther);
}

float CAuctionSite::ScheduledListingFee(bool IsVehicle) const {
  return amount(IsVehicle ? Figure::ScheduledVehicle : Figure::ScheduledOther);
}

float CAuctionSite::GalleryFee(bool IsVehicle, bool HasExtraPhotos, int PhotoChoice) const {
  if (HasExtraPhotos && PhotoChoice == picturePackChoice) return 0.0F;
  return amount(IsVehicle ? Figure::GalleryVehicle : Figure::GalleryOther);
}

float CAuctionSite::GalleryFeaturedFee(bool IsMotors, bool IsVehicle) const {
  if (!IsMotors) return amount(Figure::GalleryFeaturedWithoutMotors);
  return amount(IsVehicle ? Figure::GalleryFeaturedMotorsVehicle : Figure::GalleryFeaturedMotorsOther);
}

float CAuctionSite::FVFVehicle(bool IsMotorcycle) const {
  return amount(IsMotorcycle ? Figure::FVFVehicleMotorcycle : Figure::FVFVehicleOther);
}

float CAuctionSite::BillpointEcheckRate(bool IsDiscounted) const {
  return amount(IsDiscounted ? Figure::BillpointEcheckRateDiscounted : Figure::BillpointEcheckRateStandard);
}

float CAuctionSite::BillpointCCRate(bool IsDiscounted) const {
  return amount(IsDiscounted ? Figure::BillpointCCRateDiscounted : Figure::BillpointCCRateStandard);
}

float CAuctionSite::BillpointMax(bool IsDiscounted, bool IsCreditCard) const {
  if (IsCreditCard)
    return amount(IsDiscounted ? Figure::BillpointMaxCCDiscounted : Figure::BillpointMaxCCStandard);
  return amount(IsDiscounted ? Figure::BillpointMaxEcheckDiscounted : Figure::BillpointMaxEcheckStandard);
}

void CAuctionSite::ConversionRate(float rate) {
  if (isKnown() && m_site != eBayUS) m_rates[static_cast<std::size_t>(m_site - 1)] = rate;
}

float CAuctionSite::ConversionRate() const {
  if (m_site != eBayUK && m_site != eBayCanada) return 0.0F;
  return m_rates[static_cast<std::size_t>(m_site - 1)];
}

float CAuctionSite::amount(Figure figure) const {
  if (!isKnown()) return 0.0F;
  const FeeCell& cell = cellOf(figure, m_site);
  const auto stored = static_cast<float>(cell.value);
  if (!cell.followsTheRate) return stored;
  const float rate = m_rates[static_cast<std::size_t>(m_site - 1)];
  return storedAsSingle(static_cast<double>(stored) * static_cast<double>(rate));
}

double CAuctionSite::share(Figure figure) const { return isKnown() ? cellOf(figure, m_site).value : 0.0; }
