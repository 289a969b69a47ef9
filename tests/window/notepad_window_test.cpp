#include <functional>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QtTest>

#include "calculator.h"

#include "start.h"

namespace {

const QString kRule = QString(50, u'-');

QString entryOf(const QStringList& lines) {
  return kRule + u'\n' + lines.join(u'\n') + u'\n' + kRule + u'\n';
}

QString withCarriageReturns(QString text) { return text.replace(u'\n', QStringLiteral("\r\n")); }

const QString kSingle = entryOf(
    {"1. REGULAR AUCTION:  Opening Bid: $11.00    Item Sold?: Y    Closing Bid: $22.00",
     "Listing Fee: $0.33    Extra Features Fees: $0.44    Final Value Fee: $0.55", "TOTAL FEES: $1.32"});
const QString kMultiple = entryOf({"1. DUTCH AUCTION:      Number Offered: 7    Opening Price: $11.00",
                                   "Number Sold: 5    Sold at: $12.50    Total Revenue: $62.50",
                                   "Extra Features Fees: $0.44   TOTAL FEES: $3.21    Fees Per Item: $0.64"});
const QString kPayment = entryOf({"1. PAYMENT FEE:      Payment Amount: $100.00", "PayPal Fee: $3.20"});

/// What stands in the boxes when an entry is added.
using Boxes = QList<QPair<const char*, const char*>>;

const Boxes kSingleBoxes{{"txtStartingPrice", "11.00"}, {"txtInsertionFee", "0.33"}, {"txtExtras", "0.44"},
                         {"txtPrice", "22.00"},         {"txtFVF", "0.55"},          {"txtFees", "1.32"}};
const Boxes kMultipleBoxes{{"txtDutchItemsOffered", "7"},     {"txtDutchOpeningPrice", "11.00"},
                           {"txtExtraFeaturesDutch", "0.44"}, {"txtDutchItemsSold", "5"},
                           {"txtDutchFinalPrice", "12.50"},   {"txtTotalDutchAuctionSales", "62.50"},
                           {"txtDutchFees", "3.21"},          {"txtDutchCostPerItem", "0.64"}};
const Boxes kPaymentBoxes{{"txtPaymentAmount", "100.00"}, {"txtPayPalFee", "3.20"}};

/// What happens, besides recording, at each step of a job.
struct Steps {
  std::function<void()> opening = [] {};
  std::function<void()> printing = [] {};
  std::function<void()> ending = [] {};
};

struct WatchedSurface : RecordingSurface {
  WatchedSurface(PrintRecord& record, Steps steps) : RecordingSurface(record), m_steps(std::move(steps)) {}
  void endDoc() override {
    m_steps.ending();
    RecordingSurface::endDoc();
  }

 protected:
  void draw(const QString& text) override {
    m_steps.printing();
    RecordingSurface::draw(text);
  }

 private:
  Steps m_steps;
};

struct WatchedPrinter : NotePrinter {
  PrintRecord record;
  Steps steps;

  [[nodiscard]] bool hasPrinter() override { return true; }
  std::unique_ptr<PageSurface> open(QWidget* /*parent*/, const QString& /*title*/) override {
    steps.opening();
    return std::make_unique<WatchedSurface>(record, steps);
  }
};

bool hasHourglass() {
  const QCursor* pointer = QGuiApplication::overrideCursor();
  return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
}

}  // namespace

/// The notepad under the tabs: entries go in, text comes out on the clipboard and on paper.
class NotepadWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    open(1);
    QGuiApplication::clipboard()->clear();
  }
  void cleanup() {
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    m_calculator.reset();
    QLocale::setDefault(QLocale::c());
  }

  void anEntryHoldsTheFiguresOfItsTab_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<Boxes>("boxes");
    QTest::addColumn<QString>("entry");
    QTest::newRow("a single item") << "cmdAddRegularToNotes" << kSingleBoxes << kSingle;
    QTest::newRow("multiple items") << "cmdAddDutchToNotes" << kMultipleBoxes << kMultiple;
    QTest::newRow("a payment") << "cmdAddPaymentsToNotes" << kPaymentBoxes << kPayment;
  }

  void anEntryHoldsTheFiguresOfItsTab() {
    QFETCH(QString, button);
    QFETCH(Boxes, boxes);
    QFETCH(QString, entry);
    fill(boxes);
    add(button.toLatin1());
    QCOMPARE(notes(), entry);
  }

  void anEntryIsOfTheSite_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QString>("fee");
    QTest::newRow("eBay.com") << 1 << "PayPal Fee: $3.20";
    QTest::newRow("UK") << 2 << "PayPal Fee: GBP 3.20";
    QTest::newRow("Canada") << 3 << "PayPal Fee: C$3.20";
    QTest::newRow("Germany") << 4 << "PayPal Fee: EUR3.20";
  }

  void anEntryIsOfTheSite() {
    QFETCH(int, site);
    QFETCH(QString, fee);
    open(site);
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes().split(u'\n').value(2), fee);
  }

  void entriesOfAllTabsShareTheirNumbers() {
    fill(kSingleBoxes);
    add("cmdAddRegularToNotes");
    fill(kMultipleBoxes);
    add("cmdAddDutchToNotes");
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes(), kSingle + numbered(2, kMultiple) + numbered(3, kPayment));
    QCOMPARE(notes().count(kRule + u'\n' + kRule), 2);
  }

  void emptyBoxesLeaveEmptyValues() {
    for (const auto& [box, text] : kSingleBoxes) m_calculator->set(box, QString());
    add("cmdAddRegularToNotes");
    QCOMPARE(notes(),
             entryOf({"1. REGULAR AUCTION:  Opening Bid: $    Item Sold?: Y    Closing Bid: $",
                      "Listing Fee: $    Extra Features Fees: $    Final Value Fee: $", "TOTAL FEES: $"}));
  }

  void theBoxScrollsToItsEnd() {
    m_calculator->click("cmdNotepad");
    letItSettle();
    fill(kPaymentBoxes);
    for (int number = 1; number <= 20; ++number) {
      box().moveCursor(QTextCursor::Start);
      box().verticalScrollBar()->setValue(0);
      add("cmdAddPaymentsToNotes");
      QCOMPARE(box().textCursor().position(), notes().size() - 1);
      QVERIFY(!box().textCursor().hasSelection());
      QCOMPARE(box().verticalScrollBar()->value(), box().verticalScrollBar()->maximum());
    }
    QVERIFY(box().verticalScrollBar()->maximum() > 0);
  }

  void typedTextStays() {
    fill(kPaymentBoxes);
    box().setPlainText(QStringLiteral("bought in Wien"));
    QVERIFY(!box().isReadOnly());
    box().moveCursor(QTextCursor::Start);
    QTest::keyClicks(&box(), QStringLiteral("ab "));
    box().selectAll();  // a selection is not written over
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes(), QStringLiteral("ab bought in Wien") + kPayment);
  }

  void theReserveIsWhatTheListHolds_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("reserve");
    QTest::addColumn<bool>("isListShown");
    QTest::addColumn<QString>("label");
    QTest::newRow("no reserve") << 1 << 0 << 0 << true << "Opening Bid: $11.00";
    QTest::newRow("a reserve") << 1 << 0 << 1 << true << "Reserve Price: $11.00";
    QTest::newRow("at a fixed price the list is hidden and counts")
        << 1 << 1 << 1 << false << "Reserve Price: $11.00";
    QTest::newRow("at a fixed price without") << 1 << 1 << 0 << false << "Opening Bid: $11.00";
    QTest::newRow("on Germany the list is hidden and counts")
        << 4 << 0 << 1 << false << "Reserve Price: EUR11.00";
    QTest::newRow("on Germany without") << 4 << 0 << 0 << false << "Opening Bid: EUR11.00";
  }

  void theReserveIsWhatTheListHolds() {
    QFETCH(int, site);
    QFETCH(int, format);
    QFETCH(int, reserve);
    QFETCH(bool, isListShown);
    QFETCH(QString, label);
    open(site);
    m_calculator->choose("cboSingleItemType", format);
    m_calculator->choose("cboIsReserve", reserve);
    QCOMPARE(!m_calculator->find<QComboBox>("cboIsReserve").isHidden(), isListShown);
    fill(kSingleBoxes);
    add("cmdAddRegularToNotes");
    QVERIFY2(
        heading().startsWith(QStringLiteral("1. REGULAR AUCTION:  ") + label + QStringLiteral("    Item")),
        qPrintable(heading()));
  }

  void theAnswerTellsWhetherTheItemSold_data() {
    QTest::addColumn<int>("reserve");
    QTest::addColumn<bool>("didNotSell");
    QTest::addColumn<QString>("closing");
    QTest::addColumn<QString>("answer");
    QTest::newRow("sold") << 0 << false << "22.00"
                          << "Item Sold?: Y    Closing";
    QTest::newRow("sold below the opening bid, for all the box knows") << 0 << false << "5.00"
                                                                       << "Item Sold?: Y    Closing";
    QTest::newRow("not sold") << 0 << true << "22.00"
                              << "Item Sold?: N    Closing";
    QTest::newRow("the reserve was met") << 1 << false << "11.00"
                                         << "Item Sold?: Y    Closing";
    QTest::newRow("the reserve was not met") << 1 << false << "10.99"
                                             << "Item Sold?: N    Closing";
  }

  void theAnswerTellsWhetherTheItemSold() {
    QFETCH(int, reserve);
    QFETCH(bool, didNotSell);
    QFETCH(QString, closing);
    QFETCH(QString, answer);
    m_calculator->choose("cboIsReserve", reserve);
    m_calculator->tick("chkDidNotSell", didNotSell);
    fill(kSingleBoxes);
    m_calculator->set("txtPrice", closing);
    add("cmdAddRegularToNotes");
    QVERIFY2(heading().contains(answer), qPrintable(heading()));
  }

  void numbersGoOnAfterClearing() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    add("cmdAddPaymentsToNotes");
    m_calculator->click("cmdClearNotepad");
    QCOMPARE(notes(), QString());
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes(), numbered(3, kPayment));
  }

  void clearingCanBeTakenBack() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    m_calculator->click("cmdNotepad");
    m_calculator->click("cmdClearNotepad");
    QCOMPARE(notes(), QString());
    QTest::keyClick(&box(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(notes(), kPayment);
  }

  void anEmptyNotepadIsCleared() {
    m_calculator->click("cmdClearNotepad");
    letItSettle();
    QCOMPARE(notes(), QString());
    QVERIFY(m_calculator->isSilent());
  }

  void copyingTakesTheWholeText() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    box().moveCursor(QTextCursor::End);
    QTest::keyClicks(&box(), QStringLiteral("mine"));
    box().moveCursor(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);  // what is selected does not matter
    m_calculator->click("cmdCopyNotepad");
    QCOMPARE(QGuiApplication::clipboard()->text(), withCarriageReturns(kPayment + QStringLiteral("mine")));
    QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasHtml());
    QCOMPARE(notes(), kPayment + QStringLiteral("mine"));
  }

  void copyingAnEmptyNotepadCopiesNothing() {
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    m_calculator->click("cmdCopyNotepad");
    QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    QVERIFY(m_calculator->isSilent());
  }

  void aLineBreakWithinAParagraphIsCopiedAsOne() {
    m_calculator->click("cmdNotepad");
    QTest::keyClick(&box(), Qt::Key_A);
    QTest::keyClick(&box(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&box(), Qt::Key_B);
    QTest::keyClick(&box(), Qt::Key_Return);
    m_calculator->click("cmdCopyNotepad");
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\r\nb\r\n"));
    m_calculator->click("cmdPrintNotepad");
    QCOMPARE(printed(), (QStringList{"a", "b"}));
  }

  void aFrenchEntryIsCopiedAsItIsShown() {
    m_calculator->speak(QStringLiteral("French"));
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    m_calculator->click("cmdCopyNotepad");
    QCOMPARE(QGuiApplication::clipboard()->text(),
             withCarriageReturns(entryOf({"1. FRAIS DE PAIEMENT\u00A0:      Montant reçu\u00A0: $100.00",
                                          "Frais PayPal\u00A0: $3.20"})));
  }

  void aNoBreakSpaceIsPrintedAsOne() {
    box().setPlainText(QStringLiteral("Frais\u00A0: 1"));
    m_calculator->click("cmdPrintNotepad");
    QCOMPARE(printed(), (QStringList{"Frais\u00A0:", " ", "1"}));
  }

  void theNotepadIsPrinted_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("around");
    QTest::addColumn<bool>("byMenu");
    const QStringList english{"Tessaloom Notes", "2/6/03", "Page 1"};
    QTest::newRow("by the button") << QLocale("en_US") << "English" << english << false;
    QTest::newRow("by the menu") << QLocale("en_US") << "English" << english << true;
    QTest::newRow("in German") << QLocale("de_DE") << "German"
                               << QStringList{"Tessaloom-Notizen", "06.02.03", "Seite 1"} << false;
    QTest::newRow("in French") << QLocale("fr_FR") << "French"
                               << QStringList{"Notes Tessaloom", "06/02/2003", "Page 1"} << true;
    QTest::newRow("the date is the locale's, not the language's")
        << QLocale("en_GB") << "German" << QStringList{"Tessaloom-Notizen", "06/02/2003", "Seite 1"} << false;
  }

  void theNotepadIsPrinted() {
    QFETCH(QLocale, locale);
    QFETCH(QString, language);
    QFETCH(QStringList, around);
    QFETCH(bool, byMenu);
    QLocale::setDefault(locale);
    m_calculator->speak(language);
    box().setPlainText(QStringLiteral("ab\n\ncd"));
    byMenu ? m_calculator->trigger("mnuFilePrint") : m_calculator->click("cmdPrintNotepad");
    QCOMPARE(m_calculator->printer.titles, QStringList{around[0]});
    const PrintRecord& record = m_calculator->printer.record;
    QVERIFY(record.isEnded);
    QCOMPARE(record.pages, 1);
    QCOMPARE((QStringList{record.texts[0].text, record.texts[1].text, record.texts[2].text}), around);
    QCOMPARE(printed(), (QStringList{"ab", "cd"}));
    QCOMPARE(record.texts[3].y, 1440.0);
    QCOMPARE(record.texts[4].y, 1440.0 + 2 * 240);
    QCOMPARE(notes(), QStringLiteral("ab\n\ncd"));
  }

  void entriesArePrinted() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    m_calculator->trigger("mnuFilePrint");
    QStringList lines;
    double y = 0;
    for (const PrintedText& text : m_calculator->printer.record.texts.mid(3)) {
      if (text.y != y) lines << QString();
      y = text.y;
      lines.last() += text.text;
    }
    QCOMPARE(lines, kPayment.trimmed().split(u'\n'));
  }

  void anEmptyNotepadAsksForNoFile_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "English"
                             << "The notepad is empty. There is nothing to print.";
    QTest::newRow("German") << "German"
                            << "Der Notizblock ist leer. Es gibt nichts zu drucken.";
    QTest::newRow("French") << "French"
                            << QStringLiteral("Le bloc-notes est vide. Il n’y a rien à imprimer.");
  }

  void anEmptyNotepadAsksForNoFile() {
    QFETCH(QString, language);
    QFETCH(QString, text);
    m_calculator->speak(language);
    m_calculator->printer.isThere = false;
    m_calculator->trigger("mnuFilePrint");
    QCOMPARE(m_calculator->printer.titles, QStringList());
    QCOMPARE(m_calculator->messages.shown.size(), 1);
    QCOMPARE(m_calculator->messages.shown[0].second, text);
    box().setPlainText(QStringLiteral("ab"));
    m_calculator->trigger("mnuFilePrint");
    QCOMPARE(printed(), QStringList{"ab"});
    QCOMPARE(m_calculator->messages.shown.size(), 1);
  }

  void anEmptyNotepadIsOnePage() {
    m_calculator->click("cmdPrintNotepad");
    QVERIFY(m_calculator->printer.record.isEnded);
    QCOMPARE(m_calculator->printer.record.pages, 1);
    QCOMPARE(m_calculator->printer.record.texts.size(), 3);
  }

  void everyPrintStartsAnew() {
    box().setPlainText(QString(60, u'\n') + u'a');
    m_calculator->click("cmdPrintNotepad");
    QCOMPARE(m_calculator->printer.record.pages, 2);
    const QList<PrintedText> first = m_calculator->printer.record.texts;
    m_calculator->click("cmdPrintNotepad");
    QVERIFY(m_calculator->printer.record.texts == first);
    QCOMPARE(m_calculator->printer.titles.size(), 2);
  }

  void aUserWhoDecidesAgainstItHasNothingPrinted() {
    m_calculator->printer.isWanted = false;
    box().setPlainText(QStringLiteral("ab"));
    m_calculator->click("cmdPrintNotepad");
    letItSettle();
    QCOMPARE(m_calculator->printer.titles.size(), 1);
    QVERIFY(m_calculator->printer.record.texts.isEmpty());
    QVERIFY(m_calculator->isSilent());
    QCOMPARE(notes(), QStringLiteral("ab"));
  }

  void aRefusedPageIsToldOnce() {
    const QString text = QString(200, u'\n') + u'a';
    box().setPlainText(text);
    m_calculator->printer.lastPage = 1;
    m_calculator->click("cmdPrintNotepad");
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    letItSettle();
    QVERIFY(m_calculator->hasOneError());
    QVERIFY(m_calculator->errors.shown[0].endsWith(QStringLiteral("The printer takes no further page.")));
    QVERIFY(!m_calculator->printer.record.isEnded);
    QCOMPARE(notes(), text);
    m_calculator->printer.lastPage = 9;
    m_calculator->click("cmdPrintNotepad");
    QVERIFY2(m_calculator->printer.record.isEnded, "the next attempt is as good as the first");
  }

  void thePointerIsAnHourglassWhilePrinting() {
    WatchedPrinter watched;
    int checks = 0;
    bool wasAlways = true;
    bool wasWhileAsking = false;
    watched.steps.opening = [&] { wasWhileAsking = hasHourglass(); };
    watched.steps.printing = [&] {
      ++checks;
      wasAlways = wasAlways && hasHourglass();
    };
    watched.steps.ending = watched.steps.printing;
    const auto window = openWith(watched);
    window->findChild<QPlainTextEdit*>("txtNotes")->setPlainText(QStringLiteral("ab cd"));
    window->findChild<QAction*>("mnuFilePrint")->trigger();
    QCOMPARE(checks, 3 + 3 + 1);
    QVERIFY(wasAlways);
    QVERIFY2(!wasWhileAsking, "a question waits for the user");
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QVERIFY(watched.record.isEnded);
  }

  void aPrinterThatFailsIsToldOnce_data() {
    const auto fail = [] { throw PrintError("The printer has gone."); };
    QTest::addColumn<Steps>("steps");
    QTest::newRow("at the start") << Steps{.opening = fail};
    QTest::newRow("in the middle") << Steps{.printing = fail};
    QTest::newRow("at the end") << Steps{.ending = fail};
  }

  void aPrinterThatFailsIsToldOnce() {
    QFETCH(Steps, steps);
    WatchedPrinter watched;
    watched.steps = steps;
    const auto window = openWith(watched);
    window->findChild<QPlainTextEdit*>("txtNotes")->setPlainText(QStringLiteral("ab"));
    window->findChild<QAction*>("mnuFilePrint")->trigger();
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    letItSettle();
    QVERIFY(m_calculator->hasOneError());
    QVERIFY(m_calculator->errors.shown[0].endsWith(QStringLiteral("The printer has gone.")));
    QCOMPARE(window->findChild<QPlainTextEdit*>("txtNotes")->toPlainText(), QStringLiteral("ab"));
    QVERIFY(!watched.record.isEnded);
  }

  void theNextEntrySpeaksTheLanguageChosenSince() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    m_calculator->speak(QStringLiteral("German"));
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes(),
             kPayment + entryOf({"2. ZAHLUNGSGEBÜHR:      Zahlungsbetrag: $100.00", "PayPal-Gebühr: $3.20"}));
    m_calculator->speak(QStringLiteral("English"));
    add("cmdAddPaymentsToNotes");
    QVERIFY(notes().endsWith(numbered(3, kPayment)));
  }

  void aClosedWindowTakesNoEntry() {
    fill(kPaymentBoxes);
    m_calculator->window().close();
    for (const char* button : {"cmdAddRegularToNotes", "cmdAddDutchToNotes", "cmdAddPaymentsToNotes"})
      add(button);
    letItSettle();
    QCOMPARE(notes(), QString());
    QVERIFY(m_calculator->isSilent());
  }

  void aHiddenNotepadTakesEntriesAndStaysHidden() {
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    QVERIFY(box().isHidden());
    QCOMPARE(m_calculator->shown("cmdNotepad"), QStringLiteral("view notepad"));
    m_calculator->click("cmdNotepad");
    QVERIFY(box().isVisible());
    QCOMPARE(notes(), kPayment);
  }

  void aPriceThatIsTooLargeIsToldAndCountsNothing() {
    fill(kSingleBoxes);
    m_calculator->set("txtPrice", QString(30, u'9'));
    m_calculator->errors.shown.clear();
    add("cmdAddRegularToNotes");
    letItSettle();
    QCOMPARE(notes(), QString());
    QVERIFY(m_calculator->hasOneError());
    fill(kPaymentBoxes);
    add("cmdAddPaymentsToNotes");
    QCOMPARE(notes(), kPayment);
  }

 private:
  void open(int site) {
    m_calculator.reset();
    m_calculator = std::make_unique<Calculator>(kPointLocale, site);
    m_calculator->load();
  }

  /// Another window, with the same surroundings but for the printer.
  std::unique_ptr<frmeBayFees> openWith(NotePrinter& printer) {
    const Surroundings surroundings = m_calculator->surroundingsWith(m_calculator->settings, printer);
    auto window = std::make_unique<frmeBayFees>(surroundings);
    window->Initialize(Start::newStartStatus(surroundings));
    window->Form_Load();
    return window;
  }

  /// The focus waits elsewhere, so that no box is left and recalculated.
  void fill(const Boxes& boxes) {
    m_calculator->find<QPushButton>("cmdNotepad").setFocus();
    for (const auto& [name, text] : boxes) m_calculator->set(name, QString::fromLatin1(text));
  }

  void add(const char* button) { m_calculator->find<QPushButton>(button).click(); }

  [[nodiscard]] QPlainTextEdit& box() const { return m_calculator->find<QPlainTextEdit>("txtNotes"); }
  [[nodiscard]] QString notes() const { return box().toPlainText(); }
  [[nodiscard]] QString heading() const { return notes().split(u'\n').value(1); }

  /// The texts behind header, date and page label.
  [[nodiscard]] QStringList printed() const {
    QStringList texts;
    for (const PrintedText& text : m_calculator->printer.record.texts.mid(3)) texts << text.text;
    return texts;
  }

  static QString numbered(int number, QString entry) {
    return entry.replace(QStringLiteral("\n1. "), QStringLiteral("\n%1. ").arg(number));
  }

  std::unique_ptr<Calculator> m_calculator;
};

QTEST_MAIN(NotepadWindowTest)
#include "notepad_window_test.moc"
