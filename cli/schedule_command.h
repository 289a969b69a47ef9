#pragma once

#include "session.h"

/// Adds schedule: the figures that are built in, for one site.
void addScheduleCommand(CLI::App& program, Session& session);

/// The built-in figures of a site that some listing or payment there can lead to, in the locale's signs. Its
/// last column says of every row where the figure comes from; a text has that as its title instead.
Table scheduleTable(std::int32_t site, const NumberLocale& locale, Format format);
