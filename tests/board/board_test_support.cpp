// SPDX-License-Identifier: GPL-3.0-or-later
#include "board_test_support.h"

#include "board/move_text.h"
#include "board/position_text.h"
#include "data/utf8.h"

#include <algorithm>
#include <set>

namespace lettriner::board::testing {

TileValues germanValues() {
    TileValues values;
    const std::pair<std::string_view, int> groups[] = {
        {"ENSIRTUAD", 1}, {"HGLO", 2}, {"MBWZ", 3}, {"CFKP", 4}, {"JV", 6}, {"X", 8}, {"QY", 10}};
    for (const auto& [letters, value] : groups) {
        for (const char letter : letters)
            values.set(letterFromWindows1252(static_cast<unsigned char>(letter)), value);
    }
    values.set(27, 6); // Ä
    values.set(28, 8); // Ö
    values.set(29, 6); // Ü
    return values;
}

LetterString lettersOf(std::string_view text) {
    LetterString letters;
    for (const char16_t character : fromUtf8(text))
        letters.push_back(letterFromCharacter(character).letter);
    return letters;
}

std::vector<LetterString> lettersOf(const std::vector<std::string>& words) {
    std::vector<LetterString> result;
    for (const std::string& word : words)
        result.push_back(lettersOf(word));
    return result;
}

namespace {

// The small lexicon's letters, common ones more often.
constexpr std::string_view kLetters = "EEEEENNNRRSSTTAAIIDLUOHÄÖÜ";

LetterString letterPool() {
    return lettersOf(kLetters);
}

} // namespace

std::vector<LetterString> smallLexicon(unsigned seed) {
    std::mt19937 random(seed);
    const LetterString pool = letterPool();
    const auto randomLetter = [&] {
        return pool[random() % pool.size()];
    };
    std::set<LetterString> words;
    // Two-letter words make parallel plays common.
    for (int i = 0; i < 60; ++i)
        words.insert(LetterString{randomLetter(), randomLetter()});
    // Stems with endings and a front letter make hooks and extensions.
    const LetterString endings[] = {lettersOf("E"),  lettersOf("N"), lettersOf("EN"),
                                    lettersOf("ER"), lettersOf("S"), lettersOf("TE")};
    for (int i = 0; i < 140; ++i) {
        LetterString stem;
        const std::size_t length = 2 + random() % 6;
        while (stem.size() < length)
            stem.push_back(randomLetter());
        words.insert(stem);
        for (const LetterString& ending : endings) {
            if (random() % 3 == 0)
                words.insert(stem + ending);
        }
        if (random() % 3 == 0)
            words.insert(LetterString{randomLetter()} + stem);
    }
    // A few long ones for plays through several board tiles and bonuses.
    for (int i = 0; i < 30; ++i) {
        LetterString word;
        const std::size_t length = 7 + random() % 6;
        while (word.size() < length)
            word.push_back(randomLetter());
        words.insert(word);
    }
    return {words.begin(), words.end()};
}

Rack randomRack(std::mt19937& random, int blanks) {
    const LetterString pool = letterPool();
    Rack rack;
    for (int i = 0; i < blanks; ++i)
        rack.add(kRackBlank);
    const int size = random() % 4 == 0 ? 1 + static_cast<int>(random() % 7) : kRackSize;
    while (rack.size() < size)
        rack.add(pool[random() % pool.size()]);
    return rack;
}

Board boardOf(const std::vector<std::string>& rows) {
    std::string text;
    for (const std::string& row : rows)
        text += row + "\n";
    return readBoardFile(text).board;
}

Rack rackOf(std::string_view text) {
    return readRack(text).rack;
}

std::string describe(const Move& move) {
    return moveCoordinate(move) + " " + moveWord(move) + " " + std::to_string(move.score);
}

std::string describe(const std::vector<Move>& moves, std::size_t most) {
    std::string text;
    for (std::size_t i = 0; i < moves.size() && i < most; ++i)
        text += describe(moves[i]) + "\n";
    if (moves.size() > most)
        text += "... " + std::to_string(moves.size() - most) + " more\n";
    return text;
}

std::vector<Move> keptByFilter(const std::vector<Move>& moves, const MoveFilter& filter) {
    std::vector<Move> kept;
    for (const Move& move : moves) {
        LetterMask laid = 0;
        for (int i = 0; i < move.length; ++i) {
            if (move.isLaid(i))
                laid |= maskOf(letterOf(move.word[static_cast<std::size_t>(i)]));
        }
        if ((laid & filter.mandatory) == filter.mandatory && (laid & filter.forbidden) == 0 &&
            move.score >= filter.minimumScore)
            kept.push_back(move);
    }
    return kept;
}

} // namespace lettriner::board::testing
