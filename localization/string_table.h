#pragma once

#include <QStringView>
#include <vector>

/// The program's own texts, English, by id. It knows no tags and no other language; see tagged_strings.h.
namespace StringTable {

/// The English text of `id`; empty for an id that the table lacks. The text lives as long as the program.
QStringView englishText(int id);

/// All ids of the table, rising.
std::vector<int> ids();

}  // namespace StringTable
