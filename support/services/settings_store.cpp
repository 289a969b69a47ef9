#include "settings_store.h"

UserSettings::UserSettings()
    : m_settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Ostrevane"),
                 QStringLiteral("Tessaloom")) {}

QString UserSettings::read(const QString& key) {
  m_settings.sync();
  return m_settings.value(key).toString();
}

void UserSettings::write(const QString& key, const QString& value) {
  m_settings.setValue(key, value);
  m_settings.sync();
}
