#include <QDir>
#include <QtTest>

#include "calculator.h"

#include "number_format.h"
#include "start.h"
#include "tagged_strings.h"

namespace {

/// Presses a button of the next modal window, once it is there.
void answerWith(const char* button) {
  QTimer::singleShot(0, qApp, [button] {
    const QWidget* prompt = QApplication::activeModalWidget();
    if (prompt != nullptr) prompt->findChild<QPushButton*>(QString::fromLatin1(button))->click();
  });
}

bool failToLoad() { return false; }

bool speakEnglish() {
  Localization::setLanguageObject(nullptr);
  return true;
}

struct GermanTitle : Localization::LanguageResources {
  QString GetResourceString(qint32 id) override {
    return id == 5000 ? QStringLiteral("Tessaloom DE") : QString();
  }
};

bool loadGermanTitle() {
  Localization::setLanguageObject(std::make_unique<GermanTitle>());
  return true;
}

int clientHeight(Calculator& calculator) { return calculator.find<QWidget>("centralWidget").height(); }

}  // namespace

/// From the start of the process to the end of its window.
class LifeCycleTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Localization::setLanguageObject(nullptr); }

  void withoutTextsThereIsOneErrorBoxAndNoWindow() {
    RecordingWorld world;
    QVERIFY(Start::Main(world.surroundings(), failToLoad) == nullptr);
    QVERIFY(world.errors.shown.isEmpty());
    QCOMPARE(world.messages.shown.size(), 1);
    QCOMPARE(world.messages.shown[0].first, QStringLiteral("Error"));
    QCOMPARE(world.messages.shown[0].second,
             QStringLiteral("Could not load the localization resources from some reason."));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(world.settings.calls.isEmpty());  // nothing is written, nor even read
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Tessaloom"));
  }

  void theApplicationIsNamedInTheChosenLanguage() {
    RecordingWorld world;
    answerWith("cmdDoNotCheck");
    const auto window = Start::Main(world.surroundings(), loadGermanTitle);
    QVERIFY(window->isVisible());
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Tessaloom DE"));
    QVERIFY(!window->windowTitle().endsWith(QStringLiteral("Tessaloom DE")));
  }

  void theFirstRunWritesItsDefaultsBeforeAnythingIsRestored() {
    RecordingWorld world;
    answerWith("cmdDoNotCheck");
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(world.settings.calls.value(0), QStringLiteral("read Site"));  // is this the first run?
    QCOMPARE(world.settings.calls.value(1), QStringLiteral("write UpdateCheck=0"));
    QCOMPARE(world.settings.calls.value(2), QStringLiteral("write Site=1"));
  }

  void aLaterRunWritesNoDefaults() {
    RecordingWorld world;
    world.settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    for (const QString& call : world.settings.calls) QVERIFY2(!call.startsWith(u"write"), qPrintable(call));
  }

  void aFreshWindowShowsNoughts() {
    Calculator calculator;
    calculator.load();
    QCOMPARE(calculator.singleItemFees(), QStringList(4, QStringLiteral("0.00")));
    QCOMPARE(calculator.shown("txtPrice"), QStringLiteral("0.00"));
    QCOMPARE(calculator.shown("txtStartingPrice"), QString());
    QVERIFY(calculator.isSilent());
  }

  void closingStoresTheSiteAndItsRate_data() {
    QTest::addColumn<int>("site");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QStringList>("writes");
    QTest::newRow("eBay.com has no rate") << 1 << "1.45" << QStringList{"write Site=1"};
    QTest::newRow("UK") << 2 << "1.45" << QStringList{"write Site=2", "write PayPalUKRate=1.45"};
    QTest::newRow("Canada") << 3 << "1.45" << QStringList{"write Site=3", "write PayPalCanadaRate=1.45"};
    QTest::newRow("Germany") << 4 << "1.45" << QStringList{"write Site=4", "write PayPalGermanyRate=1.45"};
    QTest::newRow("an empty rate is not stored") << 2 << "" << QStringList{"write Site=2"};
    QTest::newRow("any text is stored as it stands")
        << 2 << "abc" << QStringList{"write Site=2", "write PayPalUKRate=abc"};
  }

  void closingStoresTheSiteAndItsRate() {
    QFETCH(int, site);
    QFETCH(QString, rate);
    QFETCH(QStringList, writes);
    Calculator calculator(kPointLocale, site);
    calculator.load();
    calculator.set("txtConversion", rate);
    calculator.settings.calls.clear();
    calculator.window().close();
    QCOMPARE(calculator.settings.calls, writes);
  }

  void closingTwiceUnloadsOnce() {
    Calculator calculator;
    calculator.load();
    calculator.window().close();
    const QStringList calls = calculator.settings.calls;
    calculator.window().close();
    QCOMPARE(calculator.settings.calls, calls);
  }

  void exitUnloadsTheWindow() {
    Calculator calculator;
    calculator.load();
    calculator.trigger("mnuFileExit");
    QVERIFY(!calculator.window().isVisible());
    QCOMPARE(calculator.settings.calls.last(), QStringLiteral("write Site=1"));
  }

  void anUnloadedWindowSkipsItsFees() {
    Calculator calculator;
    calculator.load();
    calculator.set("txtStartingPrice", QStringLiteral("9.99"));
    calculator.window().close();
    calculator.click("cmdCalculate");
    QCOMPARE(calculator.singleItemFees(), QStringList(4, QString()));
    QCOMPARE(calculator.shown("txtPrice"), QStringLiteral("9.99"));
    QVERIFY(calculator.isSilent());
  }

  void theNotepadTogglesHeightCaptionAndButtons() {
    Calculator calculator;
    calculator.load();
    const int shortHeight = clientHeight(calculator);
    QCOMPARE(calculator.shown("cmdNotepad"), QStringLiteral("view notepad"));
    for (const char* name : {"cmdPrintNotepad", "cmdCopyNotepad", "cmdClearNotepad", "txtNotes"}) {
      QVERIFY2(calculator.find<QWidget>(name).isHidden(), name);
    }
    calculator.click("cmdNotepad");
    QCOMPARE(calculator.shown("cmdNotepad"), QStringLiteral("hide notepad"));
    QCOMPARE(clientHeight(calculator) - shortHeight, (8415 - 6600) / 15);
    for (const char* name : {"cmdPrintNotepad", "cmdCopyNotepad", "cmdClearNotepad", "txtNotes"}) {
      QVERIFY2(!calculator.find<QWidget>(name).isHidden(), name);
    }
    calculator.click("cmdNotepad");
    QCOMPARE(clientHeight(calculator), shortHeight);
    QCOMPARE(calculator.shown("cmdNotepad"), QStringLiteral("view notepad"));
  }

  void theHeightsAreTheDesigned() {
    if (qAbs(QGuiApplication::primaryScreen()->logicalDotsPerInchY() - 96.0) > 0.1)
      QFAIL("96 dots per inch expected");
    Calculator calculator;
    calculator.load();
    QCOMPARE(calculator.find<QWidget>("centralWidget").size(), QSize(11475 / 15, (6600 - 840) / 15));
    calculator.click("cmdNotepad");
    QCOMPARE(calculator.find<QWidget>("centralWidget").size(), QSize(11475 / 15, (8415 - 840) / 15));
  }

  void theSizeIsFixed() {
    Calculator calculator;
    calculator.load();
    letItSettle();
    QCOMPARE(calculator.window().minimumSize(), calculator.window().maximumSize());
    QCOMPARE(calculator.window().size(), calculator.window().minimumSize());
  }

  void keepOnTopFollowsItsCheckMark() {
    Calculator calculator;
    calculator.load();
    const auto& item = calculator.find<QAction>("mnuOptionsOnTop");
    QVERIFY(!item.isChecked());
    calculator.trigger("mnuOptionsOnTop");
    QVERIFY(item.isChecked());
    calculator.trigger("mnuOptionsOnTop");
    QVERIFY(!item.isChecked());
    QCOMPARE(calculator.stacking.requests, (QList<bool>{true, false}));
  }

  void newWindowStartsTheProgramOfTheFixedName() {
    QTemporaryDir folder;
    RecordingWorld world;
    Surroundings surroundings = world.surroundings();
    surroundings.programFolder = folder.path();
    frmeBayFees window(surroundings);
    window.Initialize(Start::newStartStatus(surroundings));
    window.Form_Load();
    auto* newWindow = window.findChild<QAction*>(QStringLiteral("mnuFileNewWindow"));
    newWindow->trigger();
    QVERIFY2(world.starter.started.isEmpty(), "no such file: nothing happens");
    QFile program(folder.filePath(QStringLiteral("Tessaloom")));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.close();
    newWindow->trigger();
    QCOMPARE(world.starter.started, QStringList{program.fileName()});
    letItSettle();
    QVERIFY(world.isSilent());
  }

  void theNumberFormatIsProbedAtTheStart() {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Switzerland));
    RecordingWorld world;
    world.settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QLocale::setDefault(before);
    QCOMPARE(CStartStatus::ConvNumFormat(QStringLiteral("1,000")), QStringLiteral("1'000"));
    QCOMPARE(CStartStatus::ConvNumFormat(QStringLiteral("2.1")), QStringLiteral("2.1"));
  }
};

QTEST_MAIN(LifeCycleTest)
#include "life_cycle_test.moc"
