#include "notes.h"
#include "folders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>

#include "language_library.h"
#include "tagged_strings.h"

namespace {

CAuctionSite siteOf(CAuctionSite::KnownSite known) {
  CAuctionSite site;
  site.Site(known);
  return site;
}

/// What the entries in the files were made of, with a different figure for every field.
struct SiteRow {
  const char* name;
  CAuctionSite::KnownSite site;
  bool isReserve;
  bool isSold;
};

constexpr SiteRow kSites[] = {
    {"us", CAuctionSite::eBayUS, false, true},
    {"uk", CAuctionSite::eBayUK, true, false},
    {"ca", CAuctionSite::eBayCanada, false, false},
    {"de", CAuctionSite::eBayGermany, true, true},
};

QString single(CNotes& notes, const SiteRow& row) {
  return notes.AddToNotesRegular(row.isReserve, "11.00", "0.33", "0.44", row.isSold, "22.00", "0.55", "1.32",
                                 siteOf(row.site));
}

QString multiple(CNotes& notes, const SiteRow& row) {
  return notes.AddToNotesDutch("7", "11.00", "0.44", "5", "12.50", "62.50", "3.21", "0.64", siteOf(row.site));
}

QString payment(CNotes& notes, const SiteRow& row) {
  return notes.AddToNotesPayment("100.00", "3.20", siteOf(row.site));
}

class NotepadEntry : public ::testing::Test {
 protected:
  void SetUp() override { Localization::setLanguageObject(nullptr); }
  void TearDown() override { Localization::setLanguageObject(nullptr); }

  static void speak(const QString& library) {
    auto texts = Localization::loadLanguageLibrary(QDir(QString::fromUtf8(kProgramFolder)).filePath(library));
    ASSERT_NE(texts, nullptr) << library.toStdString();
    Localization::setLanguageObject(std::move(texts));
  }

  static std::string fileOf(const char* kind, const char* site, const char* language) {
    const QString name = QStringLiteral("%1_%2_%3.txt").arg(kind, site, language);
    QFile file(QDir(kSourceFolder + QStringLiteral("/tests/notepad/entries")).filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll().toStdString();
  }

  /// Each kind on each site, as the first entry of its notepad.
  static void expectFilesIn(const char* language) {
    for (const SiteRow& row : kSites) {
      CNotes forSingle;
      CNotes forMultiple;
      CNotes forPayment;
      EXPECT_EQ(single(forSingle, row).toStdString(), fileOf("regular", row.name, language)) << row.name;
      EXPECT_EQ(multiple(forMultiple, row).toStdString(), fileOf("dutch", row.name, language)) << row.name;
      EXPECT_EQ(payment(forPayment, row).toStdString(), fileOf("payment", row.name, language)) << row.name;
    }
  }

  static QStringList linesOf(const QString& entry) { return entry.split(QStringLiteral("\r\n")); }

  static std::string lineOf(const QString& entry, qsizetype number) {
    return linesOf(entry).value(number).toStdString();
  }

  const CAuctionSite m_us = siteOf(CAuctionSite::eBayUS);
  CNotes m_notes;
};

TEST_F(NotepadEntry, StandsAsWrittenInEnglish) { expectFilesIn("english"); }

TEST_F(NotepadEntry, StandsAsWrittenInGerman) {
  speak(QStringLiteral("TessaloomLang407.dll"));
  expectFilesIn("german");
}

TEST_F(NotepadEntry, StandsAsWrittenInFrench) {
  speak(QStringLiteral("TessaloomLang40C.dll"));
  expectFilesIn("french");
}

TEST_F(NotepadEntry, StandsBetweenTwoRulesOfFiftyHyphens) {
  for (const QString& entry :
       {single(m_notes, kSites[0]), multiple(m_notes, kSites[0]), payment(m_notes, kSites[0])}) {
    const QStringList lines = linesOf(entry);
    EXPECT_EQ(lines.first(), QString(50, u'-'));
    EXPECT_EQ(lines.value(lines.size() - 2), QString(50, u'-'));
    EXPECT_EQ(lines.last(), QString()) << "it ends with a line break";
    EXPECT_EQ(entry.count(u'\r'), entry.count(u'\n')) << "no lone line feed";
    EXPECT_EQ(entry.count(QStringLiteral("\r\n")), entry.count(u'\r')) << "no lone carriage return";
  }
}

TEST_F(NotepadEntry, LeavesTwoRulesBetweenItAndTheNext) {
  const QString both = payment(m_notes, kSites[0]) + payment(m_notes, kSites[0]);
  const QString rule = QString(50, u'-') + QStringLiteral("\r\n");
  EXPECT_EQ(both.count(rule + rule), 1);
}

struct LineRow {
  const char* rule;
  QString (*compose)(CNotes& notes, const SiteRow& row);
  int site;  ///< index in kSites
  qsizetype line;
  const char* text;
};

// clang-format off
constexpr LineRow kLines[] = {
    {"the single-item heading runs into its label", single, 0, 1,
     "1. REGULAR AUCTION:  Opening Bid: $11.00    Item Sold?: Y    Closing Bid: $22.00"},
    {"a reserve that was not met",                  single, 1, 1,
     "1. REGULAR AUCTION:  Reserve Price: GBP 11.00    Item Sold?: N    Closing Bid: GBP 22.00"},
    {"an opening bid that found nobody",            single, 2, 1,
     "1. REGULAR AUCTION:  Opening Bid: C$11.00    Item Sold?: N    Closing Bid: C$22.00"},
    {"a reserve that was met",                      single, 3, 1,
     "1. REGULAR AUCTION:  Reserve Price: EUR11.00    Item Sold?: Y    Closing Bid: EUR22.00"},
    {"the fees of a single item",                   single, 0, 2,
     "Listing Fee: $0.33    Extra Features Fees: $0.44    Final Value Fee: $0.55"},
    {"the total of a single item",                  single, 1, 3, "TOTAL FEES: GBP 1.32"},
    {"six blanks behind the multiple-item heading", multiple, 0, 1,
     "1. DUTCH AUCTION:      Number Offered: 7    Opening Price: $11.00"},
    {"what was sold has no currency",               multiple, 1, 2,
     "Number Sold: 5    Sold at: GBP 12.50    Total Revenue: GBP 62.50"},
    {"three blanks before the total, four behind",  multiple, 3, 3,
     "Extra Features Fees: EUR0.44   TOTAL FEES: EUR3.21    Fees Per Item: EUR0.64"},
    {"six blanks behind the payment heading",       payment, 2, 1, "1. PAYMENT FEE:      Payment Amount: C$100.00"},
    {"the fee is PayPal's, whoever charges it",     payment, 3, 2, "PayPal Fee: EUR3.20"},
};
// clang-format on

TEST_F(NotepadEntry, HasItsBlanksAndCurrencies) {
  for (const LineRow& row : kLines) {
    CNotes notes;
    EXPECT_EQ(lineOf(row.compose(notes, kSites[row.site]), row.line), row.text) << row.rule;
  }
}

TEST_F(NotepadEntry, TakesEmptyValuesAsTheyAre) {
  const QString e;
  const QString regular = m_notes.AddToNotesRegular(false, e, e, e, false, e, e, e, m_us);
  EXPECT_EQ(lineOf(regular, 1), "1. REGULAR AUCTION:  Opening Bid: $    Item Sold?: N    Closing Bid: $");
  EXPECT_EQ(lineOf(regular, 2), "Listing Fee: $    Extra Features Fees: $    Final Value Fee: $");
  EXPECT_EQ(lineOf(regular, 3), "TOTAL FEES: $");
  const QString dutch = m_notes.AddToNotesDutch(e, e, e, e, e, e, e, e, m_us);
  EXPECT_EQ(lineOf(dutch, 1), "2. DUTCH AUCTION:      Number Offered:     Opening Price: $");
  EXPECT_EQ(lineOf(dutch, 2), "Number Sold:     Sold at: $    Total Revenue: $");
  EXPECT_EQ(lineOf(dutch, 3), "Extra Features Fees: $   TOTAL FEES: $    Fees Per Item: $");
  const QString paid = m_notes.AddToNotesPayment(e, e, siteOf(CAuctionSite::eBayUK));
  EXPECT_EQ(lineOf(paid, 1), "3. PAYMENT FEE:      Payment Amount: GBP ");
  EXPECT_EQ(lineOf(paid, 2), "PayPal Fee: GBP ");
}

TEST_F(NotepadEntry, NeitherChecksNorFormatsItsValues) {
  for (const char* value : {"abc", " 1 ", "1.234,5", "<0641>", "%1", "%99 &x"}) {
    CNotes notes;
    EXPECT_EQ(lineOf(notes.AddToNotesPayment(value, value, m_us), 1),
              std::string("1. PAYMENT FEE:      Payment Amount: $") + value);
    EXPECT_EQ(lineOf(notes.AddToNotesPayment(value, value, m_us), 2), std::string("PayPal Fee: $") + value);
    EXPECT_EQ(lineOf(notes.AddToNotesDutch(value, "", "", "", "", "", "", "", m_us), 1),
              "3. DUTCH AUCTION:      Number Offered: " + std::string(value) + "    Opening Price: $");
  }
}

TEST_F(NotepadEntry, OnNoKnownSiteHasNoCurrency) {
  EXPECT_EQ(lineOf(m_notes.AddToNotesPayment("1", "2", CAuctionSite()), 2), "PayPal Fee: 2");
}

TEST_F(NotepadEntry, IsNumberedInOneRowWhateverItsKind) {
  EXPECT_TRUE(linesOf(single(m_notes, kSites[0])).value(1).startsWith(QStringLiteral("1. REGULAR")));
  EXPECT_TRUE(linesOf(multiple(m_notes, kSites[1])).value(1).startsWith(QStringLiteral("2. DUTCH")));
  EXPECT_TRUE(linesOf(payment(m_notes, kSites[2])).value(1).startsWith(QStringLiteral("3. PAYMENT")));
  EXPECT_TRUE(linesOf(single(m_notes, kSites[3])).value(1).startsWith(QStringLiteral("4. REGULAR")));
}

TEST_F(NotepadEntry, IsNumberOneAgainAfterAReset) {
  for (int number = 1; number <= 12; ++number) {
    const std::string heading = std::to_string(number) + ". PAYMENT FEE:      Payment Amount: $100.00";
    EXPECT_EQ(lineOf(payment(m_notes, kSites[0]), 1), heading);
  }
  m_notes.ResetCounter();
  EXPECT_EQ(lineOf(payment(m_notes, kSites[0]), 2), "PayPal Fee: $3.20");
  EXPECT_TRUE(linesOf(payment(m_notes, kSites[0])).value(1).startsWith(QStringLiteral("2. PAYMENT")));
}

TEST_F(NotepadEntry, IsNumberedOnItsOwnByEveryObject) {
  CNotes other;
  (void)payment(m_notes, kSites[0]);
  EXPECT_TRUE(linesOf(payment(other, kSites[0])).value(1).startsWith(QStringLiteral("1. PAYMENT")));
}

TEST_F(NotepadEntry, CannotBeNumberedBeyondSixteenBits) {
  for (int number = 1; number < 32767; ++number) (void)payment(m_notes, kSites[0]);
  EXPECT_TRUE(linesOf(single(m_notes, kSites[0])).value(1).startsWith(QStringLiteral("32767. REGULAR")));
  for (int attempt = 0; attempt < 2; ++attempt) {
    EXPECT_THROW((void)payment(m_notes, kSites[0]), std::overflow_error);
    EXPECT_THROW((void)single(m_notes, kSites[0]), std::overflow_error);
    EXPECT_THROW((void)multiple(m_notes, kSites[0]), std::overflow_error);
  }
  m_notes.ResetCounter();
  EXPECT_TRUE(linesOf(payment(m_notes, kSites[0])).value(1).startsWith(QStringLiteral("1. PAYMENT")));
}

}  // namespace
