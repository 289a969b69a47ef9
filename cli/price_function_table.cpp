#include "price_function_table.h"

namespace {

bool isPaid(const PriceFunction& sale) { return sale.sale().payment != PaymentService::None; }

bool hasPaymentFee(const PriceFunction& sale, Format format) {
  return isPaid(sale) || format != Format::Text;
}

}  // namespace

void appendResultColumns(std::vector<Column>& columns, const PriceFunction& sale, Format format) {
  columns.push_back({"price", "Price", true});
  columns.push_back({"total_fees", "eBay fees", true});
  if (hasPaymentFee(sale, format)) columns.push_back({"payment_fee", "Payment fee", true});
  columns.push_back({"net", "Net", true});
}

void appendResult(std::vector<std::string>& row, const SaleResult& result, const PriceFunction& sale,
                  Format format) {
  row.push_back(textOf(result.price, sale.locale()));
  row.push_back(textOf(result.listingFees, sale.locale()));
  if (hasPaymentFee(sale, format))
    row.push_back(isPaid(sale) ? textOf(result.paymentFee, sale.locale()) : std::string());
  row.push_back(textOf(result.net, sale.locale()));
}
