#pragma once

#include "session.h"

/// Adds whatif: what each extra feature would cost a listing, and what the sale must bring to pay for it.
void addWhatIfCommand(CLI::App& program, Session& session);
