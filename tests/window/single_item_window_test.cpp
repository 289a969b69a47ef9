#include <QtTest>

#include "calculator.h"

namespace {

/// How often the tab was recalculated: every recalculation first empties the listing fee, and a fee that
/// differs is shown anew; so it is made to differ before.
int recalculationsDuring(Calculator& calculator, const std::function<void()>& action) {
  auto& box = calculator.find<QLineEdit>("txtInsertionFee");
  int count = 0;
  const QString mark = QStringLiteral("mark");
  box.setText(mark);
  const auto connection = QObject::connect(&box, &QLineEdit::textChanged, [&](const QString& text) {
    if (text == mark) return;
    ++count;
    box.setText(mark);
  });
  action();
  QObject::disconnect(connection);
  return count;
}

}  // namespace

/// The Single Item tab, from the user's action to the shown fees.
class SingleItemWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_calculator = std::make_unique<Calculator>();
    m_calculator->load();
  }

  void aSellersListing() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("9.99"));
    m_calculator->enter("txtPrice", QStringLiteral("25"));
    m_calculator->tick("chkGallery");
    m_calculator->tick("chkBold");
    // 0.35 to list, 0.25 and 1.00 for the features, 25 x 5.25 % = 1.3125
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"0.35", "1.25", "1.31", "2.91"}));
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("25.00"));
    QVERIFY(m_calculator->window().IsValidRegular());
  }

  void everyFeatureOfTheUSSiteIsChargedAtOnce_data() {
    QTest::addColumn<QString>("price");
    const QList<std::pair<const char*, const char*>> prices{{"chkSubTitleSingleItem", "0.50"},
                                                            {"chkListingDesigner", "0.10"},
                                                            {"chkScheduled", "0.10"},
                                                            {"chkSlideshow", "0.75"},
                                                            {"chkSupersizePhotos", "0.75"},
                                                            {"chkExtraPhotos", "0.15"},
                                                            {"chkBIN", "0.05"},
                                                            {"chkTenDayAuction", "0.20"},
                                                            {"chkFeaturedCategory", "19.95"},
                                                            {"chkFeatured", "39.95"},
                                                            {"chkGallery", "0.25"},
                                                            {"chkHighlighted", "5.00"},
                                                            {"chkBold", "1.00"},
                                                            {"chkGiftIcon", "0.25"}};
    for (const auto& [box, price] : prices) QTest::newRow(box) << QString::fromLatin1(price);
  }

  void everyFeatureOfTheUSSiteIsChargedAtOnce() {
    QFETCH(QString, price);
    m_calculator->tick(QTest::currentDataTag());
    QCOMPARE(m_calculator->shown("txtExtras"), price);
    m_calculator->untick(QTest::currentDataTag());
    QCOMPARE(m_calculator->shown("txtExtras"), QStringLiteral("0.00"));
  }

  void twoCategoriesDoubleTheListingFee() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("500"));
    m_calculator->tick("chkTwoCategories");
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("9.60"));
  }

  void aClosingBidBelowTheOpeningBidIsRaised() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("10"));
    m_calculator->enter("txtPrice", QStringLiteral("5"));
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("10.00"));
  }

  void aReserveThatIsNotMetIsCharged() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtPrice", QStringLiteral("50"));
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    QVERIFY(!m_calculator->window().ItemSold());
    // 2.40 to list at 150.00, 2.00 for the reserve
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"4.40", "0.00", "", "4.40"}));
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("50.00"));
    m_calculator->leave(
        "txtPrice");  // only passing through the closing bid raises it: the item counts as sold
    QVERIFY(m_calculator->window().ItemSold());
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"2.40", "0.00", "4.75", "7.15"}));
  }

  void aReserveThatIsMetIsNotCharged() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    m_calculator->enter("txtPrice", QStringLiteral("150"));
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"2.40", "0.00", "4.75", "7.15"}));
  }

  void anItemThatDidNotSellHasNoClosingBid() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("9.99"));
    m_calculator->enter("txtPrice", QStringLiteral("25"));
    m_calculator->tick("chkDidNotSell");
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("0.00"));
    QVERIFY(!m_calculator->find<QLineEdit>("txtPrice").isEnabled());
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"0.35", "0.00", "", "0.35"}));
    m_calculator->tick("chkGallery");  // every later recalculation keeps it so
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("0.00"));
    m_calculator->untick("chkDidNotSell");
    QVERIFY(m_calculator->find<QLineEdit>("txtPrice").isEnabled());
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("9.99"));
  }

  void anUnsoldItemWithAReserveStaysUnsoldWhenUnticked() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    m_calculator->tick("chkDidNotSell");
    m_calculator->untick("chkDidNotSell");
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("0.00"));
    QVERIFY(!m_calculator->window().ItemSold());
  }

  void anEmptyReserveOfAnUnsoldItemIsAReserveOfNothing() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->tick("chkDidNotSell");
    letItSettle();
    QVERIFY(m_calculator->isSilent());
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"1.00", "0.00", "", "1.00"}));
  }

  void didNotSellRecalculatesOnce() {
    m_calculator->enter("txtPrice", QStringLiteral("25"));
    QCOMPARE(recalculationsDuring(*m_calculator, [this] { m_calculator->tick("chkDidNotSell"); }), 1);
  }

  void galleryFeaturedDependsOnTheGallery() {
    auto& featured = m_calculator->find<QCheckBox>("chkGalleryFeatured");
    const auto& line = m_calculator->find<QFrame>("linHorizontalLineToGalFeatured");
    m_calculator->tick("chkGallery");
    QVERIFY(featured.isEnabled() && line.isEnabled());
    m_calculator->tick("chkGalleryFeatured");
    QCOMPARE(m_calculator->shown("txtExtras"), QStringLiteral("19.95"));
    QCOMPARE(recalculationsDuring(*m_calculator, [this] { m_calculator->untick("chkGallery"); }), 2);
    QVERIFY(!featured.isChecked() && !featured.isEnabled() && !line.isEnabled());
  }

  void vehiclesDependOnMotors() {
    const auto& vehicle = m_calculator->find<QCheckBox>("chkVehicle");
    const auto& motorcycle = m_calculator->find<QRadioButton>("optMotorcycle");
    m_calculator->tick("chkRealEstate");
    m_calculator->tick("chkMotors");
    QVERIFY(vehicle.isEnabled() && motorcycle.isHidden());
    QVERIFY(!m_calculator->find<QCheckBox>("chkRealEstate").isChecked());
    QVERIFY(!m_calculator->find<QCheckBox>("chkRealEstate").isEnabled());
    QCOMPARE(m_calculator->shown("chkGiftIcon"), QStringLiteral("Listing Icon"));
    m_calculator->tick("chkVehicle");
    QVERIFY(!motorcycle.isHidden());
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("40.00"));
    m_calculator->select("optMotorcycle");
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("30.00"));
    m_calculator->untick("chkMotors");
    QVERIFY(!vehicle.isEnabled() && !vehicle.isChecked() && motorcycle.isHidden());
    QVERIFY(m_calculator->find<QCheckBox>("chkRealEstate").isEnabled());
    QCOMPARE(m_calculator->shown("chkGiftIcon"), QStringLiteral("Gift Services"));
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.00"));
  }

  void theVehicleOptionsGoWithTheVehicle() {
    m_calculator->tick("chkMotors");
    m_calculator->tick("chkVehicle");
    m_calculator->untick("chkVehicle");
    QVERIFY(m_calculator->find<QRadioButton>("optMotorcycle").isHidden());
  }

  void anOptionRecalculatesOnceForThePair() {
    m_calculator->tick("chkMotors");
    m_calculator->tick("chkVehicle");
    QCOMPARE(recalculationsDuring(*m_calculator, [this] { m_calculator->select("optMotorcycle"); }), 1);
  }

  void realEstateShowsItsFormatsAndOptions() {
    const auto& formats = m_calculator->find<QComboBox>("cboRealEstateType");
    QVERIFY(formats.isHidden());
    m_calculator->tick("chkRealEstate");
    QVERIFY(!formats.isHidden());
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("100.00"));
    m_calculator->choose("cboRealEstateType", 1);
    m_calculator->select("optTimeshare");
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("50.00"));
    m_calculator->tick("chkTwoCategories");
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("100.00"));
    m_calculator->untick("chkRealEstate");
    QVERIFY(formats.isHidden() && m_calculator->find<QRadioButton>("optTimeshare").isHidden());
  }

  void thePriceLabelFollowsBothLists() {
    QCOMPARE(m_calculator->shown("lblStartingPrice"), QStringLiteral("Op&ening Bid:"));
    m_calculator->choose("cboIsReserve", 1);
    QCOMPARE(m_calculator->shown("lblStartingPrice"), QStringLiteral("R&eserve Price:"));
    m_calculator->choose("cboSingleItemType", 1);
    QCOMPARE(m_calculator->shown("lblStartingPrice"), QStringLiteral("Buy-it-Now Price:"));
    QVERIFY(m_calculator->find<QComboBox>("cboIsReserve").isHidden());
    m_calculator->choose("cboSingleItemType", 0);
    QCOMPARE(m_calculator->shown("lblStartingPrice"), QStringLiteral("R&eserve Price:"));
    QVERIFY(!m_calculator->find<QComboBox>("cboIsReserve").isHidden());
  }

  void aHiddenReserveStillCountsForAFixedPrice() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->choose("cboSingleItemType", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    m_calculator->tick("chkDidNotSell");
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("4.40"));
  }

  void extraPicturesEnableTheirList() {
    auto& list = m_calculator->find<QComboBox>("cboExtraPhotos");
    QVERIFY(!list.isEnabled() && !list.isHidden());
    QCOMPARE(list.backgroundRole(), QPalette::Button);
    m_calculator->tick("chkExtraPhotos");
    QVERIFY(list.isEnabled());
    QCOMPARE(list.backgroundRole(), QPalette::Base);
    m_calculator->choose("cboExtraPhotos", 5);
    QCOMPARE(m_calculator->shown("txtExtras"), QStringLiteral("1.00"));
    m_calculator->untick("chkExtraPhotos");
    QVERIFY(!list.isEnabled() && !list.isHidden());
  }

  void clearAllEmptiesTheTab() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    for (const char* box : {"chkGallery", "chkGalleryFeatured", "chkTwoCategories", "chkMotors", "chkVehicle",
                            "chkDidNotSell", "chkSubTitleSingleItem", "chkExtraPhotos"}) {
      m_calculator->tick(box);
    }
    m_calculator->click("cmdClearAll");
    QCOMPARE(m_calculator->singleItemFees(), QStringList(4, QString()));
    QCOMPARE(m_calculator->shown("txtStartingPrice") + m_calculator->shown("txtPrice"), QString());
    const auto* page = &m_calculator->find<QWidget>("tabSingleItem");
    for (const QCheckBox* box : page->findChildren<QCheckBox*>())
      QVERIFY2(!box->isChecked(), qPrintable(box->objectName()));
    QCOMPARE(m_calculator->find<QComboBox>("cboIsReserve").currentIndex(), 1);
    QVERIFY(!m_calculator->window().IsValidRegular());
  }

  void siteRulesReachTheTab() {
    m_calculator->tick("chkGiftIcon");
    m_calculator->tick("chkListingDesigner");
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->selectSite(4);
    for (const char* box :
         {"chkGiftIcon", "chkListingDesigner", "chkDutchListingDesigner", "chkDutchGreatGift"}) {
      QVERIFY2(!m_calculator->find<QCheckBox>(box).isEnabled(), box);
      QVERIFY2(!m_calculator->find<QCheckBox>(box).isChecked(), box);
    }
    QVERIFY(m_calculator->find<QComboBox>("cboIsReserve").isHidden());
    QCOMPARE(m_calculator->find<QComboBox>("cboIsReserve").currentIndex(), 0);
    QCOMPARE(m_calculator->shown("lblStartingPrice"), QStringLiteral("Op&ening Bid:"));
    m_calculator->choose("cboSingleItemType", 1);
    m_calculator->choose("cboSingleItemType", 0);
    QVERIFY(m_calculator->find<QComboBox>("cboIsReserve").isHidden());
    m_calculator->selectSite(1);
    QVERIFY(m_calculator->find<QCheckBox>("chkGiftIcon").isEnabled());
    QVERIFY(!m_calculator->find<QCheckBox>("chkGiftIcon").isChecked());
    QVERIFY(!m_calculator->find<QComboBox>("cboIsReserve").isHidden());
  }

  void vehicleOptionsAreShownOnTwoSites_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("eBay.com") << 1 << true;
    QTest::newRow("UK") << 2 << false;
    QTest::newRow("Canada") << 3 << false;
    QTest::newRow("Germany") << 4 << true;
  }

  void vehicleOptionsAreShownOnTwoSites() {
    QFETCH(int, site);
    QFETCH(bool, isShown);
    m_calculator->selectSite(site);
    m_calculator->tick("chkMotors");
    m_calculator->tick("chkVehicle");
    QCOMPARE(!m_calculator->find<QRadioButton>("optMotorcycle").isHidden(), isShown);
    QCOMPARE(!m_calculator->find<QFrame>("linHorizontalLineToMotorcycle").isHidden(), isShown);
  }

  void everyCountryReadsItsOwnNumbers_data() {
    QTest::addColumn<NumberLocale>("locale");
    QTest::addColumn<QString>("opening");
    QTest::addColumn<QString>("closing");
    QTest::addColumn<QStringList>("fees");
    QTest::newRow("en-US") << kPointLocale << "9.99"
                           << "1,250.00" << QStringList{"0.35", "0.00", "31.88", "32.23"};
    QTest::newRow("de-DE") << kGermanLocale << "9,99"
                           << "1.250,00" << QStringList{"0,35", "0,00", "31,88", "32,23"};
    QTest::newRow("de-CH") << kSwissLocale << "9.99" << QStringLiteral("1’250.00")
                           << QStringList{"0.35", "0.00", "31.88", "32.23"};
    QTest::newRow("fr-FR") << kFrenchLocale << "9,99" << QStringLiteral("1\u202F250,00")
                           << QStringList{"0,35", "0,00", "31,88", "32,23"};
    QTest::newRow("a point from the keypad") << kGermanLocale << "9.99"
                                             << "1250.00" << QStringList{"0,35", "0,00", "31,88", "32,23"};
  }

  // 25 x 5.25 % + 975 x 2.75 % + 250 x 1.5 % = 31.875
  void everyCountryReadsItsOwnNumbers() {
    QFETCH(NumberLocale, locale);
    QFETCH(QString, opening);
    QFETCH(QString, closing);
    QFETCH(QStringList, fees);
    Calculator calculator(locale);
    calculator.load();
    calculator.enter("txtStartingPrice", opening);
    calculator.enter("txtPrice", closing);
    QCOMPARE(calculator.singleItemFees(), fees);
    QCOMPARE(calculator.shown("txtPrice"),
             QStringLiteral("1250.00").replace(u'.', QString::fromStdString(locale.decimal)));
    calculator.tick("chkDidNotSell");
    QCOMPARE(calculator.shown("txtPrice"),
             QStringLiteral("0.00").replace(u'.', QString::fromStdString(locale.decimal)));
  }

  void thePictureCountNeedsTheCalculator() {
    m_calculator->trigger("mnuFileExit");  // from here on there is none
    m_calculator->set("txtPrice", QStringLiteral("5"));
    m_calculator->find<QComboBox>("cboExtraPhotos").setCurrentIndex(3);
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("5"));
    m_calculator->find<QCheckBox>("chkBold").toggle();
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("5.00"));
  }

 private:
  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(SingleItemWindowTest)
#include "single_item_window_test.moc"
