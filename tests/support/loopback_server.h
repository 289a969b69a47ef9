#pragma once

#include <functional>
#include <memory>
#include <QByteArray>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

/// A web server on a loopback port of its own. What it says, and how slowly, is the test's: it is called with
/// the connection and with all that was asked, line by line, once for each question.
class LoopbackServer : public QObject {
 public:
  using Serve = std::function<void(QTcpSocket& connection, const QByteArray& question)>;

  explicit LoopbackServer(Serve serve)
      : LoopbackServer(std::make_unique<QTcpServer>(), "http", std::move(serve)) {}
  LoopbackServer(const QSslConfiguration& identity, Serve serve)
      : LoopbackServer(secured(identity), "https", std::move(serve)) {}

  /// The address of a path on this server.
  [[nodiscard]] QUrl url(const QString& path = QStringLiteral("/")) const {
    const QString address =
        QStringLiteral("%1://127.0.0.1:%2").arg(QLatin1String(m_scheme)).arg(m_server->serverPort());
    return QUrl::fromEncoded((address + path).toUtf8());
  }

  /// What it was asked so far: each time everything up to the empty line.
  QList<QByteArray> questions;
  int connections = 0;

 private:
  LoopbackServer(std::unique_ptr<QTcpServer> server, const char* scheme, Serve serve)
      : m_server(std::move(server)), m_scheme(scheme), m_serve(std::move(serve)) {
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &LoopbackServer::accept);
    if (!m_server->listen(QHostAddress::LocalHost)) qFatal("no port on loopback");
  }

  static std::unique_ptr<QTcpServer> secured(const QSslConfiguration& identity) {
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(identity);
    return server;
  }

  void accept() {
    QTcpSocket* connection = m_server->nextPendingConnection();
    ++connections;
    connect(connection, &QTcpSocket::disconnected, connection, &QObject::deleteLater);
    const auto hear = [this, connection, heard = QByteArray()]() mutable {
      heard += connection->readAll();
      const qsizetype end = heard.indexOf("\r\n\r\n");
      if (end < 0) return;
      questions << heard.left(end + 2);
      heard.clear();
      m_serve(*connection, questions.last());
    };
    connect(connection, &QTcpSocket::readyRead, this, hear);
  }

  std::unique_ptr<QTcpServer> m_server;
  const char* m_scheme;
  Serve m_serve;
};

/// An answer with its length, or with whatever other headers.
inline QByteArray httpAnswer(const QByteArray& body, const QByteArray& status = "200 OK",
                             const QByteArray& headers = {}) {
  return "HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\n" + headers +
         "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

inline QByteArray redirection(const QUrl& target) {
  return httpAnswer("elsewhere", "302 Found", "Location: " + target.toEncoded() + "\r\n");
}
