#include "listing_options.h"

#include <algorithm>

#include "option_values.h"

void ListingOptions::addTo(CLI::App& command, OptionScope scope,
                           std::initializer_list<std::string_view> left) {
  for (const Option& option : options()) {
    const bool isWanted =
        (option.scope & scope) != 0 && std::find(left.begin(), left.end(), option.name) == left.end();
    if (!isWanted) continue;
    const std::string name = "--" + std::string(option.name);
    const std::string help(option.help);
    if (option.kind == OptionKind::Flag) {
      command.add_flag_callback(
          name, [this, &option] { m_values[&option] = "1"; }, help);
    } else {
      command
          .add_option_function<std::string>(
              name, [this, &option](const std::string& value) { m_values[&option] = value; }, help)
          ->type_name(
              std::string(option.kind == OptionKind::Choice ? option.values : valueName(option.kind)));
    }
  }
}

bool ListingOptions::isGiven(std::string_view name) const {
  return std::any_of(m_values.begin(), m_values.end(),
                     [name](const auto& value) { return value.first->name == name; });
}

Listing ListingOptions::listing(ListingKind kind, const NumberLocale& locale, bool hasDecimal) const {
  Listing listing = plainListing(kind);
  for (const auto& [option, value] : m_values) {
    // Those of a payment go with any listing: it is paid for.
    if ((option->scope & (scopeOf(kind) | ForPayments)) == 0) {
      throw OptionError("--" + std::string(option->name) + " is not for listings of kind \"" +
                        std::string(nameOf(kind)) + '"');
    }
    checkValue(*option, value, locale, hasDecimal);
    option->set(listing, value);
  }
  checkOffered(listing);
  return listing;
}
