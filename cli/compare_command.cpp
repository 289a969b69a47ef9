#include "compare_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <CLI/CLI.hpp>
#include <memory>

#include "explain_words.h"
#include "listing_options.h"
#include "option_values.h"
#include "pricing.h"

namespace {

constexpr const char* kNotOffered = "not offered";
constexpr const char* kOwnCurrencies = "Each site in its own currency; nothing is converted.";

/// One of the listings that stand side by side.
struct Compared {
  std::string key;      ///< for programs
  std::string heading;  ///< for people
  std::string currency;
  Fees fees;
  std::string error;  ///< why there are no fees
};

Compared compared(Pricer& pricer, const Listing& listing, std::string key, std::string heading) {
  Compared result{.key = std::move(key),
                  .heading = std::move(heading),
                  .currency = Pricer::currencyOf(listing),
                  .fees = {},
                  .error = {}};
  try {
    checkOffered(listing);
    checkEntries(listing, pricer.locale());
    result.fees = pricer.price(listing);
  } catch (const OptionError& error) {
    result.error = error.what();
  }
  return result;
}

std::vector<Compared> bySite(Pricer& pricer, Listing listing) {
  std::vector<Compared> all;
  for (listing.site = CAuctionSite::eBayUS; listing.site <= CAuctionSite::eBayGermany; ++listing.site)
    all.push_back(compared(pricer, listing, std::string(nameOfSite(listing.site)),
                           std::string(headingOfSite(listing.site))));
  return all;
}

/// How a listing ended, with the price that counted: "Sold at 25.00", "3 of 5 sold at 10.00".
std::string outcomeOf(const Listing& listing, const SoldItems& sold, const ExplainWords& words) {
  if (listing.kind == ListingKind::Multiple) {
    if (sold.count == 0) return "None sold";
    return fmt::format("{} of {} sold at {}", sold.count, sold.offered, words.price(sold.price));
  }
  if (sold.count > 0) return "Sold at " + words.price(sold.price);
  // A bid below the reserve wins nothing.
  return listing.single.chkDidNotSell ? "Unsold" : "Unsold at " + words.price(listing.closing);
}

/// Several items all sell at the lowest bid, or as many as were sold do at the opening price: with items left
/// over no higher bid counts.
std::vector<Compared> byOutcome(Pricer& pricer, const Listing& listing) {
  if (listing.closing.empty()) throw OptionError("--by outcome needs --closing, the price aimed at");
  if (listing.opening.empty())
    throw OptionError("--by outcome needs --opening, the lowest price it can sell for");
  std::vector<Compared> all;
  const auto add = [&](const Listing& outcome, const char* key) {
    all.push_back(compared(pricer, outcome, key, {}));
    all.back().heading = outcomeOf(outcome, all.back().fees.sold, ExplainWords(pricer.locale()));
  };
  Listing target = listing;
  if (!listing.sold.empty()) target.sold = listing.offered;
  add(target, "target");
  Listing opening = listing;
  opening.closing = listing.opening;
  add(opening, "opening");
  opening.single.chkDidNotSell = true;
  opening.sold = "0";
  add(opening, "unsold");
  return all;
}

/// Fees as rows, the listings as columns; why one is not offered stands above them.
Table sideBySide(const std::vector<Compared>& all, bool isBySite) {
  Table table{.title = isBySite ? kOwnCurrencies : "", .columns = {{"fee", ""}}, .rows = {}};
  std::vector<std::string> currencies{"Currency"};
  for (const Compared& one : all) {
    table.columns.push_back({one.key, one.heading, true});
    currencies.push_back(one.currency);
    if (!one.error.empty()) table.title += "\n" + one.heading + ": " + one.error + '.';
  }
  table.rows.push_back(std::move(currencies));
  for (const FeeColumn& column : kFeeColumns) {
    std::vector<std::string> cells{column.heading};
    bool isCharged = false;
    for (const Compared& one : all) {
      isCharged = isCharged || !(one.fees.*column.fee).empty();
      cells.push_back(one.error.empty() ? one.fees.*column.fee : kNotOffered);
    }
    if (isCharged) table.rows.push_back(std::move(cells));
  }
  return table;
}

/// One row for each listing.
Table oneByOne(const std::vector<Compared>& all, bool isBySite) {
  Table table{.title = {}, .columns = {{isBySite ? "site" : "outcome", ""}, {"currency", ""}}, .rows = {}};
  for (const FeeColumn& column : kFeeColumns) table.columns.push_back({column.key, column.heading, true});
  table.columns.push_back({"error", ""});
  for (const Compared& one : all) {
    std::vector<std::string> cells{one.key, one.currency};
    for (const FeeColumn& column : kFeeColumns) cells.push_back(one.fees.*column.fee);
    cells.push_back(one.error);
    table.rows.push_back(std::move(cells));
  }
  return table;
}

struct CompareOptions {
  ListingOptions listing;
  std::string kind = "single";
  std::string by = "site";
};

void compare(const CompareOptions& options, Session& session) {
  const bool isBySite = options.by == "site";
  if (isBySite && options.listing.isGiven("site"))
    throw OptionError("--site is for --by outcome; --by site shows all of them");
  if (!isBySite && options.listing.isGiven("did-not-sell"))
    throw OptionError("--did-not-sell is one of the outcomes of --by outcome");
  const Listing listing =
      options.listing.listing(*kindOf(options.kind), session.locale(), !session.decimal.empty());
  Pricer pricer(session.locale());
  const std::vector<Compared> all = isBySite ? bySite(pricer, listing) : byOutcome(pricer, listing);
  const bool isComplete =
      std::all_of(all.begin(), all.end(), [](const Compared& one) { return one.error.empty(); });
  if (!isComplete) session.status = SomeFailed;
  session.write(session.format == Format::Text ? sideBySide(all, isBySite) : oneByOne(all, isBySite));
}

}  // namespace

void addCompareCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand("compare", "One listing on all sites, or in all its outcomes");
  const auto options = std::make_shared<CompareOptions>();
  takesOneOf(command->add_option("--kind", options->kind, "what is sold (single)"), "single|multiple");
  takesOneOf(command->add_option(
                 "--by", options->by,
                 "site: on each site, in its own currency; outcome: sold at --closing, sold at --opening, "
                 "unsold; of several items all sold at --closing, --sold of them at --opening, none (site)"),
             "site|outcome");
  options->listing.addTo(*command, ForListings);
  addOutputOptions(*command, session);
  command->callback([options, &session] { compare(*options, session); });
}
