// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The 29 letters of the German set as small codes, and the tile byte the
// board, the rack and the moves store: a letter code, plus a bit when the
// tile is a blank standing for that letter. The codes follow the alphabet
// (A..Z = 1..26, Ä Ö Ü = 27..29), so sorting by code sorts words the way
// the move order wants them.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner::board {

using Letter = std::uint8_t; // 1..29; 0 is "no letter"
using Tile = std::uint8_t;   // 0 empty, else a letter, kBlankBit set for a blank

inline constexpr int kLetterCount = 29;
inline constexpr Letter kNoLetter = 0;
inline constexpr Tile kEmpty = 0;
inline constexpr Tile kBlankBit = 0x20;
inline constexpr Tile kLetterBits = 0x1F;
inline constexpr int kRackSize = 7;
inline constexpr int kBoardSize = 15;

// Bit `letter` set for every letter of the set (bits 1..29).
using LetterMask = std::uint32_t;
inline constexpr LetterMask kAllLetters = ((LetterMask{1} << (kLetterCount + 1)) - 1) & ~1u;

[[nodiscard]] constexpr Letter letterOf(Tile tile) {
    return tile & kLetterBits;
}
[[nodiscard]] constexpr bool isBlank(Tile tile) {
    return (tile & kBlankBit) != 0;
}
[[nodiscard]] constexpr LetterMask maskOf(Letter letter) {
    return LetterMask{1} << letter;
}

// The letter of an upper-case Windows-1252 code (A-Z, Ä Ö Ü); kNoLetter for
// every other byte, lower case included.
[[nodiscard]] Letter letterFromWindows1252(unsigned char code);
// The upper-case Windows-1252 code of a letter; '?' for kNoLetter or out of range.
[[nodiscard]] unsigned char windows1252FromLetter(Letter letter);

// The letter an upper-case or lower-case character names (a-z, ä ö ü and
// their capitals), and whether it was lower case. kNoLetter for anything else.
struct CharacterLetter {
    Letter letter = kNoLetter;
    bool lowerCase = false;
};
[[nodiscard]] CharacterLetter letterFromCharacter(char32_t character);

// The letters in UTF-8 text, either case (a filter's letters: "en" and "EN"
// alike); characters that name no letter are left out.
[[nodiscard]] LetterMask lettersIn(std::string_view utf8);

// The letter as UTF-8, upper case or lower case; "?" for kNoLetter.
[[nodiscard]] std::string_view letterUtf8(Letter letter, bool lowerCase = false);
// A tile as UTF-8: the upper-case letter, a blank's letter in lower case,
// "." for an empty square.
[[nodiscard]] std::string_view tileUtf8(Tile tile);

// How many tiles of each letter the German set holds (index by letter; index 0
// holds the two blanks). 102 tiles in all.
[[nodiscard]] const std::array<std::uint8_t, kLetterCount + 1>& germanTileSet();

} // namespace lettriner::board
