#pragma once

#include <QString>

class QWidget;

/// Tells the user something and waits for OK.
class MessageBox {
 public:
  virtual ~MessageBox() = default;

  /// With the critical-stop icon. `text` is shown as it stands, never as markup.
  virtual void showCritical(QWidget* parent, const QString& title, const QString& text) = 0;
};

class ModalMessageBox : public MessageBox {
 public:
  void showCritical(QWidget* parent, const QString& title, const QString& text) override;
};
