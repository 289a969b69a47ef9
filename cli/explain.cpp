#include "explain.h"

#include "explain_fees.h"

std::vector<ExplainedFee> explain(Pricer& pricer, const Listing& listing) {
  const Fees fees = pricer.price(listing);
  const ExplainWords words(pricer.locale());
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

Table explanationTable(const std::vector<ExplainedFee>& fees, const std::string& currency, Format format) {
  const bool isText = format == Format::Text;
  Table table{.title = "Amounts in " + currency,
              .columns = {{"step", "Step"}, {"amount", "Amount", true}, {"rule", "Rule"}},
              .rows = {}};
  for (const ExplainedFee& fee : fees) {
    for (const ExplainedStep& step : fee.steps)
      table.rows.push_back({(isText ? "  " : "") + step.step, step.shown, step.rule});
    table.rows.push_back({fee.name, fee.figure, fee.rule});
  }
  return table;
}
