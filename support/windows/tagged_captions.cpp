#include "tagged_captions.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QMenu>
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

/// The entry that opens a menu goes by the menu's name.
QString nameOf(const QObject& object) {
  const auto* action = qobject_cast<const QAction*>(&object);
  return action != nullptr && action->menu() != nullptr ? action->menu()->objectName() : object.objectName();
}

}  // namespace

void TaggedCaptions::capture(QWidget& form, const QStringList& order) {
  m_kept.clear();
  keep(form, "windowTitle", form.windowTitle());
  for (QWidget* widget : form.findChildren<QWidget*>()) captureWidget(*widget);
  // An action makes up a tooltip from its text; only its text is designed.
  for (QAction* action : form.findChildren<QAction*>()) keep(*action, "text", action->text());
  sort(order);
}

void TaggedCaptions::sort(const QStringList& order) {
  QHash<QString, qsizetype> places;
  for (const QString& name : order) places.insert(name, places.size());
  const auto placeOf = [&](const Kept& kept) { return places.value(nameOf(*kept.object), order.size()); };
  std::stable_sort(m_kept.begin(), m_kept.end(),
                   [&](const Kept& a, const Kept& b) { return placeOf(a) < placeOf(b); });
}

void TaggedCaptions::captureWidget(QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) keep(widget, "text", label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
    keep(widget, "text", button->text());
  if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) keep(widget, "title", frame->title());
  keep(widget, "toolTip", widget.toolTip());
  keep(widget, "accessibleName", widget.accessibleName());
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
    for (int tab = 0; tab < tabs->count(); ++tab) keep(widget, {}, tabs->tabText(tab), tab);
  }
}

void TaggedCaptions::keep(QObject& object, const QByteArray& property, const QString& text, int tab) {
  if (isTagged(text)) m_kept.push_back({&object, property, text, tab});
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
