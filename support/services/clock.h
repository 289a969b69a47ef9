#pragma once

#include <QDate>

/// The calendar on the user's desk.
class Clock {
 public:
  virtual ~Clock() = default;

  [[nodiscard]] virtual QDate today() const = 0;
};

class SystemClock : public Clock {
 public:
  [[nodiscard]] QDate today() const override { return QDate::currentDate(); }
};
