#include "price_commands.h"

#include <array>
#include <CLI/CLI.hpp>
#include <memory>

#include "explain.h"
#include "listing_options.h"
#include "option_values.h"

namespace {

/// What the tab of several items shows besides.
constexpr std::array<FeeColumn, 2> kMultipleColumns{
    {{"total_sales", "Total sales", &Fees::sales}, {"fees_per_item", "Fees per item sold", &Fees::perItem}}};

std::vector<FeeColumn> columnsOf(ListingKind kind) {
  std::vector<FeeColumn> columns(kFeeColumns.begin(), kFeeColumns.end());
  if (kind == ListingKind::Multiple)
    columns.insert(columns.end(), kMultipleColumns.begin(), kMultipleColumns.end());
  return columns;
}

/// One line for each fee, for people.
Table verticalTable(const std::vector<FeeColumn>& columns, const Fees& fees, const std::string& currency) {
  Table table{.title = {}, .columns = {{"fee", ""}, {"currency", ""}, {"amount", "", true}}, .rows = {}};
  for (const FeeColumn& row : columns) {
    const std::string& amount = fees.*row.fee;
    if (!amount.empty()) table.rows.push_back({row.heading, amount == kNotAvailable ? "" : currency, amount});
  }
  return table;
}

/// One row for the listing, for programs, to which an amount that is not available is none.
Table horizontalTable(const std::vector<FeeColumn>& columns, const Fees& fees, const std::string& currency) {
  Table table;
  std::vector<std::string> cells;
  for (const FeeColumn& row : columns) {
    table.columns.push_back({row.key, row.heading, true});
    cells.push_back(fees.*row.fee == kNotAvailable ? "" : fees.*row.fee);
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
    {ListingKind::Billpoint, "What eBay Payments (Billpoint) keeps of a payment"},
}};

struct PriceOptions {
  ListingOptions listing;
  bool isExplained = false;
};

void price(const PriceOptions& options, ListingKind kind, Session& session) {
  Pricer pricer(session.locale());
  const Listing listing = options.listing.listing(kind, session.locale(), !session.decimal.empty());
  const std::string currency = Pricer::currencyOf(listing);
  if (options.isExplained) {
    return session.write(
        explanationTable(explain(pricer, listing), currency, session.format, pricer.locale()));
  }
  const auto tableOf = session.format == Format::Text ? verticalTable : horizontalTable;
  session.write(tableOf(columnsOf(kind), pricer.price(listing), currency));
}

}  // namespace

void addPriceCommands(CLI::App& program, Session& session) {
  for (const PriceCommand& row : kCommands) {
    CLI::App* command = program.add_subcommand(std::string(nameOf(row.kind)), row.help);
    const auto options = std::make_shared<PriceOptions>();
    options->listing.addTo(*command, scopeOf(row.kind));
    command->add_flag(
        "--explain", options->isExplained,
        "every amount with the rule that produced it; in csv and json part_of names the step that an "
        "amount is a part of, whose parts add up to it");
    addOutputOptions(*command, session);
    command->callback([options, kind = row.kind, &session] { price(*options, kind, session); });
  }
}
