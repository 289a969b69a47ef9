#include "option_table.h"

#include <array>

#include "listing_members.h"
#include "option_values.h"

namespace {

constexpr std::array<std::string_view, 4> kRealEstate{"3-10-day-auction", "30-day-auction", "30-day-ad",
                                                      "90-day-ad"};
constexpr std::array<std::string_view, 6> kPictures{"1", "2", "3", "4", "5", "pack"};

/// Ticks boxes. A flag that says no leaves them alone: another option may have ticked them.
template <auto... members>
void ticks(Listing& listing, std::string_view value) {
  if (flagOf(value)) ((choicesOf(listing, members).*members = true), ...);
}

void site(Listing& listing, std::string_view value) { listing.site = siteOf(value); }

void reserve(Listing& listing, std::string_view value) {
  if (flagOf(value)) listing.single.cboIsReserve = 1;
}

void echeck(Listing& listing, std::string_view value) {
  if (flagOf(value)) listing.payment.optPayPalCreditCard = listing.billpoint.IsCreditCard = false;
}

void realEstate(Listing& listing, std::string_view value) {
  if (value.empty()) return;
  listing.single.cboRealEstateType = indexIn(kRealEstate, value);
  listing.single.chkRealEstate = true;
}

void pictures(Listing& listing, std::string_view value) {
  if (value.empty() || value == "0") return;
  listing.single.cboExtraPhotos = listing.multiple.cboExtraPicturesDutch = indexIn(kPictures, value);
  listing.single.chkExtraPhotos = listing.multiple.chkExtraPicturesDutch = true;
}

using Single = SingleItemChoices;
using Multiple = MultipleItemsChoices;

// clang-format off
constexpr auto kOptions = std::to_array<Option>({
    {"site",     OptionKind::Choice, ForAll,       "us|uk|ca|de", "the eBay site (us)", site},
    {"opening",  OptionKind::Amount, ForListings,  "", "the opening bid; with --reserve the reserve price, with --fixed-price the fixed price (needed but for real estate and vehicles)", setText<&Listing::opening>, "the opening price of each item (needed)"},
    {"closing",  OptionKind::Amount, ForListings,  "", "the closing bid", setText<&Listing::closing>, "the lowest successful bid (needed if all items are sold)"},
    {"offered",  OptionKind::Count,  ForMultiple,  "", "items offered, two or more (needed)", setText<&Listing::offered>},
    {"sold",     OptionKind::Count,  ForMultiple,  "", "items sold (needed)", setText<&Listing::sold>},
    {"amount",   OptionKind::Amount, ForPayments,  "", "the amount paid (needed)", setText<&Listing::amount>},
    {"rate",     OptionKind::Rate,   ForPayments,  "", "local currency for one US dollar (the site's built-in rate)", setText<&PaymentChoices::txtConversion>},
    // How it was listed, and how it ended
    {"did-not-sell", OptionKind::Flag, ForSingle,  "", "the item did not sell", ticks<&Single::chkDidNotSell>},
    {"reserve",      OptionKind::Flag, ForSingle,  "", "the opening price is a reserve price; neither on eBay Germany nor with --fixed-price", reserve},
    {"fixed-price",  OptionKind::Flag, ForListings, "", "a fixed-price listing instead of an auction", ticks<&Listing::isFixedPrice>},
    {"two-categories", OptionKind::Flag, ForListings, "", "listed in two categories", ticks<&Single::chkTwoCategories, &Multiple::chkDutchTwoCategories>},
    {"motors",       OptionKind::Flag, ForListings, "", "on eBay Motors", ticks<&Single::chkMotors, &Multiple::chkEBayMotorsDutch>, "on eBay Motors of eBay.com"},
    {"vehicle",      OptionKind::Flag, ForSingle,  "", "a vehicle; brings --motors along", ticks<&Single::chkMotors, &Single::chkVehicle>},
    {"motorcycle",   OptionKind::Flag, ForSingle,  "", "a motorcycle; brings --vehicle along; on eBay.com and eBay Germany only", ticks<&Single::chkMotors, &Single::chkVehicle, &Single::optMotorcycle>},
    {"real-estate",  OptionKind::Choice, ForSingle, "3-10-day-auction|30-day-auction|30-day-ad|90-day-ad", "real estate, in this format; neither on eBay Germany nor with --motors", realEstate},
    {"timeshare",    OptionKind::Flag, ForSingle,  "", "the real estate is a timeshare or land; needs --real-estate", ticks<&Single::optTimeshare>},
    // Extra features
    {"subtitle",         OptionKind::Flag, ForListings, "", "a subtitle", ticks<&Single::chkSubTitleSingleItem, &Multiple::chkDutchSubtitle>},
    {"listing-designer", OptionKind::Flag, ForListings, "", "Listing Designer; on eBay.com only", ticks<&Single::chkListingDesigner, &Multiple::chkDutchListingDesigner>},
    {"scheduled",        OptionKind::Flag, ForListings, "", "a scheduled listing", ticks<&Single::chkScheduled, &Multiple::chkDutchScheduled>},
    {"slideshow",        OptionKind::Flag, ForListings, "", "a slide show of the pictures", ticks<&Single::chkSlideshow, &Multiple::chkSlideshowDutch>},
    {"supersize",        OptionKind::Flag, ForListings, "", "supersized pictures", ticks<&Single::chkSupersizePhotos, &Multiple::chkSupersizeDutch>},
    {"pictures",         OptionKind::Choice, ForListings, "1|2|3|4|5|pack", "extra pictures, or the picture pack", pictures},
    {"buy-it-now",       OptionKind::Flag, ForSingle,   "", "Buy it Now", ticks<&Single::chkBIN>},
    {"ten-day",          OptionKind::Flag, ForListings, "", "a ten-day auction", ticks<&Single::chkTenDayAuction, &Multiple::chkDutchTenDayAuction>},
    {"featured-plus",    OptionKind::Flag, ForListings, "", "Featured Plus", ticks<&Single::chkFeaturedCategory, &Multiple::chkDutchFeaturedPlus>},
    {"home-page-featured", OptionKind::Flag, ForListings, "", "featured on the home page", ticks<&Single::chkFeatured, &Multiple::chkDutchHomePageFeatured>},
    {"gallery",          OptionKind::Flag, ForListings, "", "the gallery", ticks<&Single::chkGallery, &Multiple::chkDutchGallery>},
    {"gallery-featured", OptionKind::Flag, ForListings, "", "featured in the gallery; brings --gallery along", ticks<&Single::chkGallery, &Single::chkGalleryFeatured, &Multiple::chkDutchGallery, &Multiple::chkDutchGalleryFeatured>},
    {"highlight",        OptionKind::Flag, ForListings, "", "highlighted", ticks<&Single::chkHighlighted, &Multiple::chkDutchHighlight>},
    {"bold",             OptionKind::Flag, ForListings, "", "in bold", ticks<&Single::chkBold, &Multiple::chkDutchBold>},
    {"gift",             OptionKind::Flag, ForListings, "", "gift services, on eBay Motors the listing icon; on eBay.com only", ticks<&Single::chkGiftIcon, &Multiple::chkDutchGreatGift>},
    // Payments
    {"merchant",      OptionKind::Flag, ForPayment,   "", "a merchant account", ticks<&PaymentChoices::optPayPalMerchant>},
    {"discounted",    OptionKind::Flag, ForBillpoint, "", "the discounted rate", ticks<&BillpointChoices::IsDiscounted>},
    {"echeck",        OptionKind::Flag, ForPayments,  "", "paid by eCheck instead of a credit card", echeck},
    {"international", OptionKind::Flag, ForPayments,  "", "the buyer is abroad", ticks<&PaymentChoices::chkInternationalPayPal, &BillpointChoices::IsInternational>},
});
// clang-format on

}  // namespace

std::span<const Option> options() { return kOptions; }
