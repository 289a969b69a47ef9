#include <QPlainTextEdit>
#include <QtTest>

#include "frmeBayFees.h"
#include "loopback_server.h"
#include "modal_window.h"
#include "network_request.h"

namespace {

using namespace std::chrono_literals;

constexpr int kLongerThanPatience = 12'000;  // milliseconds
const QByteArray kOffer =
    "<status><newversion>1</newversion><updateurl>https://update.example/setup.exe</updateurl>"
    "<message>Version 2 is here.</message></status>";

/// A calculator window whose update check asks a server of the test's, over the network.
struct OnlineCalculator : RecordingWorld {
  explicit OnlineCalculator(LoopbackServer::Serve serve) : server(std::move(serve)) {
    settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    speak(*this, QStringLiteral("German"));
    window = std::make_unique<frmeBayFees>(surroundings());
    window->Initialize(std::make_shared<CStartStatus>(
        StartSurroundings{.settings = settings,
                          .web = network,
                          .desktop = desktop,
                          .messages = messages,
                          .errors = errors,
                          .brand = brand,
                          .languageName = [this] { return languages.CurrentLanguage().Name; },
                          .appClass = 1,
                          .updateHost = server.url(QString()).toString()}));
    window->Form_Load();
  }

  void ask() const { window->findChild<QAction*>(QStringLiteral("mnuHelpUpdate"))->trigger(); }

  /// All that the user was told, and what was opened.
  [[nodiscard]] QStringList told() const {
    QStringList all = offers;
    for (const auto& [title, text] : messages.shown) all << title << text;
    return all + errors.shown + desktop.opened;
  }

  /// Reads the offer that is open, if one is, and takes it if that can be done.
  void answerOffer() {
    QWidget* offer = QApplication::activeModalWidget();
    if (offer == nullptr) return;
    offers << offer->windowTitle() << controlOf<QPlainTextEdit>(*offer, "txtMessage").toPlainText();
    push(*offer, "cmdUpdate");
    if (offer->isVisible()) push(*offer, "cmdDoNotUpgrade");
  }

  LoopbackServer server;
  NetworkRequest network;
  QStringList offers;  ///< title, text
  std::unique_ptr<frmeBayFees> window;
};

}  // namespace

/// The update check whole: from the menu over the network to what the user is told.
class UpdateOverNetworkTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Localization::setLanguageObject(nullptr); }

  void theUserIsToldWhatTheServerSays_data() {
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isReset");
    QTest::addColumn<QStringList>("told");

    const QString fetching =
        "Jetzt wird eine Installationsdatei aus dem Internet geladen.\nBitte wählen Sie „Öffnen“, "
        "wenn Sie danach gefragt werden.";
    // clang-format off
    QTest::newRow("an offer") << httpAnswer(kOffer) << false
        << QStringList{"Neue Version verfügbar.", "Version 2 is here.", "Update laden", fetching,
                       "web https://update.example/setup.exe"};
    QTest::newRow("a message") << httpAnswer("<status><newversion>0</newversion><message>Hallo</message></status>") << false
        << QStringList{"Meldung von Ostrevane", "Hallo"};
    QTest::newRow("the old form") << httpAnswer("Version = 2.0\n<versionmessage>Version 2 is here.</versionmessage>") << false
        << QStringList{"Neue Version verfügbar.", "Version 2 is here."};
    QTest::newRow("nothing new") << httpAnswer("<status><newversion>0</newversion></status>") << false << QStringList();
    QTest::newRow("an offer that is no success") << httpAnswer(kOffer, "404 Not Found") << false << QStringList();
    QTest::newRow("silence") << QByteArray() << false << QStringList();
    QTest::newRow("a reset within the offer") << httpAnswer(kOffer).chopped(9) << true << QStringList();
    // clang-format on
  }

  void theUserIsToldWhatTheServerSays() {
    QFETCH(QByteArray, answer);
    QFETCH(bool, isReset);
    QFETCH(QStringList, told);
    const auto serve = [&](QTcpSocket& connection, const QByteArray& question) {
      // Whoever asks again gets an answer that says nothing.
      connection.write(std::exchange(m_isAsked, true) ? httpAnswer("") : answer);
      QVERIFY2(question.startsWith("GET /version/versioncheck.asp?app=Tessaloom&version=1.0.0&appclass=1"
                                   "&language=German HTTP/1.1\r\n"),
               question);
      connection.flush();
      if (isReset) connection.abort();
    };
    m_isAsked = false;
    OnlineCalculator calculator(serve);
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] { calculator.answerOffer(); });
    user.start(5ms);
    // It asks again only when it has done with the first question.
    const auto asksAgain = [&] {
      calculator.ask();
      return calculator.server.questions.size() > 1;
    };
    QVERIFY(QTest::qWaitFor(asksAgain, kLongerThanPatience));
    QCOMPARE(calculator.told(), told);
  }

  void aSlowAnswerWhileTheWindowClosesIsNotHeard() {
    QPointer<QTcpSocket> connection;
    const QByteArray answer = httpAnswer(kOffer);
    OnlineCalculator calculator([&](QTcpSocket& socket, const QByteArray& /*question*/) {
      connection = &socket;
      socket.write(answer.chopped(9));
    });
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] { calculator.answerOffer(); });
    user.start(5ms);
    calculator.ask();
    QVERIFY(QTest::qWaitFor([&] { return connection && connection->bytesToWrite() == 0; }));
    calculator.window->close();
    if (connection) connection->write(answer.last(9));
    QTest::qWait(100);
    QVERIFY(connection.isNull());  // hung up
    QCOMPARE(calculator.told(), QStringList());
  }

 private:
  bool m_isAsked = false;
};

QTEST_MAIN(UpdateOverNetworkTest)
#include "update_over_network_test.moc"
