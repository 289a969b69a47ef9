#include <QtTest>

#include "status_line.h"
#include "stored_window.h"

/// What the line under the tabs tells of what has just happened.
class StatusLineTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_calculator = std::make_unique<Calculator>();
    open(*m_calculator, {{"Site", "1"}});
  }

  void itSaysNothingAtFirst() { QCOMPARE(said(), QString()); }

  void events_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("English") << "English"
                             << QStringList{"Enter the opening bid",
                                            "Closing bid raised to the opening bid",
                                            "Closing bid raised to the reserve price",
                                            "Entry 1 added to the notepad",
                                            "Copied",
                                            "Settings saved"};
    QTest::newRow("German") << "German"
                            << QStringList{"Geben Sie den Startpreis ein",
                                           "Höchstgebot auf den Startpreis angehoben",
                                           "Höchstgebot auf den Mindestpreis angehoben",
                                           "Notiz 1 abgelegt",
                                           "Kopiert",
                                           "Einstellungen gespeichert"};
    QTest::newRow("French") << "French"
                            << QStringList{"Entrez le prix de départ",
                                           "Prix final porté au prix de départ",
                                           "Prix final porté au prix de réserve",
                                           "Note 1 ajoutée",
                                           "Copié",
                                           "Réglages enregistrés"};
  }

  void events() {
    QFETCH(QString, language);
    QFETCH(QStringList, texts);
    m_calculator->speak(language);
    m_calculator->click("cmdCalculate");
    QCOMPARE(said(), texts[0]);
    m_calculator->enter("txtStartingPrice", QStringLiteral("10"));
    QCOMPARE(said(), QString());
    m_calculator->enter("txtPrice", QStringLiteral("5"));
    QCOMPARE(said(), texts[1]);
    QCOMPARE(m_calculator->shown("txtPrice"), QStringLiteral("10.00"));
    m_calculator->choose("cboIsReserve", 1);
    m_calculator->enter("txtPrice", QStringLiteral("5"));
    QCOMPARE(said(), texts[2]);
    m_calculator->click("cmdAddRegularToNotes");
    QCOMPARE(said(), texts[3]);
    m_calculator->click("cmdNotepad");
    m_calculator->click("cmdCopyNotepad");
    QCOMPARE(said(), texts[4]);
    m_calculator->trigger("mnuOptionsSaveSettings");
    QCOMPARE(said(), texts[5]);
    m_calculator->speak(language == QStringLiteral("English") ? QStringLiteral("German")
                                                              : QStringLiteral("English"));
    QCOMPARE(said(), QString());
  }

  void aBidThatWinsIsNotRaised() {
    m_calculator->enter("txtStartingPrice", QStringLiteral("10"));
    m_calculator->enter("txtPrice", QStringLiteral("10"));
    QCOMPARE(said(), QString());
    m_calculator->tick("chkDidNotSell");
    QCOMPARE(said(), QString());
  }

  void whatIsTypedTakesBackWhatWasSaid() {
    m_calculator->click("cmdCalculate");
    m_calculator->type("txtStartingPrice", QStringLiteral("1"));
    QCOMPARE(said(), QString());
  }

  void whatDoesNotFitStandsInTheTooltip() {
    auto& line = m_calculator->find<StatusLine>("lblStatus");
    const QString longText = QString(400, u'w');
    const int width = m_calculator->window().width();
    line.say(longText);
    QCOMPARE(line.toolTip(), longText);
    QVERIFY(line.text().size() < longText.size());
    QCOMPARE(line.accessibleName(), longText);
    letItSettle();
    QCOMPARE(m_calculator->window().width(), width);
    line.say(QStringLiteral("short"));
    QCOMPARE(line.text(), QStringLiteral("short"));
    QCOMPARE(line.toolTip(), QString());
  }

 private:
  [[nodiscard]] QString said() const { return m_calculator->find<StatusLine>("lblStatus").said(); }

  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(StatusLineTest)
#include "status_line_test.moc"
