#pragma once

#include <QColor>
#include <QLabel>

/// A label that opens something: blue, and magenta under the mouse. It can be clicked, twice counting as
/// once, or pressed with Enter or Space when it has the focus. Screen readers are told of a link that can be
/// pressed. What it opens is left to who listens.
class LinkLabel : public QLabel {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent = nullptr);

  /// As the keys do.
  void press();

 signals:
  void pressed();
  void clicked();

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void showColour();

  bool m_isUnderMouse = false;
  bool m_isPressed = false;
};

/// A colour that is written as blue, green and red, in this order.
[[nodiscard]] QColor colourOfBgr(unsigned bgr);

/// `colour` itself on a light background; on a dark one, as much lighter as is needed to read it.
[[nodiscard]] QColor readableOn(const QColor& background, QColor colour);
