#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "number_locale.h"
#include "regular_auction.h"

/// \file
/// What the Single Item tab computes, without its widgets: the choices go in, the texts of the boxes are
/// rewritten. The window and the tests call the same function. Members bear the names of the controls.

/// The choices made on the tab. Hidden and disabled controls count as they stand.
struct SingleItemChoices {
  bool chkDidNotSell = false;
  int cboIsReserve = 0;  ///< list index: 0 no reserve, 1 reserve
  bool chkRealEstate = false;
  bool optTimeshare = false;
  int cboRealEstateType = 0;  ///< list index, as in CAuctionSite::RealEstateInsertionFee
  bool chkMotors = false;
  bool chkVehicle = false;
  bool optMotorcycle = false;
  bool chkSubTitleSingleItem = false;
  bool chkListingDesigner = false;
  bool chkScheduled = false;
  bool chkSlideshow = false;
  bool chkSupersizePhotos = false;
  int cboExtraPhotos = 0;  ///< list index, as in CAuctionSite::PhotosFee
  bool chkExtraPhotos = false;
  bool chkBIN = false;
  bool chkTenDayAuction = false;
  bool chkTwoCategories = false;
  bool chkFeaturedCategory = false;
  bool chkFeatured = false;
  bool chkGallery = false;
  bool chkGalleryFeatured = false;
  bool chkHighlighted = false;
  bool chkBold = false;
  bool chkGiftIcon = false;

  /// Whether there is a reserve that a bid can miss.
  [[nodiscard]] bool hasReserve() const { return cboIsReserve == 1; }
  [[nodiscard]] bool isThirtyDayAd() const { return cboRealEstateType == 2; }

  friend bool operator==(const SingleItemChoices&, const SingleItemChoices&) = default;
};

/// The texts of the tab's boxes, in the user's locale.
struct SingleItemBoxes {
  std::string txtStartingPrice;  ///< opening bid, reserve price or Buy-it-Now price
  std::string txtPrice;          ///< closing bid
  std::string txtInsertionFee;
  std::string txtExtras;
  std::string txtFVF;
  std::string txtFees;  ///< total of all fees
};

/// What the tab settles on its way to the boxes, which do not show all of it.
struct SingleItemFigures {
  Currency insertion;               ///< the fee for listing alone
  std::optional<Currency> reserve;  ///< of a reserve that was not met, as it is added: it may have part cents
  Currency total;
  std::string bid;  ///< of a sold item: the text that its final value fee was taken from, "" for nothing
  bool isRaised = false;  ///< that text is the opening price, which no bid reached
  bool isSold = false;
};

/// Recalculates the tab in `boxes`. If a text is no number or too large, it throws AmountError, and the boxes
/// hold what the steps before the error had written. Without a calculator (`nullptr`) the fee steps are
/// skipped, and the figures tell of no fee and no sale.
SingleItemFigures recalculateSingleItem(const SingleItemChoices& choices, CRegularAuction* calculator,
                                        const NumberLocale& locale, SingleItemBoxes& boxes);

/// The choices in the terms of the calculator.
ListingFeatures chosenFeatures(const SingleItemChoices& choices);

/// False if the item did not sell, or if its reserve was set and not met.
bool itemSold(const SingleItemChoices& choices, const SingleItemBoxes& boxes, const NumberLocale& locale);
