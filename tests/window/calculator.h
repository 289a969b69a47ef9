#pragma once

#include <memory>
#include <QMap>
#include <QPair>
#include <QStringList>

#include "frmeBayFees.h"
#include "recording_surface.h"
#include "surroundings.h"

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
/// pages there is paper for.
struct RecordingPrinter : NotePrinter {
  QStringList titles;
  PrintRecord record;
  bool isWanted = true;
  int lastPage = 1000;

  std::unique_ptr<PageSurface> open(QWidget* /*parent*/, const QString& title) override {
    titles << title;
    record = {};
    return isWanted ? std::make_unique<RecordingSurface>(record, lastPage) : nullptr;
  }
};

/// The sixth of February 2003, always.
struct FixedClock : Clock {
  [[nodiscard]] QDate today() const override { return {2003, 2, 6}; }
};

inline const NumberLocale kPointLocale{".", ",", "$"};
inline const NumberLocale kGermanLocale{",", ".", "€"};
inline const NumberLocale kSwissLocale{".", "’", "CHF"};
inline const NumberLocale kFrenchLocale{",", "\u202F", "€"};

/// The real calculator window with recording surroundings, worked by verbs. A verb that names a control
/// which is not there throws, with the name.
class Calculator {
 public:
  /// `languageFolder` is where the language libraries lie.
  explicit Calculator(NumberLocale locale = kPointLocale, int site = 1,
                      QString languageFolder = QStringLiteral(LANGUAGE_FOLDER));
  ~Calculator();

  /// The window as it stands before it is loaded; `load` shows it.
  frmeBayFees& window() { return *m_window; }
  void load();

  /// Chooses the language with that name as the menu does: "English", "German" or "French".
  void speak(const QString& language);

  /// Types over what the box holds, by real keys, and leaves it with Tab.
  void enter(const char* box, const QString& text);
  /// The same without leaving.
  void type(const char* box, const QString& text);
  /// Sets the text as the program itself would.
  void set(const char* box, const QString& text);
  void leave(const char* box);
  void tick(const char* box, bool ticked = true);
  void untick(const char* box) { tick(box, false); }
  void choose(const char* list, int index);
  void select(const char* option);
  void click(const char* button);
  void trigger(const char* menuItem);
  void selectSite(int site);

  [[nodiscard]] QString shown(const char* control) const;
  /// "listing fee, extras, final value fee, total" of the single-item tab.
  [[nodiscard]] QStringList singleItemFees() const;

  template <typename T>
  T& find(const char* name) const;

  MemorySettings settings;
  RecordingMessages messages;
  RecordingStarter starter;
  RecordingStacking stacking;
  RecordingPrinter printer;
  FixedClock clock;
  /// Knows a user in the United States.
  Localization::LanguageChoice languages;
  CCustomBrand brand{QString()};

 private:
  std::unique_ptr<frmeBayFees> m_window;
  int m_site;
};

/// What a language choice needs, with the libraries that the build has made.
Localization::LanguageSurroundings builtLanguages(SettingsStore& settings, MessageBox& messages,
                                                  const QString& userCode = QStringLiteral("409"));

/// Lets queued calls run.
void letItSettle();

template <typename T>
T& Calculator::find(const char* name) const {
  auto* object = m_window->findChild<T*>(QString::fromLatin1(name));
  if (object == nullptr)
    throw std::runtime_error(std::string("there is no control of that kind named ") + name);
  return *object;
}
