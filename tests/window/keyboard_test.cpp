#include <QClipboard>
#include <QtTest>

#include "stored_window.h"

namespace {

/// The control that has the focus, as the user's last step has left it.
QWidget& focused() {
  QWidget* control = QApplication::focusWidget();
  if (control == nullptr) throw std::runtime_error("nothing has the focus");
  return *control;
}

QString focusedName() { return focused().objectName(); }

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(&focused(), key, modifiers);
}

void typeText(const char* text) { QTest::keyClicks(&focused(), QString::fromLatin1(text)); }

/// The names that the tab key walks through, from what has the focus to the button behind the tabs.
QStringList stopsOfThePage() {
  QStringList names{focusedName()};
  constexpr int more = 60;  // than a page has
  while (names.last() != QStringLiteral("cmdNotepad") && names.size() < more) {
    press(Qt::Key_Tab);
    names << focusedName();
  }
  return names;
}

}  // namespace

/// What a user does without the pointer. No test gives the focus to anything.
class KeyboardTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { open({}); }

  void returnCalculatesAndWaitsForTheNextPrice() {
    typeText("9.99");
    press(Qt::Key_Tab);
    typeText("25");
    press(Qt::Key_Return);
    // 0.35; 5.25 % of 25 is 1.3125
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"0.35", "0.00", "1.31", "1.66"}));
    QCOMPARE(focusedName(), QStringLiteral("txtPrice"));
    typeText("30");
    press(Qt::Key_Enter);
    // and 2.75 % of the 5 beyond 25: 1.3125 + 0.1375
    QCOMPARE(m_calculator->singleItemFees(), (QStringList{"0.35", "0.00", "1.45", "1.80"}));
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("30.00"));
    typeText("x");  // over the selected text, which the rule for changed texts then empties
    QCOMPARE(m_calculator->shown("txtPrice"), QString());
  }

  void returnDoesWhatLeavingDoes() {
    press(Qt::Key_M, Qt::AltModifier);
    typeText("1");
    press(Qt::Key_Return);
    QCOMPARE(m_calculator->shown("txtDutchItemsOffered"), QStringLiteral("2"));
    press(Qt::Key_P, Qt::AltModifier);
    typeText("100");
    press(Qt::Key_Return);
    QCOMPARE(m_calculator->shown("txtPaymentAmount"), QStringLiteral("100.00"));
    QCOMPARE(m_calculator->shown("txtPayPalFee"), QStringLiteral("3.20"));  // 2.9 % and 0.30
  }

  void returnInTheRateCalculates() {
    open({{"Site", "3"}, {"PayPalCanadaRate", "1.317"}});
    press(Qt::Key_P, Qt::AltModifier);
    typeText("100");
    press(Qt::Key_Tab);
    QCOMPARE(m_calculator->shown("txtPayPalFee"), QStringLiteral("3.30"));
    typeText("2");
    press(Qt::Key_Return);
    QCOMPARE(m_calculator->shown("txtPayPalFee"), QStringLiteral("3.50"));  // 2.90 and 0.30 x 2
    QCOMPARE(focusedName(), QStringLiteral("txtConversion"));
  }

  void returnPressesAFocusedButton() {
    typeText("9.99");
    while (focusedName() != QStringLiteral("cmdAddRegularToNotes")) press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QVERIFY(m_calculator->find<QPlainTextEdit>("txtNotes").toPlainText().contains(QStringLiteral("9.99")));
  }

  void escapeClearsNothing() {
    typeText("9.99");
    press(Qt::Key_Escape);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QStringLiteral("9.99"));
  }

  void theBoxThatHasTheFocusMakesCalculateTheDefault() {
    QVERIFY(m_calculator->find<QPushButton>("cmdCalculate").isDefault());
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    QCOMPARE(focusedName(), QStringLiteral("chkDidNotSell"));
    QVERIFY(!m_calculator->find<QPushButton>("cmdCalculate").isDefault());
    press(Qt::Key_M, Qt::AltModifier);
    QVERIFY(m_calculator->find<QPushButton>("cmdDutchCalculate").isDefault());
    QVERIFY(!m_calculator->find<QPushButton>("cmdCalculate").isDefault());
  }

  void aStoredPriceIsTypedOver() {
    open({{"Site", "1"}, {"RegularNumeric", "25.00"}});
    typeText("5");
    press(Qt::Key_Tab);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QStringLiteral("5.00"));
  }

  void aPageOpensInItsFirstBox() {
    QCOMPARE(focusedName(), QStringLiteral("txtStartingPrice"));
    press(Qt::Key_M, Qt::AltModifier);
    QCOMPARE(focusedName(), QStringLiteral("txtDutchItemsOffered"));
    press(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(focusedName(), QStringLiteral("txtPaymentAmount"));
    press(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(focused().parentWidget(), &m_calculator->find<QTabWidget>("SSTab1"));  // the row of tabs
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    QCOMPARE(m_calculator->find<QTabWidget>("SSTab1").currentIndex(), 1);
    QCOMPARE(focused().parentWidget(), &m_calculator->find<QTabWidget>("SSTab1"));
  }

  void aPageIsNotLeftWhereNobodyHasBeen() {
    press(Qt::Key_M, Qt::AltModifier);
    while (focusedName() != QStringLiteral("txtDutchFinalPrice")) press(Qt::Key_Tab);
    press(Qt::Key_S, Qt::AltModifier);  // leaves the empty lowest bid, which clears the opening bid
    typeText("9.99");
    press(Qt::Key_M, Qt::AltModifier);
    press(Qt::Key_S, Qt::AltModifier);
    press(Qt::Key_M, Qt::AltModifier);
    press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QStringLiteral("9.99"));
  }

  void theTabKeyFollowsTheEye() {
    press(Qt::Key_M, Qt::AltModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    const QStringList stops = stopsOfThePage();
    QCOMPARE(stops.mid(0, 3),
             (QStringList{"cboTypeOfMultiItemListing", "txtDutchItemsOffered", "chkEBayMotorsDutch"}));
    QCOMPARE(stops.mid(stops.size() - 8),
             (QStringList{"cmdDutchCalculate", "cmdDutchClearAll", "cmdAddDutchToNotes",
                          "txtTotalDutchAuctionSales", "txtExtraFeaturesDutch", "txtDutchCostPerItem",
                          "txtDutchFees", "cmdNotepad"}));
  }

  void resultsComeAfterTheButtons_data() {
    QTest::addColumn<int>("tab");
    QTest::newRow("single item") << int{Qt::Key_S};
    QTest::newRow("multiple items") << int{Qt::Key_M};
    QTest::newRow("payment services") << int{Qt::Key_P};
  }

  void resultsComeAfterTheButtons() {
    QFETCH(int, tab);
    press(static_cast<Qt::Key>(tab), Qt::AltModifier);
    bool isBehindButtons = false;
    for (const QString& stop : stopsOfThePage()) {
      isBehindButtons = isBehindButtons || stop.startsWith(QStringLiteral("cmdAdd"));
      const auto* box = m_calculator->window().findChild<QLineEdit*>(stop);
      if (box != nullptr) QVERIFY2(box->isReadOnly() == isBehindButtons, qPrintable(stop));
    }
    QVERIFY(isBehindButtons);
  }

  void ofTwoOptionsTheChosenOneIsAStop() {
    press(Qt::Key_P, Qt::AltModifier);
    QStringList stops = stopsOfThePage();
    QVERIFY(stops.contains(QStringLiteral("optPayPalStandard")));
    QVERIFY(!stops.contains(QStringLiteral("optPayPalMerchant")));
    m_calculator->select("optPayPalMerchant");
    press(Qt::Key_S, Qt::AltModifier);
    press(Qt::Key_P, Qt::AltModifier);
    stops = stopsOfThePage();
    QVERIFY(!stops.contains(QStringLiteral("optPayPalStandard")));
    QVERIFY(stops.contains(QStringLiteral("optPayPalMerchant")));
  }

  void controlReturnAddsWhatWasTyped() {
    typeText("9.99");
    press(Qt::Key_Return, Qt::ControlModifier);
    const QString notes = m_calculator->find<QPlainTextEdit>("txtNotes").toPlainText();
    QVERIFY2(notes.contains(QStringLiteral("0.35")), qPrintable(notes));
  }

  void theTotalIsCopied() {
    typeText("9.99");
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    // Sold at the opening bid: 0.35 and 5.25 % of 9.99, which is 0.524475.
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("0.87"));
  }

  void aTotalThatIsNotThereIsNotCopied() {
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    press(Qt::Key_P, Qt::AltModifier);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
  }

  void keysReachTheButtons() {
    typeText("9.99");
    press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QString());
    press(Qt::Key_F9);
    QVERIFY(m_calculator->find<QPlainTextEdit>("txtNotes").isVisible());
    typeText("9.99");
    press(Qt::Key_Return, Qt::ControlModifier);
    press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(QGuiApplication::clipboard()->text().contains(QStringLiteral("0.35")));
    m_calculator->settings.calls.clear();
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!writesAmong(m_calculator->settings.calls).isEmpty());
  }

  void noKeyClashes_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"English", "German", "French"}) QTest::newRow(language) << language;
  }

  void noKeyClashes() {
    QFETCH(QString, language);
    m_calculator->speak(language);
    QList<QKeySequence> used;
    for (const QAction* action : m_calculator->window().findChildren<QAction*>()) used << action->shortcuts();
    QVERIFY(used.size() > 8);
    for (const QKeySequence& keys : used) {
      QCOMPARE(used.count(keys), 1);
      // Mnemonics are Alt and a letter, in every language.
      QVERIFY2((keys[0].keyboardModifiers() & Qt::AltModifier) == Qt::NoModifier,
               qPrintable(keys.toString()));
    }
  }

 private:
  void open(Values stored) {
    m_calculator = std::make_unique<Calculator>();
    if (!stored.contains(QStringLiteral("Site"))) stored[QStringLiteral("Site")] = QStringLiteral("1");
    ::open(*m_calculator, stored);
  }

  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
