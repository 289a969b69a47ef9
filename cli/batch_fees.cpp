#include "amount_errors.h"
#include "ascii_text.h"
#include "batch_rows.h"
#include "option_values.h"
#include "pricing.h"
#include "quoted_text.h"
#include "table.h"

namespace {

class FeeAnswers : public RowAnswers {
 public:
  explicit FeeAnswers(const BatchPlan& plan) : m_plan(plan), m_pricer(plan.choices.locale) {}

  void appendHeader(std::string& out) const override {
    for (const FeeColumn& column : kFeeColumns) (out += m_plan.outputSeparator) += column.key;
    ((out += m_plan.outputSeparator) += "currency") += m_plan.outputSeparator;
    out += "error";
  }

  std::string append(const CsvRow& row, std::string& out) override {
    std::string reason = shapeError(row, m_plan);
    try {
      if (reason.empty()) {
        readListing(row);
        appendFees(out);
        return {};
      }
    } catch (const OptionError& error) {
      reason = error.what();
    } catch (const PricingError& error) {
      reason = error.what();
    } catch (const AmountError& error) {
      reason = error.what();
    }
    reason = oneLine(reason);
    out.append(kFeeColumns.size() + 2, m_plan.outputSeparator);
    appendCsvCell(out, reason, m_plan.outputSeparator);
    return reason;
  }

 private:
  void readListing(const CsvRow& row) {
    m_listing = m_plainListing;
    m_listing.kind = kindIn(row, m_plan.columns);
    for (const auto& [at, option] : m_plan.columns.options.at(static_cast<std::size_t>(m_listing.kind))) {
      const std::string_view cell = BatchColumns::cellOf(row, at);
      // Most flags are not set: they need not be asked what that means.
      const bool isLeft = cell.empty() || (option->kind == OptionKind::Flag && cell == "0");
      if (!isLeft) set(*option, cell);
    }
    checkOffered(m_listing, asColumn);
    checkEntries(m_listing, m_plan.choices.locale);
    checkComplete(m_listing, asColumn);
  }

  void set(const Option& option, std::string_view cell) {
    const BatchChoices& choices = m_plan.choices;
    cell = withoutBlanks(cell);
    if (cell.empty()) return;
    if (option.kind != OptionKind::Flag && option.kind != OptionKind::Choice)
      return option.set(m_listing, readValue(option, cell, choices.locale, choices.hasDecimal));
    try {
      option.set(m_listing, cell);
    } catch (const OptionError& error) {
      throw OptionError(asColumn(option.name) + ": " + error.what());
    }
  }

  void appendFees(std::string& out) {
    const Fees fees = m_pricer.price(m_listing);
    for (const FeeColumn& column : kFeeColumns) {
      const std::string& fee = fees.*column.fee;
      out += m_plan.outputSeparator;
      if (!fee.empty()) appendNumber(out, fee, m_plan);
    }
    (out += m_plan.outputSeparator) += Pricer::currencyOf(m_listing);
    out += m_plan.outputSeparator;
  }

  const BatchPlan& m_plan;
  Pricer m_pricer;
  const Listing m_plainListing = plainListing(ListingKind::Single);
  Listing m_listing;
};

}  // namespace

std::unique_ptr<RowAnswers> feeAnswers(const BatchPlan& plan) { return std::make_unique<FeeAnswers>(plan); }
