#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "help_page.h"

/// \file
/// The help pages by themselves: well formed, complete in their contents list, and in need of nothing
/// outside.

namespace {

class HelpPages : public testing::TestWithParam<HelpPage> {
 protected:
  std::string m_source = sourceOf(GetParam());
  Element m_page = parsePage(m_source);
};

std::vector<std::string> idsOf(const Element& page) {
  std::vector<std::string> ids;
  for (const Element* element : elementsWith(page, "id")) ids.push_back(element->attribute("id"));
  return ids;
}

std::vector<const Element*> elementsOf(const Element& page, const std::string& tag) {
  std::vector<const Element*> found;
  visit(page, [&](const Element& each) {
    if (each.tag == tag) found.push_back(&each);
  });
  return found;
}

TEST_P(HelpPages, NameTheirLanguage) {
  EXPECT_EQ(m_page.tag, "html");
  EXPECT_EQ(m_page.attribute("lang"), GetParam().language);
  ASSERT_EQ(elementsOf(m_page, "title").size(), 1U);
  EXPECT_FALSE(elementsOf(m_page, "title").front()->text.empty());
  EXPECT_TRUE(m_source.find("<meta charset=\"utf-8\">") < m_source.find("<title>"));
}

TEST_P(HelpPages, HaveEveryIdOnce) {
  std::vector<std::string> ids = idsOf(m_page);
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

TEST_P(HelpPages, LinkOnlyToThemselves) {
  const std::vector<std::string> ids = idsOf(m_page);
  const auto links = elementsWith(m_page, "href");
  EXPECT_GT(links.size(), 20U);
  for (const Element* link : links) {
    const std::string target = link->attribute("href");
    ASSERT_TRUE(target.starts_with('#')) << target;
    EXPECT_EQ(std::count(ids.begin(), ids.end(), target.substr(1)), 1) << target;
  }
}

TEST_P(HelpPages, LabelSectionsWithTheirHeadings) {
  const std::vector<std::string> ids = idsOf(m_page);
  for (const Element* element : elementsWith(m_page, "aria-labelledby"))
    EXPECT_EQ(std::count(ids.begin(), ids.end(), element->attribute("aria-labelledby")), 1) << element->tag;
}

TEST_P(HelpPages, NeedNothingFromOutside) {
  for (const char* tag : {"script", "link", "img", "iframe", "object", "embed", "base", "audio", "video"})
    EXPECT_TRUE(elementsOf(m_page, tag).empty()) << tag;
  for (const char* part : {"http:", "https:", "//", "src=", "@import", "url(", "onclick", "onload"})
    EXPECT_EQ(m_source.find(part), std::string::npos) << part;
}

TEST_P(HelpPages, ListEveryHeadingInTheContentsAndInOrder) {
  const auto navigation = elementsOf(m_page, "nav");
  ASSERT_EQ(navigation.size(), 1U);
  std::vector<std::string> listed;
  for (const Element* link : elementsWith(*navigation.front(), "href"))
    listed.push_back(link->attribute("href").substr(1) + ": " + link->text);
  std::vector<std::string> headings;
  visit(*elementsOf(m_page, "main").front(), [&](const Element& each) {
    if (each.tag == "h2" || each.tag == "h3") headings.push_back(each.attribute("id") + ": " + each.text);
  });
  EXPECT_EQ(listed, headings);
}

TEST_P(HelpPages, HaveHeadingsThatSkipNoLevel) {
  char before = '0';
  visit(m_page, [&](const Element& each) {
    if (each.tag.size() != 2 || each.tag[0] != 'h' || each.tag[1] < '1' || each.tag[1] > '6') return;
    EXPECT_LE(each.tag[1], before + 1) << each.text;
    before = each.tag[1];
  });
  EXPECT_EQ(elementsOf(m_page, "h1").size(), 1U);
}

TEST_P(HelpPages, SayWhatTheirTablesAndHeaderCellsAreFor) {
  for (const Element* table : elementsOf(m_page, "table")) {
    ASSERT_FALSE(table->children.empty());
    EXPECT_EQ(table->children.front().tag, "caption");
  }
  for (const Element* cell : elementsOf(m_page, "th")) EXPECT_TRUE(cell->has("scope")) << cell->text;
}

TEST(HelpPageTwins, HaveTheSameIdsInTheSameOrder) {
  EXPECT_EQ(idsOf(parsePage(sourceOf(helpPages()[0]))), idsOf(parsePage(sourceOf(helpPages()[1]))));
}

// What marks figures and captions for the tests is the same, so that a page cannot leave a check out.
TEST(HelpPageTwins, HaveTheSameMarks) {
  std::vector<std::vector<std::string>> marks;
  for (const HelpPage& page : helpPages()) {
    std::vector<std::string> ofPage;
    visit(parsePage(sourceOf(page)), [&](const Element& each) {
      for (const auto& [name, value] : each.attributes) {
        if (!name.starts_with("data-") || name == "data-text") continue;
        ofPage.push_back(name);
        ofPage.push_back(value);
      }
    });
    marks.push_back(ofPage);
  }
  EXPECT_EQ(marks[0], marks[1]);
}

TEST(PageReader, RefusesWhatIsNotWellFormed) {
  const std::string start = "<!DOCTYPE html><html lang=\"en\">";
  EXPECT_NO_THROW(parsePage(start + "<p>a &amp; b<br></p></html>"));
  EXPECT_THROW(parsePage(start + "<p><b></p></b></html>"), PageError);
  EXPECT_THROW(parsePage(start + "<p></html>"), PageError);
  EXPECT_THROW(parsePage(start + "<p id=a></p></html>"), PageError);
  EXPECT_THROW(parsePage(start + "<p id=\"a\" id=\"b\"></p></html>"), PageError);
  EXPECT_THROW(parsePage(start + "a & b</html>"), PageError);
  EXPECT_THROW(parsePage(start + "</html><p></p>"), PageError);
}

INSTANTIATE_TEST_SUITE_P(Pages, HelpPages, testing::ValuesIn(helpPages()),
                         [](const auto& page) { return std::string(page.param.language); });

}  // namespace
