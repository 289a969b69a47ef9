#include <cstdint>
#include <cstdlib>
#include <QByteArray>

#include "mail_link.h"

// Any text as what a mail is about: the first line is the subject, the rest the body. What must hold of the
// link: it is short enough and nothing but printable ASCII, it names the one address, subject and body and no
// other part of a mail, and the body decodes to what was written or to its beginning.

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

const QString kAddress = QStringLiteral("errors@ostrevane.example");
const QByteArray kStart = "mailto:errors@ostrevane.example?subject=";

QString decoded(const QByteArray& bytes) {
  return QString::fromUtf8(QByteArray::fromPercentEncoding(bytes))
      .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// As it must arrive: one kind of line break, no control characters.
QString clean(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  for (QChar& character : text) {
    const bool isControl = character.unicode() < 0x20 && character != u'\n' && character != u'\t';
    if (isControl || character.unicode() == 0x7F) character = QChar::ReplacementCharacter;
  }
  return text;
}

void requireBody(const QByteArray& bytes, const QString& body) {
  const QString arrived = decoded(bytes);
  if (arrived == clean(body)) return;
  const qsizetype note = arrived.lastIndexOf(QStringLiteral("\n[The text was cut here"));
  require(note >= 0);
  require(clean(body).startsWith(arrived.left(note)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr qsizetype longestSubject = 100;
  const void* input = data;
  const QString text = QString::fromUtf8(static_cast<const char*>(input), static_cast<qsizetype>(size));
  const qsizetype end = text.indexOf(u'\n');
  const QString subject = text.left(end).left(longestSubject);
  const QString body = end < 0 ? QString() : text.mid(end + 1);
  // The program's own subjects hold no such word.
  if (subject.contains(QStringLiteral("&body="))) return 0;
  const QByteArray link = encodedMailLink(mailLink(kAddress, subject, body)).toEncoded();
  require(link.size() <= kLongestMailLink);
  require(link.startsWith(kStart));
  for (const char byte : link) require(byte > 0x20 && byte < 0x7F);
  require(link.count('&') == 1 && link.count('?') == 1 && link.count('#') == 0);
  const qsizetype bodyAt = link.indexOf("&body=");
  require(bodyAt >= 0);
  requireBody(link.mid(bodyAt + 6), body);
  return 0;
}
