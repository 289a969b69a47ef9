#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pricing.h"
#include "table.h"

/// How a sum is kept once an amount was added to it, which can show in its cents.
enum class KeptAs : std::uint8_t { Double, Single, DoubleText, SingleText };

/// One amount of a fee, and the rule that produced it.
struct ExplainedStep {
  std::string step;
  double amount = 0.0;  ///< as it was added
  std::string shown;    ///< that amount as a text, with as many decimals as it has
  std::string rule;
  KeptAs kept = KeptAs::Double;
};

/// A fee as the sum of its steps, in the order in which they are added.
struct ExplainedFee {
  std::string name;
  std::vector<ExplainedStep> steps;
  std::string figure;  ///< as it is shown without an explanation; "" where there is no such fee
  std::string rule;    ///< "" where the steps say everything
};

/// How the fees of a listing or payment came about. The rules are the fee model's own: this asks it which of
/// them applied, and holds no figure. Throws what Pricer::price throws.
std::vector<ExplainedFee> explain(Pricer& pricer, const Listing& listing);

/// The explanation as a table of steps, amounts and rules; each fee stands below its steps. In a text the
/// steps are set in.
Table explanationTable(const std::vector<ExplainedFee>& fees, const std::string& currency, Format format);
