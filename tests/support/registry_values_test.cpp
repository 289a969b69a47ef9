#include <gtest/gtest.h>

#include "recording_registry.h"
#include "registry_operations.h"

namespace {

using namespace std::string_literals;

constexpr auto kExpandable = static_cast<RegistryType>(2);
constexpr auto kManyTexts = static_cast<RegistryType>(7);
constexpr auto kLongNumber = static_cast<RegistryType>(11);

struct SetRow {
  const char* rule;
  RegistryType type;
  std::string data;
  RegistryValue value;
  std::string written;  ///< "" for nothing
};

// clang-format off
const SetRow kSetRows[] = {
    {"text stays text",                        RegistryType::Text,   "old\0"s,               "new",              "new\0"s},
    {"a number is written as its text",        RegistryType::Text,   "old\0"s,               17,                 "17\0"s},
    {"the smallest number as text",            RegistryType::Text,   "old\0"s,               INT32_MIN,          "-2147483648\0"s},
    {"the largest number as text",             RegistryType::Text,   "old\0"s,               INT32_MAX,          "2147483647\0"s},
    {"an empty text is its terminator",        RegistryType::Text,   "old\0"s,               "",                 "\0"s},
    {"over a text of 255 bytes",               RegistryType::Text,   std::string(255, 'x'),  "new",              "new\0"s},
    {"over a text of 256 bytes",               RegistryType::Text,   std::string(256, 'x'),  "new",              "new\0"s},
    {"over a text of 300 characters",          RegistryType::Text,   std::string(301, 'x'),  "new",              "new\0"s},
    {"a text of 300 characters",               RegistryType::Text,   "old\0"s,               std::string(300, 'y'), std::string(300, 'y') + '\0'},
    {"a byte is written as its text",          RegistryType::Binary, "\1\2"s,                17,                 "17\0"s},
    {"the text of a byte too",                 RegistryType::Binary, "\1\2"s,                "17",               "17\0"s},
    {"the byte is what counts",                RegistryType::Binary, "\1\2"s,                "007",              "7\0"s},
    {"the smallest byte",                      RegistryType::Binary, "\1\2"s,                0,                  "0\0"s},
    {"the largest byte",                       RegistryType::Binary, "\1\2"s,                255,                "255\0"s},
    {"over 300 bytes",                         RegistryType::Binary, std::string(300, 'x'),  "255",              "255\0"s},
    {"over no bytes",                          RegistryType::Binary, "",                     "1",                "1\0"s},
    {"bytes are written as they are",          RegistryType::Binary, "\1\2"s,                bytes("\0\xFF\0"s),  "\0\xFF\0"s},
    {"bytes as text are its characters",       RegistryType::Text,   "old\0"s,               bytes("abc"s),         "abc\0"s},
    {"blanks around a byte do not count",      RegistryType::Binary, "\1\2"s,                " 7 ",              "7\0"s},
    {"blanks around a number do not count",    RegistryType::Number, "\0\0\0\0"s,            " 7",               "\7\0\0\0"s},
    {"a plus is a sign",                       RegistryType::Number, "\0\0\0\0"s,            "+7",               "\7\0\0\0"s},
    {"a number, the lowest byte first",        RegistryType::Number, "\0\0\0\0"s,            0x12345678,         "\x78\x56\x34\x12"s},
    {"the text of a number",                   RegistryType::Number, "\0\0\0\0"s,            "305419896",        "\x78\x56\x34\x12"s},
    {"a number below zero",                    RegistryType::Number, "\0\0\0\0"s,            -2,                 "\xFE\xFF\xFF\xFF"s},
    {"the largest number",                     RegistryType::Number, "\0\0\0\0"s,            "2147483647",       "\xFF\xFF\xFF\x7F"s},
    {"the smallest number",                    RegistryType::Number, "\0\0\0\0"s,            "-2147483648",      "\0\0\0\x80"s},
    {"in the size that was there: two bytes",  RegistryType::Number, "\0\0"s,                0x123456F8,         "\xF8\x56"s},
    {"in the size that was there: eight",      RegistryType::Number, "\0\0\0\0\0\0\0\0"s,    -1,                 "\xFF\xFF\xFF\xFF\0\0\0\0"s},
    {"an expandable text is left alone",       kExpandable,          "%x%\0"s,               "new",              ""},
    {"several texts are left alone",           kManyTexts,           "a\0b\0\0"s,            "new",              ""},
    {"a long number is left alone",            kLongNumber,          "\0\0\0\0\0\0\0\0"s,    "abc",              ""},
    {"300 bytes of another type, too",         kManyTexts,           std::string(300, 'x'),  "new",              ""},
};
// clang-format on

TEST(RegistryValues, AnExistingValueKeepsItsType) {
  for (const SetRow& row : kSetRows) {
    RecordingRegistry backend;
    backend.type = row.type;
    backend.data = row.data;
    CRegistry registry(backend);
    EXPECT_TRUE(registry.SetValue(kUserRoot, "A", "v", row.value)) << row.rule;
    EXPECT_EQ(backend.written, row.written) << row.rule;
    const std::string write = "set(200, v, " + RecordingRegistry::hex(static_cast<std::uint32_t>(row.type));
    EXPECT_EQ(backend.calls.find(write) != std::string::npos, !row.written.empty()) << row.rule;
  }
}

struct RefusedRow {
  const char* rule;
  RegistryType type;
  RegistryValue value;
};

// clang-format off
const RefusedRow kRefusedRows[] = {
    {"no byte: one too many",            RegistryType::Binary, 256},
    {"no byte: one too many, as text",   RegistryType::Binary, "256"},
    {"no byte: below zero",              RegistryType::Binary, -1},
    {"no byte: below zero, as text",     RegistryType::Binary, "-1"},
    {"no byte: letters",                 RegistryType::Binary, "abc"},
    {"no byte: nothing",                 RegistryType::Binary, ""},
    {"no byte: a fraction",              RegistryType::Binary, "1.5"},
    {"no byte: more behind the number",  RegistryType::Binary, "1 2"},
    {"no byte: two signs",               RegistryType::Binary, "+-0"},
    {"no byte: a blank behind the sign", RegistryType::Binary, "+ 1"},
    {"no byte: a zero behind it",        RegistryType::Binary, "1\0"s},
    {"no number: one too many",          RegistryType::Number, "2147483648"},
    {"no number: one too few",           RegistryType::Number, "-2147483649"},
    {"no number: letters",               RegistryType::Number, "abc"},
    {"no number: nothing",               RegistryType::Number, ""},
    {"no number: hexadecimal",           RegistryType::Number, "0x10"},
    {"no number: a sign alone",          RegistryType::Number, "+"},
    {"no number: blanks alone",          RegistryType::Number, "  "},
    {"no number: a fraction",            RegistryType::Number, "7.6"},
    {"no number: a fraction of zero",    RegistryType::Number, "7.0"},
    {"no number: bytes",                 RegistryType::Number, bytes("\1\2\3\4"s)},
    {"no number: far too many digits",   RegistryType::Number, "99999999999999999999"},
};
// clang-format on

TEST(RegistryValues, WhatDoesNotFitTheTypeIsNotWritten) {
  for (const RefusedRow& row : kRefusedRows) {
    RecordingRegistry backend;
    backend.type = row.type;
    backend.data = "\1\2\3\4"s;
    CRegistry registry(backend);
    EXPECT_EQ(errorOf([&] { registry.SetValue(kUserRoot, "A", "v", row.value); }),
              "11001 clsRegistry SetValue")
        << row.rule;
    EXPECT_EQ(backend.calls.find("set("), std::string::npos) << row.rule;
  }
}

TEST(RegistryValues, ANewValueIsText) {
  const std::pair<RegistryValue, std::string> rows[] = {
      {"new", "new\0"s},
      {-5, "-5\0"s},
      {"", "\0"s},
      {"255", "255\0"s},
      {std::string(300, 'x'), std::string(300, 'x') + '\0'}};
  for (const auto& [value, written] : rows) {
    RecordingRegistry backend;
    backend.answers["query"] = RegistryStatus::NotFound;
    CRegistry registry(backend);
    EXPECT_TRUE(registry.SetValue(kUserRoot, "A", "v", value));
    EXPECT_EQ(backend.written, written);
    EXPECT_NE(backend.calls.find("set(200, v, 1, " + RecordingRegistry::hex(written.size()) + ")"),
              std::string::npos)
        << backend.calls;
  }
}

struct GetRow {
  const char* rule;
  RegistryType type;
  std::string data;
  RegistryValue value;
};

// clang-format off
const GetRow kGetRows[] = {
    {"a text without its terminator",          RegistryType::Text,   "old\0"s,                "old"},
    {"a text that has none",                   RegistryType::Text,   "old"s,                  "old"},
    {"a text up to its first zero",            RegistryType::Text,   "old\0er\0"s,            "old"},
    {"an empty text",                          RegistryType::Text,   "\0"s,                   ""},
    {"a text of no bytes",                     RegistryType::Text,   "",                      ""},
    {"a text of 300 characters",               RegistryType::Text,   std::string(300, 'x') + '\0', std::string(300, 'x')},
    {"a text that just fits",                  RegistryType::Text,   std::string(256, 'x'),   std::string(256, 'x')},
    {"digits are a text",                      RegistryType::Text,   "17\0"s,                 "17"},
    {"a number, the lowest byte first",        RegistryType::Number, "\x78\x56\x34\x12"s,     0x12345678},
    {"a number below zero",                    RegistryType::Number, "\xFE\xFF\xFF\xFF"s,     -2},
    {"a number in more bytes",                 RegistryType::Number, "\7\0\0\0\0\0\0\0"s,     7},
    {"all bytes of a binary value",            RegistryType::Binary, "\0\1\xFF\0"s,           bytes("\0\1\xFF\0"s)},
    {"no bytes",                               RegistryType::Binary, "",                      bytes("")},
    {"300 bytes",                              RegistryType::Binary, std::string(300, '\0'),  bytes(std::string(300, '\0'))},
    {"a byte's text without its terminator",   RegistryType::Binary, "255\0"s,                bytes("255")},
    {"a zero that ends no byte's text stays",  RegistryType::Binary, "256\0"s,                bytes("256\0"s)},
    {"two zeros are none of SetValue's",       RegistryType::Binary, "7\0\0"s,                bytes("7\0\0"s)},
};
// clang-format on

TEST(RegistryValues, AValueIsReadByItsType) {
  for (const GetRow& row : kGetRows) {
    RecordingRegistry backend;
    backend.type = row.type;
    backend.data = row.data;
    CRegistry registry(backend);
    EXPECT_EQ(registry.GetValue(kUserRoot, "A", "v"), row.value) << row.rule;
  }
}

const GetRow kUnreadableRows[] = {
    {"an expandable text", kExpandable, "%x%\0"s, {}},
    {"several texts", kManyTexts, "a\0b\0\0"s, {}},
    {"a long number", kLongNumber, "\0\0\0\0\0\0\0\0"s, {}},
    {"no type", static_cast<RegistryType>(0), "abcd"s, {}},
    {"a number of two bytes", RegistryType::Number, "\1\2"s, {}},
};

TEST(RegistryValues, AnotherTypeIsAnError) {
  for (const GetRow& row : kUnreadableRows) {
    RecordingRegistry backend;
    backend.type = row.type;
    backend.data = row.data;
    CRegistry registry(backend);
    EXPECT_EQ(errorOf([&] { (void)registry.GetValue(kUserRoot, "A", "v"); }), "11002 clsRegistry GetValue")
        << row.rule;
  }
}

TEST(RegistryValues, WhatWasJustWrittenIsReadBack) {
  const std::pair<RegistryValue, RegistryValue> rows[] = {
      {17, bytes("17")}, {"007", bytes("7")}, {bytes("\0\1"s), bytes("\0\1"s)}, {bytes(""), bytes("")}};
  for (const auto& [written, read] : rows) {
    RecordingRegistry backend;
    backend.type = RegistryType::Binary;
    CRegistry registry(backend);
    registry.SetValue(kUserRoot, "A", "v", written);
    backend.data = backend.written;
    EXPECT_EQ(registry.GetValue(kUserRoot, "A", "v"), read);
  }
}

}  // namespace
