#pragma once

#include <QDialog>

#include "custom_brand.h"
#include "desktop_opener.h"
#include "ui_FError.h"

/// The error window: shows an error's text, and lets the user mail it to the maker or just continue. It is
/// the end of the line: the program goes on after it.
class FError : public QDialog {
  Q_OBJECT

 public:
  /// `brand` and `desktop` must outlive it.
  FError(QWidget* parent, const BrandValues& brand, DesktopOpener& desktop);

  /// The text to show and to mail. Before the window is shown.
  void setText(const QString& errorText);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void cmdEmail_Click();

  Ui::FError m_form;
  const BrandValues& m_brand;
  DesktopOpener& m_desktop;
  QString m_errorText;
};
