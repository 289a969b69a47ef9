#include <QtTest>

#include "stored_window.h"

namespace {

// clang-format off
const QStringList kFirstRunWrites{
    "write Site=1",
    "write StayOnTop=0",
    "write Notepad=0",
    "write RegularType=0",
    "write RegularNumeric=",
    "write RegularReserve=0",
    "write RegularFeaturedCategory=0",
    "write RegularFeatured=0",
    "write RegularGallery=0",
    "write RegularGalleryFeatured=0",
    "write RegularHighlighted=0",
    "write RegularBold=0",
    "write RegularGift=0",
    "write RegularRealEstate=0",
    "write RegularTwoCategories=0",
    "write RegularTenDayAuction=0",
    "write RegularMotors=0",
    "write RegularVehicle=0",
    "write RegularIsExtraPhotos=0",
    "write RegularNumExtraPhotos=0",
    "write RegularSupersize=0",
    "write RegularSlideshow=0",
    "write DutchMotors=",
    "write DutchItemsOffered=",
    "write DutchOpeningPrice=",
    "write DutchFeaturedPlus=0",
    "write DutchFeatured=0",
    "write DutchGallery=0",
    "write DutchGalleryFeatured=0",
    "write DutchHighlighted=0",
    "write DutchBold=0",
    "write DutchGift=0",
    "write DutchTenDayAuction=0",
    "write DutchIsExtraPhotos=0",
    "write DutchNumExtraPhotos=0",
    "write DutchSupersize=0",
    "write DutchSlideshow=0",
    "write PayPalCreditCard=1",
    "write PayPalNonCreditCard=0",
    "write PayPalMerchantAccount=0",
    "write PayPalOutsideUS=0",
    "write PayPalUKRate=0.5305",
    "write PayPalCanadaRate=1.317",
    "write PayPalGermanyRate=0.7854",
};

const QStringList kSavedWrites{
    "write Site=%1",
    "write StayOnTop=1",
    "write Notepad=1",
    "write RegularType=1",
    "write RegularNumeric=25.00",
    "write RegularReserve=%2",
    "write RegularFeaturedCategory=1",
    "write RegularFeatured=1",
    "write RegularGallery=1",
    "write RegularGalleryFeatured=1",
    "write RegularHighlighted=1",
    "write RegularBold=1",
    "write RegularGift=%3",
    "write RegularRealEstate=0",  // eBay Motors rules it out
    "write RegularTwoCategories=1",
    "write RegularTenDayAuction=1",
    "write RegularMotors=1",
    "write RegularVehicle=1",
    "write RegularIsExtraPhotos=1",
    "write RegularSupersize=1",
    "write RegularSlideshow=1",
    "write RegularNumExtraPhotos=5",
    "write RegularMotorcycle=1",
    "write RegularOtherVehicle=0",
    "write DutchVehicle=1",
    "write DutchItemsOffered=10",
    "write DutchOpeningPrice=5.00",
    "write DutchFeaturedPlus=1",
    "write DutchFeatured=1",
    "write DutchGallery=1",
    "write DutchGalleryFeatured=1",
    "write DutchHighlighted=1",
    "write DutchBold=1",
    "write DutchGift=%3",
    "write DutchTenDayAuction=1",
    "write DutchIsExtraPhotos=1",
    "write DutchSupersize=1",
    "write DutchSlideshow=1",
    "write DutchNumExtraPhotos=3",
    "write PayPalCreditCard=0",
    "write PayPalNonCreditCard=1",
};

const QList<const char*> kNeverSaved{
    "chkDidNotSell", "chkBIN", "chkScheduled", "chkSubTitleSingleItem", "chkListingDesigner", "optTimeshare",
    "chkDutchTwoCategories", "chkDutchScheduled", "chkDutchSubtitle", "chkDutchListingDesigner",
    "chkInternationalPayPal", "optPayPalMerchant"};
// clang-format on

void setEverything(Calculator& calculator) {
  for (const char* name : kNeverSaved) setControl(calculator, name, QStringLiteral("1"));
  calculator.choose("cboSingleItemType", 1);
  calculator.choose("cboIsReserve", 1);
  calculator.choose("cboExtraPhotos", 5);
  calculator.choose("cboExtraPicturesDutch", 3);
  calculator.choose("cboRealEstateType", 2);
  calculator.choose("cboTypeOfMultiItemListing", 1);
  for (const char* box : kBoxes) {
    if (calculator.find<QCheckBox>(box).isEnabled()) setControl(calculator, box, QStringLiteral("1"));
  }
  for (const char* box : {"chkGalleryFeatured", "chkVehicle", "chkDutchGalleryFeatured"})
    calculator.tick(box);
  setControl(calculator, "optMotorcycle", QStringLiteral("1"));
  setControl(calculator, "optPayPalNonCreditCard", QStringLiteral("1"));
  calculator.set("txtStartingPrice", QStringLiteral("25.00"));
  calculator.set("txtPrice", QStringLiteral("77.77"));
  calculator.set("txtDutchItemsOffered", QStringLiteral("10"));
  calculator.set("txtDutchOpeningPrice", QStringLiteral("5.00"));
  calculator.set("txtDutchItemsSold", QStringLiteral("7"));
  calculator.set("txtDutchFinalPrice", QStringLiteral("66.66"));
  calculator.set("txtPaymentAmount", QStringLiteral("55.55"));
  calculator.set("txtConversion", QStringLiteral("1.45"));
  calculator.trigger("mnuOptionsOnTop");
  calculator.click("cmdNotepad");
}

/// What is stored after all is set on the US site and saved.
Values everythingSaved() {
  Calculator calculator;
  open(calculator, {});
  setEverything(calculator);
  calculator.trigger("mnuOptionsSaveSettings");
  return calculator.settings.values;
}

}  // namespace

/// What the window stores, on its first run and when it saves, and that it comes back.
class SettingsSaveTest : public QObject {
  Q_OBJECT

 private slots:
  void theFirstRunWritesAllDefaultsBeforeItRestores() {
    Calculator calculator;
    calculator.settings.calls.clear();
    calculator.load();
    const QStringList& calls = calculator.settings.calls;
    QCOMPARE(writesAmong(calls), kFirstRunWrites);
    QCOMPARE(calls.value(0), QStringLiteral("read Site"));  // is it the first run?
    QCOMPARE(calls.mid(1, kFirstRunWrites.size()), kFirstRunWrites);
    for (const char* key : {"RegularMotorcycle", "RegularOtherVehicle", "DutchVehicle", "Language"})
      QVERIFY2(!calculator.settings.values.contains(QString::fromLatin1(key)), key);
  }

  void theFirstRunOfAGermanUserIsOnTheGermanSite() {
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Language")] = QStringLiteral("German");
    QVERIFY(calculator.languages.InitLanguage());
    calculator.settings.calls.clear();
    calculator.load();
    QStringList writes = kFirstRunWrites;
    writes[0] = QStringLiteral("write Site=4");
    QCOMPARE(writesAmong(calculator.settings.calls), writes);
    QVERIFY(calculator.find<QAction>("mnuOptionsSiteGermany").isChecked());
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("0.7854"));
  }

  void otherLanguagesStartOnEBayCom_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"French", "English", "Default"}) QTest::newRow(language) << language;
  }

  void otherLanguagesStartOnEBayCom() {
    QFETCH(QString, language);
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Language")] = language;
    QVERIFY(calculator.languages.InitLanguage());
    calculator.load();
    QCOMPARE(calculator.settings.values[QStringLiteral("Site")], QStringLiteral("1"));
  }

  void germanWithoutItsLibraryStartsOnEBayCom() {
    const QTemporaryDir empty;
    Calculator calculator(kPointLocale, 1, empty.path());
    calculator.settings.values[QStringLiteral("Language")] = QStringLiteral("German");
    QVERIFY(calculator.languages.InitLanguage());
    calculator.load();
    QCOMPARE(calculator.settings.values[QStringLiteral("Site")], QStringLiteral("1"));
  }

  void anEmptySiteIsAFirstRun() {
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Site")] = QString();
    calculator.load();
    QCOMPARE(writesAmong(calculator.settings.calls), kFirstRunWrites);
    QVERIFY(calculator.find<QAction>("mnuOptionsSiteEbay").isChecked());
  }

  void aLaterRunWritesNothing() {
    Calculator calculator;
    open(calculator, {{"Site", "3"}});
    QCOMPARE(writesAmong(calculator.settings.calls), QStringList());
  }

  void theDefaultsShowAWindowWithNothingChosen() {
    Calculator calculator;
    calculator.load();
    for (const char* box : kBoxes) QVERIFY2(!isTicked(calculator, box), box);
    for (const char* list : kLists) QCOMPARE(chosen(calculator, list), 0);
    QVERIFY(isTicked(calculator, "optPayPalCreditCard"));
    calculator.selectSite(2);
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("0.5305"));
    calculator.selectSite(3);
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("1.317"));
  }

  void savingWritesTheseKeysInThisOrder_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QString>("reserve");
    QTest::addColumn<QString>("gift");
    QTest::addColumn<QStringList>("rate");
    QTest::newRow("eBay.com: no rate") << 1 << "1"
                                       << "1" << QStringList();
    QTest::newRow("UK") << 2 << "1"
                        << "0" << QStringList{"write PayPalUKRate=1.45"};
    QTest::newRow("Canada") << 3 << "1"
                            << "0" << QStringList{"write PayPalCanadaRate=1.45"};
    QTest::newRow("Germany: no rate either") << 4 << "0"
                                             << "0" << QStringList();
  }

  void savingWritesTheseKeysInThisOrder() {
    QFETCH(int, site);
    QFETCH(QString, reserve);
    QFETCH(QString, gift);
    QFETCH(QStringList, rate);
    Calculator calculator;
    open(calculator, {{"Site", QString::number(site)}});
    setEverything(calculator);
    calculator.settings.calls.clear();
    calculator.trigger("mnuOptionsSaveSettings");
    QStringList expected = kSavedWrites + rate;
    expected.replaceInStrings(QStringLiteral("%1"), QString::number(site));
    expected.replaceInStrings(QStringLiteral("%2"), reserve);
    expected.replaceInStrings(QStringLiteral("%3"), gift);
    QCOMPARE(calculator.settings.calls, expected);
    QVERIFY(calculator.isSilent());
  }

  void savingAnUntouchedWindowWritesNoughts() {
    Calculator calculator;
    open(calculator, {});
    calculator.settings.calls.clear();
    calculator.trigger("mnuOptionsSaveSettings");
    QCOMPARE(calculator.settings.calls.size(), kSavedWrites.size());
    for (const QString& call : calculator.settings.calls) {
      const bool isSet = call == QStringLiteral("write Site=1") ||
                         call == QStringLiteral("write RegularOtherVehicle=1") ||
                         call == QStringLiteral("write PayPalNonCreditCard=1");  // nothing was stored
      const bool isText = call.endsWith(u'=');
      QVERIFY2(isSet || isText || call.endsWith(QStringLiteral("=0")), qPrintable(call));
    }
  }

  void whatIsNeverSavedComesBackAtItsStart() {
    Calculator calculator;
    open(calculator, everythingSaved());
    for (const char* name : kNeverSaved) QVERIFY2(!isTicked(calculator, name), name);
    for (const char* list : {"cboRealEstateType", "cboTypeOfMultiItemListing"})
      QVERIFY2(chosen(calculator, list) == 0, list);
    for (const char* box : {"txtDutchItemsSold", "txtDutchFinalPrice", "txtPaymentAmount"})
      QVERIFY2(calculator.shown(box).isEmpty(), box);
    QVERIFY(calculator.shown("txtPrice") != QStringLiteral("77.77"));
    QVERIFY(isTicked(calculator, "optPayPalStandard"));
  }

  void foreignKeysAreLeftAlone() {
    const Values foreign{{"Language", "English"}, {"window/geometry", "1x1"}, {"DutchMotors", "0"}};
    Calculator calculator;
    open(calculator, foreign);
    setEverything(calculator);
    calculator.trigger("mnuOptionsSaveSettings");
    calculator.window().close();
    for (auto row = foreign.cbegin(); row != foreign.cend(); ++row)
      QCOMPARE(calculator.settings.values.value(row.key()), row.value());
  }

  void aSavedValueComesBack_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* key, const char* control, const char* value, const char* stored,
                        const char* after, int site = 1) {
      QTest::addRow("%s, site %d", key, site) << site << control << value << stored << after;
    };
    row("StayOnTop", "mnuOptionsOnTop", "", "1", "1");
    row("Notepad", "cmdNotepad", "", "1", "hide notepad");
    row("RegularType", "cboSingleItemType", "1", "1", "1");
    row("RegularNumeric", "txtStartingPrice", "12.34", "12.34", "12.34");
    row("RegularReserve", "cboIsReserve", "1", "1", "1");
    for (auto box = kBoxes.cbegin(); box != kBoxes.cend(); ++box) {
      if (box.key() != QStringLiteral("DutchMotors")) row(qPrintable(box.key()), box.value(), "1", "1", "1");
    }
    row("RegularMotorcycle", "optMotorcycle", "1", "1", "1");
    row("RegularOtherVehicle", "optOtherVehicle", "1", "1", "1");
    row("RegularNumExtraPhotos", "cboExtraPhotos", "5", "5", "5");
    row("DutchItemsOffered", "txtDutchItemsOffered", "12", "12", "12");
    row("DutchOpeningPrice", "txtDutchOpeningPrice", "3.21", "3.21", "3.21");
    row("DutchNumExtraPhotos", "cboExtraPicturesDutch", "4", "4", "4");
    row("PayPalCreditCard", "optPayPalCreditCard", "1", "1", "1");
    row("PayPalNonCreditCard", "optPayPalNonCreditCard", "1", "1", "1");
    row("PayPalUKRate", "txtConversion", "0.61", "0.61", "0.61", 2);
    row("PayPalCanadaRate", "txtConversion", "1.5", "1.5", "1.5", 3);
    // Saved under another name than it is restored from.
    row("DutchVehicle", "chkEBayMotorsDutch", "1", "1", "0");
  }

  void aSavedValueComesBack() {
    QFETCH(int, site);
    QFETCH(QString, control);
    QFETCH(QString, value);
    QFETCH(QString, stored);
    QFETCH(QString, after);
    const QString key = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const Values start{{"Site", QString::number(site)}};
    Values values;
    {
      Calculator first;
      open(first, start);
      QVERIFY(after == QStringLiteral("0") || control.startsWith(u"optOther") ||
              controlValue(first, qPrintable(control)) != after ||
              key == QStringLiteral("PayPalNonCreditCard"));
      setControl(first, qPrintable(control), value);
      first.trigger("mnuOptionsSaveSettings");
      values = first.settings.values;
    }
    QCOMPARE(values.value(key), stored);
    Calculator second;
    open(second, values);
    QCOMPARE(controlValue(second, qPrintable(control)), after);
  }

  void theSavedSiteComesBack_data() {
    QTest::addColumn<int>("site");
    for (int site = 1; site <= 4; ++site) QTest::addRow("site %d", site) << site;
  }

  void theSavedSiteComesBack() {
    QFETCH(int, site);
    Values values;
    QString title;
    {
      Calculator first(kPointLocale, site);
      open(first, {{"Site", "2"}});
      first.selectSite(site);
      first.trigger("mnuOptionsSaveSettings");
      values = first.settings.values;
      title = first.window().windowTitle();
    }
    Calculator second;
    open(second, values);
    QCOMPARE(second.window().windowTitle(), title);
    QCOMPARE(second.settings.values.value(QStringLiteral("Site")), QString::number(site));
  }

  void aWindowWithEverythingComesBack() {
    Calculator calculator;
    open(calculator, everythingSaved());
    for (auto box = kBoxes.cbegin(); box != kBoxes.cend(); ++box) {
      const bool isLost = box.key() == QStringLiteral("DutchMotors") ||      // saved under another name
                          box.key() == QStringLiteral("RegularRealEstate");  // ruled out by eBay Motors
      QVERIFY2(isTicked(calculator, box.value()) != isLost, box.value());
    }
    QVERIFY(isTicked(calculator, "optMotorcycle"));
    QVERIFY(!calculator.find<QWidget>("optMotorcycle").isHidden());
    QCOMPARE(chosen(calculator, "cboExtraPhotos"), 5);
    QVERIFY(calculator.find<QWidget>("cboExtraPhotos").isEnabled());
    QCOMPARE(calculator.shown("lblStartingPrice"), QStringLiteral("Buy-it-Now Price:"));
    QVERIFY(!calculator.find<QWidget>("txtNotes").isHidden());
    QCOMPARE(calculator.stacking.requests, QList<bool>{true});
    QVERIFY(calculator.isSilent());
  }

  void eBayMotorsOfMultipleItemsIsRestoredFromItsOtherName_data() {
    QTest::addColumn<QString>("motors");
    QTest::addColumn<QString>("vehicle");
    QTest::addColumn<bool>("isTicked");
    QTest::newRow("neither") << ""
                             << "" << false;
    QTest::newRow("as saved") << ""
                              << "1" << false;
    QTest::newRow("as no window saves it") << "1"
                                           << "0" << true;
    QTest::newRow("both") << "1"
                          << "1" << true;
  }

  void eBayMotorsOfMultipleItemsIsRestoredFromItsOtherName() {
    QFETCH(QString, motors);
    QFETCH(QString, vehicle);
    QFETCH(bool, isTicked);
    Calculator calculator;
    open(calculator, {{"DutchMotors", motors}, {"DutchVehicle", vehicle}});
    QCOMPARE(::isTicked(calculator, "chkEBayMotorsDutch"), isTicked);
  }

  void theGermanRateIsKeptByLeavingNotBySaving_data() {
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("kept");
    QTest::newRow("saving") << "mnuOptionsSaveSettings"
                            << "0.7854";
    QTest::newRow("leaving the site") << "mnuOptionsSiteEbay"
                                      << "0.9";
    QTest::newRow("closing the window") << "mnuFileExit"
                                        << "0.9";
  }

  void theGermanRateIsKeptByLeavingNotBySaving() {
    QFETCH(QString, by);
    QFETCH(QString, kept);
    const Values start{{"Site", "4"}, {"PayPalGermanyRate", "0.7854"}};
    Values values;
    {
      Calculator first;
      open(first, start);
      first.set("txtConversion", QStringLiteral("0.9"));
      first.trigger(qPrintable(by));
      values = first.settings.values;
    }
    values[QStringLiteral("Site")] = QStringLiteral("4");
    Calculator second;
    open(second, values);
    QCOMPARE(second.shown("txtConversion"), kept);
  }
};

QTEST_MAIN(SettingsSaveTest)
#include "settings_save_test.moc"
