#include "tagged_strings.h"

#include <algorithm>
#include <exception>

#include "string_table.h"

namespace Localization {

namespace {

constexpr qsizetype kTagDigits = 4;
constexpr qsizetype kShortestTaggedText = kTagDigits + 1;

std::unique_ptr<LanguageResources>& languageObject() {
  static std::unique_ptr<LanguageResources> object;
  return object;
}

std::function<void(const QString&)>& debugLogListener() {
  static std::function<void(const QString&)> listener;
  return listener;
}

bool isTag(QStringView characters) {
  return std::all_of(characters.begin(), characters.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString libraryText(int id) {
  if (!languageObject()) return {};
  try {
    return languageObject()->GetResourceString(id);
  } catch (const std::exception& error) {
    LocalizationLog(QStringLiteral("The language library failed: ") + QString::fromUtf8(error.what()));
    return {};
  }
}

}  // namespace

void setLanguageObject(std::unique_ptr<LanguageResources> newObject) {
  languageObject() = std::move(newObject);
}

bool hasLanguageObject() { return languageObject() != nullptr; }

QString GetTagString(const QString& text) {
  if (text.size() < kShortestTaggedText) {
    DebugLog(QStringLiteral("Send an empty string...by mistake"));
    return {};
  }
  const QStringView tag = QStringView(text).chopped(1).last(kTagDigits);
  if (!isTag(tag)) {
    LocalizationLog(QStringLiteral("Missing tag for ") + text);
    return text;
  }
  const int id = tag.toInt();
  const QString translated = libraryText(id);
  return translated.isEmpty() ? StringTable::englishText(id).toString() : translated;
}

void DebugLog(const QString& message) {
  if (debugLogListener()) debugLogListener()(message);
}

void LocalizationLog(const QString& message) { DebugLog(QStringLiteral("Localization:  ") + message); }

void setDebugLogListener(std::function<void(const QString&)> listener) {
  debugLogListener() = std::move(listener);
}

}  // namespace Localization
