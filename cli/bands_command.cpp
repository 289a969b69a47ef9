#include "bands_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "bands.h"
#include "option_values.h"
#include "price_function_options.h"

namespace {

struct BandsOptions {
  SaleOptions sale;
  std::string to;
};

std::vector<std::string> rowOf(const DeadBand& band, const PriceFunction& sale) {
  const auto number = [&sale](Cents amount) { return textOf(amount, sale.locale()); };
  return {number(band.from),
          number(band.to),
          number(band.from - 1),
          number(band.netBefore),
          number(band.worstLoss),
          band.isOpen ? std::string() : number(band.to + 1),
          Pricer::currencyOf(sale.sale().listing)};
}

Table tableOf(const std::vector<DeadBand>& bands, const PriceFunction& sale) {
  Table table{.title = {},
              .columns = {{"from", "From", true},
                          {"to", "To", true},
                          {"best_below", "Better ask", true},
                          {"net_best_below", "and net", true},
                          {"worst_loss", "Lost at worst", true},
                          {"as_good_from", "As good from", true},
                          {"currency", "Currency"}},
              .rows = {}};
  for (const DeadBand& band : bands) table.rows.push_back(rowOf(band, sale));
  return table;
}

/// Up to where the bands begin. A price below the lowest has none below it that could bring more.
Cents endOf(const BandsOptions& options, const PriceFunction& sale, const Session& session) {
  const PriceRange range = sale.range();
  if (options.to.empty()) return range.last;
  const Cents to = priceOf("--to", options.to, sale, session);
  if (to < range.first)
    throw OptionError("--to: below " + priced(sale, range.first) + ", the lowest price at which it can sell");
  return to;
}

void run(const BandsOptions& options, Session& session) {
  PriceFunction sale(options.sale.sale(session), session.locale());
  checkSells(sale);
  const Cents to = endOf(options, sale, session);
  const auto bands = deadBands(sale, to);
  Table table = tableOf(bands, sale);
  if (session.format != Format::Text) return session.write(table);
  const std::string stretch = fmt::format("From {} to {}", priced(sale, sale.range().first),
                                          options.to.empty() ? largestOf(sale) + "," : priced(sale, to));
  if (bands.empty()) {
    session.out << stretch << " a higher price never leaves you with less.\n";
    return;
  }
  table.title = stretch + " these prices leave you with less than a lower price";
  session.write(table);
}

}  // namespace

void addBandsCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "bands", "The prices of a single item that leave you with less than a lower price");
  command->footer("A loss of a single cent, which comes from the rounding of two fees, is not counted.");
  const auto options = std::make_shared<BandsOptions>();
  addAmountOption(*command, "--to", options->to,
                  "the bands that begin up to this price (the largest that can be)");
  options->sale.addTo(*command);
  addOutputOptions(*command, session);
  command->callback([options, &session] { run(*options, session); });
}
