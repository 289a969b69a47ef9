#include <QtTest>

#include "calculator.h"

/// The Multiple Items tab, from the user's action to the shown fees.
class MultipleItemsWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_calculator = std::make_unique<Calculator>();
    m_calculator->load();
    m_calculator->find<QTabWidget>("SSTab1").setCurrentIndex(1);
  }

  void aSellersListing() {
    enterAll("10", "0.50", "10", "1.00");
    m_calculator->tick("chkDutchBold");
    // 0.35 to list 5.00 worth of items, 1.00 for bold, 10 x 1.00 x 5.25 % = 0.525 from single precision: 0.52
    QCOMPARE(fees(), (QStringList{"1.87", "1.00", "10.00", "0.19"}));
    QVERIFY(m_calculator->isSilent());
  }

  void withItemsLeftOverEveryWinnerPaysTheOpeningPrice() {
    enterAll("10", "5.00", "4", "7.00");
    QCOMPARE(m_calculator->shown("txtDutchFinalPrice"), QStringLiteral("5.00"));
    QCOMPARE(m_calculator->shown("txtTotalDutchAuctionSales"), QStringLiteral("20.00"));
  }

  void noMoreItemsSellThanWereOffered() {
    enterAll("3", "1.00", "5", "1.00");
    QCOMPARE(m_calculator->shown("txtDutchItemsSold"), QStringLiteral("3"));
  }

  void withNothingSoldThereIsNoFeePerItem() {
    enterAll("3", "1.00", "0", "1.00");
    QCOMPARE(m_calculator->shown("txtDutchCostPerItem"), QStringLiteral("N/A"));
  }

  void anIncompleteTabChangesNoFees() {
    enterAll("2", "1.00", "2", "2.00");
    const QStringList before = fees();
    m_calculator->set("txtDutchItemsOffered", QString());
    m_calculator->tick("chkDutchHighlight");
    QCOMPARE(fees(), before);
    m_calculator->set("txtDutchOpeningPrice", QStringLiteral("1.5"));
    m_calculator->click("cmdDutchCalculate");
    QCOMPARE(m_calculator->shown("txtDutchOpeningPrice"), QStringLiteral("1.50"));
  }

  void aPriceOnNoStepOfTheLadderCostsNothingAndNoMessage_data() {
    QTest::addColumn<bool>("isTwoCategories");
    QTest::addColumn<QString>("afterwards");
    QTest::newRow("one category") << false << "0.46";
    QTest::newRow("two categories") << true << "0.76";
  }

  void aPriceOnNoStepOfTheLadderCostsNothingAndNoMessage() {
    QFETCH(bool, isTwoCategories);
    QFETCH(QString, afterwards);
    m_calculator->tick("chkDutchTwoCategories", isTwoCategories);
    m_calculator->enter("txtDutchItemsOffered", QStringLiteral("3"));
    m_calculator->enter("txtDutchItemsSold", QStringLiteral("3"));
    m_calculator->enter("txtDutchFinalPrice", QStringLiteral("1.00"));
    m_calculator->enter("txtDutchOpeningPrice", QStringLiteral("0.3333"));
    letItSettle();
    QVERIFY(m_calculator->isSilent());
    QCOMPARE(m_calculator->shown("txtDutchFees"), QStringLiteral("0.16"));
    QCOMPARE(m_calculator->shown("txtDutchCostPerItem"), QStringLiteral("0.05"));
    QCOMPARE(m_calculator->shown("txtDutchOpeningPrice"), QStringLiteral("0.33"));
    m_calculator->click("cmdDutchCalculate");
    QCOMPARE(m_calculator->shown("txtDutchFees"), afterwards);
  }

  void tooManyItemsAreOneMessageAndChangeNoFees() {
    enterAll("2", "1.00", "2", "2.00");
    const QStringList before = fees();
    m_calculator->enter("txtDutchItemsOffered", QStringLiteral("32768"));
    letItSettle();
    QVERIFY(m_calculator->hasOneError());
    QVERIFY(m_calculator->errors.shown[0].contains(QStringLiteral("32768")));
    QCOMPARE(fees(), before);
    QCOMPARE(m_calculator->shown("txtDutchItemsOffered"), QStringLiteral("32768"));
    m_calculator->type("txtDutchItemsOffered", QStringLiteral("32767"));
    letItSettle();
    m_calculator->errors.shown.clear();
    m_calculator->leave("txtDutchItemsOffered");
    letItSettle();
    QVERIFY(m_calculator->isSilent());
  }

  void leavingItemsOffered_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("held");
    QTest::newRow("one item is no multiple-item listing") << "1"
                                                          << "2";
    QTest::newRow("nor is none") << "0"
                                 << "2";
    QTest::newRow("01 is not looked through") << "01"
                                              << "01";
    QTest::newRow("00 neither") << "00"
                                << "00";
    QTest::newRow("two") << "2"
                         << "2";
    QTest::newRow("empty") << ""
                           << "";
  }

  void leavingItemsOffered() {
    QFETCH(QString, typed);
    QFETCH(QString, held);
    m_calculator->enter("txtDutchItemsOffered", typed);
    QCOMPARE(m_calculator->shown("txtDutchItemsOffered"), held);
  }

  void itemsSoldAreWrittenBackAsANumber() {
    enterAll("10", "1.00", "05", "1.00");
    QCOMPARE(m_calculator->shown("txtDutchItemsSold"), QStringLiteral("5"));
  }

  void leavingTheOpeningPrice_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("held");
    QTest::newRow("0 becomes empty") << "0"
                                     << "";
    QTest::newRow("a lone point becomes empty") << "."
                                                << "";
    QTest::newRow("less than a cent stays, and is formatted") << "0.004"
                                                              << "0.00";
    QTest::newRow("a number is formatted") << "1.5"
                                           << "1.50";
  }

  void leavingTheOpeningPrice() {
    QFETCH(QString, typed);
    QFETCH(QString, held);
    m_calculator->enter("txtDutchOpeningPrice", typed);
    QCOMPARE(m_calculator->shown("txtDutchOpeningPrice"), held);
  }

  void aLowestBidOfZeroPassesThroughADollarText() {
    auto& box = m_calculator->find<QLineEdit>("txtDutchFinalPrice");
    m_calculator->type("txtDutchFinalPrice", QStringLiteral("0"));
    QStringList history;
    connect(&box, &QLineEdit::textChanged, this, [&history](const QString& text) { history << text; });
    m_calculator->leave("txtDutchFinalPrice");
    QCOMPARE(history.value(0), QStringLiteral("$0.00"));
    QCOMPARE(box.text(), QStringLiteral("0.00"));
  }

  void leavingTheLowestBidEmptyWipesTheSingleItemsOpeningBid() {
    m_calculator->set("txtStartingPrice", QStringLiteral("9.99"));
    m_calculator->set("txtInsertionFee", QStringLiteral("0.35"));
    m_calculator->enter("txtDutchFinalPrice", QString());
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QString());
    QCOMPARE(m_calculator->shown("txtInsertionFee"), QStringLiteral("0.35"));
  }

  void leavingALonePointAsLowestBidWipesTheSingleItemsOpeningBidAndStays() {
    m_calculator->set("txtStartingPrice", QStringLiteral("9.99"));
    m_calculator->enter("txtDutchFinalPrice", QStringLiteral("."));
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QString());
    QCOMPARE(m_calculator->shown("txtDutchFinalPrice"), QStringLiteral("."));
  }

  void aNegativeLowestBidClearsTheSingleItemsOpeningBidNotItself() {
    m_calculator->set("txtStartingPrice", QStringLiteral("9.99"));
    m_calculator->set("txtDutchFinalPrice", QStringLiteral("-5"));
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QString());
    QCOMPARE(m_calculator->shown("txtDutchFinalPrice"), QStringLiteral("-5"));
  }

  void aNegativeOtherEntryClearsItself() {
    for (const char* box : {"txtDutchOpeningPrice", "txtDutchItemsOffered", "txtDutchItemsSold"}) {
      m_calculator->set(box, QStringLiteral("-5"));
      QCOMPARE(m_calculator->shown(box), QString());
    }
  }

  void countsTakeDigitsOnly() {
    m_calculator->type("txtDutchItemsOffered", QStringLiteral("1-2.3,4x5"));
    QCOMPARE(m_calculator->shown("txtDutchItemsOffered"), QStringLiteral("12345"));
  }

  void everyFeatureOfTheUSSiteIsCharged_data() {
    QTest::addColumn<QString>("price");
    const QList<std::pair<const char*, const char*>> prices{
        {"chkDutchSubtitle", "0.50"},      {"chkDutchListingDesigner", "0.10"},
        {"chkDutchScheduled", "0.10"},     {"chkExtraPicturesDutch", "0.15"},
        {"chkSupersizeDutch", "0.75"},     {"chkSlideshowDutch", "0.75"},
        {"chkDutchTenDayAuction", "0.20"}, {"chkDutchGreatGift", "0.25"},
        {"chkDutchBold", "1.00"},          {"chkDutchHighlight", "5.00"},
        {"chkDutchGallery", "0.25"},       {"chkDutchHomePageFeatured", "79.95"},
        {"chkDutchFeaturedPlus", "19.95"}};
    for (const auto& [box, price] : prices) QTest::newRow(box) << QString::fromLatin1(price);
  }

  void everyFeatureOfTheUSSiteIsCharged() {
    QFETCH(QString, price);
    enterAll("2", "1.00", "2", "2.00");
    m_calculator->tick(QTest::currentDataTag());
    QCOMPARE(m_calculator->shown("txtExtraFeaturesDutch"), price);
  }

  void galleryFeaturedDependsOnTheGalleryAndBothAreCharged() {
    enterAll("2", "1.00", "2", "2.00");
    auto& featured = m_calculator->find<QCheckBox>("chkDutchGalleryFeatured");
    const auto& line = m_calculator->find<QFrame>("linVerticalLineToDutchGalFeatured");
    m_calculator->tick("chkDutchGallery");
    QVERIFY(featured.isEnabled() && line.isEnabled());
    m_calculator->tick("chkDutchGalleryFeatured");
    QCOMPARE(m_calculator->shown("txtExtraFeaturesDutch"), QStringLiteral("20.20"));
    m_calculator->untick("chkDutchGallery");
    QVERIFY(!featured.isChecked() && !featured.isEnabled() && !line.isEnabled());
    QCOMPARE(m_calculator->shown("txtExtraFeaturesDutch"), QStringLiteral("0.00"));
  }

  void motorsRenameTheGiftBox() {
    m_calculator->tick("chkEBayMotorsDutch");
    QCOMPARE(m_calculator->shown("chkDutchGreatGift"), QStringLiteral("Listing Icon"));
    m_calculator->untick("chkEBayMotorsDutch");
    QCOMPARE(m_calculator->shown("chkDutchGreatGift"), QStringLiteral("Gift Services"));
  }

  void extraPicturesEnableTheirList() {
    const auto& list = m_calculator->find<QComboBox>("cboExtraPicturesDutch");
    QVERIFY(!list.isEnabled() && !list.isHidden());
    m_calculator->tick("chkExtraPicturesDutch");
    QVERIFY(list.isEnabled());
    m_calculator->untick("chkExtraPicturesDutch");
    QVERIFY(!list.isEnabled() && !list.isHidden());
  }

  void theTypeOfTheListingChangesTheLabelOnly() {
    enterAll("2", "1.00", "2", "2.00");
    const QStringList before = fees();
    m_calculator->choose("cboTypeOfMultiItemListing", 1);
    QCOMPARE(m_calculator->shown("lblDutchOpeningPrice"), QStringLiteral("Buy-it-Now Price:"));
    QCOMPARE(fees(), before);
    m_calculator->choose("cboTypeOfMultiItemListing", 0);
    QCOMPARE(m_calculator->shown("lblDutchOpeningPrice"), QStringLiteral("Opening Bid:"));
  }

  void clearAllLeavesSomeChoicesAlone() {
    enterAll("2", "1.00", "2", "2.00");
    const QStringList kept{"chkDutchTwoCategories", "chkDutchSubtitle", "chkDutchListingDesigner",
                           "chkEBayMotorsDutch"};
    const auto boxes = m_calculator->find<QWidget>("tabMultipleItems").findChildren<QCheckBox*>();
    m_calculator->tick("chkDutchGallery");
    for (QCheckBox* box : boxes) m_calculator->tick(qPrintable(box->objectName()));
    m_calculator->choose("cboExtraPicturesDutch", 3);
    m_calculator->click("cmdDutchClearAll");
    for (const QCheckBox* box : boxes) {
      QVERIFY2(box->isChecked() == kept.contains(box->objectName()), qPrintable(box->objectName()));
    }
    QCOMPARE(m_calculator->find<QComboBox>("cboExtraPicturesDutch").currentIndex(), 3);
    for (const QLineEdit* box : m_calculator->find<QWidget>("tabMultipleItems").findChildren<QLineEdit*>()) {
      QVERIFY2(box->text().isEmpty(), qPrintable(box->objectName()));
    }
  }

  void aCommaLocaleReadsItsOwnNumbers() {
    Calculator german(kGermanLocale, 4);
    german.load();
    german.find<QTabWidget>("SSTab1").setCurrentIndex(1);
    german.enter("txtDutchItemsOffered", QStringLiteral("10"));
    german.enter("txtDutchOpeningPrice", QStringLiteral("1,50"));
    german.enter("txtDutchItemsSold", QStringLiteral("10"));
    german.enter("txtDutchFinalPrice", QStringLiteral("2,00"));
    // 15.00 worth of items: 0.80; 10 x 2.00 x 5 % = 1.00
    QCOMPARE(german.shown("txtDutchFees"), QStringLiteral("1,80"));
    QCOMPARE(german.shown("txtTotalDutchAuctionSales"), QStringLiteral("20,00"));
    QCOMPARE(german.shown("txtDutchCostPerItem"), QStringLiteral("0,18"));
  }

 private:
  void enterAll(const char* offered, const char* opening, const char* sold, const char* lowest) {
    m_calculator->enter("txtDutchItemsOffered", QString::fromLatin1(offered));
    m_calculator->enter("txtDutchOpeningPrice", QString::fromLatin1(opening));
    m_calculator->enter("txtDutchItemsSold", QString::fromLatin1(sold));
    m_calculator->enter("txtDutchFinalPrice", QString::fromLatin1(lowest));
  }

  /// Total fees, features, total sales, fees per item.
  [[nodiscard]] QStringList fees() const {
    return {m_calculator->shown("txtDutchFees"), m_calculator->shown("txtExtraFeaturesDutch"),
            m_calculator->shown("txtTotalDutchAuctionSales"), m_calculator->shown("txtDutchCostPerItem")};
  }

  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(MultipleItemsWindowTest)
#include "multiple_items_window_test.moc"
