#include <array>
#include <QStandardPaths>

#include "system_information.h"

namespace {

// Of the large desktops first, then those that are installed on their own.
constexpr std::array<const char*, 5> kTools{"kinfocenter", "hardinfo2", "hardinfo", "mate-system-monitor",
                                            "gnome-system-monitor"};

}  // namespace

QString InstalledSystemInformation::programPath() {
  for (const char* tool : kTools) {
    if (QString path = QStandardPaths::findExecutable(QString::fromLatin1(tool)); !path.isEmpty())
      return path;
  }
  return {};
}
