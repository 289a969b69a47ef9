#include "debug_log_file.h"

#include <QStandardPaths>

QString stateFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/Ostrevane/Tessaloom");
}
