// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/playable_words.h"

#include "data/text_case.h"

#include <array>

namespace lettriner::board {

namespace {

Letter letterOfCharacter(char16_t character) {
    const char16_t upper = toUpper(character);
    return upper <= 0xFF ? letterFromWindows1252(static_cast<unsigned char>(upper)) : kNoLetter;
}

} // namespace

std::vector<LetterString> playableWords(const WordDatabase& database) {
    // One lookup per byte: the list's code page says which character a byte is.
    std::array<Letter, 256> letterOfByte{};
    const CodePage& codePage = database.codePage();
    for (std::size_t byte = 0; byte < 256; ++byte)
        letterOfByte[byte] = letterOfCharacter(codePage[byte]);
    std::vector<LetterString> words;
    words.reserve(database.size());
    LetterString word;
    for (std::size_t i = 0; i < database.size(); ++i) {
        const std::string_view bytes = database.bytes(i);
        if (bytes.size() < 2 || bytes.size() > kBoardSize)
            continue;
        word.clear();
        for (const char byte : bytes) {
            const Letter letter = letterOfByte[static_cast<unsigned char>(byte)];
            if (letter == kNoLetter)
                break;
            word.push_back(letter);
        }
        if (word.size() == bytes.size())
            words.push_back(word);
    }
    return words;
}

std::vector<LetterString> playableWords(const std::vector<std::u16string>& words) {
    std::vector<LetterString> result;
    for (const std::u16string& text : words) {
        if (text.size() < 2 || text.size() > kBoardSize)
            continue;
        LetterString word;
        for (const char16_t character : text) {
            const Letter letter = letterOfCharacter(character);
            if (letter == kNoLetter)
                break;
            word.push_back(letter);
        }
        if (word.size() == text.size())
            result.push_back(std::move(word));
    }
    return result;
}

} // namespace lettriner::board
