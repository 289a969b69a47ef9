#include "payment_tab.h"

#include "amount_text.h"
#include "entry_rules.h"

void calculatePayPalFee(const PaymentChoices& choices, CPaymentService& calculator, PaymentBoxes& boxes) {
  boxes.txtPayPalFee =
      calculator.PayPalFee(boxes.txtPaymentAmount, choices.optPayPalMerchant, choices.optPayPalCreditCard,
                           choices.txtConversion, choices.chkInternationalPayPal);
}

void recalculatePayment(const PaymentChoices& choices, CPaymentService* calculator,
                        const NumberLocale& locale, PaymentBoxes& boxes) {
  if (boxes.txtPaymentAmount.empty() || isLoneDecimalSymbol(boxes.txtPaymentAmount, locale)) return;
  if (calculator != nullptr) calculatePayPalFee(choices, *calculator, boxes);
  boxes.txtPaymentAmount = twoDecimals(std::string_view(boxes.txtPaymentAmount), locale);
  boxes.txtPayPalFee = twoDecimals(std::string_view(boxes.txtPayPalFee), locale);
}
