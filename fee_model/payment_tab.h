#pragma once

#include <string>

#include "number_locale.h"
#include "payment_service.h"

/// \file
/// What the Payment Services tab computes, without its widgets. Members bear the names of the controls.

/// The choices made on the tab, and the exchange rate as it stands in its box.
struct PaymentChoices {
  bool optPayPalMerchant = false;
  bool optPayPalCreditCard = false;
  bool chkInternationalPayPal = false;
  std::string txtConversion;
};

/// The texts of the tab's boxes, in the user's locale.
struct PaymentBoxes {
  std::string txtPaymentAmount;
  std::string txtPayPalFee;
};

/// Asks the calculator for the fee of the amount as it stands and puts it, unformatted, into its box.
void calculatePayPalFee(const PaymentChoices& choices, CPaymentService& calculator, PaymentBoxes& boxes);

/// Recalculates the tab. An empty amount changes nothing, not even an old fee; so does a lone decimal symbol.
/// If a text is no number or too large, it throws AmountError and leaves the boxes alone. Without a
/// calculator (`nullptr`) the boxes are formatted only.
void recalculatePayment(const PaymentChoices& choices, CPaymentService* calculator,
                        const NumberLocale& locale, PaymentBoxes& boxes);
