#include "program_starter.h"

#include <QProcess>

bool DetachedProgramStarter::start(const QString& path) { return QProcess::startDetached(path, {}); }
