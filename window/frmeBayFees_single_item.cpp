#include "amount_text.h"
#include "connector_line.h"
#include "frmeBayFees.h"
#include "tagged_strings.h"

using Localization::GetTagString;

void frmeBayFees::connectSingleItemTab() {
  // Boxes with effects of their own. All end in the recalculation.
  on(m_single.chkDidNotSell, &QCheckBox::toggled, &frmeBayFees::chkDidNotSell_Click);
  on(m_single.chkGallery, &QCheckBox::toggled, &frmeBayFees::chkGallery_Click);
  on(m_single.chkMotors, &QCheckBox::toggled, &frmeBayFees::chkMotors_Click);
  on(m_single.cboSingleItemType, &QComboBox::currentIndexChanged, &frmeBayFees::cboSingleItemType_Click);
  on(m_single.cboIsReserve, &QComboBox::currentIndexChanged, &frmeBayFees::cboIsReserve_Click);
  on(m_single.cmdClearAll, &QPushButton::clicked, &frmeBayFees::cmdClearAll_Click);
  on(m_single.cmdCalculate, &QPushButton::clicked, &frmeBayFees::cmdCalculate_Click);

  // What shows or hides other controls refreshes the window before it recalculates.
  for (QCheckBox* box : {m_single.chkVehicle, m_single.chkRealEstate, m_single.chkExtraPhotos}) {
    on(box, &QCheckBox::toggled, &frmeBayFees::RefreshWindow);
  }

  for (QCheckBox* box :
       {m_single.chkVehicle, m_single.chkRealEstate, m_single.chkExtraPhotos, m_single.chkBold,
        m_single.chkFeatured, m_single.chkFeaturedCategory, m_single.chkGalleryFeatured, m_single.chkGiftIcon,
        m_single.chkHighlighted, m_single.chkBIN, m_single.chkListingDesigner, m_single.chkScheduled,
        m_single.chkSlideshow, m_single.chkSubTitleSingleItem, m_single.chkSupersizePhotos,
        m_single.chkTenDayAuction, m_single.chkTwoCategories}) {
    on(box, &QCheckBox::toggled, &frmeBayFees::recalculateSingleItemTab);
  }
  on(m_single.cboRealEstateType, &QComboBox::currentIndexChanged, &frmeBayFees::recalculateSingleItemTab);
  on(m_single.cboExtraPhotos, &QComboBox::currentIndexChanged, &frmeBayFees::cboExtraPhotos_Click);
  onChosen(
      {m_single.optMotorcycle, m_single.optOtherVehicle, m_single.optTimeshare, m_single.optOtherRealEstate},
      &frmeBayFees::recalculateSingleItemTab);
}

void frmeBayFees::cmdCalculate_Click() {
  recalculateSingleItemTab();
  if (m_single.txtStartingPrice->text().isEmpty()) say(QStringLiteral("Enter the opening bid<5010>"));
}

void frmeBayFees::recalculateSingleItemTab() {
  const SingleItemBoxes entered = singleItemBoxes();
  SingleItemBoxes boxes = entered;
  calculateAndShow(
      [&] {
        recalculateSingleItem(singleItemChoices(), m_regularAuction.get(), m_surroundings.locale, boxes);
      },
      [&] { showSingleItemBoxes(boxes); });
  if (isRaisedToOpening(entered)) say(QStringLiteral("Closing bid raised to the opening bid<5007>"));
}

// Without a reserve, a bid below the opening bid cannot have won. One that is empty or 0 is none.
bool frmeBayFees::isRaisedToOpening(const SingleItemBoxes& entered) const {
  const NumberLocale& locale = m_surroundings.locale;
  if (m_single.cboIsReserve->currentIndex() != 0 || !isNumeric(entered.txtPrice, locale) ||
      !isNumeric(entered.txtStartingPrice, locale))
    return false;
  const double closing = toDouble(entered.txtPrice, locale);
  return closing > 0 && closing < toDouble(entered.txtStartingPrice, locale);
}

SingleItemChoices frmeBayFees::singleItemChoices() const {
  return {.chkDidNotSell = m_single.chkDidNotSell->isChecked(),
          .cboIsReserve = m_single.cboIsReserve->currentIndex(),
          .chkRealEstate = m_single.chkRealEstate->isChecked(),
          .optTimeshare = m_single.optTimeshare->isChecked(),
          .cboRealEstateType = m_single.cboRealEstateType->currentIndex(),
          .chkMotors = m_single.chkMotors->isChecked(),
          .chkVehicle = m_single.chkVehicle->isChecked(),
          .optMotorcycle = m_single.optMotorcycle->isChecked(),
          .chkSubTitleSingleItem = m_single.chkSubTitleSingleItem->isChecked(),
          .chkListingDesigner = m_single.chkListingDesigner->isChecked(),
          .chkScheduled = m_single.chkScheduled->isChecked(),
          .chkSlideshow = m_single.chkSlideshow->isChecked(),
          .chkSupersizePhotos = m_single.chkSupersizePhotos->isChecked(),
          .cboExtraPhotos = m_single.cboExtraPhotos->currentIndex(),
          .chkExtraPhotos = m_single.chkExtraPhotos->isChecked(),
          .chkBIN = m_single.chkBIN->isChecked(),
          .chkTenDayAuction = m_single.chkTenDayAuction->isChecked(),
          .chkTwoCategories = m_single.chkTwoCategories->isChecked(),
          .chkFeaturedCategory = m_single.chkFeaturedCategory->isChecked(),
          .chkFeatured = m_single.chkFeatured->isChecked(),
          .chkGallery = m_single.chkGallery->isChecked(),
          .chkGalleryFeatured = m_single.chkGalleryFeatured->isChecked(),
          .chkHighlighted = m_single.chkHighlighted->isChecked(),
          .chkBold = m_single.chkBold->isChecked(),
          .chkGiftIcon = m_single.chkGiftIcon->isChecked()};
}

SingleItemBoxes frmeBayFees::singleItemBoxes() const {
  return {.txtStartingPrice = textOf(*m_single.txtStartingPrice),
          .txtPrice = textOf(*m_single.txtPrice),
          .txtInsertionFee = textOf(*m_single.txtInsertionFee),
          .txtExtras = textOf(*m_single.txtExtras),
          .txtFVF = textOf(*m_single.txtFVF),
          .txtFees = textOf(*m_single.txtFees)};
}

void frmeBayFees::showSingleItemBoxes(const SingleItemBoxes& boxes) {
  show(*m_single.txtInsertionFee, boxes.txtInsertionFee);
  show(*m_single.txtExtras, boxes.txtExtras);
  show(*m_single.txtFVF, boxes.txtFVF);
  show(*m_single.txtFees, boxes.txtFees);
  show(*m_single.txtPrice, boxes.txtPrice);
  show(*m_single.txtStartingPrice, boxes.txtStartingPrice);
}

bool frmeBayFees::IsValidRegular() const {
  return !m_single.txtStartingPrice->text().isEmpty() && !m_single.txtPrice->text().isEmpty();
}

bool frmeBayFees::ItemSold() const {
  return itemSold(singleItemChoices(), singleItemBoxes(), m_surroundings.locale);
}

void frmeBayFees::chkDidNotSell_Click() {
  const bool didNotSell = m_single.chkDidNotSell->isChecked();
  // Disabled first: a box that has the focus loses it then, and is normalised as if the user had left it.
  m_single.txtPrice->setEnabled(!didNotSell);
  if (didNotSell) show(*m_single.txtPrice, withDecimalSymbol("0.00", m_surroundings.locale));
  recalculateSingleItemTab();
}

// While there is no calculator the prices are not even formatted, as they are for every other choice.
void frmeBayFees::cboExtraPhotos_Click() {
  if (m_regularAuction) recalculateSingleItemTab();
}

void frmeBayFees::chkGallery_Click() {
  const bool hasGallery = m_single.chkGallery->isChecked();
  if (!hasGallery) m_single.chkGalleryFeatured->setChecked(false);
  m_single.chkGalleryFeatured->setEnabled(hasGallery);
  drawConnector(*m_single.linHorizontalLineToGalFeatured, hasGallery);
  drawConnector(*m_single.linVerticalLineToGalFeatured, hasGallery);
  recalculateSingleItemTab();
}

void frmeBayFees::chkMotors_Click() {
  const bool isMotors = m_single.chkMotors->isChecked();
  if (!isMotors) m_single.chkVehicle->setChecked(false);
  m_single.chkVehicle->setEnabled(isMotors);
  drawConnector(*m_single.linHorizontalLineToVehicle, isMotors);
  drawConnector(*m_single.linVerticalLineToVehicle, isMotors);
  SetRealEstateAvailable(!isMotors);
  captionGiftBox();
  UpdateListingFees();
  recalculateSingleItemTab();
}

void frmeBayFees::captionGiftBox() {
  const bool isMotors = m_single.chkMotors->isChecked();
  m_single.chkGiftIcon->setText(
      GetTagString(isMotors ? QStringLiteral("Listing Icon<0616>") : QStringLiteral("Gift Services<0615>")));
}

void frmeBayFees::cboSingleItemType_Click() {
  refreshReserveList();
  choosePriceLabel();
  recalculateSingleItemTab();
}

void frmeBayFees::cboIsReserve_Click() {
  choosePriceLabel();
  recalculateSingleItemTab();
}

// The boxes are unticked first: each recalculates, and would write 0.00 into texts that are already empty.
void frmeBayFees::cmdClearAll_Click() {
  for (QCheckBox* box :
       {m_single.chkDidNotSell, m_single.chkSubTitleSingleItem, m_single.chkListingDesigner,
        m_single.chkScheduled, m_single.chkSlideshow, m_single.chkSupersizePhotos, m_single.chkExtraPhotos,
        m_single.chkBIN, m_single.chkTenDayAuction, m_single.chkFeaturedCategory, m_single.chkFeatured,
        m_single.chkGallery, m_single.chkGalleryFeatured, m_single.chkHighlighted, m_single.chkBold,
        m_single.chkGiftIcon, m_single.chkTwoCategories, m_single.chkMotors, m_single.chkRealEstate}) {
    box->setChecked(false);
  }
  showSingleItemBoxes({});
}

void frmeBayFees::refreshVehicleControls() {
  const int site = currentSite();
  const bool hasKinds = site == CAuctionSite::eBayUS || site == CAuctionSite::eBayGermany;
  const bool isShown = m_single.chkVehicle->isChecked() && hasKinds;
  for (QWidget* control : std::initializer_list<QWidget*>{
           m_single.optMotorcycle, m_single.optOtherVehicle, m_single.linVerticalLineToVehicleType,
           m_single.linHorizontalLineToMotorcycle, m_single.linHorizontalLineToOtherVehicle}) {
    control->setVisible(isShown);
    control->setEnabled(isShown);
  }
}

void frmeBayFees::refreshRealEstateControls() {
  for (QWidget* control : std::initializer_list<QWidget*>{m_single.cboRealEstateType, m_single.optTimeshare,
                                                          m_single.optOtherRealEstate}) {
    control->setVisible(m_single.chkRealEstate->isChecked());
  }
}

void frmeBayFees::refreshReserveList() {
  constexpr int auction = 0;
  const bool isAuction = m_single.cboSingleItemType->currentIndex() == auction;
  m_single.cboIsReserve->setVisible(isAuction && currentSite() != CAuctionSite::eBayGermany);
}

void frmeBayFees::choosePriceLabel() {
  constexpr int auction = 0;
  constexpr int reserve = 1;
  QString label = QStringLiteral("Op&ening Bid:<0617>");
  if (m_single.cboSingleItemType->currentIndex() != auction) {
    label = QStringLiteral("Buy-it-Now Price:<0678>");
  } else if (m_single.cboIsReserve->currentIndex() == reserve) {
    label = QStringLiteral("R&eserve Price:<0618>");
  }
  m_single.lblStartingPrice->setText(GetTagString(label));
}
