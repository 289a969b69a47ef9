#include <QComboBox>
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
    for (int tab = 0; tab < 4; ++tab) {
      for (int site : {1, 4}) {
        for (int pointSize : {0, 7, 14, 20}) {
          QTest::addRow("tab %d, site %d, font size %d", tab, site, pointSize) << tab << site << pointSize;
        }
      }
    }
  }

  void noControlIsSmallerThanItsText() {
    QFETCH(int, tab);
    QFETCH(int, site);
    QFETCH(int, pointSize);
    const QFont before = QApplication::font();
    if (pointSize > 0) QApplication::setFont(QFont(before.family(), pointSize));
    {
      Calculator calculator(kPointLocale, site);
      calculator.load();
      calculator.tick("chkMotors");
      calculator.tick("chkVehicle");
      calculator.click("cmdNotepad");
      calculator.find<QTabWidget>("SSTab1").setCurrentIndex(tab);
      letItSettle();
      checkAllVisible(calculator);
    }
    QApplication::setFont(before);
  }

 private:
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
