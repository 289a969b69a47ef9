#include "network_request.h"

#include <chrono>
#include <limits>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>
#include <utility>

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
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString text = utf8(bytes);
  return (utf8.hasError() ? QString::fromLatin1(bytes) : text).left(kLongestAnswer);
}

}  // namespace

void NetworkRequest::get(const QUrl& address, Answered answered) {
  if (m_network == nullptr) {
    m_network = std::make_unique<QNetworkAccessManager>();
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { finish(false); });
  }
  m_bytes.clear();
  m_answered = std::move(answered);
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setMaximumRedirectsAllowed(kRedirections);
  m_reply = m_network->get(request);
  m_reply->setReadBufferSize(kEnoughBytes);
  connect(m_reply, &QNetworkReply::readyRead, this, &NetworkRequest::read);
  connect(m_reply, &QNetworkReply::redirected, this, &NetworkRequest::judgeRedirection);
  connect(m_reply, &QNetworkReply::finished, this, [this] {
    read();
    if (m_reply != nullptr) finish(m_reply->error() == QNetworkReply::NoError);
  });
  m_patience.start(kPatience);
}

void NetworkRequest::cancel() {
  m_patience.stop();
  m_answered = nullptr;
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

void NetworkRequest::judgeRedirection(const QUrl& target) {
  const QString secure = QStringLiteral("https");
  if (m_reply->url().scheme() == secure && target.scheme() == secure) {
    emit m_reply->redirectAllowed();
  } else {
    finish(false);
  }
}

void NetworkRequest::finish(bool isUsable) {
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const std::optional<QString> text =
      isUsable && status == kSuccess ? std::optional(textOf(m_bytes)) : std::nullopt;
  const Answered answered = std::exchange(m_answered, nullptr);
  cancel();
  // In its own turn: whoever is told may open a window and wait in it.
  QMetaObject::invokeMethod(
      this, [answered, text] { answered(text); }, Qt::QueuedConnection);
}
