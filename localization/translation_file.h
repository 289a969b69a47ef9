#pragma once

#include <QByteArray>

namespace Localization {

/// Whether `bytes` are a whole compiled translation: known sections that fill the file, and messages that lie
/// within it. QTranslator follows the lengths in its file without looking; a file for which this is true can
/// be handed to it. Says nothing about which texts are in it.
bool isSoundTranslation(const QByteArray& bytes);

}  // namespace Localization
