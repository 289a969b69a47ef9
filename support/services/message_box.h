#pragma once

#include <QString>

class QWidget;

/// Tells the user something and waits for OK. `text` is shown as it stands, never as markup; without a
/// `parent` it belongs to whatever window of the program is in front.
class MessageBox {
 public:
  virtual ~MessageBox() = default;

  virtual void showPlain(QWidget* parent, const QString& title, const QString& text) = 0;

  /// With the critical-stop icon.
  virtual void showCritical(QWidget* parent, const QString& title, const QString& text) = 0;
};
