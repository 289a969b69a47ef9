#include "settings_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string_view>

namespace {

using namespace std::string_view_literals;

QString textOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// While it lives, no file of this process takes a byte.
class FullDisk {
 public:
  /// With so many bytes left for a file.
  explicit FullDisk(rlim_t left = 0) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
    const rlimit none{.rlim_cur = left, .rlim_max = m_before.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    (void)std::signal(SIGXFSZ, m_handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

/// The real store in a folder of the test's own. What lies at a path is remembered as long as the process
/// lives, so every test has another one.
class Settings : public ::testing::Test {
 protected:
  void SetUp() override { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path()); }

  void putFile(const QByteArray& content) {
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  static QByteArray contentOf(const QString& of) {
    QFile file(of);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << of.toStdString();
    return file.readAll();
  }

  static QString readAnew(const QString& key) { return UserSettings().read(key); }

  /// Writes, and expects to be told the place that could not be written.
  void expectFailure(SettingsStore& store, const QString& text) {
    try {
      store.write(key, text);
      ADD_FAILURE() << "no error";
    } catch (const SettingsError& error) {
      EXPECT_NE(std::string_view(error.what()).find(path.toStdString()), std::string_view::npos)
          << error.what();
    }
  }

  void expectKeptAside(const QByteArray& damaged) {
    putFile(damaged);
    UserSettings store;
    store.write(key, value);
    EXPECT_EQ(readAnew(key), value);
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged")), damaged);
    // Damage that happens later is kept besides.
    const QByteArray again = damaged + "\nand once more\n";
    putFile(again);
    store.write(key, value);
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged")), damaged);
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged.2")), again);
  }

  const QString key = QStringLiteral("PayPalUKRate");
  const QString value = QStringLiteral("0.53");
  QTemporaryDir home;
  QString folder = home.filePath(QStringLiteral("Ostrevane"));
  QString path = folder + QStringLiteral("/Tessaloom.conf");
};

struct TextRow {
  const char* rule;
  std::string_view text;
};

// clang-format off
constexpr TextRow kTextRows[] = {
    {"letters",                          "English"sv},
    {"a decimal point",                  "0.53"sv},
    {"a decimal comma",                  "0,53"sv},
    {"commas alone",                     ",,"sv},
    {"a comma and a blank",              "a, b"sv},
    {"a semicolon, which begins a note", "a;b ; c"sv},
    {"quotes",                           R"("a" and "b")"sv},
    {"one quote",                        R"(")"sv},
    {"backslashes",                      R"(C:\new\x41\)"sv},
    {"blanks at both ends",              "  a  "sv},
    {"blanks alone",                     "   "sv},
    {"tabs and line breaks",             "\ta\r\nb\n"sv},
    {"an equals sign",                   "a=b"sv},
    {"what looks like a group",          "[General]"sv},
    {"a per cent sign",                  "%20%"sv},
    {"an at sign",                       "@"sv},
    {"an at sign in front",              "@home"sv},
    {"what looks like a nothing",        "@Invalid()"sv},
    {"what looks like bytes",            "@ByteArray(abc)"sv},
    {"what looks like any value",        R"(@Variant(\0\0\0\x2))"sv},
    {"umlauts and an euro sign",         "Käufer für 5 €"sv},
    {"beyond 16 bits",                   "😀"sv},
    {"a zero byte",                      "a\0b"sv},
    {"nothing",                          ""sv},
};
// clang-format on

TEST_F(Settings, EveryTextComesBackAsItWas) {
  UserSettings store;
  for (const TextRow& row : kTextRows) {
    store.write(key, textOf(row.text));
    EXPECT_EQ(store.read(key), textOf(row.text)) << row.rule;
  }
}

// Each row with its own key: what stands in the file is read by parsing it.
TEST_F(Settings, EveryTextComesBackFromTheFile) {
  SettingList list;
  for (const TextRow& row : kTextRows) {
    list.append({QStringLiteral("Key%1").arg(list.size()), textOf(row.text)});
  }
  UserSettings().writeAll(list);
  const QByteArray content = contentOf(path);
  const QTemporaryDir other;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, other.path());
  folder = other.filePath(QStringLiteral("Ostrevane"));
  path = folder + QStringLiteral("/Tessaloom.conf");
  putFile(content);
  UserSettings store;
  for (qsizetype i = 0; i < list.size(); ++i) {
    EXPECT_EQ(store.read(list[i].first), list[i].second) << kTextRows[i].rule;
  }
}

TEST_F(Settings, ALargeTextComesBack) {
  const QString large = QStringLiteral("a,\"€ ").repeated(20000);
  UserSettings().write(key, large);
  EXPECT_EQ(readAnew(key), large);
}

TEST_F(Settings, WithoutAFileEverythingIsEmptyAndNoFileIsMade) {
  EXPECT_EQ(readAnew(key), QString());
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Settings, AnEmptyFileHoldsNothing) {
  putFile("");
  UserSettings store;
  EXPECT_EQ(store.read(key), QString());
  store.write(key, value);
  EXPECT_EQ(readAnew(key), value);
  EXPECT_FALSE(QFile::exists(path + QStringLiteral(".damaged")));
}

TEST_F(Settings, AKeyThatIsNotThereIsEmpty) {
  UserSettings store;
  store.write(key, value);
  EXPECT_EQ(store.read(QStringLiteral("Language")), QString());
}

TEST_F(Settings, LieInAFileOfTheMakersFolder) {
  UserSettings().write(key, value);
  EXPECT_TRUE(contentOf(path).contains("PayPalUKRate=0.53\n"));
}

struct HandWrittenRow {
  const char* rule;
  const char* line;
  const char* text;
};

// clang-format off
constexpr HandWrittenRow kHandWrittenRows[] = {
    {"a comma without quotes",              "PayPalUKRate=0,53",        "0,53"},
    {"a comma in quotes",                   "PayPalUKRate=\"0,53\"",    "0,53"},
    {"several commas",                      "PayPalUKRate=1,234,5",     "1,234,5"},
    {"blanks around the equals sign",       "PayPalUKRate = 0.53",      "0.53"},
    {"nothing behind the equals sign",      "PayPalUKRate=",            ""},
    {"a line of its own that is a note",    "; note\nPayPalUKRate=1",   "1"},
    {"the last of two lines",               "PayPalUKRate=1\nPayPalUKRate=2", "2"},
};
// clang-format on

TEST_F(Settings, WhatIsWrittenByHandIsUnderstood) {
  for (const HandWrittenRow& row : kHandWrittenRows) {
    const QTemporaryDir other;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, other.path());
    folder = other.filePath(QStringLiteral("Ostrevane"));
    path = folder + QStringLiteral("/Tessaloom.conf");
    putFile(QByteArray("[General]\n") + row.line + "\n");
    EXPECT_EQ(readAnew(key).toStdString(), row.text) << row.rule;
  }
}

TEST_F(Settings, AreSharedByTwoStores) {
  UserSettings one;
  UserSettings other;
  one.write(key, value);
  EXPECT_EQ(other.read(key), value);
  other.write(key, QStringLiteral("0,8"));
  EXPECT_EQ(one.read(key), QStringLiteral("0,8"));
}

TEST_F(Settings, OfAnotherProcessAreSeen) {
  UserSettings store;
  store.write(key, value);
  putFile("[General]\nPayPalUKRate=0.7854\nLanguage=German\n");
  EXPECT_EQ(store.read(key), QStringLiteral("0.7854"));
  EXPECT_EQ(store.read(QStringLiteral("Language")), QStringLiteral("German"));
}

TEST_F(Settings, ThatAreNotWrittenAreKept) {
  putFile("[General]\nLanguage=German\nUnknown=\"a, b\"\n\n[Group]\nKey=1\n");
  UserSettings store;
  store.writeAll({{key, value}, {QStringLiteral("PayPalCARate"), QStringLiteral("0.7")}});
  EXPECT_EQ(readAnew(key), value);
  EXPECT_EQ(readAnew(QStringLiteral("PayPalCARate")), QStringLiteral("0.7"));
  EXPECT_EQ(readAnew(QStringLiteral("Language")), QStringLiteral("German"));
  EXPECT_EQ(readAnew(QStringLiteral("Unknown")), QStringLiteral("a, b"));
  EXPECT_EQ(readAnew(QStringLiteral("Group/Key")), QStringLiteral("1"));
}

TEST_F(Settings, OfAnotherProcessAreKeptWhenWriting) {
  UserSettings store;
  store.write(key, value);
  putFile("[General]\nPayPalUKRate=1\nLanguage=German\n");
  store.write(key, QStringLiteral("2"));
  EXPECT_EQ(readAnew(QStringLiteral("Language")), QStringLiteral("German"));
  EXPECT_EQ(readAnew(key), QStringLiteral("2"));
}

TEST_F(Settings, WithoutAFolderToLieInAreReportedWithTheirPlace) {
  QFile file(folder);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  UserSettings store;
  EXPECT_EQ(store.read(key), QString());
  expectFailure(store, value);
}

TEST_F(Settings, WithAFolderInTheFilesPlaceAreReportedWithTheirPlace) {
  ASSERT_TRUE(QDir().mkpath(path));
  UserSettings store;
  EXPECT_EQ(store.read(key), QString());
  expectFailure(store, value);
}

TEST_F(Settings, ThatCouldNotBeStoredStayKnownAndAreStoredWithTheNext) {
  QFile obstacle(folder);
  ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
  UserSettings store;
  expectFailure(store, value);
  EXPECT_EQ(store.read(key), value);
  ASSERT_TRUE(obstacle.remove());
  store.write(QStringLiteral("Language"), QStringLiteral("German"));
  const QByteArray content = contentOf(path);
  EXPECT_TRUE(content.contains("PayPalUKRate=0.53\n")) << content.toStdString();
  EXPECT_TRUE(content.contains("Language=German\n")) << content.toStdString();
}

TEST_F(Settings, OnAFullDiskLeaveTheFileAsItWas) {
  UserSettings store;
  store.writeAll({{key, value}, {QStringLiteral("Language"), QStringLiteral("German")}});
  const QByteArray before = contentOf(path);
  // From no room at all to room for a part of the file, in which the write stops half-way.
  for (const rlim_t left : std::initializer_list<rlim_t>{0, 1, 20, 60, 100, 4096}) {
    const FullDisk disk(left);
    expectFailure(store, QString(100000, u'x'));
    EXPECT_EQ(contentOf(path), before) << left;
  }
}

TEST_F(Settings, OnAFullDiskWithoutAFileLeaveNone) {
  UserSettings store;
  {
    const FullDisk disk;
    expectFailure(store, QString(100000, u'x'));
  }
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Settings, AreStoredAgainOnceThereIsPlace) {
  UserSettings store;
  store.write(QStringLiteral("Language"), QStringLiteral("German"));
  {
    const FullDisk disk;
    expectFailure(store, QString(100000, u'x'));
  }
  store.write(key, value);
  EXPECT_EQ(store.read(key), value);
  const QByteArray content = contentOf(path);
  EXPECT_TRUE(content.contains("PayPalUKRate=0.53\n"));
  EXPECT_TRUE(content.contains("Language=German\n"));
}

/// All bytes, many times over, in an order that is the same each time.
QByteArray rubbish() {
  QByteArray bytes;
  for (int i = 0; i < 20000; ++i) bytes += static_cast<char>(i * 7 + i / 256);
  return bytes;
}

TEST_F(Settings, OfRubbishAreEmptyAndCanBeWritten) {
  putFile(rubbish());
  UserSettings store;
  EXPECT_EQ(store.read(key), QString());
  store.write(key, value);
  EXPECT_EQ(readAnew(key), value);
  EXPECT_TRUE(contentOf(path).contains("PayPalUKRate=0.53\n"));
}

TEST_F(Settings, OfRubbishAreKeptAsideAsTheyWere) { expectKeptAside(rubbish()); }

TEST_F(Settings, OfAFileWithABrokenHeadingAreKeptAsideAsTheyWere) {
  expectKeptAside("[General\nLanguage=German\n" + rubbish());
}

TEST_F(Settings, WithALineThatSaysNothingAreKeptAsideAsTheyWere) {
  expectKeptAside("[General]\nLanguage=German\nthis line says nothing\n");
}

TEST_F(Settings, BesideALineThatSaysNothingAreRead) {
  putFile("[General]\nLanguage=German\nthis line says nothing\nPayPalUKRate=0.53\n");
  UserSettings store;
  EXPECT_EQ(store.read(QStringLiteral("Language")), QStringLiteral("German"));
  EXPECT_EQ(store.read(key), value);
  store.write(QStringLiteral("PayPalCARate"), value);
  EXPECT_EQ(readAnew(QStringLiteral("Language")), QStringLiteral("German"));
  EXPECT_EQ(readAnew(key), value);
}

TEST_F(Settings, OfASoundFileLeaveNoCopyAside) {
  putFile("[General]\nLanguage=German\n");
  UserSettings().write(key, value);
  EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{QStringLiteral("Tessaloom.conf")});
}

}  // namespace
