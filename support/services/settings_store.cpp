#include "settings_store.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

const QString kOrganization = QStringLiteral("Ostrevane");
const QString kApplication = QStringLiteral("Tessaloom");

/// No less than the file's size will be once the values are in it: a character may be escaped by six.
qsizetype largestSizeWith(const QString& path, const QMap<QString, QString>& values) {
  constexpr qsizetype escaped = 6;
  constexpr qsizetype around = 16;
  qsizetype size = QFileInfo(path).size() + around;
  for (auto value = values.cbegin(); value != values.cend(); ++value)
    size += escaped * (value.key().size() + value.value().size()) + around;
  return size;
}

/// Whether a file of that size can be written beside `path`. QSettings takes a write that stops half-way on a
/// full disk for a whole one, and puts it in the place of the good file.
bool isRoomFor(qsizetype size, const QString& path) {
  const QFileInfo file(path);
  if (!QDir().mkpath(file.path())) return false;
  QTemporaryFile probe(path + QStringLiteral(".XXXXXX"));
  return probe.open() && probe.write(QByteArray(size, ' ')) == size && probe.flush();
}

/// Whether every line of a file of settings says something; what says nothing would not be written again.
bool isUnderstood(const QByteArray& content) {
  const QList<QByteArray> lines = content.split('\n');
  return std::all_of(lines.begin(), lines.end(), [](const QByteArray& line) {
    const QByteArray text = line.trimmed();
    const bool isHeading = text.startsWith('[') && text.endsWith(']');
    return text.isEmpty() || text.startsWith(';') || isHeading || text.contains('=');
  });
}

void keepIfDamaged(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || isUnderstood(file.readAll())) return;
  QString copy = path + QStringLiteral(".damaged");
  for (int number = 2; QFile::exists(copy); ++number) copy = path + QStringLiteral(".damaged.%1").arg(number);
  file.copy(copy);
}

[[noreturn]] void failToStoreIn(const QString& path) {
  throw SettingsError("The settings could not be stored in " + path.toStdString() + ".");
}

}  // namespace

UserSettings::UserSettings()
    : m_settings(QSettings::NativeFormat, QSettings::UserScope, kOrganization, kApplication) {}

QString UserSettings::read(const QString& key) {
  if (const auto unstored = m_unstored.constFind(key); unstored != m_unstored.cend()) return *unstored;
  m_settings.sync();
  // A text with a comma that somebody wrote into the file by hand, without quotes, comes as a list.
  return m_settings.value(key).toStringList().join(u',');
}

void UserSettings::writeAll(const SettingList& values) {
  for (const auto& [key, value] : values) m_unstored[key] = value;
  // Its own object, on the same file: the status of one that failed once never becomes good again.
  QSettings settings(QSettings::NativeFormat, QSettings::UserScope, kOrganization, kApplication);
  if (!isRoomFor(largestSizeWith(settings.fileName(), m_unstored), settings.fileName()))
    failToStoreIn(settings.fileName());
  keepIfDamaged(settings.fileName());
  for (auto value = m_unstored.cbegin(); value != m_unstored.cend(); ++value)
    settings.setValue(value.key(), value.value());
  settings.sync();
  if (settings.status() == QSettings::AccessError) failToStoreIn(settings.fileName());
  m_unstored.clear();
}
