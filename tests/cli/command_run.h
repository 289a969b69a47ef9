#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "program.h"

/// What a run of the command left behind.
struct CommandRun {
  int status = AllGood;
  std::string out;
  std::string errors;
};

/// Runs the command in this process, with streams of its own.
inline CommandRun run(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream errors;
  const int status = runProgram(arguments, out, errors);
  return {.status = status, .out = out.str(), .errors = errors.str()};
}

/// The words of a command line.
inline std::vector<std::string> words(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> all;
  for (std::string word; stream >> word;) all.push_back(word);
  return all;
}

inline CommandRun runLine(const std::string& line) { return run(words(line)); }
