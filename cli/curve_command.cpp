#include "curve_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <ostream>

#include "curve.h"
#include "curve_file.h"
#include "curve_picture.h"
#include "option_values.h"
#include "price_function_options.h"
#include "price_function_table.h"

namespace {

struct CurveOptions {
  SaleOptions sale;
  std::optional<std::string> svg;
  std::string from;
  std::string to;
  std::string step;
};

/// How far the curve goes if nobody says so: far enough to see what a sale leaves beside its fees; for
/// vehicles, whose fees have their steps higher, beyond those. A round price.
Cents usualEnd(PriceFunction& sale, Cents first) {
  constexpr Cents ordinary = 10'000;
  constexpr Cents vehicles = 1'200'000;
  constexpr Cents parts = 10;
  const Cents end = sale.sale().listing.single.chkVehicle
                        ? std::max(vehicles, 2 * first)
                        : std::max({ordinary, 2 * first, 3 * sale.totalFees(first)});
  return std::min(roundedUp(end, roundStep(end, parts)), sale.range().last);
}

Cents stepOf(const CurveOptions& options, PriceRange range, const Session& session) {
  constexpr Cents usualSteps = 400;
  constexpr Cents mostSteps = 100'000;
  const Cents span = range.last - range.first;
  if (options.step.empty()) return roundStep(span, usualSteps);
  const Cents step = amountOf("--step", options.step, session);
  if (step == 0) throw OptionError("--step: must be above zero");
  const Cents least = roundedUp(span, mostSteps) / mostSteps;
  if (step < least) {
    throw OptionError(fmt::format("--step: must be {} or more: over this range that makes {} steps, the most",
                                  textOf(least, session.locale()), mostSteps));
  }
  return step;
}

/// The prices that were asked for, counted from --from even where it cannot sell for that little.
CurveSteps stepsOf(const CurveOptions& options, PriceFunction& sale, const Session& session) {
  CurveSteps steps;
  steps.origin = priceOf("--from", options.from, sale, session);
  steps.range.first = std::max(sale.range().first, steps.origin);
  steps.range.last =
      options.to.empty() ? usualEnd(sale, steps.range.first) : priceOf("--to", options.to, sale, session);
  if (steps.range.first >= steps.range.last) {
    throw OptionError(options.to.empty() ? "--from: must be below " + priced(sale, steps.range.last)
                                         : "--to: must be above " + priced(sale, steps.range.first));
  }
  steps.step = stepOf(options, steps.range, session);
  return steps;
}

Table tableOf(const Curve& curve, const PriceFunction& sale, Format format) {
  const char* yes = format == Format::Text ? "yes" : "1";
  const char* no = format == Format::Text ? "" : "0";
  Table table;
  appendResultColumns(table.columns, sale, format);
  table.columns.push_back({"is_dead", "Dead", false, true});
  for (const SaleResult& point : curve.points) {
    std::vector<std::string> row;
    appendResult(row, point, sale, format);
    row.emplace_back(isDead(curve, point.price) ? yes : no);
    table.rows.push_back(std::move(row));
  }
  return table;
}

void draw(const std::string& file, const std::string& picture, Session& session) {
  if (file == "-") {
    session.out << picture;
    return;
  }
  try {
    writeWholeFile(file, picture);
  } catch (const FileError& error) {
    session.errors << "tessaloom-fees: " << error.what() << '\n';
    session.status = SomeFailed;
  }
}

void run(const CurveOptions& options, Session& session) {
  if (options.svg && options.svg->empty()) throw OptionError("--svg: the name of a file is needed, or -");
  if (options.svg && session.format != Format::Text)
    throw OptionError("--svg draws a picture: leave out --format");
  PriceFunction sale(options.sale.sale(session), session.locale());
  checkSells(sale);
  const CurveSteps steps = stepsOf(options, sale, session);
  if (options.svg) return draw(*options.svg, pictureOf(curveForPicture(sale, steps), sale), session);
  session.write(tableOf(curveAtSteps(sale, steps), sale, session.format));
}

}  // namespace

void addCurveCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "curve", "Net and fees of a single item against its price, as a picture (--svg) or a table");
  const auto options = std::make_shared<CurveOptions>();
  command
      ->add_option_function<std::string>(
          "--svg", [options](const std::string& file) { options->svg = file; },
          "draw a picture into this file; - is standard output")
      ->type_name("FILE");
  addAmountOption(*command, "--from", options->from,
                  "the first price, if it can sell for that (the lowest that can be)");
  addAmountOption(*command, "--to", options->to,
                  "the last price (100 or more, as the fees are; of vehicles 12000)");
  addAmountOption(
      *command, "--step", options->step,
      "from one price to the next, counted from --from; at most 100000 steps (round, at most 400)");
  options->sale.addTo(*command);
  addOutputOptions(*command, session);
  command->callback([options, &session] { run(*options, session); });
}
