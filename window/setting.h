#pragma once

#include <functional>
#include <optional>
#include <QString>

class QAbstractButton;
class QComboBox;
class QLineEdit;

/// How something of the window is turned into a stored text and back.
struct SettingAccess {
  /// Nothing if it has no value to save just now.
  std::function<std::optional<QString>()> text;
  std::function<void(const QString&)> restore;
};

/// One key of the settings store.
struct Setting {
  const char* key;
  SettingAccess access;
  std::optional<QString> firstRun;  ///< the default; nothing: not written at the first run
  int saved;     ///< at which step of saving it is handed to the store, which takes all at once
  int restored;  ///< at which step of restoring it is read

  static constexpr int kNever = 0;
};

/// "1" and "0". Restoring sets a button and never clears it.
SettingAccess tick(QAbstractButton* button);
/// The index. One that the list does not have leaves it as it is.
SettingAccess choice(QComboBox* list);
/// The same; nothing stored is the first count.
SettingAccess photoCount(QComboBox* list);
/// The text as typed.
SettingAccess entry(QLineEdit* box);
/// For keys that are written on the first run only, and that this window does not show.
SettingAccess noControl();

/// "1" and "0".
QString storedFlag(bool isSet);
bool isStoredFlagSet(const QString& text);

/// The whole number at the start of a stored text; 0 if there is none, or none that fits.
int leadingNumber(const QString& text);
