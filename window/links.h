#pragma once

#include <QString>
#include <QStringList>

#include "custom_brand.h"

/// Where the window's links lead: which page, which mail, which help file. It opens nothing.
namespace Links {

/// The full address of the page that a label or a menu entry opens; "" for any other control. `languageCode`
/// is that of the language the program speaks, "409".
[[nodiscard]] QString addressOf(const QString& control, const QString& languageCode);

/// The names of all controls that open a page.
[[nodiscard]] QStringList controls();

/// Mail links; see mail_link.h. `version` is the program's.
[[nodiscard]] QString feedbackMail(const BrandValues& brand, const QString& version);
[[nodiscard]] QString subscriptionMail(const BrandValues& brand);

/// The name of the help file, which lies beside the program.
[[nodiscard]] QString helpFile(const QString& languageCode);

}  // namespace Links
