#include <QApplication>
#include <QLocale>

#include "languages.h"
#include "start.h"
#include "user_locale.h"

/// Hands the real world to the program's start.
int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  UserSettings settings;
  ModalMessageBox messages;
  DetachedProgramStarter programs;
  WindowFlagKeepOnTop stacking;
  const Surroundings surroundings{.settings = settings,
                                  .messages = messages,
                                  .programs = programs,
                                  .stacking = stacking,
                                  .locale = numberLocaleOf(QLocale()),
                                  .programFolder = QApplication::applicationDirPath()};
  const auto window = Start::Main(surroundings, Localization::InitLanguage);
  return window ? QApplication::exec() : 1;
}
