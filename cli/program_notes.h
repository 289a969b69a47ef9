#pragma once

#include <array>
#include <string_view>

#include "session.h"

/// \file
/// What the help and the manual page both say about the whole program.

struct ExitMeaning {
  ExitStatus status;
  std::string_view meaning;
};

inline constexpr std::array<ExitMeaning, 3> kExitMeanings{{
    {AllGood, "all is good"},
    {SomeFailed, "some rows could not be priced, nothing was found or the answer could not be written"},
    {WrongUse, "wrong use"},
}};

inline constexpr std::string_view kAbbreviations =
    "The name of an option may be cut short as long as no other begins so: --op 9.99. In scripts write it in "
    "full: a "
    "new option may begin alike.";

inline constexpr std::array<std::string_view, 3> kExamples{
    "tessaloom-fees single --opening 9.99 --closing 25 --gallery --explain",
    "tessaloom-fees solve --site uk --profit 5 --cost 8 --payment paypal",
    "tessaloom-fees batch listings.csv > priced.csv",
};
