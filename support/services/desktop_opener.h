#pragma once

#include <QString>

/// Hands an address or a file to the user's own programs. Each answers whether there was a program to hand it
/// to; what that program makes of it is not known.
class DesktopOpener {
 public:
  virtual ~DesktopOpener() = default;

  /// A page, in the browser. Only web addresses, http or https, are opened.
  virtual bool openWeb(const QString& address) = 0;

  /// A new message, in the mail program; see mail_link.h.
  virtual bool openMail(const QString& mailLink) = 0;

  /// A file, in the program for its kind.
  virtual bool openFile(const QString& path) = 0;
};

/// The desktop's own choice of programs.
class DesktopServices : public DesktopOpener {
 public:
  bool openWeb(const QString& address) override;
  bool openMail(const QString& mailLink) override;
  bool openFile(const QString& path) override;
};

/// Whether an address names a page of the web, by http or https.
[[nodiscard]] bool isWebAddress(const QString& address);

/// A web address as people write it, "www.harbour.example", with https in front; one that is whole as it
/// stands. Nothing for what is none, and for any other scheme.
[[nodiscard]] QString fullWebAddress(const QString& address);
