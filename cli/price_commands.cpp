#include "price_commands.h"

#include <array>
#include <memory>

#include "listing_options.h"
#include "option_values.h"
#include "pricing.h"

namespace {

struct FeeRow {
  const char* key;
  const char* heading;
  std::string Fees::*fee;
};

constexpr std::array<FeeRow, 7> kFeeRows{{{"insertion_fee", "Listing fee", &Fees::insertion},
                                          {"reserve_fee", "Reserve fee", &Fees::reserve},
                                          {"extra_features", "Extra features", &Fees::extras},
                                          {"final_value_fee", "Final value fee", &Fees::finalValue},
                                          {"total_fees", "Total fees", &Fees::total},
                                          {"payment_fee", "Payment fee", &Fees::payment},
                                          {"net", "Net", &Fees::net}}};

/// One line for each fee, for people.
Table verticalTable(const Fees& fees, const std::string& currency) {
  Table table{.title = {}, .columns = {{"fee", ""}, {"currency", ""}, {"amount", "", true}}, .rows = {}};
  for (const FeeRow& row : kFeeRows) {
    if (!(fees.*row.fee).empty()) table.rows.push_back({row.heading, currency, fees.*row.fee});
  }
  return table;
}

/// One row for the listing, for programs.
Table horizontalTable(const Fees& fees, const std::string& currency) {
  Table table;
  std::vector<std::string> cells;
  for (const FeeRow& row : kFeeRows) {
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

void price(const ListingOptions& options, ListingKind kind, Session& session) {
  Pricer pricer(session.locale());
  const Listing listing = options.listing(kind, session.locale(), !session.decimal.empty());
  const Fees fees = pricer.price(listing);
  const std::string currency = Pricer::currencyOf(listing);
  session.write(session.format == Format::Text ? verticalTable(fees, currency)
                                               : horizontalTable(fees, currency));
}

}  // namespace

void addPriceCommands(CLI::App& program, Session& session) {
  for (const PriceCommand& row : kCommands) {
    CLI::App* command = program.add_subcommand(std::string(nameOf(row.kind)), row.help);
    const auto options = std::make_shared<ListingOptions>();
    options->addTo(*command, scopeOf(row.kind));
    addOutputOptions(*command, session);
    command->callback([options, kind = row.kind, &session] { price(*options, kind, session); });
  }
}
