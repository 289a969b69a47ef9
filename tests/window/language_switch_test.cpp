#include <algorithm>
#include <QPlainTextEdit>
#include <QtTest>

#include "calculator.h"
#include "folders.h"
#include "tagged_strings.h"

namespace {

const QStringList kLanguages{"English", "German", "French"};

/// What one element shows in each language.
struct Spoken {
  QString element, english, german, french;

  [[nodiscard]] const QString& in(const QString& language) const {
    return language == kLanguages[0] ? english : language == kLanguages[1] ? german : french;
  }
};

// clang-format off
const QList<Spoken> kOnEverySite{
    {"cmdNotepad", "hide notepad", "Notizen verbergen", "masquer les notes"},
    {"chkGiftIcon", "Listing Icon", "Angebotssymbol", "Icône d’annonce"},
    {"lblDutchOpeningPrice", "Buy-it-Now Price:", "Sofort-Kaufen-Preis:", "Achat immédiat\u00A0:"},
    {"cboSingleItemType", "Auction|Fixed Price", "Auktion|Festpreis", "Enchère|Prix fixe"},
    {"cboIsReserve", "No Reserve|Reserve", "Ohne Mindestpreis|Mindestpreis", "Sans réserve|Avec réserve"},
    {"cboRealEstateType", "3-10 day auction|30-day auction|30-day ad|90-day ad",
     "3–10-Tage-Auktion|30-Tage-Auktion|30-Tage-Anzeige|90-Tage-Anzeige",
     "Enchère 3 à 10\u00A0j|Enchère 30\u00A0j|Petite annonce 30\u00A0j|Petite annonce 90\u00A0j"},
    {"cboTypeOfMultiItemListing", "Dutch Auction|Fixed-Price Listing", "Powerauktion|Festpreisangebot",
     "Enchères multiples|Annonce à prix fixe"},
    {"cboExtraPhotos", "1|2|3|4|5|pack", "1|2|3|4|5|Paket", "1|2|3|4|5|pack"},
    {"cboExtraPicturesDutch", "1|2|3|4|5|pack", "1|2|3|4|5|Paket", "1|2|3|4|5|pack"},
    {"SSTab1", "&Single Item|&Mutiple Items|&Payment Services|&Shipping ",
     "&Einzelartikel|&Mehrere Artikel|&Zahlungsdienste|&Versand ",
     "Objet &unique|&Plusieurs objets|&Services de paiement|&Expédition "},
    {"mnuHelpHomepage", "Ostrevane Homepage", "Ostrevane Homepage", "Ostrevane Homepage"},
    {"mnuHelpSubscribe", "&Join Ostrevane Mailing List", "Ostrevane-&Mailingliste abonnieren",
     "S’&abonner à la liste de diffusion Ostrevane"},
    {"mnuLang_0", "Default", "Sprache: Voreinstellung", "Par défaut"},
    {"mnuLang_1", "English", "Englisch", "Anglais"},
    {"mnuLang_2", "German", "German", "German"},
    {"mnuLang_3", "French", "French", "French"},
    {"menuLang", "Languages", "Sprachen", "Langues"},
    {"mnuFile", "&File", "&Datei", "&Fichier"},
    {"lblOneDollarEquals", "One US$ =", "1\u00A0US$ =", "1\u00A0US$\u00A0="},
    {"chkBold", "Bold", "Fettschrift", "Gras"},
    {"frmReserve", "Listing Type ", "Angebotsformat ", "Type d’annonce "},
    {"chkSubTitleSingleItem", "Subtitle", "Subtitle", "Subtitle"},
    {"chkDutchSubtitle", "Subtitle", "Subtitle", "Subtitle"},
    {"lblPostal_3", "Craters and Freighters", "Craters and Freighters", "Craters and Freighters"},
};

const Spoken kReservePrice{"lblStartingPrice", "R&eserve Price:", "Mindestp&reis:", "P&rix de réserve\u00A0:"};
const Spoken kOpeningBid{"lblStartingPrice", "Op&ening Bid:", "&Startpreis:", "P&rix de départ\u00A0:"};
const Spoken kListingIcon{"chkDutchGreatGift", "Listing Icon", "Angebotssymbol", "Icône d’annonce"};
const Spoken kGiftServices{"chkDutchGreatGift", "Gift Services", "Geschenkservice", "Services cadeau"};

const QMap<int, QList<Spoken>> kOnSite{
    {1, {kReservePrice, kListingIcon,
         {"window", "Tessaloom for eBay.com", "Tessaloom für eBay.com", "Tessaloom pour eBay.com"},
         {"chkInternationalPayPal", "Buyer outside USA", "Käufer nicht aus den USA", "Acheteur hors USA"}}},
    {2, {kReservePrice, kGiftServices,
         {"window", "Tessaloom for eBay UK", "Tessaloom für eBay Großbritannien", "Tessaloom pour eBay Royaume-Uni"},
         {"chkInternationalPayPal", "Buyer outside UK", "Käufer nicht aus Großbritannien", "Acheteur hors Royaume-Uni"}}},
    {3, {kReservePrice, kGiftServices,
         {"window", "Tessaloom for eBay Canada (items listed in C$)", "Tessaloom für eBay Kanada (Artikel in C$ eingestellt)",
          "Tessaloom pour eBay Canada (annonces en C$)"},
         {"chkInternationalPayPal", "Buyer outside Canada/USA", "Käufer nicht aus Kanada/den USA", "Acheteur hors Canada/USA"}}},
    {4, {kOpeningBid, kGiftServices,
         {"window", "Tessaloom for eBay Germany", "Tessaloom für eBay Deutschland", "Tessaloom pour eBay Allemagne"},
         {"chkInternationalPayPal", "Buyer outside Germany", "Käufer nicht aus Deutschland", "Acheteur hors Allemagne"}}},
};
// clang-format on

const QMap<int, QString> kCurrencies{{1, "$"}, {2, "GBP"}, {3, "C$"}, {4, "EUR"}};

QString spoken(Calculator& calculator, const QString& element) {
  if (element == QStringLiteral("window")) return calculator.window().windowTitle();
  const auto& object = calculator.find<QObject>(qPrintable(element));
  QStringList texts;
  if (const auto* list = qobject_cast<const QComboBox*>(&object)) {
    for (int item = 0; item < list->count(); ++item) texts << list->itemText(item);
    return texts.join(u'|');
  }
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&object)) {
    for (int tab = 0; tab < tabs->count(); ++tab) texts << tabs->tabText(tab);
    return texts.join(u'|');
  }
  const QVariant title = object.property("title");
  return title.isValid() ? title.toString() : object.property("text").toString();
}

/// Opens a window on a site, with entries on all tabs and everything chosen on which a text depends.
void fillIn(Calculator& calculator, int site) {
  calculator.settings.values[QStringLiteral("Site")] = QString::number(site);
  calculator.settings.values[QStringLiteral("PayPalUKRate")] = QStringLiteral("0.6");
  calculator.load();
  calculator.click("cmdNotepad");
  calculator.tick("chkMotors");
  calculator.tick("chkBold");
  calculator.tick("chkExtraPhotos");
  calculator.choose("cboExtraPhotos", 5);
  if (site != 4) calculator.choose("cboIsReserve", 1);
  calculator.enter("txtStartingPrice", QStringLiteral("25"));
  calculator.enter("txtPrice", QStringLiteral("30"));
  auto& tabs = calculator.find<QTabWidget>("SSTab1");
  tabs.setCurrentIndex(1);
  calculator.choose("cboTypeOfMultiItemListing", 1);
  calculator.choose("cboExtraPicturesDutch", 3);
  if (site == 1) calculator.tick("chkEBayMotorsDutch");
  calculator.enter("txtDutchItemsOffered", QStringLiteral("10"));
  calculator.enter("txtDutchOpeningPrice", QStringLiteral("5"));
  calculator.enter("txtDutchItemsSold", QStringLiteral("10"));
  calculator.enter("txtDutchFinalPrice", QStringLiteral("6"));
  tabs.setCurrentIndex(2);
  calculator.enter("txtPaymentAmount", QStringLiteral("100"));
  calculator.select("optPayPalMerchant");
  letItSettle();
}

/// All that the user has chosen or been told, by control, but for texts that a language gives.
QStringList stateOf(Calculator& calculator) {
  QStringList state;
  for (const QWidget* widget : calculator.window().findChildren<QWidget*>()) {
    if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_")) continue;
    QStringList values{widget->objectName(), QVariant(widget->isEnabled()).toString(),
                       QVariant(widget->isHidden()).toString()};
    if (widget->inherits("QLineEdit")) values << widget->property("text").toString();
    if (widget->inherits("QPlainTextEdit")) values << widget->property("plainText").toString();
    if (widget->inherits("QAbstractButton")) values << widget->property("checked").toString();
    if (widget->inherits("QComboBox") || widget->inherits("QTabWidget"))
      values << widget->property("currentIndex").toString();
    state << values.join(u' ');
  }
  for (const QAction* action : calculator.window().findChildren<QAction*>()) {
    if (action->objectName().startsWith(u"mnuLang_")) continue;
    state << action->objectName() + QVariant(action->isChecked()).toString() +
                 QVariant(action->isEnabled()).toString() + QVariant(action->isVisible()).toString();
  }
  return state;
}

/// Every text that any object of the window shows or would show.
QStringList allTexts(Calculator& calculator) {
  QStringList texts{calculator.window().windowTitle()};
  for (const QObject* object : calculator.window().findChildren<QObject*>()) {
    for (const char* property : {"text", "title", "toolTip", "statusTip", "whatsThis", "accessibleName",
                                 "accessibleDescription", "placeholderText", "windowTitle", "iconText"}) {
      const QVariant text = object->property(property);
      if (text.isValid()) texts << object->objectName() + u'.' + property + u'=' + text.toString();
    }
    if (qobject_cast<const QComboBox*>(object) != nullptr ||
        (qobject_cast<const QTabWidget*>(object) != nullptr)) {
      texts << spoken(calculator, object->objectName());
    }
  }
  return texts;
}

QStringList visibleLanguages(const Calculator& calculator) {
  QStringList captions;
  for (const QAction* entry : calculator.find<QMenu>("menuLang").actions()) {
    if (entry->isVisible()) captions << entry->text();
  }
  return captions;
}

QList<int> checkedLanguages(const Calculator& calculator) {
  QList<int> checked;
  const QList<QAction*> entries = calculator.find<QMenu>("menuLang").actions();
  for (int index = 0; index < entries.size(); ++index) {
    if (entries[index]->isChecked()) checked << index;
  }
  return checked;
}

/// Puts German libraries under the names of these codes into a folder.
void putLibraries(const QString& folder, const QStringList& codes) {
  for (const QString& code : codes) {
    const QString library = folder + QStringLiteral("/TessaloomLang") + code + QStringLiteral(".dll");
    if (!QFile::copy(kProgramFolder + QStringLiteral("/TessaloomLang407.dll"), library))
      throw std::runtime_error("no library could be put into " + folder.toStdString());
  }
}

void writeBrand(Calculator& calculator, const QString& folder, const QByteArray& text) {
  QFile file(folder + QStringLiteral("/AppData"));
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
    throw std::runtime_error("the branding file could not be written");
  file.close();
  calculator.brand = CCustomBrand(folder);
  calculator.brand.Load();
}

struct RecordingTexts : Localization::LanguageResources {
  QList<qint32>& asked;

  explicit RecordingTexts(QList<qint32>& list) : asked(list) {}
  QString GetResourceString(qint32 id) override {
    asked << id;
    return {};
  }
};

}  // namespace

/// Changing the language while the window is open.
class LanguageSwitchTest : public QObject {
  Q_OBJECT

 private slots:
  void everyTextIsOfTheLanguageAndTheState_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    for (int site = 1; site <= 4; ++site) {
      for (const QString& from : kLanguages) {
        for (const QString& to : kLanguages)
          QTest::addRow("site %d, %s to %s", site, qPrintable(from), qPrintable(to)) << site << from << to;
      }
    }
  }

  void everyTextIsOfTheLanguageAndTheState() {
    QFETCH(int, site);
    QFETCH(QString, from);
    QFETCH(QString, to);
    Calculator calculator;
    fillIn(calculator, site);
    for (const QString& language : {from, to}) {
      calculator.speak(language);
      for (const Spoken& row : kOnEverySite + kOnSite[site]) {
        const QString shown = spoken(calculator, row.element);
        QVERIFY2(
            shown == row.in(language),
            qPrintable(
                QStringLiteral("%1: \"%2\" instead of \"%3\"").arg(row.element, shown, row.in(language))));
      }
      for (int number = 1; number <= 16; ++number) {
        const QString label = QStringLiteral("lblCurrency%1").arg(number);
        if (number != 13) QCOMPARE(spoken(calculator, label), kCurrencies[site]);
      }
      QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Tessaloom"));
    }
  }

  void theClosedNotepadAndPlainListingsHaveTheirTexts() {
    Calculator calculator;
    calculator.load();
    calculator.speak(QStringLiteral("German"));
    QCOMPARE(calculator.shown("cmdNotepad"), QStringLiteral("Notizen zeigen"));
    QCOMPARE(calculator.shown("lblStartingPrice"), QStringLiteral("&Startpreis:"));
    QCOMPARE(calculator.shown("lblDutchOpeningPrice"), QStringLiteral("Startpreis:"));
    QCOMPARE(calculator.shown("chkGiftIcon"), QStringLiteral("Geschenkservice"));
    QCOMPARE(calculator.shown("chkDutchGreatGift"), QStringLiteral("Geschenkservice"));
    calculator.choose("cboSingleItemType", 1);
    calculator.speak(QStringLiteral("French"));
    QCOMPARE(calculator.shown("lblStartingPrice"), QStringLiteral("Achat immédiat\u00A0:"));
  }

  void aSwitchLeavesChoicesEntriesAndFiguresAlone_data() { addSites(); }

  void aSwitchLeavesChoicesEntriesAndFiguresAlone() {
    QFETCH(int, site);
    Calculator calculator;
    fillIn(calculator, site);
    const QStringList before = stateOf(calculator);
    const QMap<QString, QString> stored = calculator.settings.values;
    for (const char* language : {"German", "French", "German", "English"}) {
      calculator.settings.calls.clear();
      calculator.speak(QString::fromLatin1(language));
      letItSettle();
      QCOMPARE(stateOf(calculator), before);
      QCOMPARE(calculator.settings.calls,
               (QStringList{QStringLiteral("write Language=") + language, "read Language"}));
      QMap<QString, QString> expected = stored;
      expected[QStringLiteral("Language")] = QString::fromLatin1(language);
      QCOMPARE(calculator.settings.values, expected);
    }
    QVERIFY(calculator.isSilent());
  }

  void aSwitchKeepsTheCurrentTab_data() {
    QTest::addColumn<int>("tab");
    for (int tab = 0; tab < 4; ++tab) QTest::addRow("tab %d", tab) << tab;
  }

  void aSwitchKeepsTheCurrentTab() {
    QFETCH(int, tab);
    Calculator calculator;
    calculator.load();
    auto& tabs = calculator.find<QTabWidget>("SSTab1");
    tabs.setCurrentIndex(tab);
    calculator.speak(QStringLiteral("French"));
    QCOMPARE(tabs.currentIndex(), tab);
  }

  void aSwitchRecalculatesNothing() {
    Calculator calculator;
    fillIn(calculator, 1);
    for (const char* button : {"cmdClearAll", "cmdDutchClearAll", "cmdClearPaymentFees"})
      calculator.click(button);
    // Texts that a recalculation would write in another form.
    calculator.set("txtStartingPrice", QStringLiteral("7.5"));
    calculator.set("txtDutchOpeningPrice", QStringLiteral("3.5"));
    calculator.set("txtPaymentAmount", QStringLiteral("2.5"));
    for (const char* language : {"German", "French", "English"}) {
      calculator.speak(QString::fromLatin1(language));
      QCOMPARE(calculator.shown("txtStartingPrice"), QStringLiteral("7.5"));
      QCOMPARE(calculator.shown("txtDutchOpeningPrice"), QStringLiteral("3.5"));
      QCOMPARE(calculator.shown("txtPaymentAmount"), QStringLiteral("2.5"));
      QCOMPARE(calculator.singleItemFees(), QStringList(4, QString()));
      for (const char* box : {"txtPrice", "txtDutchFees", "txtDutchFinalPrice", "txtTotalDutchAuctionSales",
                              "txtDutchCostPerItem", "txtExtraFeaturesDutch", "txtPayPalFee"})
        QVERIFY2(calculator.shown(box).isEmpty(), box);
    }
  }

  void aFigureThatIsNoNumberKeepsItsLanguage() {
    Calculator calculator;
    fillIn(calculator, 1);
    calculator.enter("txtDutchItemsSold", QStringLiteral("0"));
    QCOMPARE(calculator.shown("txtDutchCostPerItem"), QStringLiteral("N/A"));
    calculator.speak(QStringLiteral("German"));
    QCOMPARE(calculator.shown("txtDutchCostPerItem"), QStringLiteral("N/A"));
    calculator.click("cmdDutchCalculate");
    QCOMPARE(calculator.shown("txtDutchCostPerItem"), QStringLiteral("k.\u00A0A."));
  }

  void twiceIsOnce() {
    Calculator calculator;
    fillIn(calculator, 3);
    for (const char* language : {"German", "French", "English"}) {
      calculator.speak(QString::fromLatin1(language));
      const QStringList once = allTexts(calculator);
      calculator.speak(QString::fromLatin1(language));
      QCOMPARE(allTexts(calculator), once);
    }
  }

  void aRoundTripGivesBackEveryText_data() { addSites(); }

  void aRoundTripGivesBackEveryText() {
    QFETCH(int, site);
    Calculator calculator;
    fillIn(calculator, site);
    const QStringList before = allTexts(calculator);
    QVERIFY(before.size() > 200);
    for (const char* language : {"German", "French", "English"})
      calculator.speak(QString::fromLatin1(language));
    QCOMPARE(allTexts(calculator), before);
  }

  void aSwitchedWindowReadsAsOneThatStartedSo_data() {
    QTest::addColumn<QString>("language");
    for (const QString& language : kLanguages) QTest::newRow(qPrintable(language)) << language;
  }

  void aSwitchedWindowReadsAsOneThatStartedSo() {
    QFETCH(QString, language);
    QStringList switched;
    {
      Calculator calculator;
      fillIn(calculator, 1);
      calculator.speak(language);
      switched = allTexts(calculator);
    }
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Language")] = language;
    calculator.languages.InitLanguage();
    fillIn(calculator, 1);
    QCOMPARE(allTexts(calculator), switched);
  }

  void theChosenPictureCountSurvives_data() {
    QTest::addColumn<int>("count");
    for (int count = 0; count <= 5; ++count) QTest::addRow("entry %d", count) << count;
  }

  void theChosenPictureCountSurvives() {
    QFETCH(int, count);
    Calculator calculator;
    calculator.load();
    calculator.tick("chkExtraPhotos");
    calculator.choose("cboExtraPhotos", count);
    calculator.choose("cboExtraPicturesDutch", 5 - count);
    const QStringList fees = calculator.singleItemFees();
    calculator.speak(QStringLiteral("German"));
    QCOMPARE(calculator.find<QComboBox>("cboExtraPhotos").currentIndex(), count);
    QCOMPARE(calculator.find<QComboBox>("cboExtraPicturesDutch").currentIndex(), 5 - count);
    QCOMPARE(calculator.singleItemFees(), fees);
  }

  void noTagIsEverSeen_data() { addSites(); }

  void noTagIsEverSeen() {
    QFETCH(int, site);
    const QRegularExpression tag(QStringLiteral("<\\d{4}>"));
    Calculator calculator;
    fillIn(calculator, site);
    for (const char* language : {"English", "German", "French"}) {
      calculator.speak(QString::fromLatin1(language));
      QCOMPARE(allTexts(calculator).filter(tag), QStringList());
    }
  }

  void toolTipsAreSpokenToo() {
    Calculator calculator;
    calculator.load();
    calculator.speak(QStringLiteral("German"));
    const auto toolTip = [&](const char* name) { return calculator.find<QWidget>(name).toolTip(); };
    QCOMPARE(toolTip("chkVehicle"),
             QStringLiteral("Kreuzen Sie dieses Kästchen an, wenn Ihr Artikel ein Fahrzeug ist."));
    QCOMPARE(toolTip("cboRealEstateType"),
             QStringLiteral("Wählen Sie Art und Dauer Ihrer Immobilienauktion."));
    QCOMPARE(toolTip("txtFees"), QStringLiteral("Ihre gesamten eBay-Gebühren."));
    QCOMPARE(toolTip("chkListingDesigner"),
             QStringLiteral("Kreuzen Sie dieses Kästchen an, wenn Ihr Angebot in Fettschrift erschien."));
    for (const char* untagged : {"chkSubTitleSingleItem", "chkDutchSubtitle"})
      QCOMPARE(toolTip(untagged), QStringLiteral("Additional text beneath the main title."));
  }

  void menusComeFirstThenTheControlsByKind() {
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    QList<qint32> asked;
    Localization::setLanguageObject(std::make_unique<RecordingTexts>(asked));
    calculator.load();
    // Neighbours at the seams: of the menus, the tooltips of text boxes, the frames, the options, the check
    // boxes, the labels, the buttons, and then what is in no such list.
    const QList<qint32> expected{674, 675, 422, 425, 423, 424, 464, 434, 443, 444, 426, 432,
                                 430, 433, 431, 258, 244, 389, 284, 292, 335, 276, 376, 377,
                                 370, 372, 373, 345, 346, 362, 384, 385, 260, 672, 391, 417,
                                 413, 412, 699, 421, 393, 416, 247, 248, 245, 232, 233, 369};
    qsizetype last = -1;
    for (const qint32 id : expected) {
      const qsizetype place = asked.indexOf(id);
      QVERIFY2(place > last, qPrintable(QStringLiteral("%1 is asked for at %2").arg(id).arg(place)));
      last = place;
    }
    QVERIFY(asked.contains(240) && asked.contains(319));  // a tab, and the label that no list has
  }

  void theCheckMarkIsOfTheStoredLanguage_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("hasLibraries");
    QTest::addColumn<QList<int>>("checked");
    QTest::newRow("nothing") << "" << true << QList<int>{0};
    QTest::newRow("Default") << "Default" << true << QList<int>{0};
    QTest::newRow("English") << "English" << true << QList<int>{1};
    QTest::newRow("German") << "German" << true << QList<int>{2};
    QTest::newRow("French") << "French" << true << QList<int>{3};
    QTest::newRow("in whatever case") << "fRENCH" << true << QList<int>{3};
    QTest::newRow("a part of the name") << "Germ" << true << QList<int>{2};
    QTest::newRow("a language that there is not") << "Spanish" << true << QList<int>{};
    QTest::newRow("German without its library") << "German" << false << QList<int>{};
    QTest::newRow("English without libraries") << "English" << false << QList<int>{1};
    QTest::newRow("nothing, without libraries") << "" << false << QList<int>{0};
  }

  void theCheckMarkIsOfTheStoredLanguage() {
    QFETCH(QString, stored);
    QFETCH(bool, hasLibraries);
    QFETCH(QList<int>, checked);
    const QTemporaryDir empty;
    Calculator calculator(kPointLocale, 1, hasLibraries ? QString::fromUtf8(kProgramFolder) : empty.path());
    calculator.settings.values[QStringLiteral("Language")] = stored;
    calculator.languages.InitLanguage();
    calculator.load();
    QCOMPARE(checkedLanguages(calculator), checked);
    QCOMPARE(visibleLanguages(calculator).size(), hasLibraries ? 4 : 2);
    QVERIFY(calculator.isSilent());
  }

  void everyEntryStoresAndMarksItsOwn_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("stored");
    const QStringList stored{"Default", "English", "German", "French"};
    for (const QString& language : kLanguages) {
      for (int entry = 0; entry < 4; ++entry)
        QTest::addRow("%s, entry %d", qPrintable(language), entry) << language << entry << stored[entry];
    }
  }

  void everyEntryStoresAndMarksItsOwn() {
    QFETCH(QString, language);
    QFETCH(int, entry);
    QFETCH(QString, stored);
    Calculator calculator;
    calculator.load();
    calculator.speak(language);
    calculator.trigger(qPrintable(QStringLiteral("mnuLang_%1").arg(entry)));
    QCOMPARE(calculator.settings.values[QStringLiteral("Language")], stored);
    QCOMPARE(checkedLanguages(calculator), QList<int>{entry});
    const QMap<QString, QString> spokenThen{
        {"Default", "Bold"}, {"English", "Bold"}, {"German", "Fettschrift"}, {"French", "Gras"}};
    QCOMPARE(calculator.shown("chkBold"), spokenThen[stored]);
  }

  void everyLibraryIsListed() {
    const QTemporaryDir folder;
    putLibraries(folder.path(),
                 {"C07", "407", "1407", "1007", "807", "80C", "C0C", "40C", "140C", "180C", "100C", "809"});
    Calculator calculator(kPointLocale, 1, folder.path());
    calculator.load();
    // In the order of their file names.
    const QStringList all{"Default", "English", "German", "French",  "German", "French", "French",
                          "German",  "French",  "German", "English", "French", "German", "French"};
    QCOMPARE(visibleLanguages(calculator), all);
    calculator.speak(QStringLiteral("German"));
    QCOMPARE(checkedLanguages(calculator), QList<int>{2});  // the first of that name
    QCOMPARE(visibleLanguages(calculator).mid(2), all.mid(2));
    QCOMPARE(calculator.shown("chkBold"), QStringLiteral("Fettschrift"));
  }

  void entriesWithoutALibraryAnyMoreAreHidden() {
    const QTemporaryDir folder;
    putLibraries(folder.path(), {"407", "40C", "807", "80C"});
    Calculator calculator(kPointLocale, 1, folder.path());
    calculator.load();
    calculator.trigger("mnuLang_5");
    QCOMPARE(visibleLanguages(calculator).size(), 6);
    for (const char* code : {"407", "40C", "80C"})
      QVERIFY(QFile::remove(folder.filePath(QStringLiteral("TessaloomLang%1.dll").arg(code))));
    calculator.trigger("mnuLang_1");
    QCOMPARE(visibleLanguages(calculator), (QStringList{"Default", "English", "German"}));
    QCOMPARE(checkedLanguages(calculator), QList<int>{1});
    putLibraries(folder.path(), {"407"});
    calculator.trigger("mnuLang_1");
    QCOMPARE(visibleLanguages(calculator).size(), 4);
  }

  void theCompanyOfTheBrandIsNamed_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("homepage");
    QTest::addColumn<QStringList>("mailingList");  // English, German, French
    const auto row = [](const char* name, const char* file, const char* homepage, const QStringList& list) {
      QTest::newRow(name) << QString::fromUtf8(file) << homepage << list;
    };
    row("a company", "<CompanyName>Harbour Hill</CompanyName>", "Harbour Hill Homepage",
        {"&Join Harbour Hill Mailing List", "Harbour Hill-&Mailingliste abonnieren",
         "S’&abonner à la liste de diffusion Harbour Hill"});
    row("an ampersand is shown, not taken for a mnemonic", "<CompanyName>A&B</CompanyName>", "A&&B Homepage",
        {"&Join A&&B Mailing List", "A&&B-&Mailingliste abonnieren",
         "S’&abonner à la liste de diffusion A&&B"});
    row("a name around the maker's", "<CompanyName>Not Ostrevane</CompanyName>", "Not Ostrevane Homepage",
        {"&Join Not Ostrevane Mailing List", "Not Ostrevane-&Mailingliste abonnieren",
         "S’&abonner à la liste de diffusion Not Ostrevane"});
    row("no company", "<CompanyURL>x</CompanyURL>", " Homepage",
        {"&Join  Mailing List", "-&Mailingliste abonnieren", "S’&abonner à la liste de diffusion "});
    row("an empty name", "<CompanyName></CompanyName>", " Homepage",
        {"&Join  Mailing List", "-&Mailingliste abonnieren", "S’&abonner à la liste de diffusion "});
  }

  void theCompanyOfTheBrandIsNamed() {
    QFETCH(QString, file);
    QFETCH(QString, homepage);
    QFETCH(QStringList, mailingList);
    const QTemporaryDir folder;
    Calculator calculator;
    writeBrand(calculator, folder.path(), file.toUtf8());
    calculator.load();
    for (int language = 0; language < kLanguages.size(); ++language) {
      calculator.speak(kLanguages[language]);
      QCOMPARE(calculator.shown("mnuHelpHomepage"), homepage);
      QCOMPARE(calculator.shown("mnuHelpSubscribe"), mailingList[language]);
    }
  }

 private:
  static void addSites() {
    QTest::addColumn<int>("site");
    for (int site = 1; site <= 4; ++site) QTest::addRow("site %d", site) << site;
  }
};

QTEST_MAIN(LanguageSwitchTest)
#include "language_switch_test.moc"
