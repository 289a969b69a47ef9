#include "frmeBayFees.h"

int frmeBayFees::currentSite() const { return m_site ? m_site->Site() : 0; }

void frmeBayFees::refreshSiteFeatures() {
  const int site = currentSite();
  if (site < CAuctionSite::eBayUS || site > CAuctionSite::eBayGermany) return;
  const bool isUS = site == CAuctionSite::eBayUS;
  for (QCheckBox* box : {m_single.chkGiftIcon, m_single.chkListingDesigner,
                         m_multiple.chkDutchListingDesigner, m_multiple.chkDutchGreatGift}) {
    box->setEnabled(isUS);
    if (!isUS) box->setChecked(false);
  }
  m_multiple.chkEBayMotorsDutch->setVisible(isUS);
  if (site == CAuctionSite::eBayGermany) {
    m_single.cboIsReserve->setCurrentIndex(0);
    m_single.cboIsReserve->setVisible(false);
  }
}

void frmeBayFees::SetRealEstateAvailable(bool isAvailable) {
  m_single.chkRealEstate->setEnabled(isAvailable && currentSite() != CAuctionSite::eBayGermany);
  if (!isAvailable) m_single.chkRealEstate->setChecked(false);
}
