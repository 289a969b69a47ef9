#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QPdfWriter>

#include "counting_surface.h"
#include "paged_surface.h"
#include "quiet_surroundings.h"
#include "word_wrap.h"

// The notepad as it grows: adding the 10,000th entry should cost at most 1.5 times the 10th. Laying out 1,000
// pages should take less than a second. Runs without a display: QT_QPA_PLATFORM=offscreen.

namespace {

/// The last of so many entries, with the notepad open and painted each time.
void AddEntry(benchmark::State& state) {
  MemorySettings settings;
  const FilledWindow window(settings);
  window.push("cmdNotepad");
  for (int entry = 1; entry < state.range(0); ++entry) window.push("cmdAddRegularToNotes");
  QApplication::processEvents();
  for (auto _ : state) {
    window.push("cmdAddRegularToNotes");
    QApplication::processEvents();
  }
}
BENCHMARK(AddEntry)->Arg(10)->Arg(10'000)->Iterations(300)->Unit(benchmark::kMicrosecond);

/// Lines as the entries have them, of words that come again and of figures that do not.
QString linesFor(int pages) {
  constexpr int linesToAPage = 60;
  QString text;
  for (int line = 0; line < pages * linesToAPage; ++line) {
    text += QStringLiteral("Listing Fee: $%1    Extra Features Fees: $%2    Final Value Fee: $%3\r\n")
                .arg(line % 499)
                .arg(line % 97)
                .arg(line);
  }
  return text;
}

constexpr int kPages = 1000;

void LayOutPages(benchmark::State& state) {
  const QString text = linesFor(kPages);
  for (auto _ : state) {
    CountingSurface surface(11906, 16838, 100, 240);
    CWordWrap(surface, QStringLiteral("1/2/03")).PrintText(text);
    benchmark::DoNotOptimize(surface.page());
  }
}
BENCHMARK(LayOutPages)->Unit(benchmark::kMillisecond);

/// A PDF of which nothing is kept.
struct Nowhere : QIODevice {
  qint64 readData(char* /*data*/, qint64 /*most*/) override { return 0; }
  qint64 writeData(const char* /*data*/, qint64 size) override { return size; }
};

/// Laid out in a real font, but not painted.
struct UnpaintedSurface : PagedSurface {
  using PagedSurface::PagedSurface;
  void draw(const QString& /*text*/) override {}
};

template <typename Surface>
void PrintPages(benchmark::State& state) {
  const QString text = linesFor(kPages);
  for (auto _ : state) {
    Nowhere nowhere;
    nowhere.open(QIODevice::WriteOnly);
    Surface surface(std::make_unique<QPdfWriter>(&nowhere), [] {});
    CWordWrap(surface, QStringLiteral("1/2/03")).PrintText(text);
    state.counters["pages"] = surface.page();
  }
}
BENCHMARK(PrintPages<UnpaintedSurface>)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintPages<PagedSurface>)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
