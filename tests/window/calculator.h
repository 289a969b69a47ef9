#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "folders.h"
#include "frmeBayFees.h"
#include "recording_world.h"

/// The real calculator window with recording surroundings, worked by verbs. A verb that names a control
/// which is not there throws, with the name.
class Calculator : public RecordingWorld {
 public:
  /// `languageFolder` is where the language libraries lie.
  explicit Calculator(NumberLocale locale = kPointLocale, int site = 1,
                      const QString& languageFolder = QString::fromUtf8(kProgramFolder));
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

 private:
  std::unique_ptr<frmeBayFees> m_window;
  int m_site;
};

/// Lets queued calls run.
void letItSettle();

template <typename T>
T& Calculator::find(const char* name) const {
  auto* object = m_window->findChild<T*>(QString::fromLatin1(name));
  if (object == nullptr)
    throw std::runtime_error(std::string("there is no control of that kind named ") + name);
  return *object;
}
