#include "mail_link.h"

#include <QStringList>

namespace {

const QString kScheme = QStringLiteral("mailto:");
const QString kSubject = QStringLiteral("?subject=");
const QString kBody = QStringLiteral("&body=");
const QString kCutHere = QStringLiteral("\n[The text was cut here: it is too long for a mail link.]");

/// A character, by its code point, as it stands in a link.
QByteArray encodedCharacter(char32_t character) {
  constexpr char32_t firstPrintable = 0x20;
  constexpr char32_t deleteCharacter = 0x7F;
  if (character == U'\n') return "%0D%0A";
  const bool isControl = (character < firstPrintable && character != U'\t') || character == deleteCharacter;
  return QUrl::toPercentEncoding(isControl ? QString(QChar::ReplacementCharacter)
                                           : QString::fromUcs4(&character, 1));
}

/// The characters of a text, one encoded form each, with every kind of line break made one.
QByteArrayList encodedCharacters(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  QByteArrayList characters;
  for (const uint character : text.toUcs4())
    characters << (QChar::isSurrogate(character) ? QUrl::toPercentEncoding(QChar(QChar::ReplacementCharacter))
                                                 : encodedCharacter(character));
  return characters;
}

QByteArray encoded(const QString& text) { return encodedCharacters(text).join(); }

/// As much of a body as `room` holds, with a note where it was cut.
QByteArray fittingBody(const QString& body, qsizetype room) {
  // No character takes less than one byte: what lies beyond need not be looked at.
  const QByteArrayList characters = encodedCharacters(body.left(kLongestMailLink + 1));
  if (QByteArray whole = characters.join(); whole.size() <= room) return whole;
  const QByteArray note = encoded(kCutHere);
  QByteArray kept;
  for (const QByteArray& character : characters) {
    if (kept.size() + character.size() + note.size() > room) break;
    kept += character;
  }
  return kept + note;
}

}  // namespace

QString mailLink(const QString& address, const QString& subject) {
  return kScheme + address + kSubject + subject;
}

QString mailLink(const QString& address, const QString& subject, const QString& body) {
  return mailLink(address, subject) + kBody + body;
}

QUrl encodedMailLink(const QString& link) {
  const qsizetype subject = link.indexOf(kSubject);
  const qsizetype body = link.indexOf(kBody, subject);
  const QString address = link.left(subject).mid(kScheme.size());
  QByteArray bytes = kScheme.toLatin1() + QUrl::toPercentEncoding(address, "@");
  if (subject >= 0) {
    const qsizetype start = subject + kSubject.size();
    bytes += kSubject.toLatin1() + encoded(body < 0 ? link.mid(start) : link.mid(start, body - start));
  }
  if (subject >= 0 && body >= 0) {
    bytes += kBody.toLatin1();
    bytes += fittingBody(link.mid(body + kBody.size()), kLongestMailLink - bytes.size());
  }
  return QUrl::fromEncoded(bytes);
}
