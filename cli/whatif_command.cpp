#include "whatif_command.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "amount_text.h"
#include "listing_options.h"
#include "option_values.h"
#include "whatif.h"

namespace {

struct WhatIfOptions {
  ListingOptions listing;
  std::string kind = "single";
};

std::string noteOf(const AddedFeature& row, bool isSold) {
  if (row.paying) return "";
  return isSold ? "no price that far above pays for it" : "nothing was sold that could pay for it";
}

/// What must be raised for it; nothing for what has paid for itself already.
std::string raisedBy(const AddedFeature& row, RaisedPrice raised) {
  if (!row.paying || row.paying->rise == Currency{}) return "";
  return raised == RaisedPrice::Opening ? "opening" : "closing";
}

std::vector<std::string> cellsOf(const AddedFeature& row, const WhatIf& answer, const NumberLocale& locale) {
  const std::string feature(row.feature);
  const auto amount = [&](Currency PayingPrice::*member) {
    const bool isNone =
        !row.paying || (member == &PayingPrice::netOneBelow && row.paying->rise == Currency{});
    return isNone ? "" : twoDecimals((*row.paying).*member, locale);
  };
  return {row.value.empty() ? feature : feature + ' ' + std::string(row.value),
          twoDecimals(row.added, locale),
          amount(&PayingPrice::rise),
          raisedBy(row, answer.raised),
          amount(&PayingPrice::price),
          amount(&PayingPrice::net),
          amount(&PayingPrice::netOneBelow),
          noteOf(row, answer.isSold)};
}

Table whatIfTable(const WhatIf& answer, const Listing& listing, const NumberLocale& locale) {
  const bool isEach = listing.kind == ListingKind::Multiple;
  Table table{.title = "Amounts in " + Pricer::currencyOf(listing) + (isEach ? ", prices of each item" : ""),
              .columns = {{"feature", "Feature"},
                          {"added_fees", "Adds to the fees", true},
                          {"price_rise", "Must bring more", true},
                          {"raised_price", "Price to raise"},
                          {"price", "Sold for", true},
                          {"net", "Net", true},
                          {"net_one_cent_below", "One cent below", true},
                          {"note", ""}},
              .rows = {}};
  if (answer.isSold && answer.raised == RaisedPrice::Opening)
    table.title += "\nWith items left over all are sold at the opening price: it is what must be raised.";
  for (const AddedFeature& row : answer.features) table.rows.push_back(cellsOf(row, answer, locale));
  return table;
}

void answer(const WhatIfOptions& options, Session& session) {
  Pricer pricer(session.locale());
  const Listing listing =
      options.listing.listing(*kindOf(options.kind), session.locale(), !session.decimal.empty());
  session.write(whatIfTable(whatIf(pricer, listing), listing, pricer.locale()));
}

}  // namespace

void addWhatIfCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "whatif",
      "What each extra feature would add to the fees, and how much more the sale must bring for it");
  const auto options = std::make_shared<WhatIfOptions>();
  takesOneOf(command->add_option("--kind", options->kind, "what is sold (single)"), "single|multiple");
  options->listing.addTo(*command, ForListings);
  addOutputOptions(*command, session);
  command->callback([options, &session] { answer(*options, session); });
}
