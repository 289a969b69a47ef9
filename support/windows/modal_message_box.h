#pragma once

#include "message_box.h"

/// The desktop's own message box.
class ModalMessageBox : public MessageBox {
 public:
  void showPlain(QWidget* parent, const QString& title, const QString& text) override;
  void showCritical(QWidget* parent, const QString& title, const QString& text) override;
};
