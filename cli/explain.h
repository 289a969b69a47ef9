#pragma once

#include <string>
#include <vector>

#include "pricing.h"
#include "table.h"

/// One amount of a fee, and the rule that produced it.
struct ExplainedStep {
  std::string name;
  Currency amount;  ///< rounded to four decimals, which is how it is shown
  std::string rule;
};

/// A fee as the sum of its steps, in the order in which they are added. Where the fee is rounded to the cent,
/// the last step says by how much.
struct ExplainedFee {
  std::string name;
  std::vector<ExplainedStep> steps;
  std::string figure;  ///< as it is shown without an explanation; "" where there is no such fee
  std::string rule;    ///< "" where the steps say everything
  std::string partOf;  ///< the fee that this one is added to; "" where it is added to none
};

/// How the fees of a listing or payment came about. The rules are the fee model's own: this asks it which of
/// them applied, and holds no figure. Throws what Pricer::price throws.
std::vector<ExplainedFee> explain(Pricer& pricer, const Listing& listing);

/// The explanation as a table of steps, amounts and rules; each fee stands below its steps. A text sets the
/// steps in and names the currency once. CSV and JSON have both in each row: under `part_of` stands the step
/// whose amount this one is a part of. The parts of a step add up to it; what is part of none can be read
/// alone.
Table explanationTable(const std::vector<ExplainedFee>& fees, const std::string& currency, Format format,
                       const NumberLocale& locale);
