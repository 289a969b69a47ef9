#include <QtTest>

#include "calculator.h"
#include "entry_field.h"

namespace {

const QString kTenThousandDigits(10000, u'9');

/// Every text that a box has held, in order.
QStringList historyOf(QLineEdit& box, const std::function<void()>& action) {
  QStringList history;
  const auto connection =
      QObject::connect(&box, &QLineEdit::textChanged, [&](const QString& text) { history << text; });
  action();
  QObject::disconnect(connection);
  return history;
}

}  // namespace

/// Typing into the boxes, by real key events.
class EntryFieldsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_calculator = std::make_unique<Calculator>();
    m_calculator->load();
  }

  void typing_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("held");
    QTest::newRow("digits and a point") << "12.50"
                                        << "12.50";
    QTest::newRow("minus is swallowed") << "-5"
                                        << "5";
    QTest::newRow("a second point is swallowed") << "1.5.7"
                                                 << "1.57";
    QTest::newRow("a point may end an amount") << "1."
                                               << "1.";
    QTest::newRow("a lone point may start an amount") << "."
                                                      << ".";
    QTest::newRow("an amount may start with the point") << ".5"
                                                        << ".5";
    QTest::newRow("a letter in an empty box empties it") << "x"
                                                         << "";
    QTest::newRow("the letter n in an empty box empties it") << "n"
                                                             << "";
    QTest::newRow("a letter after digits is swallowed") << "1x2"
                                                        << "12";
    QTest::newRow("a currency sign before the digits empties the box") << "$5"
                                                                       << "5";
    QTest::newRow("the group sign is let through") << "1,000"
                                                   << "1,000";
    QTest::newRow("an exponent cannot be begun by key") << "1e5"
                                                        << "15";
    QTest::newRow("an Arabic digit is swallowed") << QStringLiteral("1٢") << "1";
    QTest::newRow("an emoji is swallowed") << QStringLiteral("1😀") << "1";
  }

  void typing() {
    QFETCH(QString, keys);
    QFETCH(QString, held);
    m_calculator->type("txtPrice", QString());
    m_calculator->type("txtPrice", keys);
    QCOMPARE(m_calculator->shown("txtPrice"), held);
  }

  void aLetterOverASelectionEmptiesTheBox() {
    m_calculator->set("txtPrice", QStringLiteral("12.00"));
    m_calculator->type("txtPrice", QStringLiteral("x"));
    QCOMPARE(m_calculator->shown("txtPrice"), QString());
  }

  void theLetterNOverASelectionPassesThroughThePoint() {
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    box.setText(QStringLiteral("12.00"));
    const QStringList history =
        historyOf(box, [this] { m_calculator->type("txtPrice", QStringLiteral("n")); });
    QCOMPARE(history.first(), QStringLiteral("."));
    QCOMPARE(box.text(), QString());
  }

  void aKeyIsJudgedAtTheEndWhereverTheCaretStands() {
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    m_calculator->type("txtPrice", QStringLiteral("1.5"));
    box.setCursorPosition(0);
    QTest::keyClick(&box, Qt::Key_Period);
    QCOMPARE(box.text(), QStringLiteral("1.5"));
    QTest::keyClick(&box, Qt::Key_2);
    QCOMPARE(box.text(), QStringLiteral("21.5"));
  }

  void editingKeysWork() {
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    m_calculator->type("txtPrice", QStringLiteral("125"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.text(), QStringLiteral("12"));
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    QCOMPARE(box.text(), QStringLiteral("2"));
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(box.selectedText(), QStringLiteral("2"));
    QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(box.text(), QString());
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.text(), QStringLiteral("2"));
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(box.text(), QStringLiteral("2"));
    QVERIFY(box.hasFocus());
  }

  void aCharacterIsJudgedWhateverKeyItComesFrom_data() {
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("held");
    QTest::newRow("Alt and a letter") << "txtPrice" << int{Qt::Key_Z} << int{Qt::AltModifier} << "25";
    QTest::newRow("Alt, Shift and a letter")
        << "txtPrice" << int{Qt::Key_Z} << int{Qt::AltModifier | Qt::ShiftModifier} << "25";
    QTest::newRow("the Windows key and a letter")
        << "txtPrice" << int{Qt::Key_Z} << int{Qt::MetaModifier} << "25";
    QTest::newRow("Control, Alt and a letter")
        << "txtPrice" << int{Qt::Key_Z} << int{Qt::ControlModifier | Qt::AltModifier} << "25";
    QTest::newRow("Alt and a digit") << "txtPrice" << int{Qt::Key_7} << int{Qt::AltModifier} << "257";
    QTest::newRow("Alt and a letter among the items")
        << "txtDutchItemsOffered" << int{Qt::Key_Q} << int{Qt::AltModifier} << "25";
    QTest::newRow("Alt and a point among the items")
        << "txtDutchItemsOffered" << int{Qt::Key_Period} << int{Qt::AltModifier} << "25";
  }

  void aCharacterIsJudgedWhateverKeyItComesFrom() {
    QFETCH(QString, box);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, held);
    m_calculator->find<QTabWidget>("SSTab1").setCurrentIndex(box == QStringLiteral("txtPrice") ? 0 : 1);
    m_calculator->type(qPrintable(box), QStringLiteral("25"));
    QTest::keyClick(&m_calculator->find<QLineEdit>(qPrintable(box)), static_cast<Qt::Key>(key),
                    Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_calculator->shown(qPrintable(box)), held);
  }

  void aLetterWithAltLeavesTheSelectedTextAlone() {
    m_calculator->type("txtPrice", QStringLiteral("25"));
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.selectedText(), QStringLiteral("25.00"));
    QTest::keyClick(&box, Qt::Key_Z, Qt::AltModifier);
    QCOMPARE(box.text(), QStringLiteral("25.00"));
    QTest::keyClick(&box, Qt::Key_Z, Qt::MetaModifier);
    QCOMPARE(box.text(), QStringLiteral("25.00"));
    QTest::keyClick(&box, Qt::Key_7, Qt::AltModifier);
    QCOMPARE(box.text(), QStringLiteral("7"));
  }

  void whatAnInputMethodHandsOverIsJudged_data() {
    QTest::addColumn<QString>("stands");
    QTest::addColumn<QString>("committed");
    QTest::addColumn<QString>("held");
    QTest::newRow("a dead accent and a letter") << "25" << QStringLiteral("é") << "25";
    QTest::newRow("a digit") << "25"
                             << "7"
                             << "257";
    QTest::newRow("a point, once") << "25"
                                   << ".."
                                   << "25.";
    QTest::newRow("digits among letters") << "25"
                                          << "a1b2"
                                          << "2512";
    QTest::newRow("a minus") << "25"
                             << "-"
                             << "25";
    QTest::newRow("an amount into an empty box") << ""
                                                 << "12.50"
                                                 << "12.50";
  }

  void whatAnInputMethodHandsOverIsJudged() {
    QFETCH(QString, stands);
    QFETCH(QString, committed);
    QFETCH(QString, held);
    m_calculator->type("txtPrice", stands);
    QInputMethodEvent event;
    event.setCommitString(committed);
    QCoreApplication::sendEvent(&m_calculator->find<QLineEdit>("txtPrice"), &event);
    QCOMPARE(m_calculator->shown("txtPrice"), held);
  }

  void whatAnInputMethodHandsOverReplacesTheSelection() {
    m_calculator->type("txtPrice", QStringLiteral("25"));
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    box.selectAll();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("12.50.1"));
    QCoreApplication::sendEvent(&box, &event);
    QCOMPARE(box.text(), QStringLiteral("12.501"));
  }

  void mnemonicsAreNoEntry() {
    m_calculator->type("txtPrice", QStringLiteral("12"));
    QTest::keyClick(&m_calculator->window(), Qt::Key_E, Qt::AltModifier);
    QVERIFY(m_calculator->find<QLineEdit>("txtStartingPrice").hasFocus());
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("12.00"));
  }

  void pasting_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("held");
    QTest::newRow("letters") << "abc"
                             << "";
    QTest::newRow("two signs") << "--5"
                               << "";
    QTest::newRow("a negative amount") << "-5"
                                       << "";
    QTest::newRow("a number in parentheses is negative") << "(5)"
                                                         << "";
    QTest::newRow("Arabic digits") << QStringLiteral("١٢") << "";
    QTest::newRow("an emoji") << QStringLiteral("😀") << "";
    QTest::newRow("hexadecimal") << "0x10"
                                 << "";
    QTest::newRow("not a number") << "nan"
                                  << "";
    QTest::newRow("an amount with sign and blank") << "$ 12.50"
                                                   << "$ 12.50";
    QTest::newRow("ten thousand digits are a number") << kTenThousandDigits << kTenThousandDigits;
    QTest::newRow("a number beyond every type") << "1e400"
                                                << "1e400";
    QTest::newRow("an exponent") << "1e3"
                                 << "1e3";
  }

  void pasting() {
    QFETCH(QString, text);
    QFETCH(QString, held);
    for (const char* box : {"txtStartingPrice", "txtPrice"}) {
      m_calculator->set(box, text);
      QCOMPARE(m_calculator->shown(box), held);
    }
    QVERIFY(m_calculator->isSilent());
  }

  void leavingWithATooLargeAmountIsOneMessageAndKeepsTheText() {
    for (const QString& text : {QStringLiteral("1e400"), QStringLiteral("1e30"), kTenThousandDigits}) {
      m_calculator->errors.shown.clear();
      m_calculator->set("txtStartingPrice", text);
      m_calculator->leave("txtStartingPrice");
      QVERIFY(m_calculator->isSilent());  // not from within the change of focus
      letItSettle();
      QVERIFY(m_calculator->hasOneError());
      QVERIFY(m_calculator->errors.shown[0].contains(QStringLiteral("is too large")));
      QVERIFY(m_calculator->errors.shown[0].size() < 400);
      QCOMPARE(m_calculator->shown("txtStartingPrice"), text);
    }
    m_calculator->enter("txtStartingPrice", QStringLiteral("10"));
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.60"));
  }

  void leavingTheOpeningBid_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("held");
    QTest::newRow("a number is kept and formatted") << "9.9"
                                                    << "9.90";
    QTest::newRow("0 becomes empty") << "0"
                                     << "";
    QTest::newRow("below one cent becomes empty") << "0.005"
                                                  << "";
    QTest::newRow("one cent stays") << "0.01"
                                    << "0.01";
    QTest::newRow("a lone point becomes empty") << "."
                                                << "";
    QTest::newRow("a number that is rounded") << "0.995"
                                              << "1.00";
  }

  void leavingTheOpeningBid() {
    QFETCH(QString, typed);
    QFETCH(QString, held);
    m_calculator->enter("txtStartingPrice", typed);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), held);
  }

  void leavingTheOpeningBidEmptyKeepsTheOldFees() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("9.99"));
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.35"));
    m_calculator->enter("txtStartingPrice", QString());
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.35"));
  }

  void aClosingBidOfZeroPassesThroughADollarText_data() {
    QTest::addColumn<int>("reserveIndex");
    QTest::addColumn<QString>("text");
    QTest::newRow("without a reserve") << 0 << "$0.00";
    QTest::newRow("with a reserve") << 1 << "$0.01";
    QTest::newRow("no choice at all counts as a reserve") << -1 << "$0.01";
  }

  void aClosingBidOfZeroPassesThroughADollarText() {
    QFETCH(int, reserveIndex);
    QFETCH(QString, text);
    m_calculator->choose("cboIsReserve", reserveIndex);
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    m_calculator->type("txtPrice", QStringLiteral("0"));
    const QStringList history = historyOf(box, [this] { m_calculator->leave("txtPrice"); });
    QCOMPARE(history.value(0), text);
    QCOMPARE(box.text(), QString(text).remove(u'$'));  // the recalculation has formatted it
  }

  void aClosingBidBelowTheReserveIsRaisedToItsText() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    auto& box = m_calculator->find<QLineEdit>("txtPrice");
    m_calculator->type("txtPrice", QStringLiteral("50"));
    const QStringList history = historyOf(box, [this] { m_calculator->leave("txtPrice"); });
    QCOMPARE(history.value(0), QStringLiteral("150.00"));
    QVERIFY(m_calculator->window().ItemSold());
  }

  void anEmptyClosingBidCountsAsZeroAgainstTheReserve() {
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtStartingPrice", QStringLiteral("150"));
    m_calculator->enter("txtPrice", QString());
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("150.00"));
  }

  void leavingTheClosingBidAlwaysRecalculates() {
    m_calculator->set("txtStartingPrice", QStringLiteral("9.99"));
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.00"));
    m_calculator->enter("txtPrice", QString());
    QCOMPARE(m_calculator->singleItemFees().first(), QStringLiteral("0.35"));
  }

  void germanyRaisesAnOpeningBidAtTheFirstKey() {
    Calculator german(kPointLocale, 4);
    german.load();
    german.type("txtStartingPrice", QStringLiteral("0"));
    QCOMPARE(german.shown("txtStartingPrice"), QStringLiteral("1.00"));
    QCOMPARE(german.find<QLineEdit>("txtStartingPrice").selectedText(), QStringLiteral("1.00"));
    QTest::keyClicks(&german.find<QLineEdit>("txtStartingPrice"), QStringLiteral(".5"));
    QCOMPARE(german.shown("txtStartingPrice"), QStringLiteral("1.00"));
    QTest::keyClicks(&german.find<QLineEdit>("txtStartingPrice"), QStringLiteral("25"));
    QCOMPARE(german.shown("txtStartingPrice"), QStringLiteral("25"));
    german.set("txtStartingPrice", QStringLiteral("0.99"));
    QCOMPARE(german.shown("txtStartingPrice"), QStringLiteral("1.00"));
  }

  void theGermanMinimumCarriesTheUsersDecimalSymbol() {
    Calculator german(kGermanLocale, 4);
    german.load();
    german.type("txtStartingPrice", QStringLiteral("0"));
    QCOMPARE(german.shown("txtStartingPrice"), QStringLiteral("1,00"));
  }

  void otherSitesTakeCents() {
    m_calculator->type("txtStartingPrice", QStringLiteral("0.5"));
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QStringLiteral("0.5"));
  }

  void comingToABoxSelectsItsText() {
    auto& opening = m_calculator->find<QLineEdit>("txtStartingPrice");
    auto& closing = m_calculator->find<QLineEdit>("txtPrice");
    opening.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&opening, Qt::Key_Tab);
    QCOMPARE(closing.selectedText(), QStringLiteral("0.00"));
    opening.setFocus(Qt::TabFocusReason);
    QTest::mouseClick(&closing, Qt::LeftButton);
    letItSettle();
    QCOMPARE(closing.selectedText(), QStringLiteral("0.00"));
  }

  void leavingTheWindowIsNotLeavingTheBox_data() {
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("isLeft");
    QTest::newRow("another window") << Qt::ActiveWindowFocusReason << false;
    QTest::newRow("a popup") << Qt::PopupFocusReason << false;
    QTest::newRow("the menu bar") << Qt::MenuBarFocusReason << false;
    QTest::newRow("Tab") << Qt::TabFocusReason << true;
    QTest::newRow("Shift+Tab") << Qt::BacktabFocusReason << true;
    QTest::newRow("the mouse") << Qt::MouseFocusReason << true;
    QTest::newRow("a mnemonic") << Qt::ShortcutFocusReason << true;
    QTest::newRow("the program") << Qt::OtherFocusReason << true;
  }

  void leavingTheWindowIsNotLeavingTheBox() {
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, isLeft);
    auto& box = m_calculator->find<QLineEdit>("txtStartingPrice");
    box.setText(QStringLiteral("0"));
    QFocusEvent event(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&box, &event);
    QCOMPARE(box.text(), isLeft ? QString() : QStringLiteral("0"));
  }

  void clickingCalculateFirstNormalisesTheBoxThatIsLeft() {
    m_calculator->type("txtStartingPrice", QStringLiteral("0.005"));
    auto& button = m_calculator->find<QPushButton>("cmdCalculate");
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(m_calculator->shown("txtStartingPrice"), QString());
  }

  void aCountBoxTakesDigitsAndBackspaceOnly() {
    QLineEdit box;
    EntryField field(box, EntryKind::Count, kPointLocale);
    QTest::keyClicks(&box, QStringLiteral("1-2.3,4x"));
    QCOMPARE(box.text(), QStringLiteral("1234"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.text(), QStringLiteral("123"));
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.text(), QStringLiteral("123"));
    QTest::keyClick(&box, Qt::Key_X);
    QCOMPARE(box.text(), QStringLiteral("123"));
    QTest::keyClick(&box, Qt::Key_Delete);
    QCOMPARE(box.text(), QString());
  }

 private:
  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(EntryFieldsTest)
#include "entry_fields_test.moc"
