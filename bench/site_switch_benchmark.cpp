#include <benchmark/benchmark.h>

#include <memory>
#include <QAction>
#include <QApplication>
#include <QMap>

#include "frmeBayFees.h"

// From the click on a site in the menu to the painted window, with all three tabs filled. Runs without a
// display: QT_QPA_PLATFORM=offscreen. The target is 16 ms at the median, one frame.

namespace {

struct MemorySettings : SettingsStore {
  QMap<QString, QString> values;
  QString read(const QString& key) override { return values.value(key); }
  void write(const QString& key, const QString& value) override { values[key] = value; }
};
struct NoMessages : MessageBox {
  void showCritical(QWidget* /*parent*/, const QString& title, const QString& text) override {
    qFatal("no message expected: %s, %s", qPrintable(title), qPrintable(text));
  }
};
struct NoPrograms : ProgramStarter {
  bool start(const QString& /*path*/) override { return false; }
};
struct NoStacking : KeepOnTop {
  void request(QWidget& /*window*/, bool /*onTop*/) override {}
};

void fillAllTabs(const frmeBayFees& window) {
  const QList<std::pair<const char*, const char*>> entries{
      {"txtStartingPrice", "100"},   {"txtPrice", "250"},         {"txtDutchItemsOffered", "10"},
      {"txtDutchOpeningPrice", "5"}, {"txtDutchItemsSold", "10"}, {"txtDutchFinalPrice", "7"},
      {"txtPaymentAmount", "1000"}};
  for (const auto& [name, text] : entries) {
    window.findChild<QLineEdit*>(QString::fromLatin1(name))->setText(QString::fromLatin1(text));
  }
  for (QCheckBox* box : window.findChildren<QCheckBox*>()) {
    if (box->isEnabled() && box->objectName() != QStringLiteral("chkDidNotSell")) box->setChecked(true);
  }
}

void SiteSwitch(benchmark::State& state) {
  MemorySettings settings;
  NoMessages messages;
  NoPrograms programs;
  NoStacking stacking;
  frmeBayFees window({.settings = settings,
                      .messages = messages,
                      .programs = programs,
                      .stacking = stacking,
                      .locale = {},
                      .programFolder = {}});
  window.Initialize(std::make_shared<CStartStatus>(settings));
  window.Form_Load();
  fillAllTabs(window);
  QApplication::processEvents();
  const QList<QAction*> sites = window.findChild<QMenu*>(QStringLiteral("mnuOptionsSite"))->actions();
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
