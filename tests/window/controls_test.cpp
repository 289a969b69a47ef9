#include <QAccessible>
#include <QFile>
#include <QMenuBar>
#include <QtTest>

#include "calculator.h"
#include "folders.h"

namespace {

struct Row {
  QString name, kind, container, caption, toolTip;
  int order = 0;
};

QList<Row> readRows() {
  QFile file(kSourceFolder + QStringLiteral("/tests/window/controls.tsv"));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("controls.tsv cannot be read");
  QList<Row> rows;
  file.readLine();  // the headings
  while (!file.atEnd()) {
    QString line = QString::fromUtf8(file.readLine());
    if (line.endsWith(u'\n')) line.chop(1);
    const QStringList cells = line.split(u'\t');
    if (cells.size() != 6) throw std::runtime_error("a row of controls.tsv has not six cells");
    rows.append({cells[0], cells[1], cells[2], cells[3], cells[4], cells[5].toInt()});
  }
  return rows;
}

QString kindOf(const QObject& object) {
  const auto is = [&object](const char* className) { return object.inherits(className); };
  if (const auto* action = qobject_cast<const QAction*>(&object)) {
    return action->isSeparator() ? QStringLiteral("separator") : QStringLiteral("menu item");
  }
  if (is("QMenu")) return QStringLiteral("menu");
  if (is("QLineEdit") || is("QPlainTextEdit")) return QStringLiteral("text box");
  if (is("QCheckBox")) return QStringLiteral("check box");
  if (is("QRadioButton")) return QStringLiteral("option button");
  if (is("QPushButton")) return QStringLiteral("button");
  if (is("QComboBox")) return QStringLiteral("list");
  if (is("QLabel")) return QStringLiteral("label");
  if (is("QGroupBox")) return QStringLiteral("frame");
  if (const auto* frame = qobject_cast<const QFrame*>(&object)) {
    const bool isLine = frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine;
    return isLine ? QStringLiteral("line") : QStringLiteral("frame");
  }
  return QStringLiteral("tab");
}

QString captionOf(const frmeBayFees& window, const QObject& object) {
  if (qobject_cast<const QLineEdit*>(&object) != nullptr) return {};
  if (kindOf(object) == QStringLiteral("tab")) {
    const auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    return tabs->tabText(tabs->indexOf(window.findChild<QWidget*>(object.objectName())));
  }
  const QString title = object.property("title").toString();
  return title.isEmpty() ? object.property("text").toString() : title;
}

/// The names of what a menu lists, or of the listed controls that stand in a container, in their order.
QStringList contentsOf(const frmeBayFees& window, const QString& container, const QSet<QString>& listed) {
  QStringList names;
  const auto* bar = window.findChild<QMenuBar*>(container);
  const auto* menu = window.findChild<QMenu*>(container);
  if (bar != nullptr || menu != nullptr) {
    for (const QAction* action : bar != nullptr ? bar->actions() : menu->actions()) {
      names << (action->menu() != nullptr ? action->menu()->objectName() : action->objectName());
    }
    return names;
  }
  // The tabs are listed under their tab control, which is not itself in the list.
  QSet<QString> boundaries = listed;
  boundaries << QStringLiteral("SSTab1");
  const auto* parent = window.findChild<QWidget*>(container);
  for (const QWidget* child : parent->findChildren<QWidget*>()) {
    const QWidget* above = child->parentWidget();
    while (above != parent && !boundaries.contains(above->objectName())) above = above->parentWidget();
    if (above == parent && listed.contains(child->objectName())) names << child->objectName();
  }
  return names;
}

}  // namespace

/// The window's controls against the published list, and what must hold for all of them.
class ControlsTest : public QObject {
  Q_OBJECT

 private slots:
  void everyControlIsAsListed_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("toolTip");
    for (const Row& row : readRows())
      QTest::newRow(qPrintable(row.name)) << row.kind << row.caption << row.toolTip;
  }

  void everyControlIsAsListed() {
    QFETCH(QString, kind);
    QFETCH(QString, caption);
    QFETCH(QString, toolTip);
    const QObject& object = m_design.find<QObject>(QTest::currentDataTag());
    QCOMPARE(kindOf(object), kind);
    QCOMPARE(captionOf(m_design.window(), object), caption);
    if (!object.inherits("QAction")) QCOMPARE(object.property("toolTip").toString(), toolTip);
  }

  void everyContainerHoldsItsControlsInOrder() {
    QMap<QString, QStringList> expected;
    QSet<QString> listed;
    for (const Row& row : readRows()) {
      if (row.container != QStringLiteral("SSTab1")) expected[row.container] << row.name;
      QCOMPARE(row.order,
               row.container == QStringLiteral("SSTab1") ? row.order : expected[row.container].size() - 1);
      listed << row.name;
    }
    QVERIFY(expected.size() > 15);
    for (auto row = expected.cbegin(); row != expected.cend(); ++row) {
      QCOMPARE(contentsOf(m_design.window(), row.key(), listed), row.value());
    }
  }

  void theExtrasOfMultipleItemsAreSeenInOrder() {
    const QStringList rightColumn{"chkDutchGreatGift",       "chkDutchBold",    "chkDutchHighlight",
                                  "chkDutchGalleryFeatured", "chkDutchGallery", "chkDutchHomePageFeatured",
                                  "chkDutchFeaturedPlus"};
    m_loaded.find<QTabWidget>("SSTab1").setCurrentIndex(1);
    letItSettle();
    const auto placeOf = [this](const QString& name) {
      const auto& box = m_loaded.find<QWidget>(qPrintable(name));
      return box.mapTo(&m_loaded.window(), QPoint(0, 0));
    };
    const QWidget* before = &m_loaded.find<QWidget>("chkDutchTenDayAuction");
    QVERIFY(placeOf(rightColumn[0]).x() > placeOf(QStringLiteral("chkDutchTenDayAuction")).x());
    for (const QString& name : rightColumn) {
      if (name != rightColumn[0])
        QVERIFY2(placeOf(name).y() > placeOf(before->objectName()).y(), qPrintable(name));
      const auto& box = m_loaded.find<QWidget>(qPrintable(name));
      QCOMPARE(before->nextInFocusChain()->objectName(), name);
      before = &box;
    }
    m_loaded.find<QTabWidget>("SSTab1").setCurrentIndex(0);
  }

  void theFourTabsStandInOrder() {
    const auto& tabs = m_design.find<QTabWidget>("SSTab1");
    QCOMPARE(tabs.count(), 4);
    const QStringList captions{tabs.tabText(0), tabs.tabText(1), tabs.tabText(2), tabs.tabText(3)};
    QCOMPARE(captions,
             (QStringList{QStringLiteral("&Single Item<0240>"), QStringLiteral("&Mutiple Items<0241>"),
                          QStringLiteral("&Payment Services<0242>"), QStringLiteral("&Shipping <0243>")}));
    QCOMPARE(m_design.window().windowTitle(),
             QStringLiteral("Tessaloom - Calculate Your eBay Auction Fees<0231>"));
  }

  void thereIsNoThirteenthCurrencyLabel() {
    for (int number = 1; number <= 16; ++number) {
      const auto* label = m_design.window().findChild<QLabel*>(QStringLiteral("lblCurrency%1").arg(number));
      QCOMPARE(label != nullptr, number != 13);
    }
  }

  void theLanguageMenuHasElevenHiddenPlaces() {
    const QList<QAction*> places = m_design.find<QMenu>("menuLang").actions();
    QCOMPARE(places.size(), 11);
    for (int index = 0; index < places.size(); ++index) {
      QCOMPARE(places[index]->objectName(), QStringLiteral("mnuLang_%1").arg(index));
      QVERIFY(!places[index]->isVisible());
      QVERIFY(places[index]->text().isEmpty());
    }
  }

  void noTagIsVisibleOnceLoaded() {
    const QRegularExpression tag(QStringLiteral("<[0-9]{4}>"));
    for (const QObject* object : m_loaded.window().findChildren<QObject*>()) {
      for (const char* property : {"text", "title", "toolTip", "accessibleName", "windowTitle"}) {
        const QString text = object->property(property).toString();
        QVERIFY2(!text.contains(tag), qPrintable(object->objectName() + QStringLiteral(": ") + text));
      }
      if (const auto* list = qobject_cast<const QComboBox*>(object)) {
        for (int item = 0; item < list->count(); ++item) QVERIFY(!list->itemText(item).contains(tag));
      }
    }
    const auto& tabs = m_loaded.find<QTabWidget>("SSTab1");
    QCOMPARE(tabs.tabText(3), QStringLiteral("&Shipping "));
    QVERIFY(!m_loaded.window().windowTitle().contains(tag));
  }

  void untaggedTextsStayAsTheyStand() {
    QCOMPARE(m_loaded.shown("chkSubTitleSingleItem"), QStringLiteral("Subtitle"));
    QCOMPARE(m_loaded.shown("chkDutchSubtitle"), QStringLiteral("Subtitle"));
    QCOMPARE(m_loaded.shown("lblPostal_3"), QStringLiteral("Craters and Freighters"));
    for (const char* name : {"chkSubTitleSingleItem", "chkDutchSubtitle"}) {
      QCOMPARE(m_loaded.find<QCheckBox>(name).toolTip(),
               QStringLiteral("Additional text beneath the main title."));
    }
  }

  void theListsHoldTheirItems() {
    const auto items = [this](const char* name) {
      QStringList texts;
      const auto& list = m_loaded.find<QComboBox>(name);
      for (int item = 0; item < list.count(); ++item) texts << list.itemText(item);
      return texts.join(u'|');
    };
    QCOMPARE(items("cboSingleItemType"), QStringLiteral("Auction|Fixed Price"));
    QCOMPARE(items("cboIsReserve"), QStringLiteral("No Reserve|Reserve"));
    QCOMPARE(items("cboRealEstateType"),
             QStringLiteral("3-10 day auction|30-day auction|30-day ad|90-day ad"));
    QCOMPARE(items("cboTypeOfMultiItemListing"), QStringLiteral("Dutch Auction|Fixed-Price Listing"));
    QCOMPARE(items("cboExtraPhotos"), QStringLiteral("1|2|3|4|5|pack"));
    QCOMPARE(items("cboExtraPicturesDutch"), QStringLiteral("1|2|3|4|5|pack"));
    for (const QComboBox* list : m_loaded.window().findChildren<QComboBox*>())
      QCOMPARE(list->currentIndex(), 0);
  }

  void resultBoxesCannotBeTypedInto() {
    for (const char* name :
         {"txtInsertionFee", "txtExtras", "txtFVF", "txtFees", "txtTotalDutchAuctionSales",
          "txtExtraFeaturesDutch", "txtDutchCostPerItem", "txtDutchFees", "txtPayPalFee"}) {
      QVERIFY2(m_loaded.find<QLineEdit>(name).isReadOnly(), name);
    }
  }

  void theWindowOpensInItsInitialState() {
    for (const char* name : {"optOtherVehicle", "optOtherRealEstate", "optPayPalStandard"}) {
      QVERIFY2(m_loaded.find<QRadioButton>(name).isChecked(), name);
    }
    for (const char* name : {"chkVehicle", "chkGalleryFeatured", "chkDutchGalleryFeatured"}) {
      QVERIFY2(!m_loaded.find<QCheckBox>(name).isEnabled(), name);
    }
    for (const char* name : {"linHorizontalLineToGalFeatured", "linVerticalLineToGalFeatured",
                             "linHorizontalLineToVehicle", "linVerticalLineToVehicle",
                             "linHorizontalLineToDutchGalFeatured", "linVerticalLineToDutchGalFeatured"}) {
      QVERIFY2(!m_loaded.find<QFrame>(name).isEnabled(), name);
    }
    QCOMPARE(m_loaded.find<QTabWidget>("SSTab1").currentIndex(), 0);
    QCOMPARE(m_loaded.window().focusWidget()->objectName(), QStringLiteral("txtStartingPrice"));
  }

  void fourPairsOfOptionsAreIndependent() {
    for (const char* chosen :
         {"optMotorcycle", "optTimeshare", "optPayPalMerchant", "optPayPalNonCreditCard"}) {
      m_loaded.find<QRadioButton>(chosen).setChecked(true);
    }
    for (const char* chosen :
         {"optMotorcycle", "optTimeshare", "optPayPalMerchant", "optPayPalNonCreditCard"}) {
      QVERIFY2(m_loaded.find<QRadioButton>(chosen).isChecked(), chosen);
    }
    for (const char* left :
         {"optOtherVehicle", "optOtherRealEstate", "optPayPalStandard", "optPayPalCreditCard"}) {
      QVERIFY2(!m_loaded.find<QRadioButton>(left).isChecked(), left);
    }
  }

  void everyLabelOfABoxHasItAsItsBuddy() {
    int pairs = 0;
    for (const QLabel* label : m_loaded.window().findChildren<QLabel*>()) {
      const QString box = QString(label->objectName()).replace(0, 3, QStringLiteral("txt"));
      const bool namesABox = m_loaded.window().findChild<QLineEdit*>(box) != nullptr;
      const bool hasMnemonic = label->text().contains(u'&');
      QVERIFY2((!namesABox && !hasMnemonic) || label->buddy() != nullptr, qPrintable(label->objectName()));
      if (label->buddy() != nullptr) ++pairs;
    }
    QCOMPARE(pairs, 6 + 7 + 2 + 3);  // single, multiple, items offered, payment
  }

  void everyControlThatTakesTheFocusHasAnAccessibleName() {
    for (QWidget* control : m_loaded.window().findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || control->objectName().isEmpty()) continue;
      if (control->objectName().startsWith(u"qt_") || control->inherits("QTabWidget")) continue;
      const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
      QVERIFY2(accessible != nullptr && !accessible->text(QAccessible::Name).isEmpty(),
               qPrintable(control->objectName()));
    }
  }

  // "&Contents" and "Sour&ces" share a letter; so do the tabs "&Single Item" and "&Shipping ". Both are kept.
  void noOtherMnemonicIsUsedTwiceInAMenu() {
    QStringList clashes;
    for (const QMenu* menu : m_loaded.window().findChildren<QMenu*>()) {
      QSet<QKeySequence> used;
      for (const QAction* action : menu->actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        if (!mnemonic.isEmpty() && used.contains(mnemonic)) clashes << action->text();
        used << mnemonic;
      }
    }
    QCOMPARE(clashes, QStringList{QStringLiteral("Sour&ces")});
  }

  void shortcutsStandWhereTheMenusLeaveThemFree() {
    const QList<std::pair<const char*, const char*>> expected{{"mnuFileNewWindow", "Ctrl+N"},
                                                              {"mnuFilePrint", "Ctrl+P"},
                                                              {"mnuFileExit", "Ctrl+Q"},
                                                              {"mnuOptionsSaveSettings", "Ctrl+S"},
                                                              {"mnuHelpContents", "F1"}};
    for (const auto& [name, keys] : expected) {
      QCOMPARE(m_loaded.find<QAction>(name).shortcut(), QKeySequence(QString::fromLatin1(keys)));
    }
  }

  void tabbingReachesEveryControlOnceAndTheNotepadLast() {
    QStringList reached;
    const QWidget* start = &m_loaded.find<QWidget>("txtStartingPrice");
    for (const QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
      if (next->focusPolicy() != Qt::NoFocus && !next->objectName().isEmpty()) reached << next->objectName();
    }
    const auto place = [&reached](const char* name) { return reached.indexOf(QString::fromLatin1(name)); };
    QCOMPARE(place("txtPrice"), 0);
    QVERIFY(place("txtPrice") < place("cmdCalculate"));
    QVERIFY(place("cmdCalculate") < place("txtDutchOpeningPrice"));
    QVERIFY(place("txtDutchOpeningPrice") < place("txtPaymentAmount"));
    QVERIFY(place("txtPaymentAmount") < place("lblPostal_0"));
    QVERIFY(place("lblPostal_0") < place("lblPacking"));
    QVERIFY(place("lblPacking") < place("cmdNotepad"));
    QVERIFY(place("cmdNotepad") < place("txtNotes"));
  }

 public:
  ControlsTest() { m_loaded.load(); }

 private:
  Calculator m_design;  ///< as designed, before it is loaded
  Calculator m_loaded;
};

QTEST_MAIN(ControlsTest)
#include "controls_test.moc"
