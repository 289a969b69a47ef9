#include "language_library.h"

#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include "translation_file.h"

namespace Localization {

namespace {

/// Ours have some 60 KB.
constexpr qint64 kLargest = 4 << 20;

class LanguageLibrary : public LanguageResources {
 public:
  explicit LanguageLibrary(QByteArray bytes) : m_bytes(std::move(bytes)) {}

  bool load() {
    const void* bytes = m_bytes.constData();
    return m_translator.load(static_cast<const uchar*>(bytes), static_cast<int>(m_bytes.size()));
  }

  QString GetResourceString(qint32 id) override {
    const QByteArray key = QByteArray::number(id).rightJustified(4, '0');
    return m_translator.translate("", key.constData());
  }

 private:
  QByteArray m_bytes;  ///< the translator reads from them
  QTranslator m_translator;
};

}  // namespace

std::unique_ptr<LanguageResources> loadLanguageLibrary(const QString& path) {
  QFile file(path);
  // Not a folder, and not a pipe, which would hold up the window.
  if (!QFileInfo(path).isFile() || file.size() > kLargest || !file.open(QIODevice::ReadOnly)) return nullptr;
  return loadLanguageLibrary(file.readAll());
}

std::unique_ptr<LanguageResources> loadLanguageLibrary(const QByteArray& bytes) {
  if (!isSoundTranslation(bytes)) return nullptr;
  auto library = std::make_unique<LanguageLibrary>(bytes);
  if (!library->load()) return nullptr;
  return library;
}

}  // namespace Localization
