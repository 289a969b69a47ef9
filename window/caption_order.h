#pragma once

#include <QStringList>

/// The names of the controls whose captions and tooltips are applied first when the language changes, in that
/// order.
QStringList captionOrder();
