#include <QApplication>
#include <QFileInfo>
#include <QLocale>

#include "modal_message_box.h"
#include "start.h"
#include "user_locale.h"

namespace {

/// With which the names of the files beside the program begin: the name of the program file, wherever it was
/// renamed to.
QString programName() {
  const QFileInfo program(QApplication::applicationFilePath());
  return program.suffix().compare(u"exe", Qt::CaseInsensitive) == 0 ? program.completeBaseName()
                                                                    : program.fileName();
}

}  // namespace

/// Hands the real world to the program's start.
int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  const QString programFolder = QApplication::applicationDirPath();
  UserSettings settings;
  ModalMessageBox messages;
  Localization::LanguageChoice languages({.settings = settings,
                                          .messages = messages,
                                          .programFolder = programFolder,
                                          .programName = programName(),
                                          .userCode = Localization::userCode(interfaceLocale())});
  CCustomBrand brand(programFolder);
  DetachedProgramStarter programs;
  WindowFlagKeepOnTop stacking;
  SystemPrinter printer;
  SystemClock clock;
  const Surroundings surroundings{.settings = settings,
                                  .messages = messages,
                                  .languages = languages,
                                  .brand = brand,
                                  .programs = programs,
                                  .stacking = stacking,
                                  .printer = printer,
                                  .clock = clock,
                                  .locale = numberLocaleOf(QLocale()),
                                  .programFolder = programFolder};
  const auto window = Start::Main(surroundings, [&] { return languages.InitLanguage(); });
  return window ? QApplication::exec() : 1;
}
