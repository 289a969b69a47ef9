#pragma once

#include <memory>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMap>
#include <utility>

#include "folders.h"
#include "frmeBayFees.h"
#include "start.h"

/// Surroundings that cost nothing, so that what is measured is the window itself.
struct MemorySettings : SettingsStore {
  QMap<QString, QString> values;
  QString read(const QString& key) override { return values.value(key); }
  void writeAll(const SettingList& list) override {
    for (const auto& [key, value] : list) values[key] = value;
  }
};

struct NoMessages : MessageBox {
  void showPlain(QWidget* /*parent*/, const QString& title, const QString& text) override {
    qFatal("no message expected: %s, %s", qPrintable(title), qPrintable(text));
  }
  void showCritical(QWidget* parent, const QString& title, const QString& text) override {
    showPlain(parent, title, text);
  }
};

struct NoErrors : ErrorReporter {
  void show(QWidget* /*parent*/, const QString& errorText) override {
    qFatal("no error expected: %s", qPrintable(errorText));
  }
};

struct NoDesktop : DesktopOpener {
  bool openWeb(const QString& /*address*/) override { return false; }
  bool openMail(const QString& /*mailLink*/) override { return false; }
  bool openFile(const QString& /*path*/) override { return false; }
};

struct NoWeb : WebRequest {
  void get(const QUrl& /*address*/, Answered /*answered*/) override {}
  void cancel() override {}
};

struct NoSystemInformation : SystemInformation {
  [[nodiscard]] QString programPath() override { return {}; }
};

struct NoPrograms : ProgramStarter {
  bool start(const QString& /*path*/) override { return false; }
};

struct NoStacking : KeepOnTop {
  void request(QWidget& /*window*/, bool /*onTop*/) override {}
};

struct NoPrinter : NotePrinter {
  [[nodiscard]] bool hasPrinter() override { return false; }
  std::unique_ptr<PageSurface> open(QWidget* /*parent*/, const QString& /*title*/) override {
    return nullptr;
  }
};

/// The calculator window with entries on all tabs and every box ticked.
class FilledWindow {
 public:
  /// `settings` must outlive it.
  explicit FilledWindow(SettingsStore& settings)
      : m_languages({.settings = settings,
                     .messages = m_messages,
                     .programFolder = QString::fromUtf8(kProgramFolder),
                     .programName = QStringLiteral("Tessaloom"),
                     .userCode = QStringLiteral("409")}) {
    m_languages.InitLanguage();
    const Surroundings surroundings{.settings = settings,
                                    .messages = m_messages,
                                    .errors = m_errors,
                                    .languages = m_languages,
                                    .brand = m_brand,
                                    .desktop = m_desktop,
                                    .web = m_web,
                                    .programs = m_programs,
                                    .systemInformation = m_systemInformation,
                                    .stacking = m_stacking,
                                    .printer = m_printer,
                                    .clock = m_clock,
                                    .locale = {},
                                    .programFolder = {}};
    m_window = std::make_unique<frmeBayFees>(surroundings);
    m_window->Initialize(Start::newStartStatus(surroundings));
    m_window->Form_Load();
    fillAllTabs();
    QApplication::processEvents();
  }

  [[nodiscard]] QList<QAction*> entriesOf(const char* menu) const {
    return m_window->findChild<QMenu*>(QString::fromLatin1(menu))->actions();
  }

  void push(const char* button) const {
    m_window->findChild<QPushButton*>(QString::fromLatin1(button))->click();
  }

 private:
  void fillAllTabs() {
    const QList<std::pair<const char*, const char*>> entries{
        {"txtStartingPrice", "100"},   {"txtPrice", "250"},         {"txtDutchItemsOffered", "10"},
        {"txtDutchOpeningPrice", "5"}, {"txtDutchItemsSold", "10"}, {"txtDutchFinalPrice", "7"},
        {"txtPaymentAmount", "1000"}};
    for (const auto& [name, text] : entries) {
      m_window->findChild<QLineEdit*>(QString::fromLatin1(name))->setText(QString::fromLatin1(text));
    }
    for (QCheckBox* box : m_window->findChildren<QCheckBox*>()) {
      if (box->isEnabled() && box->objectName() != QStringLiteral("chkDidNotSell")) box->setChecked(true);
    }
  }

  NoMessages m_messages;
  NoErrors m_errors;
  NoDesktop m_desktop;
  NoWeb m_web;
  NoPrograms m_programs;
  NoSystemInformation m_systemInformation;
  NoStacking m_stacking;
  NoPrinter m_printer;
  SystemClock m_clock;
  Localization::LanguageChoice m_languages;
  CCustomBrand m_brand{QString()};
  std::unique_ptr<frmeBayFees> m_window;
};
