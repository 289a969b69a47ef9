#include "network_request.h"

#include <chrono>
#include <limits>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>
#include <utility>

#include "desktop_opener.h"
#include "program_version.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 10s;
constexpr int kRedirections = 5;
constexpr int kSuccess = 200;
// Positions in an answer are 16-bit numbers.
constexpr qsizetype kLongestAnswer = std::numeric_limits<qint16>::max();
constexpr qsizetype kBytesPerCharacter = 4;
constexpr qsizetype kEnoughBytes = kLongestAnswer * kBytesPerCharacter;

QString textOf(const QByteArray& bytes) {
  // Half a character at the end is none, unless reading has cut it.
  const bool isWhole = bytes.size() < kEnoughBytes;
  QStringDecoder utf8(QStringDecoder::Utf8,
                      isWhole ? QStringDecoder::Flag::Stateless : QStringDecoder::Flag());
  const QString text = utf8(bytes);
  return (utf8.hasError() ? QString::fromLatin1(bytes) : text).left(kLongestAnswer);
}

/// A redirection is followed from https to https; any other ends the question with its own status.
QNetworkRequest requestFor(const QUrl& address) {
  const bool isSecure = address.scheme() == QStringLiteral("https");
  QNetworkRequest request(address);
  request.setAttribute(
      QNetworkRequest::RedirectPolicyAttribute,
      isSecure ? QNetworkRequest::NoLessSafeRedirectPolicy : QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setMaximumRedirectsAllowed(kRedirections);
  // Left to itself Qt says what language the user's desktop speaks, and that a browser asks.
  request.setRawHeader("Accept-Language", "*");
  request.setHeader(QNetworkRequest::UserAgentHeader,
                    QStringLiteral("Tessaloom/") + QLatin1StringView(kProgramVersion));
  return request;
}

}  // namespace

void NetworkRequest::get(const QUrl& address, Answered answered) {
  ++m_question;
  m_bytes.clear();
  m_answered = std::move(answered);
  if (!isWebAddress(address.toString())) return deliver(std::nullopt);
  if (m_network == nullptr) {
    m_network = std::make_unique<QNetworkAccessManager>();
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { finish(false); });
  }
  m_reply = m_network->get(requestFor(address));
  m_reply->setReadBufferSize(kEnoughBytes);
  connect(m_reply, &QNetworkReply::readyRead, this, &NetworkRequest::read);
  connect(m_reply, &QNetworkReply::finished, this, [this] {
    read();
    if (m_reply != nullptr) finish(m_reply->error() == QNetworkReply::NoError);
  });
  m_patience.start(kPatience);
}

void NetworkRequest::cancel() {
  m_answered = nullptr;
  endReply();
}

void NetworkRequest::endReply() {
  m_patience.stop();
  if (QNetworkReply* reply = std::exchange(m_reply, nullptr)) {
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
  }
}

void NetworkRequest::read() {
  m_bytes += m_reply->read(kEnoughBytes - m_bytes.size());
  // More is never looked at, however much there may be.
  if (m_bytes.size() >= kEnoughBytes) finish(true);
}

void NetworkRequest::finish(bool isUsable) {
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  endReply();
  deliver(isUsable && status == kSuccess ? std::optional(textOf(m_bytes)) : std::nullopt);
}

// In its own turn: whoever is told may open a window and wait in it. It may be cancelled until then, and the
// next question be asked.
void NetworkRequest::deliver(const std::optional<QString>& text) {
  const auto tell = [this, text, question = m_question] {
    if (question != m_question) return;
    if (const Answered answered = std::exchange(m_answered, nullptr)) answered(text);
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}
