#pragma once

#include <string>
#include <vector>

#include "price_function.h"
#include "table.h"

/// \file
/// What a sale brings at a price as cells of a table: the price, eBay's fees, the payment fee and the net. A
/// text has no column for the payment fee where no service is paid; for programs it is empty then.

void appendResultColumns(std::vector<Column>& columns, const PriceFunction& sale, Format format);

/// The cells of a result, in the columns that `appendResultColumns` makes of the same sale and format.
void appendResult(std::vector<std::string>& row, const SaleResult& result, const PriceFunction& sale,
                  Format format);
