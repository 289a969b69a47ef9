#include "auction_site.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "amount_errors.h"
#include "amount_text.h"
#include "test_locales.h"

namespace {

// Rates that change no digit of an amount, so that the converted amounts are known exactly.
constexpr float kUkRate = 0.5F;
constexpr float kCanadianRate = 2.0F;
constexpr float kGermanRate = 0.25F;

/// A site on which every rate has been written.
CAuctionSite siteWithRates(std::int32_t number) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUK);
  site.ConversionRate(kUkRate);
  site.Site(CAuctionSite::eBayCanada);
  site.ConversionRate(kCanadianRate);
  site.Site(CAuctionSite::eBayGermany);
  site.ConversionRate(kGermanRate);
  site.Site(number);
  return site;
}

CAuctionSite siteOf(std::int32_t number) {
  CAuctionSite site;
  site.Site(number);
  return site;
}

using S = const CAuctionSite&;

struct FigureRow {
  const char* rule;
  float (*read)(S);
  std::array<float, 4> expected;  ///< US, UK, Canada, Germany
};

// clang-format off
const FigureRow kPlainFigures[] = {
  //                                                                                              US        UK        Canada    Germany
  {"upper bound of the first listing step",   [](S s) { return s.ListingFeeFirstTierUpper(); },  {  0.99F,    0.99F,    0.99F,    1.99F}},
  {"upper bound of the second listing step",  [](S s) { return s.ListingFeeSecondTierUpper(); }, {  9.99F,    4.99F,   14.99F,    9.99F}},
  {"upper bound of the third listing step",   [](S s) { return s.ListingFeeThirdTierUpper(); },  { 24.99F,   14.99F,   34.99F,   24.99F}},
  {"upper bound of the fourth listing step",  [](S s) { return s.ListingFeeFourthTierUpper(); }, { 49.99F,   29.99F,   69.99F,   99.99F}},
  {"upper bound of the fifth listing step",   [](S s) { return s.ListingFeeFifthTierUpper(); },  {199.99F,   99.99F,  299.99F,  249.99F}},
  {"upper bound of the sixth listing step",   [](S s) { return s.ListingFeeSixthTierUpper(); },  {499.99F,   99.99F,  699.99F,  249.99F}},
  {"fee of the first listing step",           [](S s) { return s.ListingFeeFirstTier(); },       {  0.30F,    0.15F,    0.35F,    0.25F}},
  {"fee of the second listing step",          [](S s) { return s.ListingFeeSecondTier(); },      {  0.35F,    0.20F,    0.45F,    0.45F}},
  {"fee of the third listing step",           [](S s) { return s.ListingFeeThirdTier(); },       {  0.60F,    0.35F,    0.85F,    0.80F}},
  {"fee of the fourth listing step",          [](S s) { return s.ListingFeeFourthTier(); },      {  1.20F,    0.75F,    1.65F,    1.60F}},
  {"fee of the fifth listing step",           [](S s) { return s.ListingFeeFifthTier(); },       {  2.40F,    1.50F,    3.30F,    3.20F}},
  {"fee of the sixth listing step",           [](S s) { return s.ListingFeeSixthTier(); },       {  3.60F,    2.00F,    5.15F,    4.80F}},
  {"fee of the seventh listing step",         [](S s) { return s.ListingFeeSeventhTier(); },     {  4.80F,    2.00F,    6.75F,    4.80F}},
  {"lower bound of the second reserve tier",  [](S s) { return s.ReserveSecondTierLower(); },    { 50.0F,    50.0F,    70.0F,     0.0F}},
  {"lower bound of the third reserve tier",   [](S s) { return s.ReserveThirdTierLower(false, false); }, {200.0F, 5000.0F, 300.0F, 0.0F}},
  {"the same bound for a vehicle",            [](S s) { return s.ReserveThirdTierLower(true, false); },  {200.0F, 5000.0F, 300.0F, 0.0F}},
  {"the same bound for a real estate ad",     [](S s) { return s.ReserveThirdTierLower(false, true); },  {200.0F, 5000.0F, 300.0F, 0.0F}},
  {"printed cap of the reserve fee",          [](S s) { return s.ReserveFeeCap(); },             {100.0F, 1000000.0F, 150.0F,     0.0F}},
  {"highlight",                               [](S s) { return s.HighlightFee(); },              {  5.00F,    1.50F,    2.00F,    1.50F}},
  {"subtitle",                                [](S s) { return s.SubtitleFee(); },               {  0.50F,    0.50F,    0.75F,    0.50F}},
  {"lower bound of the second sale tier",     [](S s) { return s.FVFSecondTierLower(); },        { 25.01F,   30.01F,   35.01F,   50.01F}},
  {"lower bound of the third sale tier",      [](S s) { return s.FVFThirdTierLower(); },         {1000.0F,  600.0F,   1450.0F,  500.0F}},
  {"rate of the first sale tier",             [](S s) { return s.FVFFirstTier(); },              {0.0525F,  0.0525F,  0.0525F,  0.05F}},
  {"rate of the second sale tier",            [](S s) { return s.FVFSecondTier(); },             {0.0275F,  0.0325F,  0.0275F,  0.04F}},
  {"rate of the third sale tier",             [](S s) { return s.FVFThirdTier(); },              {0.015F,   0.0175F,  0.015F,   0.02F}},
  {"default rate of conversion",              [](S s) { return s.DefaultConversionRate(); },     {0.0F,     0.5305F,  1.317F,   0.7854F}},
  {"Listing Designer is charged on two sites", [](S s) { return s.ListingDesignerFee(); },       {0.10F,    0.0F,     0.0F,     0.10F}},
};

const FigureRow kChosenFigures[] = {
  //                                                                                                                      US        UK       Canada   Germany
  {"real estate, timeshare, 3-10 day auction",        [](S s) { return s.RealEstateInsertionFee(true, 0); },             { 35.0F,    35.0F,    70.0F,    0.0F}},
  {"real estate, timeshare, 30-day auction",          [](S s) { return s.RealEstateInsertionFee(true, 1); },             { 50.0F,    35.0F,    75.0F,    0.0F}},
  {"real estate, timeshare, 30-day ad",               [](S s) { return s.RealEstateInsertionFee(true, 2); },             {150.0F,    35.0F,    75.0F,    0.0F}},
  {"real estate, timeshare, 90-day ad",               [](S s) { return s.RealEstateInsertionFee(true, 3); },             {300.0F,    35.0F,   150.0F,    0.0F}},
  {"real estate, other, 3-10 day auction",            [](S s) { return s.RealEstateInsertionFee(false, 0); },            {100.0F,    35.0F,    70.0F,    0.0F}},
  {"real estate, other, 30-day auction",              [](S s) { return s.RealEstateInsertionFee(false, 1); },            {150.0F,    35.0F,    75.0F,    0.0F}},
  {"real estate, other, 30-day ad",                   [](S s) { return s.RealEstateInsertionFee(false, 2); },            {150.0F,    35.0F,    75.0F,    0.0F}},
  {"real estate, other, 90-day ad",                   [](S s) { return s.RealEstateInsertionFee(false, 3); },            {300.0F,    35.0F,   150.0F,    0.0F}},
  {"real estate, timeshare, format above the list",   [](S s) { return s.RealEstateInsertionFee(true, 4); },             {  0.0F,    35.0F,     0.0F,    0.0F}},
  {"real estate, other, format above the list",       [](S s) { return s.RealEstateInsertionFee(false, 4); },            {  0.0F,    35.0F,     0.0F,    0.0F}},
  {"real estate, timeshare, no format",               [](S s) { return s.RealEstateInsertionFee(true, -1); },            {  0.0F,    35.0F,     0.0F,    0.0F}},
  {"real estate, other, no format",                   [](S s) { return s.RealEstateInsertionFee(false, -1); },           {  0.0F,    35.0F,     0.0F,    0.0F}},
  {"listing a motorcycle",                            [](S s) { return s.VehicleInsertionFee(true); },                   { 30.0F,     6.0F,    35.0F,   10.0F}},
  {"listing another vehicle",                         [](S s) { return s.VehicleInsertionFee(false); },                  { 40.0F,     6.0F,    35.0F,   10.0F}},
  {"printed fee on a sold motorcycle",                [](S s) { return s.FVFVehicle(true); },                            { 25.0F,    18.0F,    35.0F,   15.0F}},
  {"printed fee on another sold vehicle",             [](S s) { return s.FVFVehicle(false); },                           { 40.0F,    18.0F,    35.0F,   50.0F}},
  {"featured plus, one item",                         [](S s) { return s.FeaturedPlusFee(false, false); },               { 19.95F,    9.95F,    5.00F,  14.95F}},
  {"featured plus, one item, motors",                 [](S s) { return s.FeaturedPlusFee(true, false); },                { 19.95F,    9.95F,    5.00F,  14.95F}},
  {"featured plus, several items: dearer in Germany", [](S s) { return s.FeaturedPlusFee(false, true); },                { 19.95F,    9.95F,    5.00F,  17.95F}},
  {"featured plus, several items, motors",            [](S s) { return s.FeaturedPlusFee(true, true); },                 { 19.95F,    9.95F,    5.00F,  17.95F}},
  {"home page, one item",                             [](S s) { return s.HomePageFeaturedFee(1); },                      { 39.95F,   49.95F,   49.95F,  79.95F}},
  {"home page, no item",                              [](S s) { return s.HomePageFeaturedFee(0); },                      { 39.95F,   49.95F,   49.95F,  79.95F}},
  {"home page, two items: dearer but for the UK",     [](S s) { return s.HomePageFeaturedFee(2); },                      { 79.95F,   49.95F,   99.95F, 179.95F}},
  {"home page, many items",                           [](S s) { return s.HomePageFeaturedFee(1000); },                   { 79.95F,   49.95F,   99.95F, 179.95F}},
  {"bold",                                            [](S s) { return s.BoldFee(false, false); },                       {  1.00F,    0.75F,    1.00F,   1.50F}},
  {"bold, real estate",                               [](S s) { return s.BoldFee(false, true); },                        {  1.00F,    0.75F,    1.00F,   1.50F}},
  {"bold, vehicle",                                   [](S s) { return s.BoldFee(true, false); },                        {  4.00F,    0.75F,    1.00F,   1.50F}},
  {"bold, vehicle and real estate",                   [](S s) { return s.BoldFee(true, true); },                         {  4.00F,    0.75F,    1.00F,   1.50F}},
  {"ten-day auction",                                 [](S s) { return s.TenDayAuctionFee(false); },                     {  0.20F,    0.0F,     0.30F,   0.0F}},
  {"ten-day auction, vehicle",                        [](S s) { return s.TenDayAuctionFee(true); },                      {  5.00F,    0.0F,     0.30F,   0.0F}},
  {"Buy It Now",                                      [](S s) { return s.BINFee(false, false); },                        {  0.05F,    0.06F,    0.05F,   0.10F}},
  {"Buy It Now, motorcycle option without vehicle",   [](S s) { return s.BINFee(false, true); },                         {  0.05F,    0.06F,    0.05F,   0.10F}},
  {"Buy It Now, vehicle",                             [](S s) { return s.BINFee(true, false); },                         {  1.00F,    0.06F,    0.05F,   0.10F}},
  {"Buy It Now, motorcycle",                          [](S s) { return s.BINFee(true, true); },                          {  1.00F,    0.06F,    0.05F,   0.10F}},
  {"gift icon",                                       [](S s) { return s.GiftIconFee(false); },                          {  0.25F,    0.0F,     0.0F,    0.0F}},
  {"gift icon, vehicle",                              [](S s) { return s.GiftIconFee(true); },                           {  2.00F,    0.0F,     0.0F,    0.0F}},
  {"scheduled listing",                               [](S s) { return s.ScheduledListingFee(false); },                  {  0.10F,    0.12F,    0.15F,   0.10F}},
  {"scheduled listing, vehicle",                      [](S s) { return s.ScheduledListingFee(true); },                   {  1.00F,    0.12F,    0.15F,   0.10F}},
  {"gallery",                                         [](S s) { return s.GalleryFee(false, false, 0); },                 {  0.25F,    0.15F,    0.25F,   0.75F}},
  {"gallery, vehicle",                                [](S s) { return s.GalleryFee(true, false, 0); },                  {  0.0F,     0.15F,    0.25F,   0.75F}},
  {"gallery with five photos",                        [](S s) { return s.GalleryFee(false, true, 4); },                  {  0.25F,    0.15F,    0.25F,   0.75F}},
  {"gallery with the picture pack is included",       [](S s) { return s.GalleryFee(false, true, 5); },                  {  0.0F,     0.0F,     0.0F,    0.0F}},
  {"gallery of a vehicle with the picture pack",      [](S s) { return s.GalleryFee(true, true, 5); },                   {  0.0F,     0.0F,     0.0F,    0.0F}},
  {"gallery, pack in the list but no photos wanted",  [](S s) { return s.GalleryFee(false, false, 5); },                 {  0.25F,    0.15F,    0.25F,   0.75F}},
  {"gallery featured",                                [](S s) { return s.GalleryFeaturedFee(false, false); },            { 19.95F,   15.95F,    5.00F,  12.95F}},
  {"gallery featured, vehicle without motors",        [](S s) { return s.GalleryFeaturedFee(false, true); },             { 19.95F,   15.95F,    5.00F,  12.95F}},
  {"gallery featured, motors",                        [](S s) { return s.GalleryFeaturedFee(true, false); },             { 24.95F,   15.95F,    5.00F,  12.95F}},
  {"gallery featured, motors and vehicle",            [](S s) { return s.GalleryFeaturedFee(true, true); },              { 99.95F,   15.95F,    5.00F,  12.95F}},
  {"eCheck rate",                                     [](S s) { return s.BillpointEcheckRate(false); },                  {  0.02F,    0.25F,    0.02F,   0.0F}},
  {"eCheck rate, discounted; 25 % in the UK",         [](S s) { return s.BillpointEcheckRate(true); },                   {  0.0125F,  0.25F,    0.0125F, 0.0F}},
  {"credit card rate",                                [](S s) { return s.BillpointCCRate(false); },                      {  0.03F,    0.038F,   0.03F,   0.0F}},
  {"credit card rate, discounted",                    [](S s) { return s.BillpointCCRate(true); },                       {  0.0225F,  0.028F,   0.0225F, 0.0F}},
};

const FigureRow kPhotoFigures[] = {
  //                                                                                                          US       UK       Canada   Germany
  {"no photo option",                         [](S s) { return s.PhotosFee(false, 0, false, false, false); }, {0.0F,   0.0F,    0.0F,    0.0F}},
  {"a photo choice without extra photos",     [](S s) { return s.PhotosFee(false, 4, false, false, false); }, {0.0F,   0.0F,    0.0F,    0.0F}},
  {"no choice in the list counts no photo",   [](S s) { return s.PhotosFee(true, -1, false, false, false); }, {0.0F,   0.0F,    0.0F,    0.0F}},
  {"the first choice is one photo",           [](S s) { return s.PhotosFee(true, 0, false, false, false); },  {0.15F,  0.10F,   0.20F,   0.15F}},
  {"the second choice is two photos",         [](S s) { return s.PhotosFee(true, 1, false, false, false); },  {0.30F,  0.20F,   0.40F,   0.30F}},
  {"the third choice is three photos",        [](S s) { return s.PhotosFee(true, 2, false, false, false); },  {0.45F,  0.30F,   0.60F,   0.45F}},
  {"the fourth choice is four photos",        [](S s) { return s.PhotosFee(true, 3, false, false, false); },  {0.60F,  0.40F,   0.80F,   0.60F}},
  {"the fifth choice is five photos",         [](S s) { return s.PhotosFee(true, 4, false, false, false); },  {0.75F,  0.50F,   1.00F,   0.75F}},
  {"the sixth choice is the picture pack",    [](S s) { return s.PhotosFee(true, 5, false, false, false); },  {1.00F,  1.00F,   1.00F,   1.00F}},
  {"a choice above the list counts no photo", [](S s) { return s.PhotosFee(true, 6, false, false, false); },  {0.0F,   0.0F,    0.0F,    0.0F}},
  {"a vehicle pays the same for photos",      [](S s) { return s.PhotosFee(true, 4, true, true, true); },     {2.25F,  1.50F,   3.00F,   2.25F}},
  {"supersize",                               [](S s) { return s.PhotosFee(false, 0, true, false, false); },  {0.75F,  0.50F,   1.00F,   0.75F}},
  {"slide show",                              [](S s) { return s.PhotosFee(false, 0, false, true, false); },  {0.75F,  0.50F,   1.00F,   0.75F}},
  {"supersize and slide show",                [](S s) { return s.PhotosFee(false, 0, true, true, false); },   {1.50F,  1.00F,   2.00F,   1.50F}},
  {"one photo, supersize",                    [](S s) { return s.PhotosFee(true, 0, true, false, false); },   {0.90F,  0.60F,   1.20F,   0.90F}},
  {"one photo, slide show",                   [](S s) { return s.PhotosFee(true, 0, false, true, false); },   {0.90F,  0.60F,   1.20F,   0.90F}},
  {"the pack includes supersize",             [](S s) { return s.PhotosFee(true, 5, true, false, false); },   {1.00F,  1.00F,   1.00F,   1.00F}},
  {"the pack does not include the slide show", [](S s) { return s.PhotosFee(true, 5, false, true, false); },  {1.75F,  1.50F,   2.00F,   1.75F}},
  {"pack, supersize and slide show",          [](S s) { return s.PhotosFee(true, 5, true, true, false); },    {1.75F,  1.50F,   2.00F,   1.75F}},
  {"the pack in the list, not taken, suppresses supersize", [](S s) { return s.PhotosFee(false, 5, true, false, false); }, {0.0F, 0.0F, 0.0F, 0.0F}},
  {"the pack in the list, not taken, keeps the slide show", [](S s) { return s.PhotosFee(false, 5, true, true, false); },  {0.75F, 0.50F, 1.00F, 0.75F}},
  {"no choice in the list, supersize",        [](S s) { return s.PhotosFee(true, -1, true, false, false); },  {0.75F,  0.50F,   1.00F,   0.75F}},
};

const FigureRow kReserveFigures[] = {
  //                                                                                                     US       UK       Canada   Germany
  {"first tier",                              [](S s) { return s.ReserveFirstTier(40, false, false); },     {1.00F,  1.00F,   1.50F,   0.0F}},
  {"first tier, reduced",                     [](S s) { return s.ReserveFirstTier(40, false, true); },      {1.00F,  2.00F,   1.50F,   0.0F}},
  {"first tier, vehicle",                     [](S s) { return s.ReserveFirstTier(40, true, false); },      {2.00F,  3.00F,   1.50F,   0.0F}},
  {"first tier, vehicle and reduced",         [](S s) { return s.ReserveFirstTier(40, true, true); },       {2.00F,  3.00F,   1.50F,   0.0F}},
  {"first tier, whatever the price",          [](S s) { return s.ReserveFirstTier(9000, false, false); },   {1.00F,  1.00F,   1.50F,   0.0F}},
  {"second tier: a share in the UK",          [](S s) { return s.ReserveSecondTier(100, false, false); },   {2.00F,  2.00F,   3.00F,   0.0F}},
  {"second tier, a higher reserve",           [](S s) { return s.ReserveSecondTier(250, false, false); },   {2.00F,  5.00F,   3.00F,   0.0F}},
  {"second tier, reduced: flat in the UK",    [](S s) { return s.ReserveSecondTier(250, false, true); },    {2.00F,  2.00F,   3.00F,   0.0F}},
  {"second tier, vehicle: flat in the UK",    [](S s) { return s.ReserveSecondTier(250, true, false); },    {2.00F,  3.00F,   3.00F,   0.0F}},
  {"second tier, vehicle and reduced",        [](S s) { return s.ReserveSecondTier(250, true, true); },     {2.00F,  3.00F,   3.00F,   0.0F}},
  {"third tier: a share, but not in the UK",  [](S s) { return s.ReserveThirdTier(9000, false, false); },   {90.0F,  0.0F,    90.0F,   0.0F}},
  {"third tier, at the first cap",            [](S s) { return s.ReserveThirdTier(10000, false, false); },  {100.0F, 0.0F,    100.0F,  0.0F}},
  {"third tier, between the caps",            [](S s) { return s.ReserveThirdTier(12000, false, false); },  {100.0F, 0.0F,    120.0F,  0.0F}},
  {"third tier, at the second cap",           [](S s) { return s.ReserveThirdTier(15000, false, false); },  {100.0F, 0.0F,    150.0F,  0.0F}},
  {"third tier, above both caps",             [](S s) { return s.ReserveThirdTier(20000, false, false); },  {100.0F, 0.0F,    150.0F,  0.0F}},
  {"third tier, vehicle: nothing in the US",  [](S s) { return s.ReserveThirdTier(9000, true, false); },    {0.0F,   0.0F,    90.0F,   0.0F}},
  {"third tier, reduced",                     [](S s) { return s.ReserveThirdTier(9000, false, true); },    {90.0F,  0.0F,    90.0F,   0.0F}},
  {"third tier, vehicle and reduced",         [](S s) { return s.ReserveThirdTier(9000, true, true); },     {0.0F,   0.0F,    90.0F,   0.0F}},
};

// Rates 0.5 in the UK, 2 in Canada, 0.25 in Germany.
const FigureRow kConvertedFigures[] = {
  //                                                                                                 US         UK         Canada     Germany
  {"PayPal's flat fee is kept in dollars",      [](S s) { return s.PayPalFlatFee(); },              {   0.30F,    0.15F,     0.60F,   0.075F}},
  {"PayPal's cap is kept in dollars",           [](S s) { return s.PayPalMaxFeeNonCC(); },          {   5.00F,    2.50F,    10.00F,   1.25F}},
  {"Billpoint's flat fee converts in Canada",   [](S s) { return s.BillpointFlatFee(); },           {   0.35F,    0.25F,     0.70F,   0.0F}},
  {"Billpoint's threshold converts in Canada",  [](S s) { return s.BillpointThreshold(); },         {  15.0F,    10.0F,     30.0F,    0.0F}},
  {"largest payment, neither choice",           [](S s) { return s.BillpointMax(false, false); },   { 200.0F,   350.0F,    400.0F,    0.0F}},
  {"largest payment, first choice",             [](S s) { return s.BillpointMax(true, false); },    { 200.0F,  1350.0F,    400.0F,    0.0F}},
  {"largest payment, second choice",            [](S s) { return s.BillpointMax(false, true); },    { 500.0F,   350.0F,   1000.0F,    0.0F}},
  {"largest payment, both choices",             [](S s) { return s.BillpointMax(true, true); },     {2000.0F,  1350.0F,   4000.0F,    0.0F}},
  {"the German rate is kept but not read",      [](S s) { return s.ConversionRate(); },             {   0.0F,     0.5F,      2.0F,    0.0F}},
};

// The same members while no rate was ever written.
const FigureRow kUnconvertedFigures[] = {
  {"PayPal's flat fee before a rate",           [](S s) { return s.PayPalFlatFee(); },              {   0.30F,    0.0F,      0.0F,    0.0F}},
  {"PayPal's cap before a rate",                [](S s) { return s.PayPalMaxFeeNonCC(); },          {   5.00F,    0.0F,      0.0F,    0.0F}},
  {"Billpoint's flat fee before a rate",        [](S s) { return s.BillpointFlatFee(); },           {   0.35F,    0.25F,     0.0F,    0.0F}},
  {"Billpoint's threshold before a rate",       [](S s) { return s.BillpointThreshold(); },         {  15.0F,    10.0F,      0.0F,    0.0F}},
  {"largest payment before a rate",             [](S s) { return s.BillpointMax(true, true); },     {2000.0F,  1350.0F,      0.0F,    0.0F}},
  {"no rate was written",                       [](S s) { return s.ConversionRate(); },             {   0.0F,     0.0F,      0.0F,    0.0F}},
};

struct SaleRow {
  const char* rule;
  std::int32_t site;
  bool isMotorcycle;
  float price;
  float fee;
};

const SaleRow kVehicleSales[] = {
  {"US: a motorcycle, whatever its price",       1, true,      100.00F,  25.0F},
  {"US: a dear motorcycle",                      1, true,    90000.00F,  25.0F},
  {"US: another vehicle, whatever its price",    1, false,     100.00F,  40.0F},
  {"US: another dear vehicle",                   1, false,   90000.00F,  40.0F},
  {"UK: no price",                               2, false,       0.00F,  15.0F},
  {"UK: one penny below the share",              2, false,    2999.99F,  15.0F},
  {"UK: the share begins at 3000",               2, false,    3000.00F,  15.0F},
  {"UK: within the share",                       2, false,    4000.00F,  20.0F},
  {"UK: a motorcycle pays the same share",       2, true,     4000.00F,  20.0F},
  {"UK: within the share, with pence",           2, false,    4500.50F,  22.5025F},
  {"UK: the highest fee begins at 6000",         2, false,    6000.00F,  30.0F},
  {"UK: above the share",                        2, false,   90000.00F,  30.0F},
  {"Canada: a motorcycle",                       3, true,     9000.00F,  22.0F},
  {"Canada: another vehicle",                    3, false,    9000.00F,  35.0F},
  {"Germany: a motorcycle, whatever its price",  4, true,    90000.00F,  15.0F},
  {"Germany: no price",                          4, false,       0.00F,  50.0F},
  {"Germany: the share grows from the start",    4, false,    5000.00F,  75.0F},
  {"Germany: a price of 9999",                   4, false,    9999.00F,  99.995F},
  {"Germany: the highest fee begins at 10000",   4, false,   10000.00F, 100.0F},
  {"Germany: above the share",                   4, false,   90000.00F, 100.0F},
};
// clang-format on

template <std::size_t count>
void expectOnKnownSites(const FigureRow (&rows)[count], CAuctionSite (*siteNumbered)(std::int32_t)) {
  for (const FigureRow& row : rows) {
    SCOPED_TRACE(row.rule);
    for (std::size_t i = 0; i < row.expected.size(); ++i) {
      const auto number = static_cast<std::int32_t>(i + 1);
      EXPECT_EQ(row.read(siteNumbered(number)), row.expected[i]) << "site " << number;
    }
  }
}

template <std::size_t count>
void expectNothingOnUnknownSites(const FigureRow (&rows)[count]) {
  for (const FigureRow& row : rows) {
    SCOPED_TRACE(row.rule);
    for (const std::int32_t number :
         {0, 5, -1, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
      EXPECT_EQ(row.read(siteWithRates(number)), 0.0F) << "site " << number;
    }
  }
}

TEST(Schedule, PlainFigures) {
  expectOnKnownSites(kPlainFigures, siteOf);
  expectNothingOnUnknownSites(kPlainFigures);
}

TEST(Schedule, FiguresThatTakeAChoice) {
  expectOnKnownSites(kChosenFigures, siteOf);
  expectNothingOnUnknownSites(kChosenFigures);
}

TEST(Schedule, Photos) {
  // A sum of prices in single precision may miss the nearest single of the sum by its last bit.
  for (const FigureRow& row : kPhotoFigures) {
    SCOPED_TRACE(row.rule);
    for (std::size_t i = 0; i < row.expected.size(); ++i) {
      const auto number = static_cast<std::int32_t>(i + 1);
      EXPECT_FLOAT_EQ(row.read(siteOf(number)), row.expected[i]) << "site " << number;
    }
  }
  expectNothingOnUnknownSites(kPhotoFigures);
}

TEST(Schedule, ReserveTiers) {
  expectOnKnownSites(kReserveFigures, siteOf);
  expectNothingOnUnknownSites(kReserveFigures);
}

TEST(Schedule, FiguresKeptInDollars) {
  expectOnKnownSites(kConvertedFigures, siteWithRates);
  expectNothingOnUnknownSites(kConvertedFigures);
}

TEST(Schedule, FiguresKeptInDollarsAreNothingBeforeARateIsWritten) {
  expectOnKnownSites(kUnconvertedFigures, siteOf);
}

TEST(Schedule, RatesDoNotTouchTheOtherFigures) {
  expectOnKnownSites(kPlainFigures, siteWithRates);
  expectOnKnownSites(kChosenFigures, siteWithRates);
}

TEST(Schedule, SoldVehicles) {
  for (const SaleRow& row : kVehicleSales) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(siteOf(row.site).VehicleFVF(row.isMotorcycle, row.price), row.fee);
  }
  for (const std::int32_t unknown : {0, 5, -1}) {
    EXPECT_EQ(siteOf(unknown).VehicleFVF(true, 5000.0F), 0.0F);
    EXPECT_EQ(siteOf(unknown).VehicleFVF(false, 5000.0F), 0.0F);
  }
}

TEST(Schedule, ASoldUkVehicleJustBelow6000PaysAboutThirty) {
  EXPECT_NEAR(static_cast<double>(siteOf(2).VehicleFVF(false, 5999.99F)), 29.99995, 0.00001);
}

TEST(Site, NoSiteIsSelectedAtFirst) {
  const CAuctionSite site;
  EXPECT_EQ(site.Site(), 0);
  EXPECT_EQ(site.CurrencyString(), "");
}

TEST(Site, AnyNumberIsKept) {
  for (const std::int32_t number : {0, 1, 2, 3, 4, 5, -1, std::numeric_limits<std::int32_t>::max(),
                                    std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(siteOf(number).Site(), number);
  }
}

TEST(Site, HasACurrencyIfItIsKnown) {
  EXPECT_EQ(siteOf(1).CurrencyString(), "$");
  EXPECT_EQ(siteOf(2).CurrencyString(), "GBP");
  EXPECT_EQ(siteOf(3).CurrencyString(), "C$");
  EXPECT_EQ(siteOf(4).CurrencyString(), "EUR");
  for (const std::int32_t unknown : {0, 5, -1}) EXPECT_EQ(siteOf(unknown).CurrencyString(), "");
}

TEST(ConversionRate, OfTheUsSiteIsLost) {
  CAuctionSite site = siteWithRates(CAuctionSite::eBayUS);
  site.ConversionRate(9.0F);
  EXPECT_EQ(site.ConversionRate(), 0.0F);
  EXPECT_EQ(site.PayPalFlatFee(), 0.30F);
  site.Site(CAuctionSite::eBayCanada);
  EXPECT_EQ(site.ConversionRate(), kCanadianRate);
}

TEST(ConversionRate, OfAnUnknownSiteIsLost) {
  for (const std::int32_t unknown : {0, 5, -1}) {
    CAuctionSite site = siteWithRates(unknown);
    site.ConversionRate(9.0F);
    EXPECT_EQ(site.ConversionRate(), 0.0F);
    site.Site(CAuctionSite::eBayUK);
    EXPECT_EQ(site.ConversionRate(), kUkRate);
    site.Site(CAuctionSite::eBayCanada);
    EXPECT_EQ(site.ConversionRate(), kCanadianRate);
    site.Site(CAuctionSite::eBayGermany);
    EXPECT_EQ(site.PayPalMaxFeeNonCC(), 1.25F);
  }
}

TEST(ConversionRate, SurvivesAChangeOfTheSite) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUK);
  site.ConversionRate(0.5305F);
  site.Site(CAuctionSite::eBayCanada);
  EXPECT_EQ(site.ConversionRate(), 0.0F);
  site.ConversionRate(1.317F);
  site.Site(CAuctionSite::eBayUS);
  site.Site(CAuctionSite::eBayUK);
  EXPECT_EQ(site.ConversionRate(), 0.5305F);
  site.Site(CAuctionSite::eBayCanada);
  EXPECT_EQ(site.ConversionRate(), 1.317F);
}

TEST(ConversionRate, OfGermanyReadsAsNothingButIsUsed) {
  CAuctionSite site = siteOf(CAuctionSite::eBayGermany);
  site.ConversionRate(0.7854F);
  EXPECT_EQ(site.ConversionRate(), 0.0F);
  EXPECT_EQ(plainText(site.PayPalFlatFee(), enUS()), " 0.23562");
  EXPECT_EQ(plainText(site.PayPalMaxFeeNonCC(), enUS()), " 3.927");
}

TEST(ConversionRate, IsReadWhenTheAmountIsAsked) {
  CAuctionSite site = siteOf(CAuctionSite::eBayUK);
  EXPECT_EQ(site.PayPalFlatFee(), 0.0F);
  site.ConversionRate(0.5305F);
  EXPECT_EQ(plainText(site.PayPalFlatFee(), enUS()), " 0.15915");
  site.ConversionRate(0.5F);
  EXPECT_EQ(site.PayPalFlatFee(), 0.15F);
}

TEST(ConversionRate, IsNeverFilledWithTheDefault) {
  CAuctionSite site = siteOf(CAuctionSite::eBayCanada);
  EXPECT_EQ(site.DefaultConversionRate(), 1.317F);
  EXPECT_EQ(site.ConversionRate(), 0.0F);
}

TEST(Overflow, OfAConvertedAmountIsAnError) {
  for (const std::int32_t number : {2, 3, 4}) {
    CAuctionSite site = siteOf(number);
    site.ConversionRate(3.0e38F);
    EXPECT_THROW(static_cast<void>(site.PayPalMaxFeeNonCC()), OverflowError) << "site " << number;
    EXPECT_NO_THROW(static_cast<void>(site.PayPalFlatFee())) << "site " << number;
  }
  CAuctionSite canada = siteOf(CAuctionSite::eBayCanada);
  canada.ConversionRate(3.0e38F);
  EXPECT_THROW(static_cast<void>(canada.BillpointThreshold()), OverflowError);
  EXPECT_THROW(static_cast<void>(canada.BillpointMax(false, false)), OverflowError);
  EXPECT_THROW(static_cast<void>(canada.BillpointMax(true, true)), OverflowError);
}

TEST(Overflow, DoesNotReachAmountsThatAreNotConverted) {
  CAuctionSite site = siteOf(CAuctionSite::eBayUK);
  site.ConversionRate(3.0e38F);
  EXPECT_EQ(site.BillpointThreshold(), 10.0F);
  EXPECT_EQ(site.BillpointMax(true, true), 1350.0F);
  site.Site(CAuctionSite::eBayUS);
  EXPECT_EQ(site.PayPalMaxFeeNonCC(), 5.0F);
}

TEST(Overflow, OfAShareCannotHappenAsSharesAreSmall) {
  constexpr float largest = std::numeric_limits<float>::max();
  EXPECT_EQ(siteOf(1).ReserveThirdTier(largest, false, false), 100.0F);
  EXPECT_EQ(siteOf(2).VehicleFVF(false, largest), 30.0F);
  EXPECT_EQ(siteOf(3).ReserveThirdTier(largest, false, false), 150.0F);
  EXPECT_EQ(siteOf(4).VehicleFVF(false, largest), 100.0F);
}

}  // namespace
