#include <algorithm>
#include <vector>

#include "frmeBayFees.h"
#include "setting.h"

// One table of all keys, in the order of the first-run defaults, which three loops go through: the defaults,
// saving and restoring. Rows of the same step keep the table's order.
// NOLINTNEXTLINE(readability-function-size): a table
std::vector<Setting> frmeBayFees::settings() {
  const QString isOff = QStringLiteral("0");
  const QString first = QStringLiteral("0");
  const QString empty = QStringLiteral("");
  const bool isGerman = m_surroundings.languages.CurrentLanguage().Code == QStringLiteral("407");
  const QString firstSite = QString::number(isGerman ? CAuctionSite::eBayGermany : CAuctionSite::eBayUS);
  constexpr int kNever = Setting::kNever;
  // clang-format off
  return {
      // key                       what it keeps                          first run     saved   restored
      {"Site",                     siteNumber(),                          firstSite,    1,      3},
      {"StayOnTop",                keptOnTop(),                           isOff,        1,      1},
      {"Notepad",                  notepadView(),                         isOff,        1,      2},
      {"RegularType",              choice(m_single.cboSingleItemType),    first,        1,      5},
      {"RegularNumeric",           entry(m_single.txtStartingPrice),      empty,        1,      6},
      {"RegularReserve",           choice(m_single.cboIsReserve),         first,        1,      4},
      {"RegularFeaturedCategory",  tick(m_single.chkFeaturedCategory),    isOff,        1,      7},
      {"RegularFeatured",          tick(m_single.chkFeatured),            isOff,        1,      7},
      {"RegularGallery",           tick(m_single.chkGallery),             isOff,        1,      7},
      {"RegularGalleryFeatured",   tick(m_single.chkGalleryFeatured),     isOff,        1,      7},
      {"RegularHighlighted",       tick(m_single.chkHighlighted),         isOff,        1,      7},
      {"RegularBold",              tick(m_single.chkBold),                isOff,        1,      7},
      {"RegularGift",              tick(m_single.chkGiftIcon),            isOff,        1,      7},
      {"RegularRealEstate",        tick(m_single.chkRealEstate),          isOff,        1,      7},
      {"RegularTwoCategories",     tick(m_single.chkTwoCategories),       isOff,        1,      7},
      {"RegularTenDayAuction",     tick(m_single.chkTenDayAuction),       isOff,        1,      7},
      {"RegularMotors",            tick(m_single.chkMotors),              isOff,        1,      7},
      {"RegularVehicle",           tick(m_single.chkVehicle),             isOff,        1,      7},
      {"RegularMotorcycle",        tick(m_single.optMotorcycle),          std::nullopt, 3,      7},
      {"RegularOtherVehicle",      tick(m_single.optOtherVehicle),        std::nullopt, 3,      7},
      {"RegularIsExtraPhotos",     tick(m_single.chkExtraPhotos),         isOff,        1,      7},
      {"RegularNumExtraPhotos",    photoCount(m_single.cboExtraPhotos),   first,        2,      8},
      {"RegularSupersize",         tick(m_single.chkSupersizePhotos),     isOff,        1,      7},
      {"RegularSlideshow",         tick(m_single.chkSlideshow),           isOff,        1,      7},
      // The same box under two names: what is saved is not what is restored, so it starts unticked.
      {"DutchMotors",              tick(m_multiple.chkEBayMotorsDutch),   empty,        kNever, 10},
      {"DutchVehicle",             tick(m_multiple.chkEBayMotorsDutch),   std::nullopt, 4,      kNever},
      {"DutchItemsOffered",        entry(m_multiple.txtDutchItemsOffered), empty,     4,        9},
      {"DutchOpeningPrice",        entry(m_multiple.txtDutchOpeningPrice), empty,       4,      9},
      {"DutchFeaturedPlus",        tick(m_multiple.chkDutchFeaturedPlus), isOff,        4,      10},
      {"DutchFeatured",            tick(m_multiple.chkDutchHomePageFeatured), isOff,    4,      10},
      {"DutchGallery",             tick(m_multiple.chkDutchGallery),      isOff,        4,      10},
      {"DutchGalleryFeatured",     tick(m_multiple.chkDutchGalleryFeatured), isOff,     4,      10},
      {"DutchHighlighted",         tick(m_multiple.chkDutchHighlight),    isOff,        4,      10},
      {"DutchBold",                tick(m_multiple.chkDutchBold),         isOff,        4,      10},
      {"DutchGift",                tick(m_multiple.chkDutchGreatGift),    isOff,        4,      10},
      {"DutchTenDayAuction",       tick(m_multiple.chkDutchTenDayAuction), isOff,       4,      10},
      {"DutchIsExtraPhotos",       tick(m_multiple.chkExtraPicturesDutch), isOff,       4,      10},
      {"DutchNumExtraPhotos",      photoCount(m_multiple.cboExtraPicturesDutch), first, 5,      11},
      {"DutchSupersize",           tick(m_multiple.chkSupersizeDutch),    isOff,        4,      10},
      {"DutchSlideshow",           tick(m_multiple.chkSlideshowDutch),    isOff,        4,      10},
      {"PayPalCreditCard",         creditCard(),                          QStringLiteral("1"), 6, 12},
      {"PayPalNonCreditCard",      tick(m_payment.optPayPalNonCreditCard), isOff,       6,      kNever},
      {"PayPalMerchantAccount",    noControl(),                           isOff,        kNever, kNever},
      {"PayPalOutsideUS",          noControl(),                           isOff,        kNever, kNever},
      // The schedule's own rates, in their shortest form and with a decimal point everywhere.
      {"PayPalUKRate",             rateOf(CAuctionSite::eBayUK),          QStringLiteral("0.5305"), 7, 13},
      {"PayPalCanadaRate",         rateOf(CAuctionSite::eBayCanada),      QStringLiteral("1.317"),  7, 13},
      // Stored when its site is left, not by saving.
      {"PayPalGermanyRate",        rateOf(CAuctionSite::eBayGermany),     QStringLiteral("0.7854"), kNever, 13},
  };
  // clang-format on
}

SettingAccess frmeBayFees::siteNumber() {
  return {[this] { return QString::number(currentSite()); },
          [this](const QString& text) {
            SelectSite(text.isEmpty() ? int{CAuctionSite::eBayUS} : leadingNumber(text));
          }};
}

SettingAccess frmeBayFees::keptOnTop() {
  return {[this] { return storedFlag(m_form.mnuOptionsOnTop->isChecked()); },
          [this](const QString& text) {
            if (!isStoredFlagSet(text)) return;
            m_form.mnuOptionsOnTop->setChecked(true);
            mnuOptionsOnTop_Click();
          }};
}

SettingAccess frmeBayFees::notepadView() {
  return {[this] { return storedFlag(m_notepadVisible); },
          [this](const QString& text) {
            if (isStoredFlagSet(text) && !m_notepadVisible) cmdNotepad_Click();
          }};
}

// One key decides for both kinds of payment, and anything but "1" means the other one.
SettingAccess frmeBayFees::creditCard() {
  return {
      [this] { return storedFlag(m_payment.optPayPalCreditCard->isChecked()); },
      [this](const QString& text) {
        const bool isCreditCard = isStoredFlagSet(text);
        (isCreditCard ? m_payment.optPayPalCreditCard : m_payment.optPayPalNonCreditCard)->setChecked(true);
      }};
}

SettingAccess frmeBayFees::rateOf(int site) {
  return {[this, site]() -> std::optional<QString> {
            if (currentSite() != site) return std::nullopt;
            return rate();
          },
          [this, site](const QString& text) {
            if (currentSite() == site) showRate(text);
          }};
}

void frmeBayFees::writeFirstRunDefaults() {
  SettingList values;
  for (const Setting& setting : settings()) {
    if (setting.firstRun) values.append({QString::fromLatin1(setting.key), *setting.firstRun});
  }
  m_surroundings.settings.writeAll(values);
}

void frmeBayFees::restoreSettings() {
  std::vector<Setting> rows = settings();
  std::erase_if(rows, [](const Setting& row) { return row.restored == Setting::kNever; });
  std::stable_sort(rows.begin(), rows.end(),
                   [](const Setting& a, const Setting& b) { return a.restored < b.restored; });
  for (const Setting& row : rows) {
    // A value that makes trouble does not keep the others from being restored.
    guarded([&] { row.access.restore(GetAppSetting(QString::fromLatin1(row.key))); });
  }
  settleRestoredWindow();
}

// Restoring ticks boxes after the site has said which of them it has.
void frmeBayFees::settleRestoredWindow() {
  if (currentSite() == CAuctionSite::eBayGermany) m_single.chkRealEstate->setChecked(false);
  choosePriceLabel();
  RefreshWindow();
  recalculateAllTabs();
}

void frmeBayFees::mnuOptionsSaveSettings_Click() {
  std::vector<Setting> rows = settings();
  std::erase_if(rows, [](const Setting& row) { return row.saved == Setting::kNever; });
  std::stable_sort(rows.begin(), rows.end(),
                   [](const Setting& a, const Setting& b) { return a.saved < b.saved; });
  SettingList values;
  for (const Setting& row : rows) {
    if (const auto text = row.access.text()) values.append({QString::fromLatin1(row.key), *text});
  }
  m_surroundings.settings.writeAll(values);
  say(QStringLiteral("Settings saved<5009>"));
}

QString frmeBayFees::GetAppSetting(const QString& key) { return m_surroundings.settings.read(key); }

void frmeBayFees::SaveAppSetting(const QString& key, const QString& value) {
  m_surroundings.settings.write(key, value);
}
