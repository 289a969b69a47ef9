#include "system_information.h"

#include <QList>
#include <QtEndian>

namespace {

constexpr unsigned long kString = 1;
constexpr unsigned long kNumber = 4;

}  // namespace

QString MsInfo::programPath(const ReadValue& readValue, const FileExists& fileExists) {
  const QString tools = QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools");
  if (const auto path = readValue(tools + QStringLiteral("\\MSINFO"), QStringLiteral("PATH"))) return *path;
  if (const auto folder = readValue(tools + QStringLiteral(" Location"), QStringLiteral("MSINFO"))) {
    QString path = *folder + QStringLiteral("\\MSINFO32.EXE");
    if (fileExists(path)) return path;
  }
  return {};
}

std::optional<QString> MsInfo::textOf(unsigned long type, const QByteArray& bytes) {
  if (type == kString) return QString::fromLocal8Bit(bytes.split('\0').first());
  if (type == kNumber && bytes.size() == sizeof(quint32))
    return QString::number(qFromLittleEndian<quint32>(bytes.constData()));
  return std::nullopt;
}
