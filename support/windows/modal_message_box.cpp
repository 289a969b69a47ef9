#include "modal_message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace {

/// A message of nobody in particular belongs to the window in front: a window that is kept on top would hide
/// it.
QWidget* parentOf(QWidget* parent) {
  if (parent != nullptr) return parent;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

void tell(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text) {
  QMessageBox box(icon, title, text, QMessageBox::Ok, parentOf(parent));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

void ModalMessageBox::showPlain(QWidget* parent, const QString& title, const QString& text) {
  tell(QMessageBox::NoIcon, parent, title, text);
}

void ModalMessageBox::showCritical(QWidget* parent, const QString& title, const QString& text) {
  tell(QMessageBox::Critical, parent, title, text);
}
