#include "modal_message_box.h"

#include <QMessageBox>

#include "front_window.h"

namespace {

void tell(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text) {
  QMessageBox box(icon, title, text, QMessageBox::Ok, frontWindow(parent));
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
