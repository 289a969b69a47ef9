#include "amount_text.h"
#include "entry_field.h"
#include "frmeBayFees.h"

struct frmeBayFees::EntryRow {
  QLineEdit* box;
  EntryKind kind;
  QLineEdit* clearedWhenNegative;
  void (frmeBayFees::*leave)();
  QPushButton* calculate;  ///< of the box's tab
};

void frmeBayFees::connectEntryFields() {
  const auto rows = std::to_array<EntryRow>({
      {m_single.txtStartingPrice, EntryKind::Money, m_single.txtStartingPrice,
       &frmeBayFees::leaveStartingPrice, m_single.cmdCalculate},
      {m_single.txtPrice, EntryKind::Money, m_single.txtPrice, &frmeBayFees::leavePrice,
       m_single.cmdCalculate},
      {m_multiple.txtDutchOpeningPrice, EntryKind::Money, m_multiple.txtDutchOpeningPrice,
       &frmeBayFees::leaveDutchOpeningPrice, m_multiple.cmdDutchCalculate},
      // A negative lowest bid clears the single item's opening bid, not itself; see leaveDutchFinalPrice.
      {m_multiple.txtDutchFinalPrice, EntryKind::Money, m_single.txtStartingPrice,
       &frmeBayFees::leaveDutchFinalPrice, m_multiple.cmdDutchCalculate},
      {m_multiple.txtDutchItemsOffered, EntryKind::Count, m_multiple.txtDutchItemsOffered,
       &frmeBayFees::leaveDutchItemsOffered, m_multiple.cmdDutchCalculate},
      {m_multiple.txtDutchItemsSold, EntryKind::Count, m_multiple.txtDutchItemsSold,
       &frmeBayFees::DutchCalculate, m_multiple.cmdDutchCalculate},
      {m_payment.txtPaymentAmount, EntryKind::Money, m_payment.txtPaymentAmount,
       &frmeBayFees::leavePaymentAmount, m_payment.cmdCalculatePaymentFees},
  });
  for (const EntryRow& row : rows) {
    auto* field = new EntryField(*row.box, row.kind, m_surroundings.locale);
    on(field, &EntryField::left, row.leave);
    connect(field, &EntryField::confirmed, this, [this, row] { confirm(row); });
    connect(row.box, &QLineEdit::textEdited, m_form.lblStatus, [this] { m_form.lblStatus->say({}); });
    connect(row.box, &QLineEdit::textChanged, this, [this, row] { guarded([&] { entryChanged(row); }); });
  }
}

// As if the box had been left, but the next price can be typed at once.
void frmeBayFees::confirm(const EntryRow& row) {
  guarded([&] { (this->*row.leave)(); });
  row.calculate->click();
  row.box->selectAll();
}

// Reads the box, not the signal's text: a change from within a change has already replaced that one.
void frmeBayFees::entryChanged(const EntryRow& row) {
  const auto empty = [](QLineEdit& box) {
    box.clear();
    box.setSelection(0, 1);
  };
  if (!mayStand(textOf(*row.box), m_surroundings.locale)) empty(*row.box);
  if (isNegative(textOf(*row.box), m_surroundings.locale)) empty(*row.clearedWhenNegative);
  if (row.box == m_single.txtStartingPrice) raiseToGermanMinimum();
}

void frmeBayFees::raiseToGermanMinimum() {
  QLineEdit& box = *m_single.txtStartingPrice;
  if (currentSite() != CAuctionSite::eBayGermany || !isBelowGermanMinimum(textOf(box), m_surroundings.locale))
    return;
  show(box, germanMinimum(m_surroundings.locale));
  box.selectAll();  // what is typed next replaces the minimum instead of being appended to it
}

bool frmeBayFees::isNumber(const QLineEdit& box) const {
  return isNumeric(textOf(box), m_surroundings.locale);
}

double frmeBayFees::valueOf(const QLineEdit& box) const {
  return isNumber(box) ? toDouble(textOf(box), m_surroundings.locale) : 0.0;
}

void frmeBayFees::leaveStartingPrice() {
  constexpr double cent = 0.01;
  QLineEdit& box = *m_single.txtStartingPrice;
  if (!isNumber(box)) return box.clear();
  if (valueOf(box) < cent) box.clear();
  recalculateSingleItemTab();
}

void frmeBayFees::leavePrice() {
  QLineEdit& box = *m_single.txtPrice;
  const QLineEdit& reserve = *m_single.txtStartingPrice;
  const bool hasReserve = m_single.cboIsReserve->currentIndex() != 0;
  if (!isNumber(box)) {
    box.clear();
  } else if (valueOf(box) == 0.0) {
    show(box, withDecimalSymbol(hasReserve ? "$0.01" : "$0.00", m_surroundings.locale));
  }
  const bool isBelowReserve = !reserve.text().isEmpty() && hasReserve && valueOf(box) < valueOf(reserve);
  if (isBelowReserve) box.setText(reserve.text());
  recalculateSingleItemTab();
  if (isBelowReserve) say(QStringLiteral("Closing bid raised to the reserve price<5006>"));
}

void frmeBayFees::leaveDutchOpeningPrice() {
  QLineEdit& box = *m_multiple.txtDutchOpeningPrice;
  if (!isNumber(box)) return box.clear();
  if (valueOf(box) == 0.0) box.clear();
  DutchCalculate();
}

// What is no lowest bid, an empty box included, clears the opening bid of the Single Item tab and stays
// itself.
void frmeBayFees::leaveDutchFinalPrice() {
  QLineEdit& box = *m_multiple.txtDutchFinalPrice;
  if (!isNumber(box)) return m_single.txtStartingPrice->clear();
  if (valueOf(box) == 0.0) show(box, withDecimalSymbol("$0.00", m_surroundings.locale));
  DutchCalculate();
}

// One item is no multiple-item listing. "01" is not looked through.
void frmeBayFees::leaveDutchItemsOffered() {
  QLineEdit& box = *m_multiple.txtDutchItemsOffered;
  if (box.text() == u'0' || box.text() == u'1') box.setText(QStringLiteral("2"));
  DutchCalculate();
}

void frmeBayFees::leavePaymentAmount() {
  QLineEdit& box = *m_payment.txtPaymentAmount;
  if (!isNumber(box)) return box.clear();
  if (valueOf(box) == 0.0) show(box, withDecimalSymbol("$0.01", m_surroundings.locale));
  CalculatePaymentFees();
}
