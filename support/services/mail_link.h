#pragma once

#include <QString>
#include <QUrl>

/// What opens a new message in the mail program: "mailto:", the address, "?subject=" and the subject, then
/// perhaps "&body=" and the text of the message. The texts stand in it as they are, blanks and line breaks
/// included; it is encoded when it is handed to the desktop.
[[nodiscard]] QString mailLink(const QString& address, const QString& subject);
[[nodiscard]] QString mailLink(const QString& address, const QString& subject, const QString& body);

/// Mail programs refuse links that are much longer.
constexpr qsizetype kLongestMailLink = 2000;

/// A mail link in the form that mail programs read: UTF-8, percent-encoded, line breaks as CR LF. A body that
/// makes it longer than `kLongestMailLink` is cut, and says so at its end. Control characters and what is no
/// character become U+FFFD.
[[nodiscard]] QUrl encodedMailLink(const QString& link);
