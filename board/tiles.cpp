// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles.h"

namespace lettriner::board {

namespace {

// Windows-1252 and Unicode agree on the three umlauts and their capitals.
constexpr unsigned char kUmlautCapitals[3] = {0xC4, 0xD6, 0xDC};

constexpr std::string_view kUpperUtf8[kLetterCount + 1] = {
    "?", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L",        "M",        "N",
    "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "\xC3\x84", "\xC3\x96", "\xC3\x9C"};
constexpr std::string_view kLowerUtf8[kLetterCount + 1] = {
    "?", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l",        "m",        "n",
    "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z", "\xC3\xA4", "\xC3\xB6", "\xC3\xBC"};

} // namespace

Letter letterFromWindows1252(unsigned char code) {
    if (code >= 'A' && code <= 'Z')
        return static_cast<Letter>(code - 'A' + 1);
    for (int i = 0; i < 3; ++i) {
        if (code == kUmlautCapitals[i])
            return static_cast<Letter>(27 + i);
    }
    return kNoLetter;
}

unsigned char windows1252FromLetter(Letter letter) {
    if (letter >= 1 && letter <= 26)
        return static_cast<unsigned char>('A' + letter - 1);
    if (letter >= 27 && letter <= kLetterCount)
        return kUmlautCapitals[letter - 27];
    return '?';
}

CharacterLetter letterFromCharacter(char32_t character) {
    if (character >= U'a' && character <= U'z')
        return {static_cast<Letter>(character - U'a' + 1), true};
    if (character == U'ä' || character == U'ö' || character == U'ü')
        return {letterFromWindows1252(static_cast<unsigned char>(character - 0x20)), true};
    if (character > 0xFF)
        return {};
    return {letterFromWindows1252(static_cast<unsigned char>(character)), false};
}

LetterMask lettersIn(std::string_view utf8) {
    LetterMask mask = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        char32_t character = static_cast<unsigned char>(utf8[i]);
        // Ä Ö Ü and ä ö ü are the only letters beyond ASCII: two bytes, C3 then the low bits.
        if (character == 0xC3 && i + 1 < utf8.size())
            character = 0xC0u | (static_cast<unsigned char>(utf8[++i]) & 0x3Fu);
        else if (character >= 0x80)
            continue;
        const Letter letter = letterFromCharacter(character).letter;
        if (letter != kNoLetter)
            mask |= maskOf(letter);
    }
    return mask;
}

std::string_view letterUtf8(Letter letter, bool lowerCase) {
    if (letter > kLetterCount)
        return "?";
    return lowerCase ? kLowerUtf8[letter] : kUpperUtf8[letter];
}

std::string_view tileUtf8(Tile tile) {
    if (tile == kEmpty)
        return ".";
    return letterUtf8(letterOf(tile), isBlank(tile));
}

const std::array<std::uint8_t, kLetterCount + 1>& germanTileSet() {
    // Index 0: blanks. Then A..Z, Ä, Ö, Ü.
    static constexpr std::array<std::uint8_t, kLetterCount + 1> kSet = {
        2, 5, 2, 2, 4, 15, 2, 3, 4, 6, 1, 2, 3, 4, 9, 3, 1, 1, 6, 7, 6, 6, 1, 1, 1, 1, 1, 1, 1, 1};
    return kSet;
}

} // namespace lettriner::board
