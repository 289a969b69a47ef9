#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>

#include "error_handler.h"
#include "modal_message_box.h"
#include "network_request.h"
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

/// The program's picture in all its sizes.
QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128})
    icon.addFile(QStringLiteral(":/icon/tessaloom-%1.png").arg(size), QSize(size, size));
  return icon;
}

}  // namespace

/// Hands the real world to the program's start.
int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QApplication::setWindowIcon(programIcon());
  const QString programFolder = QApplication::applicationDirPath();
  UserSettings settings;
  ModalMessageBox messages;
  Localization::LanguageChoice languages({.settings = settings,
                                          .messages = messages,
                                          .programFolder = programFolder,
                                          .programName = programName(),
                                          .userCode = Localization::userCode(interfaceLocale())});
  CCustomBrand brand(programFolder);
  DesktopServices desktop;
  NetworkRequest web;
  DetachedProgramStarter programs;
  InstalledSystemInformation systemInformation;
  WindowFlagKeepOnTop stacking;
  SystemPrinter printer;
  SystemClock clock;
  CError errors(brand, desktop, clock, DebugLogFile(stateFolder()));
  const Surroundings surroundings{.settings = settings,
                                  .messages = messages,
                                  .errors = errors,
                                  .languages = languages,
                                  .brand = brand,
                                  .desktop = desktop,
                                  .web = web,
                                  .programs = programs,
                                  .systemInformation = systemInformation,
                                  .stacking = stacking,
                                  .printer = printer,
                                  .clock = clock,
                                  .locale = numberLocaleOf(QLocale()),
                                  .programFolder = programFolder};
  const auto window = Start::Main(surroundings, [&] { return languages.InitLanguage(); });
  return window ? QApplication::exec() : 1;
}
