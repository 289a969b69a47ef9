#include "listing_members.h"
#include "option_table.h"
#include "option_values.h"

namespace {

/// The index of a list of the window; a list that has no such index keeps its own.
int listIndex(std::string_view text) {
  int index = 0;
  for (const char digit : text) {
    constexpr int longest = 1000;
    if (digit < '0' || digit > '9' || index > longest)
      throw OptionError("\"" + std::string(text) + "\" is no list index");
    index = index * 10 + (digit - '0');
  }
  return index;
}

/// The state of one control, on or off.
template <auto member>
void state(Listing& listing, std::string_view value) {
  choicesOf(listing, member).*member = flagOf(value);
}

template <auto member>
void index(Listing& listing, std::string_view value) {
  choicesOf(listing, member).*member = listIndex(value);
}

using Single = SingleItemChoices;
using Multiple = MultipleItemsChoices;

// clang-format off
constexpr auto kControls = std::to_array<WindowControl>({
    {"site", ForAll, index<&Listing::site>},
    {"txtStartingPrice", ForSingle, setText<&Listing::opening>},
    {"txtPrice", ForSingle, setText<&Listing::closing>},
    {"chkDidNotSell", ForSingle, state<&Single::chkDidNotSell>},
    {"cboIsReserve", ForSingle, index<&Single::cboIsReserve>},
    {"chkRealEstate", ForSingle, state<&Single::chkRealEstate>},
    {"optTimeshare", ForSingle, state<&Single::optTimeshare>},
    {"cboRealEstateType", ForSingle, index<&Single::cboRealEstateType>},
    {"chkMotors", ForSingle, state<&Single::chkMotors>},
    {"chkVehicle", ForSingle, state<&Single::chkVehicle>},
    {"optMotorcycle", ForSingle, state<&Single::optMotorcycle>},
    {"chkSubTitleSingleItem", ForSingle, state<&Single::chkSubTitleSingleItem>},
    {"chkListingDesigner", ForSingle, state<&Single::chkListingDesigner>},
    {"chkScheduled", ForSingle, state<&Single::chkScheduled>},
    {"chkSlideshow", ForSingle, state<&Single::chkSlideshow>},
    {"chkSupersizePhotos", ForSingle, state<&Single::chkSupersizePhotos>},
    {"cboExtraPhotos", ForSingle, index<&Single::cboExtraPhotos>},
    {"chkExtraPhotos", ForSingle, state<&Single::chkExtraPhotos>},
    {"chkBIN", ForSingle, state<&Single::chkBIN>},
    {"chkTenDayAuction", ForSingle, state<&Single::chkTenDayAuction>},
    {"chkTwoCategories", ForSingle, state<&Single::chkTwoCategories>},
    {"chkFeaturedCategory", ForSingle, state<&Single::chkFeaturedCategory>},
    {"chkFeatured", ForSingle, state<&Single::chkFeatured>},
    {"chkGallery", ForSingle, state<&Single::chkGallery>},
    {"chkGalleryFeatured", ForSingle, state<&Single::chkGalleryFeatured>},
    {"chkHighlighted", ForSingle, state<&Single::chkHighlighted>},
    {"chkBold", ForSingle, state<&Single::chkBold>},
    {"chkGiftIcon", ForSingle, state<&Single::chkGiftIcon>},
    {"txtDutchItemsOffered", ForMultiple, setText<&Listing::offered>},
    {"txtDutchOpeningPrice", ForMultiple, setText<&Listing::opening>},
    {"txtDutchItemsSold", ForMultiple, setText<&Listing::sold>},
    {"txtDutchFinalPrice", ForMultiple, setText<&Listing::closing>},
    {"chkEBayMotorsDutch", ForMultiple, state<&Multiple::chkEBayMotorsDutch>},
    {"chkDutchSubtitle", ForMultiple, state<&Multiple::chkDutchSubtitle>},
    {"chkDutchTwoCategories", ForMultiple, state<&Multiple::chkDutchTwoCategories>},
    {"chkDutchListingDesigner", ForMultiple, state<&Multiple::chkDutchListingDesigner>},
    {"chkDutchScheduled", ForMultiple, state<&Multiple::chkDutchScheduled>},
    {"chkExtraPicturesDutch", ForMultiple, state<&Multiple::chkExtraPicturesDutch>},
    {"cboExtraPicturesDutch", ForMultiple, index<&Multiple::cboExtraPicturesDutch>},
    {"chkSupersizeDutch", ForMultiple, state<&Multiple::chkSupersizeDutch>},
    {"chkSlideshowDutch", ForMultiple, state<&Multiple::chkSlideshowDutch>},
    {"chkDutchTenDayAuction", ForMultiple, state<&Multiple::chkDutchTenDayAuction>},
    {"chkDutchGreatGift", ForMultiple, state<&Multiple::chkDutchGreatGift>},
    {"chkDutchBold", ForMultiple, state<&Multiple::chkDutchBold>},
    {"chkDutchHighlight", ForMultiple, state<&Multiple::chkDutchHighlight>},
    {"chkDutchGalleryFeatured", ForMultiple, state<&Multiple::chkDutchGalleryFeatured>},
    {"chkDutchGallery", ForMultiple, state<&Multiple::chkDutchGallery>},
    {"chkDutchHomePageFeatured", ForMultiple, state<&Multiple::chkDutchHomePageFeatured>},
    {"chkDutchFeaturedPlus", ForMultiple, state<&Multiple::chkDutchFeaturedPlus>},
    {"txtPaymentAmount", ForPayment, setText<&Listing::amount>},
    {"txtConversion", ForPayment, setText<&PaymentChoices::txtConversion>},
    {"optPayPalMerchant", ForPayment, state<&PaymentChoices::optPayPalMerchant>},
    {"optPayPalCreditCard", ForPayment, state<&PaymentChoices::optPayPalCreditCard>},
    {"chkInternationalPayPal", ForPayment, state<&PaymentChoices::chkInternationalPayPal>},
    {"Amount", ForBillpoint, setText<&Listing::amount>},
    {"RateText", ForBillpoint, setText<&PaymentChoices::txtConversion>},
    {"IsDiscounted", ForBillpoint, state<&BillpointChoices::IsDiscounted>},
    {"IsCreditCard", ForBillpoint, state<&BillpointChoices::IsCreditCard>},
    {"IsInternational", ForBillpoint, state<&BillpointChoices::IsInternational>},
});
// clang-format on

}  // namespace

std::span<const WindowControl> windowControls() { return kControls; }
