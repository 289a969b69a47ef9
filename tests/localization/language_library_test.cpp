#include "language_library.h"
#include "folders.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include "translation_file.h"

namespace {

using Localization::loadLanguageLibrary;

const QByteArray kMagic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

// The sections of a file and the parts of a message.
constexpr char kHashes = 0x42;
constexpr char kMessages = 0x69;
constexpr char kNumerusRules = '\x88';
constexpr char kDependencies = '\x96';
constexpr char kLanguage = '\xa7';
constexpr char kEnd = 1;
constexpr char kTranslation = 3;
constexpr char kSourceText = 6;
constexpr char kContext = 7;
constexpr char kComment = 8;

/// Of "0636": 0x30, 0x300 + 0x36, 0x3360 + 0x33, 0x33930 + 0x36.
constexpr quint32 kHashOf636 = 0x33966;

QByteArray number(quint32 value) {
  QByteArray bigEndian(sizeof value, '\0');
  qToBigEndian(value, bigEndian.data());
  return bigEndian;
}

/// A section of a file or a part of a message.
QByteArray block(char tag, const QByteArray& content) {
  return QByteArray(1, tag) + number(static_cast<quint32>(content.size())) + content;
}

/// "J" in two bytes, highest first.
QByteArray yes() { return block(kTranslation, QByteArray("\0J", 2)) + kEnd; }

QByteArray hashes(quint32 offset) { return block(kHashes, number(kHashOf636) + number(offset)); }

QByteArray fileOf(const QByteArray& sections) { return kMagic + sections; }

/// A whole library with the text of 636 alone.
QByteArray smallLibrary() { return fileOf(hashes(0) + block(kMessages, yes())); }

QByteArray contentOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

QString shipped(const char* code) {
  return kProgramFolder + QStringLiteral("/TessaloomLang") + QString::fromLatin1(code) +
         QStringLiteral(".dll");
}

struct TextRow {
  const char* rule;
  qint32 id;
  const char* german;
  const char* french;
};

// clang-format off
constexpr TextRow kTextRows[] = {
    {"a text",                           636, "J",         "O"},
    {"a text that is the same in all",  5000, "Tessaloom", "Tessaloom"},
    {"an id that there is not",         9999, "",          ""},
    {"an id of five digits",           10636, "",          ""},
    {"no id",                              0, "",          ""},
    {"less than no id",                   -1, "",          ""},
};
// clang-format on

TEST(LanguageLibrary, TheShippedOnesAnswerById) {
  const auto german = loadLanguageLibrary(shipped("407"));
  const auto french = loadLanguageLibrary(shipped("40C"));
  ASSERT_TRUE(german && french);
  for (const TextRow& row : kTextRows) {
    EXPECT_EQ(german->GetResourceString(row.id).toStdString(), row.german) << row.rule;
    EXPECT_EQ(french->GetResourceString(row.id).toStdString(), row.french) << row.rule;
  }
}

TEST(LanguageLibrary, KeepsBlanksAndUmlauts) {
  const auto german = loadLanguageLibrary(shipped("407"));
  ASSERT_TRUE(german);
  EXPECT_EQ(german->GetResourceString(667), QStringLiteral("Seite "));
  EXPECT_EQ(german->GetResourceString(625), QStringLiteral("Käufer nicht aus Großbritannien"));
}

struct FormatRow {
  const char* rule;
  QByteArray file;
};

// clang-format off
const FormatRow kSoundRows[] = {
    {"one message",                         smallLibrary()},
    {"messages before the hashes",          fileOf(block(kMessages, yes()) + hashes(0))},
    {"the second of two messages",          fileOf(hashes(6) + block(kMessages, block(kTranslation, {}) + kEnd + yes()))},
    {"all parts of a message",              fileOf(hashes(0) + block(kMessages, block(kSourceText, "0636") + block(kContext, "") + block(kComment, "") + yes()))},
    {"the language's name",                 fileOf(block(kLanguage, "de_DE") + hashes(0) + block(kMessages, yes()))},
};

const FormatRow kUnsoundRows[] = {
    {"nothing",                             {}},
    {"text",                                "This is no library.\n"},
    {"the magic alone",                     kMagic},
    {"half of the magic",                   kMagic.left(8)},
    {"another magic",                       "M" + smallLibrary().mid(1)},
    {"one letter before the magic",         " " + smallLibrary()},
    {"one byte behind the last section",    smallLibrary() + kEnd},
    {"no hashes",                           fileOf(block(kMessages, yes()))},
    {"no messages",                         fileOf(hashes(0))},
    {"empty hashes",                        fileOf(block(kHashes, {}) + block(kMessages, yes()))},
    {"empty messages",                      fileOf(hashes(0) + block(kMessages, {}))},
    {"hashes twice",                        fileOf(hashes(0) + hashes(0) + block(kMessages, yes()))},
    {"messages twice",                      fileOf(hashes(0) + block(kMessages, yes()) + block(kMessages, yes()))},
    {"further files to be loaded",          fileOf(block(kDependencies, "other") + hashes(0) + block(kMessages, yes()))},
    {"contexts, as there were long ago",    fileOf(block(0x2f, "ctx") + hashes(0) + block(kMessages, yes()))},
    {"an unknown section",                  fileOf(hashes(0) + block(kMessages, yes()) + block(0x43, "x"))},
    {"a section longer than the file",      fileOf(hashes(0) + kMessages + number(9) + yes())},
    {"a section as long as can be said",    fileOf(hashes(0) + kMessages + number(0xffffffff) + yes())},
    {"a row of hashes cut short",           fileOf(block(kHashes, number(kHashOf636)) + block(kMessages, yes()))},
    {"half a row of hashes more",           fileOf(block(kHashes, number(kHashOf636) + number(0) + number(7)) + block(kMessages, yes()))},
    {"a hash to the middle of a message",   fileOf(hashes(1) + block(kMessages, yes()))},
    {"a hash into the first of two",         fileOf(hashes(1) + block(kMessages, yes() + yes()))},
    {"a hash to the end of a message",      fileOf(hashes(7) + block(kMessages, yes()))},
    {"a hash behind the last message",      fileOf(hashes(8) + block(kMessages, yes()))},
    {"a hash far beyond",                   fileOf(hashes(0xffffffff) + block(kMessages, yes()))},
    {"a message without an end",            fileOf(hashes(0) + block(kMessages, yes().chopped(1)))},
    {"a part longer than the messages",     fileOf(hashes(0) + block(kMessages, kTranslation + number(4) + QByteArray("\0J", 2) + kEnd))},
    {"a part as long as can be said",       fileOf(hashes(0) + block(kMessages, kTranslation + number(0xfffffffe) + QByteArray("\0J", 2) + kEnd))},
    {"a translation of half characters",    fileOf(hashes(0) + block(kMessages, block(kTranslation, "abc") + kEnd))},
    {"a part from before Unicode",          fileOf(hashes(0) + block(kMessages, block(2, "ab") + yes()))},
    {"an unknown part",                     fileOf(hashes(0) + block(kMessages, block(9, "ab") + yes()))},
    {"a part of number zero",               fileOf(hashes(0) + block(kMessages, QByteArray(1, 0) + yes()))},
    {"a broken second message",             fileOf(hashes(0) + block(kMessages, yes() + block(9, "ab") + kEnd))},
};
// clang-format on

TEST(LanguageLibrary, AWholeFileIsLoaded) {
  for (const FormatRow& row : kSoundRows) {
    EXPECT_TRUE(Localization::isSoundTranslation(row.file)) << row.rule;
    const auto library = loadLanguageLibrary(row.file);
    ASSERT_TRUE(library) << row.rule;
    EXPECT_EQ(library->GetResourceString(636), QStringLiteral("J")) << row.rule;
    EXPECT_EQ(library->GetResourceString(637), QString()) << row.rule;
  }
}

TEST(LanguageLibrary, WhatIsNoWholeTranslationIsRefused) {
  for (const FormatRow& row : kUnsoundRows) {
    EXPECT_FALSE(Localization::isSoundTranslation(row.file)) << row.rule;
    EXPECT_FALSE(loadLanguageLibrary(row.file)) << row.rule;
  }
}

TEST(LanguageLibrary, RulesOfCountingThatAreNoneAreRefused) {
  EXPECT_FALSE(loadLanguageLibrary(smallLibrary() + block(kNumerusRules, "\xff\xff\xff")));
}

TEST(LanguageLibrary, AFileCutShortIsRefused) {
  const QByteArray small = smallLibrary();
  for (qsizetype length = 0; length < small.size(); ++length) {
    EXPECT_FALSE(loadLanguageLibrary(small.left(length))) << length;
  }
  const QByteArray large = contentOf(shipped("407"));
  for (qsizetype length = 0; length < large.size(); length += 97) {
    EXPECT_FALSE(loadLanguageLibrary(large.left(length))) << length;
  }
}

void askAll(const QByteArray& file) {
  const auto library = loadLanguageLibrary(file);
  if (!library) return;
  for (qint32 id = 600; id <= 700; ++id) (void)library->GetResourceString(id);
}

// Only that it comes through is asked: some such files are whole, with another text in them.
TEST(LanguageLibrary, AFileWithABrokenByteDoesNoHarm) {
  const QByteArray sound = contentOf(shipped("407"));
  ASSERT_GT(sound.size(), 3000);
  for (qsizetype at = 0; at < 3000; ++at) {
    for (const int flip : {0x01, 0x80, 0xff}) {
      QByteArray broken = sound;
      broken[at] = static_cast<char>(broken[at] ^ flip);
      askAll(broken);
    }
  }
}

class LanguageLibraryFile : public ::testing::Test {
 protected:
  void write(const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("TessaloomLang407.dll"));
};

TEST_F(LanguageLibraryFile, IsLoadedUnderAnyPath) {
  path = folder.filePath(QStringLiteral("Bücher 'n' €.dll"));
  write(smallLibrary());
  EXPECT_TRUE(loadLanguageLibrary(path));
}

TEST_F(LanguageLibraryFile, OfAnotherKindIsRefused) {
  for (const FormatRow& row : kUnsoundRows) {
    write(row.file);
    EXPECT_FALSE(loadLanguageLibrary(path)) << row.rule;
  }
}

TEST_F(LanguageLibraryFile, ThatIsMissingIsRefused) {
  EXPECT_FALSE(loadLanguageLibrary(path));
  EXPECT_FALSE(loadLanguageLibrary(QString()));
}

TEST_F(LanguageLibraryFile, ThatIsAFolderIsRefused) {
  ASSERT_TRUE(QDir().mkdir(path));
  EXPECT_FALSE(loadLanguageLibrary(path));
}

TEST_F(LanguageLibraryFile, ThatIsALinkToNowhereIsRefused) {
  ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone")), path));
  EXPECT_FALSE(loadLanguageLibrary(path));
}

// The window would stand still: nobody writes into the pipe.
TEST_F(LanguageLibraryFile, ThatIsAPipeIsRefusedUnopened) {
  ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
  EXPECT_FALSE(loadLanguageLibrary(path));
}

TEST_F(LanguageLibraryFile, ThatIsLargerThanAnyTranslationIsRefused) {
  const auto withComment = [](qsizetype length) {
    return fileOf(hashes(0) + block(kMessages, block(kComment, QByteArray(length, 'x')) + yes()));
  };
  write(withComment(5000));
  EXPECT_TRUE(loadLanguageLibrary(path));
  write(withComment(5000000));
  EXPECT_FALSE(loadLanguageLibrary(path));
}

}  // namespace
