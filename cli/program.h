#pragma once

#include "session.h"

/// Names the program and adds all of its commands.
void makeProgram(CLI::App& program, Session& session);
