#pragma once

#include <memory>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>
#include <stdexcept>
#include <string>

#include "recording_world.h"

/// The control of that name in a window; throws with the name if there is none.
template <typename T>
T& controlOf(const QWidget& window, const char* name) {
  auto* control = window.findChild<T*>(QString::fromLatin1(name));
  if (control == nullptr)
    throw std::runtime_error(std::string("there is no control of that kind named ") + name);
  return *control;
}

inline QString textOf(const QWidget& window, const char* name) {
  return controlOf<QWidget>(window, name).property("text").toString();
}

inline void push(const QWidget& window, const char* button) {
  controlOf<QPushButton>(window, button).click();
}

/// Runs `work` with the next modal window, once it is there, and closes it if it is still open then. The
/// answer counts the windows met: to be compared with 1, or with 0 where none may come.
template <typename Work>
std::shared_ptr<int> inNextModal(Work work) {
  auto met = std::make_shared<int>(0);
  QTimer::singleShot(0, qApp, [met, work] {
    const QPointer<QWidget> modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    ++*met;
    work(*modal);
    if (modal != nullptr && modal->isVisible()) modal->close();
  });
  return met;
}

/// Loads the texts of that language: "English", "German" or "French".
inline void speak(RecordingWorld& world, const QString& language) {
  world.settings.values[QStringLiteral("Language")] = language;
  world.languages.InitLanguage();
}

/// Reads a branding file of that content.
inline void rebrand(RecordingWorld& world, const QByteArray& appData) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("AppData")));
  if (!file.open(QIODevice::WriteOnly) || file.write(appData) != appData.size())
    throw std::runtime_error("the branding file cannot be written");
  file.close();
  world.brand = CCustomBrand(folder.path());
  world.brand.Load();
}

inline const QByteArray kReseller =
    "<CompanyName>Smith & Sons  Ltd</CompanyName>"
    "<CompanyURL>https://www.smith.example/?a=b&c=d e</CompanyURL>"
    "<SupportEmail>help+us@smith.example</SupportEmail>"
    "<SupportURL>https://www.smith.example/contact</SupportURL>"
    "<SubscribeEmail>news@smith.example</SubscribeEmail>"
    "<ErrorReportEmail>faults@smith.example</ErrorReportEmail>";
