#include "word_wrap.h"

#include <cmath>

#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

constexpr QChar kBlank = u' ';

/// By code value: a no-break space is part of a word.
bool isOfAWord(QChar character) { return character > kBlank; }

}  // namespace

CWordWrap::CWordWrap(PageSurface& surface, QString date)
    : m_surface(surface),
      m_date(std::move(date)),
      m_headerText(GetTagString(QStringLiteral("Tessaloom Notes<0668>"))) {}

qint16 CWordWrap::MarginEnd() {
  // Nothing asks for it, and what its figures once measured is not known; its value is.
  return static_cast<qint16>(std::lround(18197.3 / 256.3));
}

void CWordWrap::PrintText(const QString& text) {
  printHeader();
  qsizetype at = 0;
  while (at < text.size()) {
    const qsizetype start = at;
    while (at < text.size() && isOfAWord(text[at])) ++at;
    printWord(text.sliced(start, at - start));
    for (; at < text.size() && !isOfAWord(text[at]); ++at) printSeparator(text[at]);
  }
  m_surface.endDoc();
}

void CWordWrap::printHeaderOfNewPage() {
  m_surface.newPage();
  printHeader();
}

void CWordWrap::printHeader() {
  const double width = m_surface.pageWidth();
  const double foot = m_surface.pageHeight() - m_marginBottom / 2.0;
  printAt((width - m_surface.textWidth(m_headerText)) / 2.0,
          (m_marginTop - m_surface.textHeight(m_headerText)) / 2.0, m_headerText);
  printAt(m_marginLeft, foot, m_date);
  const QString label = GetTagString(QStringLiteral("Page <0667>")) + QString::number(m_surface.page());
  printAt(width - (m_surface.textWidth(label) + m_marginRight), foot, label);
  m_surface.setCurrentX(m_marginLeft);
  m_surface.setCurrentY(m_marginTop);
}

void CWordWrap::printAt(double x, double y, const QString& text) {
  m_surface.setCurrentX(x);
  m_surface.setCurrentY(y);
  m_surface.print(text);
}

// The test runs for every word, also for an empty one and at the start of a line: before a word that fits on
// no line an empty line is left.
void CWordWrap::printWord(const QString& word) {
  const double end = m_surface.currentX() + m_surface.textWidth(word);
  if (end > m_surface.pageWidth() - m_marginRight) breakLine();
  m_surface.print(word);
}

void CWordWrap::printSeparator(QChar separator) {
  if (separator == kBlank) m_surface.print(QString(kBlank));
  if (separator == u'\n') breakLine();
  if (separator == u'\t') moveToTabStop();
}

// The bottom is looked at only here, so the last line of a page may reach into the margin.
void CWordWrap::breakLine() {
  m_surface.breakLine();
  if (m_surface.currentY() > m_surface.pageHeight() - m_marginBottom) {
    printHeaderOfNewPage();
  } else {
    m_surface.setCurrentX(m_marginLeft);
  }
}

// Stops are every ten digits' widths, counted from half an inch, whatever the left margin is.
void CWordWrap::moveToTabStop() {
  constexpr double origin = 720;
  constexpr double columnsToAStop = 10;
  const double column = m_surface.textWidth(QStringLiteral("0"));
  if (column <= 0) return;
  const double current = std::nearbyint((m_surface.currentX() - origin) / column);
  const double stop = current + columnsToAStop - std::fmod(current, columnsToAStop);
  m_surface.setCurrentX(column * stop + origin);
}
