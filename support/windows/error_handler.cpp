#include "error_handler.h"

#include <utility>

#include "FError.h"
#include "front_window.h"
#include "program_version.h"

CError::CError(const CCustomBrand& brand, DesktopOpener& desktop, const Clock& clock, DebugLogFile log)
    : m_brand(brand), m_desktop(desktop), m_clock(clock), m_log(std::move(log)) {}

void CError::show(QWidget* parent, const QString& errorText) {
  m_log.append(m_clock.now(), QString::fromLatin1(kProgramVersion), errorText);
  FError window(frontWindow(parent), m_brand.values(), m_desktop);
  window.setText(errorText);
  window.exec();
}
