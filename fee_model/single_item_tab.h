#pragma once

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

/// Recalculates the tab in `boxes`. If a text is no number or too large, it throws AmountError, and the boxes
/// hold what the steps before the error had written. Without a calculator (`nullptr`) the fee steps are
/// skipped.
void recalculateSingleItem(const SingleItemChoices& choices, CRegularAuction* calculator,
                           const NumberLocale& locale, SingleItemBoxes& boxes);

/// The choices in the terms of the calculator.
ListingFeatures chosenFeatures(const SingleItemChoices& choices);

/// False if the item did not sell, or if its reserve was set and not met.
bool itemSold(const SingleItemChoices& choices, const SingleItemBoxes& boxes, const NumberLocale& locale);
