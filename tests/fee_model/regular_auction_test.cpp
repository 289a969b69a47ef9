#include "regular_auction.h"

#include <gtest/gtest.h>

#include "amount_errors.h"
#include "amount_text.h"
#include "test_locales.h"

/// \file
/// Insertion fee, reserve fee and final value fee of one item, worked out by hand from the schedule.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

/// A calculator on a schedule of its own.
class Auction {
 public:
  explicit Auction(std::int32_t site, const NumberLocale& locale = enUS()) : calculator(locale) {
    m_schedule.Site(site);
    calculator.Site(m_schedule);
  }
  Auction(const Auction&) = delete;
  Auction& operator=(const Auction&) = delete;

  void switchTo(std::int32_t site) { m_schedule.Site(site); }

 private:
  CAuctionSite m_schedule;

 public:
  CRegularAuction calculator;
};

std::string listingFee(std::int32_t site, std::string_view price, bool isTwoCategories) {
  return Auction(site).calculator.InsertionFee(price, isTwoCategories, false, false, false, false, 0);
}

std::string reserveFee(std::int32_t site, std::string_view reserve, bool isTwoCategories, bool isVehicle) {
  return Auction(site).calculator.ReserveFee(reserve, "0", "0", isTwoCategories, isVehicle, false);
}

std::string saleFee(std::int32_t site, std::string_view bid) {
  return Auction(site).calculator.FVF(bid, "", false, false, false, false);
}

struct LadderRow {
  const char* rule;
  std::int32_t site;
  const char* price;
  const char* fee;
  const char* feeInTwoCategories;
};

// clang-format off
const LadderRow kLadder[] = {
  {"US: no price is no step",                      US,      "",        "0.00",  "0.00"},
  {"US: a price of nothing is no step",            US,      "0",       "0.00",  "0.00"},
  {"US: below one cent is no step",                US,      "0.009",   "0.00",  "0.00"},
  {"US: a negative price is no step",              US,      "-1",      "0.00",  "0.00"},
  {"US: the first step begins at one cent",        US,      "0.01",    "0.30",  "0.60"},
  {"US: one cent above the first step's begin",    US,      "0.02",    "0.30",  "0.60"},
  {"US: one cent below the first bound",           US,      "0.98",    "0.30",  "0.60"},
  {"US: at the first bound",                       US,      "0.99",    "0.30",  "0.60"},
  {"US: in the gap above the first bound",         US,      "0.995",   "0.00",  "0.00"},
  {"US: one cent above the first bound",           US,      "1.00",    "0.35",  "0.70"},
  {"US: one cent below the second bound",          US,      "9.98",    "0.35",  "0.70"},
  {"US: at the second bound",                      US,      "9.99",    "0.35",  "0.70"},
  {"US: in the gap above the second bound",        US,      "9.995",   "0.00",  "0.00"},
  {"US: one cent above the second bound",          US,      "10.00",   "0.60",  "1.20"},
  {"US: one cent below the third bound",           US,      "24.98",   "0.60",  "1.20"},
  {"US: at the third bound",                       US,      "24.99",   "0.60",  "1.20"},
  {"US: in the gap above the third bound",         US,      "24.995",  "0.00",  "0.00"},
  {"US: one cent above the third bound",           US,      "25.00",   "1.20",  "2.40"},
  {"US: one cent below the fourth bound",          US,      "49.98",   "1.20",  "2.40"},
  {"US: at the fourth bound",                      US,      "49.99",   "1.20",  "2.40"},
  {"US: in the gap above the fourth bound",        US,      "49.995",  "0.00",  "0.00"},
  {"US: one cent above the fourth bound",          US,      "50.00",   "2.40",  "4.80"},
  {"US: one cent below the fifth bound",           US,      "199.98",  "2.40",  "4.80"},
  {"US: at the fifth bound",                       US,      "199.99",  "2.40",  "4.80"},
  {"US: in the gap above the fifth bound",         US,      "199.995", "0.00",  "0.00"},
  {"US: one cent above the fifth bound",           US,      "200.00",  "3.60",  "7.20"},
  {"US: one cent below the sixth bound",           US,      "499.98",  "3.60",  "7.20"},
  {"US: at the sixth bound",                       US,      "499.99",  "3.60",  "7.20"},
  {"US: the sixth bound has no gap above it",      US,      "499.995", "4.80",  "9.60"},
  {"US: one cent above the sixth bound",           US,      "500.00",  "4.80",  "9.60"},
  {"US: the seventh step has no end",              US,      "1e30",    "4.80",  "9.60"},

  {"UK: no price is no step",                      UK,      "",        "0.00",  "0.00"},
  {"UK: the first step begins at one penny",       UK,      "0.01",    "0.15",  "0.30"},
  {"UK: one penny below the first bound",          UK,      "0.98",    "0.15",  "0.30"},
  {"UK: at the first bound",                       UK,      "0.99",    "0.15",  "0.30"},
  {"UK: in the gap above the first bound",         UK,      "0.995",   "0.00",  "0.00"},
  {"UK: one penny above the first bound",          UK,      "1.00",    "0.20",  "0.40"},
  {"UK: one penny below the second bound",         UK,      "4.98",    "0.20",  "0.40"},
  {"UK: at the second bound",                      UK,      "4.99",    "0.20",  "0.40"},
  {"UK: in the gap above the second bound",        UK,      "4.995",   "0.00",  "0.00"},
  {"UK: one penny above the second bound",         UK,      "5.00",    "0.35",  "0.70"},
  {"UK: one penny below the third bound",          UK,      "14.98",   "0.35",  "0.70"},
  {"UK: at the third bound",                       UK,      "14.99",   "0.35",  "0.70"},
  {"UK: in the gap above the third bound",         UK,      "14.995",  "0.00",  "0.00"},
  {"UK: one penny above the third bound",          UK,      "15.00",   "0.75",  "1.50"},
  {"UK: one penny below the fourth bound",         UK,      "29.98",   "0.75",  "1.50"},
  {"UK: at the fourth bound",                      UK,      "29.99",   "0.75",  "1.50"},
  {"UK: in the gap above the fourth bound",        UK,      "29.995",  "0.00",  "0.00"},
  {"UK: one penny above the fourth bound",         UK,      "30.00",   "1.50",  "3.00"},
  {"UK: one penny below the fifth bound",          UK,      "99.98",   "1.50",  "3.00"},
  {"UK: at the fifth bound, which is the sixth",   UK,      "99.99",   "1.50",  "3.00"},
  {"UK: the repeated bound has no gap above it",   UK,      "99.995",  "2.00",  "4.00"},
  {"UK: one penny above the repeated bound",       UK,      "100.00",  "2.00",  "4.00"},
  {"UK: the ladder repeats a bound, so its sixth fee is never reached", UK, "150", "2.00", "4.00"},

  {"Canada: no price is no step",                  Canada,  "",        "0.00",  "0.00"},
  {"Canada: the first step begins at one cent",    Canada,  "0.01",    "0.35",  "0.70"},
  {"Canada: one cent below the first bound",       Canada,  "0.98",    "0.35",  "0.70"},
  {"Canada: at the first bound",                   Canada,  "0.99",    "0.35",  "0.70"},
  {"Canada: in the gap above the first bound",     Canada,  "0.995",   "0.00",  "0.00"},
  {"Canada: one cent above the first bound",       Canada,  "1.00",    "0.45",  "0.90"},
  {"Canada: one cent below the second bound",      Canada,  "14.98",   "0.45",  "0.90"},
  {"Canada: at the second bound",                  Canada,  "14.99",   "0.45",  "0.90"},
  {"Canada: in the gap above the second bound",    Canada,  "14.995",  "0.00",  "0.00"},
  {"Canada: one cent above the second bound",      Canada,  "15.00",   "0.85",  "1.70"},
  {"Canada: one cent below the third bound",       Canada,  "34.98",   "0.85",  "1.70"},
  {"Canada: at the third bound",                   Canada,  "34.99",   "0.85",  "1.70"},
  {"Canada: in the gap above the third bound",     Canada,  "34.995",  "0.00",  "0.00"},
  {"Canada: one cent above the third bound",       Canada,  "35.00",   "1.65",  "3.30"},
  {"Canada: one cent below the fourth bound",      Canada,  "69.98",   "1.65",  "3.30"},
  {"Canada: at the fourth bound",                  Canada,  "69.99",   "1.65",  "3.30"},
  {"Canada: in the gap above the fourth bound",    Canada,  "69.995",  "0.00",  "0.00"},
  {"Canada: one cent above the fourth bound",      Canada,  "70.00",   "3.30",  "6.60"},
  {"Canada: one cent below the fifth bound",       Canada,  "299.98",  "3.30",  "6.60"},
  {"Canada: at the fifth bound",                   Canada,  "299.99",  "3.30",  "6.60"},
  {"Canada: in the gap above the fifth bound",     Canada,  "299.995", "0.00",  "0.00"},
  {"Canada: one cent above the fifth bound",       Canada,  "300.00",  "5.15",  "10.30"},
  {"Canada: one cent below the sixth bound",       Canada,  "699.98",  "5.15",  "10.30"},
  {"Canada: at the sixth bound",                   Canada,  "699.99",  "5.15",  "10.30"},
  {"Canada: the sixth bound has no gap above it",  Canada,  "699.995", "6.75",  "13.50"},
  {"Canada: one cent above the sixth bound",       Canada,  "700.00",  "6.75",  "13.50"},

  {"Germany: no price is no step",                 Germany, "",        "0.00",  "0.00"},
  {"Germany: the first step begins at one cent",   Germany, "0.01",    "0.25",  "0.50"},
  {"Germany: no bound at 0.99",                    Germany, "0.995",   "0.25",  "0.50"},
  {"Germany: one cent below the first bound",      Germany, "1.98",    "0.25",  "0.50"},
  {"Germany: at the first bound",                  Germany, "1.99",    "0.25",  "0.50"},
  {"Germany: in the gap above the first bound",    Germany, "1.995",   "0.00",  "0.00"},
  {"Germany: one cent above the first bound",      Germany, "2.00",    "0.45",  "0.90"},
  {"Germany: one cent below the second bound",     Germany, "9.98",    "0.45",  "0.90"},
  {"Germany: at the second bound",                 Germany, "9.99",    "0.45",  "0.90"},
  {"Germany: in the gap above the second bound",   Germany, "9.995",   "0.00",  "0.00"},
  {"Germany: one cent above the second bound",     Germany, "10.00",   "0.80",  "1.60"},
  {"Germany: one cent below the third bound",      Germany, "24.98",   "0.80",  "1.60"},
  {"Germany: at the third bound",                  Germany, "24.99",   "0.80",  "1.60"},
  {"Germany: in the gap above the third bound",    Germany, "24.995",  "0.00",  "0.00"},
  {"Germany: one cent above the third bound",      Germany, "25.00",   "1.60",  "3.20"},
  {"Germany: one cent below the fourth bound",     Germany, "99.98",   "1.60",  "3.20"},
  {"Germany: at the fourth bound",                 Germany, "99.99",   "1.60",  "3.20"},
  {"Germany: in the gap above the fourth bound",   Germany, "99.995",  "0.00",  "0.00"},
  {"Germany: one cent above the fourth bound",     Germany, "100.00",  "3.20",  "6.40"},
  {"Germany: one cent below the fifth bound",      Germany, "249.98",  "3.20",  "6.40"},
  {"Germany: at the fifth bound, which is the sixth", Germany, "249.99", "3.20", "6.40"},
  {"Germany: the repeated bound has no gap above it", Germany, "249.995", "4.80", "9.60"},
  {"Germany: one cent above the repeated bound",   Germany, "250.00",  "4.80",  "9.60"},

  {"an unknown site charges nothing",              5,       "10.00",   "0.00",  "0.00"},
};

struct InsertionRow {
  const char* rule;
  std::int32_t site;
  bool isTwoCategories;
  bool isRealEstate;
  bool isVehicle;
  bool isMotorcycle;
  bool isTimeshare;
  int format;
  const char* fee;
};

const InsertionRow kInsertions[] = {
  //                                                          two    estate vehicle cycle  share  format
  {"US timeshare, 3-10 day auction",                 US,      false, true,  false,  false, true,  0, "35.00"},
  {"US timeshare, 30-day auction",                   US,      false, true,  false,  false, true,  1, "50.00"},
  {"US timeshare, two categories",                   US,      true,  true,  false,  false, true,  1, "100.00"},
  {"US timeshare, 90-day ad",                        US,      false, true,  false,  false, true,  3, "300.00"},
  {"US other real estate, 3-10 day auction",         US,      false, true,  false,  false, false, 0, "100.00"},
  {"US other real estate, 90-day ad, two categories", US,     true,  true,  false,  false, false, 3, "600.00"},
  {"real estate beats vehicle",                      US,      false, true,  true,   true,  true,  0, "35.00"},
  {"an unknown format costs nothing in the US",      US,      true,  true,  false,  false, true,  4, "0.00"},
  {"US motorcycle",                                  US,      false, false, true,   true,  false, 0, "30.00"},
  {"US motorcycle, two categories",                  US,      true,  false, true,   true,  false, 0, "60.00"},
  {"US other vehicle",                               US,      false, false, true,   false, false, 0, "40.00"},
  {"the motorcycle option alone is no vehicle",      US,      false, false, false,  true,  true,  3, "2.40"},
  {"UK real estate",                                 UK,      false, true,  false,  false, false, 3, "35.00"},
  {"UK real estate, unknown format",                 UK,      true,  true,  false,  false, false, -1, "70.00"},
  {"UK vehicle",                                     UK,      false, false, true,   false, false, 0, "6.00"},
  {"Canadian real estate",                           Canada,  false, true,  false,  false, true,  3, "150.00"},
  {"Canadian vehicle, two categories",               Canada,  true,  false, true,   true,  false, 0, "70.00"},
  {"German real estate",                             Germany, false, true,  false,  false, true,  3, "0.00"},
  {"German vehicle",                                 Germany, false, false, true,   false, false, 0, "10.00"},
};

struct ReserveRow {
  const char* rule;
  std::int32_t site;
  const char* reserve;
  bool isVehicle;
  const char* fee;
  const char* feeInTwoCategories;
};

const ReserveRow kReserves[] = {
  {"US: no reserve price",                         US,      "0",        false, " 1",       " 2"},
  {"US: in the first tier",                        US,      "40",       false, " 1",       " 2"},
  {"US: one cent below the second tier",           US,      "49.99",    false, " 1",       " 2"},
  {"US: the second tier begins",                   US,      "50",       false, " 2",       " 4"},
  {"US: one cent inside the second tier",          US,      "50.01",    false, " 2",       " 4"},
  {"US: in the second tier",                       US,      "150",      false, " 2",       " 4"},
  {"US: one cent below the third tier",            US,      "199.99",   false, " 2",       " 4"},
  {"US: the third tier begins",                    US,      "200",      false, " 2",       " 4"},
  {"US: one cent inside the third tier",           US,      "200.01",   false, " 2.0001",  " 4.0002"},
  {"US: one per cent",                             US,      "5000",     false, " 50",      " 100"},
  {"US: one cent below the cap",                   US,      "9999.99",  false, " 99.9999", " 199.9998"},
  {"US: at the cap",                               US,      "10000",    false, " 100",     " 200"},
  {"US: one cent above the cap",                   US,      "10000.01", false, " 100",     " 200"},
  {"US: two categories double the capped fee",     US,      "20000",    false, " 100",     " 200"},
  {"US: a vehicle in the first tier",              US,      "49.99",    true,  " 2",       " 4"},
  {"US: a vehicle in the second tier",             US,      "50",       true,  " 2",       " 4"},
  {"US: a vehicle just below the third tier",      US,      "199.99",   true,  " 2",       " 4"},
  {"US: a vehicle in the third tier costs nothing", US,     "200",      true,  " 0",       " 0"},
  {"US: a dear vehicle costs nothing",             US,      "300",      true,  " 0",       " 0"},

  {"UK: no reserve price",                         UK,      "0",        false, " 1",       " 2"},
  {"UK: one penny below the second tier",          UK,      "49.99",    false, " 1",       " 2"},
  {"UK: the second tier begins",                   UK,      "50",       false, " 1",       " 2"},
  {"UK: one penny inside the second tier",         UK,      "50.01",    false, " 1.0002",  " 2.0004"},
  {"UK: two per cent",                             UK,      "100",      false, " 2",       " 4"},
  {"UK: one penny below the third tier",           UK,      "4999.99",  false, " 99.9998", " 199.9996"},
  {"UK: the third tier costs nothing",             UK,      "5000",     false, " 0",       " 0"},
  {"UK: above the third tier's begin",             UK,      "6000",     false, " 0",       " 0"},
  {"UK: a vehicle in the first tier",              UK,      "49.99",    true,  " 3",       " 6"},
  {"UK: a vehicle in the second tier",             UK,      "50",       true,  " 3",       " 6"},
  {"UK: a vehicle just below the third tier",      UK,      "4999.99",  true,  " 3",       " 6"},
  {"UK: a vehicle in the third tier",              UK,      "5000",     true,  " 0",       " 0"},

  {"Canada: no reserve price",                     Canada,  "0",        false, " 1.5",     " 3"},
  {"Canada: one cent below the second tier",       Canada,  "69.99",    false, " 1.5",     " 3"},
  {"Canada: the second tier begins",               Canada,  "70",       false, " 3",       " 6"},
  {"Canada: one cent below the third tier",        Canada,  "299.99",   false, " 3",       " 6"},
  {"Canada: the third tier begins",                Canada,  "300",      false, " 3",       " 6"},
  {"Canada: one cent inside the third tier",       Canada,  "300.01",   false, " 3.0001",  " 6.0002"},
  {"Canada: one cent below the cap",               Canada,  "14999.99", false, " 149.9999", " 299.9998"},
  {"Canada: at the cap",                           Canada,  "15000",    false, " 150",     " 300"},
  {"Canada: one cent above the cap",               Canada,  "15000.01", false, " 150",     " 300"},
  {"Canada: two categories double the capped fee", Canada,  "20000",    false, " 150",     " 300"},
  {"Canada: a vehicle pays like anything else",    Canada,  "5000",     true,  " 50",      " 100"},
  {"Canada: a vehicle in the first tier",          Canada,  "69.99",    true,  " 1.5",     " 3"},

  {"Germany: no reserve price, no fee",            Germany, "0",        false, " 0",       " 0"},
  {"Germany: a small reserve is free",             Germany, "40",       false, " 0",       " 0"},
  {"Germany: a large reserve is free",             Germany, "20000",    false, " 0",       " 0"},
  {"Germany: a vehicle is free",                   Germany, "300",      true,  " 0",       " 0"},

  {"an unknown site charges nothing",              0,       "300",      false, " 0",       " 0"},
};

struct SaleRow {
  const char* rule;
  std::int32_t site;
  const char* bid;
  const char* shown;
  double exact;  ///< worked out on paper, before any rounding
};

const SaleRow kSales[] = {
  // US: 5.25 % up to 25, 2.75 % up to 1000, 1.5 % above.
  {"US: no bid",                                   US,      "",        "0.00",  0.0},
  {"US: a bid of nothing",                         US,      "0",       "0.00",  0.0},
  {"US: a bid of one cent",                        US,      "0.01",    "0.00",  0.000525},
  {"US: a bid of one dollar",                      US,      "1.00",    "0.05",  0.0525},
  {"US: half a cent of 2.00 goes up",              US,      "2.00",    "0.11",  0.105},
  {"US: half a cent of 6.00 goes up",              US,      "6.00",    "0.32",  0.315},
  {"US: half a cent of 10.00 goes up",             US,      "10.00",   "0.53",  0.525},
  {"US: half a cent of 14.00 goes up",             US,      "14.00",   "0.74",  0.735},
  {"US: half a cent of 18.00 goes up",             US,      "18.00",   "0.95",  0.945},
  {"US: half a cent of 22.00 goes up",             US,      "22.00",   "1.16",  1.155},
  {"US: one cent below the end of the first tier", US,      "24.99",   "1.31",  1.311975},
  {"US: the end of the first tier",                US,      "25.00",   "1.31",  1.3125},
  {"US: the second tier begins",                   US,      "25.01",   "1.31",  1.312775},
  {"US: one cent inside the second tier",          US,      "25.02",   "1.31",  1.31305},
  {"US: in the second tier",                       US,      "110",     "3.65",  3.65},
  {"US: the single below a half cent goes down",   US,      "284.00",  "8.43",  8.435},
  {"US: one cent below the third tier",            US,      "999.99",  "28.12", 28.124725},
  {"US: the end of the second tier",               US,      "1000.00", "28.13", 28.125},
  {"US: one cent inside the third tier",           US,      "1000.01", "28.13", 28.12515},
  {"US: one dollar inside the third tier",         US,      "1001",    "28.14", 28.14},
  {"US: in the third tier",                        US,      "5001",    "88.14", 88.14},

  // UK: 5.25 % up to 30, 3.25 % up to 600, 1.75 % above.
  {"UK: a bid of one pound",                       UK,      "1.00",    "0.05",  0.0525},
  {"UK: two pence below the second tier",          UK,      "29.98",   "1.57",  1.57395},
  {"UK: one penny below the end of the first tier", UK,     "29.99",   "1.57",  1.574475},
  {"UK: the end of the first tier",                UK,      "30.00",   "1.58",  1.575},
  {"UK: the second tier begins",                   UK,      "30.01",   "1.58",  1.575325},
  {"UK: one penny inside the second tier",         UK,      "30.02",   "1.58",  1.57565},
  {"UK: in the second tier",                       UK,      "100",     "3.85",  3.85},
  {"UK: the single below half a penny goes down",  UK,      "250.00",  "8.72",  8.725},
  {"UK: one penny below the third tier",           UK,      "599.99",  "20.10", 20.099675},
  {"UK: the end of the second tier",               UK,      "600.00",  "20.10", 20.1},
  {"UK: one penny inside the third tier",          UK,      "600.01",  "20.10", 20.100175},
  {"UK: one pound inside the third tier",          UK,      "601",     "20.12", 20.1175},
  {"UK: in the third tier",                        UK,      "1000",    "27.10", 27.1},

  // Canada: 5.25 % up to 35, 2.75 % up to 1450, 1.5 % above.
  {"Canada: a bid of one dollar",                  Canada,  "1.00",    "0.05",  0.0525},
  {"Canada: one cent below the end of the first tier", Canada, "34.99", "1.84", 1.836975},
  {"Canada: the end of the first tier",            Canada,  "35.00",   "1.84",  1.8375},
  {"Canada: the second tier begins",               Canada,  "35.01",   "1.84",  1.837775},
  {"Canada: one cent inside the second tier",      Canada,  "35.02",   "1.84",  1.83805},
  {"Canada: in the second tier",                   Canada,  "101",     "3.65",  3.6525},
  {"Canada: one cent below the third tier",        Canada,  "1449.99", "40.75", 40.749725},
  {"Canada: the end of the second tier",           Canada,  "1450.00", "40.75", 40.75},
  {"Canada: one cent inside the third tier",       Canada,  "1450.01", "40.75", 40.75015},
  {"Canada: two dollars inside the third tier",    Canada,  "1452",    "40.78", 40.78},
  {"Canada: in the third tier",                    Canada,  "2450",    "55.75", 55.75},

  // Germany: 5 % up to 50, 4 % up to 500, 2 % above.
  {"Germany: a bid of one euro",                   Germany, "1.00",    "0.05",  0.05},
  {"Germany: the single below half a cent goes down", Germany, "17.30", "0.86", 0.865},
  {"Germany: one cent below the end of the first tier", Germany, "49.99", "2.50", 2.4995},
  {"Germany: the end of the first tier",           Germany, "50.00",   "2.50",  2.5},
  {"Germany: the second tier begins",              Germany, "50.01",   "2.50",  2.5004},
  {"Germany: one cent inside the second tier",     Germany, "50.02",   "2.50",  2.5008},
  {"Germany: in the second tier",                  Germany, "60",      "2.90",  2.9},
  {"Germany: one cent below the third tier",       Germany, "499.99",  "20.50", 20.4996},
  {"Germany: the end of the second tier",          Germany, "500.00",  "20.50", 20.5},
  {"Germany: one cent inside the third tier",      Germany, "500.01",  "20.50", 20.5002},
  {"Germany: one euro inside the third tier",      Germany, "501",     "20.52", 20.52},
  {"Germany: in the third tier",                   Germany, "1000",    "30.50", 30.5},

  {"an unknown site charges nothing",              5,       "1000",    "0.00",  0.0},
};

struct VehicleSaleRow {
  const char* rule;
  std::int32_t site;
  bool isMotorcycle;
  const char* bid;
  const char* shown;
};

const VehicleSaleRow kVehicleSales[] = {
  {"US motorcycle",                                US,      true,  "6000",     "25.00"},
  {"US other vehicle",                             US,      false, "6000",     "40.00"},
  {"US vehicle without a bid",                     US,      false, "",         "40.00"},
  {"UK vehicle one penny below the share",         UK,      false, "2999.99",  "15.00"},
  {"UK vehicle where the share begins",            UK,      false, "3000",     "15.00"},
  {"UK vehicle within the share",                  UK,      true,  "4000",     "20.00"},
  {"UK vehicle one penny below the highest fee",   UK,      false, "5999.99",  "30.00"},
  {"UK vehicle at the highest fee",                UK,      false, "6000",     "30.00"},
  {"Canadian motorcycle",                          Canada,  true,  "6000",     "22.00"},
  {"Canadian other vehicle",                       Canada,  false, "6000",     "35.00"},
  {"German motorcycle",                            Germany, true,  "20000",    "15.00"},
  {"German vehicle",                               Germany, false, "5000",     "75.00"},
  {"German vehicle at 9998.99",                    Germany, false, "9998.99",  "99.99"},
  {"German vehicle at 9999, half a cent goes up",  Germany, false, "9999",     "100.00"},
  {"German vehicle at the highest fee",            Germany, false, "10000",    "100.00"},
};
// clang-format on

TEST(InsertionFee, FollowsThePriceLadder) {
  for (const LadderRow& row : kLadder) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(listingFee(row.site, row.price, false), row.fee);
    EXPECT_EQ(listingFee(row.site, row.price, true), row.feeInTwoCategories);
  }
}

TEST(InsertionFee, OfRealEstateAndVehiclesDoesNotAskThePrice) {
  for (const InsertionRow& row : kInsertions) {
    SCOPED_TRACE(row.rule);
    const Auction auction(row.site);
    EXPECT_EQ(auction.calculator.InsertionFee("100.00", row.isTwoCategories, row.isRealEstate, row.isVehicle,
                                              row.isMotorcycle, row.isTimeshare, row.format),
              row.fee);
  }
}

TEST(InsertionFee, OfATextThatIsNoNumberIsAnError) {
  for (const char* text : {"abc", ".", " ", "--5", "1d3"}) {
    EXPECT_THROW(listingFee(US, text, false), ConversionError) << text;
  }
  EXPECT_THROW(listingFee(US, "1e39", false), OverflowError);
}

TEST(Ladder, TellsAPriceInAGapFromAFeeOfNothing) {
  CAuctionSite site;
  site.Site(US);
  EXPECT_FALSE(listingFeeStep(site, 0.995F).isOnLadder);
  EXPECT_EQ(listingFeeStep(site, 0.995F).fee, 0.0F);
  EXPECT_FALSE(listingFeeStep(site, 0.0F).isOnLadder);
  EXPECT_TRUE(listingFeeStep(site, 0.01F).isOnLadder);
  EXPECT_EQ(listingFeeStep(site, 0.01F).fee, 0.30F);
  EXPECT_TRUE(listingFeeStep(site, 500.0F).isOnLadder);
}

TEST(ReserveFee, FollowsTheThreeTiers) {
  for (const ReserveRow& row : kReserves) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(reserveFee(row.site, row.reserve, false, row.isVehicle), row.fee);
    EXPECT_EQ(reserveFee(row.site, row.reserve, true, row.isVehicle), row.feeInTwoCategories);
  }
}

TEST(ReserveFee, IsTheSameForARealEstateAd) {
  for (const char* reserve : {"40", "150", "5000", "20000"}) {
    for (const std::int32_t site : {1, 2, 3, 4}) {
      const Auction auction(site);
      EXPECT_EQ(auction.calculator.ReserveFee(reserve, "0", "0", false, false, true),
                auction.calculator.ReserveFee(reserve, "0", "0", false, false, false))
          << "site " << site << ", reserve " << reserve;
    }
  }
}

TEST(ReserveFee, NeedsThreeNumbersThoughOnlyTheFirstCounts) {
  const Auction auction(US);
  const CRegularAuction& calculator = auction.calculator;
  EXPECT_EQ(calculator.ReserveFee("40", "123.45", "-6", false, false, false), " 1");
  for (const char* text : {"", "abc", ".", " "}) {
    SCOPED_TRACE(text);
    EXPECT_THROW(static_cast<void>(calculator.ReserveFee(text, "0", "0", false, false, false)),
                 ConversionError);
    EXPECT_THROW(static_cast<void>(calculator.ReserveFee("40", text, "0", false, false, false)),
                 ConversionError);
    EXPECT_THROW(static_cast<void>(calculator.ReserveFee("40", "0", text, false, false, false)),
                 ConversionError);
  }
  EXPECT_THROW(static_cast<void>(calculator.ReserveFee("1e39", "0", "0", false, false, false)),
               OverflowError);
  EXPECT_THROW(static_cast<void>(calculator.ReserveFee("40", "1e39", "0", false, false, false)),
               OverflowError);
  EXPECT_THROW(static_cast<void>(calculator.ReserveFee("40", "0", "1e39", false, false, false)),
               OverflowError);
}

TEST(FinalValueFee, FollowsTheThreeTiers) {
  for (const SaleRow& row : kSales) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(saleFee(row.site, row.bid), row.shown);
  }
}

TEST(FinalValueFee, IsWithinSinglePrecisionOfTheFeeOnPaper) {
  for (const SaleRow& row : kSales) {
    SCOPED_TRACE(row.rule);
    CAuctionSite site;
    site.Site(row.site);
    const float bid = *row.bid == '\0' ? 0.0F : toSingle(row.bid, enUS());
    EXPECT_NEAR(static_cast<double>(tieredFinalValueFee(site, bid)), row.exact, 1e-6 + 2e-7 * row.exact);
  }
}

TEST(FinalValueFee, OfASoldVehicle) {
  for (const VehicleSaleRow& row : kVehicleSales) {
    SCOPED_TRACE(row.rule);
    Auction auction(row.site);
    EXPECT_EQ(auction.calculator.FVF(row.bid, "", false, true, false, row.isMotorcycle), row.shown);
  }
}

TEST(FinalValueFee, OfRealEstateIsNothing) {
  for (const std::int32_t site : {1, 2, 3, 4}) {
    Auction auction(site);
    EXPECT_EQ(auction.calculator.FVF("5000", "", true, false, false, false), "0.00");
    EXPECT_EQ(auction.calculator.FVF("5000", "", true, true, false, true), "0.00");
  }
}

TEST(FinalValueFee, OfAnUnsoldItemIsNothingAndEmptiesTheHighBid) {
  Auction auction(US);
  EXPECT_EQ(auction.calculator.HighBid(), "");
  EXPECT_EQ(auction.calculator.FVF("110", "", false, false, true, false), "0.00");
  EXPECT_EQ(auction.calculator.HighBid(), " 0");
  Auction vehicle(US);
  EXPECT_EQ(vehicle.calculator.FVF("110", "", false, true, true, false), "0.00");
  EXPECT_EQ(vehicle.calculator.HighBid(), " 0");
}

TEST(FinalValueFee, OfASoldItemLeavesTheHighBid) {
  Auction auction(US);
  EXPECT_EQ(auction.calculator.FVF("110", "", false, false, false, false), "3.65");
  EXPECT_EQ(auction.calculator.HighBid(), "");
  static_cast<void>(auction.calculator.FVF("110", "", false, false, true, false));
  EXPECT_EQ(auction.calculator.FVF("110", "", false, false, false, false), "3.65");
  EXPECT_EQ(auction.calculator.HighBid(), " 0");
}

TEST(FinalValueFee, OfUnsoldRealEstateDoesNotTouchTheHighBid) {
  Auction auction(US);
  EXPECT_EQ(auction.calculator.FVF("110", "", true, false, true, false), "0.00");
  EXPECT_EQ(auction.calculator.HighBid(), "");
}

TEST(FinalValueFee, DoesNotReadItsSecondText) {
  Auction auction(US);
  for (const char* ignored : {"", "abc", "99"}) {
    EXPECT_EQ(auction.calculator.FVF("110", ignored, false, false, false, false), "3.65");
  }
}

TEST(FinalValueFee, OfATextThatIsNoNumberIsAnError) {
  for (const char* text : {"abc", ".", " ", "--5", "1d3"}) {
    EXPECT_THROW(saleFee(US, text), ConversionError) << text;
  }
  EXPECT_THROW(saleFee(US, "1e39"), OverflowError);
}

TEST(Calculator, FollowsTheSiteOfItsSchedule) {
  Auction auction(US);
  EXPECT_EQ(auction.calculator.InsertionFee("5.00", false, false, false, false, false, 0), "0.35");
  auction.switchTo(Canada);
  EXPECT_EQ(auction.calculator.InsertionFee("5.00", false, false, false, false, false, 0), "0.45");
}

TEST(Calculator, WithoutAScheduleChargesNothing) {
  CRegularAuction calculator(enUS());
  EXPECT_EQ(calculator.InsertionFee("10", true, false, false, false, false, 0), "0.00");
  EXPECT_EQ(calculator.ReserveFee("10", "0", "0", true, false, false), " 0");
  EXPECT_EQ(calculator.FVF("10", "", false, true, false, false), "0.00");
  EXPECT_EQ(calculator.ExtraFeaturesFee({.IsBold = true, .IsSlideshow = true}), "0.00");
}

TEST(Calculator, ReadsAndWritesTheUsersDecimalSymbol) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    const auto text = [&](const char* pointText) { return asWrittenIn(locale.signs, pointText); };
    Auction auction(US, locale.signs);
    CRegularAuction& calculator = auction.calculator;
    EXPECT_EQ(calculator.InsertionFee(text("0.99"), false, false, false, false, false, 0), text("0.30"));
    EXPECT_EQ(calculator.FVF(text("10.00"), "", false, false, false, false), text("0.53"));
    EXPECT_EQ(calculator.ReserveFee(text("200.01"), text("0.35"), text("0.35"), false, false, false),
              text(" 2.0001"));
    EXPECT_EQ(calculator.ExtraFeaturesFee({.IsHomePageFeatured = true}), text("39.95"));
  }
}

}  // namespace
