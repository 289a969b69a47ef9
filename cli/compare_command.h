#pragma once

#include "session.h"

/// Adds compare: one listing on all sites, or with each of its ways to end, side by side.
void addCompareCommand(CLI::App& program, Session& session);
