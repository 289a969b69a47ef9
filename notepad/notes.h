#pragma once

#include <QString>

#include "auction_site.h"

/// Composes the entries of the notepad, numbered in the order in which they are asked for. Values are shown
/// as they come; nothing is formatted or checked here. Lines end with carriage return and line feed.
class CNotes {
 public:
  /// The figures of the Single Item tab. `price` is the reserve if `isReserve`, else the opening bid.
  [[nodiscard]] QString AddToNotesRegular(bool isReserve, const QString& price, const QString& listingFee,
                                          const QString& extraFeaturesFee, bool isSold,
                                          const QString& closingBid, const QString& finalValueFee,
                                          const QString& totalFees, const CAuctionSite& site);

  /// The figures of the Multiple Items tab.
  [[nodiscard]] QString AddToNotesDutch(const QString& itemsOffered, const QString& openingPrice,
                                        const QString& extraFeaturesFee, const QString& itemsSold,
                                        const QString& soldAt, const QString& totalRevenue,
                                        const QString& totalFees, const QString& feesPerItem,
                                        const CAuctionSite& site);

  /// The number of the last entry; 0 before the first.
  [[nodiscard]] int lastNumber() const { return m_counter; }

  /// The next entry is number 1 again.
  void ResetCounter() { m_counter = 0; }

  /// The figures of the Payment Services tab.
  [[nodiscard]] QString AddToNotesPayment(const QString& amount, const QString& fee,
                                          const CAuctionSite& site);

 private:
  QString nextNumber();

  qint16 m_counter = 0;
};
