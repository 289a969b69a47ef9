#include "frmeBayFees.h"
#include "tagged_strings.h"

using Localization::GetTagString;

void frmeBayFees::captureCaptions() { m_captions.capture(*this); }

void frmeBayFees::applyCaptions() {
  m_captions.apply();
  fillLists();
  choosePriceLabel();
}

void frmeBayFees::buildLanguageMenu() {
  // English alone can be shown, so there is nothing to choose from.
  m_form.menuLang->menuAction()->setEnabled(false);
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
