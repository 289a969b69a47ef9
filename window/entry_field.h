#pragma once

#include <QLineEdit>
#include <QObject>

#include "entry_rules.h"
#include "number_locale.h"

class QFocusEvent;
class QInputMethodEvent;
class QKeyEvent;

/// Watches one entry box: it keeps barred characters out in whatever way they are typed, selects the
/// text when the user comes to the box and tells when the user confirms it, or leaves it for another control
/// of the window. What a changed or left box means is the window's business.
class EntryField : public QObject {
  Q_OBJECT

 public:
  EntryField(QLineEdit& box, EntryKind kind, NumberLocale locale);

 signals:
  /// The focus went to another control of the same window: not to a menu, a popup or another window.
  void left();
  /// Return was pressed: what stands in the box counts, and the user stays.
  void confirmed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// True if the key must not reach the box.
  bool isBarred(const QKeyEvent& key);
  /// The same of one character, behind others of the same event that are already taken.
  bool isBarred(char32_t character, const QString& taken);
  /// What an input method, a dead key or Compose hands over is judged character by character.
  void dropBarred(QInputMethodEvent& event);
  void focusGained(const QFocusEvent& focus);
  void focusLost(const QFocusEvent& focus);

  QLineEdit& m_box;
  EntryKind m_kind;
  NumberLocale m_locale;
};
