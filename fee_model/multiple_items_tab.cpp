#include "multiple_items_tab.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "amount_errors.h"
#include "amount_text.h"
#include "entry_rules.h"

namespace {

/// One run of the recalculation. The steps stand in the order in which they must run; each reads the boxes
/// as the steps before left them.
class MultipleItemsRecalculation {
 public:
  MultipleItemsRecalculation(const MultipleItemsChoices& choices, const MultipleItemsCalculators& calculators,
                             const NumberLocale& locale, std::string_view notAvailable,
                             MultipleItemsBoxes& boxes)
      : m_choices(choices),
        m_calculators(calculators),
        m_locale(locale),
        m_notAvailable(notAvailable),
        m_boxes(boxes) {}

  MultipleItemsFigures run() {
    FillDutchFinalPrice();
    if (isComplete() && m_calculators.site != nullptr && m_calculators.auction != nullptr) {
      ValidateDutchTextEntries();
      DutchInsertionFee();
      DutchExtraFeatures();
      CalcTotalDutchSales();
      DutchCommission();
    }
    formatPrices();
    return std::move(m_figures);
  }

 private:
  // It runs before the entries are complete, and may complete them. With items left over, every winner pays
  // the opening price. A count that is too large is an error here already, before anything is changed.
  void FillDutchFinalPrice() {
    if (!isFilled(m_boxes.txtDutchItemsOffered) || !isFilled(m_boxes.txtDutchItemsSold)) return;
    const bool hasOpeningPrice = isFilled(m_boxes.txtDutchOpeningPrice);
    if (!hasOpeningPrice && !isNumeric(m_boxes.txtDutchItemsOffered, m_locale)) return;
    m_figures.offered = toInteger16(m_boxes.txtDutchItemsOffered, m_locale);
    m_figures.sold = toInteger16(m_boxes.txtDutchItemsSold, m_locale);
    if (hasItemsLeft() && hasOpeningPrice) m_boxes.txtDutchFinalPrice = m_boxes.txtDutchOpeningPrice;
    if (m_figures.sold > m_figures.offered) {
      m_boxes.txtDutchItemsSold = m_boxes.txtDutchItemsOffered;
      m_figures.sold = m_figures.offered;
    }
  }

  [[nodiscard]] bool hasItemsLeft() const { return m_figures.sold < m_figures.offered; }

  [[nodiscard]] bool isComplete() const {
    return isFilled(m_boxes.txtDutchItemsOffered) && isFilled(m_boxes.txtDutchOpeningPrice) &&
           isFilled(m_boxes.txtDutchItemsSold) && isFilled(m_boxes.txtDutchFinalPrice);
  }

  void ValidateDutchTextEntries() {
    m_lowestBid = number(m_boxes.txtDutchFinalPrice);
    m_opening = number(m_boxes.txtDutchOpeningPrice);
    m_figures.isAtOpening = hasItemsLeft() || m_lowestBid < m_opening;
    if (m_figures.isAtOpening) {
      m_boxes.txtDutchFinalPrice = m_boxes.txtDutchOpeningPrice;
      m_lowestBid = m_opening;
    }
    m_figures.price = m_boxes.txtDutchFinalPrice;
    std::array<char, 8> digits;
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), m_figures.sold);
    m_boxes.txtDutchItemsSold.assign(digits.data(), written.ptr);
  }

  void DutchInsertionFee() {
    const std::string price = plainText(m_opening, m_locale);
    std::string fee;
    try {
      fee = m_calculators.auction->InsertionFee(price, m_figures.offered, m_choices.chkDutchTwoCategories);
    } catch (const ConversionError&) {
      // On no step of the ladder there is no fee that could be doubled.
    }
    m_boxes.txtDutchFees = fee.empty() ? "0" : fee;
    m_figures.insertion = number(m_boxes.txtDutchFees);
  }

  void DutchExtraFeatures() {
    const float extras = dutchExtraFeatures(m_choices, *m_calculators.site, m_figures.offered);
    m_boxes.txtExtraFeaturesDutch = twoDecimals(extras, m_locale);
    const Currency fees = m_figures.insertion + Currency::fromNumber(static_cast<double>(extras));
    m_boxes.txtDutchFees = twoDecimals(fees, m_locale);
  }

  void CalcTotalDutchSales() {
    m_boxes.txtTotalDutchAuctionSales =
        plainText(m_lowestBid.toDouble() * static_cast<double>(m_figures.sold), m_locale);
  }

  void DutchCommission() {
    m_figures.finalValue =
        number(m_calculators.auction->FVF(m_boxes.txtDutchFinalPrice, m_boxes.txtDutchItemsSold));
    m_figures.total = number(m_boxes.txtDutchFees) + m_figures.finalValue;
    m_boxes.txtDutchFees = twoDecimals(m_figures.total, m_locale);
    m_boxes.txtDutchCostPerItem =
        m_figures.sold != 0
            ? twoDecimals(m_figures.total.toDouble() / static_cast<double>(m_figures.sold), m_locale)
            : std::string(m_notAvailable);
  }

  void formatPrices() {
    for (std::string* box :
         {&m_boxes.txtDutchOpeningPrice, &m_boxes.txtDutchFinalPrice, &m_boxes.txtTotalDutchAuctionSales}) {
      *box = twoDecimals(std::string_view(*box), m_locale);
    }
  }

  // A menu command can meet a box in which only the decimal symbol was typed so far: it counts as empty.
  [[nodiscard]] bool isFilled(const std::string& box) const {
    return !box.empty() && !isLoneDecimalSymbol(box, m_locale);
  }

  [[nodiscard]] Currency number(std::string_view text) const { return toCurrency(text, m_locale); }

  const MultipleItemsChoices& m_choices;
  const MultipleItemsCalculators& m_calculators;
  const NumberLocale& m_locale;
  std::string_view m_notAvailable;
  MultipleItemsBoxes& m_boxes;
  MultipleItemsFigures m_figures;
  Currency m_opening;
  Currency m_lowestBid;  ///< the one that counts
};

}  // namespace

MultipleItemsFigures recalculateMultipleItems(const MultipleItemsChoices& choices,
                                              const MultipleItemsCalculators& calculators,
                                              const NumberLocale& locale, std::string_view notAvailable,
                                              MultipleItemsBoxes& boxes) {
  return MultipleItemsRecalculation(choices, calculators, locale, notAvailable, boxes).run();
}

float dutchExtraFeatures(const MultipleItemsChoices& choices, const CAuctionSite& site, int itemsOffered,
                         FeeRecord* record) {
  using enum ExtraFeature;
  constexpr bool isMultipleItem = true;
  constexpr bool isVehicle = false;
  constexpr bool isRealEstate = false;
  const bool isMotors = choices.chkEBayMotorsDutch;
  FeeTotal fees(choices.chkDutchTwoCategories, record);
  if (choices.chkDutchFeaturedPlus)
    fees.addDoubledForTwoCategories(FeaturedPlus, site.FeaturedPlusFee(isMotors, isMultipleItem));
  if (choices.chkDutchHomePageFeatured) {
    fees.add(HomePageFeatured, site.HomePageFeaturedFee(itemsOffered),
             itemsOffered > 1 ? FeeCause::SeveralItems : FeeCause::None);
  }
  // Unlike a single item, several items pay for the gallery and for being featured in it.
  if (choices.chkDutchGallery) {
    fees.addDoubledForTwoCategories(
        Gallery, site.GalleryFee(isVehicle, choices.chkExtraPicturesDutch, choices.cboExtraPicturesDutch),
        galleryCause(isVehicle, choices.chkExtraPicturesDutch, choices.cboExtraPicturesDutch));
  }
  if (choices.chkDutchGalleryFeatured) {
    fees.addDoubledForTwoCategories(GalleryFeatured, site.GalleryFeaturedFee(isMotors, isVehicle),
                                    galleryFeaturedCause(isMotors, isVehicle));
  }
  if (choices.chkDutchBold) fees.addDoubledForTwoCategories(Bold, site.BoldFee(isVehicle, isRealEstate));
  if (choices.chkDutchHighlight) fees.addDoubledForTwoCategories(Highlight, site.HighlightFee());
  if (choices.chkDutchGreatGift) fees.addDoubledForTwoCategories(GiftIcon, site.GiftIconFee(isVehicle));
  if (choices.chkDutchTenDayAuction)
    fees.addDoubledForTwoCategories(TenDayAuction, site.TenDayAuctionFee(isVehicle));
  if (choices.chkDutchScheduled) fees.add(Scheduled, site.ScheduledListingFee(isVehicle));
  if (choices.chkDutchSubtitle) fees.addDoubledForTwoCategories(Subtitle, site.SubtitleFee());
  if (choices.chkDutchListingDesigner)
    fees.addDoubledForTwoCategories(ListingDesigner, site.ListingDesignerFee());
  // And unlike a single item's, their pictures are not doubled.
  fees.add(Pictures, site.PhotosFee(choices.chkExtraPicturesDutch, choices.cboExtraPicturesDutch,
                                    choices.chkSupersizeDutch, choices.chkSlideshowDutch, isVehicle));
  return fees.total();
}
