#pragma once

#include <QString>

/// Starts another program as an independent process.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;

  /// `path` is the full path of the program file. False if it could not be started.
  virtual bool start(const QString& path) = 0;
};

class DetachedProgramStarter : public ProgramStarter {
 public:
  bool start(const QString& path) override;
};
