#include "debug_log_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>

namespace {

/// Longer texts are cut: a line must leave room for others.
constexpr qsizetype kLongestText = 16'000;

bool isLineBreak(QChar character) {
  constexpr QStringView lineBreaks = u"\n\v\f\r\x85\u2028\u2029";
  return lineBreaks.contains(character);
}

/// A text that no reader of the log takes for more lines than one, or for orders to a terminal.
QString inOneLine(QString text) {
  text.replace(u'\\', QStringLiteral("\\\\")).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QString line;
  for (const QChar character : text) {
    const bool isControl = character.category() == QChar::Other_Control && character != u'\t';
    if (isLineBreak(character)) {
      line += QStringLiteral("\\n");
    } else {
      line += isControl ? QChar(QChar::ReplacementCharacter) : character;
    }
  }
  return line;
}

/// One line of UTF-8 without its end.
QByteArray lineOf(const QDateTime& time, const QString& version, const QString& text) {
  const QString stamp = time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
  const QString cut = text.size() > kLongestText ? QStringLiteral(" [cut]") : QString();
  return QString(stamp + u' ' + version + u' ' + inOneLine(text.left(kLongestText)) + cut).toUtf8();
}

/// The newer half of the log, in whole lines, takes the place of the log.
void dropOlderHalf(const QString& path) {
  QFile log(path);
  if (!log.open(QIODevice::ReadOnly)) return;
  log.seek(log.size() - DebugLogFile::kLargestSize / 2);
  log.readLine();  // the rest of a line
  const QByteArray newer = log.readAll();
  log.close();
  QSaveFile shorter(path);
  if (shorter.open(QIODevice::WriteOnly) && shorter.write(newer) == newer.size()) shorter.commit();
}

}  // namespace

DebugLogFile::DebugLogFile(const QString& folder)
    : m_path(QDir(folder).filePath(QStringLiteral("MasterDebugLog.txt"))) {}

void DebugLogFile::append(const QDateTime& time, const QString& version, const QString& text) const {
  constexpr int patience = 200;  // milliseconds, for another window that writes
  if (!QDir().mkpath(QFileInfo(m_path).path())) return;
  QLockFile lock(m_path + QStringLiteral(".lock"));
  const bool isAlone = lock.tryLock(patience);
  const QByteArray line = lineOf(time, version, text) + '\n';
  const auto isFull = [&] { return QFileInfo(m_path).size() + line.size() >= kLargestSize; };
  // A line more does no harm to those who write at the same time; taking lines away would.
  if (isFull() && isAlone) dropOlderHalf(m_path);
  if (isFull()) return;
  QFile log(m_path);
  if (log.open(QIODevice::WriteOnly | QIODevice::Append)) log.write(line);
}
