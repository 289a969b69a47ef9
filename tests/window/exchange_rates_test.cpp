#include <QtTest>

#include "stored_window.h"

namespace {

/// A site with its rate as the program knows it, and what PayPal keeps of 100.00 at that rate:
/// 2.90 and 0.30 dollars, 0.30 x 0.5305 = 0.16, x 1.317 = 0.40, x 0.7854 = 0.24.
struct SiteRow {
  const char* name;
  int site;
  const char* key;
  const char* rate;
  const char* fee;
};

constexpr SiteRow kSites[] = {
    {"UK", 2, "PayPalUKRate", "0.5305", "3.06"},
    {"Canada", 3, "PayPalCanadaRate", "1.317", "3.30"},
    {"Germany", 4, "PayPalGermanyRate", "0.7854", "3.14"},
};

struct UserRow {
  const char* name;
  NumberLocale signs;
};

const UserRow kUsers[] = {
    {"en-US", kPointLocale}, {"de-DE", kGermanLocale}, {"de-CH", kSwissLocale}, {"fr-FR", kFrenchLocale}};

QString asWrittenBy(const NumberLocale& user, const char* pointText) {
  return QString::fromLatin1(pointText).replace(u'.', QString::fromStdString(user.decimal));
}

/// What PayPal keeps of 100.00, typed as the user does.
QString feeOfAHundred(Calculator& calculator, const NumberLocale& user) {
  calculator.find<QTabWidget>("SSTab1").setCurrentIndex(2);
  calculator.enter("txtPaymentAmount", asWrittenBy(user, "100.00"));
  return calculator.shown("txtPayPalFee");
}

}  // namespace

/// The exchange rate between its box, where it bears the user's signs, and the store, where it has a point.
class ExchangeRatesTest : public QObject {
  Q_OBJECT

 private slots:
  void everyUserOnEverySite_data() {
    QTest::addColumn<int>("user");
    QTest::addColumn<int>("site");
    for (int user = 0; user < int{std::size(kUsers)}; ++user) {
      for (int site = 0; site < int{std::size(kSites)}; ++site)
        QTest::addRow("%s on eBay %s", kUsers[user].name, kSites[site].name) << user << site;
    }
  }

  void everyUserOnEverySite() {
    QFETCH(int, user);
    QFETCH(int, site);
    const NumberLocale& signs = kUsers[user].signs;
    const SiteRow& row = kSites[site];
    const QString rate = asWrittenBy(signs, row.rate);
    const QString fee = asWrittenBy(signs, row.fee);

    Calculator first(signs);
    first.load();  // with an empty store: the first run
    first.selectSite(row.site);
    QCOMPARE(first.shown("txtConversion"), rate);
    QCOMPARE(feeOfAHundred(first, signs), fee);
    first.trigger("mnuOptionsSaveSettings");
    first.selectSite(row.site == 2 ? 3 : 2);
    first.selectSite(row.site);
    QCOMPARE(first.shown("txtConversion"), rate);
    QCOMPARE(feeOfAHundred(first, signs), fee);
    first.trigger("mnuFileExit");
    QCOMPARE(first.settings.values[row.key], QString::fromLatin1(row.rate));

    Calculator second(signs);
    open(second, first.settings.values);
    QCOMPARE(second.shown("txtConversion"), rate);
    QCOMPARE(feeOfAHundred(second, signs), fee);
  }

  void aStoreMovesBetweenUsers_data() {
    QTest::addColumn<int>("writer");
    QTest::addColumn<int>("reader");
    for (int writer = 0; writer < int{std::size(kUsers)}; ++writer) {
      for (int reader = 0; reader < int{std::size(kUsers)}; ++reader)
        QTest::addRow("from %s to %s", kUsers[writer].name, kUsers[reader].name) << writer << reader;
    }
  }

  void aStoreMovesBetweenUsers() {
    QFETCH(int, writer);
    QFETCH(int, reader);
    const NumberLocale& writes = kUsers[writer].signs;
    const NumberLocale& reads = kUsers[reader].signs;
    Calculator first(writes);
    first.load();
    first.selectSite(3);
    first.enter("txtConversion", asWrittenBy(writes, "1.250"));
    first.trigger("mnuFileExit");

    Calculator second(reads);
    open(second, first.settings.values);
    QCOMPARE(second.shown("txtConversion"), asWrittenBy(reads, "1.250"));
    // 2.90 and 0.30 x 1.25 = 0.375
    QCOMPARE(feeOfAHundred(second, reads), asWrittenBy(reads, "3.28"));
  }

  void whatWasStoredAsTypedIsUnderstood_data() {
    QTest::addColumn<int>("user");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("fee");
    QTest::newRow("a German comma") << 1 << "0,78"
                                    << "0,78"
                                    << "3,13";  // 2.90 + 0.234
    QTest::newRow("a German comma, read in France") << 3 << "1,45"
                                                    << "1,45"
                                                    << "3,34";  // 2.90 + 0.435
    QTest::newRow("a German comma, read in America") << 0 << "1,45"
                                                     << "1.45"
                                                     << "3.34";
    QTest::newRow("a point, read in Germany") << 1 << "1.317"
                                              << "1,317"
                                              << "3,30";
  }

  void whatWasStoredAsTypedIsUnderstood() {
    QFETCH(int, user);
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    QFETCH(QString, fee);
    Calculator calculator(kUsers[user].signs);
    open(calculator, {{"Site", "3"}, {"PayPalCanadaRate", stored}});
    QCOMPARE(calculator.shown("txtConversion"), shown);
    QCOMPARE(feeOfAHundred(calculator, kUsers[user].signs), fee);
  }

  void savingStoresAPoint() {
    Calculator calculator(kGermanLocale);
    open(calculator, {{"Site", "2"}});
    calculator.enter("txtConversion", QStringLiteral("1,234"));
    calculator.trigger("mnuOptionsSaveSettings");
    QCOMPARE(calculator.settings.values[QStringLiteral("PayPalUKRate")], QStringLiteral("1.234"));
    QCOMPARE(calculator.shown("txtConversion"), QStringLiteral("1,234"));
  }
};

QTEST_MAIN(ExchangeRatesTest)
#include "exchange_rates_test.moc"
