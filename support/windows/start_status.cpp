#include "start_status.h"

#include <QCoreApplication>
#include <utility>

#include "front_window.h"
#include "FUpdateVersion.h"
#include "number_format.h"
#include "program_version.h"
#include "tagged_strings.h"

using Localization::GetTagString;

CStartStatus::CStartStatus(StartSurroundings surroundings)
    : m_surroundings(std::move(surroundings)),
      m_isFirstRun(m_surroundings.settings.read(QStringLiteral("Site")).isEmpty()) {}

CStartStatus::~CStartStatus() {
  if (m_isAsking) m_surroundings.web.cancel();
}

void CStartStatus::keepUpdateCheck(bool isAllowed) {
  m_surroundings.settings.write(QStringLiteral("UpdateCheck"),
                                isAllowed ? QStringLiteral("1") : QStringLiteral("0"));
}

void CStartStatus::CheckForUpdate() {
  if (std::exchange(m_isAsking, true)) return;
  const QUrl address = addressOf({.host = m_surroundings.updateHost,
                                  .app = QCoreApplication::applicationName(),
                                  .version = QString::fromLatin1(kProgramVersion),
                                  .appClass = m_surroundings.appClass,
                                  .language = m_surroundings.languageName()});
  // What is shown waits for the user, who may close the window behind it meanwhile.
  m_surroundings.web.get(address, [weak = weak_from_this()](const std::optional<QString>& text) {
    if (const auto self = weak.lock()) self->takeAnswer(text);
  });
}

void CStartStatus::takeAnswer(const std::optional<QString>& text) {
  m_update = readUpdateAnswer(text.value_or(QString()));
  actOnAnswer();
  m_isAsking = false;
}

void CStartStatus::actOnAnswer() {
  if (m_update.isOldForm) return offerUpdate(GetTagString(QStringLiteral("New Version Available.<0660>")));
  if (!m_update.isStatusValid) return;
  if (m_update.isNewVersionOffered)
    return offerUpdate(GetTagString(QStringLiteral("New Version Available.<0661>")));
  if (m_update.message.isEmpty()) return;
  m_surroundings.messages.showPlain(
      m_window, m_surroundings.brand.named(GetTagString(QStringLiteral("Ostrevane Message<0665>"))),
      m_update.message);
}

void CStartStatus::offerUpdate(const QString& title) {
  FUpdateVersion offer(frontWindow(m_window), title, m_update.message, isWebAddress(m_update.updateAddress));
  if (offer.exec() != QDialog::Accepted) return;
  m_surroundings.messages.showPlain(
      m_window, GetTagString(QStringLiteral("Download update<0664>")),
      GetTagString(QStringLiteral("A setup file will now be retrieved from the internet.<0662>")) + u'\n' +
          GetTagString(QStringLiteral("Please choose 'Open' when you are prompted.<0663>")));
  m_isUpdateStarted = m_surroundings.desktop.openWeb(m_update.updateAddress);
  if (m_isUpdateStarted) return;
  m_surroundings.errors.show(
      m_window,
      GetTagString(QStringLiteral("This address could not be opened: <5004>")) + m_update.updateAddress);
}

QString CStartStatus::ConvNumFormat(const QString& text) {
  return Localization::ConvNumFormat(text, Localization::NumberFormatKind);
}
