#pragma once

/// Where tests and benchmarks find the files that they read: absolute paths, so that they run from any
/// folder. In a source of their own, because whatever else held them could not come from the compiler's cache
/// in another checkout.
extern const char* const kSourceFolder;   ///< the root of the checkout
extern const char* const kProgramFolder;  ///< where the build has put the program, its languages and its help
