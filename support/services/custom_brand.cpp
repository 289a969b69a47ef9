#include "custom_brand.h"

#include <array>
#include <limits>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "makers_addresses.h"

namespace {

// Positions in the file are 16-bit numbers, from 1.
constexpr qsizetype kLastPosition = std::numeric_limits<qint16>::max();

struct BrandRow {
  const char* name;
  QString BrandValues::*value;
  const char* makers;
};

// clang-format off
constexpr std::array<BrandRow, 6> kRows{{
    {"CompanyName",      &BrandValues::CompanyName,      Maker::kCompanyName},
    {"CompanyURL",       &BrandValues::CompanyURL,       Maker::kCompanyUrl},
    {"SupportEmail",     &BrandValues::SupportEmail,     Maker::kSupportEmail},
    {"SupportURL",       &BrandValues::SupportURL,       Maker::kSupportUrl},
    {"SubscribeEmail",   &BrandValues::SubscribeEmail,   Maker::kSubscribeEmail},
    {"ErrorReportEmail", &BrandValues::ErrorReportEmail, Maker::kErrorReportEmail},
}};
// clang-format on

/// The bytes of the characters that a value can lie in, however many line breaks stand between them.
QByteArray readableBytes(QIODevice& file) {
  constexpr qsizetype bytesPerCharacter = 4;
  constexpr qsizetype longestName = 16;
  constexpr qsizetype enough = bytesPerCharacter * (kLastPosition + longestName);
  constexpr qint64 chunk = 0x10000;
  QByteArray bytes;
  for (QByteArray read = file.read(chunk); !read.isEmpty() && bytes.size() < enough;
       read = file.read(chunk)) {
    bytes += read.removeIf([](char c) { return c == '\r' || c == '\n'; });
  }
  return bytes;
}

}  // namespace

CCustomBrand::CCustomBrand(const QString& programFolder)
    : m_path(QDir(programFolder).filePath(QStringLiteral("AppData"))) {
  for (const BrandRow& row : kRows) m_values.*row.value = QString::fromLatin1(row.makers);
}

void CCustomBrand::Load() {
  ReadFile();
  if (!m_isFound) return;
  for (const BrandRow& row : kRows) m_values.*row.value = GetValue(m_text, QString::fromLatin1(row.name));
}

void CCustomBrand::ReadFile() {
  QFile file(m_path);
  // Not a folder, and not a pipe, which would hold up the start.
  if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadOnly)) return;
  m_text = textOf(file);
  m_isFound = file.error() == QFileDevice::NoError;
}

QString CCustomBrand::named(QString text) const {
  return text.replace(QStringLiteral("Ostrevane"), m_values.CompanyName);
}

QString CCustomBrand::textOf(QIODevice& file) {
  const QByteArray bytes = readableBytes(file);
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString text = utf8(bytes);
  return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

QString CCustomBrand::GetValue(const QString& text, const QString& name) {
  const qsizetype opening = text.indexOf(name);
  if (opening < 0 || opening >= kLastPosition) return {};
  const qsizetype start = opening + name.size() + 1;  // behind the ">"
  const qsizetype closing = start <= text.size() ? text.indexOf(name, start) : -1;
  if (closing < 0 || closing >= kLastPosition) return {};
  const qsizetype length = closing - 2 - start;  // before the "</"
  return length > 0 ? text.mid(start, length) : QString();
}
