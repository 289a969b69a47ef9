#include "listing_options.h"

#include <algorithm>
#include <CLI/CLI.hpp>

#include "option_values.h"

namespace {

/// The help of an option in a command for listings of these kinds.
std::string helpOf(const Option& option, OptionScope scope) {
  std::string help(option.help);
  const std::string ofSeveral(option.helpOfSeveral);
  const std::string withKind = "with --kind ";
  if ((scope & ForMultiple) == 0) return help;
  if ((scope & ForSingle) == 0) return ofSeveral.empty() ? help : ofSeveral;
  if ((option.scope & ForMultiple) == 0) return withKind + "single: " + help;
  if ((option.scope & ForSingle) == 0) return withKind + "multiple: " + help;
  return ofSeveral.empty() ? help : help + "; " + withKind + "multiple: " + ofSeveral;
}

/// Takes over the value of an option, whose name stands before whatever is wrong with it.
void set(Listing& listing, const Option& option, const std::string& value, const NumberLocale& locale,
         bool hasDecimal) {
  std::string read;
  try {
    read = readValue(option, value, locale, hasDecimal);
  } catch (const OptionError& error) {
    throw OptionError(std::string("--") + error.what());
  }
  try {
    option.set(listing, read);
  } catch (const OptionError& error) {
    throw OptionError(asTyped(option.name) + ": " + error.what());
  }
}

}  // namespace

void ListingOptions::addTo(CLI::App& command, OptionScope scope,
                           std::initializer_list<std::string_view> left) {
  m_isCompletedByCommand = left.size() > 0;
  for (const Option& option : options()) {
    const bool isWanted =
        (option.scope & scope) != 0 && std::find(left.begin(), left.end(), option.name) == left.end();
    if (!isWanted) continue;
    const std::string name = asTyped(option.name);
    const std::string help = helpOf(option, scope);
    if (option.kind == OptionKind::Flag) {
      // "true", or what stands behind the sign in "--bold=no": it means what it means in a cell.
      command.add_flag(name, help)->each([this, &option](const std::string& value) {
        m_values[&option] = value;
      });
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
      throw OptionError(asTyped(option->name) + " is not for listings of kind \"" +
                        std::string(nameOf(kind)) + '"');
    }
    set(listing, *option, value, locale, hasDecimal);
  }
  checkOffered(listing);
  checkEntries(listing, locale);
  if (!m_isCompletedByCommand) checkComplete(listing);
  return listing;
}
