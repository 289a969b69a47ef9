#include "frmeBayFees.h"

// The exchange rate does not recalculate: it counts at the next calculation.
void frmeBayFees::connectPaymentTab() {
  on(m_payment.cmdCalculatePaymentFees, &QPushButton::clicked, &frmeBayFees::CalculatePaymentFees);
  on(m_payment.cmdClearPaymentFees, &QPushButton::clicked, &frmeBayFees::cmdClearPaymentFees_Click);
  on(m_payment.chkInternationalPayPal, &QCheckBox::toggled, &frmeBayFees::CalculatePaymentFees);
  onChosen({m_payment.optPayPalCreditCard, m_payment.optPayPalMerchant, m_payment.optPayPalNonCreditCard,
            m_payment.optPayPalStandard},
           &frmeBayFees::CalculatePaymentFees);
}

void frmeBayFees::CalculatePaymentFees() {
  PaymentBoxes boxes = paymentBoxes();
  calculateAndShow(
      [&] { recalculatePayment(paymentChoices(), m_paymentService.get(), m_surroundings.locale, boxes); },
      [&] { showPaymentBoxes(boxes); });
}

void frmeBayFees::CalculatePayPalFee() {
  PaymentBoxes boxes = paymentBoxes();
  if (m_paymentService) calculatePayPalFee(paymentChoices(), *m_paymentService, boxes);
  showPaymentBoxes(boxes);
}

PaymentChoices frmeBayFees::paymentChoices() const {
  return {.optPayPalMerchant = m_payment.optPayPalMerchant->isChecked(),
          .optPayPalCreditCard = m_payment.optPayPalCreditCard->isChecked(),
          .chkInternationalPayPal = m_payment.chkInternationalPayPal->isChecked(),
          .txtConversion = textOf(*m_payment.txtConversion)};
}

PaymentBoxes frmeBayFees::paymentBoxes() const {
  return {.txtPaymentAmount = textOf(*m_payment.txtPaymentAmount),
          .txtPayPalFee = textOf(*m_payment.txtPayPalFee)};
}

void frmeBayFees::showPaymentBoxes(const PaymentBoxes& boxes) {
  show(*m_payment.txtPaymentAmount, boxes.txtPaymentAmount);
  show(*m_payment.txtPayPalFee, boxes.txtPayPalFee);
}

void frmeBayFees::cmdClearPaymentFees_Click() { showPaymentBoxes({}); }
