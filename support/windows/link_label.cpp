#include "link_label.h"

#include <algorithm>
#include <cmath>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

constexpr unsigned kIdle = 0xFF0000;
constexpr unsigned kUnderMouse = 0xFF00FF;

/// Relative luminance, by the definition of sRGB.
double luminance(const QColor& colour) {
  const auto linear = [](float stored) {
    const auto part = static_cast<double>(stored);
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// From 1, none, to 21, black on white.
double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// What screen readers are told of a link, which is a text to them otherwise.
class AccessibleLink : public QAccessibleWidget {
 public:
  explicit AccessibleLink(LinkLabel* label) : QAccessibleWidget(label, QAccessible::Link), m_label(*label) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const bool isNamed = kind != QAccessible::Name || !m_label.accessibleName().isEmpty();
    return isNamed ? QAccessibleWidget::text(kind) : m_label.text();
  }

  [[nodiscard]] QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    m_label.press();
  }

 private:
  LinkLabel& m_label;
};

QAccessibleInterface* accessibleLink(const QString& /*className*/, QObject* object) {
  auto* label = qobject_cast<LinkLabel*>(object);
  return label != nullptr ? new AccessibleLink(label) : nullptr;
}

}  // namespace

QColor colourOfBgr(unsigned bgr) {
  constexpr unsigned byte = 0xFF;
  return QColor::fromRgb(static_cast<int>(bgr & byte), static_cast<int>((bgr >> 8U) & byte),
                         static_cast<int>((bgr >> 16U) & byte));
}

QColor readableOn(const QColor& background, QColor colour) {
  constexpr double readable = 4.5;  // what texts of this size need
  constexpr int step = 4;
  constexpr int lightest = 255;
  constexpr int middle = 128;
  if (background.lightness() >= middle) return colour;
  int hue = 0;
  int saturation = 0;
  int lightness = 0;
  colour.getHsl(&hue, &saturation, &lightness);
  while (contrast(colour, background) < readable && lightness < lightest) {
    lightness = std::min(lightness + step, lightest);
    colour.setHsl(hue, saturation, lightness);
  }
  return colour;
}

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  [[maybe_unused]] static const bool isTold = (QAccessible::installFactory(accessibleLink), true);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setTextFormat(Qt::PlainText);
  QFont underlined = font();
  underlined.setUnderline(true);  // a link is told by more than its colour
  setFont(underlined);
  showColour();
}

void LinkLabel::press() {
  emit pressed();
  emit clicked();
}

void LinkLabel::showColour() {
  QPalette colours = palette();
  const QColor colour =
      readableOn(colours.color(QPalette::Window), colourOfBgr(m_isUnderMouse ? kUnderMouse : kIdle));
  if (colours.color(QPalette::WindowText) == colour) return;
  colours.setColor(QPalette::WindowText, colour);
  setPalette(colours);
}

void LinkLabel::enterEvent(QEnterEvent* event) {
  m_isUnderMouse = true;
  showColour();
  QLabel::enterEvent(event);
}

void LinkLabel::leaveEvent(QEvent* event) {
  m_isUnderMouse = false;
  showColour();
  QLabel::leaveEvent(event);
}

void LinkLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) showColour();
  QLabel::changeEvent(event);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
  m_isPressed = true;
  emit pressed();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(m_isPressed, false))
    return QLabel::mouseReleaseEvent(event);
  if (rect().contains(event->position().toPoint())) emit clicked();
}

// The first click has opened it; by itself the second would count as another press.
void LinkLabel::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  const bool isPressing =
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (!isPressing) return QLabel::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  press();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QStylePainter painter(this);
  QStyleOptionFocusRect option;
  option.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
