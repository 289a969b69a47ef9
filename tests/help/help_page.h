#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// An element of a help page: its tag, its attributes, the text in it and in all that it contains, and what
/// it contains.
struct Element {
  std::string tag;
  std::map<std::string, std::string> attributes;
  std::string text;
  std::vector<Element> children;

  /// The value of an attribute, "" if there is none.
  [[nodiscard]] std::string attribute(const std::string& name) const;
  [[nodiscard]] bool has(const std::string& name) const { return attributes.contains(name); }
};

/// The page is not well formed; the text tells where.
class PageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a page that is as strict as the help pages are: every element but the void ones is closed, every
/// attribute has its value in double quotes, blanks in a row count as one. Throws PageError.
Element parsePage(std::string_view source);

/// A help page as the repository has it.
struct HelpPage {
  const char* file;
  const char* language;
  std::string decimal;

  /// How GoogleTest shows it.
  friend void PrintTo(const HelpPage& page, std::ostream* out) { *out << page.file; }
};

/// The English and the German page.
const std::vector<HelpPage>& helpPages();

std::string sourceOf(const HelpPage& page);

/// Visits an element and all that it contains, in the order of the page.
void visit(const Element& element, const std::function<void(const Element&)>& visitor);

/// All elements in `element` that have an attribute.
std::vector<const Element*> elementsWith(const Element& element, const std::string& attribute);
