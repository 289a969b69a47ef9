#include "curve_command.h"

#include <algorithm>
#include <memory>
#include <ostream>

#include "curve.h"
#include "curve_file.h"
#include "curve_picture.h"
#include "option_values.h"
#include "price_function_options.h"

namespace {

struct CurveOptions {
  SaleOptions sale;
  std::string svg;
  std::string from;
  std::string to;
  std::string step;
};

/// How far the curve goes if nobody says so: far enough to see what a sale leaves beside its fees; for
/// vehicles, whose fees have their steps higher, beyond those.
Cents usualEnd(PriceFunction& sale, Cents first) {
  constexpr Cents ordinary = 10'000;
  constexpr Cents vehicles = 1'200'000;
  if (sale.sale().listing.single.chkVehicle) return std::max(vehicles, 2 * first);
  return std::max({ordinary, 2 * first, 3 * sale.totalFees(first)});
}

PriceRange rangeOf(const CurveOptions& options, PriceFunction& sale, const Session& session) {
  PriceRange range = sale.range();
  if (range.first > range.last) throw OptionError("there is no price at which it can sell");
  const Cents last = range.last;
  range.first = std::max(range.first, amountOf("from", options.from, session));
  if (range.first > last) throw OptionError("from: above " + textOf(last, session.locale()));
  range.last = options.to.empty() ? usualEnd(sale, range.first) : amountOf("to", options.to, session);
  range.last = std::min(range.last, last);
  if (range.first >= range.last)
    throw OptionError("to: must be above " + textOf(range.first, session.locale()));
  return range;
}

Cents stepOf(const CurveOptions& options, PriceRange range, const Session& session) {
  constexpr Cents usualSteps = 400;
  constexpr Cents mostSteps = 2'000'000;
  const Cents span = range.last - range.first;
  if (options.step.empty()) return std::max<Cents>(1, span / usualSteps);
  const Cents step = amountOf("step", options.step, session);
  if (step == 0) throw OptionError("step: must be above zero");
  if (span / step > mostSteps) throw OptionError("step: too small for so wide a range");
  return step;
}

Table tableOf(const Curve& curve, const PriceFunction& sale) {
  Table table{.title = {},
              .columns = {{"price", "Price", true},
                          {"total_fees", "All fees", true},
                          {"net", "Net", true},
                          {"is_dead", "Dead", true}},
              .rows = {}};
  for (const SaleResult& point : curve.points) {
    table.rows.push_back({textOf(point.price, sale.locale()), textOf(point.totalFees(), sale.locale()),
                          textOf(point.net, sale.locale()), isDead(curve, point.price) ? "1" : "0"});
  }
  return table;
}

void run(const CurveOptions& options, Session& session) {
  if (!options.svg.empty() && session.format != Format::Text)
    throw OptionError("--svg draws a picture: leave out --format");
  PriceFunction sale(options.sale.sale(session), session.locale());
  const PriceRange range = rangeOf(options, sale, session);
  const Cents step = stepOf(options, range, session);
  if (options.svg.empty()) return session.write(tableOf(curveAtSteps(sale, range, step), sale));
  const std::string picture = pictureOf(curveForPicture(sale, range, step), sale);
  if (options.svg == "-") {
    session.out << picture;
    return;
  }
  try {
    writeWholeFile(options.svg, picture);
  } catch (const FileError& error) {
    session.errors << "tessaloom-fees: " << error.what() << '\n';
    session.status = SomeFailed;
  }
}

}  // namespace

void addCurveCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "curve", "Net and fees of a single item against its price, as a picture (--svg) or a table");
  const auto options = std::make_shared<CurveOptions>();
  command->add_option("--svg", options->svg, "draw a picture into this file; - is standard output")
      ->type_name("FILE");
  addAmountOption(*command, "--from", options->from, "the first price (the lowest that can be)");
  addAmountOption(*command, "--to", options->to,
                  "the last price (100 or more, as the fees are; of vehicles 12000)");
  addAmountOption(*command, "--step", options->step, "from one price to the next (a 400th of the range)");
  options->sale.addTo(*command);
  addOutputOptions(*command, session);
  command->callback([options, &session] { run(*options, session); });
}
