#pragma once

#include <QList>

#include "counting_surface.h"

/// What was printed where: the number of the page, the upper left corner in twips, the text.
struct PrintedText {
  int page;
  double x;
  double y;
  QString text;

  bool operator==(const PrintedText&) const = default;
};

/// What became of a print job, whoever still has the surface.
struct PrintRecord {
  QList<PrintedText> texts;
  int pages = 1;
  bool isEnded = false;
};

/// A4 paper, every character 100 wide and every line 240 high. It records into `record`, which must outlive
/// it, and refuses to take a page beyond `lastPage`.
class RecordingSurface : public CountingSurface {
 public:
  static constexpr double kWidth = 11906;
  static constexpr double kHeight = 16838;
  static constexpr double kCharacter = 100;
  static constexpr double kLine = 240;

  explicit RecordingSurface(PrintRecord& record, int lastPage = 100'000)
      : CountingSurface(kWidth, kHeight, kCharacter, kLine), m_record(record), m_lastPage(lastPage) {}

  void endDoc() override { m_record.isEnded = true; }

 protected:
  void draw(const QString& text) override { m_record.texts.append({page(), currentX(), currentY(), text}); }
  void startPage() override {
    if (page() >= m_lastPage) throw PrintError("The printer takes no further page.");
    ++m_record.pages;
  }

 private:
  PrintRecord& m_record;
  int m_lastPage;
};
