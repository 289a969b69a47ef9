#include <array>
#include <cmath>
#include <QAccessible>
#include <QMenuBar>
#include <QtTest>

#include "calculator.h"
#include "frmAbout.h"
#include "link_label.h"
#include "modal_window.h"
#include "start.h"

namespace {

constexpr int kShippingTab = 3;
constexpr int kPaymentTab = 2;
constexpr int kGermany = 4;

struct LinkRow {
  const char* control;
  const char* english;
  const char* german = nullptr;  ///< the same if there is none
};

// clang-format off
constexpr LinkRow kMenuRows[] = {
    {"mnuHelpSourcesEbay",                "https://pages.ebay.com/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayMotors",          "https://pages.ebay.com/ebaymotors/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayCanada",          "https://pages.ebay.ca/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayUK",              "https://pages.ebay.co.uk/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayGermany",         "https://pages.ebay.de/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayPictures",        "https://pages.ebay.com/help/basics/pictureservices.html"},
    {"mnuHelpSourcesEbayUKPictures",      "https://pages.ebay.co.uk/help/basics/pictureservices.html"},
    {"mnuHelpSourcesEbayCanadaPictures",  "https://pages.ebay.ca/help/basics/pictureservices.html"},
    {"mnuHelpSourcesEbayGermanyPictures", "https://pages.ebay.de/help/basics/pictureservices.html"},
    {"mnuHelpSourcesPayPalUS",            "https://www.paypal.com/cgi-bin/webscr?cmd=p/gen/fees-outside"},
    {"mnuHelpPayPalInternational",        "https://www.paypal.com/cgi-bin/webscr?cmd=p/gen/fees-intl-outside"},
    {"mnuHelpBillpointUS",                "https://pages.ebay.com/help/sellerguide/bp-fees.html"},
    {"mnuHelpBillpointUK",                "https://pages.ebay.co.uk/help/sellerguide/bp-fees.html"},
};

constexpr LinkRow kLabelRows[] = {
    {"lblPostal_0",        "https://postcalc.usps.com/"},
    {"lblPostal_1",        "https://wwwapps.ups.com/QCCWebApp/request?iso_language=en&iso_country=US"},
    {"lblPostal_2",        "https://www.fedex.com/ratefinder/home?cc=US&language=en"},
    {"lblPostal_3",        "https://www.cratersandfreighters.com/equote_main.htm"},
    {"lblPostal_4",        "https://www.dhl-usa.com/CompareRate/CompareRateInfo.asp"},
    {"lblPostal_5",        "https://www.dhl-usa.com/CompareRate/CompareRateInfo.asp"},
    {"lblPostal_6",        "https://www.canadapost.ca/personal/rates/default-e.asp"},
    {"lblPostal_7",        "https://www.dhl.co.uk/transit/calc.cgi"},
    {"lblPostal_8",        "https://www.parcelforce.com/Parcelforce/Internet/CustServGuide/calculator.asp"},
    {"lblPostal_9",        "https://www.royalmail.com/portal/rm/content1?catId=400023&mediaId=9300094"},
    {"lblPostal_10",       "https://www.deutschepost.de/direktmarketing/service/dm_portokalkulator/dispatch.jsp"},
    {"lblPostal_11",       "https://wwwapps.ups.com/QCCWebApp/request?iso_language=de&iso_country=DE"},
    {"lblPostal_12",       "https://pages.ebay.de/versandservice/"},
    {"lblPacking",         "https://www.theupsstore.com/pack-ship"},
    {"lblCheckRates",      "https://www.xe.com/ucc/", "https://www.umrechner-euro.de/"},
    {"lblTreuhandservice", "https://www.iloxx.de/ebay/spreischeck.asp"},
};

constexpr const char* kLanguages[] = {"English", "German", "French"};
// clang-format on

QString addressOf(const LinkRow& row, const QString& language) {
  const bool isGerman = language == QStringLiteral("German") && row.german != nullptr;
  return QString::fromLatin1(isGerman ? row.german : row.english);
}

template <typename Rows>
void addLinks(const Rows& rows) {
  QTest::addColumn<QString>("language");
  QTest::addColumn<QString>("control");
  QTest::addColumn<QString>("address");
  for (const char* language : kLanguages) {
    for (const LinkRow& row : rows)
      QTest::addRow("%s in %s", row.control, language) << language << row.control << addressOf(row, language);
  }
}

/// On the German site, which has every link, with the tab of a label in front.
void open(Calculator& calculator, const QString& language) {
  calculator.load();
  calculator.selectSite(kGermany);
  calculator.speak(language);
}

LinkLabel& labelInFront(Calculator& calculator, const QString& name) {
  const bool isShipping = name.startsWith(QStringLiteral("lblP"));
  calculator.find<QTabWidget>("SSTab1").setCurrentIndex(isShipping ? kShippingTab : kPaymentTab);
  letItSettle();
  auto& label = calculator.find<LinkLabel>(qPrintable(name));
  if (!label.isVisible()) throw std::runtime_error("not to be seen: " + name.toStdString());
  return label;
}

QPoint placeOf(const QWidget& control) { return control.mapTo(control.window(), control.rect().center()); }

/// Moves the mouse as the desktop would tell it to the window.
void moveTo(const QWidget& control, QPoint place) {
  QTest::mouseMove(control.window()->windowHandle(), place);
  letItSettle();
}

void moveOver(const QWidget& control) { moveTo(control, placeOf(control)); }

void clickOn(const QWidget& control) {
  QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, {}, placeOf(control));
  letItSettle();
}

void doubleClickOn(const QWidget& control) {
  QTest::mouseDClick(control.window()->windowHandle(), Qt::LeftButton, {}, placeOf(control));
  letItSettle();
}

QColor colourOf(const QWidget& label) { return label.palette().color(label.foregroundRole()); }

const QColor kBlue(0, 0, 255);
const QColor kMagenta(255, 0, 255);

double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.red() / 255.0) + 0.7152 * linear(colour.green() / 255.0) +
         0.0722 * linear(colour.blue() / 255.0);
}

double contrastOf(const QWidget& label) {
  const double text = luminance(colourOf(label));
  const double ground = luminance(label.palette().color(label.backgroundRole()));
  return (std::max(text, ground) + 0.05) / (std::min(text, ground) + 0.05);
}

/// While it lives, the desktop has these colours.
class DesktopColours {
 public:
  explicit DesktopColours(const QColor& ground) : m_before(QApplication::palette()) {
    QPalette colours = m_before;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
      colours.setColor(role, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      colours.setColor(role, Qt::white);
    QApplication::setPalette(colours);
  }
  ~DesktopColours() { QApplication::setPalette(m_before); }
  DesktopColours(const DesktopColours&) = delete;
  DesktopColours& operator=(const DesktopColours&) = delete;

 private:
  QPalette m_before;
};

struct FailingStarter : ProgramStarter {
  bool start(const QString& /*path*/) override { return false; }
};

/// A calculator window whose program lies in a folder of the test's own.
struct InstalledCalculator : RecordingWorld {
  InstalledCalculator(const QString& folder, const QString& language) {
    programFolder = folder;
    settings.values[QStringLiteral("Site")] = QStringLiteral("1");
    speak(*this, language);
    window = std::make_unique<frmeBayFees>(surroundings());
    window->Initialize(Start::newStartStatus(surroundings()));
    window->Form_Load();
  }

  void trigger(const char* item) const {
    window->findChild<QAction*>(QString::fromLatin1(item))->trigger();
    letItSettle();
  }

  std::unique_ptr<frmeBayFees> window;
};

void putFile(const QString& path) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
}

}  // namespace

/// The menu Help, the labels that open a page, and the About window.
class LinksWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Localization::setLanguageObject(nullptr); }

  void aMenuEntryOpensItsPage_data() { addLinks(kMenuRows); }

  void aMenuEntryOpensItsPage() {
    QFETCH(QString, language);
    QFETCH(QString, control);
    QFETCH(QString, address);
    Calculator calculator;
    open(calculator, language);
    auto& menu = calculator.find<QMenu>("mnuHelpSources");
    auto& entry = calculator.find<QAction>(qPrintable(control));
    QVERIFY(menu.actions().contains(&entry));
    QVERIFY(entry.isEnabled());
    const QStringList once{QStringLiteral("web ") + address};
    menu.popup(QPoint(0, 0));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry).center());
    letItSettle();
    QCOMPARE(calculator.desktop.opened, once);
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(&entry);
    QTest::keyClick(&menu, Qt::Key_Return);
    letItSettle();
    QCOMPARE(calculator.desktop.opened, once + once);
    QVERIFY(calculator.isSilent());
  }

  void aLabelOpensItsPage_data() { addLinks(kLabelRows); }

  void aLabelOpensItsPage() {
    QFETCH(QString, language);
    QFETCH(QString, control);
    QFETCH(QString, address);
    Calculator calculator;
    open(calculator, language);
    LinkLabel& label = labelInFront(calculator, control);
    QVERIFY(label.focusPolicy() & Qt::TabFocus);
    const QString once = QStringLiteral("web ") + address;
    clickOn(label);
    QCOMPARE(calculator.desktop.opened, QStringList{once});
    label.setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
      calculator.desktop.opened.clear();
      QTest::keyClick(label.window()->focusWidget(), key);
      letItSettle();
      QCOMPARE(calculator.desktop.opened, QStringList{once});
    }
    QVERIFY(calculator.isSilent());
  }

  void aScreenReaderIsToldOfALinkThatCanBePressed_data() { addLinks(kLabelRows); }

  void aScreenReaderIsToldOfALinkThatCanBePressed() {
    QFETCH(QString, language);
    QFETCH(QString, control);
    QFETCH(QString, address);
    Calculator calculator;
    open(calculator, language);
    LinkLabel& label = labelInFront(calculator, control);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(told->role(), QAccessible::Link);
    QVERIFY(told->state().focusable);
    QCOMPARE(told->text(QAccessible::Name),
             label.accessibleName().isEmpty() ? label.text() : label.accessibleName());
    QVERIFY(!told->text(QAccessible::Name).isEmpty());
    QAccessibleActionInterface* actions = told->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(calculator.desktop.opened, QStringList{"web " + address});
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(label.hasFocus());
    QCOMPARE(calculator.desktop.opened.size(), 1);
  }

  void everyLinkLabelIsInTheTable() {
    Calculator calculator;
    QStringList inWindow;
    for (const LinkLabel* label : calculator.window().findChildren<LinkLabel*>())
      inWindow << label->objectName();
    QStringList inTable;
    for (const LinkRow& row : kLabelRows) inTable << QString::fromLatin1(row.control);
    inWindow.sort();
    inTable.sort();
    QCOMPARE(inWindow, inTable);
  }

  void everySourceIsInTheTable() {
    Calculator calculator;
    QStringList inMenu;
    for (const QAction* entry : calculator.find<QMenu>("mnuHelpSources").actions()) {
      if (!entry->isSeparator()) inMenu << entry->objectName();
    }
    QStringList inTable;
    for (const LinkRow& row : kMenuRows) inTable << QString::fromLatin1(row.control);
    QCOMPARE(inMenu, inTable);
  }

  void everyEntryOfTheHelpMenuIsEnabled() {
    Calculator calculator;
    calculator.load();
    for (const QAction* entry : calculator.find<QMenu>("mnuHelp").actions())
      QVERIFY2(entry->isSeparator() || entry->isEnabled(), qPrintable(entry->objectName()));
  }

  void aDoubleClickOpensAPageOnce() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& label = labelInFront(calculator, QStringLiteral("lblPostal_0"));
    doubleClickOn(label);
    QCOMPARE(calculator.desktop.opened, QStringList{"web https://postcalc.usps.com/"});
    clickOn(label);
    QCOMPARE(calculator.desktop.opened.size(), 2);
  }

  void aDoubleClickOpensTheHomepageOnce() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const auto met = inNextModal([&](QWidget& about) {
      QVERIFY(QTest::qWaitForWindowExposed(&about));
      doubleClickOn(controlOf<LinkLabel>(about, "lblEmail"));
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*met, 1);
    QCOMPARE(calculator.desktop.opened, QStringList{"web https://www.ostrevane.example/"});
  }

  void anotherButtonOfTheMouseOpensNothing() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& label = labelInFront(calculator, QStringLiteral("lblPostal_0"));
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
      QTest::mouseClick(label.window()->windowHandle(), button, {}, placeOf(label));
    letItSettle();
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void aPressThatIsLetGoElsewhereOpensNothing() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& label = labelInFront(calculator, QStringLiteral("lblPostal_0"));
    QWindow* window = label.window()->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, placeOf(label));
    QTest::mouseRelease(window, Qt::LeftButton, {}, placeOf(calculator.find<QWidget>("lblPostal_1")));
    letItSettle();
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void aLinkTurnsMagentaUnderTheMouseAndBlueAgain_data() {
    QTest::addColumn<QString>("control");
    for (const LinkRow& row : kLabelRows) QTest::newRow(row.control) << row.control;
  }

  void aLinkTurnsMagentaUnderTheMouseAndBlueAgain() {
    QFETCH(QString, control);
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& label = labelInFront(calculator, control);
    auto& tabs = calculator.find<QTabWidget>("SSTab1");
    const QPoint onTabs = tabs.mapTo(tabs.window(), QPoint(tabs.width() - 8, tabs.height() - 8));
    moveTo(label, onTabs);
    QCOMPARE(colourOf(label), kBlue);
    moveOver(label);
    QCOMPARE(colourOf(label), kMagenta);
    moveTo(label, onTabs);
    QCOMPARE(colourOf(label), kBlue);
  }

  void theConverterTurnsBlueOverItsFrame() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& label = labelInFront(calculator, QStringLiteral("lblCheckRates"));
    const auto& frame = calculator.find<QWidget>("frmPaymentAmount");
    moveOver(label);
    QCOMPARE(colourOf(label), kMagenta);
    moveTo(label, frame.mapTo(frame.window(), QPoint(frame.width() - 4, frame.height() - 4)));
    QCOMPARE(colourOf(label), kBlue);
  }

  void ofTwoLinksOneIsMagenta() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const LinkLabel& one = labelInFront(calculator, QStringLiteral("lblPostal_0"));
    const LinkLabel& other = labelInFront(calculator, QStringLiteral("lblPostal_1"));
    moveOver(one);
    moveOver(other);
    QCOMPARE(colourOf(one), kBlue);
    QCOMPARE(colourOf(other), kMagenta);
  }

  void onADarkDesktopLinksCanBeRead_data() {
    QTest::addColumn<QColor>("ground");
    QTest::newRow("black") << QColor(0, 0, 0);
    QTest::newRow("nearly black") << QColor(30, 30, 30);
    QTest::newRow("dark grey") << QColor(53, 53, 53);
    QTest::newRow("grey") << QColor(80, 80, 80);
    QTest::newRow("dark blue") << QColor(0, 0, 64);
    QTest::newRow("dark violet") << QColor(48, 10, 36);
    QTest::newRow("dark green") << QColor(0, 48, 24);
  }

  void onADarkDesktopLinksCanBeRead() {
    QFETCH(QColor, ground);
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    for (const LinkRow& row : kLabelRows) {
      const LinkLabel& label = labelInFront(calculator, QString::fromLatin1(row.control));
      moveTo(label, QPoint(1, 1));
      {
        const DesktopColours dark(ground);
        letItSettle();
        QCOMPARE(label.palette().color(label.backgroundRole()), ground);
        const QColor idle = colourOf(label);
        QVERIFY2(contrastOf(label) >= 4.5, qPrintable(idle.name()));
        QVERIFY2(idle.blue() >= idle.red(), qPrintable(idle.name()));
        moveOver(label);
        QVERIFY2(contrastOf(label) >= 4.5, qPrintable(colourOf(label).name()));
        QVERIFY(colourOf(label) != idle);
        moveTo(label, QPoint(1, 1));
      }
      letItSettle();
      QCOMPARE(colourOf(label), kBlue);  // the desktop may turn light again by day
    }
  }

  void theHomepageAndTheMailsGoToTheMaker_data() { addOwnLinks(); }

  void theHomepageAndTheMailsGoToTheMaker() {
    QFETCH(QString, item);
    QFETCH(QString, makers);
    QFETCH(QString, resellers);
    for (const char* language : kLanguages) {
      Calculator calculator;
      open(calculator, QString::fromLatin1(language));
      calculator.trigger(qPrintable(item));
      QCOMPARE(calculator.desktop.opened, QStringList{makers});
      rebrand(calculator, kReseller);
      calculator.trigger(qPrintable(item));
      QCOMPARE(calculator.desktop.opened.last(), resellers);
      letItSettle();
      QVERIFY(calculator.isSilent());
    }
  }

  void theHelpFileIsThatOfTheLanguage_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("English") << "English"
                             << "tessaloom_help.htm";
    QTest::newRow("German") << "German"
                            << "marrowfeld_hilfe.htm";
    QTest::newRow("French, which has none of its own") << "French"
                                                       << "tessaloom_help.htm";
  }

  void theHelpFileIsThatOfTheLanguage() {
    QFETCH(QString, language);
    QFETCH(QString, file);
    const QTemporaryDir folder;
    for (const char* name : {"tessaloom_help.htm", "marrowfeld_hilfe.htm"})
      putFile(folder.filePath(QString::fromLatin1(name)));
    const InstalledCalculator calculator(folder.path(), language);
    calculator.trigger("mnuHelpContents");
    QCOMPARE(calculator.desktop.opened, QStringList{QStringLiteral("file ") + folder.filePath(file)});
    QVERIFY(calculator.isSilent());
  }

  void aMissingHelpFileIsNamed_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::newRow("English") << "English"
                             << "marrowfeld_hilfe.htm"
                             << "Error"
                             << "The help file was not found: "
                             << "tessaloom_help.htm";
    QTest::newRow("German") << "German"
                            << "tessaloom_help.htm"
                            << "Fehler"
                            << "Die Hilfedatei wurde nicht gefunden: "
                            << "marrowfeld_hilfe.htm";
    QTest::newRow("French") << "French"
                            << "marrowfeld_hilfe.htm"
                            << "Erreur"
                            << "Le fichier d’aide est introuvable\u00A0: "
                            << "tessaloom_help.htm";
  }

  void aMissingHelpFileIsNamed() {
    QFETCH(QString, language);
    QFETCH(QString, other);
    QFETCH(QString, title);
    QFETCH(QString, text);
    QFETCH(QString, file);
    const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/für Käufer XXXXXX"));
    putFile(folder.filePath(other));
    const InstalledCalculator calculator(folder.path(), language);
    calculator.trigger("mnuHelpContents");
    QVERIFY(calculator.messages.shown.isEmpty());
    QCOMPARE(calculator.errors.shown, QStringList{text + folder.filePath(file)});
    QCOMPARE(calculator.errors.titles, QStringList{title});
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void aFolderInPlaceOfTheHelpFileIsNone() {
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("tessaloom_help.htm")));
    const InstalledCalculator calculator(folder.path(), QStringLiteral("English"));
    calculator.trigger("mnuHelpContents");
    QVERIFY(calculator.hasOneError());
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void aDesktopThatOpensNothingIsOneErrorWithTheAddress_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("address");
    for (const LinkRow& row : kMenuRows) QTest::newRow(row.control) << row.control << row.english;
    for (const LinkRow& row : kLabelRows) QTest::newRow(row.control) << row.control << row.english;
    QTest::newRow("mnuHelpHomepage") << "mnuHelpHomepage"
                                     << "https://www.ostrevane.example/";
    QTest::newRow("mnuHelpFeedback") << "mnuHelpFeedback"
                                     << "support@ostrevane.example";
    QTest::newRow("mnuHelpSubscribe") << "mnuHelpSubscribe"
                                      << "subscribe@ostrevane.example";
  }

  void aDesktopThatOpensNothingIsOneErrorWithTheAddress() {
    QFETCH(QString, control);
    QFETCH(QString, address);
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    calculator.desktop.isWilling = false;
    if (control.startsWith(QStringLiteral("lbl"))) {
      clickOn(labelInFront(calculator, control));
    } else {
      calculator.trigger(qPrintable(control));
    }
    letItSettle();
    QCOMPARE(calculator.desktop.opened.size(), 1);
    QVERIFY(calculator.hasOneError());
    const QString text = calculator.errors.shown[0];
    QVERIFY2(text.startsWith(QStringLiteral("This address could not be opened: ")), qPrintable(text));
    QVERIFY2(text.contains(address), qPrintable(text));
  }

  void aHelpFileThatNothingOpensIsOneErrorWithItsName() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("marrowfeld_hilfe.htm"));
    putFile(file);
    InstalledCalculator calculator(folder.path(), QStringLiteral("German"));
    calculator.desktop.isWilling = false;
    calculator.trigger("mnuHelpContents");
    QVERIFY(calculator.messages.shown.isEmpty());
    QCOMPARE(calculator.errors.shown,
             QStringList{QStringLiteral("Diese Adresse konnte nicht geöffnet werden: ") + file});
  }

  void theUpdateItemAsksOnce_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : kLanguages) QTest::newRow(language) << language;
  }

  void theUpdateItemAsksOnce() {
    QFETCH(QString, language);
    Calculator calculator;
    open(calculator, language);
    QVERIFY(calculator.web.asked.isEmpty());
    calculator.trigger("mnuHelpUpdate");
    const QString asked =
        QStringLiteral(
            "https://update.ostrevane.example/version/versioncheck.asp?app=Tessaloom&version=1.0.0"
            "&appclass=1&language=") +
        language;
    QCOMPARE(calculator.web.asked, QList<QUrl>{QUrl(asked)});
    calculator.trigger("mnuHelpUpdate");
    QCOMPARE(calculator.web.asked.size(), 1);  // one is under way
    calculator.web.answer(std::nullopt);
    letItSettle();
    QVERIFY(calculator.isSilent());  // failures show nothing
    calculator.trigger("mnuHelpUpdate");
    QCOMPARE(calculator.web.asked.size(), 2);
    QVERIFY(calculator.desktop.opened.isEmpty());
  }

  void theUpdateItemAsksInTheLanguageOfTheMoment() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    calculator.trigger("mnuHelpUpdate");
    calculator.web.answer(std::nullopt);
    calculator.speak(QStringLiteral("German"));
    calculator.trigger("mnuHelpUpdate");
    QVERIFY(calculator.web.asked.last().query().endsWith(QStringLiteral("&language=German")));
  }

  void nothingIsAskedOfTheWebWithoutTheUser() {
    Calculator calculator;
    open(calculator, QStringLiteral("German"));
    for (const LinkRow& row : kMenuRows) calculator.trigger(row.control);
    calculator.window().close();
    letItSettle();
    QVERIFY(calculator.web.asked.isEmpty());
  }

  void aboutTellsNameVersionAndMaker_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("info");
    QTest::addColumn<QString>("button");
    QTest::newRow("English") << "English"
                             << "Tessaloom - Calculate eBay Auction Fees"
                             << "Visit the %1 website for news and more programs for sellers."
                             << "&System Info...";
    QTest::newRow("German")
        << "German"
        << "Tessaloom – eBay-Auktionsgebühren berechnen"
        << "Besuchen Sie die %1-Website: Dort finden Sie Neuigkeiten und weitere Programme für "
           "Verkäufer."
        << "&Systeminfo …";
    QTest::newRow("French") << "French"
                            << "Tessaloom – Calcul des frais d’enchères eBay"
                            << "Visitez le site Web %1 pour découvrir les actualités et d’autres programmes "
                               "destinés aux vendeurs."
                            << "Infos &système…";
  }

  void aboutTellsNameVersionAndMaker() {
    QFETCH(QString, language);
    QFETCH(QString, title);
    QFETCH(QString, info);
    QFETCH(QString, button);
    Calculator calculator;
    open(calculator, language);
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QApplication::setWindowIcon(picture);
    const auto check = [&](const QWidget& about, const QString& company, const QString& homepage) {
      QCOMPARE(about.objectName(), QStringLiteral("frmAbout"));
      QCOMPARE(about.windowTitle(), title);
      QCOMPARE(textOf(about, "lblTitle"), QStringLiteral("Tessaloom"));
      QCOMPARE(textOf(about, "lblVersion"), QStringLiteral("Version 1.0.0"));
      QCOMPARE(textOf(about, "lblInfo"), info.arg(company));
      QCOMPARE(textOf(about, "lblEmail"), homepage);
      QCOMPARE(textOf(about, "cmdOK"), QStringLiteral("OK"));
      QCOMPARE(textOf(about, "cmdSysInfo"), button);
      QVERIFY(textOf(about, "lblDescription").size() >= 5);
      QVERIFY(textOf(about, "lblDisclaimer").size() >= 5);
      QVERIFY(!controlOf<QLabel>(about, "picIcon").pixmap().isNull());
      push(about, "cmdOK");
      QVERIFY(!about.isVisible());
    };
    const auto maker = inNextModal(
        [&](const QWidget& about) { check(about, "Ostrevane", "https://www.ostrevane.example/"); });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*maker, 1);
    rebrand(calculator, kReseller);
    const auto reseller = inNextModal([&](const QWidget& about) {
      check(about, "Smith & Sons  Ltd", "https://www.smith.example/?a=b&c=d e");
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*reseller, 1);
    QVERIFY(calculator.isSilent());
  }

  void aboutOpensTheHomepageWhenItsLinkIsPressed() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const auto met = inNextModal([&](QWidget& about) {
      QVERIFY(QTest::qWaitForWindowExposed(&about));
      const auto& link = controlOf<LinkLabel>(about, "lblEmail");
      QCOMPARE(colourOf(link), kBlue);
      moveTo(link, QPoint(1, 1));
      moveOver(link);
      QTest::mousePress(about.windowHandle(), Qt::LeftButton, {}, placeOf(link));
      letItSettle();
      QCOMPARE(colourOf(link), kMagenta);
      QCOMPARE(calculator.desktop.opened, QStringList{"web https://www.ostrevane.example/"});
      QTest::mouseRelease(about.windowHandle(), Qt::LeftButton, {}, placeOf(link));
      letItSettle();
      QCOMPARE(calculator.desktop.opened.size(), 1);
      for (const char* name :
           {"cmdOK", "cmdSysInfo", "lblDescription", "lblDisclaimer", "lblTitle", "lblVersion", "picIcon"}) {
        moveOver(link);
        QCOMPARE(colourOf(link), kMagenta);
        moveTo(link, controlOf<QWidget>(about, name).mapTo(&about, QPoint(1, 1)));
        QVERIFY2(colourOf(link) == kBlue, name);
      }
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*met, 1);
  }

  void returnClosesAbout() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const auto met = inNextModal([&](QWidget& about) {
      QVERIFY(QTest::qWaitForWindowActive(&about));
      QTest::keyClick(about.windowHandle(), Qt::Key_Return);
      QVERIFY(!about.isVisible());
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*met, 1);
    QCOMPARE(calculator.desktop.opened, QStringList());
  }

  void aboutOpensTheHomepageByKeys() {
    Calculator calculator;
    open(calculator, QStringLiteral("English"));
    const auto met = inNextModal([&](QWidget& about) {
      auto& link = controlOf<LinkLabel>(about, "lblEmail");
      for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        link.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&link, key);
        QVERIFY(about.isVisible());
      }
      QCOMPARE(calculator.desktop.opened, QStringList(3, "web https://www.ostrevane.example/"));
      QTest::keyClick(&about, Qt::Key_Escape);
      QVERIFY(!about.isVisible());
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*met, 1);
  }

  void aboutTellsWhatItCannotOpen() {
    Calculator calculator;
    open(calculator, QStringLiteral("German"));
    calculator.desktop.isWilling = false;
    const auto met = inNextModal([&](const QWidget& about) {
      QTest::mouseClick(&controlOf<LinkLabel>(about, "lblEmail"), Qt::LeftButton);
      QVERIFY(about.isVisible());
    });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*met, 1);
    QVERIFY(calculator.messages.shown.isEmpty());
    QCOMPARE(calculator.errors.shown,
             QStringList{"Diese Adresse konnte nicht geöffnet werden: https://www.ostrevane.example/"});
  }

  void systemInfoStartsTheToolOrSaysThatThereIsNone_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "English"
                             << "System Information Is Unavailable At This Time";
    QTest::newRow("German") << "German"
                            << "Die Systeminformationen sind derzeit nicht verfügbar.";
    QTest::newRow("French") << "French"
                            << "Les informations système ne sont pas disponibles pour le moment.";
  }

  void systemInfoStartsTheToolOrSaysThatThereIsNone() {
    QFETCH(QString, language);
    QFETCH(QString, text);
    Calculator calculator;
    open(calculator, language);
    calculator.systemInformation.path = QStringLiteral("/usr/bin/a tool");
    const auto withTool = inNextModal([](const QWidget& about) { push(about, "cmdSysInfo"); });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*withTool, 1);
    QCOMPARE(calculator.starter.started, QStringList{"/usr/bin/a tool"});
    QVERIFY(calculator.isSilent());

    calculator.systemInformation.path.clear();
    const auto without = inNextModal([](const QWidget& about) { push(about, "cmdSysInfo"); });
    calculator.trigger("mnuHelpAbout");
    QCOMPARE(*without, 1);
    QCOMPARE(calculator.starter.started.size(), 1);
    QVERIFY(calculator.errors.shown.isEmpty());
    QCOMPARE(calculator.messages.shown.size(), 1);
    QCOMPARE(calculator.messages.shown[0].first, QCoreApplication::applicationName());
    QCOMPARE(calculator.messages.shown[0].second, text);
  }

  void aToolThatDoesNotStartIsNone() {
    RecordingWorld world;
    world.systemInformation.path = QStringLiteral("/usr/bin/tool");
    FailingStarter programs;
    const frmAbout about(nullptr, {.brand = world.brand,
                                   .desktop = world.desktop,
                                   .messages = world.messages,
                                   .errors = world.errors,
                                   .programs = programs,
                                   .systemInformation = world.systemInformation});
    push(about, "cmdSysInfo");
    QVERIFY(world.errors.shown.isEmpty());
    QCOMPARE(world.messages.shown.size(), 1);
    QCOMPARE(world.messages.shown[0].second,
             QStringLiteral("System Information Is Unavailable At This Time"));
  }

 private:
  static void addOwnLinks() {
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("makers");
    QTest::addColumn<QString>("resellers");
    QTest::newRow("homepage") << "mnuHelpHomepage"
                              << "web https://www.ostrevane.example/"
                              << "web https://www.smith.example/?a=b&c=d e";
    QTest::newRow("feedback, with the running version")
        << "mnuHelpFeedback"
        << "mail mailto:support@ostrevane.example?subject=Comment RE: Tessaloom 1.0.0"
        << "mail mailto:help+us@smith.example?subject=Comment RE: Tessaloom 1.0.0";
    QTest::newRow("mailing list, with the company")
        << "mnuHelpSubscribe"
        << "mail mailto:subscribe@ostrevane.example?subject=Subscribe Ostrevane Mailing List REF: Tessaloom"
        << "mail mailto:news@smith.example?subject=Subscribe Smith & Sons  Ltd Mailing List REF: Tessaloom";
  }
};

QTEST_MAIN(LinksWindowTest)
#include "links_window_test.moc"
