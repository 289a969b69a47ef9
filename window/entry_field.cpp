#include "entry_field.h"

#include <algorithm>
#include <QFocusEvent>
#include <QInputMethodEvent>
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

bool isEditing(char32_t character) {
  return character == PasteKey || character == CopyKey || character == BackspaceKey;
}

bool isReturn(const QKeyEvent& key) {
  return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
         (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

std::u32string charactersOf(const QString& text) {
  const QList<uint> characters = text.toUcs4();
  return {characters.begin(), characters.end()};
}

/// Whether a box inserts what a key types. It does so for any key but with Control alone, or with Shift: what
/// Alt or the Windows key comes with is no shortcut of anybody's by the time it is here, and is inserted.
bool isInserted(const QKeyEvent& key) {
  if (key.text().isEmpty()) return false;
  const QChar first = key.text().front();
  if (first.category() == QChar::Other_Format) return true;
  if ((key.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier) return false;
  // A surrogate is not printable by itself but part of a character that is.
  return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_PrivateUse;
}

/// The characters that a key event types, or the code of an editing key that is judged like one; empty for
/// every other key: cursor keys, Delete, Enter, Escape and shortcuts go their way.
std::u32string judgedCharacters(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Paste)) return {PasteKey};
  if (key.matches(QKeySequence::Copy)) return {CopyKey};
  if (key.text() == QChar(BackspaceKey)) return {BackspaceKey};
  return isInserted(key) ? charactersOf(key.text()) : std::u32string();
}

}  // namespace

EntryField::EntryField(QLineEdit& box, EntryKind kind, NumberLocale locale)
    : QObject(&box), m_box(box), m_kind(kind), m_locale(std::move(locale)) {
  box.installEventFilter(this);
}

bool EntryField::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (isReturn(static_cast<const QKeyEvent&>(*event))) {
        emit confirmed();
        return true;
      }
      if (isBarred(static_cast<const QKeyEvent&>(*event))) return true;
      break;
    case QEvent::InputMethod:
      dropBarred(static_cast<QInputMethodEvent&>(*event));
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
  const std::u32string characters = judgedCharacters(key);
  // A letter over the selected text empties the box. With Alt it was meant for something else: a mnemonic of
  // another language, say.
  const bool isAltGr = (key.modifiers() & Qt::ControlModifier) != Qt::NoModifier;
  const bool isChord = (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != Qt::NoModifier && !isAltGr;
  if (isChord && !characters.empty() && !isEditing(characters.front()) &&
      judgeKey(m_kind, characters.front(), m_box.text().toStdString(), false, m_locale) ==
          KeyVerdict::Swallow)
    return true;
  return std::any_of(characters.begin(), characters.end(),
                     [this](char32_t character) { return isBarred(character, {}); });
}

bool EntryField::isBarred(char32_t character, const QString& taken) {
  const bool isAllSelected = m_box.selectedText().size() == m_box.text().size();
  // What has been taken will stand where the selection was.
  const QString text = (isAllSelected && !taken.isEmpty() ? QString() : m_box.text()) + taken;
  switch (judgeKey(m_kind, character, text.toStdString(), isAllSelected && taken.isEmpty(), m_locale)) {
    case KeyVerdict::Swallow:
      return true;
    case KeyVerdict::PassAfterPoint:
      m_box.setText(QStringLiteral("."));
      return false;
    case KeyVerdict::Pass:
      return false;
  }
  return false;
}

void EntryField::dropBarred(QInputMethodEvent& event) {
  QString taken;
  for (const char32_t character : charactersOf(event.commitString())) {
    if (!isBarred(character, taken)) taken += QString::fromUcs4(&character, 1);
  }
  event.setCommitString(taken, event.replacementStart(), event.replacementLength());
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
