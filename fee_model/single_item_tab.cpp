#include "single_item_tab.h"

#include "amount_text.h"
#include "entry_rules.h"

namespace {

constexpr int kNoReserve = 0;
constexpr int kReserve = 1;
constexpr int kThirtyDayAd = 2;

/// A menu command can meet a box in which only the decimal symbol was typed so far: it counts as empty.
std::string_view priceText(const std::string& box, const NumberLocale& locale) {
  return isLoneDecimalSymbol(box, locale) ? std::string_view{} : std::string_view(box);
}

Currency priceOrZero(const std::string& box, const NumberLocale& locale) {
  const std::string_view text = priceText(box, locale);
  return text.empty() ? Currency{} : toCurrency(text, locale);
}

/// One run of the recalculation. The steps stand in the order in which they must run; each reads the boxes
/// as the steps before left them.
class SingleItemRecalculation {
 public:
  SingleItemRecalculation(const SingleItemChoices& choices, CRegularAuction* calculator,
                          const NumberLocale& locale, SingleItemBoxes& boxes)
      : m_choices(choices), m_calculator(calculator), m_locale(locale), m_boxes(boxes) {}

  void run() {
    clearResults();
    readPrices();
    raiseClosingToOpening();
    if (m_calculator != nullptr) {
      InsertionFee();
      DidNotMeetReserve();
      FinalValueFee();
      ExtraFeatures();
    }
    restoreClosingPrice();
    formatPrices();
  }

 private:
  void clearResults() {
    for (std::string* box :
         {&m_boxes.txtInsertionFee, &m_boxes.txtExtras, &m_boxes.txtFVF, &m_boxes.txtFees}) {
      box->clear();
    }
  }

  void readPrices() {
    m_opening = priceOrZero(m_boxes.txtStartingPrice, m_locale);
    m_closing = priceOrZero(m_boxes.txtPrice, m_locale);
  }

  // Without a reserve a bid below the opening bid cannot win. An item that did not sell keeps its "0.00".
  void raiseClosingToOpening() {
    if (m_choices.chkDidNotSell || m_choices.cboIsReserve != kNoReserve || m_closing >= m_opening) return;
    m_closing = m_opening;
    m_boxes.txtPrice = plainText(m_closing, m_locale);
  }

  void InsertionFee() {
    m_boxes.txtInsertionFee = m_calculator->InsertionFee(
        priceText(m_boxes.txtStartingPrice, m_locale), m_choices.chkTwoCategories, m_choices.chkRealEstate,
        m_choices.chkVehicle, m_choices.optMotorcycle, m_choices.optTimeshare, m_choices.cboRealEstateType);
    m_boxes.txtFees = m_boxes.txtInsertionFee;
  }

  void DidNotMeetReserve() {
    if (m_choices.cboIsReserve != kReserve || itemSold(m_choices, m_boxes, m_locale)) return;
    // The reserve fee does not take an empty price; an empty box is a reserve of nothing.
    const std::string_view reserve = priceText(m_boxes.txtStartingPrice, m_locale);
    const Currency fee = number(m_calculator->ReserveFee(
        reserve.empty() ? std::string_view("0") : reserve, m_boxes.txtFees, m_boxes.txtInsertionFee,
        m_choices.chkTwoCategories, m_choices.chkVehicle, m_choices.cboRealEstateType == kThirtyDayAd));
    m_boxes.txtInsertionFee = twoDecimals(number(m_boxes.txtInsertionFee) + fee, m_locale);
    m_boxes.txtFees = twoDecimals(number(m_boxes.txtFees) + fee, m_locale);
  }

  void FinalValueFee() {
    if (!itemSold(m_choices, m_boxes, m_locale)) return;
    m_boxes.txtFVF =
        m_calculator->FVF(priceText(m_boxes.txtPrice, m_locale), m_boxes.txtFees, m_choices.chkRealEstate,
                          m_choices.chkVehicle, m_choices.chkDidNotSell, m_choices.optMotorcycle);
    // Only an unsold item has a high bid here, so this empties the box; restoreClosingPrice fills it again.
    m_boxes.txtPrice = m_calculator->HighBid();
    m_boxes.txtFees = plainText(number(m_boxes.txtFVF) + number(m_boxes.txtFees), m_locale);
  }

  void ExtraFeatures() {
    m_boxes.txtExtras = m_calculator->ExtraFeaturesFee(chosenFeatures(m_choices));
    m_boxes.txtFees = twoDecimals(number(m_boxes.txtFees) + number(m_boxes.txtExtras), m_locale);
  }

  void restoreClosingPrice() {
    if (!m_choices.chkDidNotSell) m_boxes.txtPrice = plainText(m_closing, m_locale);
  }

  void formatPrices() {
    m_boxes.txtPrice = twoDecimals(std::string_view(m_boxes.txtPrice), m_locale);
    m_boxes.txtStartingPrice = twoDecimals(std::string_view(m_boxes.txtStartingPrice), m_locale);
  }

  [[nodiscard]] Currency number(std::string_view text) const { return toCurrency(text, m_locale); }

  const SingleItemChoices& m_choices;
  CRegularAuction* m_calculator;
  const NumberLocale& m_locale;
  SingleItemBoxes& m_boxes;
  Currency m_opening;
  Currency m_closing;
};

}  // namespace

void recalculateSingleItem(const SingleItemChoices& choices, CRegularAuction* calculator,
                           const NumberLocale& locale, SingleItemBoxes& boxes) {
  SingleItemRecalculation(choices, calculator, locale, boxes).run();
}

ListingFeatures chosenFeatures(const SingleItemChoices& choices) {
  return {.IsTwoCategories = choices.chkTwoCategories,
          .IsFeaturedPlus = choices.chkFeaturedCategory,
          .IsHomePageFeatured = choices.chkFeatured,
          .IsGallery = choices.chkGallery,
          .IsGalleryFeatured = choices.chkGalleryFeatured,
          .IsMotors = choices.chkMotors,
          .IsVehicle = choices.chkVehicle,
          .IsMotorcycle = choices.optMotorcycle,
          .IsRealEstateType = choices.cboRealEstateType != 0,
          .IsHighlight = choices.chkHighlighted,
          .IsGiftIcon = choices.chkGiftIcon,
          .IsBIN = choices.chkBIN,
          .IsTenDayAuction = choices.chkTenDayAuction,
          .IsBold = choices.chkBold,
          .HasExtraPhotos = choices.chkExtraPhotos,
          .PhotoChoice = choices.cboExtraPhotos,
          .IsSupersize = choices.chkSupersizePhotos,
          .IsSlideshow = choices.chkSlideshow,
          .IsScheduled = choices.chkScheduled,
          .IsListingDesigner = choices.chkListingDesigner,
          .IsSubtitle = choices.chkSubTitleSingleItem};
}

bool itemSold(const SingleItemChoices& choices, const SingleItemBoxes& boxes, const NumberLocale& locale) {
  const Currency opening = priceOrZero(boxes.txtStartingPrice, locale);
  const Currency closing = priceOrZero(boxes.txtPrice, locale);
  if (choices.chkDidNotSell) return false;
  return !(choices.cboIsReserve == kReserve && closing < opening);
}
