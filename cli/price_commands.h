#pragma once

#include "session.h"

/// Adds single, multiple, payment and billpoint: one listing or payment from options.
void addPriceCommands(CLI::App& program, Session& session);
