#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "quiet_surroundings.h"

// From the click on a language in the menu to the painted window: the choice is stored, the library is found,
// checked and loaded, and every text is set anew. Runs without a display: QT_QPA_PLATFORM=offscreen. The
// target is 50 ms at the median.

namespace {

void switchLanguages(benchmark::State& state, SettingsStore& settings) {
  settings.write(QStringLiteral("Site"), QStringLiteral("1"));
  const FilledWindow window(settings);
  const QList<QAction*> languages = window.entriesOf("menuLang");
  qsizetype next = 0;
  for (auto _ : state) {
    next = (next + 1) % languages.size();
    languages[next]->trigger();
    QApplication::processEvents();  // lays out and paints
  }
}

void LanguageSwitch(benchmark::State& state) {
  MemorySettings settings;
  switchLanguages(state, settings);
}
BENCHMARK(LanguageSwitch)->Unit(benchmark::kMillisecond);

/// With the real store, which waits until the choice is on the disk.
void LanguageSwitchStored(benchmark::State& state) {
  const QTemporaryDir folder;
  qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
  UserSettings settings;
  switchLanguages(state, settings);
}
BENCHMARK(LanguageSwitchStored)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
