#include "system_information.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>
#include <string_view>

namespace {

using namespace std::string_view_literals;

const QString kPathValue = QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO|PATH)");
const QString kFolderValue = QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools Location|MSINFO)");

struct PathRow {
  const char* rule;
  QMap<QString, QString> values;  ///< by key, bar and name
  QStringList files;
  const char* path;
};

const QString kTool = QStringLiteral(R"(C:\Shared\MSINFO32.EXE)");

// clang-format off
const PathRow kPathRows[] = {
    {"the noted path is taken unchecked",       {{kPathValue, R"(C:\gone.exe)"}},                                  {},                  R"(C:\gone.exe)"},
    {"the noted path goes before the folder",   {{kPathValue, R"(C:\a.exe)"}, {kFolderValue, R"(C:\Shared)"}},     {R"(C:\a.exe)", kTool}, R"(C:\a.exe)"},
    {"the noted path as it stands",             {{kPathValue, R"("C:\a b.exe" /x)"}},                            {},                  R"("C:\a b.exe" /x)"},
    {"the folder, with the file in it",         {{kFolderValue, R"(C:\Shared)"}},                                {kTool},             R"(C:\Shared\MSINFO32.EXE)"},
    {"the folder, without the file in it",      {{kFolderValue, R"(C:\Shared)"}},                                {},                  ""},
    {"the folder, with another file in it",     {{kFolderValue, R"(C:\Shared)"}},                                {R"(C:\Shared)"},    ""},
    {"neither",                                 {},                                                              {kTool},             ""},
};
// clang-format on

TEST(MsInfo, IsFoundInTwoSteps) {
  for (const PathRow& row : kPathRows) {
    const auto read = [&row](const QString& key, const QString& name) {
      const auto value = row.values.constFind(key + u'|' + name);
      return value == row.values.constEnd() ? std::nullopt : std::optional(*value);
    };
    const auto exists = [&row](const QString& path) { return row.files.contains(path); };
    EXPECT_EQ(MsInfo::programPath(read, exists).toStdString(), row.path) << row.rule;
  }
}

TEST(MsInfo, LooksNoFurtherThanItMust) {
  QStringList asked;
  const auto read = [&asked](const QString& key, const QString& name) {
    asked << key + u'|' + name;
    return std::optional(QStringLiteral(R"(C:\a.exe)"));
  };
  const auto exists = [&asked](const QString& path) {
    asked << path;
    return true;
  };
  EXPECT_EQ(MsInfo::programPath(read, exists), QStringLiteral(R"(C:\a.exe)"));
  EXPECT_EQ(asked, QStringList{kPathValue});
}

struct ValueRow {
  const char* rule;
  unsigned long type;
  std::string_view bytes;
  std::optional<std::string_view> text;
};

// clang-format off
const ValueRow kValueRows[] = {
    {"a string, cut at its zero character",       1, "a tool\0"sv,              "a tool"sv},
    {"a string, cut at its first zero character", 1, "a tool\0b\0\0"sv,         "a tool"sv},
    {"a zero character alone",                    1, "\0"sv,                    ""sv},
    {"a zero character first",                    1, "\0a"sv,                   ""sv},
    {"a number, its lowest byte first",           4, "\x01\x02\x00\x00"sv,      "513"sv},
    {"the number 0",                              4, "\x00\x00\x00\x00"sv,      "0"sv},
    {"the number 10",                             4, "\x0A\x00\x00\x00"sv,      "10"sv},
    {"the largest number",                        4, "\xFF\xFF\xFF\xFF"sv,      "4294967295"sv},
    {"a number of three bytes",                   4, "\x01\x02\x03"sv,          std::nullopt},
    {"no type",                                   0, "a\0"sv,                   std::nullopt},
    {"a string with variables",                   2, "%a%\0"sv,                 std::nullopt},
    {"binary",                                    3, "a\0"sv,                   std::nullopt},
    {"a number, its highest byte first",          5, "\x00\x00\x00\x01"sv,      std::nullopt},
    {"a list of strings",                         7, "a\0b\0\0"sv,              std::nullopt},
    {"a number of eight bytes",                  11, "\1\0\0\0\0\0\0\0"sv,      std::nullopt},
};
// clang-format on

TEST(MsInfo, ReadsStringsAndNumbersAlone) {
  for (const ValueRow& row : kValueRows) {
    const auto text =
        MsInfo::textOf(row.type, QByteArray(row.bytes.data(), static_cast<qsizetype>(row.bytes.size())));
    ASSERT_EQ(text.has_value(), row.text.has_value()) << row.rule;
    if (text) {
      EXPECT_EQ(text->toStdString(), *row.text) << row.rule;
    }
  }
}

/// The program files that this system would find, in a folder that is its only one for commands.
class InstalledTool : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("PATH", QFile::encodeName(folder.path())); }
  void TearDown() override { qputenv("PATH", before); }

  QString install(const QString& name, QFile::Permissions permissions = QFile::ReadOwner | QFile::ExeOwner) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(file.setPermissions(permissions));
    return file.fileName();
  }

  QTemporaryDir folder;
  const QByteArray before = qgetenv("PATH");
};

TEST_F(InstalledTool, IsNoneWhereNoneIs) {
  install(QStringLiteral("msinfo32"));
  EXPECT_EQ(InstalledSystemInformation().programPath(), QString());
}

// From the last choice to the first: each is preferred to those that are there already.
TEST_F(InstalledTool, IsTheFirstChoiceByItsFullPath) {
  for (const char* name :
       {"gnome-system-monitor", "mate-system-monitor", "hardinfo", "hardinfo2", "kinfocenter"}) {
    const QString tool = install(QString::fromLatin1(name));
    EXPECT_EQ(InstalledSystemInformation().programPath(), tool);
  }
}

TEST_F(InstalledTool, CanBeStarted) {
  install(QStringLiteral("kinfocenter"), QFile::ReadOwner);
  EXPECT_EQ(InstalledSystemInformation().programPath(), QString());
}

}  // namespace
