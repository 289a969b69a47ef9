#include "paged_surface.h"

#include <QGuiApplication>
#include <QPageLayout>

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;
constexpr int kPointSize = 10;

// Words come again and again, and measuring one takes longer than anything else. The bounds keep a text of
// nothing but different or endless words from being kept as a whole.
constexpr qsizetype kLongestKept = 40;
constexpr qsizetype kMostKept = 10'000;

/// One pixel of the painter is one twip.
QFont printedFont() {
  QFont font(QGuiApplication::font().family());
  font.setPixelSize(static_cast<int>(kPointSize * kTwipsPerPoint));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

PagedSurface::PagedSurface(std::unique_ptr<QPagedPaintDevice> device, HandOver handOver)
    : m_handOver(std::move(handOver)), m_device(std::move(device)), m_font(printedFont()), m_metrics(m_font) {
  m_device->setPageMargins(QMarginsF());
  m_pageSize = m_device->pageLayout().fullRect(QPageLayout::Point).size() * kTwipsPerPoint;
  if (!m_painter.begin(m_device.get())) throw PrintError("Nothing can be printed there.");
  m_painter.scale(m_device->logicalDpiX() / kTwipsPerInch, m_device->logicalDpiY() / kTwipsPerInch);
  m_painter.setFont(m_font);
}

double PagedSurface::textWidth(const QString& text) {
  if (text.size() > kLongestKept) return m_metrics.horizontalAdvance(text);
  if (const auto known = m_widths.constFind(text); known != m_widths.cend()) return *known;
  if (m_widths.size() >= kMostKept) m_widths.clear();
  return *m_widths.insert(text, m_metrics.horizontalAdvance(text));
}

double PagedSurface::textHeight(const QString& /*text*/) { return m_metrics.lineSpacing(); }

void PagedSurface::draw(const QString& text) {
  const QPointF start(currentX(), currentY());
  const bool goesOn = start.x() == m_run.end && start.y() == m_run.start.y();
  if (!goesOn) {
    paintRun();
    m_run.start = start;
  }
  m_run.text += text;
  m_run.end = start.x() + textWidth(text);
}

void PagedSurface::paintRun() {
  if (!m_run.text.isEmpty()) m_painter.drawText(m_run.start + QPointF(0, m_metrics.ascent()), m_run.text);
  m_run.text.clear();
}

void PagedSurface::startPage() {
  paintRun();
  if (!m_device->newPage()) throw PrintError("The printer takes no further page.");
}

void PagedSurface::endDoc() {
  paintRun();
  if (!m_painter.end()) throw PrintError("The print job could not be ended.");
  m_handOver();
}
