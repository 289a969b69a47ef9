#pragma once

#include <string>
#include <string_view>

#include "number_locale.h"

/// \file
/// What may be typed into an amount or count box and what may stand in it, as functions of texts. Which box
/// asks when, and what is recalculated then, is the window's.

enum class EntryKind { Money, Count };

enum class KeyVerdict {
  Swallow,
  Pass,
  PassAfterPoint,  ///< the box's text becomes "." first, then the key goes through
};

/// Character codes that stand for editing keys.
enum EditingKey : char32_t { CopyKey = 3, BackspaceKey = 8, PasteKey = 22 };

/// Whether a typed character may go into a box that holds `text`. The character is judged as if it were
/// appended, wherever the caret stands. With the whole text selected, an empty text included, a money
/// box lets any character but "-" through: the rule for a changed text then empties the box.
KeyVerdict judgeKey(EntryKind kind, char32_t key, std::string_view text, bool isWholeTextSelected,
                    const NumberLocale& locale);

/// True for "." and for the user's decimal symbol alone: the start of an amount, not yet a number. The
/// window reads it as empty.
bool isLoneDecimalSymbol(std::string_view text, const NumberLocale& locale);

/// True if an entry box may hold `text`: a number or the start of one. "" may not, which makes no
/// difference, as what may not stand is replaced by "".
bool mayStand(std::string_view text, const NumberLocale& locale);

/// True if `text` is a number below zero.
bool isNegative(std::string_view text, const NumberLocale& locale);

/// True if `text` is a number, not negative, and in single precision below 1: eBay Germany takes no such
/// opening bid.
bool isBelowGermanMinimum(std::string_view text, const NumberLocale& locale);

/// What an opening bid below one euro becomes: "1.00" with the user's decimal symbol.
std::string germanMinimum(const NumberLocale& locale);
