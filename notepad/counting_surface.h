#pragma once

#include "page_surface.h"

/// Prints nothing and counts the pages: how much paper a text takes, or how long its layout lasts. Every
/// character is as wide as every other one.
class CountingSurface : public PageSurface {
 public:
  CountingSurface(double pageWidth, double pageHeight, double characterWidth, double lineHeight)
      : m_pageWidth(pageWidth),
        m_pageHeight(pageHeight),
        m_characterWidth(characterWidth),
        m_lineHeight(lineHeight) {}

  [[nodiscard]] double pageWidth() const override { return m_pageWidth; }
  [[nodiscard]] double pageHeight() const override { return m_pageHeight; }
  [[nodiscard]] double textWidth(const QString& text) override {
    return m_characterWidth * static_cast<double>(text.size());
  }
  [[nodiscard]] double textHeight(const QString& /*text*/) override { return m_lineHeight; }
  void endDoc() override {}

 protected:
  void draw(const QString& /*text*/) override {}
  void startPage() override {}

 private:
  double m_pageWidth;
  double m_pageHeight;
  double m_characterWidth;
  double m_lineHeight;
};
