#pragma once

#include "session.h"

/// Adds batch: many listings and payments, one in each row of a table.
void addBatchCommand(CLI::App& program, Session& session);
