#include <cstdint>
#include <cstdlib>
#include <QBuffer>

#include "custom_brand.h"

// Any bytes as a branding file. What must hold of its text and of every value in it: no line break, and no
// value that reaches beyond the last position, or that contains its own name.

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const void* input = data;
  QByteArray bytes(static_cast<const char*>(input), static_cast<qsizetype>(size));
  QBuffer file(&bytes);
  file.open(QIODevice::ReadOnly);
  const QString text = CCustomBrand::textOf(file);
  require(!text.contains(u'\r') && !text.contains(u'\n'));
  for (const char* name : {"CompanyName", "CompanyURL", "SupportEmail", "SupportURL", "SubscribeEmail",
                           "ErrorReportEmail", ""}) {
    const QString value = CCustomBrand::GetValue(text, QString::fromLatin1(name));
    require(value.size() < 32767);
    require(value.isEmpty() || text.contains(value));
    require(value.isEmpty() || *name == '\0' || !value.contains(QString::fromLatin1(name)));
  }
  return 0;
}
