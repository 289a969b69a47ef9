#pragma once

#include "session.h"

/// Adds bands: the prices that leave the seller with less than a lower one.
void addBandsCommand(CLI::App& program, Session& session);
