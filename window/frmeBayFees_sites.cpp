#include <QActionGroup>

#include "frmeBayFees.h"
#include "stored_rate.h"
#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

constexpr int kNone = -1;

/// What the window shows differently on one site.
struct SiteRow {
  int site;
  QAction* Ui_frmeBayFees::*menuItem;
  const char* title;
  const char* internationalBuyer;
  const char* rateKey;        ///< in the settings store; empty where nothing is converted
  std::array<int, 2> inBold;  ///< the shipping headings of the site's country
};

// clang-format off
constexpr std::array<SiteRow, kSiteCount> kSites{{
    {CAuctionSite::eBayUS,      &Ui_frmeBayFees::mnuOptionsSiteEbay,    "Tessaloom for eBay.com<0620>",
     "Buyer outside USA<0621>",        "",                  {0, 4}},
    {CAuctionSite::eBayUK,      &Ui_frmeBayFees::mnuOptionsSiteUK,      "Tessaloom for eBay UK<0624>",
     "Buyer outside UK<0625>",         "PayPalUKRate",      {2, kNone}},
    {CAuctionSite::eBayCanada,  &Ui_frmeBayFees::mnuOptionsSiteCanada,  "Tessaloom for eBay Canada (items listed in C$)<0622>",
     "Buyer outside Canada/USA<0623>", "PayPalCanadaRate",  {1, kNone}},
    {CAuctionSite::eBayGermany, &Ui_frmeBayFees::mnuOptionsSiteGermany, "Tessaloom for eBay Germany<0626>",
     "Buyer outside Germany<0627>",    "PayPalGermanyRate", {3, kNone}},
}};
// clang-format on

const SiteRow* rowOf(int site) {
  const auto row =
      std::find_if(kSites.begin(), kSites.end(), [site](const SiteRow& each) { return each.site == site; });
  return row != kSites.end() ? &*row : nullptr;
}

}  // namespace

void frmeBayFees::connectSiteMenu() {
  auto* onlyOne = new QActionGroup(this);  // and its mark says so
  for (const SiteRow& row : kSites) {
    onlyOne->addAction(m_form.*row.menuItem);
    connect(m_form.*row.menuItem, &QAction::triggered, this,
            [this, site = row.site] { guarded([this, site] { SelectSite(site); }); });
  }
}

// The outgoing site's rate is stored before anything changes, and its real-estate choice is dropped with
// its own tables.
void frmeBayFees::SelectSite(int site) {
  for (const SiteRow& row : kSites) (m_form.*row.menuItem)->setChecked(false);
  guarded([this] { SaveConversionRate(); });  // a store that fails does not keep the site
  m_single.chkRealEstate->setChecked(false);
  showSite(site);
  m_payment.lblTreuhandservice->setVisible(site == CAuctionSite::eBayGermany);
  m_regularAuction->Site(*m_site);
  m_dutchAuction->Site(*m_site);
  m_paymentService->Site(*m_site);
  SetRealEstateAvailable(true);
  ShowCurrencyLabels();
  RefreshWindow();
  recalculateAllTabs();
  HighlightShippingCountries();
}

void frmeBayFees::recalculateAllTabs() {
  guarded([this] { recalculateSingleItemTab(); });
  guarded([this] { DutchCalculate(); });
  guarded([this] { CalculatePaymentFees(); });
}

// A site that does not exist changes nothing here: the schedule keeps the one it has.
void frmeBayFees::showSite(int site) {
  const SiteRow* row = rowOf(site);
  if (row == nullptr) return;
  const QString rateKey = QString::fromLatin1(row->rateKey);
  m_site->Site(site);
  (m_form.*row->menuItem)->setChecked(true);
  showTextsOfSite();
  for (QWidget* control :
       std::initializer_list<QWidget*>{m_payment.lblOneDollarEquals, m_payment.txtConversion,
                                       m_payment.lblCurrency14, m_payment.lblCheckRates}) {
    control->setVisible(!rateKey.isEmpty());
  }
  if (!rateKey.isEmpty()) showRate(GetAppSetting(rateKey));
}

void frmeBayFees::showTextsOfSite() {
  const SiteRow* row = rowOf(currentSite());
  if (row == nullptr) return;
  setWindowTitle(GetTagString(QString::fromLatin1(row->title)));
  m_payment.chkInternationalPayPal->setText(GetTagString(QString::fromLatin1(row->internationalBuyer)));
}

void frmeBayFees::SaveConversionRate() {
  const SiteRow* row = rowOf(currentSite());
  if (row == nullptr || *row->rateKey == '\0' || m_payment.txtConversion->text().isEmpty()) return;
  SaveAppSetting(QString::fromLatin1(row->rateKey), rate());
}

void frmeBayFees::showRate(const QString& stored) {
  show(*m_payment.txtConversion, rateFromStore(stored.toStdString(), m_surroundings.locale));
}

QString frmeBayFees::rate() const {
  return QString::fromStdString(rateToStore(textOf(*m_payment.txtConversion), m_surroundings.locale));
}

int frmeBayFees::currentSite() const { return m_site ? m_site->Site() : 0; }

void frmeBayFees::refreshSiteFeatures() {
  const int site = currentSite();
  if (rowOf(site) == nullptr) return;
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

void frmeBayFees::ShowCurrencyLabels() {
  const std::string_view currency = m_site->CurrencyString();
  const QString text = QString::fromUtf8(currency.data(), static_cast<qsizetype>(currency.size()));
  for (QLabel* label :
       {m_single.lblCurrency1, m_single.lblCurrency2, m_single.lblCurrency3, m_single.lblCurrency4,
        m_single.lblCurrency5, m_single.lblCurrency6, m_multiple.lblCurrency7, m_multiple.lblCurrency8,
        m_multiple.lblCurrency9, m_multiple.lblCurrency10, m_payment.lblCurrency11, m_payment.lblCurrency12,
        m_payment.lblCurrency14, m_multiple.lblCurrency15, m_multiple.lblCurrency16}) {
    label->setText(text);
  }
}

void frmeBayFees::HighlightShippingCountries() {
  const std::array<QLabel*, 5> headings{m_shipping.lblCountry_0, m_shipping.lblCountry_1,
                                        m_shipping.lblCountry_2, m_shipping.lblCountry_3,
                                        m_shipping.lblCountry_4};
  const SiteRow* row = rowOf(currentSite());
  for (int index = 0; index < static_cast<int>(headings.size()); ++index) {
    const bool isBold =
        row != nullptr && std::find(row->inBold.begin(), row->inBold.end(), index) != row->inBold.end();
    QLabel& heading = *headings[static_cast<std::size_t>(index)];
    QFont font = heading.font();
    font.setBold(isBold);
    heading.setFont(font);
  }
}
