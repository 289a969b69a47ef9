#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <nlohmann/json.hpp>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform_registry.h"
#include "registry_operations.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class RegistryFile : public ::testing::Test {
 public:
  RegistryFile() {
    std::string pattern = fs::temp_directory_path() / "registry_file_XXXXXX";
    folder = mkdtemp(pattern.data());
    file = folder / "registry.json";
  }

  ~RegistryFile() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }

 protected:
  void write(const std::string& content) const { std::ofstream(file, std::ios::binary) << content; }

  [[nodiscard]] std::string content() const {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  /// The names in the folder, apart from the lock's.
  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.path().extension() != ".lock") names.push_back(entry.path().filename());
    return names;
  }

  fs::path folder;
  fs::path file;
};

/// A registry that nobody has opened before.
class Fresh {
 public:
  explicit Fresh(const fs::path& file) : m_backend(platformRegistry(file)), m_registry(*m_backend) {}
  CRegistry* operator->() { return &m_registry; }
  CRegistry& operator*() { return m_registry; }

 private:
  std::unique_ptr<RegistryBackend> m_backend;
  CRegistry m_registry;
};

constexpr const char* kNotCreated = "11005 clsRegistry CreateKey";

/// What creating a key raises, "" if nothing.
std::string creationError(const fs::path& file, const std::string& path) {
  return errorOf([&] { Fresh(file)->CreateKey(kUserRoot, path); });
}

TEST_F(RegistryFile, WhatIsWrittenIsReadByTheNext) {
  EXPECT_TRUE(Fresh(file)->CreateKey(kUserRoot, "Software\\Seller"));
  EXPECT_TRUE(Fresh(file)->SetValue(kUserRoot, "software\\seller", "Name", "Acme"));
  EXPECT_EQ(Fresh(file)->GetValue(kUserRoot, "SOFTWARE\\SELLER", "NAME"), RegistryValue("Acme"));
  EXPECT_TRUE(Fresh(file)->DeleteValue(kUserRoot, "Software\\Seller", "Name"));
  EXPECT_EQ(errorOf([&] { (void)Fresh(file)->GetValue(kUserRoot, "Software\\Seller", "Name"); }),
            "11002 clsRegistry GetValue");
  EXPECT_TRUE(Fresh(file)->DeleteKey(kUserRoot, "Software\\Seller"));
  EXPECT_FALSE(Fresh(file)->KeyExists(kUserRoot, "Software\\Seller"));
}

TEST_F(RegistryFile, ItIsReadableJson) {
  Fresh registry(file);
  ASSERT_TRUE(registry->CreateKey(kUserRoot, "Seller"));
  ASSERT_TRUE(registry->SetValue(kUserRoot, "Seller", "Name", "M\xC3\xBCller"));
  const auto key =
      nlohmann::json::parse(content()).at("keys").at("HKEY_CURRENT_USER").at("keys").at("Seller");
  const auto expected =
      nlohmann::json::parse(R"({"values": {"Name": {"type": 1, "text": "Müller"}}, "keys": {}})");
  EXPECT_EQ(key, expected) << content();
}

TEST_F(RegistryFile, WhatIsNoTextIsKeptAsBytes) {
  const auto backend = platformRegistry(file);
  CRegistry registry(*backend);
  ASSERT_TRUE(registry.CreateKey(kUserRoot, "Seller"));
  const std::pair<RegistryType, std::string> values[] = {{RegistryType::Text, "M\xFCller\0"s},
                                                         {RegistryType::Text, "no terminator"},
                                                         {RegistryType::Text, ""},
                                                         {RegistryType::Text, "zero\0inside\0"s},
                                                         {RegistryType::Binary, "\0\x80\xFF"s},
                                                         {RegistryType{7}, "a\0\0"s}};
  for (const auto& [type, data] : values) {
    RegistryHandle key = 0;
    ASSERT_EQ(backend->openKey(kUserRoot, "Seller", 0, key), RegistryStatus::Success);
    EXPECT_EQ(backend->setValue(key, "v", type, data), RegistryStatus::Success);
    std::string buffer(64, 'x');
    RegistryType readType{};
    std::uint32_t size = 0;
    EXPECT_EQ(backend->queryValue(key, "v", buffer, readType, size), RegistryStatus::Success);
    EXPECT_EQ(std::pair(readType, buffer.substr(0, size)), std::pair(type, data));
    backend->closeKey(key);
  }
}

TEST_F(RegistryFile, RootsAreApart) {
  ASSERT_TRUE(Fresh(file)->CreateKey(0x80000001, "Seller"));
  for (const RegistryHandle root : {0x80000000U, 0x80000002U, 0x80000003U, 0x80000005U}) {
    EXPECT_TRUE(Fresh(file)->KeyExists(root, "")) << root;
    EXPECT_FALSE(Fresh(file)->KeyExists(root, "Seller")) << root;
  }
  for (const RegistryHandle root : {0U, 1U, 0x7FFFFFFFU, 0x80000004U, 0x80000006U, 0xFFFFFFFFU})
    EXPECT_EQ(errorOf([&] { (void)Fresh(file)->KeyExists(root, ""); }), "11008 clsRegistry KeyExists")
        << root;
}

TEST_F(RegistryFile, ARootIsNotDeleted) {
  EXPECT_EQ(errorOf([&] { Fresh(file)->DeleteKey(kUserRoot, ""); }), "11006 clsRegistry DeleteKey");
  EXPECT_TRUE(Fresh(file)->KeyExists(kUserRoot, ""));
}

TEST_F(RegistryFile, AskingMakesNoFile) {
  EXPECT_FALSE(Fresh(file)->KeyExists(kUserRoot, "Seller"));
  EXPECT_EQ(names(), std::vector<std::string>());
}

TEST_F(RegistryFile, ItsFolderIsMade) {
  const fs::path deeper = folder / "a" / "b" / "registry.json";
  EXPECT_TRUE(Fresh(deeper)->CreateKey(kUserRoot, "Seller"));
  EXPECT_TRUE(fs::exists(deeper));
}

TEST_F(RegistryFile, ALinkStaysOne) {
  ASSERT_TRUE(Fresh(file)->CreateKey(kUserRoot, "Before"));
  const fs::path link = folder / "link";
  fs::create_symlink(file, link);
  EXPECT_TRUE(Fresh(link)->CreateKey(kUserRoot, "Seller"));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_TRUE(Fresh(file)->KeyExists(kUserRoot, "Seller"));
}

struct DamageRow {
  const char* rule;
  std::string content;
};

std::string userRoot(const std::string& values, const std::string& keys) {
  return R"({"values": {}, "keys": {"HKEY_CURRENT_USER": {"values": {)" + values + R"(}, "keys": {)" + keys +
         "}}}}";
}

std::string nested(int depth) {
  std::string text;
  for (int level = 0; level < depth; ++level) text += R"({"values": {}, "keys": {"k": )";
  text += R"({"values": {}, "keys": {}})";
  for (int level = 0; level < depth; ++level) text += "}}";
  return text;
}

// clang-format off
const DamageRow kDamageRows[] = {
    {"an empty file",                 ""},
    {"zeros",                         std::string(100, '\0')},
    {"no JSON",                       "Seller=Acme"},
    {"half a file",                   userRoot("", "").substr(0, 40)},
    {"more behind the end",           userRoot("", "") + "}"},
    {"a list",                        "[]"},
    {"no values",                     R"({"keys": {}})"},
    {"no keys",                       R"({"values": {}})"},
    {"keys that are a list",          R"({"values": {}, "keys": []})"},
    {"a key that is a text",          userRoot("", R"("Seller": "Acme")")},
    {"a value that is a text",        userRoot(R"("v": "Acme")", "")},
    {"a value without type",          userRoot(R"("v": {"text": "Acme"})", "")},
    {"a type below zero",             userRoot(R"("v": {"type": -1, "text": "Acme"})", "")},
    {"a type of more than 32 bits",   userRoot(R"("v": {"type": 4294967296, "text": "Acme"})", "")},
    {"a value without data",          userRoot(R"("v": {"type": 1})", "")},
    {"a text that is a number",       userRoot(R"("v": {"type": 1, "text": 5})", "")},
    {"bytes that are a list",         userRoot(R"("v": {"type": 3, "bytes": [1, 2]})", "")},
    {"half a byte",                   userRoot(R"("v": {"type": 3, "bytes": "012"})", "")},
    {"bytes that are no digits",      userRoot(R"("v": {"type": 3, "bytes": "0g"})", "")},
    {"a name twice, in two cases",    userRoot("", R"("a": {"values": {}, "keys": {}}, "A": {"values": {}, "keys": {}})")},
    {"a text that is no UTF-8",       userRoot("\"v\": {\"type\": 1, \"text\": \"\xFC\"}", "")},
    {"deeper than keys can be",       nested(513)},
    {"endless keys",                  nested(20000)},
    {"endless lists",                 std::string(100000, '[')},
};
// clang-format on

TEST_F(RegistryFile, ADamagedFileFailsEverythingAndStaysAsItIs) {
  for (const DamageRow& row : kDamageRows) {
    write(row.content);
    for (const Operation& operation : kOperations)
      EXPECT_EQ(errorOf(operation, *Fresh(file), kUserRoot, "Seller", ""), ownError(operation)) << row.rule;
    EXPECT_TRUE(content() == row.content) << row.rule;
  }
}

TEST_F(RegistryFile, AHandwrittenFileIsUnderstood) {
  write(userRoot(R"("v": {"type": 1, "text": "Acme"})", ""));
  EXPECT_EQ(Fresh(file)->GetValue(kUserRoot, "", "v"), RegistryValue("Acme"));
  write(userRoot(R"("v": {"type": 3, "bytes": "00097fa0ff"})", ""));
  EXPECT_EQ(Fresh(file)->GetValue(kUserRoot, "", "v"), RegistryValue(bytes("\x00\x09\x7F\xA0\xFF"s)));
  write(
      R"({"values": {}, "keys": {"hkey_current_user": {"values": {}, "keys": {"A": {"values": {}, "keys": {}}}}}})");
  EXPECT_TRUE(Fresh(file)->KeyExists(kUserRoot, "a"));
  write(nested(512));
  EXPECT_TRUE(Fresh(file)->KeyExists(kUserRoot, ""));
}

TEST_F(RegistryFile, NothingIsWrittenThatCouldNotBeRead) {
  Fresh registry(file);
  ASSERT_TRUE(registry->CreateKey(kUserRoot, "Seller"));
  const std::string before = content();
  std::string tooDeep;
  for (int level = 0; level < 512; ++level) tooDeep += "\\k";
  EXPECT_EQ(creationError(file, tooDeep), kNotCreated);
  EXPECT_EQ(creationError(file, "M\xFCller"), kNotCreated);
  EXPECT_EQ(errorOf([&] { registry->SetValue(kUserRoot, "Seller", "M\xFCller", 1); }),
            "11001 clsRegistry SetValue");
  EXPECT_EQ(content(), before);
  EXPECT_TRUE(registry->CreateKey(kUserRoot, tooDeep.substr(2))) << "one step less";
  EXPECT_TRUE(registry->KeyExists(kUserRoot, tooDeep.substr(2)));
}

TEST_F(RegistryFile, APathHasNoEmptyName) {
  EXPECT_EQ(creationError(file, "A\\\\B"), kNotCreated);
  EXPECT_EQ(creationError(file, "\\\\A"), kNotCreated);
  EXPECT_EQ(names(), std::vector<std::string>());
}

TEST_F(RegistryFile, WhatIsNoFileIsAFailure) {
  fs::create_directory(file);
  EXPECT_EQ(errorOf([&] { (void)Fresh(file)->KeyExists(kUserRoot, ""); }), "11008 clsRegistry KeyExists");
  EXPECT_EQ(creationError(file, "Seller"), kNotCreated);
  fs::remove(file);
  // The program would stand still: nobody writes into the pipe.
  ASSERT_EQ(mkfifo(file.c_str(), S_IRUSR | S_IWUSR), 0);
  EXPECT_EQ(errorOf([&] { (void)Fresh(file)->KeyExists(kUserRoot, ""); }), "11008 clsRegistry KeyExists");
  EXPECT_EQ(creationError(file, "Seller"), kNotCreated);
}

// Even the administrator, as whom tests may run, can make no file there.
TEST_F(RegistryFile, AFolderThatTakesNoFilesIsAFailure) {
  write("a file where a folder should be");
  for (const fs::path& place : {fs::path("/proc/registry.json"), file / "registry.json"}) {
    EXPECT_EQ(creationError(place, "Seller"), kNotCreated) << place;
    EXPECT_EQ(errorOf([&] { Fresh(place)->SetValue(kUserRoot, "", "v", "text"); }),
              "11001 clsRegistry SetValue")
        << place;
  }
}

/// While it lives no file of this process grows beyond the size, as on a full disk.
class LargestFile {
 public:
  explicit LargestFile(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    rlimit limit = m_before;
    limit.rlim_cur = size;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  LargestFile(const LargestFile&) = delete;
  LargestFile& operator=(const LargestFile&) = delete;
  ~LargestFile() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    (void)std::signal(SIGXFSZ, m_handler);
  }

 private:
  void (*m_handler)(int);
  rlimit m_before{};
};

TEST_F(RegistryFile, AWriteThatFailsHalfWayLeavesTheOldFileAlone) {
  ASSERT_TRUE(Fresh(file)->CreateKey(kUserRoot, "Seller"));
  const std::string before = content();
  std::string error;
  std::string creation;
  {
    const LargestFile limit(before.size() + 100);
    error = errorOf([&] { Fresh(file)->SetValue(kUserRoot, "Seller", "v", std::string(100000, 'x')); });
    creation = creationError(file, std::string(100000, 'k'));
  }
  EXPECT_EQ(error, "11001 clsRegistry SetValue");
  EXPECT_EQ(creation, kNotCreated);
  EXPECT_EQ(content(), before);
  EXPECT_EQ(names(), std::vector{file.filename().string()}) << "no half file stays behind";
}

constexpr int kWrites = 50;

/// In a process of its own. Exits with the number of writes that failed.
pid_t writeInAnotherProcess(const fs::path& file, const std::string& name) {
  const pid_t child = fork();
  if (child != 0) return child;
  int failures = 0;
  for (int number = 0; number < kWrites; ++number) {
    const std::string valueName = name + std::string(static_cast<std::size_t>(number), '.');
    if (!errorOf([&] { Fresh(file)->SetValue(kUserRoot, "Seller", valueName, number); }).empty()) ++failures;
  }
  _exit(failures);
}

TEST_F(RegistryFile, ProcessesThatWriteAtOnceLoseNothing) {
  ASSERT_TRUE(Fresh(file)->CreateKey(kUserRoot, "Seller"));
  const std::array children{writeInAnotherProcess(file, "one"), writeInAnotherProcess(file, "other")};
  for (const pid_t child : children) {
    ASSERT_GT(child, 0);
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  for (const char* name : {"one", "other"}) {
    for (int number = 0; number < kWrites; ++number) {
      const std::string valueName = name + std::string(static_cast<std::size_t>(number), '.');
      EXPECT_EQ(errorOf([&] { (void)Fresh(file)->GetValue(kUserRoot, "Seller", valueName); }), "")
          << valueName;
    }
  }
}

}  // namespace
