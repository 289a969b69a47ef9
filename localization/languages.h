#pragma once

namespace Localization {

/// Chooses the language and loads its texts. False only if not even English can be set up. The program
/// speaks English, from its own table, which always can.
bool InitLanguage();

}  // namespace Localization
