#pragma once

#include <functional>
#include <optional>
#include <QString>
#include <QUrl>

/// Asks a web server for a text, one question at a time, without waiting for it.
class WebRequest {
 public:
  virtual ~WebRequest() = default;

  /// What came back; nothing if nothing usable did.
  using Answered = std::function<void(const std::optional<QString>& text)>;

  /// Calls `answered` once, later, unless it is cancelled. Not while another question is under way.
  virtual void get(const QUrl& address, Answered answered) = 0;

  /// Forgets the question that is under way, if there is one.
  virtual void cancel() = 0;
};
