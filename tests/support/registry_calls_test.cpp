#include <gtest/gtest.h>

#include "recording_registry.h"
#include "registry_operations.h"

namespace {

constexpr RegistryHandle kLocalMachine = 0x80000002;

struct CallRow {
  const char* operation;
  const char* local;
  const char* remote;
};

// clang-format off
constexpr CallRow kCallRows[] = {
    {"SetValue",     "open(80000002, A\\B, f003f); query(200, v, ff); set(200, v, 1, 4); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); query(200, v, ff); set(200, v, 1, 4); close(200); close(100)"},
    {"GetValue",     "open(80000002, A\\B, f003f); query(200, v, 100); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); query(200, v, 100); close(200); close(100)"},
    {"ListSubKey",   "open(80000002, A\\B, f003f); enum key(200, 0); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); enum key(200, 0); close(200); close(100)"},
    {"DeleteValue",  "open(80000002, A\\B, f003f); delete value(200, v); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); delete value(200, v); close(200); close(100)"},
    {"CreateKey",    "create(80000002, A\\B, f003f); close(300)",
     "connect(far, 80000002); create(100, A\\B, f003f); close(300); close(100)"},
    {"DeleteKey",    "delete key(80000002, A\\B)",
     "connect(far, 80000002); delete key(100, A\\B); close(100)"},
    {"ListSubValue", "open(80000002, A\\B, f003f); enum value(200, 0); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); enum value(200, 0); close(200); close(100)"},
    {"KeyExists",    "open(80000002, A\\B, f003f); close(200)",
     "connect(far, 80000002); open(100, A\\B, f003f); close(200); close(100)"},
};
// clang-format on

std::string callsOf(const Operation& operation, const std::string& path, const std::string& computer) {
  RecordingRegistry backend;
  CRegistry registry(backend);
  operation.run(registry, kLocalMachine, path, computer);
  return backend.calls;
}

TEST(RegistryCalls, AnOperationOpensWorksAndCloses) {
  for (std::size_t at = 0; at < std::size(kOperations); ++at) {
    ASSERT_STREQ(kOperations[at].name, kCallRows[at].operation);
    EXPECT_EQ(callsOf(kOperations[at], "A\\B", ""), kCallRows[at].local) << kOperations[at].name;
    EXPECT_EQ(callsOf(kOperations[at], "A\\B", "far"), kCallRows[at].remote) << kOperations[at].name;
  }
}

struct PathRow {
  const char* rule;
  const char* given;
  const char* used;
};

constexpr PathRow kPathRows[] = {
    {"none in front", "A\\B", "A\\B"},
    {"one in front is dropped", R"(\A\B)", R"(A\B)"},
    {"of two in front one is dropped", R"(\\A\B)", R"(\A\B)"},
    {"one behind stays", "A\\B\\", "A\\B\\"},
    {"the root itself", "", ""},
    {"the root itself, with one in front", "\\", ""},
    {"a slash is no backslash", "/A", "/A"},
};

TEST(RegistryCalls, OneLeadingBackslashIsDropped) {
  for (const Operation& operation : kOperations) {
    for (const PathRow& row : kPathRows) {
      // The path stands alone between the root and a comma or a bracket.
      const std::string expected = "(80000002, " + std::string(row.used);
      const std::string calls = callsOf(operation, row.given, "");
      const std::size_t at = calls.find(expected);
      ASSERT_NE(at, std::string::npos) << operation.name << ", " << row.rule << ": " << calls;
      EXPECT_NE(std::string(",)").find(calls[at + expected.size()]), std::string::npos)
          << operation.name << ", " << row.rule << ": " << calls;
    }
  }
}

constexpr const char* kFallibleCalls[] = {"connect", "open",         "create",   "delete key", "query",
                                          "set",     "delete value", "enum key", "enum value"};

constexpr RegistryStatus kFailures[] = {RegistryStatus::NotFound,      RegistryStatus::AccessDenied,
                                        RegistryStatus::InvalidHandle, RegistryStatus::BadPathName,
                                        RegistryStatus::DamagedStore,  RegistryStatus::NoMoreItems};

TEST(RegistryCalls, WhateverFailsAllHandlesAreClosed) {
  for (const Operation& operation : kOperations) {
    for (const char* call : kFallibleCalls) {
      for (const RegistryStatus failure : kFailures) {
        RecordingRegistry backend;
        backend.answers[call] = failure;
        CRegistry registry(backend);
        errorOf(operation, registry, kLocalMachine, "A", "far");
        EXPECT_EQ(backend.openHandles, 0) << operation.name << ": " << backend.calls;
      }
    }
  }
}

TEST(RegistryCalls, AMachineThatRefusesIsTheOperationsOwnError) {
  for (const Operation& operation : kOperations) {
    RecordingRegistry backend;
    backend.answers["connect"] = RegistryStatus::BadNetworkPath;
    CRegistry registry(backend);
    EXPECT_EQ(errorOf(operation, registry, kLocalMachine, "A", "far"), ownError(operation));
    EXPECT_EQ(backend.calls, "connect(far, 80000002)") << operation.name;
  }
}

struct FailureRow {
  const char* rule;
  const char* operation;
  const char* call;
  RegistryStatus answer;
  const char* outcome;  ///< "true", "false", or the error
};

// clang-format off
constexpr FailureRow kFailureRows[] = {
    {"a key that is missing",            "SetValue",     "open",         RegistryStatus::NotFound,     "11001 clsRegistry SetValue"},
    {"a key that is refused",            "SetValue",     "open",         RegistryStatus::AccessDenied, "11001 clsRegistry SetValue"},
    {"a value that cannot be asked for", "SetValue",     "query",        RegistryStatus::AccessDenied, "11001 clsRegistry SetValue"},
    {"a value of a key just deleted",    "SetValue",     "query",        RegistryStatus::KeyDeleted,   "11001 clsRegistry SetValue"},
    {"a write that fails",               "SetValue",     "set",          RegistryStatus::CannotWrite,  "11001 clsRegistry SetValue"},
    {"a key that is missing",            "GetValue",     "open",         RegistryStatus::NotFound,     "11002 clsRegistry GetValue"},
    {"a value that is missing",          "GetValue",     "query",        RegistryStatus::NotFound,     "11002 clsRegistry GetValue"},
    {"a value that is refused",          "GetValue",     "query",        RegistryStatus::AccessDenied, "11002 clsRegistry GetValue"},
    {"a value that always grows",        "GetValue",     "query",        RegistryStatus::MoreData,     "11002 clsRegistry GetValue"},
    {"a key that is missing",            "ListSubKey",   "open",         RegistryStatus::NotFound,     "11003 clsRegistry ListSubKey"},
    {"past the last key",                "ListSubKey",   "enum key",     RegistryStatus::NoMoreItems,  "11003 clsRegistry ListSubKey"},
    {"a key that is missing",            "DeleteValue",  "open",         RegistryStatus::NotFound,     "11004 clsRegistry DeleteValue"},
    {"a value that is missing",          "DeleteValue",  "delete value", RegistryStatus::NotFound,     "false"},
    {"a value that is refused",          "DeleteValue",  "delete value", RegistryStatus::AccessDenied, "11004 clsRegistry DeleteValue"},
    {"a key that is refused",            "CreateKey",    "create",       RegistryStatus::AccessDenied, "11005 clsRegistry CreateKey"},
    {"a key that is never there",        "CreateKey",    "create",       RegistryStatus::NotFound,     "11005 clsRegistry CreateKey"},
    {"an unknown root",                  "CreateKey",    "create",       RegistryStatus::InvalidHandle, "11005 clsRegistry CreateKey"},
    {"a value of a key just deleted",    "DeleteValue",  "delete value", RegistryStatus::KeyDeleted,   "11004 clsRegistry DeleteValue"},
    {"a store that cannot be written",   "DeleteValue",  "delete value", RegistryStatus::CannotWrite,  "11004 clsRegistry DeleteValue"},
    {"a store that cannot be written",   "CreateKey",    "create",       RegistryStatus::CannotWrite,  "11005 clsRegistry CreateKey"},
    {"a store that cannot be written",   "DeleteKey",    "delete key",   RegistryStatus::CannotWrite,  "11006 clsRegistry DeleteKey"},
    {"an unknown root",                  "DeleteKey",    "delete key",   RegistryStatus::InvalidHandle, "11006 clsRegistry DeleteKey"},
    {"a key that is missing",            "DeleteKey",    "delete key",   RegistryStatus::NotFound,     "false"},
    {"a key with keys below",            "DeleteKey",    "delete key",   RegistryStatus::AccessDenied, "11006 clsRegistry DeleteKey"},
    {"a key that is missing",            "ListSubValue", "open",         RegistryStatus::NotFound,     "11007 clsRegistry ListSubValue"},
    {"past the last value",              "ListSubValue", "enum value",   RegistryStatus::NoMoreItems,  "11007 clsRegistry ListSubValue"},
    {"a key that is missing",            "KeyExists",    "open",         RegistryStatus::NotFound,     "false"},
    {"a key that is refused",            "KeyExists",    "open",         RegistryStatus::AccessDenied, "11008 clsRegistry KeyExists"},
    {"a path that is none",              "KeyExists",    "open",         RegistryStatus::BadPathName,  "11008 clsRegistry KeyExists"},
    {"an unknown root",                  "KeyExists",    "open",         RegistryStatus::InvalidHandle, "11008 clsRegistry KeyExists"},
    {"nothing fails",                    "SetValue",     "",             RegistryStatus::Success,      "true"},
    {"nothing fails",                    "DeleteValue",  "",             RegistryStatus::Success,      "true"},
    {"nothing fails",                    "CreateKey",    "",             RegistryStatus::Success,      "true"},
    {"nothing fails",                    "DeleteKey",    "",             RegistryStatus::Success,      "true"},
    {"nothing fails",                    "KeyExists",    "",             RegistryStatus::Success,      "true"},
    {"nothing fails",                    "GetValue",     "",             RegistryStatus::Success,      "old"},
    {"nothing fails",                    "ListSubKey",   "",             RegistryStatus::Success,      "a key"},
    {"nothing fails",                    "ListSubValue", "",             RegistryStatus::Success,      "a value"},
};
// clang-format on

std::string resultOf(const std::string& operation, CRegistry& registry) {
  const auto flag = [](bool result) { return std::string(result ? "true" : "false"); };
  if (operation == "SetValue") return flag(registry.SetValue(kLocalMachine, "A", "v", "new"));
  if (operation == "GetValue") return std::get<std::string>(registry.GetValue(kLocalMachine, "A", "v"));
  if (operation == "ListSubKey") return registry.ListSubKey(kLocalMachine, "A", 0);
  if (operation == "DeleteValue") return flag(registry.DeleteValue(kLocalMachine, "A", "v"));
  if (operation == "CreateKey") return flag(registry.CreateKey(kLocalMachine, "A"));
  if (operation == "DeleteKey") return flag(registry.DeleteKey(kLocalMachine, "A"));
  if (operation == "ListSubValue") return registry.ListSubValue(kLocalMachine, "A", 0);
  return flag(registry.KeyExists(kLocalMachine, "A"));
}

TEST(RegistryCalls, AFailureIsAnAnswerOrTheOperationsOwnError) {
  for (const FailureRow& row : kFailureRows) {
    RecordingRegistry backend;
    backend.answers[row.call] = row.answer;
    CRegistry registry(backend);
    std::string outcome;
    const std::string error = errorOf([&] { outcome = resultOf(row.operation, registry); });
    EXPECT_EQ(error + outcome, row.outcome) << row.operation << ", " << row.rule;
  }
}

TEST(RegistryCalls, AnErrorIsAnException) {
  try {
    throw RegistryError(11001, "SetValue");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "SetValue");
  }
}

}  // namespace
