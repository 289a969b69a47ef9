#pragma once

#include <functional>
#include <memory>
#include <QString>

/// Tagged strings: every text that the program shows is written as the English text followed by a four-digit
/// id in angle brackets, "Listing Fee: <0641>". What is shown is the text of that id in the current language;
/// the text before the tag only reminds the author. Amounts, file names and texts from outside must
/// never be passed: their last digits would be taken for a tag.
namespace Localization {

/// The texts of one language library.
class LanguageResources {
 public:
  virtual ~LanguageResources() = default;

  /// The text of `id`, or "" if the library has none.
  virtual QString GetResourceString(qint32 id) = 0;
};

/// The active library's texts, or nothing while the program speaks from its own English table.
void setLanguageObject(std::unique_ptr<LanguageResources> newObject);
bool hasLanguageObject();

/// The text of a tagged string: the active library's, else the English one. A text without a tag comes back
/// unchanged, one of fewer than five characters as "". The tag is found by its place alone, brackets
/// are not looked at. Never throws: a library that fails counts as one without the text.
QString GetTagString(const QString& text);

/// Diagnostics of the localization. They are discarded unless a diagnostic build or a test listens.
void DebugLog(const QString& message);
void LocalizationLog(const QString& message);
void setDebugLogListener(std::function<void(const QString&)> listener);

}  // namespace Localization
