#include "start.h"

#include <QCoreApplication>
#include <QLocale>

#include "number_format.h"
#include "tagged_strings.h"

using Localization::GetTagString;

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
  auto startStatus = std::make_shared<CStartStatus>(surroundings.settings);
  auto window = std::make_unique<frmeBayFees>(surroundings);
  surroundings.brand.Load();
  window->Initialize(std::move(startStatus));
  window->Form_Load();
  return window;
}
