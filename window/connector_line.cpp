#include "connector_line.h"

#include <QFrame>

void drawConnector(QFrame& line, bool isActive) { line.setEnabled(isActive); }
