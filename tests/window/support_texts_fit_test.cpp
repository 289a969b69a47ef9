#include <functional>
#include <memory>
#include <QAccessible>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

#include "calculator.h"
#include "FCheckVersion.h"
#include "FError.h"
#include "frmAbout.h"
#include "FUpdateVersion.h"
#include "modal_window.h"
#include "start.h"

namespace {

using Opener = std::function<std::unique_ptr<QWidget>(RecordingWorld&)>;

std::unique_ptr<QWidget> errorWindow(RecordingWorld& world) {
  auto window = std::make_unique<FError>(nullptr, world.brand.values(), world.desktop);
  window->setText(QStringLiteral("Overflow"));
  return window;
}

/// As it stands after the mail program could not be opened.
std::unique_ptr<QWidget> errorWindowWithoutMail(RecordingWorld& world) {
  auto window = errorWindow(world);
  window->show();
  letItSettle();
  world.desktop.isWilling = false;
  push(*window, "cmdEmail");
  return window;
}

std::unique_ptr<QWidget> aboutWindow(RecordingWorld& world) {
  return std::make_unique<frmAbout>(nullptr, AboutSurroundings{.brand = world.brand,
                                                               .desktop = world.desktop,
                                                               .messages = world.messages,
                                                               .errors = world.errors,
                                                               .programs = world.starter,
                                                               .systemInformation = world.systemInformation});
}

std::unique_ptr<QWidget> prompt(RecordingWorld& world) {
  return std::make_unique<FCheckVersion>(world.brand, Start::newStartStatus(world.surroundings()));
}

std::unique_ptr<QWidget> offer(RecordingWorld& /*world*/) {
  return std::make_unique<FUpdateVersion>(
      nullptr, Localization::GetTagString(QStringLiteral("New Version Available.<0661>")),
      QStringLiteral("Version 2 is here."), true);
}

struct WindowRow {
  const char* name;
  Opener open;
};

const WindowRow kWindows[] = {{"error", errorWindow},
                              {"error without mail", errorWindowWithoutMail},
                              {"About", aboutWindow},
                              {"prompt", prompt},
                              {"offer", offer}};

const QByteArray kLongBrand =
    "<CompanyName>Harbour Hill Auction Supplies and Packing Materials of Lower Lincolnshire</CompanyName>"
    "<CompanyURL>https://www.harbour-hill-auction-supplies.example/of/lower/lincolnshire/start.html</"
    "CompanyURL>"
    "<ErrorReportEmail>error-reports@harbour-hill-auction-supplies.example</ErrorReportEmail>";

template <typename Control>
QList<Control*> visibleOf(const QWidget& window) {
  QList<Control*> controls = window.findChildren<Control*>();
  controls.removeIf([&window](const Control* control) { return !control->isVisibleTo(&window); });
  return controls;
}

QString nameAndSize(const QWidget& control, QSize needed) {
  return QStringLiteral("%1 has %2 x %3 and needs %4 x %5")
      .arg(control.objectName())
      .arg(control.width())
      .arg(control.height())
      .arg(needed.width())
      .arg(needed.height());
}

QSize neededBy(const QLabel& label) {
  return label.wordWrap() ? QSize(0, label.heightForWidth(label.width())) : label.sizeHint();
}

void checkSize(const QWidget& control, QSize needed) {
  QVERIFY2(control.width() >= needed.width() && control.height() >= needed.height(),
           qPrintable(nameAndSize(control, needed)));
  const QRect inWindow(control.mapTo(control.window(), QPoint(0, 0)), control.size());
  QVERIFY2(control.window()->rect().contains(inWindow), qPrintable(control.objectName()));
}

/// The longest word of a wrapped text must fit into a line; wrapping does not break it.
void checkWords(const QLabel& label) {
  if (!label.wordWrap()) return;
  for (const QString& word : label.text().split(u' '))
    QVERIFY2(label.fontMetrics().horizontalAdvance(word) <= label.contentsRect().width(), qPrintable(word));
}

QString accessibleName(QWidget& control) {
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&control);
  return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

void letTheLayoutSettle() {
  constexpr int rounds = 4;
  for (int round = 0; round < rounds; ++round) letItSettle();
}

}  // namespace

/// The windows below the calculator: their texts fit, and can be reached by keys and by screen readers.
class SupportTextsFitTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Localization::setLanguageObject(nullptr); }

  void noTextIsClipped_data() {
    QTest::addColumn<int>("window");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<QByteArray>("brand");
    // At twice the scale the test's screen is half as large: no desktop has such fonts on it.
    const QList<int> pointSizes = qApp->devicePixelRatio() > 1 ? QList<int>{0, 7} : QList<int>{0, 7, 14};
    for (const char* language : {"English", "German", "French"}) {
      for (int window = 0; window < static_cast<int>(std::size(kWindows)); ++window) {
        for (const int pointSize : pointSizes)
          QTest::addRow("%s, %s, font size %d", kWindows[window].name, language, pointSize)
              << window << language << pointSize << QByteArray();
        QTest::addRow("%s, %s, a long brand", kWindows[window].name, language)
            << window << language << 0 << kLongBrand;
      }
    }
  }

  void noTextIsClipped() {
    QFETCH(int, window);
    QFETCH(QString, language);
    QFETCH(int, pointSize);
    QFETCH(QByteArray, brand);
    const QFont before = QApplication::font();
    if (pointSize > 0) QApplication::setFont(QFont(before.family(), pointSize));
    {
      RecordingWorld world;
      speak(world, language);
      if (!brand.isEmpty()) rebrand(world, brand);
      const auto opened = kWindows[window].open(world);
      opened->show();
      letTheLayoutSettle();
      checkAll(*opened);
    }
    QApplication::setFont(before);
  }

  void noTagIsVisible_data() { addWindows(); }

  void noTagIsVisible() {
    const auto [world, window] = openRow();
    static const QRegularExpression tag(QStringLiteral("<[0-9]{4}>"));
    QVERIFY2(!window->windowTitle().contains(tag), qPrintable(window->windowTitle()));
    QVERIFY(!window->windowTitle().isEmpty());
    for (const QWidget* control : window->findChildren<QWidget*>()) {
      for (const char* property : {"text", "title", "toolTip", "accessibleName", "plainText"}) {
        const QString text = control->property(property).toString();
        QVERIFY2(!text.contains(tag), qPrintable(control->objectName() + u' ' + text));
      }
    }
  }

  void everyTextIsThere_data() { addWindows(); }

  void everyTextIsThere() {
    const auto [world, window] = openRow();
    for (const QLabel* label : visibleOf<QLabel>(*window)) {
      const bool isPicture = label->objectName() == QStringLiteral("picIcon");
      QVERIFY2(isPicture || !label->text().isEmpty(), qPrintable(label->objectName()));
    }
    for (const QPushButton* button : visibleOf<QPushButton>(*window))
      QVERIFY2(!button->text().isEmpty(), qPrintable(button->objectName()));
  }

  void whatTakesFocusHasAName_data() { addWindows(); }

  void whatTakesFocusHasAName() {
    const auto [world, window] = openRow();
    int count = 0;
    for (QWidget* control : visibleOf<QWidget>(*window)) {
      if (!(control->focusPolicy() & Qt::TabFocus)) continue;
      ++count;
      QVERIFY2(!accessibleName(*control).trimmed().isEmpty(), qPrintable(control->objectName()));
    }
    QVERIFY(count >= 2);
  }

  void noLetterIsUsedTwice_data() { addWindows(); }

  void noLetterIsUsedTwice() {
    const auto [world, window] = openRow();
    QStringList used;
    for (const QPushButton* button : visibleOf<QPushButton>(*window))
      used << QKeySequence::mnemonic(button->text()).toString();
    for (const QLabel* label : visibleOf<QLabel>(*window)) {
      // A company may be called "Smith & Sons": a label without a buddy shows its text as it stands.
      if (label->buddy() != nullptr) used << QKeySequence::mnemonic(label->text()).toString();
    }
    used.removeAll(QString());
    const qsizetype count = used.size();
    QCOMPARE(used.removeDuplicates(), 0);
    QCOMPARE(used.size(), count);
  }

  void theTabKeyReachesEverything_data() { addWindows(); }

  void theTabKeyReachesEverything() {
    const auto [world, window] = openRow();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    QSet<const QWidget*> reached;
    for (int pressed = 0; pressed < 20; ++pressed) {
      QTest::keyClick(window->focusWidget() != nullptr ? window->focusWidget() : window.get(), Qt::Key_Tab);
      reached << window->focusWidget();
    }
    for (const QWidget* control : visibleOf<QWidget>(*window)) {
      if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled())
        QVERIFY2(reached.contains(control), qPrintable(control->objectName()));
    }
  }

 private:
  static void addWindows() {
    QTest::addColumn<int>("window");
    QTest::addColumn<QString>("language");
    for (const char* language : {"English", "German", "French"}) {
      for (int window = 0; window < static_cast<int>(std::size(kWindows)); ++window)
        QTest::addRow("%s, %s", kWindows[window].name, language) << window << language;
    }
  }

  /// The window of the current row, shown; the world must outlive it.
  static std::pair<std::unique_ptr<RecordingWorld>, std::unique_ptr<QWidget>> openRow() {
    auto world = std::make_unique<RecordingWorld>();
    QFETCH(int, window);
    QFETCH(QString, language);
    speak(*world, language);
    auto opened = kWindows[window].open(*world);
    opened->show();
    letTheLayoutSettle();
    return {std::move(world), std::move(opened)};
  }

  static void checkAll(const QWidget& window) {
    for (const QLabel* label : visibleOf<QLabel>(window)) {
      checkSize(*label, neededBy(*label));
      checkWords(*label);
      if (QTest::currentTestFailed()) return;
    }
    for (const QPushButton* button : visibleOf<QPushButton>(window)) {
      checkSize(*button, button->sizeHint());
      if (QTest::currentTestFailed()) return;
    }
  }
};

QTEST_MAIN(SupportTextsFitTest)
#include "support_texts_fit_test.moc"
