#include "settings_store.h"

#include <QFile>

namespace {

const QString kOrganization = QStringLiteral("Ostrevane");
const QString kApplication = QStringLiteral("Tessaloom");

}  // namespace

UserSettings::UserSettings()
    : m_settings(QSettings::NativeFormat, QSettings::UserScope, kOrganization, kApplication) {
  // Only what was understood will be written again.
  if (m_settings.status() == QSettings::FormatError) {
    QFile::copy(m_settings.fileName(), m_settings.fileName() + QStringLiteral(".damaged"));
  }
}

QString UserSettings::read(const QString& key) {
  m_settings.sync();
  // A text with a comma that somebody wrote into the file by hand, without quotes, comes as a list.
  return m_settings.value(key).toStringList().join(u',');
}

void UserSettings::writeAll(const SettingList& values) {
  // Its own object, on the same values: the status of one that failed once never becomes good again.
  QSettings settings(QSettings::NativeFormat, QSettings::UserScope, kOrganization, kApplication);
  for (const auto& [key, value] : values) settings.setValue(key, value);
  settings.sync();
  if (settings.status() == QSettings::AccessError) {
    throw SettingsError("The settings could not be stored in " + settings.fileName().toStdString() + ".");
  }
}
