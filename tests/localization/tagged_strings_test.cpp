#include "tagged_strings.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QStringList>
#include <stdexcept>

namespace {

using Localization::GetTagString;

struct MapResources : Localization::LanguageResources {
  explicit MapResources(QMap<qint32, QString> texts) : m_texts(std::move(texts)) {}
  QString GetResourceString(qint32 id) override { return m_texts.value(id); }
  QMap<qint32, QString> m_texts;
};

struct FailingResources : Localization::LanguageResources {
  QString GetResourceString(qint32 /*id*/) override { throw std::runtime_error("broken"); }
};

class TaggedStrings : public ::testing::Test {
 protected:
  void SetUp() override {
    Localization::setLanguageObject(nullptr);
    Localization::setDebugLogListener([this](const QString& message) { log << message; });
  }
  void TearDown() override {
    Localization::setDebugLogListener({});
    Localization::setLanguageObject(nullptr);
  }

  QStringList log;
};

struct Row {
  const char* rule;
  const char* tagged;
  const char* shown;
};

// clang-format off
constexpr Row kRows[] = {
    {"the table's text, its blank at the end included",        "Page <0667>",               "Page "},
    {"the text before the tag is never shown",                 "Something else<0667>",      "Page "},
    {"one letter before the tag",                              "Y<0636>",                   "Y"},
    {"nothing before the tag",                                 "<0636>",                    "Y"},
    {"fewer than five characters",                             "OK",                        ""},
    {"four characters",                                        "0636",                      ""},
    {"the empty text",                                         "",                          ""},
    {"five characters: the first four are the tag",            "0636>",                     "Y"},
    {"brackets are not looked at",                             "0636x",                     "Y"},
    {"digits all through: the tag is the four before the last",  "106361",                    "Y"},
    {"an all-digit text is taken as tagged",                   "12345",                     ""},
    {"an untagged text comes back unchanged",                  "Homepage",                  "Homepage"},
    {"four characters with a sign are no tag",                 "Amount+0636",               "Amount+0636"},
    {"a blank is no digit",                                    "Text< 667>",                "Text< 667>"},
    {"a decimal symbol is no digit",                           "Text<66.7>",                "Text<66.7>"},
    {"Arabic digits are no digits",                            "Text<٠٦٦٧>",                "Text<٠٦٦٧>"},
    {"an id that the table lacks",                             "Gone<0229>",                ""},
    {"an id whose text is empty",                              "Gone<0230>",                ""},
    {"a mnemonic stays in the text",                           "Op&ening Bid:<0617>",       "Op&ening Bid:"},
};
// clang-format on

TEST_F(TaggedStrings, AreResolvedByTheirTag) {
  for (const Row& row : kRows) {
    EXPECT_EQ(GetTagString(QString::fromUtf8(row.tagged)).toStdString(), row.shown) << row.rule;
  }
}

TEST_F(TaggedStrings, ATextWithoutATagIsLoggedWithTwoBlanks) {
  GetTagString(QStringLiteral("Homepage"));
  EXPECT_EQ(log, QStringList{QStringLiteral("Localization:  Missing tag for Homepage")});
}

TEST_F(TaggedStrings, ATooShortTextIsLogged) {
  GetTagString(QStringLiteral("OK"));
  EXPECT_EQ(log, QStringList{QStringLiteral("Send an empty string...by mistake")});
}

TEST_F(TaggedStrings, AResolvedTextIsNotLogged) {
  GetTagString(QStringLiteral("Y<0636>"));
  EXPECT_TRUE(log.isEmpty());
}

TEST_F(TaggedStrings, ALibraryGoesFirst) {
  Localization::setLanguageObject(
      std::make_unique<MapResources>(QMap<qint32, QString>{{636, QStringLiteral("J")}}));
  EXPECT_EQ(GetTagString(QStringLiteral("Y<0636>")), QStringLiteral("J"));
}

TEST_F(TaggedStrings, ALibraryWithoutTheTextFallsBackToEnglishEntryByEntry) {
  Localization::setLanguageObject(
      std::make_unique<MapResources>(QMap<qint32, QString>{{636, QStringLiteral("J")}}));
  EXPECT_EQ(GetTagString(QStringLiteral("N<0637>")), QStringLiteral("N"));
}

TEST_F(TaggedStrings, AFailingLibraryCountsAsOneWithoutTheText) {
  Localization::setLanguageObject(std::make_unique<FailingResources>());
  EXPECT_EQ(GetTagString(QStringLiteral("Y<0636>")), QStringLiteral("Y"));
}

}  // namespace
