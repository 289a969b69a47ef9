#pragma once

#include <QString>
#include <QUrl>

/// What the version-check server said, as far as the program understands it.
struct UpdateAnswer {
  bool isStatusValid = false;  ///< whether there is a status worth reading; all else depends on it
  bool isNewVersionOffered = false;
  bool isCurrent = false;  ///< whether the running version is the newest
  QString updateAddress;   ///< where the setup lies; not checked
  QString message;         ///< for the user

  bool isOldForm = false;  ///< "Version = ..." without a status, with the message alone
};

/// Reads an answer of the form <status><newversion>1</newversion>...</status>. Never fails: an answer that is
/// none leaves `isStatusValid` and `isOldForm` false.
[[nodiscard]] UpdateAnswer readUpdateAnswer(const QString& text);

/// What the server is asked: app, version, class and language, in this order.
struct UpdateQuestion {
  QString host;      ///< with its scheme
  QString app;       ///< the product's name
  QString version;   ///< "1.0.0"
  int appClass = 0;  ///< which kind of program asks
  QString language;  ///< the name of the current language, "German"
};

[[nodiscard]] QUrl addressOf(const UpdateQuestion& question);
