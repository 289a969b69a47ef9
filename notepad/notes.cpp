#include "notes.h"

#include <limits>
#include <QStringList>
#include <stdexcept>

#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

const QString kLineBreak = QStringLiteral("\r\n");
const QString kSeparator = QStringLiteral("    ");

QString rule() { return {50, u'-'}; }

/// Set apart from the figure on the UK site only.
QString currencyOf(const CAuctionSite& site) {
  const std::string_view currency = site.CurrencyString();
  const QString text = QString::fromUtf8(currency.data(), static_cast<qsizetype>(currency.size()));
  return text == QStringLiteral("GBP") ? QStringLiteral("GBP ") : text;
}

QString entryOf(const QStringList& lines) {
  return rule() + kLineBreak + lines.join(kLineBreak) + kLineBreak + rule() + kLineBreak;
}

}  // namespace

QString CNotes::AddToNotesRegular(bool isReserve, const QString& price, const QString& listingFee,
                                  const QString& extraFeaturesFee, bool isSold, const QString& closingBid,
                                  const QString& finalValueFee, const QString& totalFees,
                                  const CAuctionSite& site) {
  const QString currency = currencyOf(site);
  const QString priceLabel = GetTagString(isReserve ? QStringLiteral("Reserve Price: <0634>")
                                                    : QStringLiteral("Opening Bid: <0635>"));
  const QString answer = GetTagString(isSold ? QStringLiteral("Y<0636>") : QStringLiteral("N<0637>"));
  return entryOf({
      // The heading runs straight into its first label.
      nextNumber() + GetTagString(QStringLiteral("REGULAR AUCTION:  <0638>")) + priceLabel + currency +
          price + kSeparator + GetTagString(QStringLiteral("Item Sold?: <0639>")) + answer + kSeparator +
          GetTagString(QStringLiteral("Closing Bid: <0640>")) + currency + closingBid,
      GetTagString(QStringLiteral("Listing Fee: <0641>")) + currency + listingFee + kSeparator +
          GetTagString(QStringLiteral("Extra Features Fees: <0642>")) + currency + extraFeaturesFee +
          kSeparator + GetTagString(QStringLiteral("Final Value Fee: <0643>")) + currency + finalValueFee,
      GetTagString(QStringLiteral("TOTAL FEES: <0644>")) + currency + totalFees,
  });
}

QString CNotes::AddToNotesDutch(const QString& itemsOffered, const QString& openingPrice,
                                const QString& extraFeaturesFee, const QString& itemsSold,
                                const QString& soldAt, const QString& totalRevenue, const QString& totalFees,
                                const QString& feesPerItem, const CAuctionSite& site) {
  const QString currency = currencyOf(site);
  // One blank less than anywhere else stands before this total.
  const QString beforeTotal = QStringLiteral("   ");
  return entryOf({
      nextNumber() + GetTagString(QStringLiteral("DUTCH AUCTION:  <0645>")) + kSeparator +
          GetTagString(QStringLiteral("Number Offered: <0646>")) + itemsOffered + kSeparator +
          GetTagString(QStringLiteral("Opening Price: <0647>")) + currency + openingPrice,
      GetTagString(QStringLiteral("Number Sold: <0648>")) + itemsSold + kSeparator +
          GetTagString(QStringLiteral("Sold at: <0649>")) + currency + soldAt + kSeparator +
          GetTagString(QStringLiteral("Total Revenue: <0650>")) + currency + totalRevenue,
      GetTagString(QStringLiteral("Extra Features Fees: <0651>")) + currency + extraFeaturesFee +
          beforeTotal + GetTagString(QStringLiteral("TOTAL FEES: <0652>")) + currency + totalFees +
          kSeparator + GetTagString(QStringLiteral("Fees Per Item: <0653>")) + currency + feesPerItem,
  });
}

QString CNotes::AddToNotesPayment(const QString& amount, const QString& fee, const CAuctionSite& site) {
  const QString currency = currencyOf(site);
  return entryOf({
      nextNumber() + GetTagString(QStringLiteral("PAYMENT FEE:  <0654>")) + kSeparator +
          GetTagString(QStringLiteral("Payment Amount: <0655>")) + currency + amount,
      GetTagString(QStringLiteral("PayPal Fee: <0656>")) + currency + fee,
  });
}

QString CNotes::nextNumber() {
  if (m_counter == std::numeric_limits<qint16>::max()) {
    throw std::overflow_error("The notepad's entries cannot be numbered beyond 32767.");
  }
  return QString::number(++m_counter) + QStringLiteral(". ");
}
