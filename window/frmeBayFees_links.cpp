#include <QDir>
#include <QFileInfo>
#include <stdexcept>

#include "frmAbout.h"
#include "frmeBayFees.h"
#include "link_label.h"
#include "links.h"
#include "program_version.h"
#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

/// An error that the user is told of, with the place it is about.
[[noreturn]] void fail(const QString& taggedText, const QString& place) {
  throw std::runtime_error((GetTagString(taggedText) + place).toStdString());
}

void checkOpened(bool isOpened, const QString& address) {
  if (!isOpened) fail(QStringLiteral("This address could not be opened: <5004>"), address);
}

}  // namespace

void frmeBayFees::connectLinks() {
  for (const QString& name : Links::controls()) {
    const auto open = [this, name] { guarded([this, name] { openLink(name); }); };
    if (auto* action = findChild<QAction*>(name)) connect(action, &QAction::triggered, this, open);
    if (auto* label = findChild<LinkLabel*>(name)) connect(label, &LinkLabel::clicked, this, open);
  }
  on(m_form.mnuHelpContents, &QAction::triggered, &frmeBayFees::mnuHelpContents_Click);
  on(m_form.mnuHelpHomepage, &QAction::triggered, &frmeBayFees::mnuHelpHomepage_Click);
  on(m_form.mnuHelpFeedback, &QAction::triggered, &frmeBayFees::mnuHelpFeedback_Click);
  on(m_form.mnuHelpSubscribe, &QAction::triggered, &frmeBayFees::mnuHelpSubscribe_Click);
  on(m_form.mnuHelpUpdate, &QAction::triggered, &frmeBayFees::mnuHelpUpdate_Click);
  on(m_form.mnuHelpAbout, &QAction::triggered, &frmeBayFees::mnuHelpAbout_Click);
}

QString frmeBayFees::languageCode() const { return m_surroundings.languages.CurrentLanguage().Code; }

void frmeBayFees::openLink(const QString& control) { openPage(Links::addressOf(control, languageCode())); }

void frmeBayFees::openPage(const QString& address) {
  checkOpened(m_surroundings.desktop.openWeb(address), address);
}

void frmeBayFees::openMail(const QString& mailLink) {
  checkOpened(m_surroundings.desktop.openMail(mailLink), mailLink);
}

void frmeBayFees::mnuHelpContents_Click() {
  const QString path = QDir(m_surroundings.programFolder).filePath(Links::helpFile(languageCode()));
  if (!QFileInfo(path).isFile()) fail(QStringLiteral("The help file was not found: <5003>"), path);
  checkOpened(m_surroundings.desktop.openFile(path), path);
}

void frmeBayFees::mnuHelpHomepage_Click() { openPage(m_surroundings.brand.values().CompanyURL); }

void frmeBayFees::mnuHelpFeedback_Click() {
  openMail(Links::feedbackMail(m_surroundings.brand.values(), QString::fromLatin1(kProgramVersion)));
}

void frmeBayFees::mnuHelpSubscribe_Click() {
  openMail(Links::subscriptionMail(m_surroundings.brand.values()));
}

void frmeBayFees::mnuHelpUpdate_Click() {
  if (m_startStatus) m_startStatus->CheckForUpdate();
}

void frmeBayFees::mnuHelpAbout_Click() {
  frmAbout about(this, {.brand = m_surroundings.brand,
                        .desktop = m_surroundings.desktop,
                        .messages = m_surroundings.messages,
                        .errors = m_surroundings.errors,
                        .programs = m_surroundings.programs,
                        .systemInformation = m_surroundings.systemInformation});
  about.exec();
}
