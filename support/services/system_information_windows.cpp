#include <windows.h>
#include <array>
#include <QFileInfo>

#include "system_information.h"

namespace {

constexpr REGSAM kAccess = 0x2003F;
constexpr DWORD kBufferSize = 1024;

std::optional<QString> readValue(const QString& key, const QString& name) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.toLocal8Bit().constData(), 0, kAccess, &opened) != ERROR_SUCCESS)
    return std::nullopt;
  std::array<char, kBufferSize> buffer{};
  DWORD type = 0;
  DWORD size = kBufferSize;
  const LSTATUS status = RegQueryValueExA(opened, name.toLocal8Bit().constData(), nullptr, &type,
                                          reinterpret_cast<BYTE*>(buffer.data()), &size);
  RegCloseKey(opened);
  if (status != ERROR_SUCCESS) return std::nullopt;
  return MsInfo::textOf(type, QByteArray(buffer.data(), static_cast<qsizetype>(size)));
}

}  // namespace

QString InstalledSystemInformation::programPath() {
  return MsInfo::programPath(readValue, [](const QString& path) { return QFileInfo::exists(path); });
}
