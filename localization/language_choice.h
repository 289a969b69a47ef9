#pragma once

#include <QList>
#include <QString>

#include "locale_table.h"
#include "message_box.h"
#include "settings_store.h"

namespace Localization {

/// What the choice of a language depends on. Store and messages must outlive it.
struct LanguageSurroundings {
  SettingsStore& settings;
  MessageBox& messages;
  QString programFolder;  ///< where the language libraries lie
  QString programName;    ///< with which their names begin
  QString userCode;       ///< the code of the user's own locale, "" if unknown; see locale_table.h
};

/// Which languages there are and which one the program speaks: the one that the user has chosen, else the
/// user's own, and English, from the program's own table, if there is no library for it. A library is a file
/// beside the program whose name is made of the program's, "Lang", the language's code and ".dll". It sets
/// the texts that GetTagString finds; who shows texts must fetch them anew.
class LanguageChoice {
 public:
  explicit LanguageChoice(LanguageSurroundings surroundings);

  /// Finds the libraries, reads the stored choice and loads its texts. False only if not even English can be
  /// set up. Tells the user of libraries that it cannot make sense of or load.
  bool InitLanguage();

  /// Stores the choice whose caption in the menu is given, and speaks it at once. Throws SettingsError, after
  /// that, if it could not be stored.
  void SelectLanguage(const QString& caption);

  /// The languages with a library, in the order of the file names.
  [[nodiscard]] const QList<LanguageInfo>& Languages() const { return m_languages; }
  [[nodiscard]] const LanguageInfo& CurrentLanguage() const { return m_currentLanguage; }
  /// The stored choice: "Default" or "", "English", or the name of a language.
  [[nodiscard]] const QString& LanguageSetting() const { return m_languageSetting; }

 private:
  void FindLanguageLibraries();
  void addLibrary(const QString& fileName);
  bool FindLanguageLibrary();
  [[nodiscard]] bool chooseCandidate(LanguageInfo& candidate) const;
  void useLibraryFor(const LanguageInfo& candidate);
  void loadCurrentLibrary();

  LanguageSurroundings m_surroundings;
  QList<LanguageInfo> m_languages;
  LanguageInfo m_currentLanguage;
  QString m_languageSetting;
};

}  // namespace Localization
