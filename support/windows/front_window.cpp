#include "front_window.h"

#include <QApplication>
#include <QWidget>

QWidget* frontWindow(QWidget* parent) {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (parent != nullptr) return parent;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}
