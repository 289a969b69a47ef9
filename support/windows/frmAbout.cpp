#include "frmAbout.h"

#include <QCoreApplication>

#include "program_version.h"
#include "tagged_captions.h"
#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

constexpr int kPictureSize = 64;

}  // namespace

frmAbout::frmAbout(QWidget* parent, const AboutSurroundings& surroundings)
    : QDialog(parent), m_surroundings(surroundings) {
  m_form.setupUi(this);
  TaggedCaptions captions;
  captions.capture(*this, {});
  captions.apply();
  m_form.lblInfo->setText(surroundings.brand.named(m_form.lblInfo->text()));
  m_form.lblVersion->setText(m_form.lblVersion->text() + QString::fromLatin1(kProgramVersion));
  m_form.lblEmail->setText(surroundings.brand.values().CompanyURL);
  m_form.picIcon->setPixmap(
      QApplication::windowIcon().pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatio()));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  connect(m_form.lblEmail, &LinkLabel::pressed, this, &frmAbout::lblEmail_MouseDown);
  connect(m_form.cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
  m_form.cmdOK->setFocus();  // Return closes the window, and opens no page
  connect(m_form.cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAbout::lblEmail_MouseDown() {
  const QString& homepage = m_surroundings.brand.values().CompanyURL;
  if (m_surroundings.desktop.openWeb(homepage)) return;
  m_surroundings.errors.show(
      this, GetTagString(QStringLiteral("This address could not be opened: <5004>")) + homepage);
}

void frmAbout::cmdSysInfo_Click() {
  const QString program = m_surroundings.systemInformation.programPath();
  if (!program.isEmpty() && m_surroundings.programs.start(program)) return;
  // The application's title: the window's own is as long as a sentence.
  m_surroundings.messages.showPlain(
      this, QCoreApplication::applicationName(),
      GetTagString(QStringLiteral("System Information Is Unavailable At This Time<0505>")));
}
