#include <QApplication>
#include <QClipboard>
#include <QTabBar>

#include "entry_field.h"
#include "frmeBayFees.h"

struct frmeBayFees::Page {
  QWidget* page;
  QLineEdit* firstBox;  ///< none on a page without boxes
  QPushButton* calculate;
  QPushButton* clear;
  QPushButton* add;
  QLineEdit* total;
};

std::vector<frmeBayFees::Page> frmeBayFees::pages() const {
  return {{m_form.tabSingleItem, m_single.txtStartingPrice, m_single.cmdCalculate, m_single.cmdClearAll,
           m_single.cmdAddRegularToNotes, m_single.txtFees},
          {m_form.tabMultipleItems, m_multiple.txtDutchItemsOffered, m_multiple.cmdDutchCalculate,
           m_multiple.cmdDutchClearAll, m_multiple.cmdAddDutchToNotes, m_multiple.txtDutchFees},
          {m_form.tabPaymentServices, m_payment.txtPaymentAmount, m_payment.cmdCalculatePaymentFees,
           m_payment.cmdClearPaymentFees, m_payment.cmdAddPaymentsToNotes, m_payment.txtPayPalFee},
          {m_form.tabShipping, nullptr, nullptr, nullptr, nullptr, nullptr}};
}

frmeBayFees::Page frmeBayFees::pageInFront() const {
  return pages()[static_cast<std::size_t>(m_form.SSTab1->currentIndex())];
}

void frmeBayFees::prepareKeyboard() {
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(true);  // Return presses it
  for (const auto& [first, second] :
       {std::pair(m_single.optMotorcycle, m_single.optOtherVehicle),
        std::pair(m_single.optTimeshare, m_single.optOtherRealEstate),
        std::pair(m_payment.optPayPalMerchant, m_payment.optPayPalStandard),
        std::pair(m_payment.optPayPalCreditCard, m_payment.optPayPalNonCreditCard)}) {
    stepToTheChosen(*first, *second);
  }
  connect(m_form.SSTab1, &QTabWidget::currentChanged, this, [this] { openPage(); });
  connect(qApp, &QApplication::focusChanged, this, &frmeBayFees::markDefaultButton);
  connect(m_payment.txtConversion, &QLineEdit::returnPressed, this, [this] {
    m_payment.cmdCalculatePaymentFees->click();
    m_payment.txtConversion->selectAll();
  });
  prepareShortcuts();
}

// Of a pair that excludes each other the tab key reaches the chosen one; the arrow keys choose the other.
void frmeBayFees::stepToTheChosen(QRadioButton& first, QRadioButton& second) {
  const auto step = [&first, &second] {
    const bool isNoneChosen = !first.isChecked() && !second.isChecked();
    first.setFocusPolicy(first.isChecked() || isNoneChosen ? Qt::StrongFocus : Qt::ClickFocus);
    second.setFocusPolicy(second.isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
  };
  connect(&first, &QRadioButton::toggled, this, step);
  connect(&second, &QRadioButton::toggled, this, step);
  step();
}

// A page that comes to the front would give the focus to the box that had it last, and leaving the page would
// then leave that box, though nobody has been there. It forgets, and its first box has the focus; unless the
// user walks along the row of tabs.
void frmeBayFees::openPage() {
  const Page inFront = pageInFront();
  for (const Page& each : pages()) {
    QWidget* last = each.page->focusWidget();
    if (last != nullptr && each.page != inFront.page) last->clearFocus();
  }
  QTabBar& tabs = *m_form.SSTab1->tabBar();
  if (tabs.hasFocus() || !isVisible()) return;
  (inFront.firstBox != nullptr ? static_cast<QWidget*>(inFront.firstBox) : &tabs)
      ->setFocus(Qt::TabFocusReason);
}

void frmeBayFees::markDefaultButton(const QWidget* /*before*/, const QWidget* now) {
  const auto* box = qobject_cast<const QLineEdit*>(now);
  for (const Page& page : pages()) {
    if (page.calculate == nullptr) continue;
    page.calculate->setDefault(box != nullptr && !box->isReadOnly() && page.page->isAncestorOf(box));
  }
}

void frmeBayFees::prepareShortcuts() {
  const auto add = [this](const char* name, const QList<QKeySequence>& keys, void (frmeBayFees::*handler)()) {
    auto* action = new QAction(this);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    addAction(action);
    on(action, &QAction::triggered, handler);
  };
  add("actClearAll", {QKeySequence(Qt::CTRL | Qt::Key_L)}, &frmeBayFees::clearPage);
  add("actAddToNotepad", {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)},
      &frmeBayFees::addPageToNotes);
  add("actCopyTotal", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)}, &frmeBayFees::copyTotal);
  add("actCopyNotepad", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)}, &frmeBayFees::cmdCopyNotepad_Click);
  add("actNotepad", {QKeySequence(Qt::Key_F9)}, &frmeBayFees::cmdNotepad_Click);
}

// What stands in a box counts as if it had been left: a key, unlike the pointer, leaves the focus there.
void frmeBayFees::settleFocusedBox() {
  const QWidget* box = focusWidget();
  auto* field = box != nullptr ? box->findChild<EntryField*>() : nullptr;
  if (field != nullptr) emit field->confirmed();
}

void frmeBayFees::clearPage() {
  if (const Page page = pageInFront(); page.clear != nullptr) page.clear->click();
}

void frmeBayFees::addPageToNotes() {
  settleFocusedBox();
  if (const Page page = pageInFront(); page.add != nullptr) page.add->click();
}

void frmeBayFees::copyTotal() {
  settleFocusedBox();
  const Page page = pageInFront();
  if (page.total == nullptr || page.total->text().isEmpty()) return;
  QGuiApplication::clipboard()->setText(page.total->text().trimmed());
  say(QStringLiteral("Copied<5011>"));
}
