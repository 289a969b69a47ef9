#include "connector_line.h"
#include "frmeBayFees.h"
#include "tagged_strings.h"

using Localization::GetTagString;

void frmeBayFees::connectMultipleItemsTab() {
  on(m_multiple.chkEBayMotorsDutch, &QCheckBox::toggled, &frmeBayFees::chkEBayMotorsDutch_Click);
  on(m_multiple.chkDutchGallery, &QCheckBox::toggled, &frmeBayFees::chkDutchGallery_Click);
  on(m_multiple.cboTypeOfMultiItemListing, &QComboBox::currentIndexChanged,
     &frmeBayFees::cboTypeOfMultiItemListing_Click);
  on(m_multiple.cmdDutchClearAll, &QPushButton::clicked, &frmeBayFees::cmdDutchClearAll_Click);
  on(m_multiple.cmdDutchCalculate, &QPushButton::clicked, &frmeBayFees::DutchCalculate);

  // It enables its list before it recalculates.
  on(m_multiple.chkExtraPicturesDutch, &QCheckBox::toggled, &frmeBayFees::RefreshWindow);

  for (QCheckBox* box :
       {m_multiple.chkExtraPicturesDutch, m_multiple.chkDutchSubtitle, m_multiple.chkDutchTwoCategories,
        m_multiple.chkDutchListingDesigner, m_multiple.chkDutchScheduled, m_multiple.chkSupersizeDutch,
        m_multiple.chkSlideshowDutch, m_multiple.chkDutchTenDayAuction, m_multiple.chkDutchGreatGift,
        m_multiple.chkDutchBold, m_multiple.chkDutchHighlight, m_multiple.chkDutchGalleryFeatured,
        m_multiple.chkDutchHomePageFeatured, m_multiple.chkDutchFeaturedPlus}) {
    on(box, &QCheckBox::toggled, &frmeBayFees::DutchCalculate);
  }
  on(m_multiple.cboExtraPicturesDutch, &QComboBox::currentIndexChanged, &frmeBayFees::DutchCalculate);
}

void frmeBayFees::DutchCalculate() {
  const MultipleItemsCalculators calculators{.site = m_site.get(), .auction = m_dutchAuction.get()};
  const std::string notAvailable = GetTagString(QStringLiteral("N/A<0619>")).toStdString();
  MultipleItemsBoxes boxes = multipleItemsBoxes();
  calculateAndShow(
      [&] {
        recalculateMultipleItems(multipleItemsChoices(), calculators, m_surroundings.locale, notAvailable,
                                 boxes);
      },
      [&] { showMultipleItemsBoxes(boxes); });
}

MultipleItemsChoices frmeBayFees::multipleItemsChoices() const {
  return {.chkEBayMotorsDutch = m_multiple.chkEBayMotorsDutch->isChecked(),
          .chkDutchSubtitle = m_multiple.chkDutchSubtitle->isChecked(),
          .chkDutchTwoCategories = m_multiple.chkDutchTwoCategories->isChecked(),
          .chkDutchListingDesigner = m_multiple.chkDutchListingDesigner->isChecked(),
          .chkDutchScheduled = m_multiple.chkDutchScheduled->isChecked(),
          .chkExtraPicturesDutch = m_multiple.chkExtraPicturesDutch->isChecked(),
          .cboExtraPicturesDutch = m_multiple.cboExtraPicturesDutch->currentIndex(),
          .chkSupersizeDutch = m_multiple.chkSupersizeDutch->isChecked(),
          .chkSlideshowDutch = m_multiple.chkSlideshowDutch->isChecked(),
          .chkDutchTenDayAuction = m_multiple.chkDutchTenDayAuction->isChecked(),
          .chkDutchGreatGift = m_multiple.chkDutchGreatGift->isChecked(),
          .chkDutchBold = m_multiple.chkDutchBold->isChecked(),
          .chkDutchHighlight = m_multiple.chkDutchHighlight->isChecked(),
          .chkDutchGalleryFeatured = m_multiple.chkDutchGalleryFeatured->isChecked(),
          .chkDutchGallery = m_multiple.chkDutchGallery->isChecked(),
          .chkDutchHomePageFeatured = m_multiple.chkDutchHomePageFeatured->isChecked(),
          .chkDutchFeaturedPlus = m_multiple.chkDutchFeaturedPlus->isChecked()};
}

MultipleItemsBoxes frmeBayFees::multipleItemsBoxes() const {
  return {.txtDutchItemsOffered = textOf(*m_multiple.txtDutchItemsOffered),
          .txtDutchOpeningPrice = textOf(*m_multiple.txtDutchOpeningPrice),
          .txtDutchItemsSold = textOf(*m_multiple.txtDutchItemsSold),
          .txtDutchFinalPrice = textOf(*m_multiple.txtDutchFinalPrice),
          .txtDutchFees = textOf(*m_multiple.txtDutchFees),
          .txtExtraFeaturesDutch = textOf(*m_multiple.txtExtraFeaturesDutch),
          .txtTotalDutchAuctionSales = textOf(*m_multiple.txtTotalDutchAuctionSales),
          .txtDutchCostPerItem = textOf(*m_multiple.txtDutchCostPerItem)};
}

void frmeBayFees::showMultipleItemsBoxes(const MultipleItemsBoxes& boxes) {
  show(*m_multiple.txtDutchItemsOffered, boxes.txtDutchItemsOffered);
  show(*m_multiple.txtDutchOpeningPrice, boxes.txtDutchOpeningPrice);
  show(*m_multiple.txtDutchItemsSold, boxes.txtDutchItemsSold);
  show(*m_multiple.txtDutchFinalPrice, boxes.txtDutchFinalPrice);
  show(*m_multiple.txtDutchFees, boxes.txtDutchFees);
  show(*m_multiple.txtExtraFeaturesDutch, boxes.txtExtraFeaturesDutch);
  show(*m_multiple.txtTotalDutchAuctionSales, boxes.txtTotalDutchAuctionSales);
  show(*m_multiple.txtDutchCostPerItem, boxes.txtDutchCostPerItem);
}

void frmeBayFees::chkEBayMotorsDutch_Click() {
  captionDutchGiftBox();
  DutchCalculate();
}

void frmeBayFees::captionDutchGiftBox() {
  const bool isMotors = m_multiple.chkEBayMotorsDutch->isChecked();
  m_multiple.chkDutchGreatGift->setText(
      GetTagString(isMotors ? QStringLiteral("Listing Icon<0610>") : QStringLiteral("Gift Services<0611>")));
}

void frmeBayFees::chkDutchGallery_Click() {
  const bool hasGallery = m_multiple.chkDutchGallery->isChecked();
  if (!hasGallery) m_multiple.chkDutchGalleryFeatured->setChecked(false);
  m_multiple.chkDutchGalleryFeatured->setEnabled(hasGallery);
  drawConnector(*m_multiple.linHorizontalLineToDutchGalFeatured, hasGallery);
  drawConnector(*m_multiple.linVerticalLineToDutchGalFeatured, hasGallery);
  DutchCalculate();
}

void frmeBayFees::cboTypeOfMultiItemListing_Click() {
  chooseDutchPriceLabel();
  DutchCalculate();
}

void frmeBayFees::chooseDutchPriceLabel() {
  constexpr int dutchAuction = 0;
  const bool isAuction = m_multiple.cboTypeOfMultiItemListing->currentIndex() == dutchAuction;
  m_multiple.lblDutchOpeningPrice->setText(GetTagString(
      isAuction ? QStringLiteral("Opening Bid:<0679>") : QStringLiteral("Buy-it-Now Price:<0680>")));
}

// Not everything: two categories, subtitle, listing designer, motors and the lists stay as they are.
void frmeBayFees::cmdDutchClearAll_Click() {
  showMultipleItemsBoxes({});
  for (QCheckBox* box :
       {m_multiple.chkDutchFeaturedPlus, m_multiple.chkDutchHomePageFeatured, m_multiple.chkDutchGallery,
        m_multiple.chkDutchGalleryFeatured, m_multiple.chkDutchHighlight, m_multiple.chkDutchGreatGift,
        m_multiple.chkDutchBold, m_multiple.chkDutchTenDayAuction, m_multiple.chkExtraPicturesDutch,
        m_multiple.chkSupersizeDutch, m_multiple.chkSlideshowDutch, m_multiple.chkDutchScheduled}) {
    box->setChecked(false);
  }
}
