#pragma once

#include <QLabel>

/// One line that tells what has just happened. It takes the room that is left: what does not fit ends in an
/// ellipsis, and stands whole in the tooltip. What is worth telling is the window's business.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// Until the next call; "" takes back what was said.
  void say(const QString& text);
  [[nodiscard]] const QString& said() const { return m_said; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showWhatFits();

  QString m_said;
};
