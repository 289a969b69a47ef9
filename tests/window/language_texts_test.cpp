#include <QMenuBar>
#include <QRegularExpression>
#include <QtTest>
#include <QXmlStreamReader>

#include "calculator.h"
#include "folders.h"
#include "language_library.h"
#include "string_table.h"

namespace {

QString root() { return QString::fromUtf8(kSourceFolder); }

/// One entry of a translator's file.
struct Entry {
  int id = 0;
  QString source, translation;
  bool isFinished = true;
};

QList<Entry> readEntries(const QString& code) {
  QFile file(root() + QStringLiteral("/languages/TessaloomLang%1.ts").arg(code));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("a translator's file cannot be read");
  QList<Entry> entries;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QStringLiteral("message")) {
      entries.append({xml.attributes().value("id").toInt(), {}, {}, true});
    } else if (xml.name() == QStringLiteral("source")) {
      entries.last().source = xml.readElementText();
    } else if (xml.name() == QStringLiteral("translation")) {
      entries.last().isFinished = !xml.attributes().hasAttribute("type");
      entries.last().translation = xml.readElementText();
    }
  }
  if (xml.hasError()) throw std::runtime_error("a translator's file is no XML");
  return entries;
}

QString english(int id) { return StringTable::englishText(id).toString(); }

/// The ids of all texts that English has.
QList<int> shownIds() {
  QList<int> shown;
  for (const int id : StringTable::ids()) {
    if (!english(id).isEmpty()) shown << id;
  }
  return shown;
}

/// The library of a language, as the program loads it.
std::unique_ptr<Localization::LanguageResources> library(const QString& code) {
  auto loaded =
      Localization::loadLanguageLibrary((kProgramFolder + QStringLiteral("/TessaloomLang%1.dll")).arg(code));
  if (!loaded) throw std::runtime_error("a language library cannot be loaded");
  return loaded;
}

/// Calls `check` with id, English text and text of the fetched language for all texts, and gives the
/// complaints that it returns, each with its id.
template <typename Check>
QStringList complaints(const QString& code, Check&& check) {
  const auto texts = library(code);
  QStringList found;
  for (const int id : shownIds()) {
    const QString complaint = check(english(id), texts->GetResourceString(id));
    if (!complaint.isEmpty()) found << QStringLiteral("%1: %2").arg(id).arg(complaint);
  }
  return found;
}

qsizetype leadingBlanks(const QString& text) {
  const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
  return first - text.begin();
}

qsizetype trailingBlanks(const QString& text) {
  const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return !c.isSpace(); });
  return last - text.rbegin();
}

/// The letter behind the single "&"; nothing for a text without a mnemonic.
QString mnemonic(QString text) {
  text.remove(QStringLiteral("&&"));
  const qsizetype place = text.indexOf(u'&');
  return place < 0 ? QString() : text.mid(place + 1, 1).toLower();
}

QStringList twice(const QStringList& captions) {
  QMap<QString, QStringList> owners;
  for (const QString& caption : captions) {
    if (!mnemonic(caption).isEmpty()) owners[mnemonic(caption)] << caption;
  }
  QStringList clashes;
  for (const QStringList& each : owners) {
    if (each.size() > 1) clashes << each.join(QStringLiteral(" / "));
  }
  return clashes;
}

QStringList captionsOf(const QList<QAction*>& actions) {
  QStringList captions;
  for (const QAction* action : actions) captions << action->text();
  return captions;
}

/// What Alt reaches while a tab is open: the menu bar, the tabs and what the page shows.
QStringList reachedFrom(Calculator& calculator, int tab) {
  auto& tabs = calculator.find<QTabWidget>("SSTab1");
  tabs.setCurrentIndex(tab);
  letItSettle();
  QStringList captions = captionsOf(calculator.find<QMenuBar>("menubar").actions());
  for (int index = 0; index < tabs.count(); ++index) captions << tabs.tabText(index);
  for (const QWidget* control : calculator.find<QWidget>("centralWidget").findChildren<QWidget*>()) {
    const bool hasCaption = control->inherits("QLabel") || control->inherits("QAbstractButton");
    if (hasCaption && control->isVisible()) captions << control->property("text").toString();
  }
  return captions;
}

QStringList filesIn(const QString& folder, const QStringList& patterns) {
  QStringList paths;
  QDirIterator files(root() + u'/' + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) paths << files.next();
  return paths;
}

QString contentsOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("a source cannot be read");
  return QString::fromUtf8(file.readAll());
}

}  // namespace

/// The texts of the languages, one by one.
class LanguageTextsTest : public QObject {
  Q_OBJECT

 private slots:
  void everyTextIsThere_data() { addLanguages(); }
  void everyTextIsThere() {
    QFETCH(QString, code);
    QVERIFY(shownIds().size() > 300);
    QCOMPARE(complaints(code,
                        [](const QString& /*source*/, const QString& text) {
                          return text.trimmed().isEmpty() ? QStringLiteral("no text") : QString();
                        }),
             QStringList());
  }

  void aTranslatorSeesTheProgramsTexts_data() { addLanguages(); }
  void aTranslatorSeesTheProgramsTexts() {
    QFETCH(QString, code);
    const auto texts = library(code);
    QList<int> ids;
    for (const Entry& entry : readEntries(code)) {
      const QByteArray id = QByteArray::number(entry.id);
      QVERIFY2(entry.isFinished, id.constData());
      QVERIFY2(entry.source == english(entry.id), id.constData());
      QVERIFY2(entry.translation == texts->GetResourceString(entry.id), id.constData());
      ids << entry.id;
    }
    QCOMPARE(ids, shownIds());  // all, each once, and in the order in which they are looked up
  }

  void noLibraryHasATextThatEnglishLacks_data() { addLanguages(); }
  void noLibraryHasATextThatEnglishLacks() {
    QFETCH(QString, code);
    const auto texts = library(code);
    for (int id = 0; id <= 9999; ++id) {
      if (english(id).isEmpty())
        QVERIFY2(texts->GetResourceString(id).isEmpty(), QByteArray::number(id).constData());
    }
  }

  void blanksAtTheEndsAgree_data() { addLanguages(); }
  void blanksAtTheEndsAgree() {
    QFETCH(QString, code);
    QCOMPARE(complaints(code,
                        [](const QString& source, const QString& text) {
                          const bool agree = leadingBlanks(source) == leadingBlanks(text) &&
                                             trailingBlanks(source) == trailingBlanks(text);
                          return agree ? QString() : u'"' + text + u'"';
                        }),
             QStringList());
  }

  void mnemonicsAgreeInNumber_data() { addLanguages(); }
  void mnemonicsAgreeInNumber() {
    QFETCH(QString, code);
    QCOMPARE(complaints(code,
                        [](const QString& source, const QString& text) {
                          const bool agree = source.count(u'&') == text.count(u'&');
                          const QString letter = mnemonic(text);
                          const bool isLetter =
                              !text.contains(u'&') || (letter.size() == 1 && letter[0].isLetter());
                          return agree && isLetter ? QString() : text;
                        }),
             QStringList());
  }

  void placeholdersStandInBothTexts_data() { addLanguages(); }
  void placeholdersStandInBothTexts() {
    QFETCH(QString, code);
    const auto placeholders = [](const QString& text) {
      QStringList found;
      const QRegularExpression placeholder(QStringLiteral("%L?[0-9n]"));
      for (auto matches = placeholder.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
      found.sort();
      return found;
    };
    QCOMPARE(complaints(code,
                        [&](const QString& source, const QString& text) {
                          return placeholders(source) == placeholders(text) ? QString() : text;
                        }),
             QStringList());
  }

  void noTextHoldsATag_data() { addLanguages(); }
  void noTextHoldsATag() {
    QFETCH(QString, code);
    const QRegularExpression tag(QStringLiteral("<\\d{4}>"));
    QCOMPARE(complaints(code,
                        [&](const QString& source, const QString& text) {
                          return source.contains(tag) || text.contains(tag) ? text : QString();
                        }),
             QStringList());
  }

  void namesAndCurrenciesAreKept_data() { addLanguages(); }
  void namesAndCurrenciesAreKept() {
    QFETCH(QString, code);
    QCOMPARE(
        complaints(code,
                   [](const QString& source, const QString& text) {
                     for (const char* word : {"Tessaloom", "Ostrevane", "PayPal", "US$", "C$", "eBay.com"}) {
                       const QString name = QString::fromLatin1(word);
                       if (source.contains(name) != text.contains(name))
                         return name + QStringLiteral(" in ") + text;
                     }
                     return QString();
                   }),
        QStringList());
  }

  void frenchSetsItsSignsApart() {
    // A blank at which no line breaks, and no other.
    const QRegularExpression wrong(QStringLiteral("[^\\x{A0}][:;!?»](?!//)|«[^\\x{A0}]|[ \\x{202F}][:;!?»]"));
    QCOMPARE(complaints(QStringLiteral("40C"),
                        [&](const QString& /*source*/, const QString& text) {
                          return text.contains(wrong) ? text : QString();
                        }),
             QStringList());
  }

  void frenchAndGermanUseTheirOwnQuotesAndApostrophes_data() { addLanguages(); }
  void frenchAndGermanUseTheirOwnQuotesAndApostrophes() {
    QFETCH(QString, code);
    QCOMPARE(complaints(code,
                        [](const QString& /*source*/, const QString& text) {
                          return text.contains(u'\'') || text.contains(u'"') ? text : QString();
                        }),
             QStringList());
  }

  void germanSetsNoSignApart() {
    const QRegularExpression wrong(QStringLiteral("\\s[:;!?]"));
    QCOMPARE(complaints(QStringLiteral("407"),
                        [&](const QString& /*source*/, const QString& text) {
                          return text.contains(wrong) ? text : QString();
                        }),
             QStringList());
  }

  void noMnemonicIsTwiceInAMenu_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("clashes");
    QTest::newRow("English, as printed") << "English" << QStringList{"&Contents / Sour&ces"};
    QTest::newRow("German") << "German" << QStringList();
    QTest::newRow("French") << "French" << QStringList();
  }

  void noMnemonicIsTwiceInAMenu() {
    QFETCH(QString, language);
    QFETCH(QStringList, clashes);
    Calculator calculator;
    calculator.load();
    calculator.speak(language);
    QStringList found;
    int menus = 0;
    for (const QMenu* menu : calculator.find<QMenuBar>("menubar").findChildren<QMenu*>()) {
      if (!menu->objectName().startsWith(u"m")) continue;  // the bar's own, for what it has no room for
      found << twice(captionsOf(menu->actions()));
      ++menus;
    }
    QCOMPARE(menus, 6);
    QCOMPARE(found, clashes);
  }

  void noMnemonicIsTwiceOnATab_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("reserve");
    QTest::addColumn<QStringList>("clashes");
    for (const char* language : {"English", "German", "French"}) {
      const bool isEnglish = language == QStringLiteral("English");  // as printed
      for (int tab = 0; tab < 4; ++tab) {
        for (int reserve = 0; reserve < 2; ++reserve)
          QTest::addRow("%s, tab %d, reserve %d", language, tab, reserve)
              << language << tab << reserve
              << (isEnglish ? QStringList{"&Single Item / &Shipping "} : QStringList());
      }
    }
  }

  void noMnemonicIsTwiceOnATab() {
    QFETCH(QString, language);
    QFETCH(int, tab);
    QFETCH(int, reserve);
    QFETCH(QStringList, clashes);
    Calculator calculator;
    calculator.load();
    calculator.choose("cboIsReserve", reserve);
    calculator.click("cmdNotepad");
    calculator.speak(language);
    const QStringList captions = reachedFrom(calculator, tab);
    QVERIFY(captions.size() > 15);
    QCOMPARE(captions.contains(calculator.shown("lblStartingPrice")), tab == 0);
    QCOMPARE(twice(captions), clashes);
  }

  void everyIdOfTheDesignSaysWhatTheTableSays() {
    static const QRegularExpression tagged(QStringLiteral("^(.*)<(\\d{4})>$"),
                                           QRegularExpression::DotMatchesEverythingOption);
    int count = 0;
    for (const QString& path : filesIn(QStringLiteral("window"), {QStringLiteral("*.ui")})) {
      QXmlStreamReader xml(contentsOf(path));
      while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QStringLiteral("string"))
          continue;
        const auto match = tagged.match(xml.readElementText());
        if (!match.hasMatch()) continue;
        QVERIFY2(match.captured(1) == english(match.captured(2).toInt()), qPrintable(match.captured()));
        ++count;
      }
    }
    QVERIFY(count > 200);
  }

  void everyIdOfTheSourcesIsInTheTable() {
    static const QRegularExpression tag(QStringLiteral("<(\\d{4})>\""));
    int count = 0;
    for (const char* folder : {"window", "fee_model", "localization", "support"}) {
      for (const QString& path :
           filesIn(QString::fromLatin1(folder), {QStringLiteral("*.cpp"), QStringLiteral("*.h")})) {
        for (auto match = tag.globalMatch(contentsOf(path)); match.hasNext(); ++count) {
          const QString id = match.next().captured(1);
          QVERIFY2(!english(id.toInt()).isEmpty(), qPrintable(path + QStringLiteral(": ") + id));
        }
      }
    }
    QVERIFY(count > 30);
  }

 private:
  static void addLanguages() {
    QTest::addColumn<QString>("code");
    QTest::newRow("German") << "407";
    QTest::newRow("French") << "40C";
  }
};

QTEST_MAIN(LanguageTextsTest)
#include "language_texts_test.moc"
