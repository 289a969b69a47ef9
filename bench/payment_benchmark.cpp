#include <benchmark/benchmark.h>

#include "payment_tab.h"

/// \file
/// What one keystroke on the Payment Services tab may cost: one fee (the aim is under two microseconds), and
/// a whole recalculation of the tab.

namespace {

NumberLocale usSigns() { return {".", ",", "$"}; }

/// Canada converts the flat fee and the cap; the capped, international eCheck takes every step.
void OnePayPalFee(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayCanada);
  CPaymentService calculator(usSigns());
  calculator.Site(site);
  for (auto _ : state) {
    benchmark::DoNotOptimize(calculator.PayPalFee("1234.56", false, false, "1.317", true));
  }
}
BENCHMARK(OnePayPalFee);

void OneBillpointFee(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayCanada);
  CPaymentService calculator(usSigns());
  calculator.Site(site);
  for (auto _ : state) {
    benchmark::DoNotOptimize(calculator.BillpointFee("234.56", true, true, true, "1.317"));
  }
}
BENCHMARK(OneBillpointFee);

void WholeRecalculation(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayCanada);
  const NumberLocale signs = usSigns();
  CPaymentService calculator(signs);
  calculator.Site(site);
  const PaymentChoices choices{.chkInternationalPayPal = true, .txtConversion = "1.317"};
  PaymentBoxes boxes{"1234.56", ""};
  for (auto _ : state) {
    recalculatePayment(choices, &calculator, signs, boxes);
    benchmark::DoNotOptimize(boxes.txtPayPalFee.data());
  }
}
BENCHMARK(WholeRecalculation);

}  // namespace
