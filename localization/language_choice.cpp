#include "language_choice.h"

#include <algorithm>
#include <QDir>

#include "language_library.h"
#include "tagged_strings.h"

namespace Localization {

namespace {

constexpr QLatin1StringView kBeforeCode("Lang");
constexpr QLatin1StringView kAfterCode(".dll");

// The program's name is the same in every language.
const QString kProductTitle = QStringLiteral("Tessaloom");
const QString kEnglishUS = QStringLiteral("409");
const QString kSettingKey = QStringLiteral("Language");
const QString kDefault = QStringLiteral("Default");
const QString kEnglish = QStringLiteral("English");

/// The names of all that looks like a library, in an order that no file system changes. A folder or a
/// dangling link is among them: whoever put it there learns that it cannot be loaded.
QStringList libraryFiles(const QString& folder, const QString& programName) {
  const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  QStringList found;
  for (const QString& name : QDir(folder).entryList(everything, QDir::Name)) {
    if (name.startsWith(programName + kBeforeCode, Qt::CaseInsensitive) &&
        name.endsWith(kAfterCode, Qt::CaseInsensitive)) {
      found << name;
    }
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
  return found;
}

/// What stands between the first "Lang" and the first ".dll"; "" if they do not follow one another.
QString codeIn(const QString& fileName) {
  const qsizetype start = fileName.indexOf(kBeforeCode, 0, Qt::CaseInsensitive) + kBeforeCode.size();
  const qsizetype end = fileName.indexOf(kAfterCode, 0, Qt::CaseInsensitive);
  return start < end ? fileName.mid(start, end - start) : QString();
}

/// The words of the German library for the first entries of the menu, and for its own language.
QString withoutGermanWords(const QString& caption) {
  if (caption == QStringLiteral("Englisch")) return kEnglish;
  if (caption == QStringLiteral("Sprache: Voreinstellung")) return kDefault;
  if (caption == CLanguageName::germanName(QStringLiteral("407"))) return QStringLiteral("German");
  return caption;
}

/// What to store for a choice, whatever language its caption is in.
QString settingFor(const QString& caption) {
  if (caption == GetTagString(QStringLiteral("Default<0674>"))) return kDefault;
  if (caption == GetTagString(QStringLiteral("English<0675>"))) return kEnglish;
  return withoutGermanWords(caption);
}

}  // namespace

LanguageChoice::LanguageChoice(LanguageSurroundings surroundings) : m_surroundings(std::move(surroundings)) {}

void LanguageChoice::FindLanguageLibraries() {
  m_languages.clear();
  for (const QString& name : libraryFiles(m_surroundings.programFolder, m_surroundings.programName)) {
    addLibrary(name);
  }
}

void LanguageChoice::addLibrary(const QString& fileName) {
  const QString code = codeIn(fileName);
  LanguageInfo info;
  if (code.isEmpty()) {
    m_surroundings.messages.showPlain(
        nullptr, kProductTitle,
        QStringLiteral("We could not determine the language code for the dll file called ") + fileName);
  } else if (GetLanguageInfo(code, info)) {
    info.LibraryPath = QDir(m_surroundings.programFolder).filePath(fileName);
    m_languages.append(info);
  } else {
    m_surroundings.messages.showPlain(
        nullptr, kProductTitle, QStringLiteral("We are missing Langauge information for the code ") + code);
  }
}

bool LanguageChoice::InitLanguage() {
  setLanguageObject(nullptr);
  FindLanguageLibraries();
  m_languageSetting = m_surroundings.settings.read(kSettingKey);
  LanguageInfo candidate;
  if (!chooseCandidate(candidate)) {
    m_surroundings.messages.showCritical(
        nullptr, kProductTitle, QStringLiteral("Could not find language information for English US"));
    return false;
  }
  useLibraryFor(candidate);
  if (!hasLanguageObject()) GetLanguageInfo(kEnglishUS, m_currentLanguage);
  return true;
}

bool LanguageChoice::chooseCandidate(LanguageInfo& candidate) const {
  const bool followsUser = m_languageSetting.isEmpty() || m_languageSetting == kDefault;
  const QString code = followsUser ? m_surroundings.userCode : LanguageCode(m_languageSetting);
  return GetLanguageInfo(code, candidate) || GetLanguageInfo(kEnglishUS, candidate);
}

// One library serves a language in all its regions. English has none.
void LanguageChoice::useLibraryFor(const LanguageInfo& candidate) {
  if (candidate.Name == kEnglish) return;
  GetLanguageInfo(LanguageCode(candidate.Name), m_currentLanguage);
  if (FindLanguageLibrary()) loadCurrentLibrary();
}

bool LanguageChoice::FindLanguageLibrary() {
  const auto language =
      std::find_if(m_languages.cbegin(), m_languages.cend(),
                   [this](const LanguageInfo& each) { return each.Code == m_currentLanguage.Code; });
  if (language == m_languages.cend()) return false;
  m_currentLanguage.LibraryPath = language->LibraryPath;
  return true;
}

void LanguageChoice::loadCurrentLibrary() {
  auto library = loadLanguageLibrary(m_currentLanguage.LibraryPath);
  if (!library) {
    m_surroundings.messages.showCritical(nullptr, QStringLiteral("Error with Regsvr32.exe"),
                                         QStringLiteral("We could not register our langauge dll ") +
                                             m_currentLanguage.LibraryPath +
                                             QStringLiteral(" for some reason"));
    return;
  }
  setLanguageObject(std::move(library));
}

void LanguageChoice::SelectLanguage(const QString& caption) {
  try {
    m_surroundings.settings.write(kSettingKey, settingFor(caption));
  } catch (const SettingsError&) {
    InitLanguage();  // the store knows the choice, even if it will not outlive the window
    throw;
  }
  InitLanguage();
}

}  // namespace Localization
