#pragma once

#include "session.h"

/// Adds solve: the lowest price that reaches a target.
void addSolveCommand(CLI::App& program, Session& session);
