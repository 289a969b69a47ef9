#include <exception>
#include <iostream>

#include "program.h"

int main(int argc, char** argv) {
  try {
    std::ios::sync_with_stdio(false);
    return runProgram({argv + 1, argv + argc}, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "tessaloom-fees: " << error.what() << '\n';
  }
  return SomeFailed;
}
