#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "listing.h"

/// \file
/// Everything that can be said about a listing, once for all: from these tables come the options of the
/// commands, the columns of a batch, the manual page and the completions.

enum class OptionKind : std::uint8_t {
  Flag,    ///< "1" or "0"
  Amount,  ///< money, in the site's currency
  Rate,    ///< local currency per US dollar
  Count,   ///< a whole number
  Choice   ///< one of `values`
};

/// For which kinds of listings an option stands.
enum OptionScope : std::uint8_t {
  ForSingle = 1U << 0U,
  ForMultiple = 1U << 1U,
  ForPayment = 1U << 2U,
  ForBillpoint = 1U << 3U,
  ForListings = ForSingle | ForMultiple,
  ForPayments = ForPayment | ForBillpoint,
  ForAll = ForListings | ForPayments
};

struct Option {
  std::string_view name;  ///< "two-categories"; as the column of a batch "two_categories"
  OptionKind kind;
  OptionScope scope;
  std::string_view values;  ///< of a choice, separated by "|"
  std::string_view help;
  /// Takes over a value. What a ticked box of the window needs besides is ticked as well. Throws OptionError.
  void (*set)(Listing& listing, std::string_view value);
  std::string_view helpOfSeveral = {};  ///< instead of `help` for several items; "" if it is the same
};

[[nodiscard]] std::span<const Option> options();

/// A control of the window by its name, set to what its box holds: a text, "0" or "1", or a list index.
struct WindowControl {
  std::string_view name;
  OptionKind kind;
  OptionScope scope;
  void (*set)(Listing& listing, std::string_view value);
};

[[nodiscard]] std::span<const WindowControl> windowControls();
