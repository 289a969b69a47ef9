#include "message_box.h"

#include <QMessageBox>

void ModalMessageBox::showCritical(QWidget* parent, const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
