#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "listing.h"
#include "option_table.h"

/// \file
/// What the values of options and cells mean, and what is wrong with them.

/// What is wrong with an option, a cell or a combination of them. Its text is for the user.
class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// How a message names an option: as it is typed, "--real-estate", or as the column of a batch,
/// "real_estate".
using OptionNaming = std::string (*)(std::string_view name);
[[nodiscard]] std::string asTyped(std::string_view name);
[[nodiscard]] std::string asColumn(std::string_view name);

/// A listing about which nothing was said yet: eBay.com, paid by credit card.
[[nodiscard]] Listing plainListing(ListingKind kind);

[[nodiscard]] OptionScope scopeOf(ListingKind kind);
/// "single", "multiple", "payment", "billpoint"; nothing for any other text.
[[nodiscard]] std::optional<ListingKind> kindOf(std::string_view name);
[[nodiscard]] std::string_view nameOf(ListingKind kind);

/// "us", "uk", "ca", "de" or the numbers 1 to 4; throws OptionError.
[[nodiscard]] std::int32_t siteOf(std::string_view name);
[[nodiscard]] std::string_view nameOfSite(std::int32_t site);
/// "eBay.com", "eBay UK", "eBay Canada", "eBay Germany".
[[nodiscard]] std::string_view headingOfSite(std::int32_t site);

/// The place of a text among values, whatever its case; throws OptionError.
[[nodiscard]] int indexIn(std::span<const std::string_view> values, std::string_view text);

/// Whether a cell means yes: 1, yes, y, true, x; or no: empty, 0, no, n, false. Throws OptionError.
[[nodiscard]] bool flagOf(std::string_view text);

/// A value as it is calculated with: an amount without the blanks that group it. Throws OptionError for an
/// amount or a rate that is no number or below zero. If the user has said which decimal sign he writes, its
/// signs must fit that: neither "9,99" nor "1.2.3" is a number with a point; otherwise what they leave open,
/// "1.234", and what a comma alone can split, "9,99", is refused. Throws it too for a count that is more than
/// digits or above 32767. Other values, and empty ones, are not looked at.
[[nodiscard]] std::string readValue(const Option& option, std::string_view text, const NumberLocale& locale,
                                    bool hasDecimal);

/// What stands for a value in the help: "AMOUNT".
[[nodiscard]] std::string_view valueName(OptionKind kind);

/// Throws OptionError for choices that the window does not offer, such as real estate on eBay Germany.
void checkOffered(const Listing& listing, OptionNaming named = asTyped);

/// Throws OptionError for a listing without a price, a count or an amount that its fees are taken from.
void checkComplete(const Listing& listing, OptionNaming named = asTyped);

/// Throws OptionError for entries that the window's boxes do not keep: an opening price below 1.00 on eBay
/// Germany, fewer than two of several items, more of them sold than offered. Empty ones are not looked at.
void checkEntries(const Listing& listing, const NumberLocale& locale);
