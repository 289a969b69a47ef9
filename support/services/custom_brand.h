#pragma once

#include <QString>

class QIODevice;

/// What names the maker, or the reseller who passes the program on.
struct BrandValues {
  QString CompanyName;       ///< in menu captions and messages
  QString CompanyURL;        ///< the homepage
  QString SupportEmail;      ///< technical support
  QString SupportURL;        ///< the contact page
  QString SubscribeEmail;    ///< where to subscribe to the mailing list
  QString ErrorReportEmail;  ///< where error reports go
};

/// Reads the branding file "AppData" beside the program, a text in which each value stands between
/// <CompanyName> and </CompanyName> and so on, in any order. Without such a file the maker's own values hold;
/// with one, a value that it lacks is empty. Checks no value: whoever opens an address must.
class CCustomBrand {
 public:
  explicit CCustomBrand(const QString& programFolder);

  /// Reads the file and takes over what it says. Never fails: what cannot be read counts as no file.
  void Load();

  /// The maker's values until `Load`.
  [[nodiscard]] const BrandValues& values() const { return m_values; }

  /// A text of the program's with the company's name in place of the brand word, wherever it stands.
  [[nodiscard]] QString named(QString text) const;

  /// The text of a file as far as values can lie in it: its lines joined with nothing between them, read as
  /// UTF-8, or as Latin-1 if it is not that.
  [[nodiscard]] static QString textOf(QIODevice& file);

  /// What stands between the first and the second occurrence of `name`, as between two tags; "" if either is
  /// missing or begins beyond the 32767th character.
  [[nodiscard]] static QString GetValue(const QString& text, const QString& name);

 private:
  void ReadFile();

  QString m_path;
  bool m_isFound = false;
  QString m_text;
  BrandValues m_values;
};
