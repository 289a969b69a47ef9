#pragma once

#include <QDateTime>
#include <QString>

/// The log of reported errors, "MasterDebugLog.txt" in the user's state folder: one line each with time,
/// version and text. Line breaks are written as "\n", other control characters but tabs as U+FFFD; of a text
/// of more than 16,000 characters the first ones stand there, with " [cut]" behind. It stays under 1 MB: the
/// oldest lines make room for new ones, and where they cannot, nothing is added. Several windows, each a
/// process of its own, share it. What cannot be written is lost without a word: whoever reports an error is
/// telling it to the user anyway.
class DebugLogFile {
 public:
  /// `folder` is made when there is something to write.
  explicit DebugLogFile(const QString& folder);

  void append(const QDateTime& time, const QString& version, const QString& text) const;

  [[nodiscard]] const QString& path() const { return m_path; }

  /// No file is larger, in bytes.
  static constexpr qint64 kLargestSize = 1'000'000;

 private:
  QString m_path;
};

/// Where the program keeps what it notes about itself, on this system.
[[nodiscard]] QString stateFolder();
