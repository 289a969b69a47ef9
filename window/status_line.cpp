#include "status_line.h"

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusLine::say(const QString& text) {
  m_said = text;
  setAccessibleName(text);
  showWhatFits();
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  showWhatFits();
}

void StatusLine::showWhatFits() {
  const QString shown = fontMetrics().elidedText(m_said, Qt::ElideRight, width());
  setText(shown);
  setToolTip(shown == m_said ? QString() : m_said);
}
