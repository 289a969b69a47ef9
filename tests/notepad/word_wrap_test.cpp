#include "word_wrap.h"
#include "folders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QMap>
#include <sstream>
#include <vector>

#include "language_library.h"
#include "recording_surface.h"
#include "tagged_strings.h"

namespace {

constexpr float kWidth = static_cast<float>(RecordingSurface::kWidth);
constexpr float kHeight = static_cast<float>(RecordingSurface::kHeight);

/// "page: x,y text", as a failure shows it.
std::string shown(const PrintedText& printed) {
  std::ostringstream text;
  text << printed.page << ": " << printed.x << ',' << printed.y << ' ' << printed.text.toStdString();
  return text.str();
}

using Shown = std::vector<std::string>;

/// Header, date and page label come first on every page.
constexpr int kAround = 3;

/// Lays one text out and keeps what was printed.
class WordWrap : public ::testing::Test {
 protected:
  void SetUp() override { Localization::setLanguageObject(nullptr); }
  void TearDown() override { Localization::setLanguageObject(nullptr); }

  struct Margins {
    float left = 720;
    float right = 720;
    float bottom = 1440;
    float top = 1440;
  };

  void lay(const QString& text, const Margins& margins) {
    m_record = {};
    RecordingSurface surface(m_record);
    CWordWrap page(surface, QStringLiteral("2/6/03"));
    page.MarginLeft(margins.left);
    page.MarginRight(margins.right);
    page.MarginBottom(margins.bottom);
    page.MarginTop(margins.top);
    page.PrintText(text);
    EXPECT_TRUE(m_record.isEnded);
  }
  void lay(const QString& text) { lay(text, {}); }

  [[nodiscard]] Shown around(int page) const {
    Shown texts;
    for (const PrintedText& printed : m_record.texts) {
      if (printed.page == page && texts.size() < kAround) texts.push_back(shown(printed));
    }
    return texts;
  }

  [[nodiscard]] Shown body() const {
    Shown texts;
    QMap<int, int> seen;
    for (const PrintedText& printed : m_record.texts) {
      if (++seen[printed.page] > kAround) texts.push_back(shown(printed));
    }
    return texts;
  }

  PrintRecord m_record;
};

TEST_F(WordWrap, PutsTitleDateAndPageLabelAroundAPage) {
  lay(QStringLiteral("a"));
  EXPECT_EQ(around(1),
            (Shown{"1: 5203,600 Tessaloom Notes", "1: 720,16118 2/6/03", "1: 10586,16118 Page 1"}));
  EXPECT_EQ(body(), Shown{"1: 720,1440 a"});
  EXPECT_EQ(m_record.pages, 1) << "the first header starts no page";
}

TEST_F(WordWrap, PutsTheSameAroundALaterPage) {
  lay(QString(59, u'\n') + u'a');
  EXPECT_EQ(around(2),
            (Shown{"2: 5203,600 Tessaloom Notes", "2: 720,16118 2/6/03", "2: 10586,16118 Page 2"}));
  EXPECT_EQ(body(), Shown{"2: 720,1440 a"});
  EXPECT_EQ(m_record.pages, 2);
}

TEST_F(WordWrap, MovesTheLabelOfALongPageNumberToTheLeft) {
  lay(QString(5841, u'\n') + u'a');
  // 59 lines to the page.
  EXPECT_EQ(around(100).at(2), "100: 10386,16118 Page 100");
  EXPECT_EQ(body(), Shown{"100: 720,1440 a"});
}

TEST_F(WordWrap, PlacesWhatIsAroundByTheMargins) {
  lay(QStringLiteral("a"), {.left = 1000, .right = 500, .bottom = 2001, .top = 2440});
  EXPECT_EQ(around(1),
            (Shown{"1: 5203,1100 Tessaloom Notes", "1: 1000,15837.5 2/6/03", "1: 10806,15837.5 Page 1"}));
  EXPECT_EQ(body(), Shown{"1: 1000,2440 a"});
}

TEST_F(WordWrap, CentresAnotherHeaderText) {
  RecordingSurface surface(m_record);
  CWordWrap page(surface, QStringLiteral("today"));
  page.HeaderText(QStringLiteral("abc"));
  EXPECT_EQ(page.HeaderText(), QStringLiteral("abc"));
  page.PrintText(QString());
  EXPECT_EQ(around(1), (Shown{"1: 5803,600 abc", "1: 720,16118 today", "1: 10586,16118 Page 1"}));
}

TEST_F(WordWrap, PrintsAnEmptyTextAsOnePage) {
  lay(QString());
  EXPECT_EQ(m_record.texts.size(), kAround);
  EXPECT_EQ(m_record.pages, 1);
  EXPECT_TRUE(m_record.isEnded);
}

TEST_F(WordWrap, SpeaksTheLanguageOfTheMoment) {
  Localization::setLanguageObject(Localization::loadLanguageLibrary(
      QDir(QString::fromUtf8(kProgramFolder)).filePath(QStringLiteral("TessaloomLang407.dll"))));
  lay(QString());
  EXPECT_EQ(around(1),
            (Shown{"1: 5103,600 Tessaloom-Notizen", "1: 720,16118 2/6/03", "1: 10486,16118 Seite 1"}));
}

TEST_F(WordWrap, KnowsItsMargins) {
  RecordingSurface surface(m_record);
  CWordWrap page(surface, QString());
  EXPECT_EQ(page.HeaderText(), QStringLiteral("Tessaloom Notes"));
  EXPECT_FLOAT_EQ(page.MarginLeft(), 720);
  EXPECT_FLOAT_EQ(page.MarginTop(), 1440);
  EXPECT_FLOAT_EQ(page.MarginRight(), 720);
  EXPECT_FLOAT_EQ(page.MarginBottom(), 1440);
  EXPECT_EQ(page.MarginEnd(), 71);
  page.MarginLeft(1.5F);
  page.MarginTop(2.5F);
  page.MarginRight(3.5F);
  page.MarginBottom(4.5F);
  EXPECT_FLOAT_EQ(page.MarginLeft(), 1.5F);
  EXPECT_FLOAT_EQ(page.MarginTop(), 2.5F);
  EXPECT_FLOAT_EQ(page.MarginRight(), 3.5F);
  EXPECT_FLOAT_EQ(page.MarginBottom(), 4.5F);
  EXPECT_EQ(page.MarginEnd(), 71) << "whatever the margins are";
}

struct LayoutRow {
  const char* rule;
  QString text;
  Shown body;
};

class WordWrapRows : public WordWrap {
 protected:
  void expect(const std::vector<LayoutRow>& rows, const Margins& margins) {
    for (const LayoutRow& row : rows) {
      lay(row.text, margins);
      EXPECT_EQ(body(), row.body) << row.rule;
      EXPECT_EQ(m_record.pages, 1) << row.rule;
    }
  }
};

/// Leaves room for ten characters in a line, and `spare` twips.
constexpr float rightMarginForTen(float spare = 0) { return kWidth - 1720 - spare; }

// clang-format off
const std::vector<LayoutRow> kTenColumns{
    {"a line that fills the width",           "abcd fghij",      {"1: 720,1440 abcd", "1: 1120,1440  ", "1: 1220,1440 fghij"}},
    {"one word that fills the width",         "abcdefghij",      {"1: 720,1440 abcdefghij"}},
    {"one character too many",                "abcde ghijk",     {"1: 720,1440 abcde", "1: 1220,1440  ", "1: 720,1680 ghijk"}},
    {"a blank at the end of a line stays",    "abcdefghij k",    {"1: 720,1440 abcdefghij", "1: 1720,1440  ", "1: 720,1680 k"}},
    {"two blanks there stay too",             "abcdefghij  k",   {"1: 720,1440 abcdefghij", "1: 1720,1440  ", "1: 1820,1440  ", "1: 720,1680 k"}},
    {"a blank at the end of the text",        "abc ",            {"1: 720,1440 abc", "1: 1020,1440  "}},
    {"a blank at the start of the text",      " abc",            {"1: 720,1440  ", "1: 820,1440 abc"}},
    {"a word that fits on no line",           "abcdefghijk",     {"1: 720,1680 abcdefghijk"}},
    {"what follows such a word",              "abcdefghijk m",   {"1: 720,1680 abcdefghijk", "1: 1820,1680  ", "1: 720,1920 m"}},
    {"two such words",                        "abcdefghijk lmnopqrstuv", {"1: 720,1680 abcdefghijk", "1: 1820,1680  ", "1: 720,1920 lmnopqrstuv"}},
    {"such a word behind another",            "a bcdefghijklm",  {"1: 720,1440 a", "1: 820,1440  ", "1: 720,1680 bcdefghijklm"}},
    {"such a word behind a line feed",        "a\nbcdefghijklm", {"1: 720,1440 a", "1: 720,1920 bcdefghijklm"}},
    {"a line feed behind a full line",        "abcdefghij\nk",   {"1: 720,1440 abcdefghij", "1: 720,1680 k"}},
    {"a line feed",                           "a\nb",            {"1: 720,1440 a", "1: 720,1680 b"}},
    {"two line feeds leave an empty line",    "a\n\nb",          {"1: 720,1440 a", "1: 720,1920 b"}},
    {"a line feed at the start",              "\na",             {"1: 720,1680 a"}},
    {"carriage return and line feed",         "a\r\nb\r\n",      {"1: 720,1440 a", "1: 720,1680 b"}},
    {"a carriage return ends a word only",    "a\rb",            {"1: 720,1440 a", "1: 820,1440 b"}},
    {"words part at a carriage return",       "abcdef\rghijk",   {"1: 720,1440 abcdef", "1: 720,1680 ghijk"}},
    {"the word behind a tab wraps",           "ab\tc",           {"1: 720,1440 ab", "1: 720,1680 c"}},
    {"nothing but separators",                "\r\n\t\r\n",      {}},
    {"blanks around a line feed",             "a \n b",          {"1: 720,1440 a", "1: 820,1440  ", "1: 720,1680  ", "1: 820,1680 b"}},
};
// clang-format on

TEST_F(WordWrapRows, BreakLinesAtBlanks) { expect(kTenColumns, {.right = rightMarginForTen()}); }

TEST_F(WordWrapRows, BreakAUnitBeforeTheWordNotAtIt) {
  const Shown oneLine{"1: 720,1440 abcd", "1: 1120,1440  ", "1: 1220,1440 fghij"};
  const Shown twoLines{"1: 720,1440 abcd", "1: 1120,1440  ", "1: 720,1680 fghij"};
  expect({{"ends one unit before the margin", "abcd fghij", oneLine}}, {.right = rightMarginForTen(1)});
  expect({{"ends at the margin", "abcd fghij", oneLine}}, {.right = rightMarginForTen(0)});
  expect({{"ends one unit beyond the margin", "abcd fghij", twoLines}}, {.right = rightMarginForTen(-1)});
}

TEST_F(WordWrapRows, FillTheDefaultWidth) {
  // 104 characters end at 11120, 105 at 11220; the margin begins at 11186.
  const QString fits(104, u'm');
  lay(fits);
  EXPECT_EQ(body(), Shown{"1: 720,1440 " + fits.toStdString()});
  lay(fits + u'm');
  EXPECT_EQ(body(), Shown{"1: 720,1680 " + fits.toStdString() + 'm'});
}

TEST_F(WordWrapRows, TestAnEmptyWordToo) {
  expect({{"at the margin", " a", {"1: 720,1440  ", "1: 720,1680 a"}}}, {.right = kWidth - 720});
  expect({{"beyond it", " a", {"1: 720,1680  ", "1: 720,1920 a"}}, {"no word at all", "\n", {}}},
         {.right = kWidth - 719});
  expect({{"behind a line feed there is no word", "\n \n", {"1: 720,1920  "}}}, {.right = kWidth - 719});
}

TEST_F(WordWrapRows, SkipControlCharacters) {
  for (int code = 0; code < 0x20; ++code) {
    if (code == 9 || code == 10) continue;
    lay(QStringLiteral("ab") + QChar(code) + u'c');
    EXPECT_EQ(body(), (Shown{"1: 720,1440 ab", "1: 920,1440 c"})) << code;
  }
}

TEST_F(WordWrapRows, TakeEverythingAboveTheBlankIntoAWord) {
  for (const int code : {0x21, 0x7F, 0x80, 0x85, 0x9F, 0xA0, 0x200B, 0x2007, 0x2028, 0x2029, 0x202F, 0x3000,
                         0xD800, 0xDC00, 0xFEFF, 0xFFFF}) {
    const QString word = QStringLiteral("ab") + QChar(code) + u'c';
    lay(word);
    ASSERT_EQ(m_record.texts.size(), kAround + 1) << code;
    EXPECT_EQ(m_record.texts.last(), (PrintedText{1, 720, 1440, word})) << code;
  }
}

TEST_F(WordWrapRows, BreakNoLineAtANoBreakSpace) {
  expect({{"a word of eleven",
           "abc defg\u00A0hi",
           {"1: 720,1440 abc", "1: 1020,1440  ", "1: 720,1680 defg\u00A0hi"}}},
         {.right = rightMarginForTen()});
}

TEST_F(WordWrapRows, KeepAPairOfSurrogatesTogether) {
  expect({{"an emoji counts two", "😀 😀", {"1: 720,1440 😀", "1: 920,1440  ", "1: 1020,1440 😀"}}}, {});
}

struct TabRow {
  int column;
  double x;
};

TEST_F(WordWrapRows, MoveATabToTheNextStop) {
  constexpr TabRow rows[] = {{0, 1720},  {1, 1720},  {2, 1720},  {3, 1720},  {4, 1720},  {5, 1720},
                             {6, 1720},  {7, 1720},  {8, 1720},  {9, 1720},  {10, 2720}, {11, 2720},
                             {12, 2720}, {13, 2720}, {14, 2720}, {15, 2720}, {16, 2720}, {17, 2720},
                             {18, 2720}, {19, 2720}, {20, 3720}, {99, 10720}};
  for (const TabRow& row : rows) {
    lay(QString(row.column, u'm') + QStringLiteral("\te"));
    EXPECT_EQ(m_record.texts.last(), (PrintedText{1, row.x, 1440, "e"})) << "column " << row.column;
  }
}

struct FractionRow {
  const char* rule;
  float left;
  int letters;
  double x;
};

TEST_F(WordWrapRows, TakeTheNearestColumnForATab) {
  constexpr FractionRow rows[] = {
      {"half past 0 is column 0", 770, 0, 1720},           {"half past 8 is column 8", 770, 8, 1720},
      {"half past 9 is column 10", 770, 9, 2720},          {"less than half past 9 is 9", 769, 9, 1720},
      {"more than half past 9 is 10", 771, 9, 2720},       {"half past 10 is column 10", 770, 10, 2720},
      {"half past 18 is column 18", 770, 18, 2720},        {"half past 19 is column 20", 770, 19, 3720},
      {"stops are counted from 720", 1000, 0, 1720},       {"also beyond the first stop", 1800, 0, 2720},
      {"a margin at a stop moves on", 1720, 0, 2720},      {"a margin just before a stop", 1669, 0, 1720},
      {"a margin of nearly a stop counts", 1671, 0, 2720},
  };
  for (const FractionRow& row : rows) {
    lay(QString(row.letters, u'm') + QStringLiteral("\te"), {.left = row.left});
    EXPECT_EQ(m_record.texts.last(), (PrintedText{1, row.x, 1440, "e"})) << row.rule;
  }
}

TEST_F(WordWrapRows, TakeEveryTabForItself) {
  expect({{"two tabs", "\t\te", {"1: 2720,1440 e"}},
          {"a blank between", "\t \te", {"1: 1720,1440  ", "1: 2720,1440 e"}},
          {"behind a line feed", "abc\n\te", {"1: 720,1440 abc", "1: 1720,1680 e"}},
          {"a tab beyond the margin does not wrap", QString(11, u'\t') + u' ', {"1: 11720,1440  "}},
          {"a word there does", QString(11, u'\t') + u'e', {"1: 720,1680 e"}}},
         {});
}

struct PageRow {
  const char* rule;
  double limit;
  QString text;
  Shown body;
};

// clang-format off
const std::vector<PageRow> kPageRows{
    {"a line at the limit stays",          2160, "a\nb\nc\nd\ne", {"1: 720,1440 a", "1: 720,1680 b", "1: 720,1920 c", "1: 720,2160 d", "2: 720,1440 e"}},
    {"a line one unit before it stays",    2161, "a\nb\nc\nd\ne", {"1: 720,1440 a", "1: 720,1680 b", "1: 720,1920 c", "1: 720,2160 d", "2: 720,1440 e"}},
    {"a line one unit beyond it does not", 2159, "a\nb\nc\nd\ne", {"1: 720,1440 a", "1: 720,1680 b", "1: 720,1920 c", "2: 720,1440 d", "2: 720,1680 e"}},
    {"a wrapped line at the limit",        1680, "12345678 90 cdefgh12 45", {"1: 720,1440 12345678", "1: 1520,1440  ", "1: 720,1680 90", "1: 920,1680  ", "2: 720,1440 cdefgh12", "2: 1520,1440  ", "2: 720,1680 45"}},
    {"a wrapped line beyond it",           1679, "12345678 90x", {"1: 720,1440 12345678", "1: 1520,1440  ", "2: 720,1440 90x"}},
    {"the last line feed starts a page",   1440, "a\n", {"1: 720,1440 a"}},
    {"a word too long takes its line along", 1680, "a\nbcdefghijkl", {"1: 720,1440 a", "2: 720,1440 bcdefghijkl"}},
};
// clang-format on

TEST_F(WordWrapRows, StartPagesBeyondTheLimitOnly) {
  for (const PageRow& row : kPageRows) {
    lay(row.text, {.right = rightMarginForTen(), .bottom = kHeight - static_cast<float>(row.limit)});
    EXPECT_EQ(body(), row.body) << row.rule;
    EXPECT_EQ(m_record.pages, 2) << row.rule;
  }
}

TEST_F(WordWrapRows, FillAPageOfFiftyNineLines) {
  lay(QString(58, u'\n') + QStringLiteral("a\nb"));
  EXPECT_EQ(body(), (Shown{"1: 720,15360 a", "2: 720,1440 b"})) << "the margin begins at 15398";
}

TEST_F(WordWrapRows, LeaveAPageForAnEmptyLastLine) {
  lay(QString(59, u'\n'));
  EXPECT_EQ(m_record.pages, 2);
  EXPECT_EQ(around(2).size(), kAround);
}

TEST_F(WordWrapRows, LookAtTheBottomAfterALineBreakOnly) {
  lay(QStringLiteral("a\nb"), {.bottom = kHeight - 1000, .top = 1440});
  EXPECT_EQ(body(), (Shown{"1: 720,1440 a", "2: 720,1440 b"})) << "the top lies below the limit";
}

TEST_F(WordWrap, PassesOnThatAPageIsRefused) {
  RecordingSurface surface(m_record, 1);
  CWordWrap page(surface, QStringLiteral("2/6/03"));
  EXPECT_THROW(page.PrintText(QString(59, u'\n') + u'a'), PrintError);
  EXPECT_FALSE(m_record.isEnded);
  EXPECT_EQ(m_record.pages, 1);
  EXPECT_EQ(m_record.texts.size(), kAround) << "nothing of the second page";
}

TEST(PageSurfaceTest, MovesWithWhatIsPrinted) {
  PrintRecord record;
  RecordingSurface surface(record);
  surface.setCurrentX(500);
  surface.setCurrentY(1000);
  surface.print(QString());
  EXPECT_TRUE(record.texts.isEmpty());
  surface.print(QStringLiteral("abc"));
  EXPECT_EQ(record.texts, (QList<PrintedText>{{1, 500, 1000, "abc"}}));
  EXPECT_DOUBLE_EQ(surface.currentX(), 800);
  EXPECT_DOUBLE_EQ(surface.currentY(), 1000);
  surface.breakLine();
  EXPECT_DOUBLE_EQ(surface.currentX(), 0);
  EXPECT_DOUBLE_EQ(surface.currentY(), 1240);
  surface.setCurrentX(500);
  surface.newPage();
  EXPECT_DOUBLE_EQ(surface.currentX(), 0);
  EXPECT_DOUBLE_EQ(surface.currentY(), 0);
  EXPECT_EQ(surface.page(), 2);
  EXPECT_EQ(record.pages, 2);
}

}  // namespace
