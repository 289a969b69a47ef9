#include <cstdint>
#include <cstdlib>

#include "desktop_opener.h"
#include "update_answer.h"

// Any text as what the version-check server said. What must hold of it: without a status nothing is offered,
// and no text is shown or opened that the server did not send between tags.

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// Whether `value` is null, or stands in `text` right behind an opening tag and right before the next closing
/// one.
bool standsBetweenTags(const QString& text, const QString& name, const QString& value) {
  const QString closing = QStringLiteral("</") + name + u'>';
  return value.isNull() || (!value.contains(closing) && text.contains(u'<' + name + u'>' + value + closing));
}

void requireNothing(const UpdateAnswer& answer) {
  require(!answer.isNewVersionOffered && !answer.isCurrent);
  require(answer.updateAddress.isEmpty());
}

void requireFlag(const QString& text, const QString& name, bool flag) {
  require(!flag || standsBetweenTags(text, name, QStringLiteral("1")));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const void* input = data;
  const QString text = QString::fromUtf8(static_cast<const char*>(input), static_cast<qsizetype>(size));
  const UpdateAnswer answer = readUpdateAnswer(text);
  require(!answer.isStatusValid || text.contains(QStringLiteral("<status>")));
  require(!(answer.isStatusValid && answer.isOldForm));
  require(!answer.isOldForm || text.contains(QStringLiteral("Version =")));
  if (!answer.isStatusValid) requireNothing(answer);
  requireFlag(text, QStringLiteral("newversion"), answer.isNewVersionOffered);
  requireFlag(text, QStringLiteral("current"), answer.isCurrent);
  require(standsBetweenTags(text, QStringLiteral("updateurl"), answer.updateAddress));
  const QString message = answer.isStatusValid ? QStringLiteral("message") : QStringLiteral("versionmessage");
  require(standsBetweenTags(text, message, answer.message));
  require(!isWebAddress(answer.updateAddress) ||
          answer.updateAddress.trimmed().startsWith(u"http", Qt::CaseInsensitive));
  return 0;
}
