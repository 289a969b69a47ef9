#include "translation_file.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <QtEndian>
#include <vector>

namespace Localization {

namespace {

constexpr std::string_view kMagic("\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd", 16);

// The sections of a file, and the parts of a message. A file that names further files to be loaded
// (0x96), or that has parts from before Unicode, is none of ours.
constexpr quint8 kHashes = 0x42;
constexpr quint8 kMessages = 0x69;
constexpr std::array<quint8, 4> kSections{kHashes, kMessages, 0x88 /* plural rules */, 0xa7 /* language */};
constexpr quint8 kEnd = 1;
constexpr quint8 kTranslation = 3;
constexpr std::array<quint8, 4> kParts{kTranslation, 6 /* source text */, 7 /* context */, 8 /* comment */};

/// Reads big-endian numbers and blocks; knows nothing once it has run over the end.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : m_rest(bytes) {}

  [[nodiscard]] bool atEnd() const { return m_rest.empty(); }
  [[nodiscard]] std::size_t left() const { return m_rest.size(); }

  std::optional<quint8> byte() {
    const auto read = take(1);
    return read ? std::optional(static_cast<quint8>(read->front())) : std::nullopt;
  }

  std::optional<quint32> number() {
    const auto read = take(sizeof(quint32));
    return read ? std::optional(qFromBigEndian<quint32>(read->data())) : std::nullopt;
  }

  std::optional<std::string_view> block() {
    const auto length = number();
    return length ? take(*length) : std::nullopt;
  }

 private:
  std::optional<std::string_view> take(std::size_t length) {
    if (m_rest.size() < length) return std::nullopt;
    const std::string_view taken = m_rest.substr(0, length);
    m_rest.remove_prefix(length);
    return taken;
  }

  std::string_view m_rest;
};

bool isOneOf(const std::array<quint8, 4>& tags, quint8 tag) {
  return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

/// Each section once.
std::optional<std::map<quint8, std::string_view>> sectionsOf(std::string_view file) {
  std::map<quint8, std::string_view> sections;
  Reader reader(file);
  while (!reader.atEnd()) {
    const auto tag = reader.byte();
    const auto content = reader.block();
    if (!tag || !isOneOf(kSections, *tag)) return std::nullopt;
    if (!content || content->empty() || !sections.emplace(*tag, *content).second) return std::nullopt;
  }
  return sections;
}

/// Reads one message up to its end.
bool skipMessage(Reader& reader) {
  for (auto part = reader.byte(); part; part = reader.byte()) {
    if (*part == kEnd) return true;
    const auto text = reader.block();
    if (!isOneOf(kParts, *part) || !text) return false;
    if (*part == kTranslation && text->size() % sizeof(char16_t) != 0) return false;
  }
  return false;
}

/// Where the messages start that follow one another in the section; nothing if one is broken.
std::optional<std::vector<quint32>> startsOfMessages(std::string_view messages) {
  std::vector<quint32> starts;
  Reader reader(messages);
  while (!reader.atEnd()) {
    starts.push_back(static_cast<quint32>(messages.size() - reader.left()));
    if (!skipMessage(reader)) return std::nullopt;
  }
  return starts;
}

/// Rows of a hash and the start of its message.
bool leadsToMessages(std::string_view hashes, const std::vector<quint32>& starts) {
  Reader reader(hashes);
  while (!reader.atEnd()) {
    const auto hash = reader.number();
    const auto start = reader.number();
    if (!hash || !start || !std::binary_search(starts.begin(), starts.end(), *start)) return false;
  }
  return true;
}

}  // namespace

bool isSoundTranslation(const QByteArray& bytes) {
  const std::string_view file(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  if (!file.starts_with(kMagic)) return false;
  const auto sections = sectionsOf(file.substr(kMagic.size()));
  if (!sections || !sections->contains(kHashes) || !sections->contains(kMessages)) return false;
  const auto starts = startsOfMessages(sections->at(kMessages));
  return starts && leadsToMessages(sections->at(kHashes), *starts);
}

}  // namespace Localization
