#include <QActionGroup>

#include "caption_order.h"
#include "frmeBayFees.h"
#include "start.h"
#include "tagged_strings.h"

using Localization::GetTagString;

void frmeBayFees::captureCaptions() { m_captions.capture(*this, captionOrder()); }

void frmeBayFees::applyCaptions() {
  m_captions.apply();
  m_form.lblStatus->say({});  // it was said in another language
  applyBrand();
  fillLists();
  showTextsOfState();
}

// The reseller's name stands in for the maker's, whatever a language says.
void frmeBayFees::applyBrand() {
  QString company = m_surroundings.brand.values().CompanyName;
  company.replace(u'&', QStringLiteral("&&"));  // shown, not taken for a mnemonic
  m_form.mnuHelpHomepage->setText(company + QStringLiteral(" Homepage"));
  m_form.mnuHelpSubscribe->setText(
      m_form.mnuHelpSubscribe->text().replace(QStringLiteral("Ostrevane"), company));
}

// The designed captions have just come back where the window shows another text for what is chosen. Texts
// only: no choice, entry or result changes here.
void frmeBayFees::showTextsOfState() {
  Start::setApplicationTitle();
  showTextsOfSite();
  ShowCurrencyLabels();
  captionGiftBox();
  captionDutchGiftBox();
  choosePriceLabel();
  chooseDutchPriceLabel();
  refreshNotepad();
}

void frmeBayFees::BuildLanguageMenu() {
  const Localization::LanguageChoice& choice = m_surroundings.languages;
  const QString& setting = choice.LanguageSetting();
  const bool isDefault = setting.isEmpty() || setting == QStringLiteral("Default");
  const bool isEnglish = setting == QStringLiteral("English");
  for (QAction* entry : m_mnuLang) {
    entry->setVisible(false);
    entry->setChecked(false);
  }
  showLanguage(0, GetTagString(QStringLiteral("Default<0674>")), isDefault);
  showLanguage(1, GetTagString(QStringLiteral("English<0675>")), isEnglish);
  bool isFound = isDefault || isEnglish;
  int index = 1;
  for (const Localization::LanguageInfo& language : choice.Languages()) {
    const bool isChosen = !isFound && language.Name.contains(setting, Qt::CaseInsensitive);
    isFound = isFound || isChosen;
    showLanguage(++index, language.Name, isChosen);
  }
}

void frmeBayFees::addLanguagePlace() {
  const int index = static_cast<int>(m_mnuLang.size());
  QAction* entry = m_form.menuLang->addAction(QString());
  entry->setObjectName(QStringLiteral("mnuLang_%1").arg(index));
  entry->setCheckable(true);
  entry->setVisible(false);
  m_languageGroup->addAction(entry);
  connect(entry, &QAction::triggered, this,
          [this, index] { guarded([this, index] { mnuLang_Click(index); }); });
  m_mnuLang.push_back(entry);
}

void frmeBayFees::showLanguage(int index, const QString& caption, bool isChosen) {
  while (m_mnuLang.size() <= static_cast<std::size_t>(index)) addLanguagePlace();
  QAction& entry = *m_mnuLang[static_cast<std::size_t>(index)];
  entry.setText(caption);
  entry.setData(caption);  // a desktop may put a mnemonic into the text
  entry.setChecked(isChosen);
  entry.setVisible(true);
}

void frmeBayFees::mnuLang_Click(int index) {
  const QString caption = m_mnuLang[static_cast<std::size_t>(index)]->data().toString();
  guarded([&] { m_surroundings.languages.SelectLanguage(caption); });
  BuildLanguageMenu();
  applyCaptions();
}
