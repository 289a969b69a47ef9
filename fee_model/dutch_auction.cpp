#include "dutch_auction.h"

#include "amount_text.h"
#include "regular_auction.h"

const CAuctionSite& CDutchAuction::schedule() const {
  static const CAuctionSite noSite;
  return m_site != nullptr ? *m_site : noSite;
}

float CDutchAuction::ListingValue(std::string_view OpeningPrice, std::int16_t ItemsOffered) const {
  // Multiplied before it is stored: 37 items at 0.27 are worth 9.99, not a little more.
  return storedAsSingle(toDouble(OpeningPrice, m_locale) * static_cast<double>(ItemsOffered));
}

std::string CDutchAuction::InsertionFee(std::string_view OpeningPrice, std::int16_t ItemsOffered,
                                        bool IsTwoCategories) const {
  const LadderStep step = listingFeeStep(schedule(), ListingValue(OpeningPrice, ItemsOffered));
  std::string fee = step.isOnLadder ? plainText(step.fee, m_locale) : std::string();
  if (IsTwoCategories) fee = plainText(toDouble(fee, m_locale) * 2.0, m_locale);
  return fee;
}

std::string CDutchAuction::FVF(std::string_view LowestBid, std::string_view ItemsSold) const {
  const std::int16_t sold = ItemsSold.empty() ? std::int16_t{0} : toInteger16(ItemsSold, m_locale);
  const float bid = LowestBid.empty() ? 0.0F : toSingle(LowestBid, m_locale);
  const float feePerItem = tieredFinalValueFee(schedule(), bid);
  return twoDecimals(static_cast<double>(feePerItem) * static_cast<double>(sold), m_locale);
}
