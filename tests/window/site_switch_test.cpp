#include <array>
#include <QtTest>

#include "calculator.h"

namespace {

/// What one site shows, control by control.
struct SiteLook {
  int site;
  const char* menuItem;
  const char* title;
  const char* buyer;
  const char* currency;
  bool hasRate;
  bool hasEscrow;
  bool isUS;
  bool hasReserve;
  bool hasRealEstate;
  QList<int> boldHeadings;
};

// clang-format off
const std::array<SiteLook, 4> kLooks{{
    {1, "mnuOptionsSiteEbay",    "Tessaloom for eBay.com",     "Buyer outside USA",        "$",   false, false, true,  true,  true,  {0, 4}},
    {2, "mnuOptionsSiteUK",      "Tessaloom for eBay UK",      "Buyer outside UK",         "GBP", true,  false, false, true,  true,  {2}},
    {3, "mnuOptionsSiteCanada",  "Tessaloom for eBay Canada (items listed in C$)",
                                                               "Buyer outside Canada/USA", "C$",  true,  false, false, true,  true,  {1}},
    {4, "mnuOptionsSiteGermany", "Tessaloom for eBay Germany", "Buyer outside Germany",    "EUR", true,  true,  false, false, false, {3}},
}};
// clang-format on

const SiteLook& lookOf(int site) { return kLooks.at(static_cast<std::size_t>(site - 1)); }

void compareLook(const Calculator& calculator, const frmeBayFees& window, const SiteLook& look) {
  QCOMPARE(window.windowTitle(), QString::fromLatin1(look.title));
  QCOMPARE(calculator.shown("chkInternationalPayPal"), QString::fromLatin1(look.buyer));
  for (const SiteLook& each : kLooks) {
    QCOMPARE(calculator.find<QAction>(each.menuItem).isChecked(), each.site == look.site);
  }
  for (int number = 1; number <= 16; ++number) {
    if (number == 13) continue;
    QCOMPARE(calculator.shown(qPrintable(QStringLiteral("lblCurrency%1").arg(number))),
             QString::fromLatin1(look.currency));
  }
  QCOMPARE(calculator.shown("lblOneDollarEquals"), QStringLiteral("One US$ ="));
  for (const char* name : {"lblOneDollarEquals", "txtConversion", "lblCurrency14", "lblCheckRates"}) {
    QVERIFY2(calculator.find<QWidget>(name).isHidden() != look.hasRate, name);
  }
  QCOMPARE(calculator.find<QLabel>("lblTreuhandservice").isHidden(), !look.hasEscrow);
  for (const char* name :
       {"chkGiftIcon", "chkListingDesigner", "chkDutchListingDesigner", "chkDutchGreatGift"}) {
    QVERIFY2(calculator.find<QCheckBox>(name).isEnabled() == look.isUS, name);
  }
  QCOMPARE(calculator.find<QCheckBox>("chkEBayMotorsDutch").isHidden(), !look.isUS);
  QCOMPARE(calculator.find<QComboBox>("cboIsReserve").isHidden(), !look.hasReserve);
  QCOMPARE(calculator.find<QCheckBox>("chkRealEstate").isEnabled(), look.hasRealEstate);
  for (int index = 0; index < 5; ++index) {
    const auto& heading = calculator.find<QLabel>(qPrintable(QStringLiteral("lblCountry_%1").arg(index)));
    QCOMPARE(heading.font().bold(), look.boldHeadings.contains(index));
  }
}

/// Forty fillings of the entry boxes, empty and filled, in no order of rising value.
QList<QStringList> fillings() {
  const QStringList prices{"", "0.01", "0.995", "9.99", "25.00", "1000", "99999.99", "."};
  const QStringList counts{"", "2", "10", "01", "32767"};
  QList<QStringList> all;
  for (int at = 0; at < 40; ++at) {
    const auto price = [&](int step) { return prices[(at * step + step) % prices.size()]; };
    const auto count = [&](int step) { return counts[(at * step + step) % counts.size()]; };
    all.append({price(1), price(3), price(5), price(7), price(2), count(1), count(2)});
  }
  return all;
}

}  // namespace

/// Switching among the four sites, with every control that it touches.
class SiteSwitchTest : public QObject {
  Q_OBJECT

 private slots:
  void everySwitchDressesTheWindow_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (int from = 1; from <= 4; ++from) {
      for (int to = 1; to <= 4; ++to) QTest::addRow("from %d to %d", from, to) << from << to;
    }
  }

  void everySwitchDressesTheWindow() {
    QFETCH(int, from);
    QFETCH(int, to);
    Calculator calculator(kPointLocale, from);
    calculator.load();
    calculator.selectSite(to);
    compareLook(calculator, calculator.window(), lookOf(to));
  }

  void everySwitchRecalculatesAllTabs_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QStringList>("fees");
    // listing and final value fee of 100.00; total of 10 items at 10.00, all sold; fee of a payment of
    // 1000.00
    QTest::newRow("eBay.com") << 1 << QStringList{"2.40", "3.38", "7.65", "29.30"};
    QTest::newRow("UK") << 2 << QStringList{"2.00", "3.85", "7.25", "29.16"};
    QTest::newRow("Canada") << 3 << QStringList{"3.30", "3.63", "8.55", "29.40"};
    QTest::newRow("Germany") << 4 << QStringList{"3.20", "4.50", "8.20", "29.24"};
  }

  void everySwitchRecalculatesAllTabs() {
    QFETCH(int, site);
    QFETCH(QStringList, fees);
    Calculator calculator(kPointLocale, site == 1 ? 2 : 1);
    calculator.load();
    calculator.set("txtStartingPrice", QStringLiteral("100"));
    calculator.set("txtPrice", QStringLiteral("100"));
    for (const char* box :
         {"txtDutchItemsOffered", "txtDutchOpeningPrice", "txtDutchItemsSold", "txtDutchFinalPrice"}) {
      calculator.set(box, QStringLiteral("10"));
    }
    calculator.set("txtPaymentAmount", QStringLiteral("1000"));
    calculator.selectSite(site);
    QCOMPARE((QStringList{calculator.shown("txtInsertionFee"), calculator.shown("txtFVF"),
                          calculator.shown("txtDutchFees"), calculator.shown("txtPayPalFee")}),
             fees);
  }

  void noFillingOpensAMessage() {
    for (const QStringList& filling : fillings()) {
      Calculator calculator;
      calculator.load();
      calculator.find<QComboBox>("cboIsReserve").setCurrentIndex(filling[0].isEmpty() ? 0 : 1);
      const QList<const char*> boxes{"txtStartingPrice",     "txtPrice",           "txtPaymentAmount",
                                     "txtDutchOpeningPrice", "txtDutchFinalPrice", "txtDutchItemsOffered",
                                     "txtDutchItemsSold"};
      for (int from = 1; from <= 4; ++from) {
        for (int to = 1; to <= 4; ++to) {
          calculator.selectSite(from);
          for (int box = 0; box < boxes.size(); ++box) calculator.set(boxes[box], filling[box]);
          calculator.selectSite(to);
          letItSettle();
          const QString told = calculator.errors.shown.join(u'|');
          QVERIFY2(calculator.isSilent(),
                   qPrintable(QStringLiteral("%1 -> %2: ").arg(from).arg(to) + filling.join(u'|') + told));
        }
      }
    }
  }

  void anAmountThatIsTooLargeStopsNeitherTheSwitchNorTheOtherTabs() {
    Calculator calculator;
    calculator.load();
    calculator.set("txtStartingPrice", QStringLiteral("1e30"));
    calculator.set("txtPaymentAmount", QStringLiteral("1000"));
    calculator.selectSite(2);
    letItSettle();
    QVERIFY(calculator.hasOneError());
    QCOMPARE(calculator.shown("txtPayPalFee"), QStringLiteral("29.16"));
    compareLook(calculator, calculator.window(), lookOf(2));
  }

  void theOutgoingRateIsStoredUnderItsOwnKeyFirst() {
    Calculator calculator(kPointLocale, 2);
    calculator.settings.values[QStringLiteral("Site")] = QStringLiteral("2");
    calculator.settings.values[QStringLiteral("PayPalGermanyRate")] = QStringLiteral("0.9");
    calculator.load();
    calculator.set("txtConversion", QStringLiteral("1.45"));
    calculator.settings.calls.clear();
    calculator.selectSite(4);
    QCOMPARE(calculator.settings.calls, (QStringList{"write PayPalUKRate=1.45", "read PayPalGermanyRate"}));
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("0.9"));
  }

  void anUnsavedRateGivesAnEmptyField() {
    Calculator calculator(kPointLocale, 2);
    calculator.settings.values[QStringLiteral("Site")] = QStringLiteral("2");  // not the first run
    calculator.load();
    calculator.set("txtConversion", QStringLiteral("1.45"));
    calculator.selectSite(4);
    QCOMPARE(calculator.shown("txtConversion"), QString());
  }

  void theSameSiteAgainKeepsItsRate() {
    Calculator calculator(kPointLocale, 2);
    calculator.load();
    calculator.set("txtConversion", QStringLiteral("1.45"));
    calculator.selectSite(2);
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("1.45"));
    QVERIFY(calculator.find<QAction>("mnuOptionsSiteUK").isChecked());
  }

  void aRateThatAnotherWindowStoredIsRead() {
    Calculator calculator;
    calculator.load();
    calculator.settings.values[QStringLiteral("PayPalUKRate")] = QStringLiteral("0.6");
    calculator.selectSite(2);
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("0.6"));
  }

  void eBayComHasNoRateAndLeavesTheHiddenField() {
    Calculator calculator(kPointLocale, 2);
    calculator.load();
    calculator.set("txtConversion", QStringLiteral("1.45"));
    calculator.selectSite(1);
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("1.45"));
    calculator.settings.calls.clear();
    calculator.selectSite(3);
    QCOMPARE(calculator.settings.calls, QStringList{"read PayPalCanadaRate"});
  }

  void realEstateIsUntickedAndNotForGermany() {
    Calculator calculator;
    calculator.load();
    calculator.tick("chkRealEstate");
    calculator.selectSite(4);
    QVERIFY(!calculator.find<QCheckBox>("chkRealEstate").isChecked());
    QVERIFY(!calculator.find<QCheckBox>("chkRealEstate").isEnabled());
    calculator.tick("chkMotors");
    calculator.untick("chkMotors");
    QVERIFY(!calculator.find<QCheckBox>("chkRealEstate").isEnabled());
    calculator.selectSite(1);
    QVERIFY(calculator.find<QCheckBox>("chkRealEstate").isEnabled());
    QVERIFY(!calculator.find<QCheckBox>("chkRealEstate").isChecked());
  }

  void aSwitchMakesRealEstateAvailableEvenWithMotors() {
    Calculator calculator;
    calculator.load();
    calculator.tick("chkMotors");
    calculator.selectSite(2);
    QVERIFY(calculator.find<QCheckBox>("chkMotors").isChecked());
    QVERIFY(calculator.find<QCheckBox>("chkRealEstate").isEnabled());
  }

  void aHiddenMotorsBoxKeepsItsTick() {
    Calculator calculator;
    calculator.load();
    calculator.tick("chkEBayMotorsDutch");
    calculator.selectSite(2);
    QVERIFY(calculator.find<QCheckBox>("chkEBayMotorsDutch").isChecked());
    QCOMPARE(calculator.shown("chkDutchGreatGift"), QStringLiteral("Listing Icon"));
  }

  void germanyKeepsHalfAEuroUntilItsTextChanges_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("already formatted: the text does not change") << "0.50"
                                                                 << "0.50";
    QTest::newRow("formatted by the switch: the minimum applies") << "0.5"
                                                                  << "1.00";
  }

  void germanyKeepsHalfAEuroUntilItsTextChanges() {
    QFETCH(QString, before);
    QFETCH(QString, after);
    Calculator calculator;
    calculator.load();
    calculator.set("txtStartingPrice", before);
    calculator.selectSite(4);
    QCOMPARE(calculator.shown("txtStartingPrice"), after);
    QCOMPARE(calculator.shown("txtInsertionFee"), QStringLiteral("0.25"));
  }

  void theSavedSiteIsSelectedAtTheStart_data() {
    QTest::addColumn<QString>("saved");
    QTest::addColumn<int>("site");
    QTest::newRow("none: eBay.com") << "" << 1;
    QTest::newRow("UK") << "2" << 2;
    QTest::newRow("Germany") << " 4 " << 4;
    QTest::newRow("outside") << "9" << 0;
    QTest::newRow("no number") << "abc" << 0;
    QTest::newRow("negative") << "-1" << 0;
    QTest::newRow("too large for a number") << "99999999999" << 0;
  }

  void theSavedSiteIsSelectedAtTheStart() {
    QFETCH(QString, saved);
    QFETCH(int, site);
    Calculator calculator;
    calculator.settings.values[QStringLiteral("Site")] = saved;
    calculator.load();
    letItSettle();
    QVERIFY(calculator.isSilent());
    if (site > 0) return compareLook(calculator, calculator.window(), lookOf(site));
    // No such site: no fees, no currency, no check mark, the designed title.
    for (const SiteLook& look : kLooks) QVERIFY(!calculator.find<QAction>(look.menuItem).isChecked());
    QCOMPARE(calculator.window().windowTitle(),
             QStringLiteral("Tessaloom - Calculate Your eBay Auction Fees"));
    QCOMPARE(calculator.shown("lblCurrency1"), QString());
    calculator.enter("txtStartingPrice", QStringLiteral("100"));
    QCOMPARE(calculator.singleItemFees(), QStringList(4, QStringLiteral("0.00")));
  }

  void theWindowIsPaintedOnceAfterASwitch() {
    Calculator calculator;
    calculator.load();
    letItSettle();
    struct Counter : QObject {
      int paints = 0;
      bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return QObject::eventFilter(watched, event);
      }
    } counter;
    auto& label = calculator.find<QLabel>("lblCurrency1");
    label.installEventFilter(&counter);
    calculator.selectSite(2);
    QCOMPARE(counter.paints, 0);  // nothing is painted in between
    QTRY_COMPARE(counter.paints, 1);
    letItSettle();
    QCOMPARE(counter.paints, 1);
  }
};

QTEST_MAIN(SiteSwitchTest)
#include "site_switch_test.moc"
