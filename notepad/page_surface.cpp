#include "page_surface.h"

void PageSurface::print(const QString& text) {
  if (text.isEmpty()) return;
  draw(text);
  m_x += textWidth(text);
}

void PageSurface::breakLine() {
  m_x = 0;
  m_y += textHeight(QStringLiteral(" "));
}

void PageSurface::newPage() {
  startPage();
  ++m_page;
  m_x = 0;
  m_y = 0;
}
