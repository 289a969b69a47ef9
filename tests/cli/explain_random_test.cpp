#include <gtest/gtest.h>

#include <array>
#include <random>

#include "amount_text.h"
#include "explain.h"
#include "option_values.h"

/// \file
/// What is explained must add up to what is shown, for any listing.

namespace {

const NumberLocale kSigns{".", ",", "$"};

class RandomListings {
 public:
  Listing next() {
    Listing listing = plainListing(static_cast<ListingKind>(below(4)));
    for (const Option& option : options()) {
      if ((option.scope & scopeOf(listing.kind)) == 0) continue;
      if (option.kind == OptionKind::Flag && below(4) == 0) option.set(listing, "1");
      if (option.name == "real-estate" && below(8) == 0) option.set(listing, pick(kRealEstate));
      if (option.name == "pictures" && below(2) == 0) option.set(listing, pick(kPictures));
    }
    listing.site = 1 + below(4);
    listing.opening = price();
    listing.closing = price();
    listing.offered = std::to_string(1 + below(20));
    listing.sold = std::to_string(below(22));
    listing.amount = price();
    if (below(2) == 0) listing.payment.txtConversion = "0." + std::to_string(1000 + below(9000));
    return listing;
  }

 private:
  static constexpr std::array<const char*, 4> kRealEstate{"3-10-day-auction", "30-day-auction", "30-day-ad",
                                                          "90-day-ad"};
  static constexpr std::array<const char*, 6> kPictures{"1", "2", "3", "4", "5", "pack"};

  int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(m_random); }

  template <std::size_t count>
  const char* pick(const std::array<const char*, count>& values) {
    return values.at(static_cast<std::size_t>(below(static_cast<int>(count))));
  }

  /// Of any size, often at a bound, now and then with three decimals.
  std::string price() {
    constexpr std::array<const char*, 12> bounds{"0",  "0.01",   "0.99", "1",    "9.995", "24.99",
                                                 "25", "499.99", "500",  "1000", "5000",  "6000"};
    if (below(4) == 0) return pick(bounds);
    constexpr std::array<int, 5> sizes{2, 30, 300, 3000, 30000};
    const int cents = 10 + below(below(5) == 0 ? 990 : 90);
    return std::to_string(below(sizes.at(static_cast<std::size_t>(below(5))))) + '.' + std::to_string(cents);
  }

  // The same listings on every run, so that a failure can be looked into.
  // NOLINTNEXTLINE(cert-msc51-cpp)
  std::mt19937 m_random{20240607};
};

Currency number(const std::string& text) { return text.empty() ? Currency{} : toCurrency(text, kSigns); }

/// How far a fee may lie from the sum of its unrounded amounts: half a cent, half a unit of the fourth
/// decimal for each of them, and what single precision leaves of seven digits.
double roundingAllowed(const ExplainedFee& fee) {
  constexpr double halfCent = 0.005;
  constexpr double halfUnit = 0.00005;
  constexpr double singlePrecision = 2e-7;
  return halfCent + halfUnit * static_cast<double>(fee.steps.size()) +
         singlePrecision * number(fee.figure).toDouble();
}

void expectStepsAddUp(const ExplainedFee& fee, const std::string& listing) {
  Currency sum;
  for (const ExplainedStep& step : fee.steps) {
    sum = sum + step.amount;
    EXPECT_FALSE(step.rule.empty()) << step.name << ": " << listing;
    const bool isLast = &step == &fee.steps.back();
    EXPECT_TRUE(step.name != "Rounded" || isLast) << fee.name << ": " << listing;
    const double rounding = step.name == "Rounded" ? std::abs(step.amount.toDouble()) : 0.0;
    EXPECT_LE(rounding, roundingAllowed(fee)) << fee.name << ": " << listing;
  }
  EXPECT_EQ(sum, number(fee.figure)) << fee.name << ": " << listing;
}

/// Fees that are parts of another add up to it.
void expectPartsAddUp(const std::vector<ExplainedFee>& fees, const std::string& listing) {
  for (const ExplainedFee& whole : fees) {
    Currency sum;
    bool hasParts = false;
    for (const ExplainedFee& part : fees) {
      if (part.partOf != whole.name) continue;
      hasParts = true;
      sum = sum + number(part.figure);
    }
    EXPECT_EQ(hasParts, whole.name == "Total fees") << whole.name << ": " << listing;
    EXPECT_EQ(sum, hasParts ? number(whole.figure) : Currency{}) << whole.name << ": " << listing;
  }
}

std::string allOf(const Fees& fees) {
  return fees.insertion + '|' + fees.reserve + '|' + fees.extras + '|' + fees.finalValue + '|' +
         fees.payment + '|' + fees.total + '|' + fees.net;
}

std::string figureOf(const std::vector<ExplainedFee>& explained, const std::string& name) {
  for (const ExplainedFee& fee : explained) {
    if (fee.name == name) return fee.figure;
  }
  return "";
}

std::string allOf(const std::vector<ExplainedFee>& explained) {
  std::string all;
  for (const char* name : {"Listing fee", "Reserve fee", "Extra features", "Final value fee", "Payment fee",
                           "Total fees", "Net"})
    all += (all.empty() && name == std::string("Listing fee") ? "" : "|") + figureOf(explained, name);
  return all;
}

std::string described(const Listing& listing) {
  return "site " + std::to_string(listing.site) + ", opening " + listing.opening + ", closing " +
         listing.closing + ", amount " + listing.amount + ", offered " + listing.offered + ", sold " +
         listing.sold;
}

void expectItAddsUp(const std::vector<ExplainedFee>& explained, const Listing& listing) {
  for (const ExplainedFee& fee : explained) {
    if (fee.steps.empty()) {
      EXPECT_FALSE(fee.rule.empty()) << fee.name << " is left without a rule: " << described(listing);
    } else {
      expectStepsAddUp(fee, described(listing));
    }
  }
  expectPartsAddUp(explained, described(listing));
}

TEST(Explain, TheStepsOfTwentyThousandListingsAddUpToWhatIsShown) {
  constexpr int wanted = 20000;
  RandomListings random;
  Pricer pricer(kSigns);
  int explained = 0;
  while (explained < wanted && !testing::Test::HasFailure()) {
    const Listing listing = random.next();
    try {
      checkOffered(listing);
      const Fees fees = pricer.price(listing);
      const auto steps = explain(pricer, listing);
      EXPECT_EQ(allOf(steps), allOf(fees));
      expectItAddsUp(steps, listing);
      ++explained;
    } catch (const OptionError&) {
      // not offered on that site
    } catch (const PricingError&) {
      // a payment that the service does not take
    }
  }
  EXPECT_EQ(explained, wanted);
}

}  // namespace
