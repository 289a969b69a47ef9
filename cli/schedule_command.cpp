#include "schedule_command.h"

#include <algorithm>
#include <array>
#include <CLI/CLI.hpp>
#include <memory>

#include "explain_words.h"
#include "option_values.h"
#include "payment_service.h"
#include "pricing.h"
#include "schedule_names.h"

namespace {

const std::string kBuiltIn = "built in, not eBay's prices of today";
constexpr const char* kAbsent = "not on this site";

/// What a number alone would not tell.
struct Remark {
  Figure figure;
  std::int32_t site;
  const char* text;
};

constexpr auto kRemarks = std::to_array<Remark>({
    {Figure::ListingFeeSixthTierUpper, CAuctionSite::eBayUK, "as tier 5, so tier 6 is never reached"},
    {Figure::ListingFeeSixthTierUpper, CAuctionSite::eBayGermany, "as tier 5, so tier 6 is never reached"},
    {Figure::VehicleSaleMotorcycle, CAuctionSite::eBayUK, "as any vehicle"},
    {Figure::VehicleSaleLowest, CAuctionSite::eBayGermany, "the share comes on top"},
    {Figure::VehicleSaleShareFrom, CAuctionSite::eBayGermany, "from any price on"},
    {Figure::ReserveThirdTierShare, CAuctionSite::eBayUS, "of a vehicle nothing"},
    {Figure::ListingDesigner, CAuctionSite::eBayGermany, "charged, but not offered by the window"},
});

/// What a site may have none of, and a figure that is a nought there.
struct Offer {
  Figure figure;
  const char* name;
};

constexpr auto kOffers = std::to_array<Offer>({
    {Figure::RealEstateOtherThreeToTenDayAuction, "real estate"},
    {Figure::ReserveSecondTierLower, "reserves"},
    {Figure::GiftIconOther, "gift services"},
    {Figure::ListingDesigner, "Listing Designer"},
    {Figure::BillpointFlatFee, "eBay Payments"},
    {Figure::DefaultConversionRate, "conversion of dollars"},
});

bool isAbsent(const FigureName& name, std::int32_t site) {
  if (cellOf(name.figure, site).value > 0.0) return false;
  const bool hasNoReserve = cellOf(Figure::ReserveSecondTierLower, site).value <= 0.0;
  return name.zero == FigureZero::Absent || (name.zero == FigureZero::FreeBesideReserve && hasNoReserve);
}

std::string remarkOf(const FigureName& name, std::int32_t site) {
  const auto* const remark = std::find_if(kRemarks.begin(), kRemarks.end(), [&](const Remark& each) {
    return each.figure == name.figure && each.site == site;
  });
  if (remark != kRemarks.end()) return remark->text;
  return isAbsent(name, site) ? kAbsent : "";
}

/// "Not on this site: real estate, reserves."
std::string absentOffers(std::int32_t site) {
  std::string text;
  for (const Offer& offer : kOffers) {
    if (cellOf(offer.figure, site).value <= 0.0) text.append(text.empty() ? "" : ", ").append(offer.name);
  }
  return "Not on this site: " + text + ".";
}

std::string headingOf(std::int32_t site) {
  return "Fee schedule of " + std::string(headingOfSite(site)) + ", " + kBuiltIn;
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

std::int32_t siteAsked(const std::string& name) {
  try {
    return siteOf(name);
  } catch (const OptionError& error) {
    throw OptionError(std::string("--site: ") + error.what());
  }
}

using Row = std::vector<std::string>;

/// Every figure that some listing or payment can lead to: name, value, unit and remark.
std::vector<Row> rowsOf(std::int32_t site, const ExplainWords& words) {
  Listing listing;
  listing.site = site;
  const std::string currency = Pricer::currencyOf(listing);
  std::vector<Row> rows;
  for (const FigureName& name : figureNames()) {
    if (name.zero == FigureZero::NeverAsked) continue;
    const FeeCell& cell = cellOf(name.figure, site);
    rows.push_back({std::string(name.name), isAbsent(name, site) ? std::string() : valueOf(name, cell, words),
                    unitOf(name, cell, currency), remarkOf(name, site)});
  }
  for (const ShareName& row : kPayPalShares)
    rows.push_back({row.name, percentage(row.share, words), "per cent", ""});
  return rows;
}

}  // namespace

Table scheduleTable(std::int32_t site, const NumberLocale& locale, Format format) {
  Table table{
      .title = headingOf(site) + ".\n" + absentOffers(site),
      .columns = {{"figure", "Figure"}, {"value", "Value", true}, {"unit", "Unit"}, {"remark", "Remark"}},
      .rows = rowsOf(site, ExplainWords(locale))};
  if (format == Format::Text) {
    std::erase_if(table.rows, [](const Row& row) { return row.back() == kAbsent; });
    return table;
  }
  table.columns.insert(table.columns.begin(), {"site", "Site"});
  table.columns.push_back({"schedule", "Schedule"});
  for (Row& row : table.rows) {
    row.insert(row.begin(), std::string(nameOfSite(site)));
    row.push_back(kBuiltIn);
  }
  return table;
}

void addScheduleCommand(CLI::App& program, Session& session) {
  CLI::App* command =
      program.add_subcommand("schedule", "The built-in fee schedule of a site, not eBay's prices of today");
  const auto site = std::make_shared<std::string>("us");
  command->add_option("--site", *site, "the eBay site (us)")->type_name("us|uk|ca|de");
  addOutputOptions(*command, session);
  command->callback(
      [site, &session] { session.write(scheduleTable(siteAsked(*site), session.locale(), session.format)); });
}
