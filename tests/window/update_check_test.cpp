#include <algorithm>
#include <QPlainTextEdit>
#include <QtTest>

#include "calculator.h"
#include "FCheckVersion.h"
#include "modal_window.h"
#include "start.h"

namespace {

QString status(const QString& inner) {
  return QStringLiteral("<status>") + inner + QStringLiteral("</status>");
}

QString offerOf(const QString& address) {
  return status(QStringLiteral("<newversion>1</newversion><updateurl>%1</updateurl>"
                               "<message>Version 2 is here.</message>")
                    .arg(address));
}

const QString kAddress = QStringLiteral("https://update.example/setup.exe");
const QString kOldForm = QStringLiteral("Version = 2.0\n<versionmessage>Version 2 is here.</versionmessage>");

bool speakEnglish() {
  Localization::setLanguageObject(nullptr);
  return true;
}

/// The start status over recording surroundings, without a calculator window.
struct StartWorld : RecordingWorld {
  explicit StartWorld(const QString& language = QStringLiteral("English")) {
    speak(*this, language);
    status = Start::newStartStatus(surroundings());
  }

  /// Asks, and gets that answer.
  void hear(const std::optional<QString>& text) {
    status->CheckForUpdate();
    web.answer(text);
    letItSettle();
  }

  std::shared_ptr<CStartStatus> status;
};

QString offeredText(const QWidget& offer) {
  return controlOf<QPlainTextEdit>(offer, "txtMessage").toPlainText();
}

/// What was told before something was opened.
struct OrderedMessages : RecordingMessages {
  explicit OrderedMessages(const RecordingDesktop& desktop) : m_desktop(desktop) {}

  void showPlain(QWidget* parent, const QString& title, const QString& text) override {
    openedBefore << m_desktop.opened;
    RecordingMessages::showPlain(parent, title, text);
  }

  QStringList openedBefore;

 private:
  const RecordingDesktop& m_desktop;
};

bool isCalculatorOpen() {
  return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
    return window->inherits("frmeBayFees") && window->isVisible();
  });
}

}  // namespace

/// The prompt of the first use, what it asks of the web, and what is made of the answer.
class UpdateCheckTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { QCoreApplication::setApplicationName(QStringLiteral("Tessaloom")); }
  void cleanup() { Localization::setLanguageObject(nullptr); }

  // The prompt

  void thePromptSpeaksTheLanguageAndNamesTheBrand_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts");  // title, lblCheck with a place for the brand, both buttons
    QTest::newRow("English")
        << "English"
        << QStringList{
               "Check for product updates",
               "If this is the first time you are using Tessaloom, please allow it to check the %1 server "
               "for updates.  This will ensure the application runs properly, and will only take a moment.",
               "Check for Updates", "Do Not Check"};
    QTest::newRow("German")
        << "German"
        << QStringList{"Nach Produkt-Updates suchen",
                       "Wenn Sie Tessaloom zum ersten Mal verwenden, lassen Sie das Programm bitte auf dem "
                       "%1-Server nach Updates suchen. So ist sichergestellt, dass es einwandfrei läuft; der "
                       "Vorgang dauert nur einen Augenblick.",
                       "Nach Updates suchen", "Nicht suchen"};
    QTest::newRow("French")
        << "French"
        << QStringList{
               "Rechercher des mises à jour",
               "Si vous utilisez Tessaloom pour la première fois, autorisez-le à rechercher des mises à "
               "jour sur le serveur %1. Cela garantit le bon fonctionnement de l’application et ne prend "
               "qu’un instant.",
               "Rechercher", "Ne pas rechercher"};
  }

  void thePromptSpeaksTheLanguageAndNamesTheBrand() {
    QFETCH(QString, language);
    QFETCH(QStringList, texts);
    StartWorld world(language);
    for (const char* company : {"Ostrevane", "Smith & Sons  Ltd"}) {
      const FCheckVersion prompt(world.brand, world.status);
      QCOMPARE((QStringList{prompt.windowTitle(), textOf(prompt, "lblCheck"), textOf(prompt, "cmdCheck"),
                            textOf(prompt, "cmdDoNotCheck")}),
               (QStringList{texts[0], texts[1].arg(QString::fromLatin1(company)), texts[2], texts[3]}));
      rebrand(world, kReseller);
    }
  }

  void checkingAsksOnceAndClosesThePrompt() {
    StartWorld world(QStringLiteral("German"));
    FCheckVersion prompt(world.brand, world.status);
    QVERIFY(world.web.asked.isEmpty());
    const auto met = inNextModal([](const QWidget& window) { push(window, "cmdCheck"); });
    QCOMPARE(prompt.exec(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(*met, 1);
    QCOMPARE(world.web.asked,
             QList<QUrl>{QUrl("https://update.ostrevane.example/version/versioncheck.asp?app=Tessaloom"
                              "&version=1.0.0&appclass=1&language=German")});
  }

  void notCheckingAsksNothing_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Do Not Check") << false;
    QTest::newRow("Escape") << true;
  }

  void notCheckingAsksNothing() {
    QFETCH(bool, byKey);
    StartWorld world;
    FCheckVersion prompt(world.brand, world.status);
    const auto met = inNextModal([byKey](QWidget& window) {
      if (byKey) return QTest::keyClick(&window, Qt::Key_Escape);
      push(window, "cmdDoNotCheck");
    });
    QCOMPARE(prompt.exec(), static_cast<int>(QDialog::Rejected));
    QCOMPARE(*met, 1);
    QVERIFY(world.web.asked.isEmpty());
  }

  // The first run

  void theFirstRunAsksBeforeTheWindowIsThere_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("asked");
    QTest::newRow("check") << "cmdCheck"
                           << "1" << 1;
    QTest::newRow("do not check") << "cmdDoNotCheck"
                                  << "0" << 0;
    QTest::newRow("Escape") << ""
                            << "0" << 0;
  }

  void theFirstRunAsksBeforeTheWindowIsThere() {
    QFETCH(QString, answer);
    QFETCH(QString, stored);
    QFETCH(int, asked);
    RecordingWorld world;
    const auto met = inNextModal([&](QWidget& prompt) {
      QCOMPARE(prompt.objectName(), QStringLiteral("FCheckVersion"));
      QVERIFY(!isCalculatorOpen());
      QVERIFY(world.web.asked.isEmpty());
      if (answer.isEmpty()) return QTest::keyClick(&prompt, Qt::Key_Escape);
      push(prompt, qPrintable(answer));
    });
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(*met, 1);
    QVERIFY(window->isVisible());
    QCOMPARE(world.settings.values.value(QStringLiteral("UpdateCheck")), stored);
    // The answer has not made a later run of the first: the defaults are written.
    QCOMPARE(world.settings.values.value(QStringLiteral("Site")), QStringLiteral("1"));
    QVERIFY(world.settings.calls.indexOf("write UpdateCheck=" + stored) <
            world.settings.calls.indexOf("write Site=1"));
    QCOMPARE(world.web.asked.size(), asked);
    QVERIFY(world.isSilent());
  }

  void theFirstRunPromptsInTheNameOfTheBrand() {
    RecordingWorld world;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("AppData")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<CompanyName>Acme</CompanyName>");
    file.close();
    world.brand = CCustomBrand(folder.path());  // which the start reads
    const auto met = inNextModal([](const QWidget& prompt) {
      QVERIFY(textOf(prompt, "lblCheck").contains(QStringLiteral("check the Acme server")));
    });
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(*met, 1);
  }

  void theAnswerAloneIsNoMarkOfALaterRun() {
    RecordingWorld world;
    world.settings.values[QStringLiteral("UpdateCheck")] = QStringLiteral("0");
    const auto met = inNextModal([](const QWidget& prompt) { push(prompt, "cmdDoNotCheck"); });
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(*met, 1);
    QCOMPARE(world.settings.values.value(QStringLiteral("Site")), QStringLiteral("1"));
  }

  void aLaterRunAsksNobodyAnything_data() {
    QTest::addColumn<QString>("answered");
    QTest::newRow("checked at the first") << "1";
    QTest::newRow("did not check at the first") << "0";
    QTest::newRow("was not asked") << "";
  }

  void aLaterRunAsksNobodyAnything() {
    QFETCH(QString, answered);
    RecordingWorld world;
    world.settings.values[QStringLiteral("Site")] = QStringLiteral("2");
    if (!answered.isEmpty()) world.settings.values[QStringLiteral("UpdateCheck")] = answered;
    const auto met = inNextModal([](const QWidget& /*prompt*/) {});
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    letItSettle();
    QCOMPARE(*met, 0);
    window->close();
    letItSettle();
    QVERIFY(world.web.asked.isEmpty());
    QCOMPARE(world.settings.values.value(QStringLiteral("UpdateCheck")), answered);
    QVERIFY(world.isSilent());
  }

  void theRunAfterTheFirstIsALaterOne() {
    RecordingWorld world;
    const auto first = inNextModal([](const QWidget& prompt) { push(prompt, "cmdDoNotCheck"); });
    Start::Main(world.surroundings(), speakEnglish)->close();
    QCOMPARE(*first, 1);
    const auto second = inNextModal([](const QWidget& /*prompt*/) {});
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    letItSettle();
    QCOMPARE(*second, 0);
  }

  void aFullStoreAtThePromptIsToldAndTheWindowOpens() {
    RecordingWorld world;
    world.settings.isFull = true;
    const auto met = inNextModal([](const QWidget& prompt) { push(prompt, "cmdCheck"); });
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(*met, 1);
    letItSettle();
    QVERIFY(world.messages.shown.isEmpty());
    QCOMPARE(world.errors.shown, QStringList{"The settings could not be stored in memory."});
    QVERIFY(window->isVisible());
    QCOMPARE(world.web.asked.size(), 1);
  }

  void theAnswerToTheFirstRunComesInFrontOfTheWindow() {
    RecordingWorld world;
    const auto met = inNextModal([](const QWidget& prompt) { push(prompt, "cmdCheck"); });
    const auto window = Start::Main(world.surroundings(), speakEnglish);
    QCOMPARE(*met, 1);
    const auto offered = inNextModal([&](const QWidget& offer) {
      QCOMPARE(offer.objectName(), QStringLiteral("FUpdateVersion"));
      QCOMPARE(offer.parentWidget(), window.get());
    });
    world.web.answer(offerOf(kAddress));
    QCOMPARE(*offered, 1);
  }

  // The answer

  void anAnswerWithoutAnOfferShowsItsMessageOrNothing_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("message");  // "" where nothing is shown
    const auto row = [](const char* rule, const QString& answer, const QString& message = {}) {
      QTest::newRow(rule) << answer << message;
    };
    row("a message", status("<newversion>0</newversion><message>Hello</message>"), "Hello");
    row("a message without a flag", status("<message>Hello</message>"), "Hello");
    row("a flag of yes", status("<newversion>yes</newversion><message>Hello</message>"), "Hello");
    row("markup in a message is text", status("<message><b>Hello</b> &amp;</message>"), "<b>Hello</b> &amp;");
    row("a message that looks like a text of the program", status("<message>Hello<0603></message>"),
        "Hello<0603>");
    row("a message that speaks of the brand is the server's", status("<message>Ostrevane greets</message>"),
        "Ostrevane greets");
    row("an address without an offer", status("<updateurl>https://update.example/</updateurl>"));
    row("no message", status("<newversion>0</newversion>"));
    row("an empty message", status("<newversion>0</newversion><message></message>"));
    row("the running version is the newest", status("<current>1</current><newversion>0</newversion>"));
    row("a status of 20 characters", status("<message>A</message>"));
    row("no status", "<newversion>1</newversion><message>Hello</message>");
    row("an old form without its end", "Version = 2.0 <versionmessage>Hello");
    row("an empty answer", "");
    row("rubbish", QString(30'000, QChar(0xFFFD)));
  }

  void anAnswerWithoutAnOfferShowsItsMessageOrNothing() {
    QFETCH(QString, answer);
    QFETCH(QString, message);
    StartWorld world;
    const auto met = inNextModal([](const QWidget& /*offer*/) {});
    world.hear(answer);
    QCOMPARE(*met, 0);
    if (message.isEmpty()) {
      QVERIFY(world.isSilent());
    } else {
      QCOMPARE(world.messages.shown.size(), 1);
      QCOMPARE(world.messages.shown[0], qMakePair(QStringLiteral("Ostrevane Message"), message));
    }
    QVERIFY(world.desktop.opened.isEmpty());
    QVERIFY(!world.status->isUpdateStarted());
  }

  void noAnswerShowsNothing() {
    StartWorld world;
    const auto met = inNextModal([](const QWidget& /*offer*/) {});
    world.hear(std::nullopt);
    QCOMPARE(*met, 0);
    QVERIFY(world.isSilent());
  }

  void aMessageIsTitledWithTheBrand_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("makers");
    QTest::addColumn<QString>("resellers");
    QTest::newRow("English") << "English"
                             << "Ostrevane Message"
                             << "Smith & Sons  Ltd Message";
    QTest::newRow("German") << "German"
                            << "Meldung von Ostrevane"
                            << "Meldung von Smith & Sons  Ltd";
    QTest::newRow("French") << "French"
                            << "Message Ostrevane"
                            << "Message Smith & Sons  Ltd";
  }

  void aMessageIsTitledWithTheBrand() {
    QFETCH(QString, language);
    QFETCH(QString, makers);
    QFETCH(QString, resellers);
    StartWorld world(language);
    const QString answer = status(QStringLiteral("<message>Hello</message>"));
    world.hear(answer);
    rebrand(world, kReseller);
    world.hear(answer);
    QCOMPARE(world.messages.shown, (QList<QPair<QString, QString>>{{makers, "Hello"}, {resellers, "Hello"}}));
  }

  void anOfferTellsTheServersMessage_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts");  // title, both buttons
    QTest::newRow("English") << "English"
                             << QStringList{"New Version Available.", "&Update Now", "Update &Later"};
    QTest::newRow("German") << "German"
                            << QStringList{"Neue Version verfügbar.", "&Jetzt laden", "&Später laden"};
    QTest::newRow("French") << "French"
                            << QStringList{"Nouvelle version disponible.", "&Mettre à jour", "&Plus tard"};
  }

  void anOfferTellsTheServersMessage() {
    QFETCH(QString, language);
    QFETCH(QStringList, texts);
    StartWorld world(language);
    for (const QString& answer : {offerOf(kAddress), kOldForm}) {
      const auto met = inNextModal([&](const QWidget& offer) {
        QCOMPARE(offer.objectName(), QStringLiteral("FUpdateVersion"));
        QCOMPARE(
            (QStringList{offer.windowTitle(), textOf(offer, "cmdUpdate"), textOf(offer, "cmdDoNotUpgrade")}),
            texts);
        QCOMPARE(offeredText(offer), QStringLiteral("Version 2 is here."));
        QCOMPARE(controlOf<QPushButton>(offer, "cmdUpdate").isEnabled(), answer != kOldForm);
        push(offer, "cmdDoNotUpgrade");
      });
      world.hear(answer);
      QCOMPARE(*met, 1);
      QVERIFY(world.isSilent());
      QVERIFY(world.desktop.opened.isEmpty());
      QVERIFY(!world.status->isUpdateStarted());
    }
  }

  void theTitlesOfBothFormsAreTextsOfTheirOwn() {
    struct Numbers : Localization::LanguageResources {
      QString GetResourceString(qint32 id) override { return QString::number(id); }
    };
    StartWorld world;
    Localization::setLanguageObject(std::make_unique<Numbers>());
    for (const auto& [answer, title] : {std::pair{offerOf(kAddress), "661"}, std::pair{kOldForm, "660"}}) {
      const auto met = inNextModal([title = QString::fromLatin1(title)](const QWidget& offer) {
        QCOMPARE(offer.windowTitle(), title);
        QCOMPARE(textOf(offer, "cmdUpdate"), QStringLiteral("458"));
        QCOMPARE(textOf(offer, "cmdDoNotUpgrade"), QStringLiteral("459"));
        push(offer, "cmdUpdate");
      });
      world.hear(answer);
      QCOMPARE(*met, 1);
    }
    world.hear(status(QStringLiteral("<message>Hello</message>")));
    QCOMPARE(world.messages.shown, (QList<QPair<QString, QString>>{{"664", "662\n663"}, {"665", "Hello"}}));
  }

  void theServersMessageIsShownAsItStands() {
    StartWorld world;
    const QString message = QStringLiteral("<b>One</b> &amp; Ostrevane<0603>\nTwo");
    const auto met = inNextModal([&](const QWidget& offer) { QCOMPARE(offeredText(offer), message); });
    world.hear(status("<newversion>1</newversion><message>" + message + "</message>"));
    QCOMPARE(*met, 1);
  }

  void updatingNowTellsAndThenOpensTheAddress_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("English")
        << "English"
        << "Download update"
        << "A setup file will now be retrieved from the internet.\nPlease choose 'Open' when "
           "you are prompted.";
    QTest::newRow("German")
        << "German"
        << "Update laden"
        << "Jetzt wird eine Installationsdatei aus dem Internet geladen.\nBitte wählen Sie "
           "„Öffnen“, wenn Sie danach gefragt werden.";
    QTest::newRow("French")
        << "French"
        << "Télécharger"
        << "Un fichier d’installation va maintenant être téléchargé depuis Internet.\nLorsque "
           "le navigateur vous le demandera, choisissez «\u00A0Ouvrir\u00A0».";
  }

  void updatingNowTellsAndThenOpensTheAddress() {
    QFETCH(QString, language);
    QFETCH(QString, title);
    QFETCH(QString, text);
    RecordingWorld world;
    speak(world, language);
    OrderedMessages messages(world.desktop);
    const auto startStatus = std::make_shared<CStartStatus>(
        StartSurroundings{.settings = world.settings,
                          .web = world.web,
                          .desktop = world.desktop,
                          .messages = messages,
                          .errors = world.errors,
                          .brand = world.brand,
                          .languageName = [] { return QStringLiteral("Klingon"); },
                          .appClass = 7,
                          .updateHost = QStringLiteral("https://elsewhere.example")});
    startStatus->CheckForUpdate();
    QCOMPARE(world.web.asked[0].host(), QStringLiteral("elsewhere.example"));
    QVERIFY(world.web.asked[0].query().endsWith(QStringLiteral("&appclass=7&language=Klingon")));
    QVERIFY(!startStatus->isUpdateStarted());
    const auto met = inNextModal([](const QWidget& offer) { push(offer, "cmdUpdate"); });
    world.web.answer(offerOf(kAddress));
    QCOMPARE(*met, 1);
    QCOMPARE(messages.shown, (QList<QPair<QString, QString>>{{title, text}}));
    QVERIFY(messages.openedBefore.isEmpty());
    QCOMPARE(world.desktop.opened, QStringList{"web " + kAddress});
    QVERIFY(startStatus->isUpdateStarted());
  }

  void updatingLaterOpensNothing_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Update Later") << false;
    QTest::newRow("Escape") << true;
  }

  void updatingLaterOpensNothing() {
    QFETCH(bool, byKey);
    StartWorld world;
    const auto met = inNextModal([byKey](QWidget& offer) {
      if (byKey) return QTest::keyClick(&offer, Qt::Key_Escape);
      push(offer, "cmdDoNotUpgrade");
    });
    world.hear(offerOf(kAddress));
    QCOMPARE(*met, 1);
    QVERIFY(world.isSilent());
    QVERIFY(world.desktop.opened.isEmpty());
    QVERIFY(!world.status->isUpdateStarted());
  }

  void anUpdateThatCannotBeOpenedIsToldWithItsAddress_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "English"
                             << "This address could not be opened: ";
    QTest::newRow("German") << "German"
                            << "Diese Adresse konnte nicht geöffnet werden: ";
  }

  void anUpdateThatCannotBeOpenedIsToldWithItsAddress() {
    QFETCH(QString, language);
    QFETCH(QString, text);
    StartWorld world(language);
    world.desktop.isWilling = false;
    const auto met = inNextModal([](const QWidget& offer) { push(offer, "cmdUpdate"); });
    world.hear(offerOf(kAddress));
    QCOMPARE(*met, 1);
    QCOMPARE(world.messages.shown.size(), 1);  // that it is to be fetched
    QCOMPARE(world.errors.shown, QStringList{text + kAddress});
    QVERIFY(!world.status->isUpdateStarted());
  }

  void onlyAWebAddressIsOpened_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("https") << kAddress << true;
    QTest::newRow("http") << "http://update.example/setup.exe" << true;
    QTest::newRow("ftp") << "ftp://update.example/setup.exe" << false;
    QTest::newRow("a file") << "file:///usr/bin/setup" << false;
    QTest::newRow("a script") << "javascript:alert(1)" << false;
    QTest::newRow("data") << "data:text/html,a" << false;
    QTest::newRow("a mail") << "mailto:a@b.example" << false;
    QTest::newRow("a path") << "/usr/bin/setup" << false;
    QTest::newRow("a program of Windows") << R"(C:\setup.exe)" << false;
    QTest::newRow("no scheme") << "update.example/setup.exe" << false;
    QTest::newRow("nothing") << "" << false;
  }

  void onlyAWebAddressIsOpened() {
    QFETCH(QString, address);
    QFETCH(bool, isOpened);
    StartWorld world;
    const auto met = inNextModal([&](QWidget& offer) {
      QCOMPARE(offeredText(offer), QStringLiteral("Version 2 is here."));
      push(offer, "cmdUpdate");
      QCOMPARE(offer.isVisible(), !isOpened);
      if (offer.isVisible()) QTest::keyClick(&offer, Qt::Key_Return);
    });
    world.hear(offerOf(address));
    QCOMPARE(*met, 1);
    QCOMPARE(world.desktop.opened, isOpened ? QStringList{"web " + address} : QStringList());
    QCOMPARE(world.messages.shown.size(), isOpened ? 1 : 0);
    QVERIFY(world.errors.shown.isEmpty());
    QCOMPARE(world.status->isUpdateStarted(), isOpened);
  }

  // When the answer comes

  void anAnswerAfterTheWindowClosedShowsNothing_data() { addAnswers(); }

  void anAnswerAfterTheWindowClosedShowsNothing() {
    QFETCH(QString, answer);
    Calculator calculator;
    calculator.load();
    calculator.trigger("mnuHelpUpdate");
    calculator.window().close();
    QCOMPARE(calculator.web.cancelled, 1);
    const auto met = inNextModal([](const QWidget& /*offer*/) {});
    calculator.web.answer(answer);
    letItSettle();
    QCOMPARE(*met, 0);
    QVERIFY(calculator.isSilent());
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void anAnswerAfterTheWindowIsGoneShowsNothing_data() { addAnswers(); }

  void anAnswerAfterTheWindowIsGoneShowsNothing() {
    QFETCH(QString, answer);
    RecordingWorld world;
    world.settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    auto window = Start::Main(world.surroundings(), speakEnglish);
    window->findChild<QAction*>(QStringLiteral("mnuHelpUpdate"))->trigger();
    QCOMPARE(world.web.asked.size(), 1);
    window.reset();
    const auto met = inNextModal([](const QWidget& /*offer*/) {});
    world.web.answer(answer);
    letItSettle();
    QCOMPARE(*met, 0);
    QVERIFY(world.isSilent());
  }

  void aWindowThatAskedNothingCancelsNothing() {
    Calculator calculator;
    calculator.load();
    calculator.window().close();
    QCOMPARE(calculator.web.cancelled, 0);
  }

  void anAnswerWhileAnotherWindowIsOpenStandsBeforeIt() {
    Calculator calculator;
    calculator.load();
    calculator.trigger("mnuHelpUpdate");
    std::shared_ptr<int> offered;
    const auto about = inNextModal([&](const QWidget& window) {
      QCOMPARE(window.objectName(), QStringLiteral("frmAbout"));
      offered = inNextModal([&window](const QWidget& offer) {
        QCOMPARE(offer.objectName(), QStringLiteral("FUpdateVersion"));
        QCOMPARE(offer.parentWidget(), &window);
        push(offer, "cmdUpdate");
      });
      calculator.web.answer(offerOf(kAddress));
      QVERIFY(window.isVisible());
      QCOMPARE(QApplication::activeModalWidget(), &window);
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*about, 1);
    QCOMPARE(*offered, 1);
    QCOMPARE(calculator.desktop.opened, QStringList{"web " + kAddress});
  }

  void whileAnOfferIsOpenNothingMoreIsAsked() {
    Calculator calculator;
    calculator.load();
    calculator.trigger("mnuHelpUpdate");
    const auto met = inNextModal([&](const QWidget& /*offer*/) { calculator.trigger("mnuHelpUpdate"); });
    calculator.web.answer(offerOf(kAddress));
    QCOMPARE(*met, 1);
    QCOMPARE(calculator.web.asked.size(), 1);
    calculator.trigger("mnuHelpUpdate");
    QCOMPARE(calculator.web.asked.size(), 2);
  }

  void aWindowThatClosesBehindAnOfferDoesNoHarm() {
    Calculator calculator;
    calculator.load();
    calculator.trigger("mnuHelpUpdate");
    const auto met = inNextModal([&](const QWidget& offer) {
      calculator.window().close();
      push(offer, "cmdDoNotUpgrade");
    });
    calculator.web.answer(offerOf(kAddress));
    QCOMPARE(*met, 1);
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

 private:
  static void addAnswers() {
    QTest::addColumn<QString>("answer");
    QTest::newRow("an offer") << offerOf(kAddress);
    QTest::newRow("a message") << status(QStringLiteral("<message>Hello</message>"));
    QTest::newRow("the old form") << kOldForm;
    QTest::newRow("nothing") << "";
  }
};

QTEST_MAIN(UpdateCheckTest)
#include "update_check_test.moc"
