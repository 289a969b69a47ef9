#include <benchmark/benchmark.h>

#include "regular_auction.h"
#include "single_item_tab.h"

/// \file
/// What one keystroke may cost: the four fees of one item (the aim is under two microseconds), a whole
/// recalculation of the tab, and one figure of the schedule.

namespace {

constexpr std::int32_t kUs = CAuctionSite::eBayUS;

NumberLocale usSigns() { return {".", ",", "$"}; }

ListingFeatures someFeatures() {
  return {.IsTwoCategories = true,
          .IsGallery = true,
          .IsBIN = true,
          .IsBold = true,
          .HasExtraPhotos = true,
          .PhotoChoice = 2,
          .IsScheduled = true,
          .IsSubtitle = true};
}

void FourFeesOfOneItem(benchmark::State& state) {
  CAuctionSite site;
  site.Site(kUs);
  CRegularAuction calculator(usSigns());
  calculator.Site(site);
  const ListingFeatures features = someFeatures();
  for (auto _ : state) {
    benchmark::DoNotOptimize(calculator.InsertionFee("150.00", true, false, false, false, false, 0));
    benchmark::DoNotOptimize(calculator.ReserveFee("150.00", "4.80", "4.80", true, false, false));
    benchmark::DoNotOptimize(calculator.FVF("284.00", "8.80", false, false, false, false));
    benchmark::DoNotOptimize(calculator.ExtraFeaturesFee(features));
  }
}
BENCHMARK(FourFeesOfOneItem);

SingleItemChoices choicesWithReserve() {
  SingleItemChoices choices;
  choices.cboIsReserve = 1;
  choices.chkTwoCategories = choices.chkGallery = choices.chkBold = choices.chkBIN = true;
  choices.chkExtraPhotos = true;
  choices.cboExtraPhotos = 2;
  return choices;
}

/// The argument is the closing bid's place: 0 below the reserve (reserve fee), 1 above it (sale fee).
void WholeRecalculation(benchmark::State& state) {
  CAuctionSite site;
  site.Site(kUs);
  const NumberLocale signs = usSigns();
  CRegularAuction calculator(signs);
  calculator.Site(site);
  const SingleItemChoices choices = choicesWithReserve();
  SingleItemBoxes boxes;
  boxes.txtStartingPrice = "150.00";
  boxes.txtPrice = state.range(0) == 0 ? "50.00" : "284.00";
  for (auto _ : state) {
    recalculateSingleItem(choices, &calculator, signs, boxes);
    benchmark::DoNotOptimize(boxes.txtFees.data());
  }
}
BENCHMARK(WholeRecalculation)->ArgName("sold")->Arg(0)->Arg(1);

void ScheduleFigure(benchmark::State& state) {
  CAuctionSite site;
  site.Site(kUs);
  for (auto _ : state) {
    benchmark::DoNotOptimize(site);
    benchmark::DoNotOptimize(site.ListingFeeFourthTier());
  }
}
BENCHMARK(ScheduleFigure);

void ConvertedScheduleFigure(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayCanada);
  site.ConversionRate(1.317F);
  for (auto _ : state) {
    benchmark::DoNotOptimize(site);
    benchmark::DoNotOptimize(site.PayPalFlatFee());
  }
}
BENCHMARK(ConvertedScheduleFigure);

}  // namespace
