#include <QComboBox>
#include <QMenuBar>
#include <QScreen>
#include <QTabBar>
#include <QtTest>

#include "calculator.h"

/// No text is clipped: every visible control is at least as large as it needs to be, on every tab.
class TextsFitTest : public QObject {
  Q_OBJECT

 private slots:
  void noControlIsSmallerThanItsText_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("site");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<QString>("language");
    for (int tab = 0; tab < 4; ++tab) {
      for (int site : {1, 4}) {
        for (int pointSize : {0, 7, 14, 20}) {
          QTest::addRow("tab %d, site %d, font size %d", tab, site, pointSize)
              << tab << site << pointSize << "English";
        }
        // The longest texts of the other languages are of Germany's site or of all.
        for (const char* language : {"German", "French"}) {
          for (int pointSize : {0, 14})
            QTest::addRow("%s, tab %d, site %d, font size %d", language, tab, site, pointSize)
                << tab << site << pointSize << language;
        }
      }
    }
  }

  void noControlIsSmallerThanItsText() {
    QFETCH(int, tab);
    QFETCH(int, site);
    QFETCH(int, pointSize);
    QFETCH(QString, language);
    const QFont before = QApplication::font();
    if (pointSize > 0) QApplication::setFont(QFont(before.family(), pointSize));
    {
      Calculator calculator(kPointLocale, site);
      open(calculator, language);
      calculator.tick("chkMotors");
      calculator.tick("chkVehicle");
      calculator.click("cmdNotepad");
      calculator.find<QTabWidget>("SSTab1").setCurrentIndex(tab);
      letTheLayoutSettle();
      checkAllVisible(calculator);
    }
    QApplication::setFont(before);
  }

  void everyStateOfATextFits_data() { addLanguages(); }

  void everyStateOfATextFits() {
    QFETCH(QString, language);
    Calculator calculator;
    open(calculator, language);
    for (int site = 1; site <= 4; ++site) {
      calculator.selectSite(site);
      for (int listing = 0; listing < 4; ++listing) {
        calculator.choose("cboSingleItemType", listing / 2);
        calculator.choose("cboIsReserve", listing % 2);
        calculator.choose("cboTypeOfMultiItemListing", listing % 2);
        calculator.find<QCheckBox>("chkRealEstate").setChecked(listing % 2 == 1);
        calculator.click("cmdNotepad");
        for (int tab = 0; tab < 4; ++tab) {
          calculator.find<QTabWidget>("SSTab1").setCurrentIndex(tab);
          letTheLayoutSettle();
          checkAllVisible(calculator);
          if (QTest::currentTestFailed()) return;
        }
      }
    }
  }

  void aSwitchMakesRoomForTheNewTexts_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << "German";
    QTest::newRow("French") << "French";
  }

  void aSwitchMakesRoomForTheNewTexts() {
    QFETCH(QString, language);
    Calculator calculator;
    calculator.load();
    calculator.speak(language);
    for (int tab = 0; tab < 4; ++tab) {
      calculator.find<QTabWidget>("SSTab1").setCurrentIndex(tab);
      letTheLayoutSettle();
      checkAllVisible(calculator);
      if (QTest::currentTestFailed()) return;
    }
  }

  void everyMenuShowsItsEntriesWhole_data() { addLanguages(); }

  void everyMenuShowsItsEntriesWhole() {
    QFETCH(QString, language);
    Calculator calculator;
    open(calculator, language);
    letItSettle();
    auto& bar = calculator.find<QMenuBar>("menubar");
    for (QAction* entry : bar.actions())
      QVERIFY2(bar.rect().contains(bar.actionGeometry(entry)), qPrintable(entry->text()));
    for (QMenu* menu : bar.findChildren<QMenu*>()) {
      menu->popup(QPoint(0, 0));
      letItSettle();
      QVERIFY2(menu->width() >= menu->sizeHint().width(), qPrintable(menu->title()));
      QVERIFY2(menu->sizeHint().width() <= menu->screen()->availableSize().width(),
               qPrintable(menu->title()));
      for (QAction* entry : menu->actions()) {
        const int needed = menu->fontMetrics().size(Qt::TextShowMnemonic, entry->text()).width();
        QVERIFY2(!entry->isVisible() || entry->isSeparator() || menu->actionGeometry(entry).width() >= needed,
                 qPrintable(entry->text()));
      }
      menu->hide();
    }
  }

  void allTabsStandBesideEachOther_data() { addLanguages(); }

  void allTabsStandBesideEachOther() {
    QFETCH(QString, language);
    Calculator calculator;
    open(calculator, language);
    letItSettle();
    const QTabBar& bar = *calculator.find<QTabWidget>("SSTab1").tabBar();
    QVERIFY(bar.width() >= bar.sizeHint().width());
    QVERIFY(calculator.find<QTabWidget>("SSTab1").width() >= bar.width());
    for (int tab = 0; tab < bar.count(); ++tab) QVERIFY(bar.rect().contains(bar.tabRect(tab)));
  }

 private:
  /// Opens a window that speaks a language from the start.
  static void open(Calculator& calculator, const QString& language) {
    calculator.settings.values[QStringLiteral("Language")] = language;
    calculator.settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    calculator.languages.InitLanguage();
    calculator.load();
  }

  // A page tells the tabs, the tabs tell the window: one round for each.
  static void letTheLayoutSettle() {
    constexpr int rounds = 4;
    for (int round = 0; round < rounds; ++round) letItSettle();
  }

  static void addLanguages() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"English", "German", "French"}) QTest::newRow(language) << language;
  }

  static void checkAllVisible(const Calculator& calculator) {
    for (const char* container : {"centralWidget", "menubar"}) {
      for (const QWidget* control : calculator.find<QWidget>(container).findChildren<QWidget*>()) {
        const bool showsText = control->inherits("QLabel") || control->inherits("QAbstractButton") ||
                               control->inherits("QComboBox") || control->inherits("QGroupBox");
        if (!control->isVisible() || !showsText || control->inherits("QToolButton")) continue;
        const QSize needed = control->minimumSizeHint().isValid() && !control->inherits("QComboBox")
                                 ? control->minimumSizeHint()
                                 : control->sizeHint();
        const QString text = QStringLiteral("%1 has %2 x %3 and needs %4 x %5")
                                 .arg(control->objectName())
                                 .arg(control->width())
                                 .arg(control->height())
                                 .arg(needed.width())
                                 .arg(needed.height());
        QVERIFY2(control->width() >= needed.width() && control->height() >= needed.height(),
                 qPrintable(text));
        const QRect inWindow(control->mapTo(control->window(), QPoint(0, 0)), control->size());
        QVERIFY2(control->window()->rect().contains(inWindow), qPrintable(control->objectName()));
      }
    }
  }
};

QTEST_MAIN(TextsFitTest)
#include "texts_fit_test.moc"
