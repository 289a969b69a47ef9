#pragma once

#include <QString>

#include "page_surface.h"

/// Lays plain text out on pages: lines break between words, line feeds and tabs count, and every page has a
/// header and a footer. A word wider than the page is printed whole, beyond the right margin. It knows
/// neither printer nor font, only a surface that measures and prints. Margins are in twips.
class CWordWrap {
 public:
  /// Prints on `surface`, with `date` at the foot of every page.
  CWordWrap(PageSurface& surface, QString date);

  void HeaderText(const QString& text) { m_headerText = text; }
  [[nodiscard]] const QString& HeaderText() const { return m_headerText; }
  void MarginLeft(float margin) { m_marginLeft = static_cast<double>(margin); }
  [[nodiscard]] float MarginLeft() const { return static_cast<float>(m_marginLeft); }
  void MarginTop(float margin) { m_marginTop = static_cast<double>(margin); }
  [[nodiscard]] float MarginTop() const { return static_cast<float>(m_marginTop); }
  void MarginRight(float margin) { m_marginRight = static_cast<double>(margin); }
  [[nodiscard]] float MarginRight() const { return static_cast<float>(m_marginRight); }
  void MarginBottom(float margin) { m_marginBottom = static_cast<double>(margin); }
  /// 71, whatever the margins are.
  [[nodiscard]] static qint16 MarginEnd();
  [[nodiscard]] float MarginBottom() const { return static_cast<float>(m_marginBottom); }

  /// Prints the text as one job and ends the job. Throws PrintError.
  void PrintText(const QString& text);

 private:
  void printHeader();
  void printHeaderOfNewPage();
  void printWord(const QString& word);
  void printSeparator(QChar separator);
  void breakLine();
  void moveToTabStop();
  void printAt(double x, double y, const QString& text);

  PageSurface& m_surface;
  QString m_date;
  QString m_headerText;
  double m_marginLeft = 720;
  double m_marginTop = 1440;
  double m_marginRight = 720;
  double m_marginBottom = 1440;
};
