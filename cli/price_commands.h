#pragma once

#include "session.h"

/// Adds single, multiple, payment and billpoint: one listing or payment from options, and with --explain the
/// rules behind its fees.
void addPriceCommands(CLI::App& program, Session& session);
