#include "FError.h"

#include <QApplication>

#include "mail_link.h"
#include "program_version.h"
#include "tagged_captions.h"
#include "tagged_strings.h"

using Localization::GetTagString;

FError::FError(QWidget* parent, const BrandValues& brand, DesktopOpener& desktop)
    : QDialog(parent), m_brand(brand), m_desktop(desktop) {
  m_form.setupUi(this);
  TaggedCaptions captions;
  captions.capture(*this, {});
  captions.apply();
  setWindowTitle(QCoreApplication::applicationName() + QStringLiteral("  ") +
                 GetTagString(QStringLiteral("Error<0603>")));
  connect(m_form.cmdEmail, &QPushButton::clicked, this, &FError::cmdEmail_Click);
  connect(m_form.cmdContinue, &QPushButton::clicked, this, &QDialog::accept);
}

void FError::setText(const QString& errorText) {
  m_errorText = errorText;
  m_form.txtError->setPlainText(errorText);
}

void FError::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  QApplication::beep();
}

// The texts take as many lines as the width leaves them, however large the font.
void FError::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
}

void FError::cmdEmail_Click() {
  const QString subject = QCoreApplication::applicationName() + u' ' + QString::fromLatin1(kProgramVersion) +
                          QStringLiteral(" Error");
  if (m_desktop.openMail(mailLink(m_brand.ErrorReportEmail, subject, m_errorText))) return accept();
  // Nobody is left to report this to: the window stays, with the address to write to.
  m_form.lblToEmail->setText(GetTagString(QStringLiteral("This address could not be opened: <5004>")) +
                             m_brand.ErrorReportEmail);
  m_form.cmdEmail->setEnabled(false);
}
