#include "single_item_tab.h"

#include <utility>

#include "amount_text.h"
#include "entry_rules.h"

namespace {

constexpr int kNoReserve = 0;

/// A menu command can meet a box in which only the decimal symbol was typed so far: it counts as empty.
std::string_view priceText(const std::string& box, const NumberLocale& locale) {
  return isLoneDecimalSymbol(box, locale) ? std::string_view{} : std::string_view(box);
}

Currency priceOrZero(const std::string& box, const NumberLocale& locale) {
  const std::string_view text = priceText(box, locale);
  return text.empty() ? Currency{} : toCurrency(text, locale);
}

bool isSold(const SingleItemChoices& choices, Currency opening, Currency closing) {
  if (choices.chkDidNotSell) return false;
  return !(choices.hasReserve() && closing < opening);
}

/// One run of the recalculation. The steps stand in the order in which they must run; each reads the boxes
/// as the steps before left them.
class SingleItemRecalculation {
 public:
  SingleItemRecalculation(const SingleItemChoices& choices, CRegularAuction* calculator,
                          const NumberLocale& locale, SingleItemBoxes& boxes)
      : m_choices(choices), m_calculator(calculator), m_locale(locale), m_boxes(boxes) {}

  SingleItemFigures run() {
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
    return std::move(m_figures);
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
    m_figures.isRaised = true;
  }

  void InsertionFee() {
    m_boxes.txtInsertionFee = m_calculator->InsertionFee(
        priceText(m_boxes.txtStartingPrice, m_locale), m_choices.chkTwoCategories, m_choices.chkRealEstate,
        m_choices.chkVehicle, m_choices.optMotorcycle, m_choices.optTimeshare, m_choices.cboRealEstateType);
    m_boxes.txtFees = m_boxes.txtInsertionFee;
    m_figures.insertion = m_figures.total = number(m_boxes.txtInsertionFee);
  }

  void DidNotMeetReserve() {
    m_figures.isSold = isSold(m_choices, m_opening, m_closing);
    if (!m_choices.hasReserve() || m_figures.isSold) return;
    // The reserve fee does not take an empty price; an empty box is a reserve of nothing.
    const std::string_view reserve = priceText(m_boxes.txtStartingPrice, m_locale);
    const Currency fee = number(m_calculator->ReserveFee(
        reserve.empty() ? std::string_view("0") : reserve, m_boxes.txtFees, m_boxes.txtInsertionFee,
        m_choices.chkTwoCategories, m_choices.chkVehicle, m_choices.isThirtyDayAd()));
    m_boxes.txtFees = m_boxes.txtInsertionFee = twoDecimals(m_figures.insertion + fee, m_locale);
    m_figures.reserve = fee;
    m_figures.total = number(m_boxes.txtFees);
  }

  void FinalValueFee() {
    if (!m_figures.isSold) return;
    m_figures.bid = priceText(m_boxes.txtPrice, m_locale);
    m_boxes.txtFVF =
        m_calculator->FVF(m_figures.bid, m_boxes.txtFees, m_choices.chkRealEstate, m_choices.chkVehicle,
                          m_choices.chkDidNotSell, m_choices.optMotorcycle);
    // Only an unsold item has a high bid here, so this empties the box; restoreClosingPrice fills it again.
    m_boxes.txtPrice = m_calculator->HighBid();
    m_figures.total = number(m_boxes.txtFVF) + m_figures.total;
    m_boxes.txtFees = plainText(m_figures.total, m_locale);
  }

  void ExtraFeatures() {
    m_boxes.txtExtras = m_calculator->ExtraFeaturesFee(chosenFeatures(m_choices));
    m_figures.total = m_figures.total + number(m_boxes.txtExtras);
    m_boxes.txtFees = twoDecimals(m_figures.total, m_locale);
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
  SingleItemFigures m_figures;
  Currency m_opening;
  Currency m_closing;
};

}  // namespace

SingleItemFigures recalculateSingleItem(const SingleItemChoices& choices, CRegularAuction* calculator,
                                        const NumberLocale& locale, SingleItemBoxes& boxes) {
  return SingleItemRecalculation(choices, calculator, locale, boxes).run();
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
  return isSold(choices, opening, priceOrZero(boxes.txtPrice, locale));
}
