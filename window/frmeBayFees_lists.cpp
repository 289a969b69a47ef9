#include <QSignalBlocker>

#include "frmeBayFees.h"
#include "tagged_strings.h"

using Localization::GetTagString;

namespace {

/// Replaces the items and keeps the chosen one. Filling a list is not a choice: no handler runs.
void fill(QComboBox& list, const QStringList& items) {
  const QSignalBlocker blocker(list);
  const int chosen = std::max(list.currentIndex(), 0);
  list.clear();
  list.addItems(items);
  list.setCurrentIndex(chosen);
  // By itself a list keeps to the least width that its first items needed.
  list.setMinimumWidth(list.sizeHint().width());
}

}  // namespace

void frmeBayFees::fillLists() {
  fill(*m_single.cboSingleItemType,
       {GetTagString(QStringLiteral("Auction<0691>")), GetTagString(QStringLiteral("Fixed Price<0685>"))});
  fill(*m_single.cboIsReserve,
       {GetTagString(QStringLiteral("No Reserve<0686>")), GetTagString(QStringLiteral("Reserve<0690>"))});
  fill(*m_single.cboRealEstateType,
       {GetTagString(QStringLiteral("3-10 day auction<0630>")),
        GetTagString(QStringLiteral("30-day auction<0631>")), GetTagString(QStringLiteral("30-day ad<0632>")),
        GetTagString(QStringLiteral("90-day ad<0633>"))});
  fill(*m_multiple.cboTypeOfMultiItemListing, {GetTagString(QStringLiteral("Dutch Auction<0689>")),
                                               GetTagString(QStringLiteral("Fixed-Price Listing<0688>"))});
  for (QComboBox* list : {m_single.cboExtraPhotos, m_multiple.cboExtraPicturesDutch}) {
    fill(*list, {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                 QStringLiteral("5"), GetTagString(QStringLiteral("pack<0671>"))});
  }
}
