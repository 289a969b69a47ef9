#pragma once

#include <QSettings>
#include <QString>

/// The per-user settings: texts by key. It knows neither which keys there are nor what their texts mean.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or "" for a key that is not there.
  [[nodiscard]] virtual QString read(const QString& key) = 0;
  virtual void write(const QString& key, const QString& value) = 0;
};

/// The real store: the desktop's settings of the application "Tessaloom" of the organization "Ostrevane".
/// Several windows, each a process of its own, share it; every read sees what the others have written.
class UserSettings : public SettingsStore {
 public:
  UserSettings();

  [[nodiscard]] QString read(const QString& key) override;
  void write(const QString& key, const QString& value) override;

 private:
  QSettings m_settings;
};
