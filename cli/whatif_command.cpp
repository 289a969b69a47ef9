#include "whatif_command.h"

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

std::string noteOf(const WhatIf& row, bool isSold) {
  if (row.paying) return "";
  return isSold ? "no price that far above pays for it" : "nothing was sold that could pay for it";
}

Table whatIfTable(const std::vector<WhatIf>& rows, const Listing& listing, bool isSold,
                  const NumberLocale& locale) {
  const bool isEach = listing.kind == ListingKind::Multiple;
  Table table{.title = "Amounts in " + Pricer::currencyOf(listing) + (isEach ? ", prices of each item" : ""),
              .columns = {{"feature", "Feature"},
                          {"added_fees", "Adds to the fees", true},
                          {"price_rise", "Must bring more", true},
                          {"price", "Sold for", true},
                          {"net", "Net", true},
                          {"net_one_cent_below", "One cent below", true},
                          {"note", ""}},
              .rows = {}};
  for (const WhatIf& row : rows) {
    const std::string feature(row.feature);
    std::vector<std::string> cells{row.value.empty() ? feature : feature + ' ' + std::string(row.value),
                                   twoDecimals(row.added, locale)};
    const auto add = [&](Currency PayingPrice::*amount) {
      const bool isNone =
          !row.paying || (amount == &PayingPrice::netOneBelow && row.paying->rise == Currency{});
      cells.push_back(isNone ? "" : twoDecimals((*row.paying).*amount, locale));
    };
    add(&PayingPrice::rise);
    add(&PayingPrice::price);
    add(&PayingPrice::net);
    add(&PayingPrice::netOneBelow);
    cells.push_back(noteOf(row, isSold));
    table.rows.push_back(std::move(cells));
  }
  return table;
}

bool isSold(Pricer& pricer, const Listing& listing) {
  const Fees fees = pricer.price(listing);
  if (listing.kind == ListingKind::Single) return !fees.finalValue.empty();
  return toInteger16(listing.sold, pricer.locale()) > 0;
}

void answer(const WhatIfOptions& options, Session& session) {
  Pricer pricer(session.locale());
  const Listing listing =
      options.listing.listing(*kindOf(options.kind), session.locale(), !session.decimal.empty());
  session.write(whatIfTable(whatIf(pricer, listing), listing, isSold(pricer, listing), pricer.locale()));
}

}  // namespace

void addWhatIfCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "whatif",
      "What each extra feature would add to the fees, and how much more the sale must bring for it");
  const auto options = std::make_shared<WhatIfOptions>();
  command->add_option("--kind", options->kind, "single or multiple (single)")
      ->check(CLI::IsMember({"single", "multiple"}).description(""))
      ->type_name("KIND");
  options->listing.addTo(*command, ForListings);
  addOutputOptions(*command, session);
  command->callback([options, &session] { answer(*options, session); });
}
