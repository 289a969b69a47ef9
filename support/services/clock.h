#pragma once

#include <QDateTime>

/// The clock and the calendar on the user's desk.
class Clock {
 public:
  virtual ~Clock() = default;

  [[nodiscard]] virtual QDateTime now() const = 0;

  [[nodiscard]] QDate today() const { return now().date(); }
};

class SystemClock : public Clock {
 public:
  [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};
