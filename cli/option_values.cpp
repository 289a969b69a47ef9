#include "option_values.h"

#include <algorithm>
#include <array>

#include "amount_text.h"
#include "entry_rules.h"
#include "short_amount.h"

namespace {

constexpr std::array<std::string_view, 4> kKinds{"single", "multiple", "payment", "billpoint"};
constexpr std::array<std::string_view, 4> kSites{"us", "uk", "ca", "de"};

bool isSame(std::string_view text, std::string_view lowerCase) {
  constexpr char toLower = 'a' - 'A';
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(), [](char one, char other) {
    return (one >= 'A' && one <= 'Z' ? static_cast<char>(one + toLower) : one) == other;
  });
}

}  // namespace

int indexIn(std::span<const std::string_view> values, std::string_view text) {
  const auto found =
      std::find_if(values.begin(), values.end(), [&](std::string_view value) { return isSame(text, value); });
  if (found == values.end()) {
    std::string known;
    for (const std::string_view value : values) known.append(known.empty() ? "" : ", ").append(value);
    throw OptionError("\"" + std::string(text) + "\" is none of " + known);
  }
  return static_cast<int>(found - values.begin());
}

Listing plainListing(ListingKind kind) {
  Listing listing;
  listing.kind = kind;
  listing.payment.optPayPalCreditCard = true;
  listing.billpoint.IsCreditCard = true;
  return listing;
}

OptionScope scopeOf(ListingKind kind) {
  constexpr std::array<OptionScope, 4> scopes{ForSingle, ForMultiple, ForPayment, ForBillpoint};
  return scopes.at(static_cast<std::size_t>(kind));
}

std::optional<ListingKind> kindOf(std::string_view name) {
  const auto found =
      std::find_if(kKinds.begin(), kKinds.end(), [&](std::string_view kind) { return isSame(name, kind); });
  if (found == kKinds.end()) return std::nullopt;
  return static_cast<ListingKind>(found - kKinds.begin());
}

std::string_view nameOf(ListingKind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

std::int32_t siteOf(std::string_view name) {
  if (name.size() == 1 && name[0] >= '1' && name[0] <= '4') return name[0] - '0';
  return indexIn(kSites, name) + 1;
}

std::string_view nameOfSite(std::int32_t site) { return kSites.at(static_cast<std::size_t>(site - 1)); }

bool flagOf(std::string_view text) {
  if (text.empty() || text == "0") return false;
  if (text == "1") return true;
  for (const std::string_view yes : {"yes", "y", "true", "x"}) {
    if (isSame(text, yes)) return true;
  }
  for (const std::string_view no : {"no", "n", "false"}) {
    if (isSame(text, no)) return false;
  }
  throw OptionError("\"" + std::string(text) + "\" is neither yes nor no");
}

void checkValue(const Option& option, std::string_view text, const NumberLocale& locale, bool hasDecimal) {
  if (option.kind == OptionKind::Flag || option.kind == OptionKind::Choice || text.empty()) return;
  // Nearly every number is plain: with three decimals alone it could mean another.
  const auto amount = shortAmountOf(text, locale);
  constexpr int groupDigits = 3;
  if (amount && amount->units >= 0 && amount->decimals != groupDigits) return;
  const auto fail = [&](std::string_view why) {
    constexpr std::size_t shown = 40;
    throw OptionError(std::string(option.name) + ": \"" + std::string(text.substr(0, shown)) + "\" " +
                      std::string(why));
  };
  // A rate is near one: there is nothing to group.
  if (!hasDecimal && option.kind != OptionKind::Rate && isAmbiguous(text))
    fail("could mean two numbers: say --decimal . or --decimal ,");
  if (!isNumeric(text, locale)) fail("is no number");
  if (isNegative(text, locale)) fail("is below zero");
}

std::string_view valueName(OptionKind kind) {
  switch (kind) {
    case OptionKind::Amount:
      return "AMOUNT";
    case OptionKind::Rate:
      return "RATE";
    case OptionKind::Count:
      return "COUNT";
    case OptionKind::Flag:
    case OptionKind::Choice:
      break;
  }
  return "";
}

bool isAmbiguous(std::string_view text) {
  constexpr std::size_t group = 3;
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const std::size_t sign = text.find_first_of(".,");
  if (sign == std::string_view::npos || sign == 0 || sign > group || text[0] == '0') return false;
  const std::string_view before = text.substr(0, sign);
  const std::string_view behind = text.substr(sign + 1);
  return behind.size() == group && std::all_of(before.begin(), before.end(), isDigit) &&
         std::all_of(behind.begin(), behind.end(), isDigit);
}

void checkOffered(const Listing& listing) {
  const bool isUS = listing.site == CAuctionSite::eBayUS;
  const bool isGermany = listing.site == CAuctionSite::eBayGermany;
  const SingleItemChoices& single = listing.single;
  const MultipleItemsChoices& multiple = listing.multiple;
  const bool isSingle = listing.kind == ListingKind::Single;
  const bool isMultiple = listing.kind == ListingKind::Multiple;
  if (isSingle && single.chkRealEstate && isGermany) throw OptionError("eBay Germany has no real estate");
  if (isSingle && single.chkRealEstate && single.chkMotors)
    throw OptionError("real estate is not sold on eBay Motors");
  if (isSingle && single.cboIsReserve != 0 && isGermany) throw OptionError("eBay Germany has no reserve");
  if (isSingle && single.cboIsReserve != 0 && listing.isFixedPrice)
    throw OptionError("a fixed-price listing has no reserve");
  if (isMultiple && multiple.chkEBayMotorsDutch && !isUS)
    throw OptionError("several items are sold on eBay Motors on eBay.com only");
  if (isUS) return;
  const bool hasDesigner =
      isSingle ? single.chkListingDesigner : isMultiple && multiple.chkDutchListingDesigner;
  const bool hasGift = isSingle ? single.chkGiftIcon : isMultiple && multiple.chkDutchGreatGift;
  if (hasDesigner) throw OptionError("Listing Designer is offered on eBay.com only");
  if (hasGift) throw OptionError("gift services are offered on eBay.com only");
}
