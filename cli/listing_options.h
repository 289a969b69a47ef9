#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "listing.h"
#include "option_table.h"
#include "session.h"

/// The options of a command that say what is to be priced, as the table of options has them.
class ListingOptions {
 public:
  /// Adds the options of that scope but those named in `left`, which the command finds by itself: the listing
  /// need not be complete then.
  void addTo(CLI::App& command, OptionScope scope, std::initializer_list<std::string_view> left = {});

  [[nodiscard]] bool isGiven(std::string_view name) const;

  /// The listing they make, checked. Throws OptionError, also for an option that is not for that kind.
  [[nodiscard]] Listing listing(ListingKind kind, const NumberLocale& locale, bool hasDecimal) const;

 private:
  std::map<const Option*, std::string> m_values;
  bool m_isCompletedByCommand = false;
};
