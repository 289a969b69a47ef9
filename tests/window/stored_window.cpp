#include "stored_window.h"

QStringList writesAmong(const QStringList& calls) { return calls.filter(QStringLiteral("write ")); }

bool isTicked(const Calculator& calculator, const char* button) {
  return calculator.find<QAbstractButton>(button).isChecked();
}

int chosen(const Calculator& calculator, const char* list) {
  return calculator.find<QComboBox>(list).currentIndex();
}

void open(Calculator& calculator, const Values& stored) {
  calculator.settings.values = stored;
  if (!stored.contains(QStringLiteral("Site"))) calculator.settings.values[QStringLiteral("Site")] = "1";
  calculator.load();
  letItSettle();
}

void setControl(Calculator& calculator, const char* name, const QString& value) {
  auto& object = calculator.find<QObject>(name);
  if (auto* list = qobject_cast<QComboBox*>(&object)) {
    list->setCurrentIndex(value.toInt());
  } else if (auto* box = qobject_cast<QLineEdit*>(&object)) {
    box->setText(value);
  } else if (auto* button = qobject_cast<QPushButton*>(&object)) {
    button->click();
  } else if (auto* choice = qobject_cast<QAbstractButton*>(&object)) {
    choice->setChecked(value == u'1');
  } else {
    calculator.trigger(name);
  }
}

QString controlValue(const Calculator& calculator, const char* name) {
  const auto& object = calculator.find<QObject>(name);
  if (const auto* list = qobject_cast<const QComboBox*>(&object))
    return QString::number(list->currentIndex());
  if (const auto* box = qobject_cast<const QLineEdit*>(&object)) return box->text();
  if (qobject_cast<const QPushButton*>(&object) != nullptr) return object.property("text").toString();
  return object.property("checked").toBool() ? QStringLiteral("1") : QStringLiteral("0");
}
