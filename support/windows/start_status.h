#pragma once

#include <QString>

#include "settings_store.h"

/// What the start of this process found out: whether it is the first one after installation. Handed to
/// the calculator window.
class CStartStatus {
 public:
  /// It is the first run if no window has ever stored its site, as every window does when it closes.
  explicit CStartStatus(SettingsStore& settings);

  [[nodiscard]] bool isFirstRun() const { return m_isFirstRun; }

  /// A version number written with a point, in the form that the user's number format reads.
  [[nodiscard]] static QString ConvNumFormat(const QString& text);

 private:
  bool m_isFirstRun;
};
