#include "bands_command.h"

#include <fmt/format.h>

#include <algorithm>
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

void run(const BandsOptions& options, Session& session) {
  PriceFunction sale(options.sale.sale(session), session.locale());
  const Cents to = options.to.empty() ? sale.range().last
                                      : std::min(amountOf("to", options.to, session), sale.range().last);
  const auto bands = deadBands(sale, to);
  Table table = tableOf(bands, sale);
  if (session.format != Format::Text) return session.write(table);
  const std::string upTo = priced(sale, std::max<Cents>(to, 0));
  if (bands.empty()) {
    session.out << fmt::format("Up to {} a higher price never leaves you with less.\n", upTo);
    return;
  }
  table.title = fmt::format("Prices up to {} that leave you with less than a lower price", upTo);
  session.write(table);
}

}  // namespace

void addBandsCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand("bands",
                                             "The prices of a single item that leave you with less than a "
                                             "lower price. A loss of a single cent, which "
                                             "comes from the rounding of two fees, is not counted");
  const auto options = std::make_shared<BandsOptions>();
  addAmountOption(*command, "--to", options->to,
                  "the bands that begin up to this price (" +
                      textOf(PriceFunction::largestPrice, session.locale()) + ")");
  options->sale.addTo(*command);
  addOutputOptions(*command, session);
  command->callback([options, &session] { run(*options, session); });
}
