#include "calculator.h"

#include <QAction>
#include <QCoreApplication>
#include <QtTest>

#include "start.h"
#include "tagged_strings.h"

Calculator::Calculator(NumberLocale numberLocale, int site, const QString& languageFolder)
    : RecordingWorld(languageFolder), m_site(site) {
  locale = std::move(numberLocale);
  programFolder = QCoreApplication::applicationDirPath();
  languages.InitLanguage();
  m_window = std::make_unique<frmeBayFees>(surroundings());
}

Calculator::~Calculator() { Localization::setLanguageObject(nullptr); }

void Calculator::load() {
  m_window->Initialize(Start::newStartStatus(surroundings()));
  m_window->Form_Load();
  m_window->activateWindow();
  if (!QTest::qWaitForWindowActive(m_window.get()))
    throw std::runtime_error("the window does not become active");
  if (m_site != 1) selectSite(m_site);
}

void Calculator::type(const char* box, const QString& text) {
  auto& edit = find<QLineEdit>(box);
  edit.setFocus(Qt::TabFocusReason);
  edit.selectAll();
  if (text.isEmpty()) QTest::keyClick(&edit, Qt::Key_Delete);
  for (const uint character : text.toUcs4()) {
    if (character < 0x80) {
      QTest::keyClick(&edit, static_cast<char>(character));
    } else {
      const char32_t typed = character;
      QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString::fromUcs4(&typed, 1), Qt::NoModifier);
    }
  }
}

void Calculator::enter(const char* box, const QString& text) {
  type(box, text);
  leave(box);
}

void Calculator::set(const char* box, const QString& text) { find<QLineEdit>(box).setText(text); }

void Calculator::leave(const char* box) {
  auto& edit = find<QLineEdit>(box);
  edit.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&edit, Qt::Key_Tab);
}

void Calculator::tick(const char* box, bool ticked) {
  auto& checkBox = find<QCheckBox>(box);
  if (!checkBox.isEnabled()) throw std::runtime_error(std::string("a user cannot tick the disabled ") + box);
  checkBox.setFocus(Qt::TabFocusReason);
  if (checkBox.isChecked() != ticked) checkBox.click();
}

void Calculator::choose(const char* list, int index) { find<QComboBox>(list).setCurrentIndex(index); }

void Calculator::select(const char* option) {
  auto& button = find<QRadioButton>(option);
  button.setFocus(Qt::TabFocusReason);
  button.click();
}

void Calculator::click(const char* button) {
  auto& pushed = find<QPushButton>(button);
  pushed.setFocus(Qt::TabFocusReason);
  pushed.click();
}

void Calculator::trigger(const char* menuItem) { find<QAction>(menuItem).trigger(); }

QString Calculator::shown(const char* control) const {
  const QObject& object = find<QObject>(control);
  return object.property("text").toString();
}

QStringList Calculator::singleItemFees() const {
  return {shown("txtInsertionFee"), shown("txtExtras"), shown("txtFVF"), shown("txtFees")};
}

void Calculator::speak(const QString& language) {
  for (QAction* entry : find<QMenu>("menuLang").actions()) {
    const bool isEnglish =
        language == QStringLiteral("English") && entry->objectName() == QStringLiteral("mnuLang_1");
    if (isEnglish || entry->text() == language) return entry->trigger();
  }
  throw std::runtime_error("the menu has no language " + language.toStdString());
}

void letItSettle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void Calculator::selectSite(int site) {
  constexpr std::array<const char*, 4> items{"mnuOptionsSiteEbay", "mnuOptionsSiteUK", "mnuOptionsSiteCanada",
                                             "mnuOptionsSiteGermany"};
  trigger(items.at(static_cast<std::size_t>(site - 1)));
}
