#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "calculator.h"

#include "start.h"

namespace {

// A seller of this test writes one price and one rate, so that every value in the store tells whose it is.
constexpr int kRounds = 500;
constexpr int kKills = 200;

/// A window with the real store that saves and switches sites, round after round.
class Seller {
 public:
  explicit Seller(QString figure) : m_figure(std::move(figure)) {
    m_world.languages.InitLanguage();
    const Surroundings surroundings = m_world.surroundingsWith(m_settings, m_world.printer);
    m_window = std::make_unique<frmeBayFees>(surroundings);
    m_window->Initialize(Start::newStartStatus(surroundings));
    m_window->Form_Load();
  }

  void work(int round) {
    constexpr std::array sites{"mnuOptionsSiteUK", "mnuOptionsSiteCanada", "mnuOptionsSiteGermany",
                               "mnuOptionsSiteEbay"};
    find<QLineEdit>("txtStartingPrice").setText(m_figure);
    find<QCheckBox>("chkBold").toggle();
    find<QAction>("mnuOptionsSaveSettings").trigger();
    find<QAction>(sites[static_cast<std::size_t>(round) % sites.size()]).trigger();
    find<QLineEdit>("txtConversion").setText(m_figure);
  }

  /// Whether nothing was complained about.
  [[nodiscard]] bool isContent() {
    letItSettle();
    return m_world.isSilent();
  }

 private:
  template <typename T>
  T& find(const char* name) {
    return *m_window->findChild<T*>(QString::fromLatin1(name));
  }

  QString m_figure;
  UserSettings m_settings;
  RecordingWorld m_world;
  std::unique_ptr<frmeBayFees> m_window;
};

int sell(const QString& figure, int rounds) {
  Seller seller(figure);
  QTextStream(stdout) << "open" << Qt::endl;
  for (int round = 0; rounds == 0 || round < rounds; ++round) seller.work(round);
  return seller.isContent() ? 0 : 1;
}

/// Starts this program as a seller with settings in `home`. 0 rounds go on until it is killed.
void startSeller(QProcess& process, const QString& home, const QString& figure, int rounds) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--seller"), figure, QString::number(rounds)});
}

/// The values of the store as they stand in the file, not as a cache remembers them.
QMap<QString, QString> storedIn(const QString& home) {
  QFile file(home + QStringLiteral("/Ostrevane/Tessaloom.conf"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QMap<QString, QString> values;
  if (file.readLine() != "[General]\n") return {};
  while (!file.atEnd()) {
    const QString line = QString::fromUtf8(file.readLine());
    const qsizetype equals = line.indexOf(u'=');
    if (equals <= 0 || !line.endsWith(u'\n')) return {};
    values[line.first(equals)] = line.mid(equals + 1).chopped(1);
  }
  return values;
}

bool isOneOf(const QMap<QString, QString>& values, const char* key, const QStringList& written) {
  return written.contains(values.value(QString::fromLatin1(key)));
}

/// Each value is one that a seller wrote, or a default of the first run.
void checkStore(const QString& home, const QStringList& figures) {
  const QMap<QString, QString> values = storedIn(home);
  QVERIFY2(values.size() > 40, qPrintable(QStringLiteral("%1 values can be read").arg(values.size())));
  QVERIFY(isOneOf(values, "Site", {"1", "2", "3", "4"}));
  QVERIFY(isOneOf(values, "RegularBold", {"0", "1"}));
  QVERIFY(isOneOf(values, "RegularNumeric", QStringList{""} + figures));
  QVERIFY(isOneOf(values, "PayPalUKRate", QStringList{"0.5305"} + figures));
  QVERIFY(isOneOf(values, "PayPalCanadaRate", QStringList{"1.317"} + figures));
  QVERIFY(isOneOf(values, "PayPalGermanyRate", QStringList{"0.7854"} + figures));
  for (auto value = values.begin(); value != values.end(); ++value) {
    QVERIFY2(value.value().size() < 8, qPrintable(value.key() + u'=' + value.value()));
  }
}

}  // namespace

/// The store that several windows share, each a process of its own: it stays whole, whoever writes and
/// whoever is killed while writing.
class SharedStoreTest : public QObject {
  Q_OBJECT

 private slots:
  void twoWindowsSaveAndSwitchSitesAtOnce() {
    const QTemporaryDir home;
    QProcess first;
    QProcess second;
    startSeller(first, home.path(), QStringLiteral("11.25"), kRounds);
    startSeller(second, home.path(), QStringLiteral("22.50"), kRounds);
    QVERIFY(first.waitForReadyRead() && second.waitForReadyRead());
    while (first.state() == QProcess::Running || second.state() == QProcess::Running) {
      // Whoever looks while both write sees a whole store, too.
      checkStore(home.path(), {QStringLiteral("11.25"), QStringLiteral("22.50")});
      if (QTest::currentTestFailed()) return;
      QCoreApplication::processEvents();
    }
    QCOMPARE(first.exitCode(), 0);
    QCOMPARE(second.exitCode(), 0);
    checkStore(home.path(), {QStringLiteral("11.25"), QStringLiteral("22.50")});
  }

  void aWindowKilledWhileSavingLeavesAStoreThatCanBeRead() {
    const QTemporaryDir home;
    QRandomGenerator random(20'031);
    for (int kill = 0; kill < kKills; ++kill) {
      QProcess seller;
      const QString figure = kill % 2 == 0 ? QStringLiteral("11.25") : QStringLiteral("22.50");
      startSeller(seller, home.path(), figure, 0);
      QVERIFY(seller.waitForReadyRead());
      QThread::usleep(static_cast<unsigned long>(random.bounded(8'000)));
      seller.kill();
      QVERIFY(seller.waitForFinished());
      QCOMPARE(seller.exitStatus(), QProcess::CrashExit);
      checkStore(home.path(), {QStringLiteral("11.25"), QStringLiteral("22.50")});
      if (QTest::currentTestFailed()) return;
    }
  }
};

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.value(1) == QStringLiteral("--seller")) return sell(arguments[2], arguments[3].toInt());
  SharedStoreTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "shared_store_test.moc"
