#pragma once

#include <QString>

class QWidget;

/// Where unexpected errors end: whatever goes wrong is told to the user there, and the program goes on.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;

  /// `parent` is the window in which it happened, or nothing. Never throws.
  virtual void show(QWidget* parent, const QString& errorText) = 0;
};
