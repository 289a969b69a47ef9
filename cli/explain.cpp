#include "explain.h"

#include "amount_text.h"
#include "explain_fees.h"

namespace {

std::vector<ExplainedFee> explained(const Listing& listing, const ExplainWords& words, const Fees& fees) {
  switch (listing.kind) {
    case ListingKind::Single:
      return explainSingle(listing, words, fees);
    case ListingKind::Multiple:
      return explainMultiple(listing, words, fees);
    case ListingKind::Payment:
    case ListingKind::Billpoint:
      break;
  }
  return explainPayment(listing, words, fees);
}

/// Adds the step that leads from the sum of the others to the fee as it is shown.
void addRounding(ExplainedFee& fee, const NumberLocale& locale) {
  Currency sum;
  for (const ExplainedStep& step : fee.steps) sum = sum + step.amount;
  const Currency rounding = toCurrency(fee.figure, locale) - sum;
  if (rounding == Currency{}) return;
  // The amounts of the steps are rounded themselves, and those of large fees have more digits than the fee.
  const bool isPlain = twoDecimals(sum, locale) == fee.figure;
  fee.steps.push_back({.name = "Rounded",
                       .amount = rounding,
                       .rule = isPlain ? "to the cent" : "to the cent, in the precision of the calculation"});
}

}  // namespace

std::vector<ExplainedFee> explain(Pricer& pricer, const Listing& listing) {
  const NumberLocale& locale = pricer.locale();
  std::vector<ExplainedFee> fees = explained(listing, ExplainWords(locale), pricer.price(listing));
  for (ExplainedFee& fee : fees) {
    if (!fee.steps.empty()) addRounding(fee, locale);
  }
  return fees;
}

Table explanationTable(const std::vector<ExplainedFee>& fees, const std::string& currency, Format format,
                       const NumberLocale& locale) {
  const ExplainWords words(locale);
  const bool isText = format == Format::Text;
  Table table{.title = "Amounts in " + currency + ", to four decimals",
              .columns = {{"step", "Step"}, {"amount", "Amount", true}, {"rule", "Rule"}},
              .rows = {}};
  if (!isText) {
    table.columns.push_back({"part_of", ""});
    table.columns.push_back({"currency", ""});
  }
  const auto add = [&](std::vector<std::string> row, const std::string& partOf) {
    if (!isText) row.insert(row.end(), {partOf, currency});
    table.rows.push_back(std::move(row));
  };
  for (const ExplainedFee& fee : fees) {
    for (const ExplainedStep& step : fee.steps)
      add({(isText ? "  " : "") + step.name, words.money(step.amount), step.rule}, fee.name);
    add({fee.name, fee.figure, fee.rule}, fee.partOf);
  }
  return table;
}
