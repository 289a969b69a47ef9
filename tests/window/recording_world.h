#pragma once

#include <memory>
#include <optional>
#include <QMap>
#include <QPair>
#include <QStringList>
#include <utility>

#include "folders.h"
#include "recording_surface.h"
#include "surroundings.h"
#include "tagged_strings.h"

/// Stand-ins for everything outside the program, which record what was asked of them.
struct MemorySettings : SettingsStore {
  QMap<QString, QString> values;
  bool isFull = false;  ///< whether nothing can be stored
  QStringList calls;    ///< "read Site", "write Site=1", in order

  QString read(const QString& key) override {
    calls << QStringLiteral("read ") + key;
    return values.value(key);
  }
  void writeAll(const SettingList& list) override {
    // Like the real store, a full one knows for this process what it could not keep.
    for (const auto& [key, value] : list) values[key] = value;
    if (isFull) throw SettingsError("The settings could not be stored in memory.");
    for (const auto& [key, value] : list) calls << QStringLiteral("write ") + key + u'=' + value;
  }
};

struct RecordingMessages : MessageBox {
  QList<QPair<QString, QString>> shown;  ///< title, text

  void showPlain(QWidget* /*parent*/, const QString& title, const QString& text) override {
    shown.append({title, text});
  }
  void showCritical(QWidget* /*parent*/, const QString& title, const QString& text) override {
    shown.append({title, text});
  }
};

struct RecordingErrors : ErrorReporter {
  QStringList shown;
  QStringList titles;  ///< "Error" in the language that the program spoke, each time

  void show(QWidget* /*parent*/, const QString& errorText) override {
    shown << errorText;
    titles << Localization::GetTagString(QStringLiteral("Error<0603>"));
  }
};

struct RecordingDesktop : DesktopOpener {
  QStringList opened;     ///< "web https://...", "mail mailto:...", "file /...", in order
  bool isWilling = true;  ///< whether there are programs to hand things to

  bool openWeb(const QString& address) override { return note(QStringLiteral("web "), address); }
  bool openMail(const QString& mailLink) override { return note(QStringLiteral("mail "), mailLink); }
  bool openFile(const QString& path) override { return note(QStringLiteral("file "), path); }

 private:
  bool note(const QString& kind, const QString& what) {
    opened << kind + what;
    return isWilling;
  }
};

/// A web whose answers the test gives.
struct RecordingWeb : WebRequest {
  QList<QUrl> asked;
  int cancelled = 0;

  void get(const QUrl& address, Answered answered) override {
    asked << address;
    m_answered = std::move(answered);
  }
  void cancel() override { ++cancelled; }

  /// Answers the last question, even if it was cancelled: nothing may come of that.
  void answer(const std::optional<QString>& text) { m_answered(text); }

 private:
  Answered m_answered;
};

struct RecordingSystemInformation : SystemInformation {
  QString path;

  [[nodiscard]] QString programPath() override { return path; }
};

struct RecordingStarter : ProgramStarter {
  QStringList started;

  bool start(const QString& path) override {
    started << path;
    return true;
  }
};

struct RecordingStacking : KeepOnTop {
  QList<bool> requests;

  void request(QWidget& /*window*/, bool onTop) override { requests << onTop; }
};

/// Keeps what every job printed. `isWanted` false is a user who decides against it; `lastPage` is how many
/// pages there is paper for; without `isThere`
/// it asks for a file.
struct RecordingPrinter : NotePrinter {
  QStringList titles;
  PrintRecord record;
  bool isThere = true;
  bool isWanted = true;
  int lastPage = 1000;

  [[nodiscard]] bool hasPrinter() override { return isThere; }
  std::unique_ptr<PageSurface> open(QWidget* /*parent*/, const QString& title) override {
    titles << title;
    record = {};
    return isWanted ? std::make_unique<RecordingSurface>(record, lastPage) : nullptr;
  }
};

/// The sixth of February 2003, always.
struct FixedClock : Clock {
  [[nodiscard]] QDateTime now() const override { return {QDate(2003, 2, 6), QTime(12, 0)}; }
};

inline const NumberLocale kPointLocale{".", ",", "$"};
inline const NumberLocale kGermanLocale{",", ".", "€"};
inline const NumberLocale kSwissLocale{".", "’", "CHF"};
inline const NumberLocale kFrenchLocale{",", "\u202F", "€"};

/// What a language choice needs, with the libraries that the build has made.
inline Localization::LanguageSurroundings builtLanguages(
    SettingsStore& settings, MessageBox& messages, const QString& userCode = QStringLiteral("409"),
    const QString& folder = QString::fromUtf8(kProgramFolder)) {
  return {.settings = settings,
          .messages = messages,
          .programFolder = folder,
          .programName = QStringLiteral("Tessaloom"),
          .userCode = userCode};
}

/// All of them together.
struct RecordingWorld {
  /// `languageFolder` is where the language libraries lie.
  explicit RecordingWorld(const QString& languageFolder = QString::fromUtf8(kProgramFolder))
      : languages(builtLanguages(settings, messages, QStringLiteral("409"), languageFolder)) {}

  Surroundings surroundings() { return surroundingsWith(settings, printer); }
  Surroundings surroundingsWith(SettingsStore& store, NotePrinter& paper) {
    return {.settings = store,
            .messages = messages,
            .errors = errors,
            .languages = languages,
            .brand = brand,
            .desktop = desktop,
            .web = web,
            .programs = starter,
            .systemInformation = systemInformation,
            .stacking = stacking,
            .printer = paper,
            .clock = clock,
            .locale = locale,
            .programFolder = programFolder};
  }

  /// Whether the user was told nothing, neither by a message nor by the error window.
  [[nodiscard]] bool isSilent() const { return messages.shown.isEmpty() && errors.shown.isEmpty(); }
  /// Whether the error window, and nothing else, has told one error.
  [[nodiscard]] bool hasOneError() const { return messages.shown.isEmpty() && errors.shown.size() == 1; }

  MemorySettings settings;
  RecordingMessages messages;
  RecordingErrors errors;
  RecordingDesktop desktop;
  RecordingWeb web;
  RecordingStarter starter;
  RecordingSystemInformation systemInformation;
  RecordingStacking stacking;
  RecordingPrinter printer;
  FixedClock clock;
  /// Knows a user in the United States.
  Localization::LanguageChoice languages;
  CCustomBrand brand{QString()};
  NumberLocale locale = kPointLocale;
  QString programFolder;
};
