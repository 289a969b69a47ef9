#include "start.h"

#include <QCoreApplication>
#include <QLocale>

#include "FCheckVersion.h"
#include "makers_addresses.h"
#include "number_format.h"
#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

// The number of the calculator among the maker's kinds of programs.
constexpr int kAppClass = 1;

void askForUpdateCheck(const Surroundings& surroundings, const std::shared_ptr<CStartStatus>& startStatus) {
  FCheckVersion prompt(surroundings.brand, startStatus);
  const bool isAllowed = prompt.exec() == QDialog::Accepted;
  try {
    startStatus->keepUpdateCheck(isAllowed);
  } catch (const SettingsError&) {
    // What could not be stored is tried again with the defaults that follow, and told then.
  }
}

}  // namespace

// The application's name alone: a display name would be appended to every window title.
void Start::setApplicationTitle() {
  QCoreApplication::setApplicationName(GetTagString(QStringLiteral("Tessaloom<5000>")));
}

std::unique_ptr<frmeBayFees> Start::Main(const Surroundings& surroundings,
                                         const LanguageLoader& loadLanguage) {
  setApplicationTitle();  // messages during the start carry it already
  Localization::NumberFormatKind = Localization::GetNumberFormat(QLocale());
  if (!loadLanguage()) {
    surroundings.messages.showCritical(
        nullptr, GetTagString(QStringLiteral("Error<0463>")),
        GetTagString(QStringLiteral("Could not load the localization resources from some reason.<0462>")));
    return nullptr;
  }
  setApplicationTitle();  // now in the chosen language
  auto startStatus = newStartStatus(surroundings);
  auto window = std::make_unique<frmeBayFees>(surroundings);
  surroundings.brand.Load();
  if (startStatus->asksForUpdateCheck()) askForUpdateCheck(surroundings, startStatus);
  window->Initialize(std::move(startStatus));
  window->Form_Load();
  return window;
}

std::shared_ptr<CStartStatus> Start::newStartStatus(const Surroundings& surroundings) {
  const Localization::LanguageChoice& languages = surroundings.languages;
  return std::make_shared<CStartStatus>(
      StartSurroundings{.settings = surroundings.settings,
                        .web = surroundings.web,
                        .desktop = surroundings.desktop,
                        .messages = surroundings.messages,
                        .errors = surroundings.errors,
                        .brand = surroundings.brand,
                        .languageName = [&languages] { return languages.CurrentLanguage().Name; },
                        .appClass = kAppClass,
                        .updateHost = QString::fromLatin1(Maker::kUpdateHost)});
}
