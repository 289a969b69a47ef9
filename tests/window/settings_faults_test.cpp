#include <QtTest>

#include "stored_window.h"

/// Rubbish in the store, and a store that takes nothing.
class SettingsFaultsTest : public QObject {
  Q_OBJECT

 private slots:
  void aSiteThatDoesNotExistIsNone_data() {
    QTest::addColumn<QString>("site");
    for (const char* site : {"9", "abc", "-1", "0", "5", " ", "4294967297"}) QTest::newRow(site) << site;
  }

  void aSiteThatDoesNotExistIsNone() {
    QFETCH(QString, site);
    Calculator calculator;
    open(calculator, {{"Site", site}, {"RegularNumeric", "10.00"}, {"RegularBold", "1"}});
    QVERIFY(calculator.isSilent());
    QVERIFY(isTicked(calculator, "chkBold"));  // the rest is restored
    QCOMPARE(calculator.shown("txtStartingPrice"), QStringLiteral("10.00"));
    QCOMPARE(calculator.singleItemFees(), QStringList(4, QStringLiteral("0.00")));
    QCOMPARE(calculator.shown("lblCurrency1"), QString());
    for (const char* item :
         {"mnuOptionsSiteEbay", "mnuOptionsSiteUK", "mnuOptionsSiteCanada", "mnuOptionsSiteGermany"})
      QVERIFY2(!calculator.find<QAction>(item).isChecked(), item);
    QCOMPARE(calculator.window().windowTitle(),
             QStringLiteral("Tessaloom - Calculate Your eBay Auction Fees"));
    calculator.selectSite(1);
    QCOMPARE(calculator.shown("txtInsertionFee"), QStringLiteral("0.60"));
  }

  void aRubbishEntryDoesNoHarm_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("letters") << "abc"
                             << "";
    QTest::newRow("negative") << "-5"
                              << "";
    QTest::newRow("two points") << "1.2.3"
                                << "";
    QTest::newRow("binary") << QString::fromUtf8("\x01\xef\xbf\xbd\x7f") << "";
    QTest::newRow("100 KB of letters") << QString(100'000, u'x') << "";
    QTest::newRow("a lone point, which may start an amount") << "."
                                                             << ".";
  }

  void aRubbishEntryDoesNoHarm() {
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    Calculator calculator;
    open(calculator, {{"RegularNumeric", stored}, {"DutchOpeningPrice", stored}, {"RegularBold", "1"}});
    QVERIFY(calculator.window().isVisible());
    QVERIFY(calculator.isSilent());
    QCOMPARE(calculator.shown("txtStartingPrice"), shown);
    QVERIFY(isTicked(calculator, "chkBold"));
  }

  void anEntryBeyondAllAmountsIsToldOnce_data() {
    QTest::addColumn<QString>("stored");
    QTest::newRow("beyond single precision") << "1e40";
    QTest::newRow("beyond double precision") << "1e400";
    QTest::newRow("100 KB of digits") << QString(100'000, u'9');
  }

  void anEntryBeyondAllAmountsIsToldOnce() {
    QFETCH(QString, stored);
    Calculator calculator;
    open(calculator,
         {{"RegularNumeric", stored}, {"RegularBold", "1"}, {"DutchBold", "1"}, {"PayPalCreditCard", "1"}});
    QVERIFY(calculator.window().isVisible());
    QVERIFY(calculator.isSilent() || calculator.hasOneError());
    for (const char* button : {"chkBold", "chkDutchBold", "optPayPalCreditCard"})
      QVERIFY2(isTicked(calculator, button), button);  // what comes after it is restored all the same
    const QString shown = calculator.shown("txtStartingPrice");
    QVERIFY2(shown.isEmpty() || stored.startsWith(shown), qPrintable(shown.left(80)));
    calculator.errors.shown.clear();
    calculator.enter("txtStartingPrice", QStringLiteral("10"));
    QCOMPARE(calculator.singleItemFees(), (QStringList{"0.60", "1.00", "0.53", "2.13"}));
  }

  void aStoreThatIsFullIsToldOnceForEachEvent_data() {
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("title");
    QTest::newRow("save") << "mnuOptionsSaveSettings"
                          << "Error";
    QTest::newRow("site switch") << "mnuOptionsSiteCanada"
                                 << "Error";
    QTest::newRow("language choice: told in the new language") << "mnuLang_2"
                                                               << "Fehler";
  }

  void aStoreThatIsFullIsToldOnceForEachEvent() {
    QFETCH(QString, event);
    QFETCH(QString, title);
    Calculator calculator;
    open(calculator, {{"Site", "2"}, {"PayPalUKRate", "0.5"}});
    calculator.settings.isFull = true;
    calculator.trigger(qPrintable(event));
    letItSettle();
    compareOneMessage(calculator, title);
    calculator.enter("txtStartingPrice", QStringLiteral("10"));
    QVERIFY(calculator.shown("txtInsertionFee") != QStringLiteral("0.00"));
    QVERIFY(calculator.hasOneError());
  }

  void aFirstRunWithAFullStoreOpensTheWindow() {
    Calculator calculator;
    calculator.settings.isFull = true;
    calculator.load();
    letItSettle();
    compareOneMessage(calculator);
    QVERIFY(calculator.window().isVisible());
    QVERIFY(calculator.find<QAction>("mnuOptionsSiteEbay").isChecked());
    calculator.enter("txtStartingPrice", QStringLiteral("10"));
    QCOMPARE(calculator.shown("txtInsertionFee"), QStringLiteral("0.60"));
  }

  void aFullStoreHoldsUpNeitherTheSiteNorTheLanguage() {
    Calculator calculator;
    open(calculator, {{"Site", "2"}, {"PayPalUKRate", "0.5"}});
    calculator.settings.isFull = true;
    calculator.selectSite(3);
    QCOMPARE(calculator.shown("lblCurrency1"), QStringLiteral("C$"));
    QVERIFY(calculator.find<QAction>("mnuOptionsSiteCanada").isChecked());
    calculator.speak(QStringLiteral("German"));
    QCOMPARE(calculator.shown("lblFees"), QStringLiteral("eBay-Gesamtgebühren:"));
    QVERIFY(calculator.find<QAction>("mnuLang_2").isChecked());
  }

  void aFullStoreIsToldOnceAtTheClosing() {
    Calculator calculator;
    open(calculator, {{"Site", "2"}, {"PayPalUKRate", "0.5"}});  // a site and a rate to be stored
    calculator.settings.isFull = true;
    calculator.window().close();
    letItSettle();
    compareOneMessage(calculator);
    QVERIFY(!calculator.window().isVisible());
  }

 private:
  static void compareOneMessage(const Calculator& calculator, const QString& title = "Error") {
    QVERIFY(calculator.messages.shown.isEmpty());
    QCOMPARE(calculator.errors.shown, QStringList{"The settings could not be stored in memory."});
    QCOMPARE(calculator.errors.titles, QStringList{title});
  }
};

QTEST_MAIN(SettingsFaultsTest)
#include "settings_faults_test.moc"
