#pragma once

#include <QString>
#include <stdexcept>

/// A print job that went wrong; its text says where.
class PrintError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The pages of one print job, in one font. Texts are printed at a position that moves with them. All lengths
/// are in twips, 1440 to the inch, from the upper left corner of the paper.
class PageSurface {
 public:
  virtual ~PageSurface() = default;

  [[nodiscard]] virtual double pageWidth() const = 0;
  [[nodiscard]] virtual double pageHeight() const = 0;
  [[nodiscard]] virtual double textWidth(const QString& text) = 0;
  [[nodiscard]] virtual double textHeight(const QString& text) = 0;

  [[nodiscard]] double currentX() const { return m_x; }
  [[nodiscard]] double currentY() const { return m_y; }
  void setCurrentX(double x) { m_x = x; }
  void setCurrentY(double y) { m_y = y; }
  /// The number of the current page, from 1.
  [[nodiscard]] int page() const { return m_page; }

  /// Prints a text with its upper left corner at the current position, which moves to its end.
  void print(const QString& text);
  /// Moves to the left edge of the paper, one line down.
  void breakLine();
  /// Moves to the upper left corner of another page. Throws PrintError.
  void newPage();
  /// Ends the job; what was printed is handed over. Throws PrintError. A surface that is destroyed without it
  /// drops the job.
  virtual void endDoc() = 0;

 protected:
  virtual void draw(const QString& text) = 0;
  virtual void startPage() = 0;

 private:
  double m_x = 0;
  double m_y = 0;
  int m_page = 1;
};
