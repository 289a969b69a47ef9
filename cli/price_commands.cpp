#include "price_commands.h"

#include <array>
#include <memory>

#include "explain.h"
#include "listing_options.h"
#include "option_values.h"

namespace {

constexpr std::array<FeeColumn, 7> kFeeColumns{{{"insertion_fee", "Listing fee", &Fees::insertion},
                                                {"reserve_fee", "Reserve fee", &Fees::reserve},
                                                {"extra_features", "Extra features", &Fees::extras},
                                                {"final_value_fee", "Final value fee", &Fees::finalValue},
                                                {"total_fees", "Total fees", &Fees::total},
                                                {"payment_fee", "Payment fee", &Fees::payment},
                                                {"net", "Net", &Fees::net}}};

/// One line for each fee, for people.
Table verticalTable(const Fees& fees, const std::string& currency) {
  Table table{.title = {}, .columns = {{"fee", ""}, {"currency", ""}, {"amount", "", true}}, .rows = {}};
  for (const FeeColumn& row : kFeeColumns) {
    if (!(fees.*row.fee).empty()) table.rows.push_back({row.heading, currency, fees.*row.fee});
  }
  return table;
}

/// One row for the listing, for programs.
Table horizontalTable(const Fees& fees, const std::string& currency) {
  Table table;
  std::vector<std::string> cells;
  for (const FeeColumn& row : kFeeColumns) {
    table.columns.push_back({row.key, row.heading, true});
    cells.push_back(fees.*row.fee);
  }
  table.columns.push_back({"currency", "Currency"});
  cells.push_back(currency);
  table.rows.push_back(std::move(cells));
  return table;
}

struct PriceCommand {
  ListingKind kind;
  const char* help;
};

constexpr std::array<PriceCommand, 4> kCommands{{
    {ListingKind::Single, "The fees of a single item"},
    {ListingKind::Multiple, "The fees of several items in one listing"},
    {ListingKind::Payment, "What PayPal keeps of a payment"},
    {ListingKind::Billpoint, "What eBay Payments keeps of a payment"},
}};

struct PriceOptions {
  ListingOptions listing;
  bool isExplained = false;
};

void price(const PriceOptions& options, ListingKind kind, Session& session) {
  Pricer pricer(session.locale());
  const Listing listing = options.listing.listing(kind, session.locale(), !session.decimal.empty());
  if (options.isExplained) {
    return session.write(
        explanationTable(explain(pricer, listing), Pricer::currencyOf(listing), session.format));
  }
  const Fees fees = pricer.price(listing);
  const std::string currency = Pricer::currencyOf(listing);
  session.write(session.format == Format::Text ? verticalTable(fees, currency)
                                               : horizontalTable(fees, currency));
}

}  // namespace

void addPriceCommands(CLI::App& program, Session& session) {
  for (const PriceCommand& row : kCommands) {
    CLI::App* command = program.add_subcommand(std::string(nameOf(row.kind)), row.help);
    const auto options = std::make_shared<PriceOptions>();
    options->listing.addTo(*command, scopeOf(row.kind));
    command->add_flag("--explain", options->isExplained, "every amount with the rule that produced it");
    addOutputOptions(*command, session);
    command->callback([options, kind = row.kind, &session] { price(*options, kind, session); });
  }
}

std::span<const FeeColumn> feeColumns() { return kFeeColumns; }
