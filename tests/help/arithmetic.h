#pragma once

#include <string>
#include <string_view>

/// A sum as the help pages print it: "5.25% × 25.00 + 2.75% × 20.00 = 1.86".
struct PrintedSum {
  double left = 0;     ///< what the left side comes to
  std::string result;  ///< what the page says it comes to
};

/// Works a printed sum out. Numbers may carry a percent sign; the signs are + − × ÷, and × and ÷ bind
/// tighter. Throws std::runtime_error for what is no sum.
PrintedSum workOut(std::string_view printed, std::string_view decimal);
