#include "amount_text.h"
#include "entry_field.h"
#include "frmeBayFees.h"

struct frmeBayFees::EntryRow {
  QLineEdit* box;
  EntryKind kind;
  QLineEdit* clearedWhenNegative;
  void (frmeBayFees::*leave)();
};

void frmeBayFees::connectEntryFields() {
  const EntryRow rows[] = {
      {m_single.txtStartingPrice, EntryKind::Money, m_single.txtStartingPrice,
       &frmeBayFees::leaveStartingPrice},
      {m_single.txtPrice, EntryKind::Money, m_single.txtPrice, &frmeBayFees::leavePrice},
  };
  for (const EntryRow& row : rows) {
    auto* field = new EntryField(*row.box, row.kind, m_surroundings.locale);
    on(field, &EntryField::left, row.leave);
    connect(row.box, &QLineEdit::textChanged, this, [this, row] { guarded([&] { entryChanged(row); }); });
  }
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

void frmeBayFees::leaveStartingPrice() {
  constexpr double cent = 0.01;
  QLineEdit& box = *m_single.txtStartingPrice;
  const std::string text = textOf(box);
  if (!isNumeric(text, m_surroundings.locale)) {
    box.clear();
    return;
  }
  if (toDouble(text, m_surroundings.locale) < cent) box.clear();
  recalculateSingleItemTab();
}

void frmeBayFees::leavePrice() {
  const NumberLocale& locale = m_surroundings.locale;
  const auto value = [&locale](const std::string& text) {
    return isNumeric(text, locale) ? toDouble(text, locale) : 0.0;
  };
  QLineEdit& box = *m_single.txtPrice;
  const bool hasReserve = m_single.cboIsReserve->currentIndex() != 0;
  if (!isNumeric(textOf(box), locale)) {
    box.clear();
  } else if (value(textOf(box)) == 0.0) {
    show(box, withDecimalSymbol(hasReserve ? "$0.01" : "$0.00", locale));
  }
  const std::string reserve = textOf(*m_single.txtStartingPrice);
  if (!reserve.empty() && hasReserve && value(textOf(box)) < value(reserve)) show(box, reserve);
  recalculateSingleItemTab();
}
