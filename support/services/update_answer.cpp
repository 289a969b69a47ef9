#include "update_answer.h"

#include <QByteArray>

namespace {

// No element that says something fits into fewer.
constexpr qsizetype kLongestEmptyStatus = 20;

/// What stands between the first <name> and the </name> after it; null if either is missing.
QString element(const QString& text, const QString& name) {
  const QString opening = u'<' + name + u'>';
  const qsizetype at = text.indexOf(opening);
  if (at < 0) return {};
  const qsizetype start = at + opening.size();
  const qsizetype end = text.indexOf(QStringLiteral("</") + name + u'>', start);
  // An empty element is there, unlike a missing one.
  return end < 0 ? QString() : QStringLiteral("") + text.mid(start, end - start);
}

bool flag(const QString& status, const QString& name) { return element(status, name) == QStringLiteral("1"); }

}  // namespace

UpdateAnswer readUpdateAnswer(const QString& text) {
  UpdateAnswer answer;
  if (!text.contains(QStringLiteral("<status>"))) {
    const QString message = element(text, QStringLiteral("versionmessage"));
    answer.isOldForm = text.contains(QStringLiteral("Version =")) && !message.isNull();
    if (answer.isOldForm) answer.message = message;
    return answer;
  }
  const QString status = element(text, QStringLiteral("status"));
  if (status.size() <= kLongestEmptyStatus) return answer;
  answer.isStatusValid = true;
  answer.isCurrent = flag(status, QStringLiteral("current"));
  answer.isNewVersionOffered = flag(status, QStringLiteral("newversion"));
  answer.updateAddress = element(status, QStringLiteral("updateurl"));
  answer.message = element(status, QStringLiteral("message"));
  return answer;
}

QUrl addressOf(const UpdateQuestion& question) {
  const auto encoded = [](const QString& text) { return QUrl::toPercentEncoding(text); };
  return QUrl::fromEncoded(question.host.toUtf8() + "/version/versioncheck.asp?app=" + encoded(question.app) +
                           "&version=" + encoded(question.version) + "&appclass=" +
                           QByteArray::number(question.appClass) + "&language=" + encoded(question.language));
}
