#pragma once

#include <functional>
#include <memory>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPagedPaintDevice>
#include <QPainter>

#include "page_surface.h"

/// Prints on a printer or into a PDF, in the desktop's font at ten points, up to the edge of the paper.
class PagedSurface : public PageSurface {
 public:
  /// What is to be done with the job once its pages are complete. Throws PrintError.
  using HandOver = std::function<void()>;

  /// Throws PrintError if nothing can be printed on `device`.
  PagedSurface(std::unique_ptr<QPagedPaintDevice> device, HandOver handOver);

  [[nodiscard]] double pageWidth() const override { return m_pageSize.width(); }
  [[nodiscard]] double pageHeight() const override { return m_pageSize.height(); }
  [[nodiscard]] double textWidth(const QString& text) override;
  [[nodiscard]] double textHeight(const QString& text) override;
  void endDoc() override;

 protected:
  void draw(const QString& text) override;
  void startPage() override;

 private:
  /// What was printed piece by piece and stands in one line. Painting it at once is many times faster, and
  /// shapes a script that runs from right to left across its words.
  struct Run {
    QPointF start;
    double end = 0;
    QString text;
  };

  void paintRun();

  HandOver m_handOver;  ///< it may own what the device writes to
  std::unique_ptr<QPagedPaintDevice> m_device;
  QSizeF m_pageSize;
  QFont m_font;
  QFontMetricsF m_metrics;
  QHash<QString, double> m_widths;
  Run m_run;
  QPainter m_painter;  ///< last: it lets go of the device first
};
