#include "solve_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "amount_text.h"
#include "option_values.h"
#include "price_function_options.h"
#include "price_function_table.h"
#include "quoted_text.h"
#include "solve.h"

namespace {

struct SolveOptions {
  SaleOptions sale;
  std::string net;
  std::string profit;
  std::string margin;
  std::string cost;
  std::string shipping;
};

/// A share of the price: "20%", "20" or "12.5 %".
std::int64_t marginOf(const std::string& text, const Session& session) {
  std::string number = text;
  if (!number.empty() && number.back() == '%') number.pop_back();
  const Option option{.name = "--margin",
                      .kind = OptionKind::Rate,
                      .scope = ForSingle,
                      .values = {},
                      .help = {},
                      .set = nullptr};
  if (number.empty()) throw OptionError("--margin: " + quotedText(text) + " is no number");
  const std::int64_t units =
      toCurrency(readValue(option, number, session.locale(), !session.decimal.empty()), session.locale())
          .tenThousandths();
  if (units > Target::wholePrice)
    throw OptionError("--margin: " + quotedText(text) + " is more than the whole price");
  return units;
}

Target targetOf(const SolveOptions& options, const Session& session) {
  const auto given = {options.net.empty(), options.profit.empty(), options.margin.empty()};
  if (std::count(given.begin(), given.end(), false) != 1)
    throw OptionError("one target is needed: --net, --profit or --margin");
  const bool hasCosts = !options.cost.empty() || !options.shipping.empty();
  if (!options.net.empty() && hasCosts)
    throw OptionError("--cost and --shipping count with --profit and --margin, not with --net");
  Target target;
  target.fixed = amountOf("--net", options.net, session) + amountOf("--profit", options.profit, session) +
                 amountOf("--cost", options.cost, session) +
                 amountOf("--shipping", options.shipping, session);
  if (!options.margin.empty()) target.margin = marginOf(options.margin, session);
  return target;
}

/// The target in words: "a net of $ 20.00".
std::string described(const SolveOptions& options, const Target& target, const PriceFunction& sale,
                      const Session& session) {
  const auto amount = [&](const char* option, const std::string& text) {
    return priced(sale, amountOf(option, text, session));
  };
  if (!options.net.empty()) return "a net of " + priced(sale, target.fixed);
  std::string text = options.margin.empty() ? "a profit of " + amount("--profit", options.profit)
                                            : "a margin of " + options.margin;
  if (!options.margin.empty() && text.back() != '%') text += '%';
  if (!options.cost.empty()) text += " after a cost of " + amount("--cost", options.cost);
  if (!options.shipping.empty())
    text += (options.cost.empty() ? " after " : " and ") + amount("--shipping", options.shipping) +
            " for shipping";
  return text;
}

std::vector<std::string> rowOf(const char* role, const SaleResult& result, const PriceFunction& sale,
                               const Target& target, Format format) {
  const Cents needed = target.neededAt(result.price);
  std::vector<std::string> row{role};
  appendResult(row, result, sale, format);
  row.push_back(textOf(needed, sale.locale()));
  row.push_back(textOf(result.net - needed, sale.locale()));
  row.push_back(Pricer::currencyOf(sale.sale().listing));
  return row;
}

Table proofOf(const Solution& solution, const PriceFunction& sale, const Target& target, Format format) {
  Table table{.title = {}, .columns = {{"price_is", ""}}, .rows = {}};
  appendResultColumns(table.columns, sale, format);
  table.columns.push_back({"needed", "Needed", true});
  table.columns.push_back({"difference", "Difference", true});
  table.columns.push_back({"currency", "Currency"});
  table.rows.push_back(rowOf("lowest", solution.answer, sale, target, format));
  if (solution.below) table.rows.push_back(rowOf("one cent less", *solution.below, sale, target, format));
  return table;
}

std::string conclusionOf(const Solution& solution, const PriceFunction& sale, const Target& target) {
  if (!solution.below) return "It cannot sell for less.";
  const Cents missing = target.neededAt(solution.below->price) - solution.below->net;
  return fmt::format("One cent less misses the target by {}.", priced(sale, missing));
}

void reportNoPrice(const PriceFunction& sale, const std::string& target, Session& session) {
  session.status = SomeFailed;
  session.errors << fmt::format("tessaloom-fees: no price up to {}, brings {}\n", largestOf(sale), target);
}

void run(const SolveOptions& options, Session& session) {
  const Target target = targetOf(options, session);
  PriceFunction sale(options.sale.sale(session), session.locale());
  checkSells(sale);
  const std::string words = described(options, target, sale, session);
  const auto solution = solve(sale, target);
  if (!solution) return reportNoPrice(sale, words, session);
  Table proof = proofOf(*solution, sale, target, session.format);
  if (session.format != Format::Text) return session.write(proof);
  proof.title =
      fmt::format("{} is the lowest price that brings {}.", priced(sale, solution->answer.price), words);
  session.write(proof);
  session.out << '\n' << conclusionOf(*solution, sale, target) << '\n';
}

}  // namespace

void addSolveCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "solve", "The lowest price of a single item that reaches a target: a net, a profit or a margin");
  const auto options = std::make_shared<SolveOptions>();
  addAmountOption(*command, "--net", options->net, "what must be left after all fees");
  addAmountOption(*command, "--profit", options->profit,
                  "what must be left after fees, --cost and --shipping");
  command
      ->add_option("--margin", options->margin,
                   "the share of the price that must be left after fees, --cost and --shipping")
      ->type_name("PERCENT");
  addAmountOption(*command, "--cost", options->cost, "what the item cost you");
  addAmountOption(*command, "--shipping", options->shipping, "what you pay for shipping");
  options->sale.addTo(*command);
  addOutputOptions(*command, session);
  command->callback([options, &session] { run(*options, session); });
}
