#include <gtest/gtest.h>

#include "desktop_opener.h"

namespace {

struct AddressRow {
  const char* rule;
  const char* address;
  bool isOfTheWeb;
};

// clang-format off
constexpr AddressRow kAddressRows[] = {
    {"https",                              "https://www.example.org/a?b=c&d#e",  true},
    {"http",                               "http://example.org",                 true},
    {"capital letters in the scheme",      "HTTPS://example.org/",               true},
    {"a port",                             "https://example.org:8443/",          true},
    {"a number for a host",                "http://127.0.0.1/",                  true},
    {"nothing",                            "",                                   false},
    {"no scheme",                          "www.example.org",                    false},
    {"no scheme, with slashes",            "//www.example.org/",                 false},
    {"a path",                             "/usr/bin/env",                       false},
    {"ftp",                                "ftp://example.org/setup.exe",        false},
    {"a file",                             "file:///etc/passwd",                 false},
    {"a file on a host",                   "file://example.org/share/setup.exe", false},
    {"a script",                           "javascript:alert(1)",                false},
    {"a script with a host",               "javascript://example.org/%0Aalert(1)", false},
    {"data",                               "data:text/html,<b>a</b>",            false},
    {"mail",                               "mailto:a@example.org",               false},
    {"a path of Windows",                  R"(C:\Windows\notepad.exe)",          false},
    {"a share of Windows",                 R"(\\example.org\share)",             false},
    {"a scheme that begins like https",    "httpsx://example.org/",              false},
    {"a scheme in a scheme",               "view-source:https://example.org/",   false},
    {"no host",                            "https:///a",                         false},
    {"no host and no slashes",             "https:a",                            false},
    {"a scheme alone",                     "https:",                             false},
    {"a scheme and slashes alone",         "https://",                           false},
    {"a host that is none",                "https://exa mple.org/",              false},
    {"an option of a program",             "--version",                          false},
};
// clang-format on

TEST(WebAddress, IsHttpOrHttpsWithAHost) {
  for (const AddressRow& row : kAddressRows)
    EXPECT_EQ(isWebAddress(QString::fromUtf8(row.address)), row.isOfTheWeb) << row.rule;
}

struct WrittenRow {
  const char* rule;
  const char* written;
  const char* full;
};

// clang-format off
constexpr WrittenRow kWrittenRows[] = {
    {"a host alone",                "www.harbour.example",        "https://www.harbour.example"},
    {"a host without www",          "harbour.example",            "https://harbour.example"},
    {"a host and a page",           "harbour.example/shop?a=b",   "https://harbour.example/shop?a=b"},
    {"what is whole stays",         "http://harbour.example/",    "http://harbour.example/"},
    {"a word is no host",           "harbour",                    ""},
    {"a path is no host",           "/usr/bin.d/env",             ""},
    {"an option is no host",        "--version.1",                ""},
    {"another scheme is refused",   "ftp://harbour.example/",     ""},
    {"a script is refused",         "javascript:alert(1.5)",      ""},
    {"a path of Windows is refused", R"(C:\Windows\notepad.exe)", ""},
    {"mail is refused",             "mailto:a@harbour.example",   ""},
    {"a name in front is refused",  "a b.example",                ""},
    {"nothing",                     "",                           ""},
};
// clang-format on

TEST(WebAddress, IsCompletedWhereItIsAHost) {
  for (const WrittenRow& row : kWrittenRows)
    EXPECT_EQ(fullWebAddress(QString::fromUtf8(row.written)).toStdString(), row.full) << row.rule;
}

}  // namespace
