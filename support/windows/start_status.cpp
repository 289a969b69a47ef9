#include "start_status.h"

#include "number_format.h"

CStartStatus::CStartStatus(SettingsStore& settings)
    : m_isFirstRun(settings.read(QStringLiteral("Site")).isEmpty()) {}

QString CStartStatus::ConvNumFormat(const QString& text) {
  return Localization::ConvNumFormat(text, Localization::NumberFormatKind);
}
