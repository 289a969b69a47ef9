#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <sstream>

#include "amount_errors.h"
#include "amount_text.h"
#include "batch_run.h"
#include "option_table.h"
#include "option_values.h"

/// \file
/// The rows of a batch against the functions of the tabs, called as the window calls them.

namespace {

constexpr std::size_t kListings = 20'000;
const NumberLocale kPoint{".", ",", "$"};

std::string answerTo(const std::string& text, bool isFromWindow) {
  std::string output;
  std::ostringstream errors;
  BatchReport report({.name = "list.csv"}, errors);
  std::string_view rest = text;
  BatchRun{.choices = {.locale = kPoint, .isFromWindow = isFromWindow},
           .read =
               [&](std::span<char> bytes) {
                 const std::size_t count = std::min(bytes.size(), rest.size());
                 rest.copy(bytes.data(), count);
                 rest.remove_prefix(count);
                 return count;
               },
           .write = [&](std::string_view bytes) { output += bytes; },
           .threads = 3}
      .answer(report);
  return output;
}

class RandomListings {
 public:
  std::size_t below(std::size_t limit) { return m_random() % limit; }

  /// Mostly prices, some of them at the bounds of tiers, and sometimes what is none.
  std::string text() {
    constexpr std::array<std::string_view, 14> odd{"",     "0", "0.01", "9.99", "10",       "24.995", "25",
                                                   "1000", "x", "1e30", ".",    "1,234.50", "-3",     "1e20"};
    if (below(4) == 0) return std::string(odd.at(below(odd.size())));
    const std::size_t cents = below(below(2) == 0 ? 5'000 : 500'000);
    return plainText(Currency::fromTenThousandths(static_cast<std::int64_t>(cents * 100)), kPoint).substr(1);
  }

  // NOLINTNEXTLINE(modernize-return-braced-init-list): braces would hold two characters
  std::string count() { return below(20) == 0 ? text() : std::string(1, static_cast<char>('0' + below(10))); }

  bool flag() { return below(3) == 0; }

 private:
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 m_random{20040131};
};

/// A control of any kind set to something.
std::string valueFor(std::string_view name, RandomListings& random) {
  // NOLINTNEXTLINE(modernize-return-braced-init-list): braces would hold two characters
  if (name == "site") return std::string(1, static_cast<char>('1' + random.below(4)));
  if (name.find("Items") != std::string_view::npos) return random.count();
  if (name == "RateText" || name == "txtConversion") return random.below(2) == 0 ? "" : "0." + random.count();
  if (name.starts_with("txt") || name == "Amount") return random.text();
  if (name == "cboIsReserve") return random.flag() ? "1" : "0";
  // NOLINTNEXTLINE(modernize-return-braced-init-list): braces would hold two characters
  if (name.starts_with("cbo")) return std::string(1, static_cast<char>('0' + random.below(6)));
  return random.flag() ? "1" : "0";
}

using Cells = std::vector<std::string>;

/// What the window shows: a fresh set of calculators for each listing.
// NOLINTNEXTLINE(readability-function-size): a list of boxes
Cells shownFor(const Listing& listing) {
  CAuctionSite site;
  site.Site(listing.site);
  SingleItemBoxes single;
  MultipleItemsBoxes multiple;
  PaymentBoxes payment;
  std::string billpoint;
  std::string error;
  try {
    if (listing.kind == ListingKind::Single) {
      CRegularAuction auction(kPoint);
      auction.Site(site);
      single.txtStartingPrice = listing.opening;
      single.txtPrice = listing.closing;
      recalculateSingleItem(listing.single, &auction, kPoint, single);
    } else if (listing.kind == ListingKind::Multiple) {
      CDutchAuction auction(kPoint);
      auction.Site(site);
      multiple.txtDutchItemsOffered = listing.offered;
      multiple.txtDutchOpeningPrice = listing.opening;
      multiple.txtDutchItemsSold = listing.sold;
      multiple.txtDutchFinalPrice = listing.closing;
      recalculateMultipleItems(listing.multiple, {.site = &site, .auction = &auction}, kPoint, "N/A",
                               multiple);
    } else {
      CPaymentService service(kPoint);
      service.Site(site);
      payment.txtPaymentAmount = listing.kind == ListingKind::Payment ? listing.amount : "";
      if (listing.kind == ListingKind::Payment)
        recalculatePayment(listing.payment, &service, kPoint, payment);
      else
        billpoint = service.BillpointFee(listing.amount, listing.billpoint.IsDiscounted,
                                         listing.billpoint.IsCreditCard, listing.billpoint.IsInternational,
                                         listing.payment.txtConversion);
    }
  } catch (const ConversionError&) {
    error = "conversion";
  } catch (const OverflowError&) {
    error = "overflow";
  }
  return {single.txtInsertionFee,
          single.txtExtras,
          single.txtFVF,
          single.txtFees,
          single.txtPrice,
          single.txtStartingPrice,
          multiple.txtDutchFees,
          multiple.txtExtraFeaturesDutch,
          multiple.txtTotalDutchAuctionSales,
          multiple.txtDutchCostPerItem,
          multiple.txtDutchItemsSold,
          multiple.txtDutchFinalPrice,
          multiple.txtDutchOpeningPrice,
          payment.txtPaymentAmount,
          payment.txtPayPalFee,
          billpoint,
          error};
}

std::string quotedAll(const Cells& cells) {
  std::string line;
  for (const std::string& cell : cells) line += '"' + cell + "\",";
  line.back() = '\n';
  return line;
}

/// The cells of every row but the first, from one column on.
std::vector<Cells> answersFrom(const std::string& output, std::size_t first) {
  std::vector<Cells> rows;
  CsvReader reader(output, ',');
  CsvRow row;
  for (reader.next(row); reader.next(row);)
    rows.emplace_back(row.cells.begin() + static_cast<std::ptrdiff_t>(first), row.cells.end());
  return rows;
}

Listing windowListing(ListingKind kind, const Cells& cells) {
  Listing listing;
  listing.kind = kind;
  std::size_t at = 1;
  for (const WindowControl& control : windowControls()) {
    if ((control.scope & scopeOf(kind)) != 0 && !cells[at].empty()) control.set(listing, cells[at]);
    ++at;
  }
  return listing;
}

TEST(BatchProperty, EveryBoxIsTheWindows) {
  RandomListings random;
  Cells header{"kind"};
  for (const WindowControl& control : windowControls()) header.emplace_back(control.name);
  std::string text = quotedAll(header);
  std::vector<Cells> inputs;
  for (std::size_t at = 0; at < kListings; ++at) {
    Cells cells{std::string(nameOf(static_cast<ListingKind>(random.below(4))))};
    for (const WindowControl& control : windowControls()) cells.push_back(valueFor(control.name, random));
    text += quotedAll(cells);
    inputs.push_back(std::move(cells));
  }
  const auto answers = answersFrom(answerTo(text, true), header.size());
  ASSERT_EQ(answers.size(), inputs.size());
  std::size_t errors = 0;
  for (std::size_t at = 0; at < inputs.size(); ++at) {
    const Cells shown = shownFor(windowListing(*kindOf(inputs[at][0]), inputs[at]));
    ASSERT_EQ(answers[at], shown) << quotedAll(inputs[at]);
    if (!shown.back().empty()) ++errors;
  }
  // The rows are worth comparing: both ways of ending occur often.
  EXPECT_GT(errors, inputs.size() / 20);
  EXPECT_LT(errors, inputs.size() / 2);
}

std::string optionValue(const Option& option, RandomListings& random) {
  if (option.name == "site") return std::string(nameOfSite(1 + static_cast<int>(random.below(4))));
  if (option.name == "rate") return random.below(2) == 0 ? "" : "0.8" + random.count();
  if (option.name == "pictures") return random.below(2) == 0 ? "" : random.flag() ? "pack" : "3";
  if (option.name == "real-estate") return random.below(8) != 0 ? "" : "30-day-ad";
  if (option.name == "motors" || option.name == "vehicle") return random.below(8) == 0 ? "1" : "0";
  if (option.kind == OptionKind::Flag) return random.flag() ? "yes" : "";
  if (option.kind == OptionKind::Count) return random.count();
  return random.text();
}

using Row = std::pair<ListingKind, Cells>;

/// The listing of a row, or nothing if one of its cells cannot stand there.
std::optional<Listing> listingOf(const Row& row) {
  const auto& [kind, cells] = row;
  Listing listing = plainListing(kind);
  try {
    for (std::size_t at = 0; at < options().size(); ++at) {
      const Option& option = options()[at];
      if ((option.scope & scopeOf(kind)) == 0 || cells[at].empty()) continue;
      option.set(listing, readValue(option, cells[at], kPoint, false));
    }
    checkOffered(listing);
    checkComplete(listing);
    checkEntries(listing, kPoint);
  } catch (const OptionError&) {
    return std::nullopt;
  }
  return listing;
}

/// What the boxes of a listing's tab come to, in the order of the fees that a batch writes; nothing if the
/// tab has no answer. Throws OverflowError where the net is too large an amount.
std::optional<Cells> boxesOf(const Listing& listing) {
  const Cells shown = shownFor(listing);
  if (!shown.back().empty()) return std::nullopt;
  const auto money = [](const std::string& text) {
    return text.empty() ? 0 : toCurrency(text, kPoint).tenThousandths();
  };
  const auto text = [](std::int64_t units) {
    return twoDecimals(Currency::fromTenThousandths(units), kPoint);
  };
  if (listing.kind == ListingKind::Single) {
    const std::int64_t revenue = shown[2].empty() ? 0 : money(shown[4]);
    return Cells{shown[0], shown[1], shown[2], shown[3], "", text(revenue - money(shown[3]))};
  }
  if (listing.kind == ListingKind::Multiple) {
    if (shown[6].empty()) return std::nullopt;
    const std::string rest = text(money(shown[6]) - money(shown[7]));
    return Cells{rest, shown[7], "", shown[6], "", text(money(shown[8]) - money(shown[6]))};
  }
  // The older service's fee is a plain text; it is paid in cents.
  const std::string fee =
      listing.kind == ListingKind::Payment ? shown[14] : twoDecimals(std::string_view(shown[15]), kPoint);
  if (fee.empty() || fee == "N/A") return std::nullopt;
  return Cells{"", "", "", "", fee, text(money(listing.amount) - money(fee))};
}

std::optional<Cells> feesOf(const Listing& listing) {
  try {
    return boxesOf(listing);
  } catch (const OverflowError&) {
    return std::nullopt;
  }
}

std::string sumOf(const std::string& one, const std::string& other) {
  if (one.empty() && other.empty()) return "";
  return twoDecimals(
      toCurrency(one.empty() ? "0" : one, kPoint) + toCurrency(other.empty() ? "0" : other, kPoint), kPoint);
}

/// A batch's answer put together as the boxes show it: they do not tell the reserve fee from the insertion
/// fee, nor, with several items, that from the final value fee.
Cells asShown(ListingKind kind, const Cells& fees) {
  const bool isMultiple = kind == ListingKind::Multiple;
  return {sumOf(fees[0], isMultiple ? fees[3] : fees[1]),
          fees[2],
          isMultiple ? "" : fees[3],
          fees[4],
          fees[5],
          fees[6]};
}

class FeeRows {
 public:
  /// Answers so many random rows and compares them with the tabs.
  void compare(std::size_t count) {
    Cells header{"kind"};
    for (const Option& option : options()) header.emplace_back(option.name);
    std::string table = quotedAll(header);
    std::vector<Row> rows;
    for (std::size_t at = 0; at < count; ++at) {
      Row row{static_cast<ListingKind>(m_random.below(4)), {}};
      for (const Option& option : options()) row.second.push_back(optionValue(option, m_random));
      table += std::string(nameOf(row.first)) + ',' + quotedAll(row.second);
      rows.push_back(std::move(row));
    }
    const auto answers = answersFrom(answerTo(table, false), header.size());
    ASSERT_EQ(answers.size(), rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) ASSERT_NO_FATAL_FAILURE(compare(rows[at], answers[at]));
  }

  std::size_t priced = 0;

 private:
  void compare(const Row& row, const Cells& answer) {
    const auto listing = listingOf(row);
    const auto fees = listing ? feesOf(*listing) : std::nullopt;
    ASSERT_EQ(answer[8].empty(), fees.has_value()) << answer[8] << '\n' << quotedAll(row.second);
    if (!fees) return;
    ++priced;
    ASSERT_EQ(asShown(row.first, answer), *fees) << quotedAll(row.second);
    CAuctionSite site;
    site.Site(listing->site);
    ASSERT_EQ(answer[7], site.CurrencyString()) << quotedAll(row.second);
  }

  RandomListings m_random;
};

TEST(BatchProperty, EveryFeeIsTheTabs) {
  FeeRows rows;
  while (rows.priced < kListings && !HasFatalFailure()) rows.compare(kListings);
}

}  // namespace
