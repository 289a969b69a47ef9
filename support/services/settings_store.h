#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QSettings>
#include <QString>
#include <stdexcept>

/// A value that could not be stored; its text names the place.
class SettingsError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Keys and their values.
using SettingList = QList<QPair<QString, QString>>;

/// The per-user settings: texts by key. It knows neither which keys there are nor what their texts mean.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or "" for a key that is not there. What cannot be read reads as not there.
  [[nodiscard]] virtual QString read(const QString& key) = 0;

  /// Stores all values in one step, or none. Throws SettingsError if the store cannot be written.
  virtual void writeAll(const SettingList& values) = 0;

  void write(const QString& key, const QString& value) { writeAll({{key, value}}); }
};

/// The real store: the desktop's settings of the application "Tessaloom" of the organization "Ostrevane".
/// Several windows, each a process of its own, share it; every read sees what the others have written.
/// A file that is not wholly understood is kept under its name and ".damaged" before it is written over.
/// Values that could not be stored stay known to this process, and are tried again with the next ones.
class UserSettings : public SettingsStore {
 public:
  UserSettings();

  [[nodiscard]] QString read(const QString& key) override;
  void writeAll(const SettingList& values) override;

 private:
  QSettings m_settings;
  QMap<QString, QString> m_unstored;  ///< what could not be stored yet
};
