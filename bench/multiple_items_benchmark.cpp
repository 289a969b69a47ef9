#include <benchmark/benchmark.h>

#include "multiple_items_tab.h"

/// \file
/// What one keystroke on the Multiple Items tab may cost: the three fees of a listing (the aim is under two
/// microseconds), and a whole recalculation of the tab.

namespace {

NumberLocale usSigns() { return {".", ",", "$"}; }

MultipleItemsChoices someChoices() {
  MultipleItemsChoices choices;
  choices.chkDutchTwoCategories = choices.chkDutchHomePageFeatured = true;
  choices.chkDutchGallery = choices.chkDutchGalleryFeatured = choices.chkDutchBold = true;
  choices.chkDutchScheduled = choices.chkDutchSubtitle = choices.chkExtraPicturesDutch = true;
  choices.cboExtraPicturesDutch = 2;
  return choices;
}

void ThreeFeesOfSeveralItems(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  CDutchAuction calculator(usSigns());
  calculator.Site(site);
  MultipleItemsChoices choices = someChoices();
  for (auto _ : state) {
    benchmark::DoNotOptimize(choices);
    benchmark::DoNotOptimize(calculator.InsertionFee("15.00", 10, true));
    benchmark::DoNotOptimize(calculator.FVF("28.40", "10"));
    benchmark::DoNotOptimize(dutchExtraFeatures(choices, site, 10));
  }
}
BENCHMARK(ThreeFeesOfSeveralItems);

/// The argument is the number of items sold of ten: with items left over the lowest bid is replaced.
void WholeRecalculation(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  const NumberLocale signs = usSigns();
  CDutchAuction calculator(signs);
  calculator.Site(site);
  const MultipleItemsChoices choices = someChoices();
  MultipleItemsBoxes boxes;
  boxes.txtDutchItemsOffered = "10";
  boxes.txtDutchOpeningPrice = "15.00";
  boxes.txtDutchItemsSold = state.range(0) == 10 ? "10" : "4";
  boxes.txtDutchFinalPrice = "28.40";
  for (auto _ : state) {
    recalculateMultipleItems(choices, {&site, &calculator}, signs, "N/A", boxes);
    benchmark::DoNotOptimize(boxes.txtDutchFees.data());
  }
}
BENCHMARK(WholeRecalculation)->ArgName("sold")->Arg(4)->Arg(10);

/// Prices in a gap of the ladder have no fee that two categories could double: an error inside the tab.
void WholeRecalculationInAGap(benchmark::State& state) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  const NumberLocale signs = usSigns();
  CDutchAuction calculator(signs);
  calculator.Site(site);
  const MultipleItemsChoices choices = someChoices();
  MultipleItemsBoxes boxes;
  boxes.txtDutchItemsOffered = boxes.txtDutchItemsSold = "3";
  boxes.txtDutchFinalPrice = "1.00";
  for (auto _ : state) {
    boxes.txtDutchOpeningPrice = "0.3333";
    recalculateMultipleItems(choices, {&site, &calculator}, signs, "N/A", boxes);
    benchmark::DoNotOptimize(boxes.txtDutchFees.data());
  }
}
BENCHMARK(WholeRecalculationInAGap);

}  // namespace
