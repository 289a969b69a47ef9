#include "links.h"

#include <array>

#include "mail_link.h"

namespace {

constexpr const char* kGerman = "407";
constexpr const char* kAnyLanguage = "";

struct Link {
  const char* control;
  const char* host;
  const char* path;
  const char* languageCode = kAnyLanguage;
};

constexpr const char* kEbayUS = "pages.ebay.com";
constexpr const char* kEbayCanada = "pages.ebay.ca";
constexpr const char* kEbayUK = "pages.ebay.co.uk";
constexpr const char* kEbayGermany = "pages.ebay.de";
constexpr const char* kPayPal = "www.paypal.com";
constexpr const char* kUps = "wwwapps.ups.com";
// Airborne Express has become a part of DHL; what used to be its own host belongs to somebody else.
constexpr const char* kDhlUS = "www.dhl-usa.com";

constexpr const char* kSellingFees = "/help/sellerguide/selling-fees.html";
constexpr const char* kPictureServices = "/help/basics/pictureservices.html";
constexpr const char* kBillpointFees = "/help/sellerguide/bp-fees.html";

// clang-format off
constexpr auto kLinks = std::to_array<Link>({
    // Help > Sources
    {"mnuHelpSourcesEbay",                kEbayUS,      kSellingFees},
    {"mnuHelpSourcesEbayMotors",          kEbayUS,      "/ebaymotors/help/sellerguide/selling-fees.html"},
    {"mnuHelpSourcesEbayCanada",          kEbayCanada,  kSellingFees},
    {"mnuHelpSourcesEbayUK",              kEbayUK,      kSellingFees},
    {"mnuHelpSourcesEbayGermany",         kEbayGermany, kSellingFees},
    {"mnuHelpSourcesEbayPictures",        kEbayUS,      kPictureServices},
    {"mnuHelpSourcesEbayUKPictures",      kEbayUK,      kPictureServices},
    {"mnuHelpSourcesEbayCanadaPictures",  kEbayCanada,  kPictureServices},
    {"mnuHelpSourcesEbayGermanyPictures", kEbayGermany, kPictureServices},
    {"mnuHelpSourcesPayPalUS",            kPayPal,      "/cgi-bin/webscr?cmd=p/gen/fees-outside"},
    {"mnuHelpPayPalInternational",        kPayPal,      "/cgi-bin/webscr?cmd=p/gen/fees-intl-outside"},
    {"mnuHelpBillpointUS",                kEbayUS,      kBillpointFees},
    {"mnuHelpBillpointUK",                kEbayUK,      kBillpointFees},
    // Shipping tab
    {"lblPostal_0",  "postcalc.usps.com",            "/"},
    {"lblPostal_1",  kUps,                           "/QCCWebApp/request?iso_language=en&iso_country=US"},
    {"lblPostal_2",  "www.fedex.com",                "/ratefinder/home?cc=US&language=en"},
    {"lblPostal_3",  "www.cratersandfreighters.com", "/equote_main.htm"},
    {"lblPostal_4",  kDhlUS,                         "/CompareRate/CompareRateInfo.asp"},
    {"lblPostal_5",  kDhlUS,                         "/CompareRate/CompareRateInfo.asp"},
    {"lblPostal_6",  "www.canadapost.ca",            "/personal/rates/default-e.asp"},
    {"lblPostal_7",  "www.dhl.co.uk",                "/transit/calc.cgi"},
    {"lblPostal_8",  "www.parcelforce.com",          "/Parcelforce/Internet/CustServGuide/calculator.asp"},
    {"lblPostal_9",  "www.royalmail.com",            "/portal/rm/content1?catId=400023&mediaId=9300094"},
    {"lblPostal_10", "www.deutschepost.de",          "/direktmarketing/service/dm_portokalkulator/dispatch.jsp"},
    {"lblPostal_11", kUps,                           "/QCCWebApp/request?iso_language=de&iso_country=DE"},
    {"lblPostal_12", kEbayGermany,                   "/versandservice/"},
    {"lblPacking",   "www.theupsstore.com",          "/pack-ship"},
    // Payment Services tab
    {"lblCheckRates",      "www.umrechner-euro.de", "/", kGerman},
    {"lblCheckRates",      "www.xe.com",            "/ucc/"},
    {"lblTreuhandservice", "www.iloxx.de",          "/ebay/spreischeck.asp"},
});
// clang-format on

}  // namespace

QString Links::addressOf(const QString& control, const QString& languageCode) {
  for (const Link& link : kLinks) {
    const QLatin1StringView language(link.languageCode);
    if (control == QLatin1StringView(link.control) && (language.isEmpty() || language == languageCode))
      return QStringLiteral("https://") + QLatin1StringView(link.host) + QLatin1StringView(link.path);
  }
  return {};
}

QStringList Links::controls() {
  QStringList names;
  for (const Link& link : kLinks) names << QString::fromLatin1(link.control);
  names.removeDuplicates();
  return names;
}

QString Links::feedbackMail(const BrandValues& brand, const QString& version) {
  return mailLink(brand.SupportEmail, QStringLiteral("Comment RE: Tessaloom ") + version);
}

QString Links::subscriptionMail(const BrandValues& brand) {
  return mailLink(brand.SubscribeEmail, QStringLiteral("Subscribe ") + brand.CompanyName +
                                            QStringLiteral(" Mailing List REF: Tessaloom"));
}

QString Links::helpFile(const QString& languageCode) {
  return languageCode == QLatin1StringView(kGerman) ? QStringLiteral("marrowfeld_hilfe.htm")
                                                    : QStringLiteral("tessaloom_help.htm");
}
