#pragma once

#include "session.h"

/// Adds schedule: the figures that are built in, for one site.
void addScheduleCommand(CLI::App& program, Session& session);

/// The built-in figures of a site, in the locale's signs. For programs every site has the same rows, with no
/// value where the site has nothing of the kind, and each row names site and schedule. A text names them in
/// its title, which also says what the site does not have; it has no rows for that.
Table scheduleTable(std::int32_t site, const NumberLocale& locale, Format format);
