#include <gtest/gtest.h>

#include "folders.h"
#include "help_page.h"
#include "language_library.h"
#include "string_table.h"

/// \file
/// The captions that the help pages quote are those of the program: each is marked with the number of its
/// text. Left out of a quotation are the "&" of the mnemonic, blanks at the ends, and a colon at the end.

namespace {

QString quoted(QString caption) {
  caption = caption.remove(u'&').trimmed();
  if (caption.endsWith(u':')) caption.chop(1);
  return caption;
}

class HelpCaptions : public testing::TestWithParam<HelpPage> {};

TEST_P(HelpCaptions, AreThoseOfTheProgram) {
  const Element page = parsePage(sourceOf(GetParam()));
  const bool isGerman = std::string(GetParam().language) == "de";
  const auto german =
      Localization::loadLanguageLibrary(kProgramFolder + QStringLiteral("/TessaloomLang407.dll"));
  ASSERT_TRUE(german);
  const auto captions = elementsWith(page, "data-text");
  EXPECT_GT(captions.size(), 200U);
  for (const Element* caption : captions) {
    const int id = QString::fromStdString(caption->attribute("data-text")).toInt();
    const QString text = isGerman ? german->GetResourceString(id) : StringTable::englishText(id).toString();
    EXPECT_EQ(caption->text, quoted(text).toStdString()) << caption->attribute("data-text");
  }
}

INSTANTIATE_TEST_SUITE_P(Pages, HelpCaptions, testing::ValuesIn(helpPages()),
                         [](const auto& page) { return std::string(page.param.language); });

}  // namespace
