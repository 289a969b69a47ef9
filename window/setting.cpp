#include "setting.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace {

void chooseStored(QComboBox& list, const QString& text) {
  bool isNumber = false;
  const int index = text.toInt(&isNumber);
  if (isNumber && index >= 0 && index < list.count()) list.setCurrentIndex(index);
}

}  // namespace

SettingAccess tick(QAbstractButton* button) {
  return {[button] { return storedFlag(button->isChecked()); },
          [button](const QString& text) {
            if (isStoredFlagSet(text)) button->setChecked(true);
          }};
}

SettingAccess choice(QComboBox* list) {
  return {[list] { return QString::number(list->currentIndex()); },
          [list](const QString& text) { chooseStored(*list, text); }};
}

SettingAccess photoCount(QComboBox* list) {
  return {[list] { return QString::number(list->currentIndex()); },
          [list](const QString& text) { chooseStored(*list, text.isEmpty() ? QStringLiteral("0") : text); }};
}

SettingAccess entry(QLineEdit* box) {
  return {[box] { return box->text(); }, [box](const QString& text) { box->setText(text); }};
}

SettingAccess noControl() {
  return {[] { return std::nullopt; }, [](const QString&) {}};
}

QString storedFlag(bool isSet) { return isSet ? QStringLiteral("1") : QStringLiteral("0"); }

bool isStoredFlagSet(const QString& text) { return text == u'1'; }

int leadingNumber(const QString& text) {
  const QString trimmed = text.trimmed();
  const qsizetype sign = trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0;
  qsizetype end = sign;
  while (end < trimmed.size() && trimmed[end] >= u'0' && trimmed[end] <= u'9') ++end;
  return QStringView(trimmed).first(end).toInt();
}
