#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "custom_brand.h"
#include "desktop_opener.h"
#include "error_reporter.h"
#include "message_box.h"
#include "settings_store.h"
#include "update_answer.h"
#include "web_request.h"

/// What the start status needs of the world. All must outlive it.
struct StartSurroundings {
  SettingsStore& settings;
  WebRequest& web;
  DesktopOpener& desktop;
  MessageBox& messages;
  ErrorReporter& errors;
  const CCustomBrand& brand;
  std::function<QString()> languageName;  ///< of the language that the program speaks, "German"
  int appClass = 0;                       ///< which kind of program asks for updates
  QString updateHost;                     ///< the version-check server, with its scheme
};

/// What the start of this process found out: whether it is the first one after installation, and what the
/// maker's server says about newer versions. Nothing is asked of the server but by CheckForUpdate. Handed to
/// the calculator window, and gone with it: an answer that comes later is not heard.
class CStartStatus : public std::enable_shared_from_this<CStartStatus> {
 public:
  /// It is the first run if no window has ever stored its site, as every window does when it closes.
  explicit CStartStatus(StartSurroundings surroundings);
  ~CStartStatus();
  CStartStatus(const CStartStatus&) = delete;
  CStartStatus& operator=(const CStartStatus&) = delete;

  [[nodiscard]] bool isFirstRun() const { return m_isFirstRun; }

  /// Whether the user is to be asked for permission to look for a newer version.
  [[nodiscard]] bool asksForUpdateCheck() const { return m_isFirstRun; }

  /// Keeps what the user answered to that. Throws SettingsError.
  void keepUpdateCheck(bool isAllowed);

  /// Asks the server, and when it answers shows its message or offers the newer version. A server that does
  /// not answer shows nothing; an address that the user chose and that cannot be opened is reported. While a
  /// question is under way another one is ignored.
  void CheckForUpdate();

  /// The window that answers are shown in front of.
  void setWindow(QWidget* window) { m_window = window; }

  /// What the server said last.
  [[nodiscard]] const UpdateAnswer& update() const { return m_update; }
  /// Whether the user has gone to fetch the newer version.
  [[nodiscard]] bool isUpdateStarted() const { return m_isUpdateStarted; }

  /// A version number written with a point, in the form that the user's number format reads.
  [[nodiscard]] static QString ConvNumFormat(const QString& text);

 private:
  void takeAnswer(const std::optional<QString>& text);
  void actOnAnswer();
  void offerUpdate(const QString& title);

  StartSurroundings m_surroundings;
  bool m_isFirstRun;
  bool m_isAsking = false;
  bool m_isUpdateStarted = false;
  UpdateAnswer m_update;
  QPointer<QWidget> m_window;
};
