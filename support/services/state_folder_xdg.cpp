#include "debug_log_file.h"

#include <QDir>

// By the base directory rules of Linux desktops, where a relative path counts as none.
QString stateFolder() {
  const QString set = qEnvironmentVariable("XDG_STATE_HOME");
  const QString base = QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
  return base + QStringLiteral("/Ostrevane/Tessaloom");
}
