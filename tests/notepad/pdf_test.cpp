#include <sys/resource.h>

#include <gtest/gtest.h>
#include <csignal>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include "folders.h"
#include "language_library.h"
#include "note_printer.h"
#include "paged_surface.h"
#include "tagged_strings.h"
#include "word_wrap.h"

namespace {

const QString kTitle = QStringLiteral("Tessaloom Notes");
const QPageSize kPaper(QPageSize::A4);

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

QString outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(-1)) << program.toStdString() << " is missing";
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

int pagesOf(const QString& path) {
  for (const QString& line : outputOf("pdfinfo", {path}).split(u'\n')) {
    if (line.startsWith(QStringLiteral("Pages:"))) return line.mid(6).trimmed().toInt();
  }
  return 0;
}

/// One text of several lines, which a failure shows as it is.
std::string joined(const QStringList& lines) { return lines.join(u'\n').toStdString(); }

/// What stands on a page, without empty lines, with one blank for several and with letters for ligatures.
QStringList linesOf(const QString& path, int page, const char* order = "-layout") {
  const QString number = QString::number(page);
  QStringList lines;
  for (const QString& line :
       outputOf("pdftotext", {order, "-enc", "UTF-8", "-f", number, "-l", number, path, "-"})
           .remove(u'\f')
           .split(u'\n')) {
    if (!line.trimmed().isEmpty()) lines << line.normalized(QString::NormalizationForm_KC).simplified();
  }
  return lines;
}

/// Both ways into a PDF: the printer that writes one, and the file that is offered where there is no printer.
std::unique_ptr<PageSurface> printerInto(const QString& path) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(path);
  printer->setFullPage(true);
  return std::make_unique<PagedSurface>(std::move(printer), [] {});
}

std::unique_ptr<PageSurface> fileAt(const QString& path) { return openPdf(path, kTitle, kPaper); }

struct Way {
  const char* name;
  std::unique_ptr<PageSurface> (*open)(const QString& path);
};

void PrintTo(const Way& way, std::ostream* out) { *out << way.name; }

class Pdf : public ::testing::TestWithParam<Way> {
 protected:
  void SetUp() override {
    Localization::setLanguageObject(nullptr);
    ASSERT_TRUE(m_folder.isValid());
  }
  void TearDown() override { Localization::setLanguageObject(nullptr); }

  [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("notes.pdf")); }

  /// Ten lines to the page, of five words each.
  void print(const QString& text) {
    const auto surface = GetParam().open(path());
    CWordWrap page(*surface, QStringLiteral("06.02.2003"));
    const double width = surface->textWidth("w001") * 5 + surface->textWidth(" ") * 4;
    page.MarginRight(static_cast<float>(surface->pageWidth() - 720 - width - 1));
    page.MarginBottom(static_cast<float>(surface->pageHeight() - 1440 - 9.5 * surface->textHeight(" ")));
    page.PrintText(text);
  }

  void printWithDefaults(const QString& text) {
    const auto surface = GetParam().open(path());
    CWordWrap(*surface, QStringLiteral("06.02.2003")).PrintText(text);
  }

  QTemporaryDir m_folder;
};

QString words(int from, int to) {
  QStringList list;
  for (int number = from; number <= to; ++number)
    list << QStringLiteral("w%1").arg(number, 3, 10, QChar(u'0'));
  return list.join(u' ');
}

TEST_P(Pdf, WrapsLinesAndNumbersPages) {
  print(words(1, 125));
  ASSERT_EQ(pagesOf(path()), 3);
  for (int page = 1; page <= 3; ++page) {
    QStringList expected{kTitle};
    for (int line = 0; line < (page == 3 ? 5 : 10); ++line) {
      const int first = (page - 1) * 50 + line * 5 + 1;
      expected << words(first, first + 4);
    }
    expected << QStringLiteral("06.02.2003 Page %1").arg(page);
    EXPECT_EQ(joined(linesOf(path(), page)), joined(expected));
  }
}

TEST_P(Pdf, BreaksLinesAtLineFeeds) {
  printWithDefaults(QStringLiteral("first line\r\nsecond line\r\n\r\nlast line\r\n"));
  ASSERT_EQ(pagesOf(path()), 1);
  EXPECT_EQ(joined(linesOf(path(), 1)),
            joined({kTitle, "first line", "second line", "last line", "06.02.2003 Page 1"}));
}

TEST_P(Pdf, HoldsNothingElseInTheOrderOfPrinting) {
  printWithDefaults(QStringLiteral("first line\r\nsecond line"));
  EXPECT_EQ(linesOf(path(), 1, "-raw").join(u' ').toStdString(),
            "Tessaloom Notes 06.02.2003 Page 1 first line second line");
}

TEST_P(Pdf, HoldsAWholeEntry) {
  const QString rule(50, u'-');
  printWithDefaults(rule + "\r\n1. PAYMENT FEE:      Payment Amount: €100.00\r\nPayPal Fee: €3.20\r\n" +
                    rule + "\r\n");
  EXPECT_EQ(joined(linesOf(path(), 1)), joined({kTitle, rule, "1. PAYMENT FEE: Payment Amount: €100.00",
                                                "PayPal Fee: €3.20", rule, "06.02.2003 Page 1"}));
}

TEST_P(Pdf, PrintsAnEmptyTextAsOnePage) {
  printWithDefaults(QString());
  ASSERT_EQ(pagesOf(path()), 1);
  EXPECT_EQ(joined(linesOf(path(), 1)), joined({kTitle, "06.02.2003 Page 1"}));
}

TEST_P(Pdf, PrintsAWordOfTwoHundredCharactersInOneLine) {
  const QString word(200, u'i');
  print("ab " + word + " cd");
  ASSERT_EQ(pagesOf(path()), 1);
  EXPECT_EQ(joined(linesOf(path(), 1)), joined({kTitle, "ab", word, "cd", "06.02.2003 Page 1"}));
}

TEST_P(Pdf, SpeaksGerman) {
  Localization::setLanguageObject(Localization::loadLanguageLibrary(
      QDir(QString::fromUtf8(kProgramFolder)).filePath(QStringLiteral("TessaloomLang407.dll"))));
  printWithDefaults(QStringLiteral("Angebotsgebühr: EUR0,50"));
  EXPECT_EQ(joined(linesOf(path(), 1)),
            joined({"Tessaloom-Notizen", "Angebotsgebühr: EUR0,50", "06.02.2003 Seite 1"}));
}

TEST_P(Pdf, SetsColumnsByTabs) {
  printWithDefaults(QStringLiteral("a\tb\tc\nlonger\td"));
  EXPECT_EQ(joined(linesOf(path(), 1)), joined({kTitle, "a b c", "longer d", "06.02.2003 Page 1"}));
}

struct HardRow {
  const char* name;
  QString text;
};

TEST_P(Pdf, TakesEveryText) {
  const HardRow rows[] = {
      {"a line of a million characters", QString(1'000'000, u'm')},
      {"from right to left", QStringLiteral("السلام عليكم שלום עולם\r\nabc שלום def")},
      {"emoji", QStringLiteral("😀 👩‍👩‍👧‍👦 🇩🇪 😀😀")},
      {"NUL and other control characters", QString(QChar(u'\0')) + "a\v\f\u001B\u007F\u0085b" + QChar(u'\0')},
      {"halves of surrogate pairs", QString(QChar(0xD800)) + ' ' + QChar(0xDC00)},
      {"line and paragraph separators", QStringLiteral("a\u2028b\u2029c")},
  };
  for (const HardRow& row : rows) {
    printWithDefaults(row.text);
    EXPECT_EQ(pagesOf(path()), 1) << row.name;
    EXPECT_EQ(linesOf(path(), 1, "-raw").value(0).toStdString(), kTitle.toStdString()) << row.name;
  }
}

TEST_P(Pdf, TakesFiveMegabytes) {
  printWithDefaults(QStringLiteral("0123456789 abcdefg\r\n").repeated(5'000'000 / 20));
  const int pages = pagesOf(path());
  EXPECT_GT(pages, 1000);
  EXPECT_EQ(linesOf(path(), pages).last().toStdString(), "06.02.2003 Page " + std::to_string(pages));
}

TEST_P(Pdf, MeasuresThePaperInTwips) {
  const auto surface = GetParam().open(path());
  CWordWrap(*surface, QString()).PrintText(QString());
  const QStringList info = outputOf("pdfinfo", {path()}).split(u'\n');
  const QString size = info.filter(QStringLiteral("Page size:")).value(0).simplified();
  const QStringList parts = size.split(u' ');  // Page size: 595 x 842 pts (A4)
  EXPECT_NEAR(parts.value(2).toDouble() * 20, surface->pageWidth(), 20) << size.toStdString();
  EXPECT_NEAR(parts.value(4).toDouble() * 20, surface->pageHeight(), 20) << size.toStdString();
}

struct OnePageWriter : QPdfWriter {
  using QPdfWriter::QPdfWriter;
  bool newPage() override { return false; }
};

TEST(PagedSurfaceTest, PassesOnThatAPageIsRefused) {
  QBuffer buffer;
  ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
  bool isHandedOver = false;
  {
    PagedSurface surface(std::make_unique<OnePageWriter>(&buffer), [&] { isHandedOver = true; });
    surface.print(QStringLiteral("abc"));
    EXPECT_THROW(surface.newPage(), PrintError);
    EXPECT_EQ(surface.page(), 1);
  }
  EXPECT_FALSE(isHandedOver);
}

TEST(PagedSurfaceTest, PassesOnThatNothingCanBePrinted) {
  const QTemporaryDir folder;
  EXPECT_THROW((void)printerInto(folder.filePath(QStringLiteral("no such folder/notes.pdf"))), PrintError);
}

TEST(PagedSurfaceTest, HandsOverAtTheEndOnly) {
  QBuffer buffer;
  ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
  int handedOver = 0;
  PagedSurface surface(std::make_unique<QPdfWriter>(&buffer), [&] { ++handedOver; });
  surface.print(QStringLiteral("abc"));
  surface.newPage();
  EXPECT_EQ(handedOver, 0);
  surface.endDoc();
  EXPECT_EQ(handedOver, 1);
  EXPECT_TRUE(buffer.data().trimmed().endsWith("%%EOF")) << "the document is complete by then";
}

INSTANTIATE_TEST_SUITE_P(By, Pdf, ::testing::Values(Way{"Printer", printerInto}, Way{"File", fileAt}),
                         [](const auto& way) { return std::string(way.param.name); });

/// No file may grow beyond that, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    (void)std::signal(SIGXFSZ, m_handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  FullDisk(FullDisk&&) = delete;
  FullDisk& operator=(FullDisk&&) = delete;

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

class PdfFile : public ::testing::Test {
 protected:
  void SetUp() override {
    Localization::setLanguageObject(nullptr);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(kBefore), kBefore.size());
  }

  [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("notes.pdf")); }

  static void save(const QString& target, const QString& text) {
    const auto surface = openPdf(target, kTitle, kPaper);
    CWordWrap(*surface, QStringLiteral("06.02.2003")).PrintText(text);
  }

  static void expectRefusal(const QString& target) {
    try {
      save(target, QStringLiteral("a"));
      ADD_FAILURE() << target.toStdString() << " was taken";
    } catch (const PrintError& error) {
      EXPECT_NE(std::string(error.what()).find(target.toStdString()), std::string::npos) << error.what();
    }
  }

  void expectUntouched() const {
    EXPECT_EQ(bytesOf(path()), kBefore);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"notes.pdf"});
  }

  const QByteArray kBefore = "what stood here before";
  QTemporaryDir m_folder;
};

TEST_F(PdfFile, IsReplacedByAJobThatEnds) {
  save(path(), QStringLiteral("abc"));
  EXPECT_TRUE(bytesOf(path()).startsWith("%PDF-"));
  EXPECT_EQ(joined(linesOf(path(), 1)), joined({kTitle, "abc", "06.02.2003 Page 1"}));
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"notes.pdf"});
  EXPECT_TRUE(outputOf("pdfinfo", {path()}).contains(QStringLiteral("Title:           Tessaloom Notes")));
}

TEST_F(PdfFile, IsRefusedByName) {
  expectRefusal(m_folder.filePath(QStringLiteral("no such folder/notes.pdf")));
  expectRefusal(m_folder.path());
  expectRefusal(path() + QStringLiteral("/notes.pdf"));
  expectRefusal(QStringLiteral("/proc/notes.pdf"));
  expectUntouched();
}

TEST_F(PdfFile, StaysAsItWasWhenTheJobIsDropped) {
  {
    const auto surface = openPdf(path(), kTitle, kPaper);
    surface->print(QStringLiteral("abc"));
    surface->newPage();
    surface->print(QStringLiteral("def"));
  }
  expectUntouched();
}

TEST_F(PdfFile, StaysAsItWasWhileTheJobRuns) {
  const auto surface = openPdf(path(), kTitle, kPaper);
  for (int page = 0; page < 100; ++page) {
    surface->print(QString(1000, u'm'));
    surface->newPage();
  }
  EXPECT_EQ(bytesOf(path()), kBefore);
}

TEST_F(PdfFile, StaysAsItWasOnAFullDisk) {
  const QString text = QStringLiteral("abc def\n").repeated(5000);
  const QString whole = m_folder.filePath(QStringLiteral("whole.pdf"));
  save(whole, text);
  const auto size = static_cast<rlim_t>(QFile(whole).size());
  ASSERT_TRUE(QFile::remove(whole));
  for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{100}, size / 2, size * 9 / 10}) {
    try {
      const FullDisk full(room);
      save(path(), text);
      ADD_FAILURE() << room << " bytes were enough for " << size;
    } catch (const PrintError& error) {
      EXPECT_NE(std::string(error.what()).find(path().toStdString()), std::string::npos) << error.what();
    }
    expectUntouched();
  }
  save(path(), text);
  EXPECT_TRUE(bytesOf(path()).startsWith("%PDF-")) << "with room enough it is saved";
}

struct PaperRow {
  const char* where;
  const char* locale;
  QPageSize::PageSizeId paper;
};

TEST(Paper, IsWhatPeopleHaveWhereTheyLive) {
  for (const PaperRow& row :
       std::initializer_list<PaperRow>{{"United States", "en_US", QPageSize::Letter},
                                       {"Canada", "en_CA", QPageSize::Letter},
                                       {"Canada, in French", "fr_CA", QPageSize::Letter},
                                       {"Mexico", "es_MX", QPageSize::Letter},
                                       {"United Kingdom", "en_GB", QPageSize::A4},
                                       {"Germany", "de_DE", QPageSize::A4},
                                       {"nowhere", "C", QPageSize::A4}}) {
    EXPECT_EQ(paperOf(QLocale(QString::fromLatin1(row.locale))).id(), row.paper) << row.where;
  }
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");  // also where the build lists the tests, without any environment
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
