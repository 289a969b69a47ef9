#include "languages.h"

#include "tagged_strings.h"

namespace Localization {

bool InitLanguage() {
  setLanguageObject(nullptr);
  return true;
}

}  // namespace Localization
