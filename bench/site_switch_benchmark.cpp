#include <benchmark/benchmark.h>

#include "quiet_surroundings.h"

// From the click on a site in the menu to the painted window, with all three tabs filled. Runs without a
// display: QT_QPA_PLATFORM=offscreen. The target is 16 ms at the median, one frame.

namespace {

void SiteSwitch(benchmark::State& state) {
  MemorySettings settings;
  const FilledWindow window(settings);
  const QList<QAction*> sites = window.entriesOf("mnuOptionsSite");
  qsizetype next = 0;
  for (auto _ : state) {
    next = (next + 1) % sites.size();
    sites[next]->trigger();
    QApplication::processEvents();  // lays out and paints
  }
}
BENCHMARK(SiteSwitch)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
