#include "entry_field.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>
#include <utility>

namespace {

/// The focus also moves when a menu opens or another program comes to the front: the user is still in the
/// box.
bool movesWithinTheWindow(Qt::FocusReason reason) {
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

/// The characters that a key event types, or the code of an editing key that is judged like one; empty for
/// every other key: cursor keys, Delete, Enter, Escape, shortcuts and mnemonics go their way.
std::u32string judgedCharacters(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Paste)) return {PasteKey};
  if (key.matches(QKeySequence::Copy)) return {CopyKey};
  const QString text = key.text();
  if (text == QChar(BackspaceKey)) return {BackspaceKey};
  const Qt::KeyboardModifiers chord =
      key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool isAltGr = chord == (Qt::ControlModifier | Qt::AltModifier);
  if (text.isEmpty() || !text.front().isPrint() || (chord != Qt::NoModifier && !isAltGr)) {
    // A surrogate is not printable by itself but part of a character that is.
    if (text.isEmpty() || !text.front().isSurrogate()) return {};
  }
  const QList<uint> characters = text.toUcs4();
  return {characters.begin(), characters.end()};
}

}  // namespace

EntryField::EntryField(QLineEdit& box, EntryKind kind, NumberLocale locale)
    : QObject(&box), m_box(box), m_kind(kind), m_locale(std::move(locale)) {
  box.installEventFilter(this);
}

bool EntryField::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (isBarred(static_cast<const QKeyEvent&>(*event))) return true;
      break;
    case QEvent::FocusIn:
      focusGained(static_cast<const QFocusEvent&>(*event));
      break;
    case QEvent::FocusOut:
      focusLost(static_cast<const QFocusEvent&>(*event));
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

bool EntryField::isBarred(const QKeyEvent& key) {
  for (const char32_t character : judgedCharacters(key)) {
    const bool isWholeTextSelected = m_box.selectedText().size() == m_box.text().size();
    const std::string text = m_box.text().toStdString();
    switch (judgeKey(m_kind, character, text, isWholeTextSelected, m_locale)) {
      case KeyVerdict::Swallow:
        return true;
      case KeyVerdict::PassAfterPoint:
        m_box.setText(QStringLiteral("."));
        break;
      case KeyVerdict::Pass:
        break;
    }
  }
  return false;
}

void EntryField::focusGained(const QFocusEvent& focus) {
  if (!movesWithinTheWindow(focus.reason())) return;
  m_box.selectAll();
  // The mouse press that brought the focus goes on to place the caret; the selection comes after it.
  if (focus.reason() == Qt::MouseFocusReason) QTimer::singleShot(0, &m_box, &QLineEdit::selectAll);
}

void EntryField::focusLost(const QFocusEvent& focus) {
  if (movesWithinTheWindow(focus.reason())) emit left();
}
