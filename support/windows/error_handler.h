#pragma once

#include "clock.h"
#include "custom_brand.h"
#include "debug_log_file.h"
#include "desktop_opener.h"
#include "error_reporter.h"

/// The error handler: notes an error in the debug log and shows it in the error window.
class CError : public ErrorReporter {
 public:
  /// All must outlive it.
  CError(const CCustomBrand& brand, DesktopOpener& desktop, const Clock& clock, DebugLogFile log);

  void show(QWidget* parent, const QString& errorText) override;

 private:
  const CCustomBrand& m_brand;
  DesktopOpener& m_desktop;
  const Clock& m_clock;
  DebugLogFile m_log;
};
