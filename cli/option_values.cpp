#include "option_values.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>

#include "amount_text.h"
#include "ascii_text.h"
#include "entry_rules.h"
#include "number_shape.h"
#include "quoted_text.h"
#include "short_amount.h"

namespace {

constexpr std::array<std::string_view, 4> kKinds{"single", "multiple", "payment", "billpoint"};
constexpr std::array<std::string_view, 4> kSites{"us", "uk", "ca", "de"};
constexpr std::array<std::string_view, 4> kSiteHeadings{"eBay.com", "eBay UK", "eBay Canada", "eBay Germany"};

bool isSame(std::string_view text, std::string_view lowerCase) {
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [](char one, char other) { return inLowerCase(one) == other; });
}

[[noreturn]] void fail(const Option& option, std::string_view text, std::string_view why) {
  throw OptionError(std::string(option.name) + ": " + quotedText(text) + ' ' + std::string(why));
}

constexpr const char* kNoNumber = "is no number";

/// The largest number of items that the window's boxes take.
constexpr int kMostItems = 32767;

/// A number of items; nothing for a text that is none, or too large a one.
std::optional<int> countOf(std::string_view text) {
  int count = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), count);
  if (read.ec != std::errc() || count > kMostItems) return std::nullopt;
  return count;
}

/// What is offered on eBay.com alone.
void checkFeatures(bool hasDesigner, bool hasGift, bool isUS) {
  if (hasDesigner && !isUS) throw OptionError("Listing Designer is offered on eBay.com only");
  if (hasGift && !isUS) throw OptionError("gift services are offered on eBay.com only");
}

/// What the tab of a single item does not offer.
void checkSingle(const Listing& listing, OptionNaming named) {
  const SingleItemChoices& single = listing.single;
  const bool isUS = listing.site == CAuctionSite::eBayUS;
  const bool isGermany = listing.site == CAuctionSite::eBayGermany;
  if (single.chkRealEstate && isGermany) throw OptionError("eBay Germany has no real estate");
  if (single.chkRealEstate && single.chkMotors) throw OptionError("real estate is not sold on eBay Motors");
  if (single.optTimeshare && !single.chkRealEstate)
    throw OptionError("a timeshare needs " + named("real-estate"));
  if (single.optMotorcycle && !isUS && !isGermany)
    throw OptionError("motorcycles are told from other vehicles on eBay.com and eBay Germany only");
  if (single.cboIsReserve != 0 && isGermany) throw OptionError("eBay Germany has no reserve");
  if (single.cboIsReserve != 0 && listing.isFixedPrice)
    throw OptionError("a fixed-price listing has no reserve");
  checkFeatures(single.chkListingDesigner, single.chkGiftIcon, isUS);
}

/// What the tab of several items does not offer.
void checkMultiple(const Listing& listing) {
  const MultipleItemsChoices& multiple = listing.multiple;
  const bool isUS = listing.site == CAuctionSite::eBayUS;
  if (multiple.chkEBayMotorsDutch && !isUS)
    throw OptionError("several items are sold on eBay Motors on eBay.com only");
  checkFeatures(multiple.chkDutchListingDesigner, multiple.chkDutchGreatGift, isUS);
}

/// The listing fee is taken from the opening price. Real estate and vehicles pay the same fees whatever they
/// open at, but for that of a reserve.
void checkSingleComplete(const Listing& listing) {
  const SingleItemChoices& single = listing.single;
  const bool isFixedFee = (single.chkRealEstate || single.chkVehicle) && single.cboIsReserve == 0;
  if (listing.opening.empty() && !isFixedFee) throw OptionError("an opening price is needed");
}

/// With items left over every winner pays the opening price, so that no bid needs to be known.
void checkSeveralComplete(const Listing& listing, OptionNaming named) {
  const auto offered = countOf(listing.offered);
  const auto sold = countOf(listing.sold);
  std::string missing;
  const auto need = [&](const char* option, bool isMissing) {
    if (isMissing) missing.append(missing.empty() ? "" : ", ").append(named(option));
  };
  need("offered", !offered);
  need("sold", !sold);
  need("opening", listing.opening.empty());
  need("closing", listing.closing.empty() && offered && sold && *sold >= *offered);
  if (!missing.empty()) throw OptionError("needed: " + missing);
}

void checkSoldAreOffered(const Listing& listing) {
  const int offered = countOf(listing.offered).value_or(kMostItems);
  const int sold = countOf(listing.sold).value_or(0);
  if (sold > offered) throw OptionError(fmt::format("more items sold than offered: {} of {}", sold, offered));
}

void checkCount(const Option& option, std::string_view text, const NumberLocale& locale) {
  if (!std::all_of(text.begin(), text.end(), isDigit))
    fail(option, text, isNegative(text, locale) ? "is below zero" : "is no whole number");
  if (!countOf(text)) fail(option, text, "is too large: at most 32767");
}

/// What is wrong with signs that stand where they cannot, or that could mean two things, in a number without
/// the blanks that group it.
std::string wrongSigns(std::string_view number, OptionKind kind, const NumberLocale& locale,
                       bool hasDecimal) {
  // The same signs, the other way round.
  if (!isNumeric(number, {.decimal = locale.group, .group = locale.decimal, .currency = locale.currency}))
    return kNoNumber;
  if (hasDecimal) return "is no number with the decimal sign " + locale.decimal;
  if (!isShapedWith(',', number, kind)) return kNoNumber;
  return isShapedWith('.', number, kind) ? "could mean two numbers: say --decimal . or --decimal ,"
                                         : "is a number with a decimal comma only: say --decimal ,";
}

}  // namespace

std::string asTyped(std::string_view name) { return "--" + std::string(name); }

std::string asColumn(std::string_view name) {
  std::string column(name);
  std::replace(column.begin(), column.end(), '-', '_');
  return column;
}

int indexIn(std::span<const std::string_view> values, std::string_view text) {
  const auto found =
      std::find_if(values.begin(), values.end(), [&](std::string_view value) { return isSame(text, value); });
  if (found == values.end()) {
    std::string known;
    for (const std::string_view value : values) known.append(known.empty() ? "" : ", ").append(value);
    throw OptionError(quotedText(text) + " is none of " + known);
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

std::string_view headingOfSite(std::int32_t site) {
  return kSiteHeadings.at(static_cast<std::size_t>(site - 1));
}

bool flagOf(std::string_view text) {
  if (text.empty() || text == "0") return false;
  if (text == "1") return true;
  for (const std::string_view yes : {"yes", "y", "true", "x"}) {
    if (isSame(text, yes)) return true;
  }
  for (const std::string_view no : {"no", "n", "false"}) {
    if (isSame(text, no)) return false;
  }
  throw OptionError(quotedText(text) + " is neither yes nor no");
}

std::string readValue(const Option& option, std::string_view text, const NumberLocale& locale,
                      bool hasDecimal) {
  const bool isNumber = option.kind == OptionKind::Amount || option.kind == OptionKind::Rate;
  if (option.kind == OptionKind::Count && !text.empty()) checkCount(option, text, locale);
  if (!isNumber || text.empty()) return std::string(text);
  // Nearly every number is plain: with three decimals alone it could mean another.
  const auto amount = shortAmountOf(text, locale);
  if (amount && amount->units >= 0 && amount->decimals != kGroupDigits) return std::string(text);
  std::string number = withoutGroupBlanks(text, option.kind);
  if (!hasClearSigns(number, option.kind, locale, hasDecimal))
    fail(option, text, wrongSigns(number, option.kind, locale, hasDecimal));
  if (!isNumeric(number, locale)) fail(option, text, kNoNumber);
  if (isNegative(number, locale)) fail(option, text, "is below zero");
  return number;
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

void checkOffered(const Listing& listing, OptionNaming named) {
  if (listing.kind == ListingKind::Single) checkSingle(listing, named);
  if (listing.kind == ListingKind::Multiple) checkMultiple(listing);
}

void checkComplete(const Listing& listing, OptionNaming named) {
  switch (listing.kind) {
    case ListingKind::Single:
      return checkSingleComplete(listing);
    case ListingKind::Multiple:
      return checkSeveralComplete(listing, named);
    case ListingKind::Payment:
    case ListingKind::Billpoint:
      if (listing.amount.empty()) throw OptionError("an amount is needed");
  }
}

void checkEntries(const Listing& listing, const NumberLocale& locale) {
  constexpr int fewest = 2;
  if (listing.kind == ListingKind::Multiple && countOf(listing.offered).value_or(fewest) < fewest)
    throw OptionError("several items are two or more");
  if (listing.kind == ListingKind::Multiple) checkSoldAreOffered(listing);
  const bool isGerman = listing.kind == ListingKind::Single && listing.site == CAuctionSite::eBayGermany;
  if (isGerman && isBelowGermanMinimum(listing.opening, locale))
    throw OptionError("eBay Germany takes no opening price below " + germanMinimum(locale));
}
