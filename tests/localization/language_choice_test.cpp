#include "language_choice.h"
#include "folders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include "tagged_strings.h"

namespace {

using namespace Localization;

/// Settings in memory. A broken store behaves as the real one: the value stays known, but is not kept.
struct MemoryStore : SettingsStore {
  QString read(const QString& key) override { return values.value(key); }
  void writeAll(const SettingList& list) override {
    if (isDeaf) throw SettingsError("The settings are nowhere.");
    for (const auto& [key, value] : list) values[key] = value;
    if (isBroken) throw SettingsError("The settings could not be stored.");
  }
  QMap<QString, QString> values;
  bool isBroken = false;
  bool isDeaf = false;
};

struct Messages : MessageBox {
  void showPlain(QWidget* /*parent*/, const QString& title, const QString& text) override {
    shown << QStringLiteral("plain|") + title + u'|' + text;
  }
  void showCritical(QWidget* /*parent*/, const QString& title, const QString& text) override {
    shown << QStringLiteral("critical|") + title + u'|' + text;
  }
  QStringList shown;
};

const QString kGermanFile = QStringLiteral("TessaloomLang407.dll");
const QString kFrenchFile = QStringLiteral("TessaloomLang40C.dll");

class ChoiceOfLanguage : public ::testing::Test {
 protected:
  void SetUp() override { setLanguageObject(nullptr); }
  void TearDown() override { setLanguageObject(nullptr); }

  [[nodiscard]] QString pathOf(const QString& name) const { return folder.filePath(name); }

  void addGerman(const QString& name = kGermanFile) { add(kGermanFile, name); }
  void addFrench(const QString& name = kFrenchFile) { add(kFrenchFile, name); }
  void addEmpty(const QString& name) {
    ASSERT_TRUE(QFile(pathOf(name)).open(QIODevice::WriteOnly)) << name.toStdString();
  }

  void store(const QString& setting) { settings.values[QStringLiteral("Language")] = setting; }

  LanguageChoice choiceOf(const QString& user) {
    return LanguageChoice({.settings = settings,
                           .messages = messages,
                           .programFolder = folder.path(),
                           .programName = QStringLiteral("Tessaloom"),
                           .userCode = user});
  }

  /// Set up for a user of the United States, who says nothing by his locale.
  LanguageChoice initialized(const QString& user = QStringLiteral("409")) {
    LanguageChoice choice = choiceOf(user);
    EXPECT_TRUE(choice.InitLanguage());
    return choice;
  }

  static QString spokenYes() { return GetTagString(QStringLiteral("Y<0636>")); }

  static void expectEnglish(const LanguageChoice& choice, const char* rule) {
    EXPECT_EQ(choice.CurrentLanguage().Code, QStringLiteral("409")) << rule;
    EXPECT_EQ(choice.CurrentLanguage().Name, QStringLiteral("English")) << rule;
    EXPECT_EQ(choice.CurrentLanguage().Region, QStringLiteral(" (United States)")) << rule;
    EXPECT_EQ(choice.CurrentLanguage().LibraryPath, QString()) << rule;
    EXPECT_FALSE(hasLanguageObject()) << rule;
    EXPECT_EQ(spokenYes(), QStringLiteral("Y")) << rule;
  }

  static QString codesOf(const LanguageChoice& choice) {
    QStringList codes;
    for (const LanguageInfo& language : choice.Languages()) codes << language.Code;
    return codes.join(u' ');
  }

  QTemporaryDir folder;
  MemoryStore settings;
  Messages messages;

 private:
  void add(const QString& source, const QString& name) {
    ASSERT_TRUE(QFile::copy(QDir(QString::fromUtf8(kProgramFolder)).filePath(source), pathOf(name)))
        << name.toStdString();
  }
};

TEST_F(ChoiceOfLanguage, WithoutLibrariesIsEnglishWithoutAWord) {
  for (const char* setting : {"", "Default", "English", "German", "French", "Klingon"}) {
    store(QString::fromLatin1(setting));
    for (const char* user : {"409", "407", "C0C", ""}) {
      const LanguageChoice choice = initialized(QString::fromLatin1(user));
      expectEnglish(choice, setting);
      EXPECT_TRUE(choice.Languages().isEmpty()) << setting;
    }
  }
  EXPECT_EQ(messages.shown, QStringList());
}

TEST_F(ChoiceOfLanguage, AFolderThatIsNotThereHasNoLibraries) {
  ASSERT_TRUE(folder.remove());
  expectEnglish(initialized(QStringLiteral("407")), "no folder");
}

struct ChoiceRow {
  const char* rule;
  const char* setting;
  const char* user;
  const char* code;
  const char* yes;
};

// clang-format off
constexpr ChoiceRow kChoiceRows[] = {
    {"nothing stored, a German user",                "",                    "407",  "407", "J"},
    {"nothing stored, an Austrian user",             "",                    "C07",  "407", "J"},
    {"the default, an Austrian user",                "Default",             "C07",  "407", "J"},
    {"the default, a user of Liechtenstein",         "Default",             "1407", "407", "J"},
    {"the default, a French user",                   "Default",             "40C",  "40C", "O"},
    {"the default, a Canadian who speaks French",    "Default",             "C0C",  "40C", "O"},
    {"the default, a Belgian who speaks French",     "Default",             "80C",  "40C", "O"},
    {"the default, an American user",                "Default",             "409",  "409", "Y"},
    {"the default, a British user",                  "Default",             "809",  "409", "Y"},
    {"the default, an Australian user",              "Default",             "C09",  "409", "Y"},
    {"the default, a user without a known locale",   "Default",             "",     "409", "Y"},
    {"the default, a user of an unknown locale",     "Default",             "416",  "409", "Y"},
    {"the default is compared to the letter",        "default",             "407",  "409", "Y"},
    {"German, whoever uses it",                      "German",              "40C",  "407", "J"},
    {"French, whoever uses it",                      "French",              "407",  "40C", "O"},
    {"English, whoever uses it",                     "English",             "407",  "409", "Y"},
    {"a setting in lower case",                      "french",              "407",  "40C", "O"},
    {"a setting with a region",                      "German (Austria)",    "40C",  "407", "J"},
    {"a setting that contains English",              "English (whatever)",  "407",  "409", "Y"},
    {"a language that nobody knows",                 "klingon",             "407",  "409", "Y"},
};
// clang-format on

TEST_F(ChoiceOfLanguage, FollowsTheSettingElseTheUser) {
  addGerman();
  addFrench();
  for (const ChoiceRow& row : kChoiceRows) {
    store(QString::fromLatin1(row.setting));
    const LanguageChoice choice = initialized(QString::fromLatin1(row.user));
    EXPECT_EQ(choice.CurrentLanguage().Code.toStdString(), row.code) << row.rule;
    EXPECT_EQ(spokenYes().toStdString(), row.yes) << row.rule;
    EXPECT_EQ(choice.LanguageSetting().toStdString(), row.setting) << row.rule;
  }
  EXPECT_EQ(messages.shown, QStringList());
}

TEST_F(ChoiceOfLanguage, KnowsTheLibraryThatItUses) {
  addGerman();
  const LanguageChoice choice = initialized(QStringLiteral("C07"));
  EXPECT_EQ(choice.CurrentLanguage().Name, QStringLiteral("German"));
  EXPECT_EQ(choice.CurrentLanguage().Region, QStringLiteral(" (Germany)"));
  EXPECT_EQ(choice.CurrentLanguage().LibraryPath, pathOf(kGermanFile));
  ASSERT_EQ(choice.Languages().size(), 1);
  EXPECT_EQ(choice.Languages().first().Name, QStringLiteral("German"));
  EXPECT_EQ(choice.Languages().first().LibraryPath, pathOf(kGermanFile));
}

TEST_F(ChoiceOfLanguage, EnglishIsNeverTakenFromALibrary) {
  addGerman(QStringLiteral("TessaloomLang809.dll"));
  addGerman(QStringLiteral("TessaloomLang409.dll"));
  for (const char* setting : {"Default", "English"}) {
    store(QString::fromLatin1(setting));
    const LanguageChoice choice = initialized(QStringLiteral("809"));
    expectEnglish(choice, setting);
    EXPECT_EQ(codesOf(choice), QStringLiteral("409 809")) << setting;
  }
}

TEST_F(ChoiceOfLanguage, ALibraryOfAnotherRegionIsListedButNotUsed) {
  addGerman(QStringLiteral("TessaloomLangC07.dll"));
  for (const char* setting : {"Default", "German"}) {
    store(QString::fromLatin1(setting));
    const LanguageChoice choice = initialized(QStringLiteral("C07"));
    expectEnglish(choice, setting);
    EXPECT_EQ(codesOf(choice), QStringLiteral("C07")) << setting;
  }
  EXPECT_EQ(messages.shown, QStringList());
}

struct NameRow {
  const char* rule;
  const char* file;
  const char* code;     ///< under which the file is listed, if it is
  const char* message;  ///< without kind and title
};

// clang-format off
constexpr NameRow kNameRows[] = {
    {"a library",                      "TessaloomLang407.dll",     "407",  ""},
    {"all in upper case",              "TESSALOOMLANG407.DLL",     "407",  ""},
    {"the fixed parts in lower case",  "tessaloomlang40C.dll",     "40C",  ""},
    {"a code of four digits",          "TessaloomLang180C.dll",    "180C", ""},
    {"the extension twice",            "TessaloomLang407.dll.dll", "407",  ""},
    {"the code in lower case",         "TessaloomLang40c.dll",     "",     "We are missing Langauge information for the code 40c"},
    {"an unknown code",                "TessaloomLang416.dll",     "",     "We are missing Langauge information for the code 416"},
    {"more than a code",               "TessaloomLang407 old.dll", "",     "We are missing Langauge information for the code 407 old"},
    {"Lang twice",                     "TessaloomLangLang407.dll", "",     "We are missing Langauge information for the code Lang407"},
    {"no code",                        "TessaloomLang.dll",        "",     "We could not determine the language code for the dll file called TessaloomLang.dll"},
    {"no code, the extension twice",   "TessaloomLang.dll.dll",    "",     "We could not determine the language code for the dll file called TessaloomLang.dll.dll"},
    {"another program's",              "OtherLang407.dll",         "",     ""},
    {"something before the name",      "MyTessaloomLang407.dll",   "",     ""},
    {"something behind the extension", "TessaloomLang407.dll.bak", "",     ""},
    {"another extension",              "TessaloomLang407.qm",      "",     ""},
    {"no extension",                   "TessaloomLang407dll",      "",     ""},
    {"another part of the program",    "TessaloomHelp407.dll",     "",     ""},
    {"the program itself",             "Tessaloom",                "",     ""},
};
// clang-format on

TEST_F(ChoiceOfLanguage, FindsLibrariesByTheirNames) {
  for (const NameRow& row : kNameRows) {
    const QString name = QString::fromLatin1(row.file);
    addEmpty(name);
    const LanguageChoice choice = initialized();
    EXPECT_EQ(codesOf(choice).toStdString(), row.code) << row.rule;
    const QString text = QString::fromLatin1(row.message);
    EXPECT_EQ(messages.shown,
              text.isEmpty() ? QStringList() : QStringList{QStringLiteral("plain|Tessaloom|") + text})
        << row.rule;
    messages.shown.clear();
    ASSERT_TRUE(QFile::remove(pathOf(name)));
  }
}

TEST_F(ChoiceOfLanguage, ALibraryThatIsNotListedLeavesNoGap) {
  addGerman();
  addFrench(QStringLiteral("TessaloomLang80C.dll"));
  addEmpty(QStringLiteral("TessaloomLang416.dll"));
  EXPECT_EQ(codesOf(initialized()), QStringLiteral("407 80C"));
}

TEST_F(ChoiceOfLanguage, LanguagesStandInTheOrderOfTheirFileNames) {
  for (const char* code : {"C0C", "40C", "1407", "C07", "407"}) {
    addEmpty(QStringLiteral("TessaloomLang%1.dll").arg(QString::fromLatin1(code)));
  }
  EXPECT_EQ(codesOf(initialized()), QStringLiteral("1407 407 40C C07 C0C"));
}

TEST_F(ChoiceOfLanguage, AnUnknownCodeIsToldAtEachStart) {
  addEmpty(QStringLiteral("TessaloomLang416.dll"));
  LanguageChoice choice = initialized();
  EXPECT_EQ(messages.shown.size(), 1);
  EXPECT_TRUE(choice.InitLanguage());
  EXPECT_EQ(messages.shown.size(), 2);
}

TEST_F(ChoiceOfLanguage, OfTwoLibrariesWithOneCodeTheFirstIsUsed) {
  addFrench(kGermanFile);
  addGerman(QStringLiteral("TessaloomLang407.dll.dll"));
  store(QStringLiteral("German"));
  const LanguageChoice choice = initialized();
  EXPECT_EQ(codesOf(choice), QStringLiteral("407 407"));
  EXPECT_EQ(choice.CurrentLanguage().LibraryPath, pathOf(kGermanFile));
  EXPECT_EQ(spokenYes(), QStringLiteral("O"));
}

class BrokenLibrary : public ChoiceOfLanguage {
 protected:
  void expectRefusal(const char* rule) {
    store(QStringLiteral("German"));
    const LanguageChoice choice = initialized();
    expectEnglish(choice, rule);
    EXPECT_EQ(messages.shown, QStringList{QStringLiteral("critical|Error with Regsvr32.exe|We could not "
                                                         "register our langauge dll ") +
                                          pathOf(kGermanFile) + QStringLiteral(" for some reason")})
        << rule;
    EXPECT_EQ(codesOf(choice), QStringLiteral("407")) << rule;
  }
};

TEST_F(BrokenLibrary, AnEmptyFile) {
  addEmpty(kGermanFile);
  expectRefusal("an empty file");
}

TEST_F(BrokenLibrary, AFileCutShort) {
  addGerman();
  ASSERT_TRUE(QFile::resize(pathOf(kGermanFile), 1000));
  expectRefusal("a file cut short");
}

TEST_F(BrokenLibrary, AFolder) {
  ASSERT_TRUE(QDir().mkdir(pathOf(kGermanFile)));
  expectRefusal("a folder");
}

TEST_F(BrokenLibrary, ALinkToNowhere) {
  ASSERT_TRUE(QFile::link(pathOf(QStringLiteral("gone")), pathOf(kGermanFile)));
  expectRefusal("a link to nowhere");
}

TEST_F(BrokenLibrary, IsOfNoConcernWhileItIsNotWanted) {
  addEmpty(kGermanFile);
  addFrench();
  store(QStringLiteral("French"));
  EXPECT_EQ(initialized().CurrentLanguage().Code, QStringLiteral("40C"));
  EXPECT_EQ(messages.shown, QStringList());
}

struct CaptionRow {
  const char* rule;
  const char* caption;
  const char* stored;
};

// clang-format off
constexpr CaptionRow kCaptionRows[] = {
    {"the German word for English",                   "Englisch",                "English"},
    {"the German words for the default",              "Sprache: Voreinstellung", "Default"},
    {"the German word for German",                    "Deutsch",                 "German"},
    {"the name of German",                            "German",                  "German"},
    {"the name of French",                            "French",                  "French"},
    {"English",                                       "English",                 "English"},
    {"the default",                                   "Default",                 "Default"},
    {"any other caption",                             "Klingon",                 "Klingon"},
};
// clang-format on

TEST_F(ChoiceOfLanguage, IsStoredInEnglishWords) {
  for (const char* spoken : {"English", "German", "French"}) {
    for (const CaptionRow& row : kCaptionRows) {
      addGerman();
      addFrench();
      store(QString::fromLatin1(spoken));
      LanguageChoice choice = initialized();
      choice.SelectLanguage(QString::fromLatin1(row.caption));
      const QString stored = QString::fromLatin1(row.stored);
      const QMap<QString, QString> expected{{QStringLiteral("Language"), stored}};
      EXPECT_EQ(settings.values, expected) << row.rule << ", spoken: " << spoken;
      EXPECT_EQ(choice.LanguageSetting(), stored) << row.rule << ", spoken: " << spoken;
      ASSERT_TRUE(QFile::remove(pathOf(kGermanFile)) && QFile::remove(pathOf(kFrenchFile)));
    }
  }
}

TEST_F(ChoiceOfLanguage, TheFirstEntriesOfAnyMenuAreUnderstood) {
  addGerman();
  addFrench();
  for (const char* spoken : {"German", "French"}) {
    for (const char* tagged : {"Default<0674>", "English<0675>"}) {
      store(QString::fromLatin1(spoken));
      LanguageChoice choice = initialized();
      const QString caption = GetTagString(QString::fromLatin1(tagged));
      const QString word = QString::fromLatin1(tagged).chopped(6);
      ASSERT_NE(caption, word) << spoken;
      choice.SelectLanguage(caption);
      EXPECT_EQ(settings.values.value(QStringLiteral("Language")), word) << spoken;
    }
  }
}

TEST_F(ChoiceOfLanguage, IsSpokenAtOnce) {
  addGerman();
  addFrench();
  LanguageChoice choice = initialized();
  EXPECT_EQ(spokenYes(), QStringLiteral("Y"));
  choice.SelectLanguage(QStringLiteral("German"));
  EXPECT_EQ(spokenYes(), QStringLiteral("J"));
  choice.SelectLanguage(QStringLiteral("French"));
  EXPECT_EQ(spokenYes(), QStringLiteral("O"));
  choice.SelectLanguage(QStringLiteral("English"));
  expectEnglish(choice, "back to English");
}

TEST_F(ChoiceOfLanguage, ALibraryThatHasGoneIsForgotten) {
  addGerman();
  store(QStringLiteral("German"));
  LanguageChoice choice = initialized();
  ASSERT_TRUE(QFile::remove(pathOf(kGermanFile)));
  EXPECT_TRUE(choice.InitLanguage());
  expectEnglish(choice, "the file has gone");
  EXPECT_TRUE(choice.Languages().isEmpty());
}

TEST_F(ChoiceOfLanguage, ThatCannotBeKeptIsSpokenNonetheless) {
  addGerman();
  LanguageChoice choice = initialized();
  settings.isBroken = true;
  EXPECT_THROW(choice.SelectLanguage(QStringLiteral("German")), SettingsError);
  EXPECT_EQ(choice.LanguageSetting(), QStringLiteral("German"));
  EXPECT_EQ(choice.CurrentLanguage().Code, QStringLiteral("407"));
  EXPECT_EQ(spokenYes(), QStringLiteral("J"));
}

TEST_F(ChoiceOfLanguage, IsWhatTheStoreAnswersNotWhatItWasTold) {
  addGerman();
  addFrench();
  store(QStringLiteral("French"));
  LanguageChoice choice = initialized();
  settings.isDeaf = true;
  EXPECT_THROW(choice.SelectLanguage(QStringLiteral("German")), SettingsError);
  EXPECT_EQ(choice.LanguageSetting(), QStringLiteral("French"));
  EXPECT_EQ(choice.CurrentLanguage().Code, QStringLiteral("40C"));
  EXPECT_EQ(spokenYes(), QStringLiteral("O"));
}

}  // namespace
