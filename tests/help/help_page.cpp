#include "help_page.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "folders.h"

namespace {

bool isBlank(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

bool isVoid(std::string_view tag) { return tag == "meta" || tag == "br" || tag == "wbr"; }

/// One pass over the source.
class PageReader {
 public:
  explicit PageReader(std::string_view source) : m_rest(source) {}

  Element read() {
    skip("<!DOCTYPE html>");
    skipBlanks();
    Element root = readElement();
    skipBlanks();
    if (!m_rest.empty()) fail("there is more behind the end");
    return root;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw PageError(what + " before: " + std::string(m_rest.substr(0, 60)));
  }

  void skip(std::string_view expected) {
    if (!m_rest.starts_with(expected)) fail("expected " + std::string(expected));
    m_rest.remove_prefix(expected.size());
  }

  void skipBlanks() {
    while (!m_rest.empty() && isBlank(m_rest.front())) m_rest.remove_prefix(1);
  }

  std::string takeUntil(std::string_view signs) {
    const std::size_t end = m_rest.find_first_of(signs);
    if (end == std::string_view::npos) fail("the page ends too early");
    std::string taken(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    return taken;
  }

  // NOLINTNEXTLINE(misc-no-recursion): a page is a tree
  Element readElement() {
    skip("<");
    Element element;
    element.tag = takeUntil(" >\n");
    readAttributes(element);
    if (isVoid(element.tag)) return element;
    readContent(element);
    skip("</" + element.tag + ">");
    return element;
  }

  void readAttributes(Element& element) {
    for (skipBlanks(); !m_rest.starts_with('>'); skipBlanks()) {
      const std::string name = takeUntil("= >");
      skip("=\"");
      if (!element.attributes.emplace(name, takeUntil("\"")).second) fail("the attribute " + name + " twice");
      skip("\"");
    }
    skip(">");
  }

  // NOLINTNEXTLINE(misc-no-recursion): a page is a tree
  void readContent(Element& element) {
    while (!m_rest.starts_with("</")) {
      if (m_rest.empty()) fail("<" + element.tag + "> is not closed");
      if (m_rest.starts_with('<')) {
        element.children.push_back(readElement());
        element.text += element.children.back().text;
      } else {
        readText(element.text);
      }
    }
  }

  void readText(std::string& text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kEntities{
        {{"&nbsp;", "\u00a0"}, {"&gt;", ">"}, {"&lt;", "<"}, {"&amp;", "&"}}};
    while (!m_rest.empty() && m_rest.front() != '<') {
      if (m_rest.front() == '&') {
        const auto* const entity = std::find_if(kEntities.begin(), kEntities.end(), [this](const auto& each) {
          return m_rest.starts_with(each.first);
        });
        if (entity == kEntities.end()) fail("an unknown entity");
        text += entity->second;
        m_rest.remove_prefix(entity->first.size());
        continue;
      }
      const char c = isBlank(m_rest.front()) ? ' ' : m_rest.front();
      if (c != ' ' || !text.ends_with(' ')) text += c;
      m_rest.remove_prefix(1);
    }
  }

  std::string_view m_rest;
};

}  // namespace

std::string Element::attribute(const std::string& name) const {
  const auto found = attributes.find(name);
  return found != attributes.end() ? found->second : std::string();
}

Element parsePage(std::string_view source) { return PageReader(source).read(); }

const std::vector<HelpPage>& helpPages() {
  static const std::vector<HelpPage> pages{{"tessaloom_help.htm", "en", "."},
                                           {"marrowfeld_hilfe.htm", "de", ","}};
  return pages;
}

std::string sourceOf(const HelpPage& page) {
  std::ifstream file(kSourceFolder + std::string("/help/") + page.file, std::ios::binary);
  if (!file) throw PageError(std::string(page.file) + " cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

// NOLINTNEXTLINE(misc-no-recursion): a page is a tree
void visit(const Element& element, const std::function<void(const Element&)>& visitor) {
  visitor(element);
  for (const Element& child : element.children) visit(child, visitor);
}

std::vector<const Element*> elementsWith(const Element& element, const std::string& attribute) {
  std::vector<const Element*> found;
  visit(element, [&](const Element& each) {
    if (each.has(attribute)) found.push_back(&each);
  });
  return found;
}
