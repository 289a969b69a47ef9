#include <QPlainTextEdit>
#include <QtTest>

#include "error_handler.h"
#include "FError.h"
#include "modal_message_box.h"
#include "modal_window.h"

namespace {

constexpr const char* kVersion = "1.0.0";

QString shownText(const QWidget& window) {
  return controlOf<QPlainTextEdit>(window, "txtError").toPlainText();
}

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The error handler over a log of the test's own.
struct ErrorWorld : RecordingWorld {
  QTemporaryDir folder;
  DebugLogFile log{folder.filePath(QStringLiteral("state"))};
  CError handler{brand, desktop, clock, log};
};

}  // namespace

/// Where unexpected errors end: the error window and the handler that shows it.
class ErrorWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("Tessaloom")); }
  void cleanup() { Localization::setLanguageObject(nullptr); }

  void itsTextsAreOfTheLanguage_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts");  // caption, lblError, lblToEmail, cmdEmail, cmdContinue
    QTest::newRow("English")
        << "English"
        << QStringList{
               "Tessaloom  Error",
               QStringLiteral(
                   "An error has occured in this application.  The application has returned the following "
                   "information about this error:"),
               QStringLiteral(
                   "Please take a moment to send this error information to the Ostrevane technical support "
                   "team for review.  You may also continue without sending this error to us."),
               "&Send Error", "&Continue"};
    QTest::newRow("German")
        << "German"
        << QStringList{
               "Tessaloom  Fehler",
               QStringLiteral(
                   "In diesem Programm ist ein Fehler aufgetreten. Das Programm meldet dazu folgende "
                   "Informationen:"),
               QStringLiteral(
                   "Bitte nehmen Sie sich einen Augenblick Zeit und senden Sie diese Fehlerinformationen zur "
                   "Prüfung an den technischen Support von Ostrevane. Sie können auch weiterarbeiten, ohne "
                   "uns diesen Fehler zu senden."),
               "Fehler &senden", "&Weiter"};
    QTest::newRow("French")
        << "French"
        << QStringList{
               "Tessaloom  Erreur",
               QStringLiteral(
                   "Une erreur s’est produite dans cette application. Voici les informations qu’elle a "
                   "renvoyées au sujet de cette erreur\u00A0:"),
               QStringLiteral(
                   "Prenez un instant pour envoyer ces informations à l’équipe d’assistance technique "
                   "d’Ostrevane, qui les examinera. Vous pouvez aussi continuer sans nous les envoyer."),
               "&Signaler l’erreur", "&Continuer"};
  }

  void itsTextsAreOfTheLanguage() {
    QFETCH(QString, language);
    QFETCH(QStringList, texts);
    RecordingWorld world;
    speak(world, language);
    const FError window(nullptr, world.brand.values(), world.desktop);
    QCOMPARE((QStringList{window.windowTitle(), textOf(window, "lblError"), textOf(window, "lblToEmail"),
                          textOf(window, "cmdEmail"), textOf(window, "cmdContinue")}),
             texts);
  }

  void itShowsAndMailsTheText_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a text") << "Overflow";
    QTest::newRow("nothing") << "";
    QTest::newRow("lines") << "one\ntwo\n\nfour";
    QTest::newRow("quotes and ampersands") << "\"a\" & 'b' &c";
    QTest::newRow("markup is text") << "<b>a</b><img src='x'>";
    QTest::newRow("a tag is text") << "Error<0603>";
    QTest::newRow("what looks like a mail's parts") << "?subject=a&body=b";
    QTest::newRow("umlauts and an emoji") << "Käufer 😀";
    QTest::newRow("what was no UTF-8") << QString::fromUtf8(
        "a\xFF"
        "b");
    QTest::newRow("100 KB") << QStringLiteral("0123456789").repeated(10'000);
    QTest::newRow("100 KB of lines") << QStringLiteral("line\n").repeated(20'000);
  }

  void itShowsAndMailsTheText() {
    QFETCH(QString, text);
    RecordingWorld world;
    FError window(nullptr, world.brand.values(), world.desktop);
    window.setText(text);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(shownText(window), text);
    QVERIFY(controlOf<QPlainTextEdit>(window, "txtError").isReadOnly());
    const QSize screen = window.screen()->availableSize();
    QVERIFY(window.width() <= screen.width() && window.height() <= screen.height());
    push(window, "cmdEmail");
    QCOMPARE(world.desktop.opened,
             QStringList{"mail mailto:errors@ostrevane.example?subject=Tessaloom 1.0.0 Error&body=" + text});
    QVERIFY(!window.isVisible());
  }

  void theMailGoesToTheReseller() {
    RecordingWorld world;
    rebrand(world, kReseller);
    FError window(nullptr, world.brand.values(), world.desktop);
    window.setText(QStringLiteral("Overflow"));
    window.show();
    push(window, "cmdEmail");
    QCOMPARE(world.desktop.opened,
             QStringList{"mail mailto:faults@smith.example?subject=Tessaloom 1.0.0 Error&body=Overflow"});
  }

  void theMailIsTheSameInEveryLanguage() {
    RecordingWorld world;
    speak(world, QStringLiteral("German"));
    FError window(nullptr, world.brand.values(), world.desktop);
    window.setText(QStringLiteral("Overflow"));
    window.show();
    push(window, "cmdEmail");
    QCOMPARE(world.desktop.opened,
             QStringList{"mail mailto:errors@ostrevane.example?subject=Tessaloom 1.0.0 Error&body=Overflow"});
  }

  void aMailThatCannotBeOpenedKeepsTheWindowAndTellsTheAddress_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "English"
                             << "This address could not be opened: errors@ostrevane.example";
    QTest::newRow("German") << "German"
                            << "Diese Adresse konnte nicht geöffnet werden: errors@ostrevane.example";
    QTest::newRow("French") << "French"
                            << "Cette adresse n’a pas pu être ouverte\u00A0: errors@ostrevane.example";
  }

  void aMailThatCannotBeOpenedKeepsTheWindowAndTellsTheAddress() {
    QFETCH(QString, language);
    QFETCH(QString, text);
    RecordingWorld world;
    speak(world, language);
    world.desktop.isWilling = false;
    FError window(nullptr, world.brand.values(), world.desktop);
    window.setText(QStringLiteral("Overflow"));
    window.show();
    push(window, "cmdEmail");
    QVERIFY(window.isVisible());
    QCOMPARE(textOf(window, "lblToEmail"), text);
    QCOMPARE(shownText(window), QStringLiteral("Overflow"));
    push(window, "cmdContinue");
    QVERIFY(!window.isVisible());
  }

  void continueClosesWithoutAMail_data() {
    QTest::addColumn<int>("key");  // 0 for the button
    QTest::newRow("by the button") << 0;
    QTest::newRow("by Enter") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("by Escape") << static_cast<int>(Qt::Key_Escape);
  }

  void continueClosesWithoutAMail() {
    QFETCH(int, key);
    RecordingWorld world;
    FError window(nullptr, world.brand.values(), world.desktop);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    if (key == 0) {
      push(window, "cmdContinue");
    } else {
      QTest::keyClick(window.focusWidget(), static_cast<Qt::Key>(key));
    }
    QVERIFY(!window.isVisible());
    QVERIFY(world.desktop.opened.isEmpty());
  }

  void theHandlerLogsAndShows_data() {
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("in front of a window") << true;
    QTest::newRow("with nobody") << false;
  }

  void theHandlerLogsAndShows() {
    QFETCH(bool, hasParent);
    ErrorWorld world;
    QWidget parent;
    if (hasParent) parent.show();
    const auto met = inNextModal([&](const QWidget& window) {
      QCOMPARE(window.objectName(), QStringLiteral("FError"));
      QCOMPARE(shownText(window), QStringLiteral("Overflow\nin the fees"));
      QCOMPARE(window.parentWidget(), hasParent ? &parent : nullptr);
      push(window, "cmdContinue");
    });
    world.handler.show(hasParent ? &parent : nullptr, QStringLiteral("Overflow\nin the fees"));
    QCOMPARE(*met, 1);
    const QByteArray line = contentOf(world.log.path());
    QVERIFY2(line.startsWith("2003-02-06T12:00:00"), line.constData());
    QVERIFY2(line.endsWith(QByteArray(" ") + kVersion + R"( Overflow\nin the fees)" + '\n'),
             line.constData());
    QCOMPARE(line.count('\n'), 1);
  }

  void theProgramGoesOnAfterEachError() {
    ErrorWorld world;
    for (int error = 1; error <= 3; ++error) {
      const auto met = inNextModal([](const QWidget& window) { push(window, "cmdContinue"); });
      world.handler.show(nullptr, QStringLiteral("Error %1").arg(error));
      QCOMPARE(*met, 1);
      QCOMPARE(contentOf(world.log.path()).count('\n'), error);
    }
  }

  void anErrorIsLoggedBeforeItIsShown() {
    ErrorWorld world;
    QByteArray logged;
    const auto met = inNextModal([&](const QWidget& /*window*/) { logged = contentOf(world.log.path()); });
    world.handler.show(nullptr, QStringLiteral("Overflow"));
    QCOMPARE(*met, 1);
    QVERIFY(logged.endsWith(" Overflow\n"));
  }

  void withoutALogItIsShown() {
    ErrorWorld world;
    QFile obstacle(world.folder.filePath(QStringLiteral("state")));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    const auto met =
        inNextModal([](const QWidget& window) { QCOMPARE(shownText(window), QStringLiteral("Overflow")); });
    world.handler.show(nullptr, QStringLiteral("Overflow"));
    QCOMPARE(*met, 1);
  }

  void aMessageIsPlainTextWithOneButton_data() {
    QTest::addColumn<bool>("isCritical");
    QTest::newRow("plain") << false;
    QTest::newRow("critical") << true;
  }

  void aMessageIsPlainTextWithOneButton() {
    QFETCH(bool, isCritical);
    const QString text = QStringLiteral("<b>M</b> &amp; <a href='https://x.example'>N</a>");
    const auto met = inNextModal([&](const QWidget& window) {
      const auto* box = qobject_cast<const QMessageBox*>(&window);
      QVERIFY(box != nullptr);
      QCOMPARE(box->windowTitle(), QStringLiteral("A title"));
      QCOMPARE(box->text(), text);
      QCOMPARE(box->textFormat(), Qt::PlainText);
      QCOMPARE(box->standardButtons(), QMessageBox::Ok);
      QCOMPARE(box->icon(), isCritical ? QMessageBox::Critical : QMessageBox::NoIcon);
    });
    ModalMessageBox messages;
    const QString title = QStringLiteral("A title");
    isCritical ? messages.showCritical(nullptr, title, text) : messages.showPlain(nullptr, title, text);
    QCOMPARE(*met, 1);
  }
};

QTEST_MAIN(ErrorWindowTest)
#include "error_window_test.moc"
