#pragma once

#include <memory>
#include <QString>

#include "tagged_strings.h"

namespace Localization {

/// Loads a language library: a compiled translation whose texts are found by their four-digit ids. It is
/// data; nothing in it is run, and no further file that it may name is opened. Nothing if it cannot be read,
/// is no such translation, is not whole, or is larger than any translation could be.
std::unique_ptr<LanguageResources> loadLanguageLibrary(const QString& path);

/// The same from bytes in memory.
std::unique_ptr<LanguageResources> loadLanguageLibrary(const QByteArray& bytes);

}  // namespace Localization
