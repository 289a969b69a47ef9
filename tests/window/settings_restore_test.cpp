#include <QtTest>

#include "stored_window.h"

namespace {

// clang-format off
const QStringList kReads{
    "StayOnTop", "Notepad", "Site", "PayPalUKRate", "RegularReserve", "RegularType", "RegularNumeric",
    "RegularFeaturedCategory", "RegularFeatured", "RegularGallery", "RegularGalleryFeatured",
    "RegularHighlighted", "RegularBold", "RegularGift", "RegularRealEstate", "RegularTwoCategories",
    "RegularTenDayAuction", "RegularMotors", "RegularVehicle", "RegularMotorcycle", "RegularOtherVehicle",
    "RegularIsExtraPhotos", "RegularSupersize", "RegularSlideshow", "RegularNumExtraPhotos",
    "DutchItemsOffered", "DutchOpeningPrice", "DutchMotors", "DutchFeaturedPlus", "DutchFeatured",
    "DutchGallery", "DutchGalleryFeatured", "DutchHighlighted", "DutchBold", "DutchGift",
    "DutchTenDayAuction", "DutchIsExtraPhotos", "DutchSupersize", "DutchSlideshow", "DutchNumExtraPhotos",
    "PayPalCreditCard", "PayPalUKRate",
};
// clang-format on

}  // namespace

/// How the window opens on what is stored.
class SettingsRestoreTest : public QObject {
  Q_OBJECT

 private slots:
  void restoringNeverClears() {
    Calculator calculator;
    Values off;
    for (auto box = kBoxes.cbegin(); box != kBoxes.cend(); ++box) {
      off[box.key()] = QStringLiteral("0");
      auto& ticked = calculator.find<QCheckBox>(box.value());
      const QSignalBlocker blocker(ticked);
      if (box.key() != QStringLiteral("RegularRealEstate")) ticked.setChecked(true);  // cleared by the site
    }
    off[QStringLiteral("RegularOtherVehicle")] = QStringLiteral("0");
    open(calculator, off);
    for (auto box = kBoxes.cbegin(); box != kBoxes.cend(); ++box)
      QVERIFY2(isTicked(calculator, box.value()) != (box.key() == QStringLiteral("RegularRealEstate")),
               box.value());
    QVERIFY(isTicked(calculator, "optOtherVehicle"));
  }

  void theLaterOfTwoVehicleOptionsWins() {
    Calculator calculator;
    open(calculator, {{"RegularMotorcycle", "1"}, {"RegularOtherVehicle", "1"}});
    QVERIFY(isTicked(calculator, "optOtherVehicle"));
  }

  void onlyAOneIsATick_data() {
    QTest::addColumn<QString>("value");
    for (const char* value : {"0", "", "true", "01", "1.0", " 1", "1 ", "2", "-1", "on", "１"})
      QTest::addRow("\"%s\"", value) << QString::fromUtf8(value);
  }

  void onlyAOneIsATick() {
    QFETCH(QString, value);
    Values stored{
        {"StayOnTop", value}, {"Notepad", value}, {"RegularMotorcycle", value}, {"PayPalCreditCard", value}};
    for (const QString& key : kBoxes.keys()) stored[key] = value;
    Calculator calculator;
    open(calculator, stored);
    for (const char* box : kBoxes) QVERIFY2(!isTicked(calculator, box), box);
    QVERIFY(!isTicked(calculator, "optMotorcycle"));
    QVERIFY(isTicked(calculator, "optPayPalNonCreditCard"));
    QVERIFY(!calculator.find<QAction>("mnuOptionsOnTop").isChecked());
    QVERIFY(calculator.stacking.requests.isEmpty());
    QVERIFY(calculator.find<QWidget>("txtNotes").isHidden());
  }

  void anythingButAOneMeansECheck_data() {
    QTest::addColumn<QString>("creditCard");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("isCreditCard");
    QTest::newRow("missing") << QString() << "" << false;
    QTest::newRow("0") << "0"
                       << "1" << false;
    QTest::newRow("abc") << "abc"
                         << "" << false;
    QTest::newRow("1") << "1"
                       << "0" << true;
    QTest::newRow("1, and so is the other, which nobody reads") << "1"
                                                                << "1" << true;
    QTest::newRow("0, and so is the other") << "0"
                                            << "0" << false;
  }

  void anythingButAOneMeansECheck() {
    QFETCH(QString, creditCard);
    QFETCH(QString, other);
    QFETCH(bool, isCreditCard);
    Values stored{{"PayPalNonCreditCard", other}};
    if (!creditCard.isNull()) stored[QStringLiteral("PayPalCreditCard")] = creditCard;
    Calculator calculator;
    open(calculator, stored);
    QCOMPARE(isTicked(calculator, "optPayPalCreditCard"), isCreditCard);
    QCOMPARE(isTicked(calculator, "optPayPalNonCreditCard"), !isCreditCard);
  }

  void aStoredIndexChoosesInItsList_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("photos");
    QTest::newRow("nothing: the first count, the lists stay") << "" << 1 << 0;
    QTest::newRow("first") << "0" << 0 << 0;
    QTest::newRow("second") << "1" << 1 << 1;
    QTest::newRow("pack") << "5" << 1 << 5;
    for (const char* outside : {"6", "9", "-1", "abc", "1.5", "99999999999", "0x1"})
      QTest::newRow(outside) << outside << 1 << 2;
  }

  void aStoredIndexChoosesInItsList() {
    QFETCH(QString, stored);
    QFETCH(int, index);
    QFETCH(int, photos);
    Calculator calculator;
    for (const char* list : kLists) {
      auto& before = calculator.find<QComboBox>(list);
      const QSignalBlocker blocker(before);
      while (before.count() < 6) before.addItem(QStringLiteral("?"));
      before.setCurrentIndex(list == kLists["RegularType"] || list == kLists["RegularReserve"] ? 1 : 2);
    }
    Values values;
    for (const QString& key : kLists.keys()) values[key] = stored;
    open(calculator, values);
    QCOMPARE(chosen(calculator, "cboSingleItemType"), index);
    QCOMPARE(chosen(calculator, "cboIsReserve"), index);
    QCOMPARE(chosen(calculator, "cboExtraPhotos"), photos);
    QCOMPARE(chosen(calculator, "cboExtraPicturesDutch"), photos);
    QVERIFY(calculator.isSilent());
  }

  void theSiteHasTheLastWordOnWhatIsRestored_data() {
    QTest::addColumn<QString>("site");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("after");
    QTest::newRow("real estate on eBay.com") << "1"
                                             << "RegularRealEstate"
                                             << "chkRealEstate"
                                             << "1";
    QTest::newRow("real estate in Germany") << "4"
                                            << "RegularRealEstate"
                                            << "chkRealEstate"
                                            << "0";
    QTest::newRow("gift icon on eBay.com") << "1"
                                           << "RegularGift"
                                           << "chkGiftIcon"
                                           << "1";
    for (const char* site : {"2", "3", "4"}) {
      QTest::addRow("gift icon, site %s", site) << site << "RegularGift"
                                                << "chkGiftIcon"
                                                << "0";
      QTest::addRow("gift icons, site %s", site) << site << "DutchGift"
                                                 << "chkDutchGreatGift"
                                                 << "0";
    }
    QTest::newRow("reserve in the UK") << "2"
                                       << "RegularReserve"
                                       << "cboIsReserve"
                                       << "1";
    QTest::newRow("reserve in Germany") << "4"
                                        << "RegularReserve"
                                        << "cboIsReserve"
                                        << "0";
  }

  void theSiteHasTheLastWordOnWhatIsRestored() {
    QFETCH(QString, site);
    QFETCH(QString, key);
    QFETCH(QString, control);
    QFETCH(QString, after);
    Calculator calculator;
    open(calculator, {{"Site", site}, {key, "1"}, {"RegularNumeric", "10.00"}});
    QCOMPARE(controlValue(calculator, qPrintable(control)), after);
    const bool isReserve = key == QStringLiteral("RegularReserve") && after == u'1';
    QCOMPARE(calculator.shown("lblStartingPrice"),
             isReserve ? QStringLiteral("R&eserve Price:") : QStringLiteral("Op&ening Bid:"));
    QVERIFY(calculator.shown("txtInsertionFee") != QStringLiteral("0.00"));
  }

  void aRestoredEntryShowsItsFees_data() {
    QTest::addColumn<Values>("stored");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QStringList>("fees");  // listing fee, extras, final value fee, total
    const auto row = [](const char* name, const Values& stored, const char* label, const char* price,
                        const QStringList& fees) { QTest::newRow(name) << stored << label << price << fees; };
    row("third listing fee of eBay.com", {{"RegularNumeric", "10.00"}}, "Op&ening Bid:", "10.00",
        {"0.60", "0.00", "0.53", "1.13"});
    row("second listing fee of eBay.com", {{"RegularNumeric", "9.99"}}, "Op&ening Bid:", "9.99",
        {"0.35", "0.00", "0.52", "0.87"});
    row("with bold", {{"RegularNumeric", "10.00"}, {"RegularBold", "1"}}, "Op&ening Bid:", "10.00",
        {"0.60", "1.00", "0.53", "2.13"});
    row("third listing fee of the UK", {{"Site", "2"}, {"RegularNumeric", "10.00"}}, "Op&ening Bid:", "10.00",
        {"0.35", "0.00", "0.53", "0.88"});
    row("third listing fee of Germany", {{"Site", "4"}, {"RegularNumeric", "10.00"}},
        "Op&ening Bid:", "10.00", {"0.80", "0.00", "0.50", "1.30"});
    row("real estate that Germany does not have",
        {{"Site", "4"}, {"RegularNumeric", "10.00"}, {"RegularRealEstate", "1"}}, "Op&ening Bid:", "10.00",
        {"0.80", "0.00", "0.50", "1.30"});
    row("the German minimum", {{"Site", "4"}, {"RegularNumeric", "0.50"}}, "Op&ening Bid:", "1.00",
        {"0.25", "0.00", "0.05", "0.30"});
    row("a motorcycle",
        {{"RegularNumeric", "10.00"},
         {"RegularMotors", "1"},
         {"RegularVehicle", "1"},
         {"RegularMotorcycle", "1"}},
        "Op&ening Bid:", "10.00", {"30.00", "0.00", "25.00", "55.00"});
    row("another vehicle", {{"RegularNumeric", "10.00"}, {"RegularMotors", "1"}, {"RegularVehicle", "1"}},
        "Op&ening Bid:", "10.00", {"40.00", "0.00", "40.00", "80.00"});
    row("a fixed price", {{"RegularNumeric", "10.00"}, {"RegularType", "1"}}, "Buy-it-Now Price:", "10.00",
        {"0.60", "0.00", "0.53", "1.13"});
  }

  void aRestoredEntryShowsItsFees() {
    QFETCH(Values, stored);
    QFETCH(QString, label);
    QFETCH(QString, price);
    QFETCH(QStringList, fees);
    Calculator calculator;
    open(calculator, stored);
    QCOMPARE(calculator.shown("lblStartingPrice"), label);
    QCOMPARE(calculator.shown("txtStartingPrice"), price);
    QCOMPARE(calculator.singleItemFees(), fees);
  }

  void theGermanMinimumIsWrittenAsTheUserWritesNumbers() {
    Calculator calculator(kGermanLocale);
    open(calculator, {{"Site", "4"}, {"RegularNumeric", "0,50"}});
    QCOMPARE(calculator.shown("txtStartingPrice"), QStringLiteral("1,00"));
    QCOMPARE(calculator.shown("txtInsertionFee"), QStringLiteral("0,25"));
  }

  void multipleItemsAreRecalculatedToo() {
    Calculator calculator;
    open(calculator, {{"DutchItemsOffered", "10"}, {"DutchOpeningPrice", "10"}});
    QCOMPARE(calculator.shown("txtDutchOpeningPrice"), QStringLiteral("10.00"));
    QCOMPARE(calculator.shown("txtDutchFees"), QString());  // nothing is said of items sold
  }

  void vehicleAndMotorcycleAreRestored() {
    Calculator calculator;
    open(calculator, {{"RegularMotors", "1"}, {"RegularVehicle", "1"}, {"RegularMotorcycle", "1"}});
    for (const char* name : {"chkMotors", "chkVehicle", "optMotorcycle"})
      QVERIFY2(isTicked(calculator, name) && calculator.find<QWidget>(name).isVisible(), name);
    QVERIFY(!calculator.find<QWidget>("chkRealEstate").isEnabled());
    QCOMPARE(calculator.shown("chkGiftIcon"), QStringLiteral("Listing Icon"));
  }

  void theRestoreReadsInThisOrder() {
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Site")] = QStringLiteral("2");
    calculator.settings.calls.clear();
    calculator.load();
    QStringList reads = calculator.settings.calls;
    QCOMPARE(reads.takeFirst(), QStringLiteral("read Site"));  // is it the first run?
    reads.replaceInStrings(QStringLiteral("read "), QString());
    // Whether the rates of the other sites are looked at is nobody's business, nor is reading a key twice.
    reads.removeAll(QStringLiteral("PayPalCanadaRate"));
    reads.removeAll(QStringLiteral("PayPalGermanyRate"));
    reads.erase(std::unique(reads.begin(), reads.end()), reads.end());
    QCOMPARE(reads, kReads);
  }

  void theStoredRateIsOfItsSite_data() {
    QTest::addColumn<QString>("site");
    QTest::addColumn<QString>("rate");
    QTest::newRow("eBay.com shows none") << "1"
                                         << "";
    QTest::newRow("UK") << "2"
                        << "0.2";
    QTest::newRow("Canada") << "3"
                            << "0.3";
    QTest::newRow("Germany") << "4"
                             << "0.4";
  }

  void theStoredRateIsOfItsSite() {
    QFETCH(QString, site);
    QFETCH(QString, rate);
    Calculator calculator;
    open(
        calculator,
        {{"Site", site}, {"PayPalUKRate", "0.2"}, {"PayPalCanadaRate", "0.3"}, {"PayPalGermanyRate", "0.4"}});
    QCOMPARE(calculator.shown("txtConversion"), rate);
  }
};

QTEST_MAIN(SettingsRestoreTest)
#include "settings_restore_test.moc"
