#pragma once

#include <QMap>

#include "calculator.h"

/// A window over a store with given values, and its controls by the keys under which they are stored.
using Values = QMap<QString, QString>;

// clang-format off
inline const QMap<QString, const char*> kBoxes{
    {"RegularFeaturedCategory", "chkFeaturedCategory"}, {"RegularFeatured", "chkFeatured"},
    {"RegularGallery", "chkGallery"}, {"RegularGalleryFeatured", "chkGalleryFeatured"},
    {"RegularHighlighted", "chkHighlighted"}, {"RegularBold", "chkBold"}, {"RegularGift", "chkGiftIcon"},
    {"RegularRealEstate", "chkRealEstate"}, {"RegularTwoCategories", "chkTwoCategories"},
    {"RegularTenDayAuction", "chkTenDayAuction"}, {"RegularMotors", "chkMotors"},
    {"RegularVehicle", "chkVehicle"}, {"RegularIsExtraPhotos", "chkExtraPhotos"},
    {"RegularSupersize", "chkSupersizePhotos"}, {"RegularSlideshow", "chkSlideshow"},
    {"DutchMotors", "chkEBayMotorsDutch"}, {"DutchFeaturedPlus", "chkDutchFeaturedPlus"},
    {"DutchFeatured", "chkDutchHomePageFeatured"}, {"DutchGallery", "chkDutchGallery"},
    {"DutchGalleryFeatured", "chkDutchGalleryFeatured"}, {"DutchHighlighted", "chkDutchHighlight"},
    {"DutchBold", "chkDutchBold"}, {"DutchGift", "chkDutchGreatGift"},
    {"DutchTenDayAuction", "chkDutchTenDayAuction"}, {"DutchIsExtraPhotos", "chkExtraPicturesDutch"},
    {"DutchSupersize", "chkSupersizeDutch"}, {"DutchSlideshow", "chkSlideshowDutch"},
};

inline const QMap<QString, const char*> kLists{
    {"RegularType", "cboSingleItemType"}, {"RegularReserve", "cboIsReserve"},
    {"RegularNumExtraPhotos", "cboExtraPhotos"}, {"DutchNumExtraPhotos", "cboExtraPicturesDutch"},
};
// clang-format on

QStringList writesAmong(const QStringList& calls);
bool isTicked(const Calculator& calculator, const char* button);
int chosen(const Calculator& calculator, const char* list);

/// Opens a window on what is stored; not a first run.
void open(Calculator& calculator, const Values& stored);

/// Sets a control as its kind wants it, whatever the site has to say about it.
void setControl(Calculator& calculator, const char* name, const QString& value);
QString controlValue(const Calculator& calculator, const char* name);
