#include <algorithm>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <QTemporaryDir>
#include <QtTest>

#include "loopback_server.h"
#include "network_request.h"

namespace {

using namespace std::chrono_literals;

constexpr int kLongestAnswer = 32767;
constexpr long kModestMemory = 32L * 1024;  // in kB
const QString kGreeting = QStringLiteral("<status>Größe</status>");

/// A question, and everything that came of it.
class Question {
 public:
  int told = 0;
  std::optional<QString> text;
  NetworkRequest request;

  void ask(const QUrl& address) {
    request.get(address, [this](const std::optional<QString>& answer) {
      ++told;
      text = answer;
      m_waiting.quit();
    });
  }
  /// Waits until it is answered.
  [[nodiscard]] bool isAnswered(int times = 1) {
    if (told < times) {
      QTimer::singleShot(5s, &m_waiting, &QEventLoop::quit);
      m_waiting.exec();
    }
    return told == times;
  }
  /// Waits a little longer: nothing may be told twice.
  [[nodiscard]] bool isAnsweredOnce() {
    if (!isAnswered()) return false;
    QTest::qWait(5);
    return told == 1;
  }

 private:
  QEventLoop m_waiting;
};

LoopbackServer::Serve saying(const QByteArray& answer) {
  return [answer](QTcpSocket& connection, const QByteArray& /*question*/) { connection.write(answer); };
}

LoopbackServer::Serve sayingAtLast(const QByteArray& answer) {
  return [answer](QTcpSocket& connection, const QByteArray& /*question*/) {
    connection.write(answer);
    connection.disconnectFromHost();
  };
}

void sayNothing(QTcpSocket& /*connection*/, const QByteArray& /*question*/) {}

QByteArray chunk(const QByteArray& bytes) {
  return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
}

const QByteArray kOk = "HTTP/1.1 200 OK\r\n";
const QByteArray kChunked = kOk + "Transfer-Encoding: chunked\r\n\r\n";

QByteArray deflated(const QByteArray& bytes) {
  constexpr int best = 9;
  constexpr qsizetype sizeOfLength = 4;
  return qCompress(bytes, best).mid(sizeOfLength);
}

/// The same in the other wrapping: a header, the stream without its own, checksum and length.
QByteArray gzipped(const QByteArray& bytes) {
  quint32 checksum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    checksum ^= static_cast<quint8>(byte);
    for (int bit = 0; bit < 8; ++bit) checksum = (checksum >> 1U) ^ ((checksum & 1U) != 0 ? 0xEDB88320 : 0);
  }
  const quint32 words[] = {qToLittleEndian(~checksum), qToLittleEndian(static_cast<quint32>(bytes.size()))};
  QByteArray tail(sizeof words, '\0');
  std::memcpy(tail.data(), words, sizeof words);
  const QByteArray stream = deflated(bytes);
  return QByteArray::fromHex("1f8b08000000000002ff") + stream.mid(2, stream.size() - 6) + tail;
}

QByteArray utf8(const char16_t* text, qsizetype times) {
  return QString::fromUtf16(text).repeated(times).toUtf8();
}

/// The largest number of bytes that this process has had in memory, in kB.
long peakMemory() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  const QByteArray text = status.readAll();
  const qsizetype at = text.indexOf("VmHWM:");
  return at < 0 ? 0 : text.mid(at + 6, text.indexOf(" kB", at) - at - 6).trimmed().toLong();
}

bool forgetPeakMemory() {
  QFile file(QStringLiteral("/proc/self/clear_refs"));
  return file.open(QIODevice::WriteOnly) && file.write("5") == 1;
}

/// Certificates made for this run: an authority, and servers that it vouches for.
class Certificates {
 public:
  [[nodiscard]] bool make() {
    return m_folder.isValid() &&
           openssl({"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                    "-keyout", "authority.key", "-out", "authority.pem", "-subj", "/CN=Authority", "-days",
                    "2"}) &&
           makeServer("server", "IP:127.0.0.1", "2") && makeServer("stranger", "DNS:stranger.example", "2") &&
           makeServer("expired", "IP:127.0.0.1", "-1");
  }

  [[nodiscard]] QSslConfiguration identity(const QString& name) const {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificate(name));
    configuration.setPrivateKey(QSslKey(read(name + QStringLiteral(".key")), QSsl::Ec));
    return configuration;
  }

  [[nodiscard]] QSslCertificate certificate(const QString& name) const {
    return QSslCertificate(read(name + QStringLiteral(".pem")));
  }

 private:
  [[nodiscard]] bool makeServer(const QString& name, const QString& host, const QString& days) const {
    const QString key = name + QStringLiteral(".key");
    return openssl({"req", "-new", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                    "-keyout", key, "-out", "request", "-subj", "/CN=Server", "-addext",
                    "subjectAltName=" + host}) &&
           openssl({"x509", "-req", "-in", "request", "-copy_extensions", "copy", "-CA", "authority.pem",
                    "-CAkey", "authority.key", "-days", days, "-out", name + QStringLiteral(".pem")});
  }

  [[nodiscard]] bool openssl(const QStringList& arguments) const {
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("openssl"), arguments);
    if (process.waitForFinished() && process.exitCode() == 0) return true;
    qWarning().noquote() << "openssl" << arguments << process.errorString() << process.readAll();
    return false;
  }

  [[nodiscard]] QByteArray read(const QString& name) const {
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir m_folder;
};

/// A byte each second.
LoopbackServer::Serve dripping(const QByteArray& first) {
  return [first](QTcpSocket& connection, const QByteArray& /*question*/) {
    connection.write(first);
    auto* timer = new QTimer(&connection);
    QObject::connect(timer, &QTimer::timeout, &connection, [&connection] { connection.write("x"); });
    timer->start(1s);
  };
}

/// From /0 to /1 and so on, as often as `redirections` says, and then an answer. The same question has the
/// same answer: a connection that is hung up is asked for again.
LoopbackServer::Serve passingOn(int redirections, const QByteArray& last) {
  return [redirections, last](QTcpSocket& connection, const QByteArray& question) {
    const int at = question.split(' ').value(1).mid(1).toInt();
    connection.write(at < redirections ? redirection(QUrl(QStringLiteral("/%1").arg(at + 1))) : last);
  };
}

/// What a question says besides its first line, by names in small letters.
QMap<QByteArray, QByteArray> headersOf(const QByteArray& question) {
  QMap<QByteArray, QByteArray> headers;
  for (const QByteArray& line : question.trimmed().split('\n').mid(1)) {
    const qsizetype colon = line.indexOf(':');
    headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
  }
  return headers;
}

/// How many different pages a server was asked for.
qsizetype pathsOf(const LoopbackServer& server) {
  QSet<QByteArray> paths;
  for (const QByteArray& question : server.questions) paths << question.left(question.indexOf('\r'));
  return paths.size();
}

/// A question to a server that takes its time.
struct Slow {
  const char* name;
  QUrl address;
  std::optional<QString> expected;
  int told = 0;
  qint64 after = 0;  ///< milliseconds
  std::optional<QString> text = {};
  QElapsedTimer clock = {};
  std::unique_ptr<NetworkRequest> request = std::make_unique<NetworkRequest>();

  void ask() {
    clock.start();
    request->get(address, [this](const std::optional<QString>& answer) {
      ++told;
      after = clock.elapsed();
      text = answer;
    });
  }
  [[nodiscard]] QString seen() const {
    return QStringLiteral("%1: told %2 times, at last \"%3\" after %4 ms")
        .arg(QLatin1String(name))
        .arg(told)
        .arg(text.value_or(QStringLiteral("nothing")))
        .arg(after);
  }
};

/// While it lives, this process trusts one more authority.
class Trust {
 public:
  explicit Trust(const QSslCertificate& authority) {
    QSslConfiguration trusting = m_before;
    trusting.addCaCertificate(authority);
    QSslConfiguration::setDefaultConfiguration(trusting);
  }
  ~Trust() { QSslConfiguration::setDefaultConfiguration(m_before); }
  Q_DISABLE_COPY_MOVE(Trust)

 private:
  QSslConfiguration m_before = QSslConfiguration::defaultConfiguration();
};

}  // namespace

/// Against real servers on loopback, as bad as servers can be.
class NetworkRequestTest : public QObject {
  Q_OBJECT

 private slots:
  void readsAnAnswer_data() {
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("text");
    const QByteArray greeting = kGreeting.toUtf8();
    const QByteArray inflating = "Content-Encoding: ";
    const auto x = [](qsizetype times) { return QByteArray(times, 'x'); };
    const auto shown = [](const char16_t* text, qsizetype times) {
      return QString::fromUtf16(text).repeated(times).left(kLongestAnswer);
    };

    // clang-format off
    QTest::newRow("with its length")              << httpAnswer(greeting) << kGreeting;
    QTest::newRow("in chunks")                    << kChunked + chunk(greeting.left(3)) + chunk(greeting.mid(3)) + "0\r\n\r\n" << kGreeting;
    QTest::newRow("a character in two chunks")    << kChunked + chunk(greeting.left(11)) + chunk(greeting.mid(11)) + "0\r\n\r\n" << kGreeting;
    QTest::newRow("of the old protocol")          << "HTTP/1.0 200 OK\r\n\r\n" + greeting << kGreeting;
    QTest::newRow("until the connection closes")  << kOk + "Connection: close\r\n\r\n" + greeting << kGreeting;
    QTest::newRow("empty")                        << httpAnswer("") << QString();
    QTest::newRow("deflated")                     << httpAnswer(deflated(greeting), "200 OK", inflating + "deflate\r\n") << kGreeting;
    QTest::newRow("gzipped")                      << httpAnswer(gzipped(greeting), "200 OK", inflating + "gzip\r\n") << kGreeting;
    QTest::newRow("Latin-1")                      << httpAnswer(kGreeting.toLatin1()) << kGreeting;
    QTest::newRow("UTF-8 that says so")           << httpAnswer("\xEF\xBB\xBF" + greeting) << kGreeting;
    QTest::newRow("Latin-1, whatever is claimed") << httpAnswer(kGreeting.toLatin1(), "200 OK", "Content-Type: text/plain; charset=utf-8\r\n") << kGreeting;
    QTest::newRow("UTF-16, which is wrong")       << httpAnswer(QByteArray("\xFF\xFE<\0s\0", 6)) << QString::fromLatin1("\xFF\xFE<\0s\0", 6);
    QTest::newRow("Latin-1, a letter at its end") << httpAnswer("Caf\xE9") << QStringLiteral("Café");
    QTest::newRow("UTF-8 with a U+FFFD of its own") << httpAnswer("\xEF\xBF\xBD" + greeting) << QChar(QChar::ReplacementCharacter) + kGreeting;
    QTest::newRow("zero bytes in it")             << httpAnswer(QByteArray("a\0b", 3)) << QString::fromLatin1("a\0b", 3);
    QTest::newRow("32767 characters")             << httpAnswer(x(32767)) << QString(kLongestAnswer, u'x');
    QTest::newRow("32768 characters")             << httpAnswer(x(32768)) << QString(kLongestAnswer, u'x');
    QTest::newRow("two bytes at the cut")         << httpAnswer(utf8(u"é", 32768)) << shown(u"é", 32768);
    QTest::newRow("three bytes at the cut")       << httpAnswer(utf8(u"€", 32768)) << shown(u"€", 32768);
    QTest::newRow("four bytes before the cut")    << httpAnswer("x" + utf8(u"😀", 20000)) << u'x' + shown(u"😀", 16383);
    // 131068 bytes suffice for any 32767 characters; where they end need not be the end of a character.
    QTest::newRow("two bytes where reading ends") << httpAnswer("x" + utf8(u"é", 70000)) << u'x' + shown(u"é", 32766);
    QTest::newRow("three bytes, in chunks")       << kChunked + chunk(utf8(u"€", 40000)) + chunk(utf8(u"€", 40000)) + "0\r\n\r\n" << shown(u"€", 40000);
    // clang-format on
  }

  void readsAnAnswer() {
    QFETCH(QByteArray, answer);
    QFETCH(QString, text);
    const LoopbackServer server(sayingAtLast(answer));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QVERIFY(question.text.has_value());
    QCOMPARE(*question.text, text);
  }

  void readsNothing_data() {
    QTest::addColumn<QByteArray>("answer");
    const QByteArray greeting = kGreeting.toUtf8();

    // clang-format off
    QTest::newRow("created")                       << httpAnswer(greeting, "201 Created");
    QTest::newRow("only a part")                   << httpAnswer(greeting, "206 Partial Content");
    QTest::newRow("several choices")               << httpAnswer(greeting, "300 Multiple Choices");
    QTest::newRow("redirected without a target")   << httpAnswer(greeting, "302 Found");
    QTest::newRow("not modified")                  << QByteArray("HTTP/1.1 304 Not Modified\r\n\r\n");
    QTest::newRow("asks for a password")           << httpAnswer(greeting, "401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n");
    QTest::newRow("not found, with a text")        << httpAnswer(greeting, "404 Not Found");
    QTest::newRow("broken, with a text")           << httpAnswer(greeting, "500 Internal Server Error");
    QTest::newRow("less than was announced")       << kOk + "Content-Length: 1000\r\n\r\n" + greeting;
    QTest::newRow("not HTTP")                      << greeting + "\r\n\r\n";
    QTest::newRow("a headline alone")              << kOk;
    QTest::newRow("closed without a word")         << QByteArray();
    QTest::newRow("no packed text")                << httpAnswer(greeting, "200 OK", "Content-Encoding: gzip\r\n");
    // clang-format on
  }

  void readsNothing() {
    QFETCH(QByteArray, answer);
    const LoopbackServer server(sayingAtLast(answer));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    QVERIFY(!server.questions.isEmpty());
  }

  void brokenChunksBringNoMoreThanWasSent_data() {
    QTest::addColumn<QByteArray>("chunks");
    const QByteArray greeting = kGreeting.toUtf8();
    QTest::newRow("a length that is no number") << "no number\r\n" + greeting + "\r\n0\r\n\r\n";
    QTest::newRow("ends within a length") << chunk(greeting) + "4";
    QTest::newRow("ends within a chunk") << "40\r\n" + greeting;
    QTest::newRow("ends before the last chunk") << chunk(greeting);
  }

  // Whether what came before the breakage counts is left open, but it is told once, and is nothing else.
  void brokenChunksBringNoMoreThanWasSent() {
    QFETCH(QByteArray, chunks);
    const LoopbackServer server(sayingAtLast(kChunked + chunks));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QVERIFY2(kGreeting.startsWith(question.text.value_or(QString())), qPrintable(*question.text));
  }

  void aConnectionThatIsResetIsNoAnswer() {
    const LoopbackServer server([](QTcpSocket& connection, const QByteArray& /*question*/) {
      connection.write(kOk + "Content-Length: 1000\r\n\r\nhalf");
      connection.flush();
      connection.setSocketOption(QAbstractSocket::LowDelayOption, 1);
      connection.abort();
    });
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
  }

  void aPortThatNobodyListensToIsNoAnswer() {
    QUrl nobody;
    {
      const LoopbackServer server(sayNothing);
      nobody = server.url();
    }
    Question question;
    question.ask(nobody);
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
  }

  void onlyTheWebIsAsked_data() {
    QTest::addColumn<QUrl>("address");
    QTest::newRow("no address") << QUrl();
    QTest::newRow("a path") << QUrl(QStringLiteral("/version/versioncheck.asp"));
    QTest::newRow("a resource of the program") << QUrl(QStringLiteral("qrc:/qt-project.org/"));
    QTest::newRow("the data itself") << QUrl(QStringLiteral("data:text/plain,<status>"));
    QTest::newRow("an unknown scheme") << QUrl(QStringLiteral("gopher://127.0.0.1/"));
  }

  void onlyTheWebIsAsked() {
    QFETCH(QUrl, address);
    Question question;
    question.ask(address);
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
  }

  void theAddressIsAskedAsItStandsAndNothingOfTheUserIsSaid() {
    QCOMPARE(QLocale::system().name(), QStringLiteral("de_DE"));  // or there is nothing to keep to oneself
    const LoopbackServer server(saying(httpAnswer("x", "200 OK", "Set-Cookie: known=1; Path=/\r\n")));
    Question question;
    question.ask(
        server.url(QStringLiteral("/version/versioncheck.asp?app=Tessaloom&language=Fran%C3%A7ais")));
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QStringLiteral("x"));
    QVERIFY2(server.questions[0].startsWith(
                 "GET /version/versioncheck.asp?app=Tessaloom&language=Fran%C3%A7ais HTTP/1.1\r\n"),
             server.questions[0]);
    question.ask(server.url());
    QVERIFY(question.isAnswered(2));
    QCOMPARE(server.questions.size(), 2);
    for (const QByteArray& heard : server.questions) {
      const QMap<QByteArray, QByteArray> headers = headersOf(heard);
      QCOMPARE(headers.keys(),
               (QByteArrayList{"accept-encoding", "accept-language", "connection", "host", "user-agent"}));
      QCOMPARE(headers["accept-language"], "*");
      QCOMPARE(headers["user-agent"], "Tessaloom/1.0.0");
    }
  }

  void asksNothingBeforeTheFirstQuestion() {
    const LoopbackServer server(saying(httpAnswer("x")));
    NetworkRequest request;
    request.cancel();
    QTest::qWait(20);
    QCOMPARE(server.connections, 0);
  }

  void asksAgain() {
    int asked = 0;
    const LoopbackServer server([&asked](QTcpSocket& connection, const QByteArray& /*question*/) {
      connection.write(++asked == 1 ? kOk + "Content-Length: 9\r\n\r\nhalf" : httpAnswer("second"));
      if (asked == 1) connection.disconnectFromHost();
    });
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    question.ask(server.url());
    QVERIFY(question.isAnswered(2));
    QCOMPARE(question.text, QStringLiteral("second"));  // and nothing of the first
  }

  void asksAgainFromTheAnswer() {
    const LoopbackServer server(saying(httpAnswer("x")));
    NetworkRequest request;
    int told = 0;
    WebRequest::Answered again = [&](const std::optional<QString>& /*text*/) {
      if (++told < 3) request.get(server.url(), again);
    };
    request.get(server.url(), again);
    QVERIFY(QTest::qWaitFor([&] { return told == 3; }));
    QCOMPARE(server.questions.size(), 3);
  }

  void isNeverToldBeforeTheQuestionIsOut() {
    Question question;
    question.ask(QUrl());
    QCOMPARE(question.told, 0);
    QVERIFY(question.isAnsweredOnce());
  }

  void isToldNothingAfterACancel() {
    QTcpSocket* held = nullptr;
    LoopbackServer server(
        [&held](QTcpSocket& connection, const QByteArray& /*question*/) { held = &connection; });
    Question question;
    question.ask(server.url());
    QVERIFY(QTest::qWaitFor([&] { return held != nullptr; }));
    QPointer<QTcpSocket> connection = held;
    question.request.cancel();
    if (connection) connection->write(httpAnswer("late"));
    QTest::qWait(100);
    QCOMPARE(question.told, 0);
    QVERIFY(connection.isNull());  // hung up
    question.request.cancel();     // once more does no harm
  }

  void isToldNothingAfterACancelInTheMiddleOfTheAnswer() {
    QPointer<QTcpSocket> connection;
    LoopbackServer server([&connection](QTcpSocket& socket, const QByteArray& /*question*/) {
      connection = &socket;
      socket.write(kOk + "Content-Length: 9\r\n\r\nhalf");
    });
    Question question;
    question.ask(server.url());
    QVERIFY(QTest::qWaitFor([&] { return connection && connection->bytesToWrite() == 0; }));
    QTest::qWait(20);
    question.request.cancel();
    if (connection) connection->write("other");
    QTest::qWait(100);
    QCOMPARE(question.told, 0);
  }

  void asksAgainAfterACancel() {
    bool isFirst = true;
    const LoopbackServer server([&isFirst](QTcpSocket& connection, const QByteArray& /*question*/) {
      if (!std::exchange(isFirst, false)) connection.write(httpAnswer("second"));
    });
    Question question;
    question.ask(server.url());
    QVERIFY(QTest::qWaitFor([&] { return server.questions.size() == 1; }));
    question.request.cancel();
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QStringLiteral("second"));
  }

  void theAnswerToACancelledQuestionIsNotThatToTheNext() {
    const LoopbackServer server(saying(httpAnswer("second")));
    Question question;
    question.ask(QUrl());  // is no address, so its answer is on its way at once
    question.request.cancel();
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QStringLiteral("second"));
  }

  void isToldNothingWhenItIsGone() {
    QPointer<QTcpSocket> connection;
    const LoopbackServer server(
        [&connection](QTcpSocket& socket, const QByteArray& /*question*/) { connection = &socket; });
    int told = 0;
    {
      NetworkRequest request;
      request.get(server.url(), [&told](const std::optional<QString>& /*text*/) { ++told; });
      QVERIFY(QTest::qWaitFor([&] { return !connection.isNull(); }));
    }
    if (connection) connection->write(httpAnswer("late"));
    QTest::qWait(100);
    QCOMPARE(told, 0);
  }

  void aHugeAnswerIsLeftEarly_data() {
    QTest::addColumn<QByteArray>("headers");
    QTest::newRow("announced") << QByteArray("Content-Length: 104857600\r\n");
    QTest::newRow("not announced") << QByteArray("Connection: close\r\n");
  }

  void aHugeAnswerIsLeftEarly() {
    QFETCH(QByteArray, headers);
    constexpr qint64 huge = 100LL << 20U;
    qint64 sent = 0;
    const QByteArray piece(1LL << 16U, 'x');
    const LoopbackServer server([&](QTcpSocket& connection, const QByteArray& /*question*/) {
      connection.write(kOk + headers + "\r\n");
      connect(&connection, &QTcpSocket::bytesWritten, this, [&] {
        if (connection.bytesToWrite() == 0 && sent < huge) sent += connection.write(piece);
      });
    });
    QVERIFY(forgetPeakMemory());
    const long before = peakMemory();
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QString(kLongestAnswer, u'x'));
    // What is on its way in the system's own buffers counts as sent.
    QVERIFY2(sent < huge / 4, qPrintable(QStringLiteral("%1 bytes were taken").arg(sent)));
    const long grown = peakMemory() - before;
    QVERIFY2(grown < kModestMemory, qPrintable(QStringLiteral("%1 kB more in memory").arg(grown)));
  }

  void aHugePackedAnswerIsNotUnpackedWhole() {
    constexpr qsizetype huge = 100LL << 20U;
    const QByteArray answer =
        httpAnswer(deflated(QByteArray(huge, 'x')), "200 OK", "Content-Encoding: deflate\r\n");
    const LoopbackServer server(saying(answer));
    QVERIFY(forgetPeakMemory());
    const long before = peakMemory();
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    // Nothing is as good as the first characters: nobody packs an honest answer so tightly.
    QCOMPARE(question.text.value_or(QString(kLongestAnswer, u'x')), QString(kLongestAnswer, u'x'));
    const long grown = peakMemory() - before;
    QVERIFY2(grown < kModestMemory, qPrintable(QStringLiteral("%1 kB more in memory").arg(grown)));
  }

  void plainRedirectionsAreNotFollowed() {
    const LoopbackServer target(saying(httpAnswer("target")));
    const LoopbackServer server(saying(redirection(target.url())));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    QCOMPARE(target.connections, 0);
  }

  void redirectionsToNoWebServerAreNotFollowed_data() {
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("a file") << QUrl::fromLocalFile(QFINDTESTDATA("network_request_test.cpp")).toEncoded();
    QTest::newRow("the data itself") << QByteArray("data:text/plain,x");
    QTest::newRow("no address") << QByteArray("http://");
  }

  void redirectionsToNoWebServerAreNotFollowed() {
    QFETCH(QByteArray, target);
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const QByteArray answer = httpAnswer("elsewhere", "302 Found", "Location: " + target + "\r\n");
    const LoopbackServer plain(saying(answer));
    const LoopbackServer secure(m_certificates.identity(QStringLiteral("server")), saying(answer));
    for (const LoopbackServer* server : {&plain, &secure}) {
      Question question;
      question.ask(server->url());
      QVERIFY(question.isAnsweredOnce());
      QCOMPARE(question.text, std::nullopt);
      QCOMPARE(server->questions.size(), 1);
    }
  }

  void initTestCase() { QVERIFY(m_certificates.make()); }

  void onlyATrustedServerIsAsked_data() {
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("trusted");
    QTest::addColumn<bool>("isAsked");
    const QString none;
    QTest::newRow("vouched for by an authority") << "server"
                                                 << "authority" << true;
    QTest::newRow("trusted itself") << "authority"
                                    << "authority" << false;  // says nothing of its host
    QTest::newRow("vouched for by nobody known") << "server" << none << false;
    QTest::newRow("vouches for itself") << "authority" << none << false;
    QTest::newRow("of another host") << "stranger"
                                     << "authority" << false;
    QTest::newRow("expired") << "expired"
                             << "authority" << false;
  }

  void onlyATrustedServerIsAsked() {
    QFETCH(QString, server);
    QFETCH(QString, trusted);
    QFETCH(bool, isAsked);
    std::optional<Trust> trust;
    if (!trusted.isEmpty()) trust.emplace(m_certificates.certificate(trusted));
    const LoopbackServer secure(m_certificates.identity(server), saying(httpAnswer("secret")));
    Question question;
    question.ask(secure.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, isAsked ? std::optional(QStringLiteral("secret")) : std::nullopt);
    QCOMPARE(secure.questions.size(), isAsked ? 1 : 0);
  }

  void aSecureRedirectionIsFollowed_data() {
    QTest::addColumn<QByteArray>("status");
    QTest::newRow("301") << QByteArray("301 Moved Permanently");
    QTest::newRow("302") << QByteArray("302 Found");
    QTest::newRow("303") << QByteArray("303 See Other");
    QTest::newRow("307") << QByteArray("307 Temporary Redirect");
    QTest::newRow("308") << QByteArray("308 Permanent Redirect");
  }

  void aSecureRedirectionIsFollowed() {
    QFETCH(QByteArray, status);
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const QSslConfiguration identity = m_certificates.identity(QStringLiteral("server"));
    const LoopbackServer target(identity, saying(httpAnswer("target")));
    const LoopbackServer server(
        identity,
        saying(httpAnswer("elsewhere", status,
                          "Location: " + target.url(QStringLiteral("/there?a=1")).toEncoded() + "\r\n")));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QStringLiteral("target"));
    QVERIFY2(target.questions.value(0).startsWith("GET /there?a=1 "), target.questions.value(0));
  }

  void aSecureRedirectionToAPathIsFollowed() {
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer server(m_certificates.identity(QStringLiteral("server")),
                                [](QTcpSocket& connection, const QByteArray& question) {
                                  connection.write(question.startsWith("GET /there ")
                                                       ? httpAnswer("there")
                                                       : redirection(QUrl(QStringLiteral("/there"))));
                                });
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, QStringLiteral("there"));
  }

  void aRedirectionThatLeavesTheSecureWebIsNotFollowed_data() {
    QTest::addColumn<int>("before");
    QTest::newRow("at once") << 0;
    QTest::newRow("after a secure one") << 1;
    QTest::newRow("after two secure ones") << 2;
  }

  void aRedirectionThatLeavesTheSecureWebIsNotFollowed() {
    QFETCH(int, before);
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer target(saying(httpAnswer("target")));
    const LoopbackServer server(m_certificates.identity(QStringLiteral("server")),
                                passingOn(before, redirection(target.url())));
    Question question;
    question.ask(server.url(QStringLiteral("/0")));
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    QCOMPARE(pathsOf(server), before + 1);
    QCOMPARE(target.connections, 0);
  }

  void aRedirectionToTheSecureWebIsNotFollowed() {
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer target(m_certificates.identity(QStringLiteral("server")),
                                saying(httpAnswer("target")));
    const LoopbackServer server(saying(redirection(target.url())));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    QCOMPARE(target.connections, 0);
  }

  void aRedirectionToAServerThatIsNotTrustedIsNotFollowed() {
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer target(m_certificates.identity(QStringLiteral("stranger")),
                                saying(httpAnswer("target")));
    const LoopbackServer server(m_certificates.identity(QStringLiteral("server")),
                                saying(redirection(target.url())));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
    QCOMPARE(target.questions.size(), 0);
  }

  void redirectionsEnd_data() {
    QTest::addColumn<int>("redirections");
    QTest::addColumn<bool>("isAnswered");
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two in a row") << 2 << true;
    QTest::newRow("five in a row") << 5 << true;
    QTest::newRow("six in a row") << 6 << false;
    QTest::newRow("without end") << 1000 << false;
  }

  void redirectionsEnd() {
    QFETCH(int, redirections);
    QFETCH(bool, isAnswered);
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer server(m_certificates.identity(QStringLiteral("server")),
                                passingOn(redirections, httpAnswer("found")));
    Question question;
    question.ask(server.url(QStringLiteral("/0")));
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, isAnswered ? std::optional(QStringLiteral("found")) : std::nullopt);
    QVERIFY(pathsOf(server) <= 6);
  }

  void aRedirectionToItselfEnds() {
    const Trust trust(m_certificates.certificate(QStringLiteral("authority")));
    const LoopbackServer server(m_certificates.identity(QStringLiteral("server")),
                                saying(redirection(QUrl(QStringLiteral("/")))));
    Question question;
    question.ask(server.url());
    QVERIFY(question.isAnsweredOnce());
    QCOMPARE(question.text, std::nullopt);
  }

  // All at once: each takes as long as the program's patience.
  void tenSecondsAreEnough() {
    const LoopbackServer silent(sayNothing);
    const LoopbackServer body(dripping(kOk + "Content-Length: 1000\r\n\r\n"));
    const LoopbackServer headers(dripping(kOk + "X-Slow: "));
    const LoopbackServer chunks(dripping(kChunked + "64\r\n"));
    const LoopbackServer inTime(dripping(kOk + "Content-Length: 8\r\n\r\n"));
    QUrl neverShakesHands = silent.url();
    neverShakesHands.setScheme(QStringLiteral("https"));
    // clang-format off
    Slow rows[] = {
        {"no answer",                        silent.url(),     {}},
        {"no handshake",                     neverShakesHands, {}},
        {"a byte of the text each second",   body.url(),       {}},
        {"a byte of a header each second",   headers.url(),    {}},
        {"a byte of a chunk each second",    chunks.url(),     {}},
        {"a byte each second, eight in all", inTime.url(),     QString(8, u'x')},
    };
    // clang-format on
    for (Slow& row : rows) row.ask();
    const auto isTold = [](const Slow& row) { return row.told > 0; };
    static_cast<void>(
        QTest::qWaitFor([&] { return std::all_of(std::begin(rows), std::end(rows), isTold); }, 12000));
    QTest::qWait(200);
    for (const Slow& row : rows) {
      QVERIFY2(row.told == 1, qPrintable(row.seen()));
      QVERIFY2(row.text == row.expected, qPrintable(row.seen()));
      if (!row.expected) QVERIFY2(row.after >= 9400 && row.after <= 10600, qPrintable(row.seen()));
    }
  }

 private:
  Certificates m_certificates;
};

QTEST_GUILESS_MAIN(NetworkRequestTest)
#include "network_request_test.moc"
