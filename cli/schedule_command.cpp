#include "schedule_command.h"

#include <memory>

#include "explain_words.h"
#include "option_values.h"
#include "payment_service.h"
#include "pricing.h"
#include "schedule_names.h"

namespace {

const std::string kSource = "built in, not eBay's prices of today";

const FeeCell& cellOf(Figure figure, std::int32_t site) {
  return kFeeSchedule[static_cast<std::size_t>(figure)].sites[static_cast<std::size_t>(site - 1)];
}

bool matters(const FigureName& name, std::int32_t site) {
  const bool isZero = cellOf(name.figure, site).value <= 0.0;
  switch (name.zero) {
    case FigureZero::Free:
      return true;
    case FigureZero::NoRule:
      return !isZero;
    case FigureZero::FreeBesideReserve:
      return cellOf(Figure::ReserveThirdTierLower, site).value > 0.0;
    case FigureZero::OnlyOnEBayCom:
      return site == CAuctionSite::eBayUS;
    case FigureZero::NeverAsked:
      break;
  }
  return false;
}

std::string unitOf(const FigureName& name, const FeeCell& cell, const std::string& currency) {
  const std::string money = cell.followsTheRate ? "US dollars, follows the rate" : currency;
  switch (name.unit) {
    case FigureUnit::Amount:
      return "amount in " + money;
    case FigureUnit::Bound:
      return "bound in " + money;
    case FigureUnit::Rate:
      return "per cent";
    case FigureUnit::ExchangeRate:
      break;
  }
  return currency + " for one US dollar";
}

std::string percentage(double share, const ExplainWords& words) {
  constexpr double hundred = 100.0;
  return words.number(static_cast<float>(share * hundred));
}

std::string valueOf(const FigureName& name, const FeeCell& cell, const ExplainWords& words) {
  if (name.unit == FigureUnit::Rate) return percentage(cell.value, words);
  if (name.unit == FigureUnit::ExchangeRate) return words.number(static_cast<float>(cell.value));
  return words.money(static_cast<float>(cell.value));
}

struct ShareName {
  const char* name;
  double share;
};

// The payment service keeps its own percentages, the same on all sites.
constexpr ShareName kPayPalShares[] = {
    {"PayPal, share of the amount", CPaymentService::kStandardShare},
    {"PayPal, share of the amount, merchant", CPaymentService::kMerchantShare},
    {"PayPal, international surcharge", CPaymentService::kInternationalShare},
};

}  // namespace

Table scheduleTable(std::int32_t site, const NumberLocale& locale, Format format) {
  const ExplainWords words(locale);
  Listing listing;
  listing.site = site;
  const std::string currency = Pricer::currencyOf(listing);
  Table table{.title = "Fee schedule, site " + std::string(nameOfSite(site)) + ": " + kSource,
              .columns = {{"figure", "Figure"}, {"value", "Value", true}, {"unit", "Unit"}},
              .rows = {}};
  for (const FigureName& name : figureNames()) {
    const FeeCell& cell = cellOf(name.figure, site);
    if (matters(name, site))
      table.rows.push_back(
          {std::string(name.name), valueOf(name, cell, words), unitOf(name, cell, currency)});
  }
  for (const ShareName& row : kPayPalShares)
    table.rows.push_back({row.name, percentage(row.share, words), "per cent"});
  if (format == Format::Text) return table;
  table.columns.push_back({"source", "Source"});
  for (auto& row : table.rows) row.push_back(kSource);
  return table;
}

void addScheduleCommand(CLI::App& program, Session& session) {
  CLI::App* command =
      program.add_subcommand("schedule", "The built-in fee schedule of a site, not eBay's prices of today");
  const auto site = std::make_shared<std::string>("us");
  command->add_option("--site", *site, "the eBay site (us)")->type_name("us|uk|ca|de");
  addOutputOptions(*command, session);
  command->callback(
      [site, &session] { session.write(scheduleTable(siteOf(*site), session.locale(), session.format)); });
}
