#include "tagged_captions.h"

#include <QAction>
#include <QTabWidget>
#include <QWidget>

#include "tagged_strings.h"

namespace {

bool isTagged(const QString& text) {
  constexpr qsizetype tagLength = 6;
  if (text.size() < tagLength || !text.endsWith(u'>') || text.at(text.size() - tagLength) != u'<')
    return false;
  const QStringView digits = QStringView(text).chopped(1).last(4);
  return std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

void TaggedCaptions::capture(QWidget& form) {
  m_kept.clear();
  captureObject(form);
  for (QObject* object : form.findChildren<QObject*>()) captureObject(*object);
}

void TaggedCaptions::captureObject(QObject& object) {
  // An action makes up a tooltip from its text; only its text is designed.
  const bool isAction = qobject_cast<QAction*>(&object) != nullptr;
  const auto properties =
      isAction ? std::vector<const char*>{"text"}
               : std::vector<const char*>{"windowTitle", "title", "text", "toolTip", "accessibleName"};
  for (const char* property : properties) {
    const QString text = object.property(property).toString();
    if (isTagged(text)) m_kept.push_back({&object, property, text});
  }
  if (const auto* tabs = qobject_cast<QTabWidget*>(&object)) {
    for (int tab = 0; tab < tabs->count(); ++tab) m_kept.push_back({&object, {}, tabs->tabText(tab), tab});
  }
}

void TaggedCaptions::apply() const {
  for (const Kept& kept : m_kept) {
    if (!kept.object) continue;
    const QString text = Localization::GetTagString(kept.tagged);
    if (kept.tab >= 0) {
      qobject_cast<QTabWidget*>(kept.object)->setTabText(kept.tab, text);
    } else {
      kept.object->setProperty(kept.property.constData(), text);
    }
  }
}
