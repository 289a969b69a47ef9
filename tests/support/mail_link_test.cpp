#include "mail_link.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringDecoder>

namespace {

const QString kAddress = QStringLiteral("errors@ostrevane.example");
const QString kSubject = QStringLiteral("Tessaloom 1.0.0 Error");
const QByteArray kHead = "mailto:errors@ostrevane.example?subject=Tessaloom%201.0.0%20Error&body=";

QByteArray sent(const QString& subject, const QString& body) {
  return encodedMailLink(mailLink(kAddress, subject, body)).toEncoded();
}

/// What a mail program finds in a body, with line breaks as they were written. An escape that is cut in two
/// stays where it is and is no part of any text; a character that is cut in two is no UTF-8.
QString read(const QByteArray& encoded) {
  EXPECT_TRUE(QRegularExpression(QStringLiteral("^([A-Za-z0-9._~-]|%[0-9A-F]{2})*$"))
                  .match(QString::fromLatin1(encoded))
                  .hasMatch())
      << encoded.right(40).toStdString();
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8(QByteArray::fromPercentEncoding(encoded));
  EXPECT_FALSE(utf8.hasError());
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QByteArray bodyOf(const QByteArray& link) {
  EXPECT_TRUE(link.startsWith(kHead)) << link.left(200).toStdString();
  return link.mid(kHead.size());
}

/// The text as it should be read again: line breaks of one kind.
QString withPlainBreaks(QString text) {
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

TEST(MailLink, HoldsItsTextsAsTheyAre) {
  EXPECT_EQ(mailLink(QStringLiteral("a@b.example"), QStringLiteral("Comment RE: Tessaloom 2.1.7")),
            QStringLiteral("mailto:a@b.example?subject=Comment RE: Tessaloom 2.1.7"));
  EXPECT_EQ(mailLink(QStringLiteral("a@b.example"), QStringLiteral("Tessaloom 1.0.0 Error"),
                     QStringLiteral("5 < 6 & \"7\"\n100 %")),
            QStringLiteral("mailto:a@b.example?subject=Tessaloom 1.0.0 Error&body=5 < 6 & \"7\"\n100 %"));
}

struct TextRow {
  const char* rule;
  QString text;
  const char* encoded;
};

// clang-format off
const TextRow kTextRows[] = {
    {"nothing",                              QString(),                                  ""},
    {"letters, digits and harmless signs",   QStringLiteral("aZ09-._~"),                 "aZ09-._~"},
    {"a blank is no plus sign",              QStringLiteral("a b"),                      "a%20b"},
    {"a plus sign is no blank",              QStringLiteral("1+1"),                      "1%2B1"},
    {"an ampersand ends no text",            QStringLiteral("A&B"),                      "A%26B"},
    {"an ampersand starts no field",         QStringLiteral("A&cc=x@y.example"),         "A%26cc%3Dx%40y.example"},
    {"quotes",                               QStringLiteral("\"a\" 'b'"),                "%22a%22%20%27b%27"},
    {"angle brackets",                       QStringLiteral("<0603>"),                   "%3C0603%3E"},
    {"a per cent sign",                      QStringLiteral("100 %"),                    "100%20%25"},
    {"what looks like an escape",            QStringLiteral("%41%"),                     "%2541%25"},
    {"a number sign starts no fragment",     QStringLiteral("#1"),                       "%231"},
    {"a question mark",                      QStringLiteral("why?"),                     "why%3F"},
    {"slashes, colons and semicolons",       QStringLiteral("c:\\a/b;c"),                "c%3A%5Ca%2Fb%3Bc"},
    {"a tab",                                QStringLiteral("a\tb"),                     "a%09b"},
    {"LF",                                   QStringLiteral("a\nb"),                     "a%0D%0Ab"},
    {"CR",                                   QStringLiteral("a\rb"),                     "a%0D%0Ab"},
    {"CR LF is one line break",              QStringLiteral("a\r\nb"),                   "a%0D%0Ab"},
    {"LF CR is two line breaks",             QStringLiteral("a\n\rb"),                   "a%0D%0A%0D%0Ab"},
    {"CR CR LF is two line breaks",          QStringLiteral("a\r\r\nb"),                 "a%0D%0A%0D%0Ab"},
    {"a zero character",                     QStringLiteral("a") + QChar(u'\0') + u'b',  "a%EF%BF%BDb"},
    {"a control character",                  QStringLiteral("a\u001Bb"),                 "a%EF%BF%BDb"},
    {"the delete character",                 QStringLiteral("a\u007Fb"),                 "a%EF%BF%BDb"},
    {"umlauts",                              QStringLiteral("Käufer"),                   "K%C3%A4ufer"},
    {"the euro sign",                        QStringLiteral("5 €"),                      "5%20%E2%82%AC"},
    {"beyond 16 bits",                       QStringLiteral("😀"),                        "%F0%9F%98%80"},
    {"the first half of a character alone",  QStringLiteral("a") + QChar(0xD83D) + u'b', "a%EF%BF%BDb"},
    {"the second half of a character alone", QStringLiteral("a") + QChar(0xDE00) + u'b', "a%EF%BF%BDb"},
    {"a half at the end",                    QStringLiteral("a") + QChar(0xD83D),        "a%EF%BF%BD"},
    {"halves in the wrong order",            QString(QChar(0xDE00)) + QChar(0xD83D),     "%EF%BF%BD%EF%BF%BD"},
    {"what was no UTF-8",                    QString::fromUtf8("a\xFF" "b"),             "a%EF%BF%BDb"},
};
// clang-format on

TEST(MailLink, EncodesTheBody) {
  for (const TextRow& row : kTextRows)
    EXPECT_EQ(sent(kSubject, row.text).toStdString(), kHead.toStdString() + row.encoded) << row.rule;
}

TEST(MailLink, EncodesTheSubject) {
  for (const TextRow& row : kTextRows) {
    const std::string link = std::string("mailto:errors@ostrevane.example?subject=") + row.encoded;
    EXPECT_EQ(encodedMailLink(mailLink(kAddress, row.text)).toEncoded().toStdString(), link) << row.rule;
    EXPECT_EQ(sent(row.text, QStringLiteral("b")).toStdString(), link + "&body=b") << row.rule;
  }
}

TEST(MailLink, EncodesTheAddress) {
  EXPECT_EQ(encodedMailLink(mailLink(QStringLiteral("a b&c+d@e.example"), QStringLiteral("s"))).toEncoded(),
            "mailto:a%20b%26c%2Bd@e.example?subject=s");
}

TEST(MailLink, ABodyMaySpeakOfSubjectsAndBodies) {
  const QString body = QStringLiteral("a&body=b?subject=c");
  EXPECT_EQ(read(bodyOf(sent(kSubject, body))), body);
}

TEST(MailLink, ABodyThatJustFitsIsWhole) {
  const qsizetype room = 2000 - kHead.size();
  for (const auto& [unit, size] : {std::pair{QStringLiteral("x"), 1}, std::pair{QStringLiteral("&"), 3},
                                   std::pair{QStringLiteral("ü"), 6}, std::pair{QStringLiteral("\n"), 6},
                                   std::pair{QStringLiteral("😀"), 12}}) {
    const QString body = QString(room % size, u'.') + unit.repeated(room / size);
    const QByteArray link = sent(kSubject, body);
    EXPECT_EQ(link.size(), 2000) << unit.toStdString();
    EXPECT_EQ(read(bodyOf(link)), body);
    const QByteArray longer = sent(kSubject, u'.' + body);
    EXPECT_LE(longer.size(), 2000);
    EXPECT_TRUE(read(bodyOf(longer)).contains(QStringLiteral("cut"))) << unit.toStdString();
  }
}

struct LongRow {
  const char* rule;
  QString unit;
};

// clang-format off
const LongRow kLongRows[] = {
    {"letters",                 QStringLiteral("x")},
    {"blanks",                  QStringLiteral(" ")},
    {"per cent signs",          QStringLiteral("%")},
    {"umlauts",                 QStringLiteral("ü")},
    {"three bytes each",        QStringLiteral("€")},
    {"beyond 16 bits",          QStringLiteral("😀")},
    {"line breaks",             QStringLiteral("\n")},
    {"line breaks of two",      QStringLiteral("\r\n")},
    {"letters and line breaks", QStringLiteral("ab\r\n")},
    {"halves of characters",    QString(QChar(0xD83D))},
    {"all kinds",               QStringLiteral("a €%41😀\r\n&")},
};
// clang-format on

/// Compares what is read with what was written, and expects as much of it as there is room for.
void expectCut(const LongRow& row, const QString& body) {
  const QByteArray link = sent(kSubject, body);
  constexpr qsizetype longestCharacter = 12;  // four bytes, escaped
  EXPECT_LE(link.size(), 2000) << row.rule;
  EXPECT_GT(link.size(), 2000 - longestCharacter) << row.rule;
  QString cut = read(bodyOf(link));
  const qsizetype note = cut.indexOf(QStringLiteral("\n[The text was cut here"));
  ASSERT_GE(note, 0) << row.rule;
  cut.truncate(note);
  const QString whole =
      withPlainBreaks(body).replace(QChar(0xD83D), QChar::ReplacementCharacter).left(cut.size());
  const QString pairs = withPlainBreaks(body).left(cut.size());
  EXPECT_TRUE(cut == pairs || cut == whole) << row.rule << ": " << cut.right(20).toStdString();
}

TEST(MailLink, ALongBodyIsCutBetweenCharactersAndSaysSo) {
  constexpr qsizetype large = 100'000;
  for (const LongRow& row : kLongRows) {
    // Wherever the cut falls in the row's characters.
    for (qsizetype shift = 0; shift < 24; ++shift)
      expectCut(row, QString(shift, u'.') + row.unit.repeated(large / row.unit.size()));
  }
}

TEST(MailLink, ALongBodyIsCutWhateverItsLength) {
  for (qsizetype size = 1950; size < 2050; ++size) expectCut({"a length", {}}, QString(size, u'x'));
}

}  // namespace
