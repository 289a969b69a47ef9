#include "amount_errors.h"
#include "amount_text.h"
#include "batch_rows.h"
#include "option_values.h"
#include "pricing.h"
#include "quoted_text.h"
#include "table.h"

namespace {

/// A box of a tab that its recalculation writes.
struct Shown {
  std::string_view name;
  ListingKind kind;
  const std::string& (*text)(const ShownBoxes& boxes);
};

template <auto member>
const std::string& single(const ShownBoxes& boxes) {
  return boxes.single.*member;
}

template <auto member>
const std::string& multiple(const ShownBoxes& boxes) {
  return boxes.multiple.*member;
}

template <auto member>
const std::string& payment(const ShownBoxes& boxes) {
  return boxes.payment.*member;
}

const std::string& billpoint(const ShownBoxes& boxes) { return boxes.billpoint; }

using Single = SingleItemBoxes;
using Multiple = MultipleItemsBoxes;

// clang-format off
constexpr auto kShown = std::to_array<Shown>({
    {"txtInsertionFee",           ListingKind::Single,    single<&Single::txtInsertionFee>},
    {"txtExtras",                 ListingKind::Single,    single<&Single::txtExtras>},
    {"txtFVF",                    ListingKind::Single,    single<&Single::txtFVF>},
    {"txtFees",                   ListingKind::Single,    single<&Single::txtFees>},
    {"txtPrice",                  ListingKind::Single,    single<&Single::txtPrice>},
    {"txtStartingPrice",          ListingKind::Single,    single<&Single::txtStartingPrice>},
    {"txtDutchFees",              ListingKind::Multiple,  multiple<&Multiple::txtDutchFees>},
    {"txtExtraFeaturesDutch",     ListingKind::Multiple,  multiple<&Multiple::txtExtraFeaturesDutch>},
    {"txtTotalDutchAuctionSales", ListingKind::Multiple,  multiple<&Multiple::txtTotalDutchAuctionSales>},
    {"txtDutchCostPerItem",       ListingKind::Multiple,  multiple<&Multiple::txtDutchCostPerItem>},
    {"txtDutchItemsSold",         ListingKind::Multiple,  multiple<&Multiple::txtDutchItemsSold>},
    {"txtDutchFinalPrice",        ListingKind::Multiple,  multiple<&Multiple::txtDutchFinalPrice>},
    {"txtDutchOpeningPrice",      ListingKind::Multiple,  multiple<&Multiple::txtDutchOpeningPrice>},
    {"txtPaymentAmount",          ListingKind::Payment,   payment<&PaymentBoxes::txtPaymentAmount>},
    {"txtPayPalFee",              ListingKind::Payment,   payment<&PaymentBoxes::txtPayPalFee>},
    {"BillpointFee",              ListingKind::Billpoint, billpoint},
});
// clang-format on

class WindowAnswers : public RowAnswers {
 public:
  explicit WindowAnswers(const BatchPlan& plan) : m_plan(plan), m_pricer(plan.choices.locale) {}

  void appendHeader(std::string& out) const override {
    for (const Shown& shown : kShown) ((out += m_plan.outputSeparator) += "shown_") += shown.name;
    (out += m_plan.outputSeparator) += "error";
  }

  std::string append(const CsvRow& row, std::string& out) override {
    std::string reason = shapeError(row, m_plan);
    bool isUnderstood = reason.empty();
    try {
      if (isUnderstood) readListing(row);
    } catch (const OptionError& error) {
      isUnderstood = false;
      reason = oneLine(error.what());
    }
    if (isUnderstood) reason = recalculate();
    for (const Shown& shown : kShown) {
      out += m_plan.outputSeparator;
      if (isUnderstood && shown.kind == m_listing.kind) appendBox(out, shown.text(m_boxes));
    }
    out += m_plan.outputSeparator;
    appendCsvCell(out, reason, m_plan.outputSeparator);
    return reason;
  }

 private:
  std::string recalculate() {
    try {
      m_boxes = {};
      m_pricer.recalculate(m_listing, m_boxes);
    } catch (const ConversionError&) {
      return "conversion";
    } catch (const OverflowError&) {
      return "overflow";
    }
    return {};
  }

  void readListing(const CsvRow& row) {
    m_listing = {};
    m_listing.kind = kindIn(row, m_plan.columns);
    for (const auto& [at, control] : m_plan.columns.controls.at(static_cast<std::size_t>(m_listing.kind))) {
      const std::string_view cell = BatchColumns::cellOf(row, at);
      if (!cell.empty()) set(*control, cell);
    }
    if (m_listing.site < CAuctionSite::eBayUS || m_listing.site > CAuctionSite::eBayGermany)
      throw OptionError("site: it is a number from 1 to 4");
  }

  void set(const WindowControl& control, std::string_view cell) {
    try {
      control.set(m_listing, cell);
    } catch (const OptionError& error) {
      throw OptionError(std::string(control.name) + ": " + error.what());
    }
  }

  /// A number gets the decimal sign of the output; a text with group signs stays as it was typed.
  void appendBox(std::string& out, const std::string& text) const {
    const NumberLocale& locale = m_plan.choices.locale;
    const bool isGrouped = text.find(locale.group) != std::string::npos;
    if (m_plan.outputDecimal != locale.decimal.front() && !isGrouped && isNumeric(text, locale)) {
      appendNumber(out, text, m_plan);
    } else {
      appendText(out, text, m_plan);
    }
  }

  const BatchPlan& m_plan;
  Pricer m_pricer;
  Listing m_listing;
  ShownBoxes m_boxes;
};

}  // namespace

std::unique_ptr<RowAnswers> windowAnswers(const BatchPlan& plan) {
  return std::make_unique<WindowAnswers>(plan);
}
