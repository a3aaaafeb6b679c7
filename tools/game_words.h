// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Turning a general German word list into the game's word list: only words a
// player can lay, each once, written with the game's tiles.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace lettriner::tools {

// The filters, one per rule; each takes a word as the source list spells it.

// "Café" gives "Cafe", "Señor" gives "Senor": the game has no accented tiles.
// Umlauts and ß are letters of their own and stay.
[[nodiscard]] std::u16string withoutAccents(std::u16string_view word);
// Without accents and with ß written as ss, since the game has no ß tile.
[[nodiscard]] std::u16string writtenForTheGame(std::u16string_view word);
// Only a-z, A-Z, ä ö ü, Ä Ö Ü and ß: no digits, hyphens, apostrophes, blanks.
[[nodiscard]] bool hasOnlyGameLetters(std::u16string_view word);
// Two or more capitals anywhere: abbreviations (GmbH, MwSt, CDs) and forms
// like LehrerInnen.
[[nodiscard]] bool hasSeveralCapitals(std::u16string_view word);
// A E I O U Ä Ö Ü Y in either case; words without one are abbreviations
// (Dr, cm, bzw), apart from the few interjections of the allow list.
[[nodiscard]] bool hasVowel(std::u16string_view word);

// The word lists that steer the rules, as read from their files.
struct WordListRules {
    std::unordered_set<std::u16string> exclusions; // names, places, abbreviations: exact spelling
    std::unordered_set<std::u16string> vowelless; // allowed without a vowel; case and ß or ss alike
    std::vector<std::u16string> supplement;       // words the source lacks
};

// Lines of a UTF-8 rules file: "#" starts a comment, blanks around a word and
// empty lines are ignored.
[[nodiscard]] std::vector<std::u16string> ruleFileWords(std::string_view utf8File);

enum class Outcome : std::size_t {
    Kept,
    NotGameLetters,
    OneLetter,
    SeveralCapitals,
    NoVowel,
    Excluded,
    Duplicate, // its upper-case form came earlier
    Supplemented,
    Count
};

struct GameWordList {
    std::vector<std::u16string> words;
    std::array<std::size_t, static_cast<std::size_t>(Outcome::Count)> counts{};
    [[nodiscard]] std::size_t count(Outcome outcome) const {
        return counts[static_cast<std::size_t>(outcome)];
    }
};

// From UTF-8 lines (LF or CR LF), in file order: a source spelling on the
// exclusion list is dropped, so an upper-case form goes only when every
// spelling that gives it is excluded ("Nahe" the river goes, "nahe" stays).
// Accents are dropped, then the letter rules apply; ß is written as ss (the
// game has no ß tile) and an upper-case form that came before is dropped.
// Supplement words pass the letter rules, not the exclusions, and come last.
[[nodiscard]] GameWordList gameWords(std::string_view utf8List, const WordListRules& rules);

// One line per rule with its count, for the build log.
[[nodiscard]] std::string reportText(const GameWordList& list);

// The words in Windows-1252, CR LF after every word.
[[nodiscard]] std::string wordFileBytes(const std::vector<std::u16string>& words);

} // namespace lettriner::tools
