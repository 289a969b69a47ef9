#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

#include "recording_surface.h"
#include "word_wrap.h"

namespace {

struct Margins {
  int left, top, right, bottom;
};

constexpr int kPageWidth = 11906;
constexpr int kPageHeight = 16838;
constexpr int kAdvance = 100;
constexpr int kLineHeight = 240;

/// The layout once more, one numbered step after the other, with everything it knows in plain sight.
/// Half twips only occur around the page, so positions are counted in halves.
class NaiveLayout {
 public:
  NaiveLayout(QString text, Margins margins) : m_text(std::move(text)), m_margins(margins) {}

  QList<PrintedText> run() {
    header();
    m_i = 1;
    while (!isBeyond()) {
      collect();
      wrap();
      put(m_word);
      while (!isBeyond() && code() <= 32) separate();
    }
    return m_printed;
  }

  [[nodiscard]] int pages() const { return m_page; }

 private:
  [[nodiscard]] bool isBeyond() const { return m_i > m_text.length(); }
  [[nodiscard]] int code() const { return m_text.at(m_i - 1).unicode(); }

  static int widthOf(const QString& text) { return 2 * kAdvance * static_cast<int>(text.length()); }

  void put(const QString& text) {
    if (!text.isEmpty()) m_printed.append({m_page, m_x / 2.0, m_y / 2.0, text});
    m_x += widthOf(text);
  }

  void header() {
    const QString title = "Tessaloom Notes";
    const QString label = "Page " + QString::number(m_page);
    const int foot = 2 * kPageHeight - m_margins.bottom;
    m_y = m_margins.top - kLineHeight;
    m_x = (2 * kPageWidth - widthOf(title)) / 2;
    put(title);
    m_x = 2 * m_margins.left;
    m_y = foot;
    put("6 Feb");
    m_x = 2 * kPageWidth - (widthOf(label) + 2 * m_margins.right);
    m_y = foot;
    put(label);
    m_x = 2 * m_margins.left;
    m_y = 2 * m_margins.top;
  }

  void collect() {
    m_word.clear();
    while (!isBeyond() && code() > 32) {
      m_word += m_text.mid(m_i - 1, 1);
      m_i += 1;
    }
  }

  void wrap() {
    if (m_x + widthOf(m_word) > 2 * (kPageWidth - m_margins.right)) feed();
  }

  void feed() {
    m_y += 2 * kLineHeight;
    if (m_y > 2 * (kPageHeight - m_margins.bottom)) {
      m_page += 1;
      header();
    } else {
      m_x = 2 * m_margins.left;
    }
  }

  void separate() {
    switch (code()) {
      case 32:
        put(" ");
        break;
      case 10:
        feed();
        break;
      case 9:
        tab();
        break;
      default:
        break;
    }
    m_i += 1;
  }

  /// Looks for the stop by walking from column to column.
  void tab() {
    const int twiceColumn = 2 * kAdvance;
    int column = 0;
    int behind = m_x - 2 * 720;
    while (behind >= twiceColumn) {
      behind -= twiceColumn;
      ++column;
    }
    if (2 * behind > twiceColumn || (2 * behind == twiceColumn && column % 2 == 1)) ++column;
    do {
      ++column;
    } while (column % 10 != 0);
    m_x = column * twiceColumn + 2 * 720;
  }

  QString m_text;
  Margins m_margins;
  QString m_word;
  qsizetype m_i = 1;
  int m_x = 0;
  int m_y = 0;
  int m_page = 1;
  QList<PrintedText> m_printed;
};

/// The same texts on every machine: the engine is the standard's, and so is what is drawn from it here.
class TextSource {
 public:
  explicit TextSource(unsigned seed) : m_engine(seed) {}

  int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }

  QString text() {
    QString text;
    for (int pieces = below(400); pieces > 0; --pieces) text += piece();
    return text;
  }

  Margins margins() {
    // Half of the left margins lie on a half column.
    const int left = 720 + (below(2) == 0 ? 50 * below(20) : below(1500));
    return {left, 300 + below(3000), below(9000), 200 + below(12000)};
  }

 private:
  QString piece() {
    static const std::array<QString, 14> fixed{" ",      " ",    " ",  "  ", "\t",           "\n",
                                               "\r\n",   "\r\n", "\r", "😀",  "السلام عليكم", "a\u00A0b",
                                               "\u007F", "¶"};
    const int kind = below(30);
    if (kind < 14) return fixed[static_cast<std::size_t>(kind)];
    if (kind == 14) return {QChar(below(33))};
    if (kind == 15) return QStringLiteral("w").repeated(60 + below(120));
    return {1 + below(12), QChar('a' + below(26))};
  }

  std::mt19937 m_engine;
};

std::string describe(const PrintedText& printed) {
  std::ostringstream text;
  text << "page " << printed.page << " at " << printed.x << ',' << printed.y << " '"
       << printed.text.toStdString() << '\'';
  return text.str();
}

void expectSame(const QList<PrintedText>& actual, const QList<PrintedText>& expected, int number) {
  const auto [is, ought] = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
  if (is == actual.end() && ought == expected.end()) return;
  ADD_FAILURE() << "text " << number << ": " << (is == actual.end() ? "nothing more" : describe(*is))
                << " where a reader of the rules prints "
                << (ought == expected.end() ? "nothing more" : describe(*ought));
}

TEST(RandomTexts, AreLaidOutAsByANaiveReader) {
  TextSource source(20030206);
  int pages = 0;
  for (int number = 1; number <= 300; ++number) {
    const QString text = source.text();
    const Margins margins = source.margins();
    PrintRecord record;
    RecordingSurface surface(record);
    CWordWrap page(surface, QStringLiteral("6 Feb"));
    page.MarginLeft(static_cast<float>(margins.left));
    page.MarginTop(static_cast<float>(margins.top));
    page.MarginRight(static_cast<float>(margins.right));
    page.MarginBottom(static_cast<float>(margins.bottom));
    page.PrintText(text);
    NaiveLayout naive(text, margins);
    expectSame(record.texts, naive.run(), number);
    EXPECT_EQ(record.pages, naive.pages()) << number;
    EXPECT_TRUE(record.isEnded) << number;
    pages += record.pages;
  }
  EXPECT_GT(pages, 450) << "the texts are long enough for page breaks";
}

}  // namespace
