#pragma once

#include <string>
#include <string_view>

#include "number_locale.h"

/// \file
/// An exchange rate on its way between its box, where it bears the user's signs, and the settings store,
/// where it has a decimal point whoever the user is: a store may move to another desktop. What is no number
/// passes through both as it stands. How the stored text is kept is not known here.

/// A rate as it stands in the box, for the store: the same number with a decimal point and without group
/// signs.
std::string rateToStore(std::string_view shown, const NumberLocale& locale);

/// A stored rate for the box. Earlier versions stored what had been typed, so a comma may be the decimal
/// symbol there ("0,78"); with both signs the last one is. Rates are small: neither "1.317" nor "1,317" is a
/// thousand.
std::string rateFromStore(std::string_view stored, const NumberLocale& locale);
