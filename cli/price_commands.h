#pragma once

#include <span>

#include "pricing.h"
#include "session.h"

/// Adds single, multiple, payment and billpoint: one listing or payment from options, and with --explain the
/// rules behind its fees.
void addPriceCommands(CLI::App& program, Session& session);

/// One fee of a listing as a row or a column of an answer.
struct FeeColumn {
  const char* key;
  const char* heading;
  std::string Fees::*fee;
};

/// All of them, in the order in which they are shown.
[[nodiscard]] std::span<const FeeColumn> feeColumns();
