#pragma once

#include <functional>
#include <optional>
#include <QByteArray>
#include <QString>

/// Where this system's own tool that tells about the machine lies.
class SystemInformation {
 public:
  virtual ~SystemInformation() = default;

  /// The full path of its program file; "" if there is none.
  [[nodiscard]] virtual QString programPath() = 0;
};

/// The real one, on this system.
class InstalledSystemInformation : public SystemInformation {
 public:
  [[nodiscard]] QString programPath() override;
};

/// How the tool is found on Windows, apart from asking Windows.
namespace MsInfo {

/// The text of a value under HKEY_LOCAL_MACHINE, if it can be read.
using ReadValue = std::function<std::optional<QString>(const QString& key, const QString& name)>;
using FileExists = std::function<bool(const QString& path)>;

/// The path that the tool itself has noted, unchecked; else the one beside the shared tools, if it is there.
[[nodiscard]] QString programPath(const ReadValue& readValue, const FileExists& fileExists);

/// A value's text: a string up to its first zero character, a 32-bit number in decimal digits; nothing for
/// other types. `bytes` are as the registry holds them.
[[nodiscard]] std::optional<QString> textOf(unsigned long type, const QByteArray& bytes);

}  // namespace MsInfo
