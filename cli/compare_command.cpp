#include "compare_command.h"

#include <array>
#include <memory>

#include "listing_options.h"
#include "option_values.h"
#include "price_commands.h"

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
    result.fees = pricer.price(listing);
  } catch (const OptionError& error) {
    result.error = error.what();
  }
  return result;
}

std::vector<Compared> bySite(Pricer& pricer, Listing listing) {
  constexpr std::array<const char*, 4> headings{"eBay.com", "eBay UK", "eBay Canada", "eBay Germany"};
  std::vector<Compared> all;
  for (listing.site = CAuctionSite::eBayUS; listing.site <= CAuctionSite::eBayGermany; ++listing.site)
    all.push_back(compared(pricer, listing, std::string(nameOfSite(listing.site)),
                           headings.at(static_cast<std::size_t>(listing.site - 1))));
  return all;
}

std::vector<Compared> byOutcome(Pricer& pricer, Listing listing) {
  if (listing.closing.empty()) throw OptionError("--by outcome needs --closing, the price aimed at");
  std::vector<Compared> all{compared(pricer, listing, "target", "Sold at " + listing.closing)};
  listing.closing = listing.opening;
  all.push_back(
      compared(pricer, listing, "opening", "Sold at " + (listing.opening.empty() ? "0" : listing.opening)));
  listing.single.chkDidNotSell = true;
  listing.sold = "0";
  all.push_back(compared(pricer, listing, "unsold", "Unsold"));
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
  for (const FeeColumn& column : feeColumns()) {
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
  for (const FeeColumn& column : feeColumns()) table.columns.push_back({column.key, column.heading, true});
  table.columns.push_back({"error", ""});
  for (const Compared& one : all) {
    std::vector<std::string> cells{one.key, one.currency};
    for (const FeeColumn& column : feeColumns()) cells.push_back(one.fees.*column.fee);
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
  session.write(session.format == Format::Text ? sideBySide(all, isBySite) : oneByOne(all, isBySite));
}

}  // namespace

void addCompareCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand("compare", "One listing on all sites, or in all its outcomes");
  const auto options = std::make_shared<CompareOptions>();
  command->add_option("--kind", options->kind, "single or multiple (single)")
      ->check(CLI::IsMember({"single", "multiple"}).description(""))
      ->type_name("KIND");
  command
      ->add_option("--by", options->by,
                   "site: on each site, in its own currency; outcome: sold at --closing, sold at --opening, "
                   "unsold (site)")
      ->check(CLI::IsMember({"site", "outcome"}).description(""))
      ->type_name("site|outcome");
  options->listing.addTo(*command, ForListings);
  addOutputOptions(*command, session);
  command->callback([options, &session] { compare(*options, session); });
}
