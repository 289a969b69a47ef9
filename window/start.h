#pragma once

#include <functional>
#include <memory>

#include "frmeBayFees.h"
#include "surroundings.h"

/// The program's start, from the first text to the calculator window.
namespace Start {

/// Chooses the language and loads its texts; false if not even English can be shown.
using LanguageLoader = std::function<bool()>;

/// Sets up what all windows need, asks on the first run whether to look for updates, and opens the calculator
/// window. If the texts cannot be loaded, says so and returns nothing: the process has no window and should
/// end.
std::unique_ptr<frmeBayFees> Main(const Surroundings& surroundings, const LanguageLoader& loadLanguage);

/// What this start finds out, for the calculator window.
[[nodiscard]] std::shared_ptr<CStartStatus> newStartStatus(const Surroundings& surroundings);

/// Names the application in the current language.
void setApplicationTitle();

}  // namespace Start
