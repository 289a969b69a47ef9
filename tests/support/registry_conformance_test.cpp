#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <vector>

#include "platform_registry.h"
#include "recording_registry.h"
#include "registry_operations.h"

// What the registry of the platform itself, whichever that is, has to do for the class.

namespace {

using namespace std::string_literals;
using Status = RegistryStatus;

constexpr std::uint32_t kAllAccess = 0xF003F;

/// A key of the test's own, which is gone afterwards with all that is in it.
class RegistryConformance : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(registry.CreateKey(kUserRoot, key)); }

  void TearDown() override {
    deleteAllBelow(key);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  void deleteAllBelow(const std::string& path) {
    for (const std::string& name : subKeys(path)) deleteAllBelow(std::string(path).append("\\").append(name));
    registry.DeleteKey(kUserRoot, path);
  }

  std::vector<std::string> subKeys(const std::string& path) {
    return all([&](std::uint32_t index) { return registry.ListSubKey(kUserRoot, path, index); });
  }

  std::vector<std::string> subValues(const std::string& path) {
    return all([&](std::uint32_t index) { return registry.ListSubValue(kUserRoot, path, index); });
  }

  /// All names, in an order of our own: each registry has another.
  template <typename List>
  std::vector<std::string> all(List list) {
    std::vector<std::string> names;
    while (errorOf([&] { names.push_back(list(static_cast<std::uint32_t>(names.size()))); }).empty()) {
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  void store(const std::string& name, RegistryType type, std::string_view data) {
    RegistryHandle handle = 0;
    ASSERT_EQ(backend->openKey(kUserRoot, key, kAllAccess, handle), Status::Success);
    EXPECT_EQ(backend->setValue(handle, name, type, data), Status::Success);
    backend->closeKey(handle);
  }

  /// The type and the data of a value as they stand in the registry.
  std::pair<RegistryType, std::string> stored(const std::string& name) {
    RegistryHandle handle = 0;
    EXPECT_EQ(backend->openKey(kUserRoot, key, kAllAccess, handle), Status::Success);
    std::string data(1024, '\0');
    RegistryType type{};
    std::uint32_t size = 0;
    EXPECT_EQ(backend->queryValue(handle, name, data, type, size), Status::Success) << name;
    backend->closeKey(handle);
    data.resize(size);
    return {type, data};
  }

  std::string getError(const std::string& path, const std::string& name) {
    return errorOf([&] { (void)registry.GetValue(kUserRoot, path, name); });
  }

  std::string unique = RecordingRegistry::hex(std::random_device{}());
  std::filesystem::path folder = std::filesystem::temp_directory_path() / ("registry_conformance_" + unique);
  std::unique_ptr<RegistryBackend> backend = platformRegistry(folder / "registry.json");
  CRegistry registry{*backend};
  std::string key = "Software\\Tessaloom conformance " + unique;
};

TEST_F(RegistryConformance, AKeyIsMadeFoundAndDeleted) {
  const std::string below = key + "\\One\\Two";
  EXPECT_FALSE(registry.KeyExists(kUserRoot, below));
  EXPECT_TRUE(registry.CreateKey(kUserRoot, below));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, below));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key + "\\One"));
  EXPECT_TRUE(registry.CreateKey(kUserRoot, below)) << "once more";
  EXPECT_TRUE(registry.DeleteKey(kUserRoot, below));
  EXPECT_FALSE(registry.KeyExists(kUserRoot, below));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key + "\\One"));
  EXPECT_FALSE(registry.DeleteKey(kUserRoot, below)) << "once more";
}

TEST_F(RegistryConformance, AKeyWithKeysBelowIsNotDeleted) {
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\One\\Two"));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key + "\\One", "v", "kept"));
  EXPECT_EQ(errorOf([&] { registry.DeleteKey(kUserRoot, key + "\\One"); }), "11006 clsRegistry DeleteKey");
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key + "\\One\\Two"));
  EXPECT_EQ(registry.GetValue(kUserRoot, key + "\\One", "v"), RegistryValue("kept"));
}

TEST_F(RegistryConformance, AKeyGoesWithItsValues) {
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\One"));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key + "\\One", "v", "gone"));
  ASSERT_TRUE(registry.DeleteKey(kUserRoot, key + "\\One"));
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\One"));
  EXPECT_EQ(getError(key + "\\One", "v"), "11002 clsRegistry GetValue");
}

TEST_F(RegistryConformance, KeysAndValuesAreListed) {
  for (const char* name : {"One", "Two", "Three"}) {
    ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\" + name));
    ASSERT_TRUE(registry.SetValue(kUserRoot, key, name + " value"s, 1));
  }
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\One\\Deeper"));
  EXPECT_EQ(subKeys(key), (std::vector{"One"s, "Three"s, "Two"s}));
  EXPECT_EQ(subValues(key), (std::vector{"One value"s, "Three value"s, "Two value"s}));
  EXPECT_EQ(subKeys(key + "\\Two"), std::vector<std::string>());
  EXPECT_EQ(errorOf([&] { (void)registry.ListSubKey(kUserRoot, key, 3); }), "11003 clsRegistry ListSubKey");
  EXPECT_EQ(errorOf([&] { (void)registry.ListSubValue(kUserRoot, key, 3); }),
            "11007 clsRegistry ListSubValue");
}

TEST_F(RegistryConformance, LongNamesAreWhole) {
  // Not every registry takes a path of more than 260 characters in one call.
  const std::string keyName(200, 'k');
  const std::string valueName(1000, 'v');
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\" + keyName));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, valueName, 1));
  EXPECT_EQ(subKeys(key), std::vector{keyName});
  EXPECT_EQ(subValues(key), std::vector{valueName});
}

TEST_F(RegistryConformance, AMissingKeyIsTheOperationsOwnErrorOrFalse) {
  const std::string missing = key + "\\Missing\\Deeper";
  for (const Operation& operation : kOperations) {
    const std::string name = operation.name;
    if (name == "CreateKey") continue;
    const bool isAnswered = name == "DeleteKey" || name == "KeyExists";
    EXPECT_EQ(errorOf(operation, registry, kUserRoot, missing, ""), isAnswered ? "" : ownError(operation));
  }
  EXPECT_FALSE(registry.KeyExists(kUserRoot, missing));
  EXPECT_FALSE(registry.DeleteKey(kUserRoot, missing));
}

TEST_F(RegistryConformance, AnUnknownRootDoesNotOpen) {
  constexpr RegistryHandle unknown = 0x80000123;
  for (const Operation& operation : kOperations)
    EXPECT_EQ(errorOf(operation, registry, unknown, key, ""), ownError(operation));
}

TEST_F(RegistryConformance, AMachineThatIsNotThereIsTheOperationsOwnError) {
  for (const Operation& operation : kOperations)
    EXPECT_EQ(errorOf(operation, registry, kUserRoot, key, "no such machine"), ownError(operation));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key)) << "the local key must not be touched";
}

TEST_F(RegistryConformance, OneLeadingBackslashIsDroppedAndASecondIsNot) {
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "v", "text"));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, "\\" + key));
  EXPECT_EQ(registry.GetValue(kUserRoot, "\\" + key, "v"), RegistryValue("text"));
  EXPECT_EQ(errorOf([&] { (void)registry.KeyExists(kUserRoot, "\\\\" + key); }),
            "11008 clsRegistry KeyExists");
  EXPECT_EQ(getError("\\\\" + key, "v"), "11002 clsRegistry GetValue");
}

TEST_F(RegistryConformance, ABackslashBehindIsNoName) {
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key + "\\"));
}

TEST_F(RegistryConformance, TheRootItselfOpens) {
  EXPECT_TRUE(registry.KeyExists(kUserRoot, ""));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, "\\"));
}

TEST_F(RegistryConformance, NamesAreAlikeWhateverTheirCase) {
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\MiXed"));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "VaLue", "first"));
  EXPECT_TRUE(registry.KeyExists(kUserRoot, key + "\\mIxED"));
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key + "\\MIXED"));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "vAlUE", "second"));
  EXPECT_EQ(subKeys(key), std::vector{"MiXed"s}) << "the first spelling";
  EXPECT_EQ(subValues(key), std::vector{"VaLue"s}) << "the first spelling";
  EXPECT_EQ(registry.GetValue(kUserRoot, key, "VALUE"), RegistryValue("second"));
  EXPECT_TRUE(registry.DeleteValue(kUserRoot, key, "value"));
  EXPECT_TRUE(registry.DeleteKey(kUserRoot, key + "\\mixed"));
  EXPECT_EQ(subKeys(key), std::vector<std::string>());
}

TEST_F(RegistryConformance, AValueIsDeletedOnce) {
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "v", "text"));
  EXPECT_TRUE(registry.DeleteValue(kUserRoot, key, "v"));
  EXPECT_EQ(getError(key, "v"), "11002 clsRegistry GetValue");
  EXPECT_FALSE(registry.DeleteValue(kUserRoot, key, "v"));
}

TEST_F(RegistryConformance, TheValueWithoutANameIsOneLikeOthers) {
  EXPECT_FALSE(registry.DeleteValue(kUserRoot, key, ""));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "", "text"));
  EXPECT_EQ(registry.GetValue(kUserRoot, key, ""), RegistryValue("text"));
  EXPECT_EQ(subValues(key), std::vector{""s});
  EXPECT_TRUE(registry.DeleteValue(kUserRoot, key, ""));
}

TEST_F(RegistryConformance, ANewValueIsTextWithItsTerminator) {
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "text", "abc"));
  ASSERT_TRUE(registry.SetValue(kUserRoot, key, "number", 17));
  EXPECT_EQ(stored("text"), std::pair(RegistryType::Text, "abc\0"s));
  EXPECT_EQ(stored("number"), std::pair(RegistryType::Text, "17\0"s));
}

struct KindRow {
  const char* rule;
  RegistryType type;
  std::string before;
  RegistryValue value;
  std::string after;  ///< "" if the value is refused
};

constexpr auto kExpandable = static_cast<RegistryType>(2);

// clang-format off
const KindRow kKindRows[] = {
    {"a text",                           RegistryType::Text,   "old\0"s,                     "new",  "new\0"s},
    {"a text of 300 characters",         RegistryType::Text,   std::string(300, 'x') + '\0', "new",  "new\0"s},
    {"a byte",                           RegistryType::Binary, "\1\2"s,                      255,    "255\0"s},
    {"over 300 bytes",                   RegistryType::Binary, std::string(300, 'x'),        "7",    "7\0"s},
    {"a byte too many",                  RegistryType::Binary, "\1\2"s,                      256,    ""},
    {"a byte below zero",                RegistryType::Binary, "\1\2"s,                      -1,     ""},
    {"letters for a byte",               RegistryType::Binary, "\1\2"s,                      "abc",  ""},
    {"a number",                         RegistryType::Number, "\1\0\0\0"s,                  -2,     "\xFE\xFF\xFF\xFF"s},
    {"the largest number",               RegistryType::Number, "\1\0\0\0"s,                  "2147483647", "\xFF\xFF\xFF\x7F"s},
    {"a number too large",               RegistryType::Number, "\1\0\0\0"s,                  "2147483648", ""},
    {"a number of eight bytes",          RegistryType::Number, "\1\0\0\0\0\0\0\0"s,          2,      "\2\0\0\0\0\0\0\0"s},
    {"another type stays as it is",      kExpandable,          "%x%\0"s,                     "new",  "%x%\0"s},
};
// clang-format on

TEST_F(RegistryConformance, AnExistingValueKeepsItsType) {
  for (const KindRow& row : kKindRows) {
    store("v", row.type, row.before);
    const std::string error =
        errorOf([&] { EXPECT_TRUE(registry.SetValue(kUserRoot, key, "v", row.value)); });
    const bool isRefused = row.after.empty();
    EXPECT_EQ(error, isRefused ? "11001 clsRegistry SetValue" : "") << row.rule;
    EXPECT_EQ(stored("v"), std::pair(row.type, isRefused ? row.before : row.after)) << row.rule;
  }
}

TEST_F(RegistryConformance, AValueIsReadByItsType) {
  store("text", RegistryType::Text, "abc\0"s);
  store("long text", RegistryType::Text, std::string(300, 'x') + '\0');
  store("number", RegistryType::Number, "\xFE\xFF\xFF\xFF"s);
  store("binary", RegistryType::Binary, "\0\1\xFF\0"s);
  store("long binary", RegistryType::Binary, std::string(100000, '\x80'));
  store("other", kExpandable, "%x%\0"s);
  EXPECT_EQ(registry.GetValue(kUserRoot, key, "text"), RegistryValue("abc"));
  EXPECT_EQ(registry.GetValue(kUserRoot, key, "long text"), RegistryValue(std::string(300, 'x')));
  EXPECT_EQ(registry.GetValue(kUserRoot, key, "number"), RegistryValue(-2));
  EXPECT_EQ(registry.GetValue(kUserRoot, key, "binary"), RegistryValue(bytes("\0\1\xFF\0"s)));
  EXPECT_TRUE(registry.GetValue(kUserRoot, key, "long binary") ==
              RegistryValue(bytes(std::string(100000, '\x80'))));
  EXPECT_EQ(getError(key, "other"), "11002 clsRegistry GetValue");
}

TEST_F(RegistryConformance, OfAValueTooLongForTheBufferTypeAndSizeAreTold) {
  store("v", RegistryType::Binary, std::string(300, 'x'));
  RegistryHandle handle = 0;
  ASSERT_EQ(backend->openKey(kUserRoot, key, kAllAccess, handle), Status::Success);
  std::string buffer(255, '\0');
  RegistryType type{};
  std::uint32_t size = 0;
  EXPECT_EQ(backend->queryValue(handle, "v", buffer, type, size), Status::MoreData);
  EXPECT_EQ(type, RegistryType::Binary);
  EXPECT_EQ(size, 300U);
  EXPECT_EQ(backend->queryValue(handle, "missing", buffer, type, size), Status::NotFound);
  EXPECT_EQ(backend->deleteValue(handle, "missing"), Status::NotFound);
  std::string name;
  EXPECT_EQ(backend->enumKey(handle, 0, name), Status::NoMoreItems);
  EXPECT_EQ(backend->enumValue(handle, 1, name), Status::NoMoreItems);
  backend->closeKey(handle);
  EXPECT_EQ(backend->enumValue(handle, 0, name), Status::InvalidHandle) << "after it is closed";
}

TEST_F(RegistryConformance, AnOpenKeyThatIsDeletedSaysSo) {
  RegistryHandle handle = 0;
  ASSERT_EQ(backend->openKey(kUserRoot, key, kAllAccess, handle), Status::Success);
  ASSERT_TRUE(registry.DeleteKey(kUserRoot, key));
  EXPECT_EQ(backend->setValue(handle, "v", RegistryType::Text, "x\0"s), Status::KeyDeleted);
  backend->closeKey(handle);
  ASSERT_TRUE(registry.CreateKey(kUserRoot, key));
  EXPECT_EQ(subValues(key), std::vector<std::string>());
}

}  // namespace
