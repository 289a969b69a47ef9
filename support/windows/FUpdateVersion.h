#pragma once

#include <QDialog>

#include "ui_FUpdateVersion.h"

/// Offers a newer version. It only asks; `exec` answers whether the user wants it now.
class FUpdateVersion : public QDialog {
  Q_OBJECT

 public:
  /// `message` is shown as it stands. Where there is nothing to open, updating cannot be chosen.
  FUpdateVersion(QWidget* parent, const QString& title, const QString& message, bool canUpdate);

 private:
  Ui::FUpdateVersion m_form;
};
