#include "keep_on_top.h"

#include <QWidget>
#include <QWindow>

void WindowFlagKeepOnTop::request(QWidget& window, bool onTop) {
  // QWidget::setWindowFlag would hide the window and lose its place: the widget only notes the flag, and
  // the native window, if there is one already, asks the window manager.
  window.overrideWindowFlags(window.windowFlags().setFlag(Qt::WindowStaysOnTopHint, onTop));
  if (QWindow* native = window.windowHandle()) native->setFlag(Qt::WindowStaysOnTopHint, onTop);
}
