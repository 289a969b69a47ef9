#include "debug_log_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTimeZone>
#include <thread>

namespace {

const QString kVersion = QStringLiteral("1.0.0");

class DebugLog : public ::testing::Test {
 protected:
  void report(const QString& text) const { DebugLogFile(folder).append(time, kVersion, text); }

  [[nodiscard]] QByteArray content() const {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// Without their ends; every one must have one.
  [[nodiscard]] QByteArrayList lines() const {
    QByteArrayList all = content().split('\n');
    EXPECT_TRUE(all.last().isEmpty()) << "the last line has no end";
    all.removeLast();
    return all;
  }

  [[nodiscard]] QString path() const { return folder + QStringLiteral("/MasterDebugLog.txt"); }

  QTemporaryDir home;
  QString folder = home.filePath(QStringLiteral("state/Ostrevane/Tessaloom"));
  QDateTime time{QDate(2003, 2, 6), QTime(12, 30, 45), QTimeZone(3600)};
};

struct LineRow {
  const char* rule;
  QString text;
  std::string line;
};

const std::string kLongest(16'000, 'x');
const std::string kCut = kLongest + " [cut]";

// clang-format off
const LineRow kLineRows[] = {
    {"a text",                          QStringLiteral("Overflow"),                     "Overflow"},
    {"nothing",                         QString(),                                      ""},
    {"LF",                              QStringLiteral("a\nb"),                         R"(a\nb)"},
    {"CR",                              QStringLiteral("a\rb"),                         R"(a\nb)"},
    {"CR LF is one line break",         QStringLiteral("a\r\nb"),                       R"(a\nb)"},
    {"a line break at the end",         QStringLiteral("a\n"),                          R"(a\n)"},
    {"a back-slash is no line break",   QStringLiteral(R"(c:\new)"),                    R"(c:\\new)"},
    {"a back-slash before a line break", QStringLiteral("a\\\nb"),                      R"(a\\\nb)"},
    {"a line separator",                QStringLiteral("a\u2028b"),                     R"(a\nb)"},
    {"a paragraph separator",           QStringLiteral("a\u2029b"),                     R"(a\nb)"},
    {"a next line",                     QStringLiteral("a") + QChar(0x85) + u'b',       R"(a\nb)"},
    {"a vertical tab",                  QStringLiteral("a\vb"),                         R"(a\nb)"},
    {"a form feed",                     QStringLiteral("a\fb"),                         R"(a\nb)"},
    {"a zero character",                QStringLiteral("a") + QChar(u'\0') + u'b',      "a\uFFFDb"},
    {"the start of a terminal's order", QStringLiteral("a\x1B[2Jb"),                    "a\uFFFD[2Jb"},
    {"a delete",                        QStringLiteral("a\x7F") + u'b',                 "a\uFFFDb"},
    {"one of the upper controls",       QStringLiteral("a") + QChar(0x9B) + u'b',       "a\uFFFDb"},
    {"no control beside them",          QStringLiteral(" ~") + QChar(0xA0),             " ~\u00A0"},
    {"quotes, tabs and ampersands",     QStringLiteral("\"a\"\t&"),                     "\"a\"\t&"},
    {"16,000 characters",               QString(16'000, u'x'),                          kLongest},
    {"16,001 characters are cut",       QString(16'001, u'x'),                          kCut},
    {"UTF-8",                           QStringLiteral("Käufer 5 € 😀"),                 "Käufer 5 € 😀"},
};
// clang-format on

TEST_F(DebugLog, HasOneLineForEachReportWithTimeVersionAndText) {
  for (const LineRow& row : kLineRows) {
    report(row.text);
    EXPECT_EQ(lines().last().toStdString(), std::string("2003-02-06T12:30:45+01:00 1.0.0 ") + row.line)
        << row.rule;
  }
  EXPECT_EQ(lines().size(), static_cast<qsizetype>(std::size(kLineRows)));
}

TEST_F(DebugLog, HalfACharacterDoesNoHarm) {
  report(QStringLiteral("a") + QChar(0xD83D));
  report(QStringLiteral("b"));
  EXPECT_EQ(lines().size(), 2);
  EXPECT_TRUE(lines().last().endsWith(" b"));
}

TEST_F(DebugLog, MakesItsFolderWithTheFirstReport) {
  const DebugLogFile log(folder);
  EXPECT_FALSE(QFile::exists(home.filePath(QStringLiteral("state"))));
  log.append(time, kVersion, QStringLiteral("a"));
  EXPECT_EQ(log.path(), path());
  EXPECT_EQ(lines().size(), 1);
}

TEST_F(DebugLog, AddsToWhatIsThere) {
  ASSERT_TRUE(QDir().mkpath(folder));
  QFile file(path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("of an older version\n");
  file.close();
  report(QStringLiteral("a"));
  EXPECT_EQ(lines(), (QByteArrayList{"of an older version", "2003-02-06T12:30:45+01:00 1.0.0 a"}));
}

struct LargeRow {
  const char* rule;
  QString text;
  int reports;
};

// clang-format off
const LargeRow kLargeRows[] = {
    {"short texts",                       QString(100, u'x'),                         12'000},
    {"texts of some lines",               QStringLiteral("Overflow\n").repeated(40),   3'000},
    {"100 KB of letters",                 QString(100'000, u'x'),                        200},
    {"100 KB of back-slashes",            QString(100'000, u'\\'),                      200},
    {"100 KB of line breaks",             QString(100'000, u'\n'),                       200},
    {"100 KB of three bytes each",        QString(100'000, u'€'),                        200},
    {"100 KB of characters beyond 16 bits", QStringLiteral("😀").repeated(50'000),        200},
    {"5 MB at once",                      QString(5'000'000, u'x'),                        3},
};
// clang-format on

/// Reports `row.text` behind a running number, and expects whole lines with an unbroken run of the newest.
void expectNewest(const LargeRow& row, const QByteArrayList& lines) {
  ASSERT_FALSE(lines.isEmpty()) << row.rule;
  int number = row.reports - static_cast<int>(lines.size());
  for (const QByteArray& line : lines) {
    const std::string expected = "2003-02-06T12:30:45+01:00 1.0.0 #" + std::to_string(++number) + ' ';
    ASSERT_EQ(line.left(static_cast<qsizetype>(expected.size())).toStdString(), expected) << row.rule;
  }
}

TEST_F(DebugLog, StaysUnderAMegabyteAndKeepsTheNewestWholeLines) {
  for (const LargeRow& row : kLargeRows) {
    QFile::remove(path());
    qint64 largest = 0;
    for (int number = 1; number <= row.reports; ++number) {
      report(QStringLiteral("#%1 ").arg(number) + row.text);
      largest = std::max(largest, QFileInfo(path()).size());
    }
    EXPECT_LT(largest, 1'000'000) << row.rule;
    expectNewest(row, lines());
    // It is the oldest that make room, and not all of them each time.
    if (row.reports * row.text.size() > 1'000'000 && row.reports > 100) {
      EXPECT_GT(QFileInfo(path()).size(), 300'000) << row.rule;
    }
  }
}

TEST_F(DebugLog, ShortensWhatSomebodyElseMadeLarge) {
  ASSERT_TRUE(QDir().mkpath(folder));
  for (const QByteArray& unit :
       {QByteArray("line\n"), QByteArray("x"), QByteArray("\n"), QByteArray("\0", 1)}) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(unit.repeated(5'000'000 / unit.size()));
    file.close();
    report(QStringLiteral("a"));
    EXPECT_LT(QFileInfo(path()).size(), 1'000'000);
    EXPECT_TRUE(content().endsWith("2003-02-06T12:30:45+01:00 1.0.0 a\n"));
  }
}

TEST_F(DebugLog, WhereItCannotBeShortenedItGrowsNoFurther) {
  // Beside a name as long as names can be there is none for the shorter file.
  const QString longName = folder + u'/' + QString(255, u'x');
  ASSERT_TRUE(QDir().mkpath(folder));
  QFile file(longName);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray("line\n").repeated(199'990));
  file.close();
  ASSERT_TRUE(QFile::link(longName, path()));
  const QByteArray before = content();
  for (int number = 1; number <= 3; ++number) report(QString(100, u'x'));
  EXPECT_EQ(content(), before);
}

TEST_F(DebugLog, WhereThereIsNoFolderToMakeItIsSilent) {
  QFile obstacle(home.filePath(QStringLiteral("state")));
  ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
  EXPECT_NO_THROW(report(QStringLiteral("a")));
  EXPECT_EQ(obstacle.size(), 0);
}

TEST_F(DebugLog, WithAFolderInItsPlaceItIsSilent) {
  ASSERT_TRUE(QDir().mkpath(path()));
  EXPECT_NO_THROW(report(QStringLiteral("a")));
  EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(DebugLog, ALockThatACrashLeftBehindHoldsNothingUp) {
  ASSERT_TRUE(QDir().mkpath(folder));
  const QString lock = path() + QStringLiteral(".lock");
  const pid_t crashing = fork();
  ASSERT_GE(crashing, 0);
  if (crashing == 0) _exit((new QLockFile(lock))->tryLock() ? 0 : 1);
  int status = 1;
  ASSERT_EQ(waitpid(crashing, &status, 0), crashing);
  ASSERT_EQ(status, 0);
  ASSERT_TRUE(QFile::exists(lock));
  report(QStringLiteral("a"));
  EXPECT_EQ(lines().size(), 1);
}

/// Runs `work` in a process of its own and here at once, each with a letter of its own.
template <typename Work>
void runTwice(Work&& work) {
  const pid_t other = fork();
  ASSERT_GE(other, 0);
  work(other == 0 ? 'B' : 'A');
  if (other == 0) _exit(0);
  int status = 1;
  ASSERT_EQ(waitpid(other, &status, 0), other);
  ASSERT_EQ(status, 0);
}

TEST_F(DebugLog, TwoWindowsThatReportAtTheSameMomentLoseNothing) {
  constexpr int rounds = 20;
  for (int round = 1; round <= rounds; ++round) {
    runTwice([&](char who) { report(QString(QLatin1Char(who)).repeated(200)); });
    EXPECT_EQ(lines().size(), 2 * round);
  }
  EXPECT_EQ(content().count(QByteArray(200, 'A') + '\n'), rounds);
  EXPECT_EQ(content().count(QByteArray(200, 'B') + '\n'), rounds);
}

TEST_F(DebugLog, TwoThreadsThatReportAtTheSameMomentLoseNothing) {
  constexpr int rounds = 20;
  for (int round = 1; round <= rounds; ++round) {
    std::thread other([this] { report(QString(200, u'B')); });
    report(QString(200, u'A'));
    other.join();
    EXPECT_EQ(lines().size(), 2 * round);
  }
}

/// Expects no line that holds something of both, none twice, and those of each in their order.
void expectNothingMixed(const QByteArrayList& lines) {
  QMap<char, int> latest{{'A', -1}, {'B', -1}};
  for (const QByteArray& line : lines) {
    ASSERT_GT(line.size(), 2032);
    const char who = line.at(32);
    ASSERT_TRUE(latest.contains(who)) << line.left(60).toStdString();
    ASSERT_EQ(line.left(2032), "2003-02-06T12:30:45+01:00 1.0.0 " + QByteArray(2000, who));
    const int number = line.mid(2032).toInt();
    ASSERT_GT(number, latest[who]);
    latest[who] = number;
  }
}

TEST_F(DebugLog, TwoWindowsThatReportOnAndOnMixNoLinesAndKeepItSmall) {
  constexpr int reports = 800;
  runTwice([&](char who) {
    for (int number = 0; number < reports; ++number)
      report(QString(QLatin1Char(who)).repeated(2000) + QString::number(number));
  });
  expectNothingMixed(lines());
  EXPECT_LT(content().size(), 1'000'000);
  EXPECT_GT(content().size(), 300'000);
}

class StateFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("HOME", "/home/seller");
    qunsetenv(kVariable);
  }
  void TearDown() override {
    qputenv("HOME", homeBefore);
    if (wasSet) {
      qputenv(kVariable, before);
    } else {
      qunsetenv(kVariable);
    }
  }

  static constexpr const char* kVariable = "XDG_STATE_HOME";
  const bool wasSet = qEnvironmentVariableIsSet(kVariable);
  const QByteArray before = qgetenv(kVariable);
  const QByteArray homeBefore = qgetenv("HOME");
};

struct FolderRow {
  const char* rule;
  const char* set;
  const char* folder;
};

// clang-format off
constexpr FolderRow kFolderRows[] = {
    {"set",                           "/var/state",  "/var/state/Ostrevane/Tessaloom"},
    {"set with an umlaut",            "/var/zust\xC3\xA4nde", "/var/zust\xC3\xA4nde/Ostrevane/Tessaloom"},
    {"empty counts as not set",       "",            "/home/seller/.local/state/Ostrevane/Tessaloom"},
    {"a relative path counts as none", "state",      "/home/seller/.local/state/Ostrevane/Tessaloom"},
    {"a point counts as none",        "./state",     "/home/seller/.local/state/Ostrevane/Tessaloom"},
    {"a tilde is a relative path",    "~/state",     "/home/seller/.local/state/Ostrevane/Tessaloom"},
};
// clang-format on

TEST_F(StateFolder, NotSetIsTheDefaultBelowTheHome) {
  EXPECT_EQ(stateFolder(), QStringLiteral("/home/seller/.local/state/Ostrevane/Tessaloom"));
}

TEST_F(StateFolder, FollowsTheVariable) {
  for (const FolderRow& row : kFolderRows) {
    qputenv(kVariable, row.set);
    EXPECT_EQ(stateFolder().toStdString(), row.folder) << row.rule;
  }
}

}  // namespace
