#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "auction_site.h"
#include "dutch_auction.h"
#include "fee_total.h"
#include "number_locale.h"

/// \file
/// What the Multiple Items tab computes, without its widgets: the choices go in, the texts of the boxes are
/// rewritten. Members bear the names of the controls.

/// The choices made on the tab. Hidden and disabled controls count as they stand. The type of the listing
/// changes a label only.
struct MultipleItemsChoices {
  bool chkEBayMotorsDutch = false;
  bool chkDutchSubtitle = false;
  bool chkDutchTwoCategories = false;
  bool chkDutchListingDesigner = false;
  bool chkDutchScheduled = false;
  bool chkExtraPicturesDutch = false;
  int cboExtraPicturesDutch = 0;  ///< list index, as in CAuctionSite::PhotosFee
  bool chkSupersizeDutch = false;
  bool chkSlideshowDutch = false;
  bool chkDutchTenDayAuction = false;
  bool chkDutchGreatGift = false;
  bool chkDutchBold = false;
  bool chkDutchHighlight = false;
  bool chkDutchGalleryFeatured = false;
  bool chkDutchGallery = false;
  bool chkDutchHomePageFeatured = false;
  bool chkDutchFeaturedPlus = false;

  friend bool operator==(const MultipleItemsChoices&, const MultipleItemsChoices&) = default;
};

/// The texts of the tab's boxes, in the user's locale.
struct MultipleItemsBoxes {
  std::string txtDutchItemsOffered;
  std::string txtDutchOpeningPrice;  ///< per item
  std::string txtDutchItemsSold;
  std::string txtDutchFinalPrice;  ///< the lowest successful bid
  std::string txtDutchFees;        ///< total of all fees
  std::string txtExtraFeaturesDutch;
  std::string txtTotalDutchAuctionSales;
  std::string txtDutchCostPerItem;  ///< fees per item sold
};

/// What the tab calculates with. Without a calculator (`nullptr`) the fees are not touched.
struct MultipleItemsCalculators {
  const CAuctionSite* site = nullptr;
  const CDutchAuction* auction = nullptr;
};

/// What the tab settles on its way to the boxes, which do not show all of it. The amounts are of all items.
struct MultipleItemsFigures {
  Currency insertion;
  Currency finalValue;
  Currency total;
  std::string price;  ///< the text of what each sold item brings, which its final value fee is taken from
  bool isAtOpening = false;  ///< that text is the opening price: items were left over, or no bid reached it
  std::int16_t offered = 0;
  std::int16_t sold = 0;  ///< at most as many as were offered
};

/// Recalculates the tab in `boxes`; `notAvailable` is shown as the fee per item where none was sold. Fees are
/// calculated only when offered, opening price, sold and lowest bid are all filled in. If a text is no
/// number, an amount too large or a count above 32767, it throws AmountError, and the boxes hold what the
/// steps before the error had written. The figures are complete when fees were calculated.
MultipleItemsFigures recalculateMultipleItems(const MultipleItemsChoices& choices,
                                              const MultipleItemsCalculators& calculators,
                                              const NumberLocale& locale, std::string_view notAvailable,
                                              MultipleItemsBoxes& boxes);

/// The total of the extra features, in single precision, with every addition noted in `record`.
/// `itemsOffered` decides the home page's price.
float dutchExtraFeatures(const MultipleItemsChoices& choices, const CAuctionSite& site, int itemsOffered,
                         FeeRecord* record = nullptr);
