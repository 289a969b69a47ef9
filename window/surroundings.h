#pragma once

#include <QString>

#include "clock.h"
#include "custom_brand.h"
#include "desktop_opener.h"
#include "error_reporter.h"
#include "keep_on_top.h"
#include "language_choice.h"
#include "message_box.h"
#include "note_printer.h"
#include "number_locale.h"
#include "program_starter.h"
#include "settings_store.h"
#include "system_information.h"
#include "web_request.h"

/// Everything outside the program that the calculator window reaches for. The program hands in the real
/// ones, tests hand in ones that record. All must outlive the window.
struct Surroundings {
  SettingsStore& settings;
  MessageBox& messages;
  ErrorReporter& errors;
  Localization::LanguageChoice& languages;
  CCustomBrand& brand;
  DesktopOpener& desktop;
  WebRequest& web;
  ProgramStarter& programs;
  SystemInformation& systemInformation;
  KeepOnTop& stacking;
  NotePrinter& printer;
  Clock& clock;
  NumberLocale locale;    ///< how the user writes amounts
  QString programFolder;  ///< where the program's files lie
};
