#include <QtTest>

#include "calculator.h"

/// The Payment Services tab, from the user's action to the shown fee.
class PaymentWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { open(1); }

  void aPayment() {
    m_calculator->set("txtPaymentAmount", QStringLiteral("25"));
    m_calculator->click("cmdCalculatePaymentFees");
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QStringLiteral("25.00"));
    QCOMPARE(fee(), QStringLiteral("1.03"));  // 25 x 2.9 % + 0.30 = 1.025
  }

  void everyOptionRecalculates() {
    m_calculator->enter("txtPaymentAmount", QStringLiteral("1000"));
    QCOMPARE(fee(), QStringLiteral("29.30"));
    m_calculator->select("optPayPalMerchant");
    QCOMPARE(fee(), QStringLiteral("22.30"));
    m_calculator->select("optPayPalNonCreditCard");
    QCOMPARE(fee(), QStringLiteral("5.00"));
    m_calculator->tick("chkInternationalPayPal");
    QCOMPARE(fee(), QStringLiteral("15.00"));
    m_calculator->select("optPayPalStandard");
    QCOMPARE(fee(), QStringLiteral("15.00"));
    m_calculator->select("optPayPalCreditCard");
    QCOMPARE(fee(), QStringLiteral("39.30"));
  }

  void anEmptyAmountKeepsAnOldFee() {
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    m_calculator->set("txtPaymentAmount", QString());
    m_calculator->click("cmdCalculatePaymentFees");
    m_calculator->select("optPayPalMerchant");
    m_calculator->selectSite(2);
    QCOMPARE(fee(), QStringLiteral("3.20"));
  }

  void aLonePointIsNoAmountYet() {
    m_calculator->type("txtPaymentAmount", QStringLiteral("."));
    m_calculator->selectSite(2);  // from the menu: the box is not left
    letItSettle();
    QVERIFY(m_calculator->isSilent());
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QStringLiteral("."));
  }

  void anAmountOfZeroPassesThroughADollarText() {
    auto& box = m_calculator->find<QLineEdit>("txtPaymentAmount");
    m_calculator->type("txtPaymentAmount", QStringLiteral("0"));
    QStringList history;
    connect(&box, &QLineEdit::textChanged, this, [&history](const QString& text) { history << text; });
    m_calculator->leave("txtPaymentAmount");
    QCOMPARE(history.value(0), QStringLiteral("$0.01"));
    QCOMPARE(box.text(), QStringLiteral("0.01"));
    QCOMPARE(fee(), QStringLiteral("0.30"));
  }

  void leavingWhatIsNoAmountEmptiesTheBoxAndKeepsTheFee() {
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    m_calculator->enter("txtPaymentAmount", QStringLiteral("."));
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QString());
    QCOMPARE(fee(), QStringLiteral("3.20"));
  }

  void aNegativeAmountIsCleared() {
    m_calculator->set("txtPaymentAmount", QStringLiteral("-5"));
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QString());
  }

  void theRateCountsAtTheNextCalculation() {
    open(2);
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    QCOMPARE(fee(), QStringLiteral("3.06"));  // the default rate: 2.90 + 0.30 x 0.5305
    m_calculator->enter("txtConversion", QStringLiteral("2"));
    QCOMPARE(fee(), QStringLiteral("3.06"));
    m_calculator->click("cmdCalculatePaymentFees");
    QCOMPARE(fee(), QStringLiteral("3.50"));
  }

  void theRateMayBeAnyText_data() {
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("charged");
    QTest::newRow("no number means the default") << "abc"
                                                 << "3.06";
    QTest::newRow("zero is taken as it stands") << "0"
                                                << "2.90";
    QTest::newRow("and so is a negative rate") << "-1"
                                               << "2.60";
  }

  void theRateMayBeAnyText() {
    QFETCH(QString, rate);
    QFETCH(QString, charged);
    open(2);
    m_calculator->enter("txtConversion", rate);
    QCOMPARE(m_calculator->shown("txtConversion"), rate);
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    QCOMPARE(fee(), charged);
    letItSettle();
    QVERIFY(m_calculator->isSilent());
  }

  void aRateBeyondEveryNumberIsOneMessage() {
    open(2);
    m_calculator->enter("txtConversion", QStringLiteral("1e400"));
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    letItSettle();
    QVERIFY(m_calculator->hasOneError());
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QStringLiteral("100"));
  }

  void aVeryLargeAmountIsPriced() {
    m_calculator->enter("txtPaymentAmount", QStringLiteral("123456789012"));
    letItSettle();
    QVERIFY(m_calculator->isSilent());
    QCOMPARE(fee(), QStringLiteral("3580246881.65"));  // 2.9 % are 3580246881.348, and 0.30
  }

  void clearKeepsTheChoicesAndTheRate() {
    open(2);
    m_calculator->enter("txtConversion", QStringLiteral("1.45"));
    m_calculator->select("optPayPalMerchant");
    m_calculator->select("optPayPalNonCreditCard");
    m_calculator->tick("chkInternationalPayPal");
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    m_calculator->click("cmdClearPaymentFees");
    QCOMPARE(m_calculator->shown("txtPaymentAmount") + fee(), QString());
    QCOMPARE(m_calculator->shown("txtConversion"), QStringLiteral("1.45"));
    QVERIFY(m_calculator->find<QRadioButton>("optPayPalMerchant").isChecked());
    QVERIFY(m_calculator->find<QRadioButton>("optPayPalNonCreditCard").isChecked());
    QVERIFY(m_calculator->find<QCheckBox>("chkInternationalPayPal").isChecked());
  }

  void theFeeAloneIsWrittenUnformatted() {
    m_calculator->set("txtPaymentAmount", QStringLiteral("25"));
    m_calculator->window().CalculatePayPalFee();
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QStringLiteral("25"));
    QVERIFY2(fee().startsWith(QStringLiteral(" 1.025")), qPrintable(fee()));
  }

  void aCommaLocaleReadsItsOwnRate() {
    m_calculator = std::make_unique<Calculator>(kGermanLocale, 2);
    m_calculator->load();
    m_calculator->set("txtConversion", QStringLiteral("1,45"));
    m_calculator->enter("txtPaymentAmount", QStringLiteral("100"));
    QCOMPARE(fee(), QStringLiteral("3,34"));                       // 2.90 + 0.30 x 1.45 = 3.335
    m_calculator->set("txtConversion", QStringLiteral("0.7854"));  // as stored under a point locale
    m_calculator->click("cmdCalculatePaymentFees");
    QCOMPARE(fee(), QStringLiteral("3,14"));
  }

 private:
  void open(int site) {
    m_calculator = std::make_unique<Calculator>(kPointLocale, site);
    m_calculator->load();
    m_calculator->find<QTabWidget>("SSTab1").setCurrentIndex(2);
  }

  [[nodiscard]] QString fee() const { return m_calculator->shown("txtPayPalFee"); }

  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(PaymentWindowTest)
#include "payment_window_test.moc"
