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

/// A listing about which nothing was said yet: eBay.com, paid by credit card.
[[nodiscard]] Listing plainListing(ListingKind kind);

[[nodiscard]] OptionScope scopeOf(ListingKind kind);
/// "single", "multiple", "payment", "billpoint"; nothing for any other text.
[[nodiscard]] std::optional<ListingKind> kindOf(std::string_view name);
[[nodiscard]] std::string_view nameOf(ListingKind kind);

/// "us", "uk", "ca", "de" or the numbers 1 to 4; throws OptionError.
[[nodiscard]] std::int32_t siteOf(std::string_view name);
[[nodiscard]] std::string_view nameOfSite(std::int32_t site);

/// The place of a text among values, whatever its case; throws OptionError.
[[nodiscard]] int indexIn(std::span<const std::string_view> values, std::string_view text);

/// Whether a cell means yes: 1, yes, y, true, x; or no: empty, 0, no, n, false. Throws OptionError.
[[nodiscard]] bool flagOf(std::string_view text);

/// Throws OptionError for an amount, a rate or a count that is no number or below zero, and, unless the user
/// has said which decimal sign he writes, for one that is ambiguous. Other values are not looked at.
void checkValue(const Option& option, std::string_view text, const NumberLocale& locale, bool hasDecimal);

/// What stands for a value in the help: "AMOUNT".
[[nodiscard]] std::string_view valueName(OptionKind kind);

/// Whether a number could be read with a decimal point and with a group sign alike: "1.234", "12,345".
[[nodiscard]] bool isAmbiguous(std::string_view text);

/// Throws OptionError for a listing that the window does not offer, such as real estate on eBay Germany.
void checkOffered(const Listing& listing);
