#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "session.h"

/// Names the program and adds all of its commands.
void makeProgram(CLI::App& program, Session& session);

/// A whole run of the program with these arguments, as its exit status: 0 all good, 1 something could not be
/// priced, found or written, 2 wrong use. What went wrong is told on `errors`.
int runProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors);
