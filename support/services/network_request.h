#pragma once

#include <memory>
#include <QByteArray>
#include <QNetworkAccessManager>
#include <QTimer>

#include "web_request.h"

class QNetworkReply;

/// Asks over the network: HTTP GET, ten seconds at most for all of it. Certificates are checked as the system
/// says; a redirection is followed only from https to https, and not for ever. Of an answer the first 32767
/// characters are read, as UTF-8, or as Latin-1 if it is not that. Beside the address a question says which
/// program asks, and nothing of the user or the desktop. Nothing of the network is touched before the first
/// question, and an address that is none of the web is not asked.
class NetworkRequest : public QObject, public WebRequest {
  Q_OBJECT

 public:
  NetworkRequest() = default;
  ~NetworkRequest() override { cancel(); }

  void get(const QUrl& address, Answered answered) override;
  void cancel() override;

 private:
  void read();
  void finish(bool isUsable);
  void deliver(const std::optional<QString>& text);
  void endReply();

  std::unique_ptr<QNetworkAccessManager> m_network;
  QNetworkReply* m_reply = nullptr;
  QTimer m_patience;
  QByteArray m_bytes;
  Answered m_answered;
  unsigned m_question = 0;  ///< counted, so that an answer is not taken for that to another
};
