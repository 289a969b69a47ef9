#include "listing_members.h"
#include "option_table.h"
#include "option_values.h"

namespace {

/// The index of a list of the window, -1 for none of its entries. Entries that a list does not have are not
/// refused: they charge nothing.
int listIndex(std::string_view text) {
  if (text == "-1") return -1;
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
using Payment = PaymentChoices;
using Billpoint = BillpointChoices;

// clang-format off
// Named once, a control cannot set another's member.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): nothing else makes a text of a name
#define STATE(scope, Choices, name) {#name, OptionKind::Flag, scope, state<&Choices::name>}
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): nothing else makes a text of a name
#define INDEX(scope, Choices, name) {#name, OptionKind::Choice, scope, index<&Choices::name>}

constexpr auto kControls = std::to_array<WindowControl>({
    INDEX(ForAll, Listing, site),
    {"txtStartingPrice", OptionKind::Amount, ForSingle, setText<&Listing::opening>},
    {"txtPrice", OptionKind::Amount, ForSingle, setText<&Listing::closing>},
    STATE(ForSingle, Single, chkDidNotSell),
    INDEX(ForSingle, Single, cboIsReserve),
    STATE(ForSingle, Single, chkRealEstate),
    STATE(ForSingle, Single, optTimeshare),
    INDEX(ForSingle, Single, cboRealEstateType),
    STATE(ForSingle, Single, chkMotors),
    STATE(ForSingle, Single, chkVehicle),
    STATE(ForSingle, Single, optMotorcycle),
    STATE(ForSingle, Single, chkSubTitleSingleItem),
    STATE(ForSingle, Single, chkListingDesigner),
    STATE(ForSingle, Single, chkScheduled),
    STATE(ForSingle, Single, chkSlideshow),
    STATE(ForSingle, Single, chkSupersizePhotos),
    INDEX(ForSingle, Single, cboExtraPhotos),
    STATE(ForSingle, Single, chkExtraPhotos),
    STATE(ForSingle, Single, chkBIN),
    STATE(ForSingle, Single, chkTenDayAuction),
    STATE(ForSingle, Single, chkTwoCategories),
    STATE(ForSingle, Single, chkFeaturedCategory),
    STATE(ForSingle, Single, chkFeatured),
    STATE(ForSingle, Single, chkGallery),
    STATE(ForSingle, Single, chkGalleryFeatured),
    STATE(ForSingle, Single, chkHighlighted),
    STATE(ForSingle, Single, chkBold),
    STATE(ForSingle, Single, chkGiftIcon),
    {"txtDutchItemsOffered", OptionKind::Count, ForMultiple, setText<&Listing::offered>},
    {"txtDutchOpeningPrice", OptionKind::Amount, ForMultiple, setText<&Listing::opening>},
    {"txtDutchItemsSold", OptionKind::Count, ForMultiple, setText<&Listing::sold>},
    {"txtDutchFinalPrice", OptionKind::Amount, ForMultiple, setText<&Listing::closing>},
    STATE(ForMultiple, Multiple, chkEBayMotorsDutch),
    STATE(ForMultiple, Multiple, chkDutchSubtitle),
    STATE(ForMultiple, Multiple, chkDutchTwoCategories),
    STATE(ForMultiple, Multiple, chkDutchListingDesigner),
    STATE(ForMultiple, Multiple, chkDutchScheduled),
    STATE(ForMultiple, Multiple, chkExtraPicturesDutch),
    INDEX(ForMultiple, Multiple, cboExtraPicturesDutch),
    STATE(ForMultiple, Multiple, chkSupersizeDutch),
    STATE(ForMultiple, Multiple, chkSlideshowDutch),
    STATE(ForMultiple, Multiple, chkDutchTenDayAuction),
    STATE(ForMultiple, Multiple, chkDutchGreatGift),
    STATE(ForMultiple, Multiple, chkDutchBold),
    STATE(ForMultiple, Multiple, chkDutchHighlight),
    STATE(ForMultiple, Multiple, chkDutchGalleryFeatured),
    STATE(ForMultiple, Multiple, chkDutchGallery),
    STATE(ForMultiple, Multiple, chkDutchHomePageFeatured),
    STATE(ForMultiple, Multiple, chkDutchFeaturedPlus),
    {"txtPaymentAmount", OptionKind::Amount, ForPayment, setText<&Listing::amount>},
    {"txtConversion", OptionKind::Rate, ForPayment, setText<&Payment::txtConversion>},
    STATE(ForPayment, Payment, optPayPalMerchant),
    STATE(ForPayment, Payment, optPayPalCreditCard),
    STATE(ForPayment, Payment, chkInternationalPayPal),
    {"Amount", OptionKind::Amount, ForBillpoint, setText<&Listing::amount>},
    {"RateText", OptionKind::Rate, ForBillpoint, setText<&Payment::txtConversion>},
    STATE(ForBillpoint, Billpoint, IsDiscounted),
    STATE(ForBillpoint, Billpoint, IsCreditCard),
    STATE(ForBillpoint, Billpoint, IsInternational),
});
// clang-format on

#undef STATE
#undef INDEX

}  // namespace

std::span<const WindowControl> windowControls() { return kControls; }
