#pragma once

#include "session.h"

/// Adds curve: net and fees against the price, as a picture or a table.
void addCurveCommand(CLI::App& program, Session& session);
