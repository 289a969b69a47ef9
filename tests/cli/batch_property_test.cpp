#include <gtest/gtest.h>

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

constexpr int kListings = 20'000;
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
  for (int at = 0; at < kListings; ++at) {
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

TEST(BatchProperty, EveryFeeIsTheTabs) {
  RandomListings random;
  Cells header{"kind"};
  for (const Option& option : options()) header.emplace_back(option.name);
  std::string text = quotedAll(header);
  std::vector<Cells> inputs;
  for (int at = 0; at < kListings; ++at) {
    Cells cells{std::string(nameOf(static_cast<ListingKind>(random.below(4))))};
    for (const Option& option : options()) cells.push_back(optionValue(option, random));
    text += quotedAll(cells);
    inputs.push_back(std::move(cells));
  }
  const auto answers = answersFrom(answerTo(text, false), header.size());
  ASSERT_EQ(answers.size(), inputs.size());
  std::size_t priced = 0;
  for (std::size_t at = 0; at < inputs.size(); ++at) {
    const Cells& fees = answers[at];
    if (!fees[8].empty()) continue;
    ++priced;
    const ListingKind kind = *kindOf(inputs[at][0]);
    Listing listing = plainListing(kind);
    for (std::size_t column = 0; column < options().size(); ++column) {
      const Option& option = options()[column];
      if ((option.scope & scopeOf(kind)) != 0 && !inputs[at][column + 1].empty())
        option.set(listing, inputs[at][column + 1]);
    }
    const Cells shown = shownFor(listing);
    ASSERT_EQ(shown.back(), "") << quotedAll(inputs[at]);
    if (kind == ListingKind::Single) {
      ASSERT_EQ(fees[4], shown[3]) << quotedAll(inputs[at]);
      ASSERT_EQ(fees[2], shown[1]) << quotedAll(inputs[at]);
      ASSERT_EQ(fees[3], shown[2]) << quotedAll(inputs[at]);
    } else if (kind == ListingKind::Multiple) {
      ASSERT_EQ(fees[4], shown[6]) << quotedAll(inputs[at]);
      ASSERT_EQ(fees[2], shown[7]) << quotedAll(inputs[at]);
    } else {
      ASSERT_EQ(fees[5],
                kind == ListingKind::Payment ? shown[14] : twoDecimals(std::string_view(shown[15]), kPoint))
          << quotedAll(inputs[at]);
    }
  }
  EXPECT_GT(priced, inputs.size() / 10);
}

}  // namespace
