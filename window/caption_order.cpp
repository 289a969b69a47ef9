#include "caption_order.h"

#include <array>

namespace {

// clang-format off
constexpr auto kNames = std::to_array<const char*>({
    // Menus
    "mnuFile", "mnuFileExit", "mnuFileNewWindow", "mnuFilePrint", "menuLang", "mnuHelp", "mnuHelpAbout",
    "mnuHelpBillpointUK", "mnuHelpBillpointUS", "mnuHelpContents", "mnuHelpFeedback", "mnuHelpHomepage",
    "mnuHelpPayPalInternational", "mnuHelpSources", "mnuHelpSourcesEbay", "mnuHelpSourcesEbayCanada",
    "mnuHelpSourcesEbayCanadaPictures", "mnuHelpSourcesEbayGermany", "mnuHelpSourcesEbayGermanyPictures",
    "mnuHelpSourcesEbayMotors", "mnuHelpSourcesEbayPictures", "mnuHelpSourcesEbayUK",
    "mnuHelpSourcesEbayUKPictures", "mnuHelpSourcesPayPalUS", "mnuHelpSubscribe", "mnuHelpUpdate",
    "mnuOptions", "mnuOptionsOnTop", "mnuOptionsSaveSettings", "mnuOptionsSite", "mnuOptionsSiteCanada",
    "mnuOptionsSiteEbay", "mnuOptionsSiteGermany", "mnuOptionsSiteUK",
    // Text boxes: tooltips
    "txtConversion", "txtDutchCostPerItem", "txtDutchFees", "txtDutchFinalPrice", "txtDutchItemsOffered",
    "txtDutchItemsSold", "txtDutchOpeningPrice", "txtExtraFeaturesDutch", "txtExtras", "txtFees",
    "txtFVF", "txtInsertionFee", "txtNotes", "txtPaymentAmount", "txtPayPalFee", "txtPrice",
    "txtStartingPrice", "txtTotalDutchAuctionSales",
    // Frames
    "frmDutchExtras", "frmFeatures", "frmPaymentAmount", "frmReserve", "frmPayPal", "fraAccountType",
    "fraAuctionType", "frameDutchOffer", "fraPaymentType",
    // Option buttons
    "optMotorcycle", "optOtherRealEstate", "optOtherVehicle", "optPayPalCreditCard", "optPayPalMerchant",
    "optPayPalNonCreditCard", "optPayPalStandard", "optTimeshare",
    // Check boxes
    "chkBIN", "chkBold", "chkDidNotSell", "chkDutchBold", "chkDutchFeaturedPlus", "chkDutchGallery",
    "chkDutchGalleryFeatured", "chkDutchGreatGift", "chkDutchHighlight", "chkDutchHomePageFeatured",
    "chkDutchListingDesigner", "chkDutchScheduled", "chkDutchTenDayAuction", "chkDutchTwoCategories",
    "chkEBayMotorsDutch", "chkExtraPhotos", "chkExtraPicturesDutch", "chkFeatured", "chkFeaturedCategory",
    "chkGallery", "chkGalleryFeatured", "chkGiftIcon", "chkHighlighted", "chkInternationalPayPal",
    "chkListingDesigner", "chkMotors", "chkRealEstate", "chkScheduled", "chkSlideshow",
    "chkSlideshowDutch", "chkSupersizeDutch", "chkSupersizePhotos", "chkTenDayAuction",
    "chkTwoCategories", "chkVehicle",
    // Labels
    "lblCheckRates", "lblTreuhandservice", "lblCurrency1", "lblCurrency2", "lblCurrency3", "lblCurrency4",
    "lblCurrency5", "lblCurrency6", "lblCurrency7", "lblCurrency8", "lblCurrency9", "lblCurrency10",
    "lblCurrency11", "lblCurrency12", "lblCurrency14", "lblCurrency15", "lblDutchFees",
    "lblDutchFeesPerItem", "lblDutchItemsOffered", "lblDutchItemsSold", "lblDutchOpeningPrice",
    "lblDutchSalesPrice", "lblExtraFeatures", "lblExtraFeaturesDutch", "lblFees", "lblFVF",
    "lblInsertionFee", "lblLinks", "lblOneDollarEquals", "lblPacking", "lblPaymentAmount",
    "lblPayPalFees", "lblTypeOfMultiItemListing", "lblPostal_0", "lblPostal_1", "lblPostal_2",
    "lblPostal_3", "lblPostal_4", "lblPostal_5", "lblPostal_6", "lblPostal_7", "lblPostal_8",
    "lblPostal_9", "lblPostal_10", "lblPostal_11", "lblPostal_12", "lblCountry_0", "lblCountry_1",
    "lblCountry_2", "lblCountry_3", "lblCountry_4", "lblPrice", "lblStartingPrice",
    "lblTotalDutchAuctionSales",
    // Buttons
    "cmdAddDutchToNotes", "cmdAddPaymentsToNotes", "cmdAddRegularToNotes", "cmdCalculate",
    "cmdCalculatePaymentFees", "cmdClearAll", "cmdClearNotepad", "cmdClearPaymentFees", "cmdCopyNotepad",
    "cmdDutchCalculate", "cmdDutchClearAll", "cmdNotepad", "cmdPrintNotepad",
});
// clang-format on

}  // namespace

QStringList captionOrder() {
  QStringList order;
  for (const char* name : kNames) order << QString::fromLatin1(name);
  return order;
}
