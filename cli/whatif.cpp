#include "whatif.h"

#include <algorithm>

#include "amount_text.h"
#include "option_values.h"

namespace {

constexpr std::int64_t kCent = 100;

struct Candidate {
  std::string_view option;
  std::string_view value;
};

constexpr Candidate kCandidates[] = {
    {"subtitle", "1"},
    {"listing-designer", "1"},
    {"scheduled", "1"},
    {"slideshow", "1"},
    {"supersize", "1"},
    {"pictures", "1"},
    {"pictures", "2"},
    {"pictures", "3"},
    {"pictures", "4"},
    {"pictures", "5"},
    {"pictures", "pack"},
    {"buy-it-now", "1"},
    {"ten-day", "1"},
    {"featured-plus", "1"},
    {"home-page-featured", "1"},
    {"gallery", "1"},
    {"gallery-featured", "1"},
    {"highlight", "1"},
    {"bold", "1"},
    {"gift", "1"},
};

const Option& optionOf(std::string_view name) {
  const auto all = options();
  return *std::find_if(all.begin(), all.end(), [name](const Option& option) { return option.name == name; });
}

bool hasPictures(const Listing& listing) {
  return listing.kind == ListingKind::Single ? listing.single.chkExtraPhotos
                                             : listing.multiple.chkExtraPicturesDutch;
}

/// The listing with one feature more; nothing if it has that already, or the site does not offer it.
std::optional<Listing> withFeature(const Listing& listing, const Candidate& candidate) {
  const Option& option = optionOf(candidate.option);
  if ((option.scope & scopeOf(listing.kind)) == 0) return std::nullopt;
  if (candidate.option == "pictures" && hasPictures(listing)) return std::nullopt;
  Listing changed = listing;
  option.set(changed, candidate.value);
  if (changed.single == listing.single && changed.multiple == listing.multiple) return std::nullopt;
  try {
    checkOffered(changed);
  } catch (const OptionError&) {
    return std::nullopt;
  }
  return changed;
}

/// The price that is asked for a listing, as something that can rise.
class RisingSale {
 public:
  RisingSale(Pricer& pricer, const Listing& listing) : m_pricer(pricer) {
    const Fees fees = pricer.price(listing);
    m_net = number(fees.net);
    m_total = number(fees.total);
    m_sold = fees.sold.count;
    m_price = number(fees.sold.price);
    // With items left over every winner pays the opening price, so it is that price which has to rise.
    if (m_sold < fees.sold.offered) m_raised = RaisedPrice::Opening;
  }

  [[nodiscard]] bool isSold() const { return m_sold > 0; }
  [[nodiscard]] RaisedPrice raised() const { return m_raised; }

  [[nodiscard]] AddedFeature with(const Listing& changed, const Candidate& candidate) const {
    const Currency total = number(m_pricer.price(changed).total);
    return {.feature = candidate.option,
            .value = candidate.value == "1" && candidate.option != "pictures" ? "" : candidate.value,
            .added = total - m_total,
            .paying = isSold() ? payingPrice(changed) : std::nullopt};
  }

 private:
  // No fee falls as the price rises, so no rise pays that brings less than the net lacks at first; from there
  // every cent is tried, because fees jump.
  [[nodiscard]] std::optional<PayingPrice> payingPrice(const Listing& changed) const {
    const std::int64_t lacking = (m_net - netAt(changed, 0)).tenThousandths();
    std::int64_t rise = lacking <= 0 ? 0 : (lacking / m_sold + kCent - 1) / kCent * kCent;
    for (; rise <= highestRise.tenThousandths(); rise += kCent) {
      const Currency net = netAt(changed, rise);
      if (net < m_net) continue;
      return PayingPrice{.rise = Currency::fromTenThousandths(rise),
                         .price = priceAt(rise),
                         .net = net,
                         .netOneBelow = rise > 0 ? netAt(changed, rise - kCent) : Currency{}};
    }
    return std::nullopt;
  }

  [[nodiscard]] Currency priceAt(std::int64_t rise) const {
    return m_price + Currency::fromTenThousandths(rise);
  }

  [[nodiscard]] Currency netAt(Listing listing, std::int64_t rise) const {
    if (rise > 0) {
      listing.closing = plainText(priceAt(rise), m_pricer.locale());
      if (m_raised == RaisedPrice::Opening) listing.opening = listing.closing;
    }
    return number(m_pricer.price(listing).net);
  }

  [[nodiscard]] Currency number(const std::string& text) const {
    return text.empty() ? Currency{} : toCurrency(text, m_pricer.locale());
  }

  Pricer& m_pricer;
  Currency m_net;
  Currency m_total;
  Currency m_price;
  int m_sold = 0;
  RaisedPrice m_raised = RaisedPrice::Closing;
};

}  // namespace

WhatIf whatIf(Pricer& pricer, const Listing& listing) {
  const RisingSale sale(pricer, listing);
  WhatIf answer{.isSold = sale.isSold(), .raised = sale.raised(), .features = {}};
  for (const Candidate& candidate : kCandidates) {
    if (const auto changed = withFeature(listing, candidate))
      answer.features.push_back(sale.with(*changed, candidate));
  }
  return answer;
}
