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
    std::vector<std::u16string> supplement;       // words of three or more letters no source has
    std::vector<std::u16string> twoLetter;        // every two-letter word, curated
};

// Lines of a UTF-8 rules file: "#" starts a comment, blanks around a word and
// empty lines are ignored.
[[nodiscard]] std::vector<std::u16string> ruleFileWords(std::string_view utf8File);
// The entries of a UTF-8 word list, one per line (LF or CR LF), empty lines left out.
[[nodiscard]] std::vector<std::u16string> sourceEntries(std::string_view utf8List);

// Where a word comes from, in the order the list is built.
enum class Source : std::size_t {
    WordGame,   // the word-game list (tanglet-data): every word that passes
    General,    // the general list (wngerman): what the word-game list lacks
    Supplement, // tools/wordlist/supplement.txt
    TwoLetter,  // tools/wordlist/two-letter.txt
    Count
};

enum class Outcome : std::size_t {
    Kept,
    Excluded,
    NotGameLetters,
    OneLetter,
    TwoLetters,    // from a source: the curated file gives every two-letter word
    LongerThanTwo, // in the two-letter file
    SeveralCapitals,
    NoVowel,
    Duplicate,          // its upper-case form came earlier
    CapitalisedGeneral, // only the general list has it, capitalised: nearly all names
    ShortGeneral, // only the general list has it, lower case, under six letters: abbreviations
    Count
};

struct GameWordList {
    std::vector<std::u16string> words;
    std::array<std::array<std::size_t, static_cast<std::size_t>(Outcome::Count)>,
               static_cast<std::size_t>(Source::Count)>
        counts{};
    [[nodiscard]] std::size_t count(Source source, Outcome outcome) const {
        return counts[static_cast<std::size_t>(source)][static_cast<std::size_t>(outcome)];
    }
    [[nodiscard]] std::size_t count(Outcome outcome) const;
};

// The shortest lower-case word taken from the general list alone, in tiles (ß as ss).
inline constexpr std::size_t kGeneralOnlyMinimumLength = 6;

// One list from two sources and the curated files, in this order:
//   - every entry of the word-game list that passes the rules;
//   - of the entries whose upper-case form the word-game list has not given,
//     those of the general list written in lower case with six or more
//     letters (its capitalised ones are mostly names, its short lower-case
//     ones mostly abbreviations);
//   - the supplement, which passes the rules but not the exclusions;
//   - the two-letter file, which passes the rules but not the exclusions nor
//     the vowel rule (ST).
// The rules, in order, for every entry: a source spelling on the exclusion list
// is dropped, so an upper-case form goes only when every spelling that gives
// it is excluded ("Nahe" the river goes, "nahe" stays); accents are dropped;
// then the letter rules (game letters only, not one letter, two letters only
// from the curated file, not two capitals, a vowel or the allow list); ß is
// written as ss (the game has no ß tile) and an upper-case form that came
// before is dropped.
[[nodiscard]] GameWordList gameWords(const std::vector<std::u16string>& wordGame,
                                     const std::vector<std::u16string>& general,
                                     const WordListRules& rules);

// One line per rule with its count per source, for the build log and the README.
[[nodiscard]] std::string reportText(const GameWordList& list);

// The words in Windows-1252, CR LF after every word.
[[nodiscard]] std::string wordFileBytes(const std::vector<std::u16string>& words);

} // namespace lettriner::tools
