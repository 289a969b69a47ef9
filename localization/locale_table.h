#pragma once

#include <QLocale>
#include <QString>

/// The languages and regions that the program knows, by locale identifier: hexadecimal, upper case, without
/// leading zeros, "407" or "1C09". Codes are compared as exact texts.
namespace Localization {

/// A language in one region, and where its texts lie.
struct LanguageInfo {
  QString Name;         ///< "English", "French" or "German"
  QString Region;       ///< " (Germany)", with the leading blank
  QString Code;         ///< the locale identifier
  QString LibraryPath;  ///< of the language library; empty for English
};

/// Fills `info` with what is known of `code`, without a library. False, and `info` untouched, if it is
/// unknown.
bool GetLanguageInfo(const QString& code, LanguageInfo& info);

/// The code whose texts serve a language: "409", "407" or "40C" if the name contains "English", "German" or
/// "French" in whatever case; otherwise "".
QString LanguageCode(const QString& name);

/// The code of a user's locale; "" if the program does not know it.
QString userCode(const QLocale& locale);

/// A language's own name.
class CLanguageName {
 public:
  /// For "German", its own name by the code; "" for any other language.
  [[nodiscard]] static QString ownName(const QString& name, const QString& code);
  /// "Deutsch" for German in Germany, "German" elsewhere.
  [[nodiscard]] static QString germanName(const QString& code);
};

}  // namespace Localization
