#include "custom_brand.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <string_view>

namespace {

using namespace std::string_view_literals;

QByteArray bytesOf(std::string_view text) { return {text.data(), static_cast<qsizetype>(text.size())}; }

QStringList listOf(const BrandValues& values) {
  return {values.CompanyName, values.CompanyURL,     values.SupportEmail,
          values.SupportURL,  values.SubscribeEmail, values.ErrorReportEmail};
}

const QStringList kMakers = {QStringLiteral("Ostrevane"),
                             QStringLiteral("https://www.ostrevane.example/"),
                             QStringLiteral("support@ostrevane.example"),
                             QStringLiteral("https://www.ostrevane.example/contact"),
                             QStringLiteral("subscribe@ostrevane.example"),
                             QStringLiteral("errors@ostrevane.example")};

class CustomBrand : public ::testing::Test {
 protected:
  void write(const QByteArray& content) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  QStringList load() {
    CCustomBrand brand(folder.path());
    brand.Load();
    return listOf(brand.values());
  }

  [[nodiscard]] QString path() const { return folder.filePath(QStringLiteral("AppData")); }

  QTemporaryDir folder;
};

TEST_F(CustomBrand, WithoutAFileTheMakersValuesHold) { EXPECT_EQ(load(), kMakers); }

TEST_F(CustomBrand, BeforeTheFileIsReadTheMakersValuesHold) {
  write("<CompanyName>Acme</CompanyName>");
  EXPECT_EQ(listOf(CCustomBrand(folder.path()).values()), kMakers);
}

TEST_F(CustomBrand, AFolderInItsPlaceIsNoFile) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("AppData")));
  EXPECT_EQ(load(), kMakers);
}

TEST_F(CustomBrand, ALinkToNowhereIsNoFile) {
  ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone")), path()));
  EXPECT_EQ(load(), kMakers);
}

// The program would never start: nobody writes into the pipe.
TEST_F(CustomBrand, APipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), S_IRUSR | S_IWUSR), 0);
  EXPECT_EQ(load(), kMakers);
}

TEST_F(CustomBrand, AnEmptyFileEmptiesAllValues) {
  write("");
  EXPECT_EQ(load(), QStringList(6, QString()));
}

TEST_F(CustomBrand, AFileWithTheCompanyAloneEmptiesTheOtherValues) {
  write("<CompanyName>Acme</CompanyName>");
  EXPECT_EQ(load(), (QStringList{QStringLiteral("Acme"), {}, {}, {}, {}, {}}));
}

TEST_F(CustomBrand, EveryValueHasItsOwnNameWhateverTheOrder) {
  write(
      "<ErrorReportEmail>6</ErrorReportEmail><SubscribeEmail>5</SubscribeEmail><SupportURL>4</SupportURL>"
      "<SupportEmail>3</SupportEmail><CompanyURL>2</CompanyURL><CompanyName>1</CompanyName>");
  EXPECT_EQ(load(), QStringLiteral("1 2 3 4 5 6").split(u' '));
}

struct FileRow {
  const char* rule;
  std::string_view content;
  std::string_view companyName;
};

// clang-format off
const FileRow kFileRows[] = {
    {"text around the element",                "x\n<CompanyName>Acme</CompanyName>\ny\n"sv,         "Acme"sv},
    {"a value of one character",               "<CompanyName>A</CompanyName>"sv,                    "A"sv},
    {"an empty value",                         "<CompanyName></CompanyName>"sv,                     ""sv},
    {"blanks belong to the value",             "<CompanyName> Acme  Ltd </CompanyName>"sv,          " Acme  Ltd "sv},
    {"no character is escaped",                R"(<CompanyName>A&amp;B <i>"C"</CompanyName>)"sv,    R"(A&amp;B <i>"C")"sv},
    {"a value over two lines",                 "<CompanyName>Ac\nme</CompanyName>"sv,               "Acme"sv},
    {"a value over lines that end in CR LF",   "<CompanyName>\r\nAc\r\n\r\nme\r\n</CompanyName>"sv, "Acme"sv},
    {"both tags over two lines",               "<Company\nName>Acme</Comp\r\nanyName>"sv,           "Acme"sv},
    {"no closing tag",                         "<CompanyName>Acme"sv,                               ""sv},
    {"a closing tag alone",                    "Acme</CompanyName>"sv,                              ""sv},
    {"the first of two elements",              "<CompanyName>A1</CompanyName>\n<CompanyName>B2</CompanyName>"sv, "A1"sv},
    {"the bare name in the text before",       "CompanyName below: <CompanyName>Acme</CompanyName>"sv, "below:"sv},
    {"the bare name in another value",         "<SupportURL>my CompanyName page</SupportURL><CompanyName>Acme</CompanyName>"sv,
                                                                                                    "page</SupportURL"sv},
    {"two characters between the names",       "CompanyName>12CompanyName"sv,                       ""sv},
    {"three characters between the names",     "CompanyName>123CompanyName"sv,                      "1"sv},
    {"a name on the heels of the other",       "CompanyNameCompanyName"sv,                          ""sv},
    {"zero bytes inside a value",              "<CompanyName>A\0c\0me</CompanyName>"sv,             "A\0c\0me"sv},
    {"zero bytes before the element",          "\0\0<CompanyName>Acme</CompanyName>"sv,             "Acme"sv},
    {"UTF-8",                                  "<CompanyName>M\xC3\xBCller</CompanyName>"sv,         "Müller"sv},
    {"UTF-8 behind a byte order mark",         "\xEF\xBB\xBF<CompanyName>M\xC3\xBCller</CompanyName>"sv, "Müller"sv},
    {"UTF-8 beyond 16 bits",                   "<CompanyName>😀</CompanyName>"sv,                    "😀"sv},
    {"Latin-1",                                "<CompanyName>M\xFCller</CompanyName>"sv,            "Müller"sv},
    {"Latin-1 that begins a UTF-8 character",  "<CompanyName>Caf\xE9</CompanyName>"sv,              "Café"sv},
};
// clang-format on

TEST_F(CustomBrand, ReadsTheFile) {
  for (const FileRow& row : kFileRows) {
    write(bytesOf(row.content));
    EXPECT_EQ(load().first().toUtf8().toStdString(), row.companyName) << row.rule;
  }
}

const QByteArray kElement = "<CompanyName>Acme</CompanyName>";

TEST_F(CustomBrand, OfALargeFileTheHeadIsRead) {
  write(kElement + QByteArray(10 << 20, 'x') + "<SupportURL>too late</SupportURL>");
  EXPECT_EQ(load(), (QStringList{QStringLiteral("Acme"), {}, {}, {}, {}, {}}));
}

TEST_F(CustomBrand, LineBreaksTakeNoPlaceHoweverMany) {
  write(QByteArray(10 << 20, '\n') + kElement);
  EXPECT_EQ(load().first(), QStringLiteral("Acme"));
  write(QByteArray("\r\n").repeated(5 << 20) + kElement);
  EXPECT_EQ(load().first(), QStringLiteral("Acme"));
}

// Wherever the reading stops, it must not take half a character for a sign of Latin-1.
TEST_F(CustomBrand, ALargeFileIsUtf8ToItsEnd) {
  for (int shift = 0; shift < 4; ++shift) {
    write("<CompanyName>M\xC3\xBCller</CompanyName>" + QByteArray(shift, ' ') +
          QByteArray("\xF0\x9F\x98\x80").repeated(100000));
    EXPECT_EQ(load().first(), QStringLiteral("Müller")) << shift;
  }
}

struct PositionRow {
  const char* rule;
  qsizetype closing;  ///< where the name in the closing tag begins, from 1
  const char* value;
};

// clang-format off
constexpr PositionRow kPositionRows[] = {
    {"well within",                                       1000, "Acme"},
    {"one before the last",                              32766, "Acme"},
    {"the last position of 16 bits",                     32767, "Acme"},
    {"the closing name one beyond",                      32768, ""},
    {"the opening name at the last position",            32785, ""},
    {"the opening name one beyond",                      32786, ""},
    {"both names where 16 bits come round to the start", 65600, ""},
    {"far beyond",                                      131200, ""},
};
// clang-format on

/// An element whose closing name begins at `closing`: "CompanyName>Acme</" are the 18 characters before it.
QString withClosingNameAt(qsizetype closing, const QString& filler) {
  return filler.repeated((closing - 19) / filler.size()) + QString((closing - 19) % filler.size(), u' ') +
         QStringLiteral("CompanyName>Acme</CompanyName>");
}

TEST_F(CustomBrand, ANameIsFoundUpToPosition32767) {
  for (const PositionRow& row : kPositionRows) {
    const QString text = withClosingNameAt(row.closing, QStringLiteral("."));
    EXPECT_EQ(CCustomBrand::GetValue(text, QStringLiteral("CompanyName")).toStdString(), row.value)
        << row.rule;
  }
}

TEST_F(CustomBrand, PositionsCountCharactersNotBytes) {
  for (const QString& filler : {QStringLiteral("."), QStringLiteral("ü"), QStringLiteral("€")}) {
    for (const PositionRow& row : kPositionRows) {
      write(withClosingNameAt(row.closing, filler).toUtf8());
      EXPECT_EQ(load().first().toStdString(), row.value) << row.rule << ", " << filler.toStdString();
    }
  }
}

struct ValueRow {
  const char* rule;
  const char* text;
  const char* name;
};

constexpr ValueRow kNoValueRows[] = {
    {"no text", "", "CompanyName"},
    {"neither text nor name", "", ""},
    {"no name", "<CompanyName>Acme</CompanyName>", ""},
    {"an unknown name", "<CompanyName>Acme</CompanyName>", "CompanyMotto"},
    {"a name longer than the text", "Comp", "CompanyName"},
    {"a name that is all of the text", "CompanyName", "CompanyName"},
};

TEST_F(CustomBrand, WhatIsNotThereHasTheEmptyValue) {
  for (const ValueRow& row : kNoValueRows) {
    EXPECT_EQ(CCustomBrand::GetValue(QString::fromLatin1(row.text), QString::fromLatin1(row.name)), QString())
        << row.rule;
  }
}

struct NamedRow {
  const char* rule;
  const char* company;
  const char* text;
  const char* named;
};

// clang-format off
constexpr NamedRow kNamedRows[] = {
    {"the word alone",                     "Acme",          "Ostrevane",                       "Acme"},
    {"every occurrence",                   "Acme",          "Ostrevane and Ostrevane",         "Acme and Acme"},
    {"inside other words",                 "Acme",          "Ostrevane-Website, Ostrevanes",   "Acme-Website, Acmes"},
    {"other letters are another word",     "Acme",          "ostrevane OSTREVANE",             "ostrevane OSTREVANE"},
    {"a text without it",                  "Acme",          "Visit us",                        "Visit us"},
    {"an ampersand as it stands",          "Smith & Sons",  "&Ostrevane Homepage",             "&Smith & Sons Homepage"},
    {"a name that holds the word",         "New Ostrevane", "Ostrevane Message",               "New Ostrevane Message"},
    {"a name that looks like a reference", "\\1 $1 %1",     "Ostrevane Message",               "\\1 $1 %1 Message"},
    {"an empty name",                      "",              "Ostrevane Message",               " Message"},
};
// clang-format on

TEST_F(CustomBrand, NamesTheCompanyInPlaceOfTheBrandWord) {
  for (const NamedRow& row : kNamedRows) {
    write(QByteArray("<CompanyName>") + row.company + "</CompanyName>");
    CCustomBrand brand(folder.path());
    brand.Load();
    EXPECT_EQ(brand.named(QString::fromUtf8(row.text)).toStdString(), row.named) << row.rule;
  }
}

TEST_F(CustomBrand, NamesTheMakerWithoutAFile) {
  CCustomBrand brand(folder.path());
  brand.Load();
  EXPECT_EQ(brand.named(QStringLiteral("Ostrevane Message")), QStringLiteral("Ostrevane Message"));
}

}  // namespace
