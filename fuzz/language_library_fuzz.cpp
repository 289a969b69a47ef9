#include <cstdint>

#include "language_library.h"

// Any bytes as a language library. A file that is taken is asked for every id: nothing outside it is read.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const void* input = data;
  const QByteArray bytes(static_cast<const char*>(input), static_cast<qsizetype>(size));
  const auto library = Localization::loadLanguageLibrary(bytes);
  if (!library) return 0;
  for (const qint32 id : {-1, 0, 201, 640, 641, 642, 674, 5000, 2147483647}) library->GetResourceString(id);
  return 0;
}
